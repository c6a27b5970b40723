#pragma once

#include "style/families/tabs/TabShapes.h"

#include <style/BaseStyle.h>

#include <QtGui/QPainter>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOption>

#include <support/painting/Pixels.h>

inline const QSize canvas(200, 200);
inline const QRect horizontalTab(20, 20, 160, 40);
inline const QRect verticalTab(20, 20, 40, 160);
inline const QColor paletteText(1, 2, 3);

/// The text is a full block: all of its pixels have the colour of the text.
inline QStyleOptionTab tabOption(QStyle::State state, QTabBar::Shape shape = QTabBar::RoundedNorth)
{
    QStyleOptionTab option;
    option.rect = isVertical(shape) ? verticalTab : horizontalTab;
    option.state = state;
    option.shape = shape;
    option.text = blocks(3);
    option.palette.setColor(QPalette::WindowText, paletteText);
    return option;
}

/// A style whose answer on mnemonics can be chosen, and that keeps the flags and the font of texts.
class TextRecorder : public QProxyStyle
{
public:
    TextRecorder()
        : QProxyStyle(new TARN::BaseStyle)
    {
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        return hint == SH_UnderlineShortcut
                   ? int(isUnderlined)
                   : QProxyStyle::styleHint(hint, option, widget, returnData);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        return metric == PM_TabBarTabHSpace ? 24 : QProxyStyle::pixelMetric(metric, option, widget);
    }

    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette & /*palette*/,
                      bool /*isEnabled*/, const QString &text,
                      QPalette::ColorRole /*role*/) const override
    {
        m_rect = rect;
        m_flags = flags;
        m_text = text;
        m_isBold = painter->font().bold();
        m_pixelSize = painter->font().pixelSize();
    }

    /// Draws the label; returns whether the painter has the same font and transform afterwards.
    bool draw(const QStyleOptionTab &option, const QWidget *widget) const
    {
        QImage picture(canvas, QImage::Format_RGB32);
        QPainter painter(&picture);
        const QFont font = painter.font();
        const QTransform transform = painter.transform();
        drawControl(CE_TabBarTabLabel, &option, &painter, widget);
        return painter.font() == font && painter.transform() == transform;
    }

    bool isUnderlined = true;
    mutable QRect m_rect;
    mutable int m_flags = 0;
    mutable QString m_text;
    mutable bool m_isBold = false;
    mutable int m_pixelSize = 0;
};
