#include "sample_format.h"

#include <algorithm>
#include <iterator>
#include <optional>

extern "C" {
#include <libavutil/pixdesc.h>
}

namespace kv
{
namespace
{

constexpr int otherChroma = -1; // RGB and the rest

struct Samples {
    int chroma = KV_MEDIA_CHROMA_NOT_KNOWN;
    int luma = 0; // bits; 0: not known
    int chromaBits = 0;
};

constexpr Samples of(int chroma, int bits)
{
    return {chroma, bits, bits};
}

/// Codecs that are not decoded here, and have one format.
struct CodecSamples {
    AVCodecID codec;
    Samples samples;
};

constexpr CodecSamples codecSamples[] = {
    {AV_CODEC_ID_V210, of(2, 10)},     {AV_CODEC_ID_V210X, of(2, 10)},
    {AV_CODEC_ID_V308, of(3, 8)},      {AV_CODEC_ID_V408, of(3, 8)},
    {AV_CODEC_ID_V410, of(3, 10)},     {AV_CODEC_ID_WMV1, of(1, 8)},
    {AV_CODEC_ID_WMV2, of(1, 8)},      {AV_CODEC_ID_MSMPEG4V1, of(1, 8)},
    {AV_CODEC_ID_MSMPEG4V2, of(1, 8)}, {AV_CODEC_ID_MSMPEG4V3, of(1, 8)},
};

Samples ofPixelFormat(AVPixelFormat name)
{
    const auto* format = av_pix_fmt_desc_get(name);
    if (!format) {
        return {};
    }
    const int shifts = format->log2_chroma_w * 2 + format->log2_chroma_h;
    const bool rgb = (format->flags & AV_PIX_FMT_FLAG_RGB) != 0;
    Samples samples;
    samples.chroma = rgb                         ? otherChroma
                     : format->nb_components < 3 ? 0
                     : shifts == 3               ? 1
                     : shifts == 2               ? 2
                     : shifts == 0               ? 3
                                                 : otherChroma;
    samples.luma = format->comp[0].depth;
    samples.chromaBits = format->comp[format->nb_components < 3 ? 0 : 1].depth;
    return samples;
}

/// Uncompressed samples, by the four characters that name them.
Samples ofTag(uint32_t tag)
{
    if (tag == MKTAG('2', 'v', 'u', 'y') || tag == MKTAG('y', 'u', 'v', '2')) {
        return of(2, 8); // names of QuickTime files alone
    }
    for (const AVPixFmtDescriptor* format = av_pix_fmt_desc_next(nullptr); format && tag != 0;
         format = av_pix_fmt_desc_next(format)) {
        const AVPixelFormat name = av_pix_fmt_desc_get_id(format);
        if (avcodec_pix_fmt_to_codec_tag(name) == tag) {
            return ofPixelFormat(name);
        }
    }
    return {};
}

/// HuffYUV tells by the bits of a whole sample.
Samples ofHuffmanCoding(int bits)
{
    switch (bits) {
    case 12:
        return of(1, 8);
    case 16:
        return of(2, 8);
    case 24:
    case 32:
        return of(otherChroma, 8);
    default:
        return {};
    }
}

/// AV1CodecConfigurationRecord: the third byte, behind a marker with the version, and the profile.
Samples ofAv1Configuration(const AVCodecParameters& codec)
{
    constexpr int head = 4;
    constexpr uint8_t marker = 0x81;
    if (!codec.extradata || codec.extradata_size < head || codec.extradata[0] != marker) {
        return {};
    }
    const unsigned flags = codec.extradata[2];
    const bool high = (flags & 0x40) != 0;
    const bool twelve = (flags & 0x20) != 0;
    const bool monochrome = (flags & 0x10) != 0;
    const bool halfWidth = (flags & 0x08) != 0;
    const bool halfHeight = (flags & 0x04) != 0;
    const int chroma = monochrome ? 0 : !halfWidth ? 3 : halfHeight ? 1 : 2;
    return of(chroma, !high ? 8 : twelve ? 12 : 10);
}

Samples samplesOf(const AVCodecParameters& codec)
{
    if (codec.format >= 0) {
        return ofPixelFormat(static_cast<AVPixelFormat>(codec.format));
    }
    const auto* known = std::ranges::find(codecSamples, codec.codec_id, &CodecSamples::codec);
    if (known != std::end(codecSamples)) {
        return known->samples;
    }
    switch (codec.codec_id) {
    case AV_CODEC_ID_RAWVIDEO:
        return ofTag(codec.codec_tag);
    case AV_CODEC_ID_HUFFYUV:
        return ofHuffmanCoding(codec.bits_per_coded_sample);
    case AV_CODEC_ID_AV1:
        return ofAv1Configuration(codec);
    default:
        return {};
    }
}

} // namespace

void describeSamples(KvMediaInfo& info, const AVCodecParameters& codec)
{
    const Samples samples = samplesOf(codec);
    info.chroma_format = samples.chroma;
    info.bit_depth_luma = samples.luma;
    info.bit_depth_chroma = samples.chromaBits;
}

} // namespace kv
