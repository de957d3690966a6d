#pragma once

#include "tavlozelkon_lib_export.h"

#include "wizardpage.h"

class ConfigFile;
class QLabel;
class QPushButton;
class QTextBrowser;

/*
 * The wizard's last page. Each time it is shown it asks the host to gather every page's
 * settings into the document, shows the document as HTML, and offers to apply the
 * configuration to this device or save it. The host places the save button.
 */
class TAVLOZELKON_LIB_EXPORT ZelkonSummaryPage : public WizardPage
{
    Q_OBJECT
    Q_DISABLE_COPY(ZelkonSummaryPage)

public:
    explicit ZelkonSummaryPage(ConfigFile* config, QWidget* parent = nullptr);
    ~ZelkonSummaryPage() override;

    QString title() const override;
    QString description() const override;
    QString helpText() const override;
    void retranslateUi() override;
    void setupToShow() override;

    void updateSummary();

    QTextBrowser* summaryView() const { return m_summaryView; }
    QPushButton* applyButton() const { return m_applyButton; }
    QPushButton* saveButton() const { return m_saveButton; }

signals:
    void helpChanged(const QString& text);
    void generateConfig();
    void saveConfig();
    void applyConfig();

public slots:
    void validateConfig();

private:
    void setup();
    void setButtonsEnabled(bool enabled);

    ConfigFile* m_config;
    QLabel* m_titleLabel = nullptr;
    QTextBrowser* m_summaryView = nullptr;
    QPushButton* m_applyButton = nullptr;
    QPushButton* m_saveButton = nullptr;
};
