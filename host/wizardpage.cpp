#include "wizardpage.h"

#include <QEvent>

WizardPage::WizardPage(QWidget* parent)
    : QWidget(parent)
{
}

WizardPage::~WizardPage() = default;

void WizardPage::setupToShow() { }

int WizardPage::numFrames() const
{
    return 0;
}

void WizardPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    else
        QWidget::changeEvent(event);
}
