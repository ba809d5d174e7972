// What comes from elsewhere, names and quoted values, in the lines that the program prints.

#include "ExampleSettings.h"
#include "HostProgram.h"

#include <QTest>

#ifndef Q_OS_WIN
#include <unistd.h>
#endif

class TestHostTerminal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesArePrintable_data();
    void linesArePrintable();
    void namesOfSeveralFilesArePrintable();
    void scriptsAndJsonKeepNames();
    void linksOfOthersAreNotWrittenThrough();
};

namespace
{

/// A name that would make a second line, turn it red, and turn it around.
const QString name = QString::fromUtf8("a\nb\x1B[31mc\xE2\x80\xAE.ini");
const QString shown = QStringLiteral("a\\u000ab\\u001b[31mc\\u202e.ini");
const QString prefix = QStringLiteral("kv-mvc-settings: ");

} // namespace

void TestHostTerminal::linesArePrintable_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("content"); // of the file of the name; empty: there is none
    QTest::addColumn<QString>("error");
    const auto row = [](const char* what, const QStringList& arguments, const char* content,
                        const QString& error) {
        QTest::newRow(what) << arguments << QByteArray(content) << error;
    };
    row("missing file", {QStringLiteral("show"), name}, "",
        prefix + QStringLiteral("cannot read '%1': there is no such file\n").arg(shown));
    row("place in a file", {QStringLiteral("show"), name}, "[record]\nnum_v\xE2\x80\x8Fiews = 1\n",
        shown + QStringLiteral(":2: unknown key 'num_v\\u200fiews' in section 'record'; did you "
                               "mean 'num_views'?\n"));
    row("value in a file", {QStringLiteral("show"), name},
        "[record]\nnum_views = \xE2\x81\xA6two\xE2\x80\xA8\n",
        shown + QStringLiteral(":2: bad value '\\u2066two\\u2028' for 'num_views': expected a "
                               "whole number of 32 bits\n"));
    row("JSON in a file", {QStringLiteral("show"), name}, R"({"\u001b[2J": 1})",
        shown + QStringLiteral(":1: unknown key '\\u001b[2J' in section 'record'; its keys are "
                               "num_views and split_views\n"));
    row("command", {name}, "",
        prefix + QStringLiteral("unknown command '%1'; see 'kv-mvc-settings --help'\n").arg(shown));
    row("option", {QStringLiteral("show"), QStringLiteral("--a\x7F"), QStringLiteral("b")}, "",
        prefix +
            QStringLiteral("unknown option '--a\\u007f'; see 'kv-mvc-settings show --help'\n"));
    row("assignment", {QStringLiteral("set"), name, QStringLiteral("wid\nth=1")},
        "[record]\n[view 0]\n",
        prefix + QStringLiteral("unknown setting 'wid\\u000ath'; did you mean 'width'?\n"));
}

void TestHostTerminal::linesArePrintable()
{
#ifdef Q_OS_WIN
    QSKIP("no file can have such a name");
#endif
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, content);
    QFETCH(QString, error);
    const HostProgram program;
    if (!content.isEmpty()) {
        program.setContent(name, content);
    }
    const HostProgram::Result result = program.run(arguments);
    QCOMPARE(result.error, error);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
}

void TestHostTerminal::namesOfSeveralFilesArePrintable()
{
#ifdef Q_OS_WIN
    QSKIP("no file can have such a name");
#endif
    HostProgram program;
    program.addStub(QStringLiteral("stub_encoder"), QStringLiteral("kv_mvcenc"));
    KvMvcSettings settings = exampleSettings();
    settings.views[0].width = 2;
    program.writeSettings(QStringLiteral("b.ini"), settings);
    program.setContent(name, program.content(QStringLiteral("b.ini")));
    const HostProgram::Result result =
        program.run({QStringLiteral("check"), name, QStringLiteral("b.ini")});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, shown + QStringLiteral(": warning: width 2 corrected to 16\n"
                                                   "b.ini: warning: width 2 corrected to 16\n"));
}

/// They are for programs, which need the names themselves.
void TestHostTerminal::scriptsAndJsonKeepNames()
{
#ifdef Q_OS_WIN
    QSKIP("no file can have such a name");
#endif
    HostProgram program;
    program.writeSettings(QStringLiteral("b.ini"), exampleSettings());
    const HostProgram::Result script =
        program.run({QStringLiteral("export"), QStringLiteral("--to"), QStringLiteral("x264"),
                     QStringLiteral("--stream"), name, QStringLiteral("b.ini")});
    QVERIFY2(script.output.contains(name), qPrintable(script.output));
}

void TestHostTerminal::linksOfOthersAreNotWrittenThrough()
{
#ifdef Q_OS_WIN
    QSKIP("there is no folder where everybody may leave files");
#else
    if (::geteuid() != 0) {
        QSKIP("only root may give links away");
    }
    HostProgram program;
    program.writeSettings(QStringLiteral("b.ini"), exampleSettings());
    program.setContent(QStringLiteral("target.sh"), "theirs");
    const HostProgram::Result result = program.runScript(QStringLiteral(
        "mkdir -m 1777 open && ln -s ../target.sh open/a.sh && ln -s ../target.sh open/b.sh && "
        "chown -h 65534 open/a.sh && \"$program\" export --to x264 -o open/b.sh b.ini 2> notes; "
        "\"$program\" export --to x264 -o open/a.sh b.ini"));
    QCOMPARE(result.error,
             prefix +
                 QStringLiteral("cannot write 'open/a.sh': the link belongs to another user\n"));
    QCOMPARE(result.exitCode, 2);
    QVERIFY(program.content(QStringLiteral("target.sh")).startsWith("x264 ")); // by one's own link
#endif
}

QTEST_GUILESS_MAIN(TestHostTerminal)
#include "tst_host_terminal.moc"
