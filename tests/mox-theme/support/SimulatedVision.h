#pragma once

#include <QtGui/QColor>

#include <array>

/// How a person sees colours.
struct Vision
{
    const char *name;
    /// What each channel of linear light is seen as; its rows add up to one, so greys stay.
    std::array<std::array<double, 3>, 3> matrix;
};

/// Returns usual vision, and the full loss of each kind of cones.
const std::array<Vision, 4> &visions();

/// Returns what \a color looks like.
QColor seenBy(const Vision &vision, const QColor &color);
