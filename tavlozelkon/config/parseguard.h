#pragma once

#include "tavlozelkon_lib_export.h"

#include <QString>
#include <QtGlobal>

class QByteArray;
class QXmlStreamReader;

/*
 * Decides whether bytes may be handed to the DOM parser at all. The DOM parser recurses
 * once per level of nesting and builds every expanded entity in memory, so a hostile
 * file could crash the wizard or exhaust the machine before anything else sees it. The
 * guard reads the bytes once with a streaming reader, which needs neither, and refuses
 * what no real configuration (a few kilobytes, a handful of levels) comes near.
 */
class TAVLOZELKON_LIB_EXPORT ParseGuard
{
public:
    ParseGuard() = delete;

    // Larger files are refused before they are read. A configuration of this size holds
    // some 36,000 connections, far beyond any real one; loading, editing and saving it
    // takes seconds and a few hundred megabytes, which bounds what a hostile file can cost.
    static constexpr qint64 MaxFileBytes = 8 * 1024 * 1024;
    // Elements inside one another, the root counting as one.
    static constexpr int MaxDepth = 128;
    // Characters of text and attribute values after entity expansion. A file within
    // MaxFileBytes holds at most that many literally; more can only come from entities.
    static constexpr qint64 MaxTextCharacters = 2 * MaxFileBytes;
    // Characters any single entity may expand to.
    static constexpr int MaxEntityExpansion = 4096;

    enum class Verdict { Accepted, TooLarge, TooDeep, TooMuchText, NotWellFormed };

    struct Result
    {
        Verdict verdict = Verdict::Accepted;
        // Where reading stopped, and the reader's own words for a document that is not
        // well-formed.
        qint64 line = 0;
        qint64 column = 0;
        QString message;

        bool accepted() const { return verdict == Verdict::Accepted; }
    };

    // Shown every token of the pass, the reader standing on it, in document order, so that a
    // caller can build what it needs from this pass instead of reading the bytes again.
    // A token that breaks a limit or is not well-formed is not shown; reading stops there.
    class Listener
    {
    public:
        virtual ~Listener() = default;
        virtual void token(const QXmlStreamReader& reader) = 0;
    };

    static Result check(const QByteArray& content);
    static Result check(const QByteArray& content, Listener& listener);
};
