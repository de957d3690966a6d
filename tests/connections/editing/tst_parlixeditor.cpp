#include "connections/editing/parlixeditor.h"
#include "connections/model/connectionkindred.h"
#include "connections/model/connectionmodel.h"
#include "connections/model/connectionsession.h"
#include "editorwidgets.h"
#include "modalanswer.h"
#include "sessionroundtrip.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTranslator>
#include <QtTest>
#include <algorithm>

namespace {
void select(QComboBox* combo, const QString& shown)
{
    const int index = combo->findText(shown);
    QVERIFY2(index >= 0, qPrintable(shown));
    combo->setCurrentIndex(index);
}

QString shownPage(QWidget& editor)
{
    return child<QStackedWidget>(editor, "TransportPages")->currentWidget()->objectName();
}

QStringList sortedPropertyNames(const ConnectionSession& session)
{
    QStringList names;
    const QList<QByteArray> properties = session.propertyNames();
    for (const QByteArray& name : properties)
        names.append(QString::fromLatin1(name));
    std::sort(names.begin(), names.end());
    return names;
}

// Marks every text of the page, as a language with other words would.
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        if (qstrcmp(context, "ParlixEditor") != 0)
            return QString();
        return QStringLiteral("[") + QString::fromUtf8(source) + QStringLiteral("]");
    }
};
} // namespace

class ParlixEditorTest : public QObject
{
    Q_OBJECT

private slots:
    void newSessionDefaults();
    void transportWritesOnlyItsFields_data();
    void transportWritesOnlyItsFields();
    void emulationKeys_data();
    void emulationKeys();
    void unknownKeysSelectNothing();
    void languageChangeKeepsSelection();
    void remoteHostIsMandatory();
    void portValidators();
};

void ParlixEditorTest::newSessionDefaults()
{
    ConnectionModel model;
    ParlixEditor editor(model);
    QVERIFY(!child<QLabel>(editor, "IconLabel")->pixmap()->isNull());
    editor.resetSession();
    QCOMPARE(child<QLineEdit>(editor, "NameEdit")->text(), QStringLiteral("New connection"));
    QCOMPARE(child<QComboBox>(editor, "EmulationComboBox")->count(), 10);
    QCOMPARE(child<QComboBox>(editor, "EmulationComboBox")->currentText(), QStringLiteral("VT Series"));
    QCOMPARE(child<QComboBox>(editor, "TransportComboBox")->currentText(), QStringLiteral("Tcp/Ip"));
    QCOMPARE(shownPage(editor), QStringLiteral("TcpIpSettings"));
    QCOMPARE(child<QLineEdit>(editor, "TcpLocalPortEdit")->text(), QStringLiteral("0"));
    QCOMPARE(child<QLineEdit>(editor, "TcpPortEdit")->text(), QStringLiteral("23"));
    QCOMPARE(child<QLineEdit>(editor, "SshPortEdit")->text(), QStringLiteral("22"));
    QVERIFY(child<QLineEdit>(editor, "TcpHostEdit")->text().isEmpty());
    QVERIFY(child<QLineEdit>(editor, "SshHostEdit")->text().isEmpty());
}

void ParlixEditorTest::transportWritesOnlyItsFields_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("hostEdit");
    QTest::addColumn<QStringList>("properties");
    QTest::addColumn<QString>("stored");

    const QStringList common = { "autostart", "emulation", "name", "region", "transport" };
    QTest::newRow("ssh") << "Ssh"
                         << "SshSettings"
                         << "SshHostEdit"
                         << (QStringList(common) << "address"
                                                 << "port")
                         << "<address>host.example</address><emulation>VT Series</emulation>"
                            "<local_port>0</local_port><port>22</port><transport>SSH2</transport>";
    QTest::newRow("serial") << "Serial"
                            << "SerialSettings" << QString() << common
                            << "<address></address><emulation>VT Series</emulation>"
                               "<local_port>0</local_port><port>0</port><transport>Serial</transport>";
    QTest::newRow("tcp/ip") << "Tcp/Ip"
                            << "TcpIpSettings"
                            << "TcpHostEdit"
                            << (QStringList(common) << "address"
                                                    << "local_port"
                                                    << "port")
                            << "<address>host.example</address><emulation>VT Series</emulation>"
                               "<local_port>0</local_port><port>23</port><transport>Tcp/Ip</transport>";
}

void ParlixEditorTest::transportWritesOnlyItsFields()
{
    QFETCH(QString, shown);
    QFETCH(QString, page);
    QFETCH(QString, hostEdit);
    QFETCH(QStringList, properties);
    QFETCH(QString, stored);
    std::sort(properties.begin(), properties.end());

    SessionRoundTrip trip;
    ConnectionModel model;
    ParlixEditor editor(model);
    editor.resetSession();
    select(child<QComboBox>(editor, "TransportComboBox"), shown);
    QCOMPARE(shownPage(editor), page);
    if (hostEdit.isEmpty())
        QCOMPARE(child<QLabel>(editor, "SerialDefaultsLabel")->text(), QStringLiteral("<i>default settings</i>"));
    else
        QTest::keyClicks(child<QLineEdit>(editor, qPrintable(hostEdit)), QStringLiteral("host.example"));
    editor.saveButton()->click();

    const QString id = editor.connectionSessionId();
    QCOMPARE(model.connectionTypeOf(id), QStringLiteral("parlix"));
    QCOMPARE(sortedPropertyNames(*model.session(id)), properties);

    // The document has an element for every key; those the transport does not write are empty.
    QVERIFY(trip.save(model));
    QCOMPARE(trip.text(),
             SessionRoundTrip::document(QStringLiteral("<parlix><session id=\"%1\"><name>New connection</name>"
                                                       "<region>WW</region><autostart>false</autostart>")
                                            .arg(id)
                                        + stored + QStringLiteral("</session></parlix>")));
    ConnectionModel reloaded;
    trip.load(reloaded);
    ParlixEditor reopened(reloaded);
    reopened.setEditedSessionId(id);
    QCOMPARE(child<QComboBox>(reopened, "TransportComboBox")->currentText(), shown);
    QCOMPARE(shownPage(reopened), page);
    if (!hostEdit.isEmpty())
        QCOMPARE(child<QLineEdit>(reopened, qPrintable(hostEdit))->text(), QStringLiteral("host.example"));
    QCOMPARE(child<QLineEdit>(reopened, "SshPortEdit")->text(), QStringLiteral("22"));
    QCOMPARE(child<QLineEdit>(reopened, "TcpPortEdit")->text(), QStringLiteral("23"));
}

void ParlixEditorTest::emulationKeys_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("stored");
    QTest::newRow("same text") << "IBM 3151"
                               << "IBM 3151";
    QTest::newRow("3270 without blank") << "IBM 3270 Display"
                                        << "IBM3270 Display";
    QTest::newRow("5250 without blank") << "IBM 5250 Printer"
                                        << "IBM5250 Printer";
    QTest::newRow("tavlo") << "Tavlo 70092"
                           << "tavlo70092";
}

void ParlixEditorTest::emulationKeys()
{
    QFETCH(QString, shown);
    QFETCH(QString, stored);
    ConnectionModel model;
    ParlixEditor editor(model);
    editor.resetSession();
    select(child<QComboBox>(editor, "EmulationComboBox"), shown);
    QTest::keyClicks(child<QLineEdit>(editor, "TcpHostEdit"), QStringLiteral("h"));
    editor.saveButton()->click();
    const QString id = editor.connectionSessionId();
    QCOMPARE(model.session(id)->property("emulation").toString(), stored);

    editor.resetSession();
    editor.setEditedSessionId(id);
    QCOMPARE(child<QComboBox>(editor, "EmulationComboBox")->currentText(), shown);
}

void ParlixEditorTest::unknownKeysSelectNothing()
{
    SessionRoundTrip trip;
    ConnectionModel model;
    QVERIFY(trip.load(model,
                      QStringLiteral("<parlix><session id=\"p\"><name>Old</name><emulation>vt220</emulation>"
                                     "<transport>telnet</transport><address>mf</address></session></parlix>")));
    ParlixEditor editor(model);
    editor.resetSession();
    editor.setEditedSessionId(QStringLiteral("p"));
    QCOMPARE(child<QComboBox>(editor, "EmulationComboBox")->currentIndex(), -1);
    QCOMPARE(child<QComboBox>(editor, "TransportComboBox")->currentIndex(), -1);

    // Saving without a choice keeps what the session had.
    editor.saveButton()->click();
    QCOMPARE(model.session(QStringLiteral("p"))->property("emulation").toString(), QStringLiteral("vt220"));
    QCOMPARE(model.session(QStringLiteral("p"))->property("transport").toString(), QStringLiteral("telnet"));
}

void ParlixEditorTest::languageChangeKeepsSelection()
{
    ConnectionModel model;
    ParlixEditor editor(model);
    editor.resetSession();
    auto* emulation = child<QComboBox>(editor, "EmulationComboBox");
    auto* transport = child<QComboBox>(editor, "TransportComboBox");
    select(emulation, QStringLiteral("IBM 5250 Display"));
    select(transport, QStringLiteral("Serial"));

    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    QCOMPARE(child<QLabel>(editor, "HeaderLabel")->text(), QStringLiteral("[Parlix connection]"));
    QCOMPARE(emulation->currentText(), QStringLiteral("[IBM 5250 Display]"));
    QCOMPARE(emulation->currentData().toString(), QStringLiteral("IBM5250 Display"));
    QCOMPARE(transport->currentText(), QStringLiteral("[Serial]"));
    QCOMPARE(shownPage(editor), QStringLiteral("SerialSettings"));
    QCOMPARE(child<QGroupBox>(editor, "SerialSettings")->title(), QStringLiteral("[Serial settings]"));

    // No selection stays no selection.
    emulation->setCurrentIndex(-1);
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    QCOMPARE(emulation->currentIndex(), -1);
    QCOMPARE(transport->currentText(), QStringLiteral("Serial"));
    QCOMPARE(emulation->itemText(1), QStringLiteral("IBM 3270 Display"));
}

void ParlixEditorTest::remoteHostIsMandatory()
{
    ConnectionModel model;
    ParlixEditor editor(model);
    editor.resetSession();
    const struct
    {
        const char* shown;
        const char* host;
    } required[] = { { "Ssh", "SshHostEdit" }, { "Tcp/Ip", "TcpHostEdit" } };
    for (const auto& transport : required) {
        select(child<QComboBox>(editor, "TransportComboBox"), QLatin1String(transport.shown));
        ModalAnswer answer;
        answer.arm();
        editor.saveButton()->click();
        QVERIFY(answer.answered());
        QCOMPARE(answer.icon(), QMessageBox::Critical);
        QCOMPARE(answer.text(), QStringLiteral("<center>The field 'Remote host' is mandatory.</center>"));
        QCOMPARE(answer.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(child<QLineEdit>(editor, transport.host)->styleSheet(), QStringLiteral("background-color: white"));
        QVERIFY(model.connections(QStringLiteral("parlix"))->sessions().isEmpty());
    }

    select(child<QComboBox>(editor, "TransportComboBox"), QStringLiteral("Serial"));
    editor.saveButton()->click();
    QCOMPARE(model.connections(QStringLiteral("parlix"))->sessions().size(), 1);
}

void ParlixEditorTest::portValidators()
{
    ConnectionModel model;
    ParlixEditor editor(model);
    editor.resetSession();
    for (const char* name : { "TcpLocalPortEdit", "TcpPortEdit" }) {
        auto* port = child<QLineEdit>(editor, name);
        port->clear();
        QTest::keyClicks(port, QStringLiteral("65537"));
        QCOMPARE(port->text(), QStringLiteral("6553"));
    }
    // The SSH port takes any text.
    auto* sshPort = child<QLineEdit>(editor, "SshPortEdit");
    sshPort->clear();
    QTest::keyClicks(sshPort, QStringLiteral("ssh-alt"));
    QCOMPARE(sshPort->text(), QStringLiteral("ssh-alt"));
}

QTEST_MAIN(ParlixEditorTest)
#include "tst_parlixeditor.moc"
