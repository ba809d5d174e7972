// The exports of the library: a language for the process, and texts in it.

#include <kv_config_gui_mvc/companions.h>

#include <cstring>

#include "languages.h"

namespace
{

/// Of the language that is set; none for English and before a language is set.
std::span<const kv::texts::Text> currentTexts;

} // namespace

extern "C" KV_MVC_COMPANION_API int32_t localizeSetLanguage(int32_t code)
{
    currentTexts = {};
    for (const kv::texts::Language& language : kv::texts::languages()) {
        if (language.code == code) {
            currentTexts = language.texts;
            return 0;
        }
    }
    return 1;
}

extern "C" KV_MVC_COMPANION_API const char* localizeConvertStr(const char* format)
{
    if (!format) {
        return nullptr;
    }
    for (const kv::texts::Text& text : currentTexts) {
        if (std::strcmp(text.format, format) == 0) {
            return text.translation;
        }
    }
    return nullptr;
}
