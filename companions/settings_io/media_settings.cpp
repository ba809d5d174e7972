#include "media_settings.h"

#include "media_coding.h"
#include "media_rates.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kv
{
namespace
{

using Notes = std::vector<std::string>;

struct CodePair {
    int32_t stream;
    int32_t setting;
};

/// profile_idc (A.2).
constexpr CodePair profiles[] = {
    {66, KV_MVC_PROFILE_BASELINE}, {77, KV_MVC_PROFILE_MAIN},      {100, KV_MVC_PROFILE_HIGH},
    {110, KV_MVC_PROFILE_HIGH_10}, {122, KV_MVC_PROFILE_HIGH_422},
};

/// chroma_format_idc (Table 6-1).
constexpr CodePair chromaFormats[] = {
    {0, KV_MVC_CHROMA_400}, {1, KV_MVC_CHROMA_420}, {2, KV_MVC_CHROMA_422}};

/// level_idc (A.3); level 1b (9) is within the limits of level 1.1.
constexpr CodePair levels[] = {{9, 11},  {10, 10}, {11, 11}, {12, 12}, {13, 13}, {20, 20},
                               {21, 21}, {22, 22}, {30, 30}, {31, 31}, {32, 32}, {40, 40},
                               {41, 41}, {42, 42}, {50, 50}, {51, 51}, {52, 52}};

/// KvMediaScan.
constexpr CodePair scans[] = {{KV_MEDIA_PROGRESSIVE, KV_MVC_PROGRESSIVE},
                              {KV_MEDIA_INTERLACED, KV_MVC_INTERLACED},
                              {KV_MEDIA_MBAFF, KV_MVC_MBAFF}};

constexpr double standardRates[] = {24000 / 1001.0, 24, 25, 30000 / 1001.0, 30, 50,
                                    60000 / 1001.0, 60};

/// Rounded time stamps stray less; 24 and 23.976 differ by ten times as much.
constexpr double rateTolerance = 0.0001;

template <std::size_t count>
const CodePair* find(const CodePair (&pairs)[count], int32_t stream)
{
    const auto pair = std::ranges::find(pairs, stream, &CodePair::stream);
    return pair == std::end(pairs) ? nullptr : pair;
}

double standardRate(double rate)
{
    const auto standard = std::ranges::find_if(standardRates, [&](double known) {
        return std::abs(rate - known) < known * rateTolerance;
    });
    return standard == std::end(standardRates) ? rate : *standard;
}

void applyPicture(const KvMediaInfo& info, KvMvcViewSettings& view, Notes& notes)
{
    view.width = info.width;
    view.height = info.height;
    if (info.frame_rate_num > 0 && info.frame_rate_den > 0) {
        view.frame_rate =
            standardRate(static_cast<double>(info.frame_rate_num) / info.frame_rate_den);
    } else {
        notes.push_back("its frame rate is not known, the default is taken");
    }
    if (const auto* scan = find(scans, info.scan)) {
        view.interlace_mode = scan->setting;
    }
    view.field_order = info.field_order == KV_MEDIA_BOTTOM_FIELD_FIRST ? KV_MVC_BOTTOM_FIELD_FIRST
                                                                       : KV_MVC_TOP_FIELD_FIRST;
    const bool aspectKnown = info.pixel_aspect_num > 0 && info.pixel_aspect_den > 0;
    view.pixel_aspect_x = aspectKnown ? info.pixel_aspect_num : 1;
    view.pixel_aspect_y = aspectKnown ? info.pixel_aspect_den : 1;
    if (!aspectKnown) {
        notes.push_back("its pixel aspect ratio is not known, 1:1 is taken");
    }
    view.display_aspect_x = view.display_aspect_y = KV_MVC_ASPECT_UNSET;
}

/// What is not known of the samples, and what is taken for it.
const char* unknownSamples(bool chromaKnown, bool depthKnown)
{
    return chromaKnown && depthKnown ? nullptr
           : depthKnown              ? "its chroma format is not known, 4:2:0 is taken"
           : chromaKnown             ? "its bit depth is not known, 8 bits are taken"
                                     : "its chroma format and bit depth are not known, 4:2:0 with "
                                       "8 bits is taken";
}

void applySamples(const KvMediaInfo& info, KvMvcViewSettings& view, Notes& notes)
{
    constexpr int32_t deepest = 10;
    constexpr int32_t fullChroma = 3; // chroma_format_idc of 4:4:4
    const auto* chroma = find(chromaFormats, info.chroma_format);
    const bool chromaKnown = info.chroma_format != KV_MEDIA_CHROMA_NOT_KNOWN;
    view.chroma_format = chroma                             ? chroma->setting
                         : info.chroma_format == fullChroma ? KV_MVC_CHROMA_422
                                                            : KV_MVC_CHROMA_420;
    if (!chroma && chromaKnown) {
        notes.push_back("its chroma format is not among the settings, the nearest is taken");
    }
    if (const char* note = unknownSamples(chromaKnown, info.bit_depth_luma > 0)) {
        notes.push_back(note);
    }
    const auto depth = [](int32_t bits) { return bits > 8 ? deepest : 8; };
    view.bit_depth_luma = depth(info.bit_depth_luma);
    view.bit_depth_chroma = depth(info.bit_depth_chroma);
    if (std::max(info.bit_depth_luma, info.bit_depth_chroma) > deepest) {
        notes.push_back("its samples have more than 10 bits, 10 are taken");
    }
}

/// The smallest profile that has the picture's chroma format and bit depths (A.2).
int32_t profileOfSamples(const KvMvcViewSettings& view)
{
    if (view.chroma_format == KV_MVC_CHROMA_422) {
        return KV_MVC_PROFILE_HIGH_422;
    }
    if (std::max(view.bit_depth_luma, view.bit_depth_chroma) > 8) {
        return KV_MVC_PROFILE_HIGH_10;
    }
    return view.chroma_format == KV_MVC_CHROMA_400 ? KV_MVC_PROFILE_HIGH : KV_MVC_PROFILE_BASELINE;
}

/// Tools that the Baseline profile does not have (A.2.1).
void leaveOutMainTools(KvMvcViewSettings& view)
{
    view.entropy_mode = KV_MVC_CAVLC;
    view.ref_distance = 1;
    view.adaptive_b = view.reference_b = view.pyramid_b = view.weighted_p = 0;
}

/// Signalled by a level of its own, or as 1.1 with constraint_set3_flag (A.3.1, A.3.2).
bool isLevel1b(const KvMediaInfo& info)
{
    constexpr int32_t ownLevel = 9;
    constexpr int32_t level11 = 11;
    constexpr int32_t constraintSet3 = 0x10;
    constexpr int32_t high = 100;
    const int32_t level = std::max(info.level_idc, info.mvc_level_idc);
    return level == ownLevel || (level == level11 && info.profile_idc < high &&
                                 (info.constraint_flags & constraintSet3) != 0);
}

void applyProfile(const KvMediaInfo& info, KvMvcViewSettings& view, Notes& notes)
{
    const bool h264 = info.codec == KV_MEDIA_CODEC_H264;
    if (!h264) {
        notes.push_back("it is no H.264, so a fitting profile and level Auto are taken");
    }
    const auto* profile = h264 ? find(profiles, info.profile_idc) : nullptr;
    if (profile) {
        view.profile = profile->setting;
    } else if (h264) {
        notes.push_back("its profile is not among the settings, a fitting one is taken");
    }
    view.profile = std::max(view.profile, profileOfSamples(view));
    if (view.profile == KV_MVC_PROFILE_BASELINE) {
        leaveOutMainTools(view);
    }
    const auto* level = h264 ? find(levels, std::max(info.level_idc, info.mvc_level_idc)) : nullptr;
    view.level = level ? level->setting : int32_t(KV_MVC_LEVEL_AUTO);
    if (level && isLevel1b(info)) {
        notes.push_back("its level 1b is not among the settings, 1.1 is taken");
    }
    if (h264 && !level) {
        notes.push_back("its level is not among the settings, Auto is taken");
    }
    if (info.num_ref_frames >= 0) {
        view.num_ref_frames = std::max(info.num_ref_frames, 1);
    }
    if (info.num_ref_frames == 0) {
        view.i_interval = view.force_i = 1; // nothing but I pictures
    }
}

std::string untoldNote(const Notes& names)
{
    std::string text;
    for (const std::string& name : names) {
        text += (text.empty() ? "it does not tell " : ", ") + name;
    }
    return text + ": kept as in the preset";
}

/// What is an encoder's own affair.
constexpr char neverTold[] =
    "no stream tells buffer fullness, frame size limits, quantizer limits, minimum and fixed "
    "I-frame distance, scene detection, motion search, rate distortion, threads: kept as in the "
    "preset";

} // namespace

int32_t fittingPreset(const KvMediaInfo& info)
{
    constexpr int32_t multiviewHigh = 118; // profile_idc (H.10.1.1)
    if (info.num_views < 2) {
        return KV_MVC_VIDEO_TYPE_NONE;
    }
    return info.num_views > 2 || info.mvc_profile_idc == multiviewHigh ? KV_MVC_MULTIVIEW_HIGH
                                                                       : KV_MVC_STEREO_HIGH;
}

std::vector<std::string> applyMedia(const KvMediaInfo& info, KvMvcSettings& settings)
{
    Notes notes;
    settings.num_views = std::max(info.num_views, 1);
    for (KvMvcViewSettings& view : settings.views) {
        notes.clear(); // the same for each view
        applyPicture(info, view, notes);
        applySamples(info, view, notes);
        applyProfile(info, view, notes);
    }
    Notes untold;
    applyCoding(info, settings, notes, untold);
    applyRates(info, settings, notes, untold);
    if (!untold.empty()) {
        notes.push_back(untoldNote(untold));
    }
    notes.emplace_back(neverTold);
    return notes;
}

} // namespace kv
