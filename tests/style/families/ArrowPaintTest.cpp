#include <resources/ThemeResources.h>

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QToolButton>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/themes/PaintTheme.h>

using TARN::ThemeResources;

namespace {

constexpr QStyle::State enabled = QStyle::State_Enabled;
constexpr QSize pictureSize(60, 40);
constexpr QRect room(10, 4, 40, 30);
/// The middle of the room, where an arrow of 16 pixels is.
constexpr QRect middle(22, 11, 16, 16);

/// The part of its square that an icon of the test fills.
struct Shape
{
    const char *icon;
    QRect filled;
};

constexpr Shape shapes[] = {{"chevron.down", QRect(0, 8, 16, 8)},
                            {"chevron.up", QRect(0, 0, 16, 8)},
                            {"chevron.left", QRect(0, 0, 8, 16)},
                            {"chevron.right", QRect(8, 0, 8, 16)},
                            {"view.calendar", QRect(0, 0, 16, 16)}};

/// Writes the icons into \a directory, in the colour that is tinted.
void writeIcons(const QString &directory)
{
    for (const Shape &shape : shapes) {
        QImage image(16, 16, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.fillRect(shape.filled, QColor(0xe5, 0xee, 0xf4));
        painter.end();
        if (!image.save(directory + QLatin1Char('/') + text(shape.icon) + text(".png"))) {
            qFatal("The test can't write its icons");
        }
    }
}

QString iconOf(const QRect &filled)
{
    for (const Shape &shape : shapes) {
        if (shape.filled == filled) {
            return text(shape.icon);
        }
    }
    return {};
}

QStyleOption plainOption(QStyle::State state = enabled)
{
    QStyleOption option;
    option.rect = room;
    option.state = state;
    return option;
}

/// A proxy that has metrics of its own.
class MetricRecorder : public CallRecorder
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        switch (metric) {
        case PM_SmallIconSize:
            return 12;
        case PM_ScrollBarExtent:
            return 20;
        default:
            return CallRecorder::pixelMetric(metric, option, widget);
        }
    }
};

} // namespace

Q_DECLARE_METATYPE(QStyle::PrimitiveElement)

/// Arrows and what takes their place.
class ArrowPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void icons_data();
    void icons();
    void dateEditors_data();
    void dateEditors();
    void transformationIsLeftAsItWas();
    void noMenuArrow_data();
    void noMenuArrow();
    void colors_data();
    void colors();
    void colorOfDisabledWidget();
    void colorOfRestingOutlineButton();
    void colorOfItems_data();
    void colorOfItems();
    void staysInASmallRoom();
    void sizesComeFromTheProxy();
    void emptyAndHugeRooms_data();
    void emptyAndHugeRooms();

private:
    PaintTheme m_theme;
    CallRecorder m_recorder;
    QTemporaryDir m_icons;

    QImage painted(QStyle::PrimitiveElement element, const QStyleOption &option,
                   const QWidget *widget = nullptr)
    {
        return m_recorder.picture(element, option, widget, pictureSize);
    }

    /// Returns the name of what painted the arrow of \a option.
    QString colorOf(const QStyleOption &option, const QWidget *widget = nullptr)
    {
        const QStringList names =
            m_theme.namesIn(painted(QStyle::PE_IndicatorArrowDown, option, widget));
        return names.join(QLatin1Char(' '));
    }

    static QRect paintedPart(const QImage &picture)
    {
        QRegion region;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixelColor(x, y) != QColor(Qt::black)) {
                    region += QRect(x, y, 1, 1);
                }
            }
        }
        return region.boundingRect();
    }
};

void ArrowPaintTest::initTestCase()
{
    writeIcons(m_icons.path());
    QDir::setSearchPaths(ThemeResources::iconsPrefix(), {m_icons.path()});
}

void ArrowPaintTest::icons_data()
{
    QTest::addColumn<QStyle::PrimitiveElement>("element");
    QTest::addColumn<QString>("icon");

    QTest::newRow("down") << QStyle::PE_IndicatorArrowDown << text("chevron.down");
    QTest::newRow("up") << QStyle::PE_IndicatorArrowUp << text("chevron.up");
    QTest::newRow("left") << QStyle::PE_IndicatorArrowLeft << text("chevron.left");
    QTest::newRow("right") << QStyle::PE_IndicatorArrowRight << text("chevron.right");
}

void ArrowPaintTest::icons()
{
    QFETCH(QStyle::PrimitiveElement, element);
    QFETCH(QString, icon);

    const QRect part = paintedPart(painted(element, plainOption()));
    QCOMPARE(iconOf(part.translated(-middle.topLeft())), icon);
}

void ArrowPaintTest::dateEditors_data()
{
    QTest::addColumn<QString>("editor");
    QTest::addColumn<bool>("calendarPopup");
    QTest::addColumn<QString>("icon");

    QTest::newRow("date") << text("date") << true << text("view.calendar");
    QTest::newRow("date without a calendar") << text("date") << false << text("chevron.down");
    QTest::newRow("date and time") << text("both") << true << text("view.calendar");
    QTest::newRow("time") << text("time") << true << text("chevron.down");
}

void ArrowPaintTest::dateEditors()
{
    QFETCH(QString, editor);
    QFETCH(bool, calendarPopup);
    QFETCH(QString, icon);
    QDateEdit dateEdit;
    QTimeEdit timeEdit;
    QDateTimeEdit dateTimeEdit;
    QDateTimeEdit *edit = &dateTimeEdit;
    if (editor == text("date")) {
        edit = &dateEdit;
    } else if (editor == text("time")) {
        edit = &timeEdit;
    }
    edit->setCalendarPopup(calendarPopup);

    const QRect down = paintedPart(painted(QStyle::PE_IndicatorArrowDown, plainOption(), edit));
    QCOMPARE(iconOf(down.translated(-middle.topLeft())), icon);
    const QRect up = paintedPart(painted(QStyle::PE_IndicatorArrowUp, plainOption(), edit));
    QCOMPARE(iconOf(up.translated(-middle.topLeft())), text("chevron.up"));
}

/// Moving a painter to a pixel and back again may end beside where it began.
void ArrowPaintTest::transformationIsLeftAsItWas()
{
    QImage image(pictureSize, QImage::Format_RGB32);
    image.setDevicePixelRatio(1.25);
    for (int step = 1; step < 200; ++step) {
        const QTransform transform(1 + step / 37.0, 0, 0, 1 + step / 41.0, step / 3.0, step / 7.0);
        QPainter painter(&image);
        painter.setTransform(transform);
        const QStyleOption option = plainOption();
        m_recorder.style().drawPrimitive(QStyle::PE_IndicatorArrowLeft, &option, &painter);
        QVERIFY(painter.worldMatrixEnabled());
        // The operator for transformations takes nearly the same ones for equal, too.
        const QTransform after = painter.transform();
        QVERIFY(after.dx() == transform.dx() && after.dy() == transform.dy());
        painter.setWorldMatrixEnabled(false);
        m_recorder.style().drawPrimitive(QStyle::PE_IndicatorArrowLeft, &option, &painter);
        QVERIFY(!painter.worldMatrixEnabled());
        QVERIFY(painter.transform() == transform);
    }
}

void ArrowPaintTest::noMenuArrow_data()
{
    QTest::addColumn<QVariant>("noMenuArrow");
    QTest::addColumn<bool>("isPainted");

    QTest::newRow("not set") << QVariant() << true;
    QTest::newRow("false") << QVariant(false) << true;
    QTest::newRow("true") << QVariant(true) << false;
}

void ArrowPaintTest::noMenuArrow()
{
    QFETCH(QVariant, noMenuArrow);
    QFETCH(bool, isPainted);
    QToolButton button;
    button.setProperty("no menu arrow", noMenuArrow);

    for (const auto element : {QStyle::PE_IndicatorArrowDown, QStyle::PE_IndicatorArrowUp,
                               QStyle::PE_IndicatorArrowLeft, QStyle::PE_IndicatorArrowRight}) {
        QCOMPARE(!paintedPart(painted(element, plainOption(), &button)).isEmpty(), isPainted);
    }
}

void ArrowPaintTest::colors_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("name");

    QTest::newRow("rest") << int(enabled) << text("ButtonUncheckedForegroundBrush");
    QTest::newRow("hovered") << int(enabled | QStyle::State_MouseOver)
                             << text("ButtonUncheckedHoverForegroundBrush");
    QTest::newRow("pressed") << int(enabled | QStyle::State_Sunken)
                             << text("ButtonUncheckedPressedForegroundBrush");
    QTest::newRow("checked") << int(enabled | QStyle::State_On)
                             << text("ButtonCheckedForegroundBrush");
}

void ArrowPaintTest::colors()
{
    QFETCH(int, state);
    QFETCH(QString, name);
    const QToolButton button;

    QCOMPARE(colorOf(plainOption(QStyle::State(state)), &button), name);
    QCOMPARE(colorOf(plainOption(QStyle::State(state))), name);
}

void ArrowPaintTest::colorOfDisabledWidget()
{
    QToolButton button;
    button.setEnabled(false);

    QCOMPARE(colorOf(plainOption(QStyle::State_None), &button),
             text("ButtonUncheckedForegroundBrushDisabled"));
}

void ArrowPaintTest::colorOfRestingOutlineButton()
{
    QToolButton button;
    button.setProperty("outline", true);

    QCOMPARE(colorOf(plainOption(), &button), text("ForegroundColor"));
    QCOMPARE(colorOf(plainOption(QStyle::State_None), &button), text("ForegroundColorDisabled"));
}

void ArrowPaintTest::colorOfItems_data()
{
    QTest::addColumn<bool>("ofMenu");

    QTest::newRow("entry of a menu") << true;
    QTest::newRow("item of a view") << false;
}

void ArrowPaintTest::colorOfItems()
{
    QFETCH(bool, ofMenu);
    QStyleOptionMenuItem menuItem;
    QStyleOptionViewItem viewItem;
    QStyleOption &option = ofMenu ? static_cast<QStyleOption &>(menuItem) : viewItem;
    option.rect = room;
    option.state = enabled;
    option.palette.setBrush(QPalette::WindowText, m_theme.brush(text("MainBrush")));

    QCOMPARE(colorOf(option), text("MainBrush"));
}

void ArrowPaintTest::staysInASmallRoom()
{
    QStyleOption option = plainOption();
    option.rect = QRect(10, 5, 12, 20);
    const QRect part = paintedPart(painted(QStyle::PE_IndicatorArrowDown, option));

    QCOMPARE(part, QRect(10, 5 + (20 - 12) / 2 + 6, 12, 6));
}

void ArrowPaintTest::sizesComeFromTheProxy()
{
    MetricRecorder recorder;
    const QScrollBar scrollBar;
    const auto extentWith = [&](const QWidget *widget) {
        const QImage picture =
            recorder.picture(QStyle::PE_IndicatorArrowDown, plainOption(), widget, pictureSize);
        return paintedPart(picture).width();
    };

    QCOMPARE(extentWith(nullptr), 12);
    QVERIFY(extentWith(&scrollBar) > 12);
}

void ArrowPaintTest::emptyAndHugeRooms_data()
{
    constexpr int far = 1 << 24;
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<bool>("isPainted");

    QTest::newRow("empty") << QRect() << false;
    QTest::newRow("inside out") << QRect(20, 20, -10, -10) << false;
    QTest::newRow("huge") << QRect(-far + 30, -far + 20, 2 * far, 2 * far) << true;
    QTest::newRow("far away") << QRect(far, far, 40, 30) << false;
}

void ArrowPaintTest::emptyAndHugeRooms()
{
    QFETCH(QRect, rect);
    QFETCH(bool, isPainted);
    QStyleOption option = plainOption();
    option.rect = rect;

    const QImage picture = painted(QStyle::PE_IndicatorArrowDown, option);
    QCOMPARE(!paintedPart(picture).isEmpty(), isPainted);
}

QTEST_MAIN(ArrowPaintTest)
#include "ArrowPaintTest.moc"
