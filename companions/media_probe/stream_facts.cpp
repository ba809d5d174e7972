#include "stream_facts.h"

#include "h264_facts.h"
#include "media_input.h"
#include "sample_format.h"
#include "stream_scan.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <span>
#include <system_error>
#include <vector>

namespace kv
{
namespace
{

/// What MPEG-1 headers say of a variable rate (bit_rate all ones, in units of 400 bit/s).
constexpr int64_t variableRate = 0x3FFFF * 400;

/// Of a container's index, from its end: a picture may lie before its predecessor.
constexpr int entriesLookedAt = 100;

void copyName(char (&to)[32], const char* from)
{
    std::snprintf(to, sizeof to, "%s", from);
}

/// A transport stream is known by its packets, and says nothing without its tables (ISO 13818-1).
const char* whatIsMissing(const AVFormatContext* format)
{
    if (!format || std::strcmp(format->iformat->name, "mpegts") != 0) {
        return "no media format, or damaged";
    }
    return format->nb_programs == 0
               ? "a transport stream without programs: no association table (PAT) lists one"
               : "a transport stream whose program has no map (PMT), which tells its streams";
}

/// Formats end with error numbers of all kinds, so only those of reading itself are told.
ProbeAnswer refusalFor(int error, const MediaInput& input)
{
    if (error == AVERROR(ENOMEM)) {
        return refusal(KV_MEDIA_LIMIT, "describing it takes too much memory");
    }
    if (input.timeIsUp() || error == AVERROR_EXIT) {
        return refusal(KV_MEDIA_LIMIT, "describing it takes too long");
    }
    if (input.readError() != 0) {
        return refusal(KV_MEDIA_UNREADABLE,
                       std::generic_category().message(input.readError()).c_str());
    }
    return refusal(KV_MEDIA_UNREADABLE, whatIsMissing(input.format()));
}

bool isDescribed(const AVStream& stream)
{
    return isRecordedVideo(stream) && stream.codecpar->width > 0 && stream.codecpar->height > 0;
}

/// The stream that players choose; with views in streams of their own, that of the base view.
AVStream* mainStream(AVFormatContext* format)
{
    const int best = av_find_best_stream(format, AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
    if (best >= 0 && isDescribed(*format->streams[best])) {
        return format->streams[best];
    }
    const auto end = format->streams + format->nb_streams;
    const auto first = std::find_if(format->streams, end,
                                    [](const AVStream* stream) { return isDescribed(*stream); });
    return first == end ? nullptr : *first;
}

/// The container's index leads behind the file's end.
bool isTruncated(AVFormatContext* format, AVStream* stream)
{
    const int64_t size = avio_size(format->pb);
    const int entries = avformat_index_get_entries_count(stream);
    for (int index = std::max(0, entries - entriesLookedAt); index < entries; ++index) {
        const AVIndexEntry* entry = avformat_index_get_entry(stream, index);
        if (size > 0 && entry && entry->pos >= 0 && entry->pos > size - entry->size) {
            return true;
        }
    }
    return false;
}

/// Where no stream is described at all, the descriptions were in a part that is lost.
ProbeAnswer refusalWithoutVideo(const AVFormatContext& format)
{
    const std::span<AVStream* const> streams(format.streams, format.nb_streams);
    const auto video = std::ranges::find_if(
        streams, [](const AVStream* stream) { return isRecordedVideo(*stream); });
    if (video != streams.end()) {
        const std::string codec = avcodec_get_name((*video)->codecpar->codec_id);
        return refusal(KV_MEDIA_NO_VIDEO, ("its video (" + codec +
                                           ") cannot be described: damaged, or of a kind that is "
                                           "not read here")
                                              .c_str());
    }
    const bool audio = std::ranges::any_of(streams, [](const AVStream* stream) {
        return stream->codecpar->codec_type == AVMEDIA_TYPE_AUDIO;
    });
    return audio ? refusal(KV_MEDIA_NO_VIDEO, "no video in it")
                 : refusal(KV_MEDIA_UNREADABLE, "no video in it, truncated or damaged");
}

void describePicture(KvMediaInfo& info, AVFormatContext* format, AVStream* stream)
{
    const AVCodecParameters& codec = *stream->codecpar;
    const AVRational rate = av_guess_frame_rate(format, stream, nullptr);
    const AVRational aspect = av_guess_sample_aspect_ratio(format, stream, nullptr);
    info.width = codec.width;
    info.height = codec.height;
    if (rate.num > 0 && rate.den > 0) {
        info.frame_rate_num = rate.num;
        info.frame_rate_den = rate.den;
    }
    if (aspect.num > 0 && aspect.den > 0) {
        info.pixel_aspect_num = aspect.num;
        info.pixel_aspect_den = aspect.den;
    }
}

/// The display order of the fields: the second letter of FFmpeg's names.
void describeFields(KvMediaInfo& info, AVFieldOrder order)
{
    info.scan = order > AV_FIELD_PROGRESSIVE ? KV_MEDIA_INTERLACED : KV_MEDIA_PROGRESSIVE;
    info.field_order = order == AV_FIELD_BB || order == AV_FIELD_TB ? KV_MEDIA_BOTTOM_FIELD_FIRST
                                                                    : KV_MEDIA_TOP_FIELD_FIRST;
}

/// The streams that are shown together with the main one: all, where there are no programs.
bool isOfProgram(AVFormatContext* format, int main, int other)
{
    const AVProgram* program = av_find_program_from_stream(format, nullptr, main);
    if (!program) {
        return true;
    }
    const auto end = program->stream_index + program->nb_stream_indexes;
    return std::find(program->stream_index, end, static_cast<unsigned>(other)) != end;
}

/// Streams of further views only, which go with the main stream.
std::vector<const StreamCount*> dependentStreams(AVFormatContext* format, int main,
                                                 const StreamCounts& counts)
{
    std::vector<const StreamCount*> dependents;
    for (const auto& [index, count] : counts.streams) {
        if (index != main && count.isDependent() && isOfProgram(format, main, index)) {
            dependents.push_back(&count);
        }
    }
    return dependents;
}

/// Its rate is what comes out, and no aim.
bool isLossless(AVCodecID codec)
{
    const AVCodecDescriptor* descriptor = avcodec_descriptor_get(codec);
    return descriptor && (descriptor->props & AV_CODEC_PROP_LOSSLESS) != 0 &&
           (descriptor->props & AV_CODEC_PROP_LOSSY) == 0;
}

void describeRates(KvMediaInfo& info, const AVStream& stream, const StreamCount& main,
                   const std::vector<const StreamCount*>& dependents)
{
    const double rate = info.frame_rate_den > 0
                            ? static_cast<double>(info.frame_rate_num) / info.frame_rate_den
                            : 0;
    if (isLossless(stream.codecpar->codec_id)) {
        return;
    }
    info.bit_rate = stream.codecpar->bit_rate;
    if (info.bit_rate <= 0 || info.bit_rate == variableRate) {
        info.bit_rate = main.bitRate(rate);
    }
    if (info.num_views > 1) {
        info.dependent_bit_rate =
            std::llround(static_cast<double>(info.bit_rate) * main.headers().dependentShare());
    }
    for (const StreamCount* dependent : dependents) {
        info.bit_rate += dependent->bitRate(rate);
        info.dependent_bit_rate += dependent->bitRate(rate);
    }
}

bool isContainer(const MediaInput& input, const char* name)
{
    return std::strcmp(input.format()->iformat->name, name) == 0;
}

/// FFmpeg takes 25 pictures a second for an elementary stream that does not tell a number.
bool isRateMadeUp(const MediaInput& input, const H264Scan& scan)
{
    const std::optional<SequenceParameters>& base = scan.base();
    const Usability usability = base ? base->usability : Usability{};
    return isContainer(input, "h264") && (usability.timeScale == 0 || usability.unitsInTick == 0);
}

void describeSignalledBuffer(KvMediaInfo& info, const AVStream& stream)
{
    const auto* buffer = reinterpret_cast<const AVCPBProperties*>(
        av_stream_get_side_data(&stream, AV_PKT_DATA_CPB_PROPERTIES, nullptr));
    if (buffer && info.hrd_bit_rate == 0 && buffer->max_bitrate > 0 && buffer->buffer_size > 0) {
        info.hrd_bit_rate = buffer->max_bitrate;
        info.hrd_buffer_size = buffer->buffer_size;
    }
}

/// FFmpeg's parser cuts a transport stream's packets at the pictures of a base view, and finds none
/// in a stream of further views: such a stream would come out as one packet at the end.
StreamCounts scanPackets(MediaInput& input, int descriptor, const char* name,
                         MediaInput::TimePoint deadline)
{
    if (isContainer(input, "mpegts")) {
        MediaInput stored(descriptor, deadline);
        if (stored.openAsStored(name) >= 0) {
            return scanStreams(stored);
        }
    }
    return scanStreams(input);
}

} // namespace

ProbeAnswer streamFacts(int descriptor, const char* name)
{
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(softSeconds);
    MediaInput input(descriptor, deadline);
    const int opened = input.open(name);
    if (opened < 0) {
        return refusalFor(opened, input);
    }
    AVStream* stream = mainStream(input.format());
    if (!stream) {
        return refusalWithoutVideo(*input.format());
    }
    if (isTruncated(input.format(), stream)) {
        return refusal(KV_MEDIA_UNREADABLE, "truncated");
    }

    ProbeAnswer answer;
    KvMediaInfo& info = answer.info;
    copyName(info.codec_name, avcodec_get_name(stream->codecpar->codec_id));
    copyName(info.container_name, input.format()->iformat->name);
    info.num_ref_frames = -1;
    info.num_views = 1;
    describePicture(info, input.format(), stream);
    describeFields(info, stream->codecpar->field_order);
    describeSamples(info, *stream->codecpar);
    const StreamCounts counts = scanPackets(input, descriptor, name, deadline);
    const auto main = counts.streams.find(stream->index);
    if (main == counts.streams.end() || main->second.isEmpty()) {
        return refusal(KV_MEDIA_UNREADABLE, "its video stream holds no pictures");
    }
    const auto dependents = dependentStreams(input.format(), stream->index, counts);
    if (stream->codecpar->codec_id == AV_CODEC_ID_H264) {
        describeH264(info, main->second.headers(), counts.isWhole);
        describeViews(info, main->second.headers(), counts.isWhole);
    }
    for (const StreamCount* dependent : dependents) {
        info.separate_views = 1;
        describeViews(info, dependent->headers(), counts.isWhole);
    }
    describeRates(info, *stream, main->second, dependents);
    describeSignalledBuffer(info, *stream);
    if (isRateMadeUp(input, main->second.headers())) {
        info.frame_rate_num = info.frame_rate_den = 0;
    }
    return answer;
}

} // namespace kv
