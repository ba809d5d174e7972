#include "ExampleSettings.h"
#include "HostProgram.h"
#include "RecordFields.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>

#include <limits>

class HostShowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tableShowsBothViewsSideBySide();
    void valuesHaveNames_data();
    void valuesHaveNames();
    void jsonHoldsEveryField();
    void frameRatesWithoutANumberAreNull_data();
    void frameRatesWithoutANumberAreNull();
    void frameRatesKeepTheirDigits_data();
    void frameRatesKeepTheirDigits();
    void namesBeyondAsciiAreOpened();
};

namespace
{

const QString fileName = QStringLiteral("a.ini");

QJsonObject shownJson(const HostProgram& program)
{
    const HostProgram::Result result =
        program.run({QStringLiteral("show"), QStringLiteral("--json"), fileName});
    if (result.exitCode != 0 || !result.error.isEmpty()) {
        qWarning("%s", qPrintable(result.error));
    }
    return QJsonDocument::fromJson(result.output.toUtf8()).object();
}

QJsonObject viewOf(const QJsonObject& shown, int view)
{
    return shown[QStringLiteral("views")].toArray().at(view).toObject();
}

QString textOf(const QJsonObject& object, QLatin1String key)
{
    return object[key].toObject()[QStringLiteral("text")].toString();
}

double valueOf(const QJsonObject& object, QLatin1String key)
{
    return object[key].toObject()[QStringLiteral("value")].toDouble(-12345);
}

} // namespace

void HostShowTest::tableShowsBothViewsSideBySide()
{
    const HostProgram program;
    program.writeSettings(fileName, exampleSettings());
    const HostProgram::Result result = program.run({QStringLiteral("show"), fileName});
    QFile golden(QStringLiteral(KV_GOLDEN_DIR "/show.txt"));
    QVERIFY(golden.open(QIODevice::ReadOnly | QIODevice::Text));
    const QStringList expected = QString::fromUtf8(golden.readAll()).split(QLatin1Char('\n'));
    const QStringList lines = result.output.split(QLatin1Char('\n'));
    for (int line = 0; line < std::min(lines.size(), expected.size()); ++line) {
        QCOMPARE(lines.at(line), expected.at(line));
    }
    QCOMPARE(lines.size(), expected.size());
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
}

void HostShowTest::valuesHaveNames_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");

    struct Row {
        const char* key;
        int value;
        const char* text;
    };
    static const Row rows[] = {
        {"profile", 0, "Baseline"},
        {"profile", 1, "Main"},
        {"profile", 2, "2 (unknown)"},
        {"profile", 3, "High"},
        {"profile", 4, "High 10"},
        {"profile", 5, "High 422"},
        {"level", 10, "1.0"},
        {"level", 11, "1.1"},
        {"level", 12, "1.2"},
        {"level", 13, "1.3"},
        {"level", 14, "14 (unknown)"},
        {"level", 16, "1.6"},
        {"level", 20, "2.0"},
        {"level", 21, "2.1"},
        {"level", 22, "2.2"},
        {"level", 30, "3.0"},
        {"level", 31, "3.1"},
        {"level", 32, "3.2"},
        {"level", 40, "4.0"},
        {"level", 41, "4.1"},
        {"level", 42, "4.2"},
        {"level", 50, "5.0"},
        {"level", 51, "5.1"},
        {"level", 52, "5.2"},
        {"level", 100, "Auto"},
        {"video_type", 0, "None"},
        {"video_type", 1, "Multivew High"},
        {"video_type", 2, "Stereo High"},
        {"video_type", 3, "Blu-ray 3D"},
        {"video_type", 4, "4 (unknown)"},
        {"interlace_mode", 0, "Progressive"},
        {"interlace_mode", 1, "Interlaced"},
        {"interlace_mode", 2, "MBAFF"},
        {"field_order", 0, "Top Field First"},
        {"field_order", 1, "Bot Field First"},
        {"pulldown", 0, "Off"},
        {"pulldown", 1, "2:3"},
        {"pulldown", 2, "3:2"},
        {"pulldown", 3, "3 (unknown)"},
        {"pulldown", 4, "2:3 P"},
        {"pulldown", 5, "3:2 P"},
        {"pulldown", 6, "Auto"},
        {"pulldown", 7, "2:2"},
        {"pulldown", 8, "3:3"},
        {"chroma_format", 0, "0 (unknown)"},
        {"chroma_format", 1, "4:0:0"},
        {"chroma_format", 2, "4:2:0"},
        {"chroma_format", 3, "4:2:2"},
        {"chroma_format", 4, "unnamed format"},
        {"bitrate_mode", 0, "Constant Bitrate"},
        {"bitrate_mode", 1, "Const. Quality - Constant Quantizer"},
        {"bitrate_mode", 2, "Variable Bitrate"},
        {"bitrate_mode", 3, "Const. Quality - Average Quantizer"},
        {"bitrate_units", 0, "Bytes and percent"},
        {"bitrate_units", 1, "Bits"},
        {"bitrate_units", 2, "Bits and 90 kHz"},
        {"min_partition", 0, "16 x 16"},
        {"min_partition", 1, "8 x 8"},
        {"subpixel_mode", 0, "Full"},
        {"subpixel_mode", 1, "Half"},
        {"subpixel_mode", 2, "Quarter"},
        {"entropy_mode", 0, "CAVLC"},
        {"entropy_mode", 1, "CABAC"},
        {"display_aspect_x", -1, "Custom"},
        {"display_aspect_y", -1, "Custom"},
        {"display_aspect_y", 9, "9"},
        {"pixel_aspect_x", -1, "derived"},
        {"pixel_aspect_y", -1, "derived"},
        {"pixel_aspect_y", 11, "11"},
        {"i_interval", 0, "0 (first only)"},
        {"i_interval", 1, "1"},
        {"ref_distance", 1, "0"},
        {"ref_distance", 3, "2"},
        {"ref_distance", 0, "-1"},
        {"ref_distance", -2147483647 - 1, "-2147483649"},
        {"bit_depth_luma", 8, "8 bits"},
        {"bit_depth_chroma", 10, "10 bits"},
        {"idr_marker", 0, "0 (first only)"},
        {"num_threads", 0, "Auto"},
        {"frame_size_i", 0, "0 (no limit)"},
        {"frame_size_p", 0, "0 (no limit)"},
        {"frame_size_b", 0, "0 (no limit)"},
        {"frame_size_bref", 0, "0 (no limit)"},
        {"frame_size_bref", 1, "1 bytes"},
        {"bitrate", 2147483647, "2147483647"},
        {"max_bitrate", -1, "-1"},
        {"deblocking", 0, "off"},
        {"deblocking", 1, "on"},
        {"deblocking", 2, "2 (unknown)"},
    };
    for (const Row& row : rows) {
        const QString key = QString::fromLatin1(row.key);
        QTest::newRow(qPrintable(QStringLiteral("%1 %2").arg(key).arg(row.value)))
            << key << row.value << QString::fromLatin1(row.text);
    }
}

void HostShowTest::valuesHaveNames()
{
    QFETCH(QString, key);
    QFETCH(int, value);
    QFETCH(QString, text);
    KvMvcSettings settings = exampleSettings();
    setField(settings, 1, fieldOffset(key), value);
    const HostProgram program;
    program.writeSettings(fileName, settings);
    const QJsonObject second = viewOf(shownJson(program), 1);
    QCOMPARE(second[key].toObject()[QStringLiteral("text")].toString(), text);
    QCOMPARE(second[key].toObject()[QStringLiteral("value")].toInt(), value);
}

void HostShowTest::jsonHoldsEveryField()
{
    KvMvcSettings settings = {};
    settings.num_views = 1001;
    settings.split_views = 1002;
    int value = 2000;
    for (const RecordField& field : viewFields) {
        setField(settings, 0, field.offset, value);
        setField(settings, 1, field.offset, value + 1000);
        ++value;
    }
    settings.views[0].frame_rate = 12.5;
    settings.views[1].frame_rate = 48;

    const HostProgram program;
    program.writeSettings(fileName, settings);
    const QJsonObject shown = shownJson(program);
    QCOMPARE(shown.keys(), QStringList({QStringLiteral("num_views"), QStringLiteral("split_views"),
                                        QStringLiteral("views")}));
    QCOMPARE(valueOf(shown, QLatin1String("num_views")), 1001.0);
    QCOMPARE(valueOf(shown, QLatin1String("split_views")), 1002.0);
    QCOMPARE(shown[QStringLiteral("views")].toArray().size(), 2);
    for (int view = 0; view < 2; ++view) {
        const QJsonObject object = viewOf(shown, view);
        // And the frame rate, which is no whole number.
        QCOMPARE(object.size(), static_cast<int>(std::size(viewFields)) + 1);
        value = 2000 + 1000 * view;
        for (const RecordField& field : viewFields) {
            QVERIFY2(valueOf(object, QLatin1String(field.name)) == value, field.name);
            ++value;
        }
    }
    QCOMPARE(valueOf(viewOf(shown, 0), QLatin1String("frame_rate")), 12.5);
    QCOMPARE(valueOf(viewOf(shown, 1), QLatin1String("frame_rate")), 48.0);
}

void HostShowTest::frameRatesKeepTheirDigits_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* text, double rate) {
        QTest::newRow(text) << rate << QString::fromLatin1(text);
    };
    row("not set", 0.0);
    row("7.6", 7.6);
    row("12.5", 12.5);
    row("23.976 (24000/1001)", 24000.0 / 1001.0);
    row("23.976", 23.976);
    row("24", 24.0);
    row("29.97 (30000/1001)", 30000.0 / 1001.0);
    row("29.97", 29.97);
    row("50", 50.0);
    row("59.94 (60000/1001)", 60000.0 / 1001.0);
    row("0.1", 0.1);
    row("-1", -1.0);
}

void HostShowTest::frameRatesKeepTheirDigits()
{
    QFETCH(double, rate);
    QFETCH(QString, text);
    KvMvcSettings settings = exampleSettings();
    settings.views[1].frame_rate = rate;
    const HostProgram program;
    program.writeSettings(fileName, settings);
    const QJsonObject second = viewOf(shownJson(program), 1);
    QCOMPARE(textOf(second, QLatin1String("frame_rate")), text);
    QVERIFY(valueOf(second, QLatin1String("frame_rate")) == rate);
}

void HostShowTest::frameRatesWithoutANumberAreNull_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<QString>("text");
    using Limits = std::numeric_limits<double>;
    QTest::newRow("inf") << Limits::infinity() << QStringLiteral("inf");
    QTest::newRow("-inf") << -Limits::infinity() << QStringLiteral("-inf");
    QTest::newRow("nan") << Limits::quiet_NaN() << QStringLiteral("nan");
}

void HostShowTest::frameRatesWithoutANumberAreNull()
{
    QFETCH(double, rate);
    QFETCH(QString, text);
    KvMvcSettings settings = exampleSettings();
    settings.views[1].frame_rate = rate;
    const HostProgram program;
    program.writeSettings(fileName, settings);
    const QJsonObject shown =
        viewOf(shownJson(program), 1)[QStringLiteral("frame_rate")].toObject();
    QVERIFY(shown[QStringLiteral("value")].isNull());
    QCOMPARE(shown[QStringLiteral("text")].toString(), text);
    const HostProgram::Result table = program.run({QStringLiteral("show"), fileName});
    const QRegularExpression line(
        QStringLiteral("^Frame rate +23\\.976 \\(24000/1001\\) +%1$").arg(text),
        QRegularExpression::MultilineOption);
    QVERIFY2(table.output.contains(line), qPrintable(table.output));
}

void HostShowTest::namesBeyondAsciiAreOpened()
{
    const HostProgram program;
    const QString name = QString::fromUtf8("\xC3\x9Cgr\xC3\xB6\xC3\x9F\x65 \xE8\xA8\xAD.ini");
    program.writeSettings(name, exampleSettings());
    const HostProgram::Result result = program.run({QStringLiteral("show"), name});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.output.contains(QStringLiteral("Stereo High")));
}

QTEST_GUILESS_MAIN(HostShowTest)
#include "tst_host_show.moc"
