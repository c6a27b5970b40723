#include <QtTest/QtTest>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QToolBar>

#include <limits>
#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/FusionPicture.h>
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

QImage blackPicture()
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::black);
    return picture;
}

/// Returns the smallest rectangle around what was painted on black.
QRect paintedRect(const QImage &picture)
{
    QRect rect;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) != Qt::black) {
                rect |= QRect(x, y, 1, 1);
            }
        }
    }
    return rect;
}

} // namespace

/// Tool bars, status bars, splitters and their grips.
class BarPaintTest : public QObject
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
    void separator_data();
    void separator();

    void statusBar_data();
    void statusBar();

    void splitter_data();
    void splitter();
    void splitterOfNoWidget();
    void splitterGrips_data();
    void splitterGrips();

    void grips_data();
    void grips();
    void verticalGripsIgnoreDarkSize();
    void gripsEnd_data();
    void gripsEnd();

private:
    QString nameAt(const QImage &picture, int x, int y) const
    {
        return m_theme.nameAt(picture, {x, y});
    }
    QImage gripPicture(Qt::Orientation orientation, int from, int to, int across, int step,
                       int lightSize, int darkSize)
    {
        QImage picture = blackPicture();
        QPainter painter(&picture);
        m_recorder.style().drawGrips(painter, orientation, from, to, across, step, lightSize,
                                     darkSize);
        return picture;
    }

    PaintTheme m_theme;
    CallRecorder m_recorder;
};

void BarPaintTest::toolBar_data()
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

void BarPaintTest::toolBar()
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

void BarPaintTest::disabledToolBar()
{
    QMainWindow window;
    const auto *bar = new QToolBar(&window);
    const QImage picture =
        m_recorder.picture(QStyle::CE_ToolBar, toolBarOption(Qt::TopToolBarArea, false), bar, size);
    QCOMPARE(m_theme.namesIn(picture), (QStringList{text("BackgroundSubLevel2BrushDisabled"),
                                                    text("CardBorderBrushDisabled")}));
}

void BarPaintTest::floatingToolBar()
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

void BarPaintTest::toolBarAmongOtherWidgets()
{
    QWidget page;
    const auto *bar = new QToolBar(&page);
    QCOMPARE(m_recorder.picture(QStyle::CE_ToolBar, toolBarOption(Qt::TopToolBarArea), bar, size),
             blackPicture());
}

void BarPaintTest::toolBarNeedsItsWidget()
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

void BarPaintTest::handle_data()
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

void BarPaintTest::handle()
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

void BarPaintTest::separator_data()
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

void BarPaintTest::separator()
{
    QFETCH(QStyle::State, state);
    QFETCH(QRect, rect);
    QFETCH(QRect, line);
    QFETCH(QString, color);
    QStyleOption option = plainOption(state);
    option.rect = rect;
    QImage expected = blackPicture();
    QPainter painter(&expected);
    painter.fillRect(line, m_theme.color(color));
    painter.end();
    QCOMPARE(m_recorder.picture(QStyle::PE_IndicatorToolBarSeparator, option, nullptr, size),
             expected);
}

void BarPaintTest::statusBar_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("enabled") << QStyle::State(QStyle::State_Enabled) << QString();
    QTest::newRow("disabled") << QStyle::State(QStyle::State_None) << text("Disabled");
}

void BarPaintTest::statusBar()
{
    QFETCH(QStyle::State, state);
    QFETCH(QString, suffix);
    QImage expected(size, QImage::Format_RGB32);
    expected.fill(m_theme.brush(text("BackgroundSubLevel1Brush") + suffix));
    QPainter painter(&expected);
    painter.fillRect(0, 0, size.width(), 1, m_theme.brush(text("CardBorderBrush") + suffix));
    painter.end();
    QCOMPARE(m_recorder.picture(QStyle::PE_PanelStatusBar, plainOption(state), nullptr, size),
             expected);
}

void BarPaintTest::splitter_data()
{
    QTest::addColumn<bool>("isFilled");
    QTest::addColumn<bool>("isSmall");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("face");
    QTest::newRow("plain") << false << false << true << QString();
    QTest::newRow("filled") << true << false << true << text("CardBorderBrush");
    QTest::newRow("filled, disabled") << true << false << false << text("CardBorderBrushDisabled");
    QTest::newRow("small") << false << true << true << QString();
    QTest::newRow("filled and small") << true << true << true << text("CardBorderBrush");
}

void BarPaintTest::splitter()
{
    QFETCH(bool, isFilled);
    QFETCH(bool, isSmall);
    QFETCH(bool, enabled);
    QFETCH(QString, face);
    QSplitter splitter;
    splitter.setProperty("filled", isFilled);
    splitter.setProperty("small", isSmall);
    QStyleOption option = plainOption(enabled ? QStyle::State_Enabled : QStyle::State_None);
    option.state |= QStyle::State_Horizontal;
    option.rect = QRect(10, 0, 6, size.height());
    const QImage picture = m_recorder.picture(QStyle::CE_Splitter, option, &splitter, size);

    QImage ground = blackPicture();
    if (!face.isEmpty()) {
        QPainter painter(&ground);
        painter.fillRect(option.rect, m_theme.brush(face));
    }
    QCOMPARE(picture != ground, isSmall);
    QCOMPARE(nameAt(picture, 10, 20), face);
    QCOMPARE(paintedRect(picture).isEmpty(), face.isEmpty() && !isSmall);
}

void BarPaintTest::splitterOfNoWidget()
{
    QCOMPARE(
        m_recorder.picture(QStyle::CE_Splitter, plainOption(QStyle::State_Enabled), nullptr, size),
        blackPicture());
}

void BarPaintTest::splitterGrips_data()
{
    QTest::addColumn<bool>("isHorizontal");
    QTest::addColumn<QRect>("handle");
    QTest::addColumn<QRect>("expected");
    // The last grip that has room starts a multiple of three pixels after the first.
    QTest::newRow("upright") << true << QRect(20, 0, 6, 40) << QRect(22, 0, 2, 38);
    QTest::newRow("lying") << false << QRect(0, 20, 60, 6) << QRect(0, 22, 59, 2);
    QTest::newRow("upright, one pixel wide") << true << QRect(20, 0, 1, 40) << QRect(20, 0, 1, 38);
    QTest::newRow("lying, one pixel high") << false << QRect(0, 20, 60, 1) << QRect(0, 20, 59, 1);
}

void BarPaintTest::splitterGrips()
{
    QFETCH(bool, isHorizontal);
    QFETCH(QRect, handle);
    QFETCH(QRect, expected);
    QSplitter splitter;
    splitter.setProperty("small", true);
    QStyleOption option = plainOption(QStyle::State_Enabled);
    option.state.setFlag(QStyle::State_Horizontal, isHorizontal);
    option.rect = handle;
    QCOMPARE(paintedRect(m_recorder.picture(QStyle::CE_Splitter, option, &splitter, size)),
             expected);
}

void BarPaintTest::grips_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("lightSize");
    QTest::addColumn<int>("darkSize");
    QTest::newRow("horizontal") << Qt::Horizontal << 2 << 1;
    QTest::newRow("horizontal, large") << Qt::Horizontal << 4 << 3;
    QTest::newRow("vertical") << Qt::Vertical << 2 << 1;
}

void BarPaintTest::grips()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(int, lightSize);
    QFETCH(int, darkSize);
    const QImage picture = gripPicture(orientation, 5, 20, 10, 6, lightSize, darkSize);
    QImage expected = blackPicture();
    QPainter painter(&expected);
    // Before the end, which is none of the positions: 23 is the next one.
    for (const int along : {5, 11, 17}) {
        const QPoint corner = orientation == Qt::Horizontal ? QPoint(along, 10) : QPoint(10, along);
        painter.fillRect(QRect(corner, QSize(lightSize, lightSize)), QColor(255, 255, 255, 90));
        painter.fillRect(QRect(corner, QSize(darkSize, darkSize)), QColor(0, 0, 0, 60));
    }
    painter.end();
    QCOMPARE(picture, expected);
}

void BarPaintTest::verticalGripsIgnoreDarkSize()
{
    QCOMPARE(gripPicture(Qt::Vertical, 0, 30, 10, 3, 2, 1),
             gripPicture(Qt::Vertical, 0, 30, 10, 3, 2, 5));
    QVERIFY(gripPicture(Qt::Horizontal, 0, 30, 10, 6, 5, 1) !=
            gripPicture(Qt::Horizontal, 0, 30, 10, 6, 5, 4));
}

void BarPaintTest::gripsEnd_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("step");
    QTest::addColumn<QRect>("expected");
    const int most = std::numeric_limits<int>::max();
    const int least = std::numeric_limits<int>::min();
    const QRect one(5, 10, 2, 2);
    QTest::newRow("nothing between the ends") << 5 << 5 << 3 << QRect();
    QTest::newRow("ends the wrong way round") << 5 << 0 << 3 << QRect();
    QTest::newRow("one") << 5 << 6 << 3 << one;
    QTest::newRow("without a step") << 5 << 50 << 0 << one;
    QTest::newRow("with a step back") << 5 << 50 << -3 << one;
    QTest::newRow("without a step, backwards") << 5 << 0 << 0 << QRect();
    QTest::newRow("endless") << 5 << most << 60 << one;
    QTest::newRow("endless step") << 5 << most << most << one;
    QTest::newRow("from afar") << least << most << most << QRect(0, 10, 1, 2);
    QTest::newRow("from afar without a step") << least << most << 0 << QRect();
    QTest::newRow("from afar, endless") << least << most << 3 << QRect();
    QTest::newRow("from afar, just within reach") << -(1 << 24) - 5 << 10 << (1 << 24) + 10 << one;
    QTest::newRow("back from afar") << most << least << -1 << QRect();
}

void BarPaintTest::gripsEnd()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(int, step);
    QFETCH(QRect, expected);
    QCOMPARE(paintedRect(gripPicture(Qt::Horizontal, from, to, 10, step, 2, 1)), expected);
}

QTEST_MAIN(BarPaintTest)

#include "BarPaintTest.moc"
