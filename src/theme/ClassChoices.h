#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtGui/QFont>
#include <QtGui/QPalette>

namespace TARN {

/// The fonts and palettes that an application has chosen for classes of widgets. A change of the
/// style or of the application's font drops them.
class ClassChoices
{
public:
    /// Returns those for the classes of the widgets that live now.
    static ClassChoices made();

    /// Leaves out \a font for the class \a name: it is not the application's.
    void forgetFont(const char *name, const QFont &font);

    void makeFontsAgain() const;
    void makePalettesAgain() const;

private:
    QMap<QByteArray, QFont> m_fonts;
    QMap<QByteArray, QPalette> m_palettes;
};

} // namespace TARN
