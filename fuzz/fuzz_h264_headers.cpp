// Any bytes are walked through as a stream, framed in each way and cut into pieces, and tell
// nothing impossible.
#include <h264_scan.h>

#include <algorithm>
#include <cstdlib>

namespace
{

void must(bool condition)
{
    if (!condition) {
        std::abort();
    }
}

void mustBePossible(const std::optional<kv::SequenceParameters>& set)
{
    must(!set || (set->width > 0 && set->height > 0 && set->refFrames <= 16 &&
                  set->chromaFormat <= 3 && set->views >= 1 && set->views <= 1024));
}

void mustBePossible(const kv::PictureTrack& track)
{
    for (const bool isWhole : {false, true}) {
        const kv::CodingFacts facts = track.facts(isWhole);
        must(facts.frames >= 0 && facts.slices >= 0 && facts.bFrames >= -1);
        must(facts.iDistance >= 0 && facts.iDistance <= facts.frames);
        must(facts.idrDistance >= -1 && facts.idrDistance <= facts.frames);
        const kv::Cadence cadence = kv::cadenceOf(track.frames(), isWhole);
        must(cadence.frames >= 1 && cadence.fields >= 0 && cadence.fields <= cadence.frames * 6);
    }
}

void mustBePossible(const kv::H264Scan& scan)
{
    mustBePossible(scan.base());
    mustBePossible(scan.subset());
    mustBePossible(scan.basePictures());
    mustBePossible(scan.secondPictures());
    must(scan.furtherViews() >= 0 && scan.furtherViews() <= 1024);
    must(scan.dependentShare() >= 0 && scan.dependentShare() <= 1);
}

/// Pieces of a stream in start codes come to the same as the whole.
void scanInPieces(kv::Bytes stream, std::size_t piece)
{
    kv::H264Scan scan;
    std::size_t size = 0;
    const auto visit = [&](const kv::NalUnit& unit) {
        scan.visit(unit);
        size += unit.size;
    };
    std::size_t whole = 0;
    kv::forEachNalUnit(stream, 0, [&](const kv::NalUnit& unit) { whole += unit.size; });
    kv::UnitSplitter splitter;
    for (; !stream.empty(); stream = stream.subspan(std::min(piece, stream.size()))) {
        splitter.feed(stream.first(std::min(piece, stream.size())), visit);
    }
    splitter.finish(visit);
    must(size == whole);
    mustBePossible(scan);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size)
{
    for (const int lengthSize : {0, 1, 2, 3, 4}) {
        kv::H264Scan scan;
        kv::forEachNalUnit({data, size}, lengthSize,
                           [&](const kv::NalUnit& unit) { scan.visit(unit); });
        mustBePossible(scan);
    }
    scanInPieces({data, size}, 7);
    kv::H264Scan scan;
    must(kv::visitConfiguration({data, size}, [&](const kv::NalUnit& unit) { scan.visit(unit); }) <=
         4);
    mustBePossible(scan);
    return 0;
}
