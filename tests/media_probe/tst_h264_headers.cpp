// The reader of H.264 headers against headers written bit by bit.
#include "BitWriter.h"

#include <h264_scan.h>

#include <QTest>

#include <random>

using kvtest::BitWriter;
using kvtest::nalUnit;

namespace
{

kv::Bytes bytesOf(const QByteArray& text)
{
    return {reinterpret_cast<const uint8_t*>(text.constData()),
            static_cast<std::size_t>(text.size())};
}

/// A whole sequence parameter set: what a row changes of it, and what is to be read.
struct Set {
    const char* name;
    int profile, constraints, level;
    // of the high profiles
    uint32_t chroma, lumaMinus8, chromaMinus8;
    int scalingLists;
    // picture
    uint32_t frameNumMinus4, orderType, references, columns, mapRows;
    bool framesOnly, mbaff;
    uint32_t crop[4]; // left, right, top, bottom, in crop units
    // expected
    uint32_t width, height;
};

// clang-format off
constexpr Set parameterSets[] = {
    // name                      prof  cs   lev  c  l  c  lists fn ot ref col rows only   mbaff  crop          w     h
    {"QCIF Baseline",             66, 0xC0, 10,  1, 0, 0, 0,    0, 2, 1,  11,  9, true,  false, {0, 0, 0, 0}, 176,  144},
    {"1080 High",                100, 0,    41,  1, 0, 0, 0,    4, 0, 4, 120, 68, true,  false, {0, 0, 0, 4}, 1920, 1080},
    {"1080 interlaced",          100, 0,    40,  1, 0, 0, 0,    4, 0, 4, 120, 34, false, false, {0, 0, 0, 2}, 1920, 1080},
    {"1080 MBAFF",                77, 0,    40,  1, 0, 0, 0,    4, 1, 4, 120, 34, false, true,  {0, 0, 0, 2}, 1920, 1080},
    {"High 10",                  110, 0,    32,  1, 2, 2, 0,    0, 0, 2,  80, 45, true,  false, {0, 0, 0, 0}, 1280, 720},
    {"High 4:2:2, odd crop",     122, 0,    41,  2, 2, 2, 0,    0, 0, 2,  45, 36, true,  false, {1, 2, 3, 4}, 714,  569},
    {"4:0:0",                    100, 0,    30,  0, 0, 0, 0,    0, 0, 1,  45, 36, true,  false, {1, 0, 0, 1}, 719,  575},
    {"4:4:4",                    244, 0,    30,  3, 0, 0, 0,    0, 0, 1,  45, 36, true,  false, {1, 0, 0, 1}, 719,  575},
    {"scaling lists",            100, 0,    30,  1, 0, 0, 8,    0, 0, 1,  45, 36, true,  false, {0, 0, 0, 0}, 720,  576},
    {"scaling lists of 4:4:4",   244, 0,    30,  3, 6, 6, 12,   12, 1, 16, 45, 36, true, false, {0, 0, 0, 0}, 720,  576},
};
// clang-format on

BitWriter setData(const Set& set)
{
    BitWriter writer;
    writer.bits(static_cast<uint64_t>(set.profile), 8);
    writer.bits(static_cast<uint64_t>(set.constraints), 8);
    writer.bits(static_cast<uint64_t>(set.level), 8);
    writer.ue(3); // seq_parameter_set_id
    if (set.profile >= 100) {
        writer.ue(set.chroma);
        if (set.chroma == 3) {
            writer.bits(0, 1);
        }
        writer.ue(set.lumaMinus8).ue(set.chromaMinus8).bits(0, 1);
        writer.bits(set.scalingLists > 0, 1);
        for (int list = 0; list < set.scalingLists; ++list) {
            writer.bits(1, 1);
            const int size = list < 6 ? 16 : 64;
            // Whole lists and, every third, one that ends at once.
            for (int at = 0; at < (list % 3 == 2 ? 0 : size); ++at) {
                writer.se(at % 2 == 0 ? 3 : -2);
            }
            if (list % 3 == 2) {
                writer.se(-8);
            }
        }
    }
    writer.ue(set.frameNumMinus4).ue(set.orderType);
    if (set.orderType == 0) {
        writer.ue(2);
    }
    if (set.orderType == 1) {
        writer.bits(0, 1).se(-3).se(5).ue(3).se(1).se(-1000000).se(7);
    }
    writer.ue(set.references).bits(0, 1).ue(set.columns - 1).ue(set.mapRows - 1);
    writer.bits(set.framesOnly, 1);
    if (!set.framesOnly) {
        writer.bits(set.mbaff, 1);
    }
    writer.bits(1, 1);
    const bool cropped = set.crop[0] || set.crop[1] || set.crop[2] || set.crop[3];
    writer.bits(cropped, 1);
    for (const uint32_t side : set.crop) {
        if (cropped) {
            writer.ue(side);
        }
    }
    return writer;
}

/// VUI with everything in it (E.1.1): 40:33, timing, both buffer models, restrictions.
BitWriter& appendVui(BitWriter& writer)
{
    writer.bits(1, 1);                                        // vui_parameters_present_flag
    writer.bits(1, 1).bits(255, 8).bits(40, 16).bits(33, 16); // extended aspect ratio
    writer.bits(1, 1).bits(1, 1);                             // overscan
    writer.bits(1, 1).bits(5, 3).bits(0, 1).bits(1, 1).bits(0x010101, 24);
    writer.bits(1, 1).ue(1).ue(1);                               // chroma location
    writer.bits(1, 1).bits(1001, 32).bits(48000, 32).bits(1, 1); // timing
    writer.bits(1, 1).ue(1).bits(2, 4).bits(3, 4);               // NAL buffer model, two sets
    writer.ue(999).ue(499).bits(0, 1).ue(1999).ue(1499).bits(0, 1).bits(0, 20);
    writer.bits(1, 1).ue(0).bits(0, 4).bits(0, 4).ue(9).ue(9).bits(0, 1).bits(0, 20);
    writer.bits(0, 1).bits(1, 1); // low delay, pic_struct
    return writer.bits(1, 1).bits(1, 1).ue(0).ue(0).ue(10).ue(10).ue(2).ue(4);
}

class TestH264Headers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sequenceParameterSets_data();
    void sequenceParameterSets();
    void pictureOrders();
    void aspectRatioCodes_data();
    void aspectRatioCodes();
    void bufferModels();
    void onlyTheVclBufferModel();
    void constantRatesAreTold_data();
    void constantRatesAreTold();
    void setsCutBeforeTheirVuiAreRefused();
    void aVuiThatRunsOverTheEndCostsNothingElse_data();
    void aVuiThatRunsOverTheEndCostsNothingElse();
    void impossibleSetsAreRefused_data();
    void impossibleSetsAreRefused();
    void viewsOfSubsetParameterSets_data();
    void viewsOfSubsetParameterSets();
    void viewsBehindAVui();
    void onlySubsetSetsOfMultiviewProfilesTellViews();
    void theFirstSetDescribesTheBaseView();
    void emulationPreventionIsRemoved_data();
    void emulationPreventionIsRemoved();
    void unitsAreFoundBetweenStartCodes_data();
    void unitsAreFoundBetweenStartCodes();
    void unitsAreFoundByTheirLengths_data();
    void unitsAreFoundByTheirLengths();
    void fieldSlicesAreToldFromFrames_data();
    void fieldSlicesAreToldFromFrames();
    void bytesAreCountedByView();
    void noiseDoesNoHarm();
};

void TestH264Headers::sequenceParameterSets_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(std::size(parameterSets)); ++row) {
        QTest::newRow(parameterSets[row].name) << row;
    }
}

void TestH264Headers::sequenceParameterSets()
{
    QFETCH(int, row);
    const Set& set = parameterSets[row];
    const auto read =
        kv::parseSequenceParameters(bytesOf(setData(set).bits(0, 1).payload()), false);
    QVERIFY(read);
    QCOMPARE(read->id, 3u);
    QCOMPARE(int(read->profile), set.profile);
    QCOMPARE(int(read->constraintFlags), set.constraints);
    QCOMPARE(int(read->level), set.level);
    QCOMPARE(read->chromaFormat, set.chroma);
    QCOMPARE(read->bitDepthLuma, 8 + set.lumaMinus8);
    QCOMPARE(read->bitDepthChroma, 8 + set.chromaMinus8);
    QCOMPARE(read->frameNumBits, int(4 + set.frameNumMinus4));
    QCOMPARE(read->refFrames, set.references);
    QCOMPARE(read->width, set.width);
    QCOMPARE(read->height, set.height);
    QCOMPARE(read->framesOnly, set.framesOnly);
    QCOMPARE(read->mbaff, set.mbaff);
    QCOMPARE(read->views, 1u);
}

void TestH264Headers::pictureOrders()
{
    const auto orderOf = [](const Set& set) {
        const auto read =
            kv::parseSequenceParameters(bytesOf(setData(set).bits(0, 1).payload()), false);
        return read ? read->order : kv::PictureOrder();
    };
    const kv::PictureOrder byBits = orderOf(parameterSets[1]);
    QCOMPARE(byBits.type, 0u);
    QCOMPARE(byBits.bits, 6);

    const kv::PictureOrder byCycle = orderOf(parameterSets[3]);
    QCOMPARE(byCycle.type, 1u);
    QCOMPARE(byCycle.nonReference, -3);
    QCOMPARE(byCycle.topToBottom, 5);
    QCOMPARE(byCycle.cycle, (std::vector<int32_t>{1, -1000000, 7}));

    QCOMPARE(orderOf(parameterSets[0]).type, 2u);
}

void TestH264Headers::aspectRatioCodes_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    // Table E-1
    const int table[][3] = {{0, 0, 0},    {1, 1, 1},    {2, 12, 11},  {3, 10, 11},   {4, 16, 11},
                            {5, 40, 33},  {6, 24, 11},  {7, 20, 11},  {8, 32, 11},   {9, 80, 33},
                            {10, 18, 11}, {11, 15, 11}, {12, 64, 33}, {13, 160, 99}, {14, 4, 3},
                            {15, 3, 2},   {16, 2, 1},   {17, 0, 0},   {254, 0, 0}};
    for (const auto& row : table) {
        QTest::addRow("%d", row[0]) << row[0] << row[1] << row[2];
    }
}

void TestH264Headers::aspectRatioCodes()
{
    QFETCH(int, code);
    QFETCH(int, x);
    QFETCH(int, y);
    BitWriter writer = setData(parameterSets[0]);
    writer.bits(1, 1).bits(1, 1).bits(static_cast<uint64_t>(code), 8).bits(0, 8);
    const auto read = kv::parseSequenceParameters(bytesOf(writer.payload()), false);
    QVERIFY(read);
    QCOMPARE(int(read->usability.aspectX), x);
    QCOMPARE(int(read->usability.aspectY), y);
}

void TestH264Headers::bufferModels()
{
    BitWriter writer = setData(parameterSets[1]);
    const auto read = kv::parseSequenceParameters(bytesOf(appendVui(writer).payload()), false);
    QVERIFY(read);
    QCOMPARE(read->usability.aspectX, 40u);
    QCOMPARE(read->usability.aspectY, 33u);
    // The second set of the NAL model: 2000 << (6 + 2) bit/s, 1500 << (4 + 3) bits.
    QCOMPARE(read->usability.bitRate, uint64_t(512000));
    QCOMPARE(read->usability.bufferSize, uint64_t(192000));
}

void TestH264Headers::onlyTheVclBufferModel()
{
    BitWriter writer = setData(parameterSets[1]);
    writer.bits(1, 1).bits(0, 6); // VUI up to the NAL buffer model, none of it
    writer.bits(1, 1).ue(0).bits(0, 4).bits(0, 4).ue(9).ue(19).bits(1, 1).bits(0, 20);
    writer.bits(0, 3);
    const auto read = kv::parseSequenceParameters(bytesOf(writer.payload()), false);
    QVERIFY(read);
    QCOMPARE(read->usability.bitRate, uint64_t(640));
    QCOMPARE(read->usability.bufferSize, uint64_t(320));
}

void TestH264Headers::constantRatesAreTold_data()
{
    QTest::addColumn<bool>("nal");
    QTest::addColumn<QList<bool>>("flags");
    QTest::addColumn<bool>("constant");
    using Flags = QList<bool>;
    QTest::newRow("NAL, intermittent") << true << Flags{false} << false;
    QTest::newRow("NAL, constant") << true << Flags{true} << true;
    QTest::newRow("VCL, constant") << false << Flags{true} << true;
    QTest::newRow("only the slower set is") << true << Flags{true, false} << false;
    QTest::newRow("only the faster set is") << true << Flags{false, true} << true;
}

void TestH264Headers::constantRatesAreTold()
{
    QFETCH(bool, nal);
    QFETCH(QList<bool>, flags);
    QFETCH(bool, constant);
    BitWriter writer = setData(parameterSets[1]);
    writer.bits(1, 1).bits(0, 5); // VUI up to the buffer models
    if (!nal) {
        writer.bits(0, 1);
    }
    writer.bits(1, 1).ue(static_cast<uint32_t>(flags.size()) - 1).bits(0, 8);
    for (int set = 0; set < flags.size(); ++set) {
        writer.ue(static_cast<uint32_t>(99 + set)).ue(199).bits(flags[set], 1);
    }
    writer.bits(0, 20);
    if (nal) {
        writer.bits(0, 1);
    }
    writer.bits(0, 3);
    const auto read = kv::parseSequenceParameters(bytesOf(writer.payload()), false);
    QVERIFY(read);
    QCOMPARE(read->usability.constantRate, constant);
}

void TestH264Headers::setsCutBeforeTheirVuiAreRefused()
{
    const QByteArray whole = setData(parameterSets[1]).bits(0, 1).payload();
    for (int length = 0; length < whole.size() - 1; ++length) {
        QVERIFY2(!kv::parseSequenceParameters(bytesOf(whole.left(length)), false),
                 qPrintable(QString::number(length)));
    }
    QVERIFY(kv::parseSequenceParameters(bytesOf(whole), false));
}

void TestH264Headers::aVuiThatRunsOverTheEndCostsNothingElse_data()
{
    QTest::addColumn<QByteArray>("payload");
    BitWriter cut = setData(parameterSets[1]);
    const auto before = cut.payload().size();
    const QByteArray whole = appendVui(cut).payload();
    for (auto length = before; length < whole.size() - 1; ++length) {
        QTest::addRow("%d bytes", int(length)) << whole.left(length);
    }
    BitWriter sets = setData(parameterSets[1]); // one more buffer set than there can be
    sets.bits(1, 1).bits(0, 5).bits(1, 1).ue(32).bits(0, 8);
    QTest::newRow("buffer sets") << sets.payload() + QByteArray(200, '\xff');
}

void TestH264Headers::aVuiThatRunsOverTheEndCostsNothingElse()
{
    QFETCH(QByteArray, payload);
    const auto read = kv::parseSequenceParameters(bytesOf(payload), false);
    QVERIFY(read);
    QCOMPARE(read->width, 1920u);
    QCOMPARE(read->height, 1080u);
    QCOMPARE(read->refFrames, 4u);
    QCOMPARE(read->usability.aspectX, 0u);
    QCOMPARE(read->usability.timeScale, 0u);
    QCOMPARE(read->usability.bitRate, uint64_t(0));
}

void TestH264Headers::impossibleSetsAreRefused_data()
{
    QTest::addColumn<QByteArray>("payload");
    const auto row = [](const char* name, void (*change)(Set&)) {
        Set set = parameterSets[1];
        change(set);
        QTest::newRow(name) << setData(set).bits(0, 1).payload();
    };
    row("chroma format", [](Set& set) { set.chroma = 4; });
    row("luma depth", [](Set& set) { set.lumaMinus8 = 7; });
    row("chroma depth", [](Set& set) { set.chromaMinus8 = 7; });
    row("frame number bits", [](Set& set) { set.frameNumMinus4 = 13; });
    row("references", [](Set& set) { set.references = 17; });
    row("width", [](Set& set) { set.columns = 0x10000; });
    row("height", [](Set& set) { set.mapRows = 0x7fffffff; });
    row("cropped to nothing", [](Set& set) { set.crop[0] = 960; });
    row("cropped to less", [](Set& set) { set.crop[3] = 0x7fffffff; });
    QTest::newRow("identifier") << BitWriter().bits(66, 8).bits(0, 16).ue(32).payload() +
                                       QByteArray(40, '\xff');
    QTest::newRow("endless code") << QByteArray("\x42\0\x0a", 3) + QByteArray(40, '\0');
}

void TestH264Headers::impossibleSetsAreRefused()
{
    QFETCH(QByteArray, payload);
    QVERIFY(!kv::parseSequenceParameters(bytesOf(payload), false));
}

void TestH264Headers::viewsOfSubsetParameterSets_data()
{
    QTest::addColumn<int>("profile");
    QTest::addColumn<uint>("views");
    QTest::addColumn<bool>("valid");
    QTest::newRow("Stereo High") << 128 << 2u << true;
    QTest::newRow("Multiview High, two") << 118 << 2u << true;
    QTest::newRow("Multiview High, eight") << 118 << 8u << true;
    QTest::newRow("as many as there can be") << 118 << 1024u << true;
    QTest::newRow("one more") << 118 << 1025u << false;
    QTest::newRow("a code's end") << 118 << 0x7fffffffu << false;
}

void TestH264Headers::viewsOfSubsetParameterSets()
{
    QFETCH(int, profile);
    QFETCH(uint, views);
    QFETCH(bool, valid);
    BitWriter writer = kvtest::subsetSequence(profile, 41, 120, 68);
    writer.bits(1, 1).ue(views - 1);
    const QByteArray unit = nalUnit(3, 15, writer.payload());
    kv::H264Scan scan;
    kv::forEachNalUnit(bytesOf(unit), 0, [&](const kv::NalUnit& found) { scan.visit(found); });
    QCOMPARE(scan.subset().has_value(), valid);
    QVERIFY(!scan.base());
    if (valid) {
        QCOMPARE(scan.subset()->views, views);
        QCOMPARE(int(scan.subset()->profile), profile);
    }
}

void TestH264Headers::viewsBehindAVui()
{
    Set set = parameterSets[1];
    set.profile = 128;
    BitWriter writer = setData(set);
    appendVui(writer).bits(1, 1).ue(1);
    const auto read = kv::parseSequenceParameters(bytesOf(writer.payload()), true);
    QVERIFY(read);
    QCOMPARE(read->views, 2u);
}

void TestH264Headers::onlySubsetSetsOfMultiviewProfilesTellViews()
{
    kv::H264Scan scan;
    // Scalable profiles use the same unit type (Annex G) with an extension of their own.
    BitWriter scalable = kvtest::subsetSequence(83, 41, 120, 68);
    scalable.bits(1, 1).ue(5);
    for (const QByteArray& unit :
         {nalUnit(3, 15, scalable.payload()), kvtest::subsetParameterSet(118, 41, 3),
          kvtest::subsetParameterSet(118, 41, 2)}) {
        kv::forEachNalUnit(bytesOf(unit), 0, [&](const kv::NalUnit& found) { scan.visit(found); });
    }
    QVERIFY(scan.subset());
    QCOMPARE(scan.subset()->views, 3u);
}

void TestH264Headers::theFirstSetDescribesTheBaseView()
{
    const QByteArray stream = nalUnit(3, 7, setData(parameterSets[1]).bits(0, 1).payload()) +
                              nalUnit(3, 7, setData(parameterSets[0]).bits(0, 1).payload());
    kv::H264Scan scan;
    kv::forEachNalUnit(bytesOf(stream), 0, [&](const kv::NalUnit& unit) { scan.visit(unit); });
    QVERIFY(scan.base());
    QCOMPARE(scan.base()->width, 1920u);
    QCOMPARE(scan.base()->height, 1080u);
}

void TestH264Headers::emulationPreventionIsRemoved_data()
{
    QTest::addColumn<QByteArray>("coded");
    QTest::addColumn<QByteArray>("plain");
    const auto row = [](const char* name, const char* coded, const char* plain) {
        QTest::newRow(name) << QByteArray::fromHex(coded) << QByteArray::fromHex(plain);
    };
    row("none", "0102000200", "0102000200");
    row("one", "00000301", "000001");
    row("two", "0000030000030000", "000000000000");
    row("a three that stays", "00030003", "00030003");
    row("a three behind a removed one", "0000030300000303", "000003000003");
    row("at the end", "000003", "0000");
}

void TestH264Headers::emulationPreventionIsRemoved()
{
    QFETCH(QByteArray, coded);
    QFETCH(QByteArray, plain);
    const auto result = kv::withoutEmulationPrevention(bytesOf(coded), 100);
    QCOMPARE(QByteArray(reinterpret_cast<const char*>(result.data()), int(result.size())), plain);
}

void TestH264Headers::unitsAreFoundBetweenStartCodes_data()
{
    QTest::addColumn<QByteArray>("stream");
    QTest::addColumn<QList<QByteArray>>("units");
    const auto row = [](const char* name, const char* stream, const QList<QByteArray>& units) {
        QTest::newRow(name) << QByteArray::fromHex(stream) << units;
    };
    row("nothing", "", {});
    row("no start code", "0102030405", {});
    row("short code", "0000016701", {QByteArray("\x67\x01")});
    row("long code", "0000000167010000000168ff", {"\x67\x01", "\x68\xff"});
    row("zeros behind a unit", "000001670100000000000168", {"\x67\x01", "\x68"});
    row("empty units", "00000100000100000167", {"\x67"});
    row("bytes before the first", "aabb00000167", {"\x67"});
    row("code at the end", "00000167000001", {"\x67"});
}

void TestH264Headers::unitsAreFoundBetweenStartCodes()
{
    QFETCH(QByteArray, stream);
    QFETCH(QList<QByteArray>, units);
    QList<QByteArray> found;
    kv::forEachNalUnit(bytesOf(stream), 0, [&](const kv::NalUnit& unit) {
        found.append(
            QByteArray(reinterpret_cast<const char*>(unit.head.data()), int(unit.head.size())));
    });
    QCOMPARE(found, units);
}

void TestH264Headers::unitsAreFoundByTheirLengths_data()
{
    QTest::addColumn<QByteArray>("stream");
    QTest::addColumn<int>("lengthSize");
    QTest::addColumn<QList<QByteArray>>("units");
    const auto row = [](const char* name, const char* stream, int size,
                        const QList<QByteArray>& units) {
        QTest::newRow(name) << QByteArray::fromHex(stream) << size << units;
    };
    row("four bytes", "0000000267010000000168", 4, {"\x67\x01", "\x68"});
    row("two bytes",
        "000267010001"
        "68",
        2, {"\x67\x01", "\x68"});
    row("one byte", "0267010168", 1, {"\x67\x01", "\x68"});
    row("empty unit",
        "0000000000000001"
        "68",
        4, {"\x68"});
    row("longer than the rest", "ffffffff6701", 4, {"\x67\x01"});
    row("cut length", "000000", 4, {});
}

void TestH264Headers::unitsAreFoundByTheirLengths()
{
    QFETCH(QByteArray, stream);
    QFETCH(int, lengthSize);
    QFETCH(QList<QByteArray>, units);
    QList<QByteArray> found;
    kv::forEachNalUnit(bytesOf(stream), lengthSize, [&](const kv::NalUnit& unit) {
        found.append(
            QByteArray(reinterpret_cast<const char*>(unit.head.data()), int(unit.head.size())));
    });
    QCOMPARE(found, units);
}

void TestH264Headers::fieldSlicesAreToldFromFrames_data()
{
    QTest::addColumn<int>("set");
    QTest::addColumn<bool>("fieldFlag");
    QTest::addColumn<bool>("fields");
    QTest::newRow("interlaced, field") << 2 << true << true;
    QTest::newRow("interlaced, frame") << 2 << false << false;
    QTest::newRow("MBAFF, frame") << 3 << false << false;
    QTest::newRow("progressive has no such flag") << 1 << true << false;
}

void TestH264Headers::fieldSlicesAreToldFromFrames()
{
    QFETCH(int, set);
    QFETCH(bool, fieldFlag);
    QFETCH(bool, fields);
    const int frameNumBits = int(4 + parameterSets[set].frameNumMinus4);
    const QByteArray stream =
        nalUnit(3, 7, setData(parameterSets[set]).bits(0, 1).payload()) +
        kvtest::pictureParameterSet(2, 3) +
        nalUnit(2, 1,
                BitWriter().ue(0).ue(5).ue(2).bits(0, frameNumBits).bits(fieldFlag, 1).payload() +
                    QByteArray(10, '\x7f'));
    kv::H264Scan scan;
    kv::forEachNalUnit(bytesOf(stream), 0, [&](const kv::NalUnit& unit) { scan.visit(unit); });
    QVERIFY(scan.base());
    QCOMPARE(scan.basePictures().hasFields(), fields);
}

void TestH264Headers::bytesAreCountedByView()
{
    const QByteArray stream =
        nalUnit(2, 1, QByteArray(299, '\x55')) + nalUnit(2, 20, QByteArray(99, '\x55'));
    kv::H264Scan scan;
    QCOMPARE(scan.dependentShare(), 0.0);
    kv::forEachNalUnit(bytesOf(stream), 0, [&](const kv::NalUnit& unit) { scan.visit(unit); });
    QCOMPARE(scan.dependentShare(), 0.25);
}

void TestH264Headers::noiseDoesNoHarm()
{
    std::mt19937 random(7);
    BitWriter writer = setData(parameterSets[1]);
    const QByteArray set = nalUnit(3, 7, appendVui(writer).payload()) +
                           kvtest::subsetParameterSet(128, 41, 2) +
                           kvtest::pictureParameterSet(0, 3);
    for (int round = 0; round < 20000; ++round) {
        QByteArray stream = set;
        for (int change = 0; change < 1 + round % 8; ++change) {
            stream[int(random() % unsigned(stream.size()))] = static_cast<char>(random());
        }
        kv::H264Scan scan;
        for (const int lengthSize : {0, 1, 2, 4}) {
            kv::forEachNalUnit(bytesOf(stream), lengthSize,
                               [&](const kv::NalUnit& unit) { scan.visit(unit); });
        }
        if (scan.base()) {
            QVERIFY(scan.base()->width > 0 && scan.base()->refFrames <= 16);
        }
        if (scan.subset()) {
            QVERIFY(scan.subset()->views >= 1 && scan.subset()->views <= 1024);
        }
    }
}

} // namespace

QTEST_APPLESS_MAIN(TestH264Headers)
#include "tst_h264_headers.moc"
