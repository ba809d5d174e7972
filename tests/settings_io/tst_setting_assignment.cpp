// Single settings by their text: which views they go to, and what is said about wrong ones.
#include "SettingsLedger.h"
#include "SettingsLibrary.h"

#include <setting_assignment.h>

#include <QTest>

using kvtest::filledRecord;
using kvtest::same;

namespace
{

class TestSettingAssignment : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySettingIsSetInItsView_data();
    void everySettingIsSetInItsView();
    void valuesAreThoseOfSettingsFiles_data();
    void valuesAreThoseOfSettingsFiles();
    void wrongOnesTellWhyAndChangeNothing_data();
    void wrongOnesTellWhyAndChangeNothing();
    void theLibraryHandsItOut();
};

void TestSettingAssignment::everySettingIsSetInItsView_data()
{
    QTest::addColumn<QString>("member");
    for (const ledger::Setting& setting : ledger::settings()) {
        const QString member = QString::fromLatin1(setting.member);
        if (!member.startsWith(QStringLiteral("bit_depth_"))) { // they have no 1
            QTest::newRow(setting.member) << member;
        }
    }
}

void TestSettingAssignment::everySettingIsSetInItsView()
{
    QFETCH(QString, member);
    const ledger::Setting& setting = ledger::setting(member);
    const KvMvcSettings before = filledRecord(0x5A);
    const std::string assignment = member.toStdString() + "=1";
    const double one = setting.is("level") ? 10 : 1; // level 1 has the code 10
    KvMvcSettings expected = before;
    ledger::put(expected, setting, 0, one);
    if (!setting.isOfRecord()) {
        KvMvcSettings changed = before;
        QCOMPARE(kv::assignSetting("view0." + assignment, changed), std::string());
        QVERIFY(same(changed, expected));

        KvMvcSettings second = before;
        ledger::put(second, setting, 1, one);
        changed = before;
        QCOMPARE(kv::assignSetting("view1." + assignment, changed), std::string());
        QVERIFY(same(changed, second));
        ledger::put(expected, setting, 1, one);
    }
    KvMvcSettings changed = before;
    QCOMPARE(kv::assignSetting(assignment, changed), std::string());
    QVERIFY(same(changed, expected));
}

void TestSettingAssignment::valuesAreThoseOfSettingsFiles_data()
{
    QTest::addColumn<QByteArray>("assignment");
    QTest::addColumn<QString>("member");
    QTest::addColumn<double>("value");
    const auto row = [](const char* assignment, const char* member, double value) {
        QTest::newRow(assignment) << QByteArray(assignment) << QString::fromLatin1(member) << value;
    };
    row("frame_rate=24000/1001", "frame_rate", 24000 / 1001.0);
    row("view0.frame_rate = 24000 / 1001", "frame_rate", 24000 / 1001.0);
    row("frame_rate=59.94", "frame_rate", 60000 / 1001.0);
    row("bitrate=20M", "bitrate", 20000000);
    row("view0.bitrate_buffer = 1.5 k", "bitrate_buffer", 1500);
    row("profile=High 10", "profile", 4);
    row("profile=high 4:2:2", "profile", 5);
    row("level=auto", "level", 100);
    row("bit_depth_luma=10 bits", "bit_depth_luma", 10);
    row("bit_depth_chroma=8", "bit_depth_chroma", 8);
    row("brightness=-100", "brightness", -100);
    row("num_threads=Auto", "num_threads", 0);
    row("num_views=2", "num_views", 2);
}

void TestSettingAssignment::valuesAreThoseOfSettingsFiles()
{
    QFETCH(QByteArray, assignment);
    QFETCH(QString, member);
    QFETCH(double, value);
    KvMvcSettings settings = filledRecord(0x5A);
    QCOMPARE(kv::assignSetting(assignment.toStdString(), settings), std::string());
    QCOMPARE(ledger::get(settings, ledger::setting(member), 0), value);
}

void TestSettingAssignment::wrongOnesTellWhyAndChangeNothing_data()
{
    QTest::addColumn<QByteArray>("assignment");
    QTest::addColumn<QByteArray>("reason");
    const auto row = [](const char* assignment, const char* reason) {
        QTest::newRow(assignment) << QByteArray(assignment) << QByteArray(reason);
    };
    row("width", "no KEY=VALUE: 'width'");
    row("", "no KEY=VALUE: ''");
    row("=1", "unknown setting ''");
    row("widht=1", "unknown setting 'widht'; did you mean 'width'?");
    row("Width=1", "unknown setting 'Width'; did you mean 'width'?");
    row("view0.widht=1", "unknown setting 'view0.widht'; did you mean 'view0.width'?");
    row("view2.width=1", "unknown setting 'view2.width'; did you mean 'view1.width'?");
    row("view1width=1", "unknown setting 'view1width'; did you mean 'view1.width'?");
    row("view0.num_views=1", "unknown setting 'view0.num_views'; did you mean 'num_views'?");
    row("views=2", "unknown setting 'views'; did you mean 'num_views'?");
    row("gamma=2", "unknown setting 'gamma'");
    row("width=", "bad value '' for 'width': expected a whole number of 32 bits");
    row("view1.width=20M", "bad value '20M' for 'view1.width': expected a whole number of 32 bits");
    row("pulldown=3", "bad value '3' for 'pulldown': expected off, 2:3, 3:2, 2:3 progressive, 3:2 "
                      "progressive, auto, 2:2 or 3:3");
    row("frame_rate=a/b", "bad value 'a/b' for 'frame_rate': expected a number, a fraction or a "
                          "bit pattern");
}

void TestSettingAssignment::wrongOnesTellWhyAndChangeNothing()
{
    QFETCH(QByteArray, assignment);
    QFETCH(QByteArray, reason);
    KvMvcSettings settings = filledRecord(0x5A);
    QCOMPARE(QByteArray::fromStdString(kv::assignSetting(assignment.toStdString(), settings)),
             reason);
    QVERIFY(same(settings, filledRecord(0x5A)));
}

void TestSettingAssignment::theLibraryHandsItOut()
{
    const kvtest::SettingsLibrary library;
    const auto set = reinterpret_cast<KvMvcSetSetting>(library.getApi()(8449));
    QVERIFY(set);
    KvMvcSettings settings = filledRecord(0);
    int result = -1;
    QByteArray said = kvtest::standardErrorOf([&] { result = set(&settings, "width=64"); });
    QCOMPARE(result, 0);
    QCOMPARE(said, QByteArray());
    QCOMPARE(settings.views[0].width, 64);
    QCOMPARE(settings.views[1].width, 64);

    said = kvtest::standardErrorOf([&] { result = set(&settings, "height=x"); });
    QVERIFY(result != 0);
    QCOMPARE(said, QByteArray("bad value 'x' for 'height': expected a whole number of 32 bits\n"));
    QVERIFY(set(nullptr, "width=1") != 0);
    QVERIFY(set(&settings, nullptr) != 0);
}

} // namespace

QTEST_APPLESS_MAIN(TestSettingAssignment)
#include "tst_setting_assignment.moc"
