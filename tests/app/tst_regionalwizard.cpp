#include "filecontents.h"
#include "mainwindow.h"
#include "scriptedchooser.h"

#include "devicetree.h"

#include "pages/configpage.h"

#include "accordionitem.h"
#include "platform.h"

#include <QComboBox>
#include <QDomDocument>
#include <QToolButton>
#include <QtTest>
#include <memory>

namespace {
const QString Examples = QStringLiteral(ZELKON_EXAMPLES_DIR);
const QStringList RegionalSections { "time_zone", "keyboard", "system_locale" };

// A WES7 configuration stores the Windows zone id, and has no keyboard section: WES7
// offers no layouts to choose from.
const QByteArray Wes7Config = R"(<?xml version="1.0" encoding="utf-8"?>
<zelkon version="1.0" creator="zelkon" creator_version="2.0">
 <time_zone><timezone>Tokyo Standard Time</timezone></time_zone>
 <system_locale><locale>Dutch</locale></system_locale>
 <display><resolution>1280x1024</resolution></display>
</zelkon>
)";

// "section/key=value" for each value of the regional sections, in document order.
QStringList regionalValues(const QDomDocument& document)
{
    QStringList values;
    for (QDomElement section = document.documentElement().firstChildElement(); !section.isNull();
         section = section.nextSiblingElement()) {
        if (!RegionalSections.contains(section.tagName()))
            continue;
        for (QDomElement value = section.firstChildElement(); !value.isNull(); value = value.nextSiblingElement())
            values.append(section.tagName() + '/' + value.tagName() + '=' + value.text());
    }
    return values;
}

// Everything but the regional sections.
QString otherSections(QDomDocument document)
{
    QDomElement root = document.documentElement();
    for (const QString& name : RegionalSections) {
        while (!root.firstChildElement(name).isNull())
            root.removeChild(root.firstChildElement(name));
    }
    return document.toString();
}

QDomDocument parse(const QByteArray& bytes)
{
    QDomDocument document;
    document.setContent(bytes);
    return document;
}
} // namespace

class TestRegionalWizard : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void changesAreSavedOnceAndComeBack_data();
    void changesAreSavedOnceAndComeBack();

private:
    QComboBox* combo(const QString& name) const;

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<DeviceTree> m_device;
    std::unique_ptr<MainWindow> m_window;
    ScriptedChooser* m_chooser = nullptr;
};

void TestRegionalWizard::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_device = std::make_unique<DeviceTree>();
    // Without launchers the connection list would be empty and switch kiosk mode off.
    m_device->addConnectionLaunchers();
    m_window = std::make_unique<MainWindow>();
    m_window->setFileChooser(std::unique_ptr<FileChooser>(m_chooser = new ScriptedChooser));
}

void TestRegionalWizard::cleanup()
{
    m_window.reset();
    m_device.reset();
    m_dir.reset();
    Platform::instance()->setTarget(Platform::Lunvex);
    Platform::instance()->setStandalone(false);
}

QComboBox* TestRegionalWizard::combo(const QString& name) const
{
    return m_window->containerPages().constFirst()->findChild<QComboBox*>(name);
}

void TestRegionalWizard::changesAreSavedOnceAndComeBack_data()
{
    QTest::addColumn<int>("platform");
    QTest::addColumn<bool>("standalone");
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QStringList>("changes"); // combo box name=entry to choose, in order
    QTest::addColumn<QStringList>("saved");

    QTest::newRow("Lunvex") << int(Platform::Lunvex) << false << fileContents(Examples + "/lunvex-kiosk.tavlocfg")
                            << QStringList { "TimeZoneAreaCombo=Asia", "TimeZoneCityCombo=Kabul",
                                             "KeyboardLayoutCombo=Norway", "SystemLocaleCombo=French" }
                            << QStringList { "time_zone/area=Asia", "time_zone/city=Kabul", "keyboard/layout=Norway",
                                             "system_locale/locale=French" };
    QTest::newRow("WES, standalone") << int(Platform::Wes) << true << fileContents(Examples + "/wes-office.tavlocfg")
                                     << QStringList { "TimeZoneCombo=(GMT+09:00) Osaka, Sapporo, Tokyo",
                                                      "KeyboardLayoutCombo=Japan", "SystemLocaleCombo=Japanese" }
                                     << QStringList { "time_zone/timezone=(GMT+09:00) Osaka, Sapporo, Tokyo",
                                                      "keyboard/layout=Japan", "system_locale/locale=Japanese" };
    QTest::newRow("CE") << int(Platform::Ce) << false << fileContents(Examples + "/ce-terminal.tavlocfg")
                        << QStringList { "TimeZoneCombo=(GMT+10:00) Canberra, Melbourne, Sydney",
                                         "KeyboardLayoutCombo=Chinese (Simplified) - IME", "SystemLocaleCombo=German" }
                        << QStringList { "time_zone/timezone=(GMT+10:00) Canberra, Melbourne, Sydney",
                                         "keyboard/layout=Chinese (Simplified) - IME", "system_locale/locale=German" };
    QTest::newRow("WES7") << int(Platform::Wes7) << false << Wes7Config
                          << QStringList { "TimeZoneCombo=(UTC-12:00) International Date Line West",
                                           "SystemLocaleCombo=Norwegian" }
                          << QStringList { "time_zone/timezone=Dateline Standard Time",
                                           "system_locale/locale=Norwegian" };
}

void TestRegionalWizard::changesAreSavedOnceAndComeBack()
{
    QFETCH(int, platform);
    QFETCH(bool, standalone);
    QFETCH(QByteArray, contents);
    QFETCH(QStringList, changes);
    QFETCH(QStringList, saved);
    Platform::instance()->setTarget(Platform::Target(platform));
    Platform::instance()->setStandalone(standalone);
    const QString original = m_dir->filePath(QStringLiteral("original.tavlocfg"));
    QFile file(original);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size());
    file.close();
    QVERIFY(m_window->openFile(original));
    m_window->showPage(MainWindow::RegionalPage);

    for (const QString& change : qAsConst(changes)) {
        const QString name = change.section('=', 0, 0);
        const QString entry = change.section('=', 1);
        QComboBox* box = combo(name);
        QVERIFY2(box, qPrintable(name));
        // Open the frame's accordion item, as the user does, to reach its lists.
        auto* item = qobject_cast<AccordionItem*>(box->parentWidget()->parentWidget());
        QVERIFY(item);
        if (!item->isOpen())
            QTest::mouseClick(item->findChild<QToolButton*>(QStringLiteral("AccordionHeader")), Qt::LeftButton);
        QVERIFY2(box->isVisibleTo(m_window.get()), qPrintable(name));
        const int index = box->findText(entry);
        QVERIFY2(index >= 0, qPrintable(change));
        box->setCurrentIndex(index);
    }
    QVERIFY(m_window->isWindowModified());

    const QString path = m_dir->filePath(QStringLiteral("saved.tavlocfg"));
    m_chooser->path = path;
    QVERIFY(m_window->saveAs());
    const QDomDocument written = parse(fileContents(path));
    QCOMPARE(regionalValues(written), saved);
    QCOMPARE(otherSections(written), otherSections(parse(contents)));

    // Reopened into fresh pages, the lists show what was saved.
    QVERIFY(m_window->openFile(path));
    for (const QString& change : qAsConst(changes))
        QCOMPARE(combo(change.section('=', 0, 0))->currentText(), change.section('=', 1));
    QVERIFY(!m_window->isWindowModified());
    m_chooser->path = m_dir->filePath(QStringLiteral("again.tavlocfg"));
    QVERIFY(m_window->saveAs());
    QCOMPARE(regionalValues(parse(fileContents(m_chooser->path))), saved);
}

QTEST_MAIN(TestRegionalWizard)
#include "tst_regionalwizard.moc"
