#pragma once

#include "managementframe.h"

class HostAddressEdit;
class QLabel;

/*
 * Switches the Altiris management agent on or off and names its server ("altiris"
 * section). No page of the wizard places it; a host that manages Altiris clients may.
 * Only the check box is shown: the server address is kept and saved through an edit
 * that is not laid out.
 */
class TAVLOZELKON_LIB_EXPORT AltirisFrame : public ManagementFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(AltirisFrame)

public:
    explicit AltirisFrame(QWidget* parent = nullptr);
    ~AltirisFrame() override;

    QString title() const override;
    QString helpText() const override;
    QIcon icon() const override;
    void retranslateUi() override;

    HostAddressEdit* serverAddressEdit() const { return m_serverAddress; }

private:
    void setup();

    QLabel* m_serverLabel = nullptr;
    HostAddressEdit* m_serverAddress = nullptr;
};
