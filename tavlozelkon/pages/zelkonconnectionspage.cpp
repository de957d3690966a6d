#include "zelkonconnectionspage.h"

#include "connections/editing/connectionsframe.h"

#include "accordion.h"
#include "accordionitem.h"
#include "platform.h"

#include <QVBoxLayout>

ZelkonConnectionsPage::ZelkonConnectionsPage(QWidget* parent)
    : ConfigPage(parent)
{
    setup();
}

ZelkonConnectionsPage::~ZelkonConnectionsPage() = default;

void ZelkonConnectionsPage::setup()
{
    createAccordion();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(accordion());
    setFrame(new ConnectionsFrame(this));
    retranslateUi();
}

AccordionItem* ZelkonConnectionsPage::setFrame(ConfigFrame* frame)
{
    AccordionItem* added = addFrame(frame);
    accordion()->selectItem(added);
    return added;
}

QString ZelkonConnectionsPage::title() const
{
    return pageTitle();
}

QString ZelkonConnectionsPage::pageTitle()
{
    return tr("Connections");
}

QString ZelkonConnectionsPage::description() const
{
    return QString();
}

QString ZelkonConnectionsPage::baseHelpText() const
{
    return tr("<b>Connections</b><br><p>This section enables you to create host connections for a variety of "
              "protocols.</p>")
        + platformHelpText();
}

QString ZelkonConnectionsPage::platformHelpText() const
{
    if (Platform::isStandalone())
        return tr("<p>The connections created can be launched using the following methods:</p><p>On Lunvex the "
                  "connections will be available in the Control Center.</p><p>On WES and CE the connections will be "
                  "available from the respective connection management tools.</p>");
    if (Platform::isLunvex())
        return tr("<p>The connections will be available in the Lunvex's Control Center.</p>");
    if (Platform::isWes() || Platform::isCe())
        return tr("<p>The connections will be available from the Connection Administrator.</p>");
    return QString();
}

void ZelkonConnectionsPage::retranslateUi() { }
