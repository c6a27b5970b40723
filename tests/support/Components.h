#pragma once

#include <QtWidgets/QFrame>
#include <QtWidgets/QListView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTableView>

// Stand-ins for the application's components, which the style knows by their class names.

namespace TARN::Components {

class CardWidget : public QFrame
{
    Q_OBJECT
    // Hides the window state of that name, which every widget has and nobody can set.
    Q_PROPERTY(bool minimized MEMBER m_minimized)

public:
    using QFrame::QFrame;

private:
    bool m_minimized = false;
};

class ButtonGroupWidget : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};

class RangeSlider : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};

class CascadingListViewPanel : public QListView
{
    Q_OBJECT

public:
    using QListView::QListView;
};

/// A scroll bar that is a thin line, until its property "minimized" is set to false.
class MinimizedScrollBar : public QScrollBar
{
    Q_OBJECT
    // Hides the window state of that name, which every widget has and nobody can set.
    Q_PROPERTY(bool minimized MEMBER m_minimized)

public:
    using QScrollBar::initStyleOption;
    using QScrollBar::QScrollBar;

private:
    bool m_minimized = true;
};

} // namespace TARN::Components

namespace TARN::PeriodicTable {

class PeriodicTableView : public QTableView
{
    Q_OBJECT

public:
    using QTableView::QTableView;
};

} // namespace TARN::PeriodicTable
