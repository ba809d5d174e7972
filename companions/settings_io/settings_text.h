// Settings files as text; docs/settings-file.md describes the format, docs/json.md that in JSON.
#pragma once

#include <kv_config_gui_mvc/settings_record.h>

#include <string>
#include <string_view>
#include <vector>

namespace kv
{

/// What is wrong with a line of a settings file.
struct Problem {
    std::size_t line; ///< from 1
    std::string reason;
};

/// Reads a settings file's text, or settings as JSON. What the text leaves out is zero in the
/// record.
/// @param settings Written only when there is no problem.
/// @return The problems in the order of their lines, at most twenty.
std::vector<Problem> parseSettings(std::string_view text, KvMvcSettings& settings);

/// The same of text that is known to be JSON.
std::vector<Problem> parseJsonSettings(std::string_view text, KvMvcSettings& settings);

/// The text of a settings file: every named field, and what is not zero of the other bytes.
std::string formatSettings(const KvMvcSettings& settings);

} // namespace kv
