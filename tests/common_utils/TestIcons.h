#pragma once

#include <QtCore/QByteArray>
#include <QtGui/QBrush>
#include <QtGui/QIcon>
#include <QtGui/QIconEngine>
#include <QtGui/QImage>

/// The colour that the test icons draw their foreground in.
const QColor foreground(0xe5, 0xee, 0xf4);

/// Returns an SVG document of 16 by 16 that shows \a content.
QByteArray svg(const QByteArray &content);

/// Writes \a document to a file of its own for the life of the process. Returns its path.
QString writeSvg(const QByteArray &document);

/// Returns an icon of the SVG document that shows \a content.
QIcon svgIcon(const QByteArray &content);

/// Returns \a icon with the test foreground replaced by \a brush.
QIcon tinted(const QIcon &icon, const QBrush &brush, bool disabled = false);

/// Returns the pixels of \a icon at \a size, premultiplied.
QImage pixels(const QIcon &icon, int size, QIcon::Mode mode = QIcon::Normal,
              QIcon::State state = QIcon::Off);

/// Returns what QIcon::paint() paints on a transparent device of \a size, in device-independent
/// pixels, and \a devicePixelRatio.
QImage painted(const QIcon &icon, const QSize &size, qreal devicePixelRatio = 1);

/// Returns the largest difference of a channel between two premultiplied pictures, or 256 if
/// their sizes differ.
int largestDifference(const QImage &a, const QImage &b);

/// An opaque picture of one colour.
QPixmap plainPixmap(const QSize &size, const QColor &color);

/// Paints itself in the test foreground, and counts how often it is asked to. It calls itself one
/// of the toolkit's engines, which always show the same.
class CountingEngine : public QIconEngine
{
public:
    explicit CountingEngine(int *count)
        : m_count(count)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override { return new CountingEngine(*this); }
    QString key() const override { return QStringLiteral("QPixmapIconEngine"); }

private:
    int *m_count;
};

/// What an application's own engine shows at the moment.
struct Badge
{
    QColor color = foreground;
    /// Of its picture for disabled icons, if it has one.
    QColor disabledColor;
    /// How much of the size it takes.
    int divisor = 1;
    int paintings = 0;
};

/// Shows a badge, which may change at any time.
class BadgeEngine : public QIconEngine
{
public:
    explicit BadgeEngine(Badge *badge)
        : m_badge(badge)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override { return new BadgeEngine(*this); }

private:
    Badge *m_badge;
};
