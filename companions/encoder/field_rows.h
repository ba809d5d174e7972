// The kinds of rows that hold a field's range, and their correction.
#pragma once

#include <kv_config_gui_mvc/settings_record.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <span>

#include "field_table.h"
#include "report.h"
#include "rule.h"
#include "stream.h"

namespace kv::encoder
{

using V = KvMvcViewSettings;
using Field = std::int32_t V::*;
inline constexpr Severity corrected = Severity::Warning;

/// The first argument of its message is the former value, the second, if any, the present one.
template <class... Args, class Row>
constexpr ViewRule<Args...> ruleOf(const Row& row)
{
    const FieldMessage& message = row.message;
    return {message.id.at,
            corrected,
            message.texts(),
            message.basis,
            {.setting = message.setting,
             .value = 1,
             .limit = sizeof...(Args) > 1 ? 2 : 0,
             .less = message.less}};
}

// The kinds of rows.

/// A whole number: old value, new value, range.
template <class Owner>
struct Range {
    std::int32_t Owner::*field;
    int low;
    int high;
    int shownLess; ///< what the user sees is the field less this
    ViewRule<int, int, int, int> rule;

    static constexpr Range of(const FieldRow<Owner>& row)
    {
        return {row.field, row.low, row.high, row.less, ruleOf<int, int, int, int>(row)};
    }
};

/// A number of which only the lower end means anything: below 0 it is 0.
struct NotNegative {
    Field field;
    ViewRule<int> rule;

    static constexpr NotNegative of(const FieldRow<V>& row)
    {
        return {row.field, ruleOf<int>(row)};
    }
};

/// A switch: any value but 0 is on.
template <class Owner>
struct Switch {
    std::int32_t Owner::*field;
    ViewRule<int> rule;

    static constexpr Switch of(const FieldRow<Owner>& row) { return {row.field, ruleOf<int>(row)}; }
};

/// An enumerated field: codes that its list does not have become the fallback.
struct Code {
    Field field;
    std::span<const ListValue> values;
    int fallback;
    ViewRule<int> rule;

    static constexpr Code of(const FieldRow<V>& row)
    {
        return {row.field, row.values, fallbackOf(row.list).code, ruleOf<int>(row)};
    }
};

/// Bits of a sample: 8 or 10.
struct Depth {
    Field field;
    ViewRule<int, int> rule;

    static constexpr Depth of(const FieldRow<V>& row) { return {row.field, ruleOf<int, int>(row)}; }
};

inline int offsetValue(int value, int offset)
{
    return static_cast<int>(std::max<std::int64_t>(std::int64_t{value} + offset,
                                                   std::numeric_limits<std::int32_t>::min()));
}

/// Speaks of one view of the record.
struct Speaker {
    Report& report;
    int view;

    template <class... Args>
    void say(const ViewRule<Args...>& rule, std::type_identity_t<Args>... args) const
    {
        report.sayOf(view, rule, args...);
    }
};

// Each of these corrects one field of one view, or of the record.

template <class Owner>
void correctRange(const Range<Owner>& row, int low, Owner& owner, const Speaker& speaker)
{
    const int old = owner.*row.field;
    const int high = row.high;
    const int now = std::clamp(old, low, high);
    if (now == old) {
        return;
    }
    owner.*row.field = now;
    const int less = row.shownLess;
    speaker.say(row.rule, offsetValue(old, -less), now - less, low - less, high - less);
}

inline void correctNegative(const NotNegative& row, KvMvcViewSettings& view, const Speaker& speaker)
{
    const int old = view.*row.field;
    if (old < 0) {
        view.*row.field = 0;
        speaker.say(row.rule, old);
    }
}

template <class Owner>
void correctSwitch(const Switch<Owner>& row, Owner& owner, const Speaker& speaker)
{
    const int old = owner.*row.field;
    if (old != 0 && old != 1) {
        owner.*row.field = 1;
        speaker.say(row.rule, old);
    }
}

inline void correctCode(const Code& row, KvMvcViewSettings& view, const Speaker& speaker)
{
    const int old = view.*row.field;
    if (!findValue(row.values, old)) {
        view.*row.field = row.fallback;
        speaker.say(row.rule, old);
    }
}

inline void correctDepth(const Depth& row, KvMvcViewSettings& view, const Speaker& speaker)
{
    const int old = view.*row.field;
    const int now = old <= 8 ? 8 : 10; // of 9 bits none is lost in 10
    if (now != old) {
        view.*row.field = now;
        speaker.say(row.rule, old, now);
    }
}

inline std::span<KvMvcViewSettings> viewsInUse(KvMvcSettings& record)
{
    return {record.views, static_cast<std::size_t>(countSubRecords(record))};
}

/// Corrects a field of all views in use. The dialog writes such a setting into all of them: one
/// message is enough for those that had the base view's value.
template <class Correct>
void correctAllViews(KvMvcSettings& record, Field field, Report& report, Correct correct)
{
    Report silent;
    const int ofBase = record.views[0].*field;
    int index = 0;
    for (KvMvcViewSettings& view : viewsInUse(record)) {
        const bool said = view.*field == ofBase && record.views[0].*field != ofBase;
        correct(view, Speaker{said ? silent : report, index});
        ++index;
    }
}

} // namespace kv::encoder
