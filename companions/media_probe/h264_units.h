// The NAL units of a stream, whole or in pieces.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

namespace kv
{

using Bytes = std::span<const uint8_t>;

/// nal_unit_type (Table 7-1).
enum NalType {
    NalSlice = 1,
    NalIdrSlice = 5,
    NalSupplement = 6,
    NalSequenceParameters = 7,
    NalPictureParameters = 8,
    NalPrefix = 14,
    NalSubsetSequenceParameters = 15,
    NalViewSlice = 20
};

/// What is kept of a unit: more than any parameter set or slice header takes.
constexpr std::size_t longestUnitHead = 4096;

struct NalUnit {
    Bytes head;           ///< the unit's beginning, header byte included; never empty
    std::size_t size = 0; ///< of the whole unit

    int type() const { return head[0] & 31; }
    bool isReference() const { return (head[0] & 0x60) != 0; } ///< nal_ref_idc is not 0
};

using UnitVisitor = std::function<void(const NalUnit&)>;

/// Removes the emulation prevention bytes (7.4.1.1) of at most the first `limit` bytes.
std::vector<uint8_t> withoutEmulationPrevention(Bytes bytes, std::size_t limit);

/// Finds units between start codes (Annex B) in a stream that comes in pieces cut anywhere.
class UnitSplitter
{
public:
    void feed(Bytes piece, const UnitVisitor& visit);
    /// The stream's end, which ends the last unit.
    void finish(const UnitVisitor& visit);

private:
    void append(uint8_t byte);

    std::vector<uint8_t> m_head;
    std::size_t m_size = 0;
    std::size_t m_zeros = 0; ///< that may belong to the unit or to the next start code
    bool m_inUnit = false;
};

/// Calls `visit` with each NAL unit of a stream that is there as a whole.
/// @param lengthSize Bytes of the length before each unit; 0: start codes (Annex B).
void forEachNalUnit(Bytes stream, int lengthSize, const UnitVisitor& visit);

/// Visits the units of an AVCDecoderConfigurationRecord (ISO/IEC 14496-15), of the one for further
/// views that may follow it as an "mvcC" box, or of a beginning in start codes.
/// @return Bytes of the length before each unit of the stream; 0: start codes.
int visitConfiguration(Bytes configuration, const UnitVisitor& visit);

} // namespace kv
