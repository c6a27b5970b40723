#include <QtTest/QtTest>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QToolBar>

#include <limits>
#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/FusionPicture.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

Q_DECLARE_METATYPE(QStyle::State)

namespace {

constexpr QSize size(60, 40);

const QRect wholePicture(QPoint(), size);

/// What a light dot of a grip looks like on black.
const QColor lightDot(90, 90, 90);

QStyleOption plainOption(QStyle::State state)
{
    QStyleOption option;
    option.rect = wholePicture;
    option.state = state;
    return option;
}

QStyleOptionToolBar toolBarOption(Qt::ToolBarArea area, bool enabled = true)
{
    QStyleOptionToolBar option;
    option.rect = wholePicture;
    option.state = enabled ? QStyle::State_Enabled : QStyle::State_None;
    option.toolBarArea = area;
    return option;
}

} // namespace

/// Tool bars, their handles and their separators.
class ToolBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toolBar_data();
    void toolBar();
    void disabledToolBar();
    void floatingToolBar();
    void toolBarAmongOtherWidgets();
    void toolBarNeedsItsWidget();

    void handle_data();
    void handle();
    void nothingFarAwayIsPainted_data();
    void nothingFarAwayIsPainted();
    void separator_data();
    void separator();

private:
    PaintTheme m_theme;
    CallRecorder m_recorder;
};

void ToolBarTest::toolBar_data()
{
    QTest::addColumn<Qt::ToolBarArea>("area");
    QTest::addColumn<QRect>("line");
    const int right = size.width() - 1;
    const int bottom = size.height() - 1;
    QTest::newRow("top") << Qt::TopToolBarArea << QRect(0, bottom, size.width(), 1);
    QTest::newRow("bottom") << Qt::BottomToolBarArea << QRect(0, 0, size.width(), 1);
    QTest::newRow("left") << Qt::LeftToolBarArea << QRect(right, 0, 1, size.height());
    QTest::newRow("right") << Qt::RightToolBarArea << QRect(0, 0, 1, size.height());
    QTest::newRow("none") << Qt::NoToolBarArea << QRect();
}

void ToolBarTest::toolBar()
{
    QFETCH(Qt::ToolBarArea, area);
    QFETCH(QRect, line);
    QMainWindow window;
    const auto *bar = new QToolBar(&window);
    QImage expected(size, QImage::Format_RGB32);
    expected.fill(m_theme.brush(text("BackgroundSubLevel2Brush")));
    QPainter painter(&expected);
    painter.fillRect(line, m_theme.brush(text("CardBorderBrush")));
    painter.end();
    QCOMPARE(m_recorder.picture(QStyle::CE_ToolBar, toolBarOption(area), bar, size), expected);
}

void ToolBarTest::disabledToolBar()
{
    QMainWindow window;
    const auto *bar = new QToolBar(&window);
    const QImage picture =
        m_recorder.picture(QStyle::CE_ToolBar, toolBarOption(Qt::TopToolBarArea, false), bar, size);
    QCOMPARE(m_theme.namesIn(picture), (QStringList{text("BackgroundSubLevel2BrushDisabled"),
                                                    text("CardBorderBrushDisabled")}));
}

void ToolBarTest::floatingToolBar()
{
    QMainWindow window;
    auto *bar = new QToolBar(&window);
    bar->setWindowFlags(Qt::Tool);
    const QImage picture =
        m_recorder.picture(QStyle::CE_ToolBar, toolBarOption(Qt::TopToolBarArea), bar, size);
    QImage expected(size, QImage::Format_RGB32);
    expected.fill(m_theme.brush(text("CardBorderBrush")));
    QPainter painter(&expected);
    painter.fillRect(wholePicture.adjusted(1, 1, -1, -1),
                     m_theme.brush(text("BackgroundSubLevel2Brush")));
    painter.end();
    QCOMPARE(picture, expected);
}

void ToolBarTest::toolBarAmongOtherWidgets()
{
    QWidget page;
    const auto *bar = new QToolBar(&page);
    QCOMPARE(m_recorder.picture(QStyle::CE_ToolBar, toolBarOption(Qt::TopToolBarArea), bar, size),
             plainPicture(size));
}

void ToolBarTest::toolBarNeedsItsWidget()
{
    const QStyleOptionToolBar option = toolBarOption(Qt::TopToolBarArea);
    QCOMPARE(m_recorder.picture(QStyle::CE_ToolBar, option, nullptr, size),
             fusionPicture(QStyle::CE_ToolBar, option, nullptr, size));
    QMainWindow window;
    const auto *child = new QWidget(&window);
    QCOMPARE(m_recorder.picture(QStyle::CE_ToolBar, option, child, size),
             fusionPicture(QStyle::CE_ToolBar, option, child, size));
    const auto *bar = new QToolBar(&window);
    const QStyleOption plain = plainOption(QStyle::State_Enabled);
    QCOMPARE(m_recorder.picture(QStyle::CE_ToolBar, plain, bar, size),
             fusionPicture(QStyle::CE_ToolBar, plain, bar, size));
}

void ToolBarTest::handle_data()
{
    QTest::addColumn<bool>("isHorizontal");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QVector<QPoint>>("dots");
    const QVector<QPoint> upright{{15, 12}, {15, 15}, {15, 18}, {15, 21}, {15, 24}, {15, 27}};
    QTest::newRow("horizontal") << true << QRect(10, 0, 11, 41) << upright;
    QTest::newRow("horizontal, even") << true << QRect(10, 0, 12, 42) << upright;
    QTest::newRow("vertical") << false << QRect(0, 10, 41, 11)
                              << QVector<QPoint>{{14, 15}, {17, 15}, {20, 15},
                                                 {23, 15}, {26, 15}, {29, 15}};
}

void ToolBarTest::handle()
{
    QFETCH(bool, isHorizontal);
    QFETCH(QRect, rect);
    QFETCH(QVector<QPoint>, dots);
    QStyleOption option = plainOption(isHorizontal ? QStyle::State_Horizontal : QStyle::State_None);
    option.rect = rect;
    const QImage picture =
        m_recorder.picture(QStyle::PE_IndicatorToolBarHandle, option, nullptr, size);
    QVector<QPoint> found;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            // The dark corner of a dot is its only pixel of another colour.
            const QColor color = picture.pixelColor(x, y);
            if (color != Qt::black && color != lightDot) {
                found.append({x, y});
            }
        }
    }
    QCOMPARE(found, dots);
    QCOMPARE(paintedRect(picture), QRect(dots.first(), dots.last() + QPoint(1, 1)));
}

void ToolBarTest::nothingFarAwayIsPainted_data()
{
    QTest::addColumn<QRect>("rect");
    constexpr int last = std::numeric_limits<int>::max();
    QTest::newRow("right") << QRect(QPoint(last, 0), QPoint(last, 39));
    QTest::newRow("below") << QRect(QPoint(0, last), QPoint(59, last));
    QTest::newRow("left") << QRect(QPoint(-last, 0), QPoint(-last, 39));
}

void ToolBarTest::nothingFarAwayIsPainted()
{
    QFETCH(QRect, rect);
    for (const QStyle::State state : {QStyle::State_None, QStyle::State_Horizontal}) {
        QStyleOption option = plainOption(state);
        option.rect = rect;
        for (const auto element :
             {QStyle::PE_IndicatorToolBarHandle, QStyle::PE_IndicatorToolBarSeparator}) {
            QCOMPARE(m_recorder.picture(element, option, nullptr, size), plainPicture(size));
        }
    }
}

void ToolBarTest::separator_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QRect>("line");
    QTest::addColumn<QString>("color");
    const QString color = text("BackgroundUpLevel1Color");
    const QString disabled = text("BackgroundUpLevel1ColorDisabled");
    const QStyle::State vertical = QStyle::State_Enabled;
    const QStyle::State horizontal = QStyle::State_Enabled | QStyle::State_Horizontal;
    QTest::newRow("horizontal bar")
        << horizontal << QRect(10, 2, 6, 30) << QRect(13, 7, 1, 20) << color;
    QTest::newRow("vertical bar") << vertical << QRect(2, 10, 30, 6) << QRect(7, 13, 20, 1)
                                  << color;
    QTest::newRow("disabled") << QStyle::State(QStyle::State_Horizontal) << QRect(10, 2, 6, 30)
                              << QRect(13, 7, 1, 20) << disabled;
    QTest::newRow("entry of a list") << QStyle::State(QStyle::State_None) << QRect(0, 4, 60, 1)
                                     << QRect(5, 4, 50, 1) << disabled;
    QTest::newRow("too short") << horizontal << QRect(10, 2, 6, 10) << QRect() << QString();
    QTest::newRow("empty") << vertical << QRect(0, 4, 60, 0) << QRect() << QString();
}

void ToolBarTest::separator()
{
    QFETCH(QStyle::State, state);
    QFETCH(QRect, rect);
    QFETCH(QRect, line);
    QFETCH(QString, color);
    QStyleOption option = plainOption(state);
    option.rect = rect;
    QImage expected = plainPicture(size);
    QPainter painter(&expected);
    painter.fillRect(line, m_theme.color(color));
    painter.end();
    QCOMPARE(m_recorder.picture(QStyle::PE_IndicatorToolBarSeparator, option, nullptr, size),
             expected);
}

QTEST_MAIN(ToolBarTest)
#include "ToolBarTest.moc"
