// The pictures of one view, put together from their slices.
#pragma once

#include "h264_gop.h"
#include "h264_slices.h"

namespace kv
{

/// Puts slices of one view together.
class PictureTrack
{
public:
    /// @param structure pic_struct of the message before the slice, if there was one.
    void visit(const SliceHeader& slice, const SequenceParameters& sequence,
               const PictureParameters& picture, std::optional<int> structure);

    /// In the order of decoding.
    const std::vector<CodedFrame>& frames() const { return m_frames; }
    bool hasFields() const { return m_hasFields; }
    /// @param isWhole As of factsOfFrames().
    CodingFacts facts(bool isWhole) const;

private:
    bool beginsPicture(const SliceHeader& slice, const SequenceParameters& sequence) const;
    bool completesFrame(const SliceHeader& slice) const;
    void beginPicture(const SliceHeader& slice, const SequenceParameters& sequence,
                      std::optional<int> structure);
    int64_t orderOf(const SliceHeader& slice, const SequenceParameters& sequence);
    int64_t orderFromBits(const SliceHeader& slice, const PictureOrder& order);
    int64_t orderFromCycle(const SliceHeader& slice, const SequenceParameters& sequence);

    std::vector<CodedFrame> m_frames;
    std::optional<SliceHeader> m_last;
    bool m_inSecondField = false;
    bool m_hasFields = false;
    uint32_t m_sequences = 0;
    // Of the picture before (8.2.1)
    int64_t m_orderTop = 0; ///< the part beyond the bits
    int64_t m_orderBits = 0;
    int64_t m_frameOffset = 0;
    uint32_t m_frameNumber = 0;
    // Of all slices
    int m_cabac[2] = {};
    int m_weighted[2] = {}; ///< of P slices
    int m_deblocked[2] = {};
};

} // namespace kv
