// The encoder library's check, and what it says.
#pragma once

#include <kv_config_gui_mvc/companions.h>

#include <algorithm>
#include <string>
#include <vector>

namespace kv
{

struct Verdict {
    bool accepted = false;
    KvMvcSettings corrected{}; ///< the record as the check left it
    std::vector<std::string> errors;
    std::vector<std::string> warnings; ///< of what was corrected

    /// How far from accepted; 0 when it is. An encoder may refuse without a word.
    std::size_t distance() const { return accepted ? 0 : std::max<std::size_t>(errors.size(), 1); }
};

Verdict checkSettings(KvMvcCheck check, const KvMvcSettings& settings);

} // namespace kv
