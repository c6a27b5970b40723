#include "generator/tokens/ThemeName.h"
#include "generator/tokens/TokenWords.h"
#include "generator/tokens/TomlReader.h"
#include "text/Literals.h"
#include "text/Wording.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace TARN::ThemeTool {

namespace {

/// The smallest and the largest value that makes sense.
struct Limits
{
    int least;
    int most;
};

constexpr Limits FontSizes{1, 96};
constexpr Limits CornerRadii{0, 32};

class TokenReader : public TomlReader
{
public:
    /// Font files are named relative to \a folder.
    explicit TokenReader(const QString &folder);

    void read(const toml::table &root);

    [[nodiscard]] const Tokens &tokens() const { return m_tokens; }

private:
    Key seedKey(const QString &name, QColor &color);
    QVector<Key> sizeKeys(std::array<int, 4> &sizes, Limits limits);
    void readName(const toml::node &node);
    void readFontFamily(const toml::node &node);
    void readFontFiles(const toml::node &node);
    void readFontFile(const toml::node &node);
    void readImages(const toml::node &node);
    void readOpacity(const toml::node &node);
    void readColors(const toml::node &node);
    void readBrushes(const toml::node &node);
    void demandSeeds(const toml::table &root);

    QDir m_folder;
    Tokens m_tokens;
};

TokenReader::TokenReader(const QString &folder)
    : m_folder(folder)
{
}

TomlReader::Key TokenReader::seedKey(const QString &name, QColor &color)
{
    return {name, [this, name, &color](const toml::node &node) {
                const auto text = readText(node, name);
                if (!text) {
                    return;
                }
                color = QColor(*text);
                if (!color.isValid()) {
                    complain(node.source().begin, R"("%1" is no colour: "%2")"_s.arg(name, *text));
                } else if (color.alpha() != 255) {
                    complain(node.source().begin,
                             R"("%1" must be opaque: "%2")"_s.arg(name, *text));
                }
            }};
}

QVector<TomlReader::Key> TokenReader::sizeKeys(std::array<int, 4> &sizes, Limits limits)
{
    QVector<Key> keys;
    const QStringList words = sizeWords();
    for (int i = 0; i < words.size(); ++i) {
        const QString &name = words.at(i);
        int &size = sizes.at(static_cast<std::size_t>(i));
        keys.append({name, [this, name, limits, &size](const toml::node &node) {
                         const auto *number = node.as_integer();
                         if (number == nullptr || number->get() < limits.least ||
                             number->get() > limits.most) {
                             complain(node.source().begin,
                                      R"("%1" must be a whole number from %2 to %3)"_s.arg(name)
                                          .arg(limits.least)
                                          .arg(limits.most));
                             return;
                         }
                         size = static_cast<int>(number->get());
                     }});
    }
    return keys;
}

void TokenReader::readName(const toml::node &node)
{
    const auto text = readText(node, "name"_s);
    if (!text) {
        return;
    }
    const QString problem = themeNameProblem(*text);
    if (!problem.isEmpty()) {
        complain(node.source().begin, R"(the name "%1" )"_s.arg(*text) + problem);
    }
    m_tokens.name = *text;
}

void TokenReader::readFontFamily(const toml::node &node)
{
    const auto text = readText(node, "family"_s);
    if (!text) {
        return;
    }
    // No file of a theme can hold a control character.
    if (text->trimmed().isEmpty() || onOneLine(*text) != *text) {
        complain(node.source().begin, R"("%1" is no family of fonts)"_s.arg(*text));
    }
    m_tokens.font.family = *text;
}

void TokenReader::readFontFiles(const toml::node &node)
{
    const toml::array *files = node.as_array();
    if (files == nullptr) {
        complain(node.source().begin, R"("files" must be a list of font files)"_s);
        return;
    }
    for (const toml::node &file : *files) {
        readFontFile(file);
    }
}

void TokenReader::readFontFile(const toml::node &node)
{
    const auto text = readText(node, "files"_s);
    if (!text) {
        return;
    }
    const QFileInfo file(m_folder.absoluteFilePath(*text));
    if (!file.isFile()) {
        complain(node.source().begin, R"(there is no font file "%1")"_s.arg(*text));
        return;
    }
    if (file.suffix().compare("ttf"_s, Qt::CaseInsensitive) != 0) {
        complain(node.source().begin,
                 R"("%1" is not loaded: the name of a font file must end in ".ttf")"_s.arg(*text));
        return;
    }
    for (const QString &other : qAsConst(m_tokens.font.files)) {
        if (QFileInfo(other).fileName() == file.fileName()) {
            complain(node.source().begin,
                     R"(two font files are named "%1")"_s.arg(file.fileName()));
            return;
        }
    }
    m_tokens.font.files.append(QDir::cleanPath(file.absoluteFilePath()));
}

void TokenReader::readImages(const toml::node &node)
{
    const auto text = readText(node, "images"_s);
    if (!text) {
        return;
    }
    const QFileInfo folder(m_folder.absoluteFilePath(*text));
    if (text->isEmpty() || !folder.isDir()) {
        complain(node.source().begin, R"(there is no folder "%1")"_s.arg(*text));
        return;
    }
    m_tokens.images = QDir::cleanPath(folder.absoluteFilePath());
}

void TokenReader::readOpacity(const toml::node &node)
{
    const auto number = node.value<double>();
    if (!node.is_number() || !(*number >= 0 && *number <= 1)) {
        complain(node.source().begin, R"("RubberBandOpacity" must be a number from 0 to 1)"_s);
        return;
    }
    m_tokens.rubberBandOpacity = *number;
}

void TokenReader::readColors(const toml::node &node)
{
    for (const Entry &entry : readEntries(node, "colors"_s)) {
        m_tokens.colors.insert(entry.name, entry.value);
        m_tokens.places.insert(entry.name, placeOf(entry.position));
    }
}

void TokenReader::readBrushes(const toml::node &node)
{
    for (const Entry &entry : readEntries(node, "brushes"_s)) {
        m_tokens.brushes.append({entry.name, entry.value});
        m_tokens.places.insert(entry.name, placeOf(entry.position));
    }
}

void TokenReader::read(const toml::table &root)
{
    QVector<Key> fontKeys = sizeKeys(m_tokens.font.sizes, FontSizes);
    fontKeys += {
        {"family"_s, [this](const toml::node &node) { readFontFamily(node); }},
        {"weight"_s,
         [this](const toml::node &node) {
             readWord(node, "weight"_s, weightWords(),
                      [this](int index) { m_tokens.font.weight = weightWords().at(index); });
         }},
        {"files"_s, [this](const toml::node &node) { readFontFiles(node); }},
    };
    readKeys(root, {},
             {
                 {"name"_s, [this](const toml::node &node) { readName(node); }},
                 {"base"_s,
                  [this](const toml::node &node) {
                      readWord(node, "base"_s, keywordList<Base>(), [this](int index) {
                          m_tokens.base = keywords<Base>().at(index).choice;
                      });
                  }},
                 {"images"_s, [this](const toml::node &node) { readImages(node); }},
                 tableKey("seeds"_s, {seedKey("accent"_s, m_tokens.accent),
                                      seedKey("neutral"_s, m_tokens.neutral)}),
                 tableKey("font"_s, fontKeys),
                 tableKey("radius"_s, sizeKeys(m_tokens.cornerRadii, CornerRadii)),
                 tableKey("opacity"_s, {{"RubberBandOpacity"_s,
                                         [this](const toml::node &node) { readOpacity(node); }}}),
                 {"colors"_s, [this](const toml::node &node) { readColors(node); }},
                 {"brushes"_s, [this](const toml::node &node) { readBrushes(node); }},
             });
    demandSeeds(root);
}

/// What is missing is told only when nothing that is there explains it.
void TokenReader::demandSeeds(const toml::table &root)
{
    if (!problem().text.isEmpty()) {
        return;
    }
    if (!root.contains("name")) {
        complain({}, R"("name", the theme's name, is missing)"_s);
        return;
    }
    if (!m_tokens.accent.isValid()) {
        const toml::node *seeds = root.get("seeds");
        complain(seeds == nullptr ? toml::source_position{} : seeds->source().begin,
                 R"("accent", the colour that the theme is made of, is missing in [seeds])"_s);
    }
}

} // namespace

TokenProblem readTokens(const QString &path, Tokens &tokens)
{
    QFile file(path);
    // Opening a pipe would wait for somebody to write to it.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        const bool exists = QFileInfo::exists(path);
        return {0, 0, exists ? "cannot be read"_s : "there is no such file"_s};
    }
    const QByteArray content = file.readAll();
    try {
        TokenReader reader(QFileInfo(path).absolutePath());
        reader.read(toml::parse(
            std::string_view(content.constData(), static_cast<std::size_t>(content.size()))));
        if (reader.problem().text.isEmpty()) {
            tokens = reader.tokens();
        }
        return reader.problem();
    } catch (const toml::parse_error &error) {
        const toml::source_position position = error.source().begin;
        return {static_cast<int>(position.line), static_cast<int>(position.column),
                onOneLine(toText(error.description()))};
    }
}

} // namespace TARN::ThemeTool
