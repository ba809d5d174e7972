// Any bytes are a record that comes back from the JSON that the host program writes of it.
#include <SettingsJson.h>
#include <settings_text.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size)
{
    KvMvcSettings record{};
    std::copy_n(data, std::min(size, sizeof record), reinterpret_cast<uint8_t*>(&record));
    const QByteArray text = jsonText(settingsJson(record));
    KvMvcSettings back;
    std::memset(static_cast<void*>(&back), 0x5A, sizeof back);
    const std::string_view json(text.constData(), static_cast<std::size_t>(text.size()));
    if (!kv::parseSettings(json, back).empty() ||
        std::memcmp(static_cast<const void*>(&record), &back, sizeof back) != 0) {
        std::abort();
    }
    return 0;
}
