#include "parlixeditor.h"

#include "config/configfile.h"
#include "connections/model/connectionkindred.h"
#include "connections/model/connectionmodel.h"
#include "connections/model/connectionsession.h"
#include "portvalidator.h"
#include "sessioneditorparts.h"
#include "validator.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <memory>

namespace {
const QString parlixType = QStringLiteral("parlix");
const QString sshKey = QStringLiteral("SSH2");
const QString serialKey = QStringLiteral("Serial");
const QString tcpIpKey = QStringLiteral("Tcp/Ip");
const QString defaultEmulation = QStringLiteral("VT Series");

struct Choice
{
    const char* shown;
    const char* stored;
};

// The stored keys are what the terminal emulator understands: the IBM 3270 and 5250 keys
// have no blank before the number although the shown texts do.
const Choice emulations[] = {
    { QT_TRANSLATE_NOOP("ParlixEditor", "IBM 3151"), "IBM 3151" },
    { QT_TRANSLATE_NOOP("ParlixEditor", "IBM 3270 Display"), "IBM3270 Display" },
    { QT_TRANSLATE_NOOP("ParlixEditor", "IBM 3270 Printer"), "IBM3270 Printer" },
    { QT_TRANSLATE_NOOP("ParlixEditor", "IBM 5250 Display"), "IBM5250 Display" },
    { QT_TRANSLATE_NOOP("ParlixEditor", "IBM 5250 Printer"), "IBM5250 Printer" },
    { QT_TRANSLATE_NOOP("ParlixEditor", "MD Prism"), "MD Prism" },
    { QT_TRANSLATE_NOOP("ParlixEditor", "TA6530"), "TA6530" },
    { QT_TRANSLATE_NOOP("ParlixEditor", "VT Series"), "VT Series" },
    { QT_TRANSLATE_NOOP("ParlixEditor", "Wyse"), "Wyse" },
    { QT_TRANSLATE_NOOP("ParlixEditor", "Tavlo 70092"), "tavlo70092" },
};

// In the order of the settings pages.
const Choice transports[] = {
    { QT_TRANSLATE_NOOP("ParlixEditor", "Ssh"), "SSH2" },
    { QT_TRANSLATE_NOOP("ParlixEditor", "Serial"), "Serial" },
    { QT_TRANSLATE_NOOP("ParlixEditor", "Tcp/Ip"), "Tcp/Ip" },
};

template <size_t N> void fillCombo(QComboBox* combo, const Choice (&choices)[N])
{
    combo->clear();
    for (const Choice& choice : choices)
        combo->addItem(ParlixEditor::tr(choice.shown), QString::fromLatin1(choice.stored));
}

QLineEdit* addField(QGridLayout* grid, QLabel* label, const QString& objectName)
{
    auto* edit = new QLineEdit;
    edit->setObjectName(objectName);
    label->setBuddy(edit);
    const int row = grid->rowCount();
    grid->addWidget(label, row, 0);
    grid->addWidget(edit, row, 1);
    return edit;
}

QLineEdit* addPortField(QGridLayout* grid, QLabel* label, const QString& objectName, const QString& widthSample)
{
    QLineEdit* edit = addField(grid, label, objectName);
    SessionEditorParts::setMinimumWidthFor(edit, widthSample);
    // A port needs no more room than its digits; the host fields take the width.
    grid->setAlignment(edit, Qt::AlignLeft);
    return edit;
}

QGroupBox* createGroup(const QString& objectName)
{
    auto* group = new QGroupBox;
    group->setObjectName(objectName);
    auto* grid = new QGridLayout(group);
    grid->setColumnStretch(1, 10);
    return group;
}

QGridLayout* gridOf(QGroupBox* group)
{
    return static_cast<QGridLayout*>(group->layout());
}

// The pages share the stack's height; their fields stay at the top.
QGroupBox* finishGroup(QGroupBox* group)
{
    QGridLayout* grid = gridOf(group);
    grid->setRowStretch(grid->rowCount(), 10);
    return group;
}
} // namespace

ParlixEditor::ParlixEditor(ConnectionModel& model, QWidget* parent)
    : ConnectionSessionEditor(model, parent)
    , m_header(new QLabel(this))
    , m_nameLabel(new QLabel(this))
    , m_name(new QLineEdit(this))
    , m_autoStart(new QCheckBox(this))
    , m_emulationLabel(new QLabel(this))
    , m_emulation(new QComboBox(this))
    , m_transportLabel(new QLabel(this))
    , m_transport(new QComboBox(this))
    , m_transportPages(new QStackedWidget(this))
{
    m_header->setObjectName(QStringLiteral("HeaderLabel"));
    m_name->setObjectName(QStringLiteral("NameEdit"));
    m_autoStart->setObjectName(QStringLiteral("AutoStartCheckBox"));
    m_emulation->setObjectName(QStringLiteral("EmulationComboBox"));
    m_transport->setObjectName(QStringLiteral("TransportComboBox"));
    m_transportPages->setObjectName(QStringLiteral("TransportPages"));
    m_name->setValidator(Validator::connectionName(m_name));
    m_nameLabel->setBuddy(m_name);
    m_emulationLabel->setBuddy(m_emulation);
    m_transportLabel->setBuddy(m_transport);

    // The pages in the order of the transport combo.
    m_transportPages->addWidget(createSshPage());
    m_transportPages->addWidget(createSerialPage());
    m_transportPages->addWidget(createTcpIpPage());

    auto* grid = new QGridLayout(this);
    grid->addLayout(SessionEditorParts::headerRow(parlixType, m_header), 0, 0, 1, 2);
    grid->addWidget(m_nameLabel, 1, 0);
    grid->addWidget(m_name, 1, 1);
    grid->addWidget(m_autoStart, 2, 0, 1, 2);
    grid->addWidget(m_emulationLabel, 3, 0);
    grid->addWidget(m_emulation, 3, 1);
    grid->addWidget(m_transportLabel, 4, 0);
    grid->addWidget(m_transport, 4, 1);
    grid->addWidget(m_transportPages, 5, 0, 1, 2);
    grid->setRowStretch(6, 10);
    grid->addLayout(saveCancelButtonsLayout(), 7, 0, 1, 2);

    connect(m_transport, qOverload<int>(&QComboBox::currentIndexChanged), this, &ParlixEditor::showTransportSettings);
    retranslateUi();
}

ParlixEditor::~ParlixEditor() = default;

QGroupBox* ParlixEditor::createSshPage()
{
    m_sshPage = createGroup(QStringLiteral("SshSettings"));
    QGridLayout* grid = gridOf(m_sshPage);
    m_sshHostLabel = new QLabel;
    m_sshHost = addField(grid, m_sshHostLabel, QStringLiteral("SshHostEdit"));
    m_sshPortLabel = new QLabel;
    // Unlike the Tcp/Ip ports, any text is taken here.
    m_sshPort = addPortField(grid, m_sshPortLabel, QStringLiteral("SshPortEdit"), QStringLiteral("123456789"));
    return finishGroup(m_sshPage);
}

QGroupBox* ParlixEditor::createSerialPage()
{
    m_serialPage = createGroup(QStringLiteral("SerialSettings"));
    m_serialDefaults = new QLabel;
    m_serialDefaults->setObjectName(QStringLiteral("SerialDefaultsLabel"));
    gridOf(m_serialPage)->addWidget(m_serialDefaults, 0, 0, 1, 2);
    return finishGroup(m_serialPage);
}

QGroupBox* ParlixEditor::createTcpIpPage()
{
    m_tcpIpPage = createGroup(QStringLiteral("TcpIpSettings"));
    QGridLayout* grid = gridOf(m_tcpIpPage);
    m_tcpLocalPortLabel = new QLabel;
    m_tcpLocalPort
        = addPortField(grid, m_tcpLocalPortLabel, QStringLiteral("TcpLocalPortEdit"), QStringLiteral("65536"));
    m_tcpHostLabel = new QLabel;
    m_tcpHost = addField(grid, m_tcpHostLabel, QStringLiteral("TcpHostEdit"));
    m_tcpPortLabel = new QLabel;
    m_tcpPort = addPortField(grid, m_tcpPortLabel, QStringLiteral("TcpPortEdit"), QStringLiteral("123456789"));
    m_tcpLocalPort->setValidator(new PortValidator(PortValidator::ConnectionPortTop, m_tcpLocalPort));
    m_tcpPort->setValidator(new PortValidator(PortValidator::ConnectionPortTop, m_tcpPort));
    return finishGroup(m_tcpIpPage);
}

void ParlixEditor::populateEmulationCB()
{
    fillCombo(m_emulation, emulations);
    m_emulation->setCurrentIndex(m_emulation->findData(defaultEmulation));
}

void ParlixEditor::populateTransportCB()
{
    fillCombo(m_transport, transports);
}

void ParlixEditor::showTransportSettings(int index)
{
    const QString key = m_transport->itemData(index).toString();
    if (key == sshKey)
        m_transportPages->setCurrentWidget(m_sshPage);
    else if (key == serialKey)
        m_transportPages->setCurrentWidget(m_serialPage);
    else if (key == tcpIpKey)
        m_transportPages->setCurrentWidget(m_tcpIpPage);
}

void ParlixEditor::retranslateUi()
{
    ConnectionSessionEditor::retranslateUi();
    m_header->setText(tr("Parlix connection"));
    m_nameLabel->setText(tr("Name"));
    m_autoStart->setText(tr("Auto start connection"));
    m_emulationLabel->setText(tr("Emulation"));
    m_transportLabel->setText(tr("Transport"));
    m_sshPage->setTitle(tr("Ssh settings"));
    m_sshHostLabel->setText(tr("Remote host"));
    m_sshPortLabel->setText(tr("Port"));
    m_serialPage->setTitle(tr("Serial settings"));
    m_serialDefaults->setText(tr("<i>default settings</i>"));
    m_tcpIpPage->setTitle(tr("Tcp/Ip settings"));
    m_tcpLocalPortLabel->setText(tr("Local port"));
    m_tcpHostLabel->setText(tr("Remote host"));
    m_tcpPortLabel->setText(tr("Port"));

    // Refilled for the new texts; the selection keeps its stored key, or stays empty when
    // the session's key is not in the tables. The transport page does not change meanwhile.
    const bool refill = m_emulation->count() > 0;
    const QVariant emulation = m_emulation->currentData();
    const QVariant transport = m_transport->currentData();
    const QSignalBlocker blocker(m_transport);
    populateEmulationCB();
    populateTransportCB();
    if (refill) {
        m_emulation->setCurrentIndex(m_emulation->findData(emulation));
        m_transport->setCurrentIndex(m_transport->findData(transport));
    }
}

void ParlixEditor::resetTransportFields()
{
    m_sshHost->clear();
    m_sshHost->setStyleSheet(QString());
    m_sshPort->setText(QStringLiteral("22"));
    m_tcpLocalPort->setText(QStringLiteral("0"));
    m_tcpHost->clear();
    m_tcpHost->setStyleSheet(QString());
    m_tcpPort->setText(QStringLiteral("23"));
}

QString ParlixEditor::currentTransport() const
{
    return m_transport->currentData().toString();
}

void ParlixEditor::resetGui()
{
    m_name->setText(tr("New connection"));
    m_autoStart->setChecked(false);
    m_emulation->setCurrentIndex(m_emulation->findData(defaultEmulation));
    m_transport->setCurrentIndex(m_transport->findData(tcpIpKey));
    resetTransportFields();
}

void ParlixEditor::updateGui()
{
    ConnectionSession* session = connectionModel().session(connectionSessionId());
    // An id the model does not hold comes back as a new session that nobody else owns.
    const std::unique_ptr<ConnectionSession> orphan(session->parent() ? nullptr : session);
    m_name->setText(session->property("name").toString());
    m_autoStart->setChecked(session->property("autostart").toBool());
    m_emulation->setCurrentIndex(m_emulation->findData(session->property("emulation").toString()));
    m_transport->setCurrentIndex(m_transport->findData(session->property("transport").toString()));
    showTransportSettings(m_transport->currentIndex());

    // The other transports' pages show their defaults, ready for a change of transport.
    resetTransportFields();
    const QString transport = currentTransport();
    if (transport == sshKey) {
        m_sshHost->setText(session->property("address").toString());
        m_sshPort->setText(session->property("port").toString());
    } else if (transport == tcpIpKey) {
        m_tcpLocalPort->setText(session->property("local_port").toString());
        m_tcpHost->setText(session->property("address").toString());
        m_tcpPort->setText(session->property("port").toString());
    }
}

ConnectionSession& ParlixEditor::createNewSession()
{
    return connectionModel().connections(parlixType)->session(QString());
}

bool ParlixEditor::checkMandatoryFields()
{
    const QString transport = currentTransport();
    if (transport == sshKey)
        return SessionEditorParts::checkFilled(this, m_sshHost, tr("Remote host"));
    if (transport == tcpIpKey)
        return SessionEditorParts::checkFilled(this, m_tcpHost, tr("Remote host"));
    return true;
}

void ParlixEditor::saveSession(ConnectionSession& session)
{
    session.setProperty("name", m_name->text().simplified());
    session.setProperty("region", QStringLiteral("WW"));
    session.setProperty("autostart", ConfigFile::boolText(m_autoStart->isChecked()));
    // A key that is not in the tables selects nothing; the stored one is then kept.
    if (m_emulation->currentIndex() >= 0)
        session.setProperty("emulation", m_emulation->currentData());
    if (m_transport->currentIndex() >= 0)
        session.setProperty("transport", m_transport->currentData());

    const QString transport = currentTransport();
    if (transport == sshKey) {
        session.setProperty("address", m_sshHost->text());
        session.setProperty("port", m_sshPort->text());
    } else if (transport == tcpIpKey) {
        session.setProperty("address", m_tcpHost->text());
        session.setProperty("port", m_tcpPort->text());
        session.setProperty("local_port", m_tcpLocalPort->text());
    }
}
