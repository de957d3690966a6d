#include "connections/model/configatom.h"
#include "connections/model/connectionkindred.h"
#include "connections/model/connectionsession.h"

#include <QRandomGenerator>
#include <QtTest>

namespace {
// The first child of that name in children() order, found the slow way.
ConfigAtom* scan(const ConfigAtom& parent, const QString& name)
{
    for (QObject* child : parent.children()) {
        auto* atom = qobject_cast<ConfigAtom*>(child);
        if (atom && atom->name() == name)
            return atom;
    }
    return nullptr;
}
} // namespace

// Children are looked up through an index; whatever happens to them, a lookup must find
// what a scan of the children finds.
class AtomLookupTest : public QObject
{
    Q_OBJECT

private slots:
    void lookupsMatchAScan_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 8; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    void lookupsMatchAScan()
    {
        QFETCH(quint32, seed);
        QRandomGenerator random(seed);
        // Few names, so that namesakes are common.
        const QStringList names { QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d"),
                                  QString() };
        const auto anyName = [&] { return names.at(random.bounded(names.size())); };
        ConfigAtom first(QStringLiteral("first"));
        ConfigAtom second(QStringLiteral("second"));
        ConfigAtom* parents[] = { &first, &second };
        const auto anyChild = [&](ConfigAtom* parent) -> ConfigAtom* {
            const QList<ConfigAtom*> children = parent->atoms();
            return children.isEmpty() ? nullptr : children.at(random.bounded(children.size()));
        };

        for (int step = 0; step < 2000; ++step) {
            ConfigAtom* parent = parents[random.bounded(2)];
            ConfigAtom* child = anyChild(parent);
            switch (random.bounded(6)) {
            case 0:
                parent->atom(anyName());
                break;
            case 1:
                new ConfigAtom(anyName(), parent);
                break;
            case 2:
                if (child)
                    child->setName(anyName());
                break;
            case 3:
                if (child && random.bounded(3) == 0)
                    parent->deleteAtom(child->name());
                break;
            case 4:
                // Moved between parents without the atom interface.
                if (child)
                    child->setParent(parents[random.bounded(2)]);
                break;
            case 5:
                if (child && random.bounded(4) == 0)
                    delete child;
                break;
            }
            for (ConfigAtom* each : parents) {
                for (const QString& name : names) {
                    const QByteArray where
                        = QByteArray::number(step) + ' ' + each->name().toUtf8() + " '" + name.toUtf8() + '\'';
                    QVERIFY2(each->findAtom(name) == scan(*each, name), where);
                    QVERIFY2(each->containsAtom(name) == (scan(*each, name) != nullptr), where);
                }
            }
        }
        QVERIFY(first.atoms().size() + second.atoms().size() > 10);
    }

    void sessionsOfAKind()
    {
        ConnectionKindred kind(QStringLiteral("rdp"));
        for (int i = 0; i < 300; ++i)
            kind.session(QStringLiteral("s%1").arg(i)).setProperty("name", i);
        // Nameless sessions are named at once and found by that name.
        ConnectionSession& fresh = kind.session(QString());
        QVERIFY(fresh.id().startsWith(QLatin1Char('{')));
        QCOMPARE(&kind.session(fresh.id()), &fresh);
        QCOMPARE(kind.sessions().size(), 301);
        QCOMPARE(kind.session(QStringLiteral("s150")).property("name").toInt(), 150);

        // A rename onto an existing id: the first created still answers.
        kind.session(QStringLiteral("s200")).setId(QStringLiteral("s100"));
        QCOMPARE(kind.session(QStringLiteral("s100")).property("name").toInt(), 100);
        QVERIFY(!kind.containsSession(QStringLiteral("s200")));
        QVERIFY(kind.deleteSession(QStringLiteral("s100")));
        QCOMPARE(kind.session(QStringLiteral("s100")).property("name").toInt(), 200);
        QCOMPARE(kind.sessions().size(), 300);
    }
};

QTEST_MAIN(AtomLookupTest)
#include "tst_atomlookup.moc"
