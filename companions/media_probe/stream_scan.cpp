#include "stream_scan.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace kv
{
namespace
{

constexpr int64_t kMostPackets = 20000;       // of all streams, audio too
constexpr int64_t kMostBytes = 16 << 20;      // of video: half a second of the highest level
constexpr int64_t kMostPictures = 250;        // of one stream: ten seconds of television
constexpr std::size_t kConfigurationHead = 6; // of an AVCDecoderConfigurationRecord
constexpr uint8_t kSequenceCountMask = 0x1F;

struct PacketDeleter {
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};

/** One list of parameter sets: a count and, for each, a length of 16 bits. */
Bytes visitParameterSets(Bytes sets, int count, H264Scan& scan)
{
    for (; count > 0 && sets.size() >= 2; --count) {
        const std::size_t length = static_cast<std::size_t>(sets[0] << 8 | sets[1]);
        const Bytes unit = sets.subspan(2, std::min(length, sets.size() - 2));
        scan.visit(unit);
        sets = sets.subspan(2 + unit.size());
    }
    return sets;
}

/** The parameter sets that the container keeps beside the packets. */
void visitConfiguration(const AVCodecParameters& codec, StreamCount& count)
{
    const Bytes data(codec.extradata, codec.extradata ? std::size_t(codec.extradata_size) : 0);
    if (data.size() <= kConfigurationHead || data[0] != 1) {
        forEachNalUnit(data, 0, [&](Bytes unit) { count.headers.visit(unit); });
        return;
    }
    count.lengthSize = (data[4] & 3) + 1;
    const Bytes rest = visitParameterSets(data.subspan(kConfigurationHead),
                                          data[5] & kSequenceCountMask, count.headers);
    if (!rest.empty())
        visitParameterSets(rest.subspan(1), rest[0], count.headers);
}

void visitPacket(const AVPacket& packet, bool h264, StreamCount& count)
{
    ++count.packets;
    count.bytes += packet.size;
    if (packet.dts != AV_NOPTS_VALUE) {
        count.firstTime = count.firstTime == AV_NOPTS_VALUE ? packet.dts : count.firstTime;
        count.lastTime = packet.dts;
    }
    if (h264)
        forEachNalUnit(Bytes(packet.data, static_cast<std::size_t>(packet.size)), count.lengthSize,
                       [&](Bytes unit) { count.headers.visit(unit); });
}

} // namespace

int64_t StreamCount::bitRate(double frameRate) const
{
    double seconds = frameRate > 0 ? static_cast<double>(packets) / frameRate : 0;
    if (packets > 1 && firstTime != AV_NOPTS_VALUE && lastTime > firstTime)
        seconds = (static_cast<double>(lastTime) - static_cast<double>(firstTime)) * timeBase *
                  static_cast<double>(packets) / static_cast<double>(packets - 1);
    const double rate = seconds > 0 ? static_cast<double>(bytes) * 8 / seconds : 0;
    return rate < 1e15 ? std::llround(rate) : 0;
}

bool isRecordedVideo(const AVStream& stream)
{
    return stream.codecpar->codec_type == AVMEDIA_TYPE_VIDEO &&
           (stream.disposition & AV_DISPOSITION_ATTACHED_PIC) == 0;
}

StreamCounts scanStreams(MediaInput& input)
{
    AVFormatContext* format = input.format();
    StreamCounts counts;
    for (unsigned index = 0; index < format->nb_streams; ++index) {
        const AVStream& stream = *format->streams[index];
        if (!isRecordedVideo(stream))
            continue;
        StreamCount& count = counts[static_cast<int>(index)];
        count.timeBase = av_q2d(stream.time_base);
        if (stream.codecpar->codec_id == AV_CODEC_ID_H264)
            visitConfiguration(*stream.codecpar, count);
    }
    const std::unique_ptr<AVPacket, PacketDeleter> packet(av_packet_alloc());
    int64_t bytes = 0;
    int64_t pictures = 0;
    for (int64_t read = 0; packet && read < kMostPackets && bytes < kMostBytes &&
                           pictures < kMostPictures && !input.timeIsUp();
         ++read) {
        if (av_read_frame(format, packet.get()) < 0)
            break;
        const auto count = counts.find(packet->stream_index);
        if (count != counts.end()) {
            const auto& codec = *format->streams[packet->stream_index]->codecpar;
            visitPacket(*packet, codec.codec_id == AV_CODEC_ID_H264, count->second);
            bytes += packet->size;
            pictures = std::max(pictures, count->second.packets);
        }
        av_packet_unref(packet.get());
    }
    return counts;
}

} // namespace kv
