#include "file_kind.h"

#include "field_value.h"
#include "utf8.h"

#include <kv_config_gui_mvc/companions.h>

#include <algorithm>

namespace kv
{
namespace
{

constexpr std::string_view settingsSuffixes[] = {KV_MVC_SETTINGS_SUFFIXES};
constexpr std::string_view mediaSuffixes[] = {KV_MVC_MEDIA_SUFFIXES};

/// What no line of a text holds.
bool isControlByte(char byte)
{
    return static_cast<unsigned char>(byte) < 0x20 && byte != '\t' && byte != '\r' && byte != '\n';
}

} // namespace

FileKind kindByName(std::string_view name)
{
    const auto dot = name.rfind('.');
    const std::string_view end = dot == name.npos ? std::string_view() : name.substr(dot + 1);
    const auto isEnd = [&](std::string_view suffix) { return equalIgnoringCase(suffix, end); };
    return std::ranges::any_of(settingsSuffixes, isEnd) ? FileKind::Settings
           : std::ranges::any_of(mediaSuffixes, isEnd)  ? FileKind::Media
                                                        : FileKind::Unknown;
}

bool isPlainText(std::string_view content)
{
    return isUtf8(content) && !std::ranges::any_of(content, isControlByte);
}

bool looksLikeSettings(std::string_view content)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (!isPlainText(content)) {
        return false;
    }
    if (content.starts_with(byteOrderMark)) {
        content.remove_prefix(byteOrderMark.size());
    }
    if (content.substr(std::min(content.find_first_not_of(" \t\r\n"), content.size()))
            .starts_with('{')) {
        return true; // JSON
    }
    bool isFirst = true; // but for empty lines and comments
    while (!content.empty()) {
        const auto end = std::min(content.find_first_of("\r\n"), content.size());
        const std::string_view line = trimmed(content.substr(0, end));
        content.remove_prefix(std::min(end + 1, content.size()));
        const bool isEmpty = line.empty() || line.front() == '#' || line.front() == ';';
        // A key whose section is missing is an error of a settings file, too.
        if (line.starts_with('[') || (isFirst && !isEmpty && line.find('=') != line.npos)) {
            return true;
        }
        isFirst = isFirst && isEmpty;
    }
    return isFirst;
}

} // namespace kv
