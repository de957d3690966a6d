#include "config/configfile.h"
#include "management/altirisframe.h"
#include "management/autoupdateframe.h"
#include "management/corrandframe.h"
#include "management/pellamframe.h"
#include "management/remoteassistanceframe.h"

#include "hostaddressedit.h"
#include "platform.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>
#include <QTextStream>
#include <QtTest>
#include <memory>

namespace {
std::unique_ptr<ManagementFrame> makeFrame(const QString& section)
{
    if (section == QLatin1String("corrand"))
        return std::make_unique<CorrandFrame>();
    if (section == QLatin1String("pellam"))
        return std::make_unique<PellamFrame>();
    if (section == QLatin1String("altiris"))
        return std::make_unique<AltirisFrame>();
    if (section == QLatin1String("auto_update"))
        return std::make_unique<AutoUpdateFrame>();
    return std::make_unique<RemoteAssistanceFrame>();
}

// The frame's line edits in the order its section lists their values.
QList<QLineEdit*> edits(ManagementFrame* frame)
{
    QList<QLineEdit*> found;
    for (const char* name : { "ServerAddressEdit", "ServerEdit", "PathEdit", "PasswordEdit" }) {
        if (auto* edit = frame->findChild<QLineEdit*>(QLatin1String(name)))
            found.append(edit);
    }
    return found;
}

QStringList texts(ManagementFrame* frame)
{
    QStringList result;
    for (QLineEdit* edit : edits(frame))
        result.append(edit->text());
    return result;
}

// The document below its root, without whitespace, for comparing with literal XML.
QString body(ConfigFile& config)
{
    QString text;
    QTextStream stream(&text);
    const QDomElement root = config.documentElement();
    for (QDomNode child = root.firstChild(); !child.isNull(); child = child.nextSibling())
        child.save(stream, -1);
    stream.flush();
    return text;
}

void loadBody(ConfigFile& config, const QString& xml)
{
    QVERIFY(config.setContent(QStringLiteral("<zelkon version=\"1.0\">%1</zelkon>").arg(xml)));
    config.setCurrentNodeAsRoot();
}

void setPlatform(Platform::Target target, bool standalone = false)
{
    Platform::instance()->setTarget(target);
    Platform::instance()->setStandalone(standalone);
}

QGridLayout* grid(QWidget* frame)
{
    return qobject_cast<QGridLayout*>(frame->layout());
}

const QString Other = QStringLiteral("<keyboard><layout>Germany</layout></keyboard>");
} // namespace

class TestManagementFrames : public QObject
{
    Q_OBJECT

private slots:
    void init() { setPlatform(Platform::Lunvex); }

    void constructionState_data();
    void constructionState();
    void loadAndSave_data();
    void loadAndSave();
    void userEditsAreSaved_data();
    void userEditsAreSaved();
    void pathRowFollowsThePlatform();
    void helpTexts_data();
    void helpTexts();
    void remoteAssistanceLayout();
    void enforcePasswordMovesFocus_data();
    void enforcePasswordMovesFocus();
    void altirisKeepsItsUnseenAddressRow();
};

void TestManagementFrames::constructionState_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("iconPath");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("corrand") << "corrand"
                             << "Corrand"
                             << ":/images/corrand.svg" << true;
    QTest::newRow("pellam") << "pellam"
                            << "Pellam"
                            << ":/images/Pellam.svg" << true;
    QTest::newRow("altiris") << "altiris"
                             << "\t\tAltiris"
                             << ":/images/altiris_32.png" << true;
    QTest::newRow("auto_update") << "auto_update"
                                 << "Automatic Updates"
                                 << ":/images/auto_update.svg" << false;
    QTest::newRow("remote_assistance") << "remote_assistance"
                                       << "Remote Assistance"
                                       << ":/images/remote.svg" << false;
}

void TestManagementFrames::constructionState()
{
    QFETCH(QString, section);
    QFETCH(QString, iconPath);
    std::unique_ptr<ManagementFrame> frame = makeFrame(section);
    QCOMPARE(frame->section(), section);
    QTEST(frame->title(), "title");
    QTEST(frame->enableCheck()->isChecked(), "enabled");
    QCOMPARE(frame->enableCheck()->text(), QStringLiteral("Enable"));
    QVERIFY(!frame->isDirty());
    for (const QString& text : texts(frame.get()))
        QVERIFY(text.isEmpty());
    QVERIFY(QFile::exists(iconPath));
    QVERIFY(!frame->icon().pixmap(32, 32).isNull());
    // Row 0 is the same in every frame: the check box between two empty labels.
    int row, column, rowSpan, columnSpan;
    auto* grid = qobject_cast<QGridLayout*>(frame->layout());
    QVERIFY(grid);
    grid->getItemPosition(grid->indexOf(frame->enableCheck()), &row, &column, &rowSpan, &columnSpan);
    QCOMPARE(QVector<int>({ row, column, rowSpan, columnSpan }), QVector<int>({ 0, 1, 1, 3 }));
    QVERIFY(grid->itemAtPosition(0, 0)->widget()->inherits("QLabel"));
    QVERIFY(grid->itemAtPosition(0, 5)->widget()->inherits("QLabel"));
}

void TestManagementFrames::loadAndSave_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<int>("target");
    QTest::addColumn<QString>("input");
    // What the edits held before loading; the frame must not keep it when a value is missing.
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<QStringList>("loaded");
    // The document after saving, when the frame was written back unchanged.
    QTest::addColumn<QString>("saved");

    const int lunvex = Platform::Lunvex;
    const int ce = Platform::Ce;
    QTest::newRow("corrand absent") << "corrand" << lunvex << Other << QStringList() << true << QStringList() << Other;
    QTest::newRow("corrand off") << "corrand" << lunvex << "<corrand><enable>false</enable></corrand>" + Other
                                 << QStringList() << false << QStringList()
                                 << "<corrand><enable>false</enable></corrand>" + Other;
    // An element without text stays so: the document writes no value into it.
    QTest::newRow("pellam, enable without text") << "pellam" << lunvex << "<pellam><enable/></pellam>" << QStringList()
                                                 << false << QStringList() << "<pellam><enable/></pellam>";
    QTest::newRow("altiris") << "altiris" << lunvex
                             << "<altiris><enable>true</enable><server_address>ns.example.com</server_address>"
                                "</altiris>"
                             << QStringList({ "old" }) << true << QStringList({ "ns.example.com" })
                             << "<altiris><enable>true</enable><server_address>ns.example.com</server_address>"
                                "</altiris>";
    QTest::newRow("altiris without address")
        << "altiris" << lunvex << "<altiris><enable>false</enable></altiris>" << QStringList({ "old" }) << false
        << QStringList({ "" }) << "<altiris><enable>false</enable><server_address></server_address></altiris>";
    QTest::newRow("auto_update absent") << "auto_update" << ce << Other << QStringList({ "a", "b" }) << false
                                        << QStringList({ "a", "b" }) << Other;
    // Off CE the path is neither read nor written; the file keeps its own.
    QTest::newRow("auto_update lunvex")
        << "auto_update" << lunvex
        << "<auto_update><enable>true</enable><path>/ce7</path><server_address>ftp://u</server_address></auto_update>"
        << QStringList({ "old", "kept" }) << true << QStringList({ "ftp://u", "kept" })
        << "<auto_update><enable>true</enable><path>/ce7</path><server_address>ftp://u</server_address></auto_update>";
    QTest::newRow("auto_update lunvex without path")
        << "auto_update" << lunvex << "<auto_update><enable>true</enable></auto_update>"
        << QStringList({ "old", "kept" }) << true << QStringList({ "", "kept" })
        << "<auto_update><enable>true</enable><server_address></server_address></auto_update>";
    QTest::newRow("auto_update ce")
        << "auto_update" << ce
        << "<auto_update><enable>true</enable><server_address>ftp://u</server_address><path>/ce7</path></auto_update>"
        << QStringList({ "old", "old" }) << true << QStringList({ "ftp://u", "/ce7" })
        << "<auto_update><enable>true</enable><server_address>ftp://u</server_address><path>/ce7</path></auto_update>";
    QTest::newRow("auto_update ce without path")
        << "auto_update" << ce
        << "<auto_update><enable>true</enable><server_address>ftp://u</server_address></auto_update>"
        << QStringList({ "old", "old" }) << true << QStringList({ "ftp://u", "" })
        << "<auto_update><enable>true</enable><server_address>ftp://u</server_address><path></path></auto_update>";
    QTest::newRow("remote_assistance") << "remote_assistance" << ce
                                       << "<remote_assistance><enable>true</enable><password> s3cret "
                                          "</password></remote_assistance>"
                                       << QStringList({ "old" }) << true << QStringList({ " s3cret " })
                                       << "<remote_assistance><enable>true</enable><password> s3cret "
                                          "</password></remote_assistance>";
    QTest::newRow("remote_assistance without password")
        << "remote_assistance" << lunvex << "<remote_assistance><enable>TRUE</enable></remote_assistance>"
        << QStringList({ "old" }) << true << QStringList({ "" })
        << "<remote_assistance><enable>true</enable><password></password></remote_assistance>";
}

void TestManagementFrames::loadAndSave()
{
    QFETCH(QString, section);
    QFETCH(int, target);
    QFETCH(QString, input);
    QFETCH(QStringList, before);
    QFETCH(QString, saved);
    setPlatform(Platform::Target(target));
    std::unique_ptr<ManagementFrame> frame = makeFrame(section);
    // Earlier contents, filled the way a page loads: without reporting.
    frame->setNotify(false);
    for (int i = 0; i < before.size(); ++i)
        edits(frame.get()).at(i)->setText(before.at(i));
    frame->setNotify(true);
    QVERIFY(!frame->isDirty());

    ConfigFile config;
    loadBody(config, input);
    QSignalSpy dirty(frame.get(), &ControlFrame::dirty);
    frame->loadConfig(&config);
    const bool present = input.contains('<' + section + '>');
    QCOMPARE(frame->isDirty(), present);
    QCOMPARE(dirty.isEmpty(), !present);
    // Loading leaves the cursor in the section; the page resets it before the next frame.
    QCOMPARE(config.currentNodePath(), present ? QStringLiteral("zelkon/") + section : QStringLiteral("zelkon"));
    QTEST(frame->enableCheck()->isChecked(), "checked");
    QFETCH(QStringList, loaded);
    if (!loaded.isEmpty())
        QCOMPARE(texts(frame.get()), loaded);

    config.setCurrentNodeAsRoot();
    frame->saveConfig(&config);
    QCOMPARE(config.currentNodePath(), QStringLiteral("zelkon"));
    QCOMPARE(body(config), saved);
}

void TestManagementFrames::userEditsAreSaved_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<int>("target");
    QTest::addColumn<QString>("saved");
    QTest::newRow("corrand") << "corrand" << int(Platform::Wes) << "<corrand><enable>false</enable></corrand>";
    QTest::newRow("pellam") << "pellam" << int(Platform::Ce) << "<pellam><enable>false</enable></pellam>";
    QTest::newRow("auto_update lunvex") << "auto_update" << int(Platform::Lunvex)
                                        << "<auto_update><enable>true</enable><server_address>typed</server_address>"
                                           "</auto_update>";
    QTest::newRow("auto_update ce") << "auto_update" << int(Platform::Ce)
                                    << "<auto_update><enable>true</enable><server_address>typed</server_address>"
                                       "<path>typed</path></auto_update>";
    QTest::newRow("remote_assistance") << "remote_assistance" << int(Platform::Ce)
                                       << "<remote_assistance><enable>true</enable><password>typed</password>"
                                          "</remote_assistance>";
}

// What the user clicks and types reaches a document that lacked the section.
void TestManagementFrames::userEditsAreSaved()
{
    QFETCH(QString, section);
    QFETCH(int, target);
    setPlatform(Platform::Target(target));
    std::unique_ptr<ManagementFrame> frame = makeFrame(section);
    frame->show();
    QVERIFY(QTest::qWaitForWindowExposed(frame.get()));
    QSignalSpy dirty(frame.get(), &ControlFrame::dirty);

    QCheckBox* enable = frame->enableCheck();
    QTest::mouseClick(enable, Qt::LeftButton, {}, QPoint(8, enable->height() / 2));
    QCOMPARE(dirty.count(), 1);
    for (QLineEdit* edit : edits(frame.get())) {
        if (edit->isVisible())
            QTest::keyClicks(edit, QStringLiteral("typed"));
    }
    QVERIFY(frame->isDirty());

    ConfigFile config;
    frame->saveConfig(&config);
    QTEST(body(config), "saved");
}

void TestManagementFrames::pathRowFollowsThePlatform()
{
    AutoUpdateFrame frame;
    frame.show();
    QVERIFY(QTest::qWaitForWindowExposed(&frame));
    auto* pathLabel = qobject_cast<QLabel*>(grid(&frame)->itemAtPosition(2, 0)->widget());
    QCOMPARE(pathLabel->text(), QStringLiteral("Path:"));
    QVERIFY(!frame.pathEdit()->isVisible() && !pathLabel->isVisible());
    QVERIFY(frame.serverEdit()->isVisible());

    Platform::instance()->setTarget(Platform::Ce);
    QVERIFY(frame.pathEdit()->isVisible() && pathLabel->isVisible());
    Platform::instance()->setTarget(Platform::Wes7);
    QVERIFY(!frame.pathEdit()->isVisible());
    // Switching the platform is no change of the settings.
    QVERIFY(!frame.isDirty());
}

void TestManagementFrames::helpTexts_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<int>("target");
    QTest::addColumn<bool>("standalone");
    QTest::addColumn<QString>("help");

    const QString corrand = QStringLiteral(
        "<b>Corrand</b> <br> This enables or disables the Corrand Agent. For more information please see <a "
        "href=\"https://www.corrand.example/device-management/agent\" style=\"color: cyan;\">Corrand</a>");
    const QString pellam = QStringLiteral(
        "<b>Pellam</b> <br> This enables or disables the Pellam Agent. For more information please visit <a "
        "href=\"https://www.pellam.example/\" style=\"color: cyan;\">www.pellam.example</a>");
    const QString altiris = QStringLiteral("<b>Altiris</b> <br> This enables or disables the Altiris management agent "
                                           "and enables you to specify the server to connect to.");
    const QString update = QStringLiteral("<b>Automatic Updates</b> <br> This enables and configures automatic updates "
                                          "using ");
    const QString remote
        = QStringLiteral("<b>Remote Assistance</b><br>This enables or disables your Thin Client's VNC application.");

    QTest::newRow("corrand") << "corrand" << int(Platform::Ce) << false << corrand;
    QTest::newRow("pellam") << "pellam" << int(Platform::Wes) << false << pellam;
    QTest::newRow("altiris") << "altiris" << int(Platform::Lunvex) << false << altiris;
    QTest::newRow("auto_update ce") << "auto_update" << int(Platform::Ce) << true
                                    << update + "System Update for CE Thin Clients.";
    QTest::newRow("auto_update lunvex") << "auto_update" << int(Platform::Lunvex) << false
                                        << update + "Tavlo Automatic Update for Lunvex.";
    const QString both = update
        + "the following systems:<p>1. Tavlo Automatic Update for Lunvex Thin Clients.</p><p>2. System Update for "
          "CE Thin Clients.</p>";
    QTest::newRow("auto_update wes7 standalone") << "auto_update" << int(Platform::Wes7) << true << both;
    QTest::newRow("remote_assistance ce") << "remote_assistance" << int(Platform::Ce) << false
                                          << remote + "<p>On CE you must supply a password when enabling VNC.</p>";
    QTest::newRow("remote_assistance lunvex") << "remote_assistance" << int(Platform::Lunvex) << false << remote;
}

void TestManagementFrames::helpTexts()
{
    QFETCH(QString, section);
    QFETCH(int, target);
    QFETCH(bool, standalone);
    std::unique_ptr<ManagementFrame> frame = makeFrame(section);
    // The text is chosen when asked for, not when the frame was made.
    setPlatform(Platform::Target(target), standalone);
    QTEST(frame->helpText(), "help");
}

void TestManagementFrames::remoteAssistanceLayout()
{
    RemoteAssistanceFrame frame;
    frame.resize(400, 80);
    frame.show();
    QVERIFY(QTest::qWaitForWindowExposed(&frame));
    QLineEdit* password = frame.passwordEdit();
    QCOMPARE(password->echoMode(), QLineEdit::Password);

    // The label's span reaches into the edit's columns, as the row has always been laid out ...
    int row, column, rowSpan, columnSpan;
    grid(&frame)->getItemPosition(grid(&frame)->indexOf(password), &row, &column, &rowSpan, &columnSpan);
    QCOMPARE(QVector<int>({ row, column, rowSpan, columnSpan }), QVector<int>({ 1, 1, 1, 3 }));
    QLabel* label = nullptr;
    for (int i = 0; i < grid(&frame)->count(); ++i) {
        auto* candidate = qobject_cast<QLabel*>(grid(&frame)->itemAt(i)->widget());
        if (candidate && candidate->text() == QLatin1String("Password:"))
            label = candidate;
    }
    QVERIFY(label);
    grid(&frame)->getItemPosition(grid(&frame)->indexOf(label), &row, &column, &rowSpan, &columnSpan);
    QCOMPARE(QVector<int>({ row, column, rowSpan, columnSpan }), QVector<int>({ 1, 0, 1, 3 }));

    // ... yet the label's text stays readable and the whole edit takes clicks.
    QVERIFY(label->x() + label->fontMetrics().horizontalAdvance(label->text()) <= password->x());
    const QRect edit = password->geometry();
    for (int x : { edit.left() + 2, edit.center().x(), edit.right() - 2 })
        QCOMPARE(frame.childAt(x, edit.center().y()), password);
}

void TestManagementFrames::enforcePasswordMovesFocus_data()
{
    QTest::addColumn<int>("target");
    QTest::newRow("ce") << int(Platform::Ce);
    QTest::newRow("lunvex") << int(Platform::Lunvex);
}

namespace {
// Notes how the password edit got the focus and whether the frame was dirty by then.
class FocusWatch : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::FocusIn) {
            reasons.append(static_cast<QFocusEvent*>(event)->reason());
            dirtyAtFocus.append(frame->isDirty());
        }
        return false;
    }
    ConfigFrame* frame = nullptr;
    QList<Qt::FocusReason> reasons;
    QList<bool> dirtyAtFocus;
};
} // namespace

void TestManagementFrames::enforcePasswordMovesFocus()
{
    QFETCH(int, target);
    setPlatform(Platform::Target(target));
    RemoteAssistanceFrame frame;
    frame.show();
    QApplication::setActiveWindow(&frame);
    QVERIFY(QTest::qWaitForWindowActive(&frame));
    FocusWatch watch;
    watch.frame = &frame;
    frame.passwordEdit()->installEventFilter(&watch);

    // Checking and unchecking both lead to the password.
    for (bool checked : { true, false }) {
        frame.enableCheck()->setFocus();
        QTest::keyClick(frame.enableCheck(), Qt::Key_Space);
        QCOMPARE(frame.enableCheck()->isChecked(), checked);
        QCOMPARE(QApplication::focusWidget(), frame.passwordEdit());
    }
    QCOMPARE(watch.reasons, QList<Qt::FocusReason>({ Qt::OtherFocusReason, Qt::OtherFocusReason }));
    QCOMPARE(watch.dirtyAtFocus, QList<bool>({ true, true }));
}

void TestManagementFrames::altirisKeepsItsUnseenAddressRow()
{
    auto* frame = new AltirisFrame;
    frame->show();
    QVERIFY(QTest::qWaitForWindowExposed(frame));
    QPointer<HostAddressEdit> address = frame->serverAddressEdit();
    QPointer<QLabel> label = frame->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    const QList<QLabel*> labels = frame->findChildren<QLabel*>();
    for (QLabel* candidate : labels) {
        if (candidate->text() == QLatin1String("Server Address:"))
            label = candidate;
    }
    QVERIFY(label && label->text() == QLatin1String("Server Address:"));
    // Only the check box row is shown, yet the address is edited and written through it.
    QVERIFY(frame->enableCheck()->isVisible());
    QVERIFY(!address->isVisible() && !label->isVisible());
    QCOMPARE(frame->layout()->indexOf(address), -1);
    QCOMPARE(frame->layout()->indexOf(label), -1);
    address->setText(QStringLiteral("10.0.0.9"));
    QVERIFY(frame->isDirty());

    delete frame;
    QVERIFY(address.isNull());
    QVERIFY(label.isNull());
}

QTEST_MAIN(TestManagementFrames)
#include "tst_managementframes.moc"
