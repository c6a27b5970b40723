#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleOption>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

namespace {

constexpr QStyle::State focusedByKeyboard =
    QStyle::State_Enabled | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
constexpr QSize pictureSize(40, 20);
constexpr QRect focusRect(4, 2, 30, 15);

QStyleOptionFocusRect focusOption(QStyle::State state)
{
    QStyleOptionFocusRect option;
    option.rect = focusRect;
    option.state = state;
    option.palette.setColor(QPalette::Text, Qt::white);
    return option;
}

} // namespace

/// The line around what has the focus.
class FocusRectPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dottedLineInTheTextColor();
    void followsTheColor();
    void onlyByKeyboard_data();
    void onlyByKeyboard();
    void hidden_data();
    void hidden();
    void needsItsOption();
    void leavesThePainterAlone();

private:
    PaintTheme m_theme;
    CallRecorder m_recorder;

    QImage painted(const QStyleOption &option, const QWidget *widget = nullptr)
    {
        return m_recorder.picture(QStyle::PE_FrameFocusRect, option, widget, pictureSize);
    }
};

void FocusRectPaintTest::dottedLineInTheTextColor()
{
    QImage expected = plainPicture(pictureSize);
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(0.5, 0.5);
    QPen pen(Qt::white, 0);
    pen.setDashPattern({2, 2});
    painter.setPen(pen);
    painter.drawRoundedRect(QRectF(4, 2, 29, 14), 1.0, 1.0);
    painter.end();
    QVERIFY(expected != plainPicture(pictureSize));

    QCOMPARE(painted(focusOption(focusedByKeyboard)), expected);
}

void FocusRectPaintTest::followsTheColor()
{
    QStyleOptionFocusRect option = focusOption(focusedByKeyboard);
    const QImage white = painted(option);
    option.palette.setColor(QPalette::Text, Qt::red);
    const QImage red = painted(option);

    QVERIFY(white != red);
    for (int x = focusRect.left(); x <= focusRect.right(); ++x) {
        const QColor pixel = red.pixelColor(x, focusRect.top());
        QCOMPARE(pixel.red(), white.pixelColor(x, focusRect.top()).red());
        QCOMPARE(pixel.green(), 0);
    }
}

void FocusRectPaintTest::onlyByKeyboard_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("isPainted");

    QTest::newRow("by mouse") << int(QStyle::State_Enabled | QStyle::State_HasFocus) << false;
    QTest::newRow("by keyboard") << int(focusedByKeyboard) << true;
    // Whether there is a focus at all, whoever asks for the line has found out.
    QTest::newRow("only the keyboard") << int(QStyle::State_KeyboardFocusChange) << true;
    QTest::newRow("nothing") << 0 << false;
}

void FocusRectPaintTest::onlyByKeyboard()
{
    QFETCH(int, state);
    QFETCH(bool, isPainted);

    QCOMPARE(painted(focusOption(QStyle::State(state))) != plainPicture(pictureSize), isPainted);
}

void FocusRectPaintTest::hidden_data()
{
    QTest::addColumn<QVariant>("hideFocusRect");
    QTest::addColumn<bool>("isPainted");

    QTest::newRow("not set") << QVariant() << true;
    QTest::newRow("false") << QVariant(false) << true;
    QTest::newRow("true") << QVariant(true) << false;
}

void FocusRectPaintTest::hidden()
{
    QFETCH(QVariant, hideFocusRect);
    QFETCH(bool, isPainted);
    QPushButton button;
    button.setProperty("hideFocusRect", hideFocusRect);

    QCOMPARE(painted(focusOption(focusedByKeyboard), &button) != plainPicture(pictureSize),
             isPainted);
}

void FocusRectPaintTest::needsItsOption()
{
    QStyleOptionButton option;
    option.rect = focusRect;
    option.state = focusedByKeyboard;

    QCOMPARE(painted(option), plainPicture(pictureSize));
}

void FocusRectPaintTest::leavesThePainterAlone()
{
    QImage picture = plainPicture(pictureSize);
    QPainter painter(&picture);
    const QPen pen(Qt::green, 3);
    painter.setPen(pen);
    painter.setBrush(Qt::blue);
    const QStyleOptionFocusRect option = focusOption(focusedByKeyboard);
    m_recorder.style().drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter);

    QCOMPARE(painter.pen(), pen);
    QCOMPARE(painter.brush(), QBrush(Qt::blue));
    QCOMPARE(painter.transform(), QTransform());
    QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
    // Nothing inside of the line was filled.
    QCOMPARE(picture.pixelColor(focusRect.center()), QColor(Qt::black));
}

QTEST_MAIN(FocusRectPaintTest)
#include "FocusRectPaintTest.moc"
