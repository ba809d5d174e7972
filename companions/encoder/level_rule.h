// A limit of a level, which another level may not have.
#pragma once

#include <array>
#include <type_traits>

#include "level_limits.h"
#include "report.h"
#include "rule.h"

namespace kv::encoder
{

/// The message names the level that would do, if there is one that the stream may have.
template <class... Args>
struct LevelRule {
    Rule<Args..., const char*> other;
    Rule<Args...> none;
};

/// The same of a view.
template <class... Args>
struct LevelViewRule {
    ViewRule<Args..., const char*> other;
    ViewRule<Args...> none;
};

/// The subject of a rule's other words, which no other level is named in.
constexpr Subject inOtherWords(const char* rule, Subject subject)
{
    subject.rule = rule;
    return subject;
}

/// @param other The level that would do; null when none would.
template <class... Args>
void sayLevel(Report& report, const LevelRule<Args...>& rule, const Level* other,
              std::type_identity_t<Args>... args)
{
    if (other) {
        report.say(rule.other, args..., other->name);
    } else {
        report.say(rule.none, args...);
    }
}

template <class... Args>
void sayLevelOf(Report& report, int view, const LevelViewRule<Args...>& rule, const Level* other,
                std::type_identity_t<Args>... args)
{
    if (other) {
        report.sayOf(view, rule.other, args..., other->name);
    } else {
        report.sayOf(view, rule.none, args...);
    }
}

/// Both wordings of each, for a list of rules.
template <class... Limits>
constexpr auto bothRules(const Limits&... limits)
{
    return joinRules(std::array<const RuleInfo*, 2>{&limits.other, &limits.none}...);
}

} // namespace kv::encoder
