#pragma once

#include <QIcon>
#include <QIconEngine>
#include <QStyle>

/*
 * One of the style's standard icons (new, open, save), read one size at a time. The
 * style's own icon decodes every size Qt ships, up to 128 pixels, the moment it is made;
 * the window's buttons show 16 and 24 pixels, and decoding the rest cost its first paint
 * several milliseconds. Each request is answered from the image the style's icon would
 * have chosen, so the pixels are the same.
 *
 * Where the style takes the icon from the desktop's icon theme, is not one of Qt's own,
 * or Qt lacks the images, icon() returns the style's icon itself.
 */
class StandardIconEngine : public QIconEngine
{
public:
    static QIcon icon(QStyle::StandardPixmap which);

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) const override;
    QIconEngine* clone() const override;
    QString key() const override;

private:
    explicit StandardIconEngine(const QString& stem);
    // Reads the image the style's icon would draw at this size, unless it is read already.
    void ensureImageFor(const QSize& size);

    QString m_stem;
    // The sizes read so far; always holds the one the whole set would choose.
    QIcon m_read;
    QList<int> m_readExtents;
};
