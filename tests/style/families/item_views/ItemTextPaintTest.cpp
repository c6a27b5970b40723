#include "style/families/item_views/ItemSample.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtGui/QPainter>
#include <QtGui/QStandardItemModel>
#include <QtTest/QtTest>
#include <QtWidgets/QListView>
#include <QtWidgets/QTableView>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/Pixels.h>
#include <support/themes/IconTheme.h>
#include <support/themes/PaintTheme.h>

namespace {

QString textOf(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

/// The texts of items.
class ItemTextPaintTest : public ItemTest
{
    Q_OBJECT

private:
    void compareLayouts(QStyleOptionViewItem option)
    {
        for (const bool isWrapped : {false, true}) {
            option.features.setFlag(QStyleOptionViewItem::WrapText, isWrapped);
            for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
                option.direction = direction;
                for (const auto mode :
                     {Qt::ElideRight, Qt::ElideLeft, Qt::ElideMiddle, Qt::ElideNone}) {
                    option.textElideMode = mode;
                    for (const Qt::Alignment alignment :
                         {Qt::AlignLeft | Qt::AlignVCenter, Qt::AlignRight | Qt::AlignTop,
                          Qt::AlignHCenter | Qt::AlignBottom}) {
                        option.displayAlignment = alignment;
                        QCOMPARE(picture(option), fusionPicture(option));
                    }
                }
            }
        }
    }

private Q_SLOTS:
    void initTestCase() { prepareIcons(); }

    void textLooksAsTheToolkitsDoes_data()
    {
        QTest::addColumn<QString>("string");
        const QChar newLine = QChar::LineSeparator;
        QTest::newRow("short") << text("Root.tif");
        QTest::newRow("long") << text("A text that is certainly wider than the item");
        QTest::newRow("one long word") << QString(60, QLatin1Char('m'));
        QTest::newRow("Arabic") << textOf("قياس المساحة");
        QTest::newRow("long Arabic") << textOf("قياس المساحة بين نقطتين في الصورة المجهرية");
        QTest::newRow("mixed directions") << textOf("area قياس 42 μm");
        QTest::newRow("combining marks") << textOf("Ne\u0301e\u0323l\u0302 A\u030a\u0327");
        QTest::newRow("stacked marks") << textOf("o\u0301\u0301\u0301\u0301\u0301\u0301\u0301x");
        QTest::newRow("Devanagari") << textOf("क्षेत्रफल मापन");
        QTest::newRow("ligatures") << text("office fluff affine");
        QTest::newRow("tabulators") << text("a\tb\tc");
        QTest::newRow("many tabulators") << text("one\ttwo\tthree\tfour");
        QTest::newRow("two lines") << text("First") + newLine + text("second");
        QTest::newRow("many lines")
            << text("1") + newLine + text("2") + newLine + text("3") + newLine + text("4");
        QTest::newRow("wide lines") << text("A text that is wider than the item") + newLine +
                                           text("and another one of that kind");
        QTest::newRow("plain line feed") << text("First\nsecond");
        QTest::newRow("ends with a line") << text("First") + newLine;
        QTest::newRow("only a line") << QString(newLine);
        QTest::newRow("spaces") << text("   ");
        QTest::newRow("variants") << text("Long variant\x9cshort");
        QTest::newRow("ampersand") << text("Drag & drop &now");
    }

    /// Compares the text with the toolkit's, in all ways to lay it out.
    void textLooksAsTheToolkitsDoes()
    {
        QFETCH(QString, string);
        m_recorder.stopAt("PE_PanelItemViewItem");
        QStyleOptionViewItem option = itemOption(string);
        for (const QFont &font : {QFont(text("DejaVu Sans"), 10), QFont(text("DejaVu Serif"), 13),
                                  QFont(text("DejaVu Sans"), 30, QFont::Bold, true)}) {
            option.font = font;
            option.fontMetrics = QFontMetrics(font);
            for (const QRect &rect : {itemRect, QRect(10, 10, 60, 30), QRect(10, 10, 130, 45),
                                      QRect(10, 10, 100, 7), QRect(40, 10, 7, 30)}) {
                option.rect = rect;
                compareLayouts(option);
            }
        }
    }

    /// Letters that reach beyond their line: slanted ones, marks above capitals, and such that
    /// stand on one another.
    void nothingIsLeftOutsideOfTheItem()
    {
        m_recorder.stopAt("PE_PanelItemViewItem");
        QStyleOptionViewItem option = itemOption(textOf("ÄÖ áf\u0301"));
        for (qreal size = 6; size < 22; size += 0.25) {
            for (const qreal spacing : {100.0, 1.0}) {
                for (const auto capitals : {QFont::MixedCase, QFont::SmallCaps}) {
                    QFont font(text("DejaVu Serif"));
                    font.setPointSizeF(size);
                    font.setItalic(true);
                    font.setCapitalization(capitals);
                    font.setLetterSpacing(QFont::PercentageSpacing, spacing);
                    option.font = font;
                    option.fontMetrics = QFontMetrics(font);
                    const int height = option.fontMetrics.height();
                    option.rect = QRect(10, 20, 100, height);
                    option.displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
                    QCOMPARE(picture(option), fusionPicture(option));
                }
            }
        }
    }

    void textColors_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("isHoverHighlighted");
        QTest::addColumn<QColor>("color");
        const int enabled = QStyle::State_Enabled | QStyle::State_Active;
        const int selected = QStyle::State_Selected;
        const int hovered = QStyle::State_MouseOver;
        const int editing = QStyle::State_Editing;
        QTest::newRow("rest") << enabled << true << textColor;
        QTest::newRow("selected") << (enabled | selected) << true << highlightedTextColor;
        QTest::newRow("hovered") << (enabled | hovered) << true << highlightedTextColor;
        QTest::newRow("hovered, not highlighted") << (enabled | hovered) << false << textColor;
        QTest::newRow("edited, selected") << (enabled | selected | editing) << true << textColor;
        QTest::newRow("disabled") << 0 << true << QColor(1, 2, 3);
        QTest::newRow("disabled, selected") << selected << true << QColor(1, 2, 3);
        QTest::newRow("disabled, under the mouse") << hovered << true << QColor(1, 2, 3);
        QTest::newRow("inactive") << int(QStyle::State_Enabled) << true << QColor(7, 8, 9);
    }

    void textColors()
    {
        QFETCH(int, state);
        QFETCH(bool, isHoverHighlighted);
        QFETCH(QColor, color);
        QTableView view;
        view.setProperty("highlightItemsOnMouseHover", isHoverHighlighted);
        // A bar that fills whole pixels.
        QStyleOptionViewItem option = itemOption(blocks());
        option.state = QStyle::State(state);
        option.palette.setBrush(QPalette::Disabled, QPalette::Text, QColor(1, 2, 3));
        option.palette.setBrush(QPalette::Disabled, QPalette::HighlightedText, QColor(4, 5, 6));
        option.palette.setBrush(QPalette::Inactive, QPalette::Text, QColor(7, 8, 9));
        QVERIFY(containsColor(picture(option, &view), color));
    }

    void editedTextIsFramed()
    {
        QStyleOptionViewItem option = itemOption(text("i"));
        QVERIFY(picture(option).pixelColor(itemRect.topLeft()) != textColor);
        option.state |= QStyle::State_Editing;
        const QImage edited = picture(option);
        QCOMPARE(edited.pixelColor(itemRect.topLeft()), textColor);
        QCOMPARE(edited.pixelColor(itemRect.bottomRight()), textColor);
        QVERIFY(edited.pixelColor(itemRect.center()) != textColor);
    }

    void textEndsBeforeChildIndicator()
    {
        QStandardItemModel model;
        auto *item = new QStandardItem(text("Item"));
        item->appendRow(new QStandardItem(text("Child")));
        model.appendRow(item);
        QListView view;
        view.setModel(&model);
        view.setProperty("drawChildIndicatorInListView", true);
        m_recorder.stopAt("PE_PanelItemViewItem");
        QStyleOptionViewItem option = itemOption(QString());
        option.index = item->index();
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            option.direction = direction;
            option.text.clear();
            const QImage indicator = picture(option, &view);
            const QRect marked = paintedRect(indicator, Qt::white);
            QVERIFY(!marked.isNull());
            option.text = QString(60, QLatin1Char('m'));
            QCOMPARE(picture(option, &view).copy(marked), indicator.copy(marked));
        }
    }
};

QTEST_MAIN(ItemTextPaintTest)
#include "ItemTextPaintTest.moc"
