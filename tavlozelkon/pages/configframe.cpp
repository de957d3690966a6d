#include "configframe.h"

#include "config/configfile.h"

ConfigFrame::ConfigFrame(QWidget* parent)
    : ControlFrame(parent)
{
}

ConfigFrame::~ConfigFrame() = default;

void ConfigFrame::setDirty()
{
    if (!m_notify)
        return;
    m_dirty = true;
    emit dirty();
}

bool ConfigFrame::enterSectionForLoad(ConfigFile* config, const QString& section)
{
    if (!config->findNode(section, 0))
        return false;
    setDirty();
    return true;
}

bool ConfigFrame::enterSectionForSave(ConfigFile* config, const QString& section)
{
    if (!m_dirty)
        return false;
    if (!config->findNode(section, 0))
        config->addNode(section);
    return true;
}

void ConfigFrame::leaveSection(ConfigFile* config)
{
    config->leaveNode();
}
