#include "style/IconTheme.h"
#include "style/painting/CallRecorder.h"
#include "style/painting/PaintTheme.h"

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QMenu>

#include <support/Text.h>

namespace {

constexpr QSize pictureSize(220, 40);
constexpr QRect itemRect(10, 8, 200, 25);
constexpr QPoint corner = QPoint(11, 9);

// None of them is a colour of the theme.
const QColor textColor(0x03, 0x90, 0x05);
const QColor highlightedTextColor(0x93, 0x05, 0x07);
const QColor disabledTextColor(0x73, 0x75, 0x77);
const QColor lineColor(0x09, 0x05, 0x97);

/// A text that fills whole pixels.
QString bar(int length = 1)
{
    return QString(length, QChar(0x2588));
}

QStyleOptionMenuItem itemOption(const QString &string, QStyle::State state = QStyle::State_Enabled)
{
    QStyleOptionMenuItem option;
    option.rect = itemRect;
    option.state = state;
    option.text = string;
    option.font = QFont(text("DejaVu Sans"), 9);
    option.fontMetrics = QFontMetrics(option.font);
    option.palette.setBrush(QPalette::Text, textColor);
    option.palette.setBrush(QPalette::HighlightedText, highlightedTextColor);
    option.palette.setBrush(QPalette::Disabled, QPalette::Text, disabledTextColor);
    option.palette.setBrush(QPalette::Midlight, lineColor);
    option.palette.setBrush(QPalette::Disabled, QPalette::Midlight, lineColor);
    return option;
}

QIcon squareIcon(const QColor &color = referenceForeground)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return QIcon(pixmap);
}

/// Returns the rectangle around all pixels of \a color.
QRect rectOf(const QImage &picture, const QColor &color)
{
    QRect rect;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == color) {
                rect |= QRect(x, y, 1, 1);
            }
        }
    }
    return rect;
}

/// Returns the rectangle around all pixels in which the pictures differ.
QRect differenceOf(const QImage &a, const QImage &b)
{
    QRect rect;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y)) {
                rect |= QRect(x, y, 1, 1);
            }
        }
    }
    return rect;
}

QRect mirrored(const QRect &rect)
{
    return QStyle::visualRect(Qt::RightToLeft, itemRect, rect);
}

/// Underlines shortcuts or not, as it is told.
class Underlining : public QProxyStyle
{
public:
    explicit Underlining(bool underlines)
        : QProxyStyle(new TARN::BaseStyle)
        , m_underlines(underlines)
    {
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        return hint == SH_UnderlineShortcut
                   ? int(m_underlines)
                   : QProxyStyle::styleHint(hint, option, widget, returnData);
    }

private:
    bool m_underlines;
};

} // namespace

Q_DECLARE_METATYPE(QStyleOptionMenuItem::MenuItemType)

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

    QImage picture(const QStyleOptionMenuItem &option, const QSize &size)
    {
        return m_recorder.picture(QStyle::CE_MenuItem, option, nullptr, size);
    }

    /// With more room the label looks the same: it is not elided.
    void checkLabelIsWhole(QStyleOptionMenuItem option, const QSize &size)
    {
        constexpr int more = 50;
        const QSize ample = size + QSize(more, 0);
        option.text = option.text.section(QLatin1Char('\t'), 0, 0);
        const QImage narrow = picture(option, ample);
        option.rect.setWidth(size.width() + more);
        QCOMPARE(narrow, picture(option, ample));
    }

    /// Nothing lies on anything else, and all of it inside of the entry.
    void checkPartsAreApart(QStyleOptionMenuItem option, const QSize &size,
                            const QStringList &texts, bool hasIcon)
    {
        option.text.clear();
        const QImage empty = picture(option, size);
        QVector<QRect> parts;
        for (const QString &string : texts) {
            QStyleOptionMenuItem withText(option);
            withText.text = string;
            parts.append(differenceOf(picture(withText, size), empty));
            QCOMPARE(parts.last().isNull(), string.isEmpty());
        }
        QStyleOptionMenuItem withIcon(option);
        withIcon.icon = hasIcon ? squareIcon(Qt::blue) : QIcon();
        parts.append(differenceOf(picture(withIcon, size), empty));
        QCOMPARE(parts.last().isNull(), !hasIcon);
        QStyleOptionMenuItem withMark(option);
        withMark.checked = true;
        parts.append(differenceOf(picture(withMark, size), empty));
        QCOMPARE(parts.last().isNull(), !option.menuHasCheckableItems);
        parts.append(m_recorder.call("PE_IndicatorArrowRight").rect);

        QRegion marked;
        for (const QRect &part : parts) {
            QVERIFY(part.isNull() || option.rect.contains(part));
            QVERIFY(!marked.intersects(part));
            marked += part;
        }
    }

private Q_SLOTS:
    void initTestCase()
    {
        // It makes the disabled pictures of icons.
        QApplication::setStyle(new TARN::BaseStyle);
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

    /// A menu measures its shortcuts in whole pixels, and rounds some of them down.
    void shortcutsAreWhole()
    {
        constexpr int more = 20;
        int roundedDown = 0;
        for (const char *const key : {"Ctrl+Shift+Z", "Alt+Down", "Ctrl+F", "Shift+Ins", "F11"}) {
            for (int size = 8; size < 24; ++size) {
                const QString shortcut = QString::fromLatin1(key);
                QStyleOptionMenuItem option = itemOption(text("\t") + shortcut);
                option.font.setPixelSize(size);
                option.tabWidth = QFontMetrics(option.font).horizontalAdvance(shortcut);
                const qreal exact = QFontMetricsF(option.font).horizontalAdvance(shortcut);
                roundedDown += int(exact > option.tabWidth);
                const QImage tight = picture(option);
                option.tabWidth += more;
                option.rect.setWidth(itemRect.width() + more);
                QCOMPARE(tight, picture(option));
            }
        }
        QVERIFY(roundedDown > 0);
    }

    void foregrounds_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QColor>("textColor");
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
        QFETCH(QColor, textColor);
        QFETCH(QColor, iconColor);
        const QMenu menu;
        QStyleOptionMenuItem option = itemOption(bar() + text("\t") + bar(), QStyle::State(state));
        option.tabWidth = 40;
        const QRect texts = rectOf(picture(option, &menu), textColor);
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
            QVERIFY(rectOf(picture(checked, &menu), textColor).isNull());
            checked.checked = true;
            QVERIFY(!rectOf(picture(checked, &menu), textColor).isNull());
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

    /// Everything that an entry may consist of, in the room that the style asks for.
    void contentsFit_data()
    {
        QTest::addColumn<bool>("hasIcon");
        QTest::addColumn<bool>("isCheckable");
        QTest::addColumn<bool>("hasShortcut");
        QTest::addColumn<QStyleOptionMenuItem::MenuItemType>("type");
        using Option = QStyleOptionMenuItem;
        for (const bool hasIcon : {false, true}) {
            for (const bool isCheckable : {false, true}) {
                for (const bool hasShortcut : {false, true}) {
                    for (const auto type : {Option::Normal, Option::DefaultItem, Option::SubMenu}) {
                        QTest::addRow("%s%s%stype %d", hasIcon ? "icon, " : "",
                                      isCheckable ? "check mark, " : "",
                                      hasShortcut ? "shortcut, " : "", type)
                            << hasIcon << isCheckable << hasShortcut << type;
                    }
                }
            }
        }
    }

    void contentsFit()
    {
        QFETCH(bool, hasIcon);
        QFETCH(bool, isCheckable);
        QFETCH(bool, hasShortcut);
        QFETCH(QStyleOptionMenuItem::MenuItemType, type);
        QStyleOptionMenuItem option = itemOption(text("The label of this entry"));
        const int labelWidth = option.fontMetrics.horizontalAdvance(option.text);
        option.menuItemType = type;
        option.maxIconWidth = hasIcon ? 20 : 0;
        option.menuHasCheckableItems = isCheckable;
        option.checkType =
            isCheckable ? QStyleOptionMenuItem::NonExclusive : QStyleOptionMenuItem::NotCheckable;
        const QString shortcut = hasShortcut ? text("\tCtrl+Z") : QString();
        option.tabWidth = option.fontMetrics.horizontalAdvance(shortcut.mid(1));
        option.text += shortcut;
        QSize size = m_recorder.sizeFromContents(QStyle::CT_MenuItem, &option,
                                                 QSize(labelWidth, 16), nullptr);
        size.rwidth() += option.tabWidth;
        option.rect = QRect(QPoint(0, 0), size);
        m_recorder.stopAt("PE_IndicatorArrowRight");

        const QStringList labels = {text("The label of this entry"), shortcut};
        checkLabelIsWhole(option, size);
        checkPartsAreApart(option, size, labels, hasIcon);
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

    void mnemonics_data()
    {
        QTest::addColumn<bool>("underlines");
        QTest::newRow("underlined") << true;
        QTest::newRow("hidden") << false;
    }

    void mnemonics()
    {
        QFETCH(bool, underlines);
        const Underlining style(underlines);
        const auto painted = [&](const char *label) {
            QImage picture(pictureSize, QImage::Format_RGB32);
            picture.fill(Qt::black);
            QPainter painter(&picture);
            const QStyleOptionMenuItem option = itemOption(text(label));
            style.drawControl(QStyle::CE_MenuItem, &option, &painter);
            return picture;
        };
        QCOMPARE(painted("&Undo") != painted("Undo"), underlines);
        QCOMPARE(painted("Drag && drop").size(), pictureSize);
        QVERIFY(painted("Drag && drop") != painted("Drag  drop"));
    }

    void defaultEntryIsBold()
    {
        QStyleOptionMenuItem option = itemOption(text("Open"));
        const QImage normal = picture(option);
        option.menuItemType = QStyleOptionMenuItem::DefaultItem;
        const QImage bold = picture(option);
        option.menuItemType = QStyleOptionMenuItem::Normal;
        option.font.setBold(true);
        QCOMPARE(bold, picture(option));
        QVERIFY(bold != normal);
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

    void rectangles_data()
    {
        QTest::addColumn<QRect>("rect");
        QTest::newRow("empty") << QRect();
        QTest::newRow("inside out") << QRect(20, 20, -30, -30);
        QTest::newRow("a pixel") << QRect(20, 20, 1, 1);
        QTest::newRow("huge") << QRect(-(1 << 24), -(1 << 24), 1 << 25, 1 << 25);
    }

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
