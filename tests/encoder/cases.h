// Records on either side of each rule: what the rule says something about, and what it just lets
// by.
#pragma once

#include <kv_config_gui_mvc/settings_record.h>

#include <QList>

#include <span>

#include "Encoder.h"
#include "SettingsLedger.h"

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
std::span<const RuleCase> headroomCases();

/// A value of a field in both views, and what the check makes of it.
struct FieldCase {
    QByteArray rule;
    const ledger::Setting* setting;
    std::int32_t before;
    std::int32_t after;
};

/// What is kept, and the next values beyond: of each range, switch and list of codes.
const QList<FieldCase>& fieldCases();
