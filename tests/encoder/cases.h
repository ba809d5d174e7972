// Records on either side of each rule: what the rule says something about, and what it just lets
// by.
#pragma once

#include <kv_config_gui_mvc/settings_record.h>

#include <span>

#include "Encoder.h"

struct RuleCase {
    const char* rule;
    const char* name;
    int preset;                     ///< the record that `change` starts from
    void (*change)(KvMvcSettings&); ///< brings the record to the side that is meant
    bool said;                      ///< whether the rule says something
};

using V = KvMvcViewSettings;

std::span<const RuleCase> pictureCases();
std::span<const RuleCase> profileCases();
std::span<const RuleCase> viewCases();
std::span<const RuleCase> gopCases();
std::span<const RuleCase> rateCases();
std::span<const RuleCase> discCases();
std::span<const RuleCase> levelCases();

/** A value that a field does not keep, and what the check makes of it. */
struct FieldCase {
    const char* rule;
    const char* name;
    std::int32_t KvMvcViewSettings::*field;
    std::int32_t before;
    std::int32_t after;
    bool perView; ///< the message names the view, so each of two views gets its own
};

/** Both ends of each range: what is kept, and the next value beyond. */
std::span<const FieldCase> fieldCases();
