#pragma once

#include <QtCore/QString>
#include <QtGui/QBrush>

/// The brushes of buttons and inputs, asked for by what their names are composed of.
namespace TARN {

/// What the brush is of: the first words of its name.
enum class ComposedWidget : quint8 { Button, ToggleButton, Input };

enum class CheckState : quint8 { Unchecked, Checked, Default };
enum class Interaction : quint8 { None, Hover, Pressed };

/// The state of a button, in the words of the names.
struct StateWord
{
    CheckState check = CheckState::Unchecked;
    Interaction interaction = Interaction::None;
};

enum class BrushField : quint8 { Background, Border, Foreground };

/// The kind of a button or an input, as applications name it.
class KindWord
{
public:
    /// The plain kind, which has no word.
    KindWord() = default;
    explicit KindWord(QString name);

    const QString &name() const { return m_name; }
    /// Returns the kind's place among those that themes define; -1 for one of the application's.
    int index() const { return m_index; }

private:
    QString m_name;
    int m_index = 0;
};

/// Returns the theme's brush; its disabled twin unless \a enabled. Kinds that themes define cost
/// neither a name nor memory after their first use.
QBrush composedBrush(ComposedWidget widget, const KindWord &kind, StateWord state, BrushField field,
                     bool enabled);

} // namespace TARN
