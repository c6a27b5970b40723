#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QPointer>
#include <QtCore/QVector>
#include <QtGui/QBrush>
#include <QtGui/QFont>
#include <QtGui/QPalette>

class QApplication;
class QLabel;
class QMdiArea;

namespace TARN {

class ThemeFootprint;

/// The clean switch of an application that sets "appLiveThemeSwitch": one application of a theme
/// that leaves nothing of the themes before it. Without that property it does nothing, and
/// themes add up.
class CleanSwitch
{
public:
    /// Takes back what earlier themes installed, so that a theme applied next finds the
    /// application as it was before the first.
    CleanSwitch(QApplication &app, ThemeFootprint &footprint);

    /// Tells whether the application wants a clean switch.
    bool isActive() const { return m_active; }

    /// Returns the palette that the theme's palette is to be based on.
    QPalette basePalette() const;

    /// To be called when the theme's fonts have been added: widgets still have the former theme's
    /// font, and may have asked for it while it was missing.
    void fontsAdded() const;

    /// To be called when the theme's variables have been read and published: values that
    /// somebody looked up in the meantime are those of the former theme.
    void variablesPublished() const;

    /// To be called when the theme's style and stylesheet are about to replace the former ones:
    /// takes the former stylesheet off, and gives \a font to all widgets while none is in force,
    /// since widgets below an application's stylesheet do not hear of a new application font.
    void replaceStyleSheet(const QFont &font);

    /// To be called when all has been applied: gives the application back the fonts that it chose
    /// for classes of widgets, which a change of the style or of the application font resets, and
    /// has follow what does not do so by itself: labels and shown documents the palette, the icons
    /// and sizes that widgets keep the style. In a clean switch the theme's images have to be there
    /// before its style is.
    void finish() const;

private:
    QApplication &m_app;
    const ThemeFootprint &m_footprint;
    bool m_active;
    bool m_replacesStyle = false;
    QFont m_formerFont;
    QBrush m_formerLink;
    QMap<QByteArray, QFont> m_classFonts;
    QVector<QPointer<QLabel>> m_plainLabels;
    QVector<QPointer<QMdiArea>> m_plainAreas;
};

} // namespace TARN
