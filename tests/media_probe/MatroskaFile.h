// Matroska files of two views: further views in the base view's blocks, or in additions to them.
#pragma once

#include "TransportStream.h"

namespace kvtest
{

/// Units behind their lengths.
inline QByteArray withLengths(const QByteArray& stream, int size)
{
    QByteArray result;
    for (const QByteArray& unit : nalUnits(stream)) {
        for (int shift = 8 * (size - 1); shift >= 0; shift -= 8) {
            result += static_cast<char>(unit.size() >> shift);
        }
        result += unit;
    }
    return result;
}

/// AVCDecoderConfigurationRecord, or its form for further views (ISO/IEC 14496-15): the first set
/// of the type, and all picture parameter sets.
inline QByteArray configurationRecord(const QByteArray& stream, int setType)
{
    QByteArray sets;
    QByteArray pictureSets;
    int pictureCount = 0;
    for (const QByteArray& unit : nalUnits(stream)) {
        const QByteArray framed = withLengths(QByteArray("\0\0\1", 3) + unit, 2);
        if ((unit[0] & 31) == setType && sets.isEmpty()) {
            sets = framed;
        } else if ((unit[0] & 31) == 8) {
            pictureSets += framed;
            ++pictureCount;
        }
    }
    // Version, three bytes of the set; lengths of four bytes; one set.
    const QByteArray head = '\1' + sets.mid(3, 3) + QByteArray("\xFF\xE1", 2);
    return (setType == 15 ? head.left(5) + '\1' : head) + sets + static_cast<char>(pictureCount) +
           pictureSets;
}

/// The units of slices, behind lengths of four bytes: parameter sets are in the record.
inline QByteArray slicesOf(const QByteArray& stream)
{
    QByteArray slices;
    for (const QByteArray& unit : nalUnits(stream)) {
        const int type = unit[0] & 31;
        if (type == 1 || type == 5 || type == 20) {
            slices += withLengths(QByteArray("\0\0\1", 3) + unit, 4);
        }
    }
    return slices;
}

class MatroskaFile
{
public:
    enum class Views { InBlocks, InAdditions };

    /// 25 pictures of 176 x 144 a second.
    static QByteArray write(const QList<ViewPictures>& pictures, Views views)
    {
        const QByteArray further = configurationRecord(pictures[0].further, 15);
        QByteArray configuration = configurationRecord(pictures[0].base, 7);
        QByteArray additions;
        if (views == Views::InBlocks) {
            configuration += number(further.size() + 8, 4) + "mvcC" + further;
        } else {
            additions = element("55ee", number(1, 1)) +
                        element("41e4", element("41f0", number(2, 1)) + element("41e7", "mvcC") +
                                            element("41ed", further));
        }
        const QByteArray track =
            element("d7", number(1, 1)) + element("73c5", number(1, 1)) +
            element("83", number(1, 1)) + element("86", "V_MPEG4/ISO/AVC") +
            element("63a2", configuration) + element("23e383", number(40'000'000, 4)) + additions +
            element("e0", element("b0", number(176, 2)) + element("ba", number(144, 2)));
        QByteArray cluster = element("e7", number(0, 1));
        for (int at = 0; at < pictures.size(); ++at) {
            cluster += block(pictures[at], at * 40, views);
        }
        return element("1a45dfa3", element("4282", "matroska") + element("4287", number(4, 1)) +
                                       element("4285", number(2, 1))) +
               element("18538067",
                       element("1549a966", element("2ad7b1", number(1'000'000, 4)) +
                                               element("4d80", "x") + element("5741", "x")) +
                           element("1654ae6b", element("ae", track)) +
                           element("1f43b675", cluster));
    }

private:
    static QByteArray number(qint64 value, int size)
    {
        QByteArray bytes;
        for (int shift = 8 * (size - 1); shift >= 0; shift -= 8) {
            bytes += static_cast<char>(value >> shift);
        }
        return bytes;
    }
    /// With a length of four bytes.
    static QByteArray element(const char* identifier, const QByteArray& content)
    {
        return QByteArray::fromHex(identifier) + number(0x10000000 | content.size(), 4) + content;
    }
    static QByteArray block(const ViewPictures& picture, int milliseconds, Views views)
    {
        const QByteArray further = slicesOf(picture.further);
        QByteArray content = '\x81' + number(milliseconds, 2) + '\0' + slicesOf(picture.base);
        if (views == Views::InBlocks) {
            return element("a0", element("a1", content + further));
        }
        return element("a0", element("a1", content) +
                                 element("75a1", element("a6", element("ee", number(2, 1)) +
                                                                   element("a5", further))));
    }
};

} // namespace kvtest
