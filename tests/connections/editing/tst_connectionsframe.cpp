#include "config/configfile.h"
#include "connections/editing/categorizedlistwidget.h"
#include "connections/editing/connectioneditor.h"
#include "connections/editing/connectionlistpage.h"
#include "connections/editing/connectionnamevalidator.h"
#include "connections/editing/connectionselectorpage.h"
#include "connections/editing/connectionsframe.h"
#include "connections/editing/defaulteditor.h"
#include "connections/editing/icaeditor.h"
#include "connections/model/configatom.h"
#include "connections/model/connectionkindred.h"
#include "connections/model/connectionmodel.h"
#include "connections/model/connectionsession.h"
#include "devicetree.h"
#include "modalanswer.h"
#include "platform.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QToolButton>
#include <QtTest>
#include <memory>

namespace {
// The launchers of the types the tests create.
const char* const Launchers[] = { "rdesktop-runner", "ica-session-runner", "view-runner", "pnagent-runner" };

const QString Rdp = QStringLiteral(
    "<zelkon version=\"1.0\"><rdp><session id=\"{r1}\"><name>Office</name><autostart>true</autostart>"
    "<address>ts.example</address></session></rdp><desktop><kiosk_mode>true</kiosk_mode></desktop></zelkon>");

// On the box itself: a check box's middle may lie beyond its text.
void clickCheckBox(QCheckBox* box)
{
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(6, box->height() / 2));
}

QString nameAt(QTableWidget* table, int row)
{
    return table->item(row, 0)->text();
}
} // namespace

// The Connections frame driven as a user drives it: list, selector, editor, list again.
class TestConnectionsFrame : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void newConnectionsAreListedSortedAcrossTypes();
    void editorPagesFollowTheTypeTable_data();
    void editorPagesFollowTheTypeTable();
    void savedNamesAreChecked_data();
    void savedNamesAreChecked();
    void leavingARenameStoresIt();
    void deletingAsksFirst();
    void kioskModeGoesWithTheLastConnection();

private:
    ConnectionListPage* listPage() const { return m_frame->findChild<ConnectionListPage*>(); }
    QTableWidget* table() const { return listPage()->table(); }
    QWidget* current() const { return m_frame->editor()->currentPage(); }
    DefaultEditor* defaultEditor(const QString& type) const
    {
        return qobject_cast<DefaultEditor*>(m_frame->editor()->page(type));
    }
    // New remote connection → double-click the type → the type's editor page.
    DefaultEditor* startNewConnection(const QString& typeName);
    void addConnection(const QString& typeName, const QString& name, const QString& server);
    // Renames the row in place as a user does: edit, type, Enter.
    void renameInPlace(int row, const QString& name);

    std::unique_ptr<DeviceTree> m_device;
    std::unique_ptr<ConnectionsFrame> m_frame;
};

void TestConnectionsFrame::init()
{
    m_device = std::make_unique<DeviceTree>();
    for (const char* launcher : Launchers)
        m_device->addFile(QLatin1String("/usr/bin/") + QLatin1String(launcher));
    Platform::instance()->setTarget(Platform::Lunvex);
    Platform::instance()->setStandalone(false);
    m_frame = std::make_unique<ConnectionsFrame>();
    m_frame->resize(600, 450);
    m_frame->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_frame.get()));
}

void TestConnectionsFrame::cleanup()
{
    m_frame.reset();
    m_device.reset();
}

DefaultEditor* TestConnectionsFrame::startNewConnection(const QString& typeName)
{
    QTest::mouseClick(listPage()->newConnectionButton(), Qt::LeftButton);
    auto* selector = qobject_cast<ConnectionSelectorPage*>(current());
    if (!selector)
        return nullptr;
    QListWidget* list = selector->connectionList();
    const QList<QListWidgetItem*> found = list->findItems(typeName, Qt::MatchExactly);
    if (found.size() != 1)
        return nullptr;
    const QPoint centre = list->visualItemRect(found.first()).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, centre);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, centre);
    return qobject_cast<DefaultEditor*>(current());
}

void TestConnectionsFrame::addConnection(const QString& typeName, const QString& name, const QString& server)
{
    DefaultEditor* editor = startNewConnection(typeName);
    QVERIFY(editor);
    editor->nameEdit()->clear();
    QTest::keyClicks(editor->nameEdit(), name);
    QTest::keyClicks(editor->serverEdit(), server);
    QTest::mouseClick(editor->saveButton(), Qt::LeftButton);
}

void TestConnectionsFrame::renameInPlace(int row, const QString& name)
{
    QTableWidgetItem* item = table()->item(row, 0);
    table()->editItem(item);
    auto* edit = qobject_cast<QLineEdit*>(table()->indexWidget(table()->model()->index(item->row(), 0)));
    QVERIFY(edit);
    // Typed keys are ASCII only; the text as pasted, then Enter.
    edit->setText(name);
    QTest::keyClick(edit, Qt::Key_Return);
}

void TestConnectionsFrame::newConnectionsAreListedSortedAcrossTypes()
{
    QCOMPARE(m_frame->title(), QStringLiteral("Connections"));
    QVERIFY(m_frame->helpText().isEmpty());
    // Drawn for the accordion header's 24 pixels, not scaled to them.
    QCOMPARE(m_frame->icon().availableSizes().value(0), QSize(24, 24));
    QVERIFY(!m_frame->icon().pixmap(24).isNull());
    // Nothing yet: the hint alone.
    QVERIFY(listPage()->noConnectionLabel()->isVisible());
    QVERIFY(!table()->isVisible());
    QVERIFY(!listPage()->kioskCheck()->isVisible());
    QSignalSpy dirty(m_frame.get(), &ConfigFrame::dirty);

    DefaultEditor* editor = startNewConnection(QStringLiteral("VMware View"));
    QVERIFY(editor);
    QCOMPARE(editor->headerLabel()->text(), QStringLiteral("VMware connection"));
    QCOMPARE(editor->nameEdit()->text(), QStringLiteral("New connection"));
    QVERIFY(editor->serverEdit()->text().isEmpty());
    QVERIFY(!editor->iconLabel()->pixmap()->isNull());
    // The server (here the URL) is mandatory: the page stays and nothing is stored.
    ModalAnswer box;
    box.arm();
    QTest::mouseClick(editor->saveButton(), Qt::LeftButton);
    QVERIFY(box.answered());
    QCOMPARE(box.icon(), QMessageBox::Critical);
    QCOMPARE(box.text(), QStringLiteral("<center>The field 'URL' is mandatory.</center>"));
    QCOMPARE(box.buttons(), QMessageBox::Ok);
    QCOMPARE(current(), editor);
    QCOMPARE(editor->serverEdit()->styleSheet(), QStringLiteral("background-color: white"));
    QVERIFY(m_frame->connectionModel().connections(QStringLiteral("vmware"))->sessions().isEmpty());

    editor->nameEdit()->clear();
    QTest::keyClicks(editor->nameEdit(), QStringLiteral("  Zulu   desk "));
    QTest::keyClicks(editor->serverEdit(), QStringLiteral(" https://view.example "));
    clickCheckBox(editor->autostartCheck());
    QTest::mouseClick(editor->saveButton(), Qt::LeftButton);
    QCOMPARE(current(), listPage());
    const QList<ConnectionSession*> saved = m_frame->connectionModel().connections("vmware")->sessions();
    QCOMPARE(saved.size(), 1);
    QCOMPARE(saved.first()->property("name").toString(), QStringLiteral("Zulu desk"));
    QCOMPARE(saved.first()->property("address").toString(), QStringLiteral(" https://view.example "));
    QCOMPARE(saved.first()->property("autostart").toString(), QStringLiteral("true"));
    QVERIFY(m_frame->isDirty());
    QVERIFY(dirty.count() > 0);

    addConnection(QStringLiteral("RDP"), QStringLiteral("Mike"), QStringLiteral("ts.example"));
    addConnection(QStringLiteral("XenApp"), QStringLiteral("Alpha"), QStringLiteral("https://apps.example"));
    // Sorted by name, whatever the type; each row with its type's icon and its id.
    QVERIFY(table()->isVisible());
    QVERIFY(!listPage()->noConnectionLabel()->isVisible());
    QCOMPARE(table()->rowCount(), 3);
    const QStringList types = { "xenapp", "rdp", "vmware" };
    for (int row = 0; row < 3; ++row) {
        const QString id = table()->item(row, 0)->data(Qt::UserRole).toString();
        QCOMPARE(m_frame->connectionModel().connectionTypeOf(id), types.at(row));
        QVERIFY(!table()->item(row, 0)->icon().pixmap(16).isNull());
        QVERIFY(qobject_cast<QToolButton*>(table()->cellWidget(row, 1)));
        QVERIFY(qobject_cast<QToolButton*>(table()->cellWidget(row, 2)));
    }
    QCOMPARE(nameAt(table(), 0) + ',' + nameAt(table(), 1) + ',' + nameAt(table(), 2),
             QStringLiteral("Alpha,Mike,Zulu desk"));

    // The edit button opens the stored session; saving updates it rather than adding one.
    auto* edit = qobject_cast<QToolButton*>(table()->cellWidget(1, 2));
    QTest::mouseClick(edit, Qt::LeftButton);
    editor = defaultEditor(QStringLiteral("rdp"));
    QCOMPARE(current(), editor);
    QCOMPARE(editor->nameEdit()->text(), QStringLiteral("Mike"));
    QCOMPARE(editor->serverEdit()->text(), QStringLiteral("ts.example"));
    QVERIFY(!editor->autostartCheck()->isChecked());
    QTest::keyClicks(editor->serverEdit(), QStringLiteral(":3389"));
    QTest::mouseClick(editor->saveButton(), Qt::LeftButton);
    const QList<ConnectionSession*> rdp = m_frame->connectionModel().connections("rdp")->sessions();
    QCOMPARE(rdp.size(), 1);
    QCOMPARE(rdp.first()->property("address").toString(), QStringLiteral("ts.example:3389"));

    // Cancel on the editor and on the selector go back to the list, storing nothing.
    QTest::mouseClick(edit = qobject_cast<QToolButton*>(table()->cellWidget(0, 2)), Qt::LeftButton);
    QTest::mouseClick(defaultEditor("xenapp")->cancelButton(), Qt::LeftButton);
    QCOMPARE(current(), listPage());
    QTest::mouseClick(listPage()->newConnectionButton(), Qt::LeftButton);
    QTest::mouseClick(qobject_cast<ConnectionSelectorPage*>(current())->cancelButton(), Qt::LeftButton);
    QCOMPARE(current(), listPage());
    QCOMPARE(table()->rowCount(), 3);

    // Types with editor pages of their own open them from the selector, and a stored
    // session of theirs reopens from its row.
    QVERIFY(!startNewConnection(QStringLiteral("ICA")));
    auto* ica = qobject_cast<IcaEditor*>(current());
    QVERIFY(ica);
    QCOMPARE(ica->connectionSessionId(), ConnectionSessionEditor::NEW_SESSION_ID);
    QTest::keyClicks(ica->findChild<QLineEdit*>(QStringLiteral("ServerEdit")), QStringLiteral("farm.example"));
    QTest::mouseClick(ica->saveButton(), Qt::LeftButton);
    QCOMPARE(current(), listPage());
    QCOMPARE(table()->rowCount(), 4);
    const QString icaId = m_frame->connectionModel().connections(QStringLiteral("ica"))->sessions().constFirst()->id();
    m_frame->editor()->openSessionEditor(icaId);
    QCOMPARE(current(), ica);
    QCOMPARE(ica->connectionSessionId(), icaId);
}

void TestConnectionsFrame::editorPagesFollowTheTypeTable_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("header");
    QTest::addColumn<QString>("server");
    QTest::addColumn<QString>("toolTip");
    QTest::newRow("rdp") << "rdp"
                         << "RDP connection"
                         << "Server" << QString();
    QTest::newRow("vmware") << "vmware"
                            << "VMware connection"
                            << "URL"
                            << "http and https schemes are supported";
    QTest::newRow("xenapp") << "xenapp"
                            << "Web interface for XenApp"
                            << "URL" << QString();
    QTest::newRow("leostream") << "leostream"
                               << "Leostream connection"
                               << "URL" << QString();
    QTest::newRow("xdmcp") << "xdmcp"
                           << "XDMCP connection"
                           << "Server" << QString();
    // Served by editors of their own; made on first demand and kept.
    QTest::newRow("ica") << "ica" << QString() << "IcaEditor" << QString();
    QTest::newRow("browser") << "browser" << QString() << "WebBrowserEditor" << QString();
    QTest::newRow("parlix") << "parlix" << QString() << "ParlixEditor" << QString();
    QTest::newRow("unknown") << "RDP" << QString() << QString() << QString();
}

void TestConnectionsFrame::editorPagesFollowTheTypeTable()
{
    QFETCH(QString, type);
    QFETCH(QString, header);
    ConnectionEditor* stack = m_frame->editor();
    QCOMPARE(stack->pageIndex(QStringLiteral("connection_list")), 0);
    QCOMPARE(stack->pageIndex(QStringLiteral("connection_selector")), 1);
    if (header.isNull() && type.isLower()) {
        // For these the server column names the editor's class.
        QFETCH(QString, server);
        const int index = stack->pageIndex(type);
        QVERIFY(index > 1);
        QCOMPARE(QString::fromLatin1(stack->page(type)->metaObject()->className()), server);
        QCOMPARE(stack->pageIndex(type), index);
        stack->openNewSessionEditor(type);
        QCOMPARE(current(), stack->page(type));
        return;
    }
    if (header.isNull()) {
        QCOMPARE(stack->pageIndex(type), -1);
        stack->openNewSessionEditor(type);
        QCOMPARE(current(), listPage());
        return;
    }
    DefaultEditor* editor = defaultEditor(type);
    QVERIFY(editor);
    QCOMPARE(editor->connectionType(), type);
    QCOMPARE(editor->headerLabel()->text(), header);
    QTEST(editor->serverLabel()->text(), "server");
    QTEST(editor->serverEdit()->toolTip(), "toolTip");
    QTEST(editor->serverLabel()->toolTip(), "toolTip");
    // The page is made once and kept.
    QCOMPARE(stack->page(type), editor);
    // Its name field refuses, off Lunvex, what a name may not hold.
    QVERIFY(qobject_cast<const ConnectionNameValidator*>(editor->nameEdit()->validator()));
    Platform::instance()->setTarget(Platform::Wes);
    editor->nameEdit()->clear();
    QTest::keyClicks(editor->nameEdit(), QStringLiteral("Lab/1_x"));
    QCOMPARE(editor->nameEdit()->text(), QStringLiteral("Lab1_x"));
}

void TestConnectionsFrame::savedNamesAreChecked_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<bool>("inPlace");
    QTest::addColumn<QString>("name");
    // Empty when the name is accepted without a question.
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("renaming");

    const QString empty = QStringLiteral("<center>Please provide a connection name.</center>");
    const QString illegal
        = QStringLiteral("<center>The connection name must be restricted to alphabet characters, digits (0-9), dashes "
                         "(-), spaces( ), and periods (.).</center>");
    const QString refused = QStringLiteral("<center>The following connection name is already in use.<br><br><b>Office"
                                           "</b><br><br>Please provide an other name.</center>");
    const QString question = QStringLiteral("<center>The following connection name is already in use.<br><br><b>"
                                            "Office</b><br><br>Do you want to proceed with this name?</center>");
    const int lunvex = Platform::Lunvex, wes = Platform::Wes, ce = Platform::Ce;
    const int ok = QMessageBox::Ok, yes = QMessageBox::Yes, no = QMessageBox::No;
    for (bool inPlace : { false, true }) {
        const char* const way = inPlace ? "in place" : "editor";
        QTest::addRow("%s, wes, blanks only", way) << wes << inPlace << "   " << empty << ok << true;
        QTest::addRow("%s, lunvex, empty", way) << lunvex << inPlace << "" << empty << ok << true;
        QTest::addRow("%s, wes, slash", way) << wes << inPlace << "Lab/1" << illegal << ok << true;
        QTest::addRow("%s, lunvex, slash", way) << lunvex << inPlace << "Lab/1" << QString() << 0 << false;
        QTest::addRow("%s, ce, underscore and letters", way)
            << ce << inPlace << "Büro_2 Köln" << QString() << 0 << false;
        QTest::addRow("%s, wes, duplicate", way) << wes << inPlace << "Office" << refused << ok << true;
        QTest::addRow("%s, lunvex, duplicate, yes", way) << lunvex << inPlace << "Office" << question << yes << false;
        QTest::addRow("%s, lunvex, duplicate, no", way) << lunvex << inPlace << "Office" << question << no << true;
    }
}

// An offending name stays stored; the user is told and put into renaming its row.
void TestConnectionsFrame::savedNamesAreChecked()
{
    QFETCH(int, target);
    QFETCH(bool, inPlace);
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(int, answer);
    QFETCH(bool, renaming);
    ConfigFile config;
    QVERIFY(config.setContent(Rdp));
    m_frame->loadConfig(&config);
    Platform::instance()->setTarget(Platform::Target(target));
    // The second connection, of another type, is the one named.
    addConnection(QStringLiteral("XenApp"), QStringLiteral("Portal"), QStringLiteral("https://apps.example"));
    const QString id = m_frame->connectionModel().connections(QStringLiteral("xenapp"))->sessions().first()->id();

    ModalAnswer box(static_cast<QMessageBox::StandardButton>(answer));
    box.arm();
    if (inPlace) {
        const int row = table()->findItems(QStringLiteral("Portal"), Qt::MatchExactly).first()->row();
        renameInPlace(row, name);
    } else {
        QTest::mouseClick(qobject_cast<QToolButton*>(table()->cellWidget(1, 2)), Qt::LeftButton);
        QLineEdit* edit = defaultEditor(QStringLiteral("xenapp"))->nameEdit();
        edit->clear();
        // The editor's field refuses what the platform does not allow; set it as pasted.
        edit->setText(name);
        QTest::mouseClick(defaultEditor(QStringLiteral("xenapp"))->saveButton(), Qt::LeftButton);
    }
    if (text.isEmpty()) {
        QTest::qWait(50);
        QVERIFY(!box.answered());
    } else {
        QTRY_VERIFY(box.answered());
        QCOMPARE(box.text(), text);
        QCOMPARE(box.title(), m_frame->editor()->windowTitle());
        QCOMPARE(box.icon(), answer == QMessageBox::Ok ? QMessageBox::Critical : QMessageBox::Warning);
        QCOMPARE(box.buttons(),
                 answer == QMessageBox::Ok ? QMessageBox::StandardButtons(QMessageBox::Ok)
                                           : QMessageBox::Yes | QMessageBox::No);
    }
    // Stored under that name in any case, on the list page, with its row in renaming or not.
    QCOMPARE(current(), listPage());
    QCOMPARE(m_frame->connectionModel().session(id)->property("name").toString(), name.simplified());
    QWidget* renameEditor = table()->indexWidget(table()->currentIndex());
    QCOMPARE(renameEditor != nullptr && table()->currentItem()->data(Qt::UserRole).toString() == id, renaming);
}

// Clicking elsewhere ends the rename as Enter does, before the click takes effect.
void TestConnectionsFrame::leavingARenameStoresIt()
{
    ConfigFile config;
    QVERIFY(config.setContent(Rdp));
    m_frame->loadConfig(&config);
    QApplication::setActiveWindow(m_frame.get());
    QTableWidgetItem* item = table()->item(0, 0);
    table()->editItem(item);
    auto* edit = qobject_cast<QLineEdit*>(table()->indexWidget(table()->model()->index(0, 0)));
    QVERIFY(edit);
    edit->setFocus();
    QTRY_VERIFY(edit->hasFocus());
    edit->setText(QStringLiteral("Head  office "));
    QTest::mouseClick(listPage()->newConnectionButton(), Qt::LeftButton);
    QCOMPARE(m_frame->connectionModel().session(QStringLiteral("{r1}"))->property("name").toString(),
             QStringLiteral("Head office"));
    QVERIFY(qobject_cast<ConnectionSelectorPage*>(current()));
}

void TestConnectionsFrame::deletingAsksFirst()
{
    ConfigFile config;
    QVERIFY(config.setContent(Rdp));
    m_frame->loadConfig(&config);
    addConnection(QStringLiteral("RDP"), QStringLiteral("Annex & co"), QStringLiteral("annex.example"));
    QCOMPARE(table()->rowCount(), 2);

    for (QMessageBox::StandardButton answer : { QMessageBox::No, QMessageBox::Yes }) {
        ModalAnswer box(answer);
        box.arm();
        QTest::mouseClick(qobject_cast<QToolButton*>(table()->cellWidget(0, 1)), Qt::LeftButton);
        QVERIFY(box.answered());
        QCOMPARE(box.icon(), QMessageBox::Question);
        QCOMPARE(box.text(),
                 QStringLiteral("Please, confirm you want to delete the connection:<br><br>Annex &amp; co"));
        QCOMPARE(box.buttons(), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box.title(), listPage()->windowTitle());
    }
    QCOMPARE(table()->rowCount(), 1);
    QCOMPARE(nameAt(table(), 0), QStringLiteral("Office"));
    QCOMPARE(m_frame->connectionModel().sessionsByName(QStringLiteral("Annex & co")).size(), 0);
}

void TestConnectionsFrame::kioskModeGoesWithTheLastConnection()
{
    ConnectionModel& model = m_frame->connectionModel();
    ConfigFile config;
    QVERIFY(config.setContent(Rdp));
    m_frame->loadConfig(&config);
    ConfigAtom* cda = model.connections(QStringLiteral("cda"));
    QCheckBox* kiosk = listPage()->kioskCheck();
    QVERIFY(kiosk->isVisible());
    QVERIFY(kiosk->isChecked());
    // Showing the loaded setting did not change it.
    QVERIFY(!model.desktopConfig()->isDirty());

    // A click writes through to the desktop settings and the CDA mode, and reports nothing.
    QSignalSpy modified(listPage(), &ConnectionListPage::modified);
    clickCheckBox(kiosk);
    QCOMPARE(model.desktopConfig()->property("kiosk_mode").toString(), QStringLiteral("false"));
    QCOMPARE(cda->property("enable").toString(), QStringLiteral("false"));
    clickCheckBox(kiosk);
    QCOMPARE(model.desktopConfig()->property("kiosk_mode").toString(), QStringLiteral("true"));
    QCOMPARE(cda->property("enable").toString(), QStringLiteral("true"));
    QCOMPARE(modified.count(), 0);

    ModalAnswer box(QMessageBox::Yes);
    box.arm();
    QTest::mouseClick(qobject_cast<QToolButton*>(table()->cellWidget(0, 1)), Qt::LeftButton);
    QVERIFY(box.answered());
    QCOMPARE(table()->rowCount(), 0);
    QVERIFY(!kiosk->isChecked());
    QVERIFY(!kiosk->isVisible());
    QVERIFY(listPage()->noConnectionLabel()->isVisible());
    QCOMPARE(model.desktopConfig()->property("kiosk_mode").toString(), QStringLiteral("false"));
    QCOMPARE(cda->property("enable").toString(), QStringLiteral("false"));
    QCOMPARE(modified.count(), 1);

    // Without a CDA kind the switch creates none.
    model.clear();
    QVERIFY(!model.containsConnections(QStringLiteral("cda")));
    listPage()->changeKioskMode(Qt::Checked);
    QVERIFY(!model.containsConnections(QStringLiteral("cda")));
}

QTEST_MAIN(TestConnectionsFrame)
#include "tst_connectionsframe.moc"
