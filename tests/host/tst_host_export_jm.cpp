// What is exported to the standard's reference encoder, encoded by it and imported again.

#include "RealEncode.h"

#include "../media_probe/ReferenceEncoder.h"

#include <QDir>

namespace
{

/// Two views, or one of preset 0, in small pictures that are quick to search.
constexpr char setByJm[] = "width=176 height=144 i_interval=6 num_slices=1 multi_slice=0 "
                           "motion_search=16 simple_rd=1";
constexpr char toldByViews[] =
    "profile level width height frame_rate interlace_mode field_order pixel_aspect_x=16 "
    "pixel_aspect_y=11 chroma_format bit_depth_luma bit_depth_chroma i_interval idr_marker "
    "ref_distance adaptive_b reference_b pyramid_b num_ref_frames weighted_p entropy_mode "
    "deblocking num_slices multi_slice";
constexpr char toldByBaseView[] = "num_views video_type hrd_mode bitrate_mode max_bitrate "
                                  "bitrate_buffer";

// Which settings of the base view are told besides.
#define KV_BASE_QUANTIZERS "quant_i quant_p quant_b "

// clang-format off
constexpr ExportCase cases[] = {
    {"Stereo High",          2, "", "", 7},
    {"Multiview High",       1, "", "", 7},
    {"Blu-ray 3D",           3, "", "video_type=2", 7},
    {"no B-frames",          2, "ref_distance=1", "", 7},
    {"one B-frame",          2, "ref_distance=2", "", 7},
    {"three B-frames",       2, "ref_distance=4 i_interval=8", "", 9},
    {"referenced B-frames",  2, "ref_distance=2 reference_b=1", "", 7},
    {"a pyramid",            2, "ref_distance=4 reference_b=1 pyramid_b=1 i_interval=8 num_ref_frames=4", "", 9},
    {"a pyramid of two",     2, "ref_distance=3 reference_b=1 pyramid_b=1", "pyramid_b=0", 7},
    {"full samples",         2, "subpixel_mode=0", "", 7},
    {"weighted fields",      2, "weighted_p=1 interlace_mode=1 frame_rate=25", "weighted_p=0 idr_marker=0", 7},
    {"the first I-frame",    2, "i_interval=0", "-idr_marker", 26},
    {"nothing but I-frames", 2, "i_interval=1", KV_NO_GROUPS, 4},
    {"one IDR picture",      2, "idr_marker=0", "", 13},
    {"every second as IDR",  2, "i_interval=3 idr_marker=2", "", 10},
    {"one reference",        2, "num_ref_frames=1 ref_distance=1", "", 7},
    {"CAVLC",                2, "entropy_mode=0", "", 7},
    {"no deblocking",        2, "deblocking=0", "", 7},
    {"weighted prediction",  2, "weighted_p=1", "", 7},
    {"three slices",         2, "num_slices=3 multi_slice=1", "", 7},
    {"four slices",          2, "num_slices=4 multi_slice=1", "", 7},
    {"fields",               2, "interlace_mode=1 frame_rate=25 level=30 bitrate=2000000 max_bitrate=3000000 bitrate_buffer=375000", "idr_marker=0", 7},
    {"MBAFF",                2, "interlace_mode=2 frame_rate=25 i_interval=2 ref_distance=1", "", 3},
    {"25 frames",            2, "frame_rate=25", "", 7},
    {"29.97 frames",         2, "frame_rate=30000/1001", "", 7},
    {"pixel aspect ratio",   2, "display_aspect_x=-1 display_aspect_y=-1 pixel_aspect_x=40 pixel_aspect_y=33",
                                "pixel_aspect_x=40 pixel_aspect_y=33", 7},
    {"half blocks",          2, "width=168 height=136", "pixel_aspect_x=272 pixel_aspect_y=189", 7},
    {"level 2.0",            2, "level=20 bitrate=1000000 max_bitrate=1280000 bitrate_buffer=160000", "", 7},
    {"any level",            2, "level=100", "level=51", 7},
    {"a constant rate",      2, "bitrate_mode=0 bitrate=1280000 max_bitrate=1280000 bitrate_buffer=160000", "", 7},
    {"no HRD",               2, "hrd_mode=0 bitrate=500000", KV_NO_HRD, 7},
    {"constant quantizers",  2, "bitrate_mode=1 quant_i=24 quant_p=27 quant_b=30", KV_NO_HRD KV_BASE_QUANTIZERS, 7},
    {"the full decision",    2, "simple_rd=0 i_interval=2 ref_distance=1", "", 3},
    {"coarse search",        2, "subpixel_mode=0 min_partition=0 hadamard=0 fast_reference=0 fast_intra=1", "", 7},

    {"one view",             0, "", "-video_type", 7},
    {"Main",                 0, "profile=1", "-video_type", 7},
    {"Baseline",             0, "profile=0 entropy_mode=0 ref_distance=1", "-video_type", 7},
    {"High 10",              0, "profile=4 bit_depth_luma=10 bit_depth_chroma=10", "-video_type", 7},
    {"High 4:2:2",           0, "profile=5 chroma_format=3", "-video_type", 7},
    {"without chroma",       0, "chroma_format=1", "-video_type", 7},
    {"fields of one view",   0, "interlace_mode=1 frame_rate=25", "-video_type", 7},
    {"slices of fields",     0, "interlace_mode=1 frame_rate=25 num_slices=3 multi_slice=1", "-video_type", 7},
};
// clang-format on

QString tool(const char* name)
{
    return QDir(qEnvironmentVariable("KV_JM")).filePath(QLatin1String(name));
}

} // namespace

class TestHostExportJm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void streamsTellWhatWasSet_data();
    void streamsTellWhatWasSet();
    void viewsHaveTheirOwnDeblocking();

private:
    /// @return What fails on the way of the settings into `out.264`.
    QString encode(const KvMvcSettings& settings, const ExportCase& row) const;
    QString run(const char* name, const QStringList& arguments, const QString& folder) const;
    /// @return What the reference decoder complains of.
    QString decode(int frames) const;

    HostProgram m_program;
};

void TestHostExportJm::initTestCase()
{
    if (!kvtest::hasFfmpeg()) {
        QSKIP("ffmpeg is not installed");
    }
    if (!kvtest::ReferenceEncoder::isThere()) {
        QSKIP(kvtest::ReferenceEncoder::absence());
    }
}

QString TestHostExportJm::run(const char* name, const QStringList& arguments,
                              const QString& folder) const
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(tool(name), arguments);
    if (!process.waitForFinished(120'000) || process.exitCode() != 0) {
        return QStringLiteral("%1 failed: %2")
            .arg(QLatin1String(name), QString::fromUtf8(process.readAll().right(500)));
    }
    return QString::fromUtf8(process.readAll());
}

QString TestHostExportJm::encode(const KvMvcSettings& settings, const ExportCase& row) const
{
    QFile::remove(m_program.path(QStringLiteral("out.264")));
    m_program.writeSettings(QStringLiteral("settings.ini"), settings);
    QStringList arguments = {QStringLiteral("export"),   QStringLiteral("--to"),
                             QStringLiteral("jm"),       QStringLiteral("--stream"),
                             QStringLiteral("out.264"),  QStringLiteral("-o"),
                             QStringLiteral("film.cfg"), QStringLiteral("settings.ini")};
    for (int view = 0; view < settings.num_views; ++view) {
        const QString name = QStringLiteral("view%1.yuv").arg(view);
        const QString failure =
            kvtest::makePictures(settings.views[view], m_program.path(name), row, 8 * view);
        if (!failure.isEmpty()) {
            return failure;
        }
        arguments << QStringLiteral("--input") << name;
    }
    const HostProgram::Result exported = m_program.run(arguments);
    if (exported.exitCode != 0) {
        return exported.error;
    }
    const QString said = run("lencod", {QStringLiteral("-d"), QStringLiteral("film.cfg")},
                             m_program.path(QString()));
    const bool isBad =
        said.contains(QLatin1String("failed")) || said.contains(QLatin1String("not recognized"));
    return isBad ? said : QString();
}

QString TestHostExportJm::decode(int frames) const
{
    // It leaves its pictures where it works.
    const QTemporaryDir folder;
    const QString said =
        run("ldecod",
            {QStringLiteral("-p"),
             QStringLiteral("InputFile=") + m_program.path(QStringLiteral("out.264")),
             QStringLiteral("-p"), QStringLiteral("DecodeAllLayers=1"), QStringLiteral("-p"),
             QStringLiteral("Silent=1")},
            folder.path());
    return said.contains(QStringLiteral("\n%1 frames are decoded.").arg(frames)) ? QString() : said;
}

void TestHostExportJm::streamsTellWhatWasSet_data()
{
    QTest::addColumn<const ExportCase*>("row");
    kvtest::addRows(cases);
}

void TestHostExportJm::streamsTellWhatWasSet()
{
    QFETCH(const ExportCase*, row);
    KvMvcSettings settings = kvtest::EncoderLibrary().defaults(row->preset);
    kvtest::setAll(setByJm, settings);
    kvtest::setAll(row->set, settings);
    QCOMPARE(encode(settings, *row), QString());
    const bool areFields = settings.views[0].interlace_mode == KV_MVC_INTERLACED;
    QCOMPARE(decode(row->frames * settings.num_views * (areFields ? 2 : 1)), QString());

    KvMvcSettings imported{};
    kvtest::SettingsLibrary library;
    QVERIFY2(library.read(imported, m_program.path(QStringLiteral("out.264")).toUtf8()) == 0,
             library.messages.constData());
    const QString blank = QStringLiteral(" ");
    const QString all = QLatin1String(toldByViews) + blank;
    const QString told = blank + QLatin1String(row->told);
    QCOMPARE(
        kvtest::wrongSettings(all + QLatin1String(toldByBaseView) + told, settings, 0, imported, 0),
        QString());
    if (settings.num_views > 1) {
        const QString notOfSecond = QStringLiteral(" -video_type -quant_i -quant_p -quant_b");
        QCOMPARE(kvtest::wrongSettings(all + told + notOfSecond, settings, 1, imported, 1),
                 QString());
    }
}

void TestHostExportJm::viewsHaveTheirOwnDeblocking()
{
    const ExportCase row = {"", KV_MVC_STEREO_HIGH, "", "", 4};
    KvMvcSettings settings = kvtest::EncoderLibrary().defaults(row.preset);
    kvtest::setAll(setByJm, settings);
    settings.views[1].deblocking = 0;
    QCOMPARE(encode(settings, row), QString());
    KvMvcSettings imported{};
    kvtest::SettingsLibrary library;
    QCOMPARE(library.read(imported, m_program.path(QStringLiteral("out.264")).toUtf8()), 0);
    QCOMPARE(imported.views[0].deblocking, 1);
    QCOMPARE(imported.views[1].deblocking, 0);
}

QTEST_GUILESS_MAIN(TestHostExportJm)
#include "tst_host_export_jm.moc"
