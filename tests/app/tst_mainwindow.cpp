#include "documentcontroller.h"
#include "filecontents.h"
#include "mainwindow.h"
#include "scriptedchooser.h"
#include "sectionframe.h"

#include "devicetree.h"
#include "faketool.h"
#include "modalanswer.h"

#include "config/configfile.h"
#include "config/parseguard.h"
#include "connections/editing/categorizedlistwidget.h"
#include "connections/editing/connectionlistpage.h"
#include "connections/editing/connectionselectorpage.h"
#include "connections/editing/connectionsframe.h"
#include "connections/editing/defaulteditor.h"
#include "pages/configpage.h"
#include "pages/zelkonsummarypage.h"

#include "accordion.h"
#include "accordionitem.h"
#include "platform.h"

#include <QCheckBox>
#include <QDomDocument>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTextBrowser>
#include <QTextCodec>
#include <QToolButton>
#include <QtTest>
#include <memory>

namespace {
const QString Examples = QStringLiteral(ZELKON_EXAMPLES_DIR);

// Sections of every kind: one a frame edits, a connection type that can be launched here
// and one that cannot, the desktop settings, sections no page writes and one nobody knows.
const QByteArray Mixed = R"(<zelkon version="1.0" creator="zelkon" creator_version="2.0">
 <frobnicator><level>11</level><nested><deeper>x</deeper></nested></frobnicator>
 <keyboard><layout>Germany</layout></keyboard>
 <altiris><enable>true</enable><server_address>ns.example.com</server_address></altiris>
 <rdp><session id="{11111111-2222-3333-4444-555555555555}">
  <name>Terminal server</name><autostart>true</autostart><address>ts.example.com</address></session></rdp>
 <vmware><session id="{66666666-7777-8888-9999-000000000000}"><name>View</name></session></vmware>
 <desktop><kiosk_mode>true</kiosk_mode></desktop>
 <network_printer><printer id="{aaaaaaaa}"><name>Laser</name><address>prn.example.com</address></printer></network_printer>
</zelkon>
)";

// Connections of three types this machine can launch (RDP, ICA, and XenApp once added)
// and one it cannot (VMware View), with kiosk mode on.
const QByteArray Connections = R"(<zelkon version="1.0" creator="zelkon" creator_version="2.0">
 <keyboard><layout>Germany</layout></keyboard>
 <rdp><session id="{11111111-2222-3333-4444-555555555555}">
  <name>Terminal server</name><autostart>true</autostart><address>ts.example.com</address></session></rdp>
 <ica><session id="{22222222-3333-4444-5555-666666666666}">
  <name>Citrix farm</name><autostart>false</autostart><address>farm.example.com</address>
  <proxy><enable>true</enable><address>proxy.example.com</address><port>8080</port></proxy></session></ica>
 <vmware><session id="{66666666-7777-8888-9999-000000000000}"><name>View</name></session></vmware>
 <desktop><kiosk_mode>true</kiosk_mode></desktop>
</zelkon>
)";

// The element tree with attributes in name order, however it was written.
QString canonical(const QDomElement& element)
{
    QStringList attributes;
    const QDomNamedNodeMap map = element.attributes();
    for (int i = 0; i < map.count(); ++i)
        attributes.append(map.item(i).nodeName() + '=' + map.item(i).nodeValue());
    attributes.sort();
    QString text = '<' + element.tagName() + ' ' + attributes.join(' ') + '>';
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling())
        text += child.isElement() ? canonical(child.toElement()) : child.nodeValue();
    return text + QLatin1String("</>");
}

QDomElement rootOf(const QByteArray& bytes)
{
    QDomDocument document;
    document.setContent(bytes);
    return document.documentElement();
}

// The sections of that name below the root.
QList<QDomElement> sections(const QDomElement& root, const QString& name)
{
    QList<QDomElement> found;
    for (QDomElement section = root.firstChildElement(name); !section.isNull();
         section = section.nextSiblingElement(name))
        found.append(section);
    return found;
}

// The names of the sessions in the one section of that type, "" without it.
QString sessionNames(const QDomElement& root, const QString& type)
{
    const QList<QDomElement> found = sections(root, type);
    if (found.size() != 1)
        return QStringLiteral("%1 sections").arg(found.size());
    QStringList names;
    for (QDomElement session = found.first().firstChildElement("session"); !session.isNull();
         session = session.nextSiblingElement("session"))
        names.append(session.firstChildElement("name").text());
    return names.join(',');
}

// A file's tree as canonical() has it, with its keyboard layout replaced when one is given.
QString canonical(const QByteArray& bytes, const QString& layout = QString())
{
    QDomDocument document;
    document.setContent(bytes);
    const QDomElement root = document.documentElement();
    if (!layout.isNull())
        root.firstChildElement("keyboard").firstChildElement("layout").firstChild().setNodeValue(layout);
    return canonical(root);
}
} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void walkEditSaveAndReopen_data();
    void walkEditSaveAndReopen();
    void unsavedChangesPrompt_data();
    void unsavedChangesPrompt();
    void refusalsKeepTheConfiguration_data();
    void refusalsKeepTheConfiguration();
    void applyRunsTheSettingsTool();
    void connectionsReachTheFileOnce_data();
    void connectionsReachTheFileOnce();

private:
    QString write(const QString& name, const QByteArray& contents);
    QString openEdited();
    SectionFrame* keyboard() const
    {
        const ConfigPage* regional = m_window->containerPages().constFirst();
        return dynamic_cast<SectionFrame*>(regional->accordion()->items().constLast()->content());
    }

    ConnectionListPage* connectionList() const
    {
        const ConfigPage* connections = m_window->containerPages().constLast();
        auto* frame = qobject_cast<ConnectionsFrame*>(connections->accordion()->items().constFirst()->content());
        return frame ? frame->findChild<ConnectionListPage*>() : nullptr;
    }
    QStringList listedNames() const;
    void addConnection(const QString& typeName, const QString& name, const QString& server);

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<DeviceTree> m_device;
    std::unique_ptr<MainWindow> m_window;
    ScriptedChooser* m_chooser = nullptr;
    QString m_oldCurrent;
};

void TestMainWindow::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_oldCurrent = QDir::currentPath();
    QDir::setCurrent(m_dir->path());
    // Every connection type the examples use can be launched here; VMware View cannot.
    m_device = std::make_unique<DeviceTree>();
    for (const char* launcher :
         { "rdesktop-runner", "ica-session-runner", "parlix-runner", "iceweasel-runner", "pnagent-runner" })
        m_device->addFile(QStringLiteral("/usr/bin/") + QLatin1String(launcher));
    Platform::instance()->setTarget(Platform::Lunvex);
    Platform::instance()->setStandalone(false);

    m_window = std::make_unique<MainWindow>();
    m_window->setFileChooser(std::unique_ptr<FileChooser>(m_chooser = new ScriptedChooser));
    // A stand-in after the real frames of the regional page, added every time the window
    // builds its pages.
    auto addFrames = [this] {
        const QList<ConfigPage*> pages = m_window->containerPages();
        auto* keyboard = new SectionFrame(QStringLiteral("keyboard"), QStringLiteral("layout"));
        connect(keyboard, &ConfigFrame::dirty, pages.constFirst(), &WizardPage::modified);
        pages.constFirst()->accordion()->addItem(new AccordionItem(keyboard));
    };
    connect(m_window.get(), &MainWindow::containerPagesBuilt, this, addFrames);
    addFrames();
}

void TestMainWindow::cleanup()
{
    m_window.reset();
    QDir::setCurrent(m_oldCurrent);
    m_device.reset();
    m_dir.reset();
}

QString TestMainWindow::write(const QString& name, const QByteArray& contents)
{
    const QString path = m_dir->filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

// A copy of the kiosk example, open with its keyboard layout changed to "Norway".
QString TestMainWindow::openEdited()
{
    const QString path = write(QStringLiteral("kiosk.tavlocfg"), fileContents(Examples + "/lunvex-kiosk.tavlocfg"));
    m_window->openFile(path);
    keyboard()->setText(QStringLiteral("Norway"));
    return path;
}

void TestMainWindow::walkEditSaveAndReopen_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("contents");
    for (const QString& name : QDir(Examples).entryList({ QStringLiteral("*.tavlocfg") }))
        QTest::newRow(qPrintable(name)) << name << fileContents(Examples + '/' + name);
    QTest::newRow("mixed") << QStringLiteral("mixed.tavlocfg") << Mixed;
    // As a Windows editor may leave a file: UTF-16 with a byte-order mark and CRLF line ends.
    QString windows = QString::fromUtf8(Mixed).replace(QLatin1String("\n"), QLatin1String("\r\n"));
    windows.replace(QLatin1String("Laser"), QStringLiteral("Laser \u010d"));
    QTextEncoder utf16(QTextCodec::codecForName("UTF-16LE"), QTextCodec::DefaultConversion);
    QTest::newRow("UTF-16, CRLF") << QStringLiteral("utf16.tavlocfg")
                                  << utf16.fromUnicode(QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-16\"?>\r\n")
                                                       + windows);
}

void TestMainWindow::walkEditSaveAndReopen()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, contents);
    const QString path = write(name, contents);
    // Standalone, the connection model writes back every connection and the desktop
    // settings, not only the changed ones.
    m_window->standaloneCheck()->setChecked(true);
    // Each example is edited for the platform it was written for, whose choices it uses.
    Platform::instance()->setTarget(name.startsWith("wes")      ? Platform::Wes
                                        : name.startsWith("ce") ? Platform::Ce
                                                                : Platform::Lunvex);
    QVERIFY(m_window->openFile(path));
    QVERIFY(m_window->windowTitle().startsWith(name));

    QSet<QString> helpTexts;
    for (int index = 0; index < MainWindow::PageCount; ++index) {
        if (index > 0)
            QTest::mouseClick(m_window->nextButton(), Qt::LeftButton);
        QCOMPARE(m_window->currentPage(), index);
        helpTexts.insert(m_window->helpView()->toPlainText());
        // Only the pages without frames say that there is nothing to set.
        QCOMPARE(m_window->emptyPageHint()->isHidden(), index != MainWindow::ManagementPage);
        if (index == MainWindow::RegionalPage) {
            // Opening a frame adds its help to the page's.
            auto* page = static_cast<ConfigPage*>(m_window->page(index));
            page->accordion()->selectItem(page->accordion()->items().constLast());
            QVERIFY(m_window->helpView()->toPlainText().endsWith(QStringLiteral("Help of keyboard")));
            keyboard()->setText(QStringLiteral("Norway"));
        }
    }
    QCOMPARE(helpTexts.size(), int(MainWindow::PageCount));
    QVERIFY(m_window->isWindowModified());
    QVERIFY(m_window->summaryPage()->summaryView()->toPlainText().contains(QStringLiteral("Norway")));
    // The summary is generated anew each time it is shown, and once more for saving.
    m_window->back();
    m_window->next();

    const QString saved = m_dir->filePath(QStringLiteral("saved.tavlocfg"));
    m_chooser->path = saved;
    QVERIFY(m_window->saveAs());
    QVERIFY(!m_window->isWindowModified());
    // Each section once, and all but the edited value as it was read.
    QCOMPARE(canonical(fileContents(saved)), canonical(contents, "Norway"));

    // Reopened from the title page, into fresh pages.
    ConfigPage* before = m_window->containerPages().constFirst();
    QTest::mouseClick(m_window->findChild<QPushButton*>(QStringLiteral("TitleOpenButton")), Qt::LeftButton);
    QCOMPARE(m_window->document()->filePath(), saved);
    QVERIFY(m_window->containerPages().constFirst() != before);
    QCOMPARE(keyboard()->text(), QStringLiteral("Norway"));
    QVERIFY(!m_window->isWindowModified());

    // Saving again needs no dialog.
    m_chooser->path.clear();
    keyboard()->setText(QStringLiteral("Sweden"));
    QTest::mouseClick(m_window->summaryPage()->saveButton(), Qt::LeftButton);
    QCOMPARE(canonical(fileContents(saved)), canonical(contents, "Sweden"));
}

void TestMainWindow::unsavedChangesPrompt_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("savedLayout");
    QTest::addColumn<bool>("proceeds");
    QTest::addColumn<QString>("shownLayout");

    QTest::newRow("new, save") << "new" << int(QMessageBox::Save) << "Norway" << true << QString();
    QTest::newRow("new, discard") << "new" << int(QMessageBox::Discard) << "Germany" << true << QString();
    QTest::newRow("new, cancel") << "new" << int(QMessageBox::Cancel) << "Germany" << false << "Norway";
    QTest::newRow("open, discard") << "open" << int(QMessageBox::Discard) << "Germany" << true << "Netherlands";
    QTest::newRow("open, cancel") << "open" << int(QMessageBox::Cancel) << "Germany" << false << "Norway";
    QTest::newRow("close, save") << "close" << int(QMessageBox::Save) << "Norway" << true << "Norway";
    QTest::newRow("close, cancel") << "close" << int(QMessageBox::Cancel) << "Germany" << false << "Norway";
}

void TestMainWindow::unsavedChangesPrompt()
{
    QFETCH(QString, action);
    QFETCH(int, answer);
    QFETCH(bool, proceeds);
    QFETCH(QString, savedLayout);
    const QString path = openEdited();
    m_chooser->path = write(QStringLiteral("office.tavlocfg"), fileContents(Examples + "/wes-office.tavlocfg"));

    ModalAnswer box(static_cast<QMessageBox::StandardButton>(answer));
    box.arm();
    const bool done = action == "new" ? m_window->newDocument()
        : action == "open"            ? m_window->open()
                                      : m_window->close();
    QVERIFY(box.answered());
    QCOMPARE(box.title(), QStringLiteral("Zelkon"));
    QCOMPARE(box.icon(), QMessageBox::Warning);
    QVERIFY2(box.text().contains(QStringLiteral("\"kiosk.tavlocfg\" has unsaved changes")), qPrintable(box.text()));
    QCOMPARE(box.buttons(), QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    QCOMPARE(done, proceeds);
    QCOMPARE(m_window->isWindowModified(), !proceeds);
    QVERIFY(fileContents(path).contains("<layout>" + savedLayout.toUtf8() + "</layout>"));
    // The summary shows the configuration now being edited.
    m_window->showPage(MainWindow::SummaryPage);
    const QDomElement shown = m_window->document()->generatedDocument()->documentElement();
    QTEST(shown.firstChildElement("keyboard").firstChildElement("layout").text(), "shownLayout");
}

void TestMainWindow::refusalsKeepTheConfiguration_data()
{
    QTest::addColumn<bool>("saving");
    // Without contents, the file is missing.
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("reason");

    const QByteArray garbage
        = QByteArray("\x8f<\x01z\xff&\x7f>", 8).repeated(int(ParseGuard::MaxFileBytes + 2 * 1024 * 1024) / 8);
    QTest::newRow("missing") << false << QByteArray() << "does not exist";
    QTest::newRow("empty") << false << QByteArray("") << "empty";
    QTest::newRow("not XML") << false << QByteArray("[Display]\nResolution=1024x768\n") << "not an XML document";
    QTest::newRow("wrong root") << false << QByteArray("<?xml version=\"1.0\"?><settings/>") << "<settings>";
    QTest::newRow("garbage beyond the size limit")
        << false << garbage << QStringLiteral("larger than %1 MB").arg(ParseGuard::MaxFileBytes / (1024 * 1024));
    // A parent that is a regular file defeats even root.
    QTest::newRow("save below a file") << true << QByteArray() << "is not a folder";
}

void TestMainWindow::refusalsKeepTheConfiguration()
{
    QFETCH(bool, saving);
    QFETCH(QByteArray, contents);
    QFETCH(QString, reason);
    const QString current = openEdited();
    const QString before = m_window->document()->loadedDocument()->toString();
    const QString other = saving ? current + QStringLiteral("/copy.tavlocfg")
        : contents.isNull()      ? m_dir->filePath(QStringLiteral("bad.tavlocfg"))
                                 : write(QStringLiteral("bad.tavlocfg"), contents);

    ModalAnswer box;
    box.arm();
    m_chooser->path = other;
    QVERIFY(!(saving ? m_window->saveAs() : m_window->openFile(other)));
    QVERIFY(box.answered());
    QCOMPARE(box.title(), QStringLiteral("Zelkon"));
    QCOMPARE(box.icon(), saving ? QMessageBox::Critical : QMessageBox::Warning);
    QCOMPARE(box.buttons(), QMessageBox::Ok);
    QVERIFY2(box.text().contains(QDir::toNativeSeparators(other)), qPrintable(box.text()));
    QVERIFY2(box.text().contains(reason), qPrintable(box.text()));
    // The configuration being edited, and its file, are as they were.
    QCOMPARE(m_window->document()->loadedDocument()->toString(), before);
    QCOMPARE(m_window->document()->filePath(), current);
    QVERIFY(m_window->isWindowModified());
    QCOMPARE(fileContents(current), fileContents(Examples + "/lunvex-kiosk.tavlocfg"));
}

void TestMainWindow::applyRunsTheSettingsTool()
{
    FakeTool settings(QStringLiteral("tavlosettings"));
    const QString path = openEdited();
    m_window->showPage(MainWindow::SummaryPage);
    QPushButton* apply = m_window->summaryPage()->applyButton();
    QVERIFY(!apply->isHidden());
    QTest::mouseClick(apply, Qt::LeftButton);
    QCOMPARE(settings.runs().size(), 1);
    QCOMPARE(settings.runs().constFirst().arguments, QStringList({ "-settings", "default.tavlocfg", "-set", "all" }));
    QCOMPARE(QDir(settings.runs().constFirst().workingDirectory).canonicalPath(), QDir(m_dir->path()).canonicalPath());
    QVERIFY(fileContents(m_dir->filePath(QStringLiteral("default.tavlocfg"))).contains("<layout>Norway</layout>"));
    // Applying is not saving the file being edited.
    QVERIFY(m_window->isWindowModified());
    QCOMPARE(fileContents(path), fileContents(Examples + "/lunvex-kiosk.tavlocfg"));

    // A standalone wizard configures no device.
    m_window->standaloneCheck()->setChecked(true);
    QVERIFY(apply->isHidden());
    QVERIFY(!m_window->applyToDevice());
    QCOMPARE(settings.runs().size(), 1);
}

QStringList TestMainWindow::listedNames() const
{
    QStringList names;
    QTableWidget* table = connectionList()->table();
    for (int row = 0; row < table->rowCount(); ++row)
        names.append(table->item(row, 0)->text());
    return names;
}

// As a user does it: New remote connection, double-click the type, fill in, Save.
void TestMainWindow::addConnection(const QString& typeName, const QString& name, const QString& server)
{
    QTest::mouseClick(connectionList()->newConnectionButton(), Qt::LeftButton);
    auto* selector = connectionList()->parentWidget()->findChild<ConnectionSelectorPage*>();
    QVERIFY(selector && selector->isVisible());
    CategorizedListWidget* types = selector->connectionList();
    const QList<QListWidgetItem*> found = types->findItems(typeName, Qt::MatchExactly);
    QCOMPARE(found.size(), 1);
    const QPoint centre = types->visualItemRect(found.first()).center();
    QTest::mouseClick(types->viewport(), Qt::LeftButton, {}, centre);
    QTest::mouseDClick(types->viewport(), Qt::LeftButton, {}, centre);
    DefaultEditor* editor = nullptr;
    for (DefaultEditor* page : selector->parentWidget()->findChildren<DefaultEditor*>()) {
        if (page->isVisible())
            editor = page;
    }
    QVERIFY(editor);
    editor->nameEdit()->setText(name);
    editor->serverEdit()->setText(server);
    QTest::mouseClick(editor->saveButton(), Qt::LeftButton);
    QVERIFY(connectionList()->isVisible());
}

void TestMainWindow::connectionsReachTheFileOnce_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<bool>("standalone");
    QTest::newRow("lunvex") << int(Platform::Lunvex) << false;
    QTest::newRow("wes") << int(Platform::Wes) << false;
    QTest::newRow("wes7") << int(Platform::Wes7) << false;
    QTest::newRow("ce") << int(Platform::Ce) << false;
    QTest::newRow("standalone") << int(Platform::Lunvex) << true;
}

// A connection created, renamed or deleted in the wizard is in the saved file exactly
// once; the connections the user did not touch, and the types this machine cannot
// launch, are saved as they were. Only applying hands the device just the changes.
void TestMainWindow::connectionsReachTheFileOnce()
{
    QFETCH(int, target);
    QFETCH(bool, standalone);
    FakeTool settings(QStringLiteral("tavlosettings"));
    Platform::instance()->setTarget(Platform::Target(target));
    m_window->standaloneCheck()->setChecked(standalone);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QVERIFY(m_window->openFile(write(QStringLiteral("connections.tavlocfg"), Connections)));
    m_window->showPage(MainWindow::ConnectionsPage);
    QCOMPARE(listedNames(), QStringList({ "Citrix farm", "Terminal server" }));
    QVERIFY(!m_window->isWindowModified());

    addConnection(QStringLiteral("XenApp"), QStringLiteral("Portal"), QStringLiteral("https://apps.example.com"));
    QTableWidget* table = connectionList()->table();
    QTableWidgetItem* old = table->findItems(QStringLiteral("Terminal server"), Qt::MatchExactly).first();
    table->editItem(old);
    auto* rename = qobject_cast<QLineEdit*>(table->indexWidget(table->model()->index(old->row(), 0)));
    QVERIFY(rename);
    rename->setText(QStringLiteral("Main server"));
    QTest::keyClick(rename, Qt::Key_Return);
    QTRY_COMPARE(listedNames(), QStringList({ "Citrix farm", "Main server", "Portal" }));
    QVERIFY(m_window->isWindowModified());

    const QString saved = m_dir->filePath(QStringLiteral("saved.tavlocfg"));
    m_chooser->path = saved;
    QVERIFY(m_window->saveAs());
    const QDomElement loaded = rootOf(Connections);
    QDomElement file = rootOf(fileContents(saved));
    QCOMPARE(sessionNames(file, "rdp"), QStringLiteral("Main server"));
    QCOMPARE(sessionNames(file, "xenapp"), QStringLiteral("Portal"));
    QCOMPARE(sections(file, "desktop").size(), 1);
    // Untouched: saved whole, whether or not the device would be sent it.
    for (const char* untouched : { "ica", "vmware" }) {
        QCOMPARE(sections(file, untouched).size(), 1);
        QCOMPARE(canonical(sections(file, untouched).first()), canonical(loaded.firstChildElement(untouched)));
    }

    // Applying on a device hands over what changed; the untouched ICA connection stays out.
    if (!standalone) {
        QVERIFY(m_window->applyToDevice());
        const QDomElement applied = rootOf(fileContents(m_dir->filePath(QStringLiteral("default.tavlocfg"))));
        QCOMPARE(sessionNames(applied, "rdp"), QStringLiteral("Main server"));
        QCOMPARE(sessionNames(applied, "xenapp"), QStringLiteral("Portal"));
        QCOMPARE(sections(applied, "ica").size(), 0);
        QCOMPARE(sections(applied, "vmware").size(), 1);
    }

    // Reopened, every connection is listed once; one deleted is gone from the next save.
    QVERIFY(m_window->openFile(saved));
    QCOMPARE(listedNames(), QStringList({ "Citrix farm", "Main server", "Portal" }));
    ModalAnswer box(QMessageBox::Yes);
    box.arm();
    QTest::mouseClick(qobject_cast<QToolButton*>(connectionList()->table()->cellWidget(2, 1)), Qt::LeftButton);
    QVERIFY(box.answered());
    QVERIFY(m_window->save());
    file = rootOf(fileContents(saved));
    QCOMPARE(sessionNames(file, "xenapp"), QString());
    QCOMPARE(sessionNames(file, "rdp"), QStringLiteral("Main server"));
    QCOMPARE(sessionNames(file, "ica"), QStringLiteral("Citrix farm"));
    QVERIFY(m_window->openFile(saved));
    QCOMPARE(listedNames(), QStringList({ "Citrix farm", "Main server" }));
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
