#include "connectionsframe.h"

#include "connectioneditor.h"

#include <QVBoxLayout>

ConnectionsFrame::ConnectionsFrame(QWidget* parent)
    : ConfigFrame(parent)
    , m_editor(new ConnectionEditor(m_model, this))
{
    connect(m_editor, &ConnectionEditor::modified, this, &ConfigFrame::setDirty);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_editor);
}

ConnectionsFrame::~ConnectionsFrame()
{
    // The editor's pages refer to the model, which goes right after this body.
    delete m_editor;
}

QString ConnectionsFrame::title() const
{
    return tr("Connections");
}

QIcon ConnectionsFrame::icon() const
{
    return QIcon(QStringLiteral(":/images/connections.png"));
}

QString ConnectionsFrame::helpText() const
{
    return QString();
}

// The editor translates itself on a language change.
void ConnectionsFrame::retranslateUi() { }

void ConnectionsFrame::loadConfig(ConfigFile* config)
{
    m_model.loadConfig(config);
}

void ConnectionsFrame::saveConfig(ConfigFile* config)
{
    m_model.saveConfig(config);
}
