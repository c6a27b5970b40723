#include "style/families/menus/MenuSample.h"

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QMenu>

#include <support/MessageRecorder.h>
#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/OddRectangles.h>
#include <support/themes/PaintTheme.h>

/// Menus and their entries.
class MenuPaintTest : public QObject
{
    Q_OBJECT

private:
    PaintTheme m_theme;
    CallRecorder m_recorder;

    QImage picture(const QStyleOptionMenuItem &option, const QWidget *widget = nullptr)
    {
        return m_recorder.picture(QStyle::CE_MenuItem, option, widget, pictureSize);
    }

private Q_SLOTS:
    void initTestCase()
    {
        // It makes the disabled pictures of icons.
        QApplication::setStyle(new TARN::BaseStyle);
    }

    /// Whoever paints where nothing can be painted is told so by the toolkit, and lives.
    void panelOfAPainterThatIsNotAtWork()
    {
        MessageRecorder messages;
        QPainter painter;
        QStyleOption option;
        option.rect = itemRect;
        m_recorder.style().drawPrimitive(QStyle::PE_PanelMenu, &option, &painter);
        QVERIFY(!messages.take().isEmpty());
    }

    void panel()
    {
        QStyleOption option;
        option.rect = itemRect;
        option.state = QStyle::State_Enabled;
        option.palette.setBrush(QPalette::Window, QColor(200, 100, 50));
        const QImage panel = m_recorder.picture(QStyle::PE_PanelMenu, option, nullptr, pictureSize);
        const QColor frame(QColor(200, 100, 50).darker(160).rgb());
        for (int x = itemRect.left(); x <= itemRect.right(); ++x) {
            QCOMPARE(panel.pixelColor(x, itemRect.top()), frame);
            QCOMPARE(panel.pixelColor(x, itemRect.bottom()), frame);
        }
        for (int y = itemRect.top(); y <= itemRect.bottom(); ++y) {
            QCOMPARE(panel.pixelColor(itemRect.left(), y), frame);
            QCOMPARE(panel.pixelColor(itemRect.right(), y), frame);
        }
        QCOMPARE(rectOf(panel, m_theme.brush(text("BackgroundSubLevel1Brush"))),
                 itemRect.adjusted(1, 1, -1, -1));
    }

    void surfaces_data()
    {
        QTest::addColumn<bool>("hasMenu");
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("fill");
        const int enabled = QStyle::State_Enabled;
        const int selected = QStyle::State_Selected;
        QTest::newRow("rest") << true << enabled << text("BackgroundSubLevel1Brush");
        QTest::newRow("no widget") << false << enabled << QString();
        QTest::newRow("highlighted") << true << (enabled | selected) << text("MainColor");
        QTest::newRow("no widget, highlighted")
            << false << (enabled | selected) << text("MainColor");
        // A disabled entry lies on the same menu as the others.
        QTest::newRow("disabled") << true << 0 << text("BackgroundSubLevel1Brush");
        QTest::newRow("disabled, selected") << true << selected << text("BackgroundSubLevel1Brush");
    }

    void surfaces()
    {
        QFETCH(bool, hasMenu);
        QFETCH(int, state);
        QFETCH(QString, fill);
        const QMenu menu;
        const QImage entry =
            picture(itemOption(QString(), QStyle::State(state)), hasMenu ? &menu : nullptr);
        QCOMPARE(m_theme.nameAt(entry, itemRect.topLeft()), fill);
        QCOMPARE(m_theme.nameAt(entry, itemRect.bottomRight()), fill);
        QVERIFY(m_theme.nameAt(entry, itemRect.topLeft() - QPoint(1, 1)).isEmpty());
    }

    /// No tint makes a picture of many colours stand out from the highlight.
    void highlightedIconMayHaveItsOwnPicture()
    {
        const QMenu menu;
        QStyleOptionMenuItem option = itemOption(QString());
        option.maxIconWidth = 20;
        option.icon = squareIcon(Qt::blue);
        QPixmap ofHighlight(16, 16);
        ofHighlight.fill(Qt::green);
        option.icon.addPixmap(ofHighlight, QIcon::Selected);
        QCOMPARE(rectOf(picture(option, &menu), Qt::blue).size(), QSize(16, 16));
        option.state |= QStyle::State_Selected;
        QCOMPARE(rectOf(picture(option, &menu), Qt::green).size(), QSize(16, 16));
    }

    /// The entries reach to the edge of their menu, and would hide its outline.
    void outline_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("type");
        const int enabled = QStyle::State_Enabled;
        QTest::newRow("rest") << enabled << int(QStyleOptionMenuItem::Normal);
        QTest::newRow("highlighted")
            << (enabled | QStyle::State_Selected) << int(QStyleOptionMenuItem::Normal);
        QTest::newRow("disabled") << 0 << int(QStyleOptionMenuItem::Normal);
        QTest::newRow("separator") << enabled << int(QStyleOptionMenuItem::Separator);
    }

    void outline()
    {
        QFETCH(int, state);
        QFETCH(int, type);
        const QColor window(200, 100, 50);
        const QColor line(window.darker(160).rgb());
        QMenu menu;
        menu.resize(pictureSize);
        QStyleOptionMenuItem option = itemOption(QString(), QStyle::State(state));
        option.menuItemType = QStyleOptionMenuItem::MenuItemType(type);
        option.palette.setBrush(QPalette::Window, window);
        const QRect whole(QPoint(), pictureSize);
        const QRect middle(0, 10, whole.width(), 20);
        for (const QRect &rect : {whole, middle}) {
            option.rect = rect;
            const QImage entry = picture(option, &menu);
            QRegion lines;
            for (int y = 0; y < entry.height(); ++y) {
                for (int x = 0; x < entry.width(); ++x) {
                    if (entry.pixelColor(x, y) == line) {
                        lines += QRect(x, y, 1, 1);
                    }
                }
            }
            // Regions are compared by how they are cut into rectangles.
            const QRegion expected = QRegion(rect) - whole.adjusted(1, 1, -1, -1);
            QVERIFY(lines.xored(expected).isEmpty());
        }
        option.rect = itemRect;
        QVERIFY(rectOf(picture(option, &menu), line).isNull());
    }

    void foregrounds_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QColor>("expectedColor");
        QTest::addColumn<QColor>("iconColor");
        const int enabled = QStyle::State_Enabled;
        const int selected = QStyle::State_Selected;
        QTest::newRow("rest") << enabled << textColor
                              << m_theme.brush(text("ButtonUncheckedForegroundBrush"));
        QTest::newRow("highlighted")
            << (enabled | selected) << highlightedTextColor << highlightedTextColor;
        QTest::newRow("disabled") << 0 << disabledTextColor << disabledTextColor;
        QTest::newRow("disabled, selected") << selected << disabledTextColor << disabledTextColor;
    }

    void foregrounds()
    {
        QFETCH(int, state);
        QFETCH(QColor, expectedColor);
        QFETCH(QColor, iconColor);
        const QMenu menu;
        QStyleOptionMenuItem option = itemOption(bar() + text("\t") + bar(), QStyle::State(state));
        option.tabWidth = 40;
        const QRect texts = rectOf(picture(option, &menu), expectedColor);
        QVERIFY(texts.left() < itemRect.left() + 40);
        QVERIFY(texts.right() > itemRect.right() - 60);
        option.text.clear();
        option.maxIconWidth = 20;
        option.icon = squareIcon();
        QCOMPARE(rectOf(picture(option, &menu), iconColor).size(), QSize(16, 16));
        for (const auto checkType :
             {QStyleOptionMenuItem::Exclusive, QStyleOptionMenuItem::NonExclusive}) {
            QStyleOptionMenuItem checked = itemOption(QString(), QStyle::State(state));
            checked.menuHasCheckableItems = true;
            checked.checkType = checkType;
            QVERIFY(rectOf(picture(checked, &menu), expectedColor).isNull());
            checked.checked = true;
            QVERIFY(!rectOf(picture(checked, &menu), expectedColor).isNull());
        }
    }

    void marks()
    {
        QStyleOptionMenuItem option = itemOption(QString());
        option.menuHasCheckableItems = true;
        option.checked = true;
        // The mark is centred in the entry, as far from its edge as from the text.
        const QRect square(itemRect.left() + 5, itemRect.top() + 5, 14, 14);
        for (const bool isExclusive : {true, false}) {
            option.checkType =
                isExclusive ? QStyleOptionMenuItem::Exclusive : QStyleOptionMenuItem::NonExclusive;
            QImage expected(pictureSize, QImage::Format_RGB32);
            expected.fill(Qt::black);
            QPainter painter(&expected);
            if (isExclusive) {
                m_recorder.style().drawRadioMark(&painter, square, textColor);
            } else {
                m_recorder.style().drawCheckMark(&painter, square, textColor);
            }
            painter.end();
            QCOMPARE(picture(option), expected);
        }
    }

    void separators()
    {
        QStyleOptionMenuItem option = itemOption(QString());
        option.menuItemType = QStyleOptionMenuItem::Separator;
        const QRect line(itemRect.left(), itemRect.center().y(), itemRect.width(), 1);
        QCOMPARE(rectOf(picture(option), lineColor), line);
        QCOMPARE(m_recorder.elements(), QStringList());

        option.text = bar(3);
        const QImage section = picture(option);
        const QRect title = rectOf(section, textColor);
        const QRect rest = rectOf(section, lineColor);
        QVERIFY(!title.isNull());
        QVERIFY(title.right() < rest.left());
        QCOMPARE(rest.right(), itemRect.right());
        QCOMPARE(m_recorder.elements(), QStringList{text("drawItemText")});

        option.direction = Qt::RightToLeft;
        const QImage reverse = picture(option);
        QCOMPARE(rectOf(reverse, lineColor), mirrored(rest));
        QVERIFY(rectOf(reverse, textColor).left() > rectOf(reverse, lineColor).right());
    }

    void separatorsAreNotHighlighted()
    {
        const QMenu menu;
        QStyleOptionMenuItem option =
            itemOption(QString(), QStyle::State_Enabled | QStyle::State_Selected);
        option.menuItemType = QStyleOptionMenuItem::Separator;
        QCOMPARE(m_theme.nameAt(picture(option, &menu), corner), text("BackgroundSubLevel1Brush"));
    }

    void arrowOfSubMenu_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("isReverse");
        QTest::newRow("rest") << int(QStyle::State_Enabled) << false;
        QTest::newRow("highlighted")
            << int(QStyle::State_Enabled | QStyle::State_Selected) << false;
        QTest::newRow("disabled") << 0 << false;
        QTest::newRow("right to left") << int(QStyle::State_Enabled) << true;
    }

    void arrowOfSubMenu()
    {
        QFETCH(int, state);
        QFETCH(bool, isReverse);
        QStyleOptionMenuItem option = itemOption(text("Measure"), QStyle::State(state));
        option.menuItemType = QStyleOptionMenuItem::SubMenu;
        option.direction = isReverse ? Qt::RightToLeft : Qt::LeftToRight;
        picture(option);
        const char *name = isReverse ? "PE_IndicatorArrowLeft" : "PE_IndicatorArrowRight";
        QCOMPARE(m_recorder.elements(), QStringList{text(name)});
        const PaintCall arrow = m_recorder.call(name);
        QCOMPARE(arrow.rect.size(), QSize(12, 12));
        QVERIFY(qAbs(arrow.rect.center().y() - itemRect.center().y()) <= 1);
        QCOMPARE((isReverse ? mirrored(arrow.rect) : arrow.rect).right(), itemRect.right() - 5);
        QCOMPARE(int(arrow.state), state);
    }

    void rightToLeft()
    {
        QStyleOptionMenuItem option = itemOption(bar(2) + text("\t") + bar(2));
        option.tabWidth = option.fontMetrics.horizontalAdvance(bar(2));
        const QRect texts = rectOf(picture(option), textColor);
        option.direction = Qt::RightToLeft;
        QCOMPARE(rectOf(picture(option), textColor), mirrored(texts));
        option.text.clear();
        option.icon = squareIcon(Qt::blue);
        option.maxIconWidth = 20;
        const QRect icon = rectOf(picture(option), Qt::blue);
        option.direction = Qt::LeftToRight;
        QCOMPARE(icon, mirrored(rectOf(picture(option), Qt::blue)));
        QVERIFY(icon.left() > itemRect.center().x());
    }

    void comboBoxEntries_data()
    {
        QTest::addColumn<bool>("isComboBox");
        QTest::newRow("combo box") << true;
        QTest::newRow("marked widget") << false;
    }

    /// The entries of a combo box begin at their edge and have no mark for the current one.
    void comboBoxEntries()
    {
        QFETCH(bool, isComboBox);
        QComboBox comboBox;
        QWidget marked;
        marked.setProperty("_q_isComboBoxPopupItem", true);
        const QWidget *widget = isComboBox ? &comboBox : &marked;
        QStyleOptionMenuItem option = itemOption(bar());
        option.checkType = QStyleOptionMenuItem::NonExclusive;
        option.checked = true;
        const QRect entry = rectOf(picture(option, widget), textColor);
        const QMenu menu;
        const QRect menuEntry = rectOf(picture(option, &menu), textColor);
        QVERIFY(entry.left() < itemRect.left() + 8);
        QVERIFY(entry.width() < menuEntry.width());
        // A model with check states has its entries marked.
        option.text.clear();
        QVERIFY(rectOf(picture(option, widget), textColor).isNull());
        option.state |= QStyle::State_On;
        QVERIFY(!rectOf(picture(option, widget), textColor).isNull());
    }

    void iconSizeOfComboBox()
    {
        QComboBox comboBox;
        comboBox.setIconSize({10, 10});
        QStyleOptionMenuItem option = itemOption(QString());
        option.icon = squareIcon(Qt::blue);
        option.maxIconWidth = 14;
        QCOMPARE(rectOf(picture(option, &comboBox), Qt::blue).size(), QSize(10, 10));
    }

    void otherOptions()
    {
        const QMenu menu;
        QStyleOptionButton option;
        option.rect = itemRect;
        option.state = QStyle::State_Enabled | QStyle::State_Selected;
        const QImage other = m_recorder.picture(QStyle::CE_MenuItem, option, &menu, pictureSize);
        QCOMPARE(m_theme.namesIn(other), QStringList());
    }

    void rectangles_data() { addOddRectangles(); }

    void rectangles()
    {
        QFETCH(QRect, rect);
        const QMenu menu;
        QStyleOptionMenuItem option = itemOption(text("Label\tShortcut"));
        option.icon = squareIcon();
        option.rect = rect;
        QImage black(pictureSize, QImage::Format_RGB32);
        black.fill(Qt::black);
        for (const auto type : {QStyleOptionMenuItem::Normal, QStyleOptionMenuItem::SubMenu,
                                QStyleOptionMenuItem::Separator}) {
            option.menuItemType = type;
            QCOMPARE(picture(option, &menu) == black, rect.isEmpty());
        }
        QCOMPARE(m_recorder.picture(QStyle::PE_PanelMenu, option, &menu, pictureSize) == black,
                 rect.isEmpty());
    }
};

QTEST_MAIN(MenuPaintTest)
#include "MenuPaintTest.moc"
