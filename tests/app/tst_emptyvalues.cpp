#include "documentcontroller.h"
#include "filecontents.h"
#include "sectionframe.h"

#include "pages/configpage.h"

#include "platform.h"

#include <QtTest>

namespace {
// A page with one frame editing "remote_assistance/password".
class PasswordPage : public ConfigPage
{
public:
    PasswordPage()
    {
        createAccordion();
        addFrame(frame = new SectionFrame(QStringLiteral("remote_assistance"), QStringLiteral("password")));
    }
    QString title() const override { return QStringLiteral("Test"); }
    QString description() const override { return QString(); }
    QString baseHelpText() const override { return QString(); }
    void retranslateUi() override { }
    SectionFrame* frame = nullptr;
};

} // namespace

// A value the file holds as an empty element must still take what the administrator types.
class EmptyValuesTest : public QObject
{
    Q_OBJECT

private slots:
    void typedValueReachesAnEmptyElement_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("typed") << "s3cret" << QByteArray("<password>s3cret</password>");
        QTest::newRow("left empty") << "" << QByteArray("<password/>");
    }

    void typedValueReachesAnEmptyElement()
    {
        QFETCH(QString, typed);
        QFETCH(QByteArray, expected);
        Platform::instance()->setStandalone(true);
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("empty.tavlocfg"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<zelkon><remote_assistance><enable>true</enable><password/></remote_assistance>"
                   "<corrand><server_address/><deeper><empty/></deeper></corrand></zelkon>");
        file.close();

        PasswordPage page;
        DocumentController controller;
        controller.setPages({ &page });
        QVERIFY(controller.load(path, nullptr));
        controller.loadPages();
        page.frame->setText(typed);

        QVERIFY(controller.save(path, nullptr));
        const QByteArray saved = fileContents(path);
        QVERIFY2(saved.contains(expected), saved.constData());
        // Values nobody wrote keep the form they were read in.
        QVERIFY2(saved.contains("<server_address/>") && saved.contains("<empty/>"), saved.constData());
        QCOMPARE(saved.count("<password"), 1);

        // Generating again starts from the loaded file, with no holder left behind.
        controller.generate();
        QVERIFY(controller.loadedDocument()->toString().contains(QLatin1String("<password/>")));
    }
};

QTEST_MAIN(EmptyValuesTest)
#include "tst_emptyvalues.moc"
