#include "standardiconengine.h"

#include <QApplication>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

// The window's new, open and save icons, read one size at a time, must look exactly like
// the style's own.
class TestStandardIconEngine : public QObject
{
    Q_OBJECT

private slots:
    void drawsWhatTheStyleDraws_data();
    void drawsWhatTheStyleDraws();
    void otherIconsAreTheStyles();
    void followsTheIconTheme_data();
    void followsTheIconTheme();
};

namespace {
QImage painted(const QIcon& icon, const QSize& size, QIcon::Mode mode)
{
    QImage image(size + QSize(6, 6), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.paint(&painter, QRect(QPoint(3, 3), size), Qt::AlignCenter, mode);
    return image;
}
} // namespace

void TestStandardIconEngine::drawsWhatTheStyleDraws_data()
{
    QTest::addColumn<int>("which");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("mode");

    const QList<QPair<const char*, QStyle::StandardPixmap>> icons = { { "new", QStyle::SP_FileIcon },
                                                                      { "open", QStyle::SP_DialogOpenButton },
                                                                      { "save", QStyle::SP_DialogSaveButton } };
    // Below, between and above the sizes Qt ships, and one that is not square.
    const QList<QSize> sizes = { { 12, 12 }, { 16, 16 }, { 24, 24 }, { 32, 32 }, { 48, 48 }, { 200, 200 }, { 40, 20 } };
    for (const auto& icon : icons) {
        for (const QSize& size : sizes) {
            QTest::addRow("%s %dx%d", icon.first, size.width(), size.height())
                << int(icon.second) << size << int(QIcon::Normal);
        }
        QTest::addRow("%s disabled", icon.first) << int(icon.second) << QSize(24, 24) << int(QIcon::Disabled);
        QTest::addRow("%s selected", icon.first) << int(icon.second) << QSize(16, 16) << int(QIcon::Selected);
    }
}

void TestStandardIconEngine::drawsWhatTheStyleDraws()
{
    QFETCH(int, which);
    QFETCH(QSize, size);
    QFETCH(int, mode);
    const auto pixmap = QStyle::StandardPixmap(which);
    const auto iconMode = QIcon::Mode(mode);
    const QIcon style = QApplication::style()->standardIcon(pixmap);
    const QIcon lazy = StandardIconEngine::icon(pixmap);

    QVERIFY(!lazy.isNull());
    QCOMPARE(lazy.availableSizes(), style.availableSizes());
    QCOMPARE(lazy.actualSize(size, iconMode), style.actualSize(size, iconMode));
    QCOMPARE(lazy.pixmap(size, iconMode).toImage(), style.pixmap(size, iconMode).toImage());
    QCOMPARE(painted(lazy, size, iconMode), painted(style, size, iconMode));
    // A copy shares what the first one read and still draws the same.
    const QIcon copy = lazy;
    QCOMPARE(copy.pixmap(size, iconMode).toImage(), style.pixmap(size, iconMode).toImage());
}

void TestStandardIconEngine::otherIconsAreTheStyles()
{
    const QIcon icon = StandardIconEngine::icon(QStyle::SP_TrashIcon);
    QVERIFY(!icon.isNull());
    QCOMPARE(icon.pixmap(32).toImage(), QApplication::style()->standardIcon(QStyle::SP_TrashIcon).pixmap(32).toImage());
}

void TestStandardIconEngine::followsTheIconTheme_data()
{
    QTest::addColumn<QStringList>("themeIcons");
    QTest::addColumn<bool>("fromTheme");
    // As on a desktop whose theme draws these (GNOME's, KDE's), and as under the plain
    // "hicolor" theme of an X server without a desktop, which lacks them.
    QTest::newRow("theme has them") << QStringList { "text-x-generic", "folder-open", "document-save" } << true;
    QTest::newRow("theme lacks them") << QStringList { "edit-copy" } << false;
}

void TestStandardIconEngine::followsTheIconTheme()
{
    QFETCH(QStringList, themeIcons);
    QFETCH(bool, fromTheme);
    QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkpath(QStringLiteral("test/16x16/actions")));
    QFile index(dir.filePath(QStringLiteral("test/index.theme")));
    QVERIFY(index.open(QIODevice::WriteOnly));
    index.write("[Icon Theme]\nName=Test\nDirectories=16x16/actions\n\n[16x16/actions]\nSize=16\nType=Fixed\n");
    index.close();
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(Qt::red);
    for (const QString& name : themeIcons)
        QVERIFY(image.save(dir.filePath(QStringLiteral("test/16x16/actions/%1.png").arg(name))));

    const QStringList oldPaths = QIcon::themeSearchPaths();
    const QString oldTheme = QIcon::themeName();
    QIcon::setThemeSearchPaths({ dir.path() });
    QIcon::setThemeName(QStringLiteral("test"));
    for (QStyle::StandardPixmap pixmap :
         { QStyle::SP_FileIcon, QStyle::SP_DialogOpenButton, QStyle::SP_DialogSaveButton }) {
        const QIcon style = QApplication::style()->standardIcon(pixmap);
        const QIcon lazy = StandardIconEngine::icon(pixmap);
        QCOMPARE(!style.name().isEmpty(), fromTheme);
        QCOMPARE(lazy.name(), style.name());
        QCOMPARE(lazy.pixmap(24).toImage(), style.pixmap(24).toImage());
    }
    QIcon::setThemeName(oldTheme);
    QIcon::setThemeSearchPaths(oldPaths);
}

QTEST_MAIN(TestStandardIconEngine)
#include "tst_standardiconengine.moc"
