#pragma once

#include <QMenu>

class LanguageManager;
class QActionGroup;

/*
 * The Language menu: one checkable entry per available language, each named in its own
 * language so that a user lost in a foreign one still finds theirs. Choosing an entry
 * switches the manager; the check follows the manager, however the language was set.
 */
class LanguageMenu : public QMenu
{
    Q_OBJECT
    Q_DISABLE_COPY(LanguageMenu)

public:
    explicit LanguageMenu(LanguageManager* manager, QWidget* parent = nullptr);

    QActionGroup* actionGroup() const { return m_group; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslateUi();
    void checkCurrent();

    LanguageManager* m_manager;
    QActionGroup* m_group;
};
