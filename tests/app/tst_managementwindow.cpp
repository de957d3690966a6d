#include "mainwindow.h"
#include "scriptedchooser.h"

#include "devicetree.h"

#include "management/autoupdateframe.h"
#include "management/corrandframe.h"
#include "management/remoteassistanceframe.h"
#include "pages/configpage.h"
#include "pages/zelkonmanagementpage.h"

#include "accordion.h"
#include "accordionitem.h"
#include "platform.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QDomDocument>
#include <QLineEdit>
#include <QTextBlock>
#include <QTextBrowser>
#include <QtTest>
#include <memory>

namespace {
const QString Examples = QStringLiteral(ZELKON_EXAMPLES_DIR);

QDomDocument readDocument(const QString& path)
{
    QFile file(path);
    QDomDocument document;
    if (file.open(QIODevice::ReadOnly))
        document.setContent(&file);
    return document;
}

// The text of section/key in path, or a note of how often the section occurs when not once.
QString saved(const QString& path, const QString& section, const QString& key)
{
    const QDomNodeList sections = readDocument(path).documentElement().elementsByTagName(section);
    if (sections.size() != 1)
        return QStringLiteral("%1 times <%2>").arg(sections.size()).arg(section);
    const QDomElement value = sections.at(0).firstChildElement(key);
    return value.isNull() ? QStringLiteral("no <%1>").arg(key) : value.text();
}
} // namespace

// Stands in for the system browser.
class UrlCatcher : public QObject
{
    Q_OBJECT

public slots:
    void open(const QUrl& url) { urls.append(url); }

public:
    QList<QUrl> urls;
};

class TestManagementWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void editSaveAndReopen_data();
    void editSaveAndReopen();
    void helpLinksOpenInTheBrowser();

private:
    ZelkonManagementPage* page() const
    {
        return static_cast<ZelkonManagementPage*>(m_window->page(MainWindow::ManagementPage));
    }
    template <typename Frame> Frame* frame(ZelkonManagementPage::Tool tool) const
    {
        return qobject_cast<Frame*>(page()->item(tool)->content());
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<DeviceTree> m_device;
    std::unique_ptr<MainWindow> m_window;
    ScriptedChooser* m_chooser = nullptr;
};

void TestManagementWindow::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    // A device with every management package installed.
    m_device = std::make_unique<DeviceTree>();
    using Tool = ZelkonManagementPage::Tool;
    for (Tool tool : { Tool::Corrand, Tool::Pellam, Tool::AutoUpdate, Tool::RemoteAssistance })
        m_device->addFile(ZelkonManagementPage::packageList(tool));
    Platform::instance()->setTarget(Platform::Lunvex);
    Platform::instance()->setStandalone(false);
    m_window = std::make_unique<MainWindow>();
    m_window->setFileChooser(std::unique_ptr<FileChooser>(m_chooser = new ScriptedChooser));
}

void TestManagementWindow::cleanup()
{
    m_window.reset();
    m_device.reset();
    m_dir.reset();
}

void TestManagementWindow::editSaveAndReopen_data()
{
    QTest::addColumn<QString>("example");
    QTest::addColumn<int>("target");
    // The path typed on CE; off CE the row is hidden and the file's path stays as it was.
    QTest::addColumn<QString>("path");
    QTest::newRow("lunvex kiosk") << "lunvex-kiosk.tavlocfg" << int(Platform::Lunvex) << QString();
    QTest::newRow("ce terminal") << "ce-terminal.tavlocfg" << int(Platform::Ce) << "/images/ce8";
}

void TestManagementWindow::editSaveAndReopen()
{
    QFETCH(QString, example);
    QFETCH(int, target);
    QFETCH(QString, path);
    using Tool = ZelkonManagementPage::Tool;
    // Standalone, so that opening a CE file asks no device for its settings.
    m_window->standaloneCheck()->setChecked(true);
    Platform::instance()->setTarget(Platform::Target(target));
    const QString original = Examples + '/' + example;
    QVERIFY(m_window->openFile(original));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_window->showPage(MainWindow::ManagementPage);
    for (Tool tool : { Tool::Corrand, Tool::Pellam, Tool::AutoUpdate, Tool::RemoteAssistance })
        QVERIFY(!page()->item(tool)->isHidden());
    const QString serverBefore = saved(original, QStringLiteral("auto_update"), QStringLiteral("server_address"));
    const QString pathBefore = saved(original, QStringLiteral("auto_update"), QStringLiteral("path"));

    // Switch Corrand over, as the user would.
    page()->accordion()->selectItem(page()->item(Tool::Corrand));
    QCheckBox* corrand = frame<CorrandFrame>(Tool::Corrand)->enableCheck();
    const bool corrandBefore = corrand->isChecked();
    QTest::mouseClick(corrand, Qt::LeftButton, {}, QPoint(8, corrand->height() / 2));
    QCOMPARE(corrand->isChecked(), !corrandBefore);
    QVERIFY(m_window->isWindowModified());

    page()->accordion()->selectItem(page()->item(Tool::RemoteAssistance));
    QLineEdit* password = frame<RemoteAssistanceFrame>(Tool::RemoteAssistance)->passwordEdit();
    password->selectAll();
    QTest::keyClicks(password, QStringLiteral("n3w"));

    page()->accordion()->selectItem(page()->item(Tool::AutoUpdate));
    QLineEdit* pathEdit = frame<AutoUpdateFrame>(Tool::AutoUpdate)->pathEdit();
    QCOMPARE(pathEdit->isVisible(), !path.isNull());
    if (!path.isNull()) {
        pathEdit->selectAll();
        QTest::keyClicks(pathEdit, path);
    }

    const QString file = m_dir->filePath(QStringLiteral("saved.tavlocfg"));
    m_chooser->path = file;
    QVERIFY(m_window->saveAs());
    const QString on = corrandBefore ? QStringLiteral("false") : QStringLiteral("true");
    QCOMPARE(saved(file, QStringLiteral("corrand"), QStringLiteral("enable")), on);
    QCOMPARE(saved(file, QStringLiteral("remote_assistance"), QStringLiteral("password")), QStringLiteral("n3w"));
    QCOMPARE(saved(file, QStringLiteral("auto_update"), QStringLiteral("server_address")), serverBefore);
    QCOMPARE(saved(file, QStringLiteral("auto_update"), QStringLiteral("path")), path.isNull() ? pathBefore : path);

    // Reopened into fresh pages.
    QVERIFY(m_window->openFile(file));
    QCOMPARE(frame<CorrandFrame>(Tool::Corrand)->enableCheck()->isChecked(), !corrandBefore);
    QCOMPARE(frame<RemoteAssistanceFrame>(Tool::RemoteAssistance)->passwordEdit()->text(), QStringLiteral("n3w"));
    if (!path.isNull())
        QCOMPARE(frame<AutoUpdateFrame>(Tool::AutoUpdate)->pathEdit()->text(), path);
    QVERIFY(!m_window->isWindowModified());
}

void TestManagementWindow::helpLinksOpenInTheBrowser()
{
    UrlCatcher browser;
    QDesktopServices::setUrlHandler(QStringLiteral("https"), &browser, "open");
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_window->showPage(MainWindow::ManagementPage);
    page()->accordion()->selectItem(page()->item(ZelkonManagementPage::Tool::Pellam));

    // Click the middle of the link in the help pane.
    QTextBrowser* help = m_window->helpView();
    int anchor = -1;
    for (QTextBlock block = help->document()->begin(); block.isValid() && anchor < 0; block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            if (it.fragment().charFormat().isAnchor()) {
                anchor = it.fragment().position() + it.fragment().length() / 2;
                break;
            }
        }
    }
    QVERIFY(anchor >= 0);
    QTextCursor cursor(help->document());
    cursor.setPosition(anchor);
    QTest::mouseClick(help->viewport(), Qt::LeftButton, {}, help->cursorRect(cursor).center());
    QDesktopServices::unsetUrlHandler(QStringLiteral("https"));

    QCOMPARE(browser.urls, QList<QUrl>({ QUrl(QStringLiteral("https://www.pellam.example/")) }));
    // The pane itself still shows the help.
    QVERIFY(help->toPlainText().contains(QStringLiteral("Pellam Agent")));
}

QTEST_MAIN(TestManagementWindow)
#include "tst_managementwindow.moc"
