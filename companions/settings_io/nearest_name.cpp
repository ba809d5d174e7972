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

/// Two for each edit; a name that the text is a part of, or the other way round, lies between one
/// edit and two.
std::size_t distance(const std::string& text, const std::string& name)
{
    constexpr std::size_t ofPart = 3;
    const std::size_t edits = 2 * editDistance(text, name);
    const bool isPart = std::min(text.size(), name.size()) >= shortestPart &&
                        (name.find(text) != name.npos || text.find(name) != text.npos);
    return isPart ? std::min(edits, ofPart) : edits;
}

} // namespace

std::string_view nearestName(std::string_view text, std::span<const std::string_view> names)
{
    constexpr std::size_t longest = 60; // of names and their slips
    const std::string meant = folded(text.substr(0, longest));
    std::size_t least = 2 * (meant.size() / 3 + 1);
    std::string_view nearest;
    for (const std::string_view name : names) {
        const std::size_t apart = distance(meant, folded(name));
        if (apart < least ||
            (apart == least && (nearest.empty() || name.size() <= nearest.size()))) {
            least = apart;
            nearest = name;
        }
    }
    return least < 2 * meant.size() ? nearest : std::string_view();
}

std::string didYouMean(std::string_view name)
{
    return name.empty() ? std::string() : "; did you mean '" + std::string(name) + "'?";
}

} // namespace kv
