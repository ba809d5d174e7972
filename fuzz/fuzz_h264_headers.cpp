// Any bytes are walked through as a stream, framed in each way, and tell nothing impossible.
#include <h264_headers.h>

#include <cstdlib>

namespace
{

void mustBePossible(const std::optional<kv::SequenceParameters>& set)
{
    if (set && (set->width == 0 || set->height == 0 || set->refFrames > 16 ||
                set->chromaFormat > 3 || set->views < 1 || set->views > 1024))
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size)
{
    for (const int lengthSize : {0, 1, 2, 3, 4}) {
        kv::H264Scan scan;
        kv::forEachNalUnit({data, size}, lengthSize, [&](kv::Bytes unit) { scan.visit(unit); });
        mustBePossible(scan.base());
        mustBePossible(scan.subset());
        if (!(scan.dependentShare() >= 0 && scan.dependentShare() <= 1))
            std::abort();
    }
    return 0;
}
