#include "field_value.h"
#include "settings_text.h"

#include <algorithm>
#include <array>

namespace kv
{
namespace
{

constexpr std::string_view header =
    "# Settings of the MVC encoder. Names or numbers; what is left out is zero.\n";
constexpr std::size_t bytesPerLine = 32;

void appendFields(std::string& text, const Section& section, const unsigned char* base)
{
    for (const FieldGroup& group : section.groups) {
        text.append("\n# ").append(group.title).append("\n");
        for (const Field& field : group.fields) {
            text.append(field.name).append(" = ").append(formatField(field, base)).append("\n");
        }
    }
}

/// True for each byte of the section that no field names.
std::vector<bool> unnamedBytes(const Section& section)
{
    std::vector<bool> unnamed(section.size, true);
    for (const FieldGroup& group : section.groups) {
        for (const Field& field : group.fields) {
            std::fill_n(unnamed.begin() + static_cast<std::ptrdiff_t>(field.offset), field.size(),
                        false);
        }
    }
    return unnamed;
}

/// One line for each stretch of unnamed bytes that is not all zero; lines begin at multiples.
void appendBytes(std::string& text, const Section& section, const unsigned char* base)
{
    const std::vector<bool> unnamed = unnamedBytes(section);
    bool first = true;
    for (std::size_t begin = 0; begin < section.size;) {
        std::size_t end = begin + 1;
        while (end < section.size && end % bytesPerLine != 0 && unnamed[end] == unnamed[begin]) {
            ++end;
        }
        const std::span bytes(base + begin, end - begin);
        if (unnamed[begin] && std::ranges::any_of(bytes, [](auto byte) { return byte != 0; })) {
            text.append(first ? "\n# Bytes without a name, by offset\n" : "");
            text.append("bytes ").append(std::to_string(begin)).append(" = ");
            text.append(formatBytes(bytes)).append("\n");
            first = false;
        }
        begin = end;
    }
}

} // namespace

std::string formatSettings(const KvMvcSettings& settings)
{
    const auto* record = reinterpret_cast<const unsigned char*>(&settings);
    std::string text(header);
    for (const Section& section : settingsSections()) {
        text.append("\n[").append(section.name).append("]\n");
        appendFields(text, section, record + section.offset);
        appendBytes(text, section, record + section.offset);
    }
    return text;
}

} // namespace kv
