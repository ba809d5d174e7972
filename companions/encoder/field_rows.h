/** @file field_rows.h The kinds of rows that hold a field's range, and their correction. */
#ifndef KV_ENCODER_FIELD_ROWS_H
#define KV_ENCODER_FIELD_ROWS_H

#include <kv_config_gui_mvc/settings_record.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <span>

#include "report.h"
#include "rule.h"
#include "stream.h"

namespace kv::encoder
{

using Field = std::int32_t KvMvcViewSettings::*;

inline constexpr const char* encoderRange = "range of the encoder";
inline constexpr const char* switchRange =
    "range of the encoder: a switch is 0 or 1, any other value is on";
inline constexpr const char* codeRange = "codes of the encoder";

// The kinds of rows. The rule is a Rule where all views have the same value of the field, and a
// ViewRule where each has its own.

/** A whole number: old value, new value, range. */
template <class RangeRule>
struct Range {
    Field field;
    int low;
    int high;
    RangeRule rule;
    int shownOffset = 0; ///< what the user sees is the field plus this
};

/** A number of which only the lower end means anything: below 0 it is 0. */
struct NotNegative {
    Field field;
    ViewRule<int> rule;
};

/** A switch: any value but 0 is on. */
template <class SwitchRule>
struct Switch {
    Field field;
    SwitchRule rule;
};

/** An enumerated field: codes that are not in the mask become the fallback. */
template <class CodeRule>
struct Code {
    Field field;
    unsigned allowed;
    int fallback;
    CodeRule rule;
};

/// What is said of a switch, by its name in the dialog.
#define KV_SWITCH(name) "The switch \"" name "\" was %d; it is now on (1)."

template <class... Codes>
constexpr unsigned codes(Codes... code)
{
    return (... | (1u << code));
}

using V = KvMvcViewSettings;
inline constexpr Severity corrected = Severity::Warning;

inline int offsetValue(int value, int offset)
{
    return static_cast<int>(std::max<std::int64_t>(std::int64_t{value} + offset,
                                                   std::numeric_limits<std::int32_t>::min()));
}

/** Speaks of one view of the record. */
struct Speaker {
    Report& report;
    int view;

    template <class... Args>
    void say(const Rule<Args...>& rule, std::type_identity_t<Args>... args) const
    {
        report.say(rule, args...);
    }
    template <class... Args>
    void say(const ViewRule<Args...>& rule, std::type_identity_t<Args>... args) const
    {
        report.sayOf(view, rule, args...);
    }
};

// Each of these corrects one field of one view.

template <class RangeRule>
void correctRange(const Range<RangeRule>& row, int low, int high, KvMvcViewSettings& view,
                  const Speaker& speaker)
{
    const int old = view.*row.field;
    const int now = std::clamp(old, low, high);
    if (now == old) {
        return;
    }
    view.*row.field = now;
    const int shift = row.shownOffset;
    speaker.say(row.rule, offsetValue(old, shift), now + shift, low + shift, high + shift);
}

inline void correctNegative(const NotNegative& row, KvMvcViewSettings& view, const Speaker& speaker)
{
    const int old = view.*row.field;
    if (old < 0) {
        view.*row.field = 0;
        speaker.say(row.rule, old);
    }
}

template <class SwitchRule>
void correctSwitch(const Switch<SwitchRule>& row, KvMvcViewSettings& view, const Speaker& speaker)
{
    const int old = view.*row.field;
    if (old != 0 && old != 1) {
        view.*row.field = 1;
        speaker.say(row.rule, old);
    }
}

template <class CodeRule>
void correctCode(const Code<CodeRule>& row, KvMvcViewSettings& view, const Speaker& speaker)
{
    const int old = view.*row.field;
    if (old < 0 || old >= 32 || (row.allowed >> old & 1u) == 0) {
        view.*row.field = row.fallback;
        speaker.say(row.rule, old);
    }
}

inline std::span<KvMvcViewSettings> viewsInUse(KvMvcSettings& record)
{
    return {record.views, static_cast<std::size_t>(countSubRecords(record))};
}

/**
 * Corrects a field of all views in use. The dialog writes such a setting into all of them: one
 * message is enough for those that had the base view's value.
 */
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

#endif
