#include "connectionlistpage.h"

#include "buttondelegate.h"
#include "connectionnamedelegate.h"
#include "editingmessagebox.h"

#include "config/configfile.h"
#include "connections/model/configatom.h"
#include "connections/model/connectionkindred.h"
#include "connections/model/connectionmodel.h"
#include "connections/model/connectionsession.h"

#include <QCheckBox>
#include <QEvent>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {
enum Column { NameColumn, DeleteColumn, EditColumn, ColumnCount };
const int TypeIconSize = 16;
} // namespace

ConnectionListPage::ConnectionListPage(ConnectionModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_emptyLabel(new QLabel(this))
    , m_table(new QTableWidget(0, ColumnCount, this))
    , m_kioskCheck(new QCheckBox(this))
    , m_newButton(new QPushButton(this))
{
    m_emptyLabel->setObjectName(QStringLiteral("NoConnectionLabel"));
    m_table->setObjectName(QStringLiteral("ConnectionTable"));
    m_kioskCheck->setObjectName(QStringLiteral("KioskCheck"));
    m_newButton->setObjectName(QStringLiteral("NewConnectionButton"));

    m_table->setSortingEnabled(false);
    m_table->setShowGrid(false);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    m_table->horizontalHeader()->setSectionResizeMode(DeleteColumn, QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setSectionResizeMode(EditColumn, QHeaderView::ResizeToContents);
    m_table->setIconSize(QSize(TypeIconSize, TypeIconSize));

    auto* nameDelegate = new ConnectionNameDelegate(model, this);
    auto* deleteDelegate = new ButtonDelegate(ButtonDelegate::DeleteButton, this);
    auto* editDelegate = new ButtonDelegate(ButtonDelegate::EditButton, this);
    m_table->setItemDelegateForColumn(NameColumn, nameDelegate);
    m_table->setItemDelegateForColumn(DeleteColumn, deleteDelegate);
    m_table->setItemDelegateForColumn(EditColumn, editDelegate);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_emptyLabel, 0, Qt::AlignHCenter);
    layout->addWidget(m_table);
    layout->addWidget(m_kioskCheck);
    layout->addWidget(m_newButton, 0, Qt::AlignHCenter);

    connect(nameDelegate, &ConnectionNameDelegate::connectionNameChanged, this,
            &ConnectionListPage::changeConnectionName);
    connect(editDelegate, qOverload<QString>(&ButtonDelegate::editConnection), this,
            &ConnectionListPage::editConnection);
    connect(deleteDelegate, qOverload<QString>(&ButtonDelegate::deleteConnection), this,
            &ConnectionListPage::deleteConnection);
    connect(m_kioskCheck, &QCheckBox::stateChanged, this, &ConnectionListPage::changeKioskMode);
    connect(m_newButton, &QPushButton::clicked, this, &ConnectionListPage::newConnection);
    connect(&model, &ConnectionModel::newConfigLoaded, this, &ConnectionListPage::refreshConnectionTable);

    refreshConnectionTable();
    retranslateUi();
}

ConnectionListPage::~ConnectionListPage() = default;

void ConnectionListPage::retranslateUi()
{
    m_emptyLabel->setText(tr("<i>No remote connection</i>"));
    m_newButton->setText(tr("New remote connection"));
    m_kioskCheck->setText(tr("Enable kiosk mode"));
}

void ConnectionListPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void ConnectionListPage::refreshConnectionTable()
{
    m_table->setRowCount(0);
    QList<QPair<QString, const ConnectionSession*>> rows;
    const QStringList types = ConnectionModel::sSupportedConnectionTypes();
    for (const QString& type : types) {
        const QList<ConnectionSession*> sessions = m_model.connections(type)->sessions();
        for (const ConnectionSession* session : sessions)
            rows.append({ type, session });
    }
    m_table->setRowCount(rows.size());
    for (int row = 0; row < rows.size(); ++row)
        fillRow(row, rows.at(row).first, *rows.at(row).second);
    if (!rows.isEmpty())
        m_table->sortItems(NameColumn, Qt::AscendingOrder);
    ButtonDelegate::openButtons(m_table, { DeleteColumn, EditColumn });

    // Showing the setting is not changing it.
    disconnect(m_kioskCheck, &QCheckBox::stateChanged, this, &ConnectionListPage::changeKioskMode);
    m_kioskCheck->setCheckState(m_model.desktopConfig()->property("kiosk_mode").toBool() ? Qt::Checked : Qt::Unchecked);
    connect(m_kioskCheck, &QCheckBox::stateChanged, this, &ConnectionListPage::changeKioskMode);

    if (m_table->rowCount() > 0) {
        m_emptyLabel->hide();
        m_table->show();
        m_kioskCheck->show();
        // Deliberately on every refresh over existing connections: the frame then counts as
        // changed whenever the list was rebuilt.
        emit modified();
    } else {
        m_emptyLabel->show();
        m_table->hide();
        m_kioskCheck->hide();
        // Kiosk mode cannot stay on without a connection to run.
        if (m_kioskCheck->isChecked()) {
            m_kioskCheck->setChecked(false);
            emit modified();
        }
    }
}

void ConnectionListPage::fillRow(int row, const QString& type, const ConnectionSession& session)
{
    auto* name = new QTableWidgetItem(ConnectionModel::sGetConnectionTypeIcon(type, TypeIconSize),
                                      session.property("name").toString());
    name->setData(Qt::UserRole, session.id());
    m_table->setItem(row, NameColumn, name);
    for (int column : { DeleteColumn, EditColumn }) {
        auto* button = new QTableWidgetItem(session.id());
        // The id is for the button alone, not to be edited.
        button->setFlags(button->flags() & ~Qt::ItemIsEditable);
        m_table->setItem(row, column, button);
    }
}

void ConnectionListPage::changeConnectionName(const QString& sessionId, const QString& name)
{
    // Asking the model for an unknown id would make a session nobody owns.
    if (m_model.connectionTypeOf(sessionId).isEmpty())
        return;
    ConnectionSession* session = m_model.session(sessionId);
    session->setProperty("name", name);
    refreshConnectionTable();
    emit sessionSaved(*session);
}

void ConnectionListPage::deleteConnection(QString sessionId)
{
    // Asking the model for an unknown id would make a session nobody owns.
    const QString name = m_model.connectionTypeOf(sessionId).isEmpty()
        ? QString()
        : m_model.session(sessionId)->property("name").toString();
    const QMessageBox::StandardButton answer = EditingMessageBox::exec(
        this, QMessageBox::Question,
        tr("Please, confirm you want to delete the connection:<br><br>%1").arg(name.toHtmlEscaped()),
        QMessageBox::Yes | QMessageBox::No);
    if (answer == QMessageBox::Yes && m_model.deleteSession(sessionId))
        refreshConnectionTable();
}

void ConnectionListPage::changeKioskMode(int state)
{
    const QString enabled = ConfigFile::boolText(state != Qt::Unchecked);
    m_model.desktopConfig()->setProperty("kiosk_mode", enabled);
    if (m_model.containsConnections(QStringLiteral("cda")))
        m_model.connections(QStringLiteral("cda"))->setProperty("enable", enabled);
}

void ConnectionListPage::editSessionName(const ConnectionSession& session)
{
    const QList<QTableWidgetItem*> items = m_table->findItems(session.property("name").toString(), Qt::MatchExactly);
    for (QTableWidgetItem* item : items) {
        if (item->data(Qt::UserRole).toString() == session.id()) {
            m_table->setCurrentItem(item);
            m_table->editItem(item);
            return;
        }
    }
}
