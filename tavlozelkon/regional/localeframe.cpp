#include "localeframe.h"

#include "platform.h"

#include <QComboBox>
#include <iterator>

namespace {
// Each table ends with a guard entry that the counts leave out and no list shows.
const char* const CeSystemLocale[] = {
    QT_TRANSLATE_NOOP("LocaleFrame", "English"),
    QT_TRANSLATE_NOOP("LocaleFrame", "French"),
    QT_TRANSLATE_NOOP("LocaleFrame", "German"),
    QT_TRANSLATE_NOOP("LocaleFrame", "Spanish"),
    "OVERFLOW CHECK",
};
const int CeSystemLocaleCount = 4;
static_assert(std::size(CeSystemLocale) == CeSystemLocaleCount + 1);

const char* const WesSystemLocale[] = {
    QT_TRANSLATE_NOOP("LocaleFrame", "Dutch"),
    QT_TRANSLATE_NOOP("LocaleFrame", "English"),
    QT_TRANSLATE_NOOP("LocaleFrame", "French"),
    QT_TRANSLATE_NOOP("LocaleFrame", "German"),
    QT_TRANSLATE_NOOP("LocaleFrame", "Norwegian"),
    QT_TRANSLATE_NOOP("LocaleFrame", "Spanish"),
    "OVERFLOW CHECK",
};
const int WesSystemLocaleCount = 6;
static_assert(std::size(WesSystemLocale) == WesSystemLocaleCount + 1);

const char* const LunvexSystemLocale[] = {
    QT_TRANSLATE_NOOP("LocaleFrame", "Chinese (Simplified)"),
    QT_TRANSLATE_NOOP("LocaleFrame", "English"),
    QT_TRANSLATE_NOOP("LocaleFrame", "French"),
    QT_TRANSLATE_NOOP("LocaleFrame", "German"),
    QT_TRANSLATE_NOOP("LocaleFrame", "Japanese"),
    QT_TRANSLATE_NOOP("LocaleFrame", "Spanish"),
    "OVERFLOW CHECK",
};
const int LunvexSystemLocaleCount = 6;
static_assert(std::size(LunvexSystemLocale) == LunvexSystemLocaleCount + 1);

// Added after the WES (and WES7) list when standalone.
const char* const WesSystemLocaleSa[] = {
    QT_TRANSLATE_NOOP("LocaleFrame", "Chinese (Simplified)"),
    QT_TRANSLATE_NOOP("LocaleFrame", "Chinese (Traditional)"),
    QT_TRANSLATE_NOOP("LocaleFrame", "Korean"),
    QT_TRANSLATE_NOOP("LocaleFrame", "Japanese"),
    "OVERFLOW CHECK",
};
const int WesSystemLocaleSaCount = 4;
static_assert(std::size(WesSystemLocaleSa) == WesSystemLocaleSaCount + 1);

// Added after the CE list when standalone.
const char* const CeSystemLocaleSa[] = {
    QT_TRANSLATE_NOOP("LocaleFrame", "Chinese (Simplified)"),
    QT_TRANSLATE_NOOP("LocaleFrame", "Chinese (Traditional)"),
    QT_TRANSLATE_NOOP("LocaleFrame", "Korean"),
    "OVERFLOW CHECK",
};
const int CeSystemLocaleSaCount = 3;
static_assert(std::size(CeSystemLocaleSa) == CeSystemLocaleSaCount + 1);
} // namespace

LocaleFrame::LocaleFrame(QWidget* parent)
    : PlatformChoiceFrame(QStringLiteral("system_locale"), QStringLiteral("locale"), QStringLiteral("English"), parent)
{
    comboBox()->setObjectName(QStringLiteral("SystemLocaleCombo"));
    updatePlatformOptions();
    retranslateUi();
}

LocaleFrame::~LocaleFrame() = default;

QStringList LocaleFrame::choices() const
{
    QStringList names;
    if (Platform::isCe())
        names = tableEntries(CeSystemLocale, CeSystemLocaleCount);
    else if (Platform::isWes() || Platform::isWes7())
        names = tableEntries(WesSystemLocale, WesSystemLocaleCount);
    else if (Platform::isLunvex())
        names = tableEntries(LunvexSystemLocale, LunvexSystemLocaleCount);

    if (!Platform::isStandalone())
        names += additionalLocalbyOS();
    else if (Platform::isWes() || Platform::isWes7())
        names += tableEntries(WesSystemLocaleSa, WesSystemLocaleSaCount);
    else if (Platform::isCe())
        names += tableEntries(CeSystemLocaleSa, CeSystemLocaleSaCount);
    return names;
}

QStringList LocaleFrame::additionalLocalbyOS() const
{
    return QStringList();
}

QString LocaleFrame::title() const
{
    return tr("Locale");
}

QIcon LocaleFrame::icon() const
{
    return QIcon(QStringLiteral(":/images/regional/locale.svg"));
}

QString LocaleFrame::helpText() const
{
    return tr("<b>Locale</b> <br>This sets the language the Thin Client will use. It will also set the format used "
              "for dates and the currency symbol.");
}

QString LocaleFrame::labelText() const
{
    return tr("&Language:");
}
