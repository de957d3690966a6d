#include "configfilecheck.h"

#include "config/parseguard.h"

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
    if (file.size() > ParseGuard::MaxFileBytes)
        return tooLarge();
    const QByteArray bytes = file.isSequential() ? file.read(ParseGuard::MaxFileBytes + 1) : file.readAll();
    if (bytes.trimmed().isEmpty())
        return tr("The file is empty.");

    // The same guard and parser as the document layer's, so that what passes here loads.
    const ParseGuard::Result guard = ParseGuard::check(bytes);
    switch (guard.verdict) {
    case ParseGuard::Verdict::TooLarge:
        return tooLarge();
    case ParseGuard::Verdict::TooDeep:
        return tr("Its elements are nested more than %1 levels deep (line %2), which no configuration is.")
            .arg(ParseGuard::MaxDepth)
            .arg(guard.line);
    case ParseGuard::Verdict::TooMuchText:
        return tr("Its entities expand to more than %1 million characters of text (line %2), which no "
                  "configuration holds.")
            .arg(ParseGuard::MaxTextCharacters / 1000000)
            .arg(guard.line);
    case ParseGuard::Verdict::NotWellFormed:
        return notXml(guard.line, guard.column, guard.message);
    case ParseGuard::Verdict::Accepted:
        break;
    }

    QDomDocument document;
    QString message;
    int line = 0;
    int column = 0;
    if (!document.setContent(bytes, true, &message, &line, &column))
        return notXml(line, column, message);
    const QString root = document.documentElement().tagName();
    if (root != QLatin1String("zelkon"))
        return tr("It is not a Zelkon configuration: its root element is <%1> instead of <zelkon>.").arg(root);
    return QString();
}

QString ConfigFileCheck::tooLarge()
{
    return tr("It is larger than %1 MB, which no configuration is.").arg(ParseGuard::MaxFileBytes / (1024 * 1024));
}

QString ConfigFileCheck::notXml(qint64 line, qint64 column, const QString& message)
{
    return tr("It is not an XML document (line %1, column %2: %3).").arg(line).arg(column).arg(message);
}
