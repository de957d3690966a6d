#include "devicetree.h"
#include "filecontents.h"
#include "mainwindow.h"
#include "pendingchangesdialog.h"
#include "scriptedchooser.h"

#include "management/remoteassistanceframe.h"
#include "pages/configpage.h"
#include "platform.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>
#include <functional>

namespace {
const QString Examples = QStringLiteral(ZELKON_EXAMPLES_DIR);

// The rows of the dialog's tree as "setting|before|after".
QStringList rows(const PendingChangesDialog* dialog)
{
    QStringList lines;
    const QTreeWidget* tree = dialog->changesTree();
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* item = tree->topLevelItem(i);
        lines.append(QStringList { item->text(0).trimmed(), item->text(1), item->text(2) }.join('|'));
    }
    return lines;
}
} // namespace

class TestPendingChanges : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void saveShowsChangesAndCanGoBack_data();
    void saveShowsChangesAndCanGoBack();
    void applyShowsTheSameChanges();

private:
    // Runs action while answering the dialog it opens: inspect sees it, then the chosen
    // button is clicked.
    bool answer(const std::function<bool()>& action, bool goOn, QStringList* shown, QString* title);

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<DeviceTree> m_device;
    std::unique_ptr<MainWindow> m_window;
    QString m_oldCurrent;
};

void TestPendingChanges::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_oldCurrent = QDir::currentPath();
    QDir::setCurrent(m_dir->path());
    m_device = std::make_unique<DeviceTree>();
    m_device->addFile(QStringLiteral("/usr/bin/rdesktop-runner"));
    Platform::instance()->setTarget(Platform::Lunvex);
    Platform::instance()->setStandalone(false);
    m_window = std::make_unique<MainWindow>();
    m_window->setFileChooser(std::make_unique<ScriptedChooser>());
    m_window->setReviewChanges(true);
    QVERIFY(m_window->openFile(Examples + "/lunvex-kiosk.tavlocfg"));
}

void TestPendingChanges::cleanup()
{
    m_window.reset();
    QDir::setCurrent(m_oldCurrent);
    m_device.reset();
    m_dir.reset();
}

bool TestPendingChanges::answer(const std::function<bool()>& action, bool goOn, QStringList* shown, QString* title)
{
    bool seen = false;
    // Owns the pending polls, so that none outlives this call when no dialog came.
    QObject context;
    std::function<void(int)> poll = [&](int attemptsLeft) {
        auto* dialog = qobject_cast<PendingChangesDialog*>(QApplication::activeModalWidget());
        if (!dialog) {
            if (attemptsLeft > 0)
                QTimer::singleShot(10, &context, [&poll, attemptsLeft] { poll(attemptsLeft - 1); });
            return;
        }
        seen = true;
        *shown = rows(dialog);
        *title = dialog->windowTitle();
        const QByteArray shots = qgetenv("ZELKON_SHOTS_DIR");
        if (!shots.isEmpty())
            dialog->grab().save(QString::fromLocal8Bit(shots) + "/pending-changes.png");
        QTest::mouseClick(goOn ? dialog->goOnButton() : dialog->goBackButton(), Qt::LeftButton);
    };
    QTimer::singleShot(0, &context, [&poll] { poll(300); });
    const bool result = action();
    return result && seen;
}

void TestPendingChanges::saveShowsChangesAndCanGoBack_data()
{
    QTest::addColumn<bool>("goOn");
    QTest::newRow("go back") << false;
    QTest::newRow("save") << true;
}

void TestPendingChanges::saveShowsChangesAndCanGoBack()
{
    QFETCH(bool, goOn);
    auto* layout = m_window->findChild<QComboBox*>(QStringLiteral("KeyboardLayoutCombo"));
    QVERIFY(layout);
    layout->setCurrentIndex(layout->findData(QStringLiteral("Norway")));
    auto* assistance = m_window->findChild<RemoteAssistanceFrame*>();
    QVERIFY(assistance);
    assistance->passwordEdit()->setText(QStringLiteral("n3w-s3cr3t"));

    const QString path = m_dir->filePath(QStringLiteral("saved.tavlocfg"));
    QStringList shown;
    QString title;
    const bool saved = answer([&] { return m_window->saveTo(path); }, goOn, &shown, &title);
    QCOMPARE(title, QStringLiteral("Pending Changes"));
    QCOMPARE(
        shown,
        (QStringList { "Keyboard||", "Layout|Germany|Norway", "Remote_assistance||", "Password|********|********" }));
    QCOMPARE(saved, goOn);
    QCOMPARE(QFile::exists(path), goOn);
    if (goOn)
        QVERIFY(fileContents(path).contains("<layout>Norway</layout>"));
}

void TestPendingChanges::applyShowsTheSameChanges()
{
    auto* layout = m_window->findChild<QComboBox*>(QStringLiteral("KeyboardLayoutCombo"));
    QVERIFY(layout);
    layout->setCurrentIndex(layout->findData(QStringLiteral("Norway")));
    QStringList shown;
    QString title;
    // Going back never reaches the device.
    QVERIFY(!answer([&] { return m_window->applyToDevice(); }, false, &shown, &title));
    QCOMPARE(shown, (QStringList { "Keyboard||", "Layout|Germany|Norway" }));
    QVERIFY(!QFile::exists(m_dir->filePath(QStringLiteral("default.tavlocfg"))));
}

QTEST_MAIN(TestPendingChanges)
#include "tst_pendingchanges.moc"
