// What the headers of an H.264 stream say: sequence parameter sets, those of further views, and
// the beginning of slices. Clauses are those of Rec. ITU-T H.264.
#ifndef KV_H264_HEADERS_H
#define KV_H264_HEADERS_H

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace kv
{

using Bytes = std::span<const uint8_t>;

/** nal_unit_type (Table 7-1). */
enum NalType {
    NalSlice = 1,
    NalIdrSlice = 5,
    NalSequenceParameters = 7,
    NalPictureParameters = 8,
    NalPrefix = 14,
    NalSubsetSequenceParameters = 15,
    NalViewSlice = 20
};

/** Sequence parameter set data (7.3.2.1.1), as far as settings know it. */
struct SequenceParameters {
    uint32_t id = 0;
    uint32_t profile = 0;
    uint32_t constraintFlags = 0;
    uint32_t level = 0;
    uint32_t chromaFormat = 1;
    bool separatePlanes = false;
    uint32_t bitDepthLuma = 8;
    uint32_t bitDepthChroma = 8;
    int frameNumBits = 4;
    uint32_t refFrames = 0;
    uint32_t width = 0;  // cropped
    uint32_t height = 0; // cropped
    bool framesOnly = true;
    bool mbaff = false;
    uint32_t aspectX = 0; // 0: not signalled
    uint32_t aspectY = 0;
    uint64_t hrdBitRate = 0; // 0: not signalled
    uint64_t hrdBufferSize = 0;
    bool hrdConstant = false;
    uint32_t views = 1; // of a subset parameter set
};

/** Whether subset parameter sets of the profile tell the number of views (Annex H). */
bool isMultiviewProfile(uint32_t profile);

/**
 * Parses the payload of a sequence parameter set or of a subset one, emulation prevention removed.
 * @return None for a damaged or impossible set.
 */
std::optional<SequenceParameters> parseSequenceParameters(Bytes payload, bool subset);

/** Removes the emulation prevention bytes (7.4.1.1) of at most the first `limit` bytes. */
std::vector<uint8_t> withoutEmulationPrevention(Bytes bytes, std::size_t limit);

/**
 * Calls `visit` with each NAL unit, header byte included.
 * @param lengthSize Bytes of the length before each unit; 0: start codes (Annex B).
 */
void forEachNalUnit(Bytes stream, int lengthSize, const std::function<void(Bytes)>& visit);

/** Gathers what the NAL units of one stream tell. */
class H264Scan
{
public:
    void visit(Bytes unit);

    const std::optional<SequenceParameters>& base() const { return m_base; }
    /** The subset parameter set of most views; only those of multiview profiles count. */
    const std::optional<SequenceParameters>& subset() const { return m_subset; }
    bool fieldPictures() const { return m_fieldPictures; }
    /** The part of the stream's bytes that further views have: 0 to 1. */
    double dependentShare() const;

private:
    void visitSequence(Bytes payload);
    void visitSubset(Bytes payload);
    void visitPictureParameters(Bytes payload);
    void visitSlice(Bytes payload);

    std::array<std::optional<SequenceParameters>, 32> m_sequences;
    std::array<int, 256> m_sequenceOfPicture = filledWith(-1);
    std::optional<SequenceParameters> m_base;
    std::optional<SequenceParameters> m_subset;
    bool m_fieldPictures = false;
    uint64_t m_baseBytes = 0;
    uint64_t m_dependentBytes = 0;

    static constexpr std::array<int, 256> filledWith(int value)
    {
        std::array<int, 256> array{};
        array.fill(value);
        return array;
    }
};

} // namespace kv

#endif
