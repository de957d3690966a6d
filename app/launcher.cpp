#include "launcher.h"

#include "commandline.h"
#include "configfilecheck.h"
#include "displaycheck.h"
#include "languagemanager.h"
#include "mainwindow.h"
#include "pagescreenshotter.h"

#include "config/allocatortuning.h"
#include "device/machineroot.h"
#include "pages/zelkontitlepage.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QTextStream>
#include <csignal>

namespace {
QTextStream& out()
{
    static QTextStream stream(stdout);
    return stream;
}

QTextStream& err()
{
    static QTextStream stream(stderr);
    return stream;
}
} // namespace

void Launcher::prepareProcess()
{
    std::signal(SIGXFSZ, SIG_IGN);
    AllocatorTuning::forLargeDocuments();
}

QStringList Launcher::prepareArguments(int& argc, char** argv)
{
    QStringList arguments;
    bool needsNoDisplay = false;
    bool optionsEnded = false;
    int kept = 1;
    for (int i = 0; i < argc; ++i) {
        const QByteArray argument(argv[i]);
        arguments.append(QString::fromLocal8Bit(argument));
        if (i == 0)
            continue;
        if (argument == "--")
            optionsEnded = true;
        // Qt takes "--platform" for its window-system plugin, so it must not see ours.
        const bool ours = !optionsEnded && (argument == "--platform" || argument.startsWith("--platform="));
        if (ours && argument == "--platform" && i + 1 < argc)
            arguments.append(QString::fromLocal8Bit(argv[++i]));
        if (!optionsEnded
            && (argument == "--screenshots" || argument.startsWith("--screenshots=") || argument == "--help"
                || argument == "--version"))
            needsNoDisplay = true;
        if (!ours)
            argv[kept++] = argv[i];
    }
    argc = kept;
    if (needsNoDisplay && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return arguments;
}

int Launcher::checkBeforeStart(const QStringList& arguments)
{
    CommandLine commandLine;
    if (!commandLine.parse(arguments)) {
        err() << commandLine.errorText() << '\n' << tr("Try --help.") << Qt::endl;
        return 2;
    }
    // prepareArguments() has chosen the offscreen platform for these.
    const bool windowless
        = commandLine.helpRequested() || commandLine.versionRequested() || !commandLine.screenshotDirectory().isEmpty();
    if (!windowless && !DisplayCheck::availableHere()) {
        err() << DisplayCheck::missingText() << Qt::endl;
        return 1;
    }
    return -1;
}

int Launcher::run(const QStringList& arguments)
{
    chooseLanguage(arguments);
    // Built after the language is chosen, so that --help and the errors speak it.
    CommandLine commandLine;
    if (!commandLine.parse(arguments)) {
        err() << commandLine.errorText() << '\n' << tr("Try --help.") << Qt::endl;
        return 2;
    }
    if (commandLine.helpRequested()) {
        out() << commandLine.helpText() << Qt::flush;
        return 0;
    }
    if (commandLine.versionRequested()) {
        out() << QCoreApplication::applicationName() << ' ' << QCoreApplication::applicationVersion() << Qt::endl;
        return 0;
    }

    // Every page probes the machine while it is built, so the root must be set first.
    if (!commandLine.deviceRoot().isEmpty()) {
        const QFileInfo root(commandLine.deviceRoot());
        if (!root.isDir()) {
            err() << tr("The device root \"%1\" is not a folder.").arg(QDir::toNativeSeparators(root.filePath()))
                  << Qt::endl;
            return 2;
        }
        MachineRoot::setRoot(root.absoluteFilePath());
    }

    MainWindow window;
    window.setReviewChanges(true);
    if (commandLine.standalone())
        window.standaloneCheck()->setChecked(true);
    if (commandLine.platformIndex() >= 0)
        window.titlePage()->platformCombo()->setCurrentIndex(commandLine.platformIndex());
    if (!commandLine.fileName().isEmpty()) {
        // Rendering runs unattended: say what is wrong instead of waiting for a message box.
        // Only then is the file judged here; otherwise opening it tells the user.
        if (!commandLine.screenshotDirectory().isEmpty()) {
            const QString problem = ConfigFileCheck::problem(commandLine.fileName());
            if (!problem.isEmpty()) {
                err() << tr("Cannot open \"%1\": %2").arg(QDir::toNativeSeparators(commandLine.fileName()), problem)
                      << Qt::endl;
                return 1;
            }
        }
        window.openFile(commandLine.fileName());
    }

    if (!commandLine.screenshotDirectory().isEmpty()) {
        PageScreenshotter screenshotter(&window);
        if (!screenshotter.write(commandLine.screenshotDirectory())) {
            err() << screenshotter.errorText() << Qt::endl;
            return 1;
        }
        out() << tr("Wrote %1 pages to %2.")
                     .arg(PageScreenshotter::fileNames().size())
                     .arg(QDir::toNativeSeparators(QDir(commandLine.screenshotDirectory()).absolutePath()))
              << Qt::endl;
        return 0;
    }

    window.show();
    return QApplication::exec();
}

void Launcher::chooseLanguage(const QStringList& arguments)
{
    CommandLine commandLine;
    const bool parsed = commandLine.parse(arguments);
    const QString language
        = parsed && !commandLine.language().isEmpty() ? commandLine.language() : LanguageManager::systemLanguage();
    LanguageManager::instance()->setLanguage(language);
}
