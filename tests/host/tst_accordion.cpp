#include "accordion.h"
#include "accordionitem.h"
#include "controlframe.h"

#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

namespace {
class NamedFrame : public ControlFrame
{
public:
    explicit NamedFrame(const QString& name)
        : m_name(name)
    {
    }
    QString title() const override { return m_name; }
    QString helpText() const override { return m_name + QStringLiteral(" help"); }

private:
    QString m_name;
};

QToolButton* headerOf(AccordionItem* item)
{
    return item->findChild<QToolButton*>(QStringLiteral("AccordionHeader"));
}
} // namespace

class TestAccordion : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_accordion = new Accordion;
        m_first = new AccordionItem(new NamedFrame(QStringLiteral("First")), nullptr);
        m_second = new AccordionItem(new NamedFrame(QStringLiteral("Second")), nullptr);
        m_accordion->addItem(m_first);
        m_accordion->addItem(m_second);
        m_accordion->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_accordion));
    }

    void cleanup() { delete m_accordion; }

    void itemsKeepTheirOrderAndShowTheFrameTitle()
    {
        QCOMPARE(m_accordion->items(), QList<AccordionItem*>({ m_first, m_second }));
        QCOMPARE(headerOf(m_first)->text(), QStringLiteral("First"));
        QCOMPARE(m_first->helpText(), QStringLiteral("First help"));
        QVERIFY(!m_accordion->selectedItem());
        QVERIFY(!m_first->content()->isVisible());
    }

    void clickingHeadersOpensOneItemAtATime()
    {
        QSignalSpy selections(m_accordion, &Accordion::selectionChanged);
        QSignalSpy help(m_accordion, &Accordion::helpChanged);

        QTest::mouseClick(headerOf(m_first), Qt::LeftButton);
        QCOMPARE(m_accordion->selectedItem(), m_first);
        QVERIFY(m_first->content()->isVisible());

        QTest::mouseClick(headerOf(m_second), Qt::LeftButton);
        QCOMPARE(m_accordion->selectedItem(), m_second);
        QVERIFY(!m_first->content()->isVisible());
        QVERIFY(!m_first->isOpen());
        QVERIFY(m_second->content()->isVisible());

        // Clicking the open item folds it again.
        QTest::mouseClick(headerOf(m_second), Qt::LeftButton);
        QVERIFY(!m_accordion->selectedItem());
        QVERIFY(!m_second->content()->isVisible());

        QCOMPARE(selections.count(), 3);
        QCOMPARE(selections.at(0).at(0).value<AccordionItem*>(), m_first);
        QCOMPARE(selections.at(2).at(0).value<AccordionItem*>(), static_cast<AccordionItem*>(nullptr));
        QCOMPARE(help.count(), 3);
    }

    void selectingTheOpenItemAgainSignalsNothing()
    {
        m_accordion->selectItem(m_first);
        QSignalSpy selections(m_accordion, &Accordion::selectionChanged);
        m_accordion->selectItem(m_first);
        QCOMPARE(selections.count(), 0);
        QVERIFY(m_first->content()->isVisible());
    }

    void keyboardOpensTheFocusedItem()
    {
        m_first->setFocus();
        QTRY_VERIFY(headerOf(m_first)->hasFocus());
        QTest::keyClick(headerOf(m_first), Qt::Key_Space);
        QCOMPARE(m_accordion->selectedItem(), m_first);
    }

    void hiddenItemHidesHeaderAndContent()
    {
        m_accordion->selectItem(m_second);
        m_second->setVisible(false);
        QVERIFY(!headerOf(m_second)->isVisible());
        QVERIFY(!m_second->content()->isVisible());
        QVERIFY(headerOf(m_first)->isVisible());
    }

private:
    Accordion* m_accordion = nullptr;
    AccordionItem* m_first = nullptr;
    AccordionItem* m_second = nullptr;
};

QTEST_MAIN(TestAccordion)
#include "tst_accordion.moc"
