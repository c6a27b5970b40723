#include "style/families/SpinBoxSample.h"

#include <QtGui/QPainter>
#include <QtTest/QtTest>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

Q_DECLARE_METATYPE(QStyle::PrimitiveElement)

namespace {

constexpr QSize size(40, 40);

QStyleOption arrow(const QRect &rect)
{
    QStyleOption option;
    option.rect = rect;
    option.state = QStyle::State_Enabled;
    option.palette.setColor(QPalette::ButtonText, Qt::red);
    return option;
}

} // namespace

/// The arrows of spin boxes, as the style paints them when it paints everything.
class SpinArrowPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void color_data();
    void color();
    void inTheMiddle_data();
    void inTheMiddle();
    void pointTwoWays();
    void sameOnEveryPainter();
    void ofTheButtons_data();
    void ofTheButtons();

private:
    PaintTheme m_theme;
    CallRecorder m_recorder;
};

void SpinArrowPaintTest::color_data()
{
    QTest::addColumn<QStyle::PrimitiveElement>("element");
    QTest::newRow("up") << QStyle::PE_IndicatorSpinUp;
    QTest::newRow("down") << QStyle::PE_IndicatorSpinDown;
}

void SpinArrowPaintTest::color()
{
    QFETCH(QStyle::PrimitiveElement, element);
    QStyleOption option = arrow(QRect(QPoint(), size));
    QVERIFY(containsColor(m_recorder.picture(element, option, nullptr, size), Qt::red));
    option.palette.setColor(QPalette::ButtonText, Qt::blue);
    const QImage blue = m_recorder.picture(element, option, nullptr, size);
    QVERIFY(containsColor(blue, Qt::blue));
    QVERIFY(!containsColor(blue, Qt::red));
}

void SpinArrowPaintTest::inTheMiddle_data()
{
    QTest::addColumn<QStyle::PrimitiveElement>("element");
    QTest::addColumn<QRect>("rect");
    for (const auto element : {QStyle::PE_IndicatorSpinUp, QStyle::PE_IndicatorSpinDown}) {
        QTest::addRow("%d, usual", int(element)) << element << QRect(10, 10, 14, 12);
        QTest::addRow("%d, wide", int(element)) << element << QRect(4, 10, 30, 10);
        QTest::addRow("%d, small", int(element)) << element << QRect(10, 10, 6, 6);
    }
}

void SpinArrowPaintTest::inTheMiddle()
{
    QFETCH(QStyle::PrimitiveElement, element);
    QFETCH(QRect, rect);
    const QRect painted = paintedRect(m_recorder.picture(element, arrow(rect), nullptr, size));
    QVERIFY(!painted.isEmpty());
    QVERIFY(rect.contains(painted));
    const QPoint shift = painted.center() - rect.center();
    QVERIFY(qAbs(shift.x()) <= 1);
    QVERIFY(qAbs(shift.y()) <= 1);
}

void SpinArrowPaintTest::pointTwoWays()
{
    const QStyleOption option = arrow(QRect(10, 10, 16, 16));
    const QImage up = m_recorder.picture(QStyle::PE_IndicatorSpinUp, option, nullptr, size);
    const QImage down = m_recorder.picture(QStyle::PE_IndicatorSpinDown, option, nullptr, size);
    QVERIFY(up != down);
    const QRect both = paintedRect(up) | paintedRect(down);
    QVERIFY(areAlike(up.copy(both), down.copy(both).mirrored()));
}

/// Where pictures cannot be copied, the arrow is drawn, and looks the same.
void SpinArrowPaintTest::sameOnEveryPainter()
{
    const QStyleOption option = arrow(QRect(10, 10, 16, 16));
    const auto painted = [&](qreal scale, QPainter::CompositionMode mode) {
        QImage image(size * 2, QImage::Format_RGB32);
        image.fill(Qt::black);
        image.setDevicePixelRatio(scale);
        QPainter painter(&image);
        painter.setCompositionMode(mode);
        m_recorder.style().drawPrimitive(QStyle::PE_IndicatorSpinUp, &option, &painter);
        return image;
    };
    for (const qreal scale : {1.0, 1.25, 1.5, 2.0}) {
        // Upon what is opaque, both modes are the same to the painter.
        QVERIFY(areAlike(painted(scale, QPainter::CompositionMode_SourceOver),
                         painted(scale, QPainter::CompositionMode_SourceAtop)));
    }
}

void SpinArrowPaintTest::ofTheButtons_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("expected");
    const int enabled = QStyle::State_Enabled;
    QTest::newRow("at rest") << enabled << text("InputUncheckedForegroundBrush");
    QTest::newRow("hovered") << (enabled | QStyle::State_MouseOver)
                             << text("ButtonUncheckedHoverForegroundBrush");
    QTest::newRow("pressed") << (enabled | QStyle::State_MouseOver | QStyle::State_Sunken)
                             << text("ButtonUncheckedPressedForegroundBrush");
    QTest::newRow("disabled") << 0 << text("InputUncheckedForegroundBrushDisabled");
}

void SpinArrowPaintTest::ofTheButtons()
{
    QFETCH(int, state);
    QFETCH(QString, expected);
    QStyleOptionSpinBox option = spinBoxOption(QStyle::State(state));
    option.activeSubControls = QStyle::SC_SpinBoxUp;
    const QImage picture =
        m_recorder.picture(QStyle::CC_SpinBox, option, nullptr, option.rect.size());
    const QRect button =
        m_recorder.subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, nullptr);
    QVERIFY(m_theme.shows(picture.copy(button), expected));
}

QTEST_MAIN(SpinArrowPaintTest)
#include "SpinArrowPaintTest.moc"
