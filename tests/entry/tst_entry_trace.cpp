// What the module tells of a call to whoever asks: each search, each function, and why it failed.

#include "Sandbox.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

namespace
{

const QStringList ownCall = {QStringLiteral("flags=0x10"), QStringLiteral("call")};

QMap<QString, QString> tracing()
{
    return {{QStringLiteral("KV_CONFIG_GUI_TRACE"), QStringLiteral("1")}};
}

/// The lines of the trace, without what each begins with.
QStringList traceOf(const Sandbox::Result& run)
{
    QStringList lines;
    for (const QString& line : run.errors.split(QLatin1Char('\n'))) {
        const QLatin1String start("kv_config_gui_mvc: ");
        if (line.startsWith(start)) {
            lines += line.mid(start.size()).trimmed();
        }
    }
    return lines;
}

bool hasLine(const QStringList& lines, const QString& pattern)
{
    const QRegularExpression whole(QRegularExpression::anchoredPattern(pattern));
    return lines.indexOf(whole) >= 0;
}

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

} // namespace

class TestEntryTrace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void offUnlessAskedFor();
    void tellsOfAWholeCall();
    void goesToTheToolkitsCategory();
    void tellsWhyItFailed_data();
    void tellsWhyItFailed();
    void everyReasonIsInTheDocument();
    void tellsTheLoadersWords_data();
    void tellsTheLoadersWords();
    void tellsOfPlatformsAndDisplays();
    void nameWithALineFeedIsOneLine();
};

void TestEntryTrace::offUnlessAskedFor()
{
    const Sandbox sandbox;
    QCOMPARE(sandbox.run(ownCall).errors, QString());
    sandbox.addRequired();
    QCOMPARE(sandbox.run(ownCall).errors, QString());
    const auto zero =
        sandbox.run(ownCall, {{QStringLiteral("KV_CONFIG_GUI_TRACE"), QStringLiteral("0")}});
    QCOMPARE(zero.errors, QString());
}

void TestEntryTrace::tellsOfAWholeCall()
{
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run = sandbox.run(ownCall, tracing());
    QCOMPARE(run.value("result"), QStringLiteral("1001"));
    const QStringList lines = traceOf(run);
    const char* const expected[] = {
        R"(version \d+\.\d+\.\d+, Qt [56]\.[\d.]+ \(built with [56]\.[\d.]+\), flags 0x00000010, ext null)",
        R"(kv_mvc_settings_io: loaded .*[/\\]host[/\\]kv_mvc_settings_io\.\w+)",
        R"(kv_mvc_settings_io\.\w+: has MVCConfigGetAPIExt)",
        R"(kv_mvcenc_b: not loaded: \S.*)",
        R"(kv_mvcenc: loaded .*[/\\]host[/\\]kv_mvcenc\.\w+)",
        R"(kv_mvcenc\.\w+: has mvcOutVideoDefaults)",
        R"(kv_mvcenc\.\w+: has mvcOutVideoChkSettings)",
        R"(kv_media_probe_x: not loaded: \S.*)",
        R"(kv_media_probe: not loaded: \S.*)",
        R"(platform plug-in offscreen: works)",
        R"(mvcOutVideoChkSettings: 0)",
        R"(result 1001)",
    };
    for (const char* pattern : expected) {
        QVERIFY2(hasLine(lines, QString::fromLatin1(pattern)),
                 qPrintable(QString::fromLatin1(pattern) + QLatin1Char('\n') + run.errors));
    }
    QCOMPARE(lines.last(), QStringLiteral("result 1001"));
}

void TestEntryTrace::goesToTheToolkitsCategory()
{
    const Sandbox sandbox;
    const auto run = sandbox.run(
        ownCall,
        {{QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("kv.config_gui_mvc.debug=true")},
         {QStringLiteral("QT_FORCE_STDERR_LOGGING"), QStringLiteral("1")}});
    QVERIFY2(run.errors.contains(QLatin1String(
                 "kv.config_gui_mvc: result 1: no kv_mvc_settings_io with its function")),
             qPrintable(run.errors));
}

void TestEntryTrace::tellsWhyItFailed_data()
{
    QTest::addColumn<QString>("encoder");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const char* encoder, const char* steps,
                        const char* reason) {
        QTest::newRow(name) << QString::fromLatin1(encoder) << QString::fromLatin1(steps)
                            << QString::fromLatin1(reason);
    };
    row("no settings", "", "call-null", "no settings");
    row("no encoder", "", "call", "no encoder library with both its functions");
    row("no check", "stub_entry_encoder_without_check", "call",
        "no encoder library with both its functions");
    row("no record", "stub_entry_encoder", "flags=0x20000000 ext=record call",
        "KV_MVC_GUI_HOSTING_RECORD without a record");
    row("no application object", "stub_entry_encoder", "flags=0x10000000 call",
        "KV_MVC_GUI_HOST_APPLICATION without the application object");
    row("no application of this toolkit", "stub_entry_encoder",
        "flags=0x10000000 ext=window=1 call",
        "KV_MVC_GUI_HOST_APPLICATION, but no QApplication of this version of Qt is in the process");
    row("another application object", "stub_entry_encoder", "application call delete",
        "the process has an application object, and KV_MVC_GUI_HOST_APPLICATION is not given");
    row("open already", "stub_entry_encoder",
        "application ext=application flags=0x10000000 press=again call delete",
        "a dialog is open already");
}

void TestEntryTrace::tellsWhyItFailed()
{
    QFETCH(QString, encoder);
    QFETCH(QString, steps);
    QFETCH(QString, reason);
    const Sandbox sandbox;
    sandbox.add("stub_entry_settings_io", "kv_mvc_settings_io");
    if (!encoder.isEmpty()) {
        sandbox.add(qPrintable(encoder), "kv_mvcenc");
    }
    const auto run = sandbox.run(steps.split(QLatin1Char(' ')), tracing());
    const QStringList lines = traceOf(run);
    QVERIFY2(lines.contains(QStringLiteral("result 1: ") + reason), qPrintable(run.errors));
    if (encoder == QLatin1String("stub_entry_encoder_without_check")) {
        QVERIFY(hasLine(lines, QStringLiteral(R"(kv_mvcenc\.\w+: lacks mvcOutVideoChkSettings)")));
    }
}

void TestEntryTrace::everyReasonIsInTheDocument()
{
    QFile source(QStringLiteral(KV_SHOW_PAGES_SOURCE));
    QFile document(QStringLiteral(KV_HOSTING_DOCUMENT));
    QVERIFY(source.open(QIODevice::ReadOnly) && document.open(QIODevice::ReadOnly));
    const QString table = QString::fromUtf8(document.readAll());
    const QRegularExpression reason(QStringLiteral(R"(failed\(((?:\s*"[^"]*"|\s*\w+)+)\))"));
    int reasons = 0;
    const QString text = QString::fromUtf8(source.readAll());
    for (auto match = reason.globalMatch(text); match.hasNext(); ++reasons) {
        QString words = match.next().captured(1).trimmed();
        words.replace(QLatin1String("KV_MVC_SETTINGS_IO_LIBRARY"),
                      QLatin1String("\"kv_mvc_settings_io\""));
        words.remove(QRegularExpression(QStringLiteral(R"("\s*")"))).remove(QLatin1Char('"'));
        if (words.contains(QLatin1String("reason"))) { // the function's own definition
            --reasons;
            continue;
        }
        QVERIFY2(table.contains(QLatin1String("\n| ") + words + QLatin1String(" | ")),
                 qPrintable(words));
    }
    QCOMPARE(reasons, 10);
}

void TestEntryTrace::tellsTheLoadersWords_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("words");
#ifdef Q_OS_WIN
    QTest::newRow("text") << QByteArray("not a library") << QStringLiteral("not loaded: \\S.*");
#else
    QTest::newRow("text") << QByteArray(200, 'x') << QStringLiteral(".*invalid ELF header.*");
    // The head of a library of 32 bits.
    QByteArray otherArchitecture("\177ELF\1\1\1", 7);
    otherArchitecture.append(QByteArray(9, '\0'));
    otherArchitecture.append(QByteArray("\3\0\3\0\1\0\0\0", 8));
    otherArchitecture.append(QByteArray(4096, '\0'));
    QTest::newRow("another architecture")
        << otherArchitecture << QStringLiteral(".*wrong ELF class: ELFCLASS32.*");
#endif
}

void TestEntryTrace::tellsTheLoadersWords()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, words);
    const Sandbox sandbox;
    sandbox.add("stub_entry_settings_io", "kv_mvc_settings_io");
    write(sandbox.libraryPath("kv_mvcenc"), bytes);
    const auto run = sandbox.run(ownCall, tracing());
    const QStringList lines = traceOf(run);
    QVERIFY2(hasLine(lines, QStringLiteral("kv_mvcenc: ") + words), qPrintable(run.errors));
    QCOMPARE(lines.last(), QStringLiteral("result 1: no encoder library with both its functions"));
}

void TestEntryTrace::tellsOfPlatformsAndDisplays()
{
    const Sandbox sandbox;
    sandbox.addRequired();
    auto environment = tracing();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("nosuch"));
    auto lines = traceOf(sandbox.run(ownCall, environment));
    QVERIFY(hasLine(lines, QStringLiteral("platform plug-in nosuch: not in .*platforms.*")));
    QCOMPARE(lines.last(),
             QStringLiteral("result 1: no platform plug-in with a display that answers"));
#ifndef Q_OS_WIN
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":65000"));
    lines = traceOf(sandbox.run(ownCall, environment));
    QVERIFY(lines.contains(QStringLiteral("platform plug-in xcb: its display does not answer")));
#endif
}

void TestEntryTrace::nameWithALineFeedIsOneLine()
{
#ifdef Q_OS_WIN
    QSKIP("no file name has a line feed there");
#else
    const Sandbox sandbox;
    sandbox.addRequired();
    auto environment = tracing();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("de_DE.UTF-8"));
    const QString folder = sandbox.path(QStringLiteral("a\nresult 1000"));
    QVERIFY(QDir().mkpath(folder));
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), folder);
    const auto run = sandbox.run(ownCall, environment);
    const QStringList lines = traceOf(run);
    QVERIFY(hasLine(lines, QStringLiteral(R"(gui_mvc_de\.qm: not in .*/a\\u000aresult 1000)")));
    QVERIFY(!run.errors.split(QLatin1Char('\n')).contains(QLatin1String("result 1000")));
#endif
}

QTEST_MAIN(TestEntryTrace)
#include "tst_entry_trace.moc"
