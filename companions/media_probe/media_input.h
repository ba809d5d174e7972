// A media file as FFmpeg's libraries see it: one descriptor, few formats, and a time limit.
#ifndef KV_MEDIA_INPUT_H
#define KV_MEDIA_INPUT_H

#include <chrono>
#include <optional>

extern "C" {
#include <libavformat/avformat.h>
}

namespace kv
{

/**
 * Nothing but the descriptor is read, whatever other files or addresses the media names; only the
 * formats and decoders of recorded video are tried.
 */
class MediaInput
{
public:
    MediaInput(int descriptor, std::chrono::seconds limit);
    ~MediaInput();
    MediaInput(const MediaInput&) = delete;
    MediaInput& operator=(const MediaInput&) = delete;

    /** @return 0 or an AVERROR. */
    int open(const char* name);

    AVFormatContext* format() const { return m_format; }
    bool timeIsUp() const { return std::chrono::steady_clock::now() >= m_deadline; }

private:
    static int read(void* input, uint8_t* buffer, int size);
    static int64_t seek(void* input, int64_t offset, int whence);

    int m_descriptor;
    std::chrono::steady_clock::time_point m_deadline;
    AVFormatContext* m_format = nullptr;
    AVIOContext* m_io = nullptr;
};

} // namespace kv

#endif
