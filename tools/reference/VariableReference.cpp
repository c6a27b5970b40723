#include "VariableReference.h"

#include "Markdown.h"

#include <catalogue/Catalogue.h>
#include <catalogue/Words.h>

#include <QtCore/QStringList>

namespace TARN::Reference {

namespace {

const QString &brushes()
{
    static const QString group = QStringLiteral("brushes");
    return group;
}

QString roleText(VariableRole role)
{
    switch (role) {
    case VariableRole::Surface:
        return QStringLiteral("surface");
    case VariableRole::Text:
        return QStringLiteral("text");
    case VariableRole::Graphic:
        return QStringLiteral("graphic");
    case VariableRole::Outline:
        return QStringLiteral("outline");
    case VariableRole::Decoration:
        return QStringLiteral("decoration");
    case VariableRole::Value:
        break;
    }
    return QStringLiteral("value");
}

QString surfaceText(const QString &surface)
{
    const QString palette = QStringLiteral("palette/");
    return surface.startsWith(palette)
               ? QStringLiteral("the palette's ") + code(surface.mid(palette.size()))
               : code(surface);
}

QString surfacesText(const QStringList &surfaces)
{
    QStringList texts;
    for (const QString &surface : surfaces) {
        texts.append(surfaceText(surface));
    }
    return texts.join(QStringLiteral(", "));
}

/// Returns the words before the field of the names of buttons' and inputs' brushes.
QStringList widgetWords()
{
    return {Words::button, Words::toggle + Words::button, Words::input};
}

/// Returns the brush of the \a field of a plain \a widget in \a state.
const Variable &composedVariable(const QString &widget, const QString &state, QLatin1String field)
{
    const QString name = widget + state + field + QStringLiteral("Brush");
    const Variable *variable = Catalogue::find(brushes(), name);
    Q_ASSERT(variable);
    return *variable;
}

/// Tells whether the names of the family that begins with \a first are composed of words.
bool isComposedFamily(const Variable &first)
{
    for (const QString &widget : widgetWords()) {
        for (const QString &kind : Catalogue::kinds()) {
            const QString name =
                composedVariable(widget, Catalogue::states().constFirst(), Words::fields.front())
                    .name;
            if (first.name == widget + kind + name.mid(widget.size())) {
                return true;
            }
        }
    }
    return false;
}

QString variableRow(const Variable &variable)
{
    if (variable.role == VariableRole::Value) {
        return row({variable.group, code(variable.name), variable.meaning});
    }
    return row({code(variable.name),
                variable.hasDisabledTwin ? QStringLiteral("yes") : QStringLiteral("no"),
                roleText(variable.role), surfacesText(variable.surfaces), variable.meaning});
}

QString familyHead(const Variable &first)
{
    const QStringList titles =
        first.role == VariableRole::Value
            ? QStringList{QStringLiteral("group"), QStringLiteral("name"),
                          QStringLiteral("what it is for")}
            : QStringList{QStringLiteral("name"), QStringLiteral("twin"), QStringLiteral("seen as"),
                          QStringLiteral("seen on"), QStringLiteral("what it paints")};
    return QStringLiteral("### ") + first.family + QStringLiteral("\n\n") + tableHead(titles);
}

/// Returns the tables of the families whose names are not composed.
QString families()
{
    QString text;
    QString family;
    bool isComposed = false;
    for (const Variable &variable : Catalogue::variables()) {
        const bool isFirst = variable.family != family;
        if (isFirst) {
            family = variable.family;
            isComposed = isComposedFamily(variable);
        }
        if (isComposed) {
            continue;
        }
        if (isFirst) {
            text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + familyHead(variable);
        }
        text += variableRow(variable);
    }
    return text;
}

QString kinds()
{
    QStringList words;
    for (const QString &kind : Catalogue::kinds()) {
        words.append(kind.isEmpty() ? QStringLiteral("nothing for plain ones") : code(kind));
    }
    return words.join(QStringLiteral(", ")) + QLatin1Char('\n');
}

/// Returns what stands before or after the colon of a composed variable's meaning: the field and
/// the state.
QString meaningPart(const Variable &variable, int part)
{
    return variable.meaning.section(QStringLiteral(": "), part, part).remove(QLatin1Char('.'));
}

QString states()
{
    QString text = tableHead({QStringLiteral("state"), QStringLiteral("the widget is")});
    for (const QString &state : Catalogue::states()) {
        const Variable &variable = composedVariable(Words::button, state, Words::background);
        text += row({code(state), meaningPart(variable, 1)});
    }
    return text;
}

QString seenText(const Variable &variable)
{
    const QString role = roleText(variable.role);
    return variable.surfaces.isEmpty()
               ? role
               : role + QStringLiteral(" on the ") + code(Words::background) +
                     QStringLiteral(" of the same name");
}

QString fields()
{
    QString text =
        tableHead({QStringLiteral("field"), QStringLiteral("what it paints"),
                   QStringLiteral("seen on buttons as"), QStringLiteral("seen on inputs as")});
    const QString state = Catalogue::states().constFirst();
    for (const QLatin1String field : Words::fields) {
        const Variable &button = composedVariable(Words::button, state, field);
        const Variable &input = composedVariable(Words::input, state, field);
        text += row({code(field), meaningPart(button, 0), seenText(button), seenText(input)});
    }
    return text;
}

QString paletteTexts()
{
    QString text = tableHead({QStringLiteral("role"), QStringLiteral("seen on")});
    for (const PaletteText &paletteText : Catalogue::paletteTexts()) {
        text += row({code(paletteText.role), surfacesText(paletteText.surfaces)});
    }
    return text;
}

} // namespace

QString makeVariableReference(const QString &page)
{
    return fillIn(page, {{QStringLiteral("%FAMILIES%"), families},
                         {QStringLiteral("%FIELDS%"), fields},
                         {QStringLiteral("%KINDS%"), kinds},
                         {QStringLiteral("%PALETTE%"), paletteTexts},
                         {QStringLiteral("%STATES%"), states}});
}

} // namespace TARN::Reference
