#pragma once

#include <QTranslator>

// Translates every text into itself between guillemets, so that a test sees at once which
// texts went through a translation function after a language switch and which did not.
class MarkingTranslator : public QTranslator
{
public:
    static QString mark(const QString& source) { return QStringLiteral("\u00ab%1\u00bb").arg(source); }
    static bool isMarked(const QString& text) { return text.contains(QChar(0x00ab)); }

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* disambiguation, int n) const override
    {
        Q_UNUSED(context)
        Q_UNUSED(disambiguation)
        Q_UNUSED(n)
        if (!source || !*source)
            return QString();
        return mark(QString::fromUtf8(source));
    }
};
