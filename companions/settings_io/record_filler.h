// A record that is filled setting by setting, from whatever form its text has.
#pragma once

#include "settings_fields.h"
#include "settings_text.h"

#include <kv_config_gui_mvc/settings_record.h>

#include <bitset>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kv
{

/// Foreign text for a message: quoted, and not endless.
std::string quoted(std::string_view text);

/// @param wrong As parseField() has it.
std::string badValue(std::string_view key, std::string_view value, std::string_view wrong);

std::vector<std::string_view> keysOf(const Section& section);

/// @return Null when the section has no such field.
const Field* findField(const Section& section, std::string_view name);

class RecordFiller
{
public:
    /// @param line Where it begins. @return Null, and a problem, for an unknown or repeated one.
    const Section* begin(std::string_view section, std::size_t line);

    /// @param key Of a field, or "bytes OFFSET".
    void set(const Section& section, std::string_view key, std::string_view value,
             std::size_t line);
    void setField(const Section& section, const Field& field, std::string_view value,
                  std::size_t line);
    /// @param number The field's own number, whatever text would stand for it.
    /// @param isUnknownCode Whether it may be a code that the field does not have.
    void setNumber(const Section& section, const Field& field, std::string_view number,
                   bool isUnknownCode, std::size_t line);
    void setBytes(const Section& section, std::string_view offset, std::string_view value,
                  std::size_t line);

    void report(std::size_t line, std::string reason);
    void reportUnknownKey(const Section& section, std::string_view key, std::size_t line);
    /// Whether so many are reported that more would be of no use.
    bool isFull() const { return m_problems.size() >= mostProblems; }

    /// Without problems so far: sections that are missing. @param line The last one.
    void finish(std::size_t line);

    /// @param settings Written only when there is no problem.
    std::vector<Problem> result(KvMvcSettings& settings) const;

private:
    static constexpr std::size_t mostProblems = 20;

    /// As findField(), which most often is the field behind the last that was found.
    const Field* findNext(const Section& section, std::string_view name);

    /// A stretch of the record's bytes, and the line that set it.
    struct Claim {
        std::size_t begin;
        std::size_t count;
        std::size_t line;
    };

    /// Whether the bytes were not set before.
    bool claim(const Section& section, std::string_view key, std::size_t offset, std::size_t count,
               std::size_t line);
    unsigned char* base(const Section& section)
    {
        return reinterpret_cast<unsigned char*>(&m_settings) + section.offset;
    }

    KvMvcSettings m_settings{};
    std::vector<Problem> m_problems;
    std::vector<const Section*> m_seen;
    std::bitset<sizeof(KvMvcSettings)> m_isSet; // each byte
    std::vector<Claim> m_claims;
    const Section* m_section = nullptr; // of the fields that follow the last one found
    std::span<const Field> m_next;
};

} // namespace kv
