#include "connectionnamevalidator.h"

#include "platform.h"

#include <QRegularExpression>

ConnectionNameValidator::ConnectionNameValidator(QObject* parent)
    : QValidator(parent)
{
}

ConnectionNameValidator::~ConnectionNameValidator() = default;

QValidator::State ConnectionNameValidator::validate(QString& input, int&) const
{
    if (Platform::isLunvex())
        return Acceptable;
    return hasAllowedCharacters(input) ? Acceptable : Invalid;
}

bool ConnectionNameValidator::hasAllowedCharacters(const QString& name)
{
    // Unicode properties make \w match every script's letters and digits, not only ASCII.
    static const QRegularExpression rule(QRegularExpression::anchoredPattern(QStringLiteral("(^$|[\\w\\d\\ .-]+)")),
                                         QRegularExpression::UseUnicodePropertiesOption);
    return rule.match(name).hasMatch();
}
