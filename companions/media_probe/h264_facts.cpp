#include "h264_facts.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace kv
{
namespace
{

KvMediaCoding codingOf(const PictureTrack& track, bool isWhole)
{
    const CodingFacts facts = track.facts(isWhole);
    KvMediaCoding coding{};
    coding.frames = facts.frames;
    coding.entropy_mode = facts.entropyMode;
    coding.weighted_p = facts.weightedP;
    coding.deblocking = facts.deblocking;
    coding.slices = facts.slices;
    coding.i_distance = facts.iDistance;
    coding.idr_distance = facts.idrDistance;
    coding.b_frames = facts.bFrames;
    coding.adaptive_b = facts.adaptiveB ? 1 : 0;
    coding.reference_b = facts.referenceB ? 1 : 0;
    coding.pyramid_b = facts.pyramidB ? 1 : 0;
    int32_t* quantizers[] = {&coding.quantizer_i, &coding.quantizer_p, &coding.quantizer_b};
    for (std::size_t kind = 0; kind < facts.quantizers.size(); ++kind) {
        *quantizers[kind] = facts.quantizers[kind].value_or(KV_MEDIA_QUANTIZER_NOT_KNOWN);
    }
    return coding;
}

/// What repeats the fields or frames of a stream in a regular way.
struct NamedCadence {
    int fields;
    int frames;
    int firstFields;
    KvMediaPulldown name;
};

constexpr NamedCadence namedCadences[] = {
    {5, 2, 2, KV_MEDIA_PULLDOWN_2_3},         {5, 2, 3, KV_MEDIA_PULLDOWN_3_2},
    {10, 2, 4, KV_MEDIA_PULLDOWN_2_3_FRAMES}, {10, 2, 6, KV_MEDIA_PULLDOWN_3_2_FRAMES},
    {4, 1, 4, KV_MEDIA_PULLDOWN_2_2},         {3, 1, 3, KV_MEDIA_PULLDOWN_3_3},
    {6, 1, 6, KV_MEDIA_PULLDOWN_3_3},
};

/// The clock counts what is shown; a frame takes as many ticks as it shows fields (E.2.1).
void describeCodedRate(KvMediaInfo& info, const Usability& usability, const Cadence& cadence)
{
    uint64_t frames = uint64_t(usability.timeScale) * static_cast<uint64_t>(cadence.frames);
    uint64_t seconds = uint64_t(usability.unitsInTick) * static_cast<uint64_t>(cadence.fields);
    if (frames == 0 || seconds == 0) {
        return;
    }
    const uint64_t divisor = std::gcd(frames, seconds);
    frames /= divisor;
    seconds /= divisor;
    if (std::max(frames, seconds) <= std::numeric_limits<int32_t>::max()) {
        info.frame_rate_num = static_cast<int32_t>(frames);
        info.frame_rate_den = static_cast<int32_t>(seconds);
    }
}

void describePulldown(KvMediaInfo& info, const SequenceParameters& sequence,
                      const PictureTrack& track, bool isWhole)
{
    const Cadence cadence = cadenceOf(track.frames(), isWhole);
    if (cadence.fields == 0) {
        return;
    }
    const auto named = std::ranges::find_if(namedCadences, [&](const NamedCadence& known) {
        return known.fields == cadence.fields && known.frames == cadence.frames &&
               known.firstFields == cadence.firstFields;
    });
    info.pulldown =
        named == std::end(namedCadences) ? int32_t(KV_MEDIA_PULLDOWN_OTHER) : int32_t(named->name);
    describeCodedRate(info, sequence.usability, cadence);
}

void describeScan(KvMediaInfo& info, const SequenceParameters& base, const PictureTrack& track)
{
    if (base.framesOnly) {
        info.scan = KV_MEDIA_PROGRESSIVE;
    } else if (base.mbaff) {
        info.scan = KV_MEDIA_MBAFF;
    } else if (track.hasFields()) {
        info.scan = KV_MEDIA_INTERLACED;
    }
    if (info.scan == KV_MEDIA_PROGRESSIVE) {
        info.field_order = KV_MEDIA_TOP_FIELD_FIRST;
    }
}

} // namespace

void describeH264(KvMediaInfo& info, const H264Scan& scan, bool isWhole)
{
    info.codec = KV_MEDIA_CODEC_H264;
    const std::optional<SequenceParameters>& set = scan.base();
    if (!set) {
        return;
    }
    const SequenceParameters& base = *set;
    info.profile_idc = static_cast<int32_t>(base.profile);
    info.constraint_flags = static_cast<int32_t>(base.constraintFlags);
    info.level_idc = static_cast<int32_t>(base.level);
    info.num_ref_frames = static_cast<int32_t>(base.refFrames);
    info.chroma_format = static_cast<int32_t>(base.chromaFormat);
    info.bit_depth_luma = static_cast<int32_t>(base.bitDepthLuma);
    info.bit_depth_chroma =
        static_cast<int32_t>(base.chromaFormat == 0 ? base.bitDepthLuma : base.bitDepthChroma);
    info.hrd_bit_rate = static_cast<int64_t>(base.usability.bitRate);
    info.hrd_buffer_size = static_cast<int64_t>(base.usability.bufferSize);
    info.hrd_constant = base.usability.constantRate ? 1 : 0;
    describeScan(info, base, scan.basePictures());
    describePulldown(info, base, scan.basePictures(), isWhole);
    info.coding[0] = codingOf(scan.basePictures(), isWhole);
}

void describeViews(KvMediaInfo& info, const H264Scan& scan, bool isWhole)
{
    const auto& subset = scan.subset();
    const int views =
        std::max(scan.furtherViews() + 1, subset ? static_cast<int>(subset->views) : 1);
    if (views <= info.num_views) {
        return;
    }
    info.num_views = views;
    if (subset) {
        info.mvc_profile_idc = static_cast<int32_t>(subset->profile);
        info.mvc_level_idc = static_cast<int32_t>(subset->level);
        info.dependent_ref_frames = static_cast<int32_t>(subset->refFrames);
    }
    info.coding[1] = codingOf(scan.secondPictures(), isWhole);
}

} // namespace kv
