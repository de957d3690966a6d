#pragma once

#include "tavlozelkon_lib_export.h"

#include "pages/configframe.h"

class QComboBox;
class QLabel;

/*
 * A settings frame with one drop-down list whose entries depend on the target platform
 * (the keyboard layout, the system locale). Each entry shows its translated name and
 * carries the English one, which is what the document stores as the frame's one value.
 *
 * The list is refilled on every platform change. The entry chosen before stays chosen
 * when the new platform offers it too; otherwise the frame's default is chosen. Neither
 * counts as a change of the configuration.
 */
class TAVLOZELKON_LIB_EXPORT PlatformChoiceFrame : public ConfigFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(PlatformChoiceFrame)

public:
    ~PlatformChoiceFrame() override;

    // A stored name the list does not offer leaves the list with nothing chosen, and
    // saving then writes an empty value.
    void loadConfig(ConfigFile* config) override;
    void saveConfig(ConfigFile* config) override;
    void retranslateUi() override;

    QComboBox* comboBox() const { return m_comboBox; }

public slots:
    void updatePlatformOptions();

protected:
    PlatformChoiceFrame(const QString& section, const QString& key, const QString& defaultChoice,
                        QWidget* parent = nullptr);

    // The English names offered on the current platform, in display order.
    virtual QStringList choices() const = 0;
    virtual QString labelText() const = 0;

    // The first count entries of a fixed table (a guard entry after them is not read).
    static QStringList tableEntries(const char* const table[], int count);

private:
    QString translatedChoice(const QString& name) const;

    const QString m_section;
    const QString m_key;
    const QString m_defaultChoice;
    QLabel* m_label;
    QComboBox* m_comboBox;
    // Shown instead of an empty list's silence.
    QLabel* m_emptyNote;
};
