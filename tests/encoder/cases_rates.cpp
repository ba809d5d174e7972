// Rate control, and the notes that sum up.

#include "cases.h"

namespace
{

using Record = KvMvcSettings;
using encoder::setBoth;
using encoder::setFrameRate;

constexpr RuleCase rows[] = {
    {"rate.constant-max", "equal", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_mode, 0);
         setBoth(r, &V::max_bitrate, 20000000);
     },
     false},
    {"rate.constant-max", "maximum above", 0, [](Record& r) { setBoth(r, &V::bitrate_mode, 0); },
     true},
    {"rate.constant-max", "maximum unset", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_mode, 0);
         setBoth(r, &V::max_bitrate, 0);
     },
     true},
    {"rate.constant-max", "no target yet", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_mode, 0);
         setBoth(r, &V::bitrate, 0);
     },
     false},
    {"rate.target-max", "equal", 0, [](Record& r) { setBoth(r, &V::bitrate, 30000000); }, false},
    {"rate.target-max", "above", 0, [](Record& r) { setBoth(r, &V::bitrate, 30000001); }, true},
    {"rate.target-max", "maximum unset", 0,
     [](Record& r) {
         setBoth(r, &V::max_bitrate, 0);
         setBoth(r, &V::hrd_mode, 0);
     },
     false},
    {"rate.target-max", "above without HRD", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate, 30000001);
         setBoth(r, &V::hrd_mode, 0);
     },
     false},
    {"rate.max-target", "below without HRD", 0,
     [](Record& r) {
         setBoth(r, &V::max_bitrate, 19999999);
         setBoth(r, &V::hrd_mode, 0);
     },
     true},
    {"rate.max-target", "equal without HRD", 0,
     [](Record& r) {
         setBoth(r, &V::max_bitrate, 20000000);
         setBoth(r, &V::hrd_mode, 0);
     },
     false},
    {"rate.max-target", "unset without HRD", 0,
     [](Record& r) {
         setBoth(r, &V::max_bitrate, 0);
         setBoth(r, &V::hrd_mode, 0);
     },
     false},
    {"rate.max-target", "below with HRD", 0, [](Record& r) { setBoth(r, &V::max_bitrate, 10); },
     false},
    {"rate.target-max", "above in a quantizer mode", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_mode, 1);
         setBoth(r, &V::bitrate, 30000001);
     },
     false},
    // 1920 x 1080 are 8160 macroblocks, 204,000 in a second at 25 frames/s.
    {"rate.kilobits", "a bit a macroblock", 0,
     [](Record& r) {
         setFrameRate(r, 25);
         setBoth(r, &V::bitrate, 204000);
     },
     false},
    {"rate.kilobits", "less than a bit a macroblock", 0,
     [](Record& r) {
         setFrameRate(r, 25);
         setBoth(r, &V::bitrate, 203999);
     },
     true},
    {"rate.kilobits", "a small picture", 0,
     [](Record& r) {
         setBoth(r, &V::width, 176);
         setBoth(r, &V::height, 144);
         setBoth(r, &V::num_slices, 1);
         setFrameRate(r, 15);
         setBoth(r, &V::bitrate, 20000);
     },
     false},
    {"rate.kilobits", "not looked at in a quantizer mode", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate, 20000);
         setBoth(r, &V::bitrate_mode, 1);
     },
     false},
    {"rate.kilobits", "no frame rate", 0,
     [](Record& r) {
         setFrameRate(r, 0);
         setBoth(r, &V::bitrate, 20000);
     },
     false},
    {"hrd.target", "full in bits", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_units, 1);
         setBoth(r, &V::bitrate_buffer, 30000000);
         setBoth(r, &V::vbv_initial, 15000000);
         setBoth(r, &V::vbv_target, 15000000);
         setBoth(r, &V::vbv_target, 30000000);
     },
     false},
    {"hrd.target", "more than full in bits", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_units, 1);
         setBoth(r, &V::bitrate_buffer, 30000000);
         setBoth(r, &V::vbv_initial, 15000000);
         setBoth(r, &V::vbv_target, 15000000);
         setBoth(r, &V::vbv_target, 30000001);
     },
     true},
    {"hrd.target", "full in ticks", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_units, 2);
         setBoth(r, &V::bitrate_buffer, 30000000);
         setBoth(r, &V::vbv_initial, 45000);
         setBoth(r, &V::vbv_target, 45000);
         setBoth(r, &V::vbv_target, 90000);
     },
     false},
    {"hrd.target", "more than full in ticks", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_units, 2);
         setBoth(r, &V::bitrate_buffer, 30000000);
         setBoth(r, &V::vbv_initial, 45000);
         setBoth(r, &V::vbv_target, 45000);
         setBoth(r, &V::vbv_target, 90001);
     },
     true},
    {"hrd.target", "more than full without HRD", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_units, 2);
         setBoth(r, &V::bitrate_buffer, 30000000);
         setBoth(r, &V::vbv_initial, 45000);
         setBoth(r, &V::vbv_target, 45000);
         setBoth(r, &V::vbv_target, 90001);
         setBoth(r, &V::hrd_mode, 0);
     },
     false},
    {"rate.target", "1", 0, [](Record& r) { setBoth(r, &V::bitrate, 1); }, false},
    {"rate.target", "0", 0, [](Record& r) { setBoth(r, &V::bitrate, 0); }, true},
    {"rate.target", "0 of constant bitrate", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_mode, 0);
         setBoth(r, &V::bitrate, 0);
     },
     true},
    {"rate.target", "0 in a quantizer mode", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_mode, 1);
         setBoth(r, &V::bitrate, 0);
     },
     false},
    {"hrd.maximum", "given", 0, [](Record&) {}, false},
    {"hrd.maximum", "unset", 0, [](Record& r) { setBoth(r, &V::max_bitrate, 0); }, true},
    {"hrd.maximum", "unset without HRD", 0,
     [](Record& r) {
         setBoth(r, &V::max_bitrate, 0);
         setBoth(r, &V::hrd_mode, 0);
     },
     false},
    {"hrd.buffer", "16 bits", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_units, 1);
         setBoth(r, &V::bitrate_buffer, 30000000);
         setBoth(r, &V::vbv_initial, 15000000);
         setBoth(r, &V::vbv_target, 15000000);
         setBoth(r, &V::bitrate_buffer, 16);
     },
     false},
    {"hrd.buffer", "0", 0, [](Record& r) { setBoth(r, &V::bitrate_buffer, 0); }, true},
    {"hrd.buffer", "0 without HRD", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_buffer, 0);
         setBoth(r, &V::hrd_mode, 0);
     },
     false},
    {"hrd.frame-rate", "unset", 0, [](Record& r) { setFrameRate(r, 0); }, true},
    {"hrd.frame-rate", "unset without HRD", 0,
     [](Record& r) {
         setFrameRate(r, 0);
         setBoth(r, &V::hrd_mode, 0);
     },
     false},
    {"hrd.initial-empty", "1 percent", 0, [](Record& r) { setBoth(r, &V::vbv_initial, 1); }, false},
    {"hrd.initial-empty", "0", 0, [](Record& r) { setBoth(r, &V::vbv_initial, 0); }, true},
    {"hrd.initial-empty", "0 without HRD", 0,
     [](Record& r) {
         setBoth(r, &V::vbv_initial, 0);
         setBoth(r, &V::hrd_mode, 0);
     },
     false},
    {"hrd.initial-above", "full in bits", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_units, 1);
         setBoth(r, &V::bitrate_buffer, 30000000);
         setBoth(r, &V::vbv_initial, 15000000);
         setBoth(r, &V::vbv_target, 15000000);
         setBoth(r, &V::vbv_initial, 30000000);
     },
     false},
    {"hrd.initial-above", "more than full in bits", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_units, 1);
         setBoth(r, &V::bitrate_buffer, 30000000);
         setBoth(r, &V::vbv_initial, 15000000);
         setBoth(r, &V::vbv_target, 15000000);
         setBoth(r, &V::vbv_initial, 30000001);
     },
     true},
    {"hrd.initial-above", "full in ticks", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_units, 2);
         setBoth(r, &V::bitrate_buffer, 30000000);
         setBoth(r, &V::vbv_initial, 45000);
         setBoth(r, &V::vbv_target, 45000);
         setBoth(r, &V::vbv_initial, 90000);
     },
     false},
    {"hrd.initial-above", "more than full in ticks", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_units, 2);
         setBoth(r, &V::bitrate_buffer, 30000000);
         setBoth(r, &V::vbv_initial, 45000);
         setBoth(r, &V::vbv_target, 45000);
         setBoth(r, &V::vbv_initial, 90001);
     },
     true},
    {"hrd.i-size", "fills the buffer", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_buffer, 1000000);
         setBoth(r, &V::frame_size_i, 1000000);
     },
     false},
    {"hrd.i-size", "one byte more", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_buffer, 1000000);
         setBoth(r, &V::frame_size_i, 1000001);
     },
     true},
    {"hrd.i-size", "one byte more without HRD", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_buffer, 1000000);
         setBoth(r, &V::frame_size_i, 1000001);
         setBoth(r, &V::hrd_mode, 0);
     },
     false},
    {"hrd.i-size", "one byte more in view 1, level Auto", 2,
     [](Record& r) {
         setBoth(r, &V::level, 100);
         r.views[1].frame_size_i = 1875001;
     },
     true},
    {"hrd.i-size", "one byte more, and beyond the level", 0,
     [](Record& r) { setBoth(r, &V::frame_size_i, 3750001); }, false},
    {"hrd.initial-short", "one frame time in ticks, 3754", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_units, 2);
         setBoth(r, &V::bitrate_buffer, 30000000);
         setBoth(r, &V::vbv_initial, 45000);
         setBoth(r, &V::vbv_target, 45000);
         setBoth(r, &V::vbv_initial, 3754);
     },
     false},
    {"hrd.initial-short", "exactly one frame time at 25 frames/s", 0,
     [](Record& r) {
         setFrameRate(r, 25);
         setBoth(r, &V::bitrate_units, 2);
         setBoth(r, &V::bitrate_buffer, 30000000);
         setBoth(r, &V::vbv_target, 45000);
         setBoth(r, &V::vbv_initial, 3600);
     },
     false},
    {"hrd.initial-short", "less, 3753", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_units, 2);
         setBoth(r, &V::bitrate_buffer, 30000000);
         setBoth(r, &V::vbv_initial, 45000);
         setBoth(r, &V::vbv_target, 45000);
         setBoth(r, &V::vbv_initial, 3753);
     },
     true},
    {"hrd.short", "0.5 s", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_units, 1);
         setBoth(r, &V::bitrate_buffer, 30000000);
         setBoth(r, &V::vbv_initial, 15000000);
         setBoth(r, &V::vbv_target, 15000000);
         setBoth(r, &V::bitrate_buffer, 15000000);
     },
     false},
    {"hrd.short", "less", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_units, 1);
         setBoth(r, &V::bitrate_buffer, 30000000);
         setBoth(r, &V::vbv_initial, 15000000);
         setBoth(r, &V::vbv_target, 15000000);
         setBoth(r, &V::bitrate_buffer, 14999984);
         setBoth(r, &V::vbv_initial, 10000000);
         setBoth(r, &V::vbv_target, 10000000);
     },
     true},
    {"hrd.rounding", "multiples", 0, [](Record&) {}, false},
    {"hrd.rounding", "rate no multiple of 64", 0,
     [](Record& r) { setBoth(r, &V::max_bitrate, 30000001); }, true},
    {"hrd.rounding", "buffer no multiple of 16", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_units, 1);
         setBoth(r, &V::bitrate_buffer, 30000000);
         setBoth(r, &V::vbv_initial, 15000000);
         setBoth(r, &V::vbv_target, 15000000);
         setBoth(r, &V::bitrate_buffer, 30000008);
     },
     true},
    {"hrd.quantizer", "variable bitrate", 0, [](Record&) {}, false},
    {"hrd.quantizer", "constant quantizer", 0, [](Record& r) { setBoth(r, &V::bitrate_mode, 1); },
     true},
    {"hrd.quantizer", "average quantizer", 0, [](Record& r) { setBoth(r, &V::bitrate_mode, 3); },
     true},
    {"hrd.quantizer", "constant quantizer without HRD", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_mode, 1);
         setBoth(r, &V::hrd_mode, 0);
     },
     false},
    {"rate.unlimited", "unset without HRD", 0,
     [](Record& r) {
         setBoth(r, &V::max_bitrate, 0);
         setBoth(r, &V::hrd_mode, 0);
     },
     true},
    {"rate.unlimited", "given, which has no effect without HRD", 0,
     [](Record& r) { setBoth(r, &V::hrd_mode, 0); }, true},
    {"rate.unlimited", "HRD", 0, [](Record&) {}, false},
    {"rate.unlimited", "constant bitrate", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_mode, 0);
         setBoth(r, &V::hrd_mode, 0);
     },
     false},
    {"quantizer.order", "equal", 0,
     [](Record& r) {
         setBoth(r, &V::quant_min, 30);
         setBoth(r, &V::quant_max, 30);
     },
     false},
    {"quantizer.order", "reversed", 0,
     [](Record& r) {
         setBoth(r, &V::quant_min, 31);
         setBoth(r, &V::quant_max, 30);
     },
     true},
    {"quantizer.i", "at the minimum", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_mode, 1);
         setBoth(r, &V::quant_i, 2);
     },
     false},
    {"quantizer.i", "below the minimum", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_mode, 1);
         setBoth(r, &V::quant_i, 1);
     },
     true},
    {"quantizer.i", "above the maximum", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_mode, 3);
         setBoth(r, &V::quant_i, 41);
         setBoth(r, &V::quant_max, 40);
     },
     true},
    {"quantizer.i", "below where the rate rules", 0, [](Record& r) { setBoth(r, &V::quant_i, 1); },
     false},
    {"quantizer.p", "at the maximum", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_mode, 1);
         setBoth(r, &V::quant_p, 51);
     },
     false},
    {"quantizer.p", "below the minimum", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_mode, 1);
         setBoth(r, &V::quant_p, 1);
     },
     true},
    {"quantizer.p", "below, I-frames only", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_mode, 1);
         setBoth(r, &V::quant_p, 1);
         setBoth(r, &V::i_interval, 1);
     },
     false},
    {"quantizer.b", "at the minimum", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_mode, 1);
         setBoth(r, &V::quant_b, 2);
     },
     false},
    {"quantizer.b", "below the minimum", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_mode, 1);
         setBoth(r, &V::quant_b, 1);
     },
     true},
    {"quantizer.b", "below, no B-frames", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_mode, 1);
         setBoth(r, &V::quant_b, 1);
         setBoth(r, &V::ref_distance, 1);
     },
     false},
    {"summary.stream", "one view", 0, [](Record&) {}, true},
    {"summary.stream", "two views", 2, [](Record&) {}, false},
    {"summary.stream-views", "two views", 2, [](Record&) {}, true},
    {"summary.stream-views", "one view", 0, [](Record&) {}, false},
    {"summary.dpb-views", "3 of 3 in each view", 2, [](Record&) {}, true},
    {"summary.dpb-views", "4 of 4 and 3 of 3", 2, [](Record& r) { r.views[0].num_ref_frames = 4; },
     true},
    {"summary.dpb-views", "4 in each view do not fit", 2,
     [](Record& r) { setBoth(r, &V::num_ref_frames, 4); }, false},
    {"summary.dpb-views", "one view", 0, [](Record&) {}, false},
    {"summary.dpb", "fits", 0, [](Record&) {}, true},
    {"summary.dpb", "does not fit", 0, [](Record& r) { setBoth(r, &V::num_ref_frames, 5); }, false},
    {"summary.bitrate", "fits", 2, [](Record&) {}, true},
    {"summary.bitrate", "does not fit", 2, [](Record& r) { r.views[0].max_bitrate = 60000064; },
     false},
    {"summary.bitrate-disc", "60 of 60 Mbit/s", 3,
     [](Record& r) { setBoth(r, &V::max_bitrate, 30000000); }, true},
    {"summary.bitrate-disc", "no disc", 2, [](Record&) {}, false},
    {"summary.bitrate-unknown", "constant quantizer in one view", 2,
     [](Record& r) { r.views[1].bitrate_mode = 1; }, true},
    {"summary.bitrate-unknown", "rates only", 2, [](Record&) {}, false},
    {"summary.buffer", "HRD", 0, [](Record&) {}, true},
    {"summary.buffer", "no HRD", 0, [](Record& r) { setBoth(r, &V::hrd_mode, 0); }, false},
    {"summary.buffer", "a constant rate of 0, whatever the maximum", 0,
     [](Record& r) {
         setBoth(r, &V::bitrate_mode, 0);
         setBoth(r, &V::bitrate, 0);
     },
     false},
};

} // namespace

std::span<const RuleCase> rateCases()
{
    return rows;
}
