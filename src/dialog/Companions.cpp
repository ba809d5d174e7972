#include "Companions.h"

CompanionFunctions& companionFunctions()
{
    static CompanionFunctions functions;
    return functions;
}

const char* localized(const char* text)
{
    const auto convert = companionFunctions().localizeConvert;
    const char* converted = nullptr;
    if (convert) {
        thrownBy(KV_MVC_LOCALIZE_CONVERT, [&] { converted = convert(text); });
    }
    return converted ? converted : text;
}
