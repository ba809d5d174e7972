#include "languages.h"

#include "german.h"
#include "japanese.h"

namespace kv::texts
{

std::span<const Language> languages()
{
    static constexpr Language list[] = {
        {KV_MVC_LANGUAGE_GERMAN, german},
        {KV_MVC_LANGUAGE_JAPANESE, japanese},
    };
    return list;
}

} // namespace kv::texts
