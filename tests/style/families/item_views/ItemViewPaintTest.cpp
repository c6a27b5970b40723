#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QListView>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTreeView>

#include <support/Components.h>
#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/OddRectangles.h>
#include <support/themes/PaintTheme.h>

namespace {

constexpr QSize pictureSize(60, 30);
constexpr QRect itemRect(5, 4, 50, 20);
constexpr QPoint inside(30, 12);
constexpr QPoint atBottom(30, 23);

QStyleOptionViewItem itemOption(QStyle::State state)
{
    QStyleOptionViewItem option;
    option.rect = itemRect;
    option.state = state;
    option.showDecorationSelected = true;
    return option;
}

/// Returns the list of the pop-up of \a comboBox.
QWidget *popupList(const QComboBox &comboBox)
{
    return comboBox.view();
}

bool isBlack(const QImage &picture)
{
    QImage black(picture.size(), picture.format());
    black.fill(Qt::black);
    return picture == black;
}

} // namespace

Q_DECLARE_METATYPE(QStyle::PrimitiveElement)

/// The backgrounds of items and rows, and the arrows and grips of column views.
class ItemViewPaintTest : public QObject
{
    Q_OBJECT

private:
    PaintTheme m_theme;
    CallRecorder m_recorder;
    QTemporaryDir m_icons;

    QString nameAt(QStyle::PrimitiveElement element, const QStyleOptionViewItem &option,
                   const QWidget *widget, const QPoint &pixel)
    {
        return m_theme.nameAt(m_recorder.picture(element, option, widget, pictureSize), pixel);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_icons.isValid());
        QDir::setSearchPaths(text("icons"), {m_icons.path()});
        QImage square(16, 16, QImage::Format_RGB32);
        square.fill(Qt::red);
        QVERIFY(square.save(m_icons.filePath(text("chevron.left.png"))));
        QVERIFY(square.save(m_icons.filePath(text("chevron.right.png"))));
    }

    void fillOfStates_data()
    {
        QTest::addColumn<QStyle::PrimitiveElement>("element");
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("isAlternate");
        QTest::addColumn<bool>("isHoverHighlighted");
        QTest::addColumn<QString>("fill");
        struct Case
        {
            const char *name;
            QStyle::State state;
            bool isAlternate;
            bool isHoverHighlighted;
            const char *fill;
        };
        const QStyle::State enabled = QStyle::State_Enabled;
        const QStyle::State hovered = enabled | QStyle::State_MouseOver;
        const QStyle::State selected = QStyle::State_Selected;
        const Case cases[] = {
            {"rest", enabled, false, true, "ItemViewBackgroundBrush"},
            {"alternate", enabled, true, true, "ItemViewAlternateBackgroundBrush"},
            {"hovered", hovered, false, true, "MainBrush"},
            {"hovered, alternate, selected", hovered | selected, true, true, "MainBrush"},
            {"hovered, not highlighted", hovered, false, false, "ItemViewBackgroundBrush"},
            {"selected", enabled | selected, false, true, "MainSubLevel1Brush"},
            {"selected, alternate", enabled | selected, true, true, "MainSubLevel1Brush"},
            {"disabled", {}, false, true, "ItemViewBackgroundBrushDisabled"},
            {"disabled, alternate", {}, true, true, "ItemViewAlternateBackgroundBrushDisabled"},
            {"disabled, under the mouse", QStyle::State_MouseOver, false, true,
             "ItemViewBackgroundBrushDisabled"},
            {"disabled, selected", selected, false, true, "MainSubLevel1BrushDisabled"},
        };
        for (const Case &c : cases) {
            QTest::addRow("item: %s", c.name)
                << QStyle::PE_PanelItemViewItem << int(c.state) << c.isAlternate
                << c.isHoverHighlighted << text(c.fill);
            QTest::addRow("row: %s", c.name)
                << QStyle::PE_PanelItemViewRow << int(c.state) << c.isAlternate
                << c.isHoverHighlighted << text(c.fill);
        }
    }

    void fillOfStates()
    {
        QFETCH(QStyle::PrimitiveElement, element);
        QFETCH(int, state);
        QFETCH(bool, isAlternate);
        QFETCH(bool, isHoverHighlighted);
        QFETCH(QString, fill);
        QTableView view;
        view.setProperty("highlightItemsOnMouseHover", isHoverHighlighted);
        QStyleOptionViewItem option = itemOption(QStyle::State(state));
        option.features.setFlag(QStyleOptionViewItem::Alternate, isAlternate);
        const QImage picture = m_recorder.picture(element, option, &view, pictureSize);
        for (int y = 0; y < pictureSize.height(); ++y) {
            for (int x = 0; x < pictureSize.width(); ++x) {
                QCOMPARE(m_theme.nameAt(picture, {x, y}),
                         itemRect.contains(x, y) ? fill : QString());
            }
        }
    }

    void withoutWidget()
    {
        for (const auto element : {QStyle::PE_PanelItemViewItem, QStyle::PE_PanelItemViewRow}) {
            const QStyle::State hovered = QStyle::State_Enabled | QStyle::State_MouseOver;
            QCOMPARE(nameAt(element, itemOption(hovered), nullptr, inside),
                     text("ItemViewBackgroundBrush"));
            QCOMPARE(nameAt(element, itemOption(hovered | QStyle::State_Selected), nullptr, inside),
                     text("MainSubLevel1Brush"));
        }
    }

    void selectionInFocusedView()
    {
        QTableView view;
        view.show();
        view.activateWindow();
        view.setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&view));
        QVERIFY(view.hasFocus());
        const QStyleOptionViewItem option =
            itemOption(QStyle::State_Enabled | QStyle::State_Selected);
        QCOMPARE(nameAt(QStyle::PE_PanelItemViewItem, option, &view, inside), text("MainBrush"));
        QCOMPARE(nameAt(QStyle::PE_PanelItemViewRow, option, &view, inside), text("MainBrush"));
    }

    void selectionInPopup()
    {
        QComboBox comboBox;
        comboBox.addItem(text("One"));
        const QWidget *list = popupList(comboBox);
        QVERIFY(!list->hasFocus());
        const QStyleOptionViewItem option =
            itemOption(QStyle::State_Enabled | QStyle::State_Selected);
        QCOMPARE(nameAt(QStyle::PE_PanelItemViewItem, option, list, inside), text("MainBrush"));
    }

    void selectionOfTextAlone()
    {
        QStyleOptionViewItem option = itemOption(QStyle::State_Enabled | QStyle::State_Selected);
        option.showDecorationSelected = false;
        option.features = QStyleOptionViewItem::HasDisplay;
        option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
        option.text = text("i");
        const QTableView view;
        QCOMPARE(nameAt(QStyle::PE_PanelItemViewItem, option, &view, {7, 12}),
                 text("MainSubLevel1Brush"));
        QCOMPARE(nameAt(QStyle::PE_PanelItemViewItem, option, &view, {50, 12}),
                 text("ItemViewBackgroundBrush"));
    }

    void ownPalette()
    {
        QTableView view;
        view.setProperty("customItemViewPalette", true);
        for (const auto element : {QStyle::PE_PanelItemViewItem, QStyle::PE_PanelItemViewRow}) {
            QStyleOptionViewItem option = itemOption(QStyle::State_Enabled);
            QVERIFY(isBlack(m_recorder.picture(element, option, &view, pictureSize)));
            option.features = QStyleOptionViewItem::Alternate;
            QCOMPARE(nameAt(element, option, &view, inside),
                     text("ItemViewAlternateBackgroundBrush"));
        }
    }

    void backgroundOfModel()
    {
        const QTableView view;
        QStyleOptionViewItem option = itemOption(QStyle::State_Enabled);
        option.backgroundBrush = QBrush(Qt::red);
        const QImage atRest =
            m_recorder.picture(QStyle::PE_PanelItemViewItem, option, &view, pictureSize);
        QCOMPARE(atRest.pixelColor(inside), QColor(Qt::red));
        option.state |= QStyle::State_Selected;
        QCOMPARE(nameAt(QStyle::PE_PanelItemViewItem, option, &view, inside),
                 text("MainSubLevel1Brush"));
    }

    void separators_data()
    {
        QTest::addColumn<bool>("areDrawn");
        QTest::addColumn<bool>("isFlat");
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("bottom");
        const int enabled = QStyle::State_Enabled;
        QTest::newRow("rest") << true << false << enabled << text("BackgroundColor");
        QTest::newRow("not asked for")
            << false << false << enabled << text("ItemViewBackgroundBrush");
        QTest::newRow("flat") << true << true << enabled << text("ItemViewBackgroundBrush");
        QTest::newRow("selected") << true << false << int(enabled | QStyle::State_Selected)
                                  << text("BackgroundColor");
        QTest::newRow("hovered") << true << false << int(enabled | QStyle::State_MouseOver)
                                 << text("MainBrush");
        QTest::newRow("disabled") << true << false << 0 << text("BackgroundColorDisabled");
    }

    void separators()
    {
        QFETCH(bool, areDrawn);
        QFETCH(bool, isFlat);
        QFETCH(int, state);
        QFETCH(QString, bottom);
        QListView view;
        view.setProperty("highlightItemsOnMouseHover", true);
        view.setProperty("drawItemsSeparators", areDrawn);
        view.setProperty("flatView", isFlat);
        const QStyleOptionViewItem option = itemOption(QStyle::State(state));
        for (const auto element : {QStyle::PE_PanelItemViewItem, QStyle::PE_PanelItemViewRow}) {
            QCOMPARE(nameAt(element, option, &view, atBottom), bottom);
            QVERIFY(nameAt(element, option, &view, atBottom - QPoint(0, 1)) !=
                    text("BackgroundColor"));
            QVERIFY(nameAt(element, option, &view, atBottom + QPoint(0, 1)).isEmpty());
        }
    }

    void noSeparatorsInPopup()
    {
        QComboBox comboBox;
        QWidget *list = popupList(comboBox);
        list->setProperty("drawItemsSeparators", true);
        QCOMPARE(
            nameAt(QStyle::PE_PanelItemViewItem, itemOption(QStyle::State_Enabled), list, atBottom),
            text("ItemViewBackgroundBrush"));
    }

    void rowSelectionByHint()
    {
        /// Selections cover the text alone.
        class TextSelection : public QProxyStyle
        {
        public:
            using QProxyStyle::QProxyStyle;
            int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                          QStyleHintReturn *returnData) const override
            {
                return hint == SH_ItemView_ShowDecorationSelected
                           ? 0
                           : QProxyStyle::styleHint(hint, option, widget, returnData);
            }
        };
        const TextSelection style(new TARN::BaseStyle);
        QStyleOptionViewItem option = itemOption(QStyle::State_Enabled | QStyle::State_Selected);
        option.features = QStyleOptionViewItem::Alternate;
        QImage picture(pictureSize, QImage::Format_RGB32);
        picture.fill(Qt::black);
        QPainter painter(&picture);
        style.drawPrimitive(QStyle::PE_PanelItemViewRow, &option, &painter);
        painter.end();
        QCOMPARE(m_theme.nameAt(picture, inside), text("ItemViewAlternateBackgroundBrush"));
    }

    void periodicTableHasNoRows()
    {
        const TARN::PeriodicTable::PeriodicTableView view;
        QStyleOptionViewItem option = itemOption(QStyle::State_Enabled | QStyle::State_Selected);
        option.features = QStyleOptionViewItem::Alternate;
        QVERIFY(
            isBlack(m_recorder.picture(QStyle::PE_PanelItemViewRow, option, &view, pictureSize)));
        QCOMPARE(nameAt(QStyle::PE_PanelItemViewItem, option, &view, inside),
                 text("MainSubLevel1Brush"));
    }

    void otherOptions()
    {
        QStyleOptionButton option;
        option.rect = itemRect;
        option.state = QStyle::State_Enabled | QStyle::State_Selected;
        for (const auto element : {QStyle::PE_PanelItemViewItem, QStyle::PE_PanelItemViewRow,
                                   QStyle::PE_IndicatorColumnViewArrow}) {
            const QImage picture = m_recorder.picture(element, option, nullptr, pictureSize);
            QCOMPARE(m_theme.namesIn(picture), QStringList());
        }
    }

    void rectangles_data() { addOddRectangles(); }

    void rectangles()
    {
        QFETCH(QRect, rect);
        QListView view;
        view.setProperty("drawItemsSeparators", true);
        QStyleOptionViewItem option = itemOption(QStyle::State_Enabled);
        option.rect = rect;
        for (const auto element : {QStyle::PE_PanelItemViewItem, QStyle::PE_PanelItemViewRow}) {
            const QImage picture = m_recorder.picture(element, option, &view, pictureSize);
            QCOMPARE(isBlack(picture), rect.isEmpty());
        }
    }

    void columnArrow_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("isReverse");
        QTest::addColumn<QPalette::ColorRole>("role");
        const int enabled = QStyle::State_Enabled;
        const int selected = QStyle::State_Selected;
        QTest::newRow("rest") << enabled << false << QPalette::WindowText;
        QTest::newRow("selected") << (enabled | selected) << false << QPalette::HighlightedText;
        QTest::newRow("disabled, selected") << selected << false << QPalette::WindowText;
        QTest::newRow("right to left") << enabled << true << QPalette::WindowText;
    }

    /// The arrow is painted as the theme's arrow is, with another text colour where it is selected.
    void columnArrow()
    {
        QFETCH(int, state);
        QFETCH(bool, isReverse);
        QFETCH(QPalette::ColorRole, role);
        QStyleOptionViewItem option = itemOption(QStyle::State(state));
        option.direction = isReverse ? Qt::RightToLeft : Qt::LeftToRight;
        option.palette.setBrush(QPalette::HighlightedText, Qt::red);
        option.palette.setBrush(QPalette::WindowText, Qt::green);
        QStyleOptionViewItem arrow(option);
        arrow.palette.setBrush(QPalette::WindowText, option.palette.brush(role));
        const QImage picture = m_recorder.picture(QStyle::PE_IndicatorColumnViewArrow, option,
                                                  nullptr, pictureSize, Qt::blue);
        QCOMPARE(picture, m_recorder.picture(isReverse ? QStyle::PE_IndicatorArrowLeft
                                                       : QStyle::PE_IndicatorArrowRight,
                                             arrow, nullptr, pictureSize, Qt::blue));
        QImage ground(pictureSize, picture.format());
        ground.fill(Qt::blue);
        QVERIFY(picture != ground);
    }

    void columnGrip()
    {
        QStyleOption option;
        option.rect = QRect(10, 2, 8, 26);
        const QImage picture =
            m_recorder.picture(QStyle::CE_ColumnViewGrip, option, nullptr, pictureSize);
        QImage expected(pictureSize, picture.format());
        expected.fill(Qt::black);
        QPainter painter(&expected);
        m_recorder.style().drawGrips(painter, Qt::Vertical, 4, 25, 13, 3, 2, 1);
        painter.end();
        QCOMPARE(picture, expected);
    }
};

QTEST_MAIN(ItemViewPaintTest)
#include "ItemViewPaintTest.moc"
