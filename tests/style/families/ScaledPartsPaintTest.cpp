#include <style/BaseStyle.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>

#include <functional>
#include <memory>
#include <support/Text.h>
#include <support/themes/PaintTheme.h>

namespace {

constexpr QSize size(80, 60);
constexpr qreal scales[] = {1, 1.25, 1.5, 1.75, 2};

using Paint = void (*)(const QStyle &style, QPainter &painter, const QRect &rect);

template <typename Option>
Option optionIn(const QRect &rect)
{
    Option option;
    option.rect = rect;
    option.state = QStyle::State_Enabled;
    option.palette.setColor(QPalette::Text, Qt::white);
    return option;
}

template <QStyle::PrimitiveElement element, typename Option = QStyleOption>
void primitive(const QStyle &style, QPainter &painter, const QRect &rect)
{
    const auto option = optionIn<Option>(rect);
    style.drawPrimitive(element, &option, &painter);
}

template <QStyle::ControlElement element, typename Option = QStyleOption>
void control(const QStyle &style, QPainter &painter, const QRect &rect)
{
    const auto option = optionIn<Option>(rect);
    style.drawControl(element, &option, &painter);
}

void sizeGrip(const QStyle &style, QPainter &painter, const QRect &rect)
{
    auto option = optionIn<QStyleOptionSizeGrip>(rect);
    option.corner = Qt::BottomRightCorner;
    style.drawControl(QStyle::CE_SizeGrip, &option, &painter);
}

void openTab(const QStyle &style, QPainter &painter, const QRect &rect)
{
    auto option = optionIn<QStyleOptionToolBox>(rect);
    option.state |= QStyle::State_Selected;
    style.drawControl(QStyle::CE_ToolBoxTabShape, &option, &painter);
}

struct Row
{
    const char *name;
    Paint paint;
};

const Row rows[] = {
    {"size grip", sizeGrip},
    {"open tab of a tool box", openTab},
    {"handle of a dock", primitive<QStyle::PE_IndicatorDockWidgetResizeHandle>},
    {"frame of a dock", primitive<QStyle::PE_FrameDockWidget>},
    {"torn bar", primitive<QStyle::PE_IndicatorTabTear, QStyleOptionTab>},
    {"tear-off", control<QStyle::CE_MenuTearoff, QStyleOptionMenuItem>},
    {"margin of a menu", control<QStyle::CE_MenuVMargin, QStyleOptionMenuItem>},
    {"focus frame", control<QStyle::CE_FocusFrame>},
    {"page of a scroll bar", control<QStyle::CE_ScrollBarAddPage>},
};

} // namespace

Q_DECLARE_METATYPE(Paint)

/// What consists of straight edges, as it is painted when a unit is a fraction of pixels.
class ScaledPartsPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void edgesAreCrisp_data();
    void edgesAreCrisp();
    void dotsAreAlike_data();
    void dotsAreAlike();

private:
    /// Returns what is painted at \a scale in \a rect.
    QImage picture(Paint paint, qreal scale, const QRect &rect) const
    {
        QImage image(size * 2, QImage::Format_RGB32);
        image.fill(Qt::black);
        image.setDevicePixelRatio(scale);
        QPainter painter(&image);
        paint(m_style, painter, rect);
        painter.end();
        image.setDevicePixelRatio(1);
        return image;
    }

    PaintTheme m_theme;
    TARN::BaseStyle m_style;
};

void ScaledPartsPaintTest::edgesAreCrisp_data()
{
    QTest::addColumn<Paint>("paint");
    QTest::addColumn<qreal>("scale");
    for (const Row &row : rows) {
        for (const qreal scale : scales) {
            QTest::addRow("%s at %g", row.name, scale) << row.paint << scale;
        }
    }
}

/// Each pixel has one of the colours, and none lies outside of the rectangle.
void ScaledPartsPaintTest::edgesAreCrisp()
{
    QFETCH(Paint, paint);
    QFETCH(qreal, scale);
    const QRect rect(5, 7, 41, 33);
    const QImage image = picture(paint, scale, rect);
    const QRectF onDevice(QPointF(rect.topLeft()) * scale, QSizeF(rect.size()) * scale);
    const QRect outer = onDevice.toAlignedRect();
    int painted = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color == QColor(Qt::black)) {
                continue;
            }
            ++painted;
            QVERIFY(outer.contains(x, y));
            QVERIFY2(color == QColor(Qt::white) || !m_theme.nameOf(color).isEmpty(),
                     qPrintable(text("%1,%2 is %3").arg(x).arg(y).arg(color.name())));
        }
    }
    QVERIFY(painted > 0);
}

void ScaledPartsPaintTest::dotsAreAlike_data()
{
    QTest::addColumn<qreal>("scale");
    QTest::addColumn<QVector<int>>("runs");
    QTest::newRow("1") << 1.0 << QVector<int>{2, 2, 2, 2, 2};
    QTest::newRow("1.5") << 1.5 << QVector<int>{3, 3, 3, 3, 3};
    QTest::newRow("2") << 2.0 << QVector<int>{4, 4, 4, 4, 4};
}

/// The dots of a row are of one size at every usual scale.
void ScaledPartsPaintTest::dotsAreAlike()
{
    QFETCH(qreal, scale);
    QFETCH(QVector<int>, runs);
    const QImage image =
        picture(primitive<QStyle::PE_IndicatorDockWidgetResizeHandle>, scale, QRect(0, 0, 40, 6));
    QVector<int> found;
    int run = 0;
    const int middle = qRound(3 * scale) - 1;
    for (int x = 0; x < image.width(); ++x) {
        if (m_theme.nameAt(image, {x, middle}) == text("ForegroundDisabledBrush")) {
            ++run;
        } else if (run > 0) {
            found.append(run);
            run = 0;
        }
    }
    QCOMPARE(found, runs);
}

QTEST_MAIN(ScaledPartsPaintTest)
#include "ScaledPartsPaintTest.moc"
