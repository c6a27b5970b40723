#include <QtTest/QtTest>
#include <QtWidgets/QFrame>

#include <limits>
#include <support/Components.h>
#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/FusionPicture.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

Q_DECLARE_METATYPE(QFrame::Shadow)

namespace {

constexpr QSize size(120, 60);
constexpr int radius = 8;
constexpr QPoint centre(60, 30);

QStyleOptionFrame frameOption(QFrame::Shape shape, QFrame::Shadow shadow, int lineWidth)
{
    QStyleOptionFrame option;
    option.rect = QRect(QPoint(), size);
    option.state = QStyle::State_Enabled;
    option.state.setFlag(QStyle::State_Sunken, shadow == QFrame::Sunken);
    option.state.setFlag(QStyle::State_Raised, shadow == QFrame::Raised);
    option.frameShape = shape;
    option.lineWidth = lineWidth;
    option.palette.setColor(QPalette::WindowText, Qt::magenta);
    option.palette.setColor(QPalette::Light, QColor(100, 200, 100));
    option.palette.setColor(QPalette::Midlight, QColor(100, 160, 160));
    option.palette.setColor(QPalette::Dark, QColor(100, 100, 200));
    option.palette.setColor(QPalette::Shadow, QColor(50, 20, 20));
    return option;
}

QStyleOptionRubberBand band()
{
    QStyleOptionRubberBand option;
    option.rect = QRect(QPoint(), size);
    option.state = QStyle::State_Enabled;
    return option;
}

void setRubberBandOpacity(double opacity)
{
    QVariantMap variables = qApp->property("theme_var").toMap();
    variables[text("opacities")] = QVariantMap{{text("RubberBandOpacity"), opacity}};
    qApp->setProperty("theme_var", variables);
}

} // namespace

/// Group boxes, rubber bands and shaped frames.
class FramePaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rubberBand_data();
    void rubberBand();
    void rubberBandIsTranslucent();
    void rubberBandNeedsItsOption();

    void line_data();
    void line();
    void shades_data();
    void shades();
    void plain_data();
    void plain();
    void styledPanelIsOfTheProxy();
    void noFrame();
    void exaggeratedLineWidth_data();
    void exaggeratedLineWidth();
    void shapedFrameNeedsItsOption();

private:
    QString nameAt(const QImage &picture, int x, int y) const
    {
        return m_theme.nameAt(picture, {x, y});
    }
    QImage shapedFrame(const QStyleOptionFrame &option, const QWidget *widget = nullptr)
    {
        return m_recorder.picture(QStyle::CE_ShapedFrame, option, widget, size);
    }

    PaintTheme m_theme = PaintTheme({0, 0, radius, 0});
    CallRecorder m_recorder;
};

void FramePaintTest::rubberBand_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<bool>("isRound");
    QTest::newRow("nowhere") << QString() << false;
    QTest::newRow("plain widget") << text("widget") << false;
    QTest::newRow("card") << text("card") << true;
    QTest::newRow("child of a card") << text("child") << true;
    QTest::newRow("grandchild of a card") << text("grandchild") << false;
}

void FramePaintTest::rubberBand()
{
    QFETCH(QString, place);
    QFETCH(bool, isRound);
    const QWidget widget;
    TARN::Components::CardWidget card;
    auto *child = new QWidget(&card);
    const QHash<QString, const QWidget *> places{{text("widget"), &widget},
                                                 {text("card"), &card},
                                                 {text("child"), child},
                                                 {text("grandchild"), new QWidget(child)}};
    const QImage picture =
        m_recorder.picture(QStyle::CE_RubberBand, band(), places.value(place), size);
    QCOMPARE(nameAt(picture, 0, 0).isEmpty(), isRound);
    for (const QPoint &point : {QPoint(0, centre.y()), QPoint(centre.x(), 0), centre}) {
        QCOMPARE(m_theme.nameAt(picture, point), text("MainColor"));
    }
}

void FramePaintTest::rubberBandIsTranslucent()
{
    setRubberBandOpacity(0.5);
    const QColor color = m_theme.color(text("MainColor"));
    QStyleOptionRubberBand option = band();
    const QImage picture = m_recorder.picture(QStyle::CE_RubberBand, option, nullptr, size);
    QCOMPARE(picture.pixelColor(0, centre.y()), color);
    const QColor face = picture.pixelColor(centre);
    QVERIFY2(qAbs(face.red() - color.red() / 2) <= 1, qPrintable(face.name()));
    QVERIFY2(qAbs(face.green() - color.green() / 2) <= 1, qPrintable(face.name()));
    QVERIFY2(qAbs(face.blue() - color.blue() / 2) <= 1, qPrintable(face.name()));

    option.state = QStyle::State_None;
    const QImage disabled = m_recorder.picture(QStyle::CE_RubberBand, option, nullptr, size);
    QCOMPARE(nameAt(disabled, 0, centre.y()), text("MainColorDisabled"));
}

void FramePaintTest::rubberBandNeedsItsOption()
{
    QStyleOption option;
    option.rect = QRect(QPoint(), size);
    option.state = QStyle::State_Enabled;
    QCOMPARE(m_recorder.picture(QStyle::CE_RubberBand, option, nullptr, size),
             fusionPicture(QStyle::CE_RubberBand, option, nullptr, size));
}

void FramePaintTest::line_data()
{
    QTest::addColumn<QFrame::Shape>("shape");
    QTest::addColumn<QFrame::Shadow>("shadow");
    QTest::addColumn<int>("lineWidth");
    QTest::addColumn<QRect>("expected");
    const QRect horizontal(0, 29, size.width(), 1);
    const QRect vertical(59, 0, 1, size.height());
    QTest::newRow("horizontal") << QFrame::HLine << QFrame::Plain << 1 << horizontal;
    QTest::newRow("raised") << QFrame::HLine << QFrame::Raised << 1 << horizontal;
    QTest::newRow("sunken") << QFrame::HLine << QFrame::Sunken << 1 << horizontal;
    QTest::newRow("hairline") << QFrame::HLine << QFrame::Plain << 0 << horizontal;
    QTest::newRow("wide") << QFrame::HLine << QFrame::Plain << 4 << QRect(0, 28, size.width(), 4);
    QTest::newRow("wider than the frame")
        << QFrame::HLine << QFrame::Plain << 1000 << QRect(QPoint(), size);
    QTest::newRow("vertical") << QFrame::VLine << QFrame::Plain << 1 << vertical;
    QTest::newRow("vertical, sunken") << QFrame::VLine << QFrame::Sunken << 1 << vertical;
    QTest::newRow("vertical, wide")
        << QFrame::VLine << QFrame::Raised << 4 << QRect(58, 0, 4, size.height());
}

void FramePaintTest::line()
{
    QFETCH(QFrame::Shape, shape);
    QFETCH(QFrame::Shadow, shadow);
    QFETCH(int, lineWidth);
    QFETCH(QRect, expected);
    QStyleOptionFrame option = frameOption(shape, shadow, lineWidth);
    option.palette = m_recorder.style().getPalette();
    for (const bool enabled : {true, false}) {
        option.state.setFlag(QStyle::State_Enabled, enabled);
        const QString name = enabled ? text("CardBorderBrush") : text("CardBorderBrushDisabled");
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::black);
        QPainter painter(&picture);
        painter.fillRect(expected, m_theme.brush(name));
        painter.end();
        QCOMPARE(shapedFrame(option), picture);
    }
}

void FramePaintTest::shades_data()
{
    QTest::addColumn<QFrame::Shape>("shape");
    QTest::addColumn<QFrame::Shadow>("shadow");
    QTest::addColumn<QColor>("topLeft");
    QTest::addColumn<QColor>("bottomRight");
    const QPalette palette = frameOption(QFrame::Box, QFrame::Plain, 1).palette;
    const QColor light = palette.light().color().lighter(115);
    const QColor dark = palette.dark().color().darker(115);
    QTest::newRow("box, raised") << QFrame::Box << QFrame::Raised << light << dark;
    QTest::newRow("box, sunken") << QFrame::Box << QFrame::Sunken << dark << light;
    QTest::newRow("panel, raised") << QFrame::Panel << QFrame::Raised << light << dark;
    QTest::newRow("panel, sunken") << QFrame::Panel << QFrame::Sunken << dark << light;
    const QColor winLight = palette.light().color().lighter(115);
    const QColor winDark = palette.dark().color().lighter(115);
    QTest::newRow("window, raised")
        << QFrame::WinPanel << QFrame::Raised << winLight << palette.shadow().color();
    QTest::newRow("window, sunken") << QFrame::WinPanel << QFrame::Sunken << winDark << winLight;
}

void FramePaintTest::shades()
{
    QFETCH(QFrame::Shape, shape);
    QFETCH(QFrame::Shadow, shadow);
    QFETCH(QColor, topLeft);
    QFETCH(QColor, bottomRight);
    const QImage picture = shapedFrame(frameOption(shape, shadow, 1));
    QCOMPARE(picture.pixel(centre.x(), 0), topLeft.rgb());
    QCOMPARE(picture.pixel(0, centre.y()), topLeft.rgb());
    QCOMPARE(picture.pixel(centre.x(), size.height() - 1), bottomRight.rgb());
    QCOMPARE(picture.pixel(size.width() - 1, centre.y()), bottomRight.rgb());
    QVERIFY(!containsColor(picture, Qt::magenta));
}

void FramePaintTest::plain_data()
{
    QTest::addColumn<QFrame::Shape>("shape");
    QTest::newRow("box") << QFrame::Box;
    QTest::newRow("panel") << QFrame::Panel;
    QTest::newRow("window") << QFrame::WinPanel;
}

void FramePaintTest::plain()
{
    QFETCH(QFrame::Shape, shape);
    QStyleOptionFrame option = frameOption(shape, QFrame::Plain, 2);
    const auto compare = [&](const QWidget *widget, const QColor &color) {
        QImage expected(size, QImage::Format_RGB32);
        expected.fill(color);
        QPainter painter(&expected);
        painter.fillRect(QRect(QPoint(), size).adjusted(2, 2, -2, -2), Qt::black);
        painter.end();
        QCOMPARE(shapedFrame(option, widget), expected);
    };
    compare(nullptr, Qt::magenta);

    QFrame frame;
    frame.setForegroundRole(QPalette::BrightText);
    option.palette.setColor(QPalette::BrightText, Qt::cyan);
    compare(&frame, Qt::cyan);
}

void FramePaintTest::styledPanelIsOfTheProxy()
{
    m_recorder.stopAt("PE_Frame");
    const QImage picture = shapedFrame(frameOption(QFrame::StyledPanel, QFrame::Raised, 1));
    QCOMPARE(m_recorder.elements(), QStringList{text("PE_Frame")});
    const PaintCall call = m_recorder.call("PE_Frame");
    QCOMPARE(call.rect, QRect(QPoint(), size));
    QCOMPARE(call.state, QStyle::State_Enabled | QStyle::State_Raised);
    QVERIFY(m_theme.namesIn(picture).isEmpty());
}

void FramePaintTest::noFrame()
{
    QImage expected(size, QImage::Format_RGB32);
    expected.fill(Qt::black);
    QCOMPARE(shapedFrame(frameOption(QFrame::NoFrame, QFrame::Raised, 1)), expected);
}

void FramePaintTest::exaggeratedLineWidth_data()
{
    QTest::addColumn<QFrame::Shape>("shape");
    QTest::addColumn<QFrame::Shadow>("shadow");
    QTest::addColumn<int>("lineWidth");
    for (const int lineWidth : {std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        QTest::addRow("plain, %d", lineWidth) << QFrame::Box << QFrame::Plain << lineWidth;
        QTest::addRow("box, %d", lineWidth) << QFrame::Box << QFrame::Raised << lineWidth;
        QTest::addRow("panel, %d", lineWidth) << QFrame::Panel << QFrame::Sunken << lineWidth;
        QTest::addRow("line, %d", lineWidth) << QFrame::HLine << QFrame::Sunken << lineWidth;
    }
}

void FramePaintTest::exaggeratedLineWidth()
{
    QFETCH(QFrame::Shape, shape);
    QFETCH(QFrame::Shadow, shadow);
    QFETCH(int, lineWidth);
    QStyleOptionFrame option = frameOption(shape, shadow, lineWidth);
    option.midLineWidth = lineWidth;
    option.rect = QRect(20, 20, 40, 20);
    QImage picture = shapedFrame(option);
    QPainter painter(&picture);
    painter.fillRect(option.rect, Qt::black);
    painter.end();
    QImage expected(size, picture.format());
    expected.fill(Qt::black);
    // However wide the lines, they stay inside.
    QCOMPARE(picture, expected);

    option.rect = QRect(-(1 << 24), -(1 << 24), 1 << 25, 1 << 25);
    shapedFrame(option);
}

void FramePaintTest::shapedFrameNeedsItsOption()
{
    QStyleOption option;
    option.rect = QRect(QPoint(), size);
    QCOMPARE(m_recorder.picture(QStyle::CE_ShapedFrame, option, nullptr, size),
             fusionPicture(QStyle::CE_ShapedFrame, option, nullptr, size));
}

QTEST_MAIN(FramePaintTest)
#include "FramePaintTest.moc"
