#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

class QTranslator;

/*
 * The user interface language of the application: which languages the embedded
 * catalogues offer, which one the system asks for, and switching between them at run
 * time. Switching swaps the installed translators; Qt then sends every widget a
 * LanguageChange event, on which pages, frames and dialogs translate themselves anew.
 *
 * English is the language of the sources and needs no catalogue. Qt's own catalogue
 * (standard dialog buttons) is loaded beside ours when the system has it.
 */
class LanguageManager : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(LanguageManager)

public:
    static const QString SourceLanguage;

    // The application-wide manager, owned by the application object.
    static LanguageManager* instance();

    // Language codes ("en", "de", ...), English first, then the embedded catalogues.
    static QStringList availableLanguages();
    // The language's name in itself ("English", "Deutsch").
    static QString nativeName(const QString& language);
    // The available language that code names ("de", "DE", "de_AT", "de-DE"), or an empty
    // text when there is none.
    static QString matchLanguage(const QString& code);
    // The first of the system's preferred languages that is available, else English.
    static QString systemLanguage();
    static QString languageFor(const QStringList& preferred);

    QString currentLanguage() const { return m_current; }

public slots:
    // False, changing nothing, when language is not available.
    bool setLanguage(const QString& language);

signals:
    void languageChanged(const QString& language);

private:
    explicit LanguageManager(QObject* parent);
    void removeTranslators();

    QString m_current = SourceLanguage;
    QTranslator* m_ownTranslator = nullptr;
    QTranslator* m_qtTranslator = nullptr;
};
