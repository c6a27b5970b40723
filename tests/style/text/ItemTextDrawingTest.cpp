#include <style/BaseStyle.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>

#include <support/Text.h>
#include <support/themes/PaintTheme.h>

namespace {

constexpr QRect room(6, 4, 120, 30);

struct Drawing
{
    QString text;
    QFont font;
    int flags;
    Qt::LayoutDirection direction;
    QRect rect;
    qreal scale;
};

template <typename Paint>
QImage paint(const Drawing &drawing, Paint paintText)
{
    QImage picture(QSize(140, 40) * drawing.scale, QImage::Format_RGB32);
    picture.setDevicePixelRatio(drawing.scale);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setFont(drawing.font);
    painter.setLayoutDirection(drawing.direction);
    painter.setPen(Qt::red);
    paintText(&painter);
    return picture;
}

/// Returns the text as the style draws it, for the second time.
QImage paintByStyle(const TARN::BaseStyle &style, const Drawing &drawing, const QPalette &palette,
                    QPalette::ColorRole role)
{
    QImage picture;
    for (int i = 0; i < 2; ++i) {
        picture = paint(drawing, [&](QPainter *painter) {
            style.drawItemText(painter, drawing.rect, drawing.flags, palette, true, drawing.text,
                               role);
        });
    }
    return picture;
}

QImage paintByToolkit(const Drawing &drawing, const QPen &pen)
{
    return paint(drawing, [&](QPainter *painter) {
        painter->setPen(pen);
        painter->drawText(drawing.rect, drawing.flags, drawing.text);
    });
}

const QStringList &texts()
{
    static const QStringList all{
        text("Apply"),
        text("&Apply"),
        text("Save && close"),
        text("&Save && &close"),
        text("A&"),
        text("two\nlines"),
        text("tab\tulator"),
        text(" spaces "),
        text("A label that is too long for its room by far"),
        QString::fromUtf8("\u0645\u0631\u062d\u0628\u0627 Qt"),
        QString::fromUtf8("\u05e9\u05dc\u05d5\u05dd, 12"),
        QString::fromUtf8("e\u0301\u0302 \u00b5m\u00b2"),
        QString::fromUtf8("\u65e5\u672c\u8a9e"),
        QString::fromUtf8("short\u009clonger"),
        QString::fromUtf8("line\u2028separator"),
        text(""),
        text("W"),
    };
    return all;
}

QVector<QFont> fonts()
{
    QFont underlined(text("DejaVu Sans"), 9);
    underlined.setUnderline(true);
    QFont spaced(text("DejaVu Sans"), 11);
    spaced.setLetterSpacing(QFont::AbsoluteSpacing, 1.5);
    return {QFont(text("DejaVu Sans"), 9), QFont(text("DejaVu Sans"), 12, QFont::Bold), underlined,
            spaced};
}

constexpr int alignments[] = {Qt::AlignCenter,
                              Qt::AlignLeft | Qt::AlignVCenter,
                              Qt::AlignRight | Qt::AlignTop,
                              Qt::AlignHCenter | Qt::AlignBottom,
                              Qt::AlignLeft | Qt::AlignAbsolute,
                              0};

constexpr int modes[] = {0,
                         Qt::TextShowMnemonic,
                         Qt::TextHideMnemonic,
                         Qt::TextShowMnemonic | Qt::TextHideMnemonic,
                         Qt::TextSingleLine,
                         Qt::TextDontClip,
                         Qt::TextWordWrap,
                         Qt::TextExpandTabs | Qt::TextForceLeftToRight,
                         Qt::TextForceRightToLeft | Qt::TextShowMnemonic};

} // namespace

/// That texts look as if the toolkit had drawn them.
class ItemTextDrawingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void looksAsTheToolkitsText_data()
    {
        QTest::addColumn<int>("direction");
        QTest::addColumn<qreal>("scale");
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft, Qt::LayoutDirectionAuto}) {
            for (const qreal scale : {1.0, 1.25, 2.0}) {
                QTest::addRow("direction %d at %g", direction, scale) << int(direction) << scale;
            }
        }
    }

    void looksAsTheToolkitsText()
    {
        QFETCH(int, direction);
        QFETCH(qreal, scale);
        const PaintTheme theme;
        const TARN::BaseStyle style;
        int count = 0;
        for (const QString &text : texts()) {
            for (const QFont &font : fonts()) {
                for (const int alignment : alignments) {
                    for (const int mode : modes) {
                        const Drawing drawing{text,
                                              font,
                                              alignment | mode,
                                              Qt::LayoutDirection(direction),
                                              count % 2 ? room : room.adjusted(0, 0, -40, -9),
                                              scale};
                        const QImage picture =
                            paintByStyle(style, drawing, QPalette(), QPalette::NoRole);
                        QVERIFY2(picture == paintByToolkit(drawing, QPen(Qt::red)),
                                 qPrintable(QStringLiteral("%1 in %2, flags %3")
                                                .arg(text, font.toString())
                                                .arg(drawing.flags, 0, 16)));
                        ++count;
                    }
                }
            }
        }
        QVERIFY(count > 1000);
    }

    void roleGivesTheColor()
    {
        const PaintTheme theme;
        const TARN::BaseStyle style;
        QPalette palette;
        palette.setColor(QPalette::Link, Qt::darkGreen);
        const Drawing drawing{
            text("Colour"), fonts().constFirst(), Qt::AlignCenter, Qt::LeftToRight, room, 1};
        const QImage picture = paintByStyle(style, drawing, palette, QPalette::Link);
        QCOMPARE(picture, paintByToolkit(drawing, QPen(Qt::darkGreen)));
    }

    /// The same text in another font, or on a device of another resolution, is another picture.
    void fontsAndDevicesAreToldApart()
    {
        const PaintTheme theme;
        const TARN::BaseStyle style;
        for (const int dotsPerMeter : {3780, 5000, 3780}) {
            QImage pictures[] = {QImage(140, 40, QImage::Format_RGB32),
                                 QImage(140, 40, QImage::Format_RGB32)};
            for (const int index : {0, 1}) {
                QImage &picture = pictures[index];
                picture.setDotsPerMeterX(dotsPerMeter);
                picture.setDotsPerMeterY(dotsPerMeter);
                picture.fill(Qt::white);
                QPainter painter(&picture);
                painter.setFont(fonts().constFirst());
                if (index == 0) {
                    style.drawItemText(&painter, room, Qt::AlignCenter, QPalette(), true,
                                       text("Resolution"), QPalette::NoRole);
                } else {
                    painter.drawText(room, Qt::AlignCenter, text("Resolution"));
                }
            }
            QCOMPARE(pictures[0], pictures[1]);
        }
    }

    void painterIsLeftAsItWas()
    {
        const PaintTheme theme;
        const TARN::BaseStyle style;
        QImage picture(140, 40, QImage::Format_RGB32);
        QPainter painter(&picture);
        const QPen pen(Qt::blue, 3, Qt::DotLine);
        painter.setPen(pen);
        painter.setClipRect(room);
        style.drawItemText(&painter, room, Qt::AlignLeft, QPalette(), true, texts().at(8),
                           QPalette::WindowText);
        QCOMPARE(painter.pen(), pen);
        QCOMPARE(painter.clipBoundingRect(), QRectF(room));
    }
};

QTEST_MAIN(ItemTextDrawingTest)
#include "ItemTextDrawingTest.moc"
