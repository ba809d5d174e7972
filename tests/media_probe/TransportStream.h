// Transport streams of two views as discs have them: the base view and the other one as elementary
// streams of their own (Rec. ITU-T H.222.0).
#pragma once

#include "MediaMaker.h"

#include <algorithm>
#include <array>

namespace kvtest
{

/// One access unit, parted.
struct ViewPictures {
    QByteArray base;
    QByteArray further;
};

/// Parts a stream of two views: subset parameter sets and further views' slices (NAL 15 and 20) go
/// to the further stream, picture parameter sets to both.
inline QList<ViewPictures> partedViews(const QByteArray& stream)
{
    const QByteArray code("\0\0\0\1", 4);
    QList<ViewPictures> pictures;
    bool isComplete = true; // the last access unit has the further view's slices
    for (const QByteArray& unit : nalUnits(stream)) {
        const int type = unit[0] & 31;
        if (isComplete && type != 20) {
            // Unit type 24 begins a further stream's access unit on discs.
            pictures.append({{}, code + QByteArray("\x18\x10", 2)});
        }
        isComplete = type == 20;
        if (type != 15 && type != 20) {
            pictures.last().base += code + unit;
        }
        if (type == 15 || type == 20 || type == 8) {
            pictures.last().further += code + unit;
        }
    }
    return pictures;
}

/// Writes packets of 188 bytes, or of 192 with a time stamp before each (as discs have them).
class TransportStream
{
public:
    static constexpr int basePid = 0x1011;
    static constexpr int furtherPid = 0x1012;

    explicit TransportStream(bool timed) : m_timed(timed) {}

    /// The streams of each program, in the order of its table and of each picture: whether they
    /// are the further view's.
    using Programs = QList<QList<bool>>;

    /// @param ticks Between pictures, of 90,000 a second.
    QByteArray write(const QList<ViewPictures>& pictures, const Programs& programs, qint64 ticks)
    {
        constexpr int tableDistance = 10; // pictures
        for (int at = 0; at < pictures.size(); ++at) {
            if (at % tableDistance == 0) {
                writeTables(programs);
            }
            for (const QList<bool>& program : programs) {
                for (const bool further : program) {
                    writePicture(pictures[at], further, at * ticks);
                }
            }
        }
        return m_bytes;
    }

    /// One program of both.
    QByteArray write(const QList<ViewPictures>& pictures, bool furtherFirst, qint64 ticks)
    {
        return write(pictures, Programs{{furtherFirst, !furtherFirst}}, ticks);
    }

    /// As a file of both views' files in turn, each with tables of its own: ten pictures of the
    /// further view, then those of the base view.
    QByteArray writeInterleaved(const QList<ViewPictures>& pictures, qint64 ticks)
    {
        constexpr int extent = 10;
        const int count = static_cast<int>(pictures.size());
        for (int begin = 0; begin < count; begin += extent) {
            for (const bool further : {true, false}) {
                writeTables({{further}});
                for (int at = begin; at < std::min(begin + extent, count); ++at) {
                    writePicture(pictures[at], further, at * ticks);
                }
            }
        }
        return m_bytes;
    }

private:
    static constexpr int tablePid = 0x100;

    static quint32 checksum(const QByteArray& section)
    {
        quint32 sum = 0xFFFFFFFF;
        for (const char byte : section) {
            sum ^= quint32(static_cast<unsigned char>(byte)) << 24;
            for (int bit = 0; bit < 8; ++bit) {
                sum = (sum & 0x80000000) != 0 ? sum << 1 ^ 0x04C11DB7 : sum << 1;
            }
        }
        return sum;
    }

    /// @param body From the identifier behind the length on, without the checksum.
    void writeSection(int pid, char table, const QByteArray& body)
    {
        const auto length = static_cast<int>(body.size()) + 4;
        QByteArray section;
        section += table;
        section += static_cast<char>(0xB0 | length >> 8);
        section += static_cast<char>(length);
        section += body;
        const quint32 sum = checksum(section);
        for (int shift = 24; shift >= 0; shift -= 8) {
            section += static_cast<char>(sum >> shift);
        }
        section.prepend('\0'); // pointer_field
        section += QByteArray(184 - section.size(), '\xFF');
        writePacket(pid, true, {}, section);
    }

    static QByteArray pidField(int pid)
    {
        QByteArray field;
        field += static_cast<char>(0xE0 | pid >> 8);
        field += static_cast<char>(pid);
        return field;
    }

    void writeTables(const Programs& programs)
    {
        const QByteArray version("\xC1\0\0", 3);
        QByteArray list;
        for (int at = 0; at < programs.size(); ++at) {
            list += number(at) + pidField(tablePid + at);
        }
        writeSection(0, 0, QByteArray("\0\1", 2) + version + list);
        for (int at = 0; at < programs.size(); ++at) {
            QByteArray streams;
            for (const bool further : programs[at]) {
                streams += QByteArray(1, further ? '\x20' : '\x1B') +
                           pidField(further ? furtherPid : basePid) + QByteArray("\xF0\0", 2);
            }
            writeSection(tablePid + at, 2,
                         number(at) + version + pidField(basePid) + QByteArray("\xF0\0", 2) +
                             streams);
        }
    }

    /// program_number, from 1.
    static QByteArray number(int program)
    {
        QByteArray field(1, '\0');
        field += static_cast<char>(program + 1);
        return field;
    }

    void writePicture(const ViewPictures& picture, bool further, qint64 time)
    {
        constexpr qint64 start = 90'000;
        writePicture(further ? furtherPid : basePid, further ? 0xE2 : 0xE0,
                     further ? picture.further : picture.base, start + time);
    }

    void writePicture(int pid, int stream, const QByteArray& units, qint64 time)
    {
        QByteArray rest("\0\0\1", 3);
        rest += static_cast<char>(stream);
        rest += QByteArray("\0\0\x80\x80\5", 5); // no length, a presentation time stamp
        rest += static_cast<char>(0x21 | (time >> 29 & 0x0E));
        rest += static_cast<char>(time >> 22);
        rest += static_cast<char>(time >> 14 | 1);
        rest += static_cast<char>(time >> 7);
        rest += static_cast<char>(time << 1 | 1);
        rest += units;
        QByteArray clock; // program_clock_reference
        if (pid == basePid) {
            const qint64 base = time - 9'000;
            for (int shift = 25; shift >= 1; shift -= 8) {
                clock += static_cast<char>(base >> shift);
            }
            clock += static_cast<char>((base & 1) << 7 | 0x7E);
            clock += '\0';
        }
        for (bool first = true; !rest.isEmpty(); first = false) {
            const QByteArray field = first ? clock : QByteArray();
            const int room = field.isEmpty() ? 184 : 176;
            const QByteArray part = rest.left(room);
            rest = rest.mid(room);
            writePacket(pid, first, field, part);
        }
    }

    void writePacket(int pid, bool begins, const QByteArray& clock, const QByteArray& payload)
    {
        QByteArray packet("\x47", 1);
        packet += static_cast<char>((begins ? 0x40 : 0) | pid >> 8);
        packet += static_cast<char>(pid);
        const int stuffing = 184 - static_cast<int>(payload.size()) -
                             (clock.isEmpty() ? 0 : static_cast<int>(clock.size()) + 2);
        const bool adapted = !clock.isEmpty() || stuffing > 0;
        packet += static_cast<char>((adapted ? 0x30 : 0x10) | (m_counters[size_t(pid)]++ & 15));
        if (adapted) {
            const int length = 184 - static_cast<int>(payload.size()) - 1;
            packet += static_cast<char>(length);
            if (length > 0) {
                packet += clock.isEmpty() ? '\0' : '\x10';
                packet += clock;
            }
            packet += QByteArray(188 - packet.size() - payload.size(), '\xFF');
        }
        if (m_timed) {
            m_bytes += QByteArray(4, '\0');
        }
        m_bytes += packet + payload;
    }

    bool m_timed;
    QByteArray m_bytes;
    std::array<unsigned char, 0x2000> m_counters{};
};

} // namespace kvtest
