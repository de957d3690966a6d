#pragma once

#include "config/configfile.h"
#include "connections/model/connectionmodel.h"
#include "pages/configframe.h"

// The connection model in a frame, as the connections frame holds it.
class ConnectionModelFrame : public ConfigFrame
{
public:
    explicit ConnectionModelFrame(QWidget* parent = nullptr)
        : ConfigFrame(parent)
    {
    }

    QString title() const override { return QStringLiteral("Connections"); }
    void loadConfig(ConfigFile* config) override { model.loadConfig(config); }
    void saveConfig(ConfigFile* config) override
    {
        model.saveConfig(config);
        config->setCurrentNodeAsRoot();
    }

    ConnectionModel model;
};
