#include "setting_assignment.h"

#include "field_value.h"
#include "nearest_name.h"
#include "record_filler.h"

#include <algorithm>

namespace kv
{
namespace
{

/// "view0." for the section "view 0"; the record's has none.
std::string prefixOf(const Section& section)
{
    std::string prefix(section.name);
    std::erase(prefix, ' ');
    return section.offset == 0 ? std::string() : prefix + ".";
}

/// The key of each setting as it may stand in an assignment, with and without its view.
std::vector<std::string> allKeys()
{
    std::vector<std::string> keys;
    for (const Section& section : settingsSections()) {
        for (const std::string_view key : keysOf(section)) {
            keys.emplace_back(key);
            keys.push_back(prefixOf(section).append(key));
        }
    }
    return keys;
}

std::string unknownSetting(std::string_view key)
{
    const std::vector<std::string> keys = allKeys();
    const std::vector<std::string_view> names(keys.begin(), keys.end());
    return "unknown setting " + quoted(key) + didYouMean(nearestName(key, names));
}

} // namespace

std::string assignSetting(std::string_view assignment, KvMvcSettings& settings)
{
    const auto equals = assignment.find('=');
    if (equals == assignment.npos) {
        return "no KEY=VALUE: " + quoted(assignment);
    }
    const std::string_view key = trimmed(assignment.substr(0, equals));
    const std::string_view value = trimmed(assignment.substr(equals + 1));
    KvMvcSettings changed = settings;
    bool isKnown = false;
    for (const Section& section : settingsSections()) {
        const std::string prefix = prefixOf(section);
        const bool isOfView = !prefix.empty() && key.starts_with(prefix);
        const auto name = isOfView ? key.substr(prefix.size()) : key;
        if (const Field* field = findField(section, name)) {
            auto* base = reinterpret_cast<unsigned char*>(&changed) + section.offset;
            const std::string wrong = parseField(*field, value, base);
            if (!wrong.empty()) {
                return badValue(key, value, wrong);
            }
            isKnown = true;
        }
    }
    if (!isKnown) {
        return unknownSetting(key);
    }
    settings = changed;
    return {};
}

} // namespace kv
