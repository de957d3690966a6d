#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <functional>

class QWidget;

/*
 * Every text a user can read in a tree of widgets (labels, buttons, choices, list items,
 * headers, tips, actions), keyed by widget and place, so that a test can look at the same
 * texts again after a language switch and say which did not follow.
 */
namespace ShownTexts {
struct Text
{
    const QWidget* widget;
    QString text;
};
using Texts = QMap<QString, Text>;
using DataRule = std::function<bool(const QWidget* widget, const QString& text)>;

Texts collect(QWidget* root);
// "MainWindow/.../ConnectionTable/ListButton"
QString describe(const QWidget* widget);
// Texts shown the same in every language: numbers and sizes, "Auto", platform names,
// paths, time zone names, documents and what the user typed.
bool isData(const QWidget* widget, const QString& text);
// The texts of before that are not marked now (MarkingTranslator), data left out; each as
// "widget path: text".
QStringList unmarked(const Texts& before, QWidget* root, const DataRule& isData = ShownTexts::isData);
// Hands out the LanguageChange events that installing or removing a translator posts.
void deliverLanguageChange();
} // namespace ShownTexts
