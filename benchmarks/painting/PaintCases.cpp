#include "PaintCases.h"

#include "CaseTables.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace {

std::vector<PaintCase> allCases()
{
    std::vector<PaintCase> cases;
    for (const auto table :
         {buttonCases, inputCases, rangeCases, containerCases, barCases, itemViewCases}) {
        for (const CaseRow &row : table()) {
            for (const WidgetState &state : row.states) {
                const QString name = QStringLiteral("%1: %2").arg(QLatin1String(row.widget),
                                                                  QLatin1String(state.name));
                cases.push_back(
                    {name, row.make, state, row.highestRatio, row.highestCompleteRatio});
            }
        }
    }
    return cases;
}

QSize sizeOf(QWidget &widget)
{
    widget.ensurePolished();
    return widget.testAttribute(Qt::WA_Resized) ? widget.size() : widget.sizeHint();
}

} // namespace

const std::vector<PaintCase> &paintCases()
{
    static const std::vector<PaintCase> cases = allCases();
    return cases;
}

QStringList paintCaseNames()
{
    QStringList names;
    for (const PaintCase &paintCase : paintCases()) {
        names.append(paintCase.name);
    }
    return names;
}

const PaintCase *findPaintCase(const QString &name)
{
    const std::vector<PaintCase> &cases = paintCases();
    const auto found =
        std::find_if(cases.cbegin(), cases.cend(),
                     [&name](const PaintCase &paintCase) { return paintCase.name == name; });
    return found == cases.cend() ? nullptr : &*found;
}

ShownWidget::ShownWidget(const PaintCase &paintCase)
    : m_window(std::make_unique<QWidget>())
    , m_widget(paintCase.make())
{
    const QSize size = sizeOf(*m_widget);
    m_window->resize(size);
    m_widget->setParent(m_window.get());
    m_widget->resize(size);
    m_widget->show();
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    // Else the first widget that takes it has the focus.
    m_window->setFocus();
    paintCase.state.enter(*m_widget);
    QApplication::sendPostedEvents();
}

ShownWidget::~ShownWidget() = default;
