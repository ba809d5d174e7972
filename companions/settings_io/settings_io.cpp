// The exported function, and what it hands out.
#include "file_kind.h"
#include "file_store.h"
#include "media_import.h"
#include "setting_assignment.h"
#include "settings_text.h"
#include "utf8.h"

#include <kv_config_gui_mvc/companions.h>

#include <cstdio>
#include <exception>
#include <new>
#include <vector>

namespace
{

enum Result : int32_t { Succeeded = 0, Failed = 1 };

constexpr std::size_t largestFile = 1024 * 1024; // twenty times what the writer makes of any record

void report(const std::string& where, const std::string& what)
{
    std::fprintf(stderr, "%s: %s\n", kv::printable(where).c_str(), kv::printable(what).c_str());
}

int32_t fail(const std::string& file, const std::string& reason)
{
    report(file, reason);
    return Failed;
}

/// @param otherwise What is wrong with a file that is no media; empty: that.
int32_t readMedia(const std::filesystem::path& file, KvMvcSettings& settings,
                  const std::string& otherwise = {})
{
    std::vector<std::string> notes;
    const std::string reason = kv::importMedia(file, settings, notes);
    if (!reason.empty()) {
        return fail(kv::displayName(file), otherwise.empty() ? reason : otherwise);
    }
    for (const std::string& note : notes) {
        report(kv::displayName(file), "note: " + note);
    }
    return Succeeded;
}

int32_t readText(const std::string& name, const std::string& text, KvMvcSettings& settings)
{
    const auto problems = kv::parseSettings(text, settings);
    for (const kv::Problem& problem : problems) {
        report(name + ":" + std::to_string(problem.line), problem.reason);
    }
    return problems.empty() ? Succeeded : Failed;
}

/// A name that tells nothing leaves it to the content.
int32_t readFile(const std::filesystem::path& file, KvMvcSettings& settings)
{
    const std::string name = kv::displayName(file);
    const kv::FileKind kind = kv::kindByName(name);
    if (kind == kv::FileKind::Media) {
        return readMedia(file, settings);
    }
    std::string text;
    const std::string reason = kv::readFile(file, largestFile, text);
    const bool isRead = reason.empty() || text.size() > largestFile;
    const bool isSmall = text.size() <= largestFile;
    if (kind == kv::FileKind::Unknown && isRead && !(isSmall && kv::looksLikeSettings(text))) {
        const bool isText = isSmall && kv::isPlainText(text);
        return readMedia(file, settings,
                         isText ? "no media, and no text of a settings file: it has no [section]"
                                : "");
    }
    return reason.empty() ? readText(name, text, settings) : fail(name, reason);
}

/// A settings file under a medium's name could not be read back, and may take a film's place.
int32_t writeFile(const std::filesystem::path& file, const KvMvcSettings& settings)
{
    const std::string name = kv::displayName(file);
    if (kv::kindByName(name) == kv::FileKind::Media) {
        return fail(name, "the name is that of a media file");
    }
    const std::string reason = kv::replaceFile(file, kv::formatSettings(settings));
    return reason.empty() ? int32_t(Succeeded) : fail(name, reason);
}

/// No exception may cross the library's boundary.
template <typename Work>
int32_t guarded(const char* subject, Work work) noexcept
{
    try {
        return work();
    } catch (const std::bad_alloc&) {
        std::fputs("out of memory\n", stderr);
    } catch (const std::exception& error) {
        report(subject, error.what());
    } catch (...) {
        report(subject, "failed");
    }
    return Failed;
}

int32_t readSettings(KvMvcSettings* settings, const char* path)
{
    if (!settings || !path) {
        return Failed;
    }
    return guarded(path, [&] { return readFile(kv::meantFile(path), *settings); });
}

int32_t writeSettings(KvMvcSettings* settings, const char* path)
{
    if (!settings || !path) {
        return Failed;
    }
    return guarded(path, [&] { return writeFile(kv::meantFile(path), *settings); });
}

int32_t setSetting(KvMvcSettings* settings, const char* assignment)
{
    if (!settings || !assignment) {
        return Failed;
    }
    return guarded(assignment, [&] {
        const std::string reason = kv::assignSetting(assignment, *settings);
        if (!reason.empty()) {
            std::fprintf(stderr, "%s\n", kv::printable(reason).c_str());
        }
        return reason.empty() ? Succeeded : Failed;
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
    case KV_MVC_SETTINGS_IO_SETTER:
        return reinterpret_cast<KvMvcFunction>(&setSetting);
    default:
        return nullptr;
    }
}
