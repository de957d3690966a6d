#include "connectioneditor.h"

#include "connectionlistpage.h"
#include "connectionnamevalidator.h"
#include "connectionselectorpage.h"
#include "connectionsessioneditor.h"
#include "defaulteditor.h"
#include "editingmessagebox.h"
#include "icaeditor.h"
#include "parlixeditor.h"
#include "webbrowsereditor.h"

#include "connections/model/connectionmodel.h"
#include "connections/model/connectionsession.h"

#include "platform.h"

#include <QCoreApplication>
#include <QEvent>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

using EditorFactory = ConnectionSessionEditor* (*)(const QString& type, ConnectionModel& model, QWidget* parent);

// For the types with an editor page of their own.
template <class Editor> ConnectionSessionEditor* createEditor(const QString&, ConnectionModel& model, QWidget* parent)
{
    return new Editor(model, parent);
}

ConnectionSessionEditor* createDefaultEditor(const QString& type, ConnectionModel& model, QWidget* parent)
{
    return new DefaultEditor(type, model, parent);
}

// Which editor page serves a connection type; for the default editor also its texts
// (null: the editor's own server label, no tool tip).
struct EditorRow
{
    const char* type;
    EditorFactory create;
    const char* header;
    const char* serverLabel;
    const char* toolTip;
};

#define EDITOR_TEXT(text) QT_TRANSLATE_NOOP("ConnectionEditor", text)
const char* const Url = EDITOR_TEXT("URL");

const EditorRow editorRows[] = {
    { "browser", createEditor<WebBrowserEditor>, nullptr, nullptr, nullptr },
    { "ica", createEditor<IcaEditor>, nullptr, nullptr, nullptr },
    { "parlix", createEditor<ParlixEditor>, nullptr, nullptr, nullptr },
    { "leostream", createDefaultEditor, EDITOR_TEXT("Leostream connection"), Url, nullptr },
    { "rdp", createDefaultEditor, EDITOR_TEXT("RDP connection"), nullptr, nullptr },
    { "glimt", createDefaultEditor, EDITOR_TEXT("Glimt connection"), nullptr, nullptr },
    { "hollis", createDefaultEditor, EDITOR_TEXT("Hollis connection"), Url, nullptr },
    { "ssh", createDefaultEditor, EDITOR_TEXT("SSH connection"), nullptr, nullptr },
    { "telnet", createDefaultEditor, EDITOR_TEXT("Telnet connection"), nullptr, nullptr },
    { "vmware", createDefaultEditor, EDITOR_TEXT("VMware connection"), Url,
      EDITOR_TEXT("http and https schemes are supported") },
    { "vworkspace", createDefaultEditor, EDITOR_TEXT("vWorkspace connection"), Url, nullptr },
    { "xenapp", createDefaultEditor, EDITOR_TEXT("Web interface for XenApp"), Url, nullptr },
    { "xdmcp", createDefaultEditor, EDITOR_TEXT("XDMCP connection"), nullptr, nullptr },
};
#undef EDITOR_TEXT

const EditorRow* findEditorRow(const QString& type)
{
    for (const EditorRow& row : editorRows) {
        if (type == QLatin1String(row.type))
            return &row;
    }
    return nullptr;
}

// A null text for a null entry, so that the editor keeps its own.
QString translated(const char* text)
{
    return text ? QCoreApplication::translate("ConnectionEditor", text) : QString();
}

} // namespace

const QString ConnectionEditor::ConnectionListPageName = QStringLiteral("connection_list");
const QString ConnectionEditor::ConnectionSelectorPageName = QStringLiteral("connection_selector");

ConnectionEditor::ConnectionEditor(ConnectionModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
{
    auto* listPage = new ConnectionListPage(model);
    auto* selectorPage = new ConnectionSelectorPage(model);
    m_stack = new QStackedWidget(this);
    m_stack->setObjectName(QStringLiteral("ConnectionStack"));
    addPage(ConnectionListPageName, listPage);
    addPage(ConnectionSelectorPageName, selectorPage);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_stack);

    connect(listPage, &ConnectionListPage::modified, this, &ConnectionEditor::modified);
    connect(listPage, &ConnectionListPage::newConnection, this, &ConnectionEditor::displayConnectionSelectorPage);
    connect(listPage, &ConnectionListPage::editConnection, this, &ConnectionEditor::openSessionEditor);
    connect(listPage, &ConnectionListPage::sessionSaved, this, &ConnectionEditor::sessionSavedHandler);
    connect(selectorPage, qOverload<QString>(&ConnectionSelectorPage::openEditor), this,
            &ConnectionEditor::openNewSessionEditor);
    connect(selectorPage, &ConnectionSelectorPage::cancel, this, &ConnectionEditor::displayConnectionListPage);

    // Creates the default editor pages, whose texts it sets.
    retranslateUi();
}

ConnectionEditor::~ConnectionEditor() = default;

int ConnectionEditor::addPage(const QString& name, QWidget* page)
{
    const int index = m_stack->addWidget(page);
    m_pageIndexes.insert(name, index);
    return index;
}

int ConnectionEditor::pageIndex(const QString& name)
{
    const auto known = m_pageIndexes.constFind(name);
    if (known != m_pageIndexes.cend())
        return known.value();

    const EditorRow* row = findEditorRow(name);
    if (!row || !row->create)
        return -1;
    ConnectionSessionEditor* editor = row->create(name, m_model, this);
    editor->setObjectName(name + QLatin1String("Editor"));
    const int index = addPage(name, editor);
    connect(editor, &ConnectionSessionEditor::editingCanceled, this, &ConnectionEditor::displayConnectionListPage);
    connect(editor, &ConnectionSessionEditor::sessionSaved, this, &ConnectionEditor::sessionSavedHandler);
    return index;
}

QWidget* ConnectionEditor::page(const QString& name)
{
    return m_stack->widget(pageIndex(name));
}

QWidget* ConnectionEditor::currentPage() const
{
    return m_stack->currentWidget();
}

void ConnectionEditor::setDefaultEditorStrings(const QString& type, const QString& header, const QString& serverLabel,
                                               const QString& toolTip)
{
    auto* editor = qobject_cast<DefaultEditor*>(page(type));
    if (!editor)
        return;
    editor->setHeaderString(header);
    if (!serverLabel.isNull())
        editor->setServerString(serverLabel);
    if (!toolTip.isNull())
        editor->setServerToolTip(toolTip);
    editor->retranslateUi();
}

void ConnectionEditor::retranslateUi()
{
    for (const EditorRow& row : editorRows) {
        if (row.create == createDefaultEditor) {
            setDefaultEditorStrings(QLatin1String(row.type), translated(row.header), translated(row.serverLabel),
                                    translated(row.toolTip));
        }
    }
}

void ConnectionEditor::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    else
        QWidget::changeEvent(event);
}

void ConnectionEditor::displayConnectionListPage()
{
    if (auto* listPage = qobject_cast<ConnectionListPage*>(page(ConnectionListPageName)))
        listPage->refreshConnectionTable();
    m_stack->setCurrentIndex(pageIndex(ConnectionListPageName));
}

void ConnectionEditor::displayConnectionSelectorPage()
{
    m_stack->setCurrentIndex(pageIndex(ConnectionSelectorPageName));
}

void ConnectionEditor::openNewSessionEditor(const QString& type)
{
    const int index = pageIndex(type);
    if (auto* editor = qobject_cast<ConnectionSessionEditor*>(m_stack->widget(index)))
        editor->resetSession();
    m_stack->setCurrentIndex(index);
}

void ConnectionEditor::openSessionEditor(const QString& sessionId)
{
    const int index = pageIndex(m_model.connectionTypeOf(sessionId));
    if (auto* editor = qobject_cast<ConnectionSessionEditor*>(m_stack->widget(index)))
        editor->setEditedSessionId(sessionId);
    m_stack->setCurrentIndex(index);
}

/*
 * A name problem never undoes the save: the session keeps the offending name, the user is
 * told and put into renaming it in the list, whose rename comes back here.
 */
void ConnectionEditor::sessionSavedHandler(ConnectionSession& session)
{
    displayConnectionListPage();
    auto* listPage = qobject_cast<ConnectionListPage*>(page(ConnectionListPageName));
    const QString name = session.property("name").toString().simplified();

    if (name.isEmpty()) {
        EditingMessageBox::exec(this, QMessageBox::Critical, tr("<center>Please provide a connection name.</center>"),
                                QMessageBox::Ok);
        listPage->editSessionName(session);
        return;
    }
    // Lunvex takes any characters.
    if (!Platform::isLunvex() && !ConnectionNameValidator::hasAllowedCharacters(name)) {
        EditingMessageBox::exec(this, QMessageBox::Critical,
                                tr("<center>The connection name must be restricted to alphabet characters, digits "
                                   "(0-9), dashes (-), spaces( ), and periods (.).</center>"),
                                QMessageBox::Ok);
        listPage->editSessionName(session);
        return;
    }
    if (m_model.sessionsByName(name).size() < 2)
        return;
    // On Lunvex two connections may share a name if the user agrees; elsewhere never.
    if (!Platform::isLunvex()) {
        EditingMessageBox::exec(this, QMessageBox::Critical,
                                tr("<center>The following connection name is already in use.<br><br><b>%1</b><br><br>"
                                   "Please provide an other name.</center>")
                                    .arg(name),
                                QMessageBox::Ok);
        listPage->editSessionName(session);
        return;
    }
    const QMessageBox::StandardButton answer
        = EditingMessageBox::exec(this, QMessageBox::Warning,
                                  tr("<center>The following connection name is already in use.<br><br><b>%1</b><br><br>"
                                     "Do you want to proceed with this name?</center>")
                                      .arg(name),
                                  QMessageBox::Yes | QMessageBox::No);
    if (answer == QMessageBox::No)
        listPage->editSessionName(session);
}
