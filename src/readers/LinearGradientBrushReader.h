#pragma once

#include <readers/BrushReader.h>

#include <QtCore/QPointF>

/// Reads an element "LinearGradientBrush": the points "startPoint" and "endPoint" between 0,0 (top
/// left of what is painted) and 1,1 (bottom right), and one "GradientStop" per colour.
class MOX_COMMON_THEME_EXPORT LinearGradientBrushReader : public BrushReader
{
public:
    QBrush readBrush(const QDomElement &element, const QMap<QString, QColor> &colors,
                     bool &ok) const override;

    /// Returns the point that \a text holds as two numbers with one comma between them. \a ok
    /// tells whether it does.
    QPointF parsePoint(const QString &text, bool &ok) const;
};
