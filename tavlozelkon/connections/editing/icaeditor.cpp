#include "icaeditor.h"

#include "config/configfile.h"
#include "connections/model/connectionkindred.h"
#include "connections/model/connectionmodel.h"
#include "connections/model/connectionsession.h"
#include "proxyfields.h"
#include "sessioneditorparts.h"
#include "validator.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <memory>

namespace {
const QString icaType = QStringLiteral("ica");
const QString proxyAtom = QStringLiteral("proxy");
} // namespace

IcaEditor::IcaEditor(ConnectionModel& model, QWidget* parent)
    : ConnectionSessionEditor(model, parent)
    , m_header(new QLabel(this))
    , m_nameLabel(new QLabel(this))
    , m_name(new QLineEdit(this))
    , m_serverLabel(new QLabel(this))
    , m_server(new QLineEdit(this))
    , m_autoStart(new QCheckBox(this))
    , m_proxy(new ProxyFields(this))
{
    m_header->setObjectName(QStringLiteral("HeaderLabel"));
    m_name->setObjectName(QStringLiteral("NameEdit"));
    m_server->setObjectName(QStringLiteral("ServerEdit"));
    m_autoStart->setObjectName(QStringLiteral("AutoStartCheckBox"));
    m_name->setValidator(Validator::connectionName(m_name));
    m_nameLabel->setBuddy(m_name);
    m_serverLabel->setBuddy(m_server);

    auto* grid = new QGridLayout(this);
    grid->addLayout(SessionEditorParts::headerRow(icaType, m_header), 0, 0, 1, 2);
    grid->addWidget(m_nameLabel, 1, 0);
    grid->addWidget(m_name, 1, 1);
    grid->addWidget(m_serverLabel, 2, 0);
    grid->addWidget(m_server, 2, 1);
    grid->addWidget(m_autoStart, 3, 0, 1, 2);
    grid->addWidget(m_proxy, 4, 0, 1, 2);
    grid->setRowStretch(5, 10);
    grid->addLayout(saveCancelButtonsLayout(), 6, 0, 1, 2);

    connect(m_proxy->enableBox(), &QCheckBox::stateChanged, this, &IcaEditor::enableProxySettings);
    enableProxySettings(m_proxy->enableBox()->checkState());
    retranslateUi();
}

IcaEditor::~IcaEditor() = default;

void IcaEditor::enableProxySettings(int state)
{
    m_proxy->setFieldsEnabled(state != Qt::Unchecked);
}

void IcaEditor::retranslateUi()
{
    ConnectionSessionEditor::retranslateUi();
    m_header->setText(tr("ICA connection"));
    m_nameLabel->setText(tr("Name"));
    m_serverLabel->setText(tr("Server"));
    m_autoStart->setText(tr("Auto start connection"));
    m_proxy->retranslateUi(tr("Enable HTTPS proxy"));
}

void IcaEditor::resetGui()
{
    m_name->setText(tr("New connection"));
    m_server->clear();
    m_server->setStyleSheet(QString());
    m_autoStart->setChecked(false);
    m_proxy->clear();
}

void IcaEditor::updateGui()
{
    ConnectionSession* session = connectionModel().session(connectionSessionId());
    // An id the model does not hold comes back as a new session that nobody else owns.
    const std::unique_ptr<ConnectionSession> orphan(session->parent() ? nullptr : session);
    m_name->setText(session->property("name").toString());
    m_server->setText(session->property("address").toString());
    m_server->setStyleSheet(QString());
    m_autoStart->setChecked(session->property("autostart").toBool());
    m_proxy->load(session->findAtom(proxyAtom));
}

ConnectionSession& IcaEditor::createNewSession()
{
    return connectionModel().connections(icaType)->session(QString());
}

bool IcaEditor::checkMandatoryFields()
{
    return SessionEditorParts::checkFilled(this, m_server, tr("Server"));
}

void IcaEditor::saveSession(ConnectionSession& session)
{
    session.setProperty("name", m_name->text().simplified());
    session.setProperty("address", m_server->text());
    session.setProperty("autostart", ConfigFile::boolText(m_autoStart->isChecked()));
    m_proxy->save(*session.atom(proxyAtom));
}
