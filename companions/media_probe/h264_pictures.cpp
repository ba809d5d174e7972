#include "h264_pictures.h"

#include <algorithm>

namespace kv
{
namespace
{

/// Far more than a scan reads; a frame takes a slice of a few bytes.
constexpr std::size_t mostFrames = 4096;

FrameKind kindOf(SliceKind kind)
{
    switch (kind) {
    case SliceKind::B:
        return FrameKind::B;
    case SliceKind::P:
    case SliceKind::SwitchingP:
        return FrameKind::P;
    default:
        return FrameKind::I;
    }
}

/// A flag that all slices agree on.
int agreed(const int (&counts)[2])
{
    return counts[0] > 0 && counts[1] > 0 ? -1 : counts[1] > 0 ? 1 : counts[0] > 0 ? 0 : -1;
}

} // namespace

/// First slices of primary coded pictures (7.4.1.2.4), within one view.
bool PictureTrack::beginsPicture(const SliceHeader& slice, const SequenceParameters& sequence) const
{
    if (!m_last) {
        return true;
    }
    const SliceHeader& last = *m_last;
    const bool orderDiffers = slice.orderBits != last.orderBits ||
                              slice.orderDeltas[0] != last.orderDeltas[0] ||
                              slice.orderDeltas[1] != last.orderDeltas[1];
    return slice.frameNumber != last.frameNumber || slice.field != last.field ||
           slice.bottomField != last.bottomField || slice.isReference != last.isReference ||
           slice.isIdr != last.isIdr || slice.idrPicture != last.idrPicture ||
           (sequence.order.type < 2 && orderDiffers);
}

/// The second field of a frame (3.30).
bool PictureTrack::completesFrame(const SliceHeader& slice) const
{
    return m_last && !m_inSecondField && slice.field && m_last->field &&
           slice.bottomField != m_last->bottomField && slice.frameNumber == m_last->frameNumber &&
           (!slice.isIdr || m_last->isIdr);
}

void PictureTrack::visit(const SliceHeader& slice, const SequenceParameters& sequence,
                         const PictureParameters& picture, std::optional<int> structure)
{
    const FrameKind kind = kindOf(slice.kind);
    if (beginsPicture(slice, sequence)) {
        m_inSecondField = completesFrame(slice);
        if (!m_inSecondField) {
            if (m_frames.size() >= mostFrames) {
                return;
            }
            beginPicture(slice, sequence, structure);
        }
    }
    m_last = slice;
    m_hasFields = m_hasFields || slice.field;
    CodedFrame& frame = m_frames.back();
    if (!m_inSecondField) {
        ++frame.slices;
        frame.kind = std::max(frame.kind, kind);
    } else if (frame.kind != FrameKind::I) { // an I field makes an I frame, whatever follows it
        frame.kind = std::max(frame.kind, kind);
    }
    ++m_cabac[picture.cabac ? 1 : 0];
    if (kind == FrameKind::P) {
        ++m_weighted[picture.weightedP ? 1 : 0];
    }
    if (slice.deblocking) {
        ++m_deblocked[*slice.deblocking ? 1 : 0];
    }
}

void PictureTrack::beginPicture(const SliceHeader& slice, const SequenceParameters& sequence,
                                std::optional<int> structure)
{
    CodedFrame frame;
    frame.isIdr = slice.isIdr;
    frame.isReference = slice.isReference;
    frame.quantizer = slice.quantizer;
    frame.structure = structure.value_or(-1);
    frame.order = orderOf(slice, sequence);
    frame.sequence = m_sequences;
    if (slice.resetsOrder) { // 7.4.3.3: as after an IDR picture
        ++m_sequences;
        m_orderTop = m_orderBits = m_frameOffset = 0;
        m_frameNumber = 0;
    }
    m_frames.push_back(frame);
}

int64_t PictureTrack::orderOf(const SliceHeader& slice, const SequenceParameters& sequence)
{
    if (slice.isIdr) {
        ++m_sequences;
        m_orderTop = m_orderBits = m_frameOffset = 0;
        m_frameNumber = 0;
    }
    switch (sequence.order.type) {
    case 0:
        return orderFromBits(slice, sequence.order);
    case 1:
        return orderFromCycle(slice, sequence);
    default: // as decoded (8.2.1.3)
        return static_cast<int64_t>(m_frames.size());
    }
}

/// 8.2.1.1
int64_t PictureTrack::orderFromBits(const SliceHeader& slice, const PictureOrder& order)
{
    const int64_t range = int64_t(1) << order.bits;
    const int64_t bits = slice.orderBits;
    int64_t top = m_orderTop;
    if (bits < m_orderBits && m_orderBits - bits >= range / 2) {
        top += range;
    } else if (bits > m_orderBits && bits - m_orderBits > range / 2) {
        top -= range;
    }
    if (slice.isReference) {
        m_orderTop = top;
        m_orderBits = bits;
    }
    return top + bits + std::min(slice.orderDeltas[1], 0);
}

/// 8.2.1.2
int64_t PictureTrack::orderFromCycle(const SliceHeader& slice, const SequenceParameters& sequence)
{
    const PictureOrder& order = sequence.order;
    if (slice.frameNumber < m_frameNumber) {
        m_frameOffset += int64_t(1) << sequence.frameNumBits;
    }
    m_frameNumber = slice.frameNumber;
    int64_t references = order.cycle.empty() ? 0 : m_frameOffset + slice.frameNumber;
    references -= !slice.isReference && references > 0 ? 1 : 0;
    int64_t sum = 0;
    for (const int32_t offset : order.cycle) {
        sum += offset;
    }
    int64_t expected = 0;
    if (references > 0) {
        const auto length = static_cast<int64_t>(order.cycle.size());
        expected = (references - 1) / length * sum;
        for (int64_t at = 0; at <= (references - 1) % length; ++at) {
            expected += order.cycle[static_cast<std::size_t>(at)];
        }
    }
    expected += slice.isReference ? 0 : order.nonReference;
    return expected + slice.orderDeltas[0] + (slice.bottomField ? order.topToBottom : 0);
}

CodingFacts PictureTrack::facts(bool isWhole) const
{
    CodingFacts facts = factsOfFrames(m_frames, isWhole);
    facts.entropyMode = agreed(m_cabac);
    facts.weightedP = agreed(m_weighted);
    facts.deblocking = m_deblocked[1] > 0 ? 1 : m_deblocked[0] > 0 ? 0 : -1;
    return facts;
}

} // namespace kv
