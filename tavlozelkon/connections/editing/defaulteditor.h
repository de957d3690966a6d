#pragma once

#include "connectionsessioneditor.h"
#include "tavlozelkon_lib_export.h"

class QCheckBox;
class QLabel;
class QLineEdit;

/*
 * The editor page of the connection types that need only a name, a server (or URL) and
 * whether the connection starts by itself. One page per type; the connection editor
 * gives each its header and, where it differs, the server field's label.
 */
class TAVLOZELKON_LIB_EXPORT DefaultEditor : public ConnectionSessionEditor
{
    Q_OBJECT
    Q_DISABLE_COPY(DefaultEditor)

public:
    DefaultEditor(const QString& type, ConnectionModel& model, QWidget* parent = nullptr);
    ~DefaultEditor() override;

    QString connectionType() const { return m_type; }

    // Both texts reach the labels at the next retranslateUi().
    void setHeaderString(const QString& header);
    QString headerString() const;
    void setServerString(const QString& label);
    QString serverString() const;
    // On the server field and its label.
    void setServerToolTip(const QString& toolTip);

    QLineEdit* nameEdit() const { return m_nameEdit; }
    QLineEdit* serverEdit() const { return m_serverEdit; }
    QCheckBox* autostartCheck() const { return m_autostart; }
    QLabel* headerLabel() const { return m_headerLabel; }
    QLabel* serverLabel() const { return m_serverLabel; }
    QLabel* iconLabel() const { return m_iconLabel; }

public slots:
    // Public: the connection editor sets the page's texts and then has it show them.
    void retranslateUi() override;

protected slots:
    void resetGui() override;
    void updateGui() override;
    ConnectionSession& createNewSession() override;
    bool checkMandatoryFields() override;
    void saveSession(ConnectionSession& session) override;

private:
    QString m_type;
    QString m_header;
    QString m_serverLabelText;
    QLabel* m_iconLabel;
    QLabel* m_headerLabel;
    QLabel* m_nameLabel;
    QLineEdit* m_nameEdit;
    QLabel* m_serverLabel;
    QLineEdit* m_serverEdit;
    QCheckBox* m_autostart;
};
