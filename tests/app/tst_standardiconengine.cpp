#include "standardiconengine.h"

#include <QApplication>
#include <QPainter>
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

QTEST_MAIN(TestStandardIconEngine)
#include "tst_standardiconengine.moc"
