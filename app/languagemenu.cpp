#include "languagemenu.h"

#include "languagemanager.h"

#include <QActionGroup>
#include <QEvent>

LanguageMenu::LanguageMenu(LanguageManager* manager, QWidget* parent)
    : QMenu(parent)
    , m_manager(manager)
    , m_group(new QActionGroup(this))
{
    setObjectName(QStringLiteral("LanguageMenu"));
    m_group->setExclusive(true);
    const QStringList languages = LanguageManager::availableLanguages();
    for (const QString& language : languages) {
        QAction* action = addAction(LanguageManager::nativeName(language));
        action->setObjectName(QStringLiteral("LanguageAction_") + language);
        action->setData(language);
        action->setCheckable(true);
        m_group->addAction(action);
    }
    connect(m_group, &QActionGroup::triggered, this,
            [this](QAction* action) { m_manager->setLanguage(action->data().toString()); });
    connect(m_manager, &LanguageManager::languageChanged, this, &LanguageMenu::checkCurrent);
    checkCurrent();
    retranslateUi();
}

void LanguageMenu::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QMenu::changeEvent(event);
}

void LanguageMenu::retranslateUi()
{
    setTitle(tr("&Language"));
}

void LanguageMenu::checkCurrent()
{
    const QList<QAction*> actions = m_group->actions();
    for (QAction* action : actions)
        action->setChecked(action->data().toString() == m_manager->currentLanguage());
}
