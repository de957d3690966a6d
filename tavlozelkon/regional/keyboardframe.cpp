#include "keyboardframe.h"

#include "platform.h"

#include <QComboBox>
#include <iterator>

namespace {
const char* const WesKeyboardLayout[] = {
    QT_TRANSLATE_NOOP("KeyboardFrame", "Belgium"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Brazil"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Canada (French)"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Chinese (Simplified) - US Keyboard"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Chinese (Traditional) - US Keyboard"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Croatia"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Czech Republic"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Denmark"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "France"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Germany"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Hungary"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Italy"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Japan"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Korea"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Latin America"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Netherlands"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Norway"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Poland"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Portugal"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Romania"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Russia"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Slovakia"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Spain"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Sweden"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Switzerland (German)"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Switzerland (French)"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Turkey"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "United Kingdom (English)"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "United States (English)"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "United States (English), Dvorak"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "United States (English), International"),
};
const int WesKeyboardLayoutCount = 31;
static_assert(std::size(WesKeyboardLayout) == WesKeyboardLayoutCount);

const char* const CeKeyboardLayout[] = {
    QT_TRANSLATE_NOOP("KeyboardFrame", "Belgium"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Brazil"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Bulgaria"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Canada (French)"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Chinese (Simplified) - US Keyboard"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Chinese (Simplified) - IME"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Chinese (Traditional) - US Keyboard"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Chinese (Traditional) - IME"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Croatia"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Czech Republic"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Denmark"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "France"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Germany"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Hungary"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Italy"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Japan"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Korea"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Latin America"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Netherlands"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Norway"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Poland"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Portugal"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Romania"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Russia"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Slovakia"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Spain"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Sweden"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Switzerland (German)"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Switzerland (French)"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Turkey"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Ukraine"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "United Kingdom (English)"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "United States (English)"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "United States (English), Dvorak"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "United States (English), International"),
};
const int CeKeyboardLayoutCount = 35;
static_assert(std::size(CeKeyboardLayout) == CeKeyboardLayoutCount);

const char* const LunvexKeyboardLayout[] = {
    QT_TRANSLATE_NOOP("KeyboardFrame", "Belgium"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Brazil"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Bulgaria"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Canada (French)"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Croatia"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Czech Republic"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Denmark"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Finland"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "France"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Germany"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Hungary"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Italy"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Japan"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Korea"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Latin America"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Netherlands"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Norway"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Poland"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Portugal"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Romania"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Russia"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Slovakia"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Spain"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Sweden"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Switzerland (German)"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Switzerland (French)"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Turkey"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "Ukraine"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "United Kingdom (English)"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "United States (English)"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "United States (English), Dvorak"),
    QT_TRANSLATE_NOOP("KeyboardFrame", "United States (English), International"),
};
const int LunvexKeyboardLayoutCount = 32;
static_assert(std::size(LunvexKeyboardLayout) == LunvexKeyboardLayoutCount);
} // namespace

KeyboardFrame::KeyboardFrame(QWidget* parent)
    : PlatformChoiceFrame(QStringLiteral("keyboard"), QStringLiteral("layout"),
                          QStringLiteral("United States (English)"), parent)
{
    comboBox()->setObjectName(QStringLiteral("KeyboardLayoutCombo"));
    updatePlatformOptions();
    retranslateUi();
}

KeyboardFrame::~KeyboardFrame() = default;

QStringList KeyboardFrame::choices() const
{
    if (Platform::isWes())
        return tableEntries(WesKeyboardLayout, WesKeyboardLayoutCount);
    if (Platform::isCe())
        return tableEntries(CeKeyboardLayout, CeKeyboardLayoutCount);
    if (Platform::isLunvex())
        return tableEntries(LunvexKeyboardLayout, LunvexKeyboardLayoutCount);
    return QStringList();
}

QString KeyboardFrame::title() const
{
    return tr("Keyboard");
}

QIcon KeyboardFrame::icon() const
{
    return QIcon(QStringLiteral(":/images/regional/keyboard.svg"));
}

QString KeyboardFrame::helpText() const
{
    QString text = tr("<b>Keyboard</b> <br> This sets the keyboard layout used by the Thin Client.");
    if (Platform::isWes() || Platform::isCe())
        text += tr("<br><br><b> Warning - set the incorrect keyboard layout could disable Windows' Text Services and "
                   "Input Languages function.</b>");
    return text;
}

QString KeyboardFrame::labelText() const
{
    return tr("&Layout:");
}
