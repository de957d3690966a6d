#include "pellamframe.h"

#include "productpages.h"

PellamFrame::PellamFrame(QWidget* parent)
    : ManagementFrame(QStringLiteral("pellam"), true, parent)
{
}

PellamFrame::~PellamFrame() = default;

QString PellamFrame::title() const
{
    return tr("Pellam");
}

QString PellamFrame::helpText() const
{
    const QString page = ProductPages::pellam();
    return tr("<b>Pellam</b> <br> This enables or disables the Pellam Agent. For more information please visit %1")
        .arg(ProductPages::helpLink(page, ProductPages::shortAddress(page)));
}

QIcon PellamFrame::icon() const
{
    return QIcon(QStringLiteral(":/images/Pellam.svg"));
}
