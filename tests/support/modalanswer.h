#pragma once

#include <QMessageBox>
#include <QObject>
#include <QString>

/*
 * Answers the next modal message box: call arm() before the code that opens the box.
 * Once the box is up, its title, icon, text and buttons are recorded and the chosen
 * button is clicked.
 */
class ModalAnswer
{
public:
    explicit ModalAnswer(QMessageBox::StandardButton answer = QMessageBox::Ok);

    void arm();
    bool answered() const { return m_answered; }

    QString title() const { return m_title; }
    QString text() const { return m_text; }
    QMessageBox::Icon icon() const { return m_icon; }
    QMessageBox::StandardButtons buttons() const { return m_buttons; }

private:
    void poll(int attemptsLeft);

    // Owns the pending poll, so that a box that never came cannot call into a dead object.
    QObject m_pollContext;
    QMessageBox::StandardButton m_answer;
    bool m_answered = false;
    QString m_title;
    QString m_text;
    QMessageBox::Icon m_icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons m_buttons;
};
