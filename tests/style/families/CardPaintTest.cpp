#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QFrame>

#include <support/Components.h>
#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/themes/PaintTheme.h>

namespace {

constexpr QSize size(60, 40);
constexpr int radius = 8;

const QPoint centre(30, 20);
const QPoint leftEdge(0, 20);

enum Properties {
    None = 0,
    Header = 1,
    Footer = 2,
    Minimized = 4,
    Inverted = 8,
};

} // namespace

/// The grounds of the parts of cards.
class CardPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void face_data();
    void face();
    void corners_data();
    void corners();
    void cornersWithoutRadius();
    void border_data();
    void border();
    void separator_data();
    void separator();
    void contentsHaveNoSeparator();
    void minimizedHeaderHasNoSeparator();
    void expandableIsFainter_data();
    void expandableIsFainter();
    void staysInside();

private:
    /// Returns the picture of \a part of m_card.
    QImage picture(const QWidget &part, const QColor &ground = Qt::black,
                   QStyle::State state = QStyle::State_Enabled)
    {
        QStyleOption option;
        option.rect = QRect(QPoint(), size);
        option.state = state;
        return m_recorder.picture(QStyle::PE_Widget, option, &part, size, ground);
    }

    QWidget *makePart(const QString &mark)
    {
        auto *part = new QWidget(&m_card);
        part->setProperty(mark.toLatin1(), true);
        return part;
    }

    PaintTheme m_theme = PaintTheme({0, 0, radius, 0});
    CallRecorder m_recorder;
    TARN::Components::CardWidget m_card;
};

void CardPaintTest::face_data()
{
    QTest::addColumn<QString>("part");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("expected");
    const QString face = text("BackgroundUpLevel1Brush");
    const QString disabledFace = text("BackgroundUpLevel1BrushDisabled");
    QTest::newRow("header") << text("CardWidgetBase_Header") << true << face;
    QTest::newRow("disabled header") << text("CardWidgetBase_Header") << false << disabledFace;
    QTest::newRow("contents") << text("CardWidgetBase_Contents") << true << QString();
    QTest::newRow("footer") << text("CardWidgetBase_Footer") << true << face;
    QTest::newRow("disabled footer") << text("CardWidgetBase_Footer") << false << disabledFace;
}

void CardPaintTest::face()
{
    QFETCH(QString, part);
    QFETCH(bool, enabled);
    QFETCH(QString, expected);
    const QImage image =
        picture(*makePart(part), Qt::black, enabled ? QStyle::State_Enabled : QStyle::State_None);
    QCOMPARE(m_theme.nameAt(image, centre), expected);
    QCOMPARE(m_theme.nameAt(image, leftEdge),
             enabled ? text("CardBorderBrush") : text("CardBorderBrushDisabled"));
}

void CardPaintTest::corners_data()
{
    QTest::addColumn<QString>("part");
    QTest::addColumn<int>("properties");
    QTest::addColumn<bool>("onPart");
    QTest::addColumn<bool>("isRoundAtTop");
    QTest::addColumn<bool>("isRoundAtBottom");
    const QString header = text("CardWidgetBase_Header");
    const QString contents = text("CardWidgetBase_Contents");
    const QString footer = text("CardWidgetBase_Footer");
    const auto row = [](const char *name, const QString &part, int properties, bool isRoundAtTop,
                        bool isRoundAtBottom) {
        QTest::newRow(name) << part << properties << false << isRoundAtTop << isRoundAtBottom;
        // The card alone can be minimised.
        if (!(properties & Minimized)) {
            QTest::addRow("%s, properties on the part", name)
                << part << properties << true << isRoundAtTop << isRoundAtBottom;
        }
    };
    row("header", header, None, true, false);
    row("inverted header", header, Inverted, false, true);
    row("minimised header", header, Minimized, true, true);
    row("minimised header with footer", header, Minimized | Footer, true, false);
    row("contents", contents, None, true, true);
    row("contents with header", contents, Header, false, true);
    row("contents with footer", contents, Footer, true, false);
    row("contents with both", contents, Header | Footer, false, false);
    row("inverted contents with header", contents, Header | Inverted, true, false);
    row("inverted contents with footer", contents, Footer | Inverted, false, true);
    row("footer", footer, None, false, true);
    row("inverted footer", footer, Inverted, true, false);
    row("minimised footer", footer, Minimized, true, true);
    row("minimised footer with header", footer, Minimized | Header, false, true);
}

void CardPaintTest::corners()
{
    QFETCH(QString, part);
    QFETCH(int, properties);
    QFETCH(bool, onPart);
    QFETCH(bool, isRoundAtTop);
    QFETCH(bool, isRoundAtBottom);
    QWidget *widget = makePart(part);
    QWidget *holder = onPart ? widget : &m_card;
    holder->setProperty("headerVisible", (properties & Header) != 0);
    holder->setProperty("footerVisible", (properties & Footer) != 0);
    holder->setProperty("invertedAppearance", (properties & Inverted) != 0);
    m_card.setProperty("minimized", (properties & Minimized) != 0);

    const QImage image = picture(*widget);
    const int right = size.width() - 1;
    const int bottom = size.height() - 1;
    const auto isUnpainted = [&](int x, int y) { return image.pixelColor(x, y) == Qt::black; };
    QCOMPARE(isUnpainted(0, 0), isRoundAtTop);
    QCOMPARE(isUnpainted(right, 0), isRoundAtTop);
    QCOMPARE(isUnpainted(0, bottom), isRoundAtBottom);
    QCOMPARE(isUnpainted(right, bottom), isRoundAtBottom);
}

void CardPaintTest::cornersWithoutRadius()
{
    QWidget *contents = makePart(text("CardWidgetBase_Contents"));
    QVERIFY(m_theme.nameAt(picture(*contents), {0, 0}).isEmpty());
    m_card.setProperty("CardWidget_NoCornerRadius", true);
    QCOMPARE(m_theme.nameAt(picture(*contents), {0, 0}), text("CardBorderBrush"));
}

void CardPaintTest::border_data()
{
    QTest::addColumn<bool>("onPart");
    QTest::addColumn<QVariant>("shape");
    QTest::addColumn<bool>("hasBorder");
    QTest::newRow("unset") << true << QVariant() << true;
    QTest::newRow("none") << true << QVariant::fromValue(QFrame::NoFrame) << false;
    QTest::newRow("none, on the card") << false << QVariant::fromValue(QFrame::NoFrame) << false;
    QTest::newRow("panel") << true << QVariant::fromValue(QFrame::StyledPanel) << true;
}

void CardPaintTest::border()
{
    QFETCH(bool, onPart);
    QFETCH(QVariant, shape);
    QFETCH(bool, hasBorder);
    for (const char *part : {"CardWidgetBase_Header", "CardWidgetBase_Footer"}) {
        QWidget *widget = makePart(text(part));
        (onPart ? widget : &m_card)->setProperty("shape", shape);
        const QImage image = picture(*widget);
        QCOMPARE(m_theme.shows(image, text("CardBorderBrush")), hasBorder);
        // Without a border the face reaches the edge.
        QCOMPARE(m_theme.nameAt(image, leftEdge),
                 hasBorder ? text("CardBorderBrush") : text("BackgroundUpLevel1Brush"));
    }
}

void CardPaintTest::separator_data()
{
    QTest::addColumn<QString>("part");
    QTest::addColumn<bool>("isInverted");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("expected");
    const QString header = text("CardWidgetBase_Header");
    const QString footer = text("CardWidgetBase_Footer");
    const int bottom = size.height() - 1;
    QTest::newRow("header") << header << false << true << bottom << text("BackgroundUpLevel2Color");
    QTest::newRow("disabled header")
        << header << false << false << bottom << text("BackgroundUpLevel2ColorDisabled");
    QTest::newRow("inverted header")
        << header << true << true << 0 << text("BackgroundUpLevel2Color");
    QTest::newRow("footer") << footer << false << true << 0 << text("CardBorderBrush");
    QTest::newRow("inverted footer") << footer << true << true << bottom << text("CardBorderBrush");
}

void CardPaintTest::separator()
{
    QFETCH(QString, part);
    QFETCH(bool, isInverted);
    QFETCH(bool, enabled);
    QFETCH(int, row);
    QFETCH(QString, expected);
    m_card.setProperty("invertedAppearance", isInverted);
    const QImage image =
        picture(*makePart(part), Qt::black, enabled ? QStyle::State_Enabled : QStyle::State_None);
    for (const int x : {0, centre.x(), size.width() - 1}) {
        QCOMPARE(m_theme.nameAt(image, {x, row}), expected);
    }
    // It is one pixel high.
    const int next = row == 0 ? 1 : row - 1;
    QCOMPARE(m_theme.nameAt(image, {centre.x(), next}),
             enabled ? text("BackgroundUpLevel1Brush") : text("BackgroundUpLevel1BrushDisabled"));
}

void CardPaintTest::contentsHaveNoSeparator()
{
    m_card.setProperty("headerVisible", true);
    m_card.setProperty("footerVisible", true);
    const QImage image = picture(*makePart(text("CardWidgetBase_Contents")));
    QCOMPARE(m_theme.namesIn(image), QStringList{text("CardBorderBrush")});
    // The header's and the footer's own lines are not drawn a second time.
    QVERIFY(m_theme.nameAt(image, {centre.x(), 0}).isEmpty());
    QVERIFY(m_theme.nameAt(image, {centre.x(), size.height() - 1}).isEmpty());
}

void CardPaintTest::minimizedHeaderHasNoSeparator()
{
    m_card.setProperty("minimized", true);
    const QImage image = picture(*makePart(text("CardWidgetBase_Header")));
    QVERIFY(!m_theme.shows(image, text("BackgroundUpLevel2Color")));
    QCOMPARE(m_theme.nameAt(image, {centre.x(), size.height() - 1}), text("CardBorderBrush"));
}

void CardPaintTest::expandableIsFainter_data()
{
    QTest::addColumn<QString>("part");
    QTest::newRow("header") << text("CardWidgetBase_Header");
    QTest::newRow("footer") << text("CardWidgetBase_Footer");
}

void CardPaintTest::expandableIsFainter()
{
    QFETCH(QString, part);
    QWidget *widget = makePart(part);
    widget->setProperty("expandable", true);
    const QColor face = m_theme.brush(text("BackgroundUpLevel1Brush"));
    QCOMPARE(picture(*widget, face).pixelColor(centre), face);
    const QColor onBlack = picture(*widget, Qt::black).pixelColor(centre);
    QVERIFY(onBlack != QColor(Qt::black));
    QVERIFY(onBlack != face);
}

void CardPaintTest::staysInside()
{
    const QWidget *footer = makePart(text("CardWidgetBase_Footer"));
    QStyleOption option;
    option.rect = QRect(10, 10, 40, 20);
    option.state = QStyle::State_Enabled;
    QImage image = m_recorder.picture(QStyle::PE_Widget, option, footer, size);
    QPainter painter(&image);
    painter.fillRect(option.rect, Qt::black);
    painter.end();
    QImage expected(size, image.format());
    expected.fill(Qt::black);
    QCOMPARE(image, expected);
}

QTEST_MAIN(CardPaintTest)
#include "CardPaintTest.moc"
