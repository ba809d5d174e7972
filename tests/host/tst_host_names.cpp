// The file that a command works on is the one that was named, whatever the name.

#include "ExampleSettings.h"
#include "HostProgram.h"

#include <QDir>
#include <QTest>

class TestHostNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyTheNamedFileIsWritten_data();
    void onlyTheNamedFileIsWritten();
    void onlyTheNamedFileIsRead_data();
    void onlyTheNamedFileIsRead();
    void namesThatAreNotUtf8AreRefused_data();
    void namesThatAreNotUtf8AreRefused();
    void namesLikeTheToolkitsOwnAreFiles_data();
    void namesLikeTheToolkitsOwnAreFiles();
};

namespace
{

const QString prefix = QStringLiteral("kv-mvc-settings: ");

// A name; what it looks like when its UTF-8 is taken for Latin-1; and that once more.
const QString once = QString::fromUtf8("\xC3\xA4.cfg");
const QString twice = QString::fromUtf8("\xC3\x83\xC2\xA4.cfg");
const QString thrice = QString::fromUtf8("\xC3\x83\xC2\x83\xC3\x82\xC2\xA4.cfg");
// The same of a byte-order mark, which readers of UTF-8 like to drop.
const QString marked = QString::fromUtf8("\xEF\xBB\xBF.cfg");
const QString markedTwice = QString::fromUtf8("\xC3\xAF\xC2\xBB\xC2\xBF.cfg");

KvMvcSettings settingsOfWidth(int width)
{
    KvMvcSettings settings = exampleSettings();
    settings.views[0].width = width;
    return settings;
}

} // namespace

void TestHostNames::onlyTheNamedFileIsWritten_data()
{
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("written");
    const QStringList none;
    QTest::newRow("new") << none << once << true;
    QTest::newRow("new, encoded twice") << none << twice << true;
    QTest::newRow("new, encoded thrice") << none << thrice << true;
    QTest::newRow("replaced") << QStringList{once} << once << true;
    QTest::newRow("encoded twice beside once") << QStringList{once} << twice << true;
    QTest::newRow("encoded once beside twice") << QStringList{twice} << once << true;
    QTest::newRow("all of them") << QStringList{once, twice, thrice} << twice << true;
    // There is no way to tell the library that the other one is not meant.
    QTest::newRow("encoded twice beside thrice") << QStringList{thrice} << twice << false;
    QTest::newRow("byte-order mark") << QStringList{marked} << markedTwice << true;
}

void TestHostNames::onlyTheNamedFileIsWritten()
{
    QFETCH(QStringList, present);
    QFETCH(QString, target);
    QFETCH(bool, written);
    HostProgram program;
    program.addStub(QStringLiteral("stub_encoder"), QStringLiteral("kv_mvcenc"));
    for (const QString& name : std::as_const(present)) {
        program.setContent(name, "kept");
    }
    const HostProgram::Result result = program.run(
        {QStringLiteral("defaults"), QStringLiteral("2"), QStringLiteral("-o"), target});
    QStringList expected = present;
    if (written && !expected.contains(target)) {
        expected << target;
    }
    expected.sort();
    QStringList found = program.fileNames();
    found.sort();
    QCOMPARE(found, expected);
    for (const QString& name : std::as_const(expected)) {
        const QByteArray content = program.content(name);
        QVERIFY2(written && name == target ? content.contains("width = 1002") : content == "kept",
                 qPrintable(name));
    }
    QCOMPARE(result.exitCode, written ? 0 : 2);
    QCOMPARE(result.error.startsWith(prefix + QStringLiteral("cannot write '") + target), !written);
}

void TestHostNames::onlyTheNamedFileIsRead_data()
{
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<QString>("source");
    QTest::newRow("once of all") << QStringList{once, twice, thrice} << once;
    QTest::newRow("twice of all") << QStringList{once, twice, thrice} << twice;
    QTest::newRow("thrice of all") << QStringList{once, twice, thrice} << thrice;
    QTest::newRow("twice where once is") << QStringList{once, twice} << twice;
    QTest::newRow("twice alone") << QStringList{twice} << twice;
    QTest::newRow("once that is not there") << QStringList{twice} << once;
    QTest::newRow("twice that is not there") << QStringList{once, thrice} << twice;
    QTest::newRow("byte-order mark") << QStringList{marked, markedTwice} << markedTwice;
}

void TestHostNames::onlyTheNamedFileIsRead()
{
    QFETCH(QStringList, present);
    QFETCH(QString, source);
    const HostProgram program;
    const QString plain = QStringLiteral("plain.ini");
    for (int at = 0; at < present.size(); ++at) {
        program.writeSettings(plain, settingsOfWidth(100 + at));
        program.setContent(present.at(at), program.content(plain));
    }
    const HostProgram::Result result = program.run({QStringLiteral("show"), source});
    if (!present.contains(source)) {
        QCOMPARE(result.error,
                 prefix + QStringLiteral("cannot read '%1': there is no such file\n").arg(source));
        QCOMPARE(result.exitCode, 2);
        return;
    }
    QCOMPARE(result.error, QString());
    const QString width = QString::number(100 + present.indexOf(source));
    QVERIFY2(result.output.contains(QStringLiteral(" %1 ").arg(width)), qPrintable(result.output));
}

void TestHostNames::namesThatAreNotUtf8AreRefused_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("shown");
    // Bytes in octal, as the shell's printf has them.
    const auto row = [](const char* name, const char* arguments, const char* shown) {
        QTest::newRow(name) << QString::fromLatin1(arguments) << QString::fromLatin1(shown);
    };
    row("Latin-1, written", R"x(defaults 1 -o "$(printf 'c\351.cfg')")x", R"(c\xe9.cfg)");
    row("Latin-1, read", R"x(show "$(printf 'b\351.cfg')")x", R"(b\xe9.cfg)");
    row("cut short", R"x(show "$(printf 'b.\303')")x", R"(b.\xc3)");
    row("too long", R"x(show "$(printf '\300\257')")x", R"(\xc0\xaf)");
    row("half of a pair", R"x(show "$(printf '\355\240\200')")x", R"(\xed\xa0\x80)");
    row("no file", R"x(edit --title "$(printf '\344')")x", R"(\xe4)");
}

void TestHostNames::namesThatAreNotUtf8AreRefused()
{
#ifdef Q_OS_WIN
    QSKIP("names are no bytes on Windows");
#else
    QFETCH(QString, arguments);
    QFETCH(QString, shown);
    HostProgram program;
    program.addStub(QStringLiteral("stub_encoder"), QStringLiteral("kv_mvcenc"));
    program.writeSettings(QStringLiteral("a.ini"), exampleSettings());
    const HostProgram::Result result = program.runScript(
        QStringLiteral("cp a.ini \"$(printf 'b\\351.cfg')\" && \"$program\" ") + arguments);
    QCOMPARE(result.error,
             prefix + QStringLiteral("the argument '%1' is not valid UTF-8\n").arg(shown));
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
    // Nothing new: two files, one of which the toolkit cannot name, and no folder will be removed
    // that has such a file.
    const HostProgram::Result listed = program.runScript(QStringLiteral("ls | wc -l; rm b*"));
    QCOMPARE(listed.output.trimmed(), QStringLiteral("2"));
#endif
}

void TestHostNames::namesLikeTheToolkitsOwnAreFiles_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {":/a.ini", "file:a.ini", "a.ini/../b.cfg", " .cfg", "%1%2.cfg"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void TestHostNames::namesLikeTheToolkitsOwnAreFiles()
{
#ifdef Q_OS_WIN
    QSKIP("most are no names on Windows");
#endif
    QFETCH(QString, name);
    HostProgram program;
    program.addStub(QStringLiteral("stub_encoder"), QStringLiteral("kv_mvcenc"));
    for (const char* folder : {":", "a.ini"}) {
        QVERIFY(QDir().mkpath(program.path(QString()) + QLatin1String(folder)));
    }
    HostProgram::Result result =
        program.run({QStringLiteral("defaults"), QStringLiteral("2"), QStringLiteral("-o"), name});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
    result = program.run({QStringLiteral("show"), name});
    QCOMPARE(result.error, QString());
    QVERIFY(result.output.contains(QStringLiteral(" 1002 ")));
}

QTEST_GUILESS_MAIN(TestHostNames)
#include "tst_host_names.moc"
