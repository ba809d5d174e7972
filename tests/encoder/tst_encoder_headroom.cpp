// The first note of settings that are accepted: the limit that has the least room left.

#include <QTest>

#include "Encoder.h"

namespace
{

using V = KvMvcViewSettings;
using Record = KvMvcSettings;
using encoder::setBoth;
using encoder::setFrameRate;

struct FirstNote {
    const char* name;
    int preset;
    void (*change)(Record&);
    const char* note;
};

const FirstNote firstNotes[] = {
    // 8160 * 24000 / 1001 macroblocks/s, of 245760 (Table A-1).
    {"one view", 0, [](Record&) {},
     "Least headroom: macroblock rate, 195645 of the 245760 macroblocks/s that level 4.1 allows; "
     "50115 left."},
    {"two views", 2, [](Record&) {},
     "Least headroom: decoded pictures, 7 of the 8 frames that level 4.1 allows; 1 left."},
    {"a disc, whose limit is tighter than the level's", 3, [](Record&) {},
     "Least headroom: the base view's buffer, 30.00 of the 30.00 Mbit that Blu-ray 3D allows; 0.00 "
     "left."},
    {"the rate of both views on a disc", 3,
     [](Record& r) {
         r.views[0].max_bitrate = 36000000;
         r.views[0].bitrate_buffer = 3125000;
         r.views[1].max_bitrate = 23500000;
     },
     "Least headroom: bitrate of both views, 59.50 of the 60.00 Mbit/s that Blu-ray 3D allows; "
     "0.50 left."},
    {"the rate of view 1 on a disc", 3,
     [](Record& r) {
         r.views[0].max_bitrate = 18000000;
         r.views[0].bitrate = 10000000;
         r.views[0].bitrate_buffer = 1250000;
         r.views[1].max_bitrate = 39000000;
     },
     "Least headroom: view 1's bitrate, 39.00 of the 40.00 Mbit/s that Blu-ray 3D allows; 1.00 "
     "left."},
    {"the level that Auto comes to", 0,
     [](Record& r) {
         setBoth(r, &V::level, int{KV_MVC_LEVEL_AUTO});
         r.views[0].max_bitrate = 60000000;
     },
     "Least headroom: bitrate of pictures, 60.00 of the 62.50 Mbit/s that level 4.1 allows; 2.50 "
     "left."},
    // Beyond 62.5 Mbit/s of pictures is a risk, which is told as that.
    {"a limit that is exceeded at a risk", 0, [](Record& r) { r.views[0].max_bitrate = 70000000; },
     "Least headroom: bitrate, 70.00 of the 75.00 Mbit/s that level 4.1 allows; 5.00 left."},
    {"as many decimals as it takes", 0, [](Record& r) { r.views[0].max_bitrate = 62345678; },
     "Least headroom: bitrate of pictures, 62.345678 of the 62.50 Mbit/s that level 4.1 allows; "
     "0.154322 left."},
    // 8160 of 8192 macroblocks are 99 %.
    {"not the picture's size, which fits or does not", 0,
     [](Record& r) {
         setFrameRate(r, 15);
         r.views[0].num_ref_frames = 2;
     },
     "Least headroom: decoded pictures, 2 of the 4 frames that level 4.1 allows; 2 left."},
    // 60 Mbit/s of view 1 are no sum of both.
    {"not the sum of rates of which one is unknown", 2,
     [](Record& r) {
         r.views[0].bitrate_mode = KV_MVC_CONSTANT_QUANTIZER;
         r.views[1].max_bitrate = 60000000;
         r.views[1].bitrate_buffer = 2500000;
     },
     "Least headroom: decoded pictures, 7 of the 8 frames that level 4.1 allows; 1 left."},
    // Its own notes of the cadence and of the aspect come before those of the level.
    {"above notes on the picture", 0,
     [](Record& r) {
         setBoth(r, &V::pulldown, int{KV_MVC_PULLDOWN_AUTO});
         setBoth(r, &V::display_aspect_x, 0);
         setBoth(r, &V::display_aspect_y, 0);
         setBoth(r, &V::pixel_aspect_x, 0);
         setBoth(r, &V::pixel_aspect_y, 0);
     },
     "Least headroom: macroblock rate, 195645 of the 245760 macroblocks/s that level 4.1 allows; "
     "50115 left."},
};

} // namespace

class TestEncoderHeadroom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standsAboveAllNotes_data();
    void standsAboveAllNotes();
    void isToldOnce();
    void isNotToldOfWhatIsRefused();
    void isToldToProgramsInFull();
    void aDiscHasItsOwnLimitInTheNoteOnRates();
};

void TestEncoderHeadroom::standsAboveAllNotes_data()
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < std::size(firstNotes); ++i) {
        QTest::newRow(firstNotes[i].name) << int(i);
    }
}

void TestEncoderHeadroom::standsAboveAllNotes()
{
    QFETCH(const int, row);
    Record record = encoder::preset(firstNotes[row].preset);
    firstNotes[row].change(record);
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.accepted(), outcome.all().constData());
    QVERIFY(outcome.notes().size() > 1);
    QCOMPARE(outcome.notes().first(), QByteArray(firstNotes[row].note));
}

void TestEncoderHeadroom::isToldOnce()
{
    for (int preset = 0; preset <= 3; ++preset) {
        Record record = encoder::preset(preset);
        int told = 0;
        const Outcome outcome = encoder::check(record);
        for (const QByteArray& note : outcome.notes()) {
            told += note.startsWith("Least headroom: ") ? 1 : 0;
        }
        QCOMPARE(told, 1);
    }
}

void TestEncoderHeadroom::isNotToldOfWhatIsRefused()
{
    // What the level refuses, and what only a disc does.
    Record beyondLevel = encoder::preset(0);
    beyondLevel.views[0].num_ref_frames = 5;
    Record beyondDisc = encoder::preset(3);
    beyondDisc.views[0].max_bitrate = 40000001;
    for (Record* const record : {&beyondLevel, &beyondDisc}) {
        const Outcome outcome = encoder::check(*record);
        QVERIFY(!outcome.accepted());
        QVERIFY(!outcome.notes().isEmpty());
        for (const QByteArray& note : outcome.notes()) {
            QVERIFY2(!note.startsWith("Least headroom"), note.constData());
        }
    }
}

void TestEncoderHeadroom::isToldToProgramsInFull()
{
    Record level = encoder::preset(0);
    level.views[0].max_bitrate = 60000000;
    QCOMPARE(encoder::check(level).abouts.first(),
             (About{KV_MVC_MESSAGE_NOTE, "headroom.bitrate-pictures", "bitrate", -1, 60000000,
                    62500000, "4.1"}));
    Record disc = encoder::preset(3);
    QCOMPARE(encoder::check(disc).abouts.first(),
             (About{KV_MVC_MESSAGE_NOTE, "headroom.disc-buffer", "bitrate_buffer", 0, 30000000,
                    30000000, ""}));
}

void TestEncoderHeadroom::aDiscHasItsOwnLimitInTheNoteOnRates()
{
    Record record = encoder::preset(3);
    const Outcome outcome = encoder::check(record);
    const QByteArray note =
        "Bitrate: 45.00 of the 60.00 Mbit/s that Blu-ray 3D allows both views together.";
    QVERIFY2(outcome.notes().contains(note), outcome.all().constData());
    for (const QByteArray& other : outcome.notes()) {
        QVERIFY2(other == note || !other.startsWith("Bitrate: "), other.constData());
    }
}

QTEST_GUILESS_MAIN(TestEncoderHeadroom)
#include "tst_encoder_headroom.moc"
