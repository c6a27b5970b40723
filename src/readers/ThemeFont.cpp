#include "readers/ThemeFont.h"

namespace TARN {

namespace {
constexpr ThemeFont::ThemeFontId allSizes[] = {ThemeFont::Small, ThemeFont::Base, ThemeFont::Medium,
                                               ThemeFont::Large};
constexpr int sizeCount = 4;
} // namespace

ThemeFont::ThemeFont()
    : ThemeFont(QFont())
{
}

ThemeFont::ThemeFont(const QFont &font)
    : m_fonts(sizeCount, font)
{
}

QFont ThemeFont::getFont(ThemeFontId id) const
{
    return m_fonts[id];
}

void ThemeFont::setFont(ThemeFontId id, const QFont &font)
{
    m_fonts[id] = font;
}

QVector<QString> ThemeFont::getFontsLabels()
{
    static const QVector<QString> labels{QStringLiteral("small"), QStringLiteral("base"),
                                         QStringLiteral("medium"), QStringLiteral("large")};
    return labels;
}

QString ThemeFont::getFontName(ThemeFontId id)
{
    return getFontsLabels().at(id);
}

QVariantMap ThemeFont::toVariantMap() const
{
    QVariantMap fonts;
    for (const ThemeFontId id : allSizes) {
        fonts.insert(getFontName(id), getFont(id));
    }
    return fonts;
}

} // namespace TARN
