#include "generator/tokens/TomlReader.h"

#include "text/DidYouMean.h"
#include "text/Literals.h"
#include "text/Wording.h"

#include <QtGui/QColor>

#include <algorithm>
#include <tuple>

namespace TARN::ThemeTool {

namespace {

/// Returns what to append to a complaint about \a mistyped.
QString didYouMean(const QString &mistyped, const QStringList &words)
{
    const QString nearest = KnownNames(words).nearest(mistyped);
    return nearest.isEmpty() ? QString() : R"(; did you mean "%1"?)"_s.arg(nearest);
}

} // namespace

QString toText(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

TokenPlace placeOf(const toml::source_position &position)
{
    return {static_cast<int>(position.line), static_cast<int>(position.column)};
}

void TomlReader::complain(const toml::source_position &position, const QString &text)
{
    const TokenProblem problem{placeOf(position), onOneLine(text)};
    const bool isEarlier =
        std::tie(problem.line, problem.column) < std::tie(m_problem.line, m_problem.column);
    if (m_problem.text.isEmpty() || isEarlier) {
        m_problem = problem;
    }
}

void TomlReader::readKeys(const toml::table &table, const QString &tableName,
                          const QVector<Key> &keys)
{
    for (const auto &[tomlKey, node] : table) {
        const QString name = toText(tomlKey.str());
        const auto isNamed = [&name](const Key &key) { return key.name == name; };
        const auto *const key = std::find_if(keys.cbegin(), keys.cend(), isNamed);
        if (key != keys.cend()) {
            key->read(node);
            continue;
        }
        QStringList names;
        for (const Key &known : keys) {
            names.append(known.name);
        }
        const QString kind = node.is_table() ? "table"_s : "key"_s;
        const QString place = tableName.isEmpty() ? QString() : " in [%1]"_s.arg(tableName);
        complain(tomlKey.source().begin,
                 R"(unknown %1 "%2")"_s.arg(kind, name) + place + didYouMean(name, names));
    }
}

TomlReader::Key TomlReader::tableKey(const QString &name, const QVector<Key> &keys)
{
    return {name, [this, name, keys](const toml::node &node) {
                if (const toml::table *table = node.as_table()) {
                    readKeys(*table, name, keys);
                } else {
                    complain(node.source().begin, R"("%1" must be a table)"_s.arg(name));
                }
            }};
}

std::optional<QString> TomlReader::readText(const toml::node &node, const QString &name)
{
    const auto *text = node.as_string();
    if (text == nullptr) {
        complain(node.source().begin, R"("%1" must be a text in quotation marks)"_s.arg(name));
        return std::nullopt;
    }
    return toText(text->get());
}

void TomlReader::readWord(const toml::node &node, const QString &name, const QStringList &words,
                          const std::function<void(int)> &use)
{
    const auto text = readText(node, name);
    if (!text) {
        return;
    }
    if (!words.contains(*text)) {
        complain(node.source().begin,
                 R"(unknown %1 "%2" (%3))"_s.arg(name, *text, words.join(", "_s)) +
                     didYouMean(*text, words));
        return;
    }
    use(words.indexOf(*text));
}

QVector<TomlReader::Entry> TomlReader::readEntries(const toml::node &node, const QString &name)
{
    const toml::table *table = node.as_table();
    if (table == nullptr) {
        complain(node.source().begin, R"("%1" must be a table)"_s.arg(name));
        return {};
    }
    QVector<Entry> entries;
    for (const auto &[tomlKey, valueNode] : *table) {
        const QString key = toText(tomlKey.str());
        const auto value = readText(valueNode, key);
        if (!value) {
            continue;
        }
        if (key.isEmpty()) {
            complain(tomlKey.source().begin, "an entry of [%1] has no name"_s.arg(name));
        }
        // Anything else may be the name of a variable, which is not known here.
        if (value->isEmpty() ||
            (value->startsWith(QLatin1Char('#')) && !QColor::isValidColor(*value))) {
            complain(valueNode.source().begin, R"("%1" is no colour: "%2")"_s.arg(key, *value));
        }
        entries.append({key, *value, tomlKey.source().begin});
    }
    // The parser sorts its tables by key.
    std::sort(entries.begin(), entries.end(), [](const Entry &first, const Entry &second) {
        return std::tie(first.position.line, first.position.column) <
               std::tie(second.position.line, second.position.column);
    });
    return entries;
}

} // namespace TARN::ThemeTool
