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

/** A record with a correction, an error and notes. */
KvMvcSettings faulty()
{
    KvMvcSettings record = encoder::preset(2);
    setBoth(record, &V::i_interval, 999);
    setBoth(record, &V::level, 30);
    return record;
}

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
    void viewOneGetsWhatAllViewsShare();
    void whatViewsShareIsCorrectedOnce();
    void correctionsNameTheOtherView_data();
    void correctionsNameTheOtherView();
    void anEmptyViewOneGetsFewMessages();
    void whatIsNotShownFollowsWhatIs_data();
    void whatIsNotShownFollowsWhatIs();
    void whatIsNotShownIsNotJudged();
    void keptReferencesMayBeMoreThanActiveOnes();
    void judgementsNameTheView_data();
    void judgementsNameTheView();
    void secondsAreReadable_data();
    void secondsAreReadable();
    void anUnusedViewIsLeftAlone();
    void halfDoneEditsSurvive_data();
    void halfDoneEditsSurvive();
    void constantBitrateLeavesTheHrdSwitchAlone();
    void changingUnitsKeepsTheInitialFullness();
    void messagesOfALevelThatIsTooLowAreFew();
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
    QVERIFY(outcome.formats[2].contains("Level %s is the lowest that fits."));
}

void TestEncoderCheck::viewOneGetsWhatAllViewsShare()
{
    // One view edited, then a second one added: it still has the preset's picture.
    KvMvcSettings record = encoder::preset(0);
    record.views[0].width = 1280;
    record.views[0].height = 720;
    record.views[0].frame_rate = 25;
    record.views[0].ref_distance = 1;
    record.num_views = 2;
    const int rate = record.views[1].bitrate;
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.accepted(), outcome.all().constData());
    QCOMPARE(outcome.warnings().size(), 2);
    QCOMPARE(record.views[1].width, 1280);
    QCOMPARE(record.views[1].height, 720);
    const double frameRate = record.views[1].frame_rate;
    QVERIFY(frameRate == 25);
    QCOMPARE(record.views[1].ref_distance, 1);
    QCOMPARE(record.views[1].bitrate, rate);
}

void TestEncoderCheck::whatViewsShareIsCorrectedOnce()
{
    // View 1 has the base view's value before anything is said of it.
    KvMvcSettings record = encoder::preset(2);
    record.views[1].ref_distance = 0;
    QCOMPARE(
        encoder::check(record).warnings(),
        QByteArrayList{"View 1 now has the base view's GOP structure, which all views share."});
    QCOMPARE(record.views[1].ref_distance, 3);

    record.views[0].ref_distance = 9;
    QCOMPARE(encoder::check(record).warnings(),
             (QByteArrayList{"View 1 now has the base view's GOP structure, which all views share.",
                             "The number of B-frames was 8; it is now 3 (0 to 3)."}));
    QCOMPARE(record.views[0].ref_distance, 4);
    QCOMPARE(record.views[1].ref_distance, 4);

    record = encoder::preset(2);
    encoder::setFrameRate(record, qQNaN());
    QCOMPARE(encoder::check(record).warnings().size(), 1);
}

void TestEncoderCheck::correctionsNameTheOtherView_data()
{
    QTest::addColumn<int>("base");
    QTest::addColumn<int>("other");
    QTest::addColumn<QByteArrayList>("warnings");
    const QByteArray base = "The number of reference frames was 17; it is now 16 (0 to 16).";
    const QByteArray other =
        "View 1: The number of reference frames was -2; it is now 0 (0 to 16).";
    QTest::newRow("base view") << 17 << 4 << QByteArrayList{base};
    QTest::newRow("view 1") << 4 << -2 << QByteArrayList{other};
    QTest::newRow("both alike") << 17 << 17 << QByteArrayList{base};
    QTest::newRow("each its own") << 17 << -2 << QByteArrayList{base, other};
}

void TestEncoderCheck::correctionsNameTheOtherView()
{
    QFETCH(const int, base);
    QFETCH(const int, other);
    QFETCH(const QByteArrayList, warnings);
    KvMvcSettings record = encoder::preset(2);
    record.views[0].num_ref_frames = base;
    record.views[1].num_ref_frames = other;
    QCOMPARE(encoder::check(record).warnings(), warnings);
}

void TestEncoderCheck::anEmptyViewOneGetsFewMessages()
{
    // A file that sets two views and has the first one's section only.
    KvMvcSettings record = encoder::preset(2);
    std::memset(&record.views[1], 0, sizeof record.views[1]);
    QCOMPARE(encoder::check(record).warnings(),
             (QByteArrayList{
                 "View 1 now has the base view's picture format, which all views share.",
                 "View 1 now has the base view's preset, profile and level, which all views share.",
                 "View 1 now has the base view's GOP structure, which all views share.",
                 "View 1: The number of slices per picture was 0; it is now 1 (1 to 99999)."}));
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

void TestEncoderCheck::keptReferencesMayBeMoreThanActiveOnes()
{
    // Two views share 16 frames at level 5.0; a list of active references may hold 8.
    KvMvcSettings record = encoder::preset(2);
    setBoth(record, &V::level, 50);
    setBoth(record, &V::num_ref_frames, 8);
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.accepted() && outcome.warnings().isEmpty(), outcome.all().constData());
    QVERIFY2(
        outcome.notes().contains("View 1: With 2 views, a picture refers to at most 8 frames at "
                                 "once; 9 are kept, other views included."),
        outcome.all().constData());
    QCOMPARE(outcome.rules.count(QStringLiteral("mvc.list-size")), 1);
}

void TestEncoderCheck::judgementsNameTheView_data()
{
    QTest::addColumn<int>("view");
    QTest::addColumn<int>("slices");
    QTest::addColumn<QByteArrayList>("errors");
    const QByteArray error = "Level 4.1 needs at least 4 slices per picture at this size (now 3): "
                             "use more.";
    QTest::newRow("none") << 0 << 4 << QByteArrayList();
    QTest::newRow("base view") << 0 << 3 << QByteArrayList{error};
    QTest::newRow("view 1") << 1 << 3 << QByteArrayList{"View 1: " + error};
}

void TestEncoderCheck::judgementsNameTheView()
{
    QFETCH(const int, view);
    QFETCH(const int, slices);
    QFETCH(const QByteArrayList, errors);
    KvMvcSettings record = encoder::preset(2);
    record.views[view].num_slices = slices;
    QCOMPARE(encoder::check(record).errors(), errors);
}

void TestEncoderCheck::secondsAreReadable_data()
{
    QTest::addColumn<int>("bytes"); // of a buffer that 30 Mbit/s fill
    QTest::addColumn<QByteArray>("shown");
    QTest::newRow("0.5 s") << 1875000 << QByteArray("0.50");
    QTest::newRow("0.125 s") << 468750 << QByteArray("0.125");
    QTest::newRow("0.0026 s") << 9750 << QByteArray("0.003");
    QTest::newRow("2.3 s") << 8625000 << QByteArray("2.30");
}

void TestEncoderCheck::secondsAreReadable()
{
    QFETCH(const int, bytes);
    QFETCH(const QByteArray, shown);
    KvMvcSettings record = encoder::preset(0);
    setBoth(record, &V::bitrate_buffer, bytes);
    setBoth(record, &V::vbv_initial, 100);
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.notes().contains("Base view: The bitrate buffer holds " + shown +
                                      " s; decoding starts after " + shown + " s."),
             outcome.all().constData());
}

void TestEncoderCheck::anUnusedViewIsLeftAlone()
{
    KvMvcSettings record = encoder::preset(0);
    std::memset(&record.views[1], 0xa5, sizeof record.views[1]);
    const KvMvcSettings before = record;
    QVERIFY(encoder::check(record).accepted());
    QVERIFY(std::memcmp(&before, &record, sizeof record) == 0);
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

QTEST_GUILESS_MAIN(TestEncoderCheck)
#include "tst_encoder_check.moc"
