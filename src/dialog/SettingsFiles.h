#pragma once

#include <QString>

#include <kv_config_gui_mvc/settings_record.h>

#include <optional>

/// Settings files as the settings file library reads and writes them.
namespace settings_files
{

/// The settings stored in the file, or taken from a media file. No value when the library has no
/// reader, or the reader fails or throws.
std::optional<KvMvcSettings> read(const QString& path);

/// @return Whether the library wrote the settings; false when it has no writer, or the writer fails
/// or throws.
bool write(const KvMvcSettings& settings, const QString& path);

/// Whether a file of this name may be dropped on the dialog; its suffix decides, in any case.
bool isDroppable(const QString& path);

/// The name with ".ini" behind it, unless it ends in ".cfg" or ".ini", in any case.
QString withSuffix(const QString& name);

/// The name as the file slots pass it on: its UTF-8 bytes read as 8-bit text. Settings file
/// libraries know this form of a name and undo it.
QString asPassedOn(const QString& name);

} // namespace settings_files
