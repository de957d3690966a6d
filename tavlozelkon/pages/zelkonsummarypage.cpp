#include "zelkonsummarypage.h"

#include "config/configfile.h"

#include "platform.h"
#include "validationbox.h"

#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

ZelkonSummaryPage::ZelkonSummaryPage(ConfigFile* config, QWidget* parent)
    : WizardPage(parent)
    , m_config(config)
{
    // The page's validate button has the document tell its verdict in a box.
    ValidationBox::install();
    setup();
}

ZelkonSummaryPage::~ZelkonSummaryPage() = default;

void ZelkonSummaryPage::setup()
{
    m_titleLabel = new QLabel(this);
    m_titleLabel->setObjectName(QStringLiteral("Title"));
    m_summaryView = new QTextBrowser(this);
    m_summaryView->setObjectName(QStringLiteral("Summary"));
    m_summaryView->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);
    m_summaryView->setReadOnly(true);
    m_applyButton = new QPushButton(this);
    m_applyButton->setObjectName(QStringLiteral("ApplyButton"));
    // Not in the page's layout: the host decides where saving is offered.
    m_saveButton = new QPushButton(this);
    m_saveButton->setObjectName(QStringLiteral("SaveButton"));
    m_saveButton->hide();
    setButtonsEnabled(false);

    auto* layout = new QVBoxLayout(this);
    layout->addStretch();
    layout->addWidget(m_titleLabel);
    layout->addWidget(m_summaryView, 1);
    layout->addWidget(m_applyButton);
    layout->addStretch();

    connect(m_applyButton, &QPushButton::clicked, this, &ZelkonSummaryPage::applyConfig);
    connect(m_saveButton, &QPushButton::clicked, this, &ZelkonSummaryPage::saveConfig);
    retranslateUi();
}

void ZelkonSummaryPage::retranslateUi()
{
    m_titleLabel->setText(tr("Zelkon Summary"));
    m_applyButton->setText(tr("Apply this configuration to this Thin Client."));
    m_saveButton->setText(tr("Save Configuration"));
}

QString ZelkonSummaryPage::title() const
{
    return tr("Summary");
}

QString ZelkonSummaryPage::description() const
{
    return tr("Summary");
}

QString ZelkonSummaryPage::helpText() const
{
    QString text = tr("<b>Summary</b> <br>This page summarizes any customizations you have made to the configuration.");
    if (!Platform::isStandalone())
        text += tr("<p>Clicking 'Apply this configuration to this Thin Client' will apply the customizations to this "
                   "Thin Client.</p>");
    text += tr("<p>Clicking 'Save Configuration' will save the configuration in a file.</p>");
    return text;
}

void ZelkonSummaryPage::setupToShow()
{
    updateSummary();
}

void ZelkonSummaryPage::updateSummary()
{
    emit generateConfig();
    const QString html = m_config->toFormattedString();
    m_summaryView->setHtml(html);
    setButtonsEnabled(!html.trimmed().isEmpty());
}

void ZelkonSummaryPage::validateConfig()
{
    setButtonsEnabled(false);
    m_config->validate();
    setButtonsEnabled(true);
}

void ZelkonSummaryPage::setButtonsEnabled(bool enabled)
{
    m_applyButton->setEnabled(enabled);
    m_saveButton->setEnabled(enabled);
}
