// What frames tell about groups of pictures and pulldown, by frames written down by hand.
#include <h264_gop.h>

#include <QTest>

#include <vector>

namespace
{

/// Frames in the order of decoding, as "D0 P3 b1 b2": kind and place. D is an IDR picture and
/// begins a sequence, B is a reference and b is none.
std::vector<kv::CodedFrame> framesOf(const QString& text)
{
    std::vector<kv::CodedFrame> frames;
    uint32_t sequence = 0;
    for (const QString& word : text.split(QLatin1Char(' '))) {
        const char kind = word[0].toLatin1();
        sequence += kind == 'D' ? 1 : 0;
        kv::CodedFrame frame;
        frame.kind = kind == 'P'                  ? kv::FrameKind::P
                     : kind == 'B' || kind == 'b' ? kv::FrameKind::B
                                                  : kv::FrameKind::I;
        frame.isIdr = kind == 'D';
        frame.isReference = kind != 'b';
        frame.slices = 1;
        frame.sequence = sequence;
        frame.order = word.mid(1).toInt();
        frames.push_back(frame);
    }
    return frames;
}

class TestH264Gop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void groups_data();
    void groups();
    void nothingIsMadeUp();
    void theMostFrequentNumberOfSlices();
    void cadences_data();
    void cadences();
};

void TestH264Gop::groups_data()
{
    QTest::addColumn<QString>("frames");
    QTest::addColumn<bool>("whole");
    QTest::addColumn<QList<int>>(
        "facts"); // I distance, IDR distance, B, adaptive, reference, pyramid
    using Facts = QList<int>;
    const auto row = [](const char* name, const char* frames, bool whole, const Facts& facts) {
        QTest::newRow(name) << QString::fromLatin1(frames) << whole << facts;
    };
    row("P pictures", "D0 P1 P2 P3", true, {0, -1, 0, 0, 0, 0});
    row("IDR pictures", "D0 P1 P2 D0 P1 P2 D0", true, {3, 1, 0, 0, 0, 0});
    row("every other I picture is an IDR picture", "D0 P1 I2 P3 D0 P1 I2 P3 D0", true,
        {2, 2, 0, 0, 0, 0});
    row("only the first is an IDR picture", "D0 P1 I2 P3 I4", true, {2, 0, 0, 0, 0, 0});
    row("nothing but I pictures", "D0 I1 I2", true, {1, 0, -1, 0, 0, 0});
    row("B pictures", "D0 P3 b1 b2 P6 b4 b5", true, {0, -1, 2, 0, 0, 0});
    row("open groups", "D0 P3 b1 b2 I6 b4 b5 P9 b7 b8 I12 b10 b11", true, {6, 0, 2, 0, 0, 0});
    // A closed group of 6 has one B picture less in its last row.
    row("closed groups", "D0 P3 b1 b2 P5 b4 D0 P3 b1 b2 P5 b4 D0", true, {6, 1, 2, 0, 0, 0});
    row("B pictures shown before an IDR picture", "D0 P3 b1 b2 D0 b-2 b-1 P3 b1 b2", true,
        {6, 1, 2, 0, 0, 0});
    row("rows of several lengths", "D0 P3 b1 b2 P4 P7 b5 b6 P9 b8 P12 b10 b11 P15", true,
        {0, -1, 2, 1, 0, 0});
    row("B pictures as references", "D0 P3 B1 b2 P6 B4 b5", true, {0, -1, 2, 0, 1, 0});
    row("a pyramid", "D0 P4 B2 b1 b3 P8 B6 b5 b7", true, {0, -1, 3, 0, 1, 1});
    row("a pyramid of two", "D0 P3 B2 b1 P6 B5 b4", true, {0, -1, 2, 0, 1, 1});
    // The last P picture's B pictures are not there yet.
    row("a beginning", "D0 P3 b1 b2 P6 b4 b5 P9", false, {0, -1, 2, 0, 0, 0});
    row("a beginning, in the midst of a row", "D0 P4 B2 b1 b3 P8 B6", false, {0, -1, 3, 0, 1, 1});
    row("one picture", "D0", false, {0, -1, -1, 0, 0, 0});
}

void TestH264Gop::groups()
{
    QFETCH(QString, frames);
    QFETCH(bool, whole);
    QFETCH(QList<int>, facts);
    const kv::CodingFacts found = kv::factsOfFrames(framesOf(frames), whole);
    const QList<int> told = {found.iDistance,      found.idrDistance,     found.bFrames,
                             int(found.adaptiveB), int(found.referenceB), int(found.pyramidB)};
    QCOMPARE(told, facts);
}

void TestH264Gop::nothingIsMadeUp()
{
    for (const bool whole : {false, true}) {
        const kv::CodingFacts facts = kv::factsOfFrames({}, whole);
        QCOMPARE(facts.frames, 0);
        QCOMPARE(facts.slices, 0);
        QCOMPARE(facts.iDistance, 0);
        QCOMPARE(facts.bFrames, -1);
        QCOMPARE(kv::cadenceOf({}, whole).fields, 0);
    }
}

void TestH264Gop::theMostFrequentNumberOfSlices()
{
    std::vector<kv::CodedFrame> frames = framesOf(QStringLiteral("D0 P1 P2 P3"));
    frames[0].slices = 8;
    frames[1].slices = 3;
    frames[3].slices = 3;
    QCOMPARE(kv::factsOfFrames(frames, true).slices, 3);
}

void TestH264Gop::cadences_data()
{
    QTest::addColumn<QList<int>>(
        "structures"); // in the order of showing, which is that of decoding
    QTest::addColumn<int>("fields");
    QTest::addColumn<int>("frames");
    QTest::addColumn<int>("first");
    using Structures = QList<int>;
    QTest::newRow("not told") << Structures{-1, -1, -1} << 0 << 1 << 0;
    QTest::newRow("not told of one") << Structures{7, -1, 7} << 0 << 1 << 0;
    QTest::newRow("frames") << Structures{0, 0, 0} << 0 << 1 << 0;
    QTest::newRow("two fields each") << Structures{3, 4, 3, 4} << 0 << 1 << 0;
    QTest::newRow("3:2") << Structures{5, 4, 6, 3, 5, 4} << 5 << 2 << 3;
    QTest::newRow("2:3") << Structures{3, 5, 4, 6, 3} << 5 << 2 << 2;
    QTest::newRow("twice") << Structures{7, 7, 7} << 4 << 1 << 4;
    QTest::newRow("three times") << Structures{8, 8, 8} << 6 << 1 << 6;
    QTest::newRow("three fields") << Structures{5, 6, 5, 6} << 3 << 1 << 3;
    QTest::newRow("twice and three times") << Structures{7, 8, 7, 8} << 10 << 2 << 4;
    QTest::newRow("a field in four frames") << Structures{3, 3, 3, 5, 4, 4, 4, 6} << 9 << 4 << 2;
    QTest::newRow("no order") << Structures{3, 5, 5, 3, 7} << 14 << 5 << 2;
}

void TestH264Gop::cadences()
{
    QFETCH(QList<int>, structures);
    QFETCH(int, fields);
    QFETCH(int, frames);
    QFETCH(int, first);
    std::vector<kv::CodedFrame> coded(static_cast<std::size_t>(structures.size()));
    for (std::size_t at = 0; at < coded.size(); ++at) {
        coded[at].structure = structures[int(at)];
        coded[at].order = static_cast<int64_t>(at);
    }
    const kv::Cadence cadence = kv::cadenceOf(coded, true);
    QCOMPARE(cadence.fields, fields);
    QCOMPARE(cadence.frames, frames);
    QCOMPARE(cadence.firstFields, first);
}

} // namespace

QTEST_APPLESS_MAIN(TestH264Gop)
#include "tst_h264_gop.moc"
