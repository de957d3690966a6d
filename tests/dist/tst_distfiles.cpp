#include <QDir>
#include <QDirIterator>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

/*
 * What the application's package installs besides the programs: the desktop entry, the
 * MIME type, the icons, the AppStream file and the manual pages, installed from the build
 * into a scratch directory. The files must agree with each other, or double-clicking a
 * .tavlocfg file or finding Zelkon in a software centre quietly stops working.
 */
class TestDistFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyInstalledFileBelongsToAPackage();
    void expectedFilesAreInstalled_data();
    void expectedFilesAreInstalled();
    void desktopEntryOpensTheConfigurationMimeType();
    void iconExistsInEverySize();
    void metainfoDescribesThisRelease();
    void validatorsAcceptTheFiles_data();
    void validatorsAcceptTheFiles();

private:
    // Installs one component into its own scratch root; returns the root's data directory.
    bool install(const QString& component, const QString& destDir);
    QString dataFile(const QString& relative) const
    {
        return m_root + QStringLiteral(ZELKON_INSTALL_FULL_DATADIR "/") + relative;
    }
    QMap<QString, QString> desktopEntry() const;

    QTemporaryDir m_scratch;
    QString m_root;
};

namespace {
const QString kAppId = QStringLiteral("com.tavlo.Zelkon");
const QString kMimeType = QStringLiteral("application/x-tavlocfg");
} // namespace

bool TestDistFiles::install(const QString& component, const QString& destDir)
{
    QProcess cmake;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DESTDIR"), destDir);
    cmake.setProcessEnvironment(environment);
    cmake.setProcessChannelMode(QProcess::MergedChannels);
    cmake.start(
        QStringLiteral(ZELKON_CMAKE_COMMAND),
        { QStringLiteral("--install"), QStringLiteral(ZELKON_BUILD_DIR), QStringLiteral("--component"), component });
    if (!cmake.waitForFinished(60000) || cmake.exitStatus() != QProcess::NormalExit || cmake.exitCode() != 0) {
        qWarning().noquote() << cmake.readAll();
        return false;
    }
    return true;
}

void TestDistFiles::initTestCase()
{
    QVERIFY(m_scratch.isValid());
    m_root = m_scratch.filePath(QStringLiteral("application"));
    QVERIFY(install(QStringLiteral("application"), m_root));
}

void TestDistFiles::everyInstalledFileBelongsToAPackage()
{
    // An install() without a component lands in none of the packages.
    const QString root = m_scratch.filePath(QStringLiteral("unspecified"));
    QVERIFY(install(QStringLiteral("Unspecified"), root));
    QStringList stray;
    QDirIterator files(root, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        stray << files.next().mid(root.size());
    QVERIFY2(stray.isEmpty(), qPrintable(stray.join(QLatin1Char(' '))));
}

void TestDistFiles::expectedFilesAreInstalled_data()
{
    QTest::addColumn<QString>("path");
    for (const QString& path : { QStringLiteral(ZELKON_INSTALL_FULL_BINDIR "/zelkon"),
                                 QStringLiteral(ZELKON_INSTALL_FULL_BINDIR "/zelkonctl"),
                                 QStringLiteral(ZELKON_INSTALL_FULL_MANDIR "/man1/zelkon.1.gz"),
                                 QStringLiteral(ZELKON_INSTALL_FULL_MANDIR "/man1/zelkonctl.1.gz") })
        QTest::newRow(qPrintable(path)) << m_root + path;
    for (const QString& path :
         { QStringLiteral("applications/%1.desktop").arg(kAppId),
           QStringLiteral("metainfo/%1.metainfo.xml").arg(kAppId), QStringLiteral("mime/packages/zelkon.xml"),
           QStringLiteral("icons/hicolor/scalable/apps/zelkon.svg"), QStringLiteral("zelkon/tavlocfg.xsd"),
           QStringLiteral("zelkon/examples/lunvex-kiosk.tavlocfg"),
           QStringLiteral("zelkon/examples/device/usr/share/tavlotc-zelkon-tools/time_zones.tab"),
           QStringLiteral("doc/zelkon/copyright"), QStringLiteral("doc/zelkon/changelog.gz") })
        QTest::newRow(qPrintable(path)) << dataFile(path);
}

void TestDistFiles::expectedFilesAreInstalled()
{
    QFETCH(QString, path);
    const QFileInfo info(path);
    QVERIFY2(info.isFile() && info.size() > 0, qPrintable(info.filePath()));
}

QMap<QString, QString> TestDistFiles::desktopEntry() const
{
    QMap<QString, QString> entry;
    QFile file(dataFile(QStringLiteral("applications/%1.desktop").arg(kAppId)));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return entry;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        const int equals = line.indexOf(QLatin1Char('='));
        if (equals > 0)
            entry.insert(line.left(equals), line.mid(equals + 1));
    }
    return entry;
}

void TestDistFiles::desktopEntryOpensTheConfigurationMimeType()
{
    const QMap<QString, QString> entry = desktopEntry();
    QCOMPARE(entry.value(QStringLiteral("Exec")), QStringLiteral("zelkon %f"));
    QCOMPARE(entry.value(QStringLiteral("MimeType")), kMimeType + QLatin1Char(';'));

    QFile file(dataFile(QStringLiteral("mime/packages/zelkon.xml")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QDomDocument mime;
    QVERIFY(mime.setContent(&file, true));
    const QDomElement type = mime.documentElement().firstChildElement(QStringLiteral("mime-type"));
    QCOMPARE(type.attribute(QStringLiteral("type")), kMimeType);
    QCOMPARE(type.firstChildElement(QStringLiteral("glob")).attribute(QStringLiteral("pattern")),
             QStringLiteral("*.tavlocfg"));
}

void TestDistFiles::iconExistsInEverySize()
{
    const QString icon = desktopEntry().value(QStringLiteral("Icon"));
    QCOMPARE(icon, QStringLiteral("zelkon"));
    for (int size : { 16, 22, 24, 32, 48, 64, 128, 256 }) {
        const QString path = dataFile(QStringLiteral("icons/hicolor/%1x%1/apps/%2.png").arg(size).arg(icon));
        const QImage image(path);
        QVERIFY2(!image.isNull(), qPrintable(path));
        QCOMPARE(image.size(), QSize(size, size));
    }
}

void TestDistFiles::metainfoDescribesThisRelease()
{
    QFile file(dataFile(QStringLiteral("metainfo/%1.metainfo.xml").arg(kAppId)));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QDomDocument metainfo;
    QVERIFY(metainfo.setContent(&file));
    const QDomElement component = metainfo.documentElement();
    QCOMPARE(component.firstChildElement(QStringLiteral("id")).text(), kAppId);
    QCOMPARE(component.firstChildElement(QStringLiteral("launchable")).text(), kAppId + QStringLiteral(".desktop"));
    // The newest release comes first.
    const QDomElement release
        = component.firstChildElement(QStringLiteral("releases")).firstChildElement(QStringLiteral("release"));
    QCOMPARE(release.attribute(QStringLiteral("version")), QStringLiteral(ZELKON_VERSION));
}

void TestDistFiles::validatorsAcceptTheFiles_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("file");
    QTest::newRow("desktop entry") << QStringLiteral("desktop-file-validate") << QStringList()
                                   << QStringLiteral("applications/%1.desktop").arg(kAppId);
    QTest::newRow("metainfo") << QStringLiteral("appstreamcli")
                              << QStringList { QStringLiteral("validate"), QStringLiteral("--no-net") }
                              << QStringLiteral("metainfo/%1.metainfo.xml").arg(kAppId);
}

void TestDistFiles::validatorsAcceptTheFiles()
{
    QFETCH(QString, tool);
    QFETCH(QStringList, arguments);
    QFETCH(QString, file);
    const QString program = QStandardPaths::findExecutable(tool);
    if (program.isEmpty())
        QSKIP(qPrintable(tool + QStringLiteral(" is not installed")));

    QProcess validator;
    validator.setProcessChannelMode(QProcess::MergedChannels);
    validator.start(program, arguments << dataFile(file));
    QVERIFY(validator.waitForFinished(60000));
    const QString output = QString::fromUtf8(validator.readAll());
    QVERIFY2(validator.exitStatus() == QProcess::NormalExit && validator.exitCode() == 0, qPrintable(output));
    // Both exit 0 on warnings; a clean file has none.
    QVERIFY2(!output.contains(QLatin1String("warning:")) && !output.contains(QLatin1String("W: ")), qPrintable(output));
}

QTEST_GUILESS_MAIN(TestDistFiles)
#include "tst_distfiles.moc"
