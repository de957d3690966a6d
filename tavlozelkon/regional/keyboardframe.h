#pragma once

#include "platformchoiceframe.h"

// The keyboard layout of the thin client ("keyboard/layout"), from the platform's list.
class TAVLOZELKON_LIB_EXPORT KeyboardFrame : public PlatformChoiceFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(KeyboardFrame)

public:
    explicit KeyboardFrame(QWidget* parent = nullptr);
    ~KeyboardFrame() override;

    QString title() const override;
    QIcon icon() const override;
    QString helpText() const override;

protected:
    // WES, CE and Lunvex have a list each; other targets (WES7) offer none.
    QStringList choices() const override;
    QString labelText() const override;
};
