/**
 * @file rule.h
 * What a rule of the check is: a name, a kind, a message format and what it rests on.
 */
#ifndef KV_ENCODER_RULE_H
#define KV_ENCODER_RULE_H

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <type_traits>

namespace kv::encoder
{

enum class Severity {
    Error,   ///< the settings are refused
    Warning, ///< a setting was corrected; a second check has nothing left to correct
    Note     ///< what follows from the settings, or is legal but worth knowing
};

struct RuleInfo {
    const char* id;
    Severity severity;
    const char*
        format;        ///< of printf: conversions d (int), s, f and g only, no line feed at its end
    const char* basis; ///< clause of H.264 (08/2021), or who else sets the limit
};

/** Whether the conversions of a printf format take exactly the argument types, in this order. */
template <class... Args>
constexpr bool formatTakes(std::string_view format)
{
    // The leading zero keeps the array legal for a format without arguments.
    const char wanted[] = {'\0', (std::is_same_v<Args, int>      ? 'd'
                                  : std::is_same_v<Args, double> ? 'f'
                                                                 : 's')...};
    std::size_t taken = 0;
    for (std::size_t i = 0; i < format.size(); ++i) {
        if (format[i] != '%') {
            continue;
        }
        i = format.find_first_not_of("0123456789.", i + 1);
        if (i == std::string_view::npos) {
            return false;
        }
        if (format[i] == '%') {
            continue;
        }
        const char kind = format[i] == 'g' ? 'f' : format[i];
        if (++taken > sizeof...(Args) || wanted[taken] != kind) {
            return false;
        }
    }
    return taken == sizeof...(Args);
}

/** A rule with the argument types of its message: int, double or const char*. */
template <class... Args>
struct Rule : RuleInfo {
    static_assert(((std::is_same_v<Args, int> || std::is_same_v<Args, double> ||
                    std::is_same_v<Args, const char*>)&&...));

    consteval Rule(const char* ruleId, Severity kind, const char* message, const char* restsOn)
        : RuleInfo{ruleId, kind, message, restsOn}
    {
        if (!formatTakes<Args...>(message)) {
            throw "the conversions of the format do not match the argument types";
        }
    }
};

/** The rules of one subject, as they stand in the rule list. */
struct RuleGroup {
    const char* title;
    std::span<const RuleInfo* const> rules;
};

/** The rules of a table whose rows hold one each in `rule`. */
template <class Row, std::size_t size>
constexpr std::array<const RuleInfo*, size> rulesOf(const Row (&rows)[size])
{
    std::array<const RuleInfo*, size> list{};
    for (std::size_t i = 0; i < size; ++i) {
        list[i] = &rows[i].rule;
    }
    return list;
}

/** One list of several. */
template <class... Lists>
constexpr auto joinRules(const Lists&... lists)
{
    constexpr std::size_t total = (... + (sizeof(Lists) / sizeof(const RuleInfo*)));
    std::array<const RuleInfo*, total> all{};
    std::size_t next = 0;
    const auto append = [&](const auto& list) {
        for (const RuleInfo* rule : list) {
            all[next++] = rule;
        }
    };
    (append(lists), ...);
    return all;
}

} // namespace kv::encoder

#endif
