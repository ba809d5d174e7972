/* The field table, read as settings_fields.def says: as C, and once more as C++. */
#pragma once

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

struct FieldRow {
    const char *structure, *member, *kind, *list, *shared, *rule;
    size_t offset, size;
    int shown, said;
};

struct ValueRow {
    const char *list, *key, *text;
    int code;
};

/// @return The rows in their order; one without a structure is the last.
const struct FieldRow* fieldRows(void);

/// @return The values of all lists, under each list's name; one without a list is the last.
const struct ValueRow* valueRows(void);

#ifdef __cplusplus
} /* extern "C" */
#endif
