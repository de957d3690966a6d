#include "zelkonmanagementpage.h"

#include "device/machineroot.h"
#include "management/autoupdateframe.h"
#include "management/corrandframe.h"
#include "management/pellamframe.h"
#include "management/remoteassistanceframe.h"

#include "accordionitem.h"
#include "platform.h"

ZelkonManagementPage::ZelkonManagementPage(QWidget* parent)
    : ConfigPage(parent)
{
    setup();
    connect(Platform::instance(), &Platform::platformChange, this, &ZelkonManagementPage::updatePlatformOptions);
}

ZelkonManagementPage::~ZelkonManagementPage() = default;

void ZelkonManagementPage::setup()
{
    setupAccordion([this] { createItems(); });
    updatePlatformOptions();
}

void ZelkonManagementPage::createItems()
{
    addToolFrame(Tool::Corrand, new CorrandFrame(this));
    addToolFrame(Tool::Pellam, new PellamFrame(this));
    addToolFrame(Tool::AutoUpdate, new AutoUpdateFrame(this));
    addToolFrame(Tool::RemoteAssistance, new RemoteAssistanceFrame(this));
}

AccordionItem* ZelkonManagementPage::addToolFrame(Tool tool, ConfigFrame* frame)
{
    AccordionItem* added = addFrame(frame);
    m_items.insert(tool, added);
    return added;
}

void ZelkonManagementPage::setToolVisible(Tool tool, bool visible)
{
    if (AccordionItem* toolItem = m_items.value(tool))
        toolItem->setVisible(visible);
}

QString ZelkonManagementPage::packageList(Tool tool)
{
    switch (tool) {
    case Tool::Corrand:
        return QStringLiteral("/var/lib/dpkg/info/tavlotc-agent-mgr.list");
    case Tool::Pellam:
        return QStringLiteral("/var/lib/dpkg/info/pellamnode.list");
    case Tool::AutoUpdate:
        return QStringLiteral("/var/lib/dpkg/info/tavlotc-auto-update.list");
    case Tool::RemoteAssistance:
        return QStringLiteral("/var/lib/dpkg/info/x11vnc.list");
    }
    return QString();
}

void ZelkonManagementPage::updatePlatformOptions()
{
    const bool ceOrLunvex = Platform::isCe() || Platform::isLunvex();
    setToolVisible(Tool::AutoUpdate, ceOrLunvex);
    setToolVisible(Tool::RemoteAssistance, ceOrLunvex);
    setToolVisible(Tool::Pellam, !Platform::isWes() && !Platform::isWes7() && !Platform::isLunvex());

    // An agent can only be configured where its package is installed, whatever the
    // platform says, so the package lists have the last word.
    for (Tool tool : { Tool::Corrand, Tool::Pellam, Tool::AutoUpdate, Tool::RemoteAssistance })
        setToolVisible(tool, MachineRoot::exists(packageList(tool)));
}

QString ZelkonManagementPage::title() const
{
    return pageTitle();
}

QString ZelkonManagementPage::pageTitle()
{
    return tr("Management");
}

QString ZelkonManagementPage::description() const
{
    return tr("Enables or disables the remote management tools available for Tavlo Thin Clients.");
}

QString ZelkonManagementPage::baseHelpText() const
{
    return tr("<b>Management</b> <br> These options enable you to control the remote management options available "
              "for your Thin Client.<p/>");
}

void ZelkonManagementPage::retranslateUi() { }
