#include "filechooser.h"

#include <QFileDialog>
#include <QScopedPointer>
#include <QtTest>

class TestFileChooser : public QObject
{
    Q_OBJECT

private slots:
    void saveDialogAddsTheSuffix();
    void openDialogWantsAnExistingFile();
};

void TestFileChooser::saveDialogAddsTheSuffix()
{
    QScopedPointer<QFileDialog> dialog(FileChooser::createSaveDialog(nullptr, QDir::tempPath()));
    QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
    QCOMPARE(dialog->defaultSuffix(), QStringLiteral("tavlocfg"));
    QCOMPARE(dialog->nameFilters(), QStringList { QStringLiteral("Zelkon configuration (*.tavlocfg)") });
}

void TestFileChooser::openDialogWantsAnExistingFile()
{
    QScopedPointer<QFileDialog> dialog(FileChooser::createOpenDialog(nullptr, QDir::tempPath()));
    QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptOpen);
    QCOMPARE(dialog->fileMode(), QFileDialog::ExistingFile);
    QCOMPARE(dialog->nameFilters().constFirst(), QStringLiteral("Zelkon configuration (*.tavlocfg)"));
}

QTEST_MAIN(TestFileChooser)
#include "tst_filechooser.moc"
