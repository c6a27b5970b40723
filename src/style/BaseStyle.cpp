#include "style/BaseStyle.h"

#include "catalogue/Names.h"
#include "catalogue/Words.h"
#include "resources/ThemeResources.h"
#include "resources/kept/ProcessCache.h"
#include "style/ComboBoxDefaultItemDelegate.h"
#include "style/drawing/Drawing.h"
#include "style/families/item_views/ItemViews.h"
#include "style/tables/Geometry.h"
#include "style/tables/Metrics.h"
#include "style/tables/Painting.h"
#include "style/tables/Polishing.h"
#include "style/text/SingleLine.h"
#include "style/watching/UnderlinedKeys.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStyleOptionTab>
#include <QtWidgets/QWidget>

#include <utility>

namespace TARN {

namespace {

/// How much the edges of the border palettes differ from those of the palette they are made of.
constexpr int edgeContrast = 115;

QString variableName(QString name, bool enabled)
{
    if (!enabled) {
        name += Words::disabled;
    }
    return name;
}

/// Returns the brush \a Name, resolved once for each state. Each instance of this template keeps
/// the two brushes of one name.
template <BrushName Name>
const QBrush &keptBrush(bool enabled)
{
    static ProcessCached<QBrush> enabledBrush([] { return themeBrush(Name, true); });
    static ProcessCached<QBrush> disabledBrush([] { return themeBrush(Name, false); });
    return enabled ? enabledBrush.value() : disabledBrush.value();
}

/// The combo boxes that use a delegate of \a style get one of their own.
void replaceDelegates(const BaseStyle &style)
{
    const auto delegates =
        style.findChildren<ComboBoxDefaultItemDelegate *>(QString(), Qt::FindDirectChildrenOnly);
    for (const ComboBoxDefaultItemDelegate *delegate : delegates) {
        QComboBox *combo = delegate->comboBox();
        if (combo && combo->itemDelegate() == delegate) {
            combo->setItemDelegate(new ComboBoxDefaultItemDelegate(combo, combo));
        }
    }
}

} // namespace

BaseStyle::BaseStyle()
    : QProxyStyle(QStringLiteral("fusion"))
    , m_palette(baseStyle()->standardPalette())
    , m_expanderHeaderBrush(themeBrush(BrushName::ExpanderHeaderBrush, true))
    , m_backgroundBrush(themeBrush(BrushName::BackgroundBrush, true))
{
}

BaseStyle::~BaseStyle()
{
    replaceDelegates(*this);
}

const QPalette &BaseStyle::getPalette() const
{
    return m_palette;
}

void BaseStyle::setPalette(const QPalette &palette)
{
    if (palette == m_palette) {
        return;
    }
    m_palette = palette;
    Q_EMIT paletteChanged(m_palette);
}

QPalette BaseStyle::standardPalette() const
{
    return m_palette;
}

void BaseStyle::polish(QPalette &pal)
{
    pal = m_palette;
}

void BaseStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    polishWidget(*this, *widget);
}

void BaseStyle::unpolish(QWidget *widget)
{
    QProxyStyle::unpolish(widget);
    unpolishWidget(*widget);
}

void BaseStyle::polish(QApplication *application)
{
    QProxyStyle::polish(application);
}

void BaseStyle::unpolish(QApplication *application)
{
    QProxyStyle::unpolish(application);
}

int BaseStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                           const QWidget *widget) const
{
    const std::optional<int> own = pixelMetricOf(metric, widget);
    return own ? *own : QProxyStyle::pixelMetric(metric, option, widget);
}

int BaseStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                         QStyleHintReturn *returnData) const
{
    if (const std::optional<int> own = styleHintOf(hint, option, returnData)) {
        return *own;
    }
    const int answer = QProxyStyle::styleHint(hint, option, widget, returnData);
    // What nobody sees has nothing to hide.
    if (hint == SH_UnderlineShortcut && answer != 0 && widget && widget->isVisible()) {
        return areMnemonicsUnderlined(*this, *widget) ? answer : 0;
    }
    return answer;
}

void BaseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                              QPainter *painter, const QWidget *widget) const
{
    if (!option || !painter) {
        return;
    }
    const PaintRule rule = paintRule(paintedPrimitives(), element);
    if (!rule || !paint(rule, *this, {option, painter, widget})) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void BaseStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const
{
    if (!option || !painter) {
        return;
    }
    const PaintRule rule = paintRule(paintedControls(), element);
    if (!rule || !paint(rule, *this, {option, painter, widget})) {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void BaseStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                   QPainter *painter, const QWidget *widget) const
{
    if (!option || !painter) {
        return;
    }
    const PaintRule rule = paintRule(paintedComplexControls(), control);
    if (!rule || !paint(rule, *this, {option, painter, widget})) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

void BaseStyle::drawItemText(QPainter *painter, const QRect &rect, int flags,
                             const QPalette &palette, bool enabled, const QString &text,
                             QPalette::ColorRole textRole) const
{
    if (enabled) {
        drawText(painter, rect, flags, palette, enabled, text, textRole);
        return;
    }
    const QPalette disabled =
        paletteWith(palette, textRole, palette.color(QPalette::Disabled, textRole));
    drawText(painter, rect, flags, disabled, enabled, text, textRole);
}

/// Draws what the base style draws, in most cases without finding the glyphs again.
void BaseStyle::drawText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette,
                         bool enabled, const QString &text, QPalette::ColorRole textRole) const
{
    const bool isPlain = enabled || (proxy()->styleHint(SH_DitherDisabledText) == 0 &&
                                     proxy()->styleHint(SH_EtchDisabledText) == 0);
    const QPen pen = painter->pen();
    if (textRole != QPalette::NoRole) {
        painter->setPen(outlinePen(palette.brush(textRole)));
    }
    const bool isDrawn = isPlain && drawLabelText(*painter, rect, flags, text);
    painter->setPen(pen);
    if (!isDrawn) {
        QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, textRole);
    }
}

void BaseStyle::drawItemPixmap(QPainter *painter, const QRect &rect, int alignment,
                               const QPixmap &pixmap) const
{
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QProxyStyle::drawItemPixmap(painter, rect, alignment, pixmap);
}

QRect BaseStyle::subElementRect(SubElement element, const QStyleOption *option,
                                const QWidget *widget) const
{
    ItemViews::listViewPadding(*this);
    const SubElementRule rule = subElementRule(element);
    if (rule && !option) {
        // The base style does not look whether there is one.
        return {};
    }
    return rule ? rule(*this, {element, option, widget})
                : QProxyStyle::subElementRect(element, option, widget);
}

QRect BaseStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                SubControl sc, const QWidget *widget) const
{
    const SubControlRule rule = subControlRule(control);
    if (rule && !option) {
        return {};
    }
    return rule ? rule(*this, {control, option, sc, widget})
                : QProxyStyle::subControlRect(control, option, sc, widget);
}

QSize BaseStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                  const QSize &contentsSize, const QWidget *widget) const
{
    const ContentsRule rule = option ? contentsRule(type) : nullptr;
    return rule ? rule(*this, {type, option, contentsSize, widget})
                : QProxyStyle::sizeFromContents(type, option, contentsSize, widget);
}

const QBrush &BaseStyle::lightOutlineBrush(const QPalette &pal) const
{
    return pal.brush(QPalette::Current, QPalette::Midlight);
}

QPalette BaseStyle::generateShadeBorderPalette(const QPalette &pal) const
{
    QPalette result = pal;
    result.setBrush(QPalette::All, QPalette::Light, pal.light().color().lighter(edgeContrast));
    result.setBrush(QPalette::All, QPalette::Dark, pal.dark().color().darker(edgeContrast));
    return result;
}

QPalette BaseStyle::generateWinBorderPalette(const QPalette &pal) const
{
    QPalette result = pal;
    result.setBrush(QPalette::All, QPalette::Light, pal.light().color().lighter(edgeContrast));
    result.setBrush(QPalette::All, QPalette::Midlight, pal.midlight().color().darker(edgeContrast));
    // The dark edge is lightened too: a window's border is softer than a shade.
    result.setBrush(QPalette::All, QPalette::Dark, pal.dark().color().lighter(edgeContrast));
    return result;
}

QBrush BaseStyle::getBrush(QString name, bool enabled)
{
    return ThemeResources::getBrush(variableName(std::move(name), enabled));
}

QColor BaseStyle::getColor(QString name, bool enabled)
{
    return ThemeResources::getColor(variableName(std::move(name), enabled));
}

const QBrush &BaseStyle::getBorderBrush(bool enabled)
{
    return keptBrush<BrushName::CardBorderBrush>(enabled);
}

const QBrush &BaseStyle::grooveBackgroundBrush(bool enabled) const
{
    return keptBrush<BrushName::GrooveBackgroundBrush>(enabled);
}

int BaseStyle::getButtonBackgroundState(const QStyleOption &opt) const
{
    const bool checked = opt.state.testFlag(State_On);
    const bool pressed = opt.state.testFlag(State_Sunken);
    const int restingState = checked || pressed ? 1 : 0;
    if (!opt.state.testFlag(State_Enabled) || !opt.state.testFlag(State_MouseOver) || pressed) {
        return restingState;
    }
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&opt);
    if (button && button->features.testFlag(QStyleOptionButton::Flat)) {
        return restingState;
    }
    return checked ? 1 : 2;
}

int BaseStyle::getTabBackgroundState(const QStyleOptionTab &opt) const
{
    if (opt.state.testFlag(State_Selected)) {
        return 0;
    }
    if (!opt.state.testFlag(State_Enabled)) {
        return 1;
    }
    const bool keyboardFocus =
        opt.state.testFlag(State_HasFocus) && opt.state.testFlag(State_KeyboardFocusChange);
    return opt.state.testFlag(State_MouseOver) || keyboardFocus ? 2 : 1;
}

bool BaseStyle::hasSeenAlt(const QWidget *w) const
{
    return w && m_seenAlt.contains(w->window());
}

bool BaseStyle::altDown() const
{
    return m_altDown;
}

} // namespace TARN
