// The presets as a host gets them from the library.

#include <QTest>

#include <cstring>

#include "Encoder.h"

namespace
{

using V = KvMvcViewSettings;

struct Control {
    const char* name;
    std::int32_t V::*field;
    int low, high;
};

// What the dialog's controls can show.
// clang-format off
constexpr Control controls[] = {
    {"width", &V::width, 16, 4096}, {"height", &V::height, 16, 4096},
    {"pixel_aspect_x", &V::pixel_aspect_x, -1, 1000}, {"pixel_aspect_y", &V::pixel_aspect_y, -1, 1000},
    {"i_interval", &V::i_interval, 0, 300}, {"force_i", &V::force_i, 0, 999},
    {"idr_marker", &V::idr_marker, 0, 99}, {"ref_distance", &V::ref_distance, 1, 4},
    {"num_ref_frames", &V::num_ref_frames, 0, 99}, {"motion_search", &V::motion_search, 0, 99},
    {"num_slices", &V::num_slices, 1, 99999}, {"num_threads", &V::num_threads, 0, 16},
    {"quant_i", &V::quant_i, 2, 62}, {"quant_p", &V::quant_p, 2, 62}, {"quant_b", &V::quant_b, 2, 62},
    {"quant_max", &V::quant_max, 2, 62}, {"quant_min", &V::quant_min, 2, 62},
    {"vbv_initial", &V::vbv_initial, 0, 100}, {"vbv_target", &V::vbv_target, 0, 100},
    {"bitrate_units", &V::bitrate_units, 0, 0}, {"brightness", &V::brightness, -100, 100},
    {"contrast", &V::contrast, -100, 100}, {"complexity", &V::complexity, -100, 100},
    {"entropy_mode", &V::entropy_mode, 0, 1}, {"interlace_mode", &V::interlace_mode, 0, 2},
    {"hrd_mode", &V::hrd_mode, 0, 1}, {"scene_detection", &V::scene_detection, 0, 1},
    {"fixed_i_position", &V::fixed_i_position, 0, 1}, {"adaptive_b", &V::adaptive_b, 0, 1},
    {"pyramid_b", &V::pyramid_b, 0, 1}, {"reference_b", &V::reference_b, 0, 1},
    {"weighted_p", &V::weighted_p, 0, 1}, {"fast_reference", &V::fast_reference, 0, 1},
    {"fast_subblock", &V::fast_subblock, 0, 1}, {"fast_intra", &V::fast_intra, 0, 1},
    {"fast_inter", &V::fast_inter, 0, 1}, {"simple_rd", &V::simple_rd, 0, 1},
    {"hadamard", &V::hadamard, 0, 1}, {"deblocking", &V::deblocking, 0, 1},
};

// What the presets have in common, in both views.
struct Value {
    const char* name;
    std::int32_t V::*field;
    int value;
};
constexpr Value common[] = {
    {"profile", &V::profile, 3}, {"level", &V::level, 41},
    {"width", &V::width, 1920}, {"height", &V::height, 1080},
    {"interlace_mode", &V::interlace_mode, 0}, {"field_order", &V::field_order, 0},
    {"pulldown", &V::pulldown, 0}, {"chroma_format", &V::chroma_format, 2},
    {"bit_depth_luma", &V::bit_depth_luma, 8}, {"bit_depth_chroma", &V::bit_depth_chroma, 8},
    {"display_aspect_x", &V::display_aspect_x, 16}, {"display_aspect_y", &V::display_aspect_y, 9},
    {"pixel_aspect_x", &V::pixel_aspect_x, -1}, {"pixel_aspect_y", &V::pixel_aspect_y, -1},
    {"i_interval", &V::i_interval, 24}, {"force_i", &V::force_i, 1},
    {"ref_distance", &V::ref_distance, 3}, {"idr_marker", &V::idr_marker, 1},
    {"scene_detection", &V::scene_detection, 1}, {"fixed_i_position", &V::fixed_i_position, 0},
    {"adaptive_b", &V::adaptive_b, 0}, {"reference_b", &V::reference_b, 0},
    {"pyramid_b", &V::pyramid_b, 0}, {"min_partition", &V::min_partition, 1},
    {"subpixel_mode", &V::subpixel_mode, 2}, {"motion_search", &V::motion_search, 64},
    {"weighted_p", &V::weighted_p, 0}, {"fast_reference", &V::fast_reference, 1},
    {"fast_subblock", &V::fast_subblock, 1}, {"fast_intra", &V::fast_intra, 0},
    {"fast_inter", &V::fast_inter, 0}, {"simple_rd", &V::simple_rd, 0},
    {"hadamard", &V::hadamard, 1}, {"brightness", &V::brightness, 0},
    {"contrast", &V::contrast, 0}, {"complexity", &V::complexity, 0},
    {"deblocking", &V::deblocking, 1}, {"entropy_mode", &V::entropy_mode, 1},
    {"num_slices", &V::num_slices, 4}, {"multi_slice", &V::multi_slice, 1},
    {"num_threads", &V::num_threads, 0}, {"bitrate_mode", &V::bitrate_mode, 2},
    {"bitrate_units", &V::bitrate_units, 0}, {"vbv_initial", &V::vbv_initial, 50},
    {"vbv_target", &V::vbv_target, 50}, {"hrd_mode", &V::hrd_mode, 1},
    {"frame_size_i", &V::frame_size_i, 0}, {"frame_size_p", &V::frame_size_p, 0},
    {"frame_size_b", &V::frame_size_b, 0}, {"frame_size_bref", &V::frame_size_bref, 0},
    {"quant_i", &V::quant_i, 22}, {"quant_p", &V::quant_p, 24}, {"quant_b", &V::quant_b, 26},
    {"quant_min", &V::quant_min, 2}, {"quant_max", &V::quant_max, 51},
};
// clang-format on

void addPresets()
{
    QTest::addColumn<int>("number");
    QTest::newRow("none") << 0;
    QTest::newRow("Multivew High") << 1;
    QTest::newRow("Stereo High") << 2;
    QTest::newRow("Blu-ray 3D") << 3;
}

} // namespace

class TestEncoderDefaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passTheCheckWithNotesOnly_data() { addPresets(); }
    void passTheCheckWithNotesOnly();
    void tellOfTheirLevel_data();
    void tellOfTheirLevel();
    void lieInWhatControlsShow_data() { addPresets(); }
    void lieInWhatControlsShow();
    void setEveryField_data() { addPresets(); }
    void setEveryField();
    void differByPreset_data();
    void differByPreset();
    void overwriteTheWholeRecord_data() { addPresets(); }
    void overwriteTheWholeRecord();
    void ofUnknownNumbersAreThoseOf0_data();
    void ofUnknownNumbersAreThoseOf0();
    void stayAcceptableWhenAViewIsAdded();
    void refuseANullRecord();
};

void TestEncoderDefaults::passTheCheckWithNotesOnly()
{
    QFETCH(const int, number);
    KvMvcSettings record = encoder::preset(number);
    const KvMvcSettings before = record;
    const Outcome outcome = encoder::check(record);
    QCOMPARE(outcome.result, 0);
    QCOMPARE(outcome.errors(), QByteArrayList());
    QCOMPARE(outcome.warnings(), QByteArrayList());
    QVERIFY2(outcome.notes().size() >= 3 && outcome.notes().size() <= 6, outcome.all().constData());
    QVERIFY(std::memcmp(&before, &record, sizeof record) == 0);
}

void TestEncoderDefaults::tellOfTheirLevel_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("note");
    // One view would do with less; a second one, with the rates that it has, would not.
    QTest::newRow("none") << 0 << QByteArray("Level 4.0 is the lowest that fits.");
    QTest::newRow("Multivew High") << 1 << QByteArray("Level 4.1 is the lowest that fits.");
    QTest::newRow("Stereo High") << 2 << QByteArray("Level 4.1 is the lowest that fits.");
    QTest::newRow("Blu-ray 3D") << 3
                                << QByteArray(
                                       "These settings fit level 4.1, which Blu-ray 3D requires.");
}

void TestEncoderDefaults::tellOfTheirLevel()
{
    QFETCH(const int, number);
    QFETCH(const QByteArray, note);
    KvMvcSettings record = encoder::preset(number);
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.notes().contains(note), outcome.all().constData());
}

void TestEncoderDefaults::lieInWhatControlsShow()
{
    QFETCH(const int, number);
    const KvMvcSettings record = encoder::preset(number);
    QVERIFY(record.num_views >= 1 && record.num_views <= 4);
    QVERIFY(record.split_views == 0 || record.split_views == 1);
    for (const KvMvcViewSettings& view : record.views) {
        for (const Control& control : controls) {
            const int value = view.*control.field;
            QVERIFY2(value >= control.low && value <= control.high, control.name);
        }
        // Listed texts: no custom rate, a named aspect ratio.
        const double rate = view.frame_rate;
        QVERIFY(rate == 24000.0 / 1001);
        QCOMPARE(view.display_aspect_x, 16);
        QCOMPARE(view.display_aspect_y, 9);
    }
}

void TestEncoderDefaults::setEveryField()
{
    QFETCH(const int, number);
    const KvMvcSettings record = encoder::preset(number);
    for (const KvMvcViewSettings& view : record.views) {
        for (const Value& wanted : common) {
            QVERIFY2(view.*wanted.field == wanted.value, wanted.name);
        }
        QCOMPARE(view.video_type, number);
    }
}

void TestEncoderDefaults::differByPreset_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("views");
    QTest::addColumn<int>("references");
    QTest::addColumn<int>("baseTarget");
    QTest::newRow("none") << 0 << 1 << 4 << 20000000;
    QTest::newRow("Multivew High") << 1 << 2 << 3 << 20000000;
    QTest::newRow("Stereo High") << 2 << 2 << 4 << 20000000;
    QTest::newRow("Blu-ray 3D") << 3 << 2 << 3 << 22000000;
}

void TestEncoderDefaults::differByPreset()
{
    QFETCH(const int, number);
    QFETCH(const int, views);
    QFETCH(const int, references);
    QFETCH(const int, baseTarget);
    const KvMvcSettings record = encoder::preset(number);
    QCOMPARE(record.num_views, views);
    QCOMPARE(record.split_views, 0);
    QCOMPARE(record.views[0].num_ref_frames, references);
    QCOMPARE(record.views[1].num_ref_frames, references);
    QCOMPARE(record.views[0].bitrate, baseTarget);
    QCOMPARE(record.views[1].bitrate, baseTarget / 2);
    QCOMPARE(record.views[0].max_bitrate, 30000000);
    QCOMPARE(record.views[1].max_bitrate, 15000000);
    QCOMPARE(record.views[0].bitrate_buffer, 3750000);
    QCOMPARE(record.views[1].bitrate_buffer, 1875000);
}

void TestEncoderDefaults::overwriteTheWholeRecord()
{
    QFETCH(const int, number);
    KvMvcSettings ones;
    std::memset(&ones, 0xff, sizeof ones);
    KvMvcSettings zeros;
    std::memset(&zeros, 0, sizeof zeros);
    QCOMPARE(encoder::defaultsFunction()(&ones, 0, number, 0), 0);
    QCOMPARE(encoder::defaultsFunction()(&zeros, 0, number, 0), 0);
    QVERIFY(std::memcmp(&ones, &zeros, sizeof ones) == 0);
    for (const std::uint8_t byte : ones.reserved_8) {
        QCOMPARE(byte, 0);
    }
    for (const std::uint8_t byte : ones.views[1].reserved_5504) {
        QCOMPARE(byte, 0);
    }
}

void TestEncoderDefaults::ofUnknownNumbersAreThoseOf0_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("-1") << -1;
    QTest::newRow("4") << 4;
    QTest::newRow("lowest") << INT32_MIN;
    QTest::newRow("highest") << INT32_MAX;
}

void TestEncoderDefaults::ofUnknownNumbersAreThoseOf0()
{
    QFETCH(const int, number);
    const KvMvcSettings plain = encoder::preset(0);
    const KvMvcSettings unknown = encoder::preset(number);
    QVERIFY(std::memcmp(&plain, &unknown, sizeof plain) == 0);
}

void TestEncoderDefaults::stayAcceptableWhenAViewIsAdded()
{
    KvMvcSettings record = encoder::preset(0);
    record.num_views = 2;
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.accepted() && outcome.warnings().isEmpty(), outcome.all().constData());
}

void TestEncoderDefaults::refuseANullRecord()
{
    QVERIFY(encoder::defaultsFunction()(nullptr, 0, 1, 0) != 0);
}

QTEST_GUILESS_MAIN(TestEncoderDefaults)
#include "tst_encoder_defaults.moc"
