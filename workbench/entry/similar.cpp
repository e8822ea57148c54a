// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/entry/similar.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace kiv::workbench {

namespace {
constexpr qsizetype suggestionsMax = 3;
/// Longer words are not typing errors.
constexpr qsizetype lengthMax = 100;
} // namespace

int slipsBetween(const QString &one, const QString &other)
{
    const QString a = one.toCaseFolded();
    const QString b = other.toCaseFolded();
    const auto width = static_cast<std::size_t>(b.size()) + 1;
    // Rows of the distance table: for the beginnings of a that end two letters before,
    // one before, and here.
    std::vector<int> before(width);
    std::vector<int> last(width);
    std::vector<int> row(width);
    for (std::size_t j = 0; j < width; ++j)
        row[j] = static_cast<int>(j);
    for (qsizetype i = 1; i <= a.size(); ++i) {
        std::swap(before, last);
        std::swap(last, row);
        row[0] = static_cast<int>(i);
        for (std::size_t j = 1; j < width; ++j) {
            const auto at = static_cast<qsizetype>(j);
            const bool isSame = a[i - 1] == b[at - 1];
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (isSame ? 0 : 1)});
            if (i > 1 && at > 1 && a[i - 1] == b[at - 2] && a[i - 2] == b[at - 1])
                row[j] = std::min(row[j], before[j - 2] + 1);
        }
    }
    return row.back();
}

QStringList similarTo(const QString &word, const QStringList &known)
{
    if (word.size() > lengthMax)
        return {};
    // The dashes of an option are no letters that could be mistyped.
    const qsizetype letters = word.size() - (word.startsWith(u"--") ? 2 : 0);
    int slipsMin = 1 + static_cast<int>(letters / 4);
    QStringList nearest;
    QStringList begun;
    for (const QString &candidate : known) {
        if (candidate == word || qAbs(candidate.size() - word.size()) > lengthMax)
            continue;
        const int slips = slipsBetween(word, candidate);
        // Two words of one letter are not similar.
        if (slips <= slipsMin && slips < std::max(word.size(), candidate.size())) {
            if (slips < slipsMin)
                nearest.clear();
            slipsMin = slips;
            nearest += candidate;
        } else if (!word.isEmpty() && candidate.startsWith(word, Qt::CaseInsensitive)) {
            begun += candidate;
        }
    }
    QStringList similar = nearest.isEmpty() ? begun : nearest;
    similar.removeDuplicates();
    return similar.first(std::min(similar.size(), suggestionsMax));
}

} // namespace kiv::workbench
