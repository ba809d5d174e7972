#include "utf8.h"

#include "hex_bytes.h"

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

namespace
{

/// Also the separators of lines and paragraphs, and what the bidirectional algorithm (UAX #9)
/// obeys.
bool isEscaped(char32_t point)
{
    return isControl(point) || point == '\t' || point == 0x061C || point == 0x200E ||
           point == 0x200F || (point >= 0x2028 && point <= 0x202E) ||
           (point >= 0x2066 && point <= 0x2069);
}

std::string hexadecimal(char32_t number, int digits)
{
    std::string text;
    while (digits-- > 0) {
        text += hexDigits[number >> 4 * digits & 15];
    }
    return text;
}

} // namespace

std::string printable(std::string_view text)
{
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t begin = at;
        const auto point = nextCodePoint(text, at);
        if (!point) {
            at = begin + 1;
            result += "\\x" + hexadecimal(static_cast<unsigned char>(text[begin]), 2);
        } else if (isEscaped(*point)) {
            result += "\\u" + hexadecimal(*point, 4);
        } else {
            result += text.substr(begin, at - begin);
        }
    }
    return result;
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
