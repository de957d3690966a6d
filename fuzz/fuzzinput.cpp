#include "fuzzinput.h"

#include "device/machineroot.h"
#include "platform.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdlib>

namespace {
// In memory where the machine offers it: every input is written once.
QTemporaryDir& scratch()
{
    const QString shm = QStringLiteral("/dev/shm");
    static QTemporaryDir dir((QFileInfo(shm).isWritable() ? shm : QDir::tempPath())
                             + QStringLiteral("/zelkon-fuzz-XXXXXX"));
    return dir;
}
} // namespace

void FuzzInput::initialize(int* argc, char*** argv)
{
    // The fuzzer reports what it finds; Qt's warnings about broken input only slow it.
    qputenv("QT_LOGGING_RULES", "*=false");
    // Widgets, for parsers that live in a frame. Never destroyed: Qt's offscreen platform
    // leaves its screens behind when the application object goes, and LeakSanitizer would
    // report that at every exit.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static auto* application = new QApplication(*argc, *argv);
    Q_UNUSED(application);
    // On a device the document would run the settings tool before every load.
    Platform::instance()->setTarget(Platform::Lunvex);
    Platform::instance()->setStandalone(true);
    if (!scratch().isValid())
        std::abort();
    QDir(scratch().path()).mkpath(QStringLiteral("root"));
    MachineRoot::setRoot(scratch().filePath(QStringLiteral("root")));
}

QString FuzzInput::place(const QByteArray& bytes, const QString& machinePath)
{
    const QString path
        = machinePath.isEmpty() ? scratch().filePath(QStringLiteral("input")) : MachineRoot::path(machinePath);
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        std::abort();
    return path;
}

QString FuzzInput::scratchFile()
{
    return scratch().filePath(QStringLiteral("output"));
}
