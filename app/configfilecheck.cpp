#include "configfilecheck.h"

#include <QDomDocument>
#include <QFile>
#include <QFileInfo>

QString ConfigFileCheck::problem(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return tr("The file does not exist.");
    if (info.isDir())
        return tr("It is a folder, not a file.");

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return tr("It cannot be read: %1.").arg(file.errorString());
    const QByteArray bytes = file.readAll();
    if (bytes.trimmed().isEmpty())
        return tr("The file is empty.");

    // Parsed as the document layer will parse it, so that what passes here also loads.
    QDomDocument document;
    QString message;
    int line = 0;
    int column = 0;
    if (!document.setContent(bytes, true, &message, &line, &column))
        return tr("It is not an XML document (line %1, column %2: %3).").arg(line).arg(column).arg(message);
    const QString root = document.documentElement().tagName();
    if (root != QLatin1String("zelkon"))
        return tr("It is not a Zelkon configuration: its root element is <%1> instead of <zelkon>.").arg(root);
    return QString();
}
