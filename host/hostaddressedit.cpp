#include "hostaddressedit.h"

#include <QHostAddress>
#include <QRegularExpression>
#include <QValidator>

namespace {
// Accepts what a user may type on the way to a valid address (Intermediate) and says
// Acceptable only for a complete host name, IPv4 or IPv6 address.
class HostAddressValidator : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString& input, int&) const override
    {
        if (input.isEmpty())
            return Intermediate;
        if (isHostName(input) || isIpAddress(input))
            return Acceptable;
        static const QRegularExpression allowed(QStringLiteral("^[A-Za-z0-9.:\\-\\[\\]%]*$"));
        return allowed.match(input).hasMatch() ? Intermediate : Invalid;
    }

private:
    static bool isIpAddress(const QString& text)
    {
        QString address = text;
        if (address.startsWith(QLatin1Char('[')) && address.endsWith(QLatin1Char(']')))
            address = address.mid(1, address.size() - 2);
        static const QRegularExpression dottedQuad(QStringLiteral("^\\d{1,3}(\\.\\d{1,3}){3}$"));
        QHostAddress parsed;
        if (!parsed.setAddress(address))
            return false;
        if (parsed.protocol() == QAbstractSocket::IPv4Protocol)
            return dottedQuad.match(address).hasMatch();
        return parsed.protocol() == QAbstractSocket::IPv6Protocol;
    }

    static bool isHostName(const QString& text)
    {
        if (text.size() > 253)
            return false;
        static const QRegularExpression label(QStringLiteral("^[A-Za-z0-9]([A-Za-z0-9-]{0,61}[A-Za-z0-9])?$"));
        static const QRegularExpression numeric(QStringLiteral("^[0-9.]+$"));
        if (numeric.match(text).hasMatch())
            return false; // all-numeric names are (bad) IPv4 addresses
        QString name = text;
        if (name.endsWith(QLatin1Char('.')))
            name.chop(1);
        const QStringList labels = name.split(QLatin1Char('.'));
        for (const QString& each : labels) {
            if (!label.match(each).hasMatch())
                return false;
        }
        return true;
    }
};
} // namespace

HostAddressEdit::HostAddressEdit(QWidget* parent)
    : QLineEdit(parent)
{
    setValidator(new HostAddressValidator(this));
}

HostAddressEdit::~HostAddressEdit() = default;
