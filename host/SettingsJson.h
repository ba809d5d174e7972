#pragma once

#include <QByteArray>
#include <QJsonObject>

#include <kv_config_gui_mvc/settings_record.h>

/// @return The text of what a command writes as JSON, with the version of its format.
QByteArray jsonText(QJsonObject object);

/// @return {"views": [{SETTING: settingJson(), ...}, ...], SETTING: settingJson(), ...}, with
///         "bytes" in the record and in each view that has others than zero behind its settings.
QJsonObject settingsJson(const KvMvcSettings& settings);
