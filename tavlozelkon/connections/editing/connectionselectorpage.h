#pragma once

#include "tavlozelkon_lib_export.h"

#include <QString>
#include <QWidget>

class CategorizedListWidget;
class ConnectionModel;
class QListWidgetItem;
class QPushButton;

/*
 * The page for a new connection: every connection type this machine can launch, as a
 * large icon with its name under its category's heading. Double-clicking a type asks for
 * its editor; Cancel goes back to the list.
 */
class TAVLOZELKON_LIB_EXPORT ConnectionSelectorPage : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(ConnectionSelectorPage)

public:
    explicit ConnectionSelectorPage(ConnectionModel& model, QWidget* parent = nullptr);
    ~ConnectionSelectorPage() override;

    void populateConnectionList();
    QSize sizeHint() const override;

    CategorizedListWidget* connectionList() const { return m_list; }
    QPushButton* cancelButton() const { return m_cancel; }

signals:
    void openEditor(QString type);
    void cancel();

public slots:
    void openEditor(QListWidgetItem* item);

protected:
    void retranslateUi();
    void changeEvent(QEvent* event) override;

private:
    ConnectionModel& m_model;
    CategorizedListWidget* m_list;
    QPushButton* m_cancel;
};
