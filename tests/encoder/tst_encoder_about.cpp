// What programs are told besides texts: what each message is about, and how much of the limits is
// used.

#include <QTest>

#include <cstring>

#include "Encoder.h"
#include "SettingsLedger.h"
#include "rules.h"

namespace
{

using V = KvMvcViewSettings;
using Record = KvMvcSettings;
using encoder::setBoth;
using encoder::setFrameRate;

constexpr std::nullopt_t none = std::nullopt;

struct AboutCase {
    const char* name;
    int preset;
    void (*change)(Record&);
    About about;
};

const AboutCase aboutCases[] = {
    {"a correction has the former and the present value",
     2,
     [](Record& r) { setBoth(r, &V::i_interval, 999); },
     {KV_MVC_MESSAGE_WARNING, "field.i-interval", "i_interval", -1, 999, 300, ""}},
    {"values are the field's, not those that are shown",
     2,
     [](Record& r) { setBoth(r, &V::ref_distance, 9); },
     {KV_MVC_MESSAGE_WARNING, "field.b-frames", "ref_distance", -1, 9, 4, ""}},
    {"a setting of the record",
     2,
     [](Record& r) { r.num_views = 7; },
     {KV_MVC_MESSAGE_WARNING, "field.views", "num_views", -1, 7, 4, ""}},
    {"a view's own setting",
     2,
     [](Record& r) { r.views[1].quant_max = 60; },
     {KV_MVC_MESSAGE_WARNING, "field.quantizer-max", "quant_max", 1, 60, 51, ""}},
    {"the base view's own setting",
     2,
     [](Record& r) { r.views[0].quant_max = 60; },
     {KV_MVC_MESSAGE_WARNING, "field.quantizer-max", "quant_max", 0, 60, 51, ""}},
    {"a setting that only one view has so",
     2,
     [](Record& r) { r.views[1].num_ref_frames = 99; },
     {KV_MVC_MESSAGE_WARNING, "field.references", "num_ref_frames", 1, 99, 16, ""}},
    {"rates are in bit/s, not in millions",
     2,
     [](Record& r) { r.views[1].bitrate = 20000000; },
     {KV_MVC_MESSAGE_WARNING, "rate.target-max", "bitrate", 1, 15000000, 15000000, ""}},
    {"an error of two values",
     2,
     [](Record& r) { setBoth(r, &V::force_i, 30); },
     {KV_MVC_MESSAGE_ERROR, "gop.force-i", "force_i", -1, 30, 24, ""}},
    {"a code is the setting's value",
     2,
     [](Record& r) { setBoth(r, &V::profile, 1); },
     {KV_MVC_MESSAGE_NOTE, "summary.stream-views", "profile", -1, 1, none, ""}},
    {"a rate of frames",
     0,
     [](Record& r) { setFrameRate(r, 200); },
     {KV_MVC_MESSAGE_ERROR, "level.frame-rate", "frame_rate", -1, 200, 172, ""}},
    {"a risk is told as such",
     3,
     [](Record& r) { setBoth(r, &V::weighted_p, 1); },
     {KV_MVC_MESSAGE_RISK, "disc.weighted-p", "weighted_p", -1, 1, none, ""}},
    // Table A-1: MaxFS 1620, MaxMBPS 40500 at level 3; 1920 x 1080 are 120 x 68.
    {"a level's limit",
     0,
     [](Record& r) { setBoth(r, &V::level, 30); },
     {KV_MVC_MESSAGE_ERROR, "level.picture", "level", -1, 8160, 1620, "3.0"}},
    {"what view 1 got from the base view",
     2,
     [](Record& r) { r.views[1].width = 1280; },
     {KV_MVC_MESSAGE_WARNING, "views.width", "width", 1, 1920, none, ""}},
    // Where no other level would do, the rule is the same in other words.
    {"a limit of all levels",
     0,
     [](Record& r) { setFrameRate(r, 171); },
     {KV_MVC_MESSAGE_ERROR, "level.rate", "level", -1, 1395360, 245760, "4.1"}},
    {"a message about the base view alone",
     0,
     [](Record& r) { setBoth(r, &V::max_bitrate, 80000000); },
     {KV_MVC_MESSAGE_ERROR, "level.bitrate", "bitrate", 0, 80000000, 75000000, "4.1"}},
    {"a level's limit of the picture",
     0,
     [](Record& r) { setBoth(r, &V::num_ref_frames, 5); },
     {KV_MVC_MESSAGE_ERROR, "level.dpb", "num_ref_frames", -1, 5, 4, "4.1"}},
};

} // namespace

class TestEncoderAbout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messagesAreAboutASetting_data();
    void messagesAreAboutASetting();
    void settingsHaveTheirNamesInTheTable();
    void usesOfLimits_data();
    void usesOfLimits();
    void usesAreThoseOfTheLevelThatResults();
    void discsHaveLimitsOfTheirOwn();
    void nothingIsUsedWithoutALevelOrASize();
    void whatIsBeyondALimitIsRefused_data();
    void whatIsBeyondALimitIsRefused();
};

void TestEncoderAbout::messagesAreAboutASetting_data()
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < std::size(aboutCases); ++i) {
        QTest::newRow(aboutCases[i].name) << int(i);
    }
}

void TestEncoderAbout::messagesAreAboutASetting()
{
    QFETCH(const int, row);
    const AboutCase& test = aboutCases[row];
    KvMvcSettings record = encoder::preset(test.preset);
    test.change(record);
    const Outcome outcome = encoder::check(record);
    const About about = outcome.about(QString::fromLatin1(test.about.rule));
    QVERIFY2(!about.rule.isEmpty(), outcome.all().constData());
    QCOMPARE(about.kind, test.about.kind);
    QCOMPARE(about.setting, test.about.setting);
    QCOMPARE(about.view, test.about.view);
    QCOMPARE(about.value.value_or(-1), test.about.value.value_or(-1));
    QCOMPARE(about.limit.value_or(-1), test.about.limit.value_or(-1));
    QCOMPARE(about.level, test.about.level);
}

void TestEncoderAbout::settingsHaveTheirNamesInTheTable()
{
    // What has no single setting to look at.
    const QByteArrayList ofSeveral = {"views.picture", "views.gop", "views.tools"};
    QByteArrayList without;
    for (const kv::encoder::RuleGroup& group : kv::encoder::ruleGroups()) {
        for (const kv::encoder::RuleInfo* rule : group.rules) {
            if (!rule->subject.setting) {
                without.append(rule->id);
                continue;
            }
            QVERIFY2(std::ranges::any_of(
                         ledger::settings(),
                         [&](const auto& setting) { return setting.is(rule->subject.setting); }),
                     rule->subject.setting);
        }
    }
    QCOMPARE(without, ofSeveral);
}

void TestEncoderAbout::usesOfLimits_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("view");
    QTest::addColumn<double>("used");
    QTest::addColumn<double>("limit");
    QTest::addColumn<QByteArray>("unit");
    const auto row = [](const char* name, int view, double used, double limit, const char* unit) {
        QTest::addRow("%s %d", name, view)
            << QByteArray(name) << view << used << limit << QByteArray(unit);
    };
    // Level 4.1 of Table A-1, with H.10.2.1: twice MaxMBPS 245760 and MaxDpbMbs 32768 for two views
    // of 120 x 68 macroblocks; MaxBR 50000 and MaxCPB 62500, times 1250 and 1500 (Table A-2), not
    // doubled. The row's longest side is the square root of 8 * MaxFS 8192.
    row("Picture size", -1, 8160, 8192, "macroblocks");
    row("Picture width", -1, 120, 256, "macroblocks");
    row("Picture height", -1, 68, 256, "macroblocks");
    row("Macroblock rate", -1, 391288.711, 491520, "macroblocks/s"); // 2 * 8160 * 24000 / 1001
    row("Decoded pictures", -1, 7, 8, "frames"); // 2 * 3, and one B picture on its way (C.4.5.2)
    row("Bitrate", 0, 30000000, 75000000, "bit/s");
    row("Bitrate of pictures", 0, 30000000, 62500000, "bit/s");
    row("Bitrate", -1, 45000000, 75000000, "bit/s");
    row("Bitrate of pictures", -1, 45000000, 62500000, "bit/s");
    row("Buffer", 0, 30000000, 93750000, "bit");
    row("Buffer of pictures", 0, 30000000, 78125000, "bit");
    row("Buffer", -1, 45000000, 93750000, "bit");
    row("Buffer of pictures", -1, 45000000, 78125000, "bit");
}

void TestEncoderAbout::usesOfLimits()
{
    QFETCH(const QByteArray, name);
    QFETCH(const int, view);
    QFETCH(const double, used);
    QFETCH(const double, limit);
    QFETCH(const QByteArray, unit);
    KvMvcSettings record = encoder::preset(2);
    const Outcome outcome = encoder::check(record);
    QCOMPARE(outcome.uses.size(), 13);
    QList<LimitUse> found;
    for (const LimitUse& use : outcome.uses) {
        if (use.name == name && use.view == view) {
            found.append(use);
        }
    }
    QCOMPARE(found.size(), 1);
    QVERIFY2(qAbs(found[0].used - used) < 0.001, QByteArray::number(found[0].used, 'f', 6));
    QCOMPARE(found[0].limit, limit);
    QCOMPARE(found[0].unit, unit);
    QCOMPARE(found[0].level, QByteArray("4.1"));
}

void TestEncoderAbout::usesAreThoseOfTheLevelThatResults()
{
    // 720 x 576 at 25 and 2 Mbit/s fit level 3: 1620 macroblocks, 10 Mbit/s times 1.5.
    KvMvcSettings record = encoder::preset(0);
    setBoth(record, &V::level, int{KV_MVC_LEVEL_AUTO});
    setBoth(record, &V::width, 720);
    setBoth(record, &V::height, 576);
    setBoth(record, &V::num_slices, 1);
    setBoth(record, &V::bitrate_buffer, 250000);
    setBoth(record, &V::max_bitrate, 2000000);
    setBoth(record, &V::bitrate, 2000000);
    setFrameRate(record, 25);
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.accepted(), outcome.all().constData());
    QVERIFY(!outcome.uses.isEmpty());
    for (const LimitUse& use : outcome.uses) {
        QCOMPARE(use.level, QByteArray("3.0"));
    }
    QCOMPARE(outcome.uses[0].name, QByteArray("Picture size"));
    QCOMPARE(outcome.uses[0].used, 1620.0);
    QCOMPARE(outcome.uses[0].limit, 1620.0);
}

void TestEncoderAbout::discsHaveLimitsOfTheirOwn()
{
    KvMvcSettings record = encoder::preset(3);
    const Outcome outcome = encoder::check(record);
    QByteArrayList own;
    for (const LimitUse& use : outcome.uses) {
        if (use.level.isEmpty()) {
            own.append(use.name + ' ' + QByteArray::number(use.view) + ": " +
                       QByteArray::number(use.used / 1e6) + " of " +
                       QByteArray::number(use.limit / 1e6) + " M" + use.unit + ", " + use.rule);
        }
    }
    QCOMPARE(own, QByteArrayList({"Bitrate on a disc 0: 30 of 40 Mbit/s, disc.bitrate",
                                  "Buffer on a disc 0: 30 of 30 Mbit, disc.buffer",
                                  "Bitrate on a disc 1: 15 of 40 Mbit/s, disc.bitrate",
                                  "Buffer on a disc 1: 15 of 30 Mbit, disc.buffer-other",
                                  "Bitrate on a disc -1: 45 of 60 Mbit/s, disc.bitrate-both"}));
}

void TestEncoderAbout::nothingIsUsedWithoutALevelOrASize()
{
    KvMvcSettings none = encoder::preset(0);
    setBoth(none, &V::level, int{KV_MVC_LEVEL_AUTO});
    setBoth(none, &V::width, 16000);
    setBoth(none, &V::height, 16000);
    QVERIFY(encoder::check(none).uses.isEmpty());
    KvMvcSettings unsized = encoder::preset(0);
    setBoth(unsized, &V::width, 0);
    QVERIFY(encoder::check(unsized).uses.isEmpty());
}

void TestEncoderAbout::whatIsBeyondALimitIsRefused_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QByteArray>("rule");
    int row = 0;
    QTest::newRow("picture") << row++ << QByteArray("level.picture");
    QTest::newRow("macroblocks/s") << row++ << QByteArray("level.rate");
    QTest::newRow("macroblocks/s of two views") << row++ << QByteArray("level.rate-views");
    QTest::newRow("macroblocks/s of pulldown") << row++ << QByteArray("level.rate-pulldown");
    QTest::newRow("macroblocks/s without pulldown, too") << row++ << QByteArray("level.rate");
    QTest::newRow("references") << row++ << QByteArray("level.dpb");
    QTest::newRow("references of two views") << row++ << QByteArray("level.dpb-views");
    QTest::newRow("references and a B picture") << row++ << QByteArray("level.dpb-views-b");
    QTest::newRow("rate of the base view") << row++ << QByteArray("level.bitrate");
    QTest::newRow("rate of two views") << row++ << QByteArray("level.bitrate-views");
    QTest::newRow("buffer of the base view") << row++ << QByteArray("level.buffer");
    QTest::newRow("buffer of two views") << row++ << QByteArray("level.buffer-views");
}

void TestEncoderAbout::whatIsBeyondALimitIsRefused()
{
    QFETCH(const int, row);
    QFETCH(const QByteArray, rule);
    const struct {
        int preset;
        void (*change)(Record&);
    } cases[] = {
        {0, [](Record& r) { setBoth(r, &V::level, 32); }},
        {0, [](Record& r) { setFrameRate(r, 31); }},
        {2, [](Record& r) { setFrameRate(r, 31); }},
        {0,
         [](Record& r) {
             setFrameRate(r, 25);
             setBoth(r, &V::pulldown, 1);
         }},
        {0,
         [](Record& r) {
             setFrameRate(r, 31);
             setBoth(r, &V::pulldown, 1);
         }},
        {0, [](Record& r) { setBoth(r, &V::num_ref_frames, 5); }},
        {2, [](Record& r) { setBoth(r, &V::num_ref_frames, 5); }},
        {2, [](Record& r) { setBoth(r, &V::num_ref_frames, 4); }},
        {0, [](Record& r) { setBoth(r, &V::max_bitrate, 75000001); }},
        {2, [](Record& r) { setBoth(r, &V::max_bitrate, 40000000); }},
        {0, [](Record& r) { setBoth(r, &V::bitrate_buffer, 11718751); }},
        {2, [](Record& r) { setBoth(r, &V::bitrate_buffer, 6000000); }},
    };
    KvMvcSettings record = encoder::preset(cases[row].preset);
    cases[row].change(record);
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.said(QString::fromLatin1(rule)), outcome.all().constData());
    QCOMPARE(outcome.about(QString::fromLatin1(rule)).kind, int(KV_MVC_MESSAGE_ERROR));
    bool beyond = false;
    for (const LimitUse& use : outcome.uses) {
        beyond = beyond || (use.rule == rule && use.used > use.limit);
    }
    QVERIFY(beyond);
}

QTEST_GUILESS_MAIN(TestEncoderAbout)
#include "tst_encoder_about.moc"
