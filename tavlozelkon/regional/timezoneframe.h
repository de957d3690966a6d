#pragma once

#include "tavlozelkon_lib_export.h"

#include "pages/configframe.h"

class QComboBox;
class QLabel;

/*
 * The thin client's time zone ("time_zone"). Lunvex takes a Linux zone, chosen as an
 * area and a city and stored as "area" and "city"; the Windows-based platforms take one
 * entry of their own list of zone display names, stored as "timezone". WES7 stores the
 * Windows zone id of the entry instead of its display name.
 *
 * The lists are rebuilt on every platform change. An entry chosen before stays chosen
 * when the new list has it; otherwise the frame chooses Greenwich time (Europe/London,
 * "Dublin, Edinburgh, Lisbon, London"), which every platform's list offers.
 */
class TAVLOZELKON_LIB_EXPORT TimeZoneFrame : public ConfigFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(TimeZoneFrame)

public:
    explicit TimeZoneFrame(QWidget* parent = nullptr);
    ~TimeZoneFrame() override;

    QString title() const override;
    QIcon icon() const override;
    QString helpText() const override;
    void retranslateUi() override;

    // A stored value a list does not offer leaves that list with nothing chosen, and
    // saving then writes an empty value.
    void loadConfig(ConfigFile* config) override;
    void saveConfig(ConfigFile* config) override;

    // On WES7, the zone id of a display name (toId) or the display name of a zone id;
    // a text no entry holds, and any text on the other platforms, comes back unchanged.
    QString WES7TimeZoneMapping(const QString& text, bool toId) const;

    QComboBox* areaComboBox() const { return m_areaCombo; }
    QComboBox* cityComboBox() const { return m_cityCombo; }
    QComboBox* zoneComboBox() const { return m_zoneCombo; }

public slots:
    void updatePlatformOptions();
    // Lists the cities of the area at index, in table order.
    void changeArea(int index);

private:
    void fillLinuxLists();
    void fillCities();
    void fillWindowsList();

    QLabel* m_areaLabel;
    QComboBox* m_areaCombo;
    QLabel* m_cityLabel;
    QComboBox* m_cityCombo;
    QComboBox* m_zoneCombo;
};
