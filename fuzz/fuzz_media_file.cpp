// Any bytes are a media file that is described or refused with a reason, and a name beside which
// the video of a DVD title is looked for.
#include <dvd_title.h>
#include <stream_facts.h>

#include <algorithm>
#include <cstdlib>
#include <string>

#include <sys/mman.h>
#include <unistd.h>

extern "C" {
#include <libavutil/log.h>
}

namespace
{

void must(bool condition)
{
    if (!condition) {
        std::abort();
    }
}

void describe(const uint8_t* data, std::size_t size)
{
    const int file = ::memfd_create("media", 0);
    must(file >= 0 && ::write(file, data, size) == static_cast<ssize_t>(size));
    const kv::ProbeAnswer answer = kv::streamFacts(file, "film.ts");
    ::close(file);
    const bool hasReason = answer.info.reason[0] != '\0';
    must(answer.result >= KV_MEDIA_OK && answer.result <= KV_MEDIA_LIMIT);
    must(hasReason == (answer.result != KV_MEDIA_OK));
    must(answer.result != KV_MEDIA_OK || (answer.info.width > 0 && answer.info.height > 0));
}

/// All but the suffix and the number of the part stays.
void nameVideo(const std::string& path)
{
    constexpr std::size_t mostChanged = 5;
    const std::string video = kv::videoOfDvdTitle(path);
    const std::size_t same = path.size() - std::min(path.size(), mostChanged);
    must(video.size() == path.size() && video.compare(0, same, path, 0, same) == 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size)
{
    av_log_set_level(AV_LOG_QUIET);
    describe(data, size);
    nameVideo({reinterpret_cast<const char*>(data), size});
    nameVideo(std::string(reinterpret_cast<const char*>(data), size) + "_0.IFO");
    return 0;
}
