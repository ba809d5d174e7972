// The languages that the encoder's messages are translated into.
#pragma once

#include <kv_config_gui_mvc/companions.h>

#include <span>

#include "text.h"

namespace kv::texts
{

struct Language {
    KvMvcLanguage code;
    std::span<const Text> texts; ///< in the order of the encoder's rule list
};

std::span<const Language> languages();

} // namespace kv::texts
