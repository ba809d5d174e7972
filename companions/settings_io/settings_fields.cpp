#include "settings_fields.h"

#include <kv_config_gui_mvc/settings_record.h>

#include <algorithm>
#include <array>
#include <type_traits>

namespace kv
{
namespace
{

/// In the order of their codes, whatever the dialog's order is.
template <std::size_t size>
consteval std::array<NamedValue, size> namedValues(std::array<NamedValue, size> values)
{
    std::ranges::sort(values, {}, &NamedValue::value);
    return values;
}

constexpr std::span<const NamedValue> valuesOfPlain;
// clang-format off
#define KV_MVC_LIST(list) constexpr auto valuesOf##list = namedValues(std::array{
#define KV_MVC_VALUE(code, key, text) NamedValue{key, code, text},
#define KV_MVC_LIST_END });
#include <kv_config_gui_mvc/settings_fields.def>
// clang-format on

template <typename Member>
consteval Field fieldOf(std::string_view name, std::size_t offset, FieldKind kind,
                        std::span<const NamedValue> values)
{
    static_assert(std::is_same_v<Member, std::int32_t> || std::is_same_v<Member, double>);
    if (std::is_same_v<Member, double> != (kind == FieldKind::Rate)) {
        throw "the kind does not fit the member's type";
    }
    return {name, offset, kind, values};
}

// clang-format off
#define KV_FIELD(structure, member, kind, list)                                                    \
    fieldOf<decltype(structure::member)>(#member, offsetof(structure, member), FieldKind::kind,    \
        valuesOf##list),
#define KV_MVC_RECORD_GROUP(group, title) constexpr Field fieldsOf##group[] = {
#define KV_MVC_VIEW_GROUP(group, title) constexpr Field fieldsOf##group[] = {
#define KV_MVC_RECORD_FIELD(member, kind, list, ...) KV_FIELD(KvMvcSettings, member, kind, list)
#define KV_MVC_VIEW_FIELD(member, kind, list, ...) KV_FIELD(KvMvcViewSettings, member, kind, list)
#define KV_MVC_GROUP_END };
#include <kv_config_gui_mvc/settings_fields.def>
// clang-format on
#undef KV_FIELD

constexpr FieldGroup recordGroups[] = {
#define KV_MVC_RECORD_GROUP(group, title) {title, fieldsOf##group},
#include <kv_config_gui_mvc/settings_fields.def>
};
constexpr FieldGroup viewGroups[] = {
#define KV_MVC_VIEW_GROUP(group, title) {title, fieldsOf##group},
#include <kv_config_gui_mvc/settings_fields.def>
};

constexpr Section sections[] = {
    {"record", 0, offsetof(KvMvcSettings, views), recordGroups},
    {"view 0", offsetof(KvMvcSettings, views), sizeof(KvMvcViewSettings), viewGroups},
    {"view 1", offsetof(KvMvcSettings, views) + sizeof(KvMvcViewSettings),
     sizeof(KvMvcViewSettings), viewGroups}};

} // namespace

std::span<const Section> settingsSections()
{
    return sections;
}

} // namespace kv
