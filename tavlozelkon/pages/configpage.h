#pragma once

#include "tavlozelkon_lib_export.h"

#include "wizardpage.h"

#include <functional>

class Accordion;
class AccordionItem;
class ConfigFile;
class ConfigFrame;

/*
 * Base of the four container pages (Regional, Management, Peripherals, Connections): an
 * accordion of settings frames. The page hands the configuration document to its frames,
 * forwards their changes as modified(), and composes its help from its own text and the
 * open frame's.
 */
class TAVLOZELKON_LIB_EXPORT ConfigPage : public WizardPage
{
    Q_OBJECT
    Q_DISABLE_COPY(ConfigPage)

public:
    explicit ConfigPage(QWidget* parent = nullptr);
    ~ConfigPage() override;

    // Loads every frame from the root of config. With notify false the frames' dirty
    // marking is off while each one loads, so loading reports no change.
    virtual void loadConfig(ConfigFile* config, bool notify);
    // Frames must leave the cursor on the root after saving; it is not reset between them.
    virtual void saveConfig(ConfigFile* config);

    QString helpText() const override;
    int numFrames() const override;
    Accordion* accordion() const { return m_accordion; }

signals:
    void helpChanged(const QString& text);

public slots:
    void onHelpChanged();

protected:
    // The page's own part of the help, before the open frame's.
    virtual QString baseHelpText() const = 0;

    // The layout the container pages share: the accordion between two stretches, filled
    // by createItems, then the page's texts.
    void setupAccordion(const std::function<void()>& createItems);
    // Just the accordion, for a page that lays itself out.
    void createAccordion();
    // Wraps frame in an accordion item, forwards its changes and appends it.
    AccordionItem* addFrame(ConfigFrame* frame);

private:
    Accordion* m_accordion = nullptr;
};
