#include "connectionselectorpage.h"

#include "categorizedlistwidget.h"
#include "categoryitem.h"

#include "connections/model/connectionmodel.h"

#include <QEvent>
#include <QIcon>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
const int TypeIconSize = 32;
} // namespace

ConnectionSelectorPage::ConnectionSelectorPage(ConnectionModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_list(new CategorizedListWidget(this))
    , m_cancel(new QPushButton(this))
{
    m_list->setObjectName(QStringLiteral("ConnectionTypeList"));
    m_list->setIconSize(QSize(TypeIconSize, TypeIconSize));
    m_cancel->setObjectName(QStringLiteral("SelectorCancelButton"));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    layout->addWidget(m_cancel, 0, Qt::AlignHCenter);

    connect(m_list, &QListWidget::itemDoubleClicked, this,
            qOverload<QListWidgetItem*>(&ConnectionSelectorPage::openEditor));
    connect(m_cancel, &QPushButton::clicked, this, &ConnectionSelectorPage::cancel);
    retranslateUi();
}

ConnectionSelectorPage::~ConnectionSelectorPage() = default;

// The names and headings are translated texts, so the list is rebuilt with them.
void ConnectionSelectorPage::retranslateUi()
{
    populateConnectionList();
    m_cancel->setText(tr("Cancel"));
}

void ConnectionSelectorPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void ConnectionSelectorPage::populateConnectionList()
{
    m_list->removeAllItems();
    QString category;
    const QList<QPair<QString, QString>> types = ConnectionModel::sCategorizedConnectionTypes();
    for (const auto& entry : types) {
        // A heading wherever a category starts a run; the catalogue keeps each category together.
        if (entry.first != category) {
            category = entry.first;
            new CategoryItem(category, m_list);
        }
        const QString name = ConnectionModel::sGetConnectionTypeName(entry.second);
        auto* item
            = new QListWidgetItem(ConnectionModel::sGetConnectionTypeIcon(entry.second, TypeIconSize), name, m_list);
        item->setData(Qt::UserRole, entry.second);
        item->setData(Qt::DisplayRole, name);
    }
}

void ConnectionSelectorPage::openEditor(QListWidgetItem* item)
{
    if (!item || dynamic_cast<CategoryItem*>(item))
        return;
    emit openEditor(item->data(Qt::UserRole).toString());
}

QSize ConnectionSelectorPage::sizeHint() const
{
    QSize size = QWidget::sizeHint();
    size.setHeight(qMax(size.height(), 310));
    return size;
}
