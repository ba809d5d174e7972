// A settings dialog without a window: writes down how it was called, edits the record as the
// environment says, and returns the result that it names.

#include <QCoreApplication>

#include <kv_config_gui_mvc/config_gui.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace
{

const char* textOr(const char* text, const char* otherwise)
{
    return text != nullptr ? text : otherwise;
}

/// "none", "widgets" or "core": the application object that the process has.
const char* applicationKind()
{
    const QCoreApplication* application = QCoreApplication::instance();
    if (application == nullptr) {
        return "none";
    }
    return application->inherits("QApplication") ? "widgets" : "core";
}

void writeDown(std::FILE* log, const KvMvcSettings& settings, int32_t flags, void* ext)
{
    const bool record = (flags & KV_MVC_GUI_HOSTING_RECORD) != 0;
    const auto* hosting = static_cast<const KvMvcHosting*>(ext);
    void* parent = record ? hosting->parent : ext;
    std::fprintf(log, "flags %08x\n", static_cast<unsigned>(flags));
    std::fprintf(log, "application %s\n", applicationKind());
    if (parent != nullptr && parent == QCoreApplication::instance()) {
        std::fprintf(log, "parent application\n");
    } else {
        std::fprintf(log, "parent %llx\n",
                     static_cast<unsigned long long>(reinterpret_cast<uintptr_t>(parent)));
    }
    std::fprintf(log, "title %s\n", record ? textOr(hosting->title, "(null)") : "(no record)");
    std::fprintf(log, "banner %s\n", record ? textOr(hosting->banner, "(null)") : "(no record)");
    std::fprintf(log, "width %d\n", static_cast<int>(settings.views[0].width));
}

/// @param edits "offset=value offset=value": 32-bit numbers at offsets in the record.
void edit(KvMvcSettings& settings, const char* edits)
{
    for (const char* at = edits; *at != '\0';) {
        char* end = nullptr;
        const unsigned long offset = std::strtoul(at, &end, 10);
        const auto value = static_cast<int32_t>(std::strtol(end + 1, &end, 10));
        std::memcpy(reinterpret_cast<char*>(&settings) + offset, &value, sizeof value);
        at = *end == ' ' ? end + 1 : end;
    }
}

} // namespace

extern "C" KV_CONFIG_GUI_MVC_API int32_t showMVCEncoderPages(KvMvcSettings* settings, int32_t flags,
                                                             void* ext)
{
    if (const char* name = std::getenv("KV_STUB_LOG")) {
        if (std::FILE* log = std::fopen(name, "wb")) {
            writeDown(log, *settings, flags, ext);
            std::fclose(log);
        }
    }
    if (const char* directory = std::getenv("KV_STUB_REMOVES")) {
        std::rename(directory, std::getenv("KV_STUB_REMOVED"));
    }
    edit(*settings, textOr(std::getenv("KV_STUB_EDITS"), ""));
    return static_cast<int32_t>(std::atoi(textOr(std::getenv("KV_STUB_RESULT"), "1000")));
}
