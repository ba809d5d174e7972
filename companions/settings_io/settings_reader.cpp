#include "field_value.h"
#include "record_filler.h"
#include "settings_text.h"
#include "utf8.h"

#include <algorithm>

namespace kv
{
namespace
{

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// Looked at as a whole, which takes less than a look at each line.
bool isPlain(std::string_view text)
{
    const auto isOrdinary = [](char letter) { return isPlainAscii(letter) || letter == '\n'; };
    return std::ranges::count_if(text, isOrdinary) == std::ssize(text);
}

/// What of a line no text file holds; empty: nothing.
std::string_view faultOf(std::string_view line)
{
    bool hasControl = false;
    for (std::size_t at = 0; at < line.size();) {
        const auto point = nextCodePoint(line, at);
        if (!point) {
            return "not valid UTF-8 text";
        }
        hasControl = hasControl || isControl(*point);
    }
    return hasControl ? "a control character" : "";
}

class Reader
{
public:
    /// @param isPlain Whether no line has a fault.
    explicit Reader(bool isPlain) : m_isPlain(isPlain) {}

    void readLine(std::string_view line);
    void finish() { filler.finish(m_line); }

    RecordFiller filler;

private:
    void readHeading(std::string_view line);
    void report(std::string reason) { filler.report(m_line, std::move(reason)); }

    const bool m_isPlain;
    std::size_t m_line = 0;
    const Section* m_section = nullptr;
    bool m_skipping = false; // the lines of a section that is refused or missing
};

void Reader::readLine(std::string_view line)
{
    ++m_line;
    if (const auto fault = m_isPlain ? std::string_view() : faultOf(line); !fault.empty()) {
        return report(std::string(fault));
    }
    line = trimmed(line.substr(0, std::min(line.find('#'), line.find(';'))));
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
    if (m_skipping) {
        return;
    }
    const std::string_view key = trimmed(line.substr(0, equals));
    if (!m_section) {
        m_skipping = true; // once is enough
        return report("key " + quoted(key) + " before the first section, which is [record]");
    }
    filler.set(*m_section, key, trimmed(line.substr(equals + 1)), m_line);
}

void Reader::readHeading(std::string_view line)
{
    m_skipping = true;
    if (line.back() != ']') {
        return report("']' missing at the end of the section's name");
    }
    if (const Section* section = filler.begin(trimmed(line.substr(1, line.size() - 2)), m_line)) {
        m_skipping = false;
        m_section = section;
    }
}

} // namespace

std::vector<Problem> parseSettings(std::string_view text, KvMvcSettings& settings)
{
    if (text.starts_with(byteOrderMark)) {
        text.remove_prefix(byteOrderMark.size());
    }
    if (text.substr(std::min(text.find_first_not_of(" \t\r\n"), text.size())).starts_with('{')) {
        return parseJsonSettings(text, settings);
    }
    Reader reader(isPlain(text));
    while (!text.empty() && !reader.filler.isFull()) {
        const auto feed = text.find('\n');
        std::string_view line = text.substr(0, feed);
        text.remove_prefix(feed == text.npos ? text.size() : feed + 1);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        reader.readLine(line);
    }
    reader.finish();
    return reader.filler.result(settings);
}

} // namespace kv
