#include "configschema.h"

#include "parseguard.h"

#include <QAbstractMessageHandler>
#include <QFile>
#include <QRegularExpression>
#include <QSourceLocation>
#include <QUrl>
#include <QXmlSchemaValidator>
#include <QXmlStreamReader>

namespace {

class ProblemCollector : public QAbstractMessageHandler
{
public:
    QList<ConfigSchema::Problem> problems;

protected:
    void handleMessage(QtMsgType type, const QString& description, const QUrl&,
                       const QSourceLocation& location) override
    {
        if (type == QtDebugMsg)
            return;
        problems.append({ location.line(), location.column(), ConfigSchema::plainText(description) });
    }
};

// The root element's name and where it starts; a null name when there is none.
ConfigSchema::Problem rootElement(const QByteArray& document, QString* name)
{
    QXmlStreamReader reader(document);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement) {
            *name = reader.name().toString();
            return { reader.lineNumber(), reader.columnNumber(), QString() };
        }
    }
    return { reader.lineNumber(), reader.columnNumber(), QString() };
}

// The text of the leaf element named name whose start tag ends on line; a null string
// when there is none.
QString leafText(const QByteArray& document, qint64 line, const QString& name)
{
    QXmlStreamReader reader(document);
    while (!reader.atEnd() && reader.lineNumber() <= line) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.lineNumber() == line
            && reader.name() == name) {
            const QString text = reader.readElementText(QXmlStreamReader::ErrorOnUnexpectedElement);
            return reader.hasError() ? QString() : text;
        }
    }
    return QString();
}

// The validator names the element whose value does not fit but not the value; a user
// looking for the mistake wants both.
void addValue(const QByteArray& document, ConfigSchema::Problem* problem)
{
    static const QRegularExpression content(QStringLiteral("^Content of element (\\S+) does not match"));
    if (problem->message.endsWith(QLatin1String("..")))
        problem->message.chop(1);
    const QRegularExpressionMatch match = content.match(problem->message);
    if (!match.hasMatch())
        return;
    const QString text = leafText(document, problem->line, match.captured(1));
    if (!text.isNull())
        problem->message += QStringLiteral(" The value is \"%1\".").arg(text);
}

} // namespace

QByteArray ConfigSchema::shipped()
{
    QFile file(QStringLiteral(":/zelkon/tavlocfg.xsd"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

ConfigSchema::ConfigSchema(const QByteArray& schemaData)
{
    ProblemCollector collector;
    m_schema.setMessageHandler(&collector);
    m_schema.load(schemaData);
    m_schema.setMessageHandler(nullptr);
    if (m_schema.isValid()) {
        m_validator = std::make_unique<QXmlSchemaValidator>(m_schema);
    } else {
        m_schemaError = collector.problems.isEmpty() ? QStringLiteral("the schema is empty")
                                                     : QStringLiteral("line %1, column %2: %3")
                                                           .arg(collector.problems.constFirst().line)
                                                           .arg(collector.problems.constFirst().column)
                                                           .arg(collector.problems.constFirst().message);
    }
}

ConfigSchema::~ConfigSchema() = default;

QList<ConfigSchema::Problem> ConfigSchema::check(const QByteArray& document) const
{
    // The same guard as loading, so that what the wizard would refuse is refused here too
    // and a hostile file never reaches the validator.
    const ParseGuard::Result guard = ParseGuard::check(document);
    switch (guard.verdict) {
    case ParseGuard::Verdict::Accepted:
        break;
    case ParseGuard::Verdict::NotWellFormed:
        return { { guard.line, guard.column, QStringLiteral("not well-formed XML: %1").arg(guard.message) } };
    case ParseGuard::Verdict::TooLarge:
        return { { 1, 1, QStringLiteral("larger than a configuration file may be") } };
    case ParseGuard::Verdict::TooDeep:
        return { { guard.line, guard.column, QStringLiteral("elements nested too deeply") } };
    case ParseGuard::Verdict::TooMuchText:
        return { { guard.line, guard.column, QStringLiteral("too much text after entity expansion") } };
    }

    QString rootName;
    const Problem root = rootElement(document, &rootName);
    if (rootName != QLatin1String("zelkon")) {
        return { { root.line, root.column,
                   rootName.isNull() ? QStringLiteral("no root element")
                                     : QStringLiteral("the root element is \"%1\", not \"zelkon\"").arg(rootName) } };
    }
    if (!m_validator)
        return { { 1, 1, QStringLiteral("no valid schema to check against") } };

    ProblemCollector collector;
    m_validator->setMessageHandler(&collector);
    const bool valid = m_validator->validate(document, QUrl());
    m_validator->setMessageHandler(nullptr);
    if (valid)
        return {};
    if (collector.problems.isEmpty())
        return { { 1, 1, QStringLiteral("not valid against the schema") } };
    for (Problem& problem : collector.problems)
        addValue(document, &problem);
    return collector.problems;
}

QString ConfigSchema::plainText(const QString& message)
{
    static const QRegularExpression tags(QStringLiteral("<[^>]*>"));
    QString text = message;
    text.remove(tags);
    text.replace(QLatin1String("&lt;"), QLatin1String("<"))
        .replace(QLatin1String("&gt;"), QLatin1String(">"))
        .replace(QLatin1String("&quot;"), QLatin1String("\""))
        .replace(QLatin1String("&apos;"), QLatin1String("'"))
        .replace(QLatin1String("&amp;"), QLatin1String("&"));
    return text.simplified();
}
