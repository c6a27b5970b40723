#include "theme/ApplicationLook.h"

#include "style/asking/AppliedTheme.h"
#include "theme/ClassChoices.h"
#include "theme/ThemeFootprint.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QIcon>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolTip>

#include <utility>

namespace TARN {

namespace {

constexpr char tabClass[] = "QTabBar";

/// Returns the name of the icon theme that the application has if nobody has chosen one.
QString desktopsIconTheme()
{
    const QString current = QIcon::themeName();
    QIcon::setThemeName(QString());
    const QString desktops = QIcon::themeName();
    if (desktops != current) {
        QIcon::setThemeName(current);
    }
    return desktops;
}

template <typename Loan, typename Value>
void lend(std::optional<Loan> &loan, const Value &former, const Value &given)
{
    loan = Loan{loan ? loan->former : former, given};
}

} // namespace

ApplicationLook &ApplicationLook::of(QApplication &app)
{
    auto *look = app.findChild<ApplicationLook *>(QString(), Qt::FindDirectChildrenOnly);
    return look ? *look : *new ApplicationLook(app);
}

ApplicationLook::ApplicationLook(QApplication &app)
    : QObject(&app)
    , m_app(app)
{
}

void ApplicationLook::begin(Mode mode)
{
    m_mode = mode;
    m_style = nullptr;
    if (mode == Mode::Default) {
        giveBackFallback();
    } else if (!m_toolTipPalette) {
        // The toolkit makes it from the application's palette when somebody first asks for it.
        m_plainToolTipPalette = QToolTip::palette();
    }
}

/// Tells whether \a current, which was \a untouched before the first theme, is the program's choice
/// and not what \a loan has given; by default nobody asks.
template <typename Value>
bool ApplicationLook::isChosen(const Value &current, const Value &untouched,
                               const std::optional<Loan<Value>> &loan) const
{
    return m_mode == Mode::Complete && current != (loan ? loan->given : untouched);
}

void ApplicationLook::setFont(const QFont &font)
{
    const QFont current = QApplication::font();
    if (isChosen(current, QFontDatabase::systemFont(QFontDatabase::GeneralFont), m_font)) {
        m_font.reset();
        return;
    }
    lend(m_font, current, font);
    QApplication::setFont(font);
}

void ApplicationLook::setIconTheme(const QString &name)
{
    const QString current = QIcon::themeName();
    if (m_mode == Mode::Complete && isChosen(current, desktopsIconTheme(), m_iconTheme)) {
        m_iconTheme.reset();
        lend(m_fallbackTheme, QIcon::fallbackThemeName(), name);
        QIcon::setFallbackThemeName(name);
        return;
    }
    // Without a name of its own the application has the desktop's.
    lend(m_iconTheme, QString(), name);
    QIcon::setThemeName(name);
}

void ApplicationLook::setToolTipPalette(const QPalette &palette)
{
    const QPalette current = QToolTip::palette();
    if (isChosen(current, m_plainToolTipPalette, m_toolTipPalette)) {
        m_toolTipPalette.reset();
        return;
    }
    lend(m_toolTipPalette, m_plainToolTipPalette, palette);
    QToolTip::setPalette(palette);
}

void ApplicationLook::setTabFont(const QFont &font)
{
    if (m_mode == Mode::Default) {
        m_tabFont.reset();
        return;
    }
    const QFont current = QApplication::font(tabClass);
    const bool isGiven = m_tabFont && current == *m_tabFont;
    if (isGiven || current.isCopyOf(QApplication::font())) {
        m_tabFont = font;
        QApplication::setFont(font, tabClass);
    }
}

void ApplicationLook::leaveWith(QStyle &style)
{
    if (m_mode == Mode::Default) {
        return;
    }
    m_style = &style;
    connect(&style, &QObject::destroyed, this, [this, address = &style] {
        if (m_style == address && !QCoreApplication::closingDown()) {
            giveBack();
        }
    });
}

void ApplicationLook::giveBack()
{
    m_style = nullptr;
    setAppliedTheme({});
    giveBackFonts();
    if (m_iconTheme && QIcon::themeName() == m_iconTheme->given) {
        QIcon::setThemeName(m_iconTheme->former);
    }
    m_iconTheme.reset();
    giveBackFallback();
    if (m_toolTipPalette && QToolTip::palette() == m_toolTipPalette->given) {
        QToolTip::setPalette(m_toolTipPalette->former);
    }
    m_toolTipPalette.reset();
    ThemeFootprint::of(m_app).takeBackImages();
}

void ApplicationLook::giveBackFonts()
{
    ClassChoices choices = ClassChoices::made();
    if (m_tabFont) {
        choices.forgetFont(tabClass, *m_tabFont);
        m_tabFont.reset();
    }
    // The only way to take a font from a class is to choose one for all.
    const QFont current = QApplication::font();
    QApplication::setFont(m_font && current == m_font->given ? m_font->former : current);
    m_font.reset();
    choices.makeFontsAgain();
}

void ApplicationLook::giveBackFallback()
{
    if (m_fallbackTheme && QIcon::fallbackThemeName() == m_fallbackTheme->given) {
        QIcon::setFallbackThemeName(m_fallbackTheme->former);
    }
    m_fallbackTheme.reset();
}

} // namespace TARN
