#include "field_rows.h"

#include <kv_config_gui_mvc/settings_record.h>

/* Without macros, nothing. */
#include <kv_config_gui_mvc/settings_fields.def>

/* clang-format off */
#define FIELD(structure, member, kind, list, name, unit, less, shown, low, high, shared, rule, said, ...) \
    {#structure, #member, #kind, #list, #shared, rule, offsetof(structure, member),                       \
     sizeof(((structure*)0)->member), shown, said},

static const struct FieldRow fields[] = {
#define KV_MVC_RECORD_FIELD(...) FIELD(KvMvcSettings, __VA_ARGS__)
#define KV_MVC_VIEW_FIELD(...) FIELD(KvMvcViewSettings, __VA_ARGS__)
#include <kv_config_gui_mvc/settings_fields.def>
    {NULL, NULL, NULL, NULL, NULL, NULL, 0, 0, 0, 0}
};

static const struct ValueRow values[] = {
#define KV_MVC_LIST(list) {#list, NULL, NULL, 0},
#define KV_MVC_VALUE(code, key, text) {"", key, text, code},
#include <kv_config_gui_mvc/settings_fields.def>
    {NULL, NULL, NULL, 0}
};
/* clang-format on */

/* Every kind, way of sharing, group and list of the rows has a row of its own. */
enum Words {
#define KV_MVC_KIND(kind) IsKind##kind,
#define KV_MVC_SHARING(shared) IsShared##shared,
#define KV_MVC_RECORD_GROUP(group, title) IsGroup##group,
#define KV_MVC_VIEW_GROUP(group, title) IsGroup##group,
#define KV_MVC_LIST(list) IsList##list,
#include <kv_config_gui_mvc/settings_fields.def>
    IsListPlain
};

const struct FieldRow* fieldRows(void)
{
#define KV_MVC_VIEW_FIELD(member, kind, list, name, unit, less, shown, low, high, shared, ...)     \
    (void)IsKind##kind, (void)IsList##list, (void)IsShared##shared;
#include <kv_config_gui_mvc/settings_fields.def>
    return fields;
}

const struct ValueRow* valueRows(void)
{
    return values;
}
