#pragma once

#include "pages/configframe.h"

#include <QStringList>

class QComboBox;
class QLabel;

/*
 * The "display" section: resolution, colour depth, refresh rate, multi-monitor
 * arrangement and primary monitor of the thin client. The choices are fixed lists per
 * target platform; on the machine the wizard runs on, its display preference file
 * narrows the resolutions (and, for Lunvex, supplies the depths and refresh rates).
 *
 * Only the multi-monitor combo stores item data (the English value); the others store
 * their visible text.
 */
class TAVLOZELKON_LIB_EXPORT DisplayFrame : public ConfigFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(DisplayFrame)

public:
    explicit DisplayFrame(QWidget* parent = nullptr);
    ~DisplayFrame() override;

    QString title() const override;
    QIcon icon() const override;
    QString helpText() const override;
    void retranslateUi() override;

    void loadConfig(ConfigFile* config) override;
    void saveConfig(ConfigFile* config) override;

    // False when the machine's graphics driver drives one monitor only; decided once,
    // when the frame is built on Lunvex.
    bool multiMonitorSupported() const { return m_multiMonitorSupported; }

    static QStringList getDefaultResolutions();
    // The resolutions the machine's display preference file lists.
    static QStringList enumSupportedResolutions();
    // The items of a, in a's order, that b also holds.
    static QStringList mergeStringLists(const QStringList& a, const QStringList& b);

    // The current mode of the X screen ":0"; rotation, when given, receives the RandR
    // rotation. Not used by the wizard itself (it configures a target, not this
    // machine); kept for hosts that want to offer the active mode.
    static bool getCurrentSettings(int* width, int* height, int* rate, int* rotation);

public slots:
    void updatePlatformOptions();

private:
    void setup();
    void setupResolution();
    void setupDepth();
    void setupRefresh();
    void setupMultiMonitorMode();
    void setupPrimaryMonitor();
    QComboBox* createCombo(const QString& objectName);

    void populateResolution();
    void populateDepth();
    void populateRefresh();
    void populateMultiMonitorMode();

    // Refills combo keeping the current index by position, without marking the frame
    // dirty. Data is set only when it pairs up with texts one to one.
    void updateCombo(QComboBox* combo, const QStringList& texts, const QStringList& data);
    void updateCombo(QComboBox* combo, const QStringList& texts);
    // Selects the item whose data (or, for combos without data, text) is value, ignoring
    // case; an unknown value leaves the selection alone.
    static void setComboVal(QComboBox* combo, const QString& value);
    static void loadUiFromConfig(ConfigFile* config, QComboBox* combo, const char* key);

    QComboBox* m_resolution = nullptr;
    QComboBox* m_depth = nullptr;
    QComboBox* m_refresh = nullptr;
    QComboBox* m_multiMonitorMode = nullptr;
    QComboBox* m_primaryMonitor = nullptr;
    QLabel* m_resolutionLabel = nullptr;
    QLabel* m_depthLabel = nullptr;
    QLabel* m_refreshLabel = nullptr;
    QLabel* m_multiMonitorModeLabel = nullptr;
    QLabel* m_primaryMonitorLabel = nullptr;
    bool m_multiMonitorSupported = true;
};
