// Writes H.264 headers bit by bit (Rec. ITU-T H.264 7.2 and 9.1), for streams that no encoder
// makes.
#pragma once

#include <QByteArray>

#include <cstdint>

namespace kvtest
{

class BitWriter
{
public:
    /// u(count)
    BitWriter& bits(uint64_t value, int count)
    {
        for (int bit = count - 1; bit >= 0; --bit) {
            put(static_cast<int>(value >> bit & 1));
        }
        return *this;
    }
    /// ue(v)
    BitWriter& ue(uint32_t value)
    {
        const uint64_t code = uint64_t(value) + 1;
        int length = 0;
        while (code >> length > 1) {
            ++length;
        }
        return bits(0, length).bits(code, length + 1);
    }
    /// se(v)
    BitWriter& se(int32_t value)
    {
        return ue(value > 0 ? static_cast<uint32_t>(value) * 2 - 1
                            : static_cast<uint32_t>(-int64_t(value) * 2));
    }
    /// With rbsp_trailing_bits.
    QByteArray payload() const
    {
        BitWriter ended = *this;
        ended.put(1);
        while (ended.m_used != 0) {
            ended.put(0);
        }
        return ended.m_bytes;
    }

private:
    void put(int bit)
    {
        if (m_used == 0) {
            m_bytes.append('\0');
        }
        if (bit) {
            m_bytes.back() = static_cast<char>(m_bytes.back() | 0x80 >> m_used);
        }
        m_used = (m_used + 1) % 8;
    }

    QByteArray m_bytes;
    int m_used = 0; // bits of the last byte; 0: all
};

/// A NAL unit behind a start code, with emulation prevention (7.4.1).
inline QByteArray nalUnit(int refIdc, int type, const QByteArray& payload)
{
    QByteArray unit("\0\0\0\1", 4);
    unit.append(static_cast<char>(refIdc << 5 | type));
    int zeros = 0;
    for (const char byte : payload) {
        if (zeros >= 2 && static_cast<unsigned char>(byte) <= 3) {
            unit.append('\3');
            zeros = 0;
        }
        unit.append(byte);
        zeros = byte == 0 ? zeros + 1 : 0;
    }
    return unit;
}

/// A picture parameter set of nothing but what has to be there (7.3.2.2).
inline QByteArray pictureParameterSet(uint32_t id, uint32_t sequence)
{
    BitWriter set;
    set.ue(id).ue(sequence).bits(0, 2).ue(0); // CAVLC, no further order, one slice group
    set.ue(0).ue(0).bits(0, 3);               // a reference in each list, no weights
    set.se(0).se(0).se(0).bits(0, 3);         // quantizers, no control of the deblocking filter
    return nalUnit(3, 8, set.payload());
}

/// The sequence parameter set data of a subset set, frames of 16 x 16 blocks, no VUI (7.3.2.1.1).
inline BitWriter subsetSequence(int profile, int level, uint32_t columns, uint32_t rows)
{
    BitWriter set;
    set.bits(static_cast<uint64_t>(profile), 8).bits(0, 8).bits(static_cast<uint64_t>(level), 8);
    set.ue(0);                                   // seq_parameter_set_id
    set.ue(1).ue(0).ue(0).bits(0, 2);            // 4:2:0, 8 bits, no scaling lists
    set.ue(0).ue(2).ue(4).bits(0, 1);            // frame_num bits, picture order type, references
    set.ue(columns - 1).ue(rows - 1).bits(1, 1); // size, frame_mbs_only_flag
    set.bits(1, 1).bits(0, 1).bits(0, 1);        // direct 8x8, no cropping, no VUI
    return set;
}

/// A subset sequence parameter set of so many views (7.3.2.1.3, H.7.3.2.1.4).
inline QByteArray subsetParameterSet(int profile, int level, uint32_t views)
{
    BitWriter set = subsetSequence(profile, level, 22, 18);
    set.bits(1, 1).ue(views - 1); // bit_equal_to_one, num_views_minus1
    for (uint32_t view = 0; view < views; ++view) {
        set.ue(view);
    }
    for (uint32_t view = 1; view < views; ++view) {
        set.ue(1).ue(0).ue(0); // anchor references: the base view
    }
    for (uint32_t view = 1; view < views; ++view) {
        set.ue(0).ue(0);
    }
    set.ue(0); // num_level_values_signalled_minus1
    set.bits(static_cast<uint64_t>(level), 8);
    set.ue(0).ue(0).bits(0, 3).ue(0).ue(0); // one operation point
    set.bits(0, 2);                         // no MVC VUI, no further extension
    return nalUnit(3, 15, set.payload());
}

} // namespace kvtest
