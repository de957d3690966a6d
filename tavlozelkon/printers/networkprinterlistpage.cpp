#include "networkprinterlistpage.h"

#include "connections/editing/buttondelegate.h"
#include "model/printermodel.h"

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {
enum Column { SummaryColumn, DeleteColumn, EditColumn, ColumnCount };
} // namespace

NetworkPrinterListPage::NetworkPrinterListPage(PrinterModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_emptyLabel(new QLabel(this))
    , m_table(new QTableWidget(0, ColumnCount, this))
    , m_newButton(new QPushButton(this))
{
    m_emptyLabel->setObjectName(QStringLiteral("NoPrintersLabel"));
    m_table->setObjectName(QStringLiteral("PrinterTable"));
    m_newButton->setObjectName(QStringLiteral("NewPrinterButton"));

    m_table->horizontalHeader()->hide();
    m_table->verticalHeader()->hide();
    m_table->setShowGrid(false);
    // Wrapping would hide a long line's second half below the row and elide what is left.
    m_table->setWordWrap(false);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->horizontalHeader()->setSectionResizeMode(SummaryColumn, QHeaderView::Stretch);
    m_table->horizontalHeader()->setSectionResizeMode(DeleteColumn, QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setSectionResizeMode(EditColumn, QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setMinimumSectionSize(0);

    auto* deleteDelegate = new ButtonDelegate(ButtonDelegate::DeleteButton, this);
    auto* editDelegate = new ButtonDelegate(ButtonDelegate::EditButton, this);
    m_table->setItemDelegateForColumn(DeleteColumn, deleteDelegate);
    m_table->setItemDelegateForColumn(EditColumn, editDelegate);
    connect(deleteDelegate, qOverload<QString>(&ButtonDelegate::deleteConnection), this,
            &NetworkPrinterListPage::deletePrinter);
    connect(editDelegate, qOverload<QString>(&ButtonDelegate::editConnection), this,
            &NetworkPrinterListPage::editPrinter);
    connect(m_newButton, &QPushButton::clicked, this, &NetworkPrinterListPage::newPrinter);
    connect(&m_model, &PrinterModel::newConfigLoaded, this, &NetworkPrinterListPage::refreshPrinterTable);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_emptyLabel, 0, Qt::AlignHCenter);
    layout->addWidget(m_table);
    layout->addWidget(m_newButton, 0, Qt::AlignHCenter);

    refreshPrinterTable();
    retranslateUi();
}

NetworkPrinterListPage::~NetworkPrinterListPage() = default;

void NetworkPrinterListPage::retranslateUi()
{
    m_emptyLabel->setText(tr("<i>No Network Printers</i>"));
    m_newButton->setText(tr("New Network Printer"));
}

void NetworkPrinterListPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void NetworkPrinterListPage::refreshPrinterTable()
{
    m_table->setSortingEnabled(false);
    m_table->setRowCount(0);
    const QMap<QString, NetworkPrinter>& printers = m_model.printers();
    m_table->setRowCount(printers.size());
    int row = 0;
    for (auto it = printers.cbegin(); it != printers.cend(); ++it)
        fillRow(row++, it.key());

    const bool empty = m_table->rowCount() == 0;
    m_emptyLabel->setVisible(empty);
    if (!empty)
        m_table->sortItems(SummaryColumn, Qt::AscendingOrder);
    ButtonDelegate::openButtons(m_table, { DeleteColumn, EditColumn });
    m_table->setVisible(!empty);
}

void NetworkPrinterListPage::fillRow(int row, const QString& id)
{
    auto* summary = new QTableWidgetItem(m_model.item(id));
    summary->setData(Qt::UserRole, id);
    summary->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    // A line too long for the column is cut short; the whole of it is a hover away.
    summary->setToolTip(summary->text());
    m_table->setItem(row, SummaryColumn, summary);

    // The buttons read the id from their cell.
    for (int column : { DeleteColumn, EditColumn }) {
        auto* button = new QTableWidgetItem(id);
        button->setFlags(Qt::ItemIsEnabled);
        m_table->setItem(row, column, button);
    }
}

void NetworkPrinterListPage::deletePrinter(QString id)
{
    QMessageBox box(
        QMessageBox::Question, windowTitle(),
        tr("Please, confirm you want to delete the printer:<br><br>%1").arg(m_model.item(id).toHtmlEscaped()),
        QMessageBox::Yes | QMessageBox::No, this, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    if (box.exec() != QMessageBox::Yes)
        return;
    m_model.remove(id);
    refreshPrinterTable();
}
