#pragma once

#include "configpage.h"

#include <QMap>

/*
 * The Management page: the remote-management agents, automatic updates and remote
 * assistance. Which of them are offered depends on the target platform and on the
 * packages installed on the machine.
 */
class TAVLOZELKON_LIB_EXPORT ZelkonManagementPage : public ConfigPage
{
    Q_OBJECT
    Q_DISABLE_COPY(ZelkonManagementPage)

public:
    enum class Tool { Corrand, Pellam, AutoUpdate, RemoteAssistance };

    explicit ZelkonManagementPage(QWidget* parent = nullptr);
    ~ZelkonManagementPage() override;

    QString title() const override;
    // The title, also before a page is made: a host may list its pages first.
    static QString pageTitle();
    QString description() const override;
    void retranslateUi() override;

    // The package list whose presence on the machine offers tool's frame.
    static QString packageList(Tool tool);
    AccordionItem* item(Tool tool) const { return m_items.value(tool); }

public slots:
    void updatePlatformOptions();

protected:
    QString baseHelpText() const override;
    AccordionItem* addToolFrame(Tool tool, ConfigFrame* frame);

private:
    void setup();
    void createItems();
    void setToolVisible(Tool tool, bool visible);

    QMap<Tool, AccordionItem*> m_items;
};
