#include "corrandframe.h"

#include "productpages.h"

CorrandFrame::CorrandFrame(QWidget* parent)
    : ManagementFrame(QStringLiteral("corrand"), true, parent)
{
}

CorrandFrame::~CorrandFrame() = default;

QString CorrandFrame::title() const
{
    return tr("Corrand");
}

QString CorrandFrame::helpText() const
{
    return tr("<b>Corrand</b> <br> This enables or disables the Corrand Agent. For more information please see %1")
        .arg(ProductPages::helpLink(ProductPages::corrand(), tr("Corrand")));
}

QIcon CorrandFrame::icon() const
{
    return QIcon(QStringLiteral(":/images/corrand.svg"));
}
