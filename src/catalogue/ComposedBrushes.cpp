#include "catalogue/ComposedBrushes.h"

#include "catalogue/VariableTable.h"
#include "catalogue/Words.h"
#include "resources/ThemeResources.h"

#include <QtCore/QStringBuilder>

#include <algorithm>
#include <utility>

namespace TARN {

namespace {

constexpr std::size_t widgetCount = 3;
constexpr std::size_t stateCount = Words::checkStates.size() * Words::interactions.size();
constexpr std::size_t brushCount =
    widgetCount * Words::kinds.size() * stateCount * Words::fields.size();

template <typename Enum>
std::size_t indexOf(Enum value)
{
    return static_cast<std::size_t>(value);
}

std::size_t indexOf(ComposedWidget widget, int kind, StateWord state, BrushField field)
{
    std::size_t index = indexOf(widget) * Words::kinds.size() + std::size_t(kind);
    index = index * Words::checkStates.size() + indexOf(state.check);
    index = index * Words::interactions.size() + indexOf(state.interaction);
    return index * Words::fields.size() + indexOf(field);
}

QString nameOf(ComposedWidget widget, const QString &kind, StateWord state, BrushField field)
{
    const QString stateWord = Words::checkStates.at(indexOf(state.check)) %
                              Words::interactions.at(indexOf(state.interaction));
    const QLatin1String fieldWord = Words::fields.at(indexOf(field));
    if (widget == ComposedWidget::Input) {
        return Words::inputBrush(kind, stateWord, fieldWord);
    }
    const QString toggle =
        widget == ComposedWidget::ToggleButton ? QString(Words::toggle) : QString();
    return Words::buttonBrush(toggle, kind, stateWord, fieldWord);
}

} // namespace

KindWord::KindWord(QString name)
    : m_name(std::move(name))
{
    const auto *known = std::find(Words::kinds.begin(), Words::kinds.end(), m_name);
    m_index = known == Words::kinds.end() ? -1 : int(known - Words::kinds.begin());
}

QBrush composedBrush(ComposedWidget widget, const KindWord &kind, StateWord state, BrushField field,
                     bool enabled)
{
    const auto name = [&] { return nameOf(widget, kind.name(), state, field); };
    if (kind.index() < 0) {
        return ThemeResources::getBrush(Words::twin(name(), enabled));
    }
    static VariableTable<BrushKind, brushCount> table;
    return table.value(indexOf(widget, kind.index(), state, field), enabled, name);
}

} // namespace TARN
