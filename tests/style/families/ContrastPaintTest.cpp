#include <common_utils/Contrast.h>
#include <style/BaseStyle.h>
#include <theme/BaseTheme.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

#include <support/Text.h>

using TARN::BaseStyle;

namespace {

constexpr QSize size(60, 40);
constexpr QRect room(10, 8, 40, 24);

/// How much a glyph has to stand out from its ground, and how much of that what is disabled may
/// keep.
constexpr double glyphContrast = 3;
constexpr double highGlyphContrast = 4.5;
constexpr double disabledContrast = 2;
constexpr double disabledShare = 2.0 / 3;

using Paint = void (*)(const QStyle &style, QPainter &painter, const QWidget &widget);

template <typename Option>
Option optionFor(const QWidget &widget)
{
    Option option;
    option.initFrom(&widget);
    option.rect = room;
    return option;
}

template <QStyle::PrimitiveElement element, typename Option = QStyleOption>
void primitive(const QStyle &style, QPainter &painter, const QWidget &widget)
{
    const auto option = optionFor<Option>(widget);
    style.drawPrimitive(element, &option, &painter, &widget);
}

template <QStyle::ControlElement element, typename Option = QStyleOption>
void control(const QStyle &style, QPainter &painter, const QWidget &widget)
{
    const auto option = optionFor<Option>(widget);
    style.drawControl(element, &option, &painter, &widget);
}

template <int subControl>
void dial(const QStyle &style, QPainter &painter, const QWidget &widget)
{
    auto option = optionFor<QStyleOptionSlider>(widget);
    option.rect = QRect(QPoint(), QSize(41, 41));
    option.maximum = 100;
    option.sliderPosition = 100;
    option.tickInterval = 50;
    option.upsideDown = true;
    option.subControls = QStyle::SubControls(subControl);
    style.drawComplexControl(QStyle::CC_Dial, &option, &painter, &widget);
}

void openTab(const QStyle &style, QPainter &painter, const QWidget &widget)
{
    auto option = optionFor<QStyleOptionToolBox>(widget);
    option.state |= QStyle::State_Selected;
    style.drawControl(QStyle::CE_ToolBoxTabShape, &option, &painter, &widget);
}

void groupTitle(const QStyle &style, QPainter &painter, const QWidget &widget)
{
    auto option = optionFor<QStyleOptionGroupBox>(widget);
    option.text = QString(2, QChar(0x2588));
    option.subControls = QStyle::SC_GroupBoxLabel;
    style.drawComplexControl(QStyle::CC_GroupBox, &option, &painter, &widget);
}

struct Row
{
    const char *name;
    const char *ground; ///< what the element lies on
    Paint paint;
};

const Row rows[] = {
    {"handle of a dial", "BackgroundBrush", dial<QStyle::SC_DialHandle>},
    {"filled part of a dial", "BackgroundBrush", dial<QStyle::SC_DialGroove>},
    {"notches of a dial", "BackgroundBrush", dial<QStyle::SC_DialTickmarks>},
    {"title of a group box", "BackgroundBrush", groupTitle},
    {"open tab of a tool box", "BackgroundUpLevel1Brush", openTab},
    {"size grip", "BackgroundSubLevel1Brush", control<QStyle::CE_SizeGrip, QStyleOptionSizeGrip>},
    {"handle of a dock", "BackgroundBrush", primitive<QStyle::PE_IndicatorDockWidgetResizeHandle>},
    {"torn bar", "TabBackgroundBrush", primitive<QStyle::PE_IndicatorTabTear, QStyleOptionTab>},
    {"tear-off", "BackgroundSubLevel1Brush", control<QStyle::CE_MenuTearoff, QStyleOptionMenuItem>},
    {"scroller of a menu", "BackgroundSubLevel1Brush",
     control<QStyle::CE_MenuScroller, QStyleOptionMenuItem>},
    {"check mark", "BackgroundSubLevel1Brush", primitive<QStyle::PE_IndicatorMenuCheckMark>},
    {"arrow up", "InputUncheckedBackgroundBrush", primitive<QStyle::PE_IndicatorSpinUp>},
    {"end of a scroll bar", "GrooveBackgroundBrush",
     control<QStyle::CE_ScrollBarLast, QStyleOptionSlider>},
};

/// Returns how much the pixel of \a picture that stands out most does so from \a ground.
double highestContrast(const QImage &picture, const QColor &ground)
{
    double highest = 1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            highest = qMax(highest, TARN::Helpers::contrastRatio(picture.pixelColor(x, y), ground));
        }
    }
    return highest;
}

/// The window has one ground, be it enabled or not.
QColor groundOf(const Row &row, bool enabled)
{
    const QBrush brush = BaseStyle::getBrush(text(row.ground), enabled);
    return (brush.style() == Qt::NoBrush ? BaseStyle::getBrush(text(row.ground), true) : brush)
        .color();
}

double contrastOf(const QStyle &style, const Row &row, bool enabled)
{
    const QColor ground = groundOf(row, enabled);
    QWidget widget;
    widget.setEnabled(enabled);
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(ground);
    QPainter painter(&picture);
    row.paint(style, painter, widget);
    painter.end();
    return highestContrast(picture, ground);
}

} // namespace

/// What the style paints of its own in the complete mode is seen in every theme.
class ContrastPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Each in a process of its own: the style keeps values of the theme.
    void dark() { checkTheme(text("Dark"), glyphContrast); }
    void light() { checkTheme(text("Light"), glyphContrast); }
    void highContrast() { checkTheme(text("HighContrast"), highGlyphContrast); }

private:
    static void checkTheme(const QString &theme, double leastContrast);
};

void ContrastPaintTest::checkTheme(const QString &theme, double leastContrast)
{
    qApp->setProperty("appCompleteTheming", true);
    TARN::BaseTheme(text(MOX_SHIPPED_THEMES "/") + theme).customize(qApp);
    const BaseStyle style;
    for (const Row &row : rows) {
        const double enabled = contrastOf(style, row, true);
        const double disabled = contrastOf(style, row, false);
        const QString found =
            text("%1: %2, disabled %3").arg(text(row.name)).arg(enabled).arg(disabled);
        QVERIFY2(enabled >= leastContrast, qPrintable(found));
        QVERIFY2(disabled >= disabledContrast, qPrintable(found));
        QVERIFY2(disabled <= disabledShare * enabled, qPrintable(found));
    }
}

QTEST_MAIN(ContrastPaintTest)
#include "ContrastPaintTest.moc"
