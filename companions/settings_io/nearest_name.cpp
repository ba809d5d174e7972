#include "nearest_name.h"

#include <algorithm>
#include <vector>

namespace kv
{
namespace
{

constexpr std::size_t shortestPart = 3; // that a name is recognised by

std::string folded(std::string_view text)
{
    std::string result(text);
    for (char& letter : result) {
        letter = letter >= 'A' && letter <= 'Z'   ? static_cast<char>(letter - 'A' + 'a')
                 : letter == '-' || letter == ' ' ? '_'
                                                  : letter;
    }
    return result;
}

/// Letters to insert, leave out, replace or swap with the next.
std::size_t editDistance(std::string_view left, std::string_view right)
{
    std::vector<std::size_t> before, last(right.size() + 1), row(right.size() + 1);
    for (std::size_t y = 0; y <= right.size(); ++y) {
        row[y] = y;
    }
    for (std::size_t x = 1; x <= left.size(); ++x) {
        before = last;
        last = row;
        row[0] = x;
        for (std::size_t y = 1; y <= right.size(); ++y) {
            const bool same = left[x - 1] == right[y - 1];
            row[y] = std::min({last[y] + 1, row[y - 1] + 1, last[y - 1] + (same ? 0 : 1)});
            if (x > 1 && y > 1 && left[x - 1] == right[y - 2] && left[x - 2] == right[y - 1]) {
                row[y] = std::min(row[y], before[y - 2] + 1);
            }
        }
    }
    return row[right.size()];
}

/// As the edit distance; a name of which the text is a part is as near as one wrong letter.
std::size_t distance(const std::string& text, const std::string& name)
{
    const std::size_t edits = editDistance(text, name);
    const bool isPart = std::min(text.size(), name.size()) >= shortestPart &&
                        (name.find(text) != name.npos || text.find(name) != text.npos);
    return isPart ? std::min<std::size_t>(edits, 1) : edits;
}

} // namespace

std::string_view nearestName(std::string_view text, std::span<const std::string_view> names)
{
    constexpr std::size_t longest = 60; // of names and their slips
    const std::string meant = folded(text.substr(0, longest));
    std::size_t least = meant.size() / 3 + 1;
    std::string_view nearest;
    for (const std::string_view name : names) {
        const std::size_t edits = distance(meant, folded(name));
        if (edits < least ||
            (edits == least && (nearest.empty() || name.size() <= nearest.size()))) {
            least = edits;
            nearest = name;
        }
    }
    return least < meant.size() ? nearest : std::string_view();
}

std::string didYouMean(std::string_view name)
{
    return name.empty() ? std::string() : "; did you mean '" + std::string(name) + "'?";
}

} // namespace kv
