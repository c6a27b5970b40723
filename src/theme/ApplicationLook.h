#pragma once

#include "style/asking/Mode.h"

#include <QtCore/QObject>
#include <QtGui/QFont>
#include <QtGui/QPalette>

#include <optional>

class QApplication;
class QStyle;

namespace TARN {

/// What an application gets of a theme besides its style and its files: font, icon theme, and the
/// palette of tool tips.
///
/// By default it is given, whatever was there. In the complete mode what the program has chosen
/// itself stays, and when the style leaves the application, so does the rest: the application gets
/// back what it had, but for what the program has changed since.
class ApplicationLook : public QObject
{
    Q_OBJECT

public:
    /// Returns the look of \a app, which owns it.
    static ApplicationLook &of(QApplication &app);

    /// Begins to give the application the look of a theme in \a mode; what follows is in that mode.
    void begin(Mode mode);

    void setFont(const QFont &font);
    /// Makes \a name the current icon theme, or in the complete mode the one on which a program's
    /// own falls back.
    void setIconTheme(const QString &name);
    void setToolTipPalette(const QPalette &palette);

    /// In the complete mode, makes \a font that of tabs, unless the program has chosen one. To be
    /// called after setFont(), which drops it.
    void setTabFont(const QFont &font);

    /// In the complete mode, has the application get back what it had when \a style is destroyed.
    void leaveWith(QStyle &style);

private:
    explicit ApplicationLook(QApplication &app);

    void giveBack();
    void giveBackFonts();
    void giveBackFallback();

    /// Something that the application was given in place of what it had.
    template <typename Value>
    struct Loan
    {
        Value former;
        Value given;
    };

    template <typename Value>
    bool isChosen(const Value &current, const Value &untouched,
                  const std::optional<Loan<Value>> &loan) const;

    QApplication &m_app;
    Mode m_mode = Mode::Default;
    const QStyle *m_style = nullptr;
    std::optional<Loan<QFont>> m_font;
    std::optional<QFont> m_tabFont;
    std::optional<Loan<QString>> m_iconTheme;
    std::optional<Loan<QString>> m_fallbackTheme;
    QPalette m_plainToolTipPalette;
    std::optional<Loan<QPalette>> m_toolTipPalette;
};

} // namespace TARN
