#pragma once

#include "connectionsessioneditor.h"
#include "tavlozelkon_lib_export.h"

class ProxyFields;
class QCheckBox;
class QLabel;
class QLineEdit;

/*
 * Editor page of ICA sessions: name, server and auto start as on the default page, plus
 * the session's HTTPS proxy, kept in the session's child atom "proxy".
 */
class TAVLOZELKON_LIB_EXPORT IcaEditor : public ConnectionSessionEditor
{
    Q_OBJECT
    Q_DISABLE_COPY(IcaEditor)

public:
    explicit IcaEditor(ConnectionModel& model, QWidget* parent = nullptr);
    ~IcaEditor() override;

public slots:
    void enableProxySettings(int state);

protected slots:
    void retranslateUi() override;
    void resetGui() override;
    void updateGui() override;
    ConnectionSession& createNewSession() override;
    bool checkMandatoryFields() override;
    void saveSession(ConnectionSession& session) override;

private:
    QLabel* m_header;
    QLabel* m_nameLabel;
    QLineEdit* m_name;
    QLabel* m_serverLabel;
    QLineEdit* m_server;
    QCheckBox* m_autoStart;
    ProxyFields* m_proxy;
};
