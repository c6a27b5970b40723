#include "text/DidYouMean.h"

#include <QtCore/QtAlgorithms>

#include <algorithm>
#include <array>

namespace TARN::ThemeTool {

namespace {

/// Longer names are no misspellings of anything.
constexpr int longestName = 120;

quint64 lettersOf(const QString &folded)
{
    constexpr int bits = 64;
    quint64 letters = 0;
    for (const QChar c : folded) {
        letters |= quint64(1) << (c.unicode() % bits);
    }
    return letters;
}

/// Returns how many edits a misspelling of a name of \a length letters may be away from it.
int allowedEdits(int length)
{
    constexpr int mostEdits = 3;
    constexpr int lettersPerEdit = 3;
    return qBound(0, length / lettersPerEdit, mostEdits);
}

/// Leaves out what both texts begin and end with, which no edit touches.
void trimCommonEnds(QStringView &first, QStringView &second)
{
    while (!first.isEmpty() && !second.isEmpty() && first.front() == second.front()) {
        first = first.mid(1);
        second = second.mid(1);
    }
    while (!first.isEmpty() && !second.isEmpty() && first.back() == second.back()) {
        first.chop(1);
        second.chop(1);
    }
}

} // namespace

int editDistance(QStringView first, QStringView second, int limit)
{
    trimCommonEnds(first, second);
    const auto rows = static_cast<int>(first.size());
    const auto columns = static_cast<int>(second.size());
    if (qAbs(rows - columns) > limit || rows > longestName || columns > longestName) {
        return limit + 1;
    }
    // The row being filled and the two above it, of which swaps need the upper one.
    using Row = std::array<int, longestName + 1>;
    std::array<Row, 3> table{};
    for (int column = 0; column <= columns; ++column) {
        table[0][column] = column;
    }
    for (int row = 1; row <= rows; ++row) {
        Row &current = table[row % 3];
        const Row &above = table[(row + 2) % 3];
        const Row &upper = table[(row + 1) % 3];
        current[0] = row;
        int least = row;
        for (int column = 1; column <= columns; ++column) {
            const bool isSame = first[row - 1] == second[column - 1];
            int edits = std::min(
                {above[column] + 1, current[column - 1] + 1, above[column - 1] + (isSame ? 0 : 1)});
            const bool isSwap = row > 1 && column > 1 && first[row - 1] == second[column - 2] &&
                                first[row - 2] == second[column - 1];
            edits = isSwap ? qMin(edits, upper[column - 2] + 1) : edits;
            current[column] = edits;
            least = qMin(least, edits);
        }
        // A swap reaches over one row, so that the next one may still be lower by one.
        if (least > limit + 1) {
            return limit + 1;
        }
    }
    return qMin(table[rows % 3][columns], limit + 1);
}

KnownNames::KnownNames(const QStringList &names)
{
    m_names.reserve(names.size());
    for (const QString &name : names) {
        const QString folded = name.toCaseFolded();
        m_names.append({name, folded, lettersOf(folded)});
    }
}

QString KnownNames::nearest(const QString &name) const
{
    const QString folded = name.trimmed().toCaseFolded();
    const quint64 letters = lettersOf(folded);
    int limit = allowedEdits(folded.size());
    QString nearest;
    for (const Known &known : m_names) {
        // An edit changes at most two letters.
        const auto differing = static_cast<int>(qPopulationCount(letters ^ known.letters));
        if (differing > 2 * limit || known.name == name) {
            continue;
        }
        const int edits = editDistance(folded, known.folded, limit);
        if (edits > limit) {
            continue;
        }
        nearest = known.name;
        if (edits == 0) {
            break;
        }
        limit = edits - 1;
    }
    return nearest;
}

} // namespace TARN::ThemeTool
