#include "utf8.h"

namespace kv
{

std::optional<char32_t> nextCodePoint(std::string_view text, std::size_t& position)
{
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    const unsigned char first = byte(position);
    if (first < 0x80) {
        ++position;
        return first;
    }
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || text.size() - position < length) {
        return std::nullopt;
    }
    char32_t point = first & (0x7Fu >> length);
    for (std::size_t at = 1; at < length; ++at) {
        if ((byte(position + at) & 0xC0) != 0x80) {
            return std::nullopt;
        }
        point = point << 6 | (byte(position + at) & 0x3F);
    }
    const bool overlong = (length == 3 && point < 0x800) || (length == 4 && point < 0x10000);
    if (overlong || point > 0x10FFFF || (point >= 0xD800 && point <= 0xDFFF)) {
        return std::nullopt;
    }
    position += length;
    return point;
}

bool isControl(char32_t point)
{
    return (point < 0x20 && point != '\t') || (point >= 0x7F && point < 0xA0);
}

bool isUtf8(std::string_view text)
{
    for (std::size_t at = 0; at < text.size();) {
        if (!nextCodePoint(text, at)) {
            return false;
        }
    }
    return true;
}

std::optional<std::string> undoLatin1(std::string_view text)
{
    std::string former;
    bool beyondAscii = false;
    for (std::size_t at = 0; at < text.size();) {
        const auto point = nextCodePoint(text, at);
        if (!point || *point > 0xFF) {
            return std::nullopt;
        }
        beyondAscii = beyondAscii || *point > 0x7F;
        former += static_cast<char>(static_cast<unsigned char>(*point));
    }
    if (!beyondAscii || !isUtf8(former)) {
        return std::nullopt;
    }
    return former;
}

} // namespace kv
