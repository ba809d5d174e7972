// export: what is told of settings that get lost, and that nothing else is.

#include "RealEncode.h"

class TestHostExportNotes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsLostIsTold_data();
    void whatIsLostIsTold();
    void whatTwoViewsLoseIsTold_data();
    void whatTwoViewsLoseIsTold();
    void secondViewHasItsDeblocking();

private:
    HostProgram m_program;
};

void TestHostExportNotes::whatIsLostIsTold_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("error");
    const auto row = [](const char* target, const char* set, const char* error) {
        QTest::addRow("%s, %s", target, set)
            << QString::fromUtf8(target) << QString::fromUtf8(set)
            << (*error == '\0' ? QString()
                               : QStringLiteral("note: %1\n").arg(QLatin1String(error)));
    };
    row("x264", "", "");
    row("x264", "level=16", "Level: it is no level of H.264, x264 chooses one");
    row("x264", "level=100", "");
    row("x264", "profile=1 entropy_mode=0 ref_distance=1",
        "Profile: x264 writes the lowest profile that has what is used");
    row("x264", "profile=1 entropy_mode=0", "");
    row("x264", "profile=4", "Profile: x264 writes the lowest profile that has what is used");
    row("x264", "profile=4 bit_depth_luma=10 bit_depth_chroma=10", "");
    row("x264", "profile=7", "Profile: its value is none that is known");
    row("x264", "frame_rate=0", "Frame rate: it is not set, the input's or 25 is taken");
    row("x264", "interlace_mode=1", "Picture structure: x264 codes MBAFF frames, not fields");
    row("x264", "interlace_mode=2", "");
    row("x264", "pulldown=1", "Pulldown: x264 starts with the frame of three fields");
    row("x264", "pulldown=2", "");
    row("x264", "pulldown=2 field_order=1",
        "Field order: in progressive pictures x264 starts with the top field");
    row("x264", "pulldown=4 field_order=1", "");
    row("x264", "pulldown=5", "Pulldown: x264 starts with the frame that is shown twice");
    row("x264", "pulldown=6", "Pulldown: x264 chooses none by itself");
    row("x264", "chroma_format=4", "Chroma format: x264 has no such format");
    row("x264", "bit_depth_chroma=10",
        "Bit-depth chroma: x264 codes chroma in as many bits as luma");
    row("x264", "bit_depth_chroma=10 chroma_format=1", "");
    row("x264", "bitrate=20000500 max_bitrate=30000500",
        "Target bitrate (bps), Max bitrate (bps): rates and buffers are rounded to thousands of "
        "bits");
    row("x264", "bitrate_buffer=1000001",
        "Bitrate buffer: rates and buffers are rounded to thousands of bits");
    row("x264", "vbv_target=80",
        "VBV buffer target: x264 keeps the buffer as full as it finds best");
    row("x264", "vbv_target=80 hrd_mode=0", "");
    row("x264", "bitrate_mode=1", "HRD conformance: no buffer is kept without a bit rate");
    row("x264", "bitrate_mode=1 hrd_mode=0", "");
    row("x264", "frame_size_i=200000 frame_size_bref=1",
        "Maximum I-frame size, Maximum Br-frame size: x264 limits no picture's size");
    row("x264", "bitrate_mode=3 hrd_mode=0 quant_i=4",
        "Quantizer I-frames: x264 keeps it within 19 of that of P-frames");
    row("x264", "bitrate_mode=3 hrd_mode=0 quant_i=5", "");
    row("x264", "quant_i=2", "");
    row("x264", "bitrate_mode=1 hrd_mode=0 quant_i=0 quant_p=0 quant_b=0",
        "Quantizer P-frames: the lowest is lossless coding, the next is taken");
    row("x264", "bitrate_mode=3 hrd_mode=0 quant_i=0 quant_p=0 quant_b=0",
        "Quantizer P-frames: the lowest is lossless coding, the next is taken");
    row("x264", "force_i=5",
        "Min. I-frame distance: at a nearer scene change x264 codes an I-frame that is no IDR "
        "picture");
    row("x264", "force_i=13",
        "Min. I-frame distance: at a nearer scene change x264 codes an I-frame that is no IDR "
        "picture");
    row("x264", "force_i=14",
        "Min. I-frame distance: at a nearer scene change x264 codes an I-frame that is no IDR "
        "picture\n"
        "note: Min. I-frame distance: x264 takes half the interval at most");
    row("x264", "force_i=5 scene_detection=0", "");
    row("x264", "fixed_i_position=1",
        "Fixed I-frames distance: x264 counts the interval from a scene change on");
    row("x264", "fixed_i_position=1 scene_detection=0", "");
    row("x264", "idr_marker=2",
        "Mark every so many I-frames as IDR: x264 makes all I-frames of the interval IDR "
        "pictures, or the first alone; it is all");
    row("x264", "idr_marker=0", "");
    row("x264", "idr_marker=0 ref_distance=1",
        "Mark every so many I-frames as IDR: without B-frames all I-frames of the interval are "
        "IDR pictures");
    row("x264", "reference_b=1", "");
    row("x264", "reference_b=1 ref_distance=4",
        "B-frames as reference frames: x264 has them only in a pyramid, of three B-frames or more");
    row("x264", "reference_b=1 ref_distance=2",
        "B-frames as reference frames: x264 has them only where two B-frames or more are in a "
        "row");
    row("x264", "reference_b=1 pyramid_b=1 ref_distance=4 num_ref_frames=4", "");
    row("x264", "reference_b=1 pyramid_b=1 num_ref_frames=4",
        "Pyramidal structure for B-frames: x264 has one only of three B-frames or more");
    row("x264", "pyramid_b=1",
        "Pyramidal structure for B-frames: there is none without B-frames as reference frames");
    row("x264", "num_ref_frames=1", "Reference frames: x264 keeps more of them, for its B-frames");
    row("x264", "num_ref_frames=1 ref_distance=1", "");
    row("x264", "motion_search=3", "Motion vector search range: x264 searches 4 samples at least");
    row("x264", "subpixel_mode=1", "Subpixel search depth: x264 goes on to quarter samples");
    row("x264", "weighted_p=1 interlace_mode=2",
        "Weighted prediction for P-frames: x264 has it only in progressive pictures");
    row("x264", "fast_subblock=0",
        "Fast sub-block search: x264 always ends the search of sub-blocks early");
    row("x264", "fast_intra=1",
        "Fast intra decisions: x264 has no faster intra decisions by themselves");
    row("x264", "brightness=20 contrast=-20",
        "Adaptive quantization, brightness based, Adaptive quantization, contrast based: x264 "
        "adapts quantizers only to complexity");
    row("x264", "complexity=-1",
        "Adaptive quantization, complexity based: x264 has no negative strength");
    row("x264", "complexity=100", "");

    // What x264 lacks it lacks there, too.
    row("ffmpeg", "", "");
    row("ffmpeg", "interlace_mode=1", "Picture structure: x264 codes MBAFF frames, not fields");
    row("ffmpeg", "level=16", "Level: it is no level of H.264, x264 chooses one");
    row("ffmpeg", "bitrate=20000500",
        "Target bitrate (bps): rates and buffers are rounded to thousands of bits");
    row("ffmpeg", "pulldown=2", "Pulldown: ffmpeg does not tell x264 of it");
    row("ffmpeg", "pulldown=2 field_order=1", "Pulldown: ffmpeg does not tell x264 of it");
    row("ffmpeg", "fixed_i_position=1", "");

    // Of one view, without scene changes and a buffer.
    const char* const plain = "scene_detection=0 hrd_mode=0 ";
    const auto jm = [&](const char* set, const char* error) {
        row("jm", (QByteArray(plain) + set).constData(), error);
    };
    jm("", "");
    row("jm", "hrd_mode=0", "Enable scene detection: JM looks for no scene changes");
    row("jm", "hrd_mode=0 i_interval=1", "");
    row("jm", "scene_detection=0",
        "VBV buffer initial, VBV buffer target: JM writes rate and size of the buffer into the "
        "stream, but keeps none");
    jm("level=100", "Level: JM takes a level of H.264 and chooses none: 5.1 is taken, 4.1 of "
                    "interlaced pictures");
    jm("frame_rate=0", "Frame rate: it is not set, the stream tells none");
    jm("interlace_mode=1 field_order=1", "Field order: JM codes the top field first");
    jm("interlace_mode=1", "");
    jm("pulldown=2", "Pulldown: JM repeats no fields or frames");
    jm("chroma_format=4", "Chroma format: JM has no such format");
    jm("bitrate_mode=3", "Bitrate mode: JM codes with constant quantizers");
    jm("bitrate_mode=1", "");
    row("jm", "scene_detection=0 bitrate_mode=1",
        "HRD conformance: there is no buffer without a bit rate");
    jm("frame_size_p=1", "Maximum P-frame size: JM limits no picture's size");
    jm("adaptive_b=1", "Adaptive B-frame placement: JM places B-frames at regular distances");
    jm("pyramid_b=1", "Pyramidal structure for B-frames: there is none without B-frames as "
                      "reference frames");
    jm("pyramid_b=1 reference_b=1",
       "Pyramidal structure for B-frames: JM has one only of three B-frames");
    jm("pyramid_b=1 reference_b=1 ref_distance=4", "");
    jm("weighted_p=1 interlace_mode=1",
       "Weighted prediction for P-frames: JM has it only in progressive pictures");
    jm("weighted_p=1", "");
    jm("num_ref_frames=0", "Reference frames: JM keeps one at least");
    jm("num_ref_frames=0 i_interval=1", "");
    jm("motion_search=0", "Motion vector search range: JM searches one sample at least");
    jm("subpixel_mode=1", "Subpixel search depth: JM goes on to quarter samples");
    jm("fast_reference=0", "Fast sub-block search: JM has it only with that of reference frames");
    jm("fast_reference=0 fast_subblock=0", "");
    jm("fast_inter=1", "Fast inter decisions: JM has none in the profiles above Main");
    jm("simple_rd=1 interlace_mode=2",
       "Simplified RD optimization: JM codes MBAFF frames only with the full one");
    jm("simple_rd=1", "");
    jm("contrast=10", "Adaptive quantization, contrast based: JM adapts no quantizers to the "
                      "picture");
    jm("num_slices=8000", "Slices per picture: slices of equal size come to another number");
    jm("num_slices=16", "");
    jm("num_threads=2", "Threads: JM works in one thread");
}

void TestHostExportNotes::whatIsLostIsTold()
{
    QFETCH(QString, target);
    QFETCH(QString, set);
    QFETCH(QString, error);
    KvMvcSettings settings = kvtest::EncoderLibrary().defaults(KV_MVC_VIDEO_TYPE_NONE);
    kvtest::setAll(set.toUtf8().constData(), settings);
    m_program.writeSettings(QStringLiteral("movie.ini"), settings);
    const HostProgram::Result result = m_program.run(
        {QStringLiteral("export"), QStringLiteral("--to"), target, QStringLiteral("movie.ini")});
    QCOMPARE(result.error, error);
    QCOMPARE(result.exitCode, 0);
}

void TestHostExportNotes::whatTwoViewsLoseIsTold_data()
{
    QTest::addColumn<int>("preset");
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("note");
    const auto row = [](int preset, const char* set, const char* note) {
        QTest::newRow(set) << preset << QString::fromUtf8(set) << QString::fromUtf8(note);
    };
    row(KV_MVC_MULTIVIEW_HIGH, "num_views=3",
        "Number of additional views: JM codes the first two views");
    row(KV_MVC_STEREO_HIGH, "split_views=1", "Split views: JM writes both views into one stream");
    row(KV_MVC_STEREO_HIGH, "profile=1", "Profile: JM codes the base view of two in High");
    row(KV_MVC_STEREO_HIGH, "interlace_mode=1",
        "Mark every so many I-frames as IDR: of two views in fields JM makes only the first "
        "I-frame a decodable IDR picture");
    row(KV_MVC_STEREO_HIGH, "bitrate_buffer=1000001",
        "Bitrate buffer: the stream has rates in units of 64 bit/s and buffers in units of 16 "
        "bits");
}

void TestHostExportNotes::whatTwoViewsLoseIsTold()
{
    QFETCH(int, preset);
    QFETCH(QString, set);
    QFETCH(QString, note);
    const QStringList command = {QStringLiteral("export"),   QStringLiteral("--to"),
                                 QStringLiteral("jm"),       QStringLiteral("-o"),
                                 QStringLiteral("film.cfg"), QStringLiteral("movie.ini")};
    KvMvcSettings settings = kvtest::EncoderLibrary().defaults(preset);
    m_program.writeSettings(QStringLiteral("movie.ini"), settings);
    const QString line = QStringLiteral("note: %1\n").arg(note);
    const QString before = m_program.run(command).error;
    kvtest::setAll(set.toUtf8().constData(), settings);
    m_program.writeSettings(QStringLiteral("movie.ini"), settings);
    const QString after = m_program.run(command).error;
    QVERIFY2(!before.contains(line), qPrintable(before));
    QVERIFY2(after.contains(line), qPrintable(after));
}

/// Unlike its rates, which have no place in its configuration.
void TestHostExportNotes::secondViewHasItsDeblocking()
{
    KvMvcSettings settings = kvtest::EncoderLibrary().defaults(KV_MVC_STEREO_HIGH);
    settings.views[1].deblocking = 0;
    m_program.writeSettings(QStringLiteral("movie.ini"), settings);
    const HostProgram::Result result = m_program.run(
        {QStringLiteral("export"), QStringLiteral("--to"), QStringLiteral("jm"),
         QStringLiteral("-o"), QStringLiteral("film.cfg"), QStringLiteral("movie.ini")});
    QVERIFY2(result.error.endsWith(
                 QStringLiteral("\nnote: Target bitrate (bps), Max bitrate (bps), Bitrate buffer: "
                                "JM codes the second view as the base view\n")),
             qPrintable(result.error));
}

QTEST_GUILESS_MAIN(TestHostExportNotes)
#include "tst_host_export_notes.moc"
