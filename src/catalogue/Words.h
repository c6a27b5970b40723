#pragma once

#include <QtCore/QLatin1String>
#include <QtCore/QString>

#include <array>

/// The words that the names of button and input brushes are composed of.
namespace TARN::Words {

/// Returns \a text as a constant: the constructor that counts it is none for every compiler.
template <int Size>
constexpr QLatin1String word(const char (&text)[Size])
{
    return QLatin1String(text, Size - 1);
}

/// Whether a button can be checked, which is the first word of its name.
inline constexpr QLatin1String toggle = word("Toggle");

inline constexpr QLatin1String button = word("Button");
inline constexpr QLatin1String input = word("Input");

/// The kinds that themes define; the plain one has no word. Applications may name further ones.
inline constexpr std::array kinds{
    word(""),        word("Highlighted"), word("Primary"), word("Secondary"), word("Tertiary"),
    word("Success"), word("Warning"),     word("Danger"),  word("Info"),      word("Borea")};
inline constexpr QLatin1String highlighted = kinds[1];
inline constexpr QLatin1String borea = kinds[9];

inline constexpr QLatin1String unchecked = word("Unchecked");
inline constexpr QLatin1String checked = word("Checked");
inline constexpr QLatin1String isDefault = word("Default");
inline constexpr std::array checkStates{unchecked, checked, isDefault};

inline constexpr QLatin1String pressed = word("Pressed");
inline constexpr QLatin1String hover = word("Hover");
inline constexpr std::array interactions{word(""), hover, pressed};

inline constexpr QLatin1String background = word("Background");
inline constexpr QLatin1String border = word("Border");
inline constexpr QLatin1String foreground = word("Foreground");
inline constexpr std::array fields{background, border, foreground};

/// What the name of a disabled twin ends with.
inline constexpr QLatin1String disabled = word("Disabled");

/// Returns \a name, or the name of its disabled twin unless \a enabled.
QString twin(const QString &name, bool enabled);

/// Returns the name of the brush that paints the \a field of a button, say
/// "ToggleButtonPrimaryCheckedHoverBorderBrush". \a toggleWord and \a kind may be empty.
QString buttonBrush(const QString &toggleWord, const QString &kind, const QString &state,
                    QLatin1String field);

/// Returns the name of the brush that paints the \a field of an input, say
/// "InputUncheckedBackgroundBrush".
QString inputBrush(const QString &kind, const QString &state, QLatin1String field);

} // namespace TARN::Words
