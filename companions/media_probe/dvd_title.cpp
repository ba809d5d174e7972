#include "dvd_title.h"

#include <algorithm>
#include <string_view>

namespace kv
{
namespace
{

/// Names without regard to case: VTS_01_0.IFO goes with VTS_01_1.VOB, VIDEO_TS.IFO with .VOB.
bool endsWith(std::string_view text, std::string_view lowerCaseEnd)
{
    if (text.size() < lowerCaseEnd.size()) {
        return false;
    }
    return std::ranges::equal(
        text.substr(text.size() - lowerCaseEnd.size()), lowerCaseEnd, {},
        [](char letter) { return letter >= 'A' && letter <= 'Z' ? char(letter + 32) : letter; });
}

} // namespace

std::string videoOfDvdTitle(const std::string& path)
{
    constexpr std::size_t suffix = 3;
    if (!endsWith(path, ".ifo")) {
        return path;
    }
    std::string video = path.substr(0, path.size() - suffix);
    video += path.back() == 'o' ? "vob" : "VOB";
    const std::size_t part = video.size() - suffix - 2;
    if (endsWith(path, "_0.ifo")) {
        video[part] = '1';
    }
    return video;
}

} // namespace kv
