#include "style/families/item_views/ItemSample.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtGui/QPainter>
#include <QtGui/QStandardItemModel>
#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QListView>

#include <support/Components.h>
#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/OddRectangles.h>
#include <support/painting/Pixels.h>
#include <support/themes/IconTheme.h>
#include <support/themes/PaintTheme.h>

namespace {

QPixmap squarePixmap(const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return pixmap;
}

void setIcon(QStyleOptionViewItem &option, const QColor &color)
{
    option.icon = QIcon(squarePixmap(color));
    option.decorationSize = QSize(16, 16);
    option.features |= QStyleOptionViewItem::HasDecoration;
}

} // namespace

Q_DECLARE_METATYPE(QStyleOptionViewItem::Position)
Q_DECLARE_METATYPE(QStyle::StateFlag)

/// The contents of items.
class ItemPaintTest : public ItemTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepareIcons(); }

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

    void iconModes_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QColor>("color");
        const int enabled = QStyle::State_Enabled | QStyle::State_Active;
        QTest::newRow("rest") << enabled << QColor(Qt::red);
        QTest::newRow("open") << int(enabled | QStyle::State_Open) << QColor(Qt::yellow);
        QTest::newRow("selected") << int(enabled | QStyle::State_Selected) << QColor(Qt::blue);
        QTest::newRow("disabled") << 0 << QColor(Qt::magenta);
        QTest::newRow("disabled and selected")
            << int(QStyle::State_Selected) << QColor(Qt::magenta);
    }

    void iconModes()
    {
        QFETCH(int, state);
        QFETCH(QColor, color);
        QStyleOptionViewItem option = itemOption(QString());
        option.state = QStyle::State(state);
        setIcon(option, Qt::red);
        option.icon.addPixmap(squarePixmap(Qt::yellow), QIcon::Normal, QIcon::On);
        option.icon.addPixmap(squarePixmap(Qt::blue), QIcon::Selected);
        option.icon.addPixmap(squarePixmap(Qt::magenta), QIcon::Disabled);
        QVERIFY(containsColor(picture(option), color));
    }

    void iconIsClipped()
    {
        m_recorder.stopAt("PE_PanelItemViewItem");
        QStyleOptionViewItem option = itemOption(text("Low"));
        setIcon(option, Qt::blue);
        option.rect.setHeight(6);
        const QImage low = picture(option);
        QCOMPARE(low, fusionPicture(option));
        QVERIFY(option.rect.contains(paintedRect(low, Qt::white)));
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
        const QRect marked = paintedRect(picture(option, &view), Qt::white);
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
            QVERIFY(paintedRect(picture(option, view), Qt::white).isNull());
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
        const QRect apart = paintedRect(picture(option, &view), Qt::white);
        view.setVerticalScrollBar(new TARN::Components::MinimizedScrollBar);
        QCOMPARE(paintedRect(picture(option, &view), Qt::white),
                 apart.translated(-m_recorder.pixelMetric(QStyle::PM_ScrollBarExtent), 0));
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
        QVERIFY(containsColor(picture(option, comboBox.view()), color));
        const QListView list;
        QVERIFY(containsColor(picture(option, &list), referenceForeground));
    }

    void otherOptions()
    {
        QStyleOptionButton option;
        option.rect = itemRect;
        option.state = QStyle::State_Enabled;
        const QImage other =
            m_recorder.picture(QStyle::CE_ItemViewItem, option, nullptr, pictureSize, Qt::white);
        QVERIFY(paintedRect(other, Qt::white).isNull());
        QCOMPARE(m_recorder.elements(), QStringList());
    }

    void rectangles_data() { addOddRectangles(); }

    void rectangles()
    {
        QFETCH(QRect, rect);
        QStyleOptionViewItem option = itemOption(text("Text of the item"));
        setIcon(option, Qt::blue);
        option.features |= QStyleOptionViewItem::WrapText;
        option.rect = rect;
        QVERIFY(rect.contains(paintedRect(picture(option), Qt::white)) ||
                paintedRect(picture(option), Qt::white).isNull());
    }
};

QTEST_MAIN(ItemPaintTest)
#include "ItemPaintTest.moc"
