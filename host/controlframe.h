#pragma once

#include "tavlohost_export.h"

#include <QFrame>
#include <QIcon>

/*
 * Base of the settings frames that an Accordion shows. A frame names itself (title,
 * icon, help text), builds its texts in retranslateUi() and reports changes with dirty().
 */
class TAVLOHOST_EXPORT ControlFrame : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(ControlFrame)

public:
    explicit ControlFrame(QWidget* parent = nullptr);
    ~ControlFrame() override;

    virtual QString title() const;
    virtual QIcon icon() const;
    virtual QString helpText() const;
    virtual void retranslateUi();

signals:
    void dirty();

protected:
    void changeEvent(QEvent* event) override;
};
