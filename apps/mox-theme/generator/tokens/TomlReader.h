#pragma once

#include "generator/tokens/Tokens.h"

#include <functional>
#include <optional>
#include <toml++/toml.h>

namespace TARN::ThemeTool {

QString toText(std::string_view utf8);

TokenPlace placeOf(const toml::source_position &position);

/// Reads the values of a TOML file and keeps the first problem with them.
class TomlReader
{
public:
    /// Returns the first problem of the file, from its top.
    [[nodiscard]] const TokenProblem &problem() const { return m_problem; }

protected:
    /// A key that a table may hold, and what is done with its value.
    struct Key
    {
        QString name;
        std::function<void(const toml::node &)> read;
    };

    /// An entry whose name is the author's.
    struct Entry
    {
        QString name;
        QString value;
        toml::source_position position;
    };

    void complain(const toml::source_position &position, const QString &text);

    /// Reads what \a table, which is called \a tableName, holds; every other key is a problem.
    void readKeys(const toml::table &table, const QString &tableName, const QVector<Key> &keys);

    /// Returns the key \a name of a table that holds \a keys.
    Key tableKey(const QString &name, const QVector<Key> &keys);

    std::optional<QString> readText(const toml::node &node, const QString &name);

    /// Reads one of \a words and passes its index to \a use.
    void readWord(const toml::node &node, const QString &name, const QStringList &words,
                  const std::function<void(int)> &use);

    /// Returns the entries of the table \a name in the order of the file: names of variables, each
    /// with a colour or the name of another one.
    QVector<Entry> readEntries(const toml::node &node, const QString &name);

private:
    TokenProblem m_problem;
};

} // namespace TARN::ThemeTool
