#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QToolButton>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

namespace {

constexpr QStyle::State enabled = QStyle::State_Enabled | QStyle::State_Active;
constexpr QStyle::State hovered = enabled | QStyle::State_MouseOver;

constexpr QSize pictureSize(120, 60);
constexpr QRect buttonRect(10, 10, 80, 30);

QStyleOptionToolButton toolButton(QStyle::State state)
{
    QStyleOptionToolButton option;
    option.rect = buttonRect;
    option.state = state;
    option.icon = squareIcon();
    option.iconSize = QSize(16, 16);
    option.toolButtonStyle = Qt::ToolButtonIconOnly;
    return option;
}

} // namespace

Q_DECLARE_METATYPE(Qt::ArrowType)

/// The icons, arrows and texts of tool buttons.
class ToolButtonLabelPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textColors();
    void textOnly_data();
    void textOnly();
    void textUnderIcon();
    void textBesideIcon();
    void userConnector();
    void buttonType();
    void longTextIsElided();
    void font();
    void arrowInsteadOfIcon();
    void arrowElements_data();
    void arrowElements();
    void arrowPreparesTheCallersOption();
    void nothingToPrepare_data();
    void nothingToPrepare();

private:
    PaintTheme m_theme;
    CallRecorder m_recorder;

    QImage label(const QStyleOption &option, const QWidget *widget = nullptr)
    {
        return m_recorder.picture(QStyle::CE_ToolButtonLabel, option, widget, pictureSize);
    }
    void drawArrow(const QStyleOptionToolButton &option, const QWidget *widget = nullptr)
    {
        QImage picture(pictureSize, QImage::Format_RGB32);
        QPainter painter(&picture);
        m_recorder.style().drawToolButtonArrow(&m_recorder, &option, option.rect, &painter, widget);
    }
    QRect rectOf(const char *element) const { return m_recorder.call(element).rect; }
};

void ToolButtonLabelPaintTest::textColors()
{
    QStyleOptionToolButton option = toolButton(enabled);
    option.toolButtonStyle = Qt::ToolButtonTextOnly;
    option.text = blocks(2);
    option.palette.setBrush(QPalette::Active, QPalette::ButtonText,
                            m_theme.brush(text("MainBrush")));
    option.palette.setBrush(QPalette::Disabled, QPalette::ButtonText,
                            m_theme.brush(text("MainBrushDisabled")));
    QCOMPARE(m_theme.namesIn(label(option)), QStringList{text("MainBrush")});

    option.state = QStyle::State_None;
    QCOMPARE(m_theme.namesIn(label(option)), QStringList{text("MainBrushDisabled")});
}

void ToolButtonLabelPaintTest::textOnly_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<bool>("hasIcon");

    QTest::newRow("text only") << int(Qt::ToolButtonTextOnly) << true;
    QTest::newRow("no icon to show") << int(Qt::ToolButtonIconOnly) << false;
    QTest::newRow("no icon beside") << int(Qt::ToolButtonTextBesideIcon) << false;
}

void ToolButtonLabelPaintTest::textOnly()
{
    QFETCH(int, style);
    QFETCH(bool, hasIcon);
    QStyleOptionToolButton option = toolButton(enabled);
    option.toolButtonStyle = Qt::ToolButtonStyle(style);
    option.text = text("Text");
    option.icon = hasIcon ? squareIcon() : QIcon();
    label(option);

    QCOMPARE(m_recorder.elements(), QStringList{text("drawItemText")});
    QCOMPARE(rectOf("drawItemText"), buttonRect);
}

void ToolButtonLabelPaintTest::textUnderIcon()
{
    QStyleOptionToolButton option = toolButton(enabled);
    option.toolButtonStyle = Qt::ToolButtonTextUnderIcon;
    option.rect.setHeight(40);
    option.text = text("Text");
    label(option);

    QCOMPARE(rectOf("drawItemPixmap").size(), QSize(16, 16));
    QCOMPARE(rectOf("drawItemPixmap").left(), 10 + (80 - 16) / 2);
    QCOMPARE(rectOf("drawItemPixmap").top(), 10 + 4 / 2);
    QCOMPARE(rectOf("drawItemText"), QRect(10, 10 + 20 - 1, 80, 40 - 20));
}

void ToolButtonLabelPaintTest::textBesideIcon()
{
    QStyleOptionToolButton option = toolButton(enabled);
    option.toolButtonStyle = Qt::ToolButtonTextBesideIcon;
    option.text = text("Text");
    label(option);
    QCOMPARE(rectOf("drawItemPixmap"), QRect(12, 17, 16, 16));
    QCOMPARE(rectOf("drawItemText"), QRect(30, 10, 60, 30));

    option.direction = Qt::RightToLeft;
    label(option);
    QCOMPARE(rectOf("drawItemPixmap"), QRect(72, 17, 16, 16));
    QCOMPARE(rectOf("drawItemText"), QRect(10, 10, 60, 30));
}

void ToolButtonLabelPaintTest::userConnector()
{
    QToolButton widget;
    widget.setProperty("UserConnector", true);
    QStyleOptionToolButton option = toolButton(enabled);
    option.toolButtonStyle = Qt::ToolButtonTextBesideIcon;
    option.text = text("Name");
    label(option, &widget);
    QCOMPARE(rectOf("drawItemText"), QRect(10, 10, 60, 30));
    QCOMPARE(rectOf("drawItemPixmap"), QRect(72, 17, 16, 16));

    option.direction = Qt::RightToLeft;
    label(option, &widget);
    QCOMPARE(rectOf("drawItemText"), QRect(30, 10, 60, 30));
    QCOMPARE(rectOf("drawItemPixmap"), QRect(12, 17, 16, 16));
}

void ToolButtonLabelPaintTest::buttonType()
{
    QToolButton widget;
    widget.setProperty("ButtonType", text("Primary"));
    QStyleOptionToolButton option = toolButton(enabled);
    option.toolButtonStyle = Qt::ToolButtonTextBesideIcon;
    option.text = text("Text");
    label(option, &widget);

    const QRect icon = rectOf("drawItemPixmap");
    const int textWidth = option.fontMetrics.size(Qt::TextShowMnemonic, option.text).width();
    const int before = icon.left() - 2 - buttonRect.left();
    const int after = buttonRect.right() - (rectOf("drawItemText").left() + textWidth - 1);
    QVERIFY(before > 2);
    QVERIFY(qAbs(before - after) <= 1);
    QCOMPARE(rectOf("drawItemText").left(), icon.right() + 1 + 2);
}

void ToolButtonLabelPaintTest::longTextIsElided()
{
    QStyleOptionToolButton option = toolButton(enabled);
    option.toolButtonStyle = Qt::ToolButtonTextBesideIcon;
    option.text = text("A text that is much longer than the button");
    label(option);

    const QString shown = m_recorder.call("drawItemText").text;
    QVERIFY(shown.contains(QChar(0x2026)));
    QVERIFY(option.fontMetrics.horizontalAdvance(shown) <= rectOf("drawItemText").width());
    QVERIFY(shown.startsWith(QLatin1Char('A')));
    QVERIFY(shown.endsWith(QLatin1Char('n')));
}

void ToolButtonLabelPaintTest::font()
{
    QStyleOptionToolButton option = toolButton(enabled);
    option.toolButtonStyle = Qt::ToolButtonTextOnly;
    option.text = text("i");
    option.palette.setColor(QPalette::ButtonText, Qt::white);
    const QImage ordinary = label(option);
    option.font.setPixelSize(24);
    QVERIFY(label(option) != ordinary);

    QImage picture(pictureSize, QImage::Format_RGB32);
    QPainter painter(&picture);
    const QFont before = painter.font();
    m_recorder.style().drawControl(QStyle::CE_ToolButtonLabel, &option, &painter);
    QCOMPARE(painter.font(), before);
}

void ToolButtonLabelPaintTest::arrowInsteadOfIcon()
{
    QStyleOptionToolButton option = toolButton(enabled);
    option.features = QStyleOptionToolButton::Arrow;
    option.arrowType = Qt::RightArrow;
    label(option);
    QCOMPARE(m_recorder.elements(), QStringList{text("PE_IndicatorArrowRight")});
    QCOMPARE(rectOf("PE_IndicatorArrowRight"), buttonRect);

    option.toolButtonStyle = Qt::ToolButtonTextBesideIcon;
    option.text = text("Text");
    option.direction = Qt::RightToLeft;
    label(option);
    QCOMPARE(rectOf("PE_IndicatorArrowRight"), QRect(70, 10, 20, 30));
    QCOMPARE(rectOf("drawItemText"), QRect(10, 10, 60, 30));
}

void ToolButtonLabelPaintTest::arrowElements_data()
{
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<QStringList>("elements");

    QTest::newRow("none") << Qt::NoArrow << QStringList();
    QTest::newRow("up") << Qt::UpArrow << QStringList{text("PE_IndicatorArrowUp")};
    QTest::newRow("down") << Qt::DownArrow << QStringList{text("PE_IndicatorArrowDown")};
    QTest::newRow("left") << Qt::LeftArrow << QStringList{text("PE_IndicatorArrowLeft")};
    QTest::newRow("right") << Qt::RightArrow << QStringList{text("PE_IndicatorArrowRight")};
    QTest::newRow("unknown") << Qt::ArrowType(7) << QStringList();
}

void ToolButtonLabelPaintTest::arrowElements()
{
    QFETCH(Qt::ArrowType, arrow);
    QFETCH(QStringList, elements);
    QStyleOptionToolButton option = toolButton(enabled);
    option.arrowType = arrow;
    QImage picture(pictureSize, QImage::Format_RGB32);
    QPainter painter(&picture);
    CallRecorder drawer;
    const QRect room(20, 5, 30, 20);
    m_recorder.style().drawToolButtonArrow(&drawer, &option, room, &painter, nullptr);

    // It is the style that was passed in which draws.
    QCOMPARE(drawer.elements(), elements);
    QCOMPARE(m_recorder.elements(), QStringList());
    if (!elements.isEmpty()) {
        QCOMPARE(drawer.calls().front().rect, room);
    }
    QCOMPARE(option.rect, buttonRect);
}

void ToolButtonLabelPaintTest::arrowPreparesTheCallersOption()
{
    QStyleOptionToolButton option = toolButton(hovered);
    option.arrowType = Qt::DownArrow;
    drawArrow(option);

    const QColor expected = m_theme.brush(text("ButtonUncheckedHoverForegroundBrush"));
    QCOMPARE(option.palette.color(QPalette::ButtonText), expected);
    QCOMPARE(option.palette.color(QPalette::WindowText), expected);
    QCOMPARE(option.icon.pixmap(16, 16).toImage().pixelColor(8, 8), expected);
}

void ToolButtonLabelPaintTest::nothingToPrepare_data()
{
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<bool>("isOutline");

    QTest::newRow("no arrow") << Qt::NoArrow << false;
    QTest::newRow("no foreground brush") << Qt::DownArrow << true;
}

void ToolButtonLabelPaintTest::nothingToPrepare()
{
    QFETCH(Qt::ArrowType, arrow);
    QFETCH(bool, isOutline);
    QToolButton widget;
    widget.setProperty("outline", isOutline);
    QStyleOptionToolButton option = toolButton(enabled);
    option.arrowType = arrow;
    const QPalette palette = option.palette;
    const qint64 icon = option.icon.cacheKey();
    drawArrow(option, &widget);

    QCOMPARE(option.palette, palette);
    QCOMPARE(option.icon.cacheKey(), icon);
}

QTEST_MAIN(ToolButtonLabelPaintTest)
#include "ToolButtonLabelPaintTest.moc"
