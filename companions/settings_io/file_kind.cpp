#include "file_kind.h"

#include "field_value.h"
#include "utf8.h"

#include <algorithm>

namespace kv
{
namespace
{

struct Suffix {
    std::string_view text;
    FileKind kind;
};

constexpr Suffix kSuffixes[] = {
    {"cfg", FileKind::Settings}, {"ini", FileKind::Settings}, {"m2p", FileKind::Media},
    {"m2t", FileKind::Media},    {"m2v", FileKind::Media},    {"m4p", FileKind::Media},
    {"mp2", FileKind::Media},    {"mp4", FileKind::Media},    {"mpeg", FileKind::Media},
    {"mpg", FileKind::Media},    {"mpv", FileKind::Media},    {"mxf", FileKind::Media},
    {"trp", FileKind::Media},    {"ts", FileKind::Media},     {"vob", FileKind::Media},
    {"ifo", FileKind::Media}};

/// What no line of a text holds.
bool isControl(char byte)
{
    return static_cast<unsigned char>(byte) < 0x20 && byte != '\t' && byte != '\r' && byte != '\n';
}

} // namespace

FileKind kindByName(std::string_view name)
{
    const auto dot = name.rfind('.');
    const std::string_view end = dot == name.npos ? std::string_view() : name.substr(dot + 1);
    const auto known = std::ranges::find_if(
        kSuffixes, [&](const Suffix& suffix) { return equalIgnoringCase(suffix.text, end); });
    return known == std::end(kSuffixes) ? FileKind::Unknown : known->kind;
}

bool looksLikeSettings(std::string_view content)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (!isUtf8(content) || std::ranges::any_of(content, isControl)) {
        return false;
    }
    if (content.starts_with(byteOrderMark)) {
        content.remove_prefix(byteOrderMark.size());
    }
    bool lineBegins = true;
    for (const char byte : content) {
        if (byte == '[' && lineBegins) {
            return true;
        }
        lineBegins = byte == '\n' || byte == '\r' || (lineBegins && (byte == ' ' || byte == '\t'));
    }
    return lineBegins && content.find_first_not_of(" \t\r\n") == content.npos;
}

} // namespace kv
