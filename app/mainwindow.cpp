#include "mainwindow.h"

#include "busyfeedback.h"
#include "documentcontroller.h"
#include "filechooser.h"
#include "hostedprinterframe.h"
#include "languagemanager.h"
#include "languagemenu.h"
#include "pendingchangesdialog.h"
#include "standardiconengine.h"

#include "config/configfile.h"
#include "device/externaltool.h"
#include "pages/configpage.h"
#include "pages/zelkonconnectionspage.h"
#include "pages/zelkonmanagementpage.h"
#include "pages/zelkonperipheralpage.h"
#include "pages/zelkonregionalpage.h"
#include "pages/zelkonsummarypage.h"
#include "pages/zelkontitlepage.h"

#include "accordion.h"
#include "accordionitem.h"
#include "platform.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyle>
#include <QTextBrowser>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>

namespace {
const int StatusTimeoutMs = 5000;
// The help pane takes this share of the width beside the page list, within these bounds.
const int HelpPercent = 25;
const int MinimumHelpWidth = 165;
const int MaximumHelpWidth = 300;

QString nativePath(const QString& path)
{
    return QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
}

// The title and summary pages carry their own title label. A font of its own rather than
// a style sheet: a sheet on the page stack would route every page's painting through the
// style sheet machinery, which costs the window's first paint a few milliseconds.
void emphasizeTitle(QWidget* page)
{
    auto* title = page->findChild<QLabel*>(QStringLiteral("Title"));
    if (!title)
        return;
    QFont font = title->font();
    font.setPointSize(22);
    font.setBold(true);
    title->setFont(font);
}

// A container page whose frames the platform rules and package probes have all hidden.
bool hasOnlyHiddenFrames(WizardPage* page)
{
    auto* configPage = qobject_cast<ConfigPage*>(page);
    if (!configPage || !configPage->accordion())
        return false;
    const QList<AccordionItem*> items = configPage->accordion()->items();
    return !items.isEmpty()
        && std::none_of(items.cbegin(), items.cend(), [](AccordionItem* item) { return !item->isHidden(); });
}
} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_document(new DocumentController(this))
    , m_fileChooser(std::make_unique<FileChooser>())
{
    setObjectName(QStringLiteral("MainWindow"));
    // The application's resources live in a static library, which the linker would drop.
    Q_INIT_RESOURCE(app);
    setWindowIcon(QIcon(QStringLiteral(":/zelkon/zelkon.svg")));
    createActions();
    createWidgets();
    createPages();
    retranslateUi();

    connect(Platform::instance(), &Platform::platformChange, this, &MainWindow::onPlatformChanged);
    onPlatformChanged();
    updateWindowTitle();
    resize(1000, 700);
    showPage(TitlePage);
}

MainWindow::~MainWindow() = default;

void MainWindow::setFileChooser(std::unique_ptr<FileChooser> chooser)
{
    m_fileChooser = std::move(chooser);
}

WizardPage* MainWindow::page(int index) const
{
    if (index > TitlePage && index < SummaryPage)
        ensureContainerPages();
    return m_pages.value(index);
}

QList<ConfigPage*> MainWindow::containerPages() const
{
    ensureContainerPages();
    QList<ConfigPage*> pages;
    for (WizardPage* each : m_pages) {
        if (auto* configPage = qobject_cast<ConfigPage*>(each))
            pages.append(configPage);
    }
    return pages;
}

void MainWindow::createActions()
{
    m_newAction = new QAction(StandardIconEngine::icon(QStyle::SP_FileIcon), QString(), this);
    m_newAction->setShortcut(QKeySequence::New);
    connect(m_newAction, &QAction::triggered, this, &MainWindow::newDocument);

    m_openAction = new QAction(StandardIconEngine::icon(QStyle::SP_DialogOpenButton), QString(), this);
    m_openAction->setShortcut(QKeySequence::Open);
    connect(m_openAction, &QAction::triggered, this, &MainWindow::open);

    m_saveAction = new QAction(StandardIconEngine::icon(QStyle::SP_DialogSaveButton), QString(), this);
    m_saveAction->setShortcut(QKeySequence::Save);
    connect(m_saveAction, &QAction::triggered, this, &MainWindow::save);

    m_saveAsAction = new QAction(this);
    // Not QKeySequence::SaveAs, which some platforms leave without a key.
    m_saveAsAction->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    connect(m_saveAsAction, &QAction::triggered, this, &MainWindow::saveAs);

    m_quitAction = new QAction(this);
    m_quitAction->setShortcut(QKeySequence::Quit);
    connect(m_quitAction, &QAction::triggered, this, &QWidget::close);

    m_aboutAction = new QAction(this);
    connect(m_aboutAction, &QAction::triggered, this, [this] {
        QMessageBox::about(this, tr("About Zelkon"),
                           tr("<b>Zelkon</b> %1<p>Configuration wizard for Tavlo Thin Clients.</p>")
                               .arg(QApplication::applicationVersion()));
    });

    m_fileMenu = menuBar()->addMenu(QString());
    m_fileMenu->addAction(m_newAction);
    m_fileMenu->addAction(m_openAction);
    m_fileMenu->addAction(m_saveAction);
    m_fileMenu->addAction(m_saveAsAction);
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(m_quitAction);
    m_languageMenu = new LanguageMenu(LanguageManager::instance(), this);
    menuBar()->addMenu(m_languageMenu);
    m_helpMenu = menuBar()->addMenu(QString());
    m_helpMenu->addAction(m_aboutAction);
}

void MainWindow::createWidgets()
{
    m_pageList = new QListWidget;
    m_pageList->setObjectName(QStringLiteral("PageList"));
    m_pageList->setIconSize(QSize(16, 16));
    m_pageList->setSpacing(2);
    connect(m_pageList, &QListWidget::currentRowChanged, this, &MainWindow::showPage);

    m_headerTitle = new QLabel;
    m_headerTitle->setObjectName(QStringLiteral("PageTitle"));
    QFont titleFont = m_headerTitle->font();
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.6);
    titleFont.setBold(true);
    m_headerTitle->setFont(titleFont);
    m_headerDescription = new QLabel;
    m_headerDescription->setObjectName(QStringLiteral("PageDescription"));
    m_headerDescription->setWordWrap(true);
    m_headerDescription->setTextFormat(Qt::RichText);
    m_header = new QWidget;
    // Hidden until a page that has one is shown: sizing a hidden header costs its fonts
    // nothing, and the first page shown, the title page, has none.
    m_header->hide();
    auto* headerLayout = new QVBoxLayout(m_header);
    headerLayout->setContentsMargins(0, 0, 0, 6);
    headerLayout->addWidget(m_headerTitle);
    headerLayout->addWidget(m_headerDescription);
    auto* rule = new QFrame;
    rule->setFrameShape(QFrame::HLine);
    rule->setFrameShadow(QFrame::Sunken);
    headerLayout->addWidget(rule);

    m_emptyHint = new QLabel;
    m_emptyHint->setObjectName(QStringLiteral("EmptyPageHint"));
    m_emptyHint->setAlignment(Qt::AlignCenter);
    m_emptyHint->setWordWrap(true);
    m_emptyHint->setEnabled(false);
    m_emptyHint->hide();

    m_stack = new QStackedWidget;
    m_stack->setObjectName(QStringLiteral("PageStack"));

    m_backButton = new QPushButton;
    m_backButton->setObjectName(QStringLiteral("BackButton"));
    connect(m_backButton, &QPushButton::clicked, this, &MainWindow::back);
    m_nextButton = new QPushButton;
    m_nextButton->setObjectName(QStringLiteral("NextButton"));
    m_nextButton->setDefault(true);
    connect(m_nextButton, &QPushButton::clicked, this, &MainWindow::next);

    m_buttonRow = new QHBoxLayout;
    m_buttonRow->addStretch();
    m_buttonRow->addWidget(m_backButton);
    m_buttonRow->addWidget(m_nextButton);

    auto* content = new QWidget;
    auto* contentLayout = new QVBoxLayout(content);
    contentLayout->addWidget(m_header);
    contentLayout->addWidget(m_emptyHint);
    contentLayout->addWidget(m_stack, 1);
    contentLayout->addLayout(m_buttonRow);

    m_helpTitle = new QLabel;
    m_helpView = new QTextBrowser;
    m_helpView->setObjectName(QStringLiteral("HelpView"));
    m_helpView->setOpenExternalLinks(true);
    auto* helpPane = new QWidget;
    auto* helpLayout = new QVBoxLayout(helpPane);
    // Every pixel of a narrow pane goes to the text; the window's margin is outside it.
    helpLayout->setContentsMargins(0, -1, 0, -1);
    helpLayout->addWidget(m_helpTitle);
    helpLayout->addWidget(m_helpView);

    helpPane->setMinimumWidth(MinimumHelpWidth);
    m_splitter = new QSplitter(Qt::Horizontal);
    m_splitter->setObjectName(QStringLiteral("PageSplitter"));
    m_splitter->setChildrenCollapsible(false);
    m_splitter->addWidget(content);
    m_splitter->addWidget(helpPane);
    m_splitter->setStretchFactor(0, 1);
    m_splitter->installEventFilter(this);
    connect(m_splitter, &QSplitter::splitterMoved, this, [this] { m_helpWidthChosen = true; });

    auto* central = new QWidget;
    auto* centralLayout = new QHBoxLayout(central);
    centralLayout->addWidget(m_pageList);
    centralLayout->addWidget(m_splitter, 1);
    setCentralWidget(central);

    m_standaloneCheck = new QCheckBox;
    m_standaloneCheck->setObjectName(QStringLiteral("StandaloneCheck"));
    m_standaloneCheck->setChecked(Platform::isStandalone());
    connect(m_standaloneCheck, &QCheckBox::toggled, Platform::instance(), &Platform::setStandalone);

    statusBar();
}

void MainWindow::createPages()
{
    m_titlePage = new ZelkonTitlePage;
    m_titlePage->setupPlatforms();
    // The chooser shows the global target, which may have been set before this window.
    m_titlePage->platformCombo()->setCurrentIndex(Platform::instance()->target());
    connect(m_titlePage, &ZelkonTitlePage::loadConfig, this, &MainWindow::open);
    connect(m_titlePage, &ZelkonTitlePage::saveConfig, this, &MainWindow::save);
    connect(m_titlePage, &ZelkonTitlePage::generateConfig, m_document, &DocumentController::generate);

    m_toolBar = addToolBar(QString());
    m_toolBar->setObjectName(QStringLiteral("MainToolBar"));
    m_toolBar->setMovable(false);
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_toolBar->addAction(m_newAction);
    m_toolBar->addAction(m_openAction);
    m_toolBar->addAction(m_saveAction);
    m_toolBar->addSeparator();
    auto* platformBox = new QWidget;
    auto* platformLayout = new QHBoxLayout(platformBox);
    platformLayout->setContentsMargins(8, 0, 8, 0);
    platformLayout->addWidget(m_titlePage->platformLabel());
    platformLayout->addWidget(m_titlePage->platformCombo());
    platformLayout->addSpacing(12);
    platformLayout->addWidget(m_standaloneCheck);
    m_titlePage->platformLabel()->show();
    m_titlePage->platformCombo()->show();
    m_toolBar->addWidget(platformBox);

    m_summaryPage = new ZelkonSummaryPage(m_document->generatedDocument());
    connect(m_summaryPage, &ZelkonSummaryPage::generateConfig, m_document, &DocumentController::generate);
    connect(m_summaryPage, &ZelkonSummaryPage::saveConfig, this, &MainWindow::save);
    connect(m_summaryPage, &ZelkonSummaryPage::applyConfig, this, &MainWindow::applyToDevice);
    QPushButton* saveButton = m_summaryPage->saveButton();
    m_buttonRow->insertWidget(0, saveButton);
    // The actions' icons, shared: each fresh standard icon decodes its images again.
    saveButton->setIcon(m_saveAction->icon());

    m_pages = { m_titlePage, nullptr, nullptr, nullptr, nullptr, m_summaryPage };
    for (int index = 0; index < PageCount; ++index) {
        auto* area = new QScrollArea;
        area->setWidgetResizable(true);
        area->setFrameShape(QFrame::NoFrame);
        m_pageAreas.append(area);
        m_stack->addWidget(area);
        m_pageList->addItem(QString());
    }
    emphasizeTitle(m_titlePage);
    emphasizeTitle(m_summaryPage);
    m_pageAreas.at(TitlePage)->setWidget(createTitleArea());
    m_pageAreas.at(SummaryPage)->setWidget(m_summaryPage);
    connectPage(m_titlePage);
    connectPage(m_summaryPage);
}

// The title page asks for loading and saving through its signals; these are its buttons.
QWidget* MainWindow::createTitleArea()
{
    // The actions' icons, shared: each fresh standard icon decodes its images again.
    m_titleOpenButton = new QPushButton(m_openAction->icon(), QString());
    m_titleOpenButton->setObjectName(QStringLiteral("TitleOpenButton"));
    connect(m_titleOpenButton, &QPushButton::clicked, m_titlePage, &ZelkonTitlePage::loadConfig);
    m_titleSaveButton = new QPushButton(m_saveAction->icon(), QString());
    m_titleSaveButton->setObjectName(QStringLiteral("TitleSaveButton"));
    connect(m_titleSaveButton, &QPushButton::clicked, m_titlePage, &ZelkonTitlePage::saveConfig);
    m_currentFileLabel = new QLabel;
    m_currentFileLabel->setObjectName(QStringLiteral("CurrentFile"));
    m_currentFileLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_currentFileLabel->setWordWrap(true);

    // One above the other, so that the page stays narrow enough for small screens.
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(m_titleOpenButton, 0, Qt::AlignLeft);
    buttons->addWidget(m_titleSaveButton, 0, Qt::AlignLeft);
    auto* area = new QWidget;
    auto* layout = new QVBoxLayout(area);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_titlePage, 1);
    layout->addWidget(m_currentFileLabel);
    layout->addLayout(buttons);
    layout->addSpacing(24);
    return area;
}

void MainWindow::buildContainerPages()
{
    // No page of the library places the printer frame; printers are devices the client
    // uses, so the wizard offers them after the other peripherals.
    auto* peripherals = new ZelkonPeripheralPage;
    HostedPrinterFrame::addTo(peripherals);
    const QList<WizardPage*> pages
        = { new ZelkonRegionalPage, new ZelkonManagementPage, peripherals, new ZelkonConnectionsPage };
    for (int i = 0; i < pages.size(); ++i) {
        const int index = RegionalPage + i;
        m_pages[index] = pages.at(i);
        // Deletes the page this one replaces.
        m_pageAreas.at(index)->setWidget(pages.at(i));
        connectPage(pages.at(i));
        connect(pages.at(i), &WizardPage::modified, this, &MainWindow::onPageModified);
    }
    const bool rebuilt = m_containerPagesBuilt;
    m_containerPagesBuilt = true;
    m_document->setPages(containerPages());
    m_pagesPristine = true;
    if (rebuilt)
        emit containerPagesBuilt();
}

void MainWindow::ensureContainerPages() const
{
    // Building them changes no state a caller could have seen before.
    if (!m_containerPagesBuilt)
        const_cast<MainWindow*>(this)->buildContainerPages();
}

// As wide as the longest title, so that the page itself gets the rest.
void MainWindow::fitPageList()
{
    m_pageList->setFixedWidth(m_pageList->sizeHintForColumn(0) + 2 * m_pageList->frameWidth()
                              + 4 * m_pageList->spacing());
}

void MainWindow::retranslateUi()
{
    m_newAction->setText(tr("&New"));
    m_newAction->setStatusTip(tr("Start a new configuration"));
    m_openAction->setText(tr("&Open..."));
    m_openAction->setStatusTip(tr("Open a configuration file"));
    m_saveAction->setText(tr("&Save"));
    m_saveAction->setStatusTip(tr("Save the configuration"));
    m_saveAsAction->setText(tr("Save &As..."));
    m_saveAsAction->setStatusTip(tr("Save the configuration under a new name"));
    m_quitAction->setText(tr("&Quit"));
    m_aboutAction->setText(tr("&About Zelkon"));
    m_fileMenu->setTitle(tr("&File"));
    m_helpMenu->setTitle(tr("&Help"));
    m_toolBar->setWindowTitle(tr("Main"));

    m_backButton->setText(tr("< &Back"));
    m_nextButton->setText(tr("&Next >"));
    m_helpTitle->setText(tr("<b>Help</b>"));
    m_standaloneCheck->setText(tr("Standalone"));
    m_standaloneCheck->setToolTip(
        tr("Prepare configuration files on this computer instead of configuring the Thin Client it runs on."));
    m_titlePage->platformLabel()->setText(tr("Target &platform:"));
    m_summaryPage->summaryView()->setPlaceholderText(
        tr("Nothing has been set yet, so there is nothing to save or apply. Open a configuration file, or "
           "change settings on the pages before this one, and they will be listed here."));
    m_titleOpenButton->setText(tr("Open a Configuration..."));
    m_titleSaveButton->setText(tr("Save the Configuration"));

    for (int index = 0; index < PageCount; ++index)
        m_pageList->item(index)->setText(pageListText(index));
    fitPageList();
    updateWindowTitle();
    refreshPageFrame();
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
        // The summary's section labels come from the document layer, which has no
        // widget to tell it.
        if (m_current == SummaryPage)
            m_summaryPage->updateSummary();
    }
    QMainWindow::changeEvent(event);
}

QString MainWindow::pageListText(int index) const
{
    // The container pages are made after the first paint; the list names them from the
    // start, so that it neither fills in nor changes its width then.
    QString title;
    if (m_pages.at(index))
        title = m_pages.at(index)->title();
    else if (index == RegionalPage)
        title = ZelkonRegionalPage::pageTitle();
    else if (index == ManagementPage)
        title = ZelkonManagementPage::pageTitle();
    else if (index == PeripheralPage)
        title = ZelkonPeripheralPage::pageTitle();
    else if (index == ConnectionsPage)
        title = ZelkonConnectionsPage::pageTitle();
    return QStringLiteral("%1.  %2").arg(index + 1).arg(title);
}

void MainWindow::paintEvent(QPaintEvent* event)
{
    QMainWindow::paintEvent(event);
    if (m_painted)
        return;
    m_painted = true;
    // Queued, so that this paint reaches the screen first.
    QTimer::singleShot(0, this, [this] { ensureContainerPages(); });
}

void MainWindow::connectPage(WizardPage* page)
{
    auto showHelp = [this, page](const QString& text) {
        if (m_pages.value(m_current) == page)
            m_helpView->setHtml(text);
    };
    if (auto* configPage = qobject_cast<ConfigPage*>(page))
        connect(configPage, &ConfigPage::helpChanged, this, showHelp);
    else if (auto* titlePage = qobject_cast<ZelkonTitlePage*>(page))
        connect(titlePage, &ZelkonTitlePage::helpChanged, this, showHelp);
    else if (auto* summaryPage = qobject_cast<ZelkonSummaryPage*>(page))
        connect(summaryPage, &ZelkonSummaryPage::helpChanged, this, showHelp);
}

void MainWindow::showPage(int index)
{
    if (index < 0 || index >= PageCount)
        return;
    m_current = index;
    WizardPage* shown = page(index);
    shown->setupToShow();
    m_stack->setCurrentIndex(index);
    if (m_pageList->currentRow() != index) {
        const QSignalBlocker blocker(m_pageList);
        m_pageList->setCurrentRow(index);
    }
    m_backButton->setEnabled(index > 0);
    m_nextButton->setEnabled(index < PageCount - 1);
    m_summaryPage->saveButton()->setVisible(index == SummaryPage);
    refreshPageFrame();
}

void MainWindow::back()
{
    showPage(m_current - 1);
}

void MainWindow::next()
{
    showPage(m_current + 1);
}

// Header, help and hint of the current page, which depend on the platform as well.
void MainWindow::refreshPageFrame()
{
    WizardPage* shown = m_pages.value(m_current);
    if (!shown)
        return;
    const bool container = qobject_cast<ConfigPage*>(shown);
    m_header->setVisible(container);
    m_headerTitle->setText(shown->title());
    const QString description = shown->description();
    m_headerDescription->setText(description);
    m_headerDescription->setVisible(!description.isEmpty() && description != shown->title());
    m_emptyHint->setVisible(hasOnlyHiddenFrames(shown));
    m_emptyHint->setText(tr("None of this page's settings apply to %1 with the software installed here.")
                             .arg(Platform::list().value(Platform::instance()->target())));
    m_helpView->setHtml(shown->helpText());
}

void MainWindow::onPageModified()
{
    m_pagesPristine = false;
    setWindowModified(true);
}

void MainWindow::onPlatformChanged()
{
    {
        const QSignalBlocker comboBlocker(m_titlePage->platformCombo());
        m_titlePage->platformCombo()->setCurrentIndex(Platform::instance()->target());
        const QSignalBlocker checkBlocker(m_standaloneCheck);
        m_standaloneCheck->setChecked(Platform::isStandalone());
    }
    // Applying configures the machine the wizard runs on, which a standalone one is not.
    m_summaryPage->applyButton()->setVisible(!Platform::isStandalone());
    if (m_current == SummaryPage)
        m_summaryPage->updateSummary();
    refreshPageFrame();
}

void MainWindow::preparePagesForDocument()
{
    ensureContainerPages();
    if (!m_pagesPristine)
        buildContainerPages();
    m_document->loadPages();
    m_pagesPristine = false;
    setWindowModified(false);
    updateWindowTitle();
    showPage(m_current);
}

bool MainWindow::newDocument()
{
    if (!maybeSave())
        return false;
    m_document->newDocument();
    preparePagesForDocument();
    statusBar()->showMessage(tr("New configuration"), StatusTimeoutMs);
    return true;
}

bool MainWindow::open()
{
    if (!maybeSave())
        return false;
    const QString path = m_fileChooser->openFileName(this, startDirectory());
    if (path.isEmpty())
        return false;
    return openFile(path);
}

bool MainWindow::openFile(const QString& path)
{
    QString reason;
    bool loaded = false;
    {
        // On a WES or CE device the document layer first has the settings tool fetch the
        // device's current settings, which may take as long as the tool's time limit.
        const bool fetches = (Platform::isWes() || Platform::isCe()) && !Platform::isStandalone();
        const BusyFeedback busy(statusBar(),
                                fetches ? tr("Reading the Thin Client's current settings; this may take up to %1 "
                                             "seconds...")
                                              .arg(ExternalTool::DefaultTimeoutMs / 1000)
                                        : tr("Opening %1...").arg(QFileInfo(path).fileName()));
        loaded = m_document->load(path, &reason);
    }
    if (!loaded) {
        QMessageBox::warning(this, tr("Zelkon"),
                             tr("The file \"%1\" cannot be opened.\n\n%2").arg(nativePath(path), reason));
        return false;
    }
    preparePagesForDocument();
    statusBar()->showMessage(tr("Opened %1").arg(QFileInfo(path).fileName()), StatusTimeoutMs);
    return true;
}

bool MainWindow::save()
{
    if (m_document->filePath().isEmpty())
        return saveAs();
    return saveTo(m_document->filePath());
}

bool MainWindow::saveAs()
{
    // Starting from the current file makes "save a copy next to it" one edit of the name.
    const QString start = m_document->filePath().isEmpty() ? startDirectory() : m_document->filePath();
    const QString path = m_fileChooser->saveFileName(this, start);
    if (path.isEmpty())
        return false;
    return saveTo(path);
}

bool MainWindow::saveTo(const QString& path)
{
    if (!confirmPendingChanges(false))
        return false;
    QString reason;
    if (!m_document->save(path, &reason)) {
        QMessageBox::critical(
            this, tr("Zelkon"),
            tr("The configuration could not be saved to \"%1\".\n\n%2").arg(nativePath(path), reason));
        return false;
    }
    setWindowModified(false);
    updateWindowTitle();
    statusBar()->showMessage(tr("Saved %1").arg(QFileInfo(path).fileName()), StatusTimeoutMs);
    return true;
}

bool MainWindow::applyToDevice()
{
    if (Platform::isStandalone() || !confirmPendingChanges(true))
        return false;
    QString reason;
    bool applied = false;
    {
        const BusyFeedback busy(statusBar(), tr("Applying the configuration to this Thin Client..."));
        applied = m_document->apply(&reason);
    }
    if (!applied) {
        QMessageBox::critical(this, tr("Zelkon"),
                              tr("The configuration could not be applied to this Thin Client.\n\n%1").arg(reason));
        return false;
    }
    statusBar()->showMessage(tr("The configuration was handed to the Thin Client's settings tool."), StatusTimeoutMs);
    return true;
}

bool MainWindow::confirmPendingChanges(bool applying)
{
    if (!m_reviewChanges)
        return true;
    m_document->generate();
    PendingChangesDialog dialog(ConfigDiff::compare(*m_document->loadedDocument(), *m_document->generatedDocument()),
                                applying ? PendingChangesDialog::Purpose::Apply : PendingChangesDialog::Purpose::Save,
                                this);
    return dialog.exec() == QDialog::Accepted;
}

bool MainWindow::maybeSave()
{
    if (!isWindowModified())
        return true;
    const QString name = documentName();
    const QMessageBox::StandardButton answer = QMessageBox::warning(
        this, tr("Zelkon"), tr("The configuration \"%1\" has unsaved changes.\nDo you want to save them?").arg(name),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    switch (answer) {
    case QMessageBox::Save:
        return save();
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

// The page gets the space first: the help pane shrinks with the window, down to a readable
// width, until the user sizes it by hand.
bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_splitter && event->type() == QEvent::Resize && !m_helpWidthChosen) {
        const int total = m_splitter->width() - m_splitter->handleWidth();
        const int help = qBound(MinimumHelpWidth, total * HelpPercent / 100, MaximumHelpWidth);
        m_splitter->setSizes({ total - help, help });
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (maybeSave())
        event->accept();
    else
        event->ignore();
}

void MainWindow::updateWindowTitle()
{
    const QString name = documentName();
    setWindowTitle(tr("%1[*] - Zelkon").arg(name));
    // The name is what a user recognises; the whole path is a hover away.
    m_currentFileLabel->setText(m_document->filePath().isEmpty() ? tr("Configuration: a new one, not saved yet.")
                                                                 : tr("Configuration: %1").arg(name));
    m_currentFileLabel->setToolTip(m_document->filePath().isEmpty() ? QString() : nativePath(m_document->filePath()));
}

QString MainWindow::documentName() const
{
    return m_document->filePath().isEmpty() ? tr("Untitled") : QFileInfo(m_document->filePath()).fileName();
}

QString MainWindow::startDirectory() const
{
    if (!m_document->filePath().isEmpty())
        return QFileInfo(m_document->filePath()).absolutePath();
    return QDir::currentPath();
}
