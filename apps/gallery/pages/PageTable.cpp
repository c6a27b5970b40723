#include "pages/PageTable.h"

#include "pages/Pages.h"
#include "pages/StatesPage.h"
#include "states/ElementSample.h"

namespace TARN::Gallery {

namespace {

using Name = QLatin1String;

constexpr Name buttons("Buttons");
constexpr Name inputs("Inputs");
constexpr Name ranges("Ranges");
constexpr Name displays("Displays");
constexpr Name views("Item views");
constexpr Name containers("Containers");
constexpr Name windows("Windows");
constexpr Name dialogs("Dialogs");
constexpr Name states("States");

/// Returns the pages of what people set and read values by.
QVector<Page> controlPages()
{
    return {
        {Name("push-buttons"), Name("Push buttons"), buttons, createPushButtonsPage},
        {Name("tool-buttons"), Name("Tool buttons"), buttons, createToolButtonsPage},
        {Name("check-boxes"), Name("Check boxes"), buttons, createCheckBoxesPage},
        {Name("radio-buttons"), Name("Radio buttons"), buttons, createRadioButtonsPage},
        {Name("kinds"), Name("Kinds"), buttons, createKindsPage},

        {Name("line-edits"), Name("Line edits"), inputs, createLineEditsPage},
        {Name("text-edits"), Name("Text edits"), inputs, createTextEditsPage},
        {Name("combo-boxes"), Name("Combo boxes"), inputs, createComboBoxesPage},
        {Name("spin-boxes"), Name("Spin boxes"), inputs, createSpinBoxesPage},
        {Name("date-and-time"), Name("Date and time"), inputs, createDateAndTimePage},
        {Name("calendar"), Name("Calendar"), inputs, createCalendarPage},

        {Name("sliders"), Name("Sliders"), ranges, createSlidersPage},
        {Name("dials-and-scroll-bars"), Name("Dials and scroll bars"), ranges,
         createDialsAndScrollBarsPage},
        {Name("progress-bars"), Name("Progress bars"), ranges, createProgressBarsPage},

        {Name("labels"), Name("Labels"), displays, createLabelsPage},
        {Name("frames"), Name("Frames"), displays, createFramesPage},
        {Name("tips-and-status"), Name("Tips and status"), displays, createTipsAndStatusPage},
        {Name("documents"), Name("Documents and history"), displays, createDocumentsPage},
        {Name("graphics-view"), Name("Graphics view"), displays, createGraphicsViewPage},
        {Name("icons"), Name("Icons"), displays, createIconsPage},
        {Name("cursors"), Name("Cursors"), displays, createCursorsPage},
    };
}

/// Returns the pages of what holds many things.
QVector<Page> containerPages()
{
    return {
        {Name("lists"), Name("Lists"), views, createListsPage},
        {Name("icon-view"), Name("Icon view"), views, createIconViewPage},
        {Name("trees"), Name("Trees"), views, createTreesPage},
        {Name("tables"), Name("Tables"), views, createTablesPage},
        {Name("column-view"), Name("Column view"), views, createColumnViewPage},
        {Name("headers"), Name("Headers"), views, createHeadersPage},

        {Name("tabs"), Name("Tabs"), containers, createTabsPage},
        {Name("tab-positions"), Name("Tab positions"), containers, createTabPositionsPage},
        {Name("triangular-tabs"), Name("Triangular tabs"), containers, createTriangularTabsPage},
        {Name("group-boxes"), Name("Group and tool boxes"), containers, createGroupBoxesPage},
        {Name("splitters-and-scroll-areas"), Name("Splitters and scrolling"), containers,
         createSplittersAndScrollAreasPage},
        {Name("sub-windows"), Name("Subwindows"), containers, createSubWindowsPage},
        {Name("components"), Name("Components"), containers, createComponentsPage},

        {Name("menus"), Name("Menus"), windows, createMenusPage},
        {Name("tool-bars"), Name("Tool bars"), windows, createToolBarsPage},
        {Name("dock-windows"), Name("Dock windows"), windows, createDockWindowsPage},

        {Name("message-boxes"), Name("Message boxes"), dialogs, createMessageBoxesPage},
        {Name("input-dialogs"), Name("Input and progress"), dialogs, createInputDialogsPage},
        {Name("file-dialog"), Name("File dialog"), dialogs, createFileDialogPage},
        {Name("color-dialog"), Name("Colour dialog"), dialogs, createColorDialogPage},
        {Name("font-dialog"), Name("Font dialog"), dialogs, createFontDialogPage},
        {Name("classic-wizard"), Name("Wizard, classic"), dialogs, createClassicWizardPage},
        {Name("modern-wizard"), Name("Wizard, modern"), dialogs, createModernWizardPage},
    };
}

/// Returns one page for each family of samples.
QVector<Page> statesPages()
{
    QVector<Page> table;
    for (const ElementFamily &family : elementFamilies()) {
        table.append(
            {family.id, family.title, states, [&family] { return createStatesPage(family); }});
    }
    return table;
}

} // namespace

const QVector<Page> &pages()
{
    static const QVector<Page> table = controlPages() + containerPages() + statesPages();
    return table;
}

} // namespace TARN::Gallery
