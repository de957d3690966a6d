#include "proxyfields.h"

#include "config/configfile.h"
#include "connections/model/configatom.h"
#include "portvalidator.h"
#include "sessioneditorparts.h"

#include <QCheckBox>
#include <QGridLayout>

#include <QLabel>
#include <QLineEdit>

ProxyFields::ProxyFields(QWidget* parent)
    : QWidget(parent)
    , m_enable(new QCheckBox(this))
    , m_addressLabel(new QLabel(this))
    , m_address(new QLineEdit(this))
    , m_portLabel(new QLabel(this))
    , m_port(new QLineEdit(this))
{
    m_enable->setObjectName(QStringLiteral("ProxyCheckBox"));
    m_address->setObjectName(QStringLiteral("ProxyAddressEdit"));
    m_port->setObjectName(QStringLiteral("ProxyPortEdit"));
    m_addressLabel->setBuddy(m_address);
    m_portLabel->setBuddy(m_port);
    m_port->setValidator(new PortValidator(PortValidator::ConnectionPortTop, m_port));
    SessionEditorParts::setMinimumWidthFor(m_port, QStringLiteral("123456789"));

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(m_enable, 0, 0, 1, 3);
    grid->addWidget(m_addressLabel, 1, 0);
    grid->addWidget(m_portLabel, 1, 2);
    grid->addWidget(m_address, 2, 0);
    grid->addWidget(new QLabel(QStringLiteral(":"), this), 2, 1);
    grid->addWidget(m_port, 2, 2);
    grid->setColumnStretch(0, 100);
    grid->setColumnStretch(2, 10);
}

ProxyFields::~ProxyFields() = default;

void ProxyFields::setFieldsEnabled(bool enabled)
{
    m_addressLabel->setEnabled(enabled);
    m_address->setEnabled(enabled);
    m_portLabel->setEnabled(enabled);
    m_port->setEnabled(enabled);
}

void ProxyFields::retranslateUi(const QString& enableText)
{
    m_enable->setText(enableText);
    m_addressLabel->setText(tr("Proxy address"));
    m_portLabel->setText(tr("Port"));
}

void ProxyFields::clear()
{
    m_enable->setChecked(false);
    m_address->clear();
    m_port->clear();
}

void ProxyFields::load(const ConfigAtom* atom)
{
    if (!atom) {
        clear();
        return;
    }
    m_enable->setChecked(atom->property("enable").toBool());
    m_address->setText(atom->property("address").toString());
    m_port->setText(atom->property("port").toString());
}

void ProxyFields::save(ConfigAtom& atom) const
{
    atom.setProperty("enable", ConfigFile::boolText(m_enable->isChecked()));
    atom.setProperty("address", m_address->text());
    atom.setProperty("port", m_port->text());
}
