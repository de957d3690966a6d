#include "productpages.h"

#include <QUrl>

namespace ProductPages {

QString corrand()
{
    return QStringLiteral("https://www.corrand.example/device-management/agent");
}

QString pellam()
{
    return QStringLiteral("https://www.pellam.example/");
}

QString shortAddress(const QString& url)
{
    const QUrl parsed(url);
    QString address = parsed.host() + parsed.path();
    if (address.endsWith(QLatin1Char('/')))
        address.chop(1);
    return address;
}

QString helpLink(const QString& url, const QString& text)
{
    return QStringLiteral("<a href=\"%1\" style=\"color: cyan;\">%2</a>")
        .arg(url.toHtmlEscaped(), text.toHtmlEscaped());
}

} // namespace ProductPages
