#include "h264_scan.h"

#include "bit_reader.h"

namespace kv
{
namespace
{

constexpr std::size_t sliceBeginning = 512; // with tables of weights

std::vector<uint8_t> payloadOf(const NalUnit& unit, std::size_t header, std::size_t limit)
{
    return withoutEmulationPrevention(unit.head.subspan(header), limit);
}

} // namespace

void H264Scan::visit(const NalUnit& unit)
{
    const int type = unit.type();
    const bool dependent = type == NalViewSlice || type == NalSubsetSequenceParameters;
    (dependent ? m_dependentBytes : m_baseBytes) += unit.size;
    switch (type) {
    case NalSlice:
    case NalIdrSlice:
        visitSlice(unit.head.first(1), payloadOf(unit, 1, sliceBeginning), m_sequences,
                   m_basePictures);
        break;
    case NalViewSlice:
        visitViewSlice(unit);
        break;
    case NalSupplement:
        visitSupplement(payloadOf(unit, 1, longestUnitHead));
        break;
    case NalSequenceParameters:
        visitSequence(payloadOf(unit, 1, longestUnitHead));
        break;
    case NalSubsetSequenceParameters:
        visitSubset(payloadOf(unit, 1, longestUnitHead));
        break;
    case NalPictureParameters:
        visitPictureParameters(payloadOf(unit, 1, longestUnitHead));
        break;
    default:
        break;
    }
}

double H264Scan::dependentShare() const
{
    const uint64_t all = m_baseBytes + m_dependentBytes;
    return all == 0 ? 0 : static_cast<double>(m_dependentBytes) / static_cast<double>(all);
}

void H264Scan::visitSequence(Bytes payload)
{
    const auto sequence = parseSequenceParameters(payload, false);
    if (!sequence) {
        return;
    }
    m_sequences[sequence->id] = sequence;
    if (!m_base) {
        m_base = sequence;
    }
}

void H264Scan::visitSubset(Bytes payload)
{
    const auto sequence = parseSequenceParameters(payload, true);
    if (!sequence || !isMultiviewProfile(sequence->profile)) {
        return;
    }
    m_subsets[sequence->id] = sequence;
    if (!m_subset || sequence->views > m_subset->views) {
        m_subset = sequence;
    }
}

void H264Scan::visitPictureParameters(Bytes payload)
{
    if (const auto picture = parsePictureParameters(payload)) {
        m_pictures[picture->id] = picture;
    }
}

/// The message's form depends on the active set, which is the one of the slices before.
void H264Scan::visitSupplement(Bytes payload)
{
    const auto& sequence = m_activeSequence ? m_sequences[*m_activeSequence] : m_base;
    if (!sequence) {
        return;
    }
    if (const auto structure = parsePictureStructure(payload, sequence->usability)) {
        m_structure = structure;
    }
}

/// nal_unit_header_mvc_extension (H.7.3.1.1), three bytes.
void H264Scan::visitViewSlice(const NalUnit& unit)
{
    constexpr std::size_t header = 4;
    if (unit.head.size() <= header || (unit.head[1] & 0x80) != 0) { // a scalable stream's
        return;
    }
    const uint32_t view = uint32_t(unit.head[2]) << 2 | unit.head[3] >> 6;
    m_views.set(view);
    m_secondView = m_secondView.value_or(view);
    if (view == *m_secondView) {
        visitSlice(unit.head.first(header), payloadOf(unit, header, sliceBeginning), m_subsets,
                   m_secondPictures);
    }
}

void H264Scan::visitSlice(Bytes head, Bytes payload, const Sequences& sequences,
                          PictureTrack& track)
{
    const auto id = pictureParametersOfSlice(payload);
    if (!id) {
        return;
    }
    const auto& picture = m_pictures[*id];
    if (!picture) {
        return;
    }
    const auto& sequence = sequences[picture->sequence];
    if (!sequence) {
        return;
    }
    const bool isBase = &track == &m_basePictures;
    if (const auto slice = parseSlice(head, payload, *sequence, *picture)) {
        track.visit(*slice, *sequence, *picture, isBase ? m_structure : std::nullopt);
    }
    if (isBase) {
        m_activeSequence = picture->sequence;
        m_structure.reset();
    }
}

} // namespace kv
