#pragma once

#include "connectionsessioneditor.h"
#include "tavlozelkon_lib_export.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QStackedWidget;

/*
 * Editor page of terminal emulator sessions: name, auto start, the emulation and the
 * transport, with the settings of the chosen transport on a page of their own. The combos
 * show translated texts and store fixed keys, so a session reads the same in any language.
 */
class TAVLOZELKON_LIB_EXPORT ParlixEditor : public ConnectionSessionEditor
{
    Q_OBJECT
    Q_DISABLE_COPY(ParlixEditor)

public:
    explicit ParlixEditor(ConnectionModel& model, QWidget* parent = nullptr);
    ~ParlixEditor() override;

    void populateEmulationCB();
    void populateTransportCB();

public slots:
    void showTransportSettings(int index);

protected slots:
    void retranslateUi() override;
    void resetGui() override;
    void updateGui() override;
    ConnectionSession& createNewSession() override;
    bool checkMandatoryFields() override;
    void saveSession(ConnectionSession& session) override;

private:
    QGroupBox* createSshPage();
    QGroupBox* createSerialPage();
    QGroupBox* createTcpIpPage();
    void resetTransportFields();
    QString currentTransport() const;

    QLabel* m_header;
    QLabel* m_nameLabel;
    QLineEdit* m_name;
    QCheckBox* m_autoStart;
    QLabel* m_emulationLabel;
    QComboBox* m_emulation;
    QLabel* m_transportLabel;
    QComboBox* m_transport;
    QStackedWidget* m_transportPages;

    QGroupBox* m_sshPage = nullptr;
    QLabel* m_sshHostLabel = nullptr;
    QLineEdit* m_sshHost = nullptr;
    QLabel* m_sshPortLabel = nullptr;
    QLineEdit* m_sshPort = nullptr;

    QGroupBox* m_serialPage = nullptr;
    QLabel* m_serialDefaults = nullptr;

    QGroupBox* m_tcpIpPage = nullptr;
    QLabel* m_tcpLocalPortLabel = nullptr;
    QLineEdit* m_tcpLocalPort = nullptr;
    QLabel* m_tcpHostLabel = nullptr;
    QLineEdit* m_tcpHost = nullptr;
    QLabel* m_tcpPortLabel = nullptr;
    QLineEdit* m_tcpPort = nullptr;
};
