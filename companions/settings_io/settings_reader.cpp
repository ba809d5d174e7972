#include "field_value.h"
#include "settings_text.h"
#include "utf8.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace kv
{
namespace
{

constexpr std::size_t mostProblems = 20;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view blanks = " \t";

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(blanks);
    return first == text.npos ? std::string_view()
                              : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Foreign text for a message: quoted, and not endless.
std::string quoted(std::string_view text)
{
    constexpr std::size_t longest = 60;
    std::size_t end = 0;
    while (end < text.size() && end < longest && nextCodePoint(text, end)) {
    }
    std::string result("'");
    result.append(text.substr(0, end)).append(end < text.size() ? "...'" : "'");
    return result;
}

const Field* findField(const Section& section, std::string_view name)
{
    for (const FieldGroup& group : section.groups) {
        const auto field = std::ranges::find(group.fields, name, &Field::name);
        if (field != group.fields.end()) {
            return &*field;
        }
    }
    return nullptr;
}

/// What no line of a text file holds: controls of the C0 and C1 sets, but for the tabulator.
bool holdsControls(std::string_view line)
{
    for (std::size_t at = 0; at < line.size();) {
        const auto point = nextCodePoint(line, at);
        if (!point || (*point < 0x20 && *point != '\t') || (*point >= 0x7F && *point < 0xA0)) {
            return true;
        }
    }
    return false;
}

class Reader
{
public:
    void readLine(std::string_view line);
    void finish();

    KvMvcSettings settings{};
    std::vector<Problem> problems;

private:
    void readHeading(std::string_view line);
    void readAssignment(std::string_view key, std::string_view value);
    void readField(const Field& field, std::string_view value);
    void readBytes(std::string_view offset, std::string_view value);
    bool claim(std::string_view key, std::size_t offset, std::size_t count);
    void report(std::string reason) { problems.push_back({m_line, std::move(reason)}); }
    unsigned char* base()
    {
        return reinterpret_cast<unsigned char*>(&settings) + m_section->offset;
    }

    std::size_t m_line = 0;
    const Section* m_section = nullptr;
    bool m_skipping = false;                                  // the lines of a refused section
    std::vector<const Section*> m_seen;                       // sections so far
    std::array<std::size_t, sizeof(KvMvcSettings)> m_setBy{}; // each byte's line; 0: none yet
};

void Reader::readLine(std::string_view line)
{
    ++m_line;
    if (!isUtf8(line)) {
        return report("not valid UTF-8 text");
    }
    if (holdsControls(line)) {
        return report("a control character");
    }
    line = trimmed(line.substr(0, line.find_first_of("#;")));
    if (line.empty()) {
        return;
    }
    if (line.front() == '[') {
        return readHeading(line);
    }
    const auto equals = line.find('=');
    if (equals == line.npos) {
        return report("neither a section nor a 'key = value' line: " + quoted(line));
    }
    if (!m_skipping) {
        readAssignment(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)));
    }
}

void Reader::readHeading(std::string_view line)
{
    m_skipping = true;
    if (line.back() != ']') {
        return report("']' missing at the end of the section's name");
    }
    const std::string_view name = trimmed(line.substr(1, line.size() - 2));
    const auto sections = settingsSections();
    const auto section = std::ranges::find(sections, name, &Section::name);
    if (section == sections.end()) {
        return report("unknown section " + quoted(name));
    }
    if (std::ranges::find(m_seen, &*section) != m_seen.end()) {
        return report("section " + quoted(name) + " is there twice");
    }
    m_skipping = false;
    m_section = &*section;
    m_seen.push_back(m_section);
}

void Reader::readAssignment(std::string_view key, std::string_view value)
{
    constexpr std::string_view bytesKey = "bytes ";
    if (!m_section) {
        return report("key " + quoted(key) + " before the first section");
    }
    if (const Field* field = findField(*m_section, key)) {
        return readField(*field, value);
    }
    if (key.starts_with(bytesKey)) {
        return readBytes(trimmed(key.substr(bytesKey.size())), value);
    }
    report("unknown key " + quoted(key) + " in section " + quoted(m_section->name));
}

void Reader::readField(const Field& field, std::string_view value)
{
    if (!claim(field.name, field.offset, field.size())) {
        return;
    }
    const std::string wrong = parseField(field, value, base());
    if (!wrong.empty()) {
        report("bad value " + quoted(value) + " for " + quoted(field.name) + ": " + wrong);
    }
}

void Reader::readBytes(std::string_view offsetText, std::string_view value)
{
    const auto offset = parseDecimal<std::size_t>(offsetText);
    if (!offset) {
        return report("bad offset " + quoted(offsetText) + " of bytes");
    }
    const auto bytes = parseBytes(value);
    if (!bytes) {
        return report("bad bytes: expected pairs of hexadecimal digits");
    }
    if (*offset > m_section->size || bytes->size() > m_section->size - *offset) {
        return report("bytes beyond the end of section " + quoted(m_section->name) +
                      ", which has " + std::to_string(m_section->size) + " bytes");
    }
    if (claim("bytes " + std::string(offsetText), *offset, bytes->size())) {
        std::memcpy(base() + *offset, bytes->data(), bytes->size());
    }
}

bool Reader::claim(std::string_view key, std::size_t offset, std::size_t count)
{
    const std::span bytes(m_setBy.data() + m_section->offset + offset, count);
    const auto taken = std::ranges::find_if(bytes, [](std::size_t line) { return line != 0; });
    if (taken != bytes.end()) {
        report(quoted(key) + " is set twice, first in line " + std::to_string(*taken));
        return false;
    }
    std::ranges::fill(bytes, m_line);
    return true;
}

void Reader::finish()
{
    if (!problems.empty()) {
        return;
    }
    m_line = std::max<std::size_t>(m_line, 1); // of an empty file
    for (const Section& section : settingsSections().first(2)) {
        if (std::ranges::find(m_seen, &section) == m_seen.end()) {
            report("section " + quoted(section.name) + " is missing");
        }
    }
}

} // namespace

std::vector<Problem> parseSettings(std::string_view text, KvMvcSettings& settings)
{
    if (text.starts_with(byteOrderMark)) {
        text.remove_prefix(byteOrderMark.size());
    }
    Reader reader;
    while (!text.empty() && reader.problems.size() < mostProblems) {
        const auto feed = text.find('\n');
        std::string_view line = text.substr(0, feed);
        text.remove_prefix(feed == text.npos ? text.size() : feed + 1);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        reader.readLine(line);
    }
    reader.finish();
    if (reader.problems.empty()) {
        settings = reader.settings;
    }
    return reader.problems;
}

} // namespace kv
