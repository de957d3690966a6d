#include "webbrowsereditor.h"

#include "config/configfile.h"
#include "connections/model/connectionkindred.h"
#include "connections/model/connectionmodel.h"
#include "connections/model/connectionsession.h"
#include "proxyfields.h"
#include "sessioneditorparts.h"
#include "validator.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <memory>

namespace {
const QString browserType = QStringLiteral("browser");
const QString generalSettings = QStringLiteral("general_settings");
} // namespace

WebBrowserEditor::WebBrowserEditor(ConnectionModel& model, QWidget* parent)
    : ConnectionSessionEditor(model, parent)
    , m_header(new QLabel(this))
    , m_nameLabel(new QLabel(this))
    , m_name(new QLineEdit(this))
    , m_urlLabel(new QLabel(this))
    , m_url(new QLineEdit(this))
    , m_autoStart(new QCheckBox(this))
    , m_proxyGroup(new QGroupBox(this))
    , m_proxy(new ProxyFields(m_proxyGroup))
{
    m_header->setObjectName(QStringLiteral("HeaderLabel"));
    m_name->setObjectName(QStringLiteral("NameEdit"));
    m_url->setObjectName(QStringLiteral("UrlEdit"));
    m_autoStart->setObjectName(QStringLiteral("AutoStartCheckBox"));
    m_proxyGroup->setObjectName(QStringLiteral("ProxyGroup"));
    m_name->setValidator(Validator::connectionName(m_name));
    m_nameLabel->setBuddy(m_name);
    m_urlLabel->setBuddy(m_url);

    auto* groupLayout = new QVBoxLayout(m_proxyGroup);
    groupLayout->addWidget(m_proxy);

    auto* grid = new QGridLayout(this);
    grid->addLayout(SessionEditorParts::headerRow(browserType, m_header), 0, 0, 1, 2);
    grid->addWidget(m_nameLabel, 1, 0);
    grid->addWidget(m_name, 1, 1);
    grid->addWidget(m_urlLabel, 2, 0);
    grid->addWidget(m_url, 2, 1);
    grid->addWidget(m_autoStart, 3, 0, 1, 2);
    grid->addWidget(m_proxyGroup, 4, 0, 1, 2);
    grid->setRowStretch(5, 10);
    grid->addLayout(saveCancelButtonsLayout(), 6, 0, 1, 2);

    connect(m_proxy->enableBox(), &QCheckBox::stateChanged, this, &WebBrowserEditor::enableProxySettings);
    enableProxySettings(m_proxy->enableBox()->checkState());
    retranslateUi();
}

WebBrowserEditor::~WebBrowserEditor() = default;

void WebBrowserEditor::enableProxySettings(int state)
{
    m_proxy->setFieldsEnabled(state != Qt::Unchecked);
}

void WebBrowserEditor::retranslateUi()
{
    ConnectionSessionEditor::retranslateUi();
    m_nameLabel->setText(tr("Name"));
    m_urlLabel->setText(tr("URL"));
    m_autoStart->setText(tr("Auto start connection"));
    m_header->setText(tr("Web Browser connection"));
    m_proxyGroup->setTitle(tr("General proxy settings"));
    m_proxy->retranslateUi(tr("Enable proxy"));
}

void WebBrowserEditor::showSharedProxy()
{
    m_proxy->load(connectionModel().connections(browserType)->findAtom(generalSettings));
}

void WebBrowserEditor::resetGui()
{
    m_name->setText(tr("New connection"));
    m_url->clear();
    m_url->setStyleSheet(QString());
    m_autoStart->setChecked(false);
    // The shared proxy is shown as stored: after a new document was loaded, fields left
    // from the previous one would overwrite its proxy on the first save.
    showSharedProxy();
}

void WebBrowserEditor::updateGui()
{
    ConnectionSession* session = connectionModel().session(connectionSessionId());
    // An id the model does not hold comes back as a new session that nobody else owns.
    const std::unique_ptr<ConnectionSession> orphan(session->parent() ? nullptr : session);
    m_name->setText(session->property("name").toString());
    m_url->setText(session->property("url").toString());
    m_url->setStyleSheet(QString());
    m_autoStart->setChecked(session->property("autostart").toBool());
    showSharedProxy();
}

ConnectionSession& WebBrowserEditor::createNewSession()
{
    return connectionModel().connections(browserType)->session(QString());
}

bool WebBrowserEditor::checkMandatoryFields()
{
    return SessionEditorParts::checkFilled(this, m_url, tr("URL"));
}

void WebBrowserEditor::saveSession(ConnectionSession& session)
{
    session.setProperty("name", m_name->text().simplified());
    session.setProperty("url", m_url->text());
    session.setProperty("autostart", ConfigFile::boolText(m_autoStart->isChecked()));
    m_proxy->save(*connectionModel().connections(browserType)->atom(generalSettings));
}
