#include "cli/HRFNearestName.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

/// How many single-character edits lead from one text to the other (Levenshtein).
qsizetype editDistance(const QString &from, const QString &to)
{
    std::vector<qsizetype> row;
    for (qsizetype i = 0; i <= to.size(); ++i)
        row.push_back(i);
    for (qsizetype i = 1; i <= from.size(); ++i) {
        qsizetype diagonal = std::exchange(row[0], i);
        for (qsizetype j = 1; j <= to.size(); ++j) {
            auto &cell = row[std::size_t(j)];
            const qsizetype replaced = diagonal + (from[i - 1] == to[j - 1] ? 0 : 1);
            diagonal = cell;
            cell = std::min({replaced, cell + 1, row[std::size_t(j) - 1] + 1});
        }
    }
    return row.back();
}

} // namespace

QString HRFNearestName(const QString &name, const QStringList &candidates)
{
    const auto nearest = std::ranges::min_element(candidates, {}, [&](const QString &candidate) {
        return editDistance(name.toLower(), candidate.toLower());
    });
    return nearest == candidates.end() ? QString() : *nearest;
}
