#include "h264_headers.h"

#include "bit_reader.h"

#include <algorithm>
#include <numeric>

namespace kv
{

std::vector<uint8_t> withoutEmulationPrevention(Bytes bytes, std::size_t limit)
{
    std::vector<uint8_t> result;
    int zeros = 0;
    for (const uint8_t byte : bytes.first(std::min(bytes.size(), limit))) {
        const bool prevention = zeros >= 2 && byte == 3;
        zeros = byte == 0 ? zeros + 1 : 0;
        if (!prevention)
            result.push_back(byte);
    }
    return result;
}

namespace
{

void forEachLengthPrefixed(Bytes stream, std::size_t lengthSize,
                           const std::function<void(Bytes)>& visit)
{
    while (stream.size() > lengthSize) {
        const uint64_t length = std::accumulate(
            stream.begin(), stream.begin() + static_cast<std::ptrdiff_t>(lengthSize), uint64_t(0),
            [](uint64_t sum, uint8_t byte) { return sum << 8 | byte; });
        stream = stream.subspan(lengthSize);
        const auto unit = stream.first(std::min<uint64_t>(length, stream.size()));
        if (!unit.empty())
            visit(unit);
        stream = stream.subspan(unit.size());
    }
}

/** The position of the next 00 00 01, or the stream's size. */
std::size_t nextStartCode(Bytes stream, std::size_t from)
{
    for (std::size_t at = from; at + 3 <= stream.size(); ++at) {
        if (stream[at] == 0 && stream[at + 1] == 0 && stream[at + 2] == 1)
            return at;
    }
    return stream.size();
}

} // namespace

void forEachNalUnit(Bytes stream, int lengthSize, const std::function<void(Bytes)>& visit)
{
    constexpr std::size_t kStartCode = 3;
    if (lengthSize > 0)
        return forEachLengthPrefixed(stream, static_cast<std::size_t>(lengthSize), visit);
    std::size_t at = nextStartCode(stream, 0);
    while (at < stream.size()) {
        const std::size_t begin = at + kStartCode;
        at = nextStartCode(stream, begin);
        std::size_t end = at;
        while (end > begin && stream[end - 1] == 0) // trailing_zero_8bits, or a longer start code
            --end;
        if (end > begin)
            visit(stream.subspan(begin, end - begin));
    }
}

void H264Scan::visit(Bytes unit)
{
    constexpr std::size_t kLongestHeader = 4096; // far more than any parameter set takes
    constexpr std::size_t kSliceBeginning = 32;
    const int type = unit.empty() ? 0 : unit[0] & 31;
    const bool dependent = type == NalViewSlice || type == NalSubsetSequenceParameters;
    (dependent ? m_dependentBytes : m_baseBytes) += unit.size();
    const bool slice = type == NalSlice || type == NalIdrSlice;
    if (!slice && type != NalSequenceParameters && type != NalPictureParameters &&
        type != NalSubsetSequenceParameters)
        return;
    const auto payload =
        withoutEmulationPrevention(unit.subspan(1), slice ? kSliceBeginning : kLongestHeader);
    if (slice)
        visitSlice(payload);
    else if (type == NalSequenceParameters)
        visitSequence(payload);
    else if (type == NalPictureParameters)
        visitPictureParameters(payload);
    else
        visitSubset(payload);
}

double H264Scan::dependentShare() const
{
    const uint64_t all = m_baseBytes + m_dependentBytes;
    return all == 0 ? 0 : static_cast<double>(m_dependentBytes) / static_cast<double>(all);
}

void H264Scan::visitSequence(Bytes payload)
{
    const auto sequence = parseSequenceParameters(payload, false);
    if (!sequence)
        return;
    m_sequences[sequence->id] = sequence;
    if (!m_base)
        m_base = sequence;
}

void H264Scan::visitSubset(Bytes payload)
{
    const auto sequence = parseSequenceParameters(payload, true);
    if (sequence && isMultiviewProfile(sequence->profile) &&
        (!m_subset || sequence->views > m_subset->views))
        m_subset = sequence;
}

void H264Scan::visitPictureParameters(Bytes payload)
{
    BitReader reader(payload);
    const uint32_t id = reader.unsignedGolomb();
    const uint32_t sequence = reader.unsignedGolomb();
    if (!reader.overrun() && id < m_sequenceOfPicture.size() && sequence < m_sequences.size())
        m_sequenceOfPicture[id] = static_cast<int>(sequence);
}

/** slice_header (7.3.3) as far as field_pic_flag. */
void H264Scan::visitSlice(Bytes payload)
{
    BitReader reader(payload);
    reader.unsignedGolomb(); // first_mb_in_slice
    reader.unsignedGolomb(); // slice_type
    const uint32_t picture = reader.unsignedGolomb();
    if (picture >= m_sequenceOfPicture.size() || m_sequenceOfPicture[picture] < 0)
        return;
    const auto& sequence = m_sequences[static_cast<std::size_t>(m_sequenceOfPicture[picture])];
    if (!sequence || sequence->framesOnly)
        return;
    if (sequence->separatePlanes)
        reader.bits(2);
    reader.bits(sequence->frameNumBits);
    m_fieldPictures = (reader.flag() && !reader.overrun()) || m_fieldPictures;
}

} // namespace kv
