#include "configpage.h"

#include "config/configfile.h"
#include "configframe.h"

#include "accordion.h"
#include "accordionitem.h"

#include <QVBoxLayout>

ConfigPage::ConfigPage(QWidget* parent)
    : WizardPage(parent)
{
}

ConfigPage::~ConfigPage() = default;

void ConfigPage::loadConfig(ConfigFile* config, bool notify)
{
    const QList<AccordionItem*> items = m_accordion->items();
    for (AccordionItem* item : items) {
        auto* frame = qobject_cast<ConfigFrame*>(item->content());
        if (!frame)
            continue;
        config->setCurrentNodeAsRoot();
        if (!notify)
            frame->setNotify(false);
        frame->loadConfig(config);
        frame->setNotify(true);
    }
}

void ConfigPage::saveConfig(ConfigFile* config)
{
    const QList<AccordionItem*> items = m_accordion->items();
    for (AccordionItem* item : items) {
        if (auto* frame = qobject_cast<ConfigFrame*>(item->content()))
            frame->saveConfig(config);
    }
}

QString ConfigPage::helpText() const
{
    QString text = baseHelpText();
    if (AccordionItem* selected = m_accordion ? m_accordion->selectedItem() : nullptr)
        text += QLatin1String("<br>") + selected->helpText();
    return text;
}

int ConfigPage::numFrames() const
{
    return m_accordion ? m_accordion->items().size() : 0;
}

void ConfigPage::onHelpChanged()
{
    emit helpChanged(helpText());
}

void ConfigPage::createAccordion()
{
    m_accordion = new Accordion(this);
    m_accordion->setObjectName(QStringLiteral("Accordion"));
    connect(m_accordion, &Accordion::helpChanged, this, &ConfigPage::onHelpChanged);
}

void ConfigPage::setupAccordion(const std::function<void()>& createItems)
{
    createAccordion();
    auto* layout = new QVBoxLayout(this);
    layout->addStretch();
    layout->addWidget(m_accordion);
    createItems();
    layout->addStretch();
    retranslateUi();
}

AccordionItem* ConfigPage::addFrame(ConfigFrame* frame)
{
    connect(frame, &ConfigFrame::dirty, this, &WizardPage::modified);
    auto* item = new AccordionItem(frame, nullptr);
    m_accordion->addItem(item);
    return item;
}
