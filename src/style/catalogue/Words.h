#pragma once

#include <QtCore/QLatin1String>
#include <QtCore/QString>

#include <array>

/// The words that the names of button and input brushes are composed of.
namespace TARN::Words {

/// Whether a button can be checked, which is the first word of its name.
inline constexpr QLatin1String toggle("Toggle");

inline constexpr QLatin1String button("Button");
inline constexpr QLatin1String input("Input");

/// The kinds that themes define; the plain one has no word. Applications may name further ones.
inline constexpr std::array kinds{QLatin1String(""),         QLatin1String("Highlighted"),
                                  QLatin1String("Primary"),  QLatin1String("Secondary"),
                                  QLatin1String("Tertiary"), QLatin1String("Success"),
                                  QLatin1String("Warning"),  QLatin1String("Danger"),
                                  QLatin1String("Info"),     QLatin1String("Borea")};
inline constexpr QLatin1String highlighted = kinds[1];
inline constexpr QLatin1String borea = kinds[9];

inline constexpr QLatin1String unchecked("Unchecked");
inline constexpr QLatin1String checked("Checked");
inline constexpr QLatin1String isDefault("Default");
inline constexpr std::array checkStates{unchecked, checked, isDefault};

inline constexpr QLatin1String pressed("Pressed");
inline constexpr QLatin1String hover("Hover");
inline constexpr std::array interactions{QLatin1String(""), hover, pressed};

inline constexpr QLatin1String background("Background");
inline constexpr QLatin1String border("Border");
inline constexpr QLatin1String foreground("Foreground");
inline constexpr std::array fields{background, border, foreground};

/// Returns the name of the brush that paints the \a field of a button, say
/// "ToggleButtonPrimaryCheckedHoverBorderBrush". \a toggleWord and \a kind may be empty.
QString buttonBrush(const QString &toggleWord, const QString &kind, const QString &state,
                    QLatin1String field);

/// Returns the name of the brush that paints the \a field of an input, say
/// "InputUncheckedBackgroundBrush".
QString inputBrush(const QString &kind, const QString &state, QLatin1String field);

} // namespace TARN::Words
