#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleOption>

#include <support/Components.h>
#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/themes/PaintTheme.h>

using TARN::BaseStyle;
using TARN::Components::ButtonGroupWidget;

namespace {

constexpr int vertical = 2;
constexpr int horizontal = 1;

constexpr QSize pictureSize(90, 90);
const QColor frameColor(Qt::white);
const QColor faceColor(Qt::red);
const QColor dotColor(Qt::green);

QPen framePen()
{
    return QPen(frameColor, 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
}

enum Corner { TopLeft = 1, TopRight = 2, BottomRight = 4, BottomLeft = 8 };

/// Tells whether the colours are the same but for the rounding of an antialiased edge.
bool isNear(const QColor &color, const QColor &other)
{
    constexpr int rounding = 8;
    return qAbs(color.red() - other.red()) <= rounding &&
           qAbs(color.green() - other.green()) <= rounding &&
           qAbs(color.blue() - other.blue()) <= rounding;
}

/// Tells whether a corner reaches into its pixel; of a round corner, nothing does.
bool isStraight(const QImage &picture, const QPoint &corner)
{
    return picture.pixelColor(corner) != QColor(Qt::black);
}

/// A proxy between whose radio buttons and labels there is more space.
class WideRecorder : public CallRecorder
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        return metric == PM_RadioButtonLabelSpacing
                   ? 20
                   : CallRecorder::pixelMetric(metric, option, widget);
    }
};

} // namespace

/// The faces of the buttons of a group.
class ButtonGroupPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void straightCorners_data();
    void straightCorners();
    void hiddenButton();
    void panelOfAGroupedButton();
    void panelElsewhere();
    void pill();
    void pillOfAHiddenButton();
    void dots_data();
    void dots();
    void dotsAreAsLargeAsTheProxySays();
    void withoutWidget();

private:
    PaintTheme m_theme{PaintTheme::Radii{8, 8, 8, 8}};
    CallRecorder m_recorder;

    void setUp(ButtonGroupWidget &group, QPushButton &button, int orientation, int count, int index,
               bool isWorkflow) const
    {
        group.setProperty("orientation", orientation);
        group.setProperty("ButtonGroupWidget_VisibleCount", count);
        group.setProperty("ButtonGroupWidget_Workflow", isWorkflow);
        button.setParent(&group);
        button.setProperty("Button_VisibleIndex", index);
    }

    QImage grouped(const CallRecorder &recorder, const QRectF &rect, const QWidget *widget) const
    {
        QImage picture(pictureSize, QImage::Format_RGB32);
        picture.fill(Qt::black);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(framePen());
        painter.setBrush(faceColor);
        QStyleOptionButton option;
        option.rect = rect.toRect();
        option.state = QStyle::State_Enabled;
        BaseStyle::ButtonBrushes brushes;
        brushes.border = dotColor;
        recorder.style().drawButtonGroup(rect, &painter, &option, 8, brushes, widget);
        return picture;
    }
};

void ButtonGroupPaintTest::straightCorners_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("corners");

    QTest::newRow("horizontal, single") << horizontal << 1 << 0 << 0;
    QTest::newRow("vertical, single") << vertical << 1 << 0 << 0;
    QTest::newRow("single, of another index") << horizontal << 1 << 3 << 0;
    QTest::newRow("single and hidden") << horizontal << 1 << -1 << 0;
    QTest::newRow("horizontal, first") << horizontal << 3 << 0 << (TopRight | BottomRight);
    QTest::newRow("horizontal, last") << horizontal << 3 << 2 << (TopLeft | BottomLeft);
    QTest::newRow("vertical, first") << vertical << 3 << 0 << (BottomRight | BottomLeft);
    QTest::newRow("vertical, last") << vertical << 3 << 2 << (TopLeft | TopRight);
    QTest::newRow("neither orientation, first") << 0 << 3 << 0 << (BottomRight | BottomLeft);
    QTest::newRow("horizontal, middle") << horizontal << 3 << 1 << 15;
    QTest::newRow("vertical, middle") << vertical << 3 << 1 << 15;
    QTest::newRow("beyond the last") << horizontal << 3 << 7 << 15;
}

void ButtonGroupPaintTest::straightCorners()
{
    QFETCH(int, orientation);
    QFETCH(int, count);
    QFETCH(int, index);
    QFETCH(int, corners);
    ButtonGroupWidget group;
    QPushButton button;
    setUp(group, button, orientation, count, index, false);
    const QImage picture = grouped(m_recorder, QRectF(4.5, 4.5, 79, 59), &button);
    button.setParent(nullptr);

    int straight = 0;
    straight |= isStraight(picture, {4, 4}) ? TopLeft : 0;
    straight |= isStraight(picture, {83, 4}) ? TopRight : 0;
    straight |= isStraight(picture, {83, 63}) ? BottomRight : 0;
    straight |= isStraight(picture, {4, 63}) ? BottomLeft : 0;
    QCOMPARE(straight, corners);
    QCOMPARE(picture.pixelColor(40, 30), faceColor);
    QVERIFY(isNear(picture.pixelColor(40, 4), frameColor));
}

void ButtonGroupPaintTest::hiddenButton()
{
    ButtonGroupWidget group;
    QPushButton button;
    setUp(group, button, horizontal, 3, -1, false);
    const QImage picture = grouped(m_recorder, QRectF(4.5, 4.5, 79, 59), &button);
    button.setParent(nullptr);

    QImage blank(pictureSize, QImage::Format_RGB32);
    blank.fill(Qt::black);
    QCOMPARE(picture, blank);
}

void ButtonGroupPaintTest::panelOfAGroupedButton()
{
    ButtonGroupWidget group;
    auto *button = new QPushButton;
    setUp(group, *button, horizontal, 3, 1, false);
    QStyleOptionButton option;
    option.rect = QRect(4, 4, 80, 60);
    option.state = QStyle::State_Enabled;
    const QImage picture =
        m_recorder.picture(QStyle::PE_PanelButtonCommand, option, button, pictureSize);

    QVERIFY(isStraight(picture, {4, 4}));
    QVERIFY(isStraight(picture, {83, 63}));
    QCOMPARE(m_theme.nameAt(picture, {4, 30}), text("ButtonUncheckedBorderBrush"));
    QCOMPARE(m_theme.nameAt(picture, {40, 30}), text("ButtonUncheckedBackgroundBrush"));
}

void ButtonGroupPaintTest::panelElsewhere()
{
    QWidget parent;
    parent.setProperty("ButtonGroupWidget_VisibleCount", 3);
    auto *button = new QPushButton(&parent);
    button->setProperty("Button_VisibleIndex", 1);
    QStyleOptionButton option;
    option.rect = QRect(4, 4, 80, 60);
    option.state = QStyle::State_Enabled;
    const QImage picture =
        m_recorder.picture(QStyle::PE_PanelButtonCommand, option, button, pictureSize);

    QVERIFY(!isStraight(picture, {4, 4}));
}

void ButtonGroupPaintTest::pill()
{
    ButtonGroupWidget group;
    QPushButton button;
    setUp(group, button, horizontal, 3, 0, true);
    const QImage picture = grouped(m_recorder, QRectF(0.5, 0.5, 80, 30), &button);
    button.setParent(nullptr);

    // Half of the spacing of 6 is left at each side, and nothing is filled.
    QVERIFY(isNear(picture.pixelColor(40, 3), frameColor));
    QVERIFY(isNear(picture.pixelColor(40, 27), frameColor));
    QVERIFY(picture.pixelColor(3, 15) != QColor(Qt::black));
    QCOMPARE(picture.pixelColor(2, 15), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(40, 15), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(40, 2), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(4, 4), QColor(Qt::black));
}

void ButtonGroupPaintTest::pillOfAHiddenButton()
{
    ButtonGroupWidget group;
    QPushButton button;
    setUp(group, button, horizontal, 3, -1, true);
    const QImage picture = grouped(m_recorder, QRectF(0.5, 0.5, 80, 30), &button);
    button.setParent(nullptr);

    QVERIFY(isNear(picture.pixelColor(40, 3), frameColor));
}

void ButtonGroupPaintTest::dots_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("leading");
    QTest::addColumn<bool>("trailing");

    for (const int orientation : {horizontal, vertical}) {
        const QByteArray name = orientation == horizontal ? "horizontal, " : "vertical, ";
        QTest::newRow((name + "first").constData()) << orientation << 3 << 0 << false << true;
        QTest::newRow((name + "middle").constData()) << orientation << 3 << 1 << true << true;
        QTest::newRow((name + "last").constData()) << orientation << 3 << 2 << true << false;
        QTest::newRow((name + "hidden").constData()) << orientation << 3 << -1 << false << false;
        QTest::newRow((name + "single").constData()) << orientation << 1 << 0 << false << true;
    }
}

void ButtonGroupPaintTest::dots()
{
    QFETCH(int, orientation);
    QFETCH(int, count);
    QFETCH(int, index);
    QFETCH(bool, leading);
    QFETCH(bool, trailing);
    ButtonGroupWidget group;
    QPushButton button;
    setUp(group, button, orientation, count, index, true);
    const bool isHorizontal = orientation == horizontal;
    const QSizeF size = isHorizontal ? QSizeF(80, 30) : QSizeF(30, 80);
    const QImage picture = grouped(m_recorder, QRectF(QPointF(0.5, 0.5), size), &button);
    button.setParent(nullptr);

    const auto dotAt = [&](int along) {
        const QPoint pixel = isHorizontal ? QPoint(along, 15) : QPoint(15, along);
        return isNear(picture.pixelColor(pixel), dotColor);
    };
    QCOMPARE(dotAt(3), leading);
    QCOMPARE(dotAt(77), trailing);
}

void ButtonGroupPaintTest::dotsAreAsLargeAsTheProxySays()
{
    const WideRecorder recorder;
    ButtonGroupWidget group;
    QPushButton button;
    setUp(group, button, horizontal, 3, 1, true);
    button.setEnabled(false);
    const QImage picture = grouped(recorder, QRectF(0.5, 0.5, 80, 60), &button);
    button.setParent(nullptr);

    QImage expected(pictureSize, QImage::Format_RGB32);
    expected.fill(Qt::black);
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(framePen());
    painter.drawRoundedRect(QRectF(10.5, 10.5, 60, 40), 20, 20);
    // The rings are in the colour of the ground, also of disabled groups.
    painter.setPen(QPen(m_theme.brush(text("ListBackgroundBrush")), 1));
    painter.setBrush(dotColor);
    painter.drawEllipse(QRectF(0.5, 20.5, 20, 20));
    painter.drawEllipse(QRectF(60.5, 20.5, 20, 20));
    QCOMPARE(picture, expected);
}

void ButtonGroupPaintTest::withoutWidget()
{
    // What nobody describes is the first of a vertical group.
    const QImage picture = grouped(m_recorder, QRectF(4.5, 4.5, 79, 59), nullptr);

    QVERIFY(!isStraight(picture, {4, 4}));
    QVERIFY(isStraight(picture, {4, 63}));
}

QTEST_MAIN(ButtonGroupPaintTest)
#include "ButtonGroupPaintTest.moc"
