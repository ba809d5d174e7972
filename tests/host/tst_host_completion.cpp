// The completions of all shells know each command and option that the help pages have, and the
// examples of these pages work.

#include "ExampleSettings.h"
#include "HostProgram.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

class TestHostCompletion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCommandAndOptionIsOffered_data();
    void everyCommandAndOptionIsOffered();
    void filesAreWellFormed_data();
    void filesAreWellFormed();
    void keysAreThoseOfSettings_data();
    void keysAreThoseOfSettings();
    void fishOffers_data();
    void fishOffers();
    void examplesRun_data();
    void examplesRun();
};

namespace
{

const QString name = QStringLiteral("kv-mvc-settings");

/// What a shell is called with; empty where it is not installed.
struct Shell {
    const char* program;
    const char* file;
    /// Prints what is offered for the last of the words behind the file and the program.
    const char* script;
};

/// Stands in for zsh's own functions: prints the options, as "--option[...]", or the commands.
constexpr char zshScript[] = R"(
    _arguments() {
        if (( first && $#words > 2 )); then
            state=argument
            shift words
        else
            print -rl -- $@
            state=command
        fi
        first=0
    }
    _describe() { print -rl -- ${${(P)2}%%:*} }
    file=$1 first=1 words=("${@:2}")
    source $file)";

constexpr char bashScript[] = R"(
    file=$1
    shift
    source "$file"
    complete -p kv-mvc-settings > /dev/null || exit 1
    COMP_WORDS=("$@")
    COMP_CWORD=$(($# - 1))
    _kv_mvc_settings "$1" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
    printf '%s\n' "${COMPREPLY[@]}")";

constexpr char fishScript[] = R"(
    source $argv[1]
    function kv-mvc-settings
        $program $argv
    end
    set -g program $argv[2]
    complete -C "kv-mvc-settings $argv[3..]")";

const Shell shells[] = {{KV_BASH, "kv-mvc-settings.bash", bashScript},
                        {KV_ZSH, "_kv-mvc-settings", zshScript},
                        {KV_FISH, "kv-mvc-settings.fish", fishScript}};

QString shellName(const Shell& shell)
{
    return QString::fromLatin1(shell.file);
}

/// @param arguments Of the shell, without its own settings.
QString runShell(const Shell& shell, const HostProgram& program, const QStringList& arguments)
{
    QProcess process;
    process.setWorkingDirectory(program.path(QString()));
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert(QStringLiteral("HOME"), program.path(QString()));
    process.setProcessEnvironment(variables);
    const bool isFish = shellName(shell).endsWith(QStringLiteral(".fish"));
    const bool isBash = shellName(shell).endsWith(QStringLiteral(".bash"));
    process.start(QString::fromLatin1(shell.program),
                  QStringList{isFish   ? QStringLiteral("--no-config")
                              : isBash ? QStringLiteral("--norc")
                                       : QStringLiteral("-f")} +
                      arguments);
    if (!process.waitForFinished() || process.exitCode() != 0) {
        qWarning("%s: %s", shell.program, process.readAllStandardError().constData());
    }
    const QByteArray complaints = process.readAllStandardError();
    return complaints.isEmpty() ? QString::fromUtf8(process.readAllStandardOutput())
                                : QString::fromUtf8(complaints);
}

/// What is offered where the last word of the line, after its last blank, is being typed.
QStringList offers(const Shell& shell, const HostProgram& program, const QString& line)
{
    const bool isFish = shellName(shell).endsWith(QStringLiteral(".fish"));
    const QString file = QStringLiteral(KV_SOURCE_DIR "/host/completion/") + shellName(shell);
    QStringList arguments = {QStringLiteral("-c"), QString::fromLatin1(shell.script)};
    if (!isFish) {
        arguments << QStringLiteral("shell"); // which is the script's own name
    }
    arguments << file << program.program();
    arguments += isFish ? QStringList{line} : line.split(QLatin1Char(' '));
    static const QRegularExpression zshOption(
        QStringLiteral("^(?:\\([^)]*\\))?\\*?(--[a-z-]+)\\["));
    QStringList words;
    const QStringList lines =
        runShell(shell, program, arguments).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& offer : lines) {
        const auto option = zshOption.match(offer);
        words << (option.hasMatch() ? option.captured(1) : offer.section(QLatin1Char('\t'), 0, 0));
    }
    words.sort();
    words.removeDuplicates();
    return words;
}

QStringList optionsOf(const QString& help)
{
    static const QRegularExpression option(QStringLiteral("^  (?:-\\w, )?(--[a-z-]+)"),
                                           QRegularExpression::MultilineOption);
    QStringList options;
    for (auto match = option.globalMatch(help); match.hasNext();) {
        options << match.next().captured(1);
    }
    options.sort();
    return options;
}

QStringList commandsOf(const QString& help)
{
    static const QRegularExpression command(QStringLiteral("^  ([a-z]+) "),
                                            QRegularExpression::MultilineOption);
    QStringList commands;
    for (auto match = command.globalMatch(help); match.hasNext();) {
        commands << match.next().captured(1);
    }
    commands.sort();
    return commands;
}

QStringList startingWith(const QString& start, QStringList words)
{
    return words.filter(QRegularExpression(QStringLiteral("^%1").arg(start)));
}

/// A row for each shell.
void addShells()
{
    QTest::addColumn<int>("at");
    for (int at = 0; at < int(std::size(shells)); ++at) {
        QTest::newRow(shells[at].file) << at;
    }
}

#define KV_FETCH_SHELL(shell)                                                                      \
    QFETCH(int, at);                                                                               \
    const Shell& shell = shells[at];                                                               \
    if (QByteArray(shell.program).isEmpty()) {                                                     \
        QSKIP("the shell is not installed");                                                       \
    }

} // namespace

void TestHostCompletion::everyCommandAndOptionIsOffered_data()
{
    addShells();
}

void TestHostCompletion::everyCommandAndOptionIsOffered()
{
    KV_FETCH_SHELL(shell);
    const HostProgram program;
    const QString help = program.run({QStringLiteral("--help")}).output;
    const QStringList commands = commandsOf(help);
    QVERIFY(commands.size() >= 9);
    QCOMPARE(startingWith(QStringLiteral("[a-z]"), offers(shell, program, QString()))
                 .join(QLatin1Char(' ')),
             commands.join(QLatin1Char(' ')));
    QCOMPARE(startingWith(QStringLiteral("--"), offers(shell, program, QStringLiteral("--")))
                 .join(QLatin1Char(' ')),
             QStringLiteral("--help --version"));
    for (const QString& command : commands) {
        const QString page = program.run({command, QStringLiteral("--help")}).output;
        const QStringList offered = offers(shell, program, command + QStringLiteral(" --"));
        QCOMPARE(startingWith(QStringLiteral("--"), offered).join(QLatin1Char(' ')),
                 optionsOf(page).join(QLatin1Char(' ')));
    }
}

void TestHostCompletion::filesAreWellFormed_data()
{
    addShells();
}

void TestHostCompletion::filesAreWellFormed()
{
    KV_FETCH_SHELL(shell);
    const HostProgram program;
    QCOMPARE(runShell(shell, program,
                      {QStringLiteral("-n"),
                       QStringLiteral(KV_SOURCE_DIR "/host/completion/") + shellName(shell)}),
             QString());
}

void TestHostCompletion::keysAreThoseOfSettings_data()
{
    addShells();
}

void TestHostCompletion::keysAreThoseOfSettings()
{
    KV_FETCH_SHELL(shell);
    HostProgram program;
    program.addBuiltLibrary(QStringLiteral("kv_mvcenc"));
    if (shellName(shell).startsWith(QLatin1Char('_'))) {
        QSKIP("zsh asks for them in the middle of its own functions");
    }
    const QString plain = QStringLiteral("vbv_initial= vbv_target= video_type=");
    const QString second = QStringLiteral("view1.vbv_initial= view1.vbv_target= view1.video_type=");
    for (const QString& beginning :
         {QStringLiteral("set a.ini "), QStringLiteral("set a.ini width=1 "),
          QStringLiteral("defaults 2 --set ")}) {
        QCOMPARE(offers(shell, program, beginning + QLatin1Char('v')).join(QLatin1Char(' ')),
                 plain);
        QCOMPARE(
            offers(shell, program, beginning + QStringLiteral("view1.v")).join(QLatin1Char(' ')),
            second);
    }
}

void TestHostCompletion::fishOffers_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("words");
    const auto row = [](const char* line, const char* words) {
        QTest::newRow(line) << QString::fromLatin1(line) << QString::fromLatin1(words);
    };
    row("show ", "a.ini b.CFG c.json folder/");
    row("show folder/", "folder/c.cfg");
    row("check a.ini b", "b.CFG");
    row("check a.ini -o ", "a.ini b.CFG folder/");
    row("check --language ", "de en ja");
    row("defaults ", "0 1 2 3 blu-ray-3d multiview-high none stereo-high");
    row("import ", "disc.m2ts folder/ movie.MP4 stream.ts");
    row("export --to ", "ffmpeg jm x264");
    row("edit --hosting ", "host native own");
    row("edit --lock size,v", "size,video-type size,views");
    row("edit --preset s", "stereo-high");
    row("edit --title ", "");
    row("edit --banner st", "stream.ts");
}

void TestHostCompletion::fishOffers()
{
    const Shell& shell = shells[2];
    if (QByteArray(shell.program).isEmpty()) {
        QSKIP("the shell is not installed");
    }
    QFETCH(QString, line);
    QFETCH(QString, words);
    const HostProgram program;
    for (const char* file :
         {"a.ini", "b.CFG", "c.json", "disc.m2ts", "movie.MP4", "stream.ts", "notes.txt"}) {
        program.setContent(QString::fromLatin1(file), "");
    }
    QVERIFY(QDir(program.path(QString())).mkdir(QStringLiteral("folder")));
    program.setContent(QStringLiteral("folder/c.cfg"), "");
    QCOMPARE(offers(shell, program, line).join(QLatin1Char(' ')), words);
}

void TestHostCompletion::examplesRun_data()
{
    QTest::addColumn<QString>("command");
    const QString help = HostProgram().run({QStringLiteral("--help")}).output;
    for (const QString& command : commandsOf(help)) {
        QTest::newRow(qPrintable(command)) << command;
    }
}

void TestHostCompletion::examplesRun()
{
    QFETCH(QString, command);
    const QString help = HostProgram().run({command, QStringLiteral("--help")}).output;
    const QStringList examples = help.section(QStringLiteral("\nExamples:\n"), 1)
                                     .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(examples.size(), 2); // and nothing behind them
    for (const QString& example : examples) {
        HostProgram program;
        program.addBuiltLibrary(QStringLiteral("kv_mvcenc"));
        program.addStub(QStringLiteral("stub_module"), QStringLiteral("kv_config_gui_mvc"));
        if (command == QStringLiteral("import") && !program.addMediaProbe()) {
            QSKIP("there is no kv_media_probe, for want of FFmpeg's libraries");
        }
        program.setContent(QStringLiteral("film.mp4"),
                           "YUV4MPEG2 W64 H64 F25:1 Ip A1:1 C420jpeg\nFRAME\n" +
                               QByteArray(64 * 64 * 3 / 2, '\x80'));
        const HostProgram::Result made =
            program.run({QStringLiteral("defaults"), QStringLiteral("2"), QStringLiteral("-o"),
                         QStringLiteral("film.cfg")});
        QCOMPARE(made.exitCode, 0);
        program.writeSettings(QStringLiteral("other.cfg"), exampleSettings());
        QStringList words = example.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        QCOMPARE(words.takeFirst(), name);
        QCOMPARE(words.first(), command);
        const HostProgram::Result result = program.run(words);
        const bool differs = command == QStringLiteral("diff");
        QVERIFY2(result.exitCode == (differs ? 1 : 0), qPrintable(result.error + result.output));
    }
}

QTEST_GUILESS_MAIN(TestHostCompletion)
#include "tst_host_completion.moc"
