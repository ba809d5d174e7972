// What is exported to x264, encoded by it and imported again.

#include "RealEncode.h"

namespace
{

/// What ffmpeg cannot be told.
constexpr ExportCase pulldowns[] = {
    {"2:3", 0, "pulldown=1", "pulldown=2"},
    {"3:2", 0, "pulldown=2", ""},
    {"3:2 of 24 frames", 0, "pulldown=2 frame_rate=24", ""},
    {"2:3 of 12.5 frames", 0, "pulldown=1 frame_rate=12.5", "pulldown=2"},
    {"3:2 of 12.5 frames", 0, "pulldown=2 frame_rate=12.5", ""},
    {"3:2 of 7.5 frames", 0, "pulldown=2 frame_rate=7.5", ""},
    {"3:2 of 15 frames", 0, "pulldown=2 frame_rate=15", ""},
    {"2:3 of frames", 0, "pulldown=4", ""},
    {"2:3 of 25 frames", 0, "pulldown=4 frame_rate=25", ""},
    {"2:3 of 12.5 frames, whole", 0, "pulldown=4 frame_rate=12.5", ""},
    {"3:2 of frames", 0, "pulldown=5", "pulldown=4"},
    {"2:2", 0, "pulldown=7 frame_rate=25", ""},
    {"3:3", 0, "pulldown=8 frame_rate=20", ""},
    {"none that is chosen", 0, "pulldown=6", "pulldown=0"},
};

} // namespace

class TestHostExportX264 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void streamsTellWhatWasSet_data();
    void streamsTellWhatWasSet();
    void sceneChangesMeetTheInterval_data();
    void sceneChangesMeetTheInterval();
    void eachViewHasItsOwnRates();
    void inputMayTellItsFormat();

private:
    kvtest::RealEncode m_encode;
};

void TestHostExportX264::initTestCase()
{
    if (!kvtest::hasFfmpeg() || QStandardPaths::findExecutable(QStringLiteral("x264")).isEmpty()) {
        QSKIP("x264 and ffmpeg are not installed");
    }
}

void TestHostExportX264::streamsTellWhatWasSet_data()
{
    QTest::addColumn<const ExportCase*>("row");
    kvtest::addRows(exportCases);
    kvtest::addRows(pulldowns);
}

void TestHostExportX264::streamsTellWhatWasSet()
{
    QFETCH(const ExportCase*, row);
    QCOMPARE(m_encode.roundTrip(*row, "x264", "yuv"), QString());
}

void TestHostExportX264::sceneChangesMeetTheInterval_data()
{
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("iFrames");
    const auto row = [](const char* set, const char* iFrames) {
        QTest::newRow(set) << QString::fromUtf8(set) << QString::fromUtf8(iFrames);
    };
    row("scene_detection=1", "0 5 15 25");
    row("scene_detection=0", "0 10 20");
    // It cannot be told.
    row("scene_detection=1 fixed_i_position=1", "0 5 15 25");
}

void TestHostExportX264::sceneChangesMeetTheInterval()
{
    QFETCH(QString, set);
    QFETCH(QString, iFrames);
    const QByteArray all = "i_interval=10 " + set.toUtf8();
    const ExportCase row = {"", 0, all.constData(), "", 30, 5};
    QCOMPARE(m_encode.roundTrip(row, "x264", "yuv"), QString());
    QCOMPARE(m_encode.iFrames(), iFrames);
}

void TestHostExportX264::eachViewHasItsOwnRates()
{
    // Half of the base view's.
    const ExportCase row = {"", KV_MVC_STEREO_HIGH, "",
                            "max_bitrate=15000000 bitrate_buffer=1875000"};
    QCOMPARE(m_encode.roundTrip(row, "x264", "yuv", 1), QString());
}

/// The settings' frame rate holds, not that of the input.
void TestHostExportX264::inputMayTellItsFormat()
{
    const ExportCase row = {"", 0, "profile=4 bit_depth_luma=10 bit_depth_chroma=10", ""};
    QCOMPARE(m_encode.roundTrip(row, "x264", "y4m"), QString());
}

QTEST_GUILESS_MAIN(TestHostExportX264)
#include "tst_host_export_x264.moc"
