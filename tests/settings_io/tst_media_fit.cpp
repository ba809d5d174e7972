// What a stream's facts become when the encoder refuses them: facts by hand, the encoder's own
// check, and checks that no good encoder has.
#include "EncoderLibrary.h"
#include "SettingsLibrary.h"
#include "StreamFacts.h"

#include <media_fit.h>
#include <media_settings.h>

#include <QTest>

#include <cstdio>

using kvtest::EncoderLibrary;
using kvtest::plainStream;

namespace
{

constexpr int autoLevel = 100;

/// What of the stream is told, joined by lines; the encoder's words are left out.
QByteArray withoutWords(const std::vector<std::string>& notes)
{
    QByteArray text;
    for (const std::string& note : notes) {
        const auto words = note.find_first_of("(:");
        text += QByteArray::fromStdString(note.substr(0, words)).trimmed() + '\n';
    }
    return text;
}

/// Takes nothing but fewer than three slices, and does not say why.
int32_t fewSlicesInSilence(KvMvcLookup, KvMvcSettings* settings, int32_t, int32_t)
{
    return settings->views[0].num_slices < 3 ? 0 : 7;
}

/// Takes nothing.
int32_t never(KvMvcLookup lookup, KvMvcSettings* settings, int32_t, int32_t)
{
    const auto error = reinterpret_cast<KvMvcPrintf>(lookup("err_printf"));
    error("%d x %s", settings->views[0].width, QByteArray(5000, 'y').constData());
    settings->views[0].width = 1;
    return 1;
}

/// Takes everything with one slice, if it is called as it should be.
int32_t corrects(KvMvcLookup lookup, KvMvcSettings* settings, int32_t stage, int32_t)
{
    if (stage != 3 || lookup("malloc") == nullptr || lookup("free") == nullptr ||
        lookup("inf_printf") == nullptr || lookup("prg_printf") == nullptr ||
        lookup("unheard_of") != nullptr) {
        return 1;
    }
    reinterpret_cast<KvMvcPrintf>(lookup("wrn_printf"))("from %d", settings->views[0].num_slices);
    settings->views[0].num_slices = 1;
    return 0;
}

class TestMediaFit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void streamsAreFitted_data();
    void streamsAreFitted();
    void referencesThatAreMadeUpGiveWayWithoutAWord();
    void whatWouldNotHelpIsNotDone();
    void checksWithoutWords();
    void everyWordOfARefusalIsTold();
    void correctionsAreTakenAndTold();
    void aSignalledBufferIsTheBaseViews();
    void noReferencesAreNothingButIPictures();
    void ratesOfOtherUnits_data();
    void ratesOfOtherUnits();

private:
    KvMvcSettings settingsOf(const KvMediaInfo& info)
    {
        KvMvcSettings settings = m_encoder.defaults(kv::fittingPreset(info));
        kv::applyMedia(info, settings);
        return settings;
    }

    EncoderLibrary m_encoder;
};

using Change = void (*)(KvMediaInfo&);
using View = KvMvcViewSettings;

struct Row {
    const char* name;
    Change change;
    struct {
        int32_t View::*field;
        int first, second;
    } expected[4];
    const char* notes;
};

// clang-format off
const Row rows[] = {
    {"nothing to be done", [](KvMediaInfo&) {},
        {{&View::level, 40, 40}, {&View::num_slices, 4, 4}, {&View::bitrate, 8000000, 8000000}, {&View::max_bitrate, 12000000, 12000000}}, ""},
    {"one reference and a level too low", [](KvMediaInfo& info) { info.num_ref_frames = 1; info.level_idc = 10; },
        {{&View::level, autoLevel, autoLevel}, {&View::num_ref_frames, 1, 1}, {&View::ref_distance, 1, 1}, {&View::adaptive_b, 0, 0}}, "its level is not kept, Auto is taken\n"},
    {"two references keep the B-frames", [](KvMediaInfo& info) { info.num_ref_frames = 2; },
        {{&View::num_ref_frames, 2, 2}, {&View::ref_distance, 3, 3}}, ""},
    {"High 10 of 60 frames at 4.2", [](KvMediaInfo& info) { info.profile_idc = 110; info.bit_depth_luma = info.bit_depth_chroma = 10; info.level_idc = 42; info.frame_rate_num = 60; },
        {{&View::level, 42, 42}, {&View::num_slices, 4, 4}, {&View::bit_depth_luma, 10, 10}}, ""},
    {"High 4:2:2 MBAFF", [](KvMediaInfo& info) { info.profile_idc = 122; info.chroma_format = 2; info.scan = KV_MEDIA_MBAFF; info.level_idc = 41; },
        {{&View::level, 41, 41}, {&View::num_slices, 5, 5}, {&View::multi_slice, 1, 1}, {&View::interlace_mode, KV_MVC_MBAFF, KV_MVC_MBAFF}}, ""},
    {"interlaced beyond 4.1", [](KvMediaInfo& info) { info.scan = KV_MEDIA_INTERLACED; info.level_idc = 50; },
        {{&View::level, autoLevel, autoLevel}, {&View::interlace_mode, KV_MVC_INTERLACED, KV_MVC_INTERLACED}}, "its level is not kept, Auto is taken\n"},
    {"a maximum beyond the level", [](KvMediaInfo& info) { info.hrd_bit_rate = 40000000; info.hrd_buffer_size = 20000000; },
        {{&View::level, autoLevel, autoLevel}, {&View::max_bitrate, 40000000, 40000000}, {&View::bitrate_buffer, 2500000, 2500000}}, "its level is not kept, Auto is taken\n"},
    {"a buffer beyond the level", [](KvMediaInfo& info) { info.hrd_bit_rate = 20000000; info.hrd_buffer_size = 50000000; },
        {{&View::level, autoLevel, autoLevel}, {&View::max_bitrate, 20000000, 20000000}, {&View::bitrate_buffer, 6250000, 6250000}}, "its level is not kept, Auto is taken\n"},
    {"a maximum beyond every level", [](KvMediaInfo& info) { info.hrd_bit_rate = 2000000000; info.hrd_buffer_size = 20000000; },
        {{&View::level, 40, 40}, {&View::width, 1920, 1920}, {&View::num_ref_frames, 4, 4}}, "a lower bit rate is taken than it has\n"},
    {"sixteen references of 3840 x 2160", [](KvMediaInfo& info) { info.width = 3840; info.height = 2160; info.level_idc = 51; info.num_ref_frames = 16; },
        {{&View::level, 51, 51}, {&View::num_ref_frames, 5, 5}, {&View::width, 3840, 3840}}, "fewer reference frames are taken than it has\n"},
    {"an aspect of large numbers", [](KvMediaInfo& info) { info.pixel_aspect_num = 100003; info.pixel_aspect_den = 100001; },
        {{&View::pixel_aspect_x, 50001, 50001}, {&View::pixel_aspect_y, 50000, 50000}}, "its pixel aspect ratio is rounded\n"},
    {"an aspect of one large number", [](KvMediaInfo& info) { info.pixel_aspect_num = 1; info.pixel_aspect_den = 2000000011; },
        {{&View::pixel_aspect_x, 1, 1}, {&View::pixel_aspect_y, 61035, 61035}}, "its pixel aspect ratio is rounded\n"},
    {"three views of three references", [](KvMediaInfo& info) { info.num_views = 3; info.frame_rate_num = 10; info.mvc_level_idc = 40; info.num_ref_frames = 3; info.dependent_bit_rate = 2000000; },
        {{&View::num_ref_frames, 3, 2}, {&View::ref_distance, 3, 3}, {&View::level, 40, 40}, {&View::bitrate, 6000000, 1000000}}, ""},
    {"two views of four references and B-frames", [](KvMediaInfo& info) { info.num_views = 2; info.mvc_level_idc = 40; info.num_ref_frames = 4; info.dependent_bit_rate = 2000000; },
        {{&View::num_ref_frames, 4, 3}, {&View::ref_distance, 3, 3}, {&View::level, 40, 40}}, ""},
    {"two views that both tell four references", [](KvMediaInfo& info) { info.num_views = 2; info.mvc_level_idc = 40; info.num_ref_frames = info.dependent_ref_frames = 4; info.dependent_bit_rate = 2000000; },
        {{&View::num_ref_frames, 4, 3}, {&View::ref_distance, 3, 3}, {&View::level, 40, 40}}, "fewer reference frames are taken in further views than it has\n"},
    {"two views of five references", [](KvMediaInfo& info) { info.num_views = 2; info.mvc_level_idc = 40; info.num_ref_frames = 5; info.dependent_bit_rate = 2000000; },
        {{&View::num_ref_frames, 5, 5}, {&View::level, autoLevel, autoLevel}, {&View::bitrate, 6000000, 2000000}}, "its level is not kept, Auto is taken\n"},
    {"the second view's maximum is made up", [](KvMediaInfo& info) { info.num_views = 2; info.mvc_level_idc = 40; info.num_ref_frames = 3; info.hrd_bit_rate = 18000000; info.hrd_buffer_size = 18000000; info.bit_rate = 29000000; info.dependent_bit_rate = 11000000; },
        {{&View::level, 40, 40}, {&View::max_bitrate, 18000000, 11000000}, {&View::bitrate, 18000000, 11000000}}, ""},
};
// clang-format on

void TestMediaFit::streamsAreFitted_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(std::size(rows)); ++row) {
        QTest::newRow(rows[row].name) << row;
    }
}

void TestMediaFit::streamsAreFitted()
{
    QFETCH(int, row);
    KvMediaInfo info = plainStream();
    rows[row].change(info);
    KvMvcSettings settings = settingsOf(info);
    const auto notes = kv::fitToEncoder(m_encoder.check(), info, settings);
    for (const auto& expected : rows[row].expected) {
        if (!expected.field) {
            break;
        }
        QCOMPARE(settings.views[0].*expected.field, expected.first);
        QCOMPARE(settings.views[1].*expected.field, expected.second);
    }
    QCOMPARE(withoutWords(notes), QByteArray(rows[row].notes));
    if (!QByteArray(rows[row].notes).contains("refuses")) {
        QCOMPARE(m_encoder.complaintsOf(settings), QByteArray());
    }
}

void TestMediaFit::referencesThatAreMadeUpGiveWayWithoutAWord()
{
    KvMediaInfo info = plainStream();
    info.codec = KV_MEDIA_CODEC_OTHER;
    info.profile_idc = info.level_idc = 0;
    info.num_ref_frames = -1;
    info.width = 3840;
    info.height = 2160;
    KvMvcSettings settings = settingsOf(info);
    settings.views[0].num_ref_frames = 16;
    QVERIFY(kv::fitToEncoder(m_encoder.check(), info, settings).empty());
    QCOMPARE(m_encoder.complaintsOf(settings), QByteArray());
    QCOMPARE(settings.views[0].num_ref_frames, 5); // all that level 5.1 holds of this size
}

/// Half the rate would take one of the complaints away, and not the one that counts.
void TestMediaFit::whatWouldNotHelpIsNotDone()
{
    KvMediaInfo info = plainStream();
    info.width = 7680;
    info.height = 4320;
    info.frame_rate_num = 60;
    info.num_ref_frames = 16;
    info.level_idc = 52;
    KvMvcSettings settings = settingsOf(info);
    const KvMvcSettings applied = settings;
    const auto notes = kv::fitToEncoder(m_encoder.check(), info, settings);
    QVERIFY(kvtest::same(settings, applied));
    QVERIFY(!notes.empty());
    for (const std::string& note : notes) {
        QVERIFY2(note.rfind("the encoder refuses the settings: ", 0) == 0, note.c_str());
    }
}

void TestMediaFit::checksWithoutWords()
{
    const KvMediaInfo info = plainStream();
    KvMvcSettings settings = settingsOf(info);
    const KvMvcSettings applied = settings;
    QCOMPARE(withoutWords(kv::fitToEncoder(fewSlicesInSilence, info, settings)),
             QByteArray("the encoder refuses the settings\n"));
    QVERIFY(kvtest::same(settings, applied));
}

void TestMediaFit::everyWordOfARefusalIsTold()
{
    const KvMediaInfo info = plainStream();
    KvMvcSettings settings = settingsOf(info);
    const auto notes = kv::fitToEncoder(never, info, settings);
    QCOMPARE(notes.size(), std::size_t(1));
    QCOMPARE(QByteArray::fromStdString(notes[0]),
             "the encoder refuses the settings: 1920 x " + QByteArray(5000, 'y'));
    QCOMPARE(settings.views[0].width, 1920);
}

void TestMediaFit::correctionsAreTakenAndTold()
{
    const KvMediaInfo info = plainStream();
    KvMvcSettings settings = settingsOf(info);
    const auto notes = kv::fitToEncoder(corrects, info, settings);
    QCOMPARE(notes.size(), std::size_t(1));
    QCOMPARE(notes[0], std::string("the encoder corrects the settings: from 4"));
    QCOMPARE(settings.views[0].num_slices, 1);
}

void TestMediaFit::aSignalledBufferIsTheBaseViews()
{
    KvMediaInfo info = plainStream();
    info.num_views = 2;
    info.mvc_profile_idc = 128;
    info.mvc_level_idc = 40;
    info.bit_rate = 12000000;
    info.dependent_bit_rate = 4000000;
    info.hrd_bit_rate = 10000000;
    info.hrd_buffer_size = 5000000;
    const KvMvcSettings settings = settingsOf(info);
    QCOMPARE(settings.views[0].bitrate, 8000000);
    QCOMPARE(settings.views[0].max_bitrate, 10000000);
    QCOMPARE(settings.views[0].bitrate_buffer, 625000);
    // In the proportion of the preset: 10, 15 and 15 Mbit.
    QCOMPARE(settings.views[1].bitrate, 4000000);
    QCOMPARE(settings.views[1].max_bitrate, 6000000);
    QCOMPARE(settings.views[1].bitrate_buffer, 750000);
}

void TestMediaFit::noReferencesAreNothingButIPictures()
{
    KvMediaInfo info = plainStream();
    info.num_ref_frames = 0;
    KvMvcSettings settings = m_encoder.defaults(0);
    for (KvMvcViewSettings& view : settings.views) {
        view.force_i = 12;
    }
    kv::applyMedia(info, settings);
    for (const KvMvcViewSettings& view : settings.views) {
        QCOMPARE(view.i_interval, 1);
        QCOMPARE(view.force_i, 1);
        QCOMPARE(view.num_ref_frames, 1);
    }
}

void TestMediaFit::ratesOfOtherUnits_data()
{
    QTest::addColumn<int>("units");
    QTest::addColumn<int>("buffer");
    QTest::addColumn<int>("initial");
    QTest::addColumn<int>("target");
    // Half of the default's buffer at first, and four fifths of it at the end.
    QTest::newRow("bytes and percent") << int(KV_MVC_UNITS_BYTES_PERCENT) << 500000 << 50 << 80;
    QTest::newRow("bits") << int(KV_MVC_UNITS_BITS) << 4000000 << 2000000 << 3200000;
    // The buffer takes a half of a second at 8 Mbit/s.
    QTest::newRow("bits and 90 kHz") << int(KV_MVC_UNITS_BITS_90KHZ) << 4000000 << 22500 << 36000;
}

void TestMediaFit::ratesOfOtherUnits()
{
    QFETCH(int, units);
    QFETCH(int, buffer);
    QFETCH(int, initial);
    QFETCH(int, target);
    KvMediaInfo info = plainStream();
    info.hrd_bit_rate = 8000000;
    info.hrd_buffer_size = 4000000;
    info.hrd_constant = 1;
    KvMvcSettings settings{};
    for (KvMvcViewSettings& view : settings.views) {
        view.bitrate_units = units;
        view.bitrate_mode = KV_MVC_AVERAGE_QUANTIZER;
        view.bitrate = 2000000;
        view.max_bitrate = 3000000;
        const bool bytes = units == KV_MVC_UNITS_BYTES_PERCENT;
        view.bitrate_buffer = bytes ? 375000 : 3000000;
        const int full = bytes ? 100 : units == KV_MVC_UNITS_BITS ? 3000000 : 90000;
        view.vbv_initial = full / 2;
        view.vbv_target = full / 5 * 4;
    }
    kv::applyMedia(info, settings);
    for (const KvMvcViewSettings& view : settings.views) {
        QCOMPARE(view.bitrate_mode, int(KV_MVC_CONSTANT_BITRATE));
        QCOMPARE(view.hrd_mode, 1);
        QCOMPARE(view.bitrate, 8000000);
        QCOMPARE(view.max_bitrate, 8000000);
        QCOMPARE(view.bitrate_buffer, buffer);
        QCOMPARE(view.vbv_initial, initial);
        QCOMPARE(view.vbv_target, target);
    }
}

} // namespace

QTEST_APPLESS_MAIN(TestMediaFit)
#include "tst_media_fit.moc"
