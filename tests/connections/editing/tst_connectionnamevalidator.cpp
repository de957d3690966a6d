#include "connections/editing/validator.h"

#include "platform.h"

#include <QValidator>
#include <QtTest>

class ConnectionNameValidatorTest : public QObject
{
    Q_OBJECT

private slots:
    void names_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("acceptedElsewhere");
        QTest::newRow("empty, so the field can be cleared") << QString() << true;
        QTest::newRow("letters, digits, blank, dot, hyphen") << "Office 2.0-east" << true;
        QTest::newRow("underscore") << "term_server" << true;
        QTest::newRow("accented letters") << QStringLiteral("Bureau été") << true;
        QTest::newRow("typographic apostrophe") << QStringLiteral("Bureau d’été") << false;
        QTest::newRow("letters of other scripts") << QStringLiteral("Büro Straße Ελλάδα") << true;
        QTest::newRow("slash") << "ts/1" << false;
        QTest::newRow("markup") << "<b>" << false;
        QTest::newRow("tab") << "a\tb" << false;
    }

    void names()
    {
        QFETCH(QString, name);
        QFETCH(bool, acceptedElsewhere);
        QObject owner;
        QValidator* validator = Validator::connectionName(&owner);
        QCOMPARE(validator->parent(), &owner);

        int pos = 0;
        for (Platform::Target target : { Platform::Wes, Platform::Wes7, Platform::Ce }) {
            Platform::instance()->setTarget(target);
            QCOMPARE(validator->validate(name, pos), acceptedElsewhere ? QValidator::Acceptable : QValidator::Invalid);
        }
        // Lunvex takes any name.
        Platform::instance()->setTarget(Platform::Lunvex);
        QCOMPARE(validator->validate(name, pos), QValidator::Acceptable);
    }
};

QTEST_MAIN(ConnectionNameValidatorTest)
#include "tst_connectionnamevalidator.moc"
