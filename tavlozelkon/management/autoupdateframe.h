#pragma once

#include "managementframe.h"

class QLabel;
class QLineEdit;

/*
 * Automatic updates ("auto_update" section): whether they run and the file server they
 * come from. The path on that server is a CE setting: its row is shown, read and
 * written only while the target platform is CE, and left as it is otherwise.
 */
class TAVLOZELKON_LIB_EXPORT AutoUpdateFrame : public ManagementFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(AutoUpdateFrame)

public:
    explicit AutoUpdateFrame(QWidget* parent = nullptr);
    ~AutoUpdateFrame() override;

    QString title() const override;
    QString helpText() const override;
    QIcon icon() const override;
    void retranslateUi() override;

    QLineEdit* serverEdit() const { return m_server; }
    QLineEdit* pathEdit() const { return m_path; }

public slots:
    void updatePlatformOptions();

private:
    void setup();

    QLabel* m_serverLabel = nullptr;
    QLineEdit* m_server = nullptr;
    QLabel* m_pathLabel = nullptr;
    QLineEdit* m_path = nullptr;
};
