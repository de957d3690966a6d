#include "languagemanager.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {
const QString CatalogueDir = QStringLiteral(":/translations");
const QString CataloguePrefix = QStringLiteral("zelkon_");
const QString CatalogueSuffix = QStringLiteral(".qm");
} // namespace

// Outside any namespace, where Q_INIT_RESOURCE has to be.
static void initResources()
{
    // The catalogues live in a static library, which the linker would otherwise drop.
    static const bool done = [] {
        Q_INIT_RESOURCE(zelkon_translations);
        return true;
    }();
    Q_UNUSED(done)
}

const QString LanguageManager::SourceLanguage = QStringLiteral("en");

LanguageManager::LanguageManager(QObject* parent)
    : QObject(parent)
{
}

LanguageManager* LanguageManager::instance()
{
    static LanguageManager* manager = nullptr;
    if (!manager) {
        manager = new LanguageManager(QCoreApplication::instance());
        QObject::connect(manager, &QObject::destroyed, [] { manager = nullptr; });
    }
    return manager;
}

QStringList LanguageManager::availableLanguages()
{
    // The catalogues are compiled in: the list is made once, and without a wildcard
    // filter, whose pattern would be compiled on every start.
    static const QStringList languages = [] {
        initResources();
        QStringList found { SourceLanguage };
        const QStringList files = QDir(CatalogueDir).entryList(QDir::Files, QDir::Name);
        for (const QString& file : files) {
            if (file.startsWith(CataloguePrefix) && file.endsWith(CatalogueSuffix))
                found.append(
                    file.mid(CataloguePrefix.size(), file.size() - CataloguePrefix.size() - CatalogueSuffix.size()));
        }
        return found;
    }();
    return languages;
}

QString LanguageManager::nativeName(const QString& language)
{
    // Qt calls it "American English", which is not what the catalogue-less sources are.
    if (language == SourceLanguage)
        return QStringLiteral("English");
    QString name = QLocale(language).nativeLanguageName();
    if (name.isEmpty())
        return language;
    name[0] = name.at(0).toUpper();
    return name;
}

QString LanguageManager::matchLanguage(const QString& code)
{
    // The language is what comes before the region; split by hand, as a pattern would
    // be compiled on every start.
    QString wanted = code.toLower();
    for (const QChar separator : { QLatin1Char('-'), QLatin1Char('_') })
        wanted = wanted.section(separator, 0, 0);
    return availableLanguages().contains(wanted) ? wanted : QString();
}

QString LanguageManager::systemLanguage()
{
    return languageFor(QLocale::system().uiLanguages());
}

QString LanguageManager::languageFor(const QStringList& preferred)
{
    for (const QString& code : preferred) {
        const QString language = matchLanguage(code);
        if (!language.isEmpty())
            return language;
    }
    return SourceLanguage;
}

bool LanguageManager::setLanguage(const QString& language)
{
    if (!availableLanguages().contains(language))
        return false;
    if (language == m_current)
        return true;
    removeTranslators();
    if (language != SourceLanguage) {
        m_ownTranslator = new QTranslator(this);
        if (!m_ownTranslator->load(CataloguePrefix + language, CatalogueDir)) {
            delete m_ownTranslator;
            m_ownTranslator = nullptr;
            return false;
        }
        QCoreApplication::installTranslator(m_ownTranslator);
        // Optional: without it the standard buttons stay in English.
        m_qtTranslator = new QTranslator(this);
        if (m_qtTranslator->load(QStringLiteral("qtbase_") + language,
                                 QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
            QCoreApplication::installTranslator(m_qtTranslator);
        } else {
            delete m_qtTranslator;
            m_qtTranslator = nullptr;
        }
    }
    m_current = language;
    emit languageChanged(language);
    return true;
}

void LanguageManager::removeTranslators()
{
    for (QTranslator** translator : { &m_ownTranslator, &m_qtTranslator }) {
        if (*translator) {
            QCoreApplication::removeTranslator(*translator);
            delete *translator;
            *translator = nullptr;
        }
    }
}
