#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtGui/QTransform>

#include <variant>

namespace TARN::Artwork {

/// What a shape does to the picture.
enum class Paint {
    Line,   ///< a stroke, one unit wide
    Solid,  ///< an area
    Soft,   ///< an area, faint
    Clear,  ///< an area taken out of everything below it
    Groove, ///< a line taken out of everything below it
};

/// One shape as it stands in a source.
struct Shape
{
    Paint paint = Paint::Line;
    QString color;   ///< the name of a colour of the palette
    QString element; ///< what it is in SVG: `path d="M1.5 1.5h2"`
};

/// Another drawing, put in place.
struct Reference
{
    QString name;
    QTransform transform;
};

using Layer = std::variant<Shape, Reference>;

/// A motif or an icon: layers, the later ones on top.
struct Drawing
{
    QString name;
    QVector<Layer> layers;
    QString origin; ///< "file:line", for messages
};

/// Returns the width and height of the grid that \a name is drawn on: the number in its size
/// word ("view.layer.24x"), or 16.
int gridSize(const QString &name);

} // namespace TARN::Artwork
