#include "altirisframe.h"

#include "hostaddressedit.h"

#include <QLabel>

AltirisFrame::AltirisFrame(QWidget* parent)
    : ManagementFrame(QStringLiteral("altiris"), true, parent)
{
    setup();
}

AltirisFrame::~AltirisFrame() = default;

void AltirisFrame::setup()
{
    // The frame has always shown only its check box. The address row still belongs to
    // the frame, so it dies with it, but it stays out of the layout and out of sight.
    m_serverLabel = new QLabel(this);
    m_serverAddress = new HostAddressEdit(this);
    m_serverAddress->setObjectName(QStringLiteral("ServerAddressEdit"));
    m_serverLabel->hide();
    m_serverAddress->hide();
    addTextValue(QStringLiteral("server_address"), m_serverAddress);
    retranslateUi();
}

QString AltirisFrame::title() const
{
    // The tabs are part of the title as it has always been shown.
    return tr("\t\tAltiris");
}

QString AltirisFrame::helpText() const
{
    return tr("<b>Altiris</b> <br> This enables or disables the Altiris management agent and enables you to "
              "specify the server to connect to.");
}

QIcon AltirisFrame::icon() const
{
    return QIcon(QStringLiteral(":/images/altiris_32.png"));
}

void AltirisFrame::retranslateUi()
{
    ManagementFrame::retranslateUi();
    m_serverLabel->setText(tr("Server Address:"));
}
