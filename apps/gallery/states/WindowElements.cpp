#include "samples/Symbols.h"
#include "states/Families.h"
#include "states/SampleMaking.h"

#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMdiSubWindow>
#include <QtWidgets/QSizeGrip>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QToolBar>

namespace TARN::Gallery {

namespace {

using TitleBar = QStyleOptionTitleBar;

constexpr QSize stripSize(100, 34);
constexpr QSize gripSize(14, 34);
constexpr QSize lyingGripSize(60, 14);
constexpr QSize windowSize(100, 48);
constexpr QSize titleBarSize(160, 28);

OptionMaker oriented(QStyle::State state)
{
    return plain<QStyleOption>([state](QStyleOption &option) { option.state |= state; });
}

/// Returns the maker of the options of the title bar of a window in \a state, the mouse being over
/// its close button. It has the usual buttons and \a furtherOnes.
OptionMaker titleBarOption(Qt::WindowStates state, Qt::WindowFlags furtherOnes = {})
{
    return plain<TitleBar>([state, furtherOnes](TitleBar &option) {
        option.text = sampleText;
        option.icon = symbol("action.save"_s);
        option.titleBarState = int(state);
        if (state.testFlag(Qt::WindowActive)) {
            option.titleBarState |= QStyle::State_Active;
        }
        option.titleBarFlags = Qt::SubWindow | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                               Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint |
                               furtherOnes;
        option.subControls = QStyle::SC_All;
        option.activeSubControls = QStyle::SC_TitleBarCloseButton;
    });
}

OptionMaker mdiOption()
{
    return plain<QStyleOptionComplex>([](QStyleOptionComplex &option) {
        option.subControls = QStyle::SC_All;
        option.activeSubControls = QStyle::SC_MdiCloseButton;
    });
}

WidgetMaker dockWidget()
{
    return making<QDockWidget>([](QDockWidget &dock) { dock.setWindowTitle(sampleText); });
}

OptionMaker dockTitle()
{
    return describing<QDockWidget, QStyleOptionDockWidget>([](QStyleOptionDockWidget &option) {
        // The dock's layout has not placed the title yet.
        option.rect = QRect(QPoint(), titleBarSize);
    });
}

} // namespace

ElementFamily toolBarFamily()
{
    const auto bar = making<QToolBar>();
    const auto splitter = making<QSplitter>();
    const OptionMaker lying = oriented(QStyle::State_Horizontal);
    return {
        QLatin1String("tool-bar-states"),
        QLatin1String("Tool bar states"),
        {
            {QStyle::CE_ToolBar, "Tool bar", passiveStates(), bar,
             describing<QToolBar, QStyleOptionToolBar>(), stripSize},
            {QStyle::PE_PanelToolBar, "Panel", passiveStates(), bar, lying, stripSize},
            {QStyle::PE_IndicatorToolBarHandle, "Handle", passiveStates(), bar, lying, gripSize},
            {QStyle::PE_IndicatorToolBarHandle, "Handle, vertical bar", passiveStates(), bar,
             plain(), lyingGripSize},
            {QStyle::PE_IndicatorToolBarSeparator, "Separator", passiveStates(), bar, lying,
             gripSize},
            {QStyle::PE_IndicatorToolBarSeparator, "Separator, vertical bar", passiveStates(), bar,
             plain(), lyingGripSize},
            {QStyle::CE_Splitter, "Splitter", hoverableStates(), splitter, lying, gripSize},
            {QStyle::CE_Splitter, "Filled splitter", hoverableStates(), with("filled", splitter),
             lying, gripSize},
            {QStyle::CE_Splitter, "Small splitter", hoverableStates(), with("small", splitter),
             lying, gripSize},
            {QStyle::CE_Splitter, "Small splitter, lying", hoverableStates(),
             with("small", splitter), plain(), lyingGripSize},
        }};
}

ElementFamily windowFamily()
{
    const auto window = making<QMainWindow>();
    const auto dock = dockWidget();
    const auto subWindow = making<QMdiSubWindow>();
    const Qt::WindowFlags helpAndShade =
        Qt::WindowContextHelpButtonHint | Qt::WindowShadeButtonHint;
    return {
        QLatin1String("window-states"),
        QLatin1String("Window states"),
        {
            {QStyle::CC_TitleBar, "Title bar", hoverableStates(), subWindow,
             titleBarOption(Qt::WindowActive), titleBarSize},
            {QStyle::CC_TitleBar, "Title bar, inactive", hoverableStates(), subWindow,
             titleBarOption(Qt::WindowNoState), titleBarSize},
            {QStyle::CC_TitleBar, "Title bar, maximised", hoverableStates(), subWindow,
             titleBarOption(Qt::WindowActive | Qt::WindowMaximized), titleBarSize},
            {QStyle::CC_TitleBar, "Title bar, minimised", hoverableStates(), subWindow,
             titleBarOption(Qt::WindowActive | Qt::WindowMinimized), titleBarSize},
            {QStyle::CC_TitleBar, "Title bar with help and shade", hoverableStates(), subWindow,
             titleBarOption(Qt::WindowActive, helpAndShade), titleBarSize},
            {QStyle::CC_TitleBar, "Title bar with help, shaded", hoverableStates(), subWindow,
             titleBarOption(Qt::WindowActive | Qt::WindowMinimized, helpAndShade), titleBarSize},
            {QStyle::CC_MdiControls, "Buttons of a maximised window", hoverableStates(), subWindow,
             mdiOption(), QSize(60, 20)},
            {QStyle::PE_FrameWindow, "Frame of a window", passiveStates(), subWindow,
             plain<QStyleOptionFrame>(), windowSize},
            {QStyle::PE_Widget, "Main window", passiveStates(), window, plain(), windowSize},
            {QStyle::PE_Widget, "Dock widget", passiveStates(), dock, plain(), windowSize},
            {QStyle::CE_DockWidgetTitle, "Title of a dock", hoverableStates(), dock, dockTitle(),
             titleBarSize},
            {QStyle::PE_FrameDockWidget, "Frame of a dock", passiveStates(), dock,
             plain<QStyleOptionFrame>(), windowSize},
            {QStyle::PE_IndicatorDockWidgetResizeHandle, "Edge of a dock", hoverableStates(), dock,
             oriented(QStyle::State_Horizontal), lyingGripSize},
            {QStyle::CE_SizeGrip, "Size grip", passiveStates(),
             [] { return new QSizeGrip(nullptr); }, plain<QStyleOptionSizeGrip>(), QSize(20, 20)},
        }};
}

} // namespace TARN::Gallery
