#include "controlframe.h"

#include <QEvent>

ControlFrame::ControlFrame(QWidget* parent)
    : QFrame(parent)
{
}

ControlFrame::~ControlFrame() = default;

QString ControlFrame::title() const
{
    return QString();
}

QIcon ControlFrame::icon() const
{
    return QIcon();
}

QString ControlFrame::helpText() const
{
    return QString();
}

void ControlFrame::retranslateUi() { }

void ControlFrame::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    else
        QFrame::changeEvent(event);
}
