// What of a stream becomes a setting, and what is named as left open: facts by hand.
#include "EncoderLibrary.h"
#include "StreamFacts.h"

#include <media_settings.h>

#include <QTest>

#include <algorithm>
#include <cstddef>

using kvtest::EncoderLibrary;
using kvtest::plainStream;

namespace
{

/// Everything that a stream can tell.
KvMediaInfo talkativeStream()
{
    KvMediaInfo info = plainStream();
    info.hrd_bit_rate = 9000000;
    info.hrd_buffer_size = 4000000;
    info.pulldown = KV_MEDIA_PULLDOWN_3_2;
    info.coding[0] = {40, 1, 1, 1, 2, 12, 1, 2, 1, 1, 1, 20, 22, 24};
    return info;
}

/// An H.264 stream that tells as little as it may.
KvMediaInfo silentStream()
{
    KvMediaInfo info = plainStream();
    info.frame_rate_num = info.frame_rate_den = 0;
    info.pixel_aspect_num = info.pixel_aspect_den = 0;
    info.chroma_format = KV_MEDIA_CHROMA_NOT_KNOWN;
    info.bit_depth_luma = info.bit_depth_chroma = 0;
    info.profile_idc = info.level_idc = 0;
    info.bit_rate = 0;
    constexpr int32_t none = KV_MEDIA_QUANTIZER_NOT_KNOWN;
    info.coding[0] = {1, -1, -1, -1, 0, 0, -1, -1, 0, 0, 0, none, none, none};
    return info;
}

struct Place {
    const char* member;
    std::size_t offset;
    std::size_t size;
};

constexpr Place places[] = {
#define KV_MVC_VIEW_FIELD(member, ...)                                                             \
    {#member, offsetof(KvMvcViewSettings, member), sizeof(KvMvcViewSettings::member)},
#include <kv_config_gui_mvc/settings_fields.def>
};

struct Naming {
    const char* member;
    const char* name; ///< in a note, where the stream does not tell; null: every stream tells it
    bool canBeTold = true;
};

// clang-format off
constexpr Naming namings[] = {
    {"profile", "its profile is not among the settings"}, {"level", "its level is not among the settings"},
    {"width", nullptr}, {"height", nullptr}, {"frame_rate", "its frame rate is not known"},
    {"interlace_mode", nullptr}, {"field_order", nullptr}, {"pulldown", nullptr},
    {"display_aspect_x", nullptr}, {"display_aspect_y", nullptr},
    {"pixel_aspect_x", "its pixel aspect ratio is not known"}, {"pixel_aspect_y", "its pixel aspect ratio is not known"},
    {"chroma_format", "its chroma format and bit depth are not known"},
    {"bit_depth_luma", "its chroma format and bit depth are not known"},
    {"bit_depth_chroma", "its chroma format and bit depth are not known"},
    {"bitrate_mode", "bitrate mode"}, {"bitrate", "its bit rate is not known"},
    {"max_bitrate", "maximum rate and buffer are not known"},
    {"bitrate_buffer", "maximum rate and buffer are not known"},
    {"vbv_initial", "buffer fullness", false}, {"vbv_target", "buffer fullness", false},
    {"hrd_mode", "HRD conformance"},
    {"frame_size_i", "frame size limits", false}, {"frame_size_p", "frame size limits", false},
    {"frame_size_b", "frame size limits", false}, {"frame_size_bref", "frame size limits", false},
    {"quant_i", "quantizers of I-frames"}, {"quant_p", "quantizers of P-frames"}, {"quant_b", "quantizers of B-frames"},
    {"quant_min", "quantizer limits", false}, {"quant_max", "quantizer limits", false},
    {"i_interval", "the I-frame interval"}, {"force_i", "minimum and fixed I-frame distance", false},
    {"fixed_i_position", "minimum and fixed I-frame distance", false},
    {"idr_marker", "the distance of IDR pictures"}, {"scene_detection", "scene detection", false},
    {"ref_distance", "B-frames"}, {"adaptive_b", "B-frames"}, {"reference_b", "B-frames"}, {"pyramid_b", "B-frames"},
    {"num_ref_frames", nullptr}, {"motion_search", "motion search", false},
    {"min_partition", "motion search", false}, {"subpixel_mode", "motion search", false},
    {"weighted_p", "weighted prediction"}, {"fast_reference", "motion search", false}, {"fast_subblock", "motion search", false},
    {"fast_intra", "rate distortion", false}, {"fast_inter", "rate distortion", false},
    {"simple_rd", "rate distortion", false}, {"hadamard", "rate distortion", false},
    {"brightness", "rate distortion", false}, {"contrast", "rate distortion", false}, {"complexity", "rate distortion", false},
    {"entropy_mode", "entropy coding"}, {"deblocking", "deblocking"}, {"num_slices", "slices"}, {"multi_slice", "slices"},
    {"num_threads", "threads", false},
};
// clang-format on

class TestMediaNotes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFieldIsToldOrNamed_data();
    void everyFieldIsToldOrNamed();
    void furtherViewsThatTellNothingAreNamed();

private:
    EncoderLibrary m_encoder;
};

void TestMediaNotes::everyFieldIsToldOrNamed_data()
{
    QTest::addColumn<int>("place");
    for (int at = 0; at < int(std::size(places)); ++at) {
        QTest::newRow(places[at].member) << at;
    }
}

/// What a talkative stream tells does not depend on the preset; what a silent one does not tell is
/// named, and so is what none tells.
void TestMediaNotes::everyFieldIsToldOrNamed()
{
    QFETCH(int, place);
    const Place& field = places[place];
    const QByteArray member = field.member;
    if (member == "video_type" || member == "bitrate_units") {
        return; // chosen with the preset; how the record counts
    }
    const auto naming = std::find_if(std::begin(namings), std::end(namings),
                                     [&](const Naming& row) { return member == row.member; });
    QVERIFY(naming != std::end(namings));
    const auto bytesOf = [&](const KvMvcSettings& settings, int view) {
        return QByteArray(reinterpret_cast<const char*>(&settings.views[view]) + field.offset,
                          static_cast<int>(field.size));
    };
    KvMvcSettings one = m_encoder.defaults(0);
    KvMvcSettings other = one;
    for (KvMvcViewSettings& view : other.views) {
        auto* const byte = reinterpret_cast<unsigned char*>(&view) + field.offset;
        *byte ^= 1U; // the lowest bit of a number, the last of a rate
    }
    const auto notesOf = [](const KvMediaInfo& info, KvMvcSettings settings) {
        QByteArray text;
        for (const std::string& note : kv::applyMedia(info, settings)) {
            text += QByteArray::fromStdString(note) + '\n';
        }
        return text;
    };
    const QByteArray silent = notesOf(silentStream(), one);
    const QByteArray talkative = notesOf(talkativeStream(), one);
    if (naming->name) {
        QVERIFY2(silent.contains(naming->name), silent.constData());
        QCOMPARE(talkative.contains(naming->name), !naming->canBeTold);
    }
    if (naming->canBeTold) {
        kv::applyMedia(talkativeStream(), one);
        kv::applyMedia(talkativeStream(), other);
        QCOMPARE(bytesOf(one, 0), bytesOf(other, 0));
        QCOMPARE(bytesOf(one, 1), bytesOf(other, 1));
    }
}

void TestMediaNotes::furtherViewsThatTellNothingAreNamed()
{
    KvMediaInfo info = talkativeStream();
    info.num_views = 2;
    info.mvc_profile_idc = 128;
    info.mvc_level_idc = 40;
    info.dependent_bit_rate = 2000000;
    KvMvcSettings settings = m_encoder.defaults(KV_MVC_STEREO_HIGH);
    const std::vector<std::string> notes = kv::applyMedia(info, settings);
    QCOMPARE(notes.size(), std::size_t(4)); // the last is of what no stream tells
    QCOMPARE(notes[0], std::string("the coding tools of its further views are not known, those of "
                                   "the base view are taken"));
    QCOMPARE(notes[1], std::string("maximum rate and buffer of further views are not known, they "
                                   "follow from the bit rate"));
    QCOMPARE(notes[2],
             std::string("it does not tell reference frames of further views, bitrate mode of "
                         "further views, HRD conformance of further views: kept as in the preset"));
    info.dependent_ref_frames = 3;
    info.coding[1] = {20, 1, -1, 1, 2, 0, -1, 2, 0, 0, 0, 20, 22, 24};
    const std::vector<std::string> fewer = kv::applyMedia(info, settings);
    QCOMPARE(fewer.size(), std::size_t(3));
    QCOMPARE(fewer[1],
             std::string("it does not tell weighted prediction of further views, bitrate mode of "
                         "further views, HRD conformance of further views: kept as in the preset"));
}

} // namespace

QTEST_APPLESS_MAIN(TestMediaNotes)
#include "tst_media_notes.moc"
