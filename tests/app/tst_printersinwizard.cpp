#include "mainwindow.h"
#include "scriptedchooser.h"

#include "devicetree.h"
#include "modalanswer.h"

#include "pages/configpage.h"
#include "printers/model/printermodel.h"
#include "printers/networkprintereditor.h"
#include "printers/networkprinterframe.h"
#include "printers/networkprinterlistpage.h"
#include "printers/printereditor.h"

#include "accordion.h"
#include "accordionitem.h"
#include "platform.h"

#include <QDomDocument>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QTextBrowser>
#include <QToolButton>
#include <QtTest>
#include <memory>

namespace {
const QByteArray TwoPrinters = R"(<zelkon version="1.0" creator="zelkon" creator_version="2.0">
 <keyboard><layout>Germany</layout></keyboard>
 <network_printer>
  <printer id="{5b6c7d8e-9fa0-4b1c-8d2e-3f4a5b6c7d8e}">
   <name>Laser</name><address>prn.example.com</address><port>9100</port><driver>HP LaserJet 4250 PCL6</driver>
  </printer>
  <printer id="{aaaaaaaa}"><name>Ink</name><address>10.0.0.7</address></printer>
 </network_printer>
</zelkon>
)";
const QString Laser = QStringLiteral("name=Laser address=prn.example.com port=9100 driver=HP LaserJet 4250 PCL6");
const QString Ink = QStringLiteral("name=Ink address=10.0.0.7");

// The printer records of a saved file, each as "name=... address=..." in the order of its
// children, sorted; empty when the file has not exactly one printer section.
QStringList savedPrinters(const QString& path)
{
    QFile file(path);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        return { QStringLiteral("unreadable") };
    const QDomElement root = document.documentElement();
    if (root.elementsByTagName(QStringLiteral("network_printer")).size() != 1)
        return {};
    QStringList records;
    const QDomNodeList printers = root.elementsByTagName(QStringLiteral("printer"));
    for (int i = 0; i < printers.size(); ++i) {
        QStringList fields;
        for (QDomElement child = printers.at(i).firstChildElement(); !child.isNull();
             child = child.nextSiblingElement())
            fields << child.tagName() + QLatin1Char('=') + child.text();
        records << fields.join(QLatin1Char(' '));
    }
    records.sort();
    return records;
}
} // namespace

// The network printers in the running wizard: the last item of the Peripherals page.
class PrintersInWizardTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void addedPrinterIsSavedOnceAndComesBack_data();
    void addedPrinterIsSavedOnceAndComesBack();
    void deletionAloneIsNotSaved();

private:
    NetworkPrinterFrame* printerFrame() const;
    NetworkPrinterListPage* list() const { return printerFrame()->printerEditor()->listPage(); }
    NetworkPrinterEditor* form() const { return printerFrame()->printerEditor()->printerEditor(); }
    // Shows the Peripherals page with the printer item open.
    void openPrinterItem();
    // Clicks the button in column (1 delete, 2 edit) of the row whose summary starts with name.
    void clickRowButton(const QString& name, int column);
    QString write(const QByteArray& contents);

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<DeviceTree> m_device;
    std::unique_ptr<MainWindow> m_window;
    ScriptedChooser* m_chooser = nullptr;
};

void PrintersInWizardTest::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_device = std::make_unique<DeviceTree>();
    Platform::instance()->setTarget(Platform::Lunvex);
    Platform::instance()->setStandalone(true);
    m_window = std::make_unique<MainWindow>();
    m_window->setFileChooser(std::unique_ptr<FileChooser>(m_chooser = new ScriptedChooser));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void PrintersInWizardTest::cleanup()
{
    m_window.reset();
    m_device.reset();
    m_dir.reset();
}

NetworkPrinterFrame* PrintersInWizardTest::printerFrame() const
{
    auto* page = static_cast<ConfigPage*>(m_window->page(MainWindow::PeripheralPage));
    return qobject_cast<NetworkPrinterFrame*>(page->accordion()->items().constLast()->content());
}

void PrintersInWizardTest::openPrinterItem()
{
    m_window->pageList()->setCurrentRow(MainWindow::PeripheralPage);
    auto* page = static_cast<ConfigPage*>(m_window->page(MainWindow::PeripheralPage));
    AccordionItem* item = page->accordion()->items().constLast();
    QVERIFY(qobject_cast<NetworkPrinterFrame*>(item->content()));
    page->accordion()->selectItem(item);
    QVERIFY(printerFrame()->isVisible());
    QVERIFY(m_window->helpView()->toPlainText().endsWith(
        QStringLiteral("This enables you to set a list of network printers.")));
}

void PrintersInWizardTest::clickRowButton(const QString& name, int column)
{
    QTableWidget* table = list()->table();
    for (int row = 0; row < table->rowCount(); ++row) {
        if (table->item(row, 0)->text().startsWith(name + QLatin1Char('\t'))) {
            QTest::mouseClick(table->indexWidget(table->model()->index(row, column)), Qt::LeftButton);
            return;
        }
    }
    QFAIL(qPrintable(QStringLiteral("no row for ") + name));
}

QString PrintersInWizardTest::write(const QByteArray& contents)
{
    const QString path = m_dir->filePath(QStringLiteral("printers.tavlocfg"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

void PrintersInWizardTest::addedPrinterIsSavedOnceAndComesBack_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QStringList>("loaded");
    QTest::newRow("new configuration") << QByteArray() << QStringList();
    QTest::newRow("file with printers") << TwoPrinters << QStringList({ Ink, Laser });
}

void PrintersInWizardTest::addedPrinterIsSavedOnceAndComesBack()
{
    QFETCH(QByteArray, contents);
    QFETCH(QStringList, loaded);
    if (!contents.isEmpty())
        QVERIFY(m_window->openFile(write(contents)));
    openPrinterItem();
    QCOMPARE(printerFrame()->printerModel().count(), loaded.size());
    QCOMPARE(list()->table()->rowCount(), loaded.size());
    QVERIFY(!m_window->isWindowModified());

    QTest::mouseClick(list()->newButton(), Qt::LeftButton);
    QTest::keyClicks(form()->nameEdit(), QStringLiteral("Plotter"));
    QTest::keyClicks(form()->serverEdit(), QStringLiteral("\\\\srv\\plot"));
    QTest::keyClicks(form()->portEdit(), QStringLiteral("515"));
    QTest::mouseClick(form()->saveButton(), Qt::LeftButton);
    QVERIFY(m_window->isWindowModified());

    // The summary is generated each time it is shown, and once more for saving.
    m_window->showPage(MainWindow::SummaryPage);
    m_window->back();
    m_window->next();
    const QString saved = m_dir->filePath(QStringLiteral("saved.tavlocfg"));
    m_chooser->path = saved;
    QVERIFY(m_window->saveAs());
    QStringList expected = loaded;
    expected << QStringLiteral("name=Plotter address=\\\\srv\\plot port=515");
    expected.sort();
    QCOMPARE(savedPrinters(saved), expected);

    // Reopened into fresh pages: every printer once, as it was entered.
    m_chooser->path = saved;
    QTest::mouseClick(m_window->findChild<QPushButton*>(QStringLiteral("TitleOpenButton")), Qt::LeftButton);
    QCOMPARE(printerFrame()->printerModel().count(), expected.size());
    QCOMPARE(list()->table()->rowCount(), expected.size());
    QVERIFY(!m_window->isWindowModified());

    // Saved again after a change to one of them, still once each.
    openPrinterItem();
    clickRowButton(QStringLiteral("Plotter"), 2);
    QTest::keyClicks(form()->driverEdit(), QStringLiteral("HP-GL/2"));
    QTest::mouseClick(form()->saveButton(), Qt::LeftButton);
    QVERIFY(m_window->save());
    expected.replaceInStrings(QStringLiteral("port=515"), QStringLiteral("port=515 driver=HP-GL/2"));
    QCOMPARE(savedPrinters(saved), expected);
}

// As built, deleting a printer is no change of the frame: it reaches the file only once
// something else in the frame is changed, such as opening a printer's form.
void PrintersInWizardTest::deletionAloneIsNotSaved()
{
    const QString path = write(TwoPrinters);
    QVERIFY(m_window->openFile(path));
    openPrinterItem();

    ModalAnswer box(QMessageBox::Yes);
    box.arm();
    clickRowButton(QStringLiteral("Laser"), 1);
    QVERIFY(box.answered());
    QCOMPARE(list()->table()->rowCount(), 1);
    QVERIFY(!m_window->isWindowModified());
    QVERIFY(m_window->save());
    QCOMPARE(savedPrinters(path), QStringList({ Ink, Laser }));

    clickRowButton(QStringLiteral("Ink"), 2);
    QTest::mouseClick(form()->cancelButton(), Qt::LeftButton);
    QVERIFY(m_window->isWindowModified());
    QVERIFY(m_window->save());
    QCOMPARE(savedPrinters(path), QStringList { Ink });
}

QTEST_MAIN(PrintersInWizardTest)
#include "tst_printersinwizard.moc"
