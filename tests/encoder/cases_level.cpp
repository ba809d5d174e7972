// Limits of level 4.1 and its neighbours; tst_encoder_levels has every level.

#include "cases.h"

namespace
{

using Record = KvMvcSettings;
using encoder::setBoth;
using encoder::setFrameRate;

/// Four views of 1280 x 720 at 15 frames/s, which level 3.1 takes (two times 108000 macroblocks/s),
/// with slices of the base view and of each other one.
///
/// H.10.2.1 k: 2 * 3600 / 60 slices in the first access unit. H.10.2.1 s, u: 2 * 384 * 3600 / 4
/// bytes in the first, 2 * 384 * 108000 / 15 / 4 in the others.
template <int ofBase, int ofOthers>
void fourViews(Record& r)
{
    r.num_views = 4;
    setBoth(r, &V::level, 31);
    setBoth(r, &V::width, 1280);
    setBoth(r, &V::height, 720);
    setFrameRate(r, 15);
    setBoth(r, &V::num_slices, ofOthers);
    r.views[0].num_slices = ofBase;
}

constexpr RuleCase rows[] = {
    {"level.picture", "8160 at level 4.1", 0, [](Record&) {}, false},
    {"level.picture", "8160 at level 3.2", 0, [](Record& r) { setBoth(r, &V::level, 32); }, true},
    {"level.side", "256 x 16", 0, [](Record& r) { setBoth(r, &V::width, 4096); setBoth(r, &V::height, 256); }, false},
    {"level.side", "257 x 16", 0, [](Record& r) { setBoth(r, &V::width, 4112); setBoth(r, &V::height, 256); }, true},
    {"level.side", "16 x 257", 0, [](Record& r) { setBoth(r, &V::width, 256); setBoth(r, &V::height, 4112); }, true},
    {"level.interlace", "at 4.1", 0, [](Record& r) { setBoth(r, &V::interlace_mode, 1); }, false},
    {"level.interlace", "at 4.2", 0, [](Record& r) { setBoth(r, &V::interlace_mode, 1); setBoth(r, &V::level, 42); }, true},
    {"level.interlace", "MBAFF of two views at 4.2", 2, [](Record& r) { setBoth(r, &V::interlace_mode, 2); setBoth(r, &V::level, 42); }, true},
    {"level.dpb", "4 of 4", 0, [](Record&) {}, false},
    {"level.dpb", "5 of 4", 0, [](Record& r) { setBoth(r, &V::num_ref_frames, 5); }, true},
    {"level.slices-most", "59 of a thin picture", 0, [](Record& r) { setBoth(r, &V::width, 16); setBoth(r, &V::height, 960); setBoth(r, &V::num_slices, 59); }, false},
    {"level.slices-most", "60 of a thin picture", 0, [](Record& r) { setBoth(r, &V::width, 16); setBoth(r, &V::height, 960); setBoth(r, &V::num_slices, 60); }, true},
    {"level.slices-most", "60 of Baseline", 0, [](Record& r) { setBoth(r, &V::profile, 0); setBoth(r, &V::width, 16); setBoth(r, &V::height, 960); setBoth(r, &V::num_slices, 60); }, false},
    {"level.slices-most", "29 of a thin field", 0, [](Record& r) { setBoth(r, &V::interlace_mode, 1); setBoth(r, &V::width, 16); setBoth(r, &V::height, 960); setBoth(r, &V::num_slices, 29); }, false},
    {"level.slices-most", "30 of a thin field", 0, [](Record& r) { setBoth(r, &V::interlace_mode, 1); setBoth(r, &V::width, 16); setBoth(r, &V::height, 960); setBoth(r, &V::num_slices, 30); }, true},
    {"level.vectors", "64 at level 1", 0, [](Record& r) { setBoth(r, &V::level, 10); setBoth(r, &V::width, 176); setBoth(r, &V::height, 144); }, false},
    {"level.vectors", "65 in view 1 at level 1", 2, [](Record& r) { setBoth(r, &V::level, 10); setBoth(r, &V::width, 176); setBoth(r, &V::height, 144); r.views[1].motion_search = 65; }, true},
    {"level.vectors", "65 at level 1", 0, [](Record& r) { setBoth(r, &V::level, 10); setBoth(r, &V::width, 176); setBoth(r, &V::height, 144); setBoth(r, &V::motion_search, 65); }, true},
    {"level.code", "1.6", 0, [](Record& r) { setBoth(r, &V::level, 16); }, true},
    {"level.code", "0", 0, [](Record& r) { setBoth(r, &V::level, 0); }, true},
    {"level.code", "6", 0, [](Record& r) { setBoth(r, &V::level, 60); }, true},
    {"level.code", "negative", 0, [](Record& r) { setBoth(r, &V::level, -100); }, true},
    {"level.code", "Auto", 0, [](Record& r) { setBoth(r, &V::level, 100); }, false},
    {"level.code", "4.1", 0, [](Record&) {  }, false},
    {"level.rate", "1920 x 1080 at 30", 0, [](Record& r) { setFrameRate(r, 30); }, false},
    {"level.rate", "1920 x 1080 at 50", 0, [](Record& r) { setFrameRate(r, 50); }, true},
    {"level.rate", "23.976 at level 4 with 2:3 counts as 29.97", 0, [](Record& r) { setBoth(r, &V::level, 40);setBoth(r, &V::num_slices, 1);setBoth(r, &V::multi_slice, 0);setBoth(r, &V::bitrate, 10000000);setBoth(r, &V::pulldown, 1); }, false},
    {"level.rate", "25 with 2:3 counts as 31.25", 0, [](Record& r) { setBoth(r, &V::pulldown, 1);setFrameRate(r, 25); }, true},
    {"level.rate", "25 with 3:2 progressive counts as 31.25", 0, [](Record& r) { setBoth(r, &V::pulldown, 5);setFrameRate(r, 25); }, true},
    {"level.rate", "30 with 2:2 counts as 30", 0, [](Record& r) { setBoth(r, &V::pulldown, 7);setFrameRate(r, 30); }, false},
    {"level.rate-views", "two views at 29.97", 2, [](Record& r) { setFrameRate(r, 30000.0 / 1001); }, false},
    {"level.rate-views", "two views at 50", 2, [](Record& r) { setFrameRate(r, 50); }, true},
    {"level.rate-views", "three views at 23.976", 1, [](Record& r) { r.num_views = 3; }, true},
    {"level.rate-views", "three views at 23.976, level 4.2", 1, [](Record& r) { r.num_views = 3;setBoth(r, &V::level, 42); }, false},
    {"level.frame-rate", "172", 0, [](Record& r) { setBoth(r, &V::width, 352);setBoth(r, &V::height, 288);setFrameRate(r, 172); }, false},
    {"level.frame-rate", "172.1", 0, [](Record& r) { setBoth(r, &V::width, 352);setBoth(r, &V::height, 288);setFrameRate(r, 172.1); }, true},
    {"level.dpb-views", "8 of 8 without B-frames", 2, [](Record& r) { setBoth(r, &V::num_ref_frames, 4);setBoth(r, &V::ref_distance, 1); }, false},
    {"level.dpb-views", "8 of 8 with B-frames", 2, [](Record& r) { setBoth(r, &V::num_ref_frames, 4); }, false},
    {"level.dpb-views", "10 of 8", 2, [](Record& r) { setBoth(r, &V::num_ref_frames, 5); }, true},
    {"level.dpb-views", "9 of 8, uneven", 2, [](Record& r) { r.views[0].num_ref_frames = 5;r.views[1].num_ref_frames = 4; }, true},
    {"level.dpb-views", "3 each of 3 views", 1, [](Record& r) { r.num_views = 3;setBoth(r, &V::level, 42); }, true},
    {"level.dpb-views", "2 each of 4 views", 1, [](Record& r) { r.num_views = 4;setBoth(r, &V::level, 42);setBoth(r, &V::num_ref_frames, 2); }, false},
    {"level.dpb-views-b", "3 in each view, and a B-frame", 2, [](Record&) {  }, false},
    {"level.dpb-views-b", "4 in each view, and a B-frame", 2, [](Record& r) { setBoth(r, &V::num_ref_frames, 4); }, true},
    {"level.dpb-views-b", "4 and 3, and a B-frame", 2, [](Record& r) { r.views[0].num_ref_frames = 4; }, false},
    {"level.dpb-views-b", "4 in each view, B-frames are references", 2, [](Record& r) { setBoth(r, &V::num_ref_frames, 4);setBoth(r, &V::reference_b, 1); }, false},
    {"level.dpb-views-b", "4 in each view, the upper B-frames of a pyramid are none", 2, [](Record& r) { setBoth(r, &V::num_ref_frames, 4);setBoth(r, &V::reference_b, 1);setBoth(r, &V::pyramid_b, 1); }, true},
    {"level.dpb-views-b", "4 in each view, a single B-frame is none", 2, [](Record& r) { setBoth(r, &V::num_ref_frames, 4);setBoth(r, &V::reference_b, 1);setBoth(r, &V::ref_distance, 2); }, true},
    {"level.dpb-views-b", "4 in each view, no B-frames", 2, [](Record& r) { setBoth(r, &V::num_ref_frames, 4);setBoth(r, &V::ref_distance, 1); }, false},
    {"level.dpb-views-b", "4 in each view, I-frames only", 2, [](Record& r) { setBoth(r, &V::num_ref_frames, 4);setBoth(r, &V::i_interval, 1); }, false},
    {"level.dpb-views-b", "4 of one view", 0, [](Record& r) { setBoth(r, &V::num_ref_frames, 4); }, false},
    {"level.dpb-views-b", "2 each of 4 views", 1, [](Record& r) { r.num_views = 4;setBoth(r, &V::level, 42);setBoth(r, &V::num_ref_frames, 2); }, true},
    {"level.dpb-half", "4 of 8", 2, [](Record& r) { r.views[0].num_ref_frames = 4; }, false},
    {"level.dpb-half", "5 and 2 of 8", 2, [](Record& r) { r.views[0].num_ref_frames = 5;r.views[1].num_ref_frames = 2; }, true},
    {"level.dpb-half", "2 and 5 of 8", 2, [](Record& r) { r.views[0].num_ref_frames = 2;r.views[1].num_ref_frames = 5; }, true},
    {"level.slices-most-views", "four views of 30 in 1280 x 720 at 15, level 3.1", 1, fourViews<30, 30>, false},
    {"level.slices-most-views", "one slice more in the base view", 1, fourViews<31, 30>, true},
    {"level.slices-most-views", "four views of 45", 1, fourViews<45, 45>, true},
    {"level.slices-most-views", "two views of 45", 1, [](Record& r) { fourViews<45, 45>(r); r.num_views = 2; }, false},
    {"level.slices-most", "45 in each of four views", 1, fourViews<45, 45>, false},
    {"level.size-i-views", "691200 bytes of four views", 1, [](Record& r) { fourViews<5, 5>(r); setBoth(r, &V::frame_size_i, 172800); }, false},
    {"level.size-i-views", "691201 bytes of four views", 1, [](Record& r) { fourViews<5, 5>(r); setBoth(r, &V::frame_size_i, 172800); r.views[0].frame_size_i = 172801; }, true},
    {"level.size-i-views", "more in a constant quantizer mode", 1, [](Record& r) { fourViews<5, 5>(r); setBoth(r, &V::frame_size_i, 172800); r.views[0].frame_size_i = 172801; r.views[0].bitrate_mode = 1; }, false},
    {"level.size-p-views", "1382400 bytes of four views", 1, [](Record& r) { fourViews<5, 5>(r); setBoth(r, &V::frame_size_p, 345600); }, false},
    {"level.size-p-views", "1382401 bytes of four views", 1, [](Record& r) { fourViews<5, 5>(r); setBoth(r, &V::frame_size_p, 345600); r.views[0].frame_size_p = 345601; }, true},
    {"level.size-p-views", "two views", 1, [](Record& r) { fourViews<5, 5>(r); r.num_views = 2; setBoth(r, &V::frame_size_p, 691200); }, false},
    {"level.size-p-views", "one view too large by itself", 1, [](Record& r) { fourViews<5, 5>(r); setBoth(r, &V::frame_size_p, 691201); }, false},
    {"level.size-b-views", "1382400 bytes of four views", 1, [](Record& r) { fourViews<5, 5>(r); setBoth(r, &V::frame_size_b, 345600); }, false},
    {"level.size-b-views", "1382401 bytes of four views", 1, [](Record& r) { fourViews<5, 5>(r); setBoth(r, &V::frame_size_b, 345600); r.views[0].frame_size_b = 345601; }, true},
    {"level.size-br-views", "1382400 bytes of four views", 1, [](Record& r) { fourViews<5, 5>(r); setBoth(r, &V::frame_size_bref, 345600); }, false},
    {"level.size-br-views", "1382401 bytes of four views", 1, [](Record& r) { fourViews<5, 5>(r); setBoth(r, &V::frame_size_bref, 345600); r.views[0].frame_size_bref = 345601; }, true},
    {"level.bitrate", "Main at 60 Mbit/s", 0, [](Record& r) { setBoth(r, &V::profile, 1);r.views[0].max_bitrate = 60000000; }, false},
    {"level.bitrate", "Main above", 0, [](Record& r) { setBoth(r, &V::profile, 1);r.views[0].max_bitrate = 60000001; }, true},
    {"level.bitrate", "Main base view of two above", 2, [](Record& r) { setBoth(r, &V::profile, 1);r.views[0].max_bitrate = 60000001;r.views[1].max_bitrate = 10000000; }, true},
    {"level.bitrate", "constant quantizer above", 0, [](Record& r) { setBoth(r, &V::bitrate_mode, 1);r.views[0].max_bitrate = 200000000; }, false},
    {"level.bitrate", "maximum above without HRD", 0, [](Record& r) { setBoth(r, &V::max_bitrate, 75000001);setBoth(r, &V::hrd_mode, 0); }, false},
    {"level.bitrate", "target above without HRD", 0, [](Record& r) { setBoth(r, &V::bitrate, 75000001);setBoth(r, &V::max_bitrate, 75000001);setBoth(r, &V::hrd_mode, 0); }, true},
    {"level.bitrate-views", "75 Mbit/s together", 2, [](Record& r) { r.views[0].max_bitrate = 60000000; }, false},
    {"level.bitrate-views", "more together", 2, [](Record& r) { r.views[0].max_bitrate = 60000001; }, true},
    {"level.bitrate-views", "third view counts as the second", 1, [](Record& r) { r.num_views = 3;setBoth(r, &V::level, 42);r.views[0].max_bitrate = 45000001; }, true},
    {"level.bitrate-vcl", "62.5 Mbit/s", 2, [](Record& r) { r.views[0].max_bitrate = 47500000; }, false},
    {"level.bitrate-vcl", "more", 2, [](Record& r) { r.views[0].max_bitrate = 47500001; }, true},
    {"level.buffer", "93.75 Mbit", 0, [](Record& r) { setBoth(r, &V::bitrate_buffer, 11718750); }, false},
    {"level.buffer", "more", 0, [](Record& r) { setBoth(r, &V::bitrate_buffer, 11718751); }, true},
    {"level.buffer", "more without HRD", 0, [](Record& r) { setBoth(r, &V::bitrate_buffer, 11718751);setBoth(r, &V::hrd_mode, 0); }, false},
    {"level.buffer-views", "93.75 Mbit together", 2, [](Record& r) { r.views[0].bitrate_buffer = 9843750; }, false},
    {"level.buffer-views", "more together", 2, [](Record& r) { r.views[0].bitrate_buffer = 9843751; }, true},
    {"level.buffer-vcl", "78.125 Mbit", 2, [](Record& r) { r.views[0].bitrate_buffer = 7890625; }, false},
    {"level.buffer-vcl", "more", 2, [](Record& r) { r.views[0].bitrate_buffer = 7890626; }, true},
    {"level.slices-least", "4 of two views", 2, [](Record&) {  }, false},
    {"level.slices-least", "3 of two views", 2, [](Record& r) { setBoth(r, &V::num_slices, 3); }, true},
    {"level.slices-least", "3 in view 1", 2, [](Record& r) { r.views[1].num_slices = 3; }, true},
    {"level.slices-least", "1 of one view", 0, [](Record& r) { setBoth(r, &V::num_slices, 1); }, false},
    {"level.slices-least", "3 of High 10", 0, [](Record& r) { setBoth(r, &V::profile, 4);setBoth(r, &V::num_slices, 3); }, true},
    {"level.slices-least", "4 of High 422", 0, [](Record& r) { setBoth(r, &V::profile, 5);setBoth(r, &V::num_slices, 4); }, false},
    {"level.slices-least", "2 of field pictures", 2, [](Record& r) { setBoth(r, &V::num_slices, 2);setBoth(r, &V::interlace_mode, 1); }, false},
    {"level.slices-least", "1 of field pictures", 2, [](Record& r) { setBoth(r, &V::num_slices, 1);setBoth(r, &V::interlace_mode, 1); }, true},
    {"level.slices-least", "5 of MBAFF pairs", 2, [](Record& r) { setBoth(r, &V::num_slices, 5);setBoth(r, &V::interlace_mode, 2); }, false},
    {"level.slices-least", "4 of MBAFF pairs", 2, [](Record& r) { setBoth(r, &V::num_slices, 4);setBoth(r, &V::interlace_mode, 2); }, true},
    {"level.slices-least", "2 of 1280 x 720 at 4.1", 2, [](Record& r) { setBoth(r, &V::width, 1280);setBoth(r, &V::height, 720);setBoth(r, &V::num_slices, 2); }, false},
    {"level.slices-least", "1 of 1280 x 720 at 4.1", 2, [](Record& r) { setBoth(r, &V::width, 1280);setBoth(r, &V::height, 720);setBoth(r, &V::num_slices, 1); }, true},
    {"level.slices-least", "5 of 1280 x 720 at 3.1", 2, [](Record& r) { setBoth(r, &V::level, 31);setBoth(r, &V::width, 1280);setBoth(r, &V::height, 720);setBoth(r, &V::num_slices, 5); }, false},
    {"level.slices-least", "4 of 1280 x 720 at 3.1", 2, [](Record& r) { setBoth(r, &V::level, 31);setBoth(r, &V::width, 1280);setBoth(r, &V::height, 720);setBoth(r, &V::num_slices, 4); }, true},
    {"level.slices-least", "2 at level 5", 2, [](Record& r) { setBoth(r, &V::level, 50);setBoth(r, &V::num_slices, 2); }, false},
    {"level.slices-least", "1 at level 5", 2, [](Record& r) { setBoth(r, &V::level, 50);setBoth(r, &V::num_slices, 1); }, true},
    {"level.slices-least", "1 at level 5.1", 2, [](Record& r) { setBoth(r, &V::level, 51);setBoth(r, &V::num_slices, 1); }, false},
    {"level.slices-least", "1 of 720 x 576", 2, [](Record& r) { setBoth(r, &V::width, 720);setBoth(r, &V::height, 576);setBoth(r, &V::num_slices, 1); }, false},
    {"level.slices-least", "1 of 1620 macroblocks at 3", 2, [](Record& r) { setBoth(r, &V::level, 30);setBoth(r, &V::bitrate, 1000000);setBoth(r, &V::max_bitrate, 1000000);setBoth(r, &V::bitrate_buffer, 125000);setFrameRate(r, 12);setBoth(r, &V::num_ref_frames, 2);setBoth(r, &V::width, 720);setBoth(r, &V::height, 576);setBoth(r, &V::num_slices, 1); }, false},
    {"level.slices-least", "1 of 1656 macroblocks at 3.1", 2, [](Record& r) { setBoth(r, &V::level, 31);setBoth(r, &V::bitrate, 1000000);setBoth(r, &V::max_bitrate, 1000000);setBoth(r, &V::bitrate_buffer, 125000);setFrameRate(r, 12);setBoth(r, &V::num_ref_frames, 2);setBoth(r, &V::width, 736);setBoth(r, &V::height, 576);setBoth(r, &V::num_slices, 1); }, true},
    {"level.slices-least", "2 of 1656 macroblocks at 3.1", 2, [](Record& r) { setBoth(r, &V::level, 31);setBoth(r, &V::bitrate, 1000000);setBoth(r, &V::max_bitrate, 1000000);setBoth(r, &V::bitrate_buffer, 125000);setFrameRate(r, 12);setBoth(r, &V::num_ref_frames, 2);setBoth(r, &V::width, 736);setBoth(r, &V::height, 576);setBoth(r, &V::num_slices, 2); }, false},
    {"level.size-p", "1968046 bytes", 0, [](Record& r) { setBoth(r, &V::frame_size_p, 1968046); }, false},
    {"level.size-p", "1968047 bytes", 0, [](Record& r) { setBoth(r, &V::frame_size_p, 1968047); }, true},
    {"level.size-p", "constant quantizer", 0, [](Record& r) { setBoth(r, &V::frame_size_p, 1968047);setBoth(r, &V::bitrate_mode, 1); }, false},
    {"level.size-p", "High 10 has no such limit", 0, [](Record& r) { setBoth(r, &V::frame_size_p, 1968047);setBoth(r, &V::profile, 4); }, false},
    {"level.size-p", "no frame rate, no limit", 0, [](Record& r) { setBoth(r, &V::frame_size_p, 1968047);setFrameRate(r, 0); }, false},
    {"level.size-p", "984023 bytes of a field", 0, [](Record& r) { setBoth(r, &V::frame_size_p, 984023);setBoth(r, &V::interlace_mode, 1); }, false},
    {"level.size-p", "984024 bytes of a field", 0, [](Record& r) { setBoth(r, &V::frame_size_p, 984024);setBoth(r, &V::interlace_mode, 1); }, true},
    {"level.size-i", "1566720 bytes", 0, [](Record& r) { setBoth(r, &V::frame_size_i, 1566720); }, false},
    {"level.size-i", "1566721 bytes", 0, [](Record& r) { setBoth(r, &V::frame_size_i, 1566721); }, true},
    {"level.size-i", "783360 bytes at level 4", 0, [](Record& r) { setBoth(r, &V::level, 40);setBoth(r, &V::frame_size_i, 783360); }, false},
    {"level.size-i", "783361 bytes at level 4", 0, [](Record& r) { setBoth(r, &V::level, 40);setBoth(r, &V::frame_size_i, 783361); }, true},
    {"level.size-b", "1968046 bytes", 0, [](Record& r) { setBoth(r, &V::frame_size_b, 1968046); }, false},
    {"level.size-b", "1968047 bytes in view 1", 2, [](Record& r) { r.views[1].frame_size_b = 1968047; }, true},
    {"level.size-br", "984023 bytes at level 4", 0, [](Record& r) { setBoth(r, &V::level, 40);setBoth(r, &V::frame_size_bref, 984023); }, false},
    {"level.size-br", "984024 bytes at level 4", 0, [](Record& r) { setBoth(r, &V::level, 40);setBoth(r, &V::frame_size_bref, 984024); }, true},
    {"level.none", "fits", 0, [](Record&) {  }, false},
    {"level.none", "interlaced beyond 4.1", 0, [](Record& r) { setBoth(r, &V::interlace_mode, 1);setBoth(r, &V::width, 3840);setBoth(r, &V::height, 2160); }, true},
    {"level.none", "Auto, too large", 0, [](Record& r) { setBoth(r, &V::level, 100);setBoth(r, &V::width, 8192);setBoth(r, &V::height, 8192); }, true},
    {"level.auto", "Auto", 0, [](Record& r) { setBoth(r, &V::level, 100); }, true},
    {"level.auto", "4.1", 0, [](Record&) {  }, false},
    {"level.lowest", "4.1", 0, [](Record&) {  }, true},
    {"level.lowest", "Auto", 0, [](Record& r) { setBoth(r, &V::level, 100); }, false},
};

} // namespace

std::span<const RuleCase> levelCases()
{
    return rows;
}
