// Prints docs/settings-fields.md: the field table, with the meanings that the public header gives.
//
// Usage: kv_settings_fields_doc HEADER
#include "field_value.h"

#include <cstdio>
#include <exception>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>
#include <string>

namespace
{

using Meanings = std::map<std::string, std::string, std::less<>>;

std::string oneLine(const std::string& comment)
{
    static const std::regex breaks("\\s*\\n\\s*\\*?\\s*");
    static const std::regex ends("^[\\s*]+|\\s+$");
    return std::regex_replace(std::regex_replace(comment, ends, ""), breaks, " ");
}

/// The comment behind each field, or the one before it.
Meanings readMeanings(const std::string& header)
{
    static const std::regex behind("(int32_t|double)\\s+(\\w+);\\s*/\\*\\*<([^*]*)\\*/");
    static const std::regex before("/\\*\\*([^/]*)\\*/\\s*(int32_t|double)\\s+(\\w+);");
    Meanings meanings;
    const std::sregex_iterator none;
    for (std::sregex_iterator match(header.begin(), header.end(), before); match != none; ++match) {
        meanings[(*match)[3]] = oneLine((*match)[1]);
    }
    for (std::sregex_iterator match(header.begin(), header.end(), behind); match != none; ++match) {
        meanings[(*match)[2]] = oneLine((*match)[3]);
    }
    return meanings;
}

std::string code(std::string_view text)
{
    return std::string("`").append(text).append("`");
}

/// One value: as files are written, as the dialog shows it where that reads otherwise, its number.
std::string valueText(const kv::NamedValue& row)
{
    const std::string number = std::to_string(row.value);
    const bool hasName = !row.name.empty();
    std::string text = hasName ? code(row.name) : number;
    if (!kv::equalIgnoringCase(row.name, row.text)) {
        text.append(" or ").append(code(row.text));
    }
    return hasName ? text.append(" ").append(number) : text;
}

std::string valueTexts(const kv::Field& field)
{
    std::string text;
    for (const kv::NamedValue& row : field.values) {
        text.append(text.empty() ? "" : ", ").append(valueText(row));
    }
    if (field.isCode()) {
        return text;
    }
    text.append(text.empty() ? "" : ", ");
    return text.append(field.kind == kv::FieldKind::Rate ? "rate"
                       : kv::isAmount(field)             ? "amount"
                                                         : "number");
}

bool printGroup(const kv::FieldGroup& group, const Meanings& meanings)
{
    std::printf("\n### %s\n\n| key | offset | values | meaning |\n|---|---|---|---|\n",
                std::string(group.title).c_str());
    for (const kv::Field& field : group.fields) {
        const auto meaning = meanings.find(field.name);
        if (meaning == meanings.end()) {
            std::fprintf(stderr, "%s: not in the header\n", std::string(field.name).c_str());
            return false;
        }
        std::printf("| `%s` | %zu | %s | %s |\n", std::string(field.name).c_str(), field.offset,
                    valueTexts(field).c_str(), meaning->second.c_str());
    }
    return true;
}

bool printDocument(const std::string& header)
{
    const Meanings meanings = readMeanings(header);
    std::puts(
        "# Keys of settings files\n\n<!-- Written by kv_settings_fields_doc; do not edit. -->\n");
    std::puts("[settings-file.md](settings-file.md) tells how such files are written, and what "
              "a number, an\namount and a rate are. Behind a value is its number, which may stand "
              "for it; the offset is that in the\nsection's part of the record.");
    const auto sections = kv::settingsSections().first(2); // all views have the same keys
    for (const kv::Section& section : sections) {
        std::printf("\n## [%s]%s\n", std::string(section.name).c_str(),
                    &section == &sections.back() ? " and the sections of the other views" : "");
        for (const kv::FieldGroup& group : section.groups) {
            if (!printGroup(group, meanings)) {
                return false;
            }
        }
    }
    return std::fflush(stdout) == 0;
}

} // namespace

int main(int count, char** arguments)
try {
    std::ifstream file(count == 2 ? arguments[1] : "");
    std::stringstream header;
    header << file.rdbuf();
    if (!file) {
        std::fputs("Usage: kv_settings_fields_doc HEADER\n", stderr);
        return 2;
    }
    return printDocument(header.str()) ? 0 : 1;
} catch (const std::exception& trouble) {
    std::fprintf(stderr, "kv_settings_fields_doc: %s\n", trouble.what());
    return 1;
}
