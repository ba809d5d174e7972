// What views have in common, and the multiview profiles.

#include "cases.h"

namespace
{

using Record = KvMvcSettings;
using encoder::setBoth;
using encoder::setFrameRate;

void fourOfThePicture(Record& r)
{
    r.views[1].width = 1280;
    r.views[1].height = 720;
    r.views[1].frame_rate = 50;
    r.views[1].field_order = 1;
}

void fiveOfThePicture(Record& r)
{
    fourOfThePicture(r);
    r.views[1].pulldown = 1;
}

void fourOfTheGop(Record& r)
{
    r.views[1].i_interval = 12;
    r.views[1].force_i = 2;
    r.views[1].idr_marker = 0;
    r.views[1].scene_detection = 0;
}

constexpr RuleCase rows[] = {
    // clang-format off
    {"views.video-type", "differs", 2, [](Record& r) { r.views[1].video_type = 1; }, true},
    {"views.video-type", "same", 2, [](Record&) {}, false},
    {"views.profile", "differs", 2, [](Record& r) { r.views[1].profile = 1; }, true},
    {"views.profile", "same", 2, [](Record&) {}, false},
    {"views.level", "differs", 2, [](Record& r) { r.views[1].level = 51; }, true},
    {"views.level", "same", 2, [](Record&) {}, false},
    {"views.width", "differs", 2, [](Record& r) { r.views[1].width = 1280; }, true},
    {"views.width", "same", 2, [](Record&) {}, false},
    {"views.height", "differs", 2, [](Record& r) { r.views[1].height = 720; }, true},
    {"views.height", "same", 2, [](Record&) {}, false},
    {"views.frame-rate", "differs", 2, [](Record& r) { r.views[1].frame_rate = 25; }, true},
    {"views.frame-rate", "same", 2, [](Record&) {}, false},
    {"views.interlace-mode", "differs", 2, [](Record& r) { r.views[1].interlace_mode = 1; }, true},
    {"views.interlace-mode", "same", 2, [](Record&) {}, false},
    {"views.field-order", "differs", 2, [](Record& r) { r.views[1].field_order = 1; }, true},
    {"views.field-order", "same", 2, [](Record&) {}, false},
    {"views.pulldown", "differs", 2, [](Record& r) { r.views[1].pulldown = 1; }, true},
    {"views.pulldown", "same", 2, [](Record&) {}, false},
    {"views.display-aspect-x", "differs", 2, [](Record& r) { r.views[1].display_aspect_x = 4; }, true},
    {"views.display-aspect-x", "same", 2, [](Record&) {}, false},
    {"views.display-aspect-y", "differs", 2, [](Record& r) { r.views[1].display_aspect_y = 3; }, true},
    {"views.display-aspect-y", "same", 2, [](Record&) {}, false},
    {"views.pixel-aspect-x", "differs", 2, [](Record& r) { r.views[1].pixel_aspect_x = 4; }, true},
    {"views.pixel-aspect-x", "same", 2, [](Record&) {}, false},
    {"views.pixel-aspect-y", "differs", 2, [](Record& r) { r.views[1].pixel_aspect_y = 3; }, true},
    {"views.pixel-aspect-y", "same", 2, [](Record&) {}, false},
    {"views.chroma-format", "differs", 2, [](Record& r) { r.views[1].chroma_format = 1; }, true},
    {"views.chroma-format", "same", 2, [](Record&) {}, false},
    {"views.bit-depth-luma", "differs", 2, [](Record& r) { r.views[1].bit_depth_luma = 10; }, true},
    {"views.bit-depth-luma", "same", 2, [](Record&) {}, false},
    {"views.bit-depth-chroma", "differs", 2, [](Record& r) { r.views[1].bit_depth_chroma = 10; }, true},
    {"views.bit-depth-chroma", "same", 2, [](Record&) {}, false},
    {"views.i-interval", "differs", 2, [](Record& r) { r.views[1].i_interval = 12; }, true},
    {"views.i-interval", "same", 2, [](Record&) {}, false},
    {"views.force-i", "differs", 2, [](Record& r) { r.views[1].force_i = 2; }, true},
    {"views.force-i", "same", 2, [](Record&) {}, false},
    {"views.fixed-i-position", "differs", 2, [](Record& r) { r.views[1].fixed_i_position = 1; }, true},
    {"views.fixed-i-position", "same", 2, [](Record&) {}, false},
    {"views.idr-marker", "differs", 2, [](Record& r) { r.views[1].idr_marker = 0; }, true},
    {"views.idr-marker", "same", 2, [](Record&) {}, false},
    {"views.scene-detection", "differs", 2, [](Record& r) { r.views[1].scene_detection = 0; }, true},
    {"views.scene-detection", "same", 2, [](Record&) {}, false},
    {"views.ref-distance", "differs", 2, [](Record& r) { r.views[1].ref_distance = 1; }, true},
    {"views.ref-distance", "same", 2, [](Record&) {}, false},
    {"views.adaptive-b", "differs", 2, [](Record& r) { r.views[1].adaptive_b = 1; }, true},
    {"views.adaptive-b", "same", 2, [](Record&) {}, false},
    {"views.reference-b", "differs", 2, [](Record& r) { r.views[1].reference_b = 1; }, true},
    {"views.reference-b", "same", 2, [](Record&) {}, false},
    {"views.pyramid-b", "differs", 2, [](Record& r) { r.views[1].pyramid_b = 1; }, true},
    {"views.pyramid-b", "same", 2, [](Record&) {}, false},
    // clang-format on
    {"views.width", "differs in an unused view", 0, [](Record& r) { r.views[1].width = 1280; },
     false},
    {"views.picture", "four settings differ", 2, fourOfThePicture, false},
    {"views.width", "four settings differ", 2, fourOfThePicture, true},
    {"views.picture", "five settings differ", 2, fiveOfThePicture, true},
    {"views.width", "five settings differ", 2, fiveOfThePicture, false},
    {"views.gop", "four settings differ", 2, fourOfTheGop, false},
    {"views.gop", "five settings differ", 2,
     [](Record& r) {
         fourOfTheGop(r);
         r.views[1].ref_distance = 1;
     },
     true},
    {"views.tools", "same", 2, [](Record&) {}, false},
    {"views.tools", "slices differ", 2, [](Record& r) { r.views[1].num_slices = 5; }, true},
    {"views.tools", "rates differ", 2, [](Record& r) { r.views[1].bitrate = 5000000; }, false},
    {"views.tools", "differ in an unused view", 0, [](Record& r) { r.views[1].num_slices = 5; },
     false},
    {"views.beyond", "2 views", 1, [](Record&) {}, false},
    {"views.beyond", "3 views", 1, [](Record& r) { r.num_views = 3; }, true},
    {"views.split", "two views", 2, [](Record& r) { r.split_views = 1; }, false},
    {"views.split", "one view", 0, [](Record& r) { r.split_views = 1; }, true},
    {"mvc.stereo-views", "2 views", 2, [](Record&) {}, false},
    {"mvc.stereo-views", "3 views", 2, [](Record& r) { r.num_views = 3; }, true},
    {"mvc.stereo-views", "3 views of Blu-ray", 3, [](Record& r) { r.num_views = 3; }, true},
    {"mvc.stereo-views", "4 views of Multiview High", 1, [](Record& r) { r.num_views = 4; }, false},
    {"mvc.stereo-views", "3 views without preset", 0, [](Record& r) { r.num_views = 3; }, false},
    {"mvc.frames", "Multiview High progressive", 1, [](Record&) {}, false},
    {"mvc.frames", "Multiview High interlaced", 1,
     [](Record& r) { setBoth(r, &V::interlace_mode, 1); }, true},
    {"mvc.frames", "Multiview High MBAFF", 1, [](Record& r) { setBoth(r, &V::interlace_mode, 2); },
     true},
    {"mvc.frames", "Stereo High interlaced", 2,
     [](Record& r) { setBoth(r, &V::interlace_mode, 1); }, false},
    {"mvc.frames", "2 views without preset, interlaced", 0,
     [](Record& r) {
         r.num_views = 2;
         setBoth(r, &V::interlace_mode, 1);
     },
     false},
    {"mvc.frames", "3 views without preset, interlaced", 0,
     [](Record& r) {
         r.num_views = 3;
         setBoth(r, &V::interlace_mode, 1);
     },
     true},
    {"mvc.frames", "Multiview High reduced to one view", 1,
     [](Record& r) {
         r.num_views = 1;
         setBoth(r, &V::interlace_mode, 1);
     },
     false},
    {"mvc.base-profile", "High", 2, [](Record&) {}, false},
    {"mvc.base-profile", "Main", 2, [](Record& r) { setBoth(r, &V::profile, 1); }, false},
    {"mvc.base-profile", "Baseline", 2,
     [](Record& r) {
         setBoth(r, &V::ref_distance, 1);
         setBoth(r, &V::entropy_mode, 0);
         setBoth(r, &V::profile, 0);
     },
     false},
    {"mvc.base-profile", "High 10", 2, [](Record& r) { setBoth(r, &V::profile, 4); }, true},
    {"mvc.base-profile", "High 422", 2, [](Record& r) { setBoth(r, &V::profile, 5); }, true},
    {"mvc.base-profile", "High 10 of one view", 0, [](Record& r) { setBoth(r, &V::profile, 4); },
     false},
    {"mvc.chroma", "4:2:2", 2, [](Record& r) { setBoth(r, &V::chroma_format, 3); }, true},
    {"mvc.chroma", "4:0:0", 2, [](Record& r) { setBoth(r, &V::chroma_format, 1); }, false},
    {"mvc.chroma", "4:2:2 of one view", 0, [](Record& r) { setBoth(r, &V::chroma_format, 3); },
     false},
    {"mvc.depth", "10 bits of luma", 2, [](Record& r) { setBoth(r, &V::bit_depth_luma, 10); },
     true},
    {"mvc.depth", "10 bits of chroma", 2, [](Record& r) { setBoth(r, &V::bit_depth_chroma, 10); },
     true},
    {"mvc.depth", "10 bits of no chroma", 2,
     [](Record& r) {
         setBoth(r, &V::bit_depth_chroma, 10);
         setBoth(r, &V::chroma_format, 1);
     },
     false},
    {"mvc.list-size", "7 and the other view", 2,
     [](Record& r) {
         setBoth(r, &V::width, 352);
         setBoth(r, &V::height, 288);
         setBoth(r, &V::num_ref_frames, 7);
     },
     false},
    {"mvc.list-size", "8 and the other view", 2,
     [](Record& r) {
         setBoth(r, &V::width, 352);
         setBoth(r, &V::height, 288);
         setBoth(r, &V::num_ref_frames, 8);
     },
     true},
    {"mvc.list-size", "8 in the base view only", 2,
     [](Record& r) {
         setBoth(r, &V::width, 352);
         setBoth(r, &V::height, 288);
         r.views[0].num_ref_frames = 8;
         r.views[1].num_ref_frames = 7;
     },
     false},
    {"mvc.list-size", "I-frames only", 2,
     [](Record& r) {
         setBoth(r, &V::width, 352);
         setBoth(r, &V::height, 288);
         setBoth(r, &V::num_ref_frames, 8);
         setBoth(r, &V::i_interval, 1);
     },
     false},
    {"mvc.list-size", "9 in the base view", 2,
     [](Record& r) {
         setBoth(r, &V::width, 352);
         setBoth(r, &V::height, 288);
         r.views[0].num_ref_frames = 9;
         r.views[1].num_ref_frames = 1;
     },
     true},
    {"mvc.list-size", "14 of 3 views", 1,
     [](Record& r) {
         r.num_views = 3;
         setBoth(r, &V::width, 352);
         setBoth(r, &V::height, 288);
         setBoth(r, &V::num_ref_frames, 14);
     },
     false},
    {"mvc.list-size", "15 of 3 views", 1,
     [](Record& r) {
         r.num_views = 3;
         setBoth(r, &V::width, 352);
         setBoth(r, &V::height, 288);
         setBoth(r, &V::num_ref_frames, 15);
     },
     true},
    {"mvc.list-size", "16 of one view", 0,
     [](Record& r) {
         setBoth(r, &V::width, 352);
         setBoth(r, &V::height, 288);
         setBoth(r, &V::num_ref_frames, 16);
     },
     false},
};

} // namespace

std::span<const RuleCase> viewCases()
{
    return rows;
}
