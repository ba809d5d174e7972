// Picture size, aspect ratio, field order and pulldown.

#include "cases.h"

namespace
{

using Record = KvMvcSettings;
using encoder::setBoth;
using encoder::setFrameRate;

constexpr RuleCase rows[] = {
    {"picture.width", "16 wide", 0,
     [](Record& r) {
         setBoth(r, &V::width, 16);
         setBoth(r, &V::num_slices, 1);
     },
     false},
    {"picture.width", "15 wide", 0, [](Record& r) { setBoth(r, &V::width, 15); }, true},
    {"picture.width", "no width", 0, [](Record& r) { setBoth(r, &V::width, 0); }, true},
    {"picture.height", "16 high", 0,
     [](Record& r) {
         setBoth(r, &V::height, 16);
         setBoth(r, &V::num_slices, 1);
     },
     false},
    {"picture.height", "15 high", 0, [](Record& r) { setBoth(r, &V::height, 15); }, true},
    {"picture.height", "negative height", 0, [](Record& r) { setBoth(r, &V::height, INT32_MIN); },
     true},
    {"picture.width-step", "even in 4:2:0", 0, [](Record& r) { setBoth(r, &V::width, 1918); },
     false},
    {"picture.width-step", "odd in 4:2:0", 0, [](Record& r) { setBoth(r, &V::width, 1919); }, true},
    {"picture.width-step", "odd in 4:0:0", 0,
     [](Record& r) {
         setBoth(r, &V::width, 1919);
         setBoth(r, &V::chroma_format, 1);
     },
     false},
    {"picture.width-step", "odd in 4:2:2", 0,
     [](Record& r) {
         setBoth(r, &V::width, 1919);
         setBoth(r, &V::chroma_format, 3);
         setBoth(r, &V::profile, 5);
     },
     true},
    {"picture.height-step", "even in 4:2:0", 0, [](Record& r) { setBoth(r, &V::height, 1078); },
     false},
    {"picture.height-step", "odd in 4:2:0", 0, [](Record& r) { setBoth(r, &V::height, 1079); },
     true},
    {"picture.height-step", "odd in 4:2:2", 0,
     [](Record& r) {
         setBoth(r, &V::height, 1079);
         setBoth(r, &V::chroma_format, 3);
         setBoth(r, &V::profile, 5);
     },
     false},
    {"picture.height-step", "interlaced multiple of 4", 0,
     [](Record& r) {
         setBoth(r, &V::height, 1076);
         setBoth(r, &V::interlace_mode, 1);
     },
     false},
    {"picture.height-step", "interlaced even only", 0,
     [](Record& r) {
         setBoth(r, &V::height, 1078);
         setBoth(r, &V::interlace_mode, 1);
     },
     true},
    {"picture.height-step", "MBAFF even only", 0,
     [](Record& r) {
         setBoth(r, &V::height, 1078);
         setBoth(r, &V::interlace_mode, 2);
     },
     true},
    {"picture.height-step", "interlaced 4:0:0 even", 0,
     [](Record& r) {
         setBoth(r, &V::height, 1078);
         setBoth(r, &V::interlace_mode, 1);
         setBoth(r, &V::chroma_format, 1);
     },
     false},
    {"picture.frame-rate-unset", "23.976", 0, [](Record&) {}, false},
    {"picture.frame-rate-unset", "0", 0, [](Record& r) { setFrameRate(r, 0); }, true},
    {"aspect.display", "custom", 0,
     [](Record& r) {
         setBoth(r, &V::display_aspect_x, -1);
         setBoth(r, &V::display_aspect_y, -1);
     },
     false},
    {"aspect.display", "5:4, not in the dialog", 0,
     [](Record& r) {
         setBoth(r, &V::display_aspect_x, 5);
         setBoth(r, &V::display_aspect_y, 4);
     },
     false},
    {"aspect.display", "half custom", 0, [](Record& r) { setBoth(r, &V::display_aspect_x, -1); },
     true},
    {"aspect.display", "0:9", 0, [](Record& r) { setBoth(r, &V::display_aspect_x, 0); }, true},
    {"aspect.display", "negative", 0,
     [](Record& r) {
         setBoth(r, &V::display_aspect_x, -16);
         setBoth(r, &V::display_aspect_y, -9);
     },
     true},
    {"aspect.pixel", "unset beside 16:9", 0, [](Record&) {}, false},
    {"aspect.pixel", "1:1 beside 16:9", 0,
     [](Record& r) {
         setBoth(r, &V::pixel_aspect_x, 1);
         setBoth(r, &V::pixel_aspect_y, 1);
     },
     true},
    {"aspect.unspecified", "custom 1:1", 0,
     [](Record& r) {
         setBoth(r, &V::display_aspect_x, -1);
         setBoth(r, &V::display_aspect_y, -1);
         setBoth(r, &V::pixel_aspect_x, 1);
         setBoth(r, &V::pixel_aspect_y, 1);
     },
     false},
    {"aspect.unspecified", "custom and unset", 0,
     [](Record& r) {
         setBoth(r, &V::display_aspect_x, -1);
         setBoth(r, &V::display_aspect_y, -1);
     },
     true},
    {"aspect.unspecified", "custom 1:0", 0,
     [](Record& r) {
         setBoth(r, &V::display_aspect_x, -1);
         setBoth(r, &V::display_aspect_y, -1);
         setBoth(r, &V::pixel_aspect_x, 1);
         setBoth(r, &V::pixel_aspect_y, 0);
     },
     true},
    {"aspect.range", "65535:1", 0,
     [](Record& r) {
         setBoth(r, &V::display_aspect_x, -1);
         setBoth(r, &V::display_aspect_y, -1);
         setBoth(r, &V::pixel_aspect_x, 65535);
         setBoth(r, &V::pixel_aspect_y, 1);
     },
     false},
    {"aspect.range", "65536:1", 0,
     [](Record& r) {
         setBoth(r, &V::display_aspect_x, -1);
         setBoth(r, &V::display_aspect_y, -1);
         setBoth(r, &V::pixel_aspect_x, 65536);
         setBoth(r, &V::pixel_aspect_y, 1);
     },
     true},
    {"aspect.range", "1:65536", 0,
     [](Record& r) {
         setBoth(r, &V::display_aspect_x, -1);
         setBoth(r, &V::display_aspect_y, -1);
         setBoth(r, &V::pixel_aspect_x, 1);
         setBoth(r, &V::pixel_aspect_y, 65536);
     },
     true},
    {"aspect.range", "131072:65536 is 2:1", 0,
     [](Record& r) {
         setBoth(r, &V::display_aspect_x, -1);
         setBoth(r, &V::display_aspect_y, -1);
         setBoth(r, &V::pixel_aspect_x, 131072);
         setBoth(r, &V::pixel_aspect_y, 65536);
     },
     false},
    {"aspect.extended", "16:9 at 1920 x 1080 is 1:1", 0, [](Record&) {}, false},
    {"aspect.extended", "4:3 at 1440 x 1080 is 1:1", 0,
     [](Record& r) {
         setBoth(r, &V::width, 1440);
         setBoth(r, &V::display_aspect_x, 4);
         setBoth(r, &V::display_aspect_y, 3);
     },
     false},
    {"aspect.extended", "16:9 at 720 x 576 is 64:45", 0,
     [](Record& r) {
         setBoth(r, &V::width, 720);
         setBoth(r, &V::height, 576);
     },
     true},
    {"aspect.extended", "custom 160:99", 0,
     [](Record& r) {
         setBoth(r, &V::display_aspect_x, -1);
         setBoth(r, &V::display_aspect_y, -1);
         setBoth(r, &V::pixel_aspect_x, 160);
         setBoth(r, &V::pixel_aspect_y, 99);
     },
     false},
    {"aspect.extended", "custom 8:9", 0,
     [](Record& r) {
         setBoth(r, &V::display_aspect_x, -1);
         setBoth(r, &V::display_aspect_y, -1);
         setBoth(r, &V::pixel_aspect_x, 8);
         setBoth(r, &V::pixel_aspect_y, 9);
     },
     true},
    {"field-order.unused", "bottom first, progressive", 0,
     [](Record& r) { setBoth(r, &V::field_order, 1); }, true},
    {"field-order.unused", "bottom first, interlaced", 0,
     [](Record& r) {
         setBoth(r, &V::field_order, 1);
         setBoth(r, &V::interlace_mode, 1);
     },
     false},
    {"field-order.unused", "bottom first, pulldown", 0,
     [](Record& r) {
         setBoth(r, &V::field_order, 1);
         setBoth(r, &V::pulldown, 1);
     },
     false},
    {"pulldown.fields", "2:3 of frames", 0, [](Record& r) { setBoth(r, &V::pulldown, 1); }, false},
    {"pulldown.fields", "2:3 of field pictures", 0,
     [](Record& r) {
         setBoth(r, &V::pulldown, 1);
         setBoth(r, &V::interlace_mode, 1);
     },
     true},
    {"pulldown.fields", "3:3 of field pictures", 0,
     [](Record& r) {
         setBoth(r, &V::pulldown, 8);
         setBoth(r, &V::interlace_mode, 1);
     },
     true},
    {"pulldown.fields", "2:2 of field pictures", 0,
     [](Record& r) {
         setBoth(r, &V::pulldown, 7);
         setBoth(r, &V::interlace_mode, 1);
     },
     false},
    {"pulldown.mbaff", "2:3 of MBAFF", 0,
     [](Record& r) {
         setBoth(r, &V::pulldown, 1);
         setBoth(r, &V::interlace_mode, 2);
     },
     true},
    {"pulldown.mbaff", "2:2 of MBAFF", 0,
     [](Record& r) {
         setBoth(r, &V::pulldown, 7);
         setBoth(r, &V::interlace_mode, 2);
     },
     false},
    {"pulldown.2-3", "23.976", 0, [](Record& r) { setBoth(r, &V::pulldown, 1); }, false},
    {"pulldown.2-3", "24", 0,
     [](Record& r) {
         setBoth(r, &V::pulldown, 2);
         setFrameRate(r, 24);
     },
     false},
    {"pulldown.2-3", "25", 0,
     [](Record& r) {
         setBoth(r, &V::pulldown, 1);
         setFrameRate(r, 25);
     },
     true},
    {"pulldown.2-3", "progressive at 25", 0,
     [](Record& r) {
         setBoth(r, &V::pulldown, 5);
         setFrameRate(r, 25);
     },
     true},
    {"pulldown.2-3", "not set", 0,
     [](Record& r) {
         setBoth(r, &V::pulldown, 1);
         setFrameRate(r, 0);
     },
     false},
    {"pulldown.2-2", "25", 0,
     [](Record& r) {
         setBoth(r, &V::pulldown, 7);
         setFrameRate(r, 25);
     },
     false},
    {"pulldown.2-2", "29.97", 0,
     [](Record& r) {
         setBoth(r, &V::pulldown, 7);
         setFrameRate(r, 30000.0 / 1001);
     },
     false},
    {"pulldown.2-2", "23.976", 0, [](Record& r) { setBoth(r, &V::pulldown, 7); }, true},
    {"pulldown.2-2", "50", 0,
     [](Record& r) {
         setBoth(r, &V::pulldown, 7);
         setBoth(r, &V::width, 352);
         setBoth(r, &V::height, 288);
         setFrameRate(r, 50);
     },
     true},
    {"pulldown.3-3", "24", 0,
     [](Record& r) {
         setBoth(r, &V::pulldown, 8);
         setFrameRate(r, 24);
     },
     false},
    {"pulldown.3-3", "25", 0,
     [](Record& r) {
         setBoth(r, &V::pulldown, 8);
         setFrameRate(r, 25);
     },
     true},
    {"pulldown.auto", "automatic", 0, [](Record& r) { setBoth(r, &V::pulldown, 6); }, true},
    {"pulldown.auto", "off", 0, [](Record&) {}, false},
    {"pulldown.timing", "on", 0, [](Record& r) { setBoth(r, &V::pulldown, 4); }, true},
    {"pulldown.timing", "off", 0, [](Record&) {}, false},
};

} // namespace

std::span<const RuleCase> pictureCases()
{
    return rows;
}
