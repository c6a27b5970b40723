#pragma once

#include <mox_common_theme_export.h>
#include <style/brushes/ButtonBrushes.h>

#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtGui/QPalette>
#include <QtWidgets/QProxyStyle>

#include <memory>

class QStyleOptionTab;
class QStyleOptionTitleBar;
class QStyleOptionToolButton;

namespace TARN {

/// The widget style of a theme: a proxy over Qt's "fusion" style that takes its brushes from the
/// theme's variables.
///
/// A style resolves some brushes when it is constructed, so the theme variables must have been
/// published before.
class MOX_COMMON_THEME_EXPORT BaseStyle : public QProxyStyle
{
    Q_OBJECT
    Q_PROPERTY(QPalette palette READ getPalette WRITE setPalette NOTIFY paletteChanged)

public:
    /// The style's own pixel metrics.
    enum TARN_PixelMetric : unsigned int {
        /// The padding at both sides of the items of a list.
        TARN_PM_ListViewPadding = QStyle::PM_CustomBase + 1
    };
    Q_ENUM(TARN_PixelMetric)

    using ButtonBrushes = TARN::ButtonBrushes;

    BaseStyle();
    /// Combo boxes that use the style's item delegate get one of their own.
    ~BaseStyle() override;

    /// Returns the style's palette; at first the standard palette of the base style.
    const QPalette &getPalette() const;
    /// Returns a copy of the style's palette.
    QPalette standardPalette() const override;
    /// Replaces \a pal by the style's palette; in the complete mode but for the roles that a
    /// program has set.
    void polish(QPalette &pal) override;

    /// Adapts \a widget to the theme: attributes, palette, fonts, and what custom widgets are
    /// handed as dynamic properties. Properties that it looks at are to be set before.
    void polish(QWidget *widget) override;
    /// Takes back the hover attribute of tab bars and group boxes, and nothing else; in the
    /// complete mode everything that polishing has changed, unless somebody has changed it since.
    void unpolish(QWidget *widget) override;
    void polish(QApplication *application) override;
    void unpolish(QApplication *application) override;

    /// Tints icons and follows the Alt key. Never keeps an event from its target.
    bool eventFilter(QObject *watched, QEvent *event) override;

    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;

    /// \name Painting
    /// What the style does not paint itself, and an option of another type than the element needs,
    /// goes to the base style. The painter is left as it was found; nothing is painted without an
    /// option or a painter.
    /// \{
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget = nullptr) const override;
    /// \}

    /// Draws \a text; unless \a enabled, in the colour of \a textRole of the disabled group.
    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette,
                      bool enabled, const QString &text,
                      QPalette::ColorRole textRole = QPalette::NoRole) const override;
    /// Draws \a pixmap smoothly. The painter's hints for that stay on.
    void drawItemPixmap(QPainter *painter, const QRect &rect, int alignment,
                        const QPixmap &pixmap) const override;

    /// \name Parts of widgets
    /// \{
    /// Draws the tick of a check box over \a rect.
    void drawCheckMark(QPainter *painter, const QRect &rect, QBrush brush) const;
    /// Draws the dot of a radio button in the middle of \a rect.
    void drawRadioMark(QPainter *painter, const QRect &rect, QBrush brush) const;
    /// Draws a row of dots by which something can be gripped, from the coordinate \a from to
    /// before \a to along \a orientation, every \a step pixels, at the coordinate \a across.
    /// Each dot is a light square of \a lightSize with a dark one of \a darkSize on it; the dark
    /// one of a vertical row is always a single pixel.
    void drawGrips(QPainter &painter, Qt::Orientation orientation, int from, int to, int across,
                   int step, int lightSize, int darkSize) const;
    /// Draws the face of a button that is part of a group with the pen and the brush of
    /// \a painter, so that only the outer corners of the group have the \a radius; in a workflow
    /// as a pill, linked to its neighbours by dots in the border brush of \a brushes.
    void drawButtonGroup(const QRectF &rect, QPainter *painter, const QStyleOption *option,
                         int radius, ButtonBrushes brushes, const QWidget *widget) const;
    /// Draws the arrow of a tool button by \a style in \a rect. Sets the foreground brush in the
    /// palette of \a option and tints its icon, so that the label that is painted next from it
    /// matches the arrow.
    void drawToolButtonArrow(const QStyle *style, const QStyleOptionToolButton *option,
                             const QRect &rect, QPainter *painter, const QWidget *widget) const;
    /// Draws one button of a title bar in the rectangle of \a subControl, with the standard icon
    /// \a standardPixmap. A button that is not among the active sub-controls looks disabled.
    void drawTitleBarButton(QPainter *painter, const QStyleOptionTitleBar *option,
                            SubControl subControl, StandardPixmap standardPixmap,
                            const QWidget *widget) const;
    /// Returns \a option, which must be a ButtonOption, prepared for painting its label: its
    /// palette gets the foreground brush of the button, its icon the tint of that brush. It is
    /// the caller's option itself that is changed.
    template <typename ButtonOption>
    const ButtonOption *commonCallButtonText(const QStyleOption *option,
                                             const QWidget *widget) const;
    /// \}

    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl sc,
                         const QWidget *widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contentsSize,
                           const QWidget *widget) const override;

    /// Returns the theme's icon for \a sp. For SP_CustomBase that is the icon which the property
    /// "highlightedIcon" of \a widget names, in the theme's main colour.
    QIcon standardIcon(StandardPixmap sp, const QStyleOption *option = nullptr,
                       const QWidget *widget = nullptr) const override;
    QPixmap standardPixmap(StandardPixmap sp, const QStyleOption *option,
                           const QWidget *widget = nullptr) const override;
    /// Dims the disabled picture of a label; returns any other \a pixmap as it is.
    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap,
                                const QStyleOption *option) const override;
    /// Returns the icon that \a xpm shows in the text colours of \a palette.
    QIcon generateToolBarExpandButtonIcon(const char *const *xpm, const QPalette &palette) const;

    /// Returns the brush of light outlines in \a pal. The reference lives as long as \a pal.
    const QBrush &lightOutlineBrush(const QPalette &pal) const;
    /// Returns \a pal with lighter light and darker dark edges.
    QPalette generateShadeBorderPalette(const QPalette &pal) const;
    /// Returns \a pal with lighter light, darker middle and lighter dark edges.
    QPalette generateWinBorderPalette(const QPalette &pal) const;

    /// Returns the theme brush \a name, or \a name + "Disabled" unless \a enabled; no brush when
    /// the theme has none of that name.
    static QBrush getBrush(QString name, bool enabled);
    /// Returns the theme colour \a name, or \a name + "Disabled" unless \a enabled; an invalid
    /// colour when the theme has none of that name.
    static QColor getColor(QString name, bool enabled);
    /// Returns the brush of card borders. It is resolved once for the process.
    static const QBrush &getBorderBrush(bool enabled);
    /// Returns the brush of grooves. It is resolved once for the process.
    const QBrush &grooveBackgroundBrush(bool enabled) const;

    /// Classifies the face of a button: 0 at rest, 1 checked or pressed, 2 hovered.
    int getButtonBackgroundState(const QStyleOption &opt) const;
    /// Classifies a tab: 0 selected, 1 at rest or disabled, 2 hovered or focused by keyboard.
    int getTabBackgroundState(const QStyleOptionTab &opt) const;

    /// Tells whether Alt has been pressed in the window of \a w.
    bool hasSeenAlt(const QWidget *w) const;
    /// Tells whether Alt is held.
    bool altDown() const;

    /// Returns the brushes of the button, or of the button-like part of the input, that \a opt
    /// describes. The names of the brushes are composed from the state of \a opt and the dynamic
    /// properties of \a widget, which may be null.
    static ButtonBrushes buttonBrushes(const QStyleOption *opt, const QWidget *widget);

public Q_SLOTS:
    /// Sets the style's palette. An equal palette changes nothing.
    void setPalette(const QPalette &palette);

Q_SIGNALS:
    /// Tells that the style's palette has become \a palette.
    void paletteChanged(const QPalette &palette);

private:
    bool drawsTextsItself(bool enabled) const;

    class State;
    std::unique_ptr<State> m_state;
};

} // namespace TARN
