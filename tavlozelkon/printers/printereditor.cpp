#include "printereditor.h"

#include "networkprintereditor.h"
#include "networkprinterlistpage.h"

#include <QEvent>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {
const QString ListPageName = QStringLiteral("printer_list");
const QString EditorPageName = QStringLiteral("network_printer");
} // namespace

PrinterEditor::PrinterEditor(PrinterModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_stack(new QStackedWidget(this))
    , m_listPage(new NetworkPrinterListPage(model))
    , m_printerEditor(new NetworkPrinterEditor(QString(), model))
{
    addPage(ListPageName, m_listPage);
    addPage(EditorPageName, m_printerEditor);

    connect(m_listPage, &NetworkPrinterListPage::newPrinter, this, &PrinterEditor::openNewPrinterEditor);
    connect(m_listPage, &NetworkPrinterListPage::editPrinter, this, &PrinterEditor::openPrinterEditor);
    connect(m_printerEditor, &NetworkPrinterEditor::editingCanceled, this, &PrinterEditor::displayPrinterListPage);
    connect(m_printerEditor, &NetworkPrinterEditor::printerSaved, this, &PrinterEditor::displayPrinterListPage);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_stack);
    retranslateUi();
}

PrinterEditor::~PrinterEditor() = default;

void PrinterEditor::addPage(const QString& name, QWidget* page)
{
    m_pages.insert(name, m_stack->addWidget(page));
}

QString PrinterEditor::currentPageName() const
{
    return m_pages.key(m_stack->currentIndex());
}

// A new printer's form keeps whatever it showed last; see NetworkPrinterEditor.
void PrinterEditor::openNewPrinterEditor()
{
    emit isDirty();
    m_stack->setCurrentIndex(m_pages.value(EditorPageName));
    m_printerEditor->focusUI();
}

void PrinterEditor::openPrinterEditor(const QString& id)
{
    m_printerEditor->setEditedPrinterId(id);
    m_stack->setCurrentIndex(m_pages.value(EditorPageName));
    m_printerEditor->focusUI();
    emit isDirty();
}

void PrinterEditor::displayPrinterListPage()
{
    m_listPage->refreshPrinterTable();
    m_stack->setCurrentIndex(m_pages.value(ListPageName));
}

// The list page asks before deleting in a box titled with its window title.
void PrinterEditor::retranslateUi()
{
    m_listPage->setWindowTitle(tr("Network Printers"));
}

void PrinterEditor::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}
