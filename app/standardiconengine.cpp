#include "standardiconengine.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <iterator>

namespace {
// The square sizes Qt ships for each of these icons, smallest first.
const int Extents[] = { 16, 32, 128 };

struct Source
{
    QString stem; // of the images Qt ships
    QString themeName; // of the icon the style takes from an icon theme instead
};

Source sourceOf(QStyle::StandardPixmap which)
{
    switch (which) {
    case QStyle::SP_FileIcon:
        return { QStringLiteral("file"), QStringLiteral("text-x-generic") };
    case QStyle::SP_DialogOpenButton:
        return { QStringLiteral("standardbutton-open"), QStringLiteral("folder-open") };
    case QStyle::SP_DialogSaveButton:
        return { QStringLiteral("standardbutton-save"), QStringLiteral("document-save") };
    default:
        return {};
    }
}

// Qt's own styles draw these icons from its images unless the icon theme has them; other
// styles may draw their own.
bool styleDrawsShippedImages(const Source& source)
{
    const QString style = QApplication::style()->objectName();
    if (style != QLatin1String("fusion") && style != QLatin1String("windows"))
        return false;
    const bool themed = QGuiApplication::desktopSettingsAware() && !QIcon::themeName().isEmpty();
    return !themed || !QIcon::hasThemeIcon(source.themeName);
}

// The image Qt ships for stem at extent pixels.
QString imagePath(const QString& stem, int extent)
{
    return QStringLiteral(":/qt-project.org/styles/commonstyle/images/%1-%2.png").arg(stem).arg(extent);
}

// The extent an icon holding all of Extents draws a request of this size from: the
// smallest that covers it, or else the largest.
int chosenExtent(const QSize& size)
{
    const int wanted = size.width() * size.height();
    for (int extent : Extents) {
        if (extent * extent >= wanted)
            return extent;
    }
    return Extents[std::size(Extents) - 1];
}
} // namespace

QIcon StandardIconEngine::icon(QStyle::StandardPixmap which)
{
    const Source source = sourceOf(which);
    if (source.stem.isEmpty() || !styleDrawsShippedImages(source) || !QFile::exists(imagePath(source.stem, Extents[0])))
        return QApplication::style()->standardIcon(which);
    return QIcon(new StandardIconEngine(source.stem));
}

StandardIconEngine::StandardIconEngine(const QString& stem)
    : m_stem(stem)
{
}

void StandardIconEngine::ensureImageFor(const QSize& size)
{
    const int extent = chosenExtent(size);
    if (m_readExtents.contains(extent))
        return;
    m_readExtents.append(extent);
    m_read.addFile(imagePath(m_stem, extent), QSize(extent, extent));
}

QPixmap StandardIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    ensureImageFor(size);
    return m_read.pixmap(size, mode, state);
}

void StandardIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state)
{
    // The icon draws the image it would give for this size, scaled by the screen's ratio.
    ensureImageFor(rect.size());
    ensureImageFor(rect.size() * qApp->devicePixelRatio());
    m_read.paint(painter, rect, Qt::AlignCenter, mode, state);
}

QSize StandardIconEngine::actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    ensureImageFor(size);
    return m_read.actualSize(size, mode, state);
}

QList<QSize> StandardIconEngine::availableSizes(QIcon::Mode mode, QIcon::State state) const
{
    QList<QSize> sizes;
    if (mode == QIcon::Normal && state == QIcon::Off) {
        for (int extent : Extents)
            sizes.append(QSize(extent, extent));
    }
    return sizes;
}

QIconEngine* StandardIconEngine::clone() const
{
    return new StandardIconEngine(*this);
}

QString StandardIconEngine::key() const
{
    return QStringLiteral("StandardIconEngine");
}
