#pragma once

#include "tavlohost_export.h"

#include <QWidget>

/*
 * Base of every page the wizard shows. A page names itself (title, description, help),
 * is told when it is about to be shown, and reports user changes through modified().
 */
class TAVLOHOST_EXPORT WizardPage : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(WizardPage)

public:
    explicit WizardPage(QWidget* parent = nullptr);
    ~WizardPage() override;

    virtual QString title() const = 0;
    virtual QString description() const = 0;
    virtual QString helpText() const = 0;
    virtual void setupToShow();
    virtual int numFrames() const;
    virtual void retranslateUi() = 0;

signals:
    void modified();

protected:
    void changeEvent(QEvent* event) override;
};
