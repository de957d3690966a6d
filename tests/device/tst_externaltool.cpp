#include "device/externaltool.h"

#include <QtTest>

using Outcome = ExternalTool::Result::Outcome;

// What the device's tools did, told truthfully; and a tool that takes too long is never killed.
class ExternalToolTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(m_dir.isValid()); }

    void outcomes_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<int>("timeoutMs");
        QTest::addColumn<int>("outcome");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<int>("runCode");
        QTest::newRow("success") << QByteArray("exit 0") << 10000 << int(Outcome::Finished) << 0 << 0;
        QTest::newRow("failure") << QByteArray("echo failing >&2; exit 3") << 10000 << int(Outcome::Finished) << 3 << 3;
        QTest::newRow("crash") << QByteArray("kill -SEGV $$") << 10000 << int(Outcome::Crashed) << -1 << -1;
        QTest::newRow("time-out") << QByteArray("sleep 2") << 100 << int(Outcome::TimedOut) << -1 << -1;
        QTest::newRow("missing") << QByteArray() << 10000 << int(Outcome::NotStarted) << -1 << -1;
    }

    void outcomes()
    {
        QFETCH(QByteArray, script);
        QFETCH(int, timeoutMs);
        QFETCH(int, outcome);
        QFETCH(int, exitCode);
        QFETCH(int, runCode);
        const QString tool = script.isEmpty() ? m_dir.filePath(QStringLiteral("missing")) : writeTool(script);

        const ExternalTool::Result result = ExternalTool::execute(tool, {}, timeoutMs);
        QCOMPARE(int(result.outcome), outcome);
        QCOMPARE(result.exitCode, exitCode);
        QCOMPARE(result.succeeded(), outcome == int(Outcome::Finished) && exitCode == 0);
        if (outcome == int(Outcome::NotStarted) || outcome == int(Outcome::Crashed))
            QVERIFY(!result.errorText.isEmpty());
        if (outcome != int(Outcome::TimedOut))
            QCOMPARE(ExternalTool::run(tool, {}, timeoutMs), runCode);
    }

    void timedOutToolOutlivesTheApplication()
    {
        // The tool still writes after the application has ended; a killed tool, or one whose
        // output pipe broke with the application, never gets to the marker.
        const QString marker = m_dir.filePath(QStringLiteral("finished"));
        const QString tool = writeTool("sleep 1\necho still writing\necho still writing >&2\ntouch '"
                                       + QFile::encodeName(marker) + "'");
        QProcess helper;
        helper.start(QStringLiteral(TOOL_RUNNER_HELPER), { tool, QStringLiteral("200") });
        QVERIFY(helper.waitForFinished(10000));
        QCOMPARE(helper.exitStatus(), QProcess::NormalExit);
        QCOMPARE(helper.exitCode(), 0);
        QVERIFY(!QFile::exists(marker));
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(marker), 10000);
    }

    void timedOutToolIsReapedWhenItEnds()
    {
        const QString tool = writeTool("sleep 0.3");
        QCOMPARE(int(ExternalTool::execute(tool, {}, 50).outcome), int(Outcome::TimedOut));
        // The process object goes once the tool has finished.
        QTRY_VERIFY_WITH_TIMEOUT(findChildProcesses() == 0, 5000);
    }

private:
    QString writeTool(const QByteArray& body)
    {
        const QString path = m_dir.filePath(QStringLiteral("tool%1").arg(++m_tools));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write("#!/bin/sh\n" + body + '\n') < 0)
            return QString();
        file.close();
        file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        return path;
    }

    static int findChildProcesses()
    {
        QDir proc(QStringLiteral("/proc/self/task"));
        int children = 0;
        const QStringList tasks = proc.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString& task : tasks) {
            QFile file(proc.filePath(task + QStringLiteral("/children")));
            if (file.open(QIODevice::ReadOnly))
                children += QString::fromLatin1(file.readAll()).split(QLatin1Char(' '), Qt::SkipEmptyParts).size();
        }
        return children;
    }

    QTemporaryDir m_dir;
    int m_tools = 0;
};

QTEST_GUILESS_MAIN(ExternalToolTest)
#include "tst_externaltool.moc"
