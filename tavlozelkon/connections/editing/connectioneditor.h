#pragma once

#include "tavlozelkon_lib_export.h"

#include <QMap>
#include <QString>
#include <QWidget>

class ConnectionModel;
class ConnectionSession;
class QStackedWidget;

/*
 * The stack of pages of the Connections frame: the connection list, the type selector
 * and one editor page per connection type, created when first needed and reused. It
 * moves between them on the pages' signals, and it is the one place where the name of a
 * freshly saved connection is checked (empty, illegal characters, already in use).
 */
class TAVLOZELKON_LIB_EXPORT ConnectionEditor : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(ConnectionEditor)

public:
    static const QString ConnectionListPageName;
    static const QString ConnectionSelectorPageName;

    explicit ConnectionEditor(ConnectionModel& model, QWidget* parent = nullptr);
    ~ConnectionEditor() override;

    ConnectionModel& connectionModel() const { return m_model; }
    // The stack index of the named page: "connection_list", "connection_selector" or a
    // connection type key, whose editor page is created on first demand. -1 for a name
    // that no page serves.
    int pageIndex(const QString& name);
    QWidget* page(const QString& name);
    QWidget* currentPage() const;

    // Header and server field texts of the default editor page of type; a null
    // serverLabel keeps the page's own, a null toolTip sets none.
    void setDefaultEditorStrings(const QString& type, const QString& header, const QString& serverLabel,
                                 const QString& toolTip);

signals:
    void modified();

public slots:
    void displayConnectionListPage();
    void displayConnectionSelectorPage();
    void openNewSessionEditor(const QString& type);
    void openSessionEditor(const QString& sessionId);
    void sessionSavedHandler(ConnectionSession& session);

protected:
    void retranslateUi();
    void changeEvent(QEvent* event) override;

private:
    int addPage(const QString& name, QWidget* page);
    void showNameProblem(QWidget* parent, const QString& text);

    ConnectionModel& m_model;
    QStackedWidget* m_stack;
    QMap<QString, int> m_pageIndexes;
};
