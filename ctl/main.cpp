#include "zelkonctl.h"

#include "config/allocatortuning.h"

#include <QCoreApplication>

int main(int argc, char** argv)
{
    AllocatorTuning::forLargeDocuments();
    // No GUI application: the tool runs where there is no display.
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("zelkonctl"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZELKON_VERSION));
    return ZelkonCtl().run(QCoreApplication::arguments());
}
