// Picture size, frame rate, aspect ratio, field order and pulldown.

#include <cmath>
#include <iterator>

#include "rules.h"

namespace kv::encoder
{

namespace
{

constexpr Rule<int> smallWidth = {"picture.width",
                                  Severity::Error,
                                  "The picture width has to be at least 16 (now %d).",
                                  "7.4.2.1.1: pic_width_in_mbs_minus1",
                                  {.setting = "width", .value = 1}};
constexpr Rule<int> smallHeight = {"picture.height",
                                   Severity::Error,
                                   "The picture height has to be at least 16 (now %d).",
                                   "7.4.2.1.1: pic_height_in_map_units_minus1",
                                   {.setting = "height", .value = 1}};
constexpr Rule<int, int> widthStep = {
    "picture.width-step",
    Severity::Error,
    "With this chroma format, the picture width has to be a multiple of %d (now %d).",
    "7.4.2.1.1: CropUnitX",
    {.setting = "width", .value = 2, .limit = 1}};
constexpr Rule<int, int> heightStep = {
    "picture.height-step",
    Severity::Error,
    "With this chroma format and picture structure, the picture height has to be a multiple of %d "
    "(now %d).",
    "7.4.2.1.1: CropUnitY",
    {.setting = "height", .value = 2, .limit = 1}};
constexpr Rule<> rateUnset = {"picture.frame-rate-unset",
                              Severity::Note,
                              "No frame rate is set, so the limits per second were not checked.",
                              "A.3.1: the limits hold for times of removal and output",
                              {.setting = "frame_rate"}};

constexpr Rule<int, int> displayPair = {
    "aspect.display",
    Severity::Warning,
    "The picture aspect ratio %d:%d is not valid; it is now Custom.",
    "codes of the encoder",
    {.setting = "display_aspect_x", .value = 1}};
constexpr Rule<> pixelPair = {
    "aspect.pixel",
    Severity::Warning,
    "The pixel aspect ratio was set as well; it now follows from the picture aspect ratio.",
    "E.2.1: one ratio is written, the display's or the sample's",
    {.setting = "pixel_aspect_x"}};
constexpr Rule<> aspectUnset = {"aspect.unspecified",
                                Severity::Note,
                                "No pixel aspect ratio is set, so players will assume one.",
                                "E.2.1: aspect_ratio_idc 0",
                                {.setting = "pixel_aspect_x"}};
constexpr Rule<double, double> aspectRange = {
    "aspect.range",
    Severity::Error,
    "The pixel aspect ratio %.0f:%.0f cannot be written: neither part may exceed 65535.",
    "E.2.1: sar_width and sar_height have 16 bits",
    {.setting = "pixel_aspect_x"}};
constexpr Rule<double, double> aspectExtended = {
    "aspect.extended",
    Severity::Note,
    "The pixel aspect ratio %.0f:%.0f is not a predefined one, so it is written as two numbers.",
    "E.2.1, Table E-1: aspect_ratio_idc 255",
    {.setting = "pixel_aspect_x"}};

constexpr Rule<> unusedOrder = {
    "field-order.unused",
    Severity::Note,
    "The field order has no effect on progressive pictures without pulldown.",
    "D.2.3",
    {.setting = "field_order"}};
constexpr Rule<> pulldownFields = {
    "pulldown.fields",
    Severity::Error,
    "Pulldown cannot repeat interlaced pictures: set pulldown to Off, or choose Progressive.",
    "D.2.3: pic_struct 5 to 8 need field_pic_flag 0",
    {.setting = "pulldown"}};
constexpr Rule<> pulldownMbaff = {
    "pulldown.mbaff",
    Severity::Risk,
    "Pulldown repeats fields of MBAFF pictures, which makes motion stutter.",
    "D.2.3",
    {.setting = "pulldown"}};
constexpr Rule<Decimal> pulldown23 = {
    "pulldown.2-3",
    Severity::Risk,
    "Pulldown 2:3 and 3:2 are meant for 23.98 and 24.00 frames/s (now %d.%0*d).",
    "D.2.3; practice",
    {.setting = "pulldown"}};
constexpr Rule<Decimal> pulldown22 = {
    "pulldown.2-2",
    Severity::Risk,
    "Pulldown 2:2 doubles %d.%0*d frames/s to a rate that few displays have.",
    "D.2.3; practice",
    {.setting = "pulldown"}};
constexpr Rule<Decimal> pulldown33 = {
    "pulldown.3-3",
    Severity::Risk,
    "Pulldown 3:3 triples %d.%0*d frames/s to a rate that few displays have.",
    "D.2.3; practice",
    {.setting = "pulldown"}};
constexpr Rule<> pulldownAuto = {
    "pulldown.auto",
    Severity::Note,
    "With pulldown Auto, the encoder chooses; its choice cannot be checked.",
    "not in the standard",
    {.setting = "pulldown"}};
constexpr Rule<> pulldownTiming = {"pulldown.timing",
                                   Severity::Note,
                                   "Pulldown adds picture timing messages to the stream.",
                                   "D.2.3, E.2.1: pic_struct_present_flag 1",
                                   {.setting = "pulldown"}};

// Table E-1, codes 1 to 16.
constexpr SampleAspect predefined[] = {
    {1, 1},   {12, 11}, {10, 11}, {16, 11}, {40, 33},  {24, 11}, {20, 11}, {32, 11},
    {80, 33}, {18, 11}, {15, 11}, {64, 33}, {160, 99}, {4, 3},   {3, 2},   {2, 1},
};

/// Whether a size can be cropped to. Discs have formats, and refuse all others as such.
void judgeSteps(const Stream& stream, Report& report)
{
    const KvMvcViewSettings& base = stream.base;
    // Cropping counts chroma samples, and rows of both fields at once.
    const bool mono = base.chroma_format == KV_MVC_CHROMA_400;
    const int across = mono ? 1 : 2;
    const int down =
        (base.chroma_format == KV_MVC_CHROMA_420 ? 2 : 1) * (stream.interlaced ? 2 : 1);
    if (base.width >= 16 && base.width % across != 0) {
        report.say(widthStep, across, base.width);
    }
    if (base.height >= 16 && base.height % down != 0) {
        report.say(heightStep, down, base.height);
    }
}

void judgeSize(const Stream& stream, Report& report)
{
    const KvMvcViewSettings& base = stream.base;
    if (base.width < 16) {
        report.say(smallWidth, base.width);
    }
    if (base.height < 16) {
        report.say(smallHeight, base.height);
    }
    if (!stream.disc) {
        judgeSteps(stream, report);
    }
    if (stream.frameRate == 0) {
        report.say(rateUnset);
    }
}

void judgeAspect(const Stream& stream, Report& report)
{
    const SampleAspect aspect = sampleAspect(stream.base);
    if (!stream.sized) {
        return;
    }
    if (aspect.x == 0) {
        report.say(aspectUnset);
        return;
    }
    const auto x = static_cast<double>(aspect.x);
    const auto y = static_cast<double>(aspect.y);
    if (x > 65535 || y > 65535) {
        report.say(aspectRange, x, y);
        return;
    }
    for (const SampleAspect& row : predefined) {
        if (row.x == aspect.x && row.y == aspect.y) {
            return;
        }
    }
    report.say(aspectExtended, x, y);
}

bool isNear(double rate, double wanted)
{
    return std::fabs(rate - wanted) < 0.001;
}

void judgeCadence(const Stream& stream, Report& report)
{
    const double rate = stream.frameRate;
    if (rate == 0) {
        return;
    }
    switch (stream.base.pulldown) {
    case KV_MVC_PULLDOWN_2_3:
    case KV_MVC_PULLDOWN_3_2:
    case KV_MVC_PULLDOWN_2_3_PROGRESSIVE:
    case KV_MVC_PULLDOWN_3_2_PROGRESSIVE:
        if (!isNear(rate, 24000.0 / 1001) && !isNear(rate, 24)) {
            report.say(pulldown23, frameRateText(rate));
        }
        break;
    case KV_MVC_PULLDOWN_2_2:
        for (const double odd : {24000.0 / 1001, 24.0, 50.0, 60000.0 / 1001, 60.0}) {
            if (isNear(rate, odd)) {
                report.say(pulldown22, frameRateText(rate));
            }
        }
        break;
    case KV_MVC_PULLDOWN_3_3:
        if (rate > 24.001) {
            report.say(pulldown33, frameRateText(rate));
        }
        break;
    default:
        break;
    }
}

void judgePulldown(const Stream& stream, Report& report)
{
    const int pulldown = stream.base.pulldown;
    if (pulldown == KV_MVC_PULLDOWN_OFF) {
        if (!stream.interlaced && stream.base.field_order != KV_MVC_TOP_FIELD_FIRST) {
            report.say(unusedOrder);
        }
        return;
    }
    report.say(pulldownTiming);
    if (pulldown == KV_MVC_PULLDOWN_AUTO) {
        report.say(pulldownAuto);
        return;
    }
    // 2:2 shows each field once, so it repeats nothing in field pictures.
    const bool repeats = pulldown != KV_MVC_PULLDOWN_2_2;
    if (repeats && stream.base.interlace_mode == KV_MVC_INTERLACED) {
        report.say(pulldownFields);
    }
    if (repeats && stream.base.interlace_mode == KV_MVC_MBAFF) {
        report.say(pulldownMbaff);
    }
    judgeCadence(stream, report);
}

void correctAspectOf(KvMvcViewSettings& view, Report& report)
{
    const bool unset = view.display_aspect_x == KV_MVC_ASPECT_UNSET &&
                       view.display_aspect_y == KV_MVC_ASPECT_UNSET;
    const bool set = view.display_aspect_x > 0 && view.display_aspect_y > 0;
    if (!unset && !set) {
        report.say(displayPair, view.display_aspect_x, view.display_aspect_y);
        view.display_aspect_x = KV_MVC_ASPECT_UNSET;
        view.display_aspect_y = KV_MVC_ASPECT_UNSET;
    }
    if (set && (view.pixel_aspect_x != KV_MVC_ASPECT_UNSET ||
                view.pixel_aspect_y != KV_MVC_ASPECT_UNSET)) {
        view.pixel_aspect_x = KV_MVC_ASPECT_UNSET;
        view.pixel_aspect_y = KV_MVC_ASPECT_UNSET;
        report.say(pixelPair);
    }
}

constexpr const RuleInfo* rules[] = {
    &smallWidth,    &smallHeight, &widthStep,   &heightStep,     &rateUnset,    &displayPair,
    &pixelPair,     &aspectUnset, &aspectRange, &aspectExtended, &unusedOrder,  &pulldownFields,
    &pulldownMbaff, &pulldown23,  &pulldown22,  &pulldown33,     &pulldownAuto, &pulldownTiming,
};

} // namespace

void correctAspect(KvMvcSettings& record, Report& report)
{
    correctAspectOf(record.views[0], report);
    // The second view has the same pairs by now: no second message.
    Report silent;
    if (countSubRecords(record) > 1) {
        correctAspectOf(record.views[1], silent);
    }
}

void judgePicture(const Stream& stream, Report& report)
{
    judgeSize(stream, report);
    judgeAspect(stream, report);
    judgePulldown(stream, report);
}

RuleGroup pictureRules()
{
    return {"Picture format", rules};
}

} // namespace kv::encoder
