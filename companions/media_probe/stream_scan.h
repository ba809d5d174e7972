// A walk over the first packets of a media file's video streams.
#ifndef KV_STREAM_SCAN_H
#define KV_STREAM_SCAN_H

#include "h264_headers.h"
#include "media_input.h"

#include <map>

namespace kv
{

/** What the packets of one stream amount to. */
struct StreamCount {
    H264Scan headers; /**< of an H.264 stream */
    int lengthSize = 0;
    int64_t packets = 0;
    int64_t bytes = 0;
    int64_t firstTime = AV_NOPTS_VALUE; /**< decoding time stamps in units of timeBase */
    int64_t lastTime = AV_NOPTS_VALUE;
    double timeBase = 0; /**< seconds */

    /**
     * The average in bit/s, by time stamps, else by the frame rate; 0 when neither tells.
     * @param frameRate Frames per second, or 0.
     */
    int64_t bitRate(double frameRate) const;
};

/** By stream index. */
using StreamCounts = std::map<int, StreamCount>;

/** Not the cover of an audio file. */
bool isRecordedVideo(const AVStream& stream);

/** Reads packets until the sample is large enough, the file ends or the time is up. */
StreamCounts scanStreams(MediaInput& input);

} // namespace kv

#endif
