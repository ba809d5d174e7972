// Gathers what the NAL units of one H.264 stream tell.
#pragma once

#include "h264_pictures.h"

#include <array>
#include <bitset>

namespace kv
{

class H264Scan
{
public:
    void visit(const NalUnit& unit);

    const std::optional<SequenceParameters>& base() const { return m_base; }
    /// The subset parameter set of most views; only those of multiview profiles count.
    const std::optional<SequenceParameters>& subset() const { return m_subset; }
    /// Views beyond the base view that slices belong to.
    int furtherViews() const { return static_cast<int>(m_views.count()); }
    const PictureTrack& basePictures() const { return m_basePictures; }
    /// Those of the first view after the base view.
    const PictureTrack& secondPictures() const { return m_secondPictures; }
    /// The part of the stream's bytes that further views have: 0 to 1.
    double dependentShare() const;

private:
    static constexpr std::size_t mostViews = 1024;
    static constexpr std::size_t mostSequences = 32;
    static constexpr std::size_t mostPictures = 256;
    using Sequences = std::array<std::optional<SequenceParameters>, mostSequences>;

    void visitSequence(Bytes payload);
    void visitSubset(Bytes payload);
    void visitPictureParameters(Bytes payload);
    void visitSupplement(Bytes payload);
    void visitViewSlice(const NalUnit& unit);
    void visitSlice(Bytes head, Bytes payload, const Sequences& sequences, PictureTrack& track);

    Sequences m_sequences;
    Sequences m_subsets;
    std::array<std::optional<PictureParameters>, mostPictures> m_pictures;
    std::optional<SequenceParameters> m_base;
    std::optional<SequenceParameters> m_subset;
    std::optional<uint32_t> m_activeSequence;
    std::optional<int> m_structure; // told for the next picture
    std::bitset<mostViews> m_views;
    std::optional<uint32_t> m_secondView;
    PictureTrack m_basePictures;
    PictureTrack m_secondPictures;
    uint64_t m_baseBytes = 0;
    uint64_t m_dependentBytes = 0;
};

} // namespace kv
