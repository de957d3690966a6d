#pragma once

#include "tavlozelkon_lib_export.h"

#include "controlframe.h"

class ConfigFile;

/*
 * Base of every settings frame. A frame reads its section of the configuration document
 * in loadConfig() and writes it back in saveConfig(), but only when the user (or a load)
 * changed something: setDirty() marks the frame and reports dirty(), unless the page has
 * switched notification off while it loads.
 *
 * The protected helpers carry the load/save pattern that all frames share, so a frame
 * states only its section name and its values.
 */
class TAVLOZELKON_LIB_EXPORT ConfigFrame : public ControlFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(ConfigFrame)

public:
    explicit ConfigFrame(QWidget* parent = nullptr);
    ~ConfigFrame() override;

    virtual void loadConfig(ConfigFile* config) = 0;
    virtual void saveConfig(ConfigFile* config) = 0;

    bool isDirty() const { return m_dirty; }
    bool notifies() const { return m_notify; }
    void setNotify(bool notify) { m_notify = notify; }

public slots:
    void setDirty();

protected:
    // Load pattern: moves the cursor into section and marks the frame dirty, so that a
    // section present in the loaded file is written back. False (and the frame keeps its
    // defaults) when the document has no such section.
    bool enterSectionForLoad(ConfigFile* config, const QString& section);
    // Save pattern: false when nothing changed. Otherwise moves the cursor into section,
    // adding it when missing; the frame writes its values and calls leaveSection().
    bool enterSectionForSave(ConfigFile* config, const QString& section);
    void leaveSection(ConfigFile* config);
    // Withdraws the frame's changes from the next save, silently.
    void clearDirty() { m_dirty = false; }

private:
    bool m_dirty = false;
    bool m_notify = true;
};
