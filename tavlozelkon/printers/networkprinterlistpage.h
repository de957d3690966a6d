#pragma once

#include "tavlozelkon_lib_export.h"

#include <QString>
#include <QWidget>

class PrinterModel;
class QLabel;
class QPushButton;
class QTableWidget;

/*
 * The first page of the printer editor: one row per printer with its summary line and a
 * delete and an edit button, or a note when there is none, and the button that starts a
 * new printer. Deleting asks first; it changes the model but, as built, does not count
 * as a change of the frame.
 */
class TAVLOZELKON_LIB_EXPORT NetworkPrinterListPage : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(NetworkPrinterListPage)

public:
    explicit NetworkPrinterListPage(PrinterModel& model, QWidget* parent = nullptr);
    ~NetworkPrinterListPage() override;

    QLabel* emptyLabel() const { return m_emptyLabel; }
    QTableWidget* table() const { return m_table; }
    QPushButton* newButton() const { return m_newButton; }

    void retranslateUi();

signals:
    void newPrinter();
    void editPrinter(QString id);

public slots:
    void refreshPrinterTable();
    void deletePrinter(QString id);

protected:
    void changeEvent(QEvent* event) override;

private:
    void fillRow(int row, const QString& id);

    PrinterModel& m_model;
    QLabel* m_emptyLabel;
    QTableWidget* m_table;
    QPushButton* m_newButton;
};
