#pragma once

#include "tavlozelkon_lib_export.h"

#include "wizardpage.h"

class QComboBox;
class QLabel;

/*
 * The wizard's first page: title, description and, once setupPlatforms() has run, a
 * chooser of the target platform that the host places where it likes. Its signals ask
 * the host to load, save or generate a configuration; the page never emits them itself.
 */
class TAVLOZELKON_LIB_EXPORT ZelkonTitlePage : public WizardPage
{
    Q_OBJECT
    Q_DISABLE_COPY(ZelkonTitlePage)

public:
    explicit ZelkonTitlePage(QWidget* parent = nullptr);
    ~ZelkonTitlePage() override;

    QString title() const override;
    QString description() const override;
    QString helpText() const override;
    void retranslateUi() override;

    void setupPlatforms();
    // Null until setupPlatforms() has run.
    QLabel* platformLabel() const { return m_platformLabel; }
    QComboBox* platformCombo() const { return m_platformCombo; }

signals:
    void helpChanged(const QString& text);
    void generateConfig();
    void saveConfig();
    void loadConfig();

private:
    void setup();

    QLabel* m_titleLabel = nullptr;
    QLabel* m_bodyLabel = nullptr;
    QLabel* m_platformLabel = nullptr;
    QComboBox* m_platformCombo = nullptr;
};
