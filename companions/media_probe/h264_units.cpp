#include "h264_units.h"

#include <algorithm>
#include <numeric>
#include <string_view>

namespace kv
{
namespace
{

void visitUnit(Bytes unit, const UnitVisitor& visit)
{
    if (!unit.empty()) {
        visit({unit.first(std::min(unit.size(), longestUnitHead)), unit.size()});
    }
}

/// As many units as `most`, each behind its length; what is left behind them.
Bytes visitLengthPrefixed(Bytes stream, std::size_t lengthSize, std::size_t most,
                          const UnitVisitor& visit)
{
    for (; most > 0 && stream.size() > lengthSize; --most) {
        const uint64_t length = std::accumulate(
            stream.begin(), stream.begin() + static_cast<std::ptrdiff_t>(lengthSize), uint64_t(0),
            [](uint64_t sum, uint8_t byte) { return sum << 8 | byte; });
        stream = stream.subspan(lengthSize);
        const auto unit = stream.first(std::min<uint64_t>(length, stream.size()));
        visitUnit(unit, visit);
        stream = stream.subspan(unit.size());
    }
    return stream;
}

/// Sequence parameter sets, the number of them in the bits of `countMask`, and picture parameter
/// sets.
Bytes visitParameterSets(Bytes record, uint8_t countMask, const UnitVisitor& visit)
{
    constexpr std::size_t head = 6; // with the first count
    constexpr std::size_t lengthSize = 2;
    if (record.size() <= head) {
        return {};
    }
    const Bytes rest =
        visitLengthPrefixed(record.subspan(head), lengthSize, record[head - 1] & countMask, visit);
    return rest.empty() ? rest : visitLengthPrefixed(rest.subspan(1), lengthSize, rest[0], visit);
}

} // namespace

std::vector<uint8_t> withoutEmulationPrevention(Bytes bytes, std::size_t limit)
{
    std::vector<uint8_t> result;
    int zeros = 0;
    for (const uint8_t byte : bytes.first(std::min(bytes.size(), limit))) {
        const bool prevention = zeros >= 2 && byte == 3;
        zeros = byte == 0 ? zeros + 1 : 0;
        if (!prevention) {
            result.push_back(byte);
        }
    }
    return result;
}

void UnitSplitter::append(uint8_t byte)
{
    if (m_head.size() < longestUnitHead) {
        m_head.push_back(byte);
    }
    ++m_size;
}

void UnitSplitter::feed(Bytes piece, const UnitVisitor& visit)
{
    for (const uint8_t byte : piece) {
        if (byte == 0) {
            ++m_zeros;
            continue;
        }
        if (byte == 1 && m_zeros >= 2) { // the zeros are the start code's, or trailing ones
            finish(visit);
            m_inUnit = true;
        } else if (m_inUnit) {
            for (; m_zeros > 0; --m_zeros) {
                append(0);
            }
            append(byte);
        }
        m_zeros = 0;
    }
}

void UnitSplitter::finish(const UnitVisitor& visit)
{
    if (m_size > 0) {
        visit({m_head, m_size});
    }
    m_head.clear();
    m_size = 0;
    m_zeros = 0;
    m_inUnit = false;
}

void forEachNalUnit(Bytes stream, int lengthSize, const UnitVisitor& visit)
{
    if (lengthSize > 0) {
        visitLengthPrefixed(stream, static_cast<std::size_t>(lengthSize), stream.size(), visit);
        return;
    }
    UnitSplitter splitter;
    splitter.feed(stream, visit);
    splitter.finish(visit);
}

int visitConfiguration(Bytes configuration, const UnitVisitor& visit)
{
    constexpr std::string_view furtherViews = "mvcC";
    constexpr uint8_t baseCount = 0x1F;  // numOfSequenceParameterSets: 5 bits,
    constexpr uint8_t viewsCount = 0x7F; // and 7 bits
    if (configuration.size() <= 6 || configuration[0] != 1) {
        forEachNalUnit(configuration, 0, visit);
        return 0;
    }
    const int lengthSize = (configuration[4] & 3) + 1;
    const Bytes rest = visitParameterSets(configuration, baseCount, visit);
    const auto box =
        std::search(rest.begin(), rest.end(), furtherViews.begin(), furtherViews.end());
    if (box != rest.end()) {
        const auto begin = box - rest.begin() + std::ssize(furtherViews);
        visitParameterSets(rest.subspan(static_cast<std::size_t>(begin)), viewsCount, visit);
    }
    return lengthSize;
}

} // namespace kv
