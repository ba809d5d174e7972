// What a rule of the check is: a name, a kind, a message format, what it rests on and what it is
// about.
#pragma once

#include <kv_config_gui_mvc/companions.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <span>
#include <string_view>
#include <type_traits>

#include "decimal.h"

namespace kv::encoder
{

enum class Severity {
    Error,   ///< the settings are refused
    Warning, ///< a setting was corrected; a second check has nothing left to correct
    Risk,    ///< likely a slip, or known to fail somewhere: nothing is corrected, every check warns
    Note     ///< what follows from the settings, or is legal but worth knowing
};

/// What a message is about, for programs (KvMvcMessageAbout): the setting to look at first, and
/// which of the message's arguments, counted from 1 without the view's number, are its value, its
/// limit and the level. 0: none of them; the value is then that of the setting.
struct Subject {
    const char* setting = nullptr; ///< a member, as settings_fields.def has it; null: no single one
    int value = 0;
    int limit = 0;
    int level = 0;
    int less = 0;                ///< what value and limit are less than the field has
    int view = KV_MVC_ALL_VIEWS; ///< of a message that is always about one view
    const char* rule = nullptr;  ///< for programs, of a rule that is another in other words
};

struct RuleInfo {
    const char* id;
    Severity severity;
    /// Of printf: conversions d (int), s, f and g only, no line feed at its end.
    const char* format;
    /// Of the same message about another view than the base view, whose number it takes first; or
    /// null.
    const char* viewFormat;
    const char* basis; ///< clause of H.264 (08/2021), or who else sets the limit
    Subject subject;
    bool ofBaseView; ///< `format` is about the base view alone
};

inline constexpr std::string_view settingNames[] = {
#define KV_MVC_RECORD_FIELD(member, ...) #member,
#define KV_MVC_VIEW_FIELD(member, ...) #member,
#include <kv_config_gui_mvc/settings_fields.def>
};

/// Whether the setting exists, and the arguments have the types for what they are said to be.
template <class... Args>
constexpr bool subjectTakes(const Subject& subject)
{
    constexpr bool isText[] = {false, std::is_same_v<Args, const char*>...};
    const auto takes = [&](int argument, bool text) {
        const auto at = static_cast<std::size_t>(argument);
        return argument == 0 || (at < std::size(isText) && isText[at] == text);
    };
    const bool known = !subject.setting || std::ranges::find(settingNames, subject.setting) !=
                                               std::ranges::end(settingNames);
    return known && takes(subject.value, false) && takes(subject.limit, false) &&
           takes(subject.level, true);
}

/// The conversions that an argument of a message needs; a "*" is a "d" of its own.
template <class Arg>
constexpr std::string_view conversionsOf()
{
    static_assert(std::is_same_v<Arg, int> || std::is_same_v<Arg, double> ||
                  std::is_same_v<Arg, const char*> || std::is_same_v<Arg, Decimal>);
    return std::is_same_v<Arg, int>       ? "d"
           : std::is_same_v<Arg, double>  ? "f"
           : std::is_same_v<Arg, Decimal> ? "ddd"
                                          : "s";
}

/// Whether the conversions of a printf format take exactly the argument types, in this order.
template <class... Args>
constexpr bool formatTakes(std::string_view format)
{
    std::array<char, 3 * sizeof...(Args) + 1> wanted{};
    std::size_t count = 0;
    [[maybe_unused]] const auto add = [&](std::string_view conversions) {
        for (const char conversion : conversions) {
            wanted[count++] = conversion;
        }
    };
    (add(conversionsOf<Args>()), ...);

    std::size_t taken = 0;
    const auto take = [&](char conversion) { return wanted[taken++] == conversion; };
    for (std::size_t i = 0; i < format.size(); ++i) {
        if (format[i] != '%') {
            continue;
        }
        // The zero at the end of the wanted ones stops what takes too many.
        while (++i < format.size() &&
               (format[i] == '*' || format[i] == '.' || (format[i] >= '0' && format[i] <= '9'))) {
            if (format[i] == '*' && !take('d')) {
                return false;
            }
        }
        if (i == format.size()) {
            return false;
        }
        if (format[i] != '%' && !take(format[i] == 'g' ? 'f' : format[i])) {
            return false;
        }
    }
    return taken == count;
}

/// A rule with the argument types of its message: int, double, const char* or Decimal.
template <class... Args>
struct Rule : RuleInfo {
    consteval Rule(const char* ruleId, Severity kind, const char* message, const char* restsOn,
                   Subject about = {})
        : RuleInfo{ruleId, kind, message, nullptr, restsOn, about, false}
    {
        if (!formatTakes<Args...>(message) || !subjectTakes<Args...>(about)) {
            throw "the argument types do not match the conversions of the format or the subject";
        }
    }
};

/// A message about the base view, or about all views, and the same about another view.
struct ViewText {
    const char* base;
    const char* other; ///< null: all views have the same value
    /// GCC's sanitizers take no comparison of an object's address with null for constant.
    bool hasOther = other != nullptr;
};

/// A message about a setting that each view has for itself.
#define KV_EACH_VIEW(sentence)                                                                     \
    kv::encoder::ViewText                                                                          \
    {                                                                                              \
        "Base view: " sentence, "View %d: " sentence                                               \
    }
/// A message about a setting that the dialog sets for all views at once, and a file for each.
#define KV_ALL_VIEWS(sentence)                                                                     \
    kv::encoder::ViewText                                                                          \
    {                                                                                              \
        sentence, "View %d: " sentence                                                             \
    }

/// A rule whose message names the view, except for what is said of the base view or of all.
template <class... Args>
struct ViewRule : RuleInfo {
    constexpr ViewRule(const char* ruleId, Severity kind, ViewText message, const char* restsOn,
                       Subject about = {})
        : RuleInfo{ruleId,
                   kind,
                   message.base,
                   message.other,
                   restsOn,
                   about,
                   std::string_view(message.base).starts_with("Base view: ")}
    {
        if (!formatTakes<Args...>(message.base) ||
            (message.hasOther && !formatTakes<int, Args...>(message.other)) ||
            !subjectTakes<Args...>(about)) {
            throw "the argument types do not match the conversions of the format or the subject";
        }
    }
};

/// The rules of one subject, as they stand in the rule list.
struct RuleGroup {
    const char* title;
    std::span<const RuleInfo* const> rules;
};

/// The rules of a table whose rows hold one each in `rule`.
template <class Rows>
constexpr auto rulesOf(const Rows& rows)
{
    constexpr std::size_t size = sizeof(Rows) / sizeof(rows[0]);
    std::array<const RuleInfo*, size> list{};
    for (std::size_t i = 0; i < size; ++i) {
        list[i] = &rows[i].rule;
    }
    return list;
}

/// One list of several arrays.
template <class... Lists>
constexpr auto joinRules(const Lists&... lists)
{
    constexpr std::size_t total = (... + std::tuple_size_v<Lists>);
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
