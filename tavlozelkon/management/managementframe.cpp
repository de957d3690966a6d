#include "managementframe.h"

#include "config/configfile.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace {
const QString EnableKey = QStringLiteral("enable");
}

ManagementFrame::ManagementFrame(const QString& section, bool enabledByDefault, QWidget* parent)
    : ConfigFrame(parent)
    , m_section(section)
    , m_enable(new QCheckBox(this))
    , m_grid(new QGridLayout(this))
{
    m_enable->setObjectName(QStringLiteral("EnableCheck"));
    m_enable->setChecked(enabledByDefault);
    // The empty labels only pad the check box on either side.
    m_grid->addWidget(new QLabel(this), 0, 0, 1, 1);
    m_grid->addWidget(m_enable, 0, 1, 1, 3);
    m_grid->addWidget(new QLabel(this), 0, 5, 1, 1);
    // The edits below the check box span columns 1 to 3; they get the width to spare.
    m_grid->setColumnStretch(3, 1);
    connect(m_enable, &QCheckBox::stateChanged, this, &ConfigFrame::setDirty);
    ManagementFrame::retranslateUi();
}

ManagementFrame::~ManagementFrame() = default;

void ManagementFrame::addTextValue(const QString& key, QLineEdit* edit, bool (*applies)())
{
    m_textValues.append({ key, edit, applies });
    connect(edit, &QLineEdit::textChanged, this, &ConfigFrame::setDirty);
}

void ManagementFrame::loadConfig(ConfigFile* config)
{
    // A section that was in the file is marked to be written back, changed or not.
    if (!enterSectionForLoad(config, m_section))
        return;
    m_enable->setChecked(config->boolValue(EnableKey));
    for (const TextValue& value : qAsConst(m_textValues)) {
        if (!value.applies || value.applies()) {
            value.edit->setText(config->value(value.key));
            // Show where a long address begins, not where it ends.
            value.edit->setCursorPosition(0);
        }
    }
}

void ManagementFrame::saveConfig(ConfigFile* config)
{
    if (!enterSectionForSave(config, m_section))
        return;
    config->setBoolValue(EnableKey, m_enable->isChecked());
    for (const TextValue& value : qAsConst(m_textValues)) {
        if (!value.applies || value.applies())
            config->setValue(value.key, value.edit->text());
    }
    leaveSection(config);
}

void ManagementFrame::retranslateUi()
{
    m_enable->setText(tr("Enable"));
}
