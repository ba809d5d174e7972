#include "ExampleSettings.h"
#include "HostProgram.h"
#include "SettingsLedger.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

class TestHostDiff : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sameSettingsPrintNothing();
    void changesArePrintedOneALine();
    void everyFieldIsSeen();
    void reservedBytesAreSeen_data();
    void reservedBytesAreSeen();
    void jsonListsTheDifferences();
};

namespace
{

const QString a = QStringLiteral("a.ini");
const QString b = QStringLiteral("b.ini");

HostProgram::Result diff(const KvMvcSettings& before, const KvMvcSettings& after,
                         const QStringList& options = {})
{
    const HostProgram program;
    program.writeSettings(a, before);
    program.writeSettings(b, after);
    return program.run(QStringList{QStringLiteral("diff"), a, b} + options);
}

KvMvcSettings changedSettings()
{
    KvMvcSettings settings = exampleSettings();
    settings.num_views = 1;
    settings.split_views = 1;
    settings.views[0].width = 1440;
    settings.views[0].frame_rate = 23.976;
    settings.views[0].bitrate_buffer = 4000000;
    settings.views[0].reserved_16[3] = 1;
    settings.views[1].interlace_mode = KV_MVC_PROGRESSIVE;
    settings.views[1].vbv_initial = 60000;
    settings.views[1].bitrate_mode = 9;
    settings.views[1].reserved_5504[0] = 1;
    settings.views[1].reserved_5504[2811] = 1;
    return settings;
}

} // namespace

void TestHostDiff::sameSettingsPrintNothing()
{
    const HostProgram::Result result = diff(exampleSettings(), exampleSettings());
    QCOMPARE(result.output, QString());
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
}

void TestHostDiff::changesArePrintedOneALine()
{
    const HostProgram::Result result = diff(exampleSettings(), changedSettings());
    QCOMPARE(result.output,
             QStringLiteral("Number of additional views: 1 -> 0\n"
                            "Split views: off -> on\n"
                            "Picture width, base view: 1920 -> 1440\n"
                            "Frame rate, base view: 23.976 (24000/1001) -> 23.976\n"
                            "Bitrate buffer, base view: 3750000 bytes -> 4000000 bytes\n"
                            "Reserved bytes, base view: 1 differ\n"
                            "Picture structure, view 1: MBAFF -> Progressive\n"
                            "Bitrate mode, view 1: Constant Bitrate -> 9 (unknown)\n"
                            "VBV buffer initial, view 1: 54000 ticks of 90 kHz -> 60000 "
                            "ticks of 90 kHz\n"
                            "Reserved bytes, view 1: 2 differ\n"));
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 1);
}

void TestHostDiff::everyFieldIsSeen()
{
    KvMvcSettings before = {};
    KvMvcSettings after = {};
    for (const ledger::Setting& setting : ledger::settings()) {
        ledger::put(after, setting, 0, 1);
        ledger::put(after, setting, 1, 1);
    }
    const HostProgram::Result result = diff(before, after);
    QStringList found;
    for (const QString& line : result.output.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        found += line.section(QStringLiteral(": "), 0, 0);
    }
    QStringList wanted;
    for (const ledger::Setting& setting : ledger::settings()) {
        if (setting.isOfRecord()) {
            wanted += setting.name();
            continue;
        }
        wanted += setting.name() + QStringLiteral(", base view");
        wanted += setting.name() + QStringLiteral(", view 1");
    }
    found.sort();
    wanted.sort();
    QCOMPARE(found, wanted);
    QCOMPARE(result.exitCode, 1);
}

void TestHostDiff::reservedBytesAreSeen_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("line");

    const auto row = [](int offset, int size, const QString& place) {
        QTest::newRow(qPrintable(QStringLiteral("%1 in the record").arg(offset)))
            << offset << size
            << QStringLiteral("Reserved bytes%1: %2 differ\n").arg(place).arg(size);
    };
    row(ledger::recordReserved.offset, ledger::recordReserved.size, {});
    for (const ledger::ReservedRange& range : ledger::viewReserved()) {
        row(256 + range.offset, range.size, QStringLiteral(", base view"));
        row(256 + 8316 + range.offset, range.size, QStringLiteral(", view 1"));
    }
}

void TestHostDiff::reservedBytesAreSeen()
{
    QFETCH(int, offset);
    QFETCH(int, size);
    QFETCH(QString, line);
    KvMvcSettings after = exampleSettings();
    std::memset(reinterpret_cast<char*>(&after) + offset, 0x55, static_cast<std::size_t>(size));
    const HostProgram::Result result = diff(exampleSettings(), after);
    QCOMPARE(result.output, line);
    QCOMPARE(result.exitCode, 1);
}

void TestHostDiff::jsonListsTheDifferences()
{
    const QStringList json = {QStringLiteral("--json")};
    HostProgram::Result result = diff(exampleSettings(), exampleSettings(), json);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(QJsonDocument::fromJson(result.output.toUtf8()),
             QJsonDocument::fromJson(
                 R"json({"format_version": 1, "same": true, "differences": []})json"));

    KvMvcSettings after = exampleSettings();
    after.num_views = 1;
    after.views[0].frame_rate = 25;
    after.views[1].level = 100;
    after.views[1].reserved_16[0] = 1;
    result = diff(exampleSettings(), after, json);
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.error, QString());
    QCOMPARE(QJsonDocument::fromJson(result.output.toUtf8()), QJsonDocument::fromJson(R"json({
        "format_version": 1,
        "same": false,
        "differences": [
            {"setting": "num_views", "name": "Number of additional views", "view": null,
             "a": {"value": 2, "text": "1"}, "b": {"value": 1, "text": "0"}},
            {"setting": "frame_rate", "name": "Frame rate", "view": 0,
             "a": {"value": 23.976023976023978, "text": "23.976 (24000/1001)"},
             "b": {"value": 25, "text": "25"}},
            {"setting": "level", "name": "Level", "view": 1,
             "a": {"value": 41, "text": "4.1"}, "b": {"value": 100, "text": "Auto"}},
            {"setting": null, "name": "Reserved bytes", "view": 1, "bytes": 1}]})json"));
}

QTEST_GUILESS_MAIN(TestHostDiff)
#include "tst_host_diff.moc"
