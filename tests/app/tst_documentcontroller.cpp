#include "configfilecheck.h"
#include "connectionmodelframe.h"
#include "documentcontroller.h"
#include "sectionframe.h"

#include "devicetree.h"

#include "config/configfile.h"
#include "connections/model/configatom.h"
#include "connections/model/connectionkindred.h"
#include "connections/model/connectionsession.h"
#include "pages/zelkonconnectionspage.h"
#include "pages/zelkonregionalpage.h"

#include "accordion.h"
#include "accordionitem.h"
#include "platform.h"

#include <QDomDocument>
#include <QtTest>
#include <memory>

namespace {
// Sections of every kind the wizard must cope with: one a frame edits, connection types
// with and without a launcher on this machine, the desktop settings, sections no page
// places and one nobody knows.
const QByteArray Mixed = R"(<?xml version="1.0" encoding="utf-8"?>
<zelkon version="1.0" creator="zelkon" creator_version="2.0">
 <frobnicator>
  <level>11</level>
  <nested><deeper>x</deeper></nested>
 </frobnicator>
 <keyboard>
  <layout>Germany</layout>
 </keyboard>
 <altiris>
  <enable>true</enable>
  <server_address>ns.example.com</server_address>
 </altiris>
 <rdp>
  <session id="{11111111-2222-3333-4444-555555555555}">
   <name>Terminal server</name>
   <autostart>true</autostart>
   <address>ts.example.com</address>
  </session>
 </rdp>
 <vmware>
  <session id="{66666666-7777-8888-9999-000000000000}">
   <name>View</name>
   <autostart>false</autostart>
   <address>view.example.com</address>
  </session>
 </vmware>
 <desktop>
  <kiosk_mode>true</kiosk_mode>
 </desktop>
 <network_printer>
  <printer id="{aaaaaaaa-bbbb-cccc-dddd-eeeeeeeeeeee}">
   <name>Laser</name>
   <address>prn.example.com</address>
  </printer>
 </network_printer>
</zelkon>
)";

QStringList sectionNames(ConfigFile* document)
{
    QStringList names;
    for (QDomElement e = document->documentElement().firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
        names.append(e.tagName());
    return names;
}

QDomDocument parsed(const QByteArray& bytes)
{
    QDomDocument document;
    document.setContent(bytes);
    return document;
}

// The element tree with attributes in name order, independent of how it was written.
QString canonical(const QDomElement& element)
{
    QStringList attributes;
    const QDomNamedNodeMap map = element.attributes();
    for (int i = 0; i < map.count(); ++i)
        attributes.append(map.item(i).nodeName() + QLatin1Char('=') + map.item(i).nodeValue());
    attributes.sort();
    QString text = QLatin1Char('<') + element.tagName() + QLatin1Char(' ') + attributes.join(QLatin1Char(' '))
        + QLatin1Char('>');
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling())
        text += child.isElement() ? canonical(child.toElement()) : child.nodeValue();
    return text + QLatin1String("</>");
}

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

class TestDocumentController : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void repeatedGenerationWritesEachSectionOnce();
    void untouchedSectionsSurviveARoundTrip();
    void examplesAreValidConfigurations_data();
    void examplesAreValidConfigurations();
    void refusesFilesThatAreNoConfiguration_data();
    void refusesFilesThatAreNoConfiguration();
    void failedSaveLeavesTheOldFile();

private:
    QString writeFile(const QString& name, const QByteArray& contents);

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<DeviceTree> m_device;
    std::unique_ptr<ZelkonRegionalPage> m_regional;
    std::unique_ptr<ZelkonConnectionsPage> m_connections;
    SectionFrame* m_keyboard = nullptr;
    ConnectionModelFrame* m_model = nullptr;
    std::unique_ptr<DocumentController> m_controller;
};

void TestDocumentController::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_device = std::make_unique<DeviceTree>();
    // RDP can be launched here, VMware View cannot.
    m_device->addFile(QStringLiteral("/usr/bin/rdesktop-runner"));
    Platform::instance()->setTarget(Platform::Lunvex);
    Platform::instance()->setStandalone(false);

    m_regional = std::make_unique<ZelkonRegionalPage>();
    m_keyboard = new SectionFrame(QStringLiteral("keyboard"), QStringLiteral("layout"));
    m_regional->accordion()->addItem(new AccordionItem(m_keyboard));
    m_connections = std::make_unique<ZelkonConnectionsPage>();
    m_model = new ConnectionModelFrame;
    m_connections->accordion()->addItem(new AccordionItem(m_model));

    m_controller = std::make_unique<DocumentController>();
    m_controller->setPages({ m_regional.get(), m_connections.get() });
}

void TestDocumentController::cleanup()
{
    m_controller.reset();
    m_regional.reset();
    m_connections.reset();
    m_device.reset();
    m_dir.reset();
}

QString TestDocumentController::writeFile(const QString& name, const QByteArray& contents)
{
    const QString path = m_dir->filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write test file");
    return path;
}

void TestDocumentController::repeatedGenerationWritesEachSectionOnce()
{
    QVERIFY(m_controller->load(writeFile(QStringLiteral("mixed.tavlocfg"), Mixed), nullptr));
    m_controller->loadPages();
    QCOMPARE(m_keyboard->text(), QStringLiteral("Germany"));

    m_keyboard->setText(QStringLiteral("Norway"));
    m_model->model.desktopConfig()->setProperty("kiosk_mode", false);
    m_model->model.connections(QStringLiteral("rdp"))->sessions().constFirst()->setProperty("name", "Renamed");

    // As often as the summary is shown.
    for (int i = 0; i < 3; ++i)
        m_controller->generate();

    ConfigFile* generated = m_controller->generatedDocument();
    QCOMPARE(sectionNames(generated),
             QStringList({ "frobnicator", "keyboard", "altiris", "rdp", "vmware", "desktop", "network_printer" }));
    const QDomElement root = generated->documentElement();
    QCOMPARE(root.firstChildElement("keyboard").firstChildElement("layout").text(), QStringLiteral("Norway"));
    QCOMPARE(root.firstChildElement("desktop").firstChildElement("kiosk_mode").text(), QStringLiteral("false"));
    QCOMPARE(root.firstChildElement("rdp").elementsByTagName("session").size(), 1);
    QCOMPARE(root.firstChildElement("rdp").firstChildElement("session").firstChildElement("name").text(),
             QStringLiteral("Renamed"));
    // The loaded document is the base of every generation and stays as read.
    QCOMPARE(sectionNames(m_controller->loadedDocument()).count(QStringLiteral("desktop")), 1);
    QCOMPARE(m_controller->loadedDocument()->documentElement().firstChildElement("keyboard").text(),
             QStringLiteral("Germany"));
}

void TestDocumentController::untouchedSectionsSurviveARoundTrip()
{
    const QString source = writeFile(QStringLiteral("mixed.tavlocfg"), Mixed);
    QVERIFY(m_controller->load(source, nullptr));
    m_controller->loadPages();
    m_keyboard->setText(QStringLiteral("Norway"));

    const QString target = m_dir->filePath(QStringLiteral("saved.tavlocfg"));
    QString reason;
    QVERIFY2(m_controller->save(target, &reason), qPrintable(reason));
    QCOMPARE(m_controller->filePath(), target);

    const QDomDocument before = parsed(Mixed);
    const QDomDocument after = parsed(readAll(target));
    for (const char* name : { "frobnicator", "altiris", "vmware", "network_printer", "desktop" })
        QCOMPARE(canonical(after.documentElement().firstChildElement(QLatin1String(name))),
                 canonical(before.documentElement().firstChildElement(QLatin1String(name))));
    QCOMPARE(after.documentElement().firstChildElement("keyboard").text(), QStringLiteral("Norway"));
    QCOMPARE(after.documentElement().attribute("creator_version"), QStringLiteral("2.0"));
}

void TestDocumentController::examplesAreValidConfigurations_data()
{
    QTest::addColumn<QString>("path");
    const QDir examples(QStringLiteral(ZELKON_EXAMPLES_DIR));
    const QStringList names = examples.entryList({ QStringLiteral("*.tavlocfg") });
    QVERIFY(names.size() >= 2);
    for (const QString& name : names)
        QTest::newRow(qPrintable(name)) << examples.filePath(name);
}

void TestDocumentController::examplesAreValidConfigurations()
{
    QFETCH(QString, path);
    QCOMPARE(ConfigFileCheck::problem(path), QString());
    // Standalone, everything loaded is written back: what comes out must be what went in.
    Platform::instance()->setStandalone(true);
    for (const char* launcher :
         { "ica-session-runner", "parlix-runner", "iceweasel-runner", "view-runner", "pnagent-runner" })
        m_device->addFile(QStringLiteral("/usr/bin/") + QLatin1String(launcher));

    QVERIFY(m_controller->load(path, nullptr));
    m_controller->loadPages();
    m_controller->generate();
    const QDomElement root = m_controller->generatedDocument()->documentElement();
    QCOMPARE(root.attribute("version"), QStringLiteral("1.0"));
    QCOMPARE(root.attribute("creator"), QStringLiteral("zelkon"));
    QCOMPARE(canonical(root), canonical(parsed(readAll(path)).documentElement()));
}

void TestDocumentController::refusesFilesThatAreNoConfiguration_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("reasonPart");

    QByteArray garbage(10 * 1024 * 1024, '\0');
    for (int i = 0; i < garbage.size(); ++i)
        garbage[i] = char((i * 7919 + 13) % 251 + 1);

    QTest::newRow("missing") << "missing.tavlocfg" << QByteArray() << "does not exist";
    QTest::newRow("empty") << "empty.tavlocfg" << QByteArray("") << "empty";
    QTest::newRow("blank") << "blank.tavlocfg" << QByteArray(" \n\n") << "empty";
    QTest::newRow("not XML") << "text.tavlocfg" << QByteArray("Resolution=1024x768\n") << "not an XML document";
    QTest::newRow("broken XML") << "broken.tavlocfg" << QByteArray("<zelkon><keyboard></zelkon>")
                                << "not an XML document";
    QTest::newRow("wrong root") << "other.tavlocfg" << QByteArray("<?xml version=\"1.0\"?><settings/>") << "<settings>";
    QTest::newRow("10 MB of garbage") << "garbage.tavlocfg" << garbage << "not an XML document";
    QTest::newRow("folder") << "folder.tavlocfg" << QByteArray() << "folder";
}

void TestDocumentController::refusesFilesThatAreNoConfiguration()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, contents);
    QFETCH(QString, reasonPart);

    const QString good = writeFile(QStringLiteral("good.tavlocfg"), Mixed);
    QVERIFY(m_controller->load(good, nullptr));
    const QString before = m_controller->loadedDocument()->toString();

    QString path = m_dir->filePath(name);
    if (name == QLatin1String("folder.tavlocfg"))
        QVERIFY(QDir(m_dir->path()).mkdir(name));
    else if (!contents.isNull())
        writeFile(name, contents);

    QString reason;
    QVERIFY(!m_controller->load(path, &reason));
    QVERIFY2(reason.contains(reasonPart), qPrintable(reason));
    QCOMPARE(m_controller->loadedDocument()->toString(), before);
    QCOMPARE(m_controller->filePath(), good);
}

void TestDocumentController::failedSaveLeavesTheOldFile()
{
    const QString good = writeFile(QStringLiteral("good.tavlocfg"), Mixed);
    QVERIFY(m_controller->load(good, nullptr));
    m_controller->loadPages();
    m_keyboard->setText(QStringLiteral("Norway"));

    // A parent that is a regular file defeats even root.
    const QString blocked = good + QStringLiteral("/copy.tavlocfg");
    QString reason;
    QVERIFY(!m_controller->save(blocked, &reason));
    QVERIFY2(reason.contains(QStringLiteral("not a folder")), qPrintable(reason));
    QCOMPARE(readAll(good), Mixed);
    QCOMPARE(m_controller->filePath(), good);

    QVERIFY(!m_controller->save(m_dir->filePath(QStringLiteral("no/such/dir/x.tavlocfg")), &reason));
    QVERIFY2(reason.contains(QStringLiteral("does not exist")), qPrintable(reason));
}

QTEST_MAIN(TestDocumentController)
#include "tst_documentcontroller.moc"
