#pragma once

#include "managementframe.h"

/*
 * Switches the Pellam client-automation agent on or off ("pellam" section).
 */
class TAVLOZELKON_LIB_EXPORT PellamFrame : public ManagementFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(PellamFrame)

public:
    explicit PellamFrame(QWidget* parent = nullptr);
    ~PellamFrame() override;

    QString title() const override;
    QString helpText() const override;
    QIcon icon() const override;
};
