#include "zelkonregionalpage.h"

#include "regional/keyboardframe.h"
#include "regional/localeframe.h"
#include "regional/timezoneframe.h"

ZelkonRegionalPage::ZelkonRegionalPage(QWidget* parent)
    : ConfigPage(parent)
{
    setup();
}

ZelkonRegionalPage::~ZelkonRegionalPage() = default;

void ZelkonRegionalPage::setup()
{
    setupAccordion([this] { createItems(); });
}

void ZelkonRegionalPage::createItems()
{
    addFrame(new TimeZoneFrame(this));
    addFrame(new KeyboardFrame(this));
    addFrame(new LocaleFrame(this));
}

QString ZelkonRegionalPage::title() const
{
    return pageTitle();
}

QString ZelkonRegionalPage::pageTitle()
{
    return tr("Regional");
}

QString ZelkonRegionalPage::description() const
{
    return tr("Regional");
}

QString ZelkonRegionalPage::baseHelpText() const
{
    return tr("<b>Regional</b> <br>These options enable you to configure the following features of your Thin "
              "Clients:<p>1. The Time Zone.</p><p>2. The Keyboard layout.</p><p>3. The Locale.</p>");
}

void ZelkonRegionalPage::retranslateUi() { }
