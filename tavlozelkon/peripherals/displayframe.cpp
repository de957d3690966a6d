#include "displayframe.h"

#include "displaypreferences.h"
#include "xrandrscreenmode.h"

#include "config/configfile.h"

#include "platform.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

namespace {
// The multi-monitor arrangements; their English text is what the document stores.
const char* const SameAsPrimary = QT_TRANSLATE_NOOP("DisplayFrame", "Same as primary");
const char* const Disable = QT_TRANSLATE_NOOP("DisplayFrame", "Disable");
const char* const ExtendAbove = QT_TRANSLATE_NOOP("DisplayFrame", "Extend above primary");
const char* const ExtendRight = QT_TRANSLATE_NOOP("DisplayFrame", "Extend to the right of primary");
const char* const ExtendLeft = QT_TRANSLATE_NOOP("DisplayFrame", "Extend to the left of primary");
const char* const ExtendBelow = QT_TRANSLATE_NOOP("DisplayFrame", "Extend below primary");

// Stored as shown, so not translated.
const QString Auto = QStringLiteral("Auto");
} // namespace

DisplayFrame::DisplayFrame(QWidget* parent)
    : ConfigFrame(parent)
{
    setup();
}

DisplayFrame::~DisplayFrame() = default;

void DisplayFrame::setup()
{
    setNotify(false);
    setupResolution();
    setupDepth();
    setupRefresh();
    setupMultiMonitorMode();
    setupPrimaryMonitor();

    auto* layout = new QGridLayout(this);
    layout->addWidget(new QLabel, 0, 0);
    layout->addWidget(m_resolutionLabel, 0, 0);
    layout->addWidget(m_resolution, 0, 1);
    layout->addWidget(new QLabel, 0, 5);
    layout->addWidget(m_depthLabel, 1, 0);
    layout->addWidget(m_depth, 1, 1);
    layout->addWidget(m_refreshLabel, 2, 0);
    layout->addWidget(m_refresh, 2, 1);
    layout->addWidget(m_multiMonitorModeLabel, 3, 0);
    layout->addWidget(m_multiMonitorMode, 3, 1);
    layout->addWidget(m_primaryMonitorLabel, 4, 0);
    layout->addWidget(m_primaryMonitor, 4, 1);
    // The combos keep their natural width at the left; the empty column takes the rest.
    layout->setColumnStretch(5, 1);

    retranslateUi();
    connect(Platform::instance(), &Platform::platformChange, this, &DisplayFrame::updatePlatformOptions);
    updatePlatformOptions();
    setNotify(true);
}

QComboBox* DisplayFrame::createCombo(const QString& objectName)
{
    auto* combo = new QComboBox(this);
    combo->setObjectName(objectName);
    // Long choices ("Span across monitors…") open in full in the list; the closed combo
    // need not be as wide, so the page fits beside the help.
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(10);
    return combo;
}

void DisplayFrame::setupResolution()
{
    m_resolution = createCombo(QStringLiteral("DisplayResolution"));
    m_resolutionLabel = new QLabel(this);
    // Unlike the others, a programmatic change marks the frame dirty too; repopulating
    // therefore suspends dirty marking (updateCombo).
    connect(m_resolution, qOverload<int>(&QComboBox::currentIndexChanged), this, &ConfigFrame::setDirty);
}

void DisplayFrame::setupDepth()
{
    m_depth = createCombo(QStringLiteral("DisplayColorDepth"));
    m_depthLabel = new QLabel(this);
    connect(m_depth, qOverload<int>(&QComboBox::activated), this, &ConfigFrame::setDirty);
}

void DisplayFrame::setupRefresh()
{
    m_refresh = createCombo(QStringLiteral("DisplayRefreshRate"));
    m_refreshLabel = new QLabel(this);
    connect(m_refresh, qOverload<int>(&QComboBox::activated), this, &ConfigFrame::setDirty);
}

void DisplayFrame::setupMultiMonitorMode()
{
    m_multiMonitorMode = createCombo(QStringLiteral("DisplayMultiMonitorMode"));
    m_multiMonitorModeLabel = new QLabel(this);
    connect(m_multiMonitorMode, qOverload<int>(&QComboBox::activated), this, &ConfigFrame::setDirty);
    m_multiMonitorSupported = !(Platform::isLunvex() && DisplayPreferences::isSingleMonitorDriver());
}

void DisplayFrame::setupPrimaryMonitor()
{
    m_primaryMonitor = createCombo(QStringLiteral("DisplayPrimaryMonitor"));
    m_primaryMonitorLabel = new QLabel(this);
    m_primaryMonitor->addItems({ QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4") });
    connect(m_primaryMonitor, qOverload<int>(&QComboBox::activated), this, &ConfigFrame::setDirty);
}

QString DisplayFrame::title() const
{
    return tr("Display");
}

QIcon DisplayFrame::icon() const
{
    return QIcon(QStringLiteral(":/images/display.svg"));
}

QString DisplayFrame::helpText() const
{
    QString text = tr("<b>Display</b> <br> This configures the display. <br>Please note some of the options given may "
                      "not apply to this Thin Client.<p>Resolution - the screen resolution.</p><p>Color depth - the "
                      "color depth of the screen.</p><p>Refresh rate - the display's refresh rate.</p>");
    if (m_multiMonitorSupported) {
        text += tr("<p>Multi-monitor mode -  how the screen will be arranged on multiple monitors.</p>");
        text += Platform::isCe() ? tr("<p>On CE, DVI-I/VGA will be the primary monitor.</p>")
                                 : tr("<p>Primary monitor - selects the primary monitor.</p>");
    }
    return text;
}

void DisplayFrame::retranslateUi()
{
    m_resolutionLabel->setText(tr("Resolution:"));
    m_depthLabel->setText(tr("Color depth:"));
    m_refreshLabel->setText(tr("Refresh rate:"));
    m_multiMonitorModeLabel->setText(tr("Multi-monitor mode:"));
    m_primaryMonitorLabel->setText(tr("Primary monitor:"));
    populateMultiMonitorMode();
}

void DisplayFrame::updatePlatformOptions()
{
    m_multiMonitorModeLabel->setVisible(m_multiMonitorSupported);
    m_multiMonitorMode->setVisible(m_multiMonitorSupported);
    const bool primary = m_multiMonitorSupported && Platform::isLunvex();
    m_primaryMonitorLabel->setVisible(primary);
    m_primaryMonitor->setVisible(primary);

    populateResolution();
    populateDepth();
    populateRefresh();
    populateMultiMonitorMode();
}

QStringList DisplayFrame::getDefaultResolutions()
{
    return { QStringLiteral("800x600"),   QStringLiteral("1024x768"),  QStringLiteral("1152x864"),
             QStringLiteral("1280x800"),  QStringLiteral("1280x1024"), QStringLiteral("1366x768"),
             QStringLiteral("1440x900"),  QStringLiteral("1600x1200"), QStringLiteral("1680x1050"),
             QStringLiteral("1920x1080"), QStringLiteral("1920x1200") };
}

QStringList DisplayFrame::enumSupportedResolutions()
{
    return DisplayPreferences().resolutions();
}

QStringList DisplayFrame::mergeStringLists(const QStringList& a, const QStringList& b)
{
    QStringList merged;
    for (const QString& item : a) {
        if (b.contains(item))
            merged.append(item);
    }
    return merged;
}

void DisplayFrame::populateResolution()
{
    const QStringList defaults = getDefaultResolutions();
    const QStringList supported = enumSupportedResolutions();
    // What the machine supports beyond the defaults is never offered.
    QStringList list = supported.isEmpty() ? defaults : mergeStringLists(defaults, supported);
    if (Platform::isLunvex())
        list.prepend(Auto);
    updateCombo(m_resolution, list);
}

void DisplayFrame::populateDepth()
{
    QStringList list;
    if (Platform::isLunvex()) {
        list = DisplayPreferences().depths();
        if (list.isEmpty())
            list = QStringList { QStringLiteral("8 Bpp"), QStringLiteral("16 Bpp"), QStringLiteral("24 Bpp") };
    } else {
        list = QStringList { QStringLiteral("16 Bpp"), QStringLiteral("32 Bpp") };
    }
    updateCombo(m_depth, list);
}

void DisplayFrame::populateRefresh()
{
    QStringList list;
    if (Platform::isLunvex()) {
        list = DisplayPreferences().refreshRates();
        if (list.isEmpty())
            list = QStringList { Auto, QStringLiteral("75"), QStringLiteral("72"), QStringLiteral("60") };
    } else if (Platform::isCe()) {
        list = QStringList { QStringLiteral("60"), QStringLiteral("75") };
    } else {
        list = QStringList { QStringLiteral("60"), QStringLiteral("72"), QStringLiteral("75") };
    }
    updateCombo(m_refresh, list);
}

void DisplayFrame::populateMultiMonitorMode()
{
    QList<const char*> modes;
    if (Platform::isCe())
        modes = { SameAsPrimary, ExtendRight };
    else if (Platform::isWes())
        modes = { Disable, ExtendAbove, ExtendRight, ExtendLeft, ExtendBelow };
    else
        modes = { Disable, SameAsPrimary, ExtendAbove, ExtendRight, ExtendLeft, ExtendBelow };

    QStringList texts;
    QStringList data;
    for (const char* mode : qAsConst(modes)) {
        texts.append(tr(mode));
        data.append(QLatin1String(mode));
    }
    updateCombo(m_multiMonitorMode, texts, data);
}

void DisplayFrame::updateCombo(QComboBox* combo, const QStringList& texts, const QStringList& data)
{
    const int index = combo->currentIndex();
    const bool notify = notifies();
    setNotify(false);

    combo->clear();
    if (texts.size() != data.size()) {
        combo->addItems(texts);
    } else {
        for (int i = 0; i < texts.size(); ++i)
            combo->addItem(texts.at(i), data.at(i));
    }
    // By position, not by text: an index past the new end leaves nothing selected. A combo
    // filled for the first time starts at its first item rather than blank.
    combo->setCurrentIndex(index < 0 ? 0 : index);

    setNotify(notify);
}

void DisplayFrame::updateCombo(QComboBox* combo, const QStringList& texts)
{
    updateCombo(combo, texts, QStringList());
}

void DisplayFrame::setComboVal(QComboBox* combo, const QString& value)
{
    const bool hasData = combo->count() > 0 && combo->itemData(0, Qt::UserRole).isValid();
    const int index = hasData ? combo->findData(value, Qt::UserRole, Qt::MatchFixedString)
                              : combo->findText(value, Qt::MatchFixedString);
    if (index >= 0)
        combo->setCurrentIndex(index);
}

void DisplayFrame::loadUiFromConfig(ConfigFile* config, QComboBox* combo, const char* key)
{
    setComboVal(combo, config->value(QLatin1String(key)));
}

void DisplayFrame::loadConfig(ConfigFile* config)
{
    if (!enterSectionForLoad(config, QStringLiteral("display")))
        return;
    loadUiFromConfig(config, m_resolution, "resolution");
    loadUiFromConfig(config, m_depth, "color_depth");
    loadUiFromConfig(config, m_refresh, "refresh_rate");
    if (m_multiMonitorSupported) {
        loadUiFromConfig(config, m_multiMonitorMode, "multi_monitor_mode");
        if (!Platform::isCe())
            loadUiFromConfig(config, m_primaryMonitor, "primary_monitor");
    }
}

void DisplayFrame::saveConfig(ConfigFile* config)
{
    if (!enterSectionForSave(config, QStringLiteral("display")))
        return;
    config->setValue(QStringLiteral("resolution"), m_resolution->currentText());
    config->setValue(QStringLiteral("color_depth"), m_depth->currentText());
    config->setValue(QStringLiteral("refresh_rate"), m_refresh->currentText());
    if (m_multiMonitorSupported) {
        config->setValue(QStringLiteral("multi_monitor_mode"), m_multiMonitorMode->currentData().toString());
        // Written wherever the row exists, also where it is hidden (WES, WES7).
        if (!Platform::isCe())
            config->setValue(QStringLiteral("primary_monitor"), m_primaryMonitor->currentText());
    }
    leaveSection(config);
}

bool DisplayFrame::getCurrentSettings(int* width, int* height, int* rate, int* rotation)
{
    return XrandrScreenMode::query(QByteArrayLiteral(":0"), width, height, rate, rotation);
}
