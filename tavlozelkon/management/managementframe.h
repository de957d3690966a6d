#pragma once

#include "tavlozelkon_lib_export.h"

#include "pages/configframe.h"

#include <QVector>

class QCheckBox;
class QGridLayout;
class QLineEdit;

/*
 * Base of the management frames. Each switches one agent or service on or off with the
 * "Enable" check box in its first row and keeps one section of the document: "enable"
 * plus a few text values, each edited in a line edit. The frames differ only in their
 * section, their text values and the rows below the check box, so loading and saving
 * are done here once.
 */
class TAVLOZELKON_LIB_EXPORT ManagementFrame : public ConfigFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(ManagementFrame)

public:
    ~ManagementFrame() override;

    // The section's values into the widgets. Like every frame the cursor stays in the
    // section; the page puts it back on the root before the next frame.
    void loadConfig(ConfigFile* config) override;
    void saveConfig(ConfigFile* config) override;
    void retranslateUi() override;

    QString section() const { return m_section; }
    QCheckBox* enableCheck() const { return m_enable; }

protected:
    ManagementFrame(const QString& section, bool enabledByDefault, QWidget* parent);

    // Keeps key of the section in edit; values are read and written in the order they
    // were added, and editing one marks the frame dirty. A value with a condition is read
    // and written only while the condition holds; otherwise the document keeps whatever
    // it has for key.
    void addTextValue(const QString& key, QLineEdit* edit, bool (*applies)() = nullptr);
    // Row 0 holds the check box; rows below it are the frame's own.
    QGridLayout* grid() const { return m_grid; }

private:
    struct TextValue
    {
        QString key;
        QLineEdit* edit;
        bool (*applies)();
    };

    QString m_section;
    QCheckBox* m_enable;
    QGridLayout* m_grid;
    QVector<TextValue> m_textValues;
};
