#pragma once

#include <QList>
#include <QMainWindow>
#include <memory>

class ConfigPage;
class DocumentController;
class FileChooser;
class LanguageMenu;
class QAction;
class QCheckBox;
class QHBoxLayout;
class QLabel;
class QMenu;
class QListWidget;
class QPushButton;
class QScrollArea;
class QSplitter;
class QStackedWidget;
class QTextBrowser;
class QToolBar;
class WizardPage;
class ZelkonSummaryPage;
class ZelkonTitlePage;

/*
 * The wizard's window: the six pages in order with Back/Next and a list to jump to any
 * of them, a header naming the page, the page's help on the right, the target platform
 * and standalone switch in the tool bar, and the file commands.
 *
 * The four container pages are built anew for every new or opened configuration once
 * they have been used: a frame whose section a file lacks keeps what it held, dirty mark
 * included, so reusing the pages would carry the previous configuration's settings into
 * the next one.
 *
 * The first container pages are built right after the window's first paint, so that the
 * window shows up before the frames are made and the machine is probed; anything that
 * asks for them earlier gets them built at once.
 */
class MainWindow : public QMainWindow
{
    Q_OBJECT
    Q_DISABLE_COPY(MainWindow)

public:
    enum Page { TitlePage, RegionalPage, ManagementPage, PeripheralPage, ConnectionsPage, SummaryPage, PageCount };

    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    // Replaces the file dialogs (tests answer with their own paths).
    void setFileChooser(std::unique_ptr<FileChooser> chooser);
    // Before saving and applying, show what changed against the file as opened and let
    // the user go back. Off unless the application turns it on.
    void setReviewChanges(bool review) { m_reviewChanges = review; }

    DocumentController* document() const { return m_document; }
    WizardPage* page(int index) const;
    QList<ConfigPage*> containerPages() const;
    ZelkonTitlePage* titlePage() const { return m_titlePage; }
    ZelkonSummaryPage* summaryPage() const { return m_summaryPage; }
    int currentPage() const { return m_current; }

    QTextBrowser* helpView() const { return m_helpView; }
    QListWidget* pageList() const { return m_pageList; }
    QPushButton* backButton() const { return m_backButton; }
    QPushButton* nextButton() const { return m_nextButton; }
    QCheckBox* standaloneCheck() const { return m_standaloneCheck; }
    QLabel* emptyPageHint() const { return m_emptyHint; }
    LanguageMenu* languageMenu() const { return m_languageMenu; }

public slots:
    void showPage(int index);
    void back();
    void next();

    // Each asks about unsaved changes first and returns false when nothing was done.
    bool newDocument();
    bool open();
    // Opens path without asking about unsaved changes.
    bool openFile(const QString& path);
    bool save();
    bool saveAs();
    bool saveTo(const QString& path);
    bool applyToDevice();

signals:
    // The container pages were built anew; containerPages() holds the new ones. Not
    // emitted for the first pages, which are there whenever they are asked for.
    void containerPagesBuilt();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void retranslateUi();
    void fitPageList();
    void createActions();
    void createWidgets();
    void createPages();
    QWidget* createTitleArea();
    void buildContainerPages();
    void ensureContainerPages() const;
    QString pageListText(int index) const;
    void preparePagesForDocument();
    void connectPage(WizardPage* page);
    void onPageModified();
    void onPlatformChanged();
    void refreshPageFrame();
    void updateWindowTitle();
    bool maybeSave();
    bool confirmPendingChanges(bool applying);
    QString documentName() const;
    QString startDirectory() const;

    DocumentController* m_document;
    std::unique_ptr<FileChooser> m_fileChooser;

    QList<WizardPage*> m_pages;
    QList<QScrollArea*> m_pageAreas;
    ZelkonTitlePage* m_titlePage = nullptr;
    ZelkonSummaryPage* m_summaryPage = nullptr;
    int m_current = -1;
    // No page has loaded a document or reported a change since the pages were built.
    bool m_pagesPristine = true;
    bool m_reviewChanges = false;
    bool m_containerPagesBuilt = false;
    bool m_painted = false;

    QListWidget* m_pageList = nullptr;
    QWidget* m_header = nullptr;
    QLabel* m_headerTitle = nullptr;
    QLabel* m_headerDescription = nullptr;
    QLabel* m_emptyHint = nullptr;
    QLabel* m_currentFileLabel = nullptr;
    QStackedWidget* m_stack = nullptr;
    QSplitter* m_splitter = nullptr;
    // The user has moved the help pane's edge; from then on the window leaves it there.
    bool m_helpWidthChosen = false;
    QTextBrowser* m_helpView = nullptr;
    QLabel* m_helpTitle = nullptr;
    QHBoxLayout* m_buttonRow = nullptr;
    QPushButton* m_backButton = nullptr;
    QPushButton* m_nextButton = nullptr;
    QCheckBox* m_standaloneCheck = nullptr;
    QPushButton* m_titleOpenButton = nullptr;
    QPushButton* m_titleSaveButton = nullptr;
    QToolBar* m_toolBar = nullptr;
    QMenu* m_fileMenu = nullptr;
    QMenu* m_helpMenu = nullptr;
    LanguageMenu* m_languageMenu = nullptr;

    QAction* m_newAction = nullptr;
    QAction* m_openAction = nullptr;
    QAction* m_saveAction = nullptr;
    QAction* m_saveAsAction = nullptr;
    QAction* m_quitAction = nullptr;
    QAction* m_aboutAction = nullptr;
};
