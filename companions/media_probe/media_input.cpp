#include "media_input.h"

#include <algorithm>
#include <cerrno>
#include <unistd.h>

namespace kv
{
namespace
{

constexpr int bufferSize = 64 * 1024;
constexpr int mostStreams = 256;
constexpr int64_t probeBytes = 8 << 20;
constexpr int64_t probeTime = 5 * AV_TIME_BASE;

/// Playlists, capture devices, still pictures and text are no recordings.
constexpr char formats[] = "mpeg,mpegts,mpegvideo,m4v,h264,hevc,mov,mxf,avi,matroska,flv,asf,mp3,"
                           "aac,ac3,wav,vc1,yuv4mpegpipe";

constexpr char decoders[] =
    "h264,hevc,mpeg1video,mpeg2video,mpeg4,h263,vc1,wmv3,mjpeg,dvvideo,dnxhd,prores,vp8,vp9";

int refuseToOpen(AVFormatContext*, AVIOContext**, const char*, int, AVDictionary**)
{
    return AVERROR(EPERM);
}

} // namespace

MediaInput::MediaInput(int descriptor, TimePoint deadline)
    : m_descriptor(descriptor), m_deadline(deadline)
{
}

MediaInput::~MediaInput()
{
    avformat_close_input(&m_format);
    if (m_io) {
        av_freep(&m_io->buffer);
    }
    avio_context_free(&m_io);
}

int MediaInput::open(const char* name)
{
    const int opened = openFile(name, 0);
    return opened < 0 ? opened : std::min(0, avformat_find_stream_info(m_format, nullptr));
}

int MediaInput::openAsStored(const char* name)
{
    return openFile(name, AVFMT_FLAG_NOPARSE | AVFMT_FLAG_NOFILLIN);
}

int MediaInput::openFile(const char* name, int flags)
{
    m_size = ::lseek(m_descriptor, 0, SEEK_END);
    if (m_size < 0 || ::lseek(m_descriptor, 0, SEEK_SET) < 0) {
        return AVERROR(errno);
    }
    auto* buffer = static_cast<unsigned char*>(av_malloc(bufferSize));
    m_io = buffer ? avio_alloc_context(buffer, bufferSize, 0, this, read, nullptr, seek) : nullptr;
    m_format = avformat_alloc_context();
    if (!m_io || !m_format) {
        if (!m_io) {
            av_free(buffer);
        }
        return AVERROR(ENOMEM);
    }
    m_format->pb = m_io;
    m_format->flags |= flags;
    m_format->io_open = refuseToOpen;
    m_format->interrupt_callback = {
        [](void* input) -> int { return static_cast<MediaInput*>(input)->timeIsUp(); }, this};
    m_format->format_whitelist = av_strdup(formats);
    m_format->codec_whitelist = av_strdup(decoders);
    m_format->max_streams = mostStreams;
    m_format->probesize = probeBytes;
    m_format->max_analyze_duration = probeTime;
    return avformat_open_input(&m_format, name, nullptr, nullptr);
}

int MediaInput::read(void* opaque, uint8_t* buffer, int size)
{
    auto* input = static_cast<MediaInput*>(opaque);
    if (input->timeIsUp()) {
        return AVERROR_EXIT;
    }
    const ssize_t count = ::read(input->m_descriptor, buffer, static_cast<std::size_t>(size));
    if (count < 0) {
        input->m_readError = errno;
        return AVERROR(errno);
    }
    return count == 0 ? AVERROR_EOF : static_cast<int>(count);
}

int64_t MediaInput::seek(void* opaque, int64_t offset, int whence)
{
    const auto* input = static_cast<MediaInput*>(opaque);
    if ((whence & AVSEEK_SIZE) != 0) {
        return input->m_size;
    }
    const off_t position = ::lseek(input->m_descriptor, offset, whence & ~AVSEEK_FORCE);
    return position < 0 ? AVERROR(errno) : position;
}

} // namespace kv
