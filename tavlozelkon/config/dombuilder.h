#pragma once

#include "parseguard.h"

#include <QDomDocument>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringView>

class AttributeOrder;

/*
 * Builds, from the tokens of ParseGuard's pass, the tree that Qt's DOM parser builds from
 * the same bytes with namespace processing on, through the public DOM interface and
 * without recursion. Names are shared and text nodes are cloned from one prototype, which
 * makes the tree a good deal smaller than the parser's.
 *
 * It notes the attribute order of every element in an AttributeOrder, also after it has
 * met something it does not build exactly and given up building, so that the caller can
 * pair the notes with the document Qt's parser makes instead.
 */
class DomBuilder : public ParseGuard::Listener
{
public:
    // content is what the pass reads: a few facts about its bytes decide what the stream
    // reader cannot tell. It must outlive the builder.
    DomBuilder(AttributeOrder& order, const QByteArray& content);

    void token(const QXmlStreamReader& reader) override;

    // Whether the bytes held something this builder does not reproduce exactly.
    bool gaveUp() const { return m_gaveUp; }
    // The document built so far, with the attribute order paired with its elements.
    QDomDocument finish();

private:
    void giveUp();
    void startElement(const QXmlStreamReader& reader, bool noted);
    void flushText();
    // Whether the DOM parser would have kept text differently from how the stream reader
    // gives it.
    bool differsFromParser(QStringView text) const;
    bool hasCarriageReturns() const;
    bool hasCharacterReferences() const;
    bool isPlainDeclaration() const;
    static bool isPlainName(const QStringRef& name);
    QString sharedName(const QStringRef& name);

    AttributeOrder& m_order;
    const QByteArray& m_content;
    // Learnt from the bytes when first needed: most files never need them.
    enum class Fact { Unknown, Absent, Present };
    mutable Fact m_carriageReturns = Fact::Unknown;
    mutable Fact m_characterReferences = Fact::Unknown;
    bool m_gaveUp = false;
    QDomDocument m_document;
    QDomText m_textPrototype;
    QDomNode m_parent;
    // Character data up to the next markup, which the DOM parser makes one text node of.
    QString m_text;
    QHash<QStringView, QString> m_names;
    // The elements the order noted, in document order.
    QList<QDomElement> m_noted;
};
