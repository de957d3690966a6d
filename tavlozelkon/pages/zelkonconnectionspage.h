#pragma once

#include "configpage.h"

/*
 * The Connections page: a single frame, always open, in which connections to host
 * systems are listed and edited. Its help says where the connections will be found on
 * the target platform.
 */
class TAVLOZELKON_LIB_EXPORT ZelkonConnectionsPage : public ConfigPage
{
    Q_OBJECT
    Q_DISABLE_COPY(ZelkonConnectionsPage)

public:
    explicit ZelkonConnectionsPage(QWidget* parent = nullptr);
    ~ZelkonConnectionsPage() override;

    QString title() const override;
    // The title, also before a page is made: a host may list its pages first.
    static QString pageTitle();
    QString description() const override;
    void retranslateUi() override;

protected:
    QString baseHelpText() const override;
    // Adds the page's one frame and opens it.
    AccordionItem* setFrame(ConfigFrame* frame);

private:
    void setup();
    QString platformHelpText() const;
};
