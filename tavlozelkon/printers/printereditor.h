#pragma once

#include "tavlozelkon_lib_export.h"

#include <QMap>
#include <QString>
#include <QWidget>

class NetworkPrinterEditor;
class NetworkPrinterListPage;
class PrinterModel;
class QStackedWidget;

/*
 * The printer frame's contents: a stack of the printer list and the form for one
 * printer, switched between as the user starts, edits, saves or cancels. Opening the form
 * reports isDirty(), which is what marks the frame changed.
 */
class TAVLOZELKON_LIB_EXPORT PrinterEditor : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(PrinterEditor)

public:
    explicit PrinterEditor(PrinterModel& model, QWidget* parent = nullptr);
    ~PrinterEditor() override;

    PrinterModel& printerModel() const { return m_model; }
    NetworkPrinterListPage* listPage() const { return m_listPage; }
    NetworkPrinterEditor* printerEditor() const { return m_printerEditor; }
    // "printer_list" or "network_printer".
    QString currentPageName() const;

signals:
    void isDirty();

public slots:
    void openNewPrinterEditor();
    void openPrinterEditor(const QString& id);
    void displayPrinterListPage();

protected:
    void changeEvent(QEvent* event) override;

private:
    void addPage(const QString& name, QWidget* page);
    void retranslateUi();

    PrinterModel& m_model;
    QStackedWidget* m_stack;
    QMap<QString, int> m_pages;
    NetworkPrinterListPage* m_listPage;
    NetworkPrinterEditor* m_printerEditor;
};
