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

inline constexpr int noLimit = std::numeric_limits<std::int32_t>::max();

// The three kinds of rows; View is int where the message begins with the view's number.

/** A whole number: old value, new value, range. */
template <class... View>
struct Range {
    Field field;
    int low;
    int high;
    Rule<View..., int, int, int, int> rule;
    int shownOffset = 0; ///< what the user sees is the field plus this
};

/** A switch: any value but 0 is on. */
template <class... View>
struct Switch {
    Field field;
    Rule<View..., int> rule;
};

/** An enumerated field: codes that are not in the mask become the fallback. */
template <class... View>
struct Code {
    Field field;
    unsigned allowed;
    int fallback;
    Rule<View..., int> rule;
};

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

// Each of these corrects one field of one view, and tells whether it did.

template <class... View>
bool correctRange(const Range<View...>& row, int low, int high, KvMvcViewSettings& view,
                  Report& report, View... index)
{
    const int old = view.*row.field;
    const int now = std::clamp(old, low, high);
    if (now == old) {
        return false;
    }
    view.*row.field = now;
    const int shift = row.shownOffset;
    report.say(row.rule, index..., offsetValue(old, shift), now + shift, low + shift, high + shift);
    return true;
}

template <class... View>
bool correctSwitch(const Switch<View...>& row, KvMvcViewSettings& view, Report& report,
                   View... index)
{
    const int old = view.*row.field;
    if (old == 0 || old == 1) {
        return false;
    }
    view.*row.field = 1;
    report.say(row.rule, index..., old);
    return true;
}

template <class... View>
bool correctCode(const Code<View...>& row, KvMvcViewSettings& view, Report& report, View... index)
{
    const int old = view.*row.field;
    if (old >= 0 && old < 32 && (row.allowed >> old & 1u) != 0) {
        return false;
    }
    view.*row.field = row.fallback;
    report.say(row.rule, index..., old);
    return true;
}

inline std::span<KvMvcViewSettings> viewsInUse(KvMvcSettings& record)
{
    return {record.views, static_cast<std::size_t>(countSubRecords(record))};
}

} // namespace kv::encoder

#endif
