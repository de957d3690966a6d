#pragma once

#include "tavlozelkon_lib_export.h"

#include "connections/model/connectionmodel.h"
#include "pages/configframe.h"

class ConnectionEditor;

/*
 * The one frame of the Connections page. It owns the connection model of the whole
 * configuration and shows the connection editor, the stack of list, type selector and
 * per-type editor pages. Loading and saving are the model's.
 */
class TAVLOZELKON_LIB_EXPORT ConnectionsFrame : public ConfigFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(ConnectionsFrame)

public:
    explicit ConnectionsFrame(QWidget* parent = nullptr);
    ~ConnectionsFrame() override;

    QString title() const override;
    QIcon icon() const override;
    QString helpText() const override;
    void retranslateUi() override;

    void loadConfig(ConfigFile* config) override;
    void saveConfig(ConfigFile* config) override;

    ConnectionModel& connectionModel() { return m_model; }
    ConnectionEditor* editor() const { return m_editor; }

private:
    // Declared before the editor, which works on it.
    ConnectionModel m_model;
    ConnectionEditor* m_editor;
};
