#include "ExampleSettings.h"
#include "HostProgram.h"
#include "SettingsLedger.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>

#include <limits>

class TestHostShow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tableShowsBothViewsSideBySide();
    void namedValuesAreShownByName_data();
    void namedValuesAreShownByName();
    void otherValuesAreShownAsNumbers_data();
    void otherValuesAreShownAsNumbers();
    void jsonHoldsEveryField();
    void frameRatesWithoutANumberAreNull_data();
    void frameRatesWithoutANumberAreNull();
    void frameRatesKeepTheirDigits_data();
    void frameRatesKeepTheirDigits();
    void namesBeyondAsciiAreOpened();

private:
    QVector<QJsonObject> m_shown;
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

void TestHostShow::tableShowsBothViewsSideBySide()
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

void TestHostShow::initTestCase()
{
    // One program for the first named value of every setting, one for the second, and so on.
    bool isMore = true;
    for (int at = 0; isMore; ++at) {
        isMore = false;
        KvMvcSettings settings = exampleSettings();
        for (const ledger::Setting& setting : ledger::settings()) {
            const auto& values = ledger::namedValues(QString::fromLatin1(setting.member));
            if (at < values.size()) {
                ledger::put(settings, setting, 1, values[at].code);
            }
            isMore = isMore || at + 1 < values.size();
        }
        const HostProgram program;
        program.writeSettings(fileName, settings);
        m_shown.append(shownJson(program));
    }
}

void TestHostShow::namedValuesAreShownByName_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<int>("at");
    for (const ledger::Setting& setting : ledger::settings()) {
        const QString member = QString::fromLatin1(setting.member);
        const auto& values = ledger::namedValues(member);
        for (int at = 0; at < values.size(); ++at) {
            QTest::addRow("%s %d", setting.member, values[at].code) << member << at;
        }
    }
}

void TestHostShow::namedValuesAreShownByName()
{
    QFETCH(QString, member);
    QFETCH(int, at);
    const ledger::NamedValue& value = ledger::namedValues(member).at(at);
    const QJsonObject& all = m_shown.at(at);
    const QJsonObject shown =
        (ledger::setting(member).isOfRecord() ? all : viewOf(all, 1))[member].toObject();
    QCOMPARE(shown[QStringLiteral("text")].toString(), QString::fromLatin1(value.text));
    QCOMPARE(shown[QStringLiteral("value")].toInt(-12345), value.code);
}

void TestHostShow::otherValuesAreShownAsNumbers_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");

    struct Row {
        const char* key;
        int value;
        const char* text;
    };
    // What has no name of its own; see namedValuesAreShownByName().
    static const Row rows[] = {
        {"profile", 2, "2 (unknown)"},
        {"level", 14, "14 (unknown)"},
        {"video_type", 4, "4 (unknown)"},
        {"pulldown", 3, "3 (unknown)"},
        {"chroma_format", 0, "0 (unknown)"},
        {"deblocking", 2, "2 (unknown)"},
        {"display_aspect_y", 9, "9"},
        {"pixel_aspect_y", 11, "11"},
        {"i_interval", 1, "1"},
        {"ref_distance", 1, "0"},
        {"ref_distance", 3, "2"},
        {"ref_distance", 0, "-1"},
        {"ref_distance", -2147483647 - 1, "-2147483649"},
        {"bit_depth_luma", 9, "9 bits"},
        {"frame_size_bref", 1, "1 bytes"},
        {"bitrate", 2147483647, "2147483647"},
        {"max_bitrate", -1, "-1"},
    };
    for (const Row& row : rows) {
        const QString key = QString::fromLatin1(row.key);
        QTest::newRow(qPrintable(QStringLiteral("%1 %2").arg(key).arg(row.value)))
            << key << row.value << QString::fromLatin1(row.text);
    }
}

void TestHostShow::otherValuesAreShownAsNumbers()
{
    QFETCH(QString, key);
    QFETCH(int, value);
    QFETCH(QString, text);
    KvMvcSettings settings = exampleSettings();
    ledger::put(settings, ledger::setting(key), 1, value);
    const HostProgram program;
    program.writeSettings(fileName, settings);
    const QJsonObject second = viewOf(shownJson(program), 1);
    QCOMPARE(second[key].toObject()[QStringLiteral("text")].toString(), text);
    QCOMPARE(second[key].toObject()[QStringLiteral("value")].toInt(), value);
}

void TestHostShow::jsonHoldsEveryField()
{
    KvMvcSettings settings = {};
    settings.num_views = 1001;
    settings.split_views = 1002;
    int value = 2000;
    const QVector<ledger::Setting> fields = ledger::viewNumbers();
    for (const ledger::Setting& field : fields) {
        ledger::put(settings, field, 0, value);
        ledger::put(settings, field, 1, value + 1000);
        ++value;
    }
    settings.views[0].frame_rate = 12.5;
    settings.views[1].frame_rate = 48;

    const HostProgram program;
    program.writeSettings(fileName, settings);
    const QJsonObject shown = shownJson(program);
    QCOMPARE(shown.keys(),
             QStringList({QStringLiteral("format_version"), QStringLiteral("num_views"),
                          QStringLiteral("split_views"), QStringLiteral("views")}));
    QCOMPARE(valueOf(shown, QLatin1String("num_views")), 1001.0);
    QCOMPARE(valueOf(shown, QLatin1String("split_views")), 1002.0);
    QCOMPARE(shown[QStringLiteral("views")].toArray().size(), 2);
    for (int view = 0; view < 2; ++view) {
        const QJsonObject object = viewOf(shown, view);
        // And the frame rate, which is no whole number.
        QCOMPARE(object.size(), int(fields.size()) + 1);
        value = 2000 + 1000 * view;
        for (const ledger::Setting& field : fields) {
            QVERIFY2(valueOf(object, QLatin1String(field.member)) == value, field.member);
            ++value;
        }
    }
    QCOMPARE(valueOf(viewOf(shown, 0), QLatin1String("frame_rate")), 12.5);
    QCOMPARE(valueOf(viewOf(shown, 1), QLatin1String("frame_rate")), 48.0);
}

void TestHostShow::frameRatesKeepTheirDigits_data()
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

void TestHostShow::frameRatesKeepTheirDigits()
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

void TestHostShow::frameRatesWithoutANumberAreNull_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<QString>("text");
    using Limits = std::numeric_limits<double>;
    QTest::newRow("inf") << Limits::infinity() << QStringLiteral("inf");
    QTest::newRow("-inf") << -Limits::infinity() << QStringLiteral("-inf");
    QTest::newRow("nan") << Limits::quiet_NaN() << QStringLiteral("nan");
}

void TestHostShow::frameRatesWithoutANumberAreNull()
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

void TestHostShow::namesBeyondAsciiAreOpened()
{
    const HostProgram program;
    const QString name = QString::fromUtf8("\xC3\x9Cgr\xC3\xB6\xC3\x9F\x65 \xE8\xA8\xAD.ini");
    program.writeSettings(name, exampleSettings());
    const HostProgram::Result result = program.run({QStringLiteral("show"), name});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.output.contains(QStringLiteral("Stereo High")));
}

QTEST_GUILESS_MAIN(TestHostShow)
#include "tst_host_show.moc"
