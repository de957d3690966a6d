#pragma once

#include "config/configfile.h"
#include "pages/configframe.h"

/*
 * A settings frame with one text value, as the real frames have: it loads and saves the
 * section it was given with the shared load/save pattern, and a change of its value goes
 * through setDirty() as a widget's change would.
 */
class TextFrame : public ConfigFrame
{
public:
    explicit TextFrame(const QString& section, QWidget* parent = nullptr)
        : ConfigFrame(parent)
        , m_section(section)
    {
    }

    QString title() const override { return m_section; }
    QString helpText() const override { return QStringLiteral("<i>%1</i>").arg(m_section); }

    void loadConfig(ConfigFile* config) override
    {
        ++loads;
        cursorAtLoad = config->currentNodePath();
        if (!enterSectionForLoad(config, m_section))
            return;
        setText(config->value(QStringLiteral("text")));
    }

    void saveConfig(ConfigFile* config) override
    {
        if (!enterSectionForSave(config, m_section))
            return;
        config->setValue(QStringLiteral("text"), m_text);
        leaveSection(config);
    }

    // What a widget's change signal does.
    void setText(const QString& text)
    {
        m_text = text;
        setDirty();
    }
    QString text() const { return m_text; }

    int loads = 0;
    QString cursorAtLoad;

private:
    QString m_section;
    QString m_text;
};
