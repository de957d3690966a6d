#include "configfilecheck.h"

#include "config/parseguard.h"

#include <QDomDocument>
#include <QFileInfo>

QString ConfigFileCheck::problem(const QString& path)
{
    const QString before = problemBeforeReading(path);
    if (!before.isEmpty())
        return before;
    // The same reader as the document layer's, so that what passes here loads.
    QDomDocument document;
    const ConfigReader::Result result = ConfigReader::readFile(path, document);
    return problem(result, document);
}

QString ConfigFileCheck::problemBeforeReading(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return tr("The file does not exist.");
    if (info.isDir())
        return tr("It is a folder, not a file.");
    return QString();
}

QString ConfigFileCheck::problem(const ConfigReader::Result& result, const QDomDocument& document)
{
    if (!result.opened)
        return tr("It cannot be read: %1.").arg(result.openError);
    if (result.blank)
        return tr("The file is empty.");

    const ParseGuard::Result& parse = result.parse;
    switch (parse.verdict) {
    case ParseGuard::Verdict::TooLarge:
        return tooLarge();
    case ParseGuard::Verdict::TooDeep:
        return tr("Its elements are nested more than %1 levels deep (line %2), which no configuration is.")
            .arg(ParseGuard::MaxDepth)
            .arg(parse.line);
    case ParseGuard::Verdict::TooMuchText:
        return tr("Its entities expand to more than %1 million characters of text (line %2), which no "
                  "configuration holds.")
            .arg(ParseGuard::MaxTextCharacters / 1000000)
            .arg(parse.line);
    case ParseGuard::Verdict::NotWellFormed:
        return notXml(parse.line, parse.column, parse.message);
    case ParseGuard::Verdict::Accepted:
        break;
    }

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
