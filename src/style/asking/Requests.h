#pragma once

#include <QtCore/QSize>
#include <QtWidgets/QStyle>

class QPainter;

namespace TARN {

/// What a widget, or somebody on its behalf, asks the style for. The option is never null, the
/// widget may be.
struct SubElementRequest
{
    QStyle::SubElement element;
    const QStyleOption *option;
    const QWidget *widget;
};

struct SubControlRequest
{
    QStyle::ComplexControl control;
    const QStyleOptionComplex *option;
    QStyle::SubControl subControl;
    const QWidget *widget;
};

struct ContentsRequest
{
    QStyle::ContentsType type;
    const QStyleOption *option;
    QSize contents;
    const QWidget *widget;
};

/// Neither the option nor the painter is ever null.
struct PaintRequest
{
    const QStyleOption *option;
    QPainter *painter;
    const QWidget *widget;
};

} // namespace TARN
