#pragma once

#include <QLineEdit>
#include <QTest>
#include <QWidget>

// Finding and filling the widgets of an editor page in its tests.

// The page's child of that object name; a missing one ends the test run at once.
template <typename T> T* child(QWidget& editor, const char* name)
{
    T* widget = editor.findChild<T*>(QLatin1String(name));
    if (!widget)
        qFatal("no widget %s", name);
    return widget;
}

// Replaces the edit's text as a user would, key by key, so validators have their say.
inline void retype(QLineEdit* edit, const QString& text)
{
    edit->clear();
    QTest::keyClicks(edit, text);
}
