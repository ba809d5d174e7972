// The exported function, and the reader and the writer that it hands out.
#include "file_store.h"
#include "settings_text.h"

#include <kv_config_gui_mvc/companions.h>

#include <cstdio>
#include <exception>

namespace
{

enum Result : int32_t { Succeeded = 0, Failed = 1 };

constexpr std::size_t kLargestFile =
    1024 * 1024; // twenty times what the writer makes of any record

int32_t fail(const std::string& file, const std::string& reason)
{
    std::fprintf(stderr, "%s: %s\n", file.c_str(), reason.c_str());
    return Failed;
}

int32_t readSettingsFile(const std::filesystem::path& file, KvMvcSettings& settings)
{
    const std::string name = kv::displayName(file);
    std::string text;
    const std::string reason = kv::readFile(file, kLargestFile, text);
    if (!reason.empty())
        return fail(name, reason);
    const auto problems = kv::parseSettings(text, settings);
    for (const kv::Problem& problem : problems)
        fail(name + ":" + std::to_string(problem.line), problem.reason);
    return problems.empty() ? Succeeded : Failed;
}

/** No exception may cross the library's boundary. */
template <typename Work>
int32_t guarded(const char* path, Work work) noexcept
{
    try {
        return work();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", path, error.what());
    } catch (...) {
        std::fprintf(stderr, "%s: failed\n", path);
    }
    return Failed;
}

int32_t readSettings(KvMvcSettings* settings, const char* path)
{
    if (!settings || !path)
        return Failed;
    return guarded(path, [&] { return readSettingsFile(kv::meantFile(path), *settings); });
}

int32_t writeSettings(KvMvcSettings* settings, const char* path)
{
    if (!settings || !path)
        return Failed;
    return guarded(path, [&] {
        const std::filesystem::path file = kv::meantFile(path);
        const std::string reason = kv::replaceFile(file, kv::formatSettings(*settings));
        return reason.empty() ? int32_t(Succeeded) : fail(kv::displayName(file), reason);
    });
}

} // namespace

extern "C" KV_MVC_COMPANION_API KvMvcFunction MVCConfigGetAPIExt(int32_t code)
{
    switch (code) {
    case KV_MVC_SETTINGS_IO_READER:
        return reinterpret_cast<KvMvcFunction>(&readSettings);
    case KV_MVC_SETTINGS_IO_WRITER:
        return reinterpret_cast<KvMvcFunction>(&writeSettings);
    default:
        return nullptr;
    }
}
