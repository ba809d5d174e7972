#include "record_filler.h"

#include "field_value.h"
#include "hex_bytes.h"
#include "nearest_name.h"
#include "utf8.h"

#include <algorithm>
#include <cstring>

namespace kv
{
namespace
{

constexpr std::string_view bytesKey = "bytes ";

std::vector<std::string_view> sectionNames()
{
    std::vector<std::string_view> names;
    for (const Section& section : settingsSections()) {
        names.push_back(section.name);
    }
    return names;
}

} // namespace

std::string quoted(std::string_view text)
{
    constexpr std::size_t longest = 60;
    std::string result("'");
    std::size_t end = 0;
    while (end < text.size() && end < longest) {
        const std::size_t begin = end;
        const auto point = nextCodePoint(text, end);
        if (!point) {
            break;
        }
        result.append(printable(text.substr(begin, end - begin)));
    }
    return result.append(end < text.size() ? "...'" : "'");
}

std::vector<std::string_view> keysOf(const Section& section)
{
    std::vector<std::string_view> keys;
    for (const FieldGroup& group : section.groups) {
        for (const Field& field : group.fields) {
            keys.push_back(field.name);
        }
    }
    return keys;
}

std::string badValue(std::string_view key, std::string_view value, std::string_view wrong)
{
    return "bad value " + quoted(value) + " for " + quoted(key) + ": " + std::string(wrong);
}

namespace
{

/// The field, with those that follow it in its group; empty when the section has no such field.
std::span<const Field> fieldsFrom(const Section& section, std::string_view name)
{
    for (const FieldGroup& group : section.groups) {
        const auto field = std::ranges::find(group.fields, name, &Field::name);
        if (field != group.fields.end()) {
            return {field, group.fields.end()};
        }
    }
    return {};
}

/// The keys of a section that has no more than a line takes.
std::string fewKeys(const Section& section)
{
    constexpr std::size_t most = 4;
    const std::vector<std::string_view> keys = keysOf(section);
    std::string text;
    for (const std::string_view key : keys) {
        text += (text.empty() ? "; its keys are " : " and ") + std::string(key);
    }
    return keys.size() > most ? std::string() : text;
}

/// What stands behind the message about an unknown key: where it belongs, what was meant, or what
/// there is.
std::string hintAtKey(const Section& section, std::string_view key)
{
    const auto sections = settingsSections();
    const auto owner = std::ranges::find_if(
        sections, [key](const Section& other) { return findField(other, key) != nullptr; });
    if (owner != sections.end()) {
        return "; it belongs in section " + quoted(owner->name);
    }
    const std::string nearest = didYouMean(nearestName(key, keysOf(section)));
    return nearest.empty() ? fewKeys(section) : nearest;
}

} // namespace

const Field* findField(const Section& section, std::string_view name)
{
    const std::span<const Field> fields = fieldsFrom(section, name);
    return fields.empty() ? nullptr : &fields.front();
}

const Section* RecordFiller::begin(std::string_view name, std::size_t line)
{
    const auto sections = settingsSections();
    const auto section = std::ranges::find(sections, name, &Section::name);
    if (section == sections.end()) {
        report(line,
               "unknown section " + quoted(name) + didYouMean(nearestName(name, sectionNames())));
        return nullptr;
    }
    if (std::ranges::find(m_seen, &*section) != m_seen.end()) {
        report(line, "section " + quoted(name) + " is there twice");
        return nullptr;
    }
    m_seen.push_back(&*section);
    return m_seen.back();
}

void RecordFiller::set(const Section& section, std::string_view key, std::string_view value,
                       std::size_t line)
{
    if (const Field* field = findNext(section, key)) {
        return setField(section, *field, value, line);
    }
    if (key.starts_with(bytesKey)) {
        return setBytes(section, trimmed(key.substr(bytesKey.size())), value, line);
    }
    reportUnknownKey(section, key, line);
}

const Field* RecordFiller::findNext(const Section& section, std::string_view name)
{
    const bool isNext = m_section == &section && !m_next.empty() && m_next.front().name == name;
    const std::span<const Field> fields = isNext ? m_next : fieldsFrom(section, name);
    if (fields.empty()) {
        return nullptr;
    }
    m_section = &section;
    m_next = fields.subspan(1);
    return &fields.front();
}

void RecordFiller::setField(const Section& section, const Field& field, std::string_view value,
                            std::size_t line)
{
    if (!claim(section, field.name, field.offset, field.size(), line)) {
        return;
    }
    const std::string wrong = parseField(field, value, base(section));
    if (!wrong.empty()) {
        report(line, badValue(field.name, value, wrong));
    }
}

void RecordFiller::setNumber(const Section& section, const Field& field, std::string_view number,
                             bool isUnknownCode, std::size_t line)
{
    if (!claim(section, field.name, field.offset, field.size(), line)) {
        return;
    }
    const std::string wrong = parseNumber(field, number, isUnknownCode, base(section));
    if (!wrong.empty()) {
        report(line, badValue(field.name, number, wrong));
    }
}

void RecordFiller::setBytes(const Section& section, std::string_view offsetText,
                            std::string_view value, std::size_t line)
{
    const auto offset = parseDecimal<std::size_t>(offsetText);
    if (!offset) {
        return report(line, "bad offset " + quoted(offsetText) + " of bytes");
    }
    const auto bytes = parseBytes(value);
    if (!bytes) {
        return report(line, "bad bytes: expected pairs of hexadecimal digits");
    }
    if (*offset > section.size || bytes->size() > section.size - *offset) {
        return report(line, "bytes beyond the end of section " + quoted(section.name) +
                                ", which has " + std::to_string(section.size) + " bytes");
    }
    const std::string key = std::string(bytesKey).append(offsetText);
    if (claim(section, key, *offset, bytes->size(), line)) {
        std::memcpy(base(section) + *offset, bytes->data(), bytes->size());
    }
}

bool RecordFiller::claim(const Section& section, std::string_view key, std::size_t offset,
                         std::size_t count, std::size_t line)
{
    const std::size_t begin = section.offset + offset;
    for (std::size_t byte = begin; byte < begin + count; ++byte) {
        if (m_isSet[byte]) {
            const auto first = std::ranges::find_if(m_claims, [byte](const Claim& claim) {
                return byte >= claim.begin && byte < claim.begin + claim.count;
            });
            report(line,
                   quoted(key) + " is set twice, first in line " + std::to_string(first->line));
            return false;
        }
    }
    for (std::size_t byte = begin; byte < begin + count; ++byte) {
        m_isSet.set(byte);
    }
    m_claims.push_back({begin, count, line});
    return true;
}

void RecordFiller::reportUnknownKey(const Section& section, std::string_view key, std::size_t line)
{
    report(line, "unknown key " + quoted(key) + " in section " + quoted(section.name) +
                     hintAtKey(section, key));
}

void RecordFiller::report(std::size_t line, std::string reason)
{
    if (!isFull()) {
        m_problems.push_back({line, std::move(reason)});
    }
}

void RecordFiller::finish(std::size_t line)
{
    if (!m_problems.empty()) {
        return;
    }
    for (const Section& section : settingsSections().first(2)) {
        if (std::ranges::find(m_seen, &section) == m_seen.end()) {
            report(std::max<std::size_t>(line, 1), // of an empty file
                   "section " + quoted(section.name) + " is missing" + fewKeys(section));
        }
    }
}

std::vector<Problem> RecordFiller::result(KvMvcSettings& settings) const
{
    if (m_problems.empty()) {
        settings = m_settings;
    }
    return m_problems;
}

} // namespace kv
