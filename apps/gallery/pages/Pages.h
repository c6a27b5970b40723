#pragma once

class QWidget;

namespace TARN::Gallery {

/// \name The makers of the pages
/// Each creates the contents of one page, which the caller owns.
/// \{
QWidget *createPushButtonsPage();
QWidget *createToolButtonsPage();
QWidget *createCheckBoxesPage();
QWidget *createRadioButtonsPage();
QWidget *createKindsPage();

QWidget *createLineEditsPage();
QWidget *createTextEditsPage();
QWidget *createComboBoxesPage();
QWidget *createSpinBoxesPage();
QWidget *createDateAndTimePage();
QWidget *createCalendarPage();

QWidget *createSlidersPage();
QWidget *createDialsAndScrollBarsPage();
QWidget *createProgressBarsPage();

QWidget *createLabelsPage();
QWidget *createFramesPage();
QWidget *createTipsAndStatusPage();
QWidget *createDocumentsPage();
QWidget *createGraphicsViewPage();
QWidget *createIconsPage();
QWidget *createCursorsPage();

QWidget *createListsPage();
QWidget *createIconViewPage();
QWidget *createTreesPage();
QWidget *createTablesPage();
QWidget *createColumnViewPage();
QWidget *createHeadersPage();

QWidget *createTabsPage();
QWidget *createTabPositionsPage();
QWidget *createTriangularTabsPage();
QWidget *createGroupBoxesPage();
QWidget *createSplittersAndScrollAreasPage();
QWidget *createSubWindowsPage();
QWidget *createComponentsPage();

QWidget *createMenusPage();
QWidget *createToolBarsPage();
QWidget *createDockWindowsPage();

QWidget *createMessageBoxesPage();
QWidget *createInputDialogsPage();
QWidget *createFileDialogPage();
QWidget *createColorDialogPage();
QWidget *createFontDialogPage();
QWidget *createClassicWizardPage();
QWidget *createModernWizardPage();
/// \}

} // namespace TARN::Gallery
