// The check as a caller sees it: sinks, results, corrections in place, and a user's half-done
// edits.

#include <QTest>

#include <cstring>

#include "Encoder.h"

namespace
{

using V = KvMvcViewSettings;
using encoder::setBoth;

int errorsHeard = 0;

int hearError(const char*, ...)
{
    return ++errorsHeard;
}

KvMvcFunction noSinks(const char*)
{
    return nullptr;
}

KvMvcFunction errorSinkOnly(const char* name)
{
    return std::strcmp(name, "err_printf") == 0 ? reinterpret_cast<KvMvcFunction>(hearError)
                                                : nullptr;
}

int warningsHeard = 0;

int hearWarning(const char*, ...)
{
    return ++warningsHeard;
}

KvMvcFunction warningSinkOnly(const char* name)
{
    return std::strcmp(name, "wrn_printf") == 0 ? reinterpret_cast<KvMvcFunction>(hearWarning)
                                                : nullptr;
}

/// A record with a correction, an error and notes.
KvMvcSettings faulty()
{
    KvMvcSettings record = encoder::preset(2);
    setBoth(record, &V::i_interval, 999);
    setBoth(record, &V::level, 30);
    return record;
}

/// What a user may set wrongly in one step, and the one error about it.
struct Slip {
    const char* name;
    int preset;
    void (*change)(KvMvcSettings&);
    const char* error;
};

using Record = KvMvcSettings;

// clang-format off
constexpr Slip slips[] = {
    {"three views in Stereo High", 2, [](Record& r) { r.num_views = 3; },
     "Stereo High has two views (now 3): set 1 additional view, or choose another preset."},
    {"four views on a disc", 3, [](Record& r) { r.num_views = 4; },
     "Stereo High has two views (now 4): set 1 additional view, or choose another preset."},
    {"4:2:2 of two views", 2, [](Record& r) { setBoth(r, &V::chroma_format, 3); },
     "With several views, the chroma format cannot be 4:2:2: choose 4:2:0."},
    {"4:2:2 on a disc", 3, [](Record& r) { setBoth(r, &V::chroma_format, 3); },
     "Blu-ray 3D requires the chroma format 4:2:0: choose 4:2:0."},
    {"a fourth chroma format on a disc", 3, [](Record& r) { setBoth(r, &V::chroma_format, 4); },
     "Blu-ray 3D requires the chroma format 4:2:0: choose 4:2:0."},
    {"10 bits of two views", 2, [](Record& r) { setBoth(r, &V::bit_depth_luma, 10); setBoth(r, &V::bit_depth_chroma, 10); },
     "With several views, luma and chroma have a bit-depth of 8: choose 8 bits."},
    {"High 10 on a disc", 3, [](Record& r) { setBoth(r, &V::profile, 4); },
     "Blu-ray 3D requires profile High (now High 10): choose High."},
    {"Baseline on a disc", 3, [](Record& r) { setBoth(r, &V::profile, 0); },
     "Blu-ray 3D requires profile High (now Baseline): choose High."},
    {"fields in Multiview High at 4.2", 1, [](Record& r) { setBoth(r, &V::interlace_mode, 1); setBoth(r, &V::level, 42); },
     "Multiview High allows progressive pictures only: set the picture structure to Progressive."},
    {"no frame rate", 2, [](Record& r) { encoder::setFrameRate(r, 0); },
     "HRD conformance needs a frame rate: choose one."},
    {"no frame rate on a disc", 3, [](Record& r) { encoder::setFrameRate(r, 0); },
     "Blu-ray has no 1920 x 1080 at 0.00 frames/s in this structure; the nearest is 1920 x 1080 at 23.98, progressive."},
    {"200 frames/s", 2, [](Record& r) { encoder::setFrameRate(r, 200); },
     "No level allows more than 172 frames/s (now 200.00): choose a lower frame rate."},
    {"200 frames/s on a disc", 3, [](Record& r) { encoder::setFrameRate(r, 200); },
     "Blu-ray has no 1920 x 1080 at 200.00 frames/s in this structure; the nearest is 1920 x 1080 at 23.98, progressive."},
    {"60 for 59.94", 3, [](Record& r) { setBoth(r, &V::width, 1280); setBoth(r, &V::height, 720); encoder::setFrameRate(r, 60); },
     "Blu-ray has no 1280 x 720 at 60.00 frames/s in this structure; the nearest is 1280 x 720 at 59.94, progressive."},
    {"1080 at 25, progressive", 3, [](Record& r) { encoder::setFrameRate(r, 25); },
     "Blu-ray has no 1920 x 1080 at 25.00 frames/s in this structure; the nearest is 1920 x 1080 at 23.98, progressive."},
    {"a picture that no disc has", 3, [](Record& r) { setBoth(r, &V::width, 4096); setBoth(r, &V::height, 2160); },
     "Blu-ray has no 4096 x 2160 at 23.98 frames/s in this structure; the nearest is 1920 x 1080 at 23.98, progressive."},
    {"an odd width on a disc", 3, [](Record& r) { setBoth(r, &V::width, 1919); },
     "Blu-ray has no 1919 x 1080 at 23.98 frames/s in this structure; the nearest is 1920 x 1080 at 23.98, progressive."},
    {"MBAFF of film on a disc", 3, [](Record& r) { setBoth(r, &V::interlace_mode, 2); },
     "Blu-ray has no 1920 x 1080 at 23.98 frames/s in this structure; the nearest is 1920 x 1080 at 23.98, progressive."},
    {"MBAFF in Multiview High", 1, [](Record& r) { setBoth(r, &V::interlace_mode, 2); },
     "Multiview High allows progressive pictures only: set the picture structure to Progressive."},
    {"MBAFF and Baseline in Multiview High", 1,
     [](Record& r) { setBoth(r, &V::interlace_mode, 2); setBoth(r, &V::profile, 0); setBoth(r, &V::ref_distance, 1); setBoth(r, &V::entropy_mode, 0); },
     "Multiview High allows progressive pictures only: set the picture structure to Progressive."},
    {"a picture of four times the size", 2, [](Record& r) { setBoth(r, &V::width, 3840); setBoth(r, &V::height, 2160); },
     "Level 4.1 allows at most 8192 macroblocks in a picture (now 32400): choose level 5.1."},
    {"an I-frame size beyond buffer and level", 0, [](Record& r) { setBoth(r, &V::frame_size_i, 5000000); },
     "Base view: The maximum I-frame size of 5000000 bytes exceeds the 1566720 bytes of level 4.1: lower it."},
    {"3 slices on a disc", 3, [](Record& r) { setBoth(r, &V::num_slices, 3); },
     "Level 4.1 needs at least 4 slices per picture at this size (now 3): use more."},
    {"5 references on a disc", 3, [](Record& r) { setBoth(r, &V::num_ref_frames, 5); },
     "Level 4.1 has room for 3 reference frames in each of 2 views (now 5): use fewer."},
    {"80 Mbit/s on a disc", 3, [](Record& r) { setBoth(r, &V::max_bitrate, 40000000); },
     "Blu-ray 3D allows both views together at most 60.00 Mbit/s (now 80.00): lower a bitrate."},
    {"100 Mbit/s in the base view of a disc", 3, [](Record& r) { r.views[0].max_bitrate = 100000000; },
     "Base view: Blu-ray 3D allows at most 40.00 Mbit/s (now 100.00): lower the bitrate."},
    {"100 Mbit in the buffer of a disc", 3, [](Record& r) { r.views[0].bitrate_buffer = 12500000; },
     "Blu-ray allows the base view a bitrate buffer of at most 30.00 Mbit (3750000 bytes): make it smaller."},
    {"another level on a disc", 3, [](Record& r) { setBoth(r, &V::level, 31); },
     "Blu-ray 3D requires level 4.1 (now 3.1): choose 4.1."},
};
// clang-format on

} // namespace

class TestEncoderCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void worksWithoutSinks_data();
    void worksWithoutSinks();
    void usesTheSinksThatThereAre();
    void refusesANullRecord();
    void treatsAllStagesAlike();
    void formatsAreHandedOverUnformatted();
    void whatIsNotShownFollowsWhatIs_data();
    void whatIsNotShownFollowsWhatIs();
    void whatIsNotShownIsNotJudged();
    void halfDoneEditsSurvive_data();
    void halfDoneEditsSurvive();
    void risksAreToldAtEveryCheckAndCorrectNothing();
    void risksAreHeardAsWarnings();
    void constantBitrateLeavesTheHrdSwitchAlone();
    void changingUnitsKeepsTheInitialFullness();
    void messagesOfALevelThatIsTooLowAreFew();
    void oneCauseGivesOneError_data();
    void oneCauseGivesOneError();
    void streamIsToldWithItsProfile_data();
    void streamIsToldWithItsProfile();
    void predefinedAspectsAreNotWrittenOut();
};

void TestEncoderCheck::worksWithoutSinks_data()
{
    QTest::addColumn<bool>("lookup");
    QTest::newRow("a lookup that knows nothing") << true;
    QTest::newRow("no lookup") << false;
}

void TestEncoderCheck::worksWithoutSinks()
{
    QFETCH(const bool, lookup);
    KvMvcSettings record = faulty();
    QVERIFY(encoder::checkFunction()(lookup ? noSinks : nullptr, &record, 3, 0) != 0);
    QCOMPARE(record.views[0].i_interval, 300);
    KvMvcSettings good = encoder::preset(2);
    QCOMPARE(encoder::checkFunction()(lookup ? noSinks : nullptr, &good, 3, 0), 0);
}

void TestEncoderCheck::usesTheSinksThatThereAre()
{
    errorsHeard = 0;
    KvMvcSettings record = faulty();
    QVERIFY(encoder::checkFunction()(errorSinkOnly, &record, 3, 0) != 0);
    KvMvcSettings same = faulty();
    QCOMPARE(errorsHeard, encoder::check(same).errors().size());
}

void TestEncoderCheck::refusesANullRecord()
{
    QVERIFY(encoder::checkFunction()(noSinks, nullptr, 3, 0) != 0);
}

void TestEncoderCheck::treatsAllStagesAlike()
{
    for (const int stage : {-1, 0, 1, 3, 100}) {
        KvMvcSettings record = faulty();
        QVERIFY(encoder::checkFunction()(noSinks, &record, stage, stage) != 0);
        QCOMPARE(record.views[0].i_interval, 300);
    }
}

void TestEncoderCheck::formatsAreHandedOverUnformatted()
{
    // A localization library looks formats up, so numbers and names may not be in them.
    KvMvcSettings record = faulty();
    const Outcome outcome = encoder::check(record);
    QVERIFY(outcome.formats[1].contains("The I-frame interval was %d; it is now %d (%d to %d)."));
    QVERIFY(outcome.texts[1].contains("The I-frame interval was 999; it is now 300 (0 to 300)."));
    QVERIFY(outcome.formats[3].contains("Level %s is the lowest that fits."));
}

void TestEncoderCheck::whatIsNotShownFollowsWhatIs_data()
{
    QTest::addColumn<int>("hrd");
    QTest::addColumn<int>("target");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<QByteArray>("warning");
    QTest::newRow("maximum hidden") << 0 << 20000000 << 20000000
                                    << QByteArray("Base view: The max bitrate was below the target "
                                                  "bitrate; it is now 20.00 Mbit/s.");
    QTest::newRow("both shown") << 1 << 10 << 10
                                << QByteArray("Base view: The target bitrate exceeded the max "
                                              "bitrate; it is now 0.00001 Mbit/s.");
}

void TestEncoderCheck::whatIsNotShownFollowsWhatIs()
{
    QFETCH(const int, hrd);
    QFETCH(const int, target);
    QFETCH(const int, maximum);
    QFETCH(const QByteArray, warning);
    // The dialog shows the maximum with HRD conformance only.
    KvMvcSettings record = encoder::preset(0);
    setBoth(record, &V::hrd_mode, hrd);
    setBoth(record, &V::max_bitrate, 10);
    QCOMPARE(encoder::check(record).warnings(), QByteArrayList{warning});
    QCOMPARE(record.views[0].bitrate, target);
    QCOMPARE(record.views[0].max_bitrate, maximum);
}

void TestEncoderCheck::whatIsNotShownIsNotJudged()
{
    KvMvcSettings record = encoder::preset(0);
    setBoth(record, &V::hrd_mode, 0);
    setBoth(record, &V::max_bitrate, 500000000);
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.accepted() && outcome.warnings().isEmpty(), outcome.all().constData());
    QVERIFY2(outcome.notes().contains("Bitrate: 20.00 of the 75.00 Mbit/s that level 4.1 allows."),
             outcome.all().constData());
    QCOMPARE(record.views[0].max_bitrate, 500000000);
}

void TestEncoderCheck::halfDoneEditsSurvive_data()
{
    QTest::addColumn<int>("row");
    int row = 0;
    // Controls that report each keystroke: 250 is typed by way of 2 and 25.
    QTest::newRow("I interval, first digit") << row++;
    QTest::newRow("minimum distance above the interval") << row++;
    QTest::newRow("slices, first digit") << row++;
    QTest::newRow("reference frames, first digit") << row++;
    QTest::newRow("minimum quantizer before the maximum") << row++;
    QTest::newRow("profile before its tools") << row++;
    QTest::newRow("buffer taken away") << row++;
    QTest::newRow("odd width of a kept aspect ratio") << row++;
    QTest::newRow("custom aspect ratio before its parts") << row++;
    QTest::newRow("level before the picture") << row++;
}

void TestEncoderCheck::halfDoneEditsSurvive()
{
    QFETCH(const int, row);
    const struct {
        std::int32_t V::*field;
        int value;
        bool accepted;
    } edits[] = {
        {&V::i_interval, 2, false},     {&V::force_i, 250, false}, {&V::num_slices, 1, false},
        {&V::num_ref_frames, 1, false}, {&V::quant_min, 51, true}, {&V::profile, 0, false},
        {&V::bitrate_buffer, 0, false}, {&V::width, 1333, false},  {&V::display_aspect_x, -1, true},
        {&V::level, 10, false},
    };
    KvMvcSettings record = encoder::preset(2);
    setBoth(record, edits[row].field, edits[row].value);
    if (edits[row].field == &V::display_aspect_x) {
        setBoth(record, &V::display_aspect_y, -1); // the dialog sets the pair
    }
    if (edits[row].field == &V::num_slices) {
        setBoth(record, &V::multi_slice, 0); // the dialog derives it
    }
    const KvMvcSettings before = record;
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.accepted() == edits[row].accepted, outcome.all().constData());
    QVERIFY2(std::memcmp(&before, &record, sizeof record) == 0, outcome.all().constData());
}

void TestEncoderCheck::risksAreToldAtEveryCheckAndCorrectNothing()
{
    KvMvcSettings record = encoder::preset(3);
    setBoth(record, &V::weighted_p, 1);
    record.views[1].bitrate = 10000; // 10 Mbit/s, typed in kbit/s
    const KvMvcSettings before = record;
    const QByteArrayList risks = {
        "View 1: The target bitrate of 10000 bit/s is less than 1 bit a macroblock, as if typed in "
        "kbit/s.",
        "Weighted prediction for P-frames is known to fail on some Blu-ray players."};
    for (int checks = 0; checks < 2; ++checks) {
        const Outcome outcome = encoder::check(record);
        QVERIFY2(outcome.accepted(), outcome.all().constData());
        QCOMPARE(outcome.risks(), risks);
        QCOMPARE(outcome.warnings(), QByteArrayList());
        QVERIFY(std::memcmp(&before, &record, sizeof record) == 0);
    }
}

void TestEncoderCheck::risksAreHeardAsWarnings()
{
    // The kinds that a caller knows are three.
    warningsHeard = 0;
    KvMvcSettings record = encoder::preset(3);
    setBoth(record, &V::weighted_p, 1);
    QCOMPARE(encoder::checkFunction()(warningSinkOnly, &record, 3, 0), 0);
    QCOMPARE(warningsHeard, 1);
}

void TestEncoderCheck::constantBitrateLeavesTheHrdSwitchAlone()
{
    for (const int hrd : {0, 1}) {
        KvMvcSettings record = encoder::preset(2);
        setBoth(record, &V::bitrate_mode, int{KV_MVC_CONSTANT_BITRATE});
        setBoth(record, &V::hrd_mode, hrd);
        const Outcome outcome = encoder::check(record);
        QVERIFY2(outcome.accepted(), outcome.all().constData());
        QCOMPARE(record.views[0].hrd_mode, hrd);
        QCOMPARE(record.views[0].max_bitrate, record.views[0].bitrate);
    }
}

void TestEncoderCheck::changingUnitsKeepsTheInitialFullness()
{
    // 50 percent become 50 bits: a poor start that the user is told about, not a corrected one.
    KvMvcSettings record = encoder::preset(2);
    setBoth(record, &V::bitrate_units, int{KV_MVC_UNITS_BITS});
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.accepted(), outcome.all().constData());
    QVERIFY(outcome.said(QStringLiteral("hrd.initial-short")));
    QCOMPARE(record.views[0].vbv_initial, 50);
    QCOMPARE(record.views[0].vbv_target, 50);
}

void TestEncoderCheck::messagesOfALevelThatIsTooLowAreFew()
{
    KvMvcSettings record = encoder::preset(2);
    setBoth(record, &V::level, 10);
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.errors().size() <= 4, outcome.all().constData());
}

void TestEncoderCheck::oneCauseGivesOneError_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(std::size(slips)); ++row) {
        QTest::newRow(slips[row].name) << row;
    }
}

void TestEncoderCheck::oneCauseGivesOneError()
{
    QFETCH(const int, row);
    const Slip& slip = slips[row];
    KvMvcSettings record = encoder::preset(slip.preset);
    slip.change(record);
    QCOMPARE(encoder::check(record).errors(), QByteArrayList{slip.error});
}

void TestEncoderCheck::streamIsToldWithItsProfile_data()
{
    QTest::addColumn<int>("preset");
    QTest::addColumn<int>("profile");
    QTest::addColumn<QByteArray>("note");
    const auto add = [](const char* name, int preset, int profile, const char* note) {
        QTest::newRow(name) << preset << profile << QByteArray(note);
    };
    add("Baseline", 0, 0, "One view, profile Baseline (profile_idc 66).");
    add("Main", 0, 1, "One view, profile Main (profile_idc 77).");
    add("High", 0, 3, "One view, profile High (profile_idc 100).");
    add("High 10", 0, 4, "One view, profile High 10 (profile_idc 110).");
    add("High 422", 0, 5, "One view, profile High 422 (profile_idc 122).");
    add("Multiview High", 1, 3,
        "2 views, profile Multiview High (profile_idc 118); the base view has profile High.");
    add("Stereo High", 2, 1,
        "2 views, profile Stereo High (profile_idc 128); the base view has profile Main.");
    add("Blu-ray 3D", 3, 3,
        "2 views, profile Stereo High (profile_idc 128); the base view has profile High.");
}

void TestEncoderCheck::streamIsToldWithItsProfile()
{
    QFETCH(const int, preset);
    QFETCH(const int, profile);
    QFETCH(const QByteArray, note);
    KvMvcSettings record = encoder::preset(preset);
    setBoth(record, &V::profile, profile);
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.notes().contains(note), outcome.all().constData());
}

void TestEncoderCheck::predefinedAspectsAreNotWrittenOut()
{
    // Table E-1 of H.264.
    const int aspects[][2] = {{1, 1},    {12, 11}, {10, 11}, {16, 11}, {40, 33}, {24, 11},
                              {20, 11},  {32, 11}, {80, 33}, {18, 11}, {15, 11}, {64, 33},
                              {160, 99}, {4, 3},   {3, 2},   {2, 1}};
    for (const auto& aspect : aspects) {
        KvMvcSettings record = encoder::preset(0);
        setBoth(record, &V::display_aspect_x, -1);
        setBoth(record, &V::display_aspect_y, -1);
        setBoth(record, &V::pixel_aspect_x, aspect[0]);
        setBoth(record, &V::pixel_aspect_y, aspect[1]);
        const Outcome outcome = encoder::check(record);
        QVERIFY2(!outcome.said(QStringLiteral("aspect.extended")), outcome.all().constData());
    }
}

QTEST_GUILESS_MAIN(TestEncoderCheck)
#include "tst_encoder_check.moc"
