#include "zelkontitlepage.h"

#include "platform.h"

#include <QComboBox>
#include <QLabel>
#include <QVBoxLayout>

ZelkonTitlePage::ZelkonTitlePage(QWidget* parent)
    : WizardPage(parent)
{
    setup();
}

ZelkonTitlePage::~ZelkonTitlePage() = default;

void ZelkonTitlePage::setup()
{
    m_titleLabel = new QLabel(this);
    m_titleLabel->setObjectName(QStringLiteral("Title"));
    m_bodyLabel = new QLabel(this);
    m_bodyLabel->setObjectName(QStringLiteral("Body"));
    m_bodyLabel->setWordWrap(true);
    m_titleLabel->setAlignment(Qt::AlignCenter);
    m_bodyLabel->setAlignment(Qt::AlignCenter);
    QFont titleFont = m_titleLabel->font();
    titleFont.setPointSizeF(titleFont.pointSizeF() * 2.5);
    titleFont.setBold(true);
    m_titleLabel->setFont(titleFont);
    QFont bodyFont = m_bodyLabel->font();
    bodyFont.setPointSizeF(bodyFont.pointSizeF() * 1.2);
    m_bodyLabel->setFont(bodyFont);

    auto* layout = new QVBoxLayout(this);
    layout->addStretch();
    layout->addWidget(m_titleLabel);
    layout->addStretch();
    layout->addWidget(m_bodyLabel);
    layout->addStretch();
    retranslateUi();
}

void ZelkonTitlePage::setupPlatforms()
{
    // The host places both widgets; until it does they belong to the page.
    m_platformLabel = new QLabel(this);
    m_platformLabel->setObjectName(QStringLiteral("PlatformLabel"));
    m_platformLabel->hide();
    m_platformCombo = new QComboBox(this);
    m_platformCombo->setObjectName(QStringLiteral("PlatformCombo"));
    m_platformCombo->hide();
    m_platformLabel->setBuddy(m_platformCombo);
    m_platformCombo->addItems(Platform::list());
    m_platformCombo->setCurrentIndex(0);
    connect(m_platformCombo, qOverload<int>(&QComboBox::currentIndexChanged), Platform::instance(),
            &Platform::selectionChanged);
}

QString ZelkonTitlePage::title() const
{
    return tr("Zelkon");
}

QString ZelkonTitlePage::description() const
{
    return tr("Zelkon<br>This enables you to configure your Thin Clients and the software installed on them.");
}

QString ZelkonTitlePage::helpText() const
{
    return tr("<b>Zelkon</b><br>This enables you to: <p>1. Configure regional settings.</p><p>2. Configure remote "
              "management solutions.</p><p>3. Configure peripherals.</p><p>4. Configure connections to host "
              "systems.</p>");
}

void ZelkonTitlePage::retranslateUi()
{
    m_titleLabel->setText(title());
    m_bodyLabel->setText(description());
}
