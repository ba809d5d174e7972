// What is exported to ffmpeg, encoded by it and imported again.

#include "RealEncode.h"

class TestHostExportFfmpeg : public QObject
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

void TestHostExportFfmpeg::initTestCase()
{
    if (!kvtest::hasFfmpeg()) {
        QSKIP("ffmpeg is not installed");
    }
}

void TestHostExportFfmpeg::streamsTellWhatWasSet_data()
{
    QTest::addColumn<const ExportCase*>("row");
    kvtest::addRows(exportCases);
}

void TestHostExportFfmpeg::streamsTellWhatWasSet()
{
    QFETCH(const ExportCase*, row);
    QCOMPARE(m_encode.roundTrip(*row, "ffmpeg", "yuv"), QString());
}

void TestHostExportFfmpeg::sceneChangesMeetTheInterval_data()
{
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("iFrames");
    const auto row = [](const char* set, const char* iFrames) {
        QTest::newRow(set) << QString::fromUtf8(set) << QString::fromUtf8(iFrames);
    };
    row("scene_detection=1", "0 5 15 25");
    row("scene_detection=0", "0 10 20");
    row("scene_detection=1 fixed_i_position=1", "0 5 10 20");
}

void TestHostExportFfmpeg::sceneChangesMeetTheInterval()
{
    QFETCH(QString, set);
    QFETCH(QString, iFrames);
    const QByteArray all = "i_interval=10 " + set.toUtf8();
    const ExportCase row = {"", 0, all.constData(), "", 30, 5};
    QCOMPARE(m_encode.roundTrip(row, "ffmpeg", "yuv"), QString());
    QCOMPARE(m_encode.iFrames(), iFrames);
}

void TestHostExportFfmpeg::eachViewHasItsOwnRates()
{
    // Half of the base view's.
    const ExportCase row = {"", KV_MVC_STEREO_HIGH, "",
                            "max_bitrate=15000000 bitrate_buffer=1875000"};
    QCOMPARE(m_encode.roundTrip(row, "ffmpeg", "yuv", 1), QString());
}

/// The settings' frame rate holds, not that of the input.
void TestHostExportFfmpeg::inputMayTellItsFormat()
{
    const ExportCase row = {"", 0, "profile=4 bit_depth_luma=10 bit_depth_chroma=10", ""};
    QCOMPARE(m_encode.roundTrip(row, "ffmpeg", "y4m"), QString());
}

QTEST_GUILESS_MAIN(TestHostExportFfmpeg)
#include "tst_host_export_ffmpeg.moc"
