#include <QtCore/QMetaEnum>
#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QToolButton>

#include <support/Components.h>
#include <support/Text.h>
#include <support/geometry/FusionReference.h>
#include <support/geometry/WidgetSamples.h>

using TARN::BaseStyle;
using TARN::Components::MinimizedScrollBar;

namespace {

/// Returns a button option with what \a option has in common with it.
QStyleOptionButton buttonOption(const QStyleOption &option)
{
    QStyleOptionButton button;
    button.rect = option.rect;
    button.state = option.state;
    button.direction = option.direction;
    button.fontMetrics = option.fontMetrics;
    button.palette = option.palette;
    return button;
}

using Feature = QStyleOptionToolButton::ToolButtonFeature;
using Features = QStyleOptionToolButton::ToolButtonFeatures;

} // namespace

Q_DECLARE_METATYPE(Features)

/// The sizes of widgets and items, but for tabs.
class ContentsSizeTest : public QObject
{
    Q_OBJECT

private:
    /// Compares the size of \a type with that of the base style.
    void compareWithFusion(QStyle::ContentsType type, const QStyleOption &option,
                           const QSize &contents, const QWidget *widget);

private Q_SLOTS:
    void pushButton();
    void pushButtonIconSizeCanBeChanged();
    void toolButton_data();
    void toolButton();
    void toolButtonHeightsAreEven();
    void toolButtonNeedsItsOption();
    void comboBox();
    void lineEdit();
    void buttonOptionsAreUsedAsTheyAre();
    void inputsAreAsHighAsButtons_data();
    void inputsAreAsHighAsButtons();
    void progressBar();
    void progressBarNeedsItsOption();
    void slider();
    void scrollBar();
    void otherScrollBars();
    void items();
    void otherContentsAreTheBaseStyles_data();
    void otherContentsAreTheBaseStyles();
    void nothingCrashes();
};

void ContentsSizeTest::compareWithFusion(QStyle::ContentsType type, const QStyleOption &option,
                                         const QSize &contents, const QWidget *widget)
{
    const BaseStyle style;
    const FusionReference reference;
    QCOMPARE(style.sizeFromContents(type, &option, contents, widget),
             reference.fusionSize(type, option, contents, widget));
}

void ContentsSizeTest::pushButton()
{
    const BaseStyle style;
    const FusionReference reference;
    const QPushButton pushButton;
    const int iconSize = style.pixelMetric(QStyle::PM_ButtonIconSize);
    QVERIFY(iconSize > 4);
    QStyleOptionButton option;
    option.text = text("Caption");
    const QWidget *widgets[] = {&pushButton, nullptr};
    for (const QWidget *widget : widgets) {
        const auto fusion = [&](int height) {
            return reference.fusionSize(QStyle::CT_PushButton, option, QSize(120, height), widget);
        };
        const auto own = [&](int height) {
            return style.sizeFromContents(QStyle::CT_PushButton, &option, QSize(120, height),
                                          widget);
        };
        QVERIFY(fusion(4) != fusion(iconSize));
        QCOMPARE(own(4), fusion(iconSize));
        QCOMPARE(own(iconSize), fusion(iconSize));
        QCOMPARE(own(iconSize + 1), fusion(iconSize + 1));
    }
    const QStyleOption plain;
    QCOMPARE(style.sizeFromContents(QStyle::CT_PushButton, &plain, QSize(20, 4), nullptr),
             reference.fusionSize(QStyle::CT_PushButton, plain, QSize(20, iconSize), nullptr));
}

void ContentsSizeTest::pushButtonIconSizeCanBeChanged()
{
    const ChangedStyle style({{QStyle::PM_ButtonIconSize, 40}});
    QStyleOptionButton option;
    const auto size = [&](int height) {
        return style.sizeFromContents(QStyle::CT_PushButton, &option, QSize(120, height), nullptr);
    };
    QCOMPARE(size(4), size(40));
    QVERIFY(size(41).height() > size(40).height());
}

void ContentsSizeTest::toolButton_data()
{
    QTest::addColumn<Features>("features");
    QTest::addColumn<bool>("noMenuArrow");
    QTest::addColumn<bool>("hasWidget");
    QTest::addColumn<int>("growth");
    const Features none;
    const Features menu = QStyleOptionToolButton::HasMenu;
    const Features arrow = QStyleOptionToolButton::Arrow;
    const Features part = QStyleOptionToolButton::Menu;
    QTest::newRow("no menu") << none << false << true << 0;
    QTest::newRow("menu") << menu << false << true << 12;
    QTest::newRow("menu without arrow") << menu << true << true << 0;
    QTest::newRow("menu without widget") << menu << false << false << 0;
    QTest::newRow("menu and arrow") << (menu | arrow) << false << true << 0;
    QTest::newRow("menu button") << (menu | part) << false << true << 0;
    QTest::newRow("menu button and arrow") << (menu | part | arrow) << false << true << 0;
    QTest::newRow("delayed menu") << (menu | QStyleOptionToolButton::PopupDelay) << false << true
                                  << 12;
    QTest::newRow("arrow") << arrow << false << true << 0;
    QTest::newRow("part for a menu") << part << false << true << 0;
}

void ContentsSizeTest::toolButton()
{
    QFETCH(Features, features);
    QFETCH(bool, noMenuArrow);
    QFETCH(bool, hasWidget);
    QFETCH(int, growth);
    const FusionReference reference;
    QToolButton button;
    button.setProperty("no menu arrow", noMenuArrow);
    const QWidget *widget = hasWidget ? &button : nullptr;
    QStyleOptionToolButton option;
    option.features = features;
    const auto type = QStyle::CT_ToolButton;
    const QSize contents(30, 21);
    const QSize fusion = reference.fusionSize(type, option, contents, widget);
    QCOMPARE(fusion.height() % 2, 0);
    const BaseStyle style;
    QCOMPARE(style.sizeFromContents(type, &option, contents, widget), fusion + QSize(growth, 0));
    const ChangedStyle wider({{QStyle::PM_MenuButtonIndicator, 20}});
    const QSize widerSize = wider.sizeFromContents(type, &option, contents, widget);
    const ChangedStyle narrower({{QStyle::PM_MenuButtonIndicator, 10}});
    const QSize narrowerSize = narrower.sizeFromContents(type, &option, contents, widget);
    if (growth > 0) {
        QCOMPARE(widerSize.width() - narrowerSize.width(), 10);
    }
}

void ContentsSizeTest::toolButtonHeightsAreEven()
{
    const BaseStyle style;
    const FusionReference reference;
    const QToolButton button;
    const QStyleOptionToolButton option;
    const QWidget *widgets[] = {&button, nullptr};
    for (const QWidget *widget : widgets) {
        for (int height = 18; height < 24; ++height) {
            const auto type = QStyle::CT_ToolButton;
            const QSize fusion = reference.fusionSize(type, option, QSize(30, height), widget);
            const QSize size = style.sizeFromContents(type, &option, QSize(30, height), widget);
            QCOMPARE(size.width(), fusion.width());
            QCOMPARE(size.height(), (fusion.height() + 1) / 2 * 2);
        }
    }
}

void ContentsSizeTest::toolButtonNeedsItsOption()
{
    const QToolButton button;
    for (const int height : {20, 21}) {
        const QStyleOption plain;
        compareWithFusion(QStyle::CT_ToolButton, plain, QSize(30, height), &button);
        const QStyleOptionComplex complex;
        compareWithFusion(QStyle::CT_ToolButton, complex, QSize(30, height), &button);
    }
}

void ContentsSizeTest::comboBox()
{
    const BaseStyle style;
    const FusionReference reference;
    const QComboBox comboBox;
    QStyleOptionComboBox option;
    option.initFrom(&comboBox);
    const QStyleOptionButton button = buttonOption(option);
    const QWidget *widgets[] = {&comboBox, nullptr};
    for (const QWidget *widget : widgets) {
        for (const int height : {4, 16, 17, 30, 31}) {
            const int expected = style
                                     .sizeFromContents(QStyle::CT_PushButton, &button,
                                                       QSize(120, height - 1), widget)
                                     .height();
            const int width =
                reference.fusionSize(QStyle::CT_ComboBox, option, QSize(120, height), widget)
                    .width();
            QCOMPARE(
                style.sizeFromContents(QStyle::CT_ComboBox, &option, QSize(120, height), widget),
                QSize(width, expected));
        }
    }
}

void ContentsSizeTest::lineEdit()
{
    const BaseStyle style;
    const FusionReference reference;
    const QLineEdit lineEdit;
    QStyleOptionFrame option;
    option.initFrom(&lineEdit);
    option.lineWidth = 2;
    const QStyleOptionButton button = buttonOption(option);
    const QWidget *widgets[] = {&lineEdit, nullptr};
    for (const QWidget *widget : widgets) {
        for (const int height : {4, 16, 17, 30, 31}) {
            const QSize contents(120, height);
            const QSize expected =
                style.sizeFromContents(QStyle::CT_PushButton, &button, contents, widget);
            const QSize fusion =
                reference.fusionSize(QStyle::CT_LineEdit, option, contents, widget);
            QCOMPARE(style.sizeFromContents(QStyle::CT_LineEdit, &option, contents, widget),
                     QSize(fusion.width(), expected.height()));
        }
    }
}

void ContentsSizeTest::buttonOptionsAreUsedAsTheyAre()
{
    const BaseStyle style;
    QStyleOptionButton option;
    option.icon = QIcon(QPixmap(32, 32));
    option.iconSize = QSize(32, 32);
    const QStyleOptionButton iconless;
    const QSize contents(120, 33);
    const auto height = [&](QStyle::ContentsType type, const QStyleOptionButton &button) {
        return style.sizeFromContents(type, &button, contents, nullptr).height();
    };
    // The base style makes a button with an icon lower.
    QVERIFY(height(QStyle::CT_PushButton, option) != height(QStyle::CT_PushButton, iconless));
    QCOMPARE(height(QStyle::CT_LineEdit, option), height(QStyle::CT_PushButton, option));
    QCOMPARE(height(QStyle::CT_LineEdit, iconless), height(QStyle::CT_PushButton, iconless));
    const QSize lower = contents - QSize(0, 1);
    QCOMPARE(height(QStyle::CT_ComboBox, option),
             style.sizeFromContents(QStyle::CT_PushButton, &option, lower, nullptr).height());
}

void ContentsSizeTest::inputsAreAsHighAsButtons_data()
{
    QTest::addColumn<int>("fontSize");
    QTest::addColumn<int>("comboBoxGrowth");
    QTest::addColumn<int>("lineEditGrowth");
    // A button has room for an icon, and so for the lines of a small font and their margins.
    QTest::newRow("small font") << 11 << 0 << 0;
    // The margins that the inputs, but not the button, count among their contents.
    QTest::newRow("large font") << 30 << 1 << 2;
}

void ContentsSizeTest::inputsAreAsHighAsButtons()
{
    QFETCH(int, fontSize);
    QFETCH(int, comboBoxGrowth);
    QFETCH(int, lineEditGrowth);
    BaseStyle style;
    QFont font(text("DejaVu Sans"));
    font.setPixelSize(fontSize);
    QWidget row;
    auto *layout = new QHBoxLayout(&row);
    auto *button = new QPushButton(text("Caption"));
    auto *comboBox = new QComboBox;
    comboBox->addItem(text("Caption"));
    auto *lineEdit = new QLineEdit(text("Caption"));
    for (QWidget *widget : {static_cast<QWidget *>(button), static_cast<QWidget *>(comboBox),
                            static_cast<QWidget *>(lineEdit)}) {
        layout->addWidget(widget);
        widget->setStyle(&style);
        widget->setFont(font);
    }
    row.show();
    QVERIFY(QTest::qWaitForWindowExposed(&row));
    QVERIFY(button->height() > fontSize);
    QCOMPARE(comboBox->height() - button->height(), comboBoxGrowth);
    QCOMPARE(lineEdit->height() - button->height(), lineEditGrowth);
}

void ContentsSizeTest::progressBar()
{
    const BaseStyle style;
    const FusionReference reference;
    QFont font = QApplication::font();
    font.setPixelSize(30);
    QStyleOptionProgressBar option;
    option.fontMetrics = QFontMetrics(font);
    const int thickness = QFontMetrics(font).height() + 4;
    const auto type = QStyle::CT_ProgressBar;
    for (const int extent : {10, 200}) {
        const QSize contents(extent, extent);
        const QSize fusion = reference.fusionSize(type, option, contents, nullptr);
        option.orientation = Qt::Horizontal;
        QCOMPARE(style.sizeFromContents(type, &option, contents, nullptr),
                 QSize(fusion.width(), qMax(fusion.height(), thickness)));
        option.orientation = Qt::Vertical;
        QCOMPARE(style.sizeFromContents(type, &option, contents, nullptr),
                 QSize(qMax(fusion.width(), thickness), fusion.height()));
    }
}

void ContentsSizeTest::progressBarNeedsItsOption()
{
    QStyleOptionProgressBar tooOld;
    tooOld.version = 1;
    compareWithFusion(QStyle::CT_ProgressBar, tooOld, QSize(1, 1), nullptr);
    const QStyleOption plain;
    compareWithFusion(QStyle::CT_ProgressBar, plain, QSize(1, 1), nullptr);
}

void ContentsSizeTest::slider()
{
    const BaseStyle style;
    const FusionReference reference;
    const ChangedStyle changed(
        {{QStyle::PM_SliderThickness, 20}, {QStyle::PM_SliderTickmarkOffset, 7}});
    const auto type = QStyle::CT_Slider;
    const QStyleOptionSlider option;
    for (const QSize &contents : {QSize(84, 10), QSize(84, 90)}) {
        const QSlider horizontal(Qt::Horizontal);
        const QSize wide = reference.fusionSize(type, option, contents, &horizontal);
        QCOMPARE(style.sizeFromContents(type, &option, contents, &horizontal),
                 QSize(wide.width(), 25));
        QCOMPARE(changed.sizeFromContents(type, &option, contents, &horizontal).height(), 34);
        const QSlider vertical(Qt::Vertical);
        const QSize high = reference.fusionSize(type, option, contents, &vertical);
        QCOMPARE(style.sizeFromContents(type, &option, contents, &vertical),
                 QSize(25, high.height()));
        QCOMPARE(changed.sizeFromContents(type, &option, contents, &vertical).width(), 34);
        const QWidget other;
        compareWithFusion(type, option, contents, &other);
        compareWithFusion(type, option, contents, nullptr);
    }
}

void ContentsSizeTest::scrollBar()
{
    const BaseStyle style;
    const FusionReference reference;
    const QSize contents(120, 90);
    const auto type = QStyle::CT_ScrollBar;
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        const MinimizedScrollBar scrollBar(orientation);
        QStyleOptionSlider option;
        scrollBar.initStyleOption(&option);
        QSize expected = reference.fusionSize(type, option, contents, &scrollBar);
        (orientation == Qt::Horizontal ? expected.rheight() : expected.rwidth()) = 5;
        QCOMPARE(style.sizeFromContents(type, &option, contents, &scrollBar), expected);
    }
    MinimizedScrollBar horizontal(Qt::Horizontal);
    horizontal.setStyle(new BaseStyle);
    horizontal.style()->setParent(&horizontal);
    QCOMPARE(horizontal.sizeHint().height(), 5);
}

void ContentsSizeTest::otherScrollBars()
{
    const QSize contents(120, 90);
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        MinimizedScrollBar scrollBar(orientation);
        QStyleOptionSlider option;
        scrollBar.initStyleOption(&option);
        const QStyleOptionComplex complex;
        compareWithFusion(QStyle::CT_ScrollBar, complex, contents, &scrollBar);
        scrollBar.setProperty("minimized", false);
        compareWithFusion(QStyle::CT_ScrollBar, option, contents, &scrollBar);
        const QScrollBar plain(orientation);
        compareWithFusion(QStyle::CT_ScrollBar, option, contents, &plain);
        compareWithFusion(QStyle::CT_ScrollBar, option, contents, nullptr);
    }
}

void ContentsSizeTest::items()
{
    const BaseStyle style;
    const FusionReference reference;
    const QListView list;
    QStyleOptionViewItem option;
    option.features = QStyleOptionViewItem::HasDisplay;
    const auto type = QStyle::CT_ItemViewItem;
    const QWidget *widgets[] = {&list, nullptr};
    for (const QWidget *widget : widgets) {
        for (const int size : {8, 60}) {
            option.font.setPixelSize(size);
            option.fontMetrics = QFontMetrics(option.font);
            option.text = text("Item");
            const QSize fusion = reference.fusionSize(type, option, QSize(), widget);
            QCOMPARE(fusion.height() < 26, size == 8);
            QCOMPARE(style.sizeFromContents(type, &option, QSize(), widget),
                     QSize(fusion.width(), qMax(fusion.height(), 26)));
        }
    }
    const QStyleOption plain;
    QCOMPARE(style.sizeFromContents(type, &plain, QSize(10, 10), nullptr).height(), 26);
}

void ContentsSizeTest::otherContentsAreTheBaseStyles_data()
{
    QTest::addColumn<QStyle::ContentsType>("type");
    const auto types = QMetaEnum::fromType<QStyle::ContentsType>();
    for (int index = 0; index < types.keyCount(); ++index) {
        const auto type = QStyle::ContentsType(types.value(index));
        if (!FusionReference::isOwn(type)) {
            QTest::newRow(types.key(index)) << type;
        }
    }
}

void ContentsSizeTest::otherContentsAreTheBaseStyles()
{
    QFETCH(QStyle::ContentsType, type);
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        for (const WidgetSample &sample : widgetSamples(direction)) {
            for (const QSize &contents : {QSize(7, 9), QSize(80, 61)}) {
                compareWithFusion(type, *sample.option, contents, sample.widget.get());
                compareWithFusion(type, *sample.option, contents, nullptr);
            }
        }
    }
    QStyleOptionMenuItem item;
    item.text = text("Item");
    item.tabWidth = 12;
    item.maxIconWidth = 16;
    compareWithFusion(type, item, QSize(80, 20), nullptr);
    item.menuItemType = QStyleOptionMenuItem::Separator;
    compareWithFusion(type, item, QSize(80, 20), nullptr);
}

void ContentsSizeTest::nothingCrashes()
{
    const BaseStyle style;
    const auto types = QMetaEnum::fromType<QStyle::ContentsType>();
    const auto samples = widgetSamples(Qt::LeftToRight);
    const QStyleOption plain;
    const QSize contents(20, 30);
    for (int index = 0; index < types.keyCount(); ++index) {
        const auto type = QStyle::ContentsType(types.value(index));
        if (!FusionReference::isOwn(type)) {
            continue;
        }
        QVERIFY(style.sizeFromContents(type, nullptr, contents, nullptr).isValid());
        QVERIFY(style.sizeFromContents(type, &plain, contents, nullptr).isValid());
        for (const WidgetSample &sample : samples) {
            const QWidget *widget = sample.widget.get();
            QVERIFY(style.sizeFromContents(type, nullptr, contents, widget).isValid());
            QVERIFY(style.sizeFromContents(type, &plain, contents, widget).isValid());
            // Every widget with the option of every other.
            for (const WidgetSample &other : samples) {
                style.sizeFromContents(type, other.option.get(), contents, widget);
            }
        }
    }
}

QTEST_MAIN(ContentsSizeTest)
#include "ContentsSizeTest.moc"
