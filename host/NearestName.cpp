#include "NearestName.h"

#include <algorithm>
#include <vector>

namespace
{

QString folded(const QString& text)
{
    return text.toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
}

/// Letters to insert, leave out or replace, and neighbours to swap: to the whole of a name, and to
/// its nearest beginning.
struct Distance {
    int whole;
    int beginning;
};

Distance editDistance(const QString& left, const QString& right)
{
    const auto width = static_cast<std::size_t>(right.size()) + 1;
    std::vector<int> before, last(width), row(width);
    for (std::size_t y = 0; y < width; ++y) {
        row[y] = static_cast<int>(y);
    }
    for (int x = 1; x <= left.size(); ++x) {
        before = last;
        last = row;
        row[0] = x;
        for (std::size_t y = 1; y < width; ++y) {
            const auto at = static_cast<int>(y);
            const bool same = left[x - 1] == right[at - 1];
            row[y] = std::min({last[y] + 1, row[y - 1] + 1, last[y - 1] + (same ? 0 : 1)});
            if (x > 1 && at > 1 && left[x - 1] == right[at - 2] && left[x - 2] == right[at - 1]) {
                row[y] = std::min(row[y], before[y - 2] + 1);
            }
        }
    }
    return {row.back(), *std::min_element(row.begin(), row.end())};
}

} // namespace

QString didYouMean(const QString& text, const QStringList& names)
{
    constexpr int longest = 60; // of names and their slips
    const QString meant = folded(text.left(longest));
    int least =
        std::min(static_cast<int>(meant.size()) / 3 + 1, static_cast<int>(meant.size()) - 1);
    QString nearest;
    for (const QString& name : names) {
        const QString candidate = folded(name);
        // What is left unfinished is as near as one wrong letter more.
        const Distance edits = editDistance(meant, candidate);
        const int apart =
            meant.size() > 2 ? std::min(edits.whole, edits.beginning + 1) : edits.whole;
        if (apart < least || (apart == least && nearest.isEmpty())) {
            least = apart;
            nearest = name;
        }
    }
    return nearest.isEmpty() ? QString() : QStringLiteral("; did you mean '%1'?").arg(nearest);
}
