#include "showntexts.h"

#include "markingtranslator.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QRegularExpression>
#include <QTableWidget>
#include <QTextBrowser>

namespace ShownTexts {

Texts collect(QWidget* root)
{
    Texts texts;
    auto add = [&texts](const QWidget* widget, const QString& place, const QString& text) {
        if (!text.trimmed().isEmpty())
            texts.insert(QString::asprintf("%p/", static_cast<const void*>(widget)) + place, { widget, text });
    };
    QList<QWidget*> widgets = root->findChildren<QWidget*>();
    widgets.prepend(root);
    for (QWidget* widget : qAsConst(widgets)) {
        add(widget, QStringLiteral("toolTip"), widget->toolTip());
        if (widget->isWindow())
            add(widget, QStringLiteral("windowTitle"), widget->windowTitle());
        if (auto* label = qobject_cast<QLabel*>(widget)) {
            add(widget, QStringLiteral("text"), label->text());
        } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
            add(widget, QStringLiteral("text"), button->text());
        } else if (auto* group = qobject_cast<QGroupBox*>(widget)) {
            add(widget, QStringLiteral("title"), group->title());
        } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
            for (int i = 0; i < combo->count(); ++i)
                add(widget, QStringLiteral("item%1").arg(i), combo->itemText(i));
        } else if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
            add(widget, QStringLiteral("placeholder"), edit->placeholderText());
        } else if (auto* textEdit = qobject_cast<QTextEdit*>(widget)) {
            add(widget, QStringLiteral("placeholder"), textEdit->placeholderText());
        } else if (auto* list = qobject_cast<QListWidget*>(widget)) {
            for (int i = 0; i < list->count(); ++i)
                add(widget, QStringLiteral("item%1").arg(i), list->item(i)->text());
        } else if (auto* table = qobject_cast<QTableWidget*>(widget)) {
            for (int i = 0; i < table->columnCount(); ++i) {
                if (QTableWidgetItem* header = table->horizontalHeaderItem(i))
                    add(widget, QStringLiteral("header%1").arg(i), header->text());
            }
        } else if (auto* menu = qobject_cast<QMenu*>(widget)) {
            add(widget, QStringLiteral("title"), menu->title());
        }
        const QList<QAction*> actions = widget->actions();
        for (int i = 0; i < actions.size(); ++i) {
            add(widget, QStringLiteral("action%1").arg(i), actions.at(i)->text());
            add(widget, QStringLiteral("statusTip%1").arg(i), actions.at(i)->statusTip());
        }
    }
    return texts;
}

QString describe(const QWidget* widget)
{
    QStringList path;
    for (const QObject* each = widget; each; each = each->parent())
        path.prepend(each->objectName().isEmpty() ? QString::fromLatin1(each->metaObject()->className())
                                                  : each->objectName());
    return path.join(QLatin1Char('/'));
}

bool isData(const QWidget* widget, const QString& text)
{
    static const QRegularExpression numbersOnly(QStringLiteral("^[0-9x .,:%-]*( Bpp)?$"));
    static const QStringList dataTexts { QStringLiteral("Auto"), QStringLiteral("Lunvex"), QStringLiteral("WES"),
                                         QStringLiteral("WES7"), QStringLiteral("CE") };
    if (numbersOnly.match(text).hasMatch() || dataTexts.contains(text) || QDir::isAbsolutePath(text))
        return true;
    return widget->objectName().startsWith(QLatin1String("TimeZone")) || qobject_cast<const QTextBrowser*>(widget)
        || qobject_cast<const QLineEdit*>(widget);
}

QStringList unmarked(const Texts& before, QWidget* root, const DataRule& isData)
{
    const Texts now = collect(root);
    QStringList found;
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        const QString text = now.value(it.key()).text;
        if (!MarkingTranslator::isMarked(text) && !isData(it->widget, text))
            found.append(describe(it->widget) + QLatin1String(": ") + text);
    }
    return found;
}

void deliverLanguageChange()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    QCoreApplication::processEvents();
}

} // namespace ShownTexts
