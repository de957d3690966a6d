// The widgets the wizard's first page shows, with its texts, fonts and icons, built from
// Qt alone and at once: what drawing that page costs whoever builds it. A second reference
// for the wizard's start-up, beside the bare window.
#include "firstpaintprobe.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyle>
#include <QTextBrowser>
#include <QToolBar>
#include <QVBoxLayout>

namespace {
QLabel* centredLabel(const QString& text, const QFont& font)
{
    auto* label = new QLabel(text);
    label->setFont(font);
    label->setAlignment(Qt::AlignCenter);
    return label;
}
} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    FirstPaintProbe probe;
    application.installEventFilter(&probe);

    QMainWindow window;
    QStyle* style = QApplication::style();
    const QIcon newIcon = style->standardIcon(QStyle::SP_FileIcon);
    const QIcon openIcon = style->standardIcon(QStyle::SP_DialogOpenButton);
    const QIcon saveIcon = style->standardIcon(QStyle::SP_DialogSaveButton);
    QMenu* file = window.menuBar()->addMenu(QStringLiteral("&File"));
    QAction* newAction = file->addAction(newIcon, QStringLiteral("&New"));
    QAction* openAction = file->addAction(openIcon, QStringLiteral("&Open..."));
    QAction* saveAction = file->addAction(saveIcon, QStringLiteral("&Save"));
    file->addAction(QStringLiteral("Save &As..."));
    file->addSeparator();
    file->addAction(QStringLiteral("&Quit"));
    QMenu* language = window.menuBar()->addMenu(QStringLiteral("&Language"));
    language->addAction(QStringLiteral("English"))->setCheckable(true);
    language->addAction(QStringLiteral("Deutsch"))->setCheckable(true);
    window.menuBar()->addMenu(QStringLiteral("&Help"))->addAction(QStringLiteral("&About Zelkon"));

    QToolBar* toolBar = window.addToolBar(QStringLiteral("Main"));
    toolBar->setMovable(false);
    toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    toolBar->addActions({ newAction, openAction, saveAction });
    toolBar->addSeparator();
    auto* platformBox = new QWidget;
    auto* platformLayout = new QHBoxLayout(platformBox);
    platformLayout->setContentsMargins(8, 0, 8, 0);
    auto* platformLabel = new QLabel(QStringLiteral("Target &platform:"));
    platformLayout->addWidget(platformLabel);
    auto* platforms = new QComboBox;
    platformLabel->setBuddy(platforms);
    platforms->addItems({ QStringLiteral("Lunvex"), QStringLiteral("WES"), QStringLiteral("WES7"), QStringLiteral("CE") });
    platformLayout->addWidget(platforms);
    platformLayout->addSpacing(12);
    platformLayout->addWidget(new QCheckBox(QStringLiteral("Standalone")));
    toolBar->addWidget(platformBox);

    auto* pageList = new QListWidget;
    pageList->setSpacing(2);
    for (const char* title : { "Zelkon", "Regional", "Management", "Peripherals", "Connections", "Summary" })
        pageList->addItem(QStringLiteral("%1.  %2").arg(pageList->count() + 1).arg(QLatin1String(title)));
    pageList->setCurrentRow(0);
    pageList->setFixedWidth(pageList->sizeHintForColumn(0) + 2 * pageList->frameWidth() + 4 * pageList->spacing());

    auto* page = new QWidget;
    auto* pageLayout = new QVBoxLayout(page);
    pageLayout->addStretch();
    QFont titleFont = QApplication::font();
    titleFont.setPointSize(22);
    titleFont.setBold(true);
    pageLayout->addWidget(centredLabel(QStringLiteral("Zelkon"), titleFont));
    pageLayout->addStretch();
    QFont bodyFont = QApplication::font();
    bodyFont.setPointSizeF(bodyFont.pointSizeF() * 1.2);
    QLabel* body = centredLabel(QStringLiteral("Zelkon<br>This enables you to configure your Thin Clients and the "
                                               "software installed on them."),
                                bodyFont);
    body->setWordWrap(true);
    pageLayout->addWidget(body);
    pageLayout->addStretch();
    auto* titleArea = new QWidget;
    auto* titleAreaLayout = new QVBoxLayout(titleArea);
    titleAreaLayout->setContentsMargins(0, 0, 0, 0);
    titleAreaLayout->addWidget(page, 1);
    auto* fileLabel = new QLabel(QStringLiteral("Configuration: a new one, not saved yet."));
    fileLabel->setWordWrap(true);
    titleAreaLayout->addWidget(fileLabel);
    titleAreaLayout->addWidget(new QPushButton(openIcon, QStringLiteral("Open a Configuration...")), 0, Qt::AlignLeft);
    titleAreaLayout->addWidget(new QPushButton(saveIcon, QStringLiteral("Save the Configuration")), 0, Qt::AlignLeft);
    titleAreaLayout->addSpacing(24);
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(titleArea);
    auto* stack = new QStackedWidget;
    stack->addWidget(area);

    auto* content = new QWidget;
    auto* contentLayout = new QVBoxLayout(content);
    contentLayout->addWidget(stack, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    auto* back = new QPushButton(QStringLiteral("< &Back"));
    back->setEnabled(false);
    buttons->addWidget(back);
    auto* next = new QPushButton(QStringLiteral("&Next >"));
    next->setDefault(true);
    buttons->addWidget(next);
    contentLayout->addLayout(buttons);

    auto* helpPane = new QWidget;
    auto* helpLayout = new QVBoxLayout(helpPane);
    helpLayout->setContentsMargins(0, -1, 0, -1);
    helpLayout->addWidget(new QLabel(QStringLiteral("<b>Help</b>")));
    auto* help = new QTextBrowser;
    help->setHtml(QStringLiteral("<b>Zelkon</b><br>This enables you to: <p>1. Configure regional settings.</p><p>2. "
                                 "Configure remote management solutions.</p><p>3. Configure peripherals.</p><p>4. "
                                 "Configure connections to host systems.</p>"));
    helpLayout->addWidget(help);
    helpPane->setMinimumWidth(165);
    auto* splitter = new QSplitter(Qt::Horizontal);
    splitter->addWidget(content);
    splitter->addWidget(helpPane);
    splitter->setStretchFactor(0, 1);
    splitter->setSizes({ 608, 203 });

    auto* central = new QWidget;
    auto* centralLayout = new QHBoxLayout(central);
    centralLayout->addWidget(pageList);
    centralLayout->addWidget(splitter, 1);
    window.setCentralWidget(central);
    window.statusBar();
    window.setWindowTitle(QStringLiteral("Zelkon"));
    window.resize(1000, 700);
    window.show();
    return QApplication::exec();
}
