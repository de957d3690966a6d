#include "modalanswer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTimer>

ModalAnswer::ModalAnswer(QMessageBox::StandardButton answer)
    : m_answer(answer)
{
}

void ModalAnswer::arm()
{
    m_answered = false;
    poll(500);
}

void ModalAnswer::poll(int attemptsLeft)
{
    QTimer::singleShot(10, &m_pollContext, [this, attemptsLeft] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box) {
            if (attemptsLeft > 0)
                poll(attemptsLeft - 1);
            return;
        }
        m_title = box->windowTitle();
        m_text = box->text();
        m_icon = box->icon();
        m_buttons = box->standardButtons();
        m_answered = true;
        if (QAbstractButton* button = box->button(m_answer))
            button->click();
        else
            box->reject();
    });
}
