#include "modalanswer.h"

#include "printers/model/printermodel.h"
#include "printers/networkprintereditor.h"
#include "printers/networkprinterframe.h"
#include "printers/networkprinterlistpage.h"
#include "printers/printereditor.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QToolButton>
#include <QtTest>
#include <memory>

// The printer frame driven through its widgets: list, form, and the way between them.
class PrinterEditingTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void framePresentsItself();
    void newPrinterAppearsInTheList();
    void typingIsRestricted_data();
    void typingIsRestricted();
    void savingFlagsMissingFields_data();
    void savingFlagsMissingFields();
    void editChangesThePrinterInPlace();
    void deleteAsksFirst_data();
    void deleteAsksFirst();
    void newAfterEditStillShowsTheEditedPrinter();

private:
    PrinterModel& model() { return m_frame->printerModel(); }
    NetworkPrinterListPage* list() const { return m_frame->printerEditor()->listPage(); }
    NetworkPrinterEditor* form() const { return m_frame->printerEditor()->printerEditor(); }
    QString page() const { return m_frame->printerEditor()->currentPageName(); }
    QToolButton* rowButton(int row, int column) const
    {
        return qobject_cast<QToolButton*>(list()->table()->indexWidget(list()->table()->model()->index(row, column)));
    }
    QStringList rows() const;
    void fill(const QString& name, const QString& server, const QString& port, const QString& driver);
    // Two printers entered before the frame is shown, listed as a load would list them.
    void addTwoPrinters();

    std::unique_ptr<NetworkPrinterFrame> m_frame;
};

void PrinterEditingTest::init()
{
    m_frame = std::make_unique<NetworkPrinterFrame>();
    m_frame->resize(500, 300);
    m_frame->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_frame.get()));
}

void PrinterEditingTest::cleanup()
{
    m_frame.reset();
}

QStringList PrinterEditingTest::rows() const
{
    QStringList texts;
    for (int row = 0; row < list()->table()->rowCount(); ++row)
        texts << list()->table()->item(row, 0)->text();
    return texts;
}

void PrinterEditingTest::fill(const QString& name, const QString& server, const QString& port, const QString& driver)
{
    form()->nameEdit()->setText(name);
    form()->serverEdit()->setText(server);
    form()->portEdit()->setText(port);
    form()->driverEdit()->setText(driver);
}

void PrinterEditingTest::addTwoPrinters()
{
    // Added in the opposite order of their names, which the list sorts by.
    model().add(QStringLiteral("Zeta"), QStringLiteral("zeta.example.com"), QStringLiteral("9100"), QString());
    model().add(QStringLiteral("Alpha"), QStringLiteral("alpha.example.com"), QString(), QStringLiteral("PCL6"));
    emit model().newConfigLoaded();
    QCOMPARE(rows(), QStringList({ "Alpha\talpha.example.com\tPCL6", "Zeta\tzeta.example.com:9100" }));
}

void PrinterEditingTest::framePresentsItself()
{
    QCOMPARE(m_frame->title(), QStringLiteral("Network Printer"));
    QCOMPARE(m_frame->helpText(),
             QStringLiteral("<b>Network Printer</b> <br> This enables you to set a list of network printers."));
    QVERIFY(!m_frame->icon().pixmap(32).isNull());
    QCOMPARE(list()->newButton()->text(), QStringLiteral("New Network Printer"));
    QCOMPARE(form()->saveButton()->text(), QStringLiteral("Save"));
    QCOMPARE(form()->cancelButton()->text(), QStringLiteral("Cancel"));
}

void PrinterEditingTest::newPrinterAppearsInTheList()
{
    QCOMPARE(page(), QStringLiteral("printer_list"));
    QVERIFY(list()->emptyLabel()->isVisible());
    QCOMPARE(list()->emptyLabel()->text(), QStringLiteral("<i>No Network Printers</i>"));
    QVERIFY(!list()->table()->isVisible());
    QVERIFY(!m_frame->isDirty());

    QSignalSpy dirty(m_frame.get(), &ConfigFrame::dirty);
    QTest::mouseClick(list()->newButton(), Qt::LeftButton);
    QCOMPARE(page(), QStringLiteral("network_printer"));
    QCOMPARE(dirty.count(), 1);
    QTRY_VERIFY(form()->nameEdit()->hasFocus());

    QTest::keyClicks(form()->nameEdit(), QStringLiteral("Laser"));
    QTest::keyClicks(form()->serverEdit(), QStringLiteral("prn.example.com"));
    QTest::keyClicks(form()->portEdit(), QStringLiteral("9100"));
    QTest::mouseClick(form()->saveButton(), Qt::LeftButton);

    QCOMPARE(page(), QStringLiteral("printer_list"));
    QCOMPARE(model().count(), 1);
    const QString id = model().printers().firstKey();
    QCOMPARE(model().printers().first().driver, QString());
    QVERIFY(!list()->emptyLabel()->isVisible());
    QVERIFY(list()->table()->isVisible());
    QCOMPARE(rows(), QStringList { "Laser\tprn.example.com:9100" });
    QCOMPARE(list()->table()->item(0, 0)->data(Qt::UserRole).toString(), id);
    QVERIFY(!(list()->table()->item(0, 0)->flags() & Qt::ItemIsEditable));
    // Delete left of edit, both for this printer.
    QCOMPARE(rowButton(0, 1)->toolTip(), QStringLiteral("Delete the connection"));
    QCOMPARE(rowButton(0, 2)->toolTip(), QStringLiteral("Edit the connection"));
    QCOMPARE(rowButton(0, 1)->defaultAction()->data().toString(), id);
    QCOMPARE(rowButton(0, 2)->defaultAction()->data().toString(), id);
}

void PrinterEditingTest::typingIsRestricted_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("kept");
    QTest::newRow("name: no blank, no punctuation") << "NameEdit"
                                                    << "Lab 2_b!"
                                                    << "Lab2b";
    QTest::newRow("server: host name") << "ServerEdit"
                                       << "prn-1.example.com"
                                       << "prn-1.example.com";
    QTest::newRow("server: URL") << "ServerEdit"
                                 << "ipp://10.0.0.7:631/q"
                                 << "ipp://10.0.0.7:631/q";
    QTest::newRow("server: share, no underscore or blank") << "ServerEdit"
                                                           << "\\\\srv\\lp_1 a"
                                                           << "\\\\srv\\lp1a";
    QTest::newRow("port: no sign") << "PortEdit"
                                   << "-1"
                                   << "1";
    QTest::newRow("port: up to 65535") << "PortEdit"
                                       << "65535"
                                       << "65535";
    QTest::newRow("port: not above") << "PortEdit"
                                     << "65536"
                                     << "6553";
    QTest::newRow("port: not above, any digits") << "PortEdit"
                                                 << "70000"
                                                 << "7000";
    QTest::newRow("driver: anything") << "DriverEdit"
                                      << "HP LaserJet (PCL6)"
                                      << "HP LaserJet (PCL6)";
}

void PrinterEditingTest::typingIsRestricted()
{
    QFETCH(QString, field);
    QFETCH(QString, typed);
    auto* edit = form()->findChild<QLineEdit*>(field);
    QVERIFY(edit);
    QTest::keyClicks(edit, typed);
    QTEST(edit->text(), "kept");
}

void PrinterEditingTest::savingFlagsMissingFields_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("server");
    QTest::addColumn<bool>("nameFlagged");
    QTest::addColumn<bool>("serverFlagged");
    QTest::newRow("both empty") << QString() << QString() << true << true;
    QTest::newRow("no server") << "Laser" << QString() << false << true;
    QTest::newRow("no name") << QString() << "prn" << true << false;
    // As a file may hold it: the form was filled, not typed into.
    QTest::newRow("name with a blank") << "Reception laser"
                                       << "prn" << true << false;
}

void PrinterEditingTest::savingFlagsMissingFields()
{
    QFETCH(QString, name);
    QFETCH(QString, server);
    QTest::mouseClick(list()->newButton(), Qt::LeftButton);
    fill(name, server, QString(), QString());
    QSignalSpy saved(form(), &NetworkPrinterEditor::printerSaved);
    QTest::mouseClick(form()->saveButton(), Qt::LeftButton);

    QCOMPARE(saved.count(), 0);
    QCOMPARE(model().count(), 0);
    QCOMPARE(page(), QStringLiteral("network_printer"));
    QTEST(form()->nameEdit()->property("invalid").toBool(), "nameFlagged");
    QTEST(form()->serverEdit()->property("invalid").toBool(), "serverFlagged");
    QTEST(!form()->nameEdit()->styleSheet().isEmpty(), "nameFlagged");

    // Port and driver are not checked; corrected fields lose their flags.
    fill(QStringLiteral("Laser"), QStringLiteral("prn"), QString(), QString());
    QTest::mouseClick(form()->saveButton(), Qt::LeftButton);
    QCOMPARE(saved.count(), 1);
    QCOMPARE(model().count(), 1);
    QVERIFY(!form()->nameEdit()->property("invalid").toBool());
    QVERIFY(form()->serverEdit()->styleSheet().isEmpty());
}

void PrinterEditingTest::editChangesThePrinterInPlace()
{
    addTwoPrinters();
    QSignalSpy dirty(m_frame.get(), &ConfigFrame::dirty);
    QTest::mouseClick(rowButton(1, 2), Qt::LeftButton);
    QCOMPARE(page(), QStringLiteral("network_printer"));
    QCOMPARE(dirty.count(), 1);
    QCOMPARE(form()->nameEdit()->text(), QStringLiteral("Zeta"));
    QCOMPARE(form()->serverEdit()->text(), QStringLiteral("zeta.example.com"));
    QCOMPARE(form()->portEdit()->text(), QStringLiteral("9100"));
    QCOMPARE(form()->driverEdit()->text(), QString());

    form()->portEdit()->clear();
    QTest::keyClicks(form()->driverEdit(), QStringLiteral("PostScript"));
    QTest::mouseClick(form()->saveButton(), Qt::LeftButton);
    QCOMPARE(model().count(), 2);
    QCOMPARE(rows(), QStringList({ "Alpha\talpha.example.com\tPCL6", "Zeta\tzeta.example.com\tPostScript" }));
}

void PrinterEditingTest::deleteAsksFirst_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("left");
    QTest::newRow("yes") << int(QMessageBox::Yes) << QStringList { "Zeta\tzeta.example.com:9100" };
    QTest::newRow("no") << int(QMessageBox::No)
                        << QStringList({ "Alpha\talpha.example.com\tPCL6", "Zeta\tzeta.example.com:9100" });
}

void PrinterEditingTest::deleteAsksFirst()
{
    QFETCH(int, answer);
    addTwoPrinters();
    QSignalSpy dirty(m_frame.get(), &ConfigFrame::dirty);

    ModalAnswer box(static_cast<QMessageBox::StandardButton>(answer));
    box.arm();
    QTest::mouseClick(rowButton(0, 1), Qt::LeftButton);
    QVERIFY(box.answered());
    QCOMPARE(box.title(), QStringLiteral("Network Printers"));
    QCOMPARE(box.title(), list()->windowTitle());
    QCOMPARE(box.icon(), QMessageBox::Question);
    QCOMPARE(box.text(),
             QStringLiteral("Please, confirm you want to delete the printer:<br><br>Alpha\talpha.example.com\tPCL6"));
    QCOMPARE(box.buttons(), QMessageBox::Yes | QMessageBox::No);

    QTEST(rows(), "left");
    QCOMPARE(model().count(), rows().size());
    // As built, deleting does not count as a change: the frame stays clean.
    QCOMPARE(dirty.count(), 0);
    QVERIFY(!m_frame->isDirty());
}

// As built: nothing empties the form for a new printer, so after an edit it still shows
// that printer and Save changes it instead of adding one.
void PrinterEditingTest::newAfterEditStillShowsTheEditedPrinter()
{
    addTwoPrinters();
    QTest::mouseClick(rowButton(0, 2), Qt::LeftButton);
    form()->portEdit()->setText(QStringLiteral("515"));
    QTest::mouseClick(form()->cancelButton(), Qt::LeftButton);
    QCOMPARE(page(), QStringLiteral("printer_list"));
    QCOMPARE(rows().constFirst(), QStringLiteral("Alpha\talpha.example.com\tPCL6"));

    QTest::mouseClick(list()->newButton(), Qt::LeftButton);
    QCOMPARE(form()->nameEdit()->text(), QStringLiteral("Alpha"));
    QCOMPARE(form()->driverEdit()->text(), QStringLiteral("PCL6"));
    form()->nameEdit()->setText(QStringLiteral("Beta"));
    QTest::mouseClick(form()->saveButton(), Qt::LeftButton);
    QCOMPARE(model().count(), 2);
    // The cancelled port came along too.
    QCOMPARE(rows(), QStringList({ "Beta\talpha.example.com:515\tPCL6", "Zeta\tzeta.example.com:9100" }));
}

QTEST_MAIN(PrinterEditingTest)
#include "tst_printerediting.moc"
