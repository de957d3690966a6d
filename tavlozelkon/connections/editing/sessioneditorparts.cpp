#include "sessioneditorparts.h"

#include "editingmessagebox.h"

#include "connections/model/connectionmodel.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>

namespace SessionEditorParts {

QHBoxLayout* headerRow(const QString& type, QLabel* header)
{
    auto* icon = new QLabel;
    icon->setObjectName(QStringLiteral("IconLabel"));
    icon->setPixmap(ConnectionModel::sGetConnectionTypeIcon(type, 32).pixmap(32, 32));
    QFont font = header->font();
    font.setBold(true);
    header->setFont(font);

    auto* row = new QHBoxLayout;
    row->addWidget(icon);
    row->addWidget(header, 10, Qt::AlignLeft);
    return row;
}

void setMinimumWidthFor(QLineEdit* edit, const QString& sample)
{
    edit->setMinimumWidth(QFontMetrics(edit->font()).horizontalAdvance(sample));
}

bool checkFilled(QWidget* editor, QLineEdit* field, const QString& label)
{
    if (!field->text().isEmpty())
        return true;
    field->setFocus();
    field->setStyleSheet(QStringLiteral("background-color: white"));
    EditingMessageBox::exec(
        editor, QMessageBox::Critical,
        QCoreApplication::translate("SessionEditorParts", "<center>The field '%1' is mandatory.</center>").arg(label),
        QMessageBox::Ok);
    return false;
}

} // namespace SessionEditorParts
