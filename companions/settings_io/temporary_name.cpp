#include "temporary_file.h"

#include <cstdint>

#include "hex_bytes.h"

namespace kv
{

std::string temporaryBeginning(const std::filesystem::path& file)
{
    // FNV-1a: short, however long the name is; nothing depends on its secrecy.
    std::uint64_t hash = 0xCBF29CE484222325;
    for (const char8_t byte : file.filename().u8string()) {
        hash = (hash ^ static_cast<std::uint8_t>(byte)) * 0x100000001B3;
    }
    std::string text = ".settings-";
    for (int shift = 60; shift >= 0; shift -= 4) {
        text += hexDigits[hash >> shift & 15];
    }
    return text + '-';
}

} // namespace kv
