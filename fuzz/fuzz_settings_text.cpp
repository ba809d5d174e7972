// Any text is read or refused, as a file and as one setting, and what was read is written and read
// back the same; any bytes are a record that comes back.
#include <setting_assignment.h>
#include <settings_text.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace
{

void mustComeBack(const KvMvcSettings& settings)
{
    KvMvcSettings back;
    std::memset(static_cast<void*>(&back), 0x5A, sizeof back);
    if (!kv::parseSettings(kv::formatSettings(settings), back).empty() ||
        std::memcmp(&settings, &back, sizeof back) != 0) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size)
{
    KvMvcSettings settings{};
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    if (kv::parseSettings(text, settings).empty()) {
        mustComeBack(settings);
    }
    kv::assignSetting(text, settings);
    mustComeBack(settings);
    KvMvcSettings record{};
    std::copy_n(data, std::min(size, sizeof record), reinterpret_cast<uint8_t*>(&record));
    mustComeBack(record);
    return 0;
}
