// Settings from multiview streams that the standard's reference encoder made.
#include "EncoderLibrary.h"
#include "SettingsLibrary.h"

#include "../media_probe/ReferenceEncoder.h"
#include "../media_probe/TransportStream.h"

#include <QTemporaryDir>
#include <QTest>

using kvtest::ReferenceEncoder;
using kvtest::SettingsLibrary;

namespace
{

constexpr int kept = -1; // the preset's own value

/// What the reference encoder is told, and what the settings are to be: `marker` is every how many
/// I pictures one is an IDR picture, `distance` its NumberBFrames and one.
struct Encode {
    const char* name;
    const char* parameters;
    int preset, level, interlace, interval, marker, distance, reference, pyramid;
    int cabac, weighted;
    int deblocking[2], slices, references; // deblocking of each view
};

constexpr int S = KV_MVC_STEREO_HIGH;
constexpr int M = KV_MVC_MULTIVIEW_HIGH;
constexpr int P = KV_MVC_PROGRESSIVE;
constexpr int F = KV_MVC_INTERLACED;

// clang-format off
constexpr Encode encodes[] = {
    // name                  parameters                                                             pre lev int  ival  idr   dst r  p  cab wp deblock slices refs
    {"P pictures",           "ProfileIDC=128 FramesToBeEncoded=7 IDRPeriod=3",                      S, 20, P,   3,    1,    1,  0, 0, 1, 0, {1, 1}, 1, 2},
    {"Multiview High",       "ProfileIDC=118 FramesToBeEncoded=7 IntraPeriod=2 IDRPeriod=4",        M, 20, P,   2,    2,    1,  0, 0, 1, 0, {1, 1}, 1, 2},
    {"B pictures",           "NumberBFrames=2 IntraPeriod=6 IDRPeriod=12 FramesToBeEncoded=16",     S, 20, P,   6,    2,    3,  0, 0, 1, 0, {1, 1}, 1, 2},
    {"B references",         "NumberBFrames=1 BReferencePictures=1 NumberReferenceFrames=3",        S, 20, P,   kept, kept, 2,  1, 0, 1, 0, {1, 1}, 1, 3},
    {"hierarchy",            "NumberBFrames=3 HierarchicalCoding=2 NumberReferenceFrames=4",        S, 20, P,   kept, kept, 4,  1, 1, 1, 0, {1, 1}, 1, 4},
    {"other picture order",  "NumberBFrames=2 PicOrderCntType=1 FramesToBeEncoded=7",               S, 20, P,   kept, kept, 3,  0, 0, 1, 0, {1, 1}, 1, 2},
    {"nothing but I",        "FramesToBeEncoded=4 IntraPeriod=1",                                   S, 20, P,   1,    0,    kept, kept, kept, 1, kept, {1, 1}, 1, 2},
    {"CAVLC",                "SymbolMode=0 FramesToBeEncoded=4",                                    S, 20, P,   kept, kept, 1,  0, 0, 0, 0, {1, 1}, 1, 2},
    {"slices of 33 blocks",  "SliceMode=1 SliceArgument=33 FramesToBeEncoded=4",                    S, 20, P,   kept, kept, 1,  0, 0, 1, 0, {1, 1}, 3, 2},
    {"weighted prediction",  "WeightedPrediction=1 GenerateMultiplePPS=0 FramesToBeEncoded=4",      S, 20, P,   kept, kept, 1,  0, 0, 1, 1, {1, 1}, 1, 2},
    {"deblocking of one view", "FramesToBeEncoded=4 DFParametersFlag=1 DFDisableRefISlice=1 DFDisableRefPSlice=1", S, 20, P, kept, kept, 1, 0, 0, 1, 0, {0, 1}, 1, 2},
    {"fields",               "PicInterlace=1 LevelIDC=21 FramesToBeEncoded=6 IDRPeriod=3",          S, 21, F,   3,    1,    1,  0, 0, 1, 0, {1, 1}, 1, 2},
    {"frames and fields",    "PicInterlace=2 LevelIDC=21 FramesToBeEncoded=4",                      S, 21, F,   kept, kept, 1,  0, 0, 1, 0, {1, 1}, 1, 2},
};
// clang-format on

class TestMultiviewImport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void streamsBecomeSettings_data();
    void streamsBecomeSettings();
    void quantizersOfPictures();
    void buffersOfStreams();

private:
    QTemporaryDir m_folder;
    SettingsLibrary m_library;
};

void TestMultiviewImport::initTestCase()
{
    QVERIFY(m_library.isLoaded());
    if (!kvtest::hasFfmpeg()) {
        QSKIP("the ffmpeg program makes the media of this test");
    }
    if (!ReferenceEncoder::isThere()) {
        QSKIP(ReferenceEncoder::absence());
    }
}

void TestMultiviewImport::streamsBecomeSettings_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(std::size(encodes)); ++row) {
        QTest::newRow(encodes[row].name) << row;
    }
}

void TestMultiviewImport::streamsBecomeSettings()
{
    QFETCH(int, row);
    const Encode& expected = encodes[row];
    const QByteArray stream =
        ReferenceEncoder(m_folder.path()).encode(QLatin1String(expected.parameters));
    QVERIFY(!stream.isEmpty());
    const QList<kvtest::ViewPictures> parted = kvtest::partedViews(stream);
    const struct {
        const char* name;
        QByteArray content;
        int isSplit;
    } files[] = {
        {"views.264", stream, 0},
        {"base first.ts", kvtest::TransportStream(false).write(parted, false, 3'600), 1},
        {"other first.m2ts", kvtest::TransportStream(true).write(parted, true, 3'600), 1},
    };
    const KvMvcSettings preset = kvtest::EncoderLibrary().defaults(expected.preset);
    for (const auto& file : files) {
        const QString name = m_folder.filePath(QLatin1String(file.name));
        QVERIFY(kvtest::writeFile(name, file.content));
        KvMvcSettings settings{};
        QVERIFY2(m_library.read(settings, name.toUtf8()) == 0, m_library.messages.constData());
        QCOMPARE(kvtest::EncoderLibrary().complaintsOf(settings), QByteArray());
        QCOMPARE(settings.num_views, 2);
        QCOMPARE(settings.split_views, file.isSplit);
        QCOMPARE(m_library.messages.contains("its frame rate is not known"), file.isSplit == 0);
        for (int index = 0; index < 2; ++index) {
            const KvMvcViewSettings& view = settings.views[index];
            const auto compare = [&](int32_t KvMvcViewSettings::*field, int value) {
                QCOMPARE(view.*field, value == kept ? preset.views[index].*field : value);
            };
            compare(&KvMvcViewSettings::video_type, expected.preset);
            compare(&KvMvcViewSettings::profile, KV_MVC_PROFILE_HIGH);
            compare(&KvMvcViewSettings::level, expected.level);
            compare(&KvMvcViewSettings::width, 176);
            compare(&KvMvcViewSettings::height, 144);
            compare(&KvMvcViewSettings::interlace_mode, expected.interlace);
            compare(&KvMvcViewSettings::i_interval, expected.interval);
            compare(&KvMvcViewSettings::idr_marker, expected.marker);
            compare(&KvMvcViewSettings::ref_distance, expected.distance);
            compare(&KvMvcViewSettings::adaptive_b, 0);
            compare(&KvMvcViewSettings::reference_b, expected.reference);
            compare(&KvMvcViewSettings::pyramid_b, expected.pyramid);
            compare(&KvMvcViewSettings::entropy_mode, expected.cabac);
            compare(&KvMvcViewSettings::deblocking, expected.deblocking[index]);
            compare(&KvMvcViewSettings::num_slices, expected.slices);
            compare(&KvMvcViewSettings::num_ref_frames, expected.references);
            if (expected.weighted != kept) {
                compare(&KvMvcViewSettings::weighted_p, expected.weighted);
            }
            // Units alone have no times, and the stream tells none.
            const double rate = view.frame_rate;
            const double presetRate = preset.views[index].frame_rate;
            QCOMPARE(rate, file.isSplit != 0 ? 25.0 : presetRate);
        }
    }
}

void TestMultiviewImport::quantizersOfPictures()
{
    const QByteArray stream =
        ReferenceEncoder(m_folder.path())
            .encode(QStringLiteral("FramesToBeEncoded=7 NumberBFrames=2 QPISlice=24 QPPSlice=27 "
                                   "QPBSlice=31"));
    QVERIFY(!stream.isEmpty());
    const QString name = m_folder.filePath(QStringLiteral("quantizers.264"));
    QVERIFY(kvtest::writeFile(name, stream));
    KvMvcSettings settings{};
    QVERIFY2(m_library.read(settings, name.toUtf8()) == 0, m_library.messages.constData());
    QCOMPARE(settings.views[0].quant_i, 24);
    QCOMPARE(settings.views[0].quant_p, 27);
    QCOMPARE(settings.views[0].quant_b, 31);
    // The other view has P pictures alone, of 24, 27 and 27: the first is that of an I picture.
    const KvMvcSettings preset = kvtest::EncoderLibrary().defaults(KV_MVC_STEREO_HIGH);
    QCOMPARE(settings.views[1].quant_i, preset.views[1].quant_i);
    QCOMPARE(settings.views[1].quant_p, 26);
    QCOMPARE(settings.views[1].quant_b, 31);
}

/// (2 to the power of 6 + 4) * 300 bit/s, (2 to the power of 4 + 6) * 200 bits.
void TestMultiviewImport::buffersOfStreams()
{
    const QByteArray stream =
        ReferenceEncoder(m_folder.path())
            .encode(QStringLiteral(
                "FramesToBeEncoded=3 EnableVUISupport=1 "
                "VUI_timing_info_present_flag=1 VUI_num_units_in_tick=1001 VUI_time_scale=60000 "
                "VUI_aspect_ratio_info_present_flag=1 "
                "VUI_aspect_ratio_idc=2 VUI_nal_hrd_parameters_present_flag=1 "
                "VUI_nal_bit_rate_scale=4 VUI_nal_bit_rate_value_minus1=299 "
                "VUI_nal_cpb_size_scale=6 VUI_nal_cpb_size_value_minus1=199"));
    QVERIFY(!stream.isEmpty());
    const QString name = m_folder.filePath(QStringLiteral("buffer.264"));
    QVERIFY(kvtest::writeFile(name, stream));
    KvMvcSettings settings{};
    QVERIFY2(m_library.read(settings, name.toUtf8()) == 0, m_library.messages.constData());
    QCOMPARE(settings.views[0].max_bitrate, 307'200);
    QCOMPARE(settings.views[0].bitrate_buffer, 25'600); // bytes
    QCOMPARE(settings.views[0].hrd_mode, 1);
    const double rate = settings.views[0].frame_rate;
    QCOMPARE(rate, 30000 / 1001.0);
    QCOMPARE(settings.views[0].pixel_aspect_x, 12);
    QCOMPARE(settings.views[0].pixel_aspect_y, 11);
}

} // namespace

QTEST_GUILESS_MAIN(TestMultiviewImport)
#include "tst_multiview_import.moc"
