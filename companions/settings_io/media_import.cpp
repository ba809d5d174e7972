#include "media_import.h"

#include "companion_library.h"
#include "file_store.h"
#include "media_fit.h"
#include "media_settings.h"

#include <algorithm>
#include <iterator>

namespace kv
{
namespace
{

std::string probe(const std::filesystem::path& file, KvMediaInfo& info)
{
    const CompanionLibrary library({KV_MVC_PROBE_LIBRARIES});
    if (!library.isLoaded()) {
        return "media files cannot be read without the library " KV_MVC_PROBE_LIBRARY ": " +
               library.reason();
    }
    const auto prepare = library.find<KvMediaInfoInit>(KV_MVC_PROBE_INIT);
    const auto getInfo = library.find<KvMediaGetInfo>(KV_MVC_PROBE_GET_INFO);
    if (!prepare || !getInfo || prepare(&info, sizeof info) != KV_MEDIA_OK) {
        return "media files cannot be read with this library " KV_MVC_PROBE_LIBRARY;
    }
    if (getInfo(&info, displayName(file).c_str()) == KV_MEDIA_OK) {
        return {};
    }
    return info.reason[0] != '\0' ? info.reason : "not readable as media";
}

} // namespace

std::string importMedia(const std::filesystem::path& file, KvMvcSettings& settings,
                        std::vector<std::string>& notes)
{
    KvMediaInfo info{};
    std::string reason = probe(file, info);
    if (!reason.empty()) {
        return reason;
    }
    const CompanionLibrary encoder({KV_MVC_ENCODER_LIBRARIES});
    const auto defaults = encoder.find<KvMvcDefaults>(KV_MVC_ENCODER_DEFAULTS);
    if (!defaults) {
        return "media files cannot be read without the library " KV_MVC_ENCODER_LIBRARY ": " +
               encoder.reason();
    }
    KvMvcSettings imported{};
    defaults(&imported, 0, fittingPreset(info), 0);
    notes = applyMedia(info, imported);
    if (const auto check = encoder.find<KvMvcCheck>(KV_MVC_ENCODER_CHECK)) {
        std::ranges::move(fitToEncoder(check, info, imported), std::back_inserter(notes));
    }
    settings = imported;
    return {};
}

} // namespace kv
