#pragma once

#include "tavlozelkon_lib_export.h"

#include <QString>
#include <QWidget>

class ConnectionModel;
class ConnectionSession;
class QHBoxLayout;
class QPushButton;

/*
 * Base of the editor pages of the connection editor, one page per connection type. It
 * remembers which session is edited (an id of the model, or NEW_SESSION_ID for one not
 * stored yet), owns the Save and Cancel buttons and runs the save: check the mandatory
 * fields, create the session when it is new, let the page write its fields, announce it.
 * A page is reused for every session of its type, so each showing starts from
 * resetGui() or updateGui().
 */
class TAVLOZELKON_LIB_EXPORT ConnectionSessionEditor : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(ConnectionSessionEditor)

public:
    static const QString NEW_SESSION_ID;

    explicit ConnectionSessionEditor(ConnectionModel& model, QWidget* parent = nullptr);
    ~ConnectionSessionEditor() override;

    // Starts a session that is not in the model yet.
    void resetSession();
    void setEditedSessionId(const QString& id);
    QString connectionSessionId() const { return m_editedId; }
    ConnectionModel& connectionModel() const { return m_model; }

    // Save and Cancel side by side; each page places it in its own layout.
    QHBoxLayout* saveCancelButtonsLayout() const { return m_buttons; }
    QPushButton* saveButton() const { return m_save; }
    QPushButton* cancelButton() const { return m_cancel; }

signals:
    void sessionSaved(ConnectionSession& session);
    void editingCanceled();

public slots:
    void saveEditedSession();

protected slots:
    virtual void retranslateUi();
    virtual void resetGui() = 0;
    virtual void updateGui() = 0;
    virtual ConnectionSession& createNewSession() = 0;
    virtual bool checkMandatoryFields() = 0;
    virtual void saveSession(ConnectionSession& session) = 0;

protected:
    void changeEvent(QEvent* event) override;

private:
    ConnectionModel& m_model;
    QString m_editedId;
    QPushButton* m_save;
    QPushButton* m_cancel;
    QHBoxLayout* m_buttons;
};
