// The public code for opening companion libraries and running an encoder's check, used by a program
// in C and by the same in C++. Where a library looks for others, which has a folder of its own, is
// tested with the settings file library.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

namespace
{

#ifdef Q_OS_WIN
const QString suffix = QStringLiteral(".dll");
const QString systemPath = QStringLiteral("PATH");
/// What the system has to say of a file that is no library.
const QLatin1String brokenReason("");
#else
const QString suffix = QStringLiteral(".so");
const QString systemPath = QStringLiteral("LD_LIBRARY_PATH");
const QLatin1String brokenReason("file too short");
#endif

struct Result {
    int exitCode;
    QStringList lines;
};

/// The program in a folder "host", with others: "given", "system", "current".
class Sandbox
{
public:
    explicit Sandbox(const QString& language);

    /// @param files "FOLDER/NAME=NUMBER" of the companion that says this number; "=broken": a file
    ///              that is no library; "=half": a part of one; "=pipe", "=folder".
    void fill(const QString& files) const;
    Result run(const QStringList& arguments) const;
    /// Below a folder whose name is beyond ASCII, since paths are UTF-8 whatever the system has.
    QString path(const QString& name) const
    {
        return m_folder.filePath(QString::fromUtf8("\xC3\xBC/") + name);
    }

private:
    QTemporaryDir m_folder;
    QString m_program;
};

Sandbox::Sandbox(const QString& language)
{
    const QString program =
        qEnvironmentVariable(QStringLiteral("KV_KIT_USER_%1").arg(language).toLatin1().constData());
    for (const char* folder : {"host", "given", "system", "current"}) {
        QDir().mkpath(path(QLatin1String(folder)));
    }
    m_program = path(QStringLiteral("host/") + QFileInfo(program).fileName());
    QFile::copy(program, m_program);
}

void makePipe(const QString& name)
{
#ifdef Q_OS_WIN
    QFAIL(qPrintable(name));
#else
    QCOMPARE(::mkfifo(QFile::encodeName(name).constData(), 0600), 0);
#endif
}

void Sandbox::fill(const QString& files) const
{
    for (const QString& file : files.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString number = file.section(QLatin1Char('='), 1);
        const QString target = path(file.section(QLatin1Char('='), 0, 0) + suffix);
        if (number == QLatin1String("broken")) {
            QFile broken(target);
            QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no library") > 0);
        } else if (number == QLatin1String("folder")) {
            QVERIFY(QDir().mkdir(target));
        } else if (number == QLatin1String("pipe")) {
            makePipe(target);
        } else {
            const bool isCut = number == QLatin1String("half");
            QVERIFY(QFile::copy(qEnvironmentVariable("KV_KIT_COMPANIONS") +
                                    QStringLiteral("/kit_companion_") +
                                    (isCut ? QStringLiteral("1") : number) + suffix,
                                target));
            QVERIFY(!isCut || QFile::resize(target, QFileInfo(target).size() / 2));
        }
    }
}

Result Sandbox::run(const QStringList& arguments) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString former = environment.value(systemPath);
    environment.insert(systemPath, QDir::toNativeSeparators(path(QStringLiteral("system"))) +
                                       (former.isEmpty() ? QString() : QDir::listSeparator()) +
                                       former);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(path(QStringLiteral("current")));
    process.start(m_program, arguments);
    if (!process.waitForFinished(30000) || process.exitStatus() != QProcess::NormalExit) {
        return {-1, {}};
    }
    QStringList lines = QString::fromUtf8(process.readAllStandardOutput())
                            .remove(QLatin1Char('\r'))
                            .split(QLatin1Char('\n'));
    lines.removeLast();
    return {process.exitCode(), lines};
}

void addLanguages()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("C") << QStringLiteral("C");
    QTest::newRow("C++") << QStringLiteral("CPP");
}

} // namespace

class TestCompanionKit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addLanguages(); }

    void firstThatCountsIsOpened_data();
    void firstThatCountsIsOpened();
    void whyNoneIsOpen_data();
    void whyNoneIsOpen();
    void messagesOfACheck_data();
    void messagesOfACheck();
    void messagesTellWhatTheyAreAbout_data();
    void messagesTellWhatTheyAreAbout();
    void usesOfLimits_data();
    void usesOfLimits();
    void messagesWithoutMemoryAreCounted_data();
    void messagesWithoutMemoryAreCounted();
};

void TestCompanionKit::firstThatCountsIsOpened_data()
{
    QTest::addColumn<QString>("files");
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("file");
    const auto row = [](const char* name, const char* files, const char* arguments, int number,
                        const char* file) {
        QTest::newRow(name) << QString::fromLatin1(files) << QString::fromLatin1(arguments)
                            << QString::number(number) << QString::fromLatin1(file);
    };
    row("the host's before the one given", "host/a=1 given/a=2", "../given 0 a", 1, "host/a");
    row("in the folder given", "given/a=2", "../given 0 a", 2, "given/a");
    row("no folder given", "host/a=1 given/a=2", "- 0 a", 1, "host/a");
    row("first name before the second", "host/a=1 host/b=2", "- 0 a b", 1, "host/a");
    row("first name anywhere before the second", "host/b=1 given/a=2", "../given 0 a b", 2,
        "given/a");
    row("second name", "host/b=2", "- 0 a b", 2, "host/b");
#ifndef Q_OS_WIN
    row("second name where the first is a pipe", "host/a=pipe host/b=2", "- 0 a b", 2, "host/b");
#endif
    row("second name where the first cannot be loaded", "host/a=broken host/b=2", "- 0 a b", 2,
        "host/b");
    row("what the host has counts", "host/a=broken given/a=1 host/b=2", "../given 0 a b", 2,
        "host/b");
#ifdef Q_OS_WIN
    row("in a folder of PATH", "system/a=2", "- 1 a", 2, "");
    row("beside before PATH", "host/a=1 system/a=2", "- 1 a", 1, "host/a");
#else
    row("where the system looks", "system/a=2", "../given 0 a", 2, "");
    row("the one given before the system's", "given/a=1 system/a=2", "../given 0 a", 1, "given/a");
    row("first name of the system's before the second", "host/b=1 system/a=2", "- 0 a b", 2, "");
#endif
}

void TestCompanionKit::firstThatCountsIsOpened()
{
    QFETCH_GLOBAL(QString, language);
    QFETCH(QString, files);
    QFETCH(QString, arguments);
    QFETCH(QString, number);
    QFETCH(QString, file);
    const Sandbox sandbox(language);
    sandbox.fill(files);
    const Result result =
        sandbox.run(QStringList{QStringLiteral("open")} + arguments.split(QLatin1Char(' ')));
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.lines.size(), 4);
    QCOMPARE(result.lines[0], number);
    QCOMPARE(result.lines[1],
             file.isEmpty() ? QStringLiteral("by name") : QStringLiteral("beside"));
    if (file.isEmpty()) {
        QCOMPARE(result.lines[2], QLatin1Char('a') + suffix);
    } else {
        QCOMPARE(QFileInfo(QDir(sandbox.path(QStringLiteral("current"))), result.lines[2])
                     .canonicalFilePath(),
                 QFileInfo(sandbox.path(file + suffix)).canonicalFilePath());
    }
    QCOMPARE(result.lines[3], QString());
}

void TestCompanionKit::whyNoneIsOpen_data()
{
    QTest::addColumn<QString>("files");
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("where");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const char* files, const char* arguments,
                        const char* where, const char* file, QLatin1String reason) {
        QTest::newRow(name) << QString::fromLatin1(files) << QString::fromLatin1(arguments)
                            << QString::fromLatin1(where) << QString::fromLatin1(file)
                            << QString(reason);
    };
#ifdef Q_OS_WIN
    const QLatin1String missing("not found");
#else
    const QLatin1String missing("cannot open shared object file");
#endif
    row("nowhere", "", "- 0 a b", "by name", "b", missing);
    row("no such folder", "", "../nowhere 0 a", "by name", "a", missing);
    row("in the current folder alone", "current/a=1", "- 0 a", "by name", "a", missing);
    row("no other prefix", "host/liba=1", "- 0 a", "by name", "a", missing);
#ifdef Q_OS_WIN
    row("in a folder of PATH alone", "system/a=1", "- 0 a", "by name", "a", missing);
#endif
    row("no library", "host/a=broken", "- 0 a", "beside", "host/a", brokenReason);
    row("the file that is there is what is told of", "host/a=broken", "- 0 a b", "beside", "host/a",
        brokenReason);
#ifndef Q_OS_WIN
    const QLatin1String noFile("a.so: not a regular file");
    row("a pipe", "host/a=pipe", "- 0 a", "beside", "host/a", noFile);
    row("a pipe beside the user", "given/a=pipe", "../given 0 a", "beside", "given/a", noFile);
    row("a folder", "host/a=folder", "- 0 a", "beside", "host/a", noFile);
    row("half a library", "host/a=half", "- 0 a", "beside", "host/a",
        QLatin1String("a.so: truncated"));
#endif
    row("the last file that is there", "host/a=broken given/b=broken", "../given 0 a b c", "beside",
        "given/b", brokenReason);
    row("the file of the host, not the system's", "host/a=broken system/a=1", "- 0 a", "beside",
        "host/a", brokenReason);
}

void TestCompanionKit::whyNoneIsOpen()
{
    QFETCH_GLOBAL(QString, language);
    QFETCH(QString, files);
    QFETCH(QString, arguments);
    QFETCH(QString, where);
    QFETCH(QString, file);
    QFETCH(QString, reason);
    const Sandbox sandbox(language);
    sandbox.fill(files);
    const Result result =
        sandbox.run(QStringList{QStringLiteral("open")} + arguments.split(QLatin1Char(' ')));
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.lines.size(), 4);
    QCOMPARE(result.lines[0], QStringLiteral("none"));
    QCOMPARE(result.lines[1], where);
    QVERIFY2(QDir::fromNativeSeparators(result.lines[2]).endsWith(file + suffix),
             qPrintable(result.lines[2]));
    QVERIFY(!result.lines[3].isEmpty());
    QVERIFY2(result.lines[3].contains(reason), qPrintable(result.lines[3]));
}

void TestCompanionKit::messagesOfACheck_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<QStringList>("lines");
    const QString all = QStringLiteral("result 7, width 16, lost 0, heard 0");
    const QString stage = QStringLiteral("note 19 stage 3, reserved 0");
    const QString width = QStringLiteral("error 14 width 5 of two");
    const QString lengthy =
        QStringLiteral("warning 100006 long xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx");
    const QString rest = QStringLiteral("note 28 99.5 % and no more functions");
    QTest::newRow("in a list") << QStringLiteral("plain")
                               << QStringList{all, stage, width, lengthy, rest};
    QTest::newRow("translated") << QStringLiteral("translated")
                                << QStringList{all, stage,
                                               QStringLiteral("error 16 Breite 5 von two"), lengthy,
                                               rest};
    QTest::newRow("to a callback that fails once")
        << QStringLiteral("callback")
        << QStringList{stage, width, rest, QStringLiteral("result 7, width 16, lost 1, heard 3")};
    QTest::newRow("a check within a check")
        << QStringLiteral("nested")
        << QStringList{QStringLiteral("result 0, width 16, lost 0, "
                                      "heard 0"),
                       QStringLiteral("error 8 4 inside")};
}

void TestCompanionKit::messagesOfACheck()
{
    QFETCH_GLOBAL(QString, language);
    QFETCH(QString, how);
    QFETCH(QStringList, lines);
    const Sandbox sandbox(language);
    sandbox.fill(QStringLiteral("host/kv_mvcenc=1"));
    const Result result = sandbox.run({QStringLiteral("check"), how});
    QCOMPARE(result.lines, lines);
    QCOMPARE(result.exitCode, 0);
}

void TestCompanionKit::messagesTellWhatTheyAreAbout_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<QString>("error");
    const QString known =
        QStringLiteral("error 0 width.least width view 1 numbers 3 5 16 level 4.1");
    const QString nothing = QStringLiteral("error about nothing");
    QTest::newRow("all of it") << QStringLiteral("about") << known;
    QTest::newRow("no memory to keep it till the message") << QStringLiteral("about-3") << nothing;
    QTest::newRow("no memory to keep it in the list") << QStringLiteral("about-7") << nothing;
}

void TestCompanionKit::messagesTellWhatTheyAreAbout()
{
    QFETCH_GLOBAL(QString, language);
    QFETCH(QString, how);
    QFETCH(QString, error);
    const Sandbox sandbox(language);
    sandbox.fill(QStringLiteral("host/kv_mvcenc=1"));
    const Result result = sandbox.run({QStringLiteral("check"), how});
    // An encoder of an earlier version has fewer members; the others are not known.
    QCOMPARE(result.lines,
             QStringList({QStringLiteral("result 7, width 16, lost 0, heard 0"),
                          QStringLiteral("note about nothing"), error,
                          QStringLiteral("warning 3 long - view 0 numbers 0 0 0 level -"),
                          QStringLiteral("note about nothing")}));
    QCOMPARE(result.exitCode, 0);
}

void TestCompanionKit::usesOfLimits_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("in a list")
        << QStringLiteral("limits")
        << QStringList{QStringLiteral("messages 4, lost 0"),
                       QStringLiteral("view -1 Macroblock rate: 195644 of 245760 macroblocks/s, "
                                      "rule rate, level 4.1"),
                       QStringLiteral("view 0 Buffer: 195644 of 0 macroblocks/s, rule rate, "
                                      "level -")};
    QTest::newRow("to a callback that fails")
        << QStringLiteral("no-limits") << QStringList{QStringLiteral("messages 4, lost 2")};
}

void TestCompanionKit::usesOfLimits()
{
    QFETCH_GLOBAL(QString, language);
    QFETCH(QString, how);
    QFETCH(QStringList, lines);
    const Sandbox sandbox(language);
    sandbox.fill(QStringLiteral("host/kv_mvcenc=1"));
    const Result result = sandbox.run({QStringLiteral("check"), how});
    QCOMPARE(result.lines, lines);
    QCOMPARE(result.exitCode, 0);
}

void TestCompanionKit::messagesWithoutMemoryAreCounted_data()
{
    QTest::addColumn<QString>("allocation");
    QTest::newRow("of the text") << QStringLiteral("0");
    QTest::newRow("of its copy") << QStringLiteral("1");
    QTest::newRow("of the list") << QStringLiteral("2");
}

void TestCompanionKit::messagesWithoutMemoryAreCounted()
{
    QFETCH_GLOBAL(QString, language);
    QFETCH(QString, allocation);
    const Sandbox sandbox(language);
    sandbox.fill(QStringLiteral("host/kv_mvcenc=1"));
    const Result result = sandbox.run({QStringLiteral("check"), allocation});
    QCOMPARE(result.lines.mid(0, 2), QStringList({QStringLiteral("result 7, width 16, lost 1, "
                                                                 "heard 0"),
                                                  QStringLiteral("error 14 width 5 of two")}));
    QCOMPARE(result.lines.size(), 4);
    QCOMPARE(result.exitCode, 0);
}

QTEST_GUILESS_MAIN(TestCompanionKit)
#include "tst_companion_kit.moc"
