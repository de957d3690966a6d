// The connection type icons of ConnectionModel. They are resources of the widget library
// and need Qt's GUI module, which the widget-free core does without.
#include "connections/model/connectionmodel.h"

#include <QIcon>

QIcon ConnectionModel::sGetConnectionTypeIcon(const QString& key, int size)
{
    const QString name = QStringLiteral(":/%1Icon%2").arg(key).arg(size);
    QIcon icon(name);
    if (icon.isNull())
        icon = QIcon(name + QLatin1String(".svg"));
    return icon;
}
