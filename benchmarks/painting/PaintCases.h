#pragma once

#include "WidgetStates.h"

#include <QtCore/QStringList>

#include <memory>
#include <vector>

/// Makes a widget without a parent. One that it does not resize gets the size that it asks for.
using WidgetMaker = QWidget *(*)();

/// A widget in a state: what is painted to be measured.
struct PaintCase
{
    QString name;
    WidgetMaker make;
    WidgetState state;
    /// How many times what it costs under "fusion" it may cost under the theme.
    double highestRatio;
    /// The same in the complete mode.
    double highestCompleteRatio;
};

const std::vector<PaintCase> &paintCases();

QStringList paintCaseNames();

/// Returns null when no case is called \a name.
const PaintCase *findPaintCase(const QString &name);

/// A case's widget, shown in an active window.
class ShownWidget
{
public:
    explicit ShownWidget(const PaintCase &paintCase);
    ~ShownWidget();

    QWidget &widget() const { return *m_widget; }

private:
    std::unique_ptr<QWidget> m_window;
    QWidget *m_widget;
};
