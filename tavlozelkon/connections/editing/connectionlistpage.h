#pragma once

#include "tavlozelkon_lib_export.h"

#include <QString>
#include <QWidget>

class ConnectionModel;
class ConnectionSession;
class QCheckBox;
class QLabel;
class QPushButton;
class QTableWidget;

/*
 * The first page of the connection editor: every connection of every supported type in
 * one table sorted by name, with its type icon, renamed in place, opened in its editor or
 * deleted after a confirmation; a button for a new connection and the kiosk mode switch.
 * The table is rebuilt from the model on every refresh and keeps nothing of its own.
 */
class TAVLOZELKON_LIB_EXPORT ConnectionListPage : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(ConnectionListPage)

public:
    explicit ConnectionListPage(ConnectionModel& model, QWidget* parent = nullptr);
    ~ConnectionListPage() override;

    // Starts renaming the session's row in place; the row is found by name, then by id.
    void editSessionName(const ConnectionSession& session);

    QTableWidget* table() const { return m_table; }
    QCheckBox* kioskCheck() const { return m_kioskCheck; }
    QPushButton* newConnectionButton() const { return m_newButton; }
    QLabel* noConnectionLabel() const { return m_emptyLabel; }

signals:
    void newConnection();
    void editConnection(QString sessionId);
    void sessionSaved(ConnectionSession& session);
    // On every refresh that finds connections, and when kiosk mode goes off with the last one.
    void modified();

public slots:
    void refreshConnectionTable();
    void changeConnectionName(const QString& sessionId, const QString& name);
    void deleteConnection(QString sessionId);
    void changeKioskMode(int state);

protected:
    void retranslateUi();
    void changeEvent(QEvent* event) override;

private:
    void fillRow(int row, const QString& type, const ConnectionSession& session);

    ConnectionModel& m_model;
    QLabel* m_emptyLabel;
    QTableWidget* m_table;
    QCheckBox* m_kioskCheck;
    QPushButton* m_newButton;
};
