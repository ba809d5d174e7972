#include "stream_scan.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace kv
{
namespace
{

constexpr int64_t mostPackets = 20000;  // of all streams, audio too
constexpr int64_t mostBytes = 32 << 20; // of video: about a second of the highest level
constexpr int64_t mostPictures = 620;   // of one stream: two of the longest I picture distances

struct PacketDeleter {
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};

Bytes bytesOf(const uint8_t* data, std::size_t size)
{
    return {data, data ? size : 0};
}

/// Whether lengths lead from unit to unit and just to the end.
bool isLengthPrefixed(Bytes data, int lengthSize)
{
    std::size_t whole = 0;
    forEachNalUnit(data, lengthSize, [&](const NalUnit& unit) {
        whole += static_cast<std::size_t>(lengthSize) + unit.size;
    });
    return !data.empty() && whole == data.size();
}

} // namespace

StreamCount::StreamCount(const AVStream& stream)
    : m_isH264(stream.codecpar->codec_id == AV_CODEC_ID_H264), m_timeBase(av_q2d(stream.time_base))
{
    const AVCodecParameters& codec = *stream.codecpar;
    if (m_isH264) {
        m_lengthSize = visitConfiguration(
            bytesOf(codec.extradata, static_cast<std::size_t>(codec.extradata_size)),
            [this](const NalUnit& unit) { m_headers.visit(unit); });
    }
}

void StreamCount::visit(const AVPacket& packet)
{
    const auto visitUnit = [this](const NalUnit& unit) { m_headers.visit(unit); };
    ++m_packets;
    m_bytes += packet.size;
    if (packet.dts != AV_NOPTS_VALUE) {
        m_firstTime = m_stamps == 0 ? packet.dts : m_firstTime;
        m_lastTime = packet.dts;
        ++m_stamps;
    }
    if (!m_isH264) {
        return;
    }
    const Bytes data = bytesOf(packet.data, static_cast<std::size_t>(packet.size));
    if (m_lengthSize == 0) {
        m_splitter.feed(data, visitUnit);
        return;
    }
    forEachNalUnit(data, m_lengthSize, visitUnit);
    visitAddition(packet);
}

/// Matroska may keep further views beside the base view's pictures; other additions are not made of
/// units.
void StreamCount::visitAddition(const AVPacket& packet)
{
    constexpr std::size_t identifier = 8;
    std::size_t size = 0;
    const uint8_t* data =
        av_packet_get_side_data(&packet, AV_PKT_DATA_MATROSKA_BLOCKADDITIONAL, &size);
    if (!data || size <= identifier) {
        return;
    }
    const Bytes units = bytesOf(data, size).subspan(identifier);
    if (!isLengthPrefixed(units, m_lengthSize)) {
        return;
    }
    m_bytes += static_cast<int64_t>(units.size());
    forEachNalUnit(units, m_lengthSize, [this](const NalUnit& unit) {
        if (unit.type() == NalSubsetSequenceParameters || unit.type() == NalViewSlice) {
            m_headers.visit(unit);
        }
    });
}

void StreamCount::finish()
{
    m_splitter.finish([this](const NalUnit& unit) { m_headers.visit(unit); });
}

int64_t StreamCount::pictures() const
{
    return m_isH264 ? static_cast<int64_t>(m_headers.basePictures().frames().size()) : m_packets;
}

bool StreamCount::isDependent() const
{
    return m_headers.furtherViews() > 0 && m_headers.basePictures().frames().empty();
}

int64_t StreamCount::bitRate(double frameRate) const
{
    double seconds = frameRate > 0 ? static_cast<double>(pictures()) / frameRate : 0;
    if (m_stamps > 1 && m_lastTime > m_firstTime) {
        // What the last stamp begins takes as long as the others do.
        seconds = (static_cast<double>(m_lastTime) - static_cast<double>(m_firstTime)) *
                  m_timeBase * static_cast<double>(m_stamps) / static_cast<double>(m_stamps - 1);
    }
    const double rate = seconds > 0 ? static_cast<double>(m_bytes) * 8 / seconds : 0;
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
    const std::unique_ptr<AVPacket, PacketDeleter> packet(av_packet_alloc());
    int64_t bytes = 0;
    int64_t pictures = 0;
    for (int64_t read = 0; packet && read < mostPackets && bytes < mostBytes &&
                           pictures < mostPictures && !input.timeIsUp();
         ++read) {
        if (const int error = av_read_frame(format, packet.get()); error < 0) {
            counts.isWhole = error == AVERROR_EOF;
            break;
        }
        const AVStream& stream = *format->streams[packet->stream_index];
        if (isRecordedVideo(stream)) {
            StreamCount& count =
                counts.streams.try_emplace(packet->stream_index, stream).first->second;
            count.visit(*packet);
            bytes += packet->size;
            pictures = std::max(pictures, count.pictures());
        }
        av_packet_unref(packet.get());
    }
    for (auto& [index, count] : counts.streams) {
        count.finish();
    }
    return counts;
}

} // namespace kv
