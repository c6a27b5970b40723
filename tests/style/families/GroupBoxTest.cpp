#include <QtTest/QtTest>
#include <QtWidgets/QGroupBox>

#include <support/Text.h>
#include <support/geometry/FusionReference.h>
#include <support/geometry/WidgetSamples.h>
#include <support/painting/CallRecorder.h>
#include <support/themes/PaintTheme.h>

using TARN::BaseStyle;

namespace {

constexpr QSize size(120, 60);
constexpr int radius = 8;
constexpr QPoint centre(60, 30);

} // namespace

/// Group boxes: their rectangles and their frames.
class GroupBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parts_data();
    void parts();
    void frame_data();
    void frame();
    void flatFrame();
    void frameLeavesTitleFree_data();
    void frameLeavesTitleFree();

private:
    QString nameAt(const QImage &picture, int x, int y) const
    {
        return m_theme.nameAt(picture, {x, y});
    }

    PaintTheme m_theme = PaintTheme({0, 0, radius, 0});
    CallRecorder m_recorder;
};

void GroupBoxTest::parts_data()
{
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<bool>("flat");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    for (const Qt::LayoutDirection direction : bothDirections) {
        const QByteArray suffix = direction == Qt::RightToLeft ? ", mirrored" : "";
        QTest::newRow("plain" + suffix) << false << false << direction;
        QTest::newRow("flat" + suffix) << false << true << direction;
        QTest::newRow("checkable" + suffix) << true << false << direction;
        QTest::newRow("flat and checkable" + suffix) << true << true << direction;
    }
}

void GroupBoxTest::parts()
{
    QFETCH(bool, checkable);
    QFETCH(bool, flat);
    QFETCH(Qt::LayoutDirection, direction);
    const BaseStyle style;
    const FusionReference reference;
    Open<QGroupBox> groupBox(text("Title"));
    groupBox.setCheckable(checkable);
    groupBox.setFlat(flat);
    groupBox.setLayoutDirection(direction);
    groupBox.resize(200, 100);
    QStyleOptionGroupBox option;
    groupBox.initStyleOption(&option);
    for (const auto control : {QStyle::SC_GroupBoxFrame, QStyle::SC_GroupBoxContents,
                               QStyle::SC_GroupBoxCheckBox, QStyle::SC_GroupBoxLabel}) {
        QRect expected = reference.QCommonStyle::subControlRect(QStyle::CC_GroupBox, &option,
                                                                control, &groupBox);
        if (checkable && control == QStyle::SC_GroupBoxLabel) {
            expected =
                QRect(expected.x() + 1, expected.y(), expected.width() + 1, expected.height());
        }
        QCOMPARE(style.subControlRect(QStyle::CC_GroupBox, &option, control, &groupBox), expected);
    }
}

void GroupBoxTest::frame_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("border");
    QTest::newRow("enabled") << true << text("CardBorderBrush");
    QTest::newRow("disabled") << false << text("CardBorderBrushDisabled");
}

void GroupBoxTest::frame()
{
    QFETCH(bool, enabled);
    QFETCH(QString, border);
    QStyleOptionFrame option;
    option.rect = QRect(QPoint(), size);
    option.state = enabled ? QStyle::State_Enabled : QStyle::State_None;
    const QImage picture = m_recorder.picture(QStyle::PE_FrameGroupBox, option, nullptr, size);
    const QColor inner = m_theme.brush(border).lighter();
    const int right = size.width() - 1;
    const int bottom = size.height() - 1;
    QCOMPARE(nameAt(picture, centre.x(), 0), border);
    QCOMPARE(nameAt(picture, centre.x(), bottom), border);
    QCOMPARE(nameAt(picture, 0, centre.y()), border);
    QCOMPARE(nameAt(picture, right, centre.y()), border);
    QCOMPARE(picture.pixelColor(centre.x(), 1), inner);
    QCOMPARE(picture.pixelColor(centre.x(), bottom - 1), inner);
    QCOMPARE(picture.pixelColor(1, centre.y()), inner);
    QCOMPARE(picture.pixelColor(right - 1, centre.y()), inner);
    // Nothing is filled, and the corners are round.
    QCOMPARE(picture.pixelColor(centre), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(2, centre.y()), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(0, 0), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(right, bottom), QColor(Qt::black));
}

void GroupBoxTest::flatFrame()
{
    QStyleOptionFrame option;
    option.rect = QRect(0, 10, size.width(), size.height() - 10);
    option.state = QStyle::State_Enabled;
    option.features = QStyleOptionFrame::Flat;
    const QImage picture = m_recorder.picture(QStyle::PE_FrameGroupBox, option, nullptr, size);
    const QColor border = m_theme.brush(text("CardBorderBrush"));
    QImage expected(size, picture.format());
    expected.fill(Qt::black);
    for (int x = 0; x < size.width(); ++x) {
        expected.setPixelColor(x, 10, border);
        expected.setPixelColor(x, 11, border.lighter());
    }
    QCOMPARE(picture, expected);
}

void GroupBoxTest::frameLeavesTitleFree_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("isCheckable");
    QTest::addColumn<bool>("isFlat");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("title") << text("Title") << false << false << Qt::LeftToRight;
    QTest::newRow("right to left") << text("Title") << false << false << Qt::RightToLeft;
    QTest::newRow("checkable") << text("Title") << true << false << Qt::LeftToRight;
    QTest::newRow("checkable, right to left") << text("Title") << true << false << Qt::RightToLeft;
    QTest::newRow("check box alone") << QString() << true << false << Qt::LeftToRight;
    QTest::newRow("flat") << text("Title") << false << true << Qt::LeftToRight;
}

void GroupBoxTest::frameLeavesTitleFree()
{
    QFETCH(QString, title);
    QFETCH(bool, isCheckable);
    QFETCH(bool, isFlat);
    QFETCH(Qt::LayoutDirection, direction);
    QGroupBox groupBox(title);
    groupBox.setCheckable(isCheckable);
    groupBox.setFlat(isFlat);
    groupBox.setLayoutDirection(direction);
    groupBox.resize(size);

    QStyleOptionGroupBox option;
    option.initFrom(&groupBox);
    option.text = title;
    option.textAlignment = Qt::AlignLeft;
    option.features.setFlag(QStyleOptionFrame::Flat, isFlat);
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    option.subControls.setFlag(QStyle::SC_GroupBoxCheckBox, isCheckable);
    const auto rect = [&](QStyle::SubControl subControl) {
        return m_recorder.subControlRect(QStyle::CC_GroupBox, &option, subControl, &groupBox);
    };
    QStyleOptionFrame frame;
    frame.QStyleOption::operator=(option);
    frame.features = option.features;
    frame.rect = rect(QStyle::SC_GroupBoxFrame);
    const QImage picture = m_recorder.picture(QStyle::PE_FrameGroupBox, frame, &groupBox, size);

    QRect free = title.isEmpty() ? QRect() : rect(QStyle::SC_GroupBoxLabel);
    free |= isCheckable ? rect(QStyle::SC_GroupBoxCheckBox) : QRect();
    QVERIFY(free.intersects(frame.rect));
    for (int x = free.left(); x <= free.right(); ++x) {
        QCOMPARE(picture.pixelColor(x, frame.rect.top()), QColor(Qt::black));
    }
    // Beside the title, the frame is the one of a group box without any.
    const QImage whole = m_recorder.picture(QStyle::PE_FrameGroupBox, frame, nullptr, size);
    constexpr int titleMargin = 3;
    const QRect room = free.adjusted(-titleMargin, 0, titleMargin, 0);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QColor expected =
                room.contains(x, y) ? QColor(Qt::black) : whole.pixelColor(x, y);
            QCOMPARE(picture.pixelColor(x, y), expected);
        }
    }
    // The line goes on at the far side.
    const int beyond = direction == Qt::LeftToRight ? free.right() + 8 : free.left() - 8;
    QCOMPARE(nameAt(picture, beyond, frame.rect.top()), text("CardBorderBrush"));
}

QTEST_MAIN(GroupBoxTest)
#include "GroupBoxTest.moc"
