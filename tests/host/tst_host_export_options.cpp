// export: the options that settings become, where no encoder is there to try them.

#include "RealEncode.h"

class TestHostExportOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settingsBecomeOptions_data();
    void settingsBecomeOptions();

private:
    HostProgram m_program;
};

void TestHostExportOptions::settingsBecomeOptions_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("preset");
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("options");
    const auto row = [](const char* target, int preset, const char* set, const char* options) {
        QTest::addRow("%s, preset %d, %s: %s", target, preset, set, options)
            << QString::fromUtf8(target) << preset << QString::fromUtf8(set)
            << QStringLiteral(" %1 ").arg(QLatin1String(options));
    };
    row("x264", 0, "interlace_mode=2", "--tff");
    row("x264", 0, "interlace_mode=2 field_order=1", "--bff");
    // Of a maximum of 20 Mbit/s and a buffer of 40 Mbit.
    row("x264", 0,
        "max_bitrate=20000000 bitrate_units=1 bitrate_buffer=40000000 vbv_initial=10000000",
        "--vbv-init 0.25");
    row("x264", 0, "max_bitrate=20000000 bitrate_units=2 bitrate_buffer=40000000 vbv_initial=45000",
        "--vbv-init 0.25");
    row("x264", 0, "bitrate_mode=0", "--vbv-maxrate 20000");
    // Six quantizers are twice the step.
    row("x264", 0, "bitrate_mode=3 hrd_mode=0 quant_i=18 quant_p=24 quant_b=36", "--ipratio 2");
    row("x264", 0, "bitrate_mode=3 hrd_mode=0 quant_i=18 quant_p=24 quant_b=36", "--pbratio 4");
    // The lowest quantizer is lossless coding, which High profiles do not have there.
    row("x264", 0, "bitrate_mode=3 hrd_mode=0 quant_p=0", "--crf 1");
    row("x264", 0,
        "profile=110 bit_depth_luma=10 bit_depth_chroma=10 bitrate_mode=3 hrd_mode=0 quant_p=-12",
        "--crf -11");
    row("x264", 0, "reference_b=1 pyramid_b=1", "--b-pyramid normal");
    row("x264", 3, "reference_b=1 pyramid_b=1", "--b-pyramid strict");
    row("x264", 0, "weighted_p=1", "--weightp 1");
    row("x264", 0, "weighted_p=1 interlace_mode=2", "--weightp 0");
    // Fields have no level above it (H.264 Table A-4).
    row("jm", 0, "level=100 interlace_mode=1", "LevelIDC = 41");
    row("jm", 0, "level=100", "LevelIDC = 51");
    // Of 8160 macroblocks, in pairs.
    row("jm", 0, "interlace_mode=2 num_slices=32", "SliceArgument = 256");
}

void TestHostExportOptions::settingsBecomeOptions()
{
    QFETCH(QString, target);
    QFETCH(int, preset);
    QFETCH(QString, set);
    QFETCH(QString, options);
    KvMvcSettings settings = kvtest::EncoderLibrary().defaults(preset);
    kvtest::setAll(set.toUtf8().constData(), settings);
    m_program.writeSettings(QStringLiteral("movie.ini"), settings);
    const HostProgram::Result result = m_program.run(
        {QStringLiteral("export"), QStringLiteral("--to"), target, QStringLiteral("movie.ini")});
    const QString text = QStringLiteral(" %1 ").arg(result.output.simplified());
    QVERIFY2(text.contains(options), qPrintable(result.output));
}

QTEST_GUILESS_MAIN(TestHostExportOptions)
#include "tst_host_export_options.moc"
