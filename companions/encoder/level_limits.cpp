#include "level_limits.h"

#include <kv_config_gui_mvc/settings_record.h>

#include <array>

#include "field_values.h"

namespace kv::encoder
{

namespace
{

/// The rows, each with its own name or that of its code.
template <class Row, std::size_t size>
consteval std::array<Row, size> named(const Row (&rows)[size], std::span<const ListValue> names)
{
    std::array<Row, size> table = std::to_array(rows);
    for (Row& row : table) {
        if (!*row.name) {
            row.name = findValue(names, row.code)->text;
        }
    }
    return table;
}

// clang-format off
constexpr auto levelTable = named<Level>({
    // code  MaxMBPS   MaxFS MaxDpbMbs  MaxBR  MaxCPB  MaxVmvR MinCR SliceRate frames only
    {10,    1485,     99,     396,      64,    175,    64,    2,     0,     true},
    { 0,    1485,     99,     396,     128,    350,    64,    2,     0,     true, "1b"},
    {11,    3000,    396,     900,     192,    500,   128,    2,     0,     true},
    {12,    6000,    396,    2376,     384,   1000,   128,    2,     0,     true},
    {13,   11880,    396,    2376,     768,   2000,   128,    2,     0,     true},
    {20,   11880,    396,    2376,    2000,   2000,   128,    2,     0,     true},
    {21,   19800,    792,    4752,    4000,   4000,   256,    2,     0,     false},
    {22,   20250,   1620,    8100,    4000,   4000,   256,    2,     0,     false},
    {30,   40500,   1620,    8100,   10000,  10000,   256,    2,    22,     false},
    {31,  108000,   3600,   18000,   14000,  14000,   512,    4,    60,     false},
    {32,  216000,   5120,   20480,   20000,  20000,   512,    4,    60,     false},
    {40,  245760,   8192,   32768,   20000,  25000,   512,    4,    60,     false},
    {41,  245760,   8192,   32768,   50000,  62500,   512,    2,    24,     false},
    {42,  522240,   8704,   34816,   50000,  62500,   512,    2,    24,     true},
    {50,  589824,  22080,  110400,  135000, 135000,   512,    2,    24,     true},
    {51,  983040,  36864,  184320,  240000, 240000,   512,    2,    24,     true},
    {52, 2073600,  36864,  184320,  240000, 240000,   512,    2,    24,     true},
}, valuesOfLevel);

constexpr auto profileTable = named<Profile>({
    // code                     idc  VCL   NAL   B      inter. CABAC  weight 4:0:0  4:2:2 bits MinCR  rate   size   base
    {KV_MVC_PROFILE_BASELINE,   66, 1000, 1200, false, false, false, false, false, false,  8, true,  false, false, true},
    {KV_MVC_PROFILE_MAIN,       77, 1000, 1200, true,  true,  true,  true,  false, false,  8, true,  true,  false, true},
    {KV_MVC_PROFILE_HIGH,      100, 1250, 1500, true,  true,  true,  true,  true,  false,  8, true,  true,  false, true},
    {KV_MVC_PROFILE_HIGH_10,   110, 3000, 3600, true,  true,  true,  true,  true,  false, 10, false, true,  true,  false},
    {KV_MVC_PROFILE_HIGH_422,  122, 4000, 4800, true,  true,  true,  true,  true,  true,  10, false, true,  true,  false},
}, valuesOfProfile);

constexpr Profile multiviewHighRow =
    {-1, 118, 1250, 1500, true, false, true, true, true, false, 8, true, true, true, false, "Multiview High"};
constexpr Profile stereoHighRow =
    {-1, 128, 1250, 1500, true, true,  true, true, true, false, 8, true, true, true, false, "Stereo High"};
// clang-format on

} // namespace

std::span<const Level> levels()
{
    return levelTable;
}

const Level* findLevel(int code)
{
    for (const Level& level : levelTable) {
        if (level.code == code && code != 0) {
            return &level;
        }
    }
    return nullptr;
}

int maxSideMbs(const Level& level)
{
    int side = 0;
    while (std::int64_t{side + 1} * (side + 1) <= 8 * level.frameMbs) {
        ++side;
    }
    return side;
}

const Profile* findProfile(int code)
{
    for (const Profile& profile : profileTable) {
        if (profile.code == code) {
            return &profile;
        }
    }
    return nullptr;
}

const Profile& multiviewHigh()
{
    return multiviewHighRow;
}

const Profile& stereoHigh()
{
    return stereoHighRow;
}

} // namespace kv::encoder
