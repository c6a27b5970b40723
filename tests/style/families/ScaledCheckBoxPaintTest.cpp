#include <style/BaseStyle.h>

#include <QtCore/QtMath>
#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QCheckBox>

#include <support/Text.h>
#include <support/themes/PaintTheme.h>

namespace {

constexpr QSize size(14, 14);
constexpr QSize switchSize(28, 15);
constexpr qreal scales[] = {1.0, 1.25, 1.5, 1.75, 2.0};

QStyleOptionButton option(const QSize &optionSize, QStyle::State state)
{
    QStyleOptionButton button;
    button.rect = QRect(QPoint(), optionSize);
    button.state = state;
    return button;
}

/// Returns the picture of an indicator on a screen of that \a scale.
QImage scaledPicture(const QStyleOptionButton &option, qreal scale, const QWidget *widget)
{
    const TARN::BaseStyle style;
    const QSizeF pixels = QSizeF(option.rect.size()) * scale;
    QImage picture(qCeil(pixels.width()), qCeil(pixels.height()), QImage::Format_RGB32);
    picture.fill(Qt::black);
    picture.setDevicePixelRatio(scale);
    QPainter painter(&picture);
    style.drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter, widget);
    return picture;
}

} // namespace

/// Check boxes and switches on screens of several scales.
class ScaledCheckBoxPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void outlineOfPressedOneHasNoGap();
    void knobIsAsWideAsHigh();
};

void ScaledCheckBoxPaintTest::outlineOfPressedOneHasNoGap()
{
    const PaintTheme theme;
    const QStyleOptionButton pressed = option(size, QStyle::State_Enabled | QStyle::State_Sunken);
    for (const qreal scale : scales) {
        const QImage picture = scaledPicture(pressed, scale, nullptr);
        const int x = picture.width() / 2;
        int y = 0;
        while (theme.nameAt(picture, {x, y}) == text("ControlBorderBrush")) {
            ++y;
        }
        QVERIFY(y >= 2);
        // Half of a pixel may be left over.
        for (++y; y < picture.height() / 2; ++y) {
            QCOMPARE(theme.nameAt(picture, {x, y}), text("ControlBackgroundBrush"));
        }
    }
}

void ScaledCheckBoxPaintTest::knobIsAsWideAsHigh()
{
    const PaintTheme theme;
    QCheckBox checkBox;
    checkBox.setProperty("switch", true);
    for (const qreal scale : scales) {
        for (const QStyle::State state : {QStyle::State_Off, QStyle::State_On}) {
            const QImage picture =
                scaledPicture(option(switchSize, QStyle::State_Enabled | state), scale, &checkBox);
            QRect knob;
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x) {
                    if (theme.nameAt(picture, {x, y}).endsWith(text("EllipseBrush"))) {
                        knob |= QRect(x, y, 1, 1);
                    }
                }
            }
            QVERIFY(knob.isValid());
            QCOMPARE(knob.width(), knob.height());
        }
    }
}

QTEST_MAIN(ScaledCheckBoxPaintTest)
#include "ScaledCheckBoxPaintTest.moc"
