#include "connections/model/connectionmodel.h"
#include "devicetree.h"

#include <QtTest>

using TypeList = QList<QPair<QString, QString>>;

namespace {
const QString classics = QStringLiteral("Classics");
const QString brokers = QStringLiteral("VDI connection brokers");

const QStringList allKeys = { "rdp",       "ica",   "parlix", "browser", "cda",    "vmware",     "xenapp",
                              "leostream", "glimt", "hollis", "ssh",     "telnet", "vworkspace", "xdmcp" };

const QStringList allLaunchers
    = { "/usr/bin/rdesktop-runner",  "/usr/bin/ica-session-runner", "/usr/bin/parlix-runner",
        "/usr/bin/iceweasel-runner", "/usr/bin/view-runner",        "/usr/bin/pnagent-runner" };

QRgb centreOf(const QIcon& icon, int size)
{
    return icon.pixmap(size, size).toImage().pixel(size / 2, size / 2);
}
} // namespace

class TestConnectionCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void launchersDecide_data();
    void launchersDecide();
    void probedOnEveryCall();
    void neverAvailableTypes();
    void displayNames_data();
    void displayNames();
    void everyTypeHasIcons_data();
    void everyTypeHasIcons();
    void iconWithoutSuffixComesFirst();
};

void TestConnectionCatalogue::launchersDecide_data()
{
    QTest::addColumn<QStringList>("launchers");
    QTest::addColumn<TypeList>("expected");

    QTest::newRow("none") << QStringList() << TypeList();
    QTest::newRow("view only") << QStringList { "/usr/bin/view-runner" }
                               << TypeList { { brokers, QStringLiteral("vmware") } };
    QTest::newRow("all") << allLaunchers
                         << TypeList { { classics, QStringLiteral("rdp") },    { classics, QStringLiteral("ica") },
                                       { classics, QStringLiteral("parlix") }, { classics, QStringLiteral("browser") },
                                       { brokers, QStringLiteral("vmware") },  { brokers, QStringLiteral("xenapp") } };
    QTest::newRow("order is the table's, not the disk's")
        << QStringList { "/usr/bin/pnagent-runner", "/usr/bin/iceweasel-runner", "/usr/bin/rdesktop-runner" }
        << TypeList { { classics, QStringLiteral("rdp") },
                      { classics, QStringLiteral("browser") },
                      { brokers, QStringLiteral("xenapp") } };
    QTest::newRow("similar names do not count")
        << QStringList { "/usr/bin/rdesktop", "/usr/local/bin/view-runner", "/usr/bin/ica-session-runner.bak",
                         "/usr/bin/cda-runner", "/usr/bin/ssh" }
        << TypeList();
}

void TestConnectionCatalogue::launchersDecide()
{
    QFETCH(QStringList, launchers);
    QFETCH(TypeList, expected);
    DeviceTree tree;
    for (const QString& launcher : launchers)
        tree.addFile(launcher);

    QCOMPARE(ConnectionModel::sCategorizedConnectionTypes(), expected);
    QStringList keys;
    for (const auto& entry : expected)
        keys.append(entry.second);
    QCOMPARE(ConnectionModel::sSupportedConnectionTypes(), keys);
    for (const QString& key : allKeys)
        QCOMPARE(ConnectionModel::sIsConnectionTypeAvailable(key), keys.contains(key));
}

void TestConnectionCatalogue::probedOnEveryCall()
{
    DeviceTree tree;
    QVERIFY(ConnectionModel::sSupportedConnectionTypes().isEmpty());
    tree.addFile(QStringLiteral("/usr/bin/parlix-runner"));
    QCOMPARE(ConnectionModel::sSupportedConnectionTypes(), QStringList { "parlix" });
    tree.addFile(QStringLiteral("/usr/bin/ica-session-runner"));
    QCOMPARE(ConnectionModel::sSupportedConnectionTypes(), (QStringList { "ica", "parlix" }));
    tree.removeFile(QStringLiteral("/usr/bin/parlix-runner"));
    QCOMPARE(ConnectionModel::sSupportedConnectionTypes(), QStringList { "ica" });
    QVERIFY(!ConnectionModel::sIsConnectionTypeAvailable(QStringLiteral("parlix")));
}

void TestConnectionCatalogue::neverAvailableTypes()
{
    DeviceTree tree;
    for (const QString& launcher : allLaunchers)
        tree.addFile(launcher);
    // CDA mode has a heading and a name but no launcher, so it is never offered.
    QVERIFY(!ConnectionModel::sIsConnectionTypeAvailable(QStringLiteral("cda")));
    QVERIFY(!ConnectionModel::sSupportedConnectionTypes().contains(QStringLiteral("cda")));
    QVERIFY(!ConnectionModel::sIsConnectionTypeAvailable(QStringLiteral("RDP")));
    QVERIFY(!ConnectionModel::sIsConnectionTypeAvailable(QString()));
    QCOMPARE(ConnectionModel::smCDA_MODE_ID, QStringLiteral("smCDA_MODE_ID"));
}

void TestConnectionCatalogue::displayNames_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("name");
    const QStringList names = { "RDP",       "ICA",   "Parlix", "Web Browser", "CDA mode", "VMware View", "XenApp",
                                "Leostream", "Glimt", "Hollis", "SSH",         "Telnet",   "vWorkspace",  "XDMCP" };
    for (int i = 0; i < allKeys.size(); ++i)
        QTest::newRow(qPrintable(allKeys.at(i))) << allKeys.at(i) << names.at(i);
    QTest::newRow("display name is not a key") << "RDP" << QString();
    QTest::newRow("case matters") << "Browser" << QString();
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("constant name") << "smCDA_MODE_ID" << QString();
}

void TestConnectionCatalogue::displayNames()
{
    QFETCH(QString, key);
    QFETCH(QString, name);
    QCOMPARE(ConnectionModel::sGetConnectionTypeName(key), name);
}

void TestConnectionCatalogue::everyTypeHasIcons_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("size");
    for (const QString& key : allKeys) {
        QTest::newRow(qPrintable(key + QLatin1String("16"))) << key << 16;
        QTest::newRow(qPrintable(key + QLatin1String("32"))) << key << 32;
    }
}

void TestConnectionCatalogue::everyTypeHasIcons()
{
    QFETCH(QString, key);
    QFETCH(int, size);
    // The library registers its resources when it is loaded; nothing here initialises them.
    QVERIFY(QFile::exists(QStringLiteral(":/%1Icon%2.svg").arg(key).arg(size)));
    const QIcon icon = ConnectionModel::sGetConnectionTypeIcon(key, size);
    QVERIFY(!icon.isNull());
    const QImage image = icon.pixmap(size, size).toImage();
    QCOMPARE(image.size(), QSize(size, size));
    // Drawn, not blank: the SVG engine was found and rendered something opaque.
    QCOMPARE(qAlpha(image.pixel(size / 2, 2)), 255);
}

void TestConnectionCatalogue::iconWithoutSuffixComesFirst()
{
    // This test's own resource provides :/icaIcon16 in magenta.
    const QRgb magenta = qRgb(255, 0, 255);
    QCOMPARE(centreOf(ConnectionModel::sGetConnectionTypeIcon(QStringLiteral("ica"), 16), 16), magenta);
    QVERIFY(centreOf(ConnectionModel::sGetConnectionTypeIcon(QStringLiteral("ica"), 32), 32) != magenta);
}

QTEST_MAIN(TestConnectionCatalogue)
#include "tst_connectioncatalogue.moc"
