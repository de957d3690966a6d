#include "devicetree.h"

#include "device/machineroot.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

DeviceTree::DeviceTree()
{
    MachineRoot::setRoot(m_dir.path());
}

DeviceTree::~DeviceTree()
{
    MachineRoot::setRoot(QString());
}

void DeviceTree::addFile(const QString& absolutePath, const QByteArray& contents)
{
    const QString path = m_dir.path() + absolutePath;
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(contents);
}

void DeviceTree::removeFile(const QString& absolutePath)
{
    QFile::remove(m_dir.path() + absolutePath);
}

void DeviceTree::addConnectionLaunchers()
{
    for (const char* launcher : { "rdesktop-runner", "ica-session-runner", "parlix-runner", "iceweasel-runner",
                                  "view-runner", "pnagent-runner" })
        addFile(QStringLiteral("/usr/bin/") + QLatin1String(launcher));
}
