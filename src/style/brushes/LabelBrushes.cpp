#include "style/brushes/LabelBrushes.h"

#include "catalogue/Names.h"
#include "resources/ThemeColorHelper.h"
#include "resources/kept/KeptValue.h"
#include "style/asking/OptionState.h"
#include "style/brushes/ButtonBrushChoice.h"
#include "style/drawing/Palettes.h"

#include <array>

namespace TARN {

namespace {

QBrush textBrush(bool enabled)
{
    const QColor &color = themeColor(ColorName::ForegroundColor, enabled);
    return color.isValid() ? QBrush(color) : QBrush(Qt::NoBrush);
}

/// The icons that options were given lately in the colour of their text: more than there are
/// buttons between the bevel and the label of one.
class GivenIcons
{
public:
    void add(const QIcon &icon) { slot(icon) = icon.cacheKey(); }
    bool has(const QIcon &icon) { return slot(icon) == icon.cacheKey(); }

private:
    /// The upper half of an icon's key counts icons.
    qint64 &slot(const QIcon &icon)
    {
        return m_keys[(quint64(icon.cacheKey()) >> 32U) % m_keys.size()];
    }

    std::array<qint64, 64> m_keys{};
};

GivenIcons &givenIcons()
{
    static GivenIcons icons;
    return icons;
}

} // namespace

QBrush labelBrush(const QBrush &foreground, bool enabled)
{
    if (foreground.style() != Qt::NoBrush) {
        return foreground;
    }
    static ProcessCached<QBrush> brush([] { return textBrush(true); });
    static ProcessCached<QBrush> disabledBrush([] { return textBrush(false); });
    return enabled ? brush.value() : disabledBrush.value();
}

QPalette labelPalette(const QStyleOption &option, const QBrush &brush)
{
    QPalette palette = option.palette;
    if (!isEnabled(option)) {
        palette.setCurrentColorGroup(QPalette::Disabled);
    }
    return paletteWith(palette, QPalette::ButtonText, brush);
}

template <typename ButtonOption>
void useForeground(ButtonOption &option, const QBrush &brush)
{
    if (brush.style() == Qt::NoBrush) {
        return;
    }
    option.palette = paletteWith(option.palette, QPalette::ButtonText, brush);
    option.palette = paletteWith(option.palette, QPalette::WindowText, brush);
    if (!option.icon.isNull()) {
        option.icon = ThemeColorHelper::getModifiedIconWithForegroundBrush(option.icon, brush);
        givenIcons().add(option.icon);
    }
}

template void useForeground(QStyleOptionButton &option, const QBrush &brush);
template void useForeground(QStyleOptionToolButton &option, const QBrush &brush);

template <typename ButtonOption>
const ButtonOption *preparedForLabel(const QStyleOption *option, const QWidget *widget)
{
    auto *button = const_cast<ButtonOption *>(static_cast<const ButtonOption *>(option));
    useForeground(*button, buttonBrushes(option, widget).foreground);
    return button;
}

template const QStyleOptionButton *preparedForLabel<QStyleOptionButton>(const QStyleOption *option,
                                                                        const QWidget *widget);

bool isPreparedForLabel(const QStyleOptionButton &option, const QBrush &brush)
{
    // An application's own text may have that very brush.
    return option.palette.isBrushSet(option.palette.currentColorGroup(), QPalette::ButtonText) &&
           option.palette.buttonText() == brush && givenIcons().has(option.icon);
}

} // namespace TARN
