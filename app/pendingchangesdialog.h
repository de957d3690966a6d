#pragma once

#include "config/configdiff.h"

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QTreeWidget;

/*
 * What is about to be saved or applied, against the file as it was opened: one row per
 * changed value under its section, before and after, passwords masked. The
 * administrator goes on or goes back to the wizard.
 */
class PendingChangesDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(PendingChangesDialog)

public:
    enum class Purpose { Save, Apply };

    PendingChangesDialog(const QList<ConfigDiff::Change>& changes, Purpose purpose, QWidget* parent = nullptr);
    ~PendingChangesDialog() override;

    QTreeWidget* changesTree() const { return m_tree; }
    QPushButton* goOnButton() const { return m_goOn; }
    QPushButton* goBackButton() const { return m_goBack; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void fillTree();
    void retranslateUi();

    QList<ConfigDiff::Change> m_changes;
    Purpose m_purpose;
    QLabel* m_intro;
    QTreeWidget* m_tree;
    QDialogButtonBox* m_buttons;
    QPushButton* m_goOn;
    QPushButton* m_goBack;
};
