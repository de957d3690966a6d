#include "remoteassistanceframe.h"

#include "platform.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

RemoteAssistanceFrame::RemoteAssistanceFrame(QWidget* parent)
    : ManagementFrame(QStringLiteral("remote_assistance"), false, parent)
{
    setup();
}

RemoteAssistanceFrame::~RemoteAssistanceFrame() = default;

void RemoteAssistanceFrame::setup()
{
    m_password = new QLineEdit(this);
    m_password->setObjectName(QStringLiteral("PasswordEdit"));
    m_password->setEchoMode(QLineEdit::Password);
    m_passwordLabel = new QLabel(this);
    m_passwordLabel->setBuddy(m_password);

    // The label's span reaches into the edit's columns; that is how the row has always
    // been laid out.
    grid()->addWidget(m_passwordLabel, 1, 0, 1, 3);
    grid()->addWidget(m_password, 1, 1, 1, 3);

    addTextValue(QStringLiteral("password"), m_password);
    // After the base's setDirty(), so the change is recorded before the focus moves.
    connect(enableCheck(), &QCheckBox::stateChanged, this, &RemoteAssistanceFrame::enforcePassword);
    retranslateUi();
}

void RemoteAssistanceFrame::enforcePassword()
{
    m_password->setFocus(Qt::OtherFocusReason);
}

QString RemoteAssistanceFrame::title() const
{
    return tr("Remote Assistance");
}

QString RemoteAssistanceFrame::helpText() const
{
    QString text = tr("<b>Remote Assistance</b><br>This enables or disables your Thin Client's VNC application.");
    if (Platform::isCe())
        text += tr("<p>On CE you must supply a password when enabling VNC.</p>");
    return text;
}

QIcon RemoteAssistanceFrame::icon() const
{
    return QIcon(QStringLiteral(":/images/remote.svg"));
}

void RemoteAssistanceFrame::retranslateUi()
{
    ManagementFrame::retranslateUi();
    m_passwordLabel->setText(tr("Password:"));
    // The label shares its columns with the edit; the first column must still hold its text.
    grid()->setColumnMinimumWidth(0, m_passwordLabel->sizeHint().width());
}
