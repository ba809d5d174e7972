#include "field_value.h"
#include "hex_bytes.h"
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

/// Calls `visit` with each field that has a text for what it holds.
template <typename Visit>
void forEachText(const FieldGroup& group, const unsigned char* base, Visit visit)
{
    for (const Field& field : group.fields) {
        if (hasText(field, base)) {
            visit(field);
        }
    }
}

void appendFields(std::string& text, const Section& section, const unsigned char* base)
{
    for (const FieldGroup& group : section.groups) {
        text.append("\n# ").append(group.title).append("\n");
        forEachText(group, base, [&](const Field& field) {
            text.append(field.name).append(" = ").append(formatField(field, base)).append("\n");
        });
    }
}

/// True for each byte of the section that no line of a field tells.
std::vector<bool> untoldBytes(const Section& section, const unsigned char* base)
{
    std::vector<bool> untold(section.size, true);
    for (const FieldGroup& group : section.groups) {
        forEachText(group, base, [&](const Field& field) {
            std::fill_n(untold.begin() + static_cast<std::ptrdiff_t>(field.offset), field.size(),
                        false);
        });
    }
    return untold;
}

/// Of most lines of a record it is all there is to know.
bool isZeroLine(std::span<const unsigned char> rest)
{
    static constexpr std::array<unsigned char, bytesPerLine> zeros{};
    return rest.size() >= zeros.size() && std::ranges::equal(rest.first<bytesPerLine>(), zeros);
}

/// One line for each stretch of untold bytes that is not all zero; lines begin at multiples.
void appendBytes(std::string& text, const Section& section, const unsigned char* base)
{
    const std::vector<bool> untold = untoldBytes(section, base);
    bool first = true;
    for (std::size_t begin = 0; begin < section.size;) {
        if (begin % bytesPerLine == 0 && isZeroLine({base + begin, base + section.size})) {
            begin += bytesPerLine;
            continue;
        }
        std::size_t end = begin + 1;
        while (end < section.size && end % bytesPerLine != 0 && untold[end] == untold[begin]) {
            ++end;
        }
        const std::span bytes(base + begin, end - begin);
        if (untold[begin] && std::ranges::any_of(bytes, [](auto byte) { return byte != 0; })) {
            text.append(first ? "\n# Bytes without a name or a known value, by offset\n" : "");
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
