// Times the document pipeline for growing documents and the wizard's start-up; see
// printUsage(). Not a test: the figures depend on the machine, so nothing here passes or
// fails.
#include "benchdocument.h"
#include "childprocess.h"
#include "firstpaintprobe.h"
#include "pipeline.h"

#include "config/allocatortuning.h"
#include "device/machineroot.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <QVector>
#include <algorithm>
#include <cmath>

namespace {
QTextStream& out()
{
    static QTextStream stream(stdout);
    return stream;
}

QString here(const char* name)
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QLatin1String(name));
}

QString deviceTree()
{
    return QStringLiteral(ZELKON_SOURCE_DIR "/examples/device");
}

// The least-squares slope of log(time) over log(size): 1 for linear growth, 2 for quadratic.
double growthExponent(const QList<int>& sizes, const QList<double>& values)
{
    double sumX = 0, sumY = 0, sumXX = 0, sumXY = 0;
    const int n = sizes.size();
    for (int i = 0; i < n; ++i) {
        const double x = std::log(double(sizes.at(i)));
        const double y = std::log(std::max(values.at(i), 1e-3));
        sumX += x;
        sumY += y;
        sumXX += x * x;
        sumXY += x * y;
    }
    const double denominator = n * sumXX - sumX * sumX;
    return denominator == 0 ? 0 : (n * sumXY - sumX * sumY) / denominator;
}

QString milliseconds(double microseconds)
{
    return microseconds >= 100000 ? QString::number(microseconds / 1000, 'f', 0) + QLatin1String(" ms")
                                  : QString::number(microseconds / 1000, 'f', 1) + QLatin1String(" ms");
}

QString megabytes(qint64 kilobytes)
{
    return QString::number(kilobytes / 1024.0, 'f', 1) + QLatin1String(" MB");
}

QString sizeLabel(int size)
{
    return size % 1000 == 0 ? QString::number(size / 1000) + QLatin1Char('k') : QString::number(size);
}

double fastest(const QList<double>& values)
{
    return values.isEmpty() ? 0 : *std::min_element(values.cbegin(), values.cend());
}

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values.isEmpty() ? 0 : values.at(values.size() / 2);
}

// Several runs, each in a fresh process (so that the peak memory is that run's own). A
// figure is the fastest of its runs, so that a step slowed by something else on the machine
// in one run is taken from another, or their median.
struct Measurement
{
    QList<QList<double>> stepRuns; // every run of each step
    QList<double> totals; // every whole run
    qint64 wallMicroseconds = 0;
    qint64 peakKilobytes = 0;
    bool ok = false;
    bool failed = false;

    void add(const ChildProcess::Result& result)
    {
        const QList<QByteArray> fields = result.output.trimmed().split(' ');
        if (failed || result.exitCode != 0 || fields.size() < Pipeline::stepNames().size() + 1) {
            failed = true;
            ok = false;
            return;
        }
        double runTotal = 0;
        for (int i = 0; i < Pipeline::stepNames().size(); ++i) {
            const double step = fields.at(i + 1).toDouble();
            runTotal += step;
            if (stepRuns.size() <= i)
                stepRuns.append(QList<double>());
            stepRuns[i].append(step);
        }
        totals.append(runTotal);
        wallMicroseconds = ok ? std::min(wallMicroseconds, result.wallMicroseconds) : result.wallMicroseconds;
        peakKilobytes = ok ? std::min(peakKilobytes, result.peakKilobytes) : result.peakKilobytes;
        ok = true;
    }

    // Of the step with this index, or of the whole pipeline past the last step.
    double fastest(int step) const { return ::fastest(runs(step)); }
    double typical(int step) const { return median(runs(step)); }

private:
    const QList<double>& runs(int step) const
    {
        static const QList<double> none;
        return !ok ? none : step < stepRuns.size() ? stepRuns.at(step) : totals;
    }
};

ChildProcess::Result runWorker(const QString& file, const QString& mode, const QString& scratch)
{
    return ChildProcess::run({ QCoreApplication::applicationFilePath(), QStringLiteral("--worker"), file, mode, scratch });
}

ChildProcess::Result runXmllint(const QString& file)
{
    return ChildProcess::run({ QStringLiteral("xmllint"), QStringLiteral("--noout"), file });
}

// The fastest of runs, by wall time, with the peak memory of that run.
struct XmllintMeasurement
{
    ChildProcess::Result best;
    bool measured = false;

    void add(const ChildProcess::Result& result)
    {
        if (!measured || result.wallMicroseconds < best.wallMicroseconds)
            best = result;
        measured = true;
    }
};

int worker(const QStringList& arguments)
{
    if (arguments.size() < 5)
        return 2;
    MachineRoot::setRoot(deviceTree());
    const Pipeline::Times times = Pipeline::run(arguments.at(2),
                                                arguments.at(3) == QLatin1String("device") ? Pipeline::Mode::Device
                                                                                           : Pipeline::Mode::Standalone,
                                                arguments.at(4));
    out() << times.sessions;
    for (qint64 step : times.steps)
        out() << ' ' << step;
    out() << Qt::endl;
    return times.ok ? 0 : 1;
}

void benchDocuments(const QList<int>& sizes, int runs, QTemporaryDir& dir)
{
    QHash<int, QString> files;
    for (int size : sizes) {
        const QString path = dir.filePath(QStringLiteral("sessions-%1.tavlocfg").arg(size));
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(BenchDocument::generate(size));
        files.insert(size, path);
    }
    const QString scratch = dir.filePath(QStringLiteral("saved.tavlocfg"));
    const bool haveXmllint = ChildProcess::exists(QStringLiteral("xmllint"));

    out() << "Documents with N sessions over " << BenchDocument::connectionTypes().join(QLatin1String(", "))
          << "; device tree " << QDir::toNativeSeparators(deviceTree()) << "; fastest of " << runs
          << " runs, each in a fresh process, taken per figure; the runs go round every size in turn. "
             "The growth exponents are fitted to the fastest and to the median runs.\n\n";
    QString header = QStringLiteral("| step | mode |");
    QString rule = QStringLiteral("|---|---|");
    for (int size : sizes) {
        header += QLatin1Char(' ') + sizeLabel(size) + QLatin1String(" |");
        rule += QLatin1String("---:|");
    }
    out() << header << " growth exponent, fastest | median |\n" << rule << "---:|---:|\n";

    const QStringList modes { QStringLiteral("device"), QStringLiteral("standalone") };
    QHash<QString, QVector<Measurement>> results;
    for (const QString& mode : modes)
        results[mode] = QVector<Measurement>(sizes.size());
    QVector<XmllintMeasurement> xmllintResults(sizes.size());
    // Round after round over every size, mode and xmllint, so that a slow spell of the
    // machine weighs on one run of each rather than on every run of one size.
    for (int run = 0; run < runs; ++run) {
        for (int i = 0; i < sizes.size(); ++i) {
            for (const QString& mode : modes)
                results[mode][i].add(runWorker(files.value(sizes.at(i)), mode, scratch));
            if (haveXmllint)
                xmllintResults[i].add(runXmllint(files.value(sizes.at(i))));
        }
    }
    const QStringList steps = Pipeline::stepNames();
    for (int step = 0; step <= steps.size(); ++step) {
        for (const QString& mode : modes) {
            const QString name = step < steps.size() ? QStringLiteral("`%1`").arg(steps.at(step))
                                                     : QStringLiteral("whole pipeline (fastest run)");
            QString row = QStringLiteral("| %1 | %2 |").arg(name, mode);
            QList<double> fastest;
            QList<double> typical;
            for (const Measurement& measurement : results.value(mode)) {
                fastest.append(measurement.fastest(step));
                typical.append(measurement.typical(step));
                row += measurement.ok ? QLatin1Char(' ') + milliseconds(fastest.constLast()) + QLatin1String(" |")
                                      : QStringLiteral(" failed |");
            }
            out() << row << ' ' << QString::number(growthExponent(sizes, fastest), 'f', 2) << " | "
                  << QString::number(growthExponent(sizes, typical), 'f', 2) << " |\n";
        }
    }
    for (const QString& mode : modes) {
        QString row = QStringLiteral("| peak memory (process) | %1 |").arg(mode);
        for (const Measurement& measurement : results.value(mode))
            row += QLatin1Char(' ') + megabytes(measurement.peakKilobytes) + QLatin1String(" |");
        out() << row << " | |\n";
    }
    if (haveXmllint) {
        QString wallRow = QStringLiteral("| `xmllint --noout` (wall) | |");
        QString memoryRow = QStringLiteral("| `xmllint --noout` peak memory | |");
        for (const XmllintMeasurement& xmllint : xmllintResults) {
            wallRow += QLatin1Char(' ') + milliseconds(xmllint.best.wallMicroseconds) + QLatin1String(" |");
            memoryRow += QLatin1Char(' ') + megabytes(xmllint.best.peakKilobytes) + QLatin1String(" |");
        }
        out() << wallRow << " | |\n" << memoryRow << " | |\n";
    }
    out() << '\n';

    // The figures the targets are stated in.
    const int reference = 10000;
    const QString path = dir.filePath(QStringLiteral("sessions-10k.tavlocfg"));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(BenchDocument::generate(reference));
    file.close();
    Measurement pipeline;
    XmllintMeasurement xmllint;
    // Alternated, as above.
    for (int run = 0; run < runs; ++run) {
        pipeline.add(runWorker(path, QStringLiteral("standalone"), scratch));
        if (haveXmllint)
            xmllint.add(runXmllint(path));
    }
    out() << "10k sessions, standalone: pipeline " << milliseconds(pipeline.fastest(Pipeline::stepNames().size()))
          << " in process, "
          << milliseconds(pipeline.wallMicroseconds) << " wall for the whole process";
    if (haveXmllint) {
        out() << "; xmllint --noout " << milliseconds(xmllint.best.wallMicroseconds) << " wall; ratio "
              << QString::number(double(pipeline.wallMicroseconds) / xmllint.best.wallMicroseconds, 'f', 1) << "x";

        const Measurement largest = results.value(QStringLiteral("standalone")).constLast();
        const qint64 largestXmllint = xmllintResults.constLast().best.peakKilobytes;
        out() << "\n"
              << sizeLabel(sizes.constLast()) << " sessions, standalone: peak memory "
              << megabytes(largest.peakKilobytes) << " against xmllint --noout " << megabytes(largestXmllint)
              << "; ratio " << QString::number(double(largest.peakKilobytes) / largestXmllint, 'f', 2) << "x";
    } else {
        out() << "; xmllint is not installed, so there is no comparison";
    }
    out() << "\n\n";
}

void benchStartup(int runs)
{
    const QList<QPair<QByteArray, QByteArray>> offscreen { { "QT_QPA_PLATFORM", "offscreen" } };
    const QStringList programs { QStringLiteral("bare Qt widgets window"), QStringLiteral("same widgets in plain Qt"),
                                 QStringLiteral("wizard") };
    const QList<QStringList> commands { { here("zelkon-bench-bare") },
                                        { here("zelkon-bench-same-widgets") },
                                        { here("zelkon-bench-wizard"), QStringLiteral("--device-root"), deviceTree() } };
    QList<QList<double>> times { {}, {}, {} };
    // Alternated, so that whatever else the machine does weighs on all alike.
    for (int run = 0; run < runs; ++run) {
        for (int program = 0; program < commands.size(); ++program) {
            const ChildProcess::Result result
                = ChildProcess::run(commands.at(program), FirstPaintProbe::marker(), offscreen);
            if (result.markerMicroseconds < 0) {
                out() << "Start-up: the " << programs.at(program) << " did not report its first paint.\n";
                return;
            }
            times[program].append(result.markerMicroseconds);
        }
    }
    const auto report = [&](const QString& figure, double (*pick)(const QList<double>&)) {
        const double bare = pick(times.at(0));
        const double same = pick(times.at(1));
        const double wizard = pick(times.at(2));
        out() << "Start to first paint, offscreen, " << figure << " of " << runs << " runs: bare Qt widgets window "
              << milliseconds(bare) << ", the first page's widgets in plain Qt " << milliseconds(same) << ", wizard "
              << milliseconds(wizard) << "; wizard against bare " << QString::number(wizard / bare, 'f', 2)
              << "x, against the same widgets " << QString::number(wizard / same, 'f', 2) << "x\n";
    };
    report(QStringLiteral("median"), [](const QList<double>& values) { return median(values); });
    // On a busy machine the fastest runs are the ones least disturbed by everything else.
    report(QStringLiteral("fastest"), fastest);
}

void printUsage()
{
    out() << "Usage: zelkon-bench [--sizes 1000,2000,4000,8000,16000] [--runs 3] [--start-runs 15]\n"
             "                    [--documents-only | --startup-only]\n"
             "       zelkon-bench --generate SESSIONS FILE\n"
             "Times loading, the connection model, saving the model, the summary and saving the file\n"
             "for documents of growing size, on the example device tree and standalone, and the start\n"
             "of the wizard to its first painted window against a bare Qt window and against the\n"
             "widgets of its first page built from plain Qt, all offscreen.\n";
}
} // namespace

int main(int argc, char** argv)
{
    // The worker runs the pipeline the way the wizard and zelkonctl run it.
    AllocatorTuning::forLargeDocuments();
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--worker"))
        return worker(arguments);
    if (arguments.value(1) == QLatin1String("--generate")) {
        QFile file(arguments.value(3));
        if (arguments.size() != 4 || !file.open(QIODevice::WriteOnly)) {
            printUsage();
            return 2;
        }
        file.write(BenchDocument::generate(arguments.value(2).toInt()));
        return 0;
    }

    QList<int> sizes { 1000, 2000, 4000, 8000, 16000 };
    int runs = 3;
    int startRuns = 15;
    bool documents = true;
    bool startup = true;
    for (int i = 1; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        if (argument == QLatin1String("--sizes") && i + 1 < arguments.size()) {
            sizes.clear();
            for (const QString& size : arguments.at(++i).split(QLatin1Char(',')))
                sizes.append(size.toInt());
        } else if (argument == QLatin1String("--runs") && i + 1 < arguments.size()) {
            runs = std::max(1, arguments.at(++i).toInt());
        } else if (argument == QLatin1String("--start-runs") && i + 1 < arguments.size()) {
            startRuns = std::max(1, arguments.at(++i).toInt());
        } else if (argument == QLatin1String("--documents-only")) {
            startup = false;
        } else if (argument == QLatin1String("--startup-only")) {
            documents = false;
        } else {
            printUsage();
            return argument == QLatin1String("--help") ? 0 : 2;
        }
    }

    QTemporaryDir dir;
    if (documents)
        benchDocuments(sizes, runs, dir);
    if (startup)
        benchStartup(startRuns);
    return 0;
}
