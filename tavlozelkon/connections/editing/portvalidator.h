#pragma once

#include <QIntValidator>

/*
 * Digits of a port from 0 to top. Unlike QIntValidator, which lets a number with as many
 * digits as the top pass as intermediate ("70000" against 65535), a keystroke that goes
 * above the top is refused at once: the pages do not check ports again when they save.
 */
class PortValidator : public QIntValidator
{
    Q_OBJECT
    Q_DISABLE_COPY(PortValidator)

public:
    // The connection pages have always accepted 65536, one above the largest TCP port.
    static constexpr int ConnectionPortTop = 65536;
    static constexpr int LargestPort = 65535;

    PortValidator(int top, QObject* parent);
    ~PortValidator() override;

    State validate(QString& input, int& pos) const override;
};
