#include "style/families/menus/MenuSample.h"

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QProxyStyle>

#include <support/painting/CallRecorder.h>
#include <support/themes/PaintTheme.h>

namespace {

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

/// What the entries of menus hold: that all of it is seen.
class MenuContentsPaintTest : public QObject
{
    Q_OBJECT

private:
    PaintTheme m_theme;
    CallRecorder m_recorder;

    QImage picture(const QStyleOptionMenuItem &option, const QSize &size = pictureSize)
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
};

QTEST_MAIN(MenuContentsPaintTest)
#include "MenuContentsPaintTest.moc"
