// Blu-ray 3D.

#include "cases.h"

namespace
{

using Record = KvMvcSettings;
using encoder::setBoth;
using encoder::setFrameRate;

/// Rates that exceed level 4.1, at another level: its code.
template <int level>
void beyondLevel41(Record& r)
{
    setBoth(r, &V::level, level);
    setBoth(r, &V::max_bitrate, 40000000);
}

constexpr RuleCase rows[] = {
    {"disc.views", "2", 3, [](Record&) {}, false},
    {"disc.views", "1", 3, [](Record& r) { r.num_views = 1; }, true},
    {"disc.profile", "High", 3, [](Record&) {}, false},
    {"disc.profile", "Main", 3, [](Record& r) { setBoth(r, &V::profile, 1); }, true},
    {"disc.level", "4.1", 3, [](Record&) {}, false},
    {"disc.level", "4", 3, [](Record& r) { setBoth(r, &V::level, 40); }, true},
    {"disc.level", "4.2", 3, [](Record& r) { setBoth(r, &V::level, 42); }, true},
    {"disc.level", "Auto", 3, [](Record& r) { setBoth(r, &V::level, 100); }, false},
    {"level.fits-disc", "4.1", 3, [](Record&) {}, true},
    {"level.fits-disc", "the level is another, the settings fit", 3,
     [](Record& r) { setBoth(r, &V::level, 51); }, true},
    {"level.fits-disc", "rates beyond 4.1", 3, beyondLevel41<51>, false},
    {"level.fits-disc", "no disc", 2, [](Record&) {}, false},
    {"level.auto-disc", "Auto", 3, [](Record& r) { setBoth(r, &V::level, 100); }, true},
    {"level.auto-disc", "rates beyond 4.1", 3, beyondLevel41<100>, false},
    {"level.auto-disc", "no disc", 2, [](Record& r) { setBoth(r, &V::level, 100); }, false},
    {"level.none", "disc beyond 4.1", 3,
     [](Record& r) {
         setBoth(r, &V::level, 51);
         setBoth(r, &V::max_bitrate, 400000000);
     },
     false},
    {"level.lowest", "disc", 3, [](Record&) {}, false},
    {"level.auto", "disc", 3, [](Record& r) { setBoth(r, &V::level, 100); }, false},
    {"disc.level", "Auto of rates that a lower level takes", 3,
     [](Record& r) {
         setBoth(r, &V::level, 100);
         setBoth(r, &V::bitrate, 4000000);
         setBoth(r, &V::max_bitrate, 8000000);
         setBoth(r, &V::bitrate_buffer, 1000000);
     },
     false},
    {"disc.format", "1920 x 1080 at 24", 3, [](Record& r) { setFrameRate(r, 24); }, false},
    {"disc.format", "1920 x 1080 at 25", 3, [](Record& r) { setFrameRate(r, 25); }, true},
    {"disc.format", "1920 x 1080 at 25 interlaced", 3,
     [](Record& r) {
         setFrameRate(r, 25);
         setBoth(r, &V::interlace_mode, 1);
     },
     false},
    {"disc.format", "1280 x 720 at 50", 3,
     [](Record& r) {
         setBoth(r, &V::width, 1280);
         setBoth(r, &V::height, 720);
         setFrameRate(r, 50);
     },
     false},
    {"disc.format", "1280 x 720 at 60", 3,
     [](Record& r) {
         setBoth(r, &V::width, 1280);
         setBoth(r, &V::height, 720);
         setFrameRate(r, 60);
     },
     true},
    {"disc.format", "1918 x 1080", 3, [](Record& r) { setBoth(r, &V::width, 1918); }, true},
    {"disc.format-3d", "23.976", 3, [](Record&) {}, false},
    {"disc.format-3d", "24", 3, [](Record& r) { setFrameRate(r, 24); }, true},
    {"disc.format-3d", "1280 x 720 at 50", 3,
     [](Record& r) {
         setBoth(r, &V::width, 1280);
         setBoth(r, &V::height, 720);
         setFrameRate(r, 50);
     },
     false},
    {"disc.format-3d", "1280 x 720 at 59.94", 3,
     [](Record& r) {
         setBoth(r, &V::width, 1280);
         setBoth(r, &V::height, 720);
         setFrameRate(r, 60000.0 / 1001);
     },
     false},
    {"disc.format-3d", "1280 x 720 at 24", 3,
     [](Record& r) {
         setBoth(r, &V::width, 1280);
         setBoth(r, &V::height, 720);
         setFrameRate(r, 24);
     },
     true},
    {"disc.format-3d", "1920 x 1080 at 25, interlaced", 3,
     [](Record& r) {
         setFrameRate(r, 25);
         setBoth(r, &V::interlace_mode, 1);
     },
     true},
    {"disc.chroma", "4:0:0", 3, [](Record& r) { setBoth(r, &V::chroma_format, 1); }, true},
    {"disc.chroma", "4:2:0", 3, [](Record&) {}, false},
    {"disc.aspect", "1:1", 3,
     [](Record& r) {
         setBoth(r, &V::display_aspect_x, -1);
         setBoth(r, &V::display_aspect_y, -1);
         setBoth(r, &V::pixel_aspect_x, 1);
         setBoth(r, &V::pixel_aspect_y, 1);
     },
     false},
    {"disc.aspect", "unspecified", 3,
     [](Record& r) {
         setBoth(r, &V::display_aspect_x, -1);
         setBoth(r, &V::display_aspect_y, -1);
         setBoth(r, &V::pixel_aspect_x, 0);
         setBoth(r, &V::pixel_aspect_y, 0);
     },
     true},
    {"disc.aspect", "1440 wide, 4:3", 3,
     [](Record& r) {
         setBoth(r, &V::width, 1440);
         setBoth(r, &V::display_aspect_x, -1);
         setBoth(r, &V::display_aspect_y, -1);
         setBoth(r, &V::pixel_aspect_x, 4);
         setBoth(r, &V::pixel_aspect_y, 3);
     },
     false},
    {"disc.aspect", "1440 wide, 1:1", 3,
     [](Record& r) {
         setBoth(r, &V::width, 1440);
         setBoth(r, &V::display_aspect_x, -1);
         setBoth(r, &V::display_aspect_y, -1);
         setBoth(r, &V::pixel_aspect_x, 1);
         setBoth(r, &V::pixel_aspect_y, 1);
     },
     true},
    {"disc.aspect-two", "720 x 576, 16:11", 3,
     [](Record& r) {
         setBoth(r, &V::width, 720);
         setBoth(r, &V::height, 576);
         setBoth(r, &V::interlace_mode, 2);
         setFrameRate(r, 25);
         setBoth(r, &V::display_aspect_x, -1);
         setBoth(r, &V::display_aspect_y, -1);
         setBoth(r, &V::pixel_aspect_x, 16);
         setBoth(r, &V::pixel_aspect_y, 11);
     },
     false},
    {"disc.aspect-two", "720 x 576, 12:11", 3,
     [](Record& r) {
         setBoth(r, &V::width, 720);
         setBoth(r, &V::height, 576);
         setBoth(r, &V::interlace_mode, 2);
         setFrameRate(r, 25);
         setBoth(r, &V::display_aspect_x, -1);
         setBoth(r, &V::display_aspect_y, -1);
         setBoth(r, &V::pixel_aspect_x, 12);
         setBoth(r, &V::pixel_aspect_y, 11);
     },
     false},
    {"disc.aspect-two", "720 x 576, 64:45", 3,
     [](Record& r) {
         setBoth(r, &V::width, 720);
         setBoth(r, &V::height, 576);
         setBoth(r, &V::interlace_mode, 2);
         setFrameRate(r, 25);
     },
     true},
    {"disc.gop", "24 at 23.976", 3, [](Record&) {}, false},
    {"disc.gop", "25 at 23.976", 3, [](Record& r) { setBoth(r, &V::i_interval, 25); }, true},
    {"disc.gop", "only the first", 3, [](Record& r) { setBoth(r, &V::i_interval, 0); }, true},
    {"disc.gop", "60 at 59.94", 3,
     [](Record& r) {
         setBoth(r, &V::width, 1280);
         setBoth(r, &V::height, 720);
         setFrameRate(r, 60000.0 / 1001);
         setBoth(r, &V::i_interval, 60);
     },
     false},
    {"disc.gop", "61 at 59.94", 3,
     [](Record& r) {
         setBoth(r, &V::width, 1280);
         setBoth(r, &V::height, 720);
         setFrameRate(r, 60000.0 / 1001);
         setBoth(r, &V::i_interval, 61);
     },
     true},
    {"disc.idr", "every I-frame", 3, [](Record&) {}, false},
    {"disc.idr", "the first I-frame", 3, [](Record& r) { setBoth(r, &V::idr_marker, 0); }, true},
    {"disc.idr", "the first of nothing but I-frames", 3,
     [](Record& r) {
         setBoth(r, &V::idr_marker, 0);
         setBoth(r, &V::i_interval, 1);
     },
     false},
    {"disc.references", "4", 3, [](Record& r) { setBoth(r, &V::num_ref_frames, 4); }, false},
    {"disc.references", "5, which the level has no room for", 3,
     [](Record& r) { setBoth(r, &V::num_ref_frames, 5); }, false},
    {"disc.references", "5 of 1440 x 1080", 3,
     [](Record& r) {
         setBoth(r, &V::width, 1440);
         setBoth(r, &V::ref_distance, 1);
         setBoth(r, &V::num_ref_frames, 5);
     },
     true},
    {"disc.references", "4 of 1440 x 1080", 3,
     [](Record& r) {
         setBoth(r, &V::width, 1440);
         setBoth(r, &V::ref_distance, 1);
         setBoth(r, &V::num_ref_frames, 4);
     },
     false},
    {"disc.references", "5 and 2, which the level refuses", 3,
     [](Record& r) {
         r.views[0].num_ref_frames = 5;
         r.views[1].num_ref_frames = 2;
     },
     false},
    {"disc.references", "6 at 720 lines", 3,
     [](Record& r) {
         setBoth(r, &V::width, 1280);
         setBoth(r, &V::height, 720);
         setBoth(r, &V::num_ref_frames, 6);
     },
     false},
    {"disc.references", "7 at 720 lines", 3,
     [](Record& r) {
         setBoth(r, &V::width, 1280);
         setBoth(r, &V::height, 720);
         setBoth(r, &V::num_ref_frames, 7);
     },
     true},
    {"disc.references-spare", "3", 3, [](Record&) {}, false},
    {"disc.references-spare", "4", 3,
     [](Record& r) {
         setBoth(r, &V::num_ref_frames, 4);
         setBoth(r, &V::ref_distance, 1);
     },
     true},
    {"disc.references-spare", "4, which the level has no room for", 3,
     [](Record& r) { setBoth(r, &V::num_ref_frames, 4); }, false},
    {"disc.reference-b", "plain references", 3, [](Record& r) { setBoth(r, &V::reference_b, 1); },
     true},
    {"disc.reference-b", "in a pyramid", 3,
     [](Record& r) {
         setBoth(r, &V::reference_b, 1);
         setBoth(r, &V::pyramid_b, 1);
     },
     false},
    {"disc.weighted-p", "on", 3, [](Record& r) { setBoth(r, &V::weighted_p, 1); }, true},
    {"disc.weighted-p", "off", 3, [](Record&) {}, false},
    {"disc.pulldown", "2:3", 3, [](Record& r) { setBoth(r, &V::pulldown, 1); }, true},
    {"disc.pulldown", "off", 3, [](Record&) {}, false},
    {"disc.slices", "4", 3, [](Record&) {}, false},
    {"disc.slices", "3, which the level refuses", 3,
     [](Record& r) { setBoth(r, &V::num_slices, 3); }, false},
    {"disc.slices", "3 of 1280 x 720", 3,
     [](Record& r) {
         setBoth(r, &V::width, 1280);
         setBoth(r, &V::height, 720);
         setBoth(r, &V::num_slices, 3);
     },
     true},
    {"disc.bitrate", "40 Mbit/s", 3, [](Record& r) { r.views[0].max_bitrate = 40000000; }, false},
    {"disc.bitrate", "more in the base view", 3,
     [](Record& r) { r.views[0].max_bitrate = 40000001; }, true},
    {"disc.bitrate", "more in view 1", 3,
     [](Record& r) {
         r.views[1].max_bitrate = 40000001;
         r.views[0].max_bitrate = 1000000;
         r.views[0].bitrate = 1000000;
     },
     true},
    {"disc.bitrate-both", "60 Mbit/s", 3, [](Record& r) { setBoth(r, &V::max_bitrate, 30000000); },
     false},
    {"disc.bitrate-both", "more", 3,
     [](Record& r) {
         r.views[0].max_bitrate = 30000001;
         r.views[1].max_bitrate = 30000000;
     },
     true},
    {"disc.bitrate-mode", "constant bitrate", 3, [](Record& r) { setBoth(r, &V::bitrate_mode, 0); },
     false},
    {"disc.bitrate-mode", "constant quantizer", 3,
     [](Record& r) { setBoth(r, &V::bitrate_mode, 1); }, true},
    {"disc.bitrate-mode", "average quantizer in view 1", 3,
     [](Record& r) { r.views[1].bitrate_mode = 3; }, true},
    {"disc.hrd", "off in the base view", 3, [](Record& r) { r.views[0].hrd_mode = 0; }, true},
    {"disc.hrd", "off in view 1", 3, [](Record& r) { r.views[1].hrd_mode = 0; }, false},
    {"disc.hrd-other", "off in view 1", 3, [](Record& r) { r.views[1].hrd_mode = 0; }, true},
    {"disc.hrd-other", "on", 3, [](Record&) {}, false},
    {"disc.buffer", "30 Mbit", 3, [](Record&) {}, false},
    {"disc.buffer", "more", 3, [](Record& r) { r.views[0].bitrate_buffer = 3750001; }, true},
    {"disc.buffer-other", "30 Mbit", 3, [](Record& r) { r.views[1].bitrate_buffer = 3750000; },
     false},
    {"disc.buffer-other", "more", 3, [](Record& r) { r.views[1].bitrate_buffer = 3750001; }, true},
};

} // namespace

std::span<const RuleCase> discCases()
{
    return rows;
}
