#include "pendingchangesdialog.h"

#include "config/configfile.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

PendingChangesDialog::PendingChangesDialog(const QList<ConfigDiff::Change>& changes, Purpose purpose, QWidget* parent)
    : QDialog(parent)
    , m_changes(changes)
    , m_purpose(purpose)
    , m_intro(new QLabel(this))
    , m_tree(new QTreeWidget(this))
    , m_buttons(new QDialogButtonBox(this))
    , m_goOn(m_buttons->addButton(QString(), QDialogButtonBox::AcceptRole))
    , m_goBack(m_buttons->addButton(QString(), QDialogButtonBox::RejectRole))
{
    setObjectName(QStringLiteral("PendingChangesDialog"));
    m_tree->setObjectName(QStringLiteral("ChangesTree"));
    m_goOn->setObjectName(QStringLiteral("GoOnButton"));
    m_goBack->setObjectName(QStringLiteral("GoBackButton"));
    m_intro->setWordWrap(true);
    m_tree->setColumnCount(3);
    m_tree->setRootIsDecorated(false);
    m_tree->setAlternatingRowColors(true);
    m_tree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_tree->header()->setStretchLastSection(true);
    // Going back is the safe answer, so it is what Return does.
    m_goBack->setDefault(true);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_intro);
    layout->addWidget(m_tree, 1);
    layout->addWidget(m_buttons);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    retranslateUi();
    resize(640, 400);
}

PendingChangesDialog::~PendingChangesDialog() = default;

void PendingChangesDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QDialog::changeEvent(event);
}

void PendingChangesDialog::retranslateUi()
{
    setWindowTitle(tr("Pending Changes"));
    const bool saving = m_purpose == Purpose::Save;
    if (m_changes.isEmpty())
        m_intro->setText(tr("Nothing has changed since the configuration was opened."));
    else if (saving)
        m_intro->setText(tr("These settings differ from the configuration as it was opened and will be saved:"));
    else
        m_intro->setText(
            tr("These settings differ from the configuration as it was opened and will be applied to this Thin "
               "Client:"));
    m_goOn->setText(saving ? tr("Save") : tr("Apply"));
    m_goBack->setText(tr("Go Back"));
    m_tree->setHeaderLabels({ tr("Setting"), tr("Before"), tr("After") });
    fillTree();
}

void PendingChangesDialog::fillTree()
{
    m_tree->clear();
    m_tree->setVisible(!m_changes.isEmpty());
    // The same labels as the summary.
    ConfigFile labels;
    QTreeWidgetItem* sectionItem = nullptr;
    QString section;
    for (const ConfigDiff::Change& change : qAsConst(m_changes)) {
        if (!sectionItem || change.section != section) {
            section = change.section;
            sectionItem = new QTreeWidgetItem(m_tree, { labels.sectionAlias(section.section(QLatin1Char('['), 0, 0)) });
            QFont bold = sectionItem->font(0);
            bold.setBold(true);
            sectionItem->setFont(0, bold);
            sectionItem->setFirstColumnSpanned(true);
        }
        // Keys directly in a section get the summary's label; record paths stay as they are.
        QString key = change.key.contains(QLatin1Char('/')) ? change.key : labels.sectionAlias(change.key);
        switch (change.kind) {
        case ConfigDiff::Change::Kind::Added:
            key = tr("%1 (added)").arg(key);
            break;
        case ConfigDiff::Change::Kind::Removed:
            key = tr("%1 (removed)").arg(key);
            break;
        case ConfigDiff::Change::Kind::Changed:
            break;
        }
        new QTreeWidgetItem(m_tree, { QLatin1String("    ") + key, change.before, change.after });
    }
}
