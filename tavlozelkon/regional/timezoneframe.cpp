#include "timezoneframe.h"

#include "timezonetables.h"

#include "config/configfile.h"

#include "platform.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>

namespace {
const char DefaultArea[] = "Europe";
const char DefaultCity[] = "London";
// CE and WES spell it alike.
const char DefaultGmtZone[] = "(GMT) Greenwich Mean Time : Dublin, Edinburgh, Lisbon, London";
const char DefaultWes7Zone[] = "(UTC) Dublin, Edinburgh, Lisbon, London";

// Chooses the entry showing previous, or else the one showing fallback.
void chooseText(QComboBox* combo, const QString& previous, const QString& fallback)
{
    int index = combo->findText(previous);
    if (index < 0)
        index = combo->findText(fallback);
    combo->setCurrentIndex(index);
}
} // namespace

TimeZoneFrame::TimeZoneFrame(QWidget* parent)
    : ConfigFrame(parent)
    , m_areaLabel(new QLabel(this))
    , m_areaCombo(new QComboBox(this))
    , m_cityLabel(new QLabel(this))
    , m_cityCombo(new QComboBox(this))
    , m_zoneCombo(new QComboBox(this))
{
    m_areaCombo->setObjectName(QStringLiteral("TimeZoneAreaCombo"));
    m_cityCombo->setObjectName(QStringLiteral("TimeZoneCityCombo"));
    m_zoneCombo->setObjectName(QStringLiteral("TimeZoneCombo"));
    for (QComboBox* combo : { m_areaCombo, m_cityCombo, m_zoneCombo }) {
        combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        // Long lists: show a screenful at a time rather than the whole table.
        combo->setMaxVisibleItems(20);
    }
    // Windows display names run to 90 characters: the list takes the width there is and
    // its popup shows them in full.
    m_zoneCombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_zoneCombo->setMinimumContentsLength(24);
    m_zoneCombo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_areaLabel->setBuddy(m_areaCombo);
    m_cityLabel->setBuddy(m_cityCombo);

    auto* layout = new QFormLayout(this);
    layout->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    layout->addRow(m_areaLabel, m_areaCombo);
    layout->addRow(m_cityLabel, m_cityCombo);
    // The frame's title names the one Windows list; without a label it has the width
    // its long display names need.
    layout->addRow(m_zoneCombo);

    connect(m_areaCombo, qOverload<int>(&QComboBox::currentIndexChanged), this, &TimeZoneFrame::changeArea);
    connect(m_cityCombo, qOverload<int>(&QComboBox::currentIndexChanged), this, &ConfigFrame::setDirty);
    connect(m_zoneCombo, qOverload<int>(&QComboBox::currentIndexChanged), this, &ConfigFrame::setDirty);
    // A narrow window cuts the longest names short; the tip shows them whole.
    connect(m_zoneCombo, &QComboBox::currentTextChanged, m_zoneCombo, &QWidget::setToolTip);
    connect(Platform::instance(), &Platform::platformChange, this, &TimeZoneFrame::updatePlatformOptions);

    updatePlatformOptions();
    retranslateUi();
}

TimeZoneFrame::~TimeZoneFrame() = default;

QString TimeZoneFrame::title() const
{
    return tr("Time Zone");
}

QIcon TimeZoneFrame::icon() const
{
    return QIcon(QStringLiteral(":/images/regional/timezone.svg"));
}

QString TimeZoneFrame::helpText() const
{
    return tr("<b>Time Zone</b> <br> This sets the Time Zone used by the Thin Client.");
}

void TimeZoneFrame::retranslateUi()
{
    m_areaLabel->setText(tr("&Area:"));
    m_cityLabel->setText(tr("&City:"));
    m_zoneCombo->setAccessibleName(tr("Time zone"));
}

void TimeZoneFrame::updatePlatformOptions()
{
    const bool lunvex = Platform::isLunvex();
    for (QWidget* widget : QList<QWidget*> { m_areaLabel, m_areaCombo, m_cityLabel, m_cityCombo })
        widget->setVisible(lunvex);
    m_zoneCombo->setVisible(!lunvex);

    if (lunvex)
        fillLinuxLists();
    else
        fillWindowsList();
}

void TimeZoneFrame::fillLinuxLists()
{
    const QSignalBlocker areaBlocker(m_areaCombo);
    const QSignalBlocker cityBlocker(m_cityCombo);
    const QString previousArea = m_areaCombo->currentText();
    const QString previousCity = m_cityCombo->currentText();

    m_areaCombo->clear();
    QStringList areas;
    for (int row = 0; row < TimeZonesCount; ++row) {
        const QString area = QString::fromUtf8(TimeZones[row].area);
        if (!areas.contains(area))
            areas.append(area);
    }
    m_areaCombo->addItems(areas);
    chooseText(m_areaCombo, previousArea, QLatin1String(DefaultArea));
    fillCities();
    const bool sameArea = m_areaCombo->currentText() == previousArea;
    chooseText(m_cityCombo, sameArea ? previousCity : QString(), QLatin1String(DefaultCity));
}

void TimeZoneFrame::changeArea(int index)
{
    Q_UNUSED(index)
    fillCities();
    setDirty();
}

// The first city of the area is chosen, as a combo box does when it is filled.
void TimeZoneFrame::fillCities()
{
    const QString area = m_areaCombo->currentText();
    QStringList cities;
    for (int row = 0; row < TimeZonesCount; ++row) {
        if (area == QLatin1String(TimeZones[row].area))
            cities.append(QString::fromUtf8(TimeZones[row].city));
    }
    m_cityCombo->clear();
    m_cityCombo->addItems(cities);
}

void TimeZoneFrame::fillWindowsList()
{
    const QSignalBlocker blocker(m_zoneCombo);
    const QString previous = m_zoneCombo->currentText();
    m_zoneCombo->clear();
    QStringList names;
    QString fallback;
    if (Platform::isCe()) {
        for (int row = 0; row < WinCeTimeZonesCount; ++row)
            names.append(QString::fromUtf8(WinCeTimeZones[row]));
        fallback = QLatin1String(DefaultGmtZone);
    } else if (Platform::isWes7()) {
        for (int row = 0; row < WinWes7TimeZonesCount; ++row)
            names.append(QString::fromUtf8(WinWes7TimeZones[row].displayName));
        fallback = QLatin1String(DefaultWes7Zone);
    } else if (Platform::isWes()) {
        for (int row = 0; row < WinWesTimeZonesCount; ++row)
            names.append(QString::fromUtf8(WinWesTimeZones[row]));
        fallback = QLatin1String(DefaultGmtZone);
    }
    m_zoneCombo->addItems(names);
    chooseText(m_zoneCombo, previous, fallback);
    m_zoneCombo->setToolTip(m_zoneCombo->currentText());
}

QString TimeZoneFrame::WES7TimeZoneMapping(const QString& text, bool toId) const
{
    if (!Platform::isWes7())
        return text;
    for (int row = 0; row < WinWes7TimeZonesCount; ++row) {
        const Wes7ZoneRow& zone = WinWes7TimeZones[row];
        if (text == QLatin1String(toId ? zone.displayName : zone.zoneId))
            return QString::fromUtf8(toId ? zone.zoneId : zone.displayName);
    }
    return text;
}

void TimeZoneFrame::loadConfig(ConfigFile* config)
{
    if (!enterSectionForLoad(config, QStringLiteral("time_zone")))
        return;
    if (Platform::isLunvex()) {
        // Choosing the area lists its cities.
        m_areaCombo->setCurrentIndex(m_areaCombo->findText(config->value(QStringLiteral("area"))));
        m_cityCombo->setCurrentIndex(m_cityCombo->findText(config->value(QStringLiteral("city"))));
    } else {
        const QString name = WES7TimeZoneMapping(config->value(QStringLiteral("timezone")), false);
        m_zoneCombo->setCurrentIndex(m_zoneCombo->findText(name));
    }
}

void TimeZoneFrame::saveConfig(ConfigFile* config)
{
    if (!enterSectionForSave(config, QStringLiteral("time_zone")))
        return;
    if (Platform::isLunvex()) {
        config->setValue(QStringLiteral("area"), m_areaCombo->currentText());
        config->setValue(QStringLiteral("city"), m_cityCombo->currentText());
    } else {
        config->setValue(QStringLiteral("timezone"), WES7TimeZoneMapping(m_zoneCombo->currentText(), true));
    }
    leaveSection(config);
}
