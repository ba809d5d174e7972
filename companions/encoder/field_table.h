// The public field table as the check needs it: the message about each field that is corrected by
// itself, and which fields the views share.
#pragma once

#include <kv_config_gui_mvc/settings_record.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <span>
#include <string_view>
#include <utility>

#include "field_values.h"
#include "rule.h"

namespace kv::encoder
{

enum class FieldKind {
#define KV_MVC_KIND(kind) kind,
#include <kv_config_gui_mvc/settings_fields.def>
};

enum class Sharing {
#define KV_MVC_SHARING(shared) shared,
#include <kv_config_gui_mvc/settings_fields.def>
};

/// A text put together by the compiler.
struct Text {
    char at[128] = {};

    constexpr Text(std::initializer_list<std::string_view> parts)
    {
        std::size_t end = 0;
        for (const std::string_view part : parts) {
            for (const char letter : part) {
                at[end++] = letter; // what is too long does not compile
            }
        }
        at[end] = '\0';
    }
};

/// A rule about one field: its name, and what it says.
struct FieldMessage {
    const char* setting;
    int less; ///< what the message's numbers are less than the field has
    Text id;
    Text base;  ///< of the base view, or of all views
    Text other; ///< of another view; empty: there is no other value
    const char* basis;

    constexpr FieldMessage(Sharing shared, const char* member, int shownLess, Text name,
                           std::string_view sentence, const char* restsOn)
        : setting(member),
          less(shownLess),
          id(name),
          base{shared == Sharing::RateControl ? "Base view: " : "", sentence},
          other{shared == Sharing::RateControl || shared == Sharing::Tools ? "View %d: " : "",
                shared == Sharing::RateControl || shared == Sharing::Tools ? sentence : ""},
          basis(restsOn)
    {
    }

    constexpr ViewText texts() const
    {
        return {base.at, *other.at ? other.at : nullptr, *other.at != '\0'};
    }
};

/// The columns of the table.
struct FieldFacts {
    const char* member;
    FieldKind kind;
    List list;
    std::span<const ListValue> values;
    std::string_view name;
    int less;
    int low;
    int high;
    Sharing shared;
    std::string_view rule;
    int said;
    std::string_view called;
    const char* basis;
};

/// What stands for a code that its list does not have, and how the message tells.
struct Fallback {
    List list;
    int code;
    std::string_view now = {};
};
inline constexpr Fallback fallbacks[] = {
    {List::VideoType, KV_MVC_VIDEO_TYPE_NONE, "no preset is set now"},
    {List::InterlaceMode, KV_MVC_PROGRESSIVE},
    {List::Pulldown, KV_MVC_PULLDOWN_OFF},
    {List::ChromaFormat, KV_MVC_CHROMA_420},
    {List::BitrateMode, KV_MVC_VARIABLE_BITRATE},
    {List::BitrateUnits, KV_MVC_UNITS_BYTES_PERCENT, "the units are now bytes and percent"},
    {List::MinPartition, KV_MVC_PARTITION_8X8},
    {List::SubpixelMode, KV_MVC_SUBPIXEL_QUARTER},
    {List::EntropyMode, KV_MVC_CAVLC},
};

constexpr const Fallback& fallbackOf(List list)
{
    return *std::ranges::find(fallbacks, list, &Fallback::list);
}

constexpr Text idOf(const FieldFacts& facts)
{
    if (facts.rule.empty()) {
        return {};
    }
    const bool code = facts.kind == FieldKind::Code;
    return {code ? "code." : facts.kind == FieldKind::Switch ? "switch." : "field.", facts.rule};
}

/// What is said of a field that had to be corrected.
constexpr Text sentenceOf(const FieldFacts& facts)
{
    if (facts.rule.empty()) {
        return {};
    }
    switch (facts.kind) {
    case FieldKind::Switch: {
        const std::string_view on = findValue(facts.values, 1)->key;
        return facts.list == List::Switch
                   ? Text{"The switch \"", facts.name, "\" was %d; it is now ", on, " (1)."}
                   : Text{"The ", facts.called, " was %d; it is now ", on, " (1)."};
    }
    case FieldKind::Code: {
        const Fallback& fallback = fallbackOf(facts.list);
        const std::string_view text = findValue(facts.values, fallback.code)->text;
        const bool usual = fallback.now.empty();
        return {"The ",
                facts.called,
                " code %d is unknown; ",
                usual ? "it is now " : "",
                usual ? text : fallback.now,
                "."};
    }
    case FieldKind::Number:
    case FieldKind::Quantizer:
        return {"The ", facts.called, " was %d; it is now %d (%d to %d)."};
    case FieldKind::Depth:
        return {"The ", facts.called, " was %d; it is now %d (8 or 10)."};
    case FieldKind::Amount:
    case FieldKind::Buffer:
        return {"The ", facts.called, " was %d; it cannot be negative and is now 0."};
    case FieldKind::Fullness:
        return {facts.name, " was %d; it cannot be negative and is now 0."};
    default:
        return {};
    }
}

constexpr const char* basisOf(const FieldFacts& facts)
{
    if (*facts.basis) {
        return facts.basis;
    }
    switch (facts.kind) {
    case FieldKind::Switch:
        return "range of the encoder: a switch is 0 or 1, any other value is on";
    case FieldKind::Code:
        return "codes of the encoder";
    case FieldKind::Quantizer:
        return "7.4.2.2: -6 * (bit depth - 8) to 51";
    default:
        return "range of the encoder";
    }
}

/// A field of the record or of a view, and its rule.
template <class Owner>
struct FieldRow : FieldFacts {
    std::int32_t Owner::*field; ///< null: a double
    FieldMessage message;

    constexpr FieldRow(std::int32_t Owner::*member, const FieldFacts& facts)
        : FieldFacts(facts),
          field(member),
          message(facts.shared, facts.member, facts.less, idOf(facts), sentenceOf(facts).at,
                  basisOf(facts))
    {
    }
    constexpr FieldRow(double Owner::*, const FieldFacts& facts)
        : FieldRow(static_cast<std::int32_t Owner::*>(nullptr), facts)
    {
    }

    constexpr bool hasRule() const { return field && !rule.empty(); }
};

#define KV_FIELD(structure, member, kind, list, name, unit, less, shown, low, high, shared, ...)   \
    FieldRow<structure>(&structure::member,                                                        \
                        {#member, FieldKind::kind, List::list, valuesOf##list, name, less, low,    \
                         high, Sharing::shared, __VA_ARGS__}),

// Messages have the fields as they are, not as the dialog shows them: they count all views.
inline constexpr FieldRow<KvMvcSettings> recordFields[] = {
#define KV_MVC_RECORD_FIELD(member, kind, list, name, unit, less, ...)                             \
    KV_FIELD(KvMvcSettings, member, kind, list, name, unit, 0, __VA_ARGS__)
#include <kv_config_gui_mvc/settings_fields.def>
};
inline constexpr FieldRow<KvMvcViewSettings> viewFields[] = {
#define KV_MVC_VIEW_FIELD(...) KV_FIELD(KvMvcViewSettings, __VA_ARGS__)
#include <kv_config_gui_mvc/settings_fields.def>
};
#undef KV_FIELD

/// Pointers to those rows of a table that `wanted` takes.
template <const auto& table, auto wanted>
constexpr auto selectFields()
{
    std::array<decltype(&table[0]), std::ranges::count_if(table, wanted)> selected{};
    auto* next = selected.data();
    for (const auto& row : table) {
        if (wanted(row)) {
            *next++ = &row;
        }
    }
    return selected;
}

/// Those of them that have a rule, in the order of their messages.
template <const auto& table, auto wanted>
constexpr auto fieldsWithRule = [] {
    auto selected =
        selectFields<table, [](const auto& row) { return row.hasRule() && wanted(row); }>();
    std::ranges::sort(selected, {}, [](const auto* row) { return row->said; });
    return selected;
}();

/// The same, each made into a Row.
template <class Row, const auto& table, auto wanted>
constexpr auto rulesOfFields()
{
    return []<std::size_t... at>(std::index_sequence<at...>) {
        return std::array{Row::of(*fieldsWithRule<table, wanted>[at])...};
    }(std::make_index_sequence<fieldsWithRule<table, wanted>.size()>());
}

} // namespace kv::encoder
