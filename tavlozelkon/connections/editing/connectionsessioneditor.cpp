#include "connectionsessioneditor.h"

#include "connections/model/connectionmodel.h"
#include "connections/model/connectionsession.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>

const QString ConnectionSessionEditor::NEW_SESSION_ID = QStringLiteral("NEW_SESSION_ID");

ConnectionSessionEditor::ConnectionSessionEditor(ConnectionModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_save(new QPushButton(this))
    , m_cancel(new QPushButton(this))
    , m_buttons(new QHBoxLayout)
{
    m_save->setObjectName(QStringLiteral("SaveButton"));
    m_cancel->setObjectName(QStringLiteral("CancelButton"));
    m_buttons->addWidget(m_save, 0, Qt::AlignRight);
    m_buttons->addWidget(m_cancel, 0, Qt::AlignLeft);
    connect(m_save, &QPushButton::clicked, this, &ConnectionSessionEditor::saveEditedSession);
    connect(m_cancel, &QPushButton::clicked, this, &ConnectionSessionEditor::editingCanceled);
}

ConnectionSessionEditor::~ConnectionSessionEditor()
{
    // A page that never placed the buttons still owns their layout.
    if (!m_buttons->parent())
        delete m_buttons;
}

void ConnectionSessionEditor::resetSession()
{
    m_editedId = NEW_SESSION_ID;
    resetGui();
}

void ConnectionSessionEditor::setEditedSessionId(const QString& id)
{
    m_editedId = id;
    updateGui();
}

void ConnectionSessionEditor::saveEditedSession()
{
    if (!checkMandatoryFields())
        return;

    ConnectionSession* session = nullptr;
    if (m_editedId != NEW_SESSION_ID && !m_model.connectionTypeOf(m_editedId).isEmpty())
        session = m_model.session(m_editedId);
    if (!session) {
        // New, or gone from the model since the page was opened: stored as a new session,
        // and saving again from this page updates it instead of adding another.
        session = &createNewSession();
        saveSession(*session);
        m_editedId = session->id();
    } else {
        saveSession(*session);
    }
    emit sessionSaved(*session);
}

void ConnectionSessionEditor::retranslateUi()
{
    m_save->setText(tr("Save"));
    m_cancel->setText(tr("Cancel"));
}

void ConnectionSessionEditor::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    else
        QWidget::changeEvent(event);
}
