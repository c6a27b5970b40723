#pragma once

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtGui/QFontMetrics>
#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOption>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/Pixels.h>
#include <support/themes/IconTheme.h>
#include <support/themes/PaintTheme.h>

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

/// What tests of painted items share.
class ItemTest : public QObject
{
protected:
    PaintTheme m_theme;
    CallRecorder m_recorder;
    BareFusion m_fusion;

    /// To be called first of all.
    void prepareIcons()
    {
        // It makes the disabled and the selected pictures of icons.
        QApplication::setStyle(new TARN::BaseStyle);
        QVERIFY(m_icons.isValid());
        QDir::setSearchPaths(text("icons"), {m_icons.path()});
        QImage square(16, 16, QImage::Format_RGB32);
        square.fill(referenceForeground);
        QVERIFY(square.save(m_icons.filePath(text("chevron.left.png"))));
        QVERIFY(square.save(m_icons.filePath(text("chevron.right.png"))));
    }

    QImage picture(const QStyleOptionViewItem &option, const QWidget *widget = nullptr,
                   const QColor &ground = Qt::white)
    {
        return m_recorder.picture(QStyle::CE_ItemViewItem, option, widget, pictureSize, ground);
    }

    QImage fusionPicture(const QStyleOptionViewItem &option)
    {
        QImage picture(pictureSize, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        m_fusion.drawControl(QStyle::CE_ItemViewItem, &option, &painter);
        return picture;
    }

private:
    QTemporaryDir m_icons;
};
