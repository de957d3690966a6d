#pragma once

#include "managementframe.h"

class QLabel;
class QLineEdit;

/*
 * Remote assistance ("remote_assistance" section): the thin client's VNC application
 * and its password. CE needs the password when VNC is enabled; nothing enforces it
 * but the help text and the focus that every switch of the check box moves to the
 * password.
 */
class TAVLOZELKON_LIB_EXPORT RemoteAssistanceFrame : public ManagementFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(RemoteAssistanceFrame)

public:
    explicit RemoteAssistanceFrame(QWidget* parent = nullptr);
    ~RemoteAssistanceFrame() override;

    QString title() const override;
    QString helpText() const override;
    QIcon icon() const override;
    void retranslateUi() override;

    QLineEdit* passwordEdit() const { return m_password; }

public slots:
    void enforcePassword();

private:
    void setup();

    QLineEdit* m_password = nullptr;
    QLabel* m_passwordLabel = nullptr;
};
