// What is told first: the limit that has the least room left. Shares of the limits of level 4.1 in
// High and Stereo High, of 75 and 62.5 Mbit/s, 93.75 and 78.125 Mbit, unless it says otherwise.

#include "cases.h"

namespace
{

using Record = KvMvcSettings;
using encoder::setBoth;

/// Main has two thirds of it for the base view: 60 and 50 Mbit/s, 75 and 62.5 Mbit; the other view
/// has next to nothing.
template <int rate, int bufferBytes>
void mainBase(Record& r)
{
    setBoth(r, &V::profile, 1);
    r.views[0].max_bitrate = rate;
    r.views[0].bitrate_buffer = bufferBytes;
    r.views[1].bitrate = r.views[1].max_bitrate = 1000000;
    r.views[1].bitrate_buffer = 125000;
}

/// Rates of both views, and the base view's buffer.
template <int base, int other, int bufferBytes>
void onDisc(Record& r)
{
    r.views[0].max_bitrate = base;
    r.views[1].max_bitrate = other;
    r.views[0].bitrate_buffer = bufferBytes;
}

constexpr RuleCase rows[] = {
    {"headroom.macroblock-rate", "79 %", 0, [](Record&) {}, true},
    {"headroom.macroblock-rate", "79 %, and references 87 %", 2, [](Record&) {}, false},
    {"headroom.frames", "87 %", 2, [](Record&) {}, true},
    {"headroom.frames", "75 %", 0, [](Record&) {}, false},
    {"headroom.bitrate", "93 %, as picture data beyond the limit", 0,
     [](Record& r) { r.views[0].max_bitrate = 70000000; }, true},
    {"headroom.bitrate", "83 %, as picture data 100 %", 0,
     [](Record& r) { r.views[0].max_bitrate = 62500000; }, false},
    {"headroom.bitrate-pictures", "80 %", 0, [](Record& r) { r.views[0].max_bitrate = 50000000; },
     true},
    {"headroom.bitrate-pictures", "78 %", 0, [](Record& r) { r.views[0].max_bitrate = 49000000; },
     false},
    {"headroom.bitrate-base", "Main, 55 of 60 Mbit/s", 2, mainBase<55000000, 3750000>, true},
    {"headroom.bitrate-base", "High, 55 of 75 Mbit/s", 2,
     [](Record& r) { onDisc<55000000, 15000000, 3750000>(r); }, false},
    {"headroom.bitrate-pictures-base", "Main, 48 of 50 Mbit/s", 2, mainBase<48000000, 3750000>,
     true},
    {"headroom.bitrate-pictures-base", "Main, 51 of 50 Mbit/s", 2, mainBase<51000000, 3750000>,
     false},
    {"headroom.buffer", "93 %, as picture data beyond the limit", 0,
     [](Record& r) { r.views[0].bitrate_buffer = 11000000; }, true},
    {"headroom.buffer", "83 %, as picture data 100 %", 0,
     [](Record& r) { r.views[0].bitrate_buffer = 9765625; }, false},
    {"headroom.buffer-pictures", "80 %", 0, [](Record& r) { r.views[0].bitrate_buffer = 7812500; },
     true},
    {"headroom.buffer-pictures", "79 %", 0, [](Record& r) { r.views[0].bitrate_buffer = 7730000; },
     false},
    {"headroom.buffer-base", "Main, 72 of 75 Mbit", 2, mainBase<20000000, 9000000>, true},
    {"headroom.buffer-base", "Main, 62 of 75 Mbit, as picture data 62 of 62.5", 2,
     mainBase<20000000, 7750000>, false},
    {"headroom.buffer-pictures-base", "Main, 62 of 62.5 Mbit", 2, mainBase<20000000, 7750000>,
     true},
    {"headroom.buffer-pictures-base", "Main, 63 of 62.5 Mbit", 2, mainBase<20000000, 7875000>,
     false},
    {"headroom.disc-bitrate", "59.5 of 60 Mbit/s", 3, onDisc<36000000, 23500000, 3125000>, true},
    {"headroom.disc-bitrate", "59.5 of 60 Mbit/s, the base view's 39.9 of 40", 3,
     onDisc<39900000, 19600000, 3125000>, false},
    {"headroom.disc-bitrate-base", "39.9 of 40 Mbit/s", 3, onDisc<39900000, 15000000, 3125000>,
     true},
    {"headroom.disc-bitrate-base", "30 of 40 Mbit/s", 3, onDisc<30000000, 15000000, 3125000>,
     false},
    {"headroom.disc-bitrate-other", "39.9 of 40 Mbit/s", 3, onDisc<10000000, 39900000, 3125000>,
     true},
    {"headroom.disc-bitrate-other", "15 of 40 Mbit/s", 3, [](Record&) {}, false},
    {"headroom.disc-buffer", "30 of 30 Mbit", 3, [](Record&) {}, true},
    {"headroom.disc-buffer", "25 of 30 Mbit", 3, onDisc<30000000, 15000000, 3125000>, false},
    {"headroom.disc-buffer-other", "29.6 of 30 Mbit", 3,
     [](Record& r) {
         r.views[0].bitrate_buffer = 3125000;
         r.views[1].bitrate_buffer = 3700000;
     },
     true},
    {"headroom.disc-buffer-other", "30.4 of 30 Mbit, which is a risk", 3,
     [](Record& r) { r.views[1].bitrate_buffer = 3800000; }, false},
};

} // namespace

std::span<const RuleCase> headroomCases()
{
    return rows;
}
