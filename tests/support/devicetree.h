#pragma once

#include <QString>
#include <QTemporaryDir>

/*
 * A temporary stand-in for the machine's root directory. While it lives the library's
 * MachineRoot points at it, so tests can add launchers, package lists and preference
 * files without touching the real /usr, /etc or /var.
 */
class DeviceTree
{
public:
    DeviceTree();
    ~DeviceTree();
    DeviceTree(const DeviceTree&) = delete;
    DeviceTree& operator=(const DeviceTree&) = delete;

    QString root() const { return m_dir.path(); }
    // Creates absolutePath (e.g. "/usr/bin/view-runner") below the root with contents.
    void addFile(const QString& absolutePath, const QByteArray& contents = QByteArray());
    void removeFile(const QString& absolutePath);
    // The launchers of every connection type the wizard offers, as on the example device.
    void addConnectionLaunchers();

private:
    QTemporaryDir m_dir;
};
