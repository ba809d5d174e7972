// Every level at its limits: the largest value that passes, and the next that does not.

#include <QTest>

#include "Encoder.h"

#include <cmath>

namespace
{

using V = KvMvcViewSettings;
using encoder::setBoth;

/// Table A-1 of H.264 (08/2021), with pictures that lie on its edges.
struct LevelRow {
    int code;
    const char* name;
    int fullWidth, fullHeight; ///< macroblocks: exactly MaxFS
    int side, sideHeight;      ///< most macroblocks in a row, and rows that still fit one more
    double mbRate;
    int dpbFrames;   ///< of the full picture
    int dpbTwoViews; ///< of the full picture, reference frames in each of two views
    int bitrate;     ///< MaxBR
    int buffer;      ///< MaxCPB
    int minCompression;
    int slices; ///< most slices of a picture of one macroblock column; 0: no limit
    bool interlaced;
};

// clang-format off
constexpr LevelRow levelRows[] = {
    //code name   full      side       MaxMBPS  DPB 2   MaxBR   MaxCPB MinCR slices
    {10, "1.0",  11,   9,   28,  3,     1485,   4,  4,     64,    175, 2,   0, false},
    {11, "1.1",  22,  18,   56,  6,     3000,   2,  2,    192,    500, 2,   0, false},
    {12, "1.2",  22,  18,   56,  6,     6000,   6,  6,    384,   1000, 2,   0, false},
    {13, "1.3",  22,  18,   56,  6,    11880,   6,  6,    768,   2000, 2,   0, false},
    {20, "2.0",  22,  18,   56,  6,    11880,   6,  6,   2000,   2000, 2,   0, false},
    {21, "2.1",  36,  22,   79,  9,    19800,   6,  6,   4000,   4000, 2,   0, true},
    {22, "2.2",  45,  36,  113, 14,    20250,   5,  5,   4000,   4000, 2,   0, true},
    {30, "3.0",  45,  36,  113, 14,    40500,   5,  5,  10000,  10000, 2,  10, true},
    {31, "3.1",  80,  45,  169, 21,   108000,   5,  5,  14000,  14000, 4,  10, true},
    {32, "3.2",  80,  64,  202, 25,   216000,   4,  4,  20000,  20000, 4,  20, true},
    {40, "4.0", 128,  64,  256, 31,   245760,   4,  4,  20000,  25000, 4,  23, true},
    {41, "4.1", 128,  64,  256, 31,   245760,   4,  4,  50000,  62500, 2,  59, true},
    {42, "4.2", 136,  64,  263, 32,   522240,   4,  4,  50000,  62500, 2, 126, false},
    {50, "5.0", 184, 120,  420, 52,   589824,   5,  5, 135000, 135000, 2, 142, false},
    {51, "5.1", 192, 192,  543, 67,   983040,   5,  5, 240000, 240000, 2, 238, false},
    {52, "5.2", 192, 192,  543, 67,  2073600,   5,  5, 240000, 240000, 2, 502, false},
};
// clang-format on

void setSize(KvMvcSettings& record, int widthMbs, int heightMbs)
{
    setBoth(record, &V::width, widthMbs * 16);
    setBoth(record, &V::height, heightMbs * 16);
}

/// A record that every level takes: P frames, one slice, 64 kbit/s, one full picture a second.
KvMvcSettings modest(const LevelRow& row)
{
    KvMvcSettings record = encoder::preset(0);
    setBoth(record, &V::level, row.code);
    setBoth(record, &V::ref_distance, 1);
    setBoth(record, &V::num_ref_frames, 1);
    setBoth(record, &V::num_slices, 1);
    setBoth(record, &V::multi_slice, 0);
    setBoth(record, &V::bitrate, 64);
    setBoth(record, &V::max_bitrate, 64);
    setBoth(record, &V::bitrate_units, int{KV_MVC_UNITS_BITS});
    setBoth(record, &V::bitrate_buffer, 64000);
    setBoth(record, &V::vbv_initial, 32000);
    setBoth(record, &V::vbv_target, 32000);
    setBoth(record, &V::motion_search, 16);
    encoder::setFrameRate(record, 1);
    setSize(record, row.fullWidth, row.fullHeight);
    return record;
}

/// Checks both sides of a limit: without any error, and with the one error that is meant.
void compareSides(KvMvcSettings within, KvMvcSettings beyond, const char* rule)
{
    const Outcome passes = encoder::check(within);
    QVERIFY2(passes.accepted() && passes.warnings().isEmpty(), passes.all().constData());
    const Outcome fails = encoder::check(beyond);
    QVERIFY2(!fails.accepted() && fails.errors().size() == 1, fails.all().constData());
    // Beyond the highest levels the message names no other one.
    const QString name = QString::fromLatin1(rule);
    QVERIFY2(fails.said(name) || (fails.said(name + QStringLiteral("-none")) &&
                                  fails.said(QStringLiteral("level.none"))),
             fails.all().constData());
}

template <class Change>
void compareSides(const KvMvcSettings& start, Change change, int within, int beyond,
                  const char* rule)
{
    KvMvcSettings first = start;
    change(first, within);
    KvMvcSettings second = start;
    change(second, beyond);
    compareSides(first, second, rule);
}

void setField(KvMvcSettings& record, std::int32_t V::*field, int value)
{
    setBoth(record, field, value);
}

/// What is wrong with a level, and the one message about it.
struct Advice {
    const char* name;
    int preset;
    void (*change)(KvMvcSettings&);
    const char* message;
};

using Record = KvMvcSettings;

// clang-format off
constexpr Advice advice[] = {
    {"a larger picture", 0, [](Record& r) { setBoth(r, &V::level, 32); setBoth(r, &V::max_bitrate, 25000000); setBoth(r, &V::bitrate_buffer, 3000000); },
     "Level 3.2 allows at most 5120 macroblocks in a picture (now 8160): choose level 4.0."},
    {"a wider picture", 0, [](Record& r) { setBoth(r, &V::width, 4112); setBoth(r, &V::height, 256); },
     "Level 4.1 allows at most 256 macroblocks in a row or column (now 257 x 16): choose level 4.2."},
    {"a picture too wide for all", 0, [](Record& r) { setBoth(r, &V::width, 8704); setBoth(r, &V::height, 64); },
     "Level 4.1 allows at most 256 macroblocks in a row or column (now 544 x 4): choose fewer."},
    {"a faster one", 0, [](Record& r) { encoder::setFrameRate(r, 50); },
     "Level 4.1 allows at most 245760 macroblocks/s (now 408000): lower the frame rate, or choose level 4.2."},
    {"too fast for all", 0, [](Record& r) { setBoth(r, &V::width, 4096); setBoth(r, &V::height, 2304); setBoth(r, &V::level, 52); encoder::setFrameRate(r, 60); },
     "Level 5.2 allows at most 2073600 macroblocks/s (now 2211840): lower the frame rate."},
    {"two faster views", 2, [](Record& r) { encoder::setFrameRate(r, 50); },
     "Level 4.1 allows at most 491520 macroblocks/s for 2 views (now 816000): lower the frame rate, or choose level 4.2."},
    {"beyond all limits by the frame rate alone", 0, [](Record& r) { encoder::setFrameRate(r, 200); },
     "No level allows more than 172 frames/s (now 200.00): choose a lower frame rate."},
    {"pulldown", 0, [](Record& r) { setBoth(r, &V::width, 4096); setBoth(r, &V::height, 2176); setBoth(r, &V::level, 51); encoder::setFrameRate(r, 24); setBoth(r, &V::pulldown, int{KV_MVC_PULLDOWN_2_3}); },
     "Pulldown makes 1.25 times as many macroblocks/s, 1044480; level 5.1 allows 983040: set it to Off, or choose level 5.2."},
    {"interlace beyond 4.1", 0, [](Record& r) { setBoth(r, &V::interlace_mode, 1); setBoth(r, &V::level, 42); },
     "Level 4.2 allows progressive pictures only: choose Progressive, or level 4.1."},
    {"interlace that no level takes", 0, [](Record& r) { setBoth(r, &V::interlace_mode, 1); setBoth(r, &V::level, 50); setBoth(r, &V::width, 2560); setBoth(r, &V::height, 1440); },
     "Level 5.0 allows progressive pictures only: choose Progressive."},
    {"a higher rate", 0, [](Record& r) { setBoth(r, &V::max_bitrate, 80000000); },
     "Level 4.1 allows the base view at most 75.00 Mbit/s (now 80.00): lower its bitrate, or choose level 5.0."},
    {"a rate beyond all", 0, [](Record& r) { setBoth(r, &V::max_bitrate, 400000000); },
     "Level 4.1 allows the base view at most 75.00 Mbit/s (now 400.00): lower its bitrate."},
    {"higher rates of two views", 2, [](Record& r) { setBoth(r, &V::max_bitrate, 40000000); },
     "Level 4.1 allows at most 75.00 Mbit/s for 2 views together (now 80.00): lower a bitrate, or choose level 5.0."},
    {"a rate between the limits", 0, [](Record& r) { setBoth(r, &V::level, 40); },
     "Of 30.00 Mbit/s, level 4.0 allows at most 25.00 for picture data: lower a bitrate, or choose level 4.1."},
    {"rates of two views between the limits", 2, [](Record& r) { setBoth(r, &V::max_bitrate, 35000000); },
     "Of 70.00 Mbit/s, level 4.1 allows at most 62.50 for picture data: lower a bitrate, or choose level 5.0."},
    {"a base view in Main between its limits", 2, [](Record& r) { setBoth(r, &V::profile, 1); r.views[0].max_bitrate = 55000000; r.views[1].max_bitrate = 7000000; r.views[1].bitrate = 7000000; },
     "Of 55.00 Mbit/s, level 4.1 allows at most 50.00 for picture data: lower a bitrate, or choose level 5.0."},
    {"a rate between the highest level's limits", 0, [](Record& r) { setBoth(r, &V::level, 51); setBoth(r, &V::max_bitrate, 350000000); },
     "Of 350.00 Mbit/s, level 5.1 allows at most 300.00 for picture data: lower a bitrate."},
    {"a rate between the limits of both highest levels", 0, [](Record& r) { setBoth(r, &V::level, 52); setBoth(r, &V::max_bitrate, 350000000); },
     "Of 350.00 Mbit/s, level 5.2 allows at most 300.00 for picture data: lower a bitrate."},
    {"a buffer between the limits", 0, [](Record& r) { setBoth(r, &V::level, 40); setBoth(r, &V::max_bitrate, 25000000); setBoth(r, &V::bitrate_buffer, 4000000); },
     "Of 32.00 Mbit in bitrate buffers, level 4.0 allows at most 31.25 for picture data: make one smaller, or level 4.1."},
    {"a larger buffer", 0, [](Record& r) { setBoth(r, &V::bitrate_buffer, 12000000); },
     "Level 4.1 allows the base view a bitrate buffer of at most 93.75 Mbit (now 96.00): make it smaller, or level 5.0."},
    {"larger buffers of two views", 2, [](Record& r) { r.views[0].bitrate_buffer = 10000000; },
     "Level 4.1 allows bitrate buffers of at most 93.75 Mbit for 2 views (now 95.00): make one smaller, or level 5.0."},
    {"a larger buffer than any level allows", 0, [](Record& r) { setBoth(r, &V::level, 41); setBoth(r, &V::bitrate_buffer, 46000000); },
     "Level 4.1 allows the base view a bitrate buffer of at most 93.75 Mbit (now 368.00): make it smaller."},
    {"more slices", 0, [](Record& r) { setBoth(r, &V::width, 16); setBoth(r, &V::height, 960); setBoth(r, &V::num_slices, 60); },
     "Level 4.1 allows at most 59 slices per picture at this size and rate (now 60): use fewer, or choose level 4.2."},
};
// clang-format on

} // namespace

class TestEncoderLevels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pictureSize_data() { levels(); }
    void pictureSize();
    void pictureSides_data() { levels(); }
    void pictureSides();
    void macroblockRate_data() { levels(); }
    void macroblockRate();
    void macroblockRateOfTwoViews_data() { levels(); }
    void macroblockRateOfTwoViews();
    void references_data() { levels(); }
    void references();
    void referencesOfTwoViews_data() { levels(); }
    void referencesOfTwoViews();
    void bitrate_data() { levels(); }
    void bitrate();
    void bitrateOfTwoViews_data() { levels(); }
    void bitrateOfTwoViews();
    void buffer_data() { levels(); }
    void buffer();
    void pictureBytes_data() { levels(); }
    void pictureBytes();
    void slices_data() { levels(); }
    void slices();
    void interlace_data() { levels(); }
    void interlace();
    void factors_data();
    void factors();
    void severalViewsOf1080Lines_data();
    void severalViewsOf1080Lines();
    void automaticLevel_data();
    void automaticLevel();
    void automaticLevelKeepsItsCode();
    void picturesThatNoLevelTakes();
    void levelsThatWouldDoAreNamed_data();
    void levelsThatWouldDoAreNamed();
    void lowestLevelIsTold_data();
    void lowestLevelIsTold();
    void lowestLevelCanBeChosen();
    void reservedLevelsAreNamed_data();
    void reservedLevelsAreNamed();
    void discHasOneLevel_data();
    void discHasOneLevel();

private:
    void levels();
    const LevelRow& row() const;
};

void TestEncoderLevels::levels()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const LevelRow& row : levelRows) {
        QTest::addRow("level %s", row.name) << index++;
    }
}

const LevelRow& TestEncoderLevels::row() const
{
    QFETCH(const int, index);
    return levelRows[index];
}

void TestEncoderLevels::pictureSize()
{
    const auto change = [this](KvMvcSettings& record, int height) {
        setSize(record, row().fullWidth, height);
    };
    compareSides(modest(row()), change, row().fullHeight, row().fullHeight + 1, "level.picture");
}

void TestEncoderLevels::pictureSides()
{
    const auto wide = [this](KvMvcSettings& record, int side) {
        setSize(record, side, row().sideHeight);
    };
    compareSides(modest(row()), wide, row().side, row().side + 1, "level.side");
    const auto high = [this](KvMvcSettings& record, int side) {
        setSize(record, row().sideHeight, side);
    };
    compareSides(modest(row()), high, row().side, row().side + 1, "level.side");
}

void TestEncoderLevels::macroblockRate()
{
    KvMvcSettings within = modest(row());
    KvMvcSettings beyond = within;
    const double most = row().mbRate / (row().fullWidth * row().fullHeight);
    encoder::setFrameRate(within, most);
    encoder::setFrameRate(beyond, most * 1.0001);
    compareSides(within, beyond, "level.rate");
}

void TestEncoderLevels::macroblockRateOfTwoViews()
{
    // Twice the macroblocks, and twice the limit.
    KvMvcSettings within = modest(row());
    within.num_views = 2;
    setBoth(within, &V::num_slices, 9); // enough for slices of a quarter of the limit
    setBoth(within, &V::multi_slice, 1);
    KvMvcSettings beyond = within;
    const double most = row().mbRate / (row().fullWidth * row().fullHeight);
    encoder::setFrameRate(within, most);
    encoder::setFrameRate(beyond, most * 1.0001);
    compareSides(within, beyond, "level.rate-views");
}

void TestEncoderLevels::references()
{
    const auto change = [](KvMvcSettings& record, int frames) {
        setField(record, &V::num_ref_frames, frames);
    };
    compareSides(modest(row()), change, row().dpbFrames, row().dpbFrames + 1, "level.dpb");
}

void TestEncoderLevels::referencesOfTwoViews()
{
    KvMvcSettings record = modest(row());
    record.num_views = 2;
    setBoth(record, &V::num_slices, 9);
    setBoth(record, &V::multi_slice, 1);
    const auto change = [](KvMvcSettings& changed, int frames) {
        setField(changed, &V::num_ref_frames, frames);
    };
    compareSides(record, change, row().dpbTwoViews, row().dpbTwoViews + 1, "level.dpb-views");
}

void TestEncoderLevels::bitrate()
{
    const auto change = [](KvMvcSettings& record, int rate) {
        setField(record, &V::max_bitrate, rate);
    };
    const int most = row().bitrate * 1500;
    compareSides(modest(row()), change, most, most + 1, "level.bitrate");

    KvMvcSettings record = modest(row());
    change(record, row().bitrate * 1250);
    QVERIFY(!encoder::check(record).said(QStringLiteral("level.bitrate-vcl")));
    QVERIFY(!encoder::check(record).said(QStringLiteral("level.bitrate-vcl-none")));
    change(record, row().bitrate * 1250 + 1);
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.accepted(), outcome.all().constData());
    QVERIFY2(outcome.said(QStringLiteral("level.bitrate-vcl")) ||
                 outcome.said(QStringLiteral("level.bitrate-vcl-none")),
             outcome.all().constData());
}

void TestEncoderLevels::bitrateOfTwoViews()
{
    // The limit is not doubled.
    KvMvcSettings record = modest(row());
    record.num_views = 2;
    setBoth(record, &V::num_slices, 9);
    setBoth(record, &V::multi_slice, 1);
    record.views[0].max_bitrate = row().bitrate * 1000;
    const auto change = [](KvMvcSettings& changed, int rate) {
        changed.views[1].max_bitrate = rate;
    };
    compareSides(record, change, row().bitrate * 500, row().bitrate * 500 + 1,
                 "level.bitrate-views");
}

void TestEncoderLevels::buffer()
{
    const auto change = [](KvMvcSettings& record, int bits) {
        setField(record, &V::bitrate_buffer, bits);
    };
    const int most = row().buffer * 1500;
    compareSides(modest(row()), change, most, most + 1, "level.buffer");

    KvMvcSettings record = modest(row());
    change(record, row().buffer * 1250);
    QVERIFY(!encoder::check(record).said(QStringLiteral("level.buffer-vcl")));
    change(record, row().buffer * 1250 + 1);
    const Outcome outcome = encoder::check(record);
    QVERIFY(outcome.said(QStringLiteral("level.buffer-vcl")) ||
            outcome.said(QStringLiteral("level.buffer-vcl-none")));
}

void TestEncoderLevels::pictureBytes()
{
    KvMvcSettings record = modest(row());
    setBoth(record, &V::hrd_mode, 0); // the buffer has limits of its own
    const int first = 384 * row().fullWidth * row().fullHeight / row().minCompression;
    const auto changeI = [](KvMvcSettings& changed, int bytes) {
        setField(changed, &V::frame_size_i, bytes);
    };
    compareSides(record, changeI, first, first + 1, "level.size-i");
    // One picture a second.
    const int later = static_cast<int>(384 * row().mbRate / row().minCompression);
    const auto changeP = [](KvMvcSettings& changed, int bytes) {
        setField(changed, &V::frame_size_p, bytes);
    };
    compareSides(record, changeP, later, later + 1, "level.size-p");
}

void TestEncoderLevels::slices()
{
    const int limit = row().slices;
    KvMvcSettings record = modest(row());
    setBoth(record, &V::multi_slice, 1);
    setSize(record, 1, limit == 0 ? row().side : limit + 1);
    if (limit == 0) {
        setBoth(record, &V::num_slices, row().side);
        const Outcome outcome = encoder::check(record);
        QVERIFY2(outcome.accepted(), outcome.all().constData());
        return;
    }
    const auto change = [](KvMvcSettings& changed, int slices) {
        setField(changed, &V::num_slices, slices);
    };
    compareSides(record, change, limit, limit + 1, "level.slices-most");
}

void TestEncoderLevels::interlace()
{
    for (const int mode : {1, 2}) {
        KvMvcSettings record = modest(row());
        setSize(record, 8, 8);
        setBoth(record, &V::interlace_mode, mode);
        const Outcome outcome = encoder::check(record);
        QVERIFY2(outcome.accepted() == row().interlaced, outcome.all().constData());
        QCOMPARE(outcome.said(QStringLiteral("level.interlace")), !row().interlaced);
    }
}

void TestEncoderLevels::factors_data()
{
    QTest::addColumn<int>("profile");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("buffer");
    // At level 4.1: 50000 and 62500 times the NAL factor.
    QTest::newRow("Baseline, 1200") << 0 << 60000000 << 75000000;
    QTest::newRow("Main, 1200") << 1 << 60000000 << 75000000;
    QTest::newRow("High, 1500") << 3 << 75000000 << 93750000;
    QTest::newRow("High 10, 3600") << 4 << 180000000 << 225000000;
    QTest::newRow("High 4:2:2, 4800") << 5 << 240000000 << 300000000;
}

void TestEncoderLevels::factors()
{
    QFETCH(const int, profile);
    QFETCH(const int, rate);
    QFETCH(const int, buffer);
    KvMvcSettings record = modest(levelRows[11]);
    setSize(record, 45, 36); // a slice of any profile may hold this many macroblocks
    setBoth(record, &V::profile, profile);
    setBoth(record, &V::entropy_mode, 0);
    const auto changeRate = [](KvMvcSettings& changed, int value) {
        setField(changed, &V::max_bitrate, value);
    };
    compareSides(record, changeRate, rate, rate + 1, "level.bitrate");
    const auto changeBuffer = [](KvMvcSettings& changed, int value) {
        setField(changed, &V::bitrate_buffer, value);
    };
    compareSides(record, changeBuffer, buffer, buffer + 1, "level.buffer");
}

void TestEncoderLevels::severalViewsOf1080Lines_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("views");
    QTest::addColumn<double>("frameRate"); // fits; a tenth more does not
    QTest::addColumn<int>("references");   // of each view, without B-frames; one more does not fit
    QTest::addColumn<int>("withB");        // likewise, with B-frames: one frame less for all views
    QTest::newRow("4.1, 2") << 41 << 2 << 30.1 << 4 << 3;
    QTest::newRow("4.1, 3") << 41 << 3 << 20.0 << 2 << 2;
    QTest::newRow("4.1, 4") << 41 << 4 << 15.0 << 2 << 1;
    QTest::newRow("4.2, 2") << 42 << 2 << 64.0 << 4 << 3;
    QTest::newRow("4.2, 3") << 42 << 3 << 42.6 << 2 << 2;
    QTest::newRow("4.2, 4") << 42 << 4 << 32.0 << 2 << 1;
    QTest::newRow("5, 2") << 50 << 2 << 72.2 << 8 << 7;
    QTest::newRow("5, 3") << 50 << 3 << 48.1 << 9 << 8;
    QTest::newRow("5, 4") << 50 << 4 << 36.1 << 6 << 6;
    QTest::newRow("5.1, 3") << 51 << 3 << 80.3 << 10 << 10;
    QTest::newRow("5.1, 4") << 51 << 4 << 60.2 << 8 << 7;
    QTest::newRow("5.2, 3") << 52 << 3 << 169.4 << 10 << 10;
    QTest::newRow("5.2, 4") << 52 << 4 << 127.0 << 8 << 7;
}

void TestEncoderLevels::severalViewsOf1080Lines()
{
    QFETCH(const int, level);
    QFETCH(const int, views);
    QFETCH(const double, frameRate);
    QFETCH(const int, references);
    KvMvcSettings start = encoder::preset(1);
    start.num_views = views;
    setBoth(start, &V::level, level);
    setBoth(start, &V::max_bitrate, 12800000);
    setBoth(start, &V::bitrate, 10000000);
    setBoth(start, &V::bitrate_buffer, 1600000);
    encoder::setFrameRate(start, 10);
    setBoth(start, &V::num_ref_frames, 1);
    setBoth(start, &V::ref_distance, 1);

    KvMvcSettings within = start;
    encoder::setFrameRate(within, frameRate);
    KvMvcSettings beyond = start;
    encoder::setFrameRate(beyond, frameRate + 0.15);
    compareSides(within, beyond, "level.rate-views");
    const auto change = [](KvMvcSettings& changed, int frames) {
        setField(changed, &V::num_ref_frames, frames);
    };
    compareSides(start, change, references, references + 1, "level.dpb-views");

    QFETCH(const int, withB);
    setBoth(start, &V::ref_distance, 3);
    const auto isTooMany = [&](int frames) {
        KvMvcSettings record = start;
        change(record, frames);
        const Outcome outcome = encoder::check(record);
        return outcome.said(QStringLiteral("level.dpb-views")) ||
               outcome.said(QStringLiteral("level.dpb-views-b")) ||
               outcome.said(QStringLiteral("level.dpb-views-none")) ||
               outcome.said(QStringLiteral("level.dpb-views-b-none"));
    };
    QVERIFY(!isTooMany(withB));
    QVERIFY(isTooMany(withB + 1));
}

void TestEncoderLevels::automaticLevel_data()
{
    QTest::addColumn<int>("widthMbs");
    QTest::addColumn<int>("heightMbs");
    QTest::addColumn<double>("frameRate");
    QTest::addColumn<int>("rate");
    QTest::addColumn<QByteArray>("level");
    const auto add = [](const char* name, int width, int height, double frameRate, int rate,
                        const char* level) {
        QTest::newRow(name) << width << height << frameRate << rate << QByteArray(level);
    };
    add("the least", 1, 1, 1, 64, "1.0");
    // MaxBR times 1250 of High: what is left up to 1500 is not for picture data.
    add("most of 1", 11, 9, 15, 80000, "1.0");
    add("rate beyond 1", 11, 9, 15, 80001, "1b");
    add("most of 1b", 11, 9, 15, 160000, "1b");
    add("rate beyond 1b", 11, 9, 15, 160001, "1.1");
    add("frames beyond 1", 11, 9, 15.01, 64, "1.1");
    add("rate beyond 1.1", 11, 9, 15, 240001, "1.2");
    add("rate beyond 1.2", 11, 9, 15, 480001, "1.3");
    add("rate beyond 1.3", 11, 9, 15, 960001, "2.0");
    add("frames beyond 2", 22, 18, 30.1, 64, "2.1");
    add("picture beyond 2.1", 45, 36, 12.5, 64, "2.2");
    add("frames beyond 2.2", 45, 36, 25, 64, "3.0");
    add("1280 x 720 at 30", 80, 45, 30, 64, "3.1");
    add("1280 x 720 at 60", 80, 45, 60, 64, "3.2");
    add("1920 x 1080 at 30", 120, 68, 30, 25000000, "4.0");
    add("rate beyond 4", 120, 68, 30, 25000001, "4.1");
    add("1920 x 1080 at 50", 120, 68, 50, 64, "4.2");
    add("2560 x 1440 at 30", 160, 90, 30, 64, "5.0");
    add("3840 x 2160 at 30", 240, 135, 30, 64, "5.1");
    add("3840 x 2160 at 60", 240, 135, 60, 64, "5.2");
    // No level has room for it as picture data alone, and 5.1 is the first with headers.
    add("rate beyond all for picture data", 120, 68, 30, 360000000, "5.1");
}

void TestEncoderLevels::automaticLevel()
{
    QFETCH(const int, widthMbs);
    QFETCH(const int, heightMbs);
    QFETCH(const double, frameRate);
    QFETCH(const int, rate);
    QFETCH(const QByteArray, level);
    KvMvcSettings record = modest(levelRows[0]);
    setBoth(record, &V::level, int{KV_MVC_LEVEL_AUTO});
    setSize(record, widthMbs, heightMbs);
    encoder::setFrameRate(record, frameRate);
    setBoth(record, &V::max_bitrate, rate);
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.accepted(), outcome.all().constData());
    QVERIFY2(outcome.notes().contains("With level Auto, the stream has level " + level +
                                      ", the lowest that fits."),
             outcome.all().constData());
}

void TestEncoderLevels::automaticLevelKeepsItsCode()
{
    for (const int number : {0, 1, 2, 3}) {
        KvMvcSettings record = encoder::preset(number);
        setBoth(record, &V::level, int{KV_MVC_LEVEL_AUTO});
        const Outcome outcome = encoder::check(record);
        QVERIFY2(outcome.accepted(), outcome.all().constData());
        QCOMPARE(record.views[0].level, 100);
        QCOMPARE(record.views[1].level, 100);
        const bool disc = number == KV_MVC_BLURAY_3D;
        QVERIFY(
            outcome.said(disc ? QStringLiteral("level.auto-disc") : QStringLiteral("level.auto")));
    }
}

void TestEncoderLevels::picturesThatNoLevelTakes()
{
    // One row too high for 5.1, and then for 5.2, which has the same limit.
    KvMvcSettings record = modest(levelRows[15]);
    setBoth(record, &V::level, int{KV_MVC_LEVEL_AUTO});
    setSize(record, 192, 193);
    const QByteArray error = "Level 5.2 allows at most 36864 macroblocks in a picture (now 37056): "
                             "choose a smaller picture.";
    for (const int code : {int{KV_MVC_LEVEL_AUTO}, 52}) {
        setBoth(record, &V::level, code);
        const Outcome outcome = encoder::check(record);
        QCOMPARE(outcome.errors(), QByteArrayList{error});
        QVERIFY2(outcome.notes().contains("These settings fit no level from 1.0 to 5.2."),
                 outcome.all().constData());
    }
}

void TestEncoderLevels::levelsThatWouldDoAreNamed_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(std::size(advice)); ++row) {
        QTest::newRow(advice[row].name) << row;
    }
}

void TestEncoderLevels::levelsThatWouldDoAreNamed()
{
    QFETCH(const int, row);
    const Advice& test = advice[row];
    KvMvcSettings record = encoder::preset(test.preset);
    test.change(record);
    const Outcome outcome = encoder::check(record);
    QCOMPARE(outcome.errors() + outcome.risks(), QByteArrayList{test.message});
}

void TestEncoderLevels::lowestLevelIsTold_data()
{
    QTest::addColumn<int>("rate");
    QTest::addColumn<QByteArray>("level");
    // The only levels that take pictures of 1920 x 1080.
    QTest::newRow("4.0") << 25000000 << QByteArray("4.0");
    QTest::newRow("4.1") << 25000001 << QByteArray("4.1");
    QTest::newRow("5.0") << 62500001 << QByteArray("5.0");
}

void TestEncoderLevels::lowestLevelIsTold()
{
    QFETCH(const int, rate);
    QFETCH(const QByteArray, level);
    // Also of a level that is too low, so that the user sees where to go.
    KvMvcSettings record = encoder::preset(0);
    setBoth(record, &V::level, 30);
    setBoth(record, &V::max_bitrate, rate);
    const Outcome outcome = encoder::check(record);
    QVERIFY(!outcome.accepted());
    QVERIFY2(outcome.notes().contains("Level " + level + " is the lowest that fits."),
             outcome.all().constData());
}

void TestEncoderLevels::lowestLevelCanBeChosen()
{
    // 80001 bit/s would do with 1b, which no list has.
    KvMvcSettings record = modest(levelRows[1]);
    setSize(record, 11, 9);
    setBoth(record, &V::max_bitrate, 80001);
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.accepted(), outcome.all().constData());
    QVERIFY2(outcome.notes().contains("Level 1.1 is the lowest that fits."),
             outcome.all().constData());
}

void TestEncoderLevels::reservedLevelsAreNamed_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("1.6") << 16 << QByteArray("1.6");
    QTest::newRow("6.0") << 60 << QByteArray("6.0");
    QTest::newRow("0.0") << 0 << QByteArray("0.0");
    QTest::newRow("-0.5") << -5 << QByteArray("-0.5");
    QTest::newRow("lowest") << INT32_MIN << QByteArray("-214748364.8");
}

void TestEncoderLevels::reservedLevelsAreNamed()
{
    QFETCH(const int, code);
    QFETCH(const QByteArray, name);
    KvMvcSettings record = encoder::preset(0);
    setBoth(record, &V::level, code);
    QCOMPARE(encoder::check(record).errors(),
             QByteArrayList{"Level " + name +
                            " is none of the H.264 levels from 1.0 to 5.2: choose "
                            "another level, or Auto."});
}

void TestEncoderLevels::discHasOneLevel_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("rate"); // of each view
    QTest::addColumn<QByteArrayList>("errors");
    QTest::addColumn<QByteArray>("note");
    const QByteArray another = "Blu-ray 3D requires level 4.1 (now 4.2): choose 4.1.";
    const QByteArray together = "Blu-ray 3D allows both views together at most 60.00 Mbit/s (now "
                                "80.00): lower a bitrate.";
    // 15 Mbit/s in each view fit level 4.0, which is not told: a disc cannot have it.
    QTest::newRow("4.0 would do") << 41 << 15000000 << QByteArrayList()
                                  << QByteArray("These settings fit level 4.1, which Blu-ray 3D "
                                                "requires.");
    QTest::newRow("4.0 would do, Auto")
        << 100 << 15000000 << QByteArrayList()
        << QByteArray("With level Auto, the stream has level 4.1, which Blu-ray 3D requires.");
    QTest::newRow("another level")
        << 42 << 15000000 << QByteArrayList{another}
        << QByteArray("These settings fit level 4.1, which Blu-ray 3D requires.");
    QTest::newRow("rates of a higher level, Auto")
        << 100 << 40000000 << QByteArrayList{together} << QByteArray();
    QTest::newRow("rates of another level")
        << 50 << 40000000
        << QByteArrayList{"Blu-ray 3D requires level 4.1 (now 5.0): choose 4.1.", together}
        << QByteArray();
}

void TestEncoderLevels::discHasOneLevel()
{
    QFETCH(const int, level);
    QFETCH(const int, rate);
    QFETCH(const QByteArrayList, errors);
    QFETCH(const QByteArray, note);
    KvMvcSettings record = encoder::preset(3);
    setBoth(record, &V::level, level);
    setBoth(record, &V::bitrate, 10000000);
    setBoth(record, &V::max_bitrate, rate);
    setBoth(record, &V::bitrate_buffer, 1875000);
    const Outcome outcome = encoder::check(record);
    QCOMPARE(outcome.errors(), errors);
    QVERIFY2(note.isEmpty() || outcome.notes().contains(note), outcome.all().constData());
    for (const QByteArray& told : outcome.notes()) {
        QVERIFY2(!told.contains("lowest"), told.constData());
    }
}

QTEST_GUILESS_MAIN(TestEncoderLevels)
#include "tst_encoder_levels.moc"
