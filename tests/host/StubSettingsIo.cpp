// A settings file library that writes to files only, whose files all hold the same line, and that
// refuses to read any, with lines of several kinds.

#include <kv_config_gui_mvc/companions.h>

#include <cstdio>
#include <cstring>

namespace
{

int32_t readSettings(KvMvcSettings*, const char* path)
{
    std::fprintf(stderr, "%s:3: first\n\n%s:12: second: 5: third\n", path, path);
    std::fprintf(stderr, "%s: no place\n%s:word: no line\nno name\n", path, path);
    return 7;
}

int32_t writeSettings(KvMvcSettings*, const char* path)
{
    const std::size_t length = std::strlen(path);
    if (length < 4 || std::strcmp(path + length - 4, ".ini") != 0) {
        std::fprintf(stderr, "%s: no file\n", path);
        return 1;
    }
    std::FILE* file = std::fopen(path, "wb");
    if (file == nullptr) {
        return 1;
    }
    std::fputs("a line\n", file);
    return std::fclose(file);
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
