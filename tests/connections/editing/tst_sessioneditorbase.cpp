#include "connections/editing/connectionsessioneditor.h"
#include "connections/model/connectionkindred.h"
#include "connections/model/connectionmodel.h"
#include "connections/model/connectionsession.h"

#include <QLayout>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

namespace {
// The least an editor page does: one name field, mandatory when asked.
class NameEditor : public ConnectionSessionEditor
{
public:
    explicit NameEditor(ConnectionModel& model)
        : ConnectionSessionEditor(model)
    {
        auto* layout = new QVBoxLayout(this);
        layout->addLayout(saveCancelButtonsLayout());
        retranslateUi();
    }

    QString name;
    bool mandatoryFilled = true;
    int resets = 0;
    int updates = 0;

protected:
    void resetGui() override { ++resets; }
    void updateGui() override { ++updates; }
    ConnectionSession& createNewSession() override
    {
        return connectionModel().connections(QStringLiteral("rdp"))->session(QString());
    }
    bool checkMandatoryFields() override { return mandatoryFilled; }
    void saveSession(ConnectionSession& session) override { session.setProperty("name", name); }
};
} // namespace

class SessionEditorBaseTest : public QObject
{
    Q_OBJECT

private slots:
    void newSessionIsCreatedOnceThenUpdated()
    {
        ConnectionModel model;
        NameEditor editor(model);
        QCOMPARE(editor.saveButton()->text(), QStringLiteral("Save"));
        QCOMPARE(editor.cancelButton()->text(), QStringLiteral("Cancel"));
        QSignalSpy saved(&editor, &ConnectionSessionEditor::sessionSaved);

        editor.resetSession();
        QCOMPARE(editor.connectionSessionId(), QStringLiteral("NEW_SESSION_ID"));
        QCOMPARE(editor.resets, 1);

        // Missing mandatory fields: nothing stored, nothing announced.
        editor.mandatoryFilled = false;
        editor.saveButton()->click();
        QCOMPARE(model.connections(QStringLiteral("rdp"))->sessions().size(), 0);
        QCOMPARE(saved.count(), 0);

        editor.mandatoryFilled = true;
        editor.name = QStringLiteral("First");
        editor.saveButton()->click();
        editor.name = QStringLiteral("Second");
        editor.saveButton()->click();
        const QList<ConnectionSession*> sessions = model.connections(QStringLiteral("rdp"))->sessions();
        QCOMPARE(sessions.size(), 1);
        QCOMPARE(sessions.first()->property("name").toString(), QStringLiteral("Second"));
        QCOMPARE(editor.connectionSessionId(), sessions.first()->id());
        QCOMPARE(saved.count(), 2);

        // Opening a stored session updates the page from it.
        editor.setEditedSessionId(sessions.first()->id());
        QCOMPARE(editor.updates, 1);
    }

    void cancelOnlyAnnounces()
    {
        ConnectionModel model;
        NameEditor editor(model);
        QSignalSpy canceled(&editor, &ConnectionSessionEditor::editingCanceled);
        QSignalSpy saved(&editor, &ConnectionSessionEditor::sessionSaved);
        editor.resetSession();
        editor.cancelButton()->click();
        QCOMPARE(canceled.count(), 1);
        QCOMPARE(saved.count(), 0);
        QCOMPARE(model.connections(QStringLiteral("rdp"))->sessions().size(), 0);
    }
};

QTEST_MAIN(SessionEditorBaseTest)
#include "tst_sessioneditorbase.moc"
