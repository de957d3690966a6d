#include "devicetree.h"
#include "faketool.h"
#include "filecontents.h"
#include "mainwindow.h"
#include "schemacheck.h"
#include "scriptedchooser.h"

#include "pages/configpage.h"
#include "platform.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QtTest>

namespace {
const QString Examples = QStringLiteral(ZELKON_EXAMPLES_DIR);
}

/*
 * Every document the wizard writes is valid against the published schema: each example
 * opened on each platform, on a device and standalone, with every setting of every page
 * changed, saved and checked.
 */
class TestWrittenDocuments : public QObject
{
    Q_OBJECT

private slots:
    void everyFrameWritesValidDocuments_data();
    void everyFrameWritesValidDocuments();
};

void TestWrittenDocuments::everyFrameWritesValidDocuments_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<bool>("standalone");
    QTest::addColumn<QString>("example");
    const QStringList examples = QDir(Examples).entryList({ QStringLiteral("*.tavlocfg") }) << QString();
    for (int target : { Platform::Lunvex, Platform::Wes, Platform::Wes7, Platform::Ce }) {
        for (bool standalone : { false, true }) {
            for (const QString& example : examples) {
                const QString row = QStringLiteral("%1 %2 %3")
                                        .arg(Platform::list().at(target), standalone ? "standalone" : "device",
                                             example.isEmpty() ? QStringLiteral("new") : example);
                QTest::newRow(qPrintable(row)) << target << standalone << example;
            }
        }
    }
}

void TestWrittenDocuments::everyFrameWritesValidDocuments()
{
    QFETCH(int, target);
    QFETCH(bool, standalone);
    QFETCH(QString, example);
    QTemporaryDir dir;
    const QString oldCurrent = QDir::currentPath();
    QDir::setCurrent(dir.path());
    FakeTool settingsTool(QStringLiteral("tavlosettings"));
    DeviceTree device;
    for (const char* launcher :
         { "rdesktop-runner", "ica-session-runner", "parlix-runner", "iceweasel-runner", "pnagent-runner" })
        device.addFile(QStringLiteral("/usr/bin/") + QLatin1String(launcher));
    Platform::instance()->setTarget(Platform::Target(target));
    Platform::instance()->setStandalone(standalone);

    {
        MainWindow window;
        auto* chooser = new ScriptedChooser;
        window.setFileChooser(std::unique_ptr<FileChooser>(chooser));
        if (!example.isEmpty())
            QVERIFY(window.openFile(Examples + '/' + example));
        // Every setting changed: boxes toggled, the last choice taken, the largest number,
        // text added.
        for (ConfigPage* page : window.containerPages()) {
            for (QCheckBox* box : page->findChildren<QCheckBox*>())
                box->click();
            for (QComboBox* combo : page->findChildren<QComboBox*>())
                combo->setCurrentIndex(combo->count() - 1);
            for (QSpinBox* spin : page->findChildren<QSpinBox*>())
                spin->setValue(spin->maximum());
            for (QLineEdit* edit : page->findChildren<QLineEdit*>()) {
                if (edit->isEnabled() && !edit->isReadOnly())
                    QTest::keyClicks(edit, QStringLiteral("7"));
            }
        }
        const QString saved = dir.filePath(QStringLiteral("saved.tavlocfg"));
        QVERIFY(window.saveTo(saved));
        const QByteArray contents = fileContents(saved);
        QVERIFY(contents.contains("<zelkon"));
        const QStringList problems = schemaProblems(contents);
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join('\n') + '\n' + contents));
    }
    QDir::setCurrent(oldCurrent);
}

QTEST_MAIN(TestWrittenDocuments)
#include "tst_writtendocuments.moc"
