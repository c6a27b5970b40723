#include "text/Inks.h"

#include "text/Literals.h"

#include <QtGui/QColor>

namespace TARN::ThemeTool {

namespace {

const char *escapeCode(Ink ink)
{
    switch (ink) {
    case Ink::Bold:
        return "\033[1m";
    case Ink::Faint:
        return "\033[2m";
    case Ink::Red:
        return "\033[1;31m";
    case Ink::Yellow:
        return "\033[1;33m";
    case Ink::Green:
        return "\033[1;32m";
    case Ink::Plain:
        break;
    }
    return "";
}

} // namespace

Inks::Inks(Range range)
    : m_range(range)
{
}

QString Inks::inked(const QString &text, Ink ink) const
{
    if (m_range == Range::None || ink == Ink::Plain) {
        return text;
    }
    return QLatin1String(escapeCode(ink)) + text + "\033[0m"_s;
}

QString Inks::swatch(const QColor &color) const
{
    if (m_range != Range::Every || !color.isValid()) {
        return {};
    }
    return "\033[48;2;%1;%2;%3m  \033[0m "_s.arg(color.red()).arg(color.green()).arg(color.blue());
}

} // namespace TARN::ThemeTool
