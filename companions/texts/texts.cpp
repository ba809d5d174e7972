// The exports of the library: a language for the process, and texts in it.

#include <kv_config_gui_mvc/companions.h>

#include <cstring>

#include "tables.h"

namespace
{

using kv::texts::Text;

/** The column of the language; null for English and before a language is set. */
const char* Text::*translation = nullptr;

} // namespace

extern "C" KV_MVC_COMPANION_API int32_t localizeSetLanguage(int32_t language)
{
    switch (language) {
    case KV_MVC_LANGUAGE_GERMAN:
        translation = &Text::german;
        return 0;
    case KV_MVC_LANGUAGE_JAPANESE:
        translation = &Text::japanese;
        return 0;
    default:
        translation = nullptr;
        return 1;
    }
}

extern "C" KV_MVC_COMPANION_API const char* localizeConvertStr(const char* format)
{
    if (!translation || !format) {
        return nullptr;
    }
    for (const kv::texts::Table& table : kv::texts::tables()) {
        for (const Text& text : table) {
            if (std::strcmp(text.format, format) == 0) {
                return text.*translation;
            }
        }
    }
    return nullptr;
}
