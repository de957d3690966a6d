#include "regionaldocument.h"

#include "regional/keyboardframe.h"
#include "regional/localeframe.h"

#include "platform.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>
#include <memory>

namespace {
const QString UsLayout = QStringLiteral("United States (English)");
const QString KeyboardHelp
    = QStringLiteral("<b>Keyboard</b> <br> This sets the keyboard layout used by the Thin Client.");
const QString KeyboardWarning = QStringLiteral(
    "<br><br><b> Warning - set the incorrect keyboard layout could disable Windows' Text Services and Input Languages "
    "function.</b>");

std::unique_ptr<PlatformChoiceFrame> makeFrame(const QString& kind)
{
    if (kind == QLatin1String("keyboard"))
        return std::make_unique<KeyboardFrame>();
    return std::make_unique<LocaleFrame>();
}

QString sectionOf(const QString& kind)
{
    return kind == QLatin1String("keyboard") ? QStringLiteral("keyboard") : QStringLiteral("system_locale");
}

QString keyOf(const QString& kind)
{
    return kind == QLatin1String("keyboard") ? QStringLiteral("layout") : QStringLiteral("locale");
}

// Shouts every text of the keyboard frame, so a test can tell shown names from stored ones.
class ShoutingTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* sourceText, const char*, int) const override
    {
        if (qstrcmp(context, "KeyboardFrame") != 0)
            return QString();
        return QString::fromUtf8(sourceText).toUpper();
    }
    bool isEmpty() const override { return false; }
};
} // namespace

class TestPlatformChoiceFrames : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void describeThemselves();
    void keyboardHelpWarnsOnWindows_data();
    void keyboardHelpWarnsOnWindows();
    void lists_data();
    void lists();
    void loadAndSave_data();
    void loadAndSave();
    void platformChangeKeepsWhatTheNewListOffers();
    void shownNamesAreTranslatedAndStoredOnesNot();
};

void TestPlatformChoiceFrames::init()
{
    Platform::instance()->setStandalone(false);
    Platform::instance()->setTarget(Platform::Lunvex);
}

void TestPlatformChoiceFrames::describeThemselves()
{
    const KeyboardFrame keyboard;
    QCOMPARE(keyboard.title(), QStringLiteral("Keyboard"));
    QVERIFY(!keyboard.icon().pixmap(24).isNull());
    const LocaleFrame locale;
    QCOMPARE(locale.title(), QStringLiteral("Locale"));
    QVERIFY(!locale.icon().pixmap(24).isNull());
    QCOMPARE(locale.helpText(),
             QStringLiteral("<b>Locale</b> <br>This sets the language the Thin Client will use. It will also set the "
                            "format used for dates and the currency symbol."));
}

void TestPlatformChoiceFrames::keyboardHelpWarnsOnWindows_data()
{
    QTest::addColumn<int>("platform");
    QTest::addColumn<QString>("help");
    QTest::newRow("WES") << int(Platform::Wes) << KeyboardHelp + KeyboardWarning;
    QTest::newRow("CE") << int(Platform::Ce) << KeyboardHelp + KeyboardWarning;
    QTest::newRow("WES7") << int(Platform::Wes7) << KeyboardHelp;
    QTest::newRow("Lunvex") << int(Platform::Lunvex) << KeyboardHelp;
}

void TestPlatformChoiceFrames::keyboardHelpWarnsOnWindows()
{
    QFETCH(int, platform);
    const KeyboardFrame frame;
    Platform::instance()->setTarget(Platform::Target(platform));
    QTEST(frame.helpText(), "help");
}

void TestPlatformChoiceFrames::lists_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("platform");
    QTest::addColumn<bool>("standalone");
    QTest::addColumn<QStringList>("list"); // in full, or the first entries, "...", the last
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("chosen");

    const QString more = QStringLiteral("...");
    const QStringList wesLayouts { "Belgium", "Brazil", "Canada (French)", more,
                                   "United States (English), International" };
    QTest::newRow("keyboard, WES") << "keyboard" << int(Platform::Wes) << false << wesLayouts << 31 << UsLayout;
    QTest::newRow("keyboard, WES standalone")
        << "keyboard" << int(Platform::Wes) << true << wesLayouts << 31 << UsLayout;
    QTest::newRow("keyboard, CE") << "keyboard" << int(Platform::Ce) << false
                                  << QStringList { "Belgium",
                                                   "Brazil",
                                                   "Bulgaria",
                                                   "Canada (French)",
                                                   "Chinese (Simplified) - US Keyboard",
                                                   "Chinese (Simplified) - IME",
                                                   more,
                                                   "United States (English), International" }
                                  << 35 << UsLayout;
    QTest::newRow("keyboard, Lunvex") << "keyboard" << int(Platform::Lunvex) << false
                                      << QStringList { "Belgium",  "Brazil",
                                                       "Bulgaria", "Canada (French)",
                                                       "Croatia",  "Czech Republic",
                                                       "Denmark",  "Finland",
                                                       more,       "United States (English), International" }
                                      << 32 << UsLayout;
    // WES7 has no layout table of its own.
    QTest::newRow("keyboard, WES7") << "keyboard" << int(Platform::Wes7) << true << QStringList() << 0 << "";

    const QStringList ce { "English", "French", "German", "Spanish" };
    const QStringList wes { "Dutch", "English", "French", "German", "Norwegian", "Spanish" };
    const QStringList lunvex { "Chinese (Simplified)", "English", "French", "German", "Japanese", "Spanish" };
    const QStringList wesExtra { "Chinese (Simplified)", "Chinese (Traditional)", "Korean", "Japanese" };
    const QStringList ceExtra { "Chinese (Simplified)", "Chinese (Traditional)", "Korean" };
    QTest::newRow("locale, CE") << "locale" << int(Platform::Ce) << false << ce << 4 << "English";
    QTest::newRow("locale, CE standalone") << "locale" << int(Platform::Ce) << true << ce + ceExtra << 7 << "English";
    QTest::newRow("locale, WES") << "locale" << int(Platform::Wes) << false << wes << 6 << "English";
    QTest::newRow("locale, WES standalone")
        << "locale" << int(Platform::Wes) << true << wes + wesExtra << 10 << "English";
    QTest::newRow("locale, WES7") << "locale" << int(Platform::Wes7) << false << wes << 6 << "English";
    QTest::newRow("locale, WES7 standalone")
        << "locale" << int(Platform::Wes7) << true << wes + wesExtra << 10 << "English";
    QTest::newRow("locale, Lunvex") << "locale" << int(Platform::Lunvex) << false << lunvex << 6 << "English";
    QTest::newRow("locale, Lunvex standalone") << "locale" << int(Platform::Lunvex) << true << lunvex << 6 << "English";
}

// Built on Lunvex, so the list comes from the platform change.
void TestPlatformChoiceFrames::lists()
{
    QFETCH(QString, kind);
    QFETCH(int, platform);
    QFETCH(bool, standalone);
    QFETCH(QStringList, list);
    QFETCH(int, count);
    auto frame = makeFrame(kind);
    Platform::instance()->setTarget(Platform::Target(platform));
    Platform::instance()->setStandalone(standalone);

    const QComboBox* combo = frame->comboBox();
    QStringList shown;
    for (int index = 0; index < combo->count(); ++index) {
        shown.append(combo->itemText(index));
        QCOMPARE(combo->itemData(index).toString(), combo->itemText(index));
    }
    QCOMPARE(shown.size(), count);
    const int more = list.indexOf(QStringLiteral("..."));
    if (more < 0) {
        QCOMPARE(shown, list);
    } else {
        QCOMPARE(shown.mid(0, more), list.mid(0, more));
        QCOMPARE(shown.constLast(), list.constLast());
    }
    QCOMPARE(shown.removeDuplicates(), 0);
    QVERIFY(!shown.contains(QStringLiteral("OVERFLOW CHECK")));
    QTEST(combo->currentText(), "chosen");

    // An empty list says so instead of offering nothing.
    QCOMPARE(combo->isEnabled(), count > 0);
    bool noteShown = false;
    for (const QLabel* label : frame->findChildren<QLabel*>())
        noteShown |= label->isVisibleTo(frame.get()) && label->text().contains(QStringLiteral("nothing to choose"));
    QCOMPARE(noteShown, count == 0);
}

void TestPlatformChoiceFrames::loadAndSave_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("platform");
    QTest::addColumn<bool>("standalone");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("chosen"); // and saved

    QTest::newRow("keyboard, WES") << "keyboard" << int(Platform::Wes) << false << "Germany"
                                   << "Germany";
    // Positions are applied unguarded: a name the list lacks leaves nothing chosen.
    QTest::newRow("keyboard, WES lacks Finland") << "keyboard" << int(Platform::Wes) << false << "Finland"
                                                 << "";
    QTest::newRow("keyboard, Lunvex has it") << "keyboard" << int(Platform::Lunvex) << false << "Finland"
                                             << "Finland";
    QTest::newRow("keyboard, CE") << "keyboard" << int(Platform::Ce) << false << "Chinese (Traditional) - IME"
                                  << "Chinese (Traditional) - IME";
    QTest::newRow("keyboard, other case") << "keyboard" << int(Platform::Ce) << false << "germany"
                                          << "";
    QTest::newRow("keyboard, WES7") << "keyboard" << int(Platform::Wes7) << false << "Germany"
                                    << "";
    QTest::newRow("locale, Lunvex") << "locale" << int(Platform::Lunvex) << false << "Japanese"
                                    << "Japanese";
    QTest::newRow("locale, CE standalone") << "locale" << int(Platform::Ce) << true << "Korean"
                                           << "Korean";
    QTest::newRow("locale, CE device") << "locale" << int(Platform::Ce) << false << "Korean"
                                       << "";
    QTest::newRow("locale, WES7 standalone") << "locale" << int(Platform::Wes7) << true << "Japanese"
                                             << "Japanese";
    QTest::newRow("locale, empty") << "locale" << int(Platform::Wes) << false << ""
                                   << "";
}

void TestPlatformChoiceFrames::loadAndSave()
{
    QFETCH(QString, kind);
    QFETCH(int, platform);
    QFETCH(bool, standalone);
    QFETCH(QString, stored);
    QFETCH(QString, chosen);
    Platform::instance()->setTarget(Platform::Target(platform));
    Platform::instance()->setStandalone(standalone);
    auto frame = makeFrame(kind);
    const QString section = sectionOf(kind);
    ConfigFile config;
    setSections(config,
                "<time_zone><area>Asia</area></time_zone><" + section + "><" + keyOf(kind) + ">" + stored + "</"
                    + keyOf(kind) + "></" + section + ">");

    frame->loadConfig(&config);
    QVERIFY(frame->isDirty());
    QCOMPARE(frame->comboBox()->currentText(), chosen);
    QCOMPARE(frame->comboBox()->currentIndex() >= 0, !chosen.isEmpty());

    config.setCurrentNodeAsRoot();
    frame->saveConfig(&config);
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon"));
    QCOMPARE(sectionValues(config, section), QStringList { keyOf(kind) + '=' + chosen });
    QCOMPARE(sectionValues(config, QStringLiteral("time_zone")), QStringList { "area=Asia" });
}

void TestPlatformChoiceFrames::platformChangeKeepsWhatTheNewListOffers()
{
    KeyboardFrame keyboard;
    LocaleFrame locale;
    Platform::instance()->setStandalone(true);
    Platform::instance()->setTarget(Platform::Ce);
    QSignalSpy keyboardDirty(&keyboard, &ConfigFrame::dirty);
    QSignalSpy localeDirty(&locale, &ConfigFrame::dirty);
    keyboard.comboBox()->setCurrentIndex(keyboard.comboBox()->findData(QStringLiteral("Ukraine")));
    locale.comboBox()->setCurrentIndex(locale.comboBox()->findData(QStringLiteral("Korean")));
    QCOMPARE(keyboardDirty.count(), 1);
    QCOMPARE(localeDirty.count(), 1);

    Platform::instance()->setTarget(Platform::Lunvex);
    QCOMPARE(keyboard.comboBox()->currentText(), QStringLiteral("Ukraine"));
    QCOMPARE(locale.comboBox()->currentText(), QStringLiteral("English"));
    Platform::instance()->setTarget(Platform::Wes);
    QCOMPARE(keyboard.comboBox()->currentText(), UsLayout);
    locale.comboBox()->setCurrentIndex(locale.comboBox()->findData(QStringLiteral("Korean")));
    Platform::instance()->setStandalone(false);
    QCOMPARE(locale.comboBox()->currentText(), QStringLiteral("English"));
    QCOMPARE(keyboardDirty.count(), 1);
    QCOMPARE(localeDirty.count(), 2);
}

void TestPlatformChoiceFrames::shownNamesAreTranslatedAndStoredOnesNot()
{
    KeyboardFrame frame;
    frame.comboBox()->setCurrentIndex(frame.comboBox()->findData(QStringLiteral("Germany")));
    ShoutingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QTRY_COMPARE(frame.comboBox()->currentText(), QStringLiteral("GERMANY"));
    QCOMPARE(frame.title(), QStringLiteral("KEYBOARD"));

    ConfigFile config;
    frame.saveConfig(&config);
    QCOMPARE(sectionValues(config, QStringLiteral("keyboard")), QStringList { "layout=Germany" });
    config.setCurrentNodeAsRoot();
    setSections(config, QStringLiteral("<keyboard><layout>Norway</layout></keyboard>"));
    frame.loadConfig(&config);
    QCOMPARE(frame.comboBox()->currentText(), QStringLiteral("NORWAY"));
    QCoreApplication::removeTranslator(&translator);
    QTRY_COMPARE(frame.comboBox()->currentText(), QStringLiteral("Norway"));
}

QTEST_MAIN(TestPlatformChoiceFrames)
#include "tst_platformchoiceframes.moc"
