// A walk over the first packets of a media file's video streams.
#pragma once

#include "h264_scan.h"
#include "media_input.h"

#include <map>

namespace kv
{

/// What the packets of one stream amount to.
class StreamCount
{
public:
    explicit StreamCount(const AVStream& stream);

    void visit(const AVPacket& packet);
    void finish();

    const H264Scan& headers() const { return m_headers; } ///< of an H.264 stream
    /// Frames of an H.264 stream's base view, or packets.
    int64_t pictures() const;
    bool isEmpty() const { return m_bytes == 0; }
    /// Only what builds on a base view that is elsewhere.
    bool isDependent() const;
    /// The average in bit/s, by time stamps, else by the frame rate; 0 when neither tells.
    /// @param frameRate Frames per second, or 0.
    int64_t bitRate(double frameRate) const;

private:
    void visitAddition(const AVPacket& packet);

    H264Scan m_headers;
    UnitSplitter m_splitter;
    bool m_isH264 = false;
    int m_lengthSize = 0;
    double m_timeBase = 0; ///< seconds
    int64_t m_packets = 0;
    int64_t m_bytes = 0;
    int64_t m_stamps = 0;
    int64_t m_firstTime = 0; ///< decoding time stamps in units of the time base
    int64_t m_lastTime = 0;
};

struct StreamCounts {
    std::map<int, StreamCount> streams; ///< by stream index
    bool isWhole = false;               ///< the file ended within what was read
};

/// Not the cover of an audio file.
bool isRecordedVideo(const AVStream& stream);

/// Reads packets until the sample is large enough, the file ends or the time is up.
StreamCounts scanStreams(MediaInput& input);

} // namespace kv
