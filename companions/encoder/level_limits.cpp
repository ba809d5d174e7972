#include "level_limits.h"

#include <kv_config_gui_mvc/settings_record.h>

namespace kv::encoder
{

namespace
{

// clang-format off
constexpr Level levelTable[] = {
    // name  code  MaxMBPS   MaxFS MaxDpbMbs  MaxBR  MaxCPB  MaxVmvR MinCR SliceRate frames only
    {"1.0",   10,    1485,     99,     396,      64,    175,    64,    2,     0,     true},
    {"1b",     0,    1485,     99,     396,     128,    350,    64,    2,     0,     true},
    {"1.1",   11,    3000,    396,     900,     192,    500,   128,    2,     0,     true},
    {"1.2",   12,    6000,    396,    2376,     384,   1000,   128,    2,     0,     true},
    {"1.3",   13,   11880,    396,    2376,     768,   2000,   128,    2,     0,     true},
    {"2.0",   20,   11880,    396,    2376,    2000,   2000,   128,    2,     0,     true},
    {"2.1",   21,   19800,    792,    4752,    4000,   4000,   256,    2,     0,     false},
    {"2.2",   22,   20250,   1620,    8100,    4000,   4000,   256,    2,     0,     false},
    {"3.0",   30,   40500,   1620,    8100,   10000,  10000,   256,    2,    22,     false},
    {"3.1",   31,  108000,   3600,   18000,   14000,  14000,   512,    4,    60,     false},
    {"3.2",   32,  216000,   5120,   20480,   20000,  20000,   512,    4,    60,     false},
    {"4.0",   40,  245760,   8192,   32768,   20000,  25000,   512,    4,    60,     false},
    {"4.1",   41,  245760,   8192,   32768,   50000,  62500,   512,    2,    24,     false},
    {"4.2",   42,  522240,   8704,   34816,   50000,  62500,   512,    2,    24,     true},
    {"5.0",   50,  589824,  22080,  110400,  135000, 135000,   512,    2,    24,     true},
    {"5.1",   51,  983040,  36864,  184320,  240000, 240000,   512,    2,    24,     true},
    {"5.2",   52, 2073600,  36864,  184320,  240000, 240000,   512,    2,    24,     true},
};

constexpr Profile profileTable[] = {
    // code                     name        idc  VCL   NAL   B      inter. CABAC  weight 4:0:0  4:2:2 bits MinCR  rate   size   base
    {KV_MVC_PROFILE_BASELINE,  "Baseline",  66, 1000, 1200, false, false, false, false, false, false,  8, true,  false, false, true},
    {KV_MVC_PROFILE_MAIN,      "Main",      77, 1000, 1200, true,  true,  true,  true,  false, false,  8, true,  true,  false, true},
    {KV_MVC_PROFILE_HIGH,      "High",     100, 1250, 1500, true,  true,  true,  true,  true,  false,  8, true,  true,  false, true},
    {KV_MVC_PROFILE_HIGH_10,   "High 10",  110, 3000, 3600, true,  true,  true,  true,  true,  false, 10, false, true,  true,  false},
    {KV_MVC_PROFILE_HIGH_422,  "High 422", 122, 4000, 4800, true,  true,  true,  true,  true,  true,  10, false, true,  true,  false},
};

constexpr Profile multiviewHighRow =
    {-1, "Multiview High", 118, 1250, 1500, true, false, true, true, true, false, 8, true, true, true, false};
constexpr Profile stereoHighRow =
    {-1, "Stereo High",    128, 1250, 1500, true, true,  true, true, true, false, 8, true, true, true, false};
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
