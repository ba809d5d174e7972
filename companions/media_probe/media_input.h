// A media file as FFmpeg's libraries see it: one descriptor, few formats, and a time limit.
#pragma once

#include <chrono>
#include <optional>

extern "C" {
#include <libavformat/avformat.h>
}

namespace kv
{

/// Nothing but the descriptor is read, whatever other files or addresses the media names; only the
/// formats and decoders of recorded video are tried.
class MediaInput
{
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    /// @param descriptor Of a regular file; is read from its beginning by one input at a time.
    MediaInput(int descriptor, TimePoint deadline);
    ~MediaInput();
    MediaInput(const MediaInput&) = delete;
    MediaInput& operator=(const MediaInput&) = delete;

    /// Finds streams and describes them.
    /// @return 0 or an AVERROR.
    int open(const char* name);
    /// Finds streams only; packets come as the container has them, not a picture each.
    int openAsStored(const char* name);

    AVFormatContext* format() const { return m_format; }
    /// Why reading the file failed, an error number; 0: it did not.
    int readError() const { return m_readError; }
    bool timeIsUp() const { return std::chrono::steady_clock::now() >= m_deadline; }

private:
    int openFile(const char* name, int flags);
    static int read(void* input, uint8_t* buffer, int size);
    static int64_t seek(void* input, int64_t offset, int whence);

    int m_descriptor;
    int64_t m_size = 0;
    TimePoint m_deadline;
    int m_readError = 0;
    AVFormatContext* m_format = nullptr;
    AVIOContext* m_io = nullptr;
};

} // namespace kv
