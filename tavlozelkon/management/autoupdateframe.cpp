#include "autoupdateframe.h"

#include "platform.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

AutoUpdateFrame::AutoUpdateFrame(QWidget* parent)
    : ManagementFrame(QStringLiteral("auto_update"), false, parent)
{
    setup();
}

AutoUpdateFrame::~AutoUpdateFrame() = default;

void AutoUpdateFrame::setup()
{
    m_serverLabel = new QLabel(this);
    m_server = new QLineEdit(this);
    m_server->setObjectName(QStringLiteral("ServerEdit"));
    m_pathLabel = new QLabel(this);
    m_path = new QLineEdit(this);
    m_path->setObjectName(QStringLiteral("PathEdit"));
    m_serverLabel->setBuddy(m_server);
    m_pathLabel->setBuddy(m_path);

    grid()->addWidget(m_serverLabel, 1, 0, 1, 1);
    grid()->addWidget(m_server, 1, 1, 1, 3);
    grid()->addWidget(m_pathLabel, 2, 0, 1, 1);
    grid()->addWidget(m_path, 2, 1, 1, 3);

    addTextValue(QStringLiteral("server_address"), m_server);
    addTextValue(QStringLiteral("path"), m_path, &Platform::isCe);

    connect(Platform::instance(), &Platform::platformChange, this, &AutoUpdateFrame::updatePlatformOptions);
    updatePlatformOptions();
    retranslateUi();
}

void AutoUpdateFrame::updatePlatformOptions()
{
    const bool ce = Platform::isCe();
    m_pathLabel->setVisible(ce);
    m_path->setVisible(ce);
}

QString AutoUpdateFrame::title() const
{
    return tr("Automatic Updates");
}

QString AutoUpdateFrame::helpText() const
{
    if (Platform::isCe())
        return tr("<b>Automatic Updates</b> <br> This enables and configures automatic updates using System Update for "
                  "CE Thin Clients.");
    if (Platform::isLunvex())
        return tr("<b>Automatic Updates</b> <br> This enables and configures automatic updates using Tavlo Automatic "
                  "Update for Lunvex.");
    return tr("<b>Automatic Updates</b> <br> This enables and configures automatic updates using the following "
              "systems:<p>1. Tavlo Automatic Update for Lunvex Thin Clients.</p><p>2. System Update for CE Thin "
              "Clients.</p>");
}

QIcon AutoUpdateFrame::icon() const
{
    return QIcon(QStringLiteral(":/images/auto_update.svg"));
}

void AutoUpdateFrame::retranslateUi()
{
    ManagementFrame::retranslateUi();
    m_serverLabel->setText(tr("File Server URL:"));
    m_pathLabel->setText(tr("Path:"));
}
