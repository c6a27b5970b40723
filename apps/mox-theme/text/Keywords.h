#pragma once

#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <optional>

/// The words that stand for the tool's choices on the command line and in files.
namespace TARN::ThemeTool {

template <typename Choice>
struct Keyword
{
    QString word;
    Choice choice;
};

/// Returns the words for all values of \a Choice; they stand where the choice does.
template <typename Choice>
const QVector<Keyword<Choice>> &keywords();

/// Returns what \a word stands for; nothing when it is none of the words.
template <typename Choice>
std::optional<Choice> fromKeyword(const QString &word)
{
    for (const Keyword<Choice> &keyword : keywords<Choice>()) {
        if (keyword.word == word) {
            return keyword.choice;
        }
    }
    return std::nullopt;
}

/// Returns the word that stands for \a choice.
template <typename Choice>
QString toKeyword(Choice choice)
{
    for (const Keyword<Choice> &keyword : keywords<Choice>()) {
        if (keyword.choice == choice) {
            return keyword.word;
        }
    }
    return {};
}

/// Returns the words for all values of \a Choice, in their order.
template <typename Choice>
QStringList keywordList()
{
    QStringList words;
    for (const Keyword<Choice> &keyword : keywords<Choice>()) {
        words.append(keyword.word);
    }
    return words;
}

} // namespace TARN::ThemeTool
