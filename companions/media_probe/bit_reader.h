// Bits of an H.264 header, with the clause 7.2 and 9.1 ways of reading them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace kv
{

/// Reads zeros behind the end, and remembers that it did.
class BitReader
{
public:
    explicit BitReader(std::span<const uint8_t> bytes) : m_bytes(bytes) {}

    bool overrun() const { return m_overrun; }
    /// For a value that makes what follows unreadable.
    void fail() { m_overrun = true; }
    bool flag() { return bits(1) != 0; }

    /// u(count); at most 32.
    uint32_t bits(int count)
    {
        uint32_t value = 0;
        for (int bit = 0; bit < count; ++bit) {
            value = value << 1 | next();
        }
        return value;
    }

    /// ue(v); 32 and more leading zeros count as an overrun (9.1).
    uint32_t unsignedGolomb()
    {
        int zeros = 0;
        while (!m_overrun && next() == 0) {
            ++zeros;
        }
        if (zeros >= 32) {
            m_overrun = true;
        }
        return m_overrun ? 0 : (1u << zeros) - 1 + bits(zeros);
    }

    /// se(v) (9.1.1).
    int32_t signedGolomb()
    {
        const int64_t code = unsignedGolomb();
        return static_cast<int32_t>(code % 2 == 0 ? -(code / 2) : code / 2 + 1);
    }

private:
    uint32_t next()
    {
        const std::size_t byte = m_position / 8;
        if (byte >= m_bytes.size()) {
            m_overrun = true;
            return 0;
        }
        return m_bytes[byte] >> (7 - m_position++ % 8) & 1u;
    }

    std::span<const uint8_t> m_bytes;
    std::size_t m_position = 0;
    bool m_overrun = false;
};

} // namespace kv
