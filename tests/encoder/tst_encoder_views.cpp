// Two views: what they share, what each has for itself, and whose name a message begins with.

#include <QTest>

#include <algorithm>
#include <cstring>

#include "Encoder.h"
#include "SettingsLedger.h"

namespace
{

using V = KvMvcViewSettings;
using encoder::setBoth;
using ledger::Group;
using ledger::Setting;

/// A setting that all views share, as the message calls it.
struct Shared {
    const char* member;
    const char* rule;
    const char* name;
};

constexpr Shared shared[] = {
    {"video_type", "views.video-type", "Preset"},
    {"profile", "views.profile", "Profile"},
    {"level", "views.level", "Level"},
    {"width", "views.width", "Picture width"},
    {"height", "views.height", "Picture height"},
    {"frame_rate", "views.frame-rate", "Frame rate"},
    {"interlace_mode", "views.interlace-mode", "Picture structure"},
    {"field_order", "views.field-order", "Field order"},
    {"pulldown", "views.pulldown", "Pulldown"},
    {"display_aspect_x", "views.display-aspect-x", "Picture aspect ratio, horizontal part"},
    {"display_aspect_y", "views.display-aspect-y", "Picture aspect ratio, vertical part"},
    {"pixel_aspect_x", "views.pixel-aspect-x", "Pixel aspect ratio, horizontal part"},
    {"pixel_aspect_y", "views.pixel-aspect-y", "Pixel aspect ratio, vertical part"},
    {"chroma_format", "views.chroma-format", "Chroma format"},
    {"bit_depth_luma", "views.bit-depth-luma", "Bit-depth luma"},
    {"bit_depth_chroma", "views.bit-depth-chroma", "Bit-depth chroma"},
    {"i_interval", "views.i-interval", "I-frame interval"},
    {"force_i", "views.force-i", "Min. I-frame distance"},
    {"fixed_i_position", "views.fixed-i-position", "Fixed I-frames distance"},
    {"idr_marker", "views.idr-marker", "Mark every so many I-frames as IDR"},
    {"scene_detection", "views.scene-detection", "Enable scene detection"},
    {"ref_distance", "views.ref-distance", "Number of B-frames"},
    {"adaptive_b", "views.adaptive-b", "Adaptive B-frame placement"},
    {"reference_b", "views.reference-b", "B-frames as reference frames"},
    {"pyramid_b", "views.pyramid-b", "Pyramidal structure for B-frames"},
};

QByteArray copied(const char* name)
{
    return QByteArray("View 1 now has the base view's value, which all views share: ") + name + ".";
}

constexpr char toolsRule[] = "views.tools";
constexpr char toolsText[] = "The advanced settings of view 1 differ from those of the base view.";

bool isTool(const Setting& setting)
{
    // Follows the number of slices.
    return !setting.is("multi_slice") &&
           (setting.group == Group::Motion || setting.group == Group::Distortion ||
            setting.group == Group::Coding);
}

/// A stereo record whose view 1 differs from the base view in this setting only.
struct Differing {
    explicit Differing(const Setting& setting) : record(encoder::preset(2))
    {
        base = ledger::get(record, setting, 0);
        own = setting.first.code == base ? setting.second.code : setting.first.code;
        ledger::put(record, setting, 1, own);
    }

    KvMvcSettings record;
    double base;
    double own;
};

/// What was copied from the base view.
QByteArrayList alignments(const QByteArrayList& warnings)
{
    QByteArrayList found;
    for (const QByteArray& warning : warnings) {
        if (warning.contains("base view's")) {
            found += warning;
        }
    }
    return found;
}

} // namespace

class TestEncoderViews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sharedSettingIsAligned_data();
    void sharedSettingIsAligned();
    void toolOfAViewIsToldAndKept_data();
    void toolOfAViewIsToldAndKept();
    void rateControlIsEachViewsOwn_data();
    void rateControlIsEachViewsOwn();
    void viewOneGetsWhatAllViewsShare();
    void whatViewsShareIsCorrectedOnce();
    void correctionsNameTheOtherView_data();
    void correctionsNameTheOtherView();
    void anEmptyViewOneGetsFewMessages();
    void keptReferencesMayBeMoreThanActiveOnes();
    void referencesAreToldForEachView_data();
    void referencesAreToldForEachView();
    void judgementsNameTheView_data();
    void judgementsNameTheView();
    void anUnusedViewIsLeftAlone();
};

void TestEncoderViews::sharedSettingIsAligned_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QByteArray>("warning");
    int rows = 0;
    for (const Shared& row : shared) {
        QTest::newRow(row.member) << QString::fromLatin1(row.member)
                                  << QString::fromLatin1(row.rule) << copied(row.name);
        ++rows;
    }
    const auto isShared = [](const Setting& setting) {
        return setting.group == Group::Picture || setting.group == Group::Stream ||
               setting.group == Group::Gop;
    };
    const auto& settings = ledger::settings();
    QCOMPARE(rows, int(std::count_if(settings.begin(), settings.end(), isShared)));
}

void TestEncoderViews::sharedSettingIsAligned()
{
    QFETCH(const QString, member);
    QFETCH(const QString, rule);
    QFETCH(const QByteArray, warning);
    const Setting& setting = ledger::setting(member);
    Differing given(setting);
    const Outcome outcome = encoder::check(given.record);
    QVERIFY2(outcome.accepted(), outcome.all().constData());
    QCOMPARE(outcome.warnings(), QByteArrayList{warning});
    QCOMPARE(outcome.rules.count(rule), 1);
    QVERIFY(ledger::get(given.record, setting, 0) == given.base);
    QVERIFY(ledger::get(given.record, setting, 1) == given.base);
}

void TestEncoderViews::toolOfAViewIsToldAndKept_data()
{
    QTest::addColumn<QString>("member");
    for (const Setting& setting : ledger::settings()) {
        if (isTool(setting)) {
            QTest::newRow(setting.member) << QString::fromLatin1(setting.member);
        }
    }
}

void TestEncoderViews::toolOfAViewIsToldAndKept()
{
    QFETCH(const QString, member);
    const Setting& setting = ledger::setting(member);
    Differing given(setting);
    const Outcome outcome = encoder::check(given.record);
    QCOMPARE(outcome.warnings(), QByteArrayList());
    QCOMPARE(outcome.notes().count(toolsText), 1);
    QCOMPARE(outcome.rules.count(QLatin1String(toolsRule)), 1);
    QVERIFY(ledger::get(given.record, setting, 0) == given.base);
    QVERIFY(ledger::get(given.record, setting, 1) == given.own);
}

void TestEncoderViews::rateControlIsEachViewsOwn_data()
{
    QTest::addColumn<QString>("member");
    for (const Setting& setting : ledger::settings()) {
        if (setting.group == Group::RateControl) {
            QTest::newRow(setting.member) << QString::fromLatin1(setting.member);
        }
    }
}

void TestEncoderViews::rateControlIsEachViewsOwn()
{
    QFETCH(const QString, member);
    const Setting& setting = ledger::setting(member);
    Differing given(setting);
    const Outcome outcome = encoder::check(given.record);
    QCOMPARE(alignments(outcome.warnings()), QByteArrayList());
    QVERIFY2(!outcome.said(QLatin1String(toolsRule)), outcome.all().constData());
    QVERIFY(ledger::get(given.record, setting, 0) == given.base);
    QVERIFY(ledger::get(given.record, setting, 1) == given.own);
}

void TestEncoderViews::viewOneGetsWhatAllViewsShare()
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
    QCOMPARE(outcome.warnings(),
             (QByteArrayList{copied("Picture width"), copied("Picture height"),
                             copied("Frame rate"), copied("Number of B-frames")}));
    QCOMPARE(record.views[1].width, 1280);
    QCOMPARE(record.views[1].height, 720);
    const double frameRate = record.views[1].frame_rate;
    QVERIFY(frameRate == 25);
    QCOMPARE(record.views[1].ref_distance, 1);
    QCOMPARE(record.views[1].bitrate, rate);
}

void TestEncoderViews::whatViewsShareIsCorrectedOnce()
{
    // View 1 has the base view's value before anything is said of it.
    KvMvcSettings record = encoder::preset(2);
    record.views[1].ref_distance = 0;
    QCOMPARE(encoder::check(record).warnings(), QByteArrayList{copied("Number of B-frames")});
    QCOMPARE(record.views[1].ref_distance, 3);

    record.views[0].ref_distance = 9;
    QCOMPARE(encoder::check(record).warnings(),
             (QByteArrayList{copied("Number of B-frames"),
                             "The number of B-frames was 8; it is now 3 (0 to 3)."}));
    QCOMPARE(record.views[0].ref_distance, 4);
    QCOMPARE(record.views[1].ref_distance, 4);

    record = encoder::preset(2);
    encoder::setFrameRate(record, qQNaN());
    QCOMPARE(encoder::check(record).warnings().size(), 1);
}

void TestEncoderViews::correctionsNameTheOtherView_data()
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

void TestEncoderViews::correctionsNameTheOtherView()
{
    QFETCH(const int, base);
    QFETCH(const int, other);
    QFETCH(const QByteArrayList, warnings);
    KvMvcSettings record = encoder::preset(2);
    record.views[0].num_ref_frames = base;
    record.views[1].num_ref_frames = other;
    QCOMPARE(encoder::check(record).warnings(), warnings);
}

void TestEncoderViews::anEmptyViewOneGetsFewMessages()
{
    // A file that sets two views and has the first one's section only.
    KvMvcSettings record = encoder::preset(2);
    std::memset(&record.views[1], 0, sizeof record.views[1]);
    QCOMPARE(encoder::check(record).warnings(),
             (QByteArrayList{
                 "View 1 now has the base view's picture format, which all views share.",
                 copied("Preset"), copied("Profile"), copied("Level"),
                 "View 1 now has the base view's GOP structure, which all views share.",
                 "View 1: The number of slices per picture was 0; it is now 1 (1 to 99999)."}));
}

void TestEncoderViews::keptReferencesMayBeMoreThanActiveOnes()
{
    // Two views share 16 frames at level 5.0; a list of active references may hold 8.
    KvMvcSettings record = encoder::preset(2);
    setBoth(record, &V::level, 50);
    setBoth(record, &V::num_ref_frames, 8);
    setBoth(record, &V::ref_distance, 1); // B-frames take one of them
    const Outcome outcome = encoder::check(record);
    QVERIFY2(outcome.accepted() && outcome.warnings().isEmpty(), outcome.all().constData());
    QVERIFY2(
        outcome.notes().contains("View 1: With 2 views, a picture refers to at most 8 frames at "
                                 "once; 9 are kept, other views included."),
        outcome.all().constData());
    QCOMPARE(outcome.rules.count(QStringLiteral("mvc.list-size")), 1);
}

void TestEncoderViews::referencesAreToldForEachView_data()
{
    QTest::addColumn<int>("base");
    QTest::addColumn<int>("other");
    QTest::addColumn<int>("distance");
    QTest::addColumn<QByteArrayList>("errors");
    QTest::addColumn<QByteArrayList>("notes");
    // Two views of 1920 x 1080 share 8 frames; one is kept for the B-frames of the base view.
    QTest::newRow("3 each") << 3 << 3 << 3 << QByteArrayList()
                            << QByteArrayList{"Reference frames: 3 of the 3 per view that level "
                                              "4.1 has room for."};
    QTest::newRow("4 each")
        << 4 << 4 << 3
        << QByteArrayList{"With B-frames, level 4.1 has room for 3 reference frames in each of 2 "
                          "views (now 4): use fewer, or level 5.0."}
        << QByteArrayList();
    QTest::newRow("4 each, no B-frames")
        << 4 << 4 << 1 << QByteArrayList()
        << QByteArrayList{"Reference frames: 4 of the 4 per view that level 4.1 has room for."};
    QTest::newRow("5 each, no B-frames")
        << 5 << 5 << 1
        << QByteArrayList{"Level 4.1 has room for 4 reference frames in each of 2 views (now 5): "
                          "use fewer, or choose level 5.0."}
        << QByteArrayList();
    QTest::newRow("5 each")
        << 5 << 5 << 3
        << QByteArrayList{"Level 4.1 has room for 3 reference frames in each of 2 views (now 5): "
                          "use fewer, or choose level 5.0."}
        << QByteArrayList();
    QTest::newRow("9 each, which no level has room for")
        << 9 << 9 << 3
        << QByteArrayList{"Level 4.1 has room for 3 reference frames in each of 2 views (now 9): "
                          "use fewer."}
        << QByteArrayList();
    QTest::newRow("8 each, which no level has room for with B-frames")
        << 8 << 8 << 3
        << QByteArrayList{"Level 4.1 has room for 3 reference frames in each of 2 views (now 8): "
                          "use fewer."}
        << QByteArrayList();
    QTest::newRow("uneven") << 3 << 2 << 3 << QByteArrayList()
                            << QByteArrayList{
                                   "Reference frames: 3 of the 4 per view that level 4.1 has room "
                                   "for.",
                                   "View 1: Reference frames: 2 of the 4 per view that level 4.1 "
                                   "has room for."};
}

void TestEncoderViews::referencesAreToldForEachView()
{
    QFETCH(const int, base);
    QFETCH(const int, other);
    QFETCH(const int, distance);
    QFETCH(const QByteArrayList, errors);
    QFETCH(const QByteArrayList, notes);
    KvMvcSettings record = encoder::preset(2);
    record.views[0].num_ref_frames = base;
    record.views[1].num_ref_frames = other;
    setBoth(record, &V::ref_distance, distance);
    const Outcome outcome = encoder::check(record);
    QCOMPARE(outcome.errors(), errors);
    QByteArrayList told;
    for (const QByteArray& note : outcome.notes()) {
        if (note.contains("Reference frames:")) {
            told += note;
        }
    }
    QCOMPARE(told, notes);
}

void TestEncoderViews::judgementsNameTheView_data()
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

void TestEncoderViews::judgementsNameTheView()
{
    QFETCH(const int, view);
    QFETCH(const int, slices);
    QFETCH(const QByteArrayList, errors);
    KvMvcSettings record = encoder::preset(2);
    record.views[view].num_slices = slices;
    QCOMPARE(encoder::check(record).errors(), errors);
}

void TestEncoderViews::anUnusedViewIsLeftAlone()
{
    KvMvcSettings record = encoder::preset(0);
    std::memset(&record.views[1], 0xa5, sizeof record.views[1]);
    const KvMvcSettings before = record;
    QVERIFY(encoder::check(record).accepted());
    QVERIFY(std::memcmp(&before, &record, sizeof record) == 0);
}

QTEST_GUILESS_MAIN(TestEncoderViews)
#include "tst_encoder_views.moc"
