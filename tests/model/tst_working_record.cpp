#include "Noise.h"

#include "model/FurtherViews.h"
#include "model/SettingsToState.h"

#include <QTest>

#include <climits>
#include <cstring>

/// The dialog's working storage: the record and, directly behind it, two further view slots.
class TestWorkingRecord : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void slotsLieAtOneStride_data();
    void slotsLieAtOneStride();
    void recordComesFirst();
    void countReachesFourSlotsAtMost_data();
    void countReachesFourSlotsAtMost();
    void countFromOutsideIsKept_data();
    void countFromOutsideIsKept();
    void recordCopiedInAndOutWithoutEditIsUnchanged();
    void furtherSlotsAreNoPartOfTheRecord();
    void resetFurtherViewsAreLikeTheSecond();
    void followingViewsKeepTheirRateControlOnly();
    void twoViewsShowOneAdditionalView();
    void frameRateOfZeroShows0();
};

namespace
{

void addCounts()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("reached");
    QTest::newRow("INT_MIN") << INT_MIN << 0;
    QTest::newRow("-1") << -1 << 0;
    QTest::newRow("0") << 0 << 0;
    QTest::newRow("1") << 1 << 1;
    QTest::newRow("2") << 2 << 2;
    QTest::newRow("3") << 3 << 3;
    QTest::newRow("4") << 4 << 4;
    QTest::newRow("5") << 5 << 4;
    QTest::newRow("INT_MAX") << INT_MAX << 4;
}

} // namespace

void TestWorkingRecord::slotsLieAtOneStride_data()
{
    QTest::addColumn<int>("view");
    QTest::addColumn<int>("position");
    QTest::newRow("view 0") << 0 << 256;
    QTest::newRow("view 1") << 1 << 8572;
    QTest::newRow("view 2") << 2 << 16888;
    QTest::newRow("view 3") << 3 << 25204;
}

void TestWorkingRecord::slotsLieAtOneStride()
{
    QFETCH(int, view);
    QFETCH(int, position);
    WorkingRecord record;
    const auto* const start = reinterpret_cast<const char*>(&record);
    QCOMPARE(int(reinterpret_cast<const char*>(&record.view(view)) - start), position);
    const WorkingRecord& constant = record;
    QCOMPARE(&constant.view(view), &record.view(view));
}

void TestWorkingRecord::recordComesFirst()
{
    const WorkingRecord record;
    QCOMPARE(static_cast<const void*>(&record.settings), static_cast<const void*>(&record));
    QCOMPARE(int(sizeof record.settings), 16888);
    QCOMPARE(int(sizeof record.view(0)), 8316);
    QCOMPARE(int(sizeof record), 33520);
}

void TestWorkingRecord::countReachesFourSlotsAtMost_data()
{
    addCounts();
}

void TestWorkingRecord::countReachesFourSlotsAtMost()
{
    QFETCH(int, count);
    QFETCH(int, reached);
    const WorkingRecord before = noisyRecord(count);
    QCOMPARE(before.viewCount(), reached);

    Cells cells;
    for (int view = 0; view < reached; ++view) {
        cells += {view, 24, 720};
    }
    QCOMPARE(changedBy(oneEntry("Horizontal Size", 720), before), expected(before, cells));
}

void TestWorkingRecord::countFromOutsideIsKept_data()
{
    addCounts();
}

void TestWorkingRecord::countFromOutsideIsKept()
{
    QFETCH(int, count);
    WorkingRecord record = noisyRecord(count);
    apply(oneEntry("Threads", 4), record);
    QCOMPARE(int(record.settings.num_views), count);
}

void TestWorkingRecord::recordCopiedInAndOutWithoutEditIsUnchanged()
{
    KvMvcSettings given;
    const WorkingRecord noise = noisyRecord(2);
    std::memcpy(&given, &noise, sizeof given);

    WorkingRecord working;
    working.settings = given;
    const Vocabulary vocabulary;
    for (int view = 0; view < 2; ++view) {
        describeBasic(vocabulary, 0, working.view(view));
        describeAdvanced(vocabulary, 0, working.view(view));
    }
    describeViews(vocabulary, 0, working);
    const KvMvcSettings returned = working.settings;
    QVERIFY(std::memcmp(&returned, &noise, sizeof returned) == 0);
}

void TestWorkingRecord::furtherSlotsAreNoPartOfTheRecord()
{
    WorkingRecord record = noisyRecord(2);
    const KvMvcSettings before = record.settings;
    apply(oneEntry("Target Bitrate V2", 1), record);
    apply(oneEntry("Bitrate Mode V3", QStringLiteral("Constant Bitrate")), record);
    QVERIFY(std::memcmp(&before, &record.settings, sizeof before) == 0);
}

void TestWorkingRecord::resetFurtherViewsAreLikeTheSecond()
{
    WorkingRecord record = noisyRecord(2);
    const QByteArray before = bytesOf(record);
    resetFurtherViews(record);
    const QByteArray after = bytesOf(record);
    QVERIFY(after.left(16888) == before.left(16888));
    QVERIFY(after.mid(16888, 8316) == before.mid(8572, 8316));
    QVERIFY(after.mid(25204, 8316) == before.mid(8572, 8316));
}

void TestWorkingRecord::followingViewsKeepTheirRateControlOnly()
{
    WorkingRecord record = noisyRecord(2);
    const QByteArray before = bytesOf(record);
    QByteArray expected = before.left(16888);
    for (const int view : {2, 3}) {
        QByteArray bytes = before.mid(8572, 8316);
        for (const ledger::Setting& setting : ledger::settings()) {
            if (setting.isOfEachView()) {
                bytes.replace(setting.offset, 4, before.mid(setting.position(view), 4));
            }
        }
        expected += bytes;
    }
    followSecondView(record);
    QCOMPARE(differences(expected, bytesOf(record)), QStringList());
    QVERIFY(!differences(before, expected).isEmpty());
}

void TestWorkingRecord::twoViewsShowOneAdditionalView()
{
    const WorkingRecord record = noisyRecord(2);
    QCOMPARE(describeViews(Vocabulary(), 0, record).value(QStringLiteral("Number of views")),
             QVariant(1));
}

void TestWorkingRecord::frameRateOfZeroShows0()
{
    WorkingRecord record = noisyRecord(1);
    put(record, {{0, 32, 0.0}});
    QCOMPARE(
        describeBasic(Vocabulary(), 0, record.view(0)).state.value(QStringLiteral("Frame Rate")),
        QVariant(QStringLiteral("0")));
}

QTEST_APPLESS_MAIN(TestWorkingRecord)
#include "tst_working_record.moc"
