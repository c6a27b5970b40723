#include <style/BaseStyle.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOption>

#include <algorithm>
#include <limits>
#include <memory>
#include <support/ProcessorTimer.h>
#include <support/Text.h>
#include <support/themes/PaintTheme.h>

namespace {

constexpr QRect room(0, 0, 300, 26);

/// Returns a text that is like no other before it, so that it can't be kept.
QString freshText(const QString &words, int length)
{
    static int count = 0;
    return (QString::number(++count) + words.repeated(length / words.size() + 1)).left(length);
}

QStyleOptionViewItem itemOption(const QString &string, Qt::TextElideMode mode, bool isWrapped)
{
    QStyleOptionViewItem option;
    option.rect = room;
    option.state = QStyle::State_Enabled;
    option.showDecorationSelected = true;
    option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    option.textElideMode = mode;
    option.features = QStyleOptionViewItem::HasDisplay;
    option.features.setFlag(QStyleOptionViewItem::WrapText, isWrapped);
    option.font = QApplication::font();
    option.text = string;
    return option;
}

QStyleOptionMenuItem entryOption(const QString &string)
{
    QStyleOptionMenuItem option;
    option.rect = room;
    option.state = QStyle::State_Enabled;
    option.menuItemType = QStyleOptionMenuItem::Normal;
    option.font = QApplication::font();
    option.fontMetrics = QFontMetrics(option.font);
    option.text = string;
    return option;
}

/// What draws a text in one way.
using Draw = void (*)(const QStyle &style, QPainter &painter, const QString &string);

template <Qt::TextElideMode mode, bool isWrapped>
void drawItem(const QStyle &style, QPainter &painter, const QString &string)
{
    const QStyleOptionViewItem option = itemOption(string, mode, isWrapped);
    style.drawControl(QStyle::CE_ItemViewItem, &option, &painter);
}

void drawEntry(const QStyle &style, QPainter &painter, const QString &string)
{
    const QStyleOptionMenuItem option = entryOption(string);
    style.drawControl(QStyle::CE_MenuItem, &option, &painter);
}

qint64 timeOf(const QStyle &style, Draw draw, const QString &string)
{
    QImage picture(room.size(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    const ProcessorTimer timer;
    draw(style, painter, string);
    return timer.nsecsElapsed();
}

} // namespace

Q_DECLARE_METATYPE(Draw)

/// Texts far longer than there is room for.
class LongTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesNoLongerThanByFusion_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<Draw>("draw");
        const QString hebrew = QString::fromUtf8("\u05e9\u05dc\u05d5\u05dd ");
        for (const QString &words : {text("word "), hebrew, text("word ") + hebrew + text("12 ")}) {
            const QByteArray name = words.toUtf8().toPercentEncoding();
            QTest::newRow("elided item, " + name) << words << Draw(drawItem<Qt::ElideRight, false>);
            QTest::newRow("cut item, " + name) << words << Draw(drawItem<Qt::ElideNone, false>);
            QTest::newRow("wrapped item, " + name) << words << Draw(drawItem<Qt::ElideRight, true>);
            QTest::newRow("entry, " + name) << words << Draw(drawEntry);
        }
    }

    void takesNoLongerThanByFusion()
    {
        QFETCH(QString, words);
        QFETCH(Draw, draw);
        const PaintTheme theme;
        const TARN::BaseStyle style;
        const std::unique_ptr<QStyle> fusion(QStyleFactory::create(text("fusion")));
        constexpr int length = 100'000;
        qint64 byStyle = std::numeric_limits<qint64>::max();
        qint64 byFusion = byStyle;
        for (int round = 0; round < 4; ++round) {
            byStyle = std::min(byStyle, timeOf(style, draw, freshText(words, length)));
            byFusion = std::min(byFusion, timeOf(*fusion, draw, freshText(words, length)));
        }
        const double ratio = double(byStyle) / double(byFusion);
        QVERIFY2(ratio < 1.4, qPrintable(QString::number(ratio)));
    }

    // What is beside the item stays clear of a text that is not elided.
    void longTextIsCut()
    {
        const PaintTheme theme;
        const TARN::BaseStyle style;
        for (const int length : {600, 5000}) {
            QStyleOptionViewItem option =
                itemOption(freshText(text("word "), length), Qt::ElideNone, false);
            option.rect = QRect(20, 10, 60, 12);
            QImage picture(100, 40, QImage::Format_RGB32);
            picture.fill(Qt::magenta);
            QPainter painter(&picture);
            style.drawControl(QStyle::CE_ItemViewItem, &option, &painter);
            painter.end();
            QImage frame = picture;
            painter.begin(&frame);
            painter.fillRect(option.rect, Qt::magenta);
            painter.end();
            QVERIFY(picture != frame);
            QImage clear(picture.size(), picture.format());
            clear.fill(Qt::magenta);
            QCOMPARE(frame, clear);
        }
    }

    // The beginning and the end of what an entry says are seen, and its key is underlined.
    void longEntryIsElidedInItsMiddle()
    {
        const PaintTheme theme;
        const TARN::BaseStyle style;
        const auto picture = [&](const QString &string) {
            QImage result(room.size(), QImage::Format_RGB32);
            result.fill(Qt::white);
            QPainter painter(&result);
            drawEntry(style, painter, string);
            return result;
        };
        const QString words = text("word ").repeated(30);
        const QString longWords = text("word ").repeated(3000);
        QCOMPARE(picture(longWords), picture(words));
        QVERIFY(picture(text("Other ") + longWords) != picture(words));
        QVERIFY(picture(longWords + text("other")) != picture(words));
    }
};

QTEST_MAIN(LongTextTest)
#include "LongTextTest.moc"
