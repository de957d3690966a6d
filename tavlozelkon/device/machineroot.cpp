#include "machineroot.h"

#include <QDir>
#include <QFileInfo>

namespace {
QString& rootDirectory()
{
    static QString directory;
    return directory;
}
} // namespace

void MachineRoot::setRoot(const QString& directory)
{
    QString cleaned = directory.isEmpty() ? QString() : QDir::cleanPath(QDir(directory).absolutePath());
    if (cleaned == QLatin1String("/"))
        cleaned.clear();
    rootDirectory() = cleaned;
}

QString MachineRoot::root()
{
    return rootDirectory().isEmpty() ? QStringLiteral("/") : rootDirectory();
}

QString MachineRoot::path(const QString& absolutePath)
{
    return rootDirectory() + absolutePath;
}

bool MachineRoot::exists(const QString& absolutePath)
{
    return QFileInfo::exists(path(absolutePath));
}
