#pragma once

#include "tavlozelkon_lib_export.h"

#include <QString>
#include <QWidget>

class PrinterModel;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

/*
 * The form for one printer: name, server, port and driver. It is bound to a printer id,
 * or to none for a new printer, and Save writes the fields into the model. Name and
 * server are required and restricted while typing; port is a number; the driver is free
 * text.
 *
 * The form keeps its fields and its binding between showings: nothing empties it when a
 * new printer is started after one was edited, so the form then still shows (and Save
 * changes) the edited printer. Kept so, as the editor was built.
 */
class TAVLOZELKON_LIB_EXPORT NetworkPrinterEditor : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(NetworkPrinterEditor)

public:
    NetworkPrinterEditor(const QString& id, PrinterModel& model, QWidget* parent = nullptr);
    ~NetworkPrinterEditor() override;

    // Binds the form to id and, unless id is empty, fills it from that printer (an
    // unknown id gets an empty printer in the model).
    void setEditedPrinterId(const QString& id);
    QString editedPrinterId() const { return m_printerId; }

    void focusUI();
    void resetGui();
    void updateGui();
    QHBoxLayout* saveCancelButtonsLayout() const { return m_buttons; }
    void retranslateUi();

    QLineEdit* nameEdit() const { return m_nameEdit; }
    QLineEdit* serverEdit() const { return m_serverEdit; }
    QLineEdit* portEdit() const { return m_portEdit; }
    QLineEdit* driverEdit() const { return m_driverEdit; }
    QPushButton* saveButton() const { return m_saveButton; }
    QPushButton* cancelButton() const { return m_cancelButton; }

signals:
    void printerSaved();
    void editingCanceled();

public slots:
    void saveEditedPrinter();

protected:
    void changeEvent(QEvent* event) override;

private:
    QLineEdit* addField(QGridLayout* grid, int row, QLabel** label, const QString& objectName);

    PrinterModel& m_model;
    QString m_printerId;
    QLabel* m_nameLabel = nullptr;
    QLabel* m_serverLabel = nullptr;
    QLabel* m_portLabel = nullptr;
    QLabel* m_driverLabel = nullptr;
    QLineEdit* m_nameEdit = nullptr;
    QLineEdit* m_serverEdit = nullptr;
    QLineEdit* m_portEdit = nullptr;
    QLineEdit* m_driverEdit = nullptr;
    QPushButton* m_saveButton = nullptr;
    QPushButton* m_cancelButton = nullptr;
    QHBoxLayout* m_buttons = nullptr;
};
