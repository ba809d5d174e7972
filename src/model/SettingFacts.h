#pragma once

#include <QString>

#include <optional>

/// What the public field table has of the setting behind a key.
struct SettingFacts {
    /// The member of the record or of a view: "bit_depth_luma". Of a key that two members stand
    /// behind, the first one.
    QString member;
    /// What it is called, in English.
    QString name;
    /// Behind a number: "bytes"; may be empty.
    QString unit;
    /// The range that the reference encoder takes the number into, as the dialog shows it; none
    /// where it does not correct the field by itself, or where a list says all.
    std::optional<int> low;
    std::optional<int> high;
    /// The clause or rule that the range rests on; empty where it is the encoder's own choice.
    QString basis;
    /// The view whose rate control it is; -1 where all views share the key.
    int view = -1;
    /// The flag of the host that locks it; 0: none.
    qint32 lock = 0;
};

/// No value for a key that no setting has.
std::optional<SettingFacts> settingFacts(const QString& key);

/// The key of a setting that an encoder names.
/// @param member As the field table has it.
/// @param view   0 to KV_MVC_MAX_VIEWS - 1 or KV_MVC_ALL_VIEWS, for which the base view's key
///               stands where each view has its own.
/// @return Empty where there is no such member or view, and where no key edits it.
QString keyOfSetting(const QString& member, int view);
