#include "color/ColorText.h"
#include "generator/tokens/TokenWords.h"
#include "generator/tokens/Tokens.h"
#include "text/Literals.h"

#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>

namespace TARN::ThemeTool {

namespace {

/// Returns \a text as a TOML string.
QString quoted(const QString &text)
{
    QString result;
    for (const QChar character : text) {
        if (character == u'"' || character == u'\\') {
            result += QLatin1Char('\\');
            result += character;
        } else if (character.unicode() < 0x20 || character.unicode() == 0x7f) {
            result += R"(\u%1)"_s.arg(character.unicode(), 4, 16, QLatin1Char('0'));
        } else {
            result += character;
        }
    }
    return R"("%1")"_s.arg(result);
}

QString quoted(const QStringList &texts)
{
    QStringList result;
    for (const QString &text : texts) {
        result.append(quoted(text));
    }
    return result.join(", "_s);
}

QString key(const QString &name)
{
    static const QRegularExpression bare("^[A-Za-z0-9_-]+$"_s);
    return bare.match(name).hasMatch() ? name : quoted(name);
}

QString textEntry(const QString &name, const QString &value)
{
    return "%1 = %2\n"_s.arg(key(name), quoted(value));
}

QString sizeEntries(const std::array<int, 4> &sizes)
{
    QString result;
    const QStringList words = sizeWords();
    for (int i = 0; i < words.size(); ++i) {
        result += "%1 = %2\n"_s.arg(words.at(i)).arg(sizes.at(static_cast<std::size_t>(i)));
    }
    return result;
}

QString themeText(const Tokens &tokens)
{
    return R"(# What the theme is made from. After a change, "mox-theme build" makes it again.
#
# Every colour that is not set here is computed from the seeds, so that text is legible on whatever
# it lies on.

# The name by which the theme is shown; it also names folders.
)"_s + textEntry("name"_s, tokens.name) +
           "# "_s + keywordList<Base>().join(", "_s) + "\n"_s +
           textEntry("base"_s, toKeyword(tokens.base)) +
           R"(# A folder of icons (scalable), cursors (Cursors) and other images (theme_resources) of your own,
# relative to this file.
)"_s +
           (tokens.images.isEmpty() ? "# images = \"../images\"\n"_s
                                    : textEntry("images"_s, tokens.images));
}

QString seedsText(const Tokens &tokens)
{
    const QString accent = textEntry("accent"_s, colorText(tokens.accent));
    const QString neutral = tokens.neutral.isValid()
                                ? textEntry("neutral"_s, colorText(tokens.neutral))
                                : "# neutral = \"#20282F\"\n"_s;
    return R"(
[seeds]
# What is selected, checked, default or primary.
)"_s + accent +
           "# Hue and strength of colour of the surfaces; without it they are nearly grey.\n"_s +
           neutral;
}

QString fontText(const FontTokens &font)
{
    const QString files = font.files.isEmpty() ? "# files = [\"../fonts/My.ttf\"]\n"_s
                                               : "files = [%1]\n"_s.arg(quoted(font.files));
    return "\n[font]\n"_s + textEntry("family"_s, font.family) + "# "_s +
           weightWords().join(", "_s) + "\n"_s + textEntry("weight"_s, font.weight) +
           "# Points: captions, widgets, titles of cards, titles of pages.\n"_s +
           sizeEntries(font.sizes) +
           "# Font files (TrueType) to ship with the theme, relative to this file.\n"_s + files;
}

QString measuresText(const Tokens &tokens)
{
    return R"(
[radius]
# Pixels: fields inside inputs, buttons and inputs, cards and tabs, large tabs.
)"_s + sizeEntries(tokens.cornerRadii) +
           R"(
[opacity]
# The rectangle that is drawn to select what lies in it: from 0, unseen, to 1.
)"_s +
           "RubberBandOpacity = %1\n"_s.arg(
               QString::number(tokens.rubberBandOpacity, 'g', QLocale::FloatingPointShortest));
}

QString overridesText(const Tokens &tokens)
{
    QString colors;
    for (auto color = tokens.colors.begin(); color != tokens.colors.end(); ++color) {
        colors += textEntry(color.key(), color.value());
    }
    QString brushes;
    for (const auto &brush : tokens.brushes) {
        brushes += textEntry(brush.first, brush.second);
    }
    return R"(
# Colours that are not to be computed: a colour, or the name of another one.
[colors]
# BackgroundColor = "#20282F"
# StatusInfoColor = "MainColor"
)"_s + colors +
           R"(
# Brushes that are not to follow the recipe: the name of a colour, or a colour. A "*" in the name of
# a brush stands for any text; the last entry that fits a name counts.
[brushes]
# "ButtonDanger*BorderBrush" = "StatusDangerColor"
)"_s + brushes;
}

} // namespace

QString tokenFile(const Tokens &tokens)
{
    return themeText(tokens) + seedsText(tokens) + fontText(tokens.font) + measuresText(tokens) +
           overridesText(tokens);
}

} // namespace TARN::ThemeTool
