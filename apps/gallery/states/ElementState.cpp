#include "states/ElementState.h"

#include "samples/Literals.h"

#include <QtCore/QStringList>

namespace TARN::Gallery {

namespace {

using Condition = ElementCondition;

constexpr ElementState values =
    ElementState(Condition::Checked) | Condition::PartlyChecked | Condition::Selected;

struct ConditionName
{
    Condition condition;
    const char *name;
};

constexpr ConditionName conditionNames[] = {
    {Condition::Checked, "checked"},
    {Condition::PartlyChecked, "partly checked"},
    {Condition::Selected, "selected"},
    {Condition::Hover, "hover"},
    {Condition::Pressed, "pressed"},
    {Condition::KeyboardFocus, "keyboard focus"},
    {Condition::Highlighted, "highlighted"},
    {Condition::ReadOnly, "read-only"},
    {Condition::Error, "error"},
    {Condition::Disabled, "disabled"},
};

} // namespace

ElementState valueOf(ElementState state)
{
    return state & values;
}

ElementState interactionOf(ElementState state)
{
    return state & ~values;
}

QString stateName(ElementState state)
{
    QStringList names;
    for (const ConditionName &row : conditionNames) {
        if (state.testFlag(row.condition)) {
            names.append(QString::fromLatin1(row.name));
        }
    }
    QString name = names.isEmpty() ? "at rest"_s : names.join(", "_s);
    name[0] = name.at(0).toUpper();
    return name;
}

ElementStates combined(const ElementStates &interactions, const ElementStates &values)
{
    ElementStates states;
    for (const ElementState value : values) {
        for (const ElementState interaction : interactions) {
            states.append(value | interaction);
        }
    }
    return states;
}

const ElementStates &restingStates()
{
    static const ElementStates states{ElementState()};
    return states;
}

const ElementStates &passiveStates()
{
    static const ElementStates states{ElementState(), Condition::Disabled};
    return states;
}

const ElementStates &hoverableStates()
{
    static const ElementStates states{ElementState(), Condition::Hover, Condition::Pressed,
                                      Condition::Disabled};
    return states;
}

const ElementStates &buttonStates()
{
    static const ElementStates states{ElementState(), Condition::Hover, Condition::Pressed,
                                      Condition::KeyboardFocus, Condition::Disabled};
    return states;
}

const ElementStates &inputStates()
{
    static const ElementStates states{ElementState(),           Condition::Hover,
                                      Condition::KeyboardFocus, Condition::ReadOnly,
                                      Condition::Error,         Condition::Disabled};
    return states;
}

const ElementStates &markableStates()
{
    static const ElementStates states{ElementState(),     Condition::Hover,
                                      Condition::Pressed, Condition::KeyboardFocus,
                                      Condition::Error,   Condition::Disabled};
    return states;
}

} // namespace TARN::Gallery
