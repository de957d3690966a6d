#include "connections/editing/webbrowsereditor.h"
#include "connections/model/configatom.h"
#include "connections/model/connectionkindred.h"
#include "connections/model/connectionmodel.h"
#include "connections/model/connectionsession.h"
#include "editorwidgets.h"
#include "modalanswer.h"
#include "sessionroundtrip.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

namespace {
struct Proxy
{
    bool enabled;
    QString address;
    QString port;
};

// Types into the enabled fields, then sets the box.
void typeProxy(QWidget& editor, const Proxy& proxy)
{
    auto* box = child<QCheckBox>(editor, "ProxyCheckBox");
    box->setChecked(true);
    retype(child<QLineEdit>(editor, "ProxyAddressEdit"), proxy.address);
    retype(child<QLineEdit>(editor, "ProxyPortEdit"), proxy.port);
    if (!proxy.enabled)
        QTest::mouseClick(box, Qt::LeftButton);
}

void compareProxy(QWidget& editor, const Proxy& proxy)
{
    QCOMPARE(child<QCheckBox>(editor, "ProxyCheckBox")->isChecked(), proxy.enabled);
    QCOMPARE(child<QLineEdit>(editor, "ProxyAddressEdit")->isEnabled(), proxy.enabled);
    QCOMPARE(child<QLineEdit>(editor, "ProxyAddressEdit")->text(), proxy.address);
    QCOMPARE(child<QLineEdit>(editor, "ProxyPortEdit")->text(), proxy.port);
}

const QString twoSessions = QStringLiteral(
    "<browser><general_settings><proxy><enable>true</enable><address>cache.example</address><port>3128</port>"
    "</proxy></general_settings><session id=\"b1\"><name>Intranet</name><autostart>true</autostart>"
    "<url>http://intranet/</url></session><session id=\"b2\"><name>Mail</name><autostart>false</autostart>"
    "<url>https://mail/</url></session></browser>");
} // namespace

class WebBrowserEditorTest : public QObject
{
    Q_OBJECT

private slots:
    void proxyTypedReachesDocumentAndComesBack();
    void loadedProxyIsSharedBySessions();
    void urlIsMandatory();
};

void WebBrowserEditorTest::proxyTypedReachesDocumentAndComesBack()
{
    SessionRoundTrip trip;
    ConnectionModel model;
    WebBrowserEditor editor(model);
    QCOMPARE(child<QLabel>(editor, "HeaderLabel")->text(), QStringLiteral("Web Browser connection"));
    QCOMPARE(child<QGroupBox>(editor, "ProxyGroup")->title(), QStringLiteral("General proxy settings"));
    QVERIFY(!child<QLabel>(editor, "IconLabel")->pixmap()->isNull());
    editor.resetSession();
    compareProxy(editor, { false, QString(), QString() });

    retype(child<QLineEdit>(editor, "NameEdit"), QStringLiteral(" Intranet "));
    QTest::keyClicks(child<QLineEdit>(editor, "UrlEdit"), QStringLiteral("http://intranet/?a=1&b=2"));
    QTest::mouseClick(child<QCheckBox>(editor, "AutoStartCheckBox"), Qt::LeftButton);
    typeProxy(editor, { true, QStringLiteral("cache.example"), QStringLiteral("3128") });
    editor.saveButton()->click();

    const QString id = editor.connectionSessionId();
    QVERIFY(trip.save(model));
    QCOMPARE(
        trip.text(),
        SessionRoundTrip::document(
            QStringLiteral("<browser><general_settings><proxy><enable>true</enable><address>cache.example</address>"
                           "<port>3128</port></proxy></general_settings><session id=\"%1\"><name>Intranet</name>"
                           "<autostart>true</autostart><url>http://intranet/?a=1&amp;b=2</url></session>"
                           "</browser>")
                .arg(id)));

    ConnectionModel reloaded;
    trip.load(reloaded);
    WebBrowserEditor reopened(reloaded);
    reopened.setEditedSessionId(id);
    QCOMPARE(child<QLineEdit>(reopened, "NameEdit")->text(), QStringLiteral("Intranet"));
    QCOMPARE(child<QLineEdit>(reopened, "UrlEdit")->text(), QStringLiteral("http://intranet/?a=1&b=2"));
    QVERIFY(child<QCheckBox>(reopened, "AutoStartCheckBox")->isChecked());
    compareProxy(reopened, { true, QStringLiteral("cache.example"), QStringLiteral("3128") });
    QVERIFY(!reloaded.connections(QStringLiteral("browser"))->isDirty());
}

void WebBrowserEditorTest::loadedProxyIsSharedBySessions()
{
    SessionRoundTrip trip;
    ConnectionModel model;
    WebBrowserEditor editor(model);
    // The page exists before the document is loaded, as in the wizard.
    editor.resetSession();
    QVERIFY(trip.load(model, twoSessions));

    editor.setEditedSessionId(QStringLiteral("b1"));
    compareProxy(editor, { true, QStringLiteral("cache.example"), QStringLiteral("3128") });
    typeProxy(editor, { false, QStringLiteral("squid"), QStringLiteral("8080") });
    editor.saveButton()->click();

    editor.setEditedSessionId(QStringLiteral("b2"));
    QCOMPARE(child<QLineEdit>(editor, "UrlEdit")->text(), QStringLiteral("https://mail/"));
    compareProxy(editor, { false, QStringLiteral("squid"), QStringLiteral("8080") });

    // A new session shows the shared proxy as stored, and saving it keeps it.
    editor.resetSession();
    QVERIFY(child<QLineEdit>(editor, "UrlEdit")->text().isEmpty());
    compareProxy(editor, { false, QStringLiteral("squid"), QStringLiteral("8080") });
    QTest::keyClicks(child<QLineEdit>(editor, "UrlEdit"), QStringLiteral("http://news/"));
    editor.saveButton()->click();

    QVERIFY(trip.save(model));
    const QString text = trip.text();
    QCOMPARE(text.count(QStringLiteral("<general_settings>")), 1);
    QVERIFY(text.contains(QStringLiteral("<general_settings><proxy><enable>false</enable><address>squid</address>"
                                         "<port>8080</port></proxy></general_settings>")));
    QCOMPARE(text.count(QStringLiteral("<session ")), 3);
    QVERIFY(!model.connections(QStringLiteral("browser"))
                 ->findAtom(QStringLiteral("general_settings"))
                 ->findAtom(QStringLiteral("proxy")));
}

void WebBrowserEditorTest::urlIsMandatory()
{
    ConnectionModel model;
    WebBrowserEditor editor(model);
    editor.setWindowTitle(QStringLiteral("Connections"));
    editor.resetSession();
    ModalAnswer answer;
    answer.arm();
    editor.saveButton()->click();
    QVERIFY(answer.answered());
    QCOMPARE(answer.title(), QStringLiteral("Connections"));
    QCOMPARE(answer.icon(), QMessageBox::Critical);
    QCOMPARE(answer.text(), QStringLiteral("<center>The field 'URL' is mandatory.</center>"));
    QCOMPARE(answer.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(child<QLineEdit>(editor, "UrlEdit")->styleSheet(), QStringLiteral("background-color: white"));
    QVERIFY(model.connections(QStringLiteral("browser"))->sessions().isEmpty());
    QVERIFY(!model.connections(QStringLiteral("browser"))->findAtom(QStringLiteral("general_settings")));
}

QTEST_MAIN(WebBrowserEditorTest)
#include "tst_webbrowsereditor.moc"
