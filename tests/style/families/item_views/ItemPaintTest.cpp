#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtGui/QPainter>
#include <QtGui/QStandardItemModel>
#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QListView>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QTableView>

#include <support/Components.h>
#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/themes/IconTheme.h>
#include <support/themes/PaintTheme.h>

namespace {

constexpr QSize pictureSize(160, 60);
constexpr QRect itemRect(10, 10, 120, 26);
// Neither is a colour of the theme.
const QColor textColor(0x03, 0x90, 0x05);
const QColor highlightedTextColor(0x93, 0x05, 0x07);

/// Leaves the backgrounds of items out.
class BareFusion : public QProxyStyle
{
public:
    BareFusion()
        : QProxyStyle(QStyleFactory::create(text("fusion")))
    {
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element != PE_PanelItemViewItem) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        }
    }
};

QStyleOptionViewItem itemOption(const QString &string)
{
    QStyleOptionViewItem option;
    option.rect = itemRect;
    option.state = QStyle::State_Enabled | QStyle::State_Active;
    option.showDecorationSelected = true;
    option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    option.textElideMode = Qt::ElideRight;
    option.features = QStyleOptionViewItem::HasDisplay;
    option.font = QFont(QStringLiteral("DejaVu Sans"), 10);
    option.fontMetrics = QFontMetrics(option.font);
    option.text = string;
    option.palette.setBrush(QPalette::Text, textColor);
    option.palette.setBrush(QPalette::HighlightedText, highlightedTextColor);
    return option;
}

void setIcon(QStyleOptionViewItem &option, const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    option.icon = QIcon(pixmap);
    option.decorationSize = QSize(16, 16);
    option.features |= QStyleOptionViewItem::HasDecoration;
}

bool shows(const QImage &picture, const QColor &color)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == color) {
                return true;
            }
        }
    }
    return false;
}

/// Returns the rectangle around everything that differs from \a ground.
QRect markedRect(const QImage &picture, const QColor &ground)
{
    QRect marked;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) != ground) {
                marked |= QRect(x, y, 1, 1);
            }
        }
    }
    return marked;
}

QString textOf(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

Q_DECLARE_METATYPE(QStyleOptionViewItem::Position)
Q_DECLARE_METATYPE(QStyle::StateFlag)

/// The contents of items.
class ItemPaintTest : public QObject
{
    Q_OBJECT

private:
    PaintTheme m_theme;
    CallRecorder m_recorder;
    BareFusion m_fusion;
    QTemporaryDir m_icons;

    QImage picture(const QStyleOptionViewItem &option, const QWidget *widget = nullptr,
                   const QColor &ground = Qt::white)
    {
        return m_recorder.picture(QStyle::CE_ItemViewItem, option, widget, pictureSize, ground);
    }

    QImage fusionPicture(const QStyleOptionViewItem &option)
    {
        QImage picture(pictureSize, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        m_fusion.drawControl(QStyle::CE_ItemViewItem, &option, &painter);
        return picture;
    }

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
    void initTestCase()
    {
        // It makes the disabled and the selected pictures of icons.
        QApplication::setStyle(new TARN::BaseStyle);
        QVERIFY(m_icons.isValid());
        QDir::setSearchPaths(text("icons"), {m_icons.path()});
        QImage square(16, 16, QImage::Format_RGB32);
        square.fill(referenceForeground);
        QVERIFY(square.save(m_icons.filePath(text("chevron.left.png"))));
        QVERIFY(square.save(m_icons.filePath(text("chevron.right.png"))));
    }

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

    void scaledPictures_data()
    {
        QTest::addColumn<qreal>("scale");
        for (const qreal scale : {1.0, 1.25, 1.5, 2.0}) {
            QTest::addRow("%g", scale) << scale;
        }
    }

    void scaledPictures()
    {
        QFETCH(qreal, scale);
        m_recorder.stopAt("PE_PanelItemViewItem");
        const QStyleOptionViewItem option = itemOption(text("Scaled text of the item"));
        const auto scaled = [&](const QStyle &style) {
            QImage picture(pictureSize * scale, QImage::Format_RGB32);
            picture.setDevicePixelRatio(scale);
            picture.fill(Qt::white);
            QPainter painter(&picture);
            style.drawControl(QStyle::CE_ItemViewItem, &option, &painter);
            return picture;
        };
        // What was laid out for one resolution is drawn at another one.
        picture(option);
        QCOMPARE(scaled(m_recorder.style()), scaled(m_fusion));
    }

    void iconAndText_data()
    {
        QTest::addColumn<QStyleOptionViewItem::Position>("position");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<bool>("showDecorationSelected");
        using Option = QStyleOptionViewItem;
        for (const auto position : {Option::Left, Option::Right, Option::Top, Option::Bottom}) {
            for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
                for (const bool showDecorationSelected : {false, true}) {
                    QTest::addRow("position %d, direction %d, %d", position, direction,
                                  showDecorationSelected)
                        << position << direction << showDecorationSelected;
                }
            }
        }
    }

    void iconAndText()
    {
        QFETCH(QStyleOptionViewItem::Position, position);
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(bool, showDecorationSelected);
        m_recorder.stopAt("PE_PanelItemViewItem");
        QStyleOptionViewItem option = itemOption(text("Text of the item"));
        setIcon(option, Qt::blue);
        option.rect = QRect(10, 5, 90, 48);
        option.decorationPosition = position;
        option.direction = direction;
        option.showDecorationSelected = showDecorationSelected;
        option.decorationAlignment = Qt::AlignCenter;
        QCOMPARE(picture(option), fusionPicture(option));
        option.text.clear();
        QCOMPARE(picture(option), fusionPicture(option));
    }

    void iconIsClipped()
    {
        m_recorder.stopAt("PE_PanelItemViewItem");
        QStyleOptionViewItem option = itemOption(text("Low"));
        setIcon(option, Qt::blue);
        option.rect.setHeight(6);
        const QImage low = picture(option);
        QCOMPARE(low, fusionPicture(option));
        QVERIFY(option.rect.contains(markedRect(low, Qt::white)));
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
        QStyleOptionViewItem option = itemOption(QString(QChar(0x2588)));
        option.state = QStyle::State(state);
        option.palette.setBrush(QPalette::Disabled, QPalette::Text, QColor(1, 2, 3));
        option.palette.setBrush(QPalette::Disabled, QPalette::HighlightedText, QColor(4, 5, 6));
        option.palette.setBrush(QPalette::Inactive, QPalette::Text, QColor(7, 8, 9));
        QVERIFY(shows(picture(option, &view), color));
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

    void partsReachTheProxy_data()
    {
        QTest::addColumn<Qt::CheckState>("checkState");
        QTest::addColumn<QStyle::StateFlag>("flag");
        QTest::newRow("unchecked") << Qt::Unchecked << QStyle::State_Off;
        QTest::newRow("partially") << Qt::PartiallyChecked << QStyle::State_NoChange;
        QTest::newRow("checked") << Qt::Checked << QStyle::State_On;
    }

    void partsReachTheProxy()
    {
        QFETCH(Qt::CheckState, checkState);
        QFETCH(QStyle::StateFlag, flag);
        QStyleOptionViewItem option = itemOption(text("Checked"));
        option.state |= QStyle::State_HasFocus;
        option.features |= QStyleOptionViewItem::HasCheckIndicator;
        option.checkState = checkState;
        m_recorder.stopAt("PE_IndicatorItemViewItemCheck");
        picture(option);
        QCOMPARE(m_recorder.elements(),
                 QStringList({text("PE_PanelItemViewItem"), text("PE_IndicatorItemViewItemCheck"),
                              text("PE_FrameFocusRect")}));
        const PaintCall check = m_recorder.call("PE_IndicatorItemViewItemCheck");
        QVERIFY(check.state.testFlag(flag));
        QVERIFY(!check.state.testFlag(QStyle::State_HasFocus));
        QCOMPARE(check.rect, m_recorder.subElementRect(QStyle::SE_ItemViewItemCheckIndicator,
                                                       &option, nullptr));
        QCOMPARE(m_recorder.call("PE_PanelItemViewItem").rect, itemRect);
        const PaintCall focus = m_recorder.call("PE_FrameFocusRect");
        QVERIFY(focus.state.testFlag(QStyle::State_KeyboardFocusChange));
        QVERIFY(focus.state.testFlag(QStyle::State_Item));
        QCOMPARE(focus.rect,
                 m_recorder.subElementRect(QStyle::SE_ItemViewItemFocusRect, &option, nullptr));
    }

    void childIndicator_data()
    {
        QTest::addColumn<bool>("isAskedFor");
        QTest::addColumn<bool>("hasChildren");
        QTest::addColumn<bool>("isReverse");
        QTest::newRow("shown") << true << true << false;
        QTest::newRow("right to left") << true << true << true;
        QTest::newRow("without children") << true << false << false;
        QTest::newRow("not asked for") << false << true << false;
    }

    void childIndicator()
    {
        QFETCH(bool, isAskedFor);
        QFETCH(bool, hasChildren);
        QFETCH(bool, isReverse);
        QStandardItemModel model;
        auto *item = new QStandardItem(text("Item"));
        model.appendRow(item);
        if (hasChildren) {
            item->appendRow(new QStandardItem(text("Child")));
        }
        QListView view;
        view.setModel(&model);
        view.setProperty("drawChildIndicatorInListView", isAskedFor);
        m_recorder.stopAt("PE_PanelItemViewItem");
        QStyleOptionViewItem option = itemOption(QString());
        option.index = item->index();
        option.direction = isReverse ? Qt::RightToLeft : Qt::LeftToRight;
        const QRect marked = markedRect(picture(option, &view), Qt::white);
        QCOMPARE(!marked.isNull(), isAskedFor && hasChildren);
        if (!marked.isNull()) {
            const int middle = itemRect.center().x();
            QVERIFY(itemRect.contains(marked));
            QCOMPARE(picture(option, &view).pixelColor(marked.center()), textColor);
            QVERIFY(isReverse ? marked.right() < middle : marked.left() > middle);
        }
    }

    void noChildIndicatorBesideOtherItems()
    {
        QStandardItemModel model;
        auto *item = new QStandardItem(text("Item"));
        item->appendRow(new QStandardItem(text("Child")));
        model.appendRow(item);
        QListView wrapping;
        wrapping.setWrapping(true);
        QListView icons;
        icons.setViewMode(QListView::IconMode);
        icons.setWrapping(false);
        QComboBox comboBox;
        auto *popup = qobject_cast<QListView *>(comboBox.view());
        QVERIFY(popup);
        m_recorder.stopAt("PE_PanelItemViewItem");
        QStyleOptionViewItem option = itemOption(QString());
        option.index = item->index();
        for (QListView *view : {&wrapping, &icons, popup}) {
            view->setProperty("drawChildIndicatorInListView", true);
            QVERIFY(markedRect(picture(option, view), Qt::white).isNull());
        }
    }

    void childIndicatorBesideMinimizedScrollBar()
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
        const QRect apart = markedRect(picture(option, &view), Qt::white);
        view.setVerticalScrollBar(new TARN::Components::MinimizedScrollBar);
        QCOMPARE(markedRect(picture(option, &view), Qt::white),
                 apart.translated(-m_recorder.pixelMetric(QStyle::PM_ScrollBarExtent), 0));
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
            const QRect marked = markedRect(indicator, Qt::white);
            QVERIFY(!marked.isNull());
            option.text = QString(60, QLatin1Char('m'));
            QCOMPARE(picture(option, &view).copy(marked), indicator.copy(marked));
        }
    }

    void iconsOfPopups_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QColor>("color");
        const int enabled = QStyle::State_Enabled | QStyle::State_Active;
        QTest::newRow("rest") << enabled << m_theme.brush(text("ForegroundBrush"));
        QTest::newRow("disabled") << 0 << m_theme.brush(text("ForegroundBrushDisabled"));
        QTest::newRow("selected") << int(enabled | QStyle::State_Selected) << highlightedTextColor;
    }

    void iconsOfPopups()
    {
        QFETCH(int, state);
        QFETCH(QColor, color);
        QComboBox comboBox;
        m_recorder.stopAt("PE_PanelItemViewItem");
        QStyleOptionViewItem option = itemOption(QString());
        option.state = QStyle::State(state);
        setIcon(option, referenceForeground);
        QVERIFY(shows(picture(option, comboBox.view()), color));
        const QListView list;
        QVERIFY(shows(picture(option, &list), referenceForeground));
    }

    void otherOptions()
    {
        QStyleOptionButton option;
        option.rect = itemRect;
        option.state = QStyle::State_Enabled;
        const QImage other =
            m_recorder.picture(QStyle::CE_ItemViewItem, option, nullptr, pictureSize, Qt::white);
        QVERIFY(markedRect(other, Qt::white).isNull());
        QCOMPARE(m_recorder.elements(), QStringList());
    }

    void rectangles_data()
    {
        QTest::addColumn<QRect>("rect");
        QTest::newRow("empty") << QRect();
        QTest::newRow("inside out") << QRect(20, 20, -30, -30);
        QTest::newRow("huge") << QRect(-(1 << 24), -(1 << 24), 1 << 25, 1 << 25);
        QTest::newRow("a pixel") << QRect(20, 20, 1, 1);
    }

    void rectangles()
    {
        QFETCH(QRect, rect);
        QStyleOptionViewItem option = itemOption(text("Text of the item"));
        setIcon(option, Qt::blue);
        option.features |= QStyleOptionViewItem::WrapText;
        option.rect = rect;
        QVERIFY(rect.contains(markedRect(picture(option), Qt::white)) ||
                markedRect(picture(option), Qt::white).isNull());
    }
};

QTEST_MAIN(ItemPaintTest)

#include "ItemPaintTest.moc"
