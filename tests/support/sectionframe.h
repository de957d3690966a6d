#pragma once

#include "config/configfile.h"
#include "pages/configframe.h"

/*
 * A settings frame holding one value of one section, as the real frames do: it loads and
 * saves with the shared pattern, and setText() is what a widget's change signal does.
 */
class SectionFrame : public ConfigFrame
{
public:
    explicit SectionFrame(const QString& section, const QString& key = QStringLiteral("text"),
                          QWidget* parent = nullptr)
        : ConfigFrame(parent)
        , m_section(section)
        , m_key(key)
    {
    }

    QString title() const override { return m_section; }
    QString helpText() const override { return QStringLiteral("<i>Help of %1</i>").arg(m_section); }

    void loadConfig(ConfigFile* config) override
    {
        ++loads;
        cursorAtLoad = config->currentNodePath();
        if (enterSectionForLoad(config, m_section))
            setText(config->value(m_key));
    }

    void saveConfig(ConfigFile* config) override
    {
        if (!enterSectionForSave(config, m_section))
            return;
        config->setValue(m_key, m_text);
        leaveSection(config);
    }

    void setText(const QString& text)
    {
        m_text = text;
        setDirty();
    }
    QString text() const { return m_text; }

    // Where the page left the document's cursor for the last load, and how often it loaded.
    int loads = 0;
    QString cursorAtLoad;

private:
    QString m_section;
    QString m_key;
    QString m_text;
};
