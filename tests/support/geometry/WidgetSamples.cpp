#include "support/geometry/WidgetSamples.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDial>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeView>

#include <support/Components.h>
#include <support/Text.h>
#include <utility>

namespace {

constexpr QSize sampleSize(120, 60);

class OpenTabBar : public QTabBar
{
public:
    using QTabBar::QTabBar;
    void initStyleOption(QStyleOptionTab *option) const { QTabBar::initStyleOption(option, 0); }
};

template <typename View>
class OpenView : public View
{
public:
    using View::View;
    void initStyleOption(QStyleOptionViewItem *option) const
    {
        *option = View::viewOptions();
        option->rect = QRect(QPoint(), sampleSize);
        option->features = QStyleOptionViewItem::HasCheckIndicator |
                           QStyleOptionViewItem::HasDecoration | QStyleOptionViewItem::HasDisplay;
        option->text = text("Item");
    }
};

/// Returns \a widget with the option that it describes itself with.
template <typename Option, typename Widget>
WidgetSample describe(const char *name, std::shared_ptr<Widget> widget)
{
    auto option = std::make_shared<Option>();
    widget->initStyleOption(option.get());
    return {name, std::move(widget), std::move(option)};
}

/// Makes a widget; \a direction has to hold before it describes itself.
template <typename Widget, typename... Arguments>
std::shared_ptr<Widget> make(Qt::LayoutDirection direction, Arguments &&...arguments)
{
    auto widget = std::make_shared<Widget>(std::forward<Arguments>(arguments)...);
    widget->setLayoutDirection(direction);
    widget->resize(sampleSize);
    return widget;
}

void addButtons(std::vector<WidgetSample> &samples, Qt::LayoutDirection direction)
{
    const QString caption = text("Caption");
    samples.push_back(
        describe<QStyleOptionButton>("push button", make<Open<QPushButton>>(direction, caption)));
    samples.push_back(
        describe<QStyleOptionButton>("check box", make<Open<QCheckBox>>(direction, caption)));
    samples.push_back(
        describe<QStyleOptionButton>("radio button", make<Open<QRadioButton>>(direction, caption)));
    const auto toolButton = make<Open<QToolButton>>(direction);
    toolButton->setText(caption);
    toolButton->setPopupMode(QToolButton::MenuButtonPopup);
    samples.push_back(describe<QStyleOptionToolButton>("tool button", toolButton));
}

void addInputs(std::vector<WidgetSample> &samples, Qt::LayoutDirection direction)
{
    const auto comboBox = make<Open<QComboBox>>(direction);
    comboBox->addItem(text("Item"));
    samples.push_back(describe<QStyleOptionComboBox>("combo box", comboBox));
    samples.push_back(
        describe<QStyleOptionFrame>("line edit", make<Open<QLineEdit>>(direction, text("Text"))));
    samples.push_back(describe<QStyleOptionSpinBox>("spin box", make<Open<QSpinBox>>(direction)));
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        samples.push_back(
            describe<QStyleOptionSlider>("slider", make<Open<QSlider>>(direction, orientation)));
        samples.push_back(describe<QStyleOptionSlider>(
            "scroll bar", make<Open<QScrollBar>>(direction, orientation)));
        samples.push_back(describe<QStyleOptionSlider>(
            "minimized scroll bar",
            make<TARN::Components::MinimizedScrollBar>(direction, orientation)));
        const auto progressBar = make<Open<QProgressBar>>(direction);
        progressBar->setOrientation(orientation);
        samples.push_back(describe<QStyleOptionProgressBar>("progress bar", progressBar));
    }
    samples.push_back(describe<QStyleOptionSlider>("dial", make<Open<QDial>>(direction)));
}

void addContainers(std::vector<WidgetSample> &samples, Qt::LayoutDirection direction)
{
    const auto groupBox = make<Open<QGroupBox>>(direction, text("Title"));
    groupBox->setCheckable(true);
    samples.push_back(describe<QStyleOptionGroupBox>("group box", groupBox));
    const auto tabBar = make<OpenTabBar>(direction);
    tabBar->addTab(text("Tab"));
    tabBar->setTabsClosable(true);
    samples.push_back(describe<QStyleOptionTab>("tab bar", tabBar));
    const auto tabWidget = make<Open<QTabWidget>>(direction);
    tabWidget->addTab(new QWidget, text("Tab"));
    samples.push_back(describe<QStyleOptionTabWidgetFrame>("tab widget", tabWidget));
    samples.push_back(describe<QStyleOptionDockWidget>(
        "dock widget", make<Open<QDockWidget>>(direction, text("Dock"))));
    samples.push_back(describe<QStyleOptionToolBar>("tool bar", make<Open<QToolBar>>(direction)));
    samples.push_back(describe<QStyleOptionFrame>("label", make<Open<QLabel>>(direction)));
    samples.push_back(
        describe<QStyleOptionHeader>("header", make<Open<QHeaderView>>(direction, Qt::Horizontal)));
}

void addViews(std::vector<WidgetSample> &samples, Qt::LayoutDirection direction)
{
    samples.push_back(
        describe<QStyleOptionViewItem>("list view", make<OpenView<QListView>>(direction)));
    samples.push_back(
        describe<QStyleOptionViewItem>("tree view", make<OpenView<QTreeView>>(direction)));
    samples.push_back(
        describe<QStyleOptionViewItem>("table view", make<OpenView<QTableView>>(direction)));
    samples.push_back(describe<QStyleOptionViewItem>(
        "cascading list view",
        make<OpenView<TARN::Components::CascadingListViewPanel>>(direction)));
}

} // namespace

std::vector<WidgetSample> widgetSamples(Qt::LayoutDirection direction)
{
    std::vector<WidgetSample> samples;
    addButtons(samples, direction);
    addInputs(samples, direction);
    addContainers(samples, direction);
    addViews(samples, direction);
    return samples;
}
