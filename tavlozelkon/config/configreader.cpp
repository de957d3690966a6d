#include "configreader.h"

#include "attributeorder.h"
#include "dombuilder.h"

#include <QByteArray>
#include <QDomDocument>
#include <QFile>
#include <QXmlStreamReader>
#include <algorithm>

namespace {
// Notes the attribute order for pairing with the document Qt's parser makes.
class OrderNotes : public ParseGuard::Listener
{
public:
    explicit OrderNotes(AttributeOrder& order)
        : m_order(order)
    {
        m_order.clear();
    }
    void token(const QXmlStreamReader& reader) override
    {
        if (reader.tokenType() == QXmlStreamReader::StartElement)
            m_order.noteElement(reader);
    }

private:
    AttributeOrder& m_order;
};

bool isBlank(const QByteArray& content)
{
    return std::all_of(content.cbegin(), content.cend(), [](char c) { return QChar::isSpace(uchar(c)); });
}

// Qt's parser after the guard's pass, which noted the order.
void parseWithQt(const QByteArray& content, QDomDocument& document, AttributeOrder& order, ConfigReader::Result& result)
{
    result.route = ConfigReader::Route::DomParser;
    QDomDocument parsed;
    int line = 0;
    int column = 0;
    if (!parsed.setContent(content, true, &result.parse.message, &line, &column)) {
        result.parse.verdict = ParseGuard::Verdict::NotWellFormed;
        result.parse.line = line;
        result.parse.column = column;
        order.clear();
        return;
    }
    order.pairWith(parsed);
    document = parsed;
}

void refused(const QByteArray& content, AttributeOrder& order, ConfigReader::Result& result)
{
    order.clear();
    if (result.parse.verdict == ParseGuard::Verdict::NotWellFormed)
        result.blank = isBlank(content);
}
} // namespace

ConfigReader::Result ConfigReader::read(const QByteArray& content, QDomDocument& document, AttributeOrder* order)
{
    AttributeOrder unused;
    AttributeOrder& notes = order ? *order : unused;
    Result result;
    QDomDocument built;
    {
        DomBuilder builder(notes, content);
        result.parse = ParseGuard::check(content, builder);
        if (!result.parse.accepted()) {
            refused(content, notes, result);
            return result;
        }
        if (builder.gaveUp()) {
            parseWithQt(content, document, notes, result);
            return result;
        }
        built = builder.finish();
    }
    document = built;
    return result;
}

ConfigReader::Result ConfigReader::readFile(const QString& path, QDomDocument& document, AttributeOrder* order)
{
    Result result;
    // Binary on purpose: text mode drops every 0x0D byte, which is half of a character in
    // UTF-16 ("\r" and letters such as U+010D alike). The XML parser detects the encoding
    // and normalises line ends itself.
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        result.opened = false;
        result.openError = file.errorString();
        return result;
    }
    // Reading one byte past the limit also catches pipes and devices, which tell no size.
    if (file.size() > ParseGuard::MaxFileBytes) {
        result.parse.verdict = ParseGuard::Verdict::TooLarge;
        return result;
    }
    const QByteArray content = file.isSequential() ? file.read(ParseGuard::MaxFileBytes + 1) : file.readAll();
    file.close();
    return read(content, document, order);
}

ConfigReader::Result ConfigReader::readWithDomParser(const QByteArray& content, QDomDocument& document,
                                                     AttributeOrder* order)
{
    AttributeOrder unused;
    AttributeOrder& notes = order ? *order : unused;
    OrderNotes listener(notes);
    Result result;
    result.parse = ParseGuard::check(content, listener);
    if (!result.parse.accepted())
        refused(content, notes, result);
    else
        parseWithQt(content, document, notes, result);
    return result;
}
