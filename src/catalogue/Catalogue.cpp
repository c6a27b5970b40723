#include "catalogue/Catalogue.h"

#include "catalogue/Words.h"

#include <QtCore/QHash>
#include <QtCore/QPair>

namespace TARN::Catalogue {

namespace {

constexpr bool Twin = true;
constexpr bool NoTwin = false;

// As ThemeResources names the groups, which is no part of this library.
constexpr QLatin1String colorGroup = Words::word("colors");
constexpr QLatin1String brushGroup = Words::word("brushes");

QStringList wordsOf(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QVector<Variable> namedVariables()
{
    QVector<Variable> variables;
    QString family;
    const auto add = [&](const QString &group, const char *name, bool hasTwin, VariableRole role,
                         const char *surfaces, const char *meaning) {
        variables.append({group, QString::fromLatin1(name), hasTwin, role,
                          QString::fromLatin1(meaning), wordsOf(surfaces), family});
    };
#define MOX_FAMILY(heading) family = QStringLiteral(heading);
#define MOX_BRUSH(name, twin, role, surfaces, meaning)                                             \
    add(brushGroup, #name, twin, VariableRole::role, surfaces, meaning);
#define MOX_COLOR(name, twin, role, surfaces, meaning)                                             \
    add(colorGroup, #name, twin, VariableRole::role, surfaces, meaning);
#define MOX_VALUE(group, name, meaning)                                                            \
    add(QStringLiteral(#group), #name, NoTwin, VariableRole::Value, "", meaning);
#include "catalogue/Variables.def"
    return variables;
}

QString stateMeaning(const QString &state)
{
    static const QHash<QString, QString> meanings{
        {QStringLiteral("Unchecked"), QStringLiteral("at rest")},
        {QStringLiteral("UncheckedHover"), QStringLiteral("under the mouse")},
        {QStringLiteral("UncheckedPressed"), QStringLiteral("pressed")},
        {QStringLiteral("Checked"), QStringLiteral("checked")},
        {QStringLiteral("CheckedHover"), QStringLiteral("checked, under the mouse")},
        {QStringLiteral("CheckedPressed"), QStringLiteral("checked, pressed")},
        {QStringLiteral("Default"), QStringLiteral("the default of its dialog")},
        {QStringLiteral("DefaultHover"),
         QStringLiteral("the default of its dialog, under the mouse")},
        {QStringLiteral("DefaultPressed"), QStringLiteral("the default of its dialog, pressed")},
    };
    return meanings.value(state);
}

QString fieldMeaning(QLatin1String field)
{
    if (field == Words::background) {
        return QStringLiteral("The face");
    }
    return field == Words::border ? QStringLiteral("The line around the face")
                                  : QStringLiteral("Text and icon");
}

/// Returns what the field of a composed name is seen as. A button is recognised by its text, an
/// input by the line around it.
VariableRole fieldRole(QLatin1String field, bool isInput)
{
    if (field == Words::background) {
        return VariableRole::Surface;
    }
    if (field == Words::foreground) {
        return VariableRole::Text;
    }
    return isInput ? VariableRole::Outline : VariableRole::Decoration;
}

/// Appends the variables of the buttons or inputs of one kind, whose names \a compose makes of a
/// state and a field.
template <typename Compose>
void appendKind(QVector<Variable> &variables, const QString &family, bool isInput, Compose compose)
{
    for (const QString &state : states()) {
        const QString face = compose(state, Words::background);
        for (const QLatin1String field : Words::fields) {
            const VariableRole role = fieldRole(field, isInput);
            const bool needsFace = role == VariableRole::Text || role == VariableRole::Outline;
            variables.append(
                {brushGroup, compose(state, field), Twin, role,
                 fieldMeaning(field) + QLatin1String(": ") + stateMeaning(state) + QLatin1Char('.'),
                 needsFace ? QStringList{face} : QStringList(), family});
        }
    }
}

QString familyOf(const QString &widgets, const QString &kind)
{
    return kind.isEmpty() ? widgets : widgets + QLatin1String(" of the kind ") + kind;
}

void appendComposedVariables(QVector<Variable> &variables)
{
    for (const QString &toggleWord : {QString(), QString(Words::toggle)}) {
        const QString widgets =
            toggleWord.isEmpty() ? QStringLiteral("Buttons") : QStringLiteral("Toggle buttons");
        for (const QString &kind : kinds()) {
            appendKind(variables, familyOf(widgets, kind), false,
                       [&](const QString &state, QLatin1String field) {
                           return Words::buttonBrush(toggleWord, kind, state, field);
                       });
        }
    }
    for (const QString &kind : kinds()) {
        appendKind(variables,
                   familyOf(QStringLiteral("Combo boxes, spin boxes and date edits"), kind), true,
                   [&](const QString &state, QLatin1String field) {
                       return Words::inputBrush(kind, state, field);
                   });
    }
}

QVector<Variable> allVariables()
{
    QVector<Variable> variables = namedVariables();
    appendComposedVariables(variables);
    return variables;
}

using Key = QPair<QString, QString>;

QHash<Key, const Variable *> indexOf(const QVector<Variable> &variables)
{
    QHash<Key, const Variable *> index;
    for (const Variable &variable : variables) {
        index.insert({variable.group, variable.name}, &variable);
    }
    return index;
}

} // namespace

double neededContrast(VariableRole role)
{
    switch (role) {
    case VariableRole::Text:
        return textContrast;
    case VariableRole::Graphic:
    case VariableRole::Outline:
        return graphicContrast;
    case VariableRole::Surface:
    case VariableRole::Decoration:
    case VariableRole::Value:
        break;
    }
    return 0;
}

const QVector<Variable> &variables()
{
    static const QVector<Variable> all = allVariables();
    return all;
}

const Variable *find(const QString &group, const QString &name)
{
    static const QHash<Key, const Variable *> index = indexOf(variables());
    return index.value({group, name});
}

const QVector<PaletteText> &paletteTexts()
{
    static const QVector<PaletteText> texts{
        {QStringLiteral("WindowText"),
         wordsOf("palette/Window palette/Light BackgroundBrush BackgroundUpLevel1Brush "
                 "BackgroundSubLevel1Brush BackgroundSubLevel2Brush ExpanderHeaderBrush")},
        {QStringLiteral("Text"),
         wordsOf("palette/Base palette/AlternateBase InputUncheckedBackgroundBrush "
                 "InputBackgroundActiveBrush ItemViewBackgroundBrush "
                 "ItemViewAlternateBackgroundBrush BackgroundSubLevel1Brush")},
        {QStringLiteral("PlaceholderText"),
         wordsOf("InputUncheckedBackgroundBrush InputBackgroundActiveBrush")},
        {QStringLiteral("ButtonText"), wordsOf("palette/Button")},
        {QStringLiteral("ToolTipText"), wordsOf("palette/ToolTipBase")},
        {QStringLiteral("HighlightedText"),
         wordsOf("palette/Highlight MainBrush MainSubLevel1Brush")},
        {QStringLiteral("Link"), wordsOf("palette/Window palette/Base ItemViewBackgroundBrush")},
        {QStringLiteral("LinkVisited"),
         wordsOf("palette/Window palette/Base ItemViewBackgroundBrush")},
    };
    return texts;
}

QStringList kinds()
{
    QStringList words;
    for (const QLatin1String kind : Words::kinds) {
        words.append(kind);
    }
    return words;
}

QStringList states()
{
    QStringList words;
    for (const QLatin1String checkState : Words::checkStates) {
        for (const QLatin1String interaction : Words::interactions) {
            words.append(checkState + interaction);
        }
    }
    return words;
}

} // namespace TARN::Catalogue
