#include <QtTest/QtTest>
#include <QtWidgets/QDockWidget>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/FusionPicture.h>
#include <support/themes/IconTheme.h>
#include <support/themes/PaintTheme.h>

namespace {

constexpr QSize size(200, 24);
constexpr QSize uprightSize(24, 200);

QStyleOptionDockWidget dockTitle(const QString &title)
{
    QStyleOptionDockWidget option;
    option.rect = QRect(QPoint(), size);
    option.state = QStyle::State_Enabled;
    option.title = title;
    return option;
}

QStyleOptionDockWidget uprightDockTitle(const QString &title)
{
    QStyleOptionDockWidget option = dockTitle(title);
    option.rect = QRect(QPoint(), uprightSize);
    option.verticalTitleBar = true;
    return option;
}

} // namespace

/// The titles of docks.
class DockWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void title_data();
    void title();
    void uprightTitle();
    void grips_data();
    void grips();
    void textIsElided();
    void textHidesMnemonic();
    void textIsInFontOfWidget();
    void disabledText();
    void withoutTitle();
    void needsItsOption();

private:
    QImage dockPicture(const QStyleOptionDockWidget &option, const QWidget *widget = nullptr)
    {
        return m_recorder.picture(QStyle::CE_DockWidgetTitle, option, widget, option.rect.size());
    }

    PaintTheme m_theme;
    CallRecorder m_recorder;
};

void DockWidgetTest::title_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("enabled") << true << QString();
    QTest::newRow("disabled") << false << text("Disabled");
}

void DockWidgetTest::title()
{
    QFETCH(bool, enabled);
    QFETCH(QString, suffix);
    QStyleOptionDockWidget option = dockTitle(QString());
    option.state.setFlag(QStyle::State_Enabled, enabled);
    QImage expected(size, QImage::Format_RGB32);
    expected.fill(m_theme.brush(text("BackgroundUpLevel1Brush") + suffix));
    QPainter painter(&expected);
    painter.fillRect(0, size.height() - 1, size.width(), 1,
                     m_theme.brush(text("CardBorderBrush") + suffix));
    painter.end();
    QCOMPARE(dockPicture(option), expected);
}

void DockWidgetTest::uprightTitle()
{
    const QImage picture = dockPicture(uprightDockTitle(QString()));
    QCOMPARE(m_theme.nameAt(picture, {23, 100}), text("CardBorderBrush"));
    QCOMPARE(m_theme.nameAt(picture, {12, 199}), text("BackgroundUpLevel1Brush"));

    // The text runs along the bar.
    dockPicture(uprightDockTitle(text("Layers")));
    const QRect textRect = m_recorder.call("drawItemText").rect;
    QVERIFY(textRect.width() > textRect.height());
    QVERIFY(textRect.width() <= uprightSize.height());
}

void DockWidgetTest::grips_data()
{
    QTest::addColumn<bool>("isUpright");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("start");
    QTest::newRow("left to right") << false << Qt::LeftToRight << QRect(0, 0, 10, 24);
    QTest::newRow("right to left") << false << Qt::RightToLeft << QRect(190, 0, 10, 24);
    QTest::newRow("upright") << true << Qt::LeftToRight << QRect(0, 190, 24, 10);
    QTest::newRow("upright, right to left") << true << Qt::RightToLeft << QRect(0, 190, 24, 10);
}

// What can be moved shows grips, which the title makes room for.
void DockWidgetTest::grips()
{
    QFETCH(bool, isUpright);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QRect, start);
    m_recorder.stopAt("drawItemText");
    const QString title = text("Layers");
    QStyleOptionDockWidget option = isUpright ? uprightDockTitle(title) : dockTitle(title);
    option.title.clear();
    option.direction = direction;
    const QImage fixed = dockPicture(option);
    option.movable = true;
    const QImage movable = dockPicture(option);
    QRect difference;
    for (int y = 0; y < fixed.height(); ++y) {
        for (int x = 0; x < fixed.width(); ++x) {
            if (fixed.pixel(x, y) != movable.pixel(x, y)) {
                difference |= QRect(x, y, 1, 1);
            }
        }
    }
    QVERIFY(!difference.isEmpty());
    QCOMPARE(start.united(difference), start);

    option.title = title;
    dockPicture(option);
    const QRect movableText = m_recorder.call("drawItemText").rect;
    option.movable = false;
    dockPicture(option);
    const QRect fixedText = m_recorder.call("drawItemText").rect;
    QCOMPARE(fixedText.width() - movableText.width(), 8);
    if (!isUpright) {
        QVERIFY(!movableText.intersects(difference));
        QVERIFY(fixedText.contains(movableText));
    }
}

void DockWidgetTest::textIsElided()
{
    QStyleOptionDockWidget option = dockTitle(text("Layers"));
    dockPicture(option);
    QCOMPARE(m_recorder.call("drawItemText").text, text("Layers"));
    option.title = text("A title that does not fit into the title bar of a dock, far from it");
    dockPicture(option);
    const QString shown = m_recorder.call("drawItemText").text;
    QVERIFY(shown.size() < option.title.size());
    QVERIFY2(shown.endsWith(QChar(0x2026)), qPrintable(shown));
}

void DockWidgetTest::textHidesMnemonic()
{
    QCOMPARE(dockPicture(dockTitle(text("&Layers"))), dockPicture(dockTitle(text("Layers"))));
    QVERIFY(dockPicture(dockTitle(text("&&Layers"))) != dockPicture(dockTitle(text("Layers"))));
}

void DockWidgetTest::textIsInFontOfWidget()
{
    QDockWidget dock;
    QFont font = dock.font();
    font.setPixelSize(8);
    dock.setFont(font);
    const QImage small = dockPicture(dockTitle(text("Layers")), &dock);
    font.setPixelSize(16);
    dock.setFont(font);
    QVERIFY(dockPicture(dockTitle(text("Layers")), &dock) != small);
}

void DockWidgetTest::disabledText()
{
    QStyleOptionDockWidget option = dockTitle(text("Layers"));
    dockPicture(option);
    QCOMPARE(m_recorder.call("drawItemText").state, QStyle::State_Enabled);
    option.state = QStyle::State_None;
    dockPicture(option);
    QCOMPARE(m_recorder.call("drawItemText").state, QStyle::State_None);
}

void DockWidgetTest::withoutTitle()
{
    dockPicture(dockTitle(QString()));
    QVERIFY(m_recorder.calls().empty());
}

void DockWidgetTest::needsItsOption()
{
    QStyleOption option;
    option.rect = QRect(QPoint(), size);
    QCOMPARE(m_recorder.picture(QStyle::CE_DockWidgetTitle, option, nullptr, size),
             fusionPicture(QStyle::CE_DockWidgetTitle, option, nullptr, size));
}

QTEST_MAIN(DockWidgetTest)
#include "DockWidgetTest.moc"
