#pragma once

#include "configpage.h"

// The Regional page: time zone, keyboard layout and locale.
class TAVLOZELKON_LIB_EXPORT ZelkonRegionalPage : public ConfigPage
{
    Q_OBJECT
    Q_DISABLE_COPY(ZelkonRegionalPage)

public:
    explicit ZelkonRegionalPage(QWidget* parent = nullptr);
    ~ZelkonRegionalPage() override;

    QString title() const override;
    // The title, also before a page is made: a host may list its pages first.
    static QString pageTitle();
    QString description() const override;
    void retranslateUi() override;

protected:
    QString baseHelpText() const override;

private:
    void setup();
    void createItems();
};
