#pragma once

#include "connectionsessioneditor.h"
#include "tavlozelkon_lib_export.h"

class ProxyFields;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;

/*
 * Editor page of web browser sessions: name, start URL and auto start of the session, and
 * the proxy that all browser sessions share. The proxy lives in the browser type's atom
 * "general_settings", where the document keeps it, so saving any browser session stores
 * it for all of them.
 */
class TAVLOZELKON_LIB_EXPORT WebBrowserEditor : public ConnectionSessionEditor
{
    Q_OBJECT
    Q_DISABLE_COPY(WebBrowserEditor)

public:
    explicit WebBrowserEditor(ConnectionModel& model, QWidget* parent = nullptr);
    ~WebBrowserEditor() override;

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
    void showSharedProxy();

    QLabel* m_header;
    QLabel* m_nameLabel;
    QLineEdit* m_name;
    QLabel* m_urlLabel;
    QLineEdit* m_url;
    QCheckBox* m_autoStart;
    QGroupBox* m_proxyGroup;
    ProxyFields* m_proxy;
};
