// The picture formats of the disc: what each allows between I pictures, and its pixel aspect
// ratios.

#include <QtTest>

#include "Encoder.h"

namespace
{

using V = KvMvcViewSettings;
using encoder::setBoth;

/// A format of 4:3 and 16:9, the same where the pixels of both are alike.
struct Format {
    const char* name;
    int width;
    int height;
    double frameRate;
    int interlaceMode;
    int interval;
    int narrowX;
    int narrowY;
    int wideX;
    int wideY;
};

constexpr Format formats[] = {
    {"1080 at 23.976", 1920, 1080, 24000.0 / 1001, 0, 24, 1, 1, 1, 1},
    {"1080 at 24", 1920, 1080, 24, 0, 24, 1, 1, 1, 1},
    {"1080 at 25, interlaced", 1920, 1080, 25, 1, 25, 1, 1, 1, 1},
    {"1080 at 29.97, interlaced", 1920, 1080, 30000.0 / 1001, 1, 30, 1, 1, 1, 1},
    {"1440 x 1080 at 23.976", 1440, 1080, 24000.0 / 1001, 0, 24, 4, 3, 4, 3},
    {"1440 x 1080 at 24", 1440, 1080, 24, 0, 24, 4, 3, 4, 3},
    {"1440 x 1080 at 25, MBAFF", 1440, 1080, 25, 2, 25, 4, 3, 4, 3},
    {"1440 x 1080 at 29.97, interlaced", 1440, 1080, 30000.0 / 1001, 1, 30, 4, 3, 4, 3},
    {"720 at 23.976", 1280, 720, 24000.0 / 1001, 0, 24, 1, 1, 1, 1},
    {"720 at 24", 1280, 720, 24, 0, 24, 1, 1, 1, 1},
    {"720 at 50", 1280, 720, 50, 0, 50, 1, 1, 1, 1},
    {"720 at 59.94", 1280, 720, 60000.0 / 1001, 0, 60, 1, 1, 1, 1},
    {"576 at 25, interlaced", 720, 576, 25, 1, 25, 12, 11, 16, 11},
    {"480 at 29.97, interlaced", 720, 480, 30000.0 / 1001, 1, 30, 10, 11, 40, 33},
};

KvMvcSettings recordOf(const Format& format)
{
    KvMvcSettings record = encoder::preset(KV_MVC_BLURAY_3D);
    setBoth(record, &V::width, format.width);
    setBoth(record, &V::height, format.height);
    setBoth(record, &V::interlace_mode, format.interlaceMode);
    setBoth(record, &V::i_interval, format.interval);
    encoder::setFrameRate(record, format.frameRate);
    setBoth(record, &V::display_aspect_x, int{KV_MVC_ASPECT_UNSET});
    setBoth(record, &V::display_aspect_y, int{KV_MVC_ASPECT_UNSET});
    setBoth(record, &V::pixel_aspect_x, format.narrowX);
    setBoth(record, &V::pixel_aspect_y, format.narrowY);
    return record;
}

} // namespace

class TestEncoderDisc : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void intervalOfEachFormat_data() { addFormats(); }
    void intervalOfEachFormat();
    void aspectsOfEachFormat_data() { addFormats(); }
    void aspectsOfEachFormat();

private:
    void addFormats();
};

void TestEncoderDisc::addFormats()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const Format& format : formats) {
        QTest::newRow(format.name) << index++;
    }
}

void TestEncoderDisc::intervalOfEachFormat()
{
    QFETCH(const int, index);
    const Format& format = formats[index];
    KvMvcSettings longest = recordOf(format);
    const Outcome allowed = encoder::check(longest);
    QVERIFY2(allowed.accepted(), allowed.all().constData());

    KvMvcSettings longer = recordOf(format);
    setBoth(longer, &V::i_interval, format.interval + 1);
    QCOMPARE(encoder::check(longer).errors(),
             QByteArrayList{"Blu-ray requires an I-frame interval from 1 to " +
                            QByteArray::number(format.interval) + " at this frame rate (now " +
                            QByteArray::number(format.interval + 1) + ")."});
}

void TestEncoderDisc::aspectsOfEachFormat()
{
    QFETCH(const int, index);
    const Format& format = formats[index];
    KvMvcSettings wide = recordOf(format);
    setBoth(wide, &V::pixel_aspect_x, format.wideX);
    setBoth(wide, &V::pixel_aspect_y, format.wideY);
    const Outcome allowed = encoder::check(wide);
    QVERIFY2(allowed.accepted(), allowed.all().constData());

    KvMvcSettings wider = recordOf(format);
    setBoth(wider, &V::pixel_aspect_x, 2);
    setBoth(wider, &V::pixel_aspect_y, 1);
    const bool one = format.narrowX == format.wideX;
    QCOMPARE(encoder::check(wider).errors().size(), 1);
    QCOMPARE(encoder::check(wider).rules.contains(one ? QStringLiteral("disc.aspect")
                                                      : QStringLiteral("disc.aspect-two")),
             true);
}

QTEST_GUILESS_MAIN(TestEncoderDisc)
#include "tst_encoder_disc.moc"
