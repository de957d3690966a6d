#include "platformchoiceframe.h"

#include "config/configfile.h"

#include "platform.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QLabel>

PlatformChoiceFrame::PlatformChoiceFrame(const QString& section, const QString& key, const QString& defaultChoice,
                                         QWidget* parent)
    : ConfigFrame(parent)
    , m_section(section)
    , m_key(key)
    , m_defaultChoice(defaultChoice)
    , m_label(new QLabel(this))
    , m_comboBox(new QComboBox(this))
    , m_emptyNote(new QLabel(this))
{
    // The longest layouts and locales would make the page wider than a small screen; the
    // list still opens with every name in full.
    m_comboBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_comboBox->setMinimumContentsLength(16);
    m_label->setBuddy(m_comboBox);
    auto* layout = new QFormLayout(this);
    layout->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    layout->addRow(m_label, m_comboBox);
    layout->addRow(m_emptyNote);

    connect(m_comboBox, qOverload<int>(&QComboBox::currentIndexChanged), this, &ConfigFrame::setDirty);
    connect(Platform::instance(), &Platform::platformChange, this, &PlatformChoiceFrame::updatePlatformOptions);
}

PlatformChoiceFrame::~PlatformChoiceFrame() = default;

QStringList PlatformChoiceFrame::tableEntries(const char* const table[], int count)
{
    QStringList entries;
    for (int row = 0; row < count; ++row)
        entries.append(QString::fromUtf8(table[row]));
    return entries;
}

// The tables are marked for translation in the context of the class that owns them.
QString PlatformChoiceFrame::translatedChoice(const QString& name) const
{
    return QCoreApplication::translate(metaObject()->className(), name.toUtf8().constData());
}

void PlatformChoiceFrame::updatePlatformOptions()
{
    const QSignalBlocker blocker(m_comboBox);
    const QVariant previous = m_comboBox->currentData();
    m_comboBox->clear();
    const QStringList names = choices();
    for (const QString& name : names)
        m_comboBox->addItem(translatedChoice(name), name);
    int index = m_comboBox->findData(previous);
    if (index < 0)
        index = m_comboBox->findData(m_defaultChoice);
    m_comboBox->setCurrentIndex(index);
    m_comboBox->setEnabled(m_comboBox->count() > 0);
    m_emptyNote->setVisible(m_comboBox->count() == 0);
}

void PlatformChoiceFrame::retranslateUi()
{
    m_label->setText(labelText());
    m_emptyNote->setText(tr("There is nothing to choose here for the selected platform."));
    for (int index = 0; index < m_comboBox->count(); ++index)
        m_comboBox->setItemText(index, translatedChoice(m_comboBox->itemData(index).toString()));
}

void PlatformChoiceFrame::loadConfig(ConfigFile* config)
{
    if (!enterSectionForLoad(config, m_section))
        return;
    m_comboBox->setCurrentIndex(m_comboBox->findData(config->value(m_key)));
}

void PlatformChoiceFrame::saveConfig(ConfigFile* config)
{
    if (!enterSectionForSave(config, m_section))
        return;
    config->setValue(m_key, m_comboBox->currentData().toString());
    leaveSection(config);
}
