#include "hex_bytes.h"

#include "field_value.h"

namespace kv
{

std::string formatBytes(std::span<const unsigned char> bytes)
{
    constexpr std::size_t group = 4;
    std::string text;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        if (at != 0 && at % group == 0) {
            text += ' ';
        }
        text += hexDigits[bytes[at] >> 4];
        text += hexDigits[bytes[at] & 15];
    }
    return text;
}

std::optional<std::vector<unsigned char>> parseBytes(std::string_view text)
{
    std::vector<unsigned char> bytes;
    for (std::size_t at = 0; at < text.size();) {
        if (text[at] == ' ' || text[at] == '\t') {
            ++at;
            continue;
        }
        const auto high = hexDigits.find(lower(text[at]));
        const auto low = at + 1 < text.size() ? hexDigits.find(lower(text[at + 1])) : text.npos;
        if (high == text.npos || low == text.npos) {
            return std::nullopt;
        }
        bytes.push_back(static_cast<unsigned char>(high << 4 | low));
        at += 2;
    }
    return bytes.empty() ? std::nullopt : std::optional(bytes);
}

} // namespace kv
