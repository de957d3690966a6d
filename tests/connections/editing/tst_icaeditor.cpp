#include "connections/editing/icaeditor.h"
#include "connections/model/configatom.h"
#include "connections/model/connectionkindred.h"
#include "connections/model/connectionmodel.h"
#include "connections/model/connectionsession.h"
#include "editorwidgets.h"
#include "modalanswer.h"
#include "sessionroundtrip.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

class IcaEditorTest : public QObject
{
    Q_OBJECT

private slots:
    void createSaveReloadReopen();
    void proxyKeptAndSavedWhileDisabled();
    void portValidator_data();
    void portValidator();
    void serverIsMandatory();
};

void IcaEditorTest::createSaveReloadReopen()
{
    SessionRoundTrip trip;
    ConnectionModel model;
    IcaEditor editor(model);
    QCOMPARE(child<QLabel>(editor, "HeaderLabel")->text(), QStringLiteral("ICA connection"));
    QVERIFY(!child<QLabel>(editor, "IconLabel")->pixmap()->isNull());

    editor.resetSession();
    auto* name = child<QLineEdit>(editor, "NameEdit");
    auto* proxyAddress = child<QLineEdit>(editor, "ProxyAddressEdit");
    auto* proxyPort = child<QLineEdit>(editor, "ProxyPortEdit");
    QCOMPARE(name->text(), QStringLiteral("New connection"));
    QVERIFY(proxyAddress->text().isEmpty() && proxyPort->text().isEmpty());
    QVERIFY(!proxyAddress->isEnabled() && !proxyPort->isEnabled());

    retype(name, QStringLiteral("  Citrix   farm "));
    QTest::keyClicks(child<QLineEdit>(editor, "ServerEdit"), QStringLiteral(" farm.example"));
    QTest::mouseClick(child<QCheckBox>(editor, "AutoStartCheckBox"), Qt::LeftButton);
    QTest::mouseClick(child<QCheckBox>(editor, "ProxyCheckBox"), Qt::LeftButton);
    QVERIFY(proxyAddress->isEnabled() && proxyPort->isEnabled());
    QTest::keyClicks(proxyAddress, QStringLiteral("proxy.example"));
    QTest::keyClicks(proxyPort, QStringLiteral("8080"));
    QSignalSpy saved(&editor, &ConnectionSessionEditor::sessionSaved);
    editor.saveButton()->click();
    QCOMPARE(saved.count(), 1);

    const QString id = editor.connectionSessionId();
    QCOMPARE(model.connectionTypeOf(id), QStringLiteral("ica"));
    QVERIFY(trip.save(model));
    // The name simplified, the server as typed.
    QCOMPARE(trip.text(),
             SessionRoundTrip::document(
                 QStringLiteral("<ica><session id=\"%1\"><name>Citrix farm</name><autostart>true</autostart>"
                                "<address> farm.example</address><proxy><enable>true</enable>"
                                "<address>proxy.example</address><port>8080</port></proxy></session></ica>")
                     .arg(id)));

    ConnectionModel reloaded;
    trip.load(reloaded);
    IcaEditor reopened(reloaded);
    reopened.setEditedSessionId(id);
    QCOMPARE(child<QLineEdit>(reopened, "NameEdit")->text(), QStringLiteral("Citrix farm"));
    QCOMPARE(child<QLineEdit>(reopened, "ServerEdit")->text(), QStringLiteral(" farm.example"));
    QVERIFY(child<QCheckBox>(reopened, "AutoStartCheckBox")->isChecked());
    QVERIFY(child<QCheckBox>(reopened, "ProxyCheckBox")->isChecked());
    QVERIFY(child<QLineEdit>(reopened, "ProxyAddressEdit")->isEnabled());
    QCOMPARE(child<QLineEdit>(reopened, "ProxyAddressEdit")->text(), QStringLiteral("proxy.example"));
    QCOMPARE(child<QLineEdit>(reopened, "ProxyPortEdit")->text(), QStringLiteral("8080"));
    // Showing a session changes nothing, so an untouched type is not written back.
    QVERIFY(!reloaded.connections(QStringLiteral("ica"))->isDirty());

    // A session shown after another starts from its own values, not the previous one's.
    reopened.resetSession();
    QVERIFY(!child<QCheckBox>(reopened, "ProxyCheckBox")->isChecked());
    QVERIFY(!child<QLineEdit>(reopened, "ProxyPortEdit")->isEnabled());
    QVERIFY(child<QLineEdit>(reopened, "ProxyAddressEdit")->text().isEmpty());
}

void IcaEditorTest::proxyKeptAndSavedWhileDisabled()
{
    ConnectionModel model;
    IcaEditor editor(model);
    editor.resetSession();
    QTest::keyClicks(child<QLineEdit>(editor, "ServerEdit"), QStringLiteral("farm"));
    auto* box = child<QCheckBox>(editor, "ProxyCheckBox");
    QTest::mouseClick(box, Qt::LeftButton);
    QTest::keyClicks(child<QLineEdit>(editor, "ProxyAddressEdit"), QStringLiteral("proxy"));
    QTest::keyClicks(child<QLineEdit>(editor, "ProxyPortEdit"), QStringLiteral("3128"));
    QTest::mouseClick(box, Qt::LeftButton);
    QVERIFY(!child<QLineEdit>(editor, "ProxyAddressEdit")->isEnabled());
    QCOMPARE(child<QLineEdit>(editor, "ProxyAddressEdit")->text(), QStringLiteral("proxy"));
    editor.saveButton()->click();

    const ConfigAtom* proxy = model.session(editor.connectionSessionId())->findAtom(QStringLiteral("proxy"));
    QVERIFY(proxy);
    QCOMPARE(proxy->property("enable").toString(), QStringLiteral("false"));
    QCOMPARE(proxy->property("address").toString(), QStringLiteral("proxy"));
    QCOMPARE(proxy->property("port").toString(), QStringLiteral("3128"));
}

void IcaEditorTest::portValidator_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("kept");
    QTest::newRow("largest accepted") << "65536"
                                      << "65536";
    QTest::newRow("one above refused") << "65537"
                                       << "6553";
    QTest::newRow("far above refused") << "99999"
                                       << "9999";
    QTest::newRow("no sign") << "-80"
                             << "80";
    QTest::newRow("digits only") << "8a0"
                                 << "80";
}

void IcaEditorTest::portValidator()
{
    QFETCH(QString, typed);
    QFETCH(QString, kept);
    ConnectionModel model;
    IcaEditor editor(model);
    editor.resetSession();
    QTest::mouseClick(child<QCheckBox>(editor, "ProxyCheckBox"), Qt::LeftButton);
    auto* port = child<QLineEdit>(editor, "ProxyPortEdit");
    QTest::keyClicks(port, typed);
    QCOMPARE(port->text(), kept);
    QVERIFY(port->minimumWidth() >= port->fontMetrics().horizontalAdvance(QStringLiteral("123456789")));
}

void IcaEditorTest::serverIsMandatory()
{
    ConnectionModel model;
    IcaEditor editor(model);
    editor.setWindowTitle(QStringLiteral("Connections"));
    editor.resetSession();
    QSignalSpy saved(&editor, &ConnectionSessionEditor::sessionSaved);
    ModalAnswer answer;
    answer.arm();
    editor.saveButton()->click();
    QVERIFY(answer.answered());
    QCOMPARE(answer.title(), QStringLiteral("Connections"));
    QCOMPARE(answer.icon(), QMessageBox::Critical);
    QCOMPARE(answer.text(), QStringLiteral("<center>The field 'Server' is mandatory.</center>"));
    QCOMPARE(answer.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(child<QLineEdit>(editor, "ServerEdit")->styleSheet(), QStringLiteral("background-color: white"));
    QCOMPARE(saved.count(), 0);
    QVERIFY(model.connections(QStringLiteral("ica"))->sessions().isEmpty());
    QCOMPARE(editor.connectionSessionId(), ConnectionSessionEditor::NEW_SESSION_ID);

    // A blank counts as filled; the flag goes at the next showing.
    QTest::keyClicks(child<QLineEdit>(editor, "ServerEdit"), QStringLiteral(" "));
    editor.saveButton()->click();
    QCOMPARE(saved.count(), 1);
    editor.setEditedSessionId(editor.connectionSessionId());
    QVERIFY(child<QLineEdit>(editor, "ServerEdit")->styleSheet().isEmpty());
}

QTEST_MAIN(IcaEditorTest)
#include "tst_icaeditor.moc"
