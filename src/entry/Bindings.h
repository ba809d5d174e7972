#pragma once

#include <QString>

#include <cstdint>

/// The companion libraries of a call, in process-wide slots: one loader each, and the functions
/// that the dialog calls (CompanionFunctions). A loader that an earlier, failed call left is
/// released before its slot is filled anew; releasing clears the functions, too.
namespace bindings
{

/// The settings file library. @return Whether it and its function are there.
bool loadSettingsIo();

/// The encoder library, and then the stream information library, which may be missing.
/// @return Whether the encoder library and both its functions are there.
bool loadEncoder();

/// The localization library in `directory`; tells it the language (KvMvcLanguage). It may be
/// missing. Tried once in a call.
void loadLocalization(const QString& directory, std::int32_t language);

void releaseLocalization();
/// The encoder library, the stream information library, the settings file library, in this order.
void releaseCompanions();

} // namespace bindings
