#include "networkprintereditor.h"

#include "connections/editing/portvalidator.h"
#include "model/printermodel.h"

#include "flagifinvalid.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>

NetworkPrinterEditor::NetworkPrinterEditor(const QString& id, PrinterModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    m_nameEdit = addField(grid, 0, &m_nameLabel, QStringLiteral("NameEdit"));
    m_serverEdit = addField(grid, 1, &m_serverLabel, QStringLiteral("ServerEdit"));
    m_portEdit = addField(grid, 2, &m_portLabel, QStringLiteral("PortEdit"));
    m_driverEdit = addField(grid, 3, &m_driverLabel, QStringLiteral("DriverEdit"));
    m_nameEdit->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[a-zA-Z0-9]+")), m_nameEdit));
    // Host names and addresses, URLs (ipp://host:631/queue) and Windows shares (\\server\queue).
    m_serverEdit->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[/:\\\\a-zA-Z0-9.-]+")), m_serverEdit));
    m_portEdit->setValidator(new PortValidator(PortValidator::LargestPort, m_portEdit));

    m_saveButton = new QPushButton(this);
    m_saveButton->setObjectName(QStringLiteral("SaveButton"));
    m_cancelButton = new QPushButton(this);
    m_cancelButton->setObjectName(QStringLiteral("CancelButton"));
    m_buttons = new QHBoxLayout;
    m_buttons->addWidget(m_saveButton, 0, Qt::AlignRight);
    m_buttons->addWidget(m_cancelButton, 0, Qt::AlignLeft);
    grid->addLayout(m_buttons, 4, 0, 1, 2);
    grid->setRowStretch(4, 10);

    connect(m_saveButton, &QPushButton::clicked, this, &NetworkPrinterEditor::saveEditedPrinter);
    connect(m_cancelButton, &QPushButton::clicked, this, &NetworkPrinterEditor::editingCanceled);

    setEditedPrinterId(id);
    retranslateUi();
}

NetworkPrinterEditor::~NetworkPrinterEditor() = default;

QLineEdit* NetworkPrinterEditor::addField(QGridLayout* grid, int row, QLabel** label, const QString& objectName)
{
    *label = new QLabel(this);
    auto* edit = new QLineEdit(this);
    edit->setObjectName(objectName);
    (*label)->setBuddy(edit);
    grid->addWidget(*label, row, 0);
    grid->addWidget(edit, row, 1);
    return edit;
}

void NetworkPrinterEditor::setEditedPrinterId(const QString& id)
{
    m_printerId = id;
    if (id.isEmpty())
        return;
    const NetworkPrinter& printer = m_model.printers()[id];
    m_nameEdit->setText(printer.name);
    m_portEdit->setText(printer.port);
    m_serverEdit->setText(printer.address);
    m_driverEdit->setText(printer.driver);
}

void NetworkPrinterEditor::focusUI()
{
    m_nameEdit->setFocus();
}

void NetworkPrinterEditor::resetGui()
{
    m_nameEdit->clear();
    m_serverEdit->clear();
    m_portEdit->clear();
    m_driverEdit->clear();
    retranslateUi();
}

void NetworkPrinterEditor::updateGui() { }

void NetworkPrinterEditor::retranslateUi()
{
    m_nameLabel->setText(tr("Name"));
    m_serverLabel->setText(tr("Server"));
    m_portLabel->setText(tr("Port"));
    m_driverLabel->setText(tr("Driver"));
    m_saveButton->setText(tr("Save"));
    m_cancelButton->setText(tr("Cancel"));
}

void NetworkPrinterEditor::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void NetworkPrinterEditor::saveEditedPrinter()
{
    // Both are checked, so that both get flagged.
    const bool badName = flagIfInvalid(m_nameEdit);
    const bool badServer = flagIfInvalid(m_serverEdit);
    if (badName || badServer)
        return;

    if (m_printerId.isEmpty()) {
        m_model.add(m_nameEdit->text(), m_serverEdit->text(), m_portEdit->text(), m_driverEdit->text());
    } else {
        NetworkPrinter& printer = m_model.printers()[m_printerId];
        printer.name = m_nameEdit->text();
        printer.port = m_portEdit->text();
        printer.address = m_serverEdit->text();
        printer.driver = m_driverEdit->text();
    }
    emit printerSaved();
}
