#include "parseguard.h"

#include <QByteArray>
#include <QXmlStreamReader>

namespace {
class NoListener : public ParseGuard::Listener
{
public:
    void token(const QXmlStreamReader&) override { }
};
} // namespace

ParseGuard::Result ParseGuard::check(const QByteArray& content)
{
    NoListener none;
    return check(content, none);
}

ParseGuard::Result ParseGuard::check(const QByteArray& content, Listener& listener)
{
    Result result;
    if (content.size() > MaxFileBytes) {
        result.verdict = Verdict::TooLarge;
        return result;
    }

    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(true);
    reader.setEntityExpansionLimit(MaxEntityExpansion);
    int depth = 0;
    qint64 text = 0;
    const auto stop = [&](Verdict verdict) {
        result.verdict = verdict;
        result.line = reader.lineNumber();
        result.column = reader.columnNumber();
        return result;
    };
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement: {
            if (++depth > MaxDepth)
                return stop(Verdict::TooDeep);
            const QXmlStreamAttributes attributes = reader.attributes();
            for (const QXmlStreamAttribute& attribute : attributes)
                text += attribute.value().size();
            break;
        }
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        case QXmlStreamReader::Characters:
            text += reader.text().size();
            break;
        default:
            break;
        }
        if (text > MaxTextCharacters)
            return stop(Verdict::TooMuchText);
        if (!reader.hasError())
            listener.token(reader);
    }
    // Whatever the streaming reader rejects is not handed on either: past its first error
    // it has checked nothing, and the DOM parser might read on.
    if (reader.hasError()) {
        stop(Verdict::NotWellFormed);
        result.message = reader.errorString();
    }
    return result;
}
