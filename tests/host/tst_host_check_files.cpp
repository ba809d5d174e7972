// check, of several files.

#include "CheckTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace check_test;

class TestHostCheckFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void severalFiles();
    void whatIsOfOneFileIsRefusedForSeveral_data();
    void whatIsOfOneFileIsRefusedForSeveral();
    void aFileThatCannotBeReadLeavesTheOthers();
    void filesOfWhichNoneCanBeReadAreTrouble();
};

void TestHostCheckFiles::severalFiles()
{
    HostProgram program;
    prepare(program, 2);
    program.writeSettings(QStringLiteral("good.ini"), settingsOfWidth(1920));
    program.writeSettings(QStringLiteral("bad.ini"), settingsOfWidth(1));
    const QStringList arguments = {QStringLiteral("check"), a, QStringLiteral("good.ini"),
                                   QStringLiteral("-")};
    const QByteArray bad = program.content(QStringLiteral("bad.ini"));
    HostProgram::Result result = program.run(arguments, {}, bad);
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, QStringLiteral("a.ini: warning: width 2 corrected to 16\n"
                                           "-: error: width 1 is below 16\n"
                                           "-: warning: 100 % of 0.500 is less\n"
                                           "-: note: the picture of 1 x 2\n"));
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(program.run(arguments.mid(0, 3)).exitCode, 0);

    result = program.run(arguments + QStringList{QStringLiteral("--json")}, {}, bad);
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(problemOf(result), QString());
    const QJsonObject all = QJsonDocument::fromJson(result.output.toUtf8()).object();
    QCOMPARE(all.keys().join(QLatin1Char(' ')), QStringLiteral("accepted files format_version"));
    QCOMPARE(all[QStringLiteral("accepted")], QJsonValue(false));
    QStringList verdicts;
    for (const QJsonValue& file : all[QStringLiteral("files")].toArray()) {
        verdicts << file[QStringLiteral("file")].toString() +
                        (file[QStringLiteral("accepted")].toBool() ? QStringLiteral(" accepted")
                                                                   : QStringLiteral(" refused"));
    }
    QCOMPARE(verdicts,
             QStringList({QStringLiteral("a.ini accepted"), QStringLiteral("good.ini accepted"),
                          QStringLiteral("- refused")}));
}

void TestHostCheckFiles::whatIsOfOneFileIsRefusedForSeveral_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* name, const char* arguments, const char* line) {
        QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char(' '))
                            << QStringLiteral("kv-mvc-settings: ") + QLatin1String(line) +
                                   QLatin1Char('\n');
    };
    row("output", "check a.ini a.ini -o fixed.ini", "-o takes the settings of one file");
    row("standard input", "check - -", "standard input can be only one of the files");
    row("no file that can be read", "check none.ini",
        "cannot read 'none.ini': there is no such file");
}

void TestHostCheckFiles::whatIsOfOneFileIsRefusedForSeveral()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, line);
    HostProgram program;
    prepare(program, 1);
    const HostProgram::Result result = program.run(arguments);
    QCOMPARE(result.error, line);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(program.fileNames(), QStringList{a});
}

void TestHostCheckFiles::aFileThatCannotBeReadLeavesTheOthers()
{
    HostProgram program;
    prepare(program, 2);
    program.setContent(QStringLiteral("broken.ini"), "[record]\nnum_vews = 2\n");
    const QStringList arguments = {QStringLiteral("check"), QStringLiteral("none.ini"), a,
                                   QStringLiteral("broken.ini")};
    const QString trouble =
        QStringLiteral("kv-mvc-settings: cannot read 'none.ini': there is no such file\n"
                       "broken.ini:2: unknown key 'num_vews' in section 'record'; did you mean "
                       "'num_views'?\n");
    HostProgram::Result result = program.run(arguments);
    QCOMPARE(result.error, trouble);
    QCOMPARE(result.output, QStringLiteral("a.ini: warning: width 2 corrected to 16\n"));
    QCOMPARE(result.exitCode, 2);

    result = program.run(arguments + QStringList{QStringLiteral("--json")});
    QCOMPARE(result.error, trouble);
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(problemOf(result), QString());
    const QJsonObject all = QJsonDocument::fromJson(result.output.toUtf8()).object();
    QCOMPARE(all[QStringLiteral("accepted")], QJsonValue(false));
    const QJsonArray files = all[QStringLiteral("files")].toArray();
    QCOMPARE(files.size(), 3);
    QCOMPARE(files.at(0).toObject(), QJsonDocument::fromJson(R"json({
        "file": "none.ini", "accepted": false,
        "trouble": ["kv-mvc-settings: cannot read 'none.ini': there is no such file"]})json")
                                         .object());
    QCOMPARE(files.at(1)[QStringLiteral("accepted")], QJsonValue(true));
    QCOMPARE(files.at(2)[QStringLiteral("file")], QJsonValue(QStringLiteral("broken.ini")));
}

/// The exit code is that of trouble, and nothing is printed that could be taken for a result.
void TestHostCheckFiles::filesOfWhichNoneCanBeReadAreTrouble()
{
    HostProgram program;
    prepare(program, 2);
    const HostProgram::Result result =
        program.run({QStringLiteral("check"), QStringLiteral("--json"), QStringLiteral("one.ini"),
                     QStringLiteral("two.ini")});
    QCOMPARE(result.error,
             QStringLiteral("kv-mvc-settings: cannot read 'one.ini': there is no such file\n"
                            "kv-mvc-settings: cannot read 'two.ini': there is no such file\n"));
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
}

QTEST_GUILESS_MAIN(TestHostCheckFiles)
#include "tst_host_check_files.moc"
