#include "defaulteditor.h"

#include "sessioneditorparts.h"
#include "validator.h"

#include "config/configfile.h"
#include "connections/model/connectionkindred.h"
#include "connections/model/connectionmodel.h"
#include "connections/model/connectionsession.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>

namespace {
const int IconSize = 32;
} // namespace

DefaultEditor::DefaultEditor(const QString& type, ConnectionModel& model, QWidget* parent)
    : ConnectionSessionEditor(model, parent)
    , m_type(type)
    , m_iconLabel(new QLabel(this))
    , m_headerLabel(new QLabel(this))
    , m_nameLabel(new QLabel(this))
    , m_nameEdit(new QLineEdit(this))
    , m_serverLabel(new QLabel(this))
    , m_serverEdit(new QLineEdit(this))
    , m_autostart(new QCheckBox(this))
{
    m_iconLabel->setObjectName(QStringLiteral("IconLabel"));
    m_headerLabel->setObjectName(QStringLiteral("HeaderLabel"));
    m_nameEdit->setObjectName(QStringLiteral("NameEdit"));
    m_serverLabel->setObjectName(QStringLiteral("ServerLabel"));
    m_serverEdit->setObjectName(QStringLiteral("ServerEdit"));
    m_autostart->setObjectName(QStringLiteral("AutostartCheck"));

    m_iconLabel->setPixmap(ConnectionModel::sGetConnectionTypeIcon(type, IconSize).pixmap(IconSize, IconSize));
    m_iconLabel->setFixedSize(IconSize, IconSize);
    QFont headerFont = m_headerLabel->font();
    headerFont.setBold(true);
    m_headerLabel->setFont(headerFont);
    m_nameEdit->setValidator(Validator::connectionName(m_nameEdit));
    m_nameLabel->setBuddy(m_nameEdit);
    m_serverLabel->setBuddy(m_serverEdit);

    auto* header = new QHBoxLayout;
    header->addWidget(m_iconLabel);
    header->addWidget(m_headerLabel, 10, Qt::AlignLeft);

    auto* layout = new QGridLayout(this);
    layout->addLayout(header, 0, 0, 1, 2);
    layout->addWidget(m_nameLabel, 1, 0);
    layout->addWidget(m_nameEdit, 1, 1);
    layout->addWidget(m_serverLabel, 2, 0);
    layout->addWidget(m_serverEdit, 2, 1);
    layout->addWidget(m_autostart, 3, 0, 1, 2);
    layout->setRowStretch(4, 10);
    layout->addLayout(saveCancelButtonsLayout(), 5, 0, 1, 2);

    retranslateUi();
}

DefaultEditor::~DefaultEditor() = default;

void DefaultEditor::setHeaderString(const QString& header)
{
    m_header = header;
}

QString DefaultEditor::headerString() const
{
    return m_header.isNull() ? tr("Default Connection Editor") : m_header;
}

void DefaultEditor::setServerString(const QString& label)
{
    m_serverLabelText = label;
}

QString DefaultEditor::serverString() const
{
    return m_serverLabelText.isNull() ? tr("Server") : m_serverLabelText;
}

void DefaultEditor::setServerToolTip(const QString& toolTip)
{
    m_serverLabel->setToolTip(toolTip);
    m_serverEdit->setToolTip(toolTip);
}

void DefaultEditor::retranslateUi()
{
    ConnectionSessionEditor::retranslateUi();
    m_headerLabel->setText(headerString());
    m_nameLabel->setText(tr("Name"));
    m_serverLabel->setText(serverString());
    m_autostart->setText(tr("Auto start connection"));
}

void DefaultEditor::resetGui()
{
    m_nameEdit->setText(tr("New connection"));
    m_serverEdit->setText(QString());
    m_serverEdit->setStyleSheet(QString());
    m_autostart->setChecked(false);
}

void DefaultEditor::updateGui()
{
    const ConnectionSession* session = connectionModel().session(connectionSessionId());
    m_nameEdit->setText(session->property("name").toString());
    m_serverEdit->setText(session->property("address").toString());
    m_serverEdit->setStyleSheet(QString());
    m_autostart->setChecked(session->property("autostart").toBool());
    // A session the model does not hold was made for this question alone.
    if (!session->parent())
        delete session;
}

ConnectionSession& DefaultEditor::createNewSession()
{
    return connectionModel().connections(m_type)->session(QString());
}

bool DefaultEditor::checkMandatoryFields()
{
    return SessionEditorParts::checkFilled(this, m_serverEdit, serverString());
}

void DefaultEditor::saveSession(ConnectionSession& session)
{
    session.setProperty("name", m_nameEdit->text().simplified());
    session.setProperty("address", m_serverEdit->text());
    session.setProperty("autostart", ConfigFile::boolText(m_autostart->isChecked()));
}
