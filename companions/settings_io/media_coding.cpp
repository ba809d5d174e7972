#include "media_coding.h"

#include <algorithm>
#include <iterator>

namespace kv
{
namespace
{

using Strings = std::vector<std::string>;

constexpr int32_t mostBFrames = 3; // in a row, of the settings
constexpr int32_t longestInterval = 300;
constexpr int32_t longestMarker = 99;

struct PulldownPair {
    int32_t stream;
    int32_t setting;
};

constexpr PulldownPair pulldowns[] = {
    {KV_MEDIA_PULLDOWN_NONE, KV_MVC_PULLDOWN_OFF},
    {KV_MEDIA_PULLDOWN_2_3, KV_MVC_PULLDOWN_2_3},
    {KV_MEDIA_PULLDOWN_3_2, KV_MVC_PULLDOWN_3_2},
    {KV_MEDIA_PULLDOWN_2_3_FRAMES, KV_MVC_PULLDOWN_2_3_PROGRESSIVE},
    {KV_MEDIA_PULLDOWN_3_2_FRAMES, KV_MVC_PULLDOWN_3_2_PROGRESSIVE},
    {KV_MEDIA_PULLDOWN_2_2, KV_MVC_PULLDOWN_2_2},
    {KV_MEDIA_PULLDOWN_3_3, KV_MVC_PULLDOWN_3_3},
};

bool isIntra(const KvMediaCoding& coding)
{
    return coding.b_frames < 0 && coding.frames > 1;
}

/// What the stream tells about a switch or a code goes into the field; anything else is named.
void apply(int32_t told, int32_t& field, const char* name, Strings& untold)
{
    if (told >= 0) {
        field = told;
    } else {
        untold.push_back(name);
    }
}

/// Quantizers that the encoder has, and a range that holds them.
void applyQuantizers(const KvMediaCoding& coding, KvMvcViewSettings& view, Strings& untold)
{
    constexpr int32_t least = -12; // of 10 bits a sample
    constexpr int32_t most = 51;
    const struct {
        int32_t told;
        int32_t KvMvcViewSettings::*field;
        const char* name;
    } quantizers[] = {{coding.quantizer_i, &KvMvcViewSettings::quant_i, "quantizers of I-frames"},
                      {coding.quantizer_p, &KvMvcViewSettings::quant_p, "quantizers of P-frames"},
                      {coding.quantizer_b, &KvMvcViewSettings::quant_b, "quantizers of B-frames"}};
    for (const auto& quantizer : quantizers) {
        if (quantizer.told != KV_MEDIA_QUANTIZER_NOT_KNOWN) {
            view.*quantizer.field = std::clamp(quantizer.told, least, most);
            view.quant_min = std::min(view.quant_min, view.*quantizer.field);
        } else {
            untold.emplace_back(quantizer.name);
        }
    }
}

void applyTools(const KvMediaCoding& coding, KvMvcViewSettings& view, Strings& untold)
{
    apply(coding.entropy_mode, view.entropy_mode, "entropy coding", untold);
    apply(isIntra(coding) ? -1 : coding.weighted_p, view.weighted_p, "weighted prediction", untold);
    apply(coding.deblocking, view.deblocking, "deblocking", untold);
    applyQuantizers(coding, view, untold);
    if (coding.slices > 0) {
        view.num_slices = coding.slices;
        view.multi_slice = coding.slices > 1 ? 1 : 0;
    } else {
        untold.emplace_back("slices");
    }
}

void applyBFrames(const KvMediaCoding& coding, KvMvcViewSettings& view, Strings& notes)
{
    if (coding.b_frames > mostBFrames) {
        notes.push_back("it has " + std::to_string(coding.b_frames) + " B-frames in a row, " +
                        std::to_string(mostBFrames) + " are taken");
    }
    view.ref_distance = std::min(coding.b_frames, mostBFrames) + 1;
    view.adaptive_b = coding.adaptive_b;
    view.reference_b = coding.reference_b;
    view.pyramid_b = coding.pyramid_b;
}

/// The interval; without a second I-frame it is the preset's, unless that is refuted.
void applyInterval(const KvMediaCoding& coding, KvMvcViewSettings& view, Strings& notes,
                   Strings& untold)
{
    const bool isRefuted = view.i_interval > 0 && coding.frames > view.i_interval;
    if (coding.i_distance > longestInterval) {
        notes.push_back("its I-frames are " + std::to_string(coding.i_distance) +
                        " frames apart, only the first one is taken");
        view.i_interval = 0;
    } else if (coding.i_distance > 0) {
        view.i_interval = coding.i_distance;
    } else if (isRefuted) {
        notes.push_back("its first " + std::to_string(coding.frames) +
                        " frames have one I-frame, only the first one is taken");
        view.i_interval = 0;
    } else {
        untold.push_back("the I-frame interval");
    }
    if (view.i_interval > 0) {
        view.force_i = std::min(view.force_i, view.i_interval);
    }
}

void applyGroups(const KvMediaCoding& coding, KvMvcViewSettings& view, Strings& notes,
                 Strings& untold)
{
    if (isIntra(coding)) {
        view.i_interval = view.force_i = 1;
    } else {
        applyInterval(coding, view, notes, untold);
    }
    if (coding.idr_distance >= 0) {
        view.idr_marker = coding.idr_distance > longestMarker ? 0 : coding.idr_distance;
    } else if (view.i_interval > 0) {
        untold.push_back("the distance of IDR pictures");
    }
    if (coding.b_frames >= 0) {
        applyBFrames(coding, view, notes);
    } else {
        untold.push_back("B-frames");
    }
}

void applyPulldown(const KvMediaInfo& info, KvMvcViewSettings& view, Strings& notes)
{
    const auto* known = std::ranges::find(pulldowns, info.pulldown, &PulldownPair::stream);
    if (known != std::end(pulldowns)) {
        view.pulldown = known->setting;
    } else {
        notes.push_back("its pulldown is not among the settings, none is taken");
    }
}

} // namespace

bool showsCoding(const KvMediaInfo& info)
{
    return info.codec == KV_MEDIA_CODEC_H264 && info.coding[0].frames > 0;
}

void applyCoding(const KvMediaInfo& info, KvMvcSettings& settings, std::vector<std::string>& notes,
                 std::vector<std::string>& untold)
{
    settings.split_views = info.separate_views;
    if (!showsCoding(info)) {
        notes.push_back("its groups of pictures, pulldown and coding tools are not known, the "
                        "preset's are kept");
        return;
    }
    const bool isMultiview = info.num_views > 1;
    const bool hasOwnTools = isMultiview && info.coding[1].frames > 0;
    KvMvcViewSettings& base = settings.views[0];
    KvMvcViewSettings& second = settings.views[1];
    applyTools(info.coding[0], base, untold);
    Strings untoldOfSecond;
    applyTools(info.coding[hasOwnTools ? 1 : 0], second, untoldOfSecond);
    if (hasOwnTools) {
        for (const std::string& name : untoldOfSecond) {
            untold.push_back(name + " of further views");
        }
    } else if (isMultiview) {
        notes.push_back("the coding tools of its further views are not known, those of the base "
                        "view are taken");
    }
    // All views have the groups of the base view (H.7.4.1.1).
    applyGroups(info.coding[0], base, notes, untold);
    applyPulldown(info, base, notes);
    Strings again;
    applyGroups(info.coding[0], second, again, again);
    applyPulldown(info, second, again);
    if (isMultiview && info.dependent_ref_frames > 0) {
        second.num_ref_frames = info.dependent_ref_frames;
    } else if (isMultiview) {
        untold.emplace_back("reference frames of further views");
    }
}

} // namespace kv
