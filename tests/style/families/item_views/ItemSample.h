#pragma once

#include <QtGui/QFontMetrics>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOption>

#include <support/Text.h>

inline constexpr QSize pictureSize(160, 60);
inline constexpr QRect itemRect(10, 10, 120, 26);
// Neither is a colour of the theme.
inline const QColor textColor(0x03, 0x90, 0x05);
inline const QColor highlightedTextColor(0x93, 0x05, 0x07);

/// Leaves the backgrounds of items out.
class BareFusion : public QProxyStyle
{
public:
    BareFusion()
        : QProxyStyle(QStyleFactory::create(text("fusion")))
    {
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element != PE_PanelItemViewItem) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        }
    }
};

inline QStyleOptionViewItem itemOption(const QString &string)
{
    QStyleOptionViewItem option;
    option.rect = itemRect;
    option.state = QStyle::State_Enabled | QStyle::State_Active;
    option.showDecorationSelected = true;
    option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    option.textElideMode = Qt::ElideRight;
    option.features = QStyleOptionViewItem::HasDisplay;
    option.font = QFont(QStringLiteral("DejaVu Sans"), 10);
    option.fontMetrics = QFontMetrics(option.font);
    option.text = string;
    option.palette.setBrush(QPalette::Text, textColor);
    option.palette.setBrush(QPalette::HighlightedText, highlightedTextColor);
    return option;
}
