#pragma once

#include "managementframe.h"

/*
 * Switches the Corrand device-management agent on or off ("corrand" section).
 */
class TAVLOZELKON_LIB_EXPORT CorrandFrame : public ManagementFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(CorrandFrame)

public:
    explicit CorrandFrame(QWidget* parent = nullptr);
    ~CorrandFrame() override;

    QString title() const override;
    QString helpText() const override;
    QIcon icon() const override;
};
