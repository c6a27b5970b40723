#pragma once

#include <QtCore/QHash>
#include <QtCore/QPoint>
#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QImage>

/// A published theme in which every brush and colour of the catalogue, and every disabled twin, has
/// an opaque colour of its own, so that each pixel tells the name that painted it.
class PaintTheme
{
public:
    /// The corner radii that the theme publishes. Straight shapes leave no mixed pixels.
    struct Radii
    {
        int small = 0;
        int base = 0;
        int medium = 0;
        int large = 0;
    };

    PaintTheme();
    explicit PaintTheme(const Radii &radii);

    /// Return the colour of a variable, say "MainBrush" or "MainBrushDisabled".
    QColor brush(const QString &name) const;
    QColor color(const QString &name) const;

    /// Returns the name of the variable of that colour; empty when there is none.
    QString nameOf(const QColor &color) const;
    /// Returns the name of the variable that painted the pixel of \a picture; empty when none did.
    QString nameAt(const QImage &picture, const QPoint &pixel) const;
    /// Returns the name as above also where the edge of a round shape, which is not quite straight
    /// within the pixel, has let through a trace of another colour.
    QString nameNear(const QImage &picture, const QPoint &pixel) const;
    /// Tells whether a pixel of \a picture was painted by the variable \a name.
    bool shows(const QImage &picture, const QString &name) const;
    /// Returns the names of all variables that painted pixels of \a picture, sorted.
    QStringList namesIn(const QImage &picture) const;

private:
    QHash<QString, QColor> m_brushes;
    QHash<QString, QColor> m_colors;
    QHash<QRgb, QString> m_names;
};
