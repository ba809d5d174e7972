#include "h264_gop.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <tuple>
#include <vector>

namespace kv
{
namespace
{

using Frames = std::span<const CodedFrame>;

/// Fields that are shown of a picture, by its pic_struct (Table D-1); those of a field picture's
/// frame.
constexpr int shownFields[] = {2, 2, 2, 2, 2, 3, 3, 4, 6};

/// The frames up to which nothing is missing that is shown before them.
Frames completeFrames(Frames frames, bool isWhole)
{
    if (isWhole) {
        return frames;
    }
    std::size_t last = frames.size();
    while (last > 0 && frames[last - 1].kind == FrameKind::B) {
        --last;
    }
    return last > 1 ? frames.first(last - 1) : frames;
}

/// The places in the order of decoding, in the order of showing.
std::vector<std::size_t> shownOrder(Frames frames)
{
    std::vector<std::size_t> order(frames.size());
    for (std::size_t at = 0; at < order.size(); ++at) {
        order[at] = at;
    }
    std::ranges::stable_sort(order, {}, [&](std::size_t at) {
        return std::tuple(frames[at].sequence, frames[at].order);
    });
    return order;
}

/// B frames between two others.
struct Run {
    int length = 0;
    bool endsAtI = false;
};

std::vector<Run> runsOf(Frames frames, const std::vector<std::size_t>& shown)
{
    std::vector<Run> runs;
    bool begun = false;
    int length = 0;
    for (const std::size_t at : shown) {
        if (frames[at].kind == FrameKind::B) {
            ++length;
            continue;
        }
        if (begun) {
            runs.push_back({length, frames[at].kind == FrameKind::I});
        }
        begun = true;
        length = 0;
    }
    return runs;
}

/// Whether a run is shorter than others though nothing but the encoder's choice made it so: the
/// last ones before an I frame and before the end have to make do with what is left.
bool isAdaptive(const std::vector<Run>& runs, int longest)
{
    for (std::size_t at = 0; at + 1 < runs.size(); ++at) {
        const bool isLeft = runs[at].endsAtI || (runs[at + 1].endsAtI && runs[at + 1].length == 0);
        if (runs[at].length != longest && !isLeft) {
            return true;
        }
    }
    return false;
}

/// A B frame that others refer to is decoded before B frames that are shown before it.
bool isPyramid(Frames frames, const std::vector<std::size_t>& shown)
{
    std::size_t latest = 0; // decoded, of the run so far
    for (const std::size_t at : shown) {
        const CodedFrame& frame = frames[at];
        if (frame.kind != FrameKind::B) {
            latest = 0;
            continue;
        }
        if (frame.isReference && at < latest) {
            return true;
        }
        latest = std::max(latest, at);
    }
    return false;
}

void describeB(Frames frames, const std::vector<std::size_t>& shown, CodingFacts& facts)
{
    if (std::ranges::all_of(frames,
                            [](const CodedFrame& frame) { return frame.kind == FrameKind::I; })) {
        return;
    }
    const std::vector<Run> runs = runsOf(frames, shown);
    facts.bFrames = runs.empty() ? 0 : std::ranges::max(runs, {}, &Run::length).length;
    facts.adaptiveB = isAdaptive(runs, facts.bFrames);
    facts.referenceB = std::ranges::any_of(frames, [](const CodedFrame& frame) {
        return frame.kind == FrameKind::B && frame.isReference;
    });
    facts.pyramidB = isPyramid(frames, shown);
}

void describeI(Frames frames, const std::vector<std::size_t>& shown, CodingFacts& facts)
{
    int sinceI = -1;   // frames; below 0: none yet
    int sinceIdr = -1; // I frames
    int pictures = 0;
    for (const std::size_t at : shown) {
        sinceI += sinceI < 0 ? 0 : 1;
        const CodedFrame& frame = frames[at];
        if (frame.kind != FrameKind::I) {
            continue;
        }
        ++pictures;
        facts.iDistance = std::max(facts.iDistance, sinceI);
        sinceI = 0;
        sinceIdr += sinceIdr < 0 ? 0 : 1;
        if (frame.isIdr) {
            facts.idrDistance = std::max(facts.idrDistance, sinceIdr > 0 ? sinceIdr : -1);
            sinceIdr = 0;
        }
    }
    if (pictures > 1 && facts.idrDistance < 0) {
        facts.idrDistance = 0;
    }
}

std::optional<int> averageQuantizer(Frames frames, FrameKind kind)
{
    double sum = 0;
    int count = 0;
    for (const CodedFrame& frame : frames) {
        if (frame.kind == kind && frame.quantizer) {
            sum += *frame.quantizer;
            ++count;
        }
    }
    return count == 0 ? std::nullopt : std::optional(static_cast<int>(std::lround(sum / count)));
}

int mostFrequentSlices(Frames frames)
{
    std::map<int, int> counts;
    for (const CodedFrame& frame : frames) {
        ++counts[frame.slices];
    }
    const auto most =
        std::ranges::max_element(counts, {}, [](const auto& count) { return count.second; });
    return most == counts.end() ? 0 : most->first;
}

std::vector<int>::const_iterator at(const std::vector<int>& values, std::size_t place)
{
    return values.begin() + static_cast<std::ptrdiff_t>(place);
}

bool repeats(const std::vector<int>& values, std::size_t period)
{
    return std::equal(at(values, period), values.end(), values.begin());
}

} // namespace

CodingFacts factsOfFrames(std::span<const CodedFrame> all, bool isWhole)
{
    CodingFacts facts;
    const Frames frames = completeFrames(all, isWhole);
    const std::vector<std::size_t> shown = shownOrder(frames);
    facts.frames = static_cast<int>(all.size());
    facts.slices = mostFrequentSlices(all);
    for (const FrameKind kind : {FrameKind::I, FrameKind::P, FrameKind::B}) {
        facts.quantizers[static_cast<std::size_t>(kind)] = averageQuantizer(all, kind);
    }
    describeB(frames, shown, facts);
    describeI(frames, shown, facts);
    return facts;
}

Cadence cadenceOf(std::span<const CodedFrame> all, bool isWhole)
{
    const Frames frames = completeFrames(all, isWhole);
    std::vector<int> shown;
    for (const std::size_t at : shownOrder(frames)) {
        const int structure = frames[at].structure;
        if (structure < 0 || structure >= static_cast<int>(std::size(shownFields))) {
            return {};
        }
        shown.push_back(shownFields[structure]);
    }
    if (std::ranges::all_of(shown, [](int fields) { return fields == shownFields[0]; })) {
        return {};
    }
    // Seen twice at least, or else the whole.
    std::size_t period = 1;
    while (period < shown.size() && !repeats(shown, period)) {
        period = period < std::max<std::size_t>(2, shown.size() / 2) ? period + 1 : shown.size();
    }
    Cadence cadence;
    cadence.fields = std::accumulate(shown.cbegin(), at(shown, period), 0);
    cadence.frames = static_cast<int>(period);
    cadence.firstFields = shown[0];
    return cadence;
}

} // namespace kv
