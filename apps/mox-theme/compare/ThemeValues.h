#pragma once

#include <QtCore/QMap>
#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtGui/QBrush>

namespace TARN::ThemeTool {

/// One thing that a theme says.
struct ThemeValue
{
    QString text;                       ///< as the theme says it; equal values have equal texts
    QBrush brush = QBrush(Qt::NoBrush); ///< what is seen of it; no brush where it is no colour
    double number = 0;                  ///< where it is a number
    QStringList sources; ///< the values on which its look depends, as a section and a name:
                         ///< "colors/MainColor"
};

/// What a theme says about one kind of things.
struct ThemeSection
{
    QString key;   ///< for programs
    QString title; ///< for people
    QMap<QString, ThemeValue> values;
};

/// All that a theme says. Values that the library derives are left out.
struct ThemeValues
{
    QVector<ThemeSection> sections; ///< the same ones in the same order for every theme
    QStringList notes;              ///< what was left out because it cannot be read, a line each

    /// Returns the value \a name of the section \a key; null when there is none.
    const ThemeValue *find(const QString &key, const QString &name) const;
};

/// Reads the theme in the folder \a directory into \a values. Returns one line that says why it
/// cannot be read; empty when it could. Needs a QGuiApplication.
QString readThemeValues(const QString &directory, ThemeValues &values);

} // namespace TARN::ThemeTool
