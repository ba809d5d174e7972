// The manual page and the shell completion know what the program knows, and every list of suffixes
// is the same.

#include "HostProgram.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

class TestHostDocuments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void manualPageIsWellFormed();
    void manualPageNamesEveryOption_data();
    void manualPageNamesEveryOption();
    void suffixesAreTheSameEverywhere_data();
    void suffixesAreTheSameEverywhere();
    void completionOffers_data();
    void completionOffers();
};

namespace
{

const QStringList commandNames = {QStringLiteral("edit"),   QStringLiteral("show"),
                                  QStringLiteral("check"),  QStringLiteral("report"),
                                  QStringLiteral("set"),    QStringLiteral("defaults"),
                                  QStringLiteral("diff"),   QStringLiteral("import"),
                                  QStringLiteral("export"), QStringLiteral("doctor")};

QString textOf(const char* name)
{
    QFile file(QString::fromUtf8(name));
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? QString::fromUtf8(file.readAll())
                                                            : QString();
}

/// @return The section of a command: from its heading to the next.
QString manualSection(const QString& command)
{
    const QString page = textOf(KV_MAN_PAGE).remove(QLatin1Char('\\'));
    const auto start = page.indexOf(QRegularExpression(
        QStringLiteral("^\\.SS .*\\b%1\\b").arg(command), QRegularExpression::MultilineOption));
    const auto end = page.indexOf(
        QRegularExpression(QStringLiteral("^\\.S[SH] "), QRegularExpression::MultilineOption),
        start + 1);
    return start < 0 ? QString() : page.mid(start, end - start);
}

} // namespace

void TestHostDocuments::manualPageIsWellFormed()
{
    if (QByteArray(KV_GROFF).isEmpty()) {
        QSKIP("groff is not installed");
    }
    QProcess groff;
    groff.start(QStringLiteral(KV_GROFF),
                {QStringLiteral("-t"), QStringLiteral("-man"), QStringLiteral("-Tutf8"),
                 QStringLiteral("-ww"), QStringLiteral("-z"), QStringLiteral(KV_MAN_PAGE)});
    QVERIFY(groff.waitForFinished());
    QCOMPARE(QString::fromUtf8(groff.readAllStandardError()), QString());
    QCOMPARE(groff.exitCode(), 0);
}

void TestHostDocuments::manualPageNamesEveryOption_data()
{
    QTest::addColumn<QString>("command");
    for (const QString& command : commandNames) {
        QTest::newRow(qPrintable(command)) << command;
    }
}

void TestHostDocuments::manualPageNamesEveryOption()
{
    QFETCH(QString, command);
    const QString section = manualSection(command);
    QVERIFY(!section.isEmpty());
    const HostProgram program;
    const QString help = program.run({command, QStringLiteral("--help")}).output;
    static const QRegularExpression option(QStringLiteral("^  (?:-\\w, )?(--[a-z-]+)"),
                                           QRegularExpression::MultilineOption);
    int options = 0;
    for (auto match = option.globalMatch(help); match.hasNext();) {
        const QString name = match.next().captured(1);
        if (name != QStringLiteral("--help")) { // of every command, so said once
            QVERIFY2(section.contains(name), qPrintable(name));
            ++options;
        }
    }
    QVERIFY(options > 0);
}

void TestHostDocuments::suffixesAreTheSameEverywhere_data()
{
    QTest::addColumn<QString>("file");
    // What the list stands in, and one suffix in it.
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QStringList>("expected");
    const QStringList settings = {QStringLiteral("cfg"), QStringLiteral("ini")};
    const QStringList media = {QStringLiteral("ifo"), QStringLiteral("m2p"),  QStringLiteral("m2t"),
                               QStringLiteral("m2v"), QStringLiteral("m4p"),  QStringLiteral("mp2"),
                               QStringLiteral("mp4"), QStringLiteral("mpeg"), QStringLiteral("mpg"),
                               QStringLiteral("mpv"), QStringLiteral("mxf"),  QStringLiteral("trp"),
                               QStringLiteral("ts"),  QStringLiteral("vob")};
    // What import reads under other names, too.
    const QStringList imported =
        QStringLiteral("264 265 asf avc avi flv h264 h265 hevc ifo m1v m2p m2t m2ts m2v m4p m4v "
                       "mk3d mkv mov mp2 mp4 mpeg mpg mpv mts mvc mxf ssif trp ts vc1 vob webm wmv "
                       "y4m")
            .split(QLatin1Char(' '));
    const auto row = [](const char* name, const char* file, const char* place, const char* suffix,
                        const QStringList& expected) {
        QTest::newRow(name) << QString::fromLatin1(KV_SOURCE_DIR "/") + QLatin1String(file)
                            << QString::fromLatin1(place) << QString::fromLatin1(suffix)
                            << expected;
    };
    const char* const header = "include/kv_config_gui_mvc/companions.h";
    row("header, settings", header, "KV_MVC_SETTINGS_SUFFIXES [^\\n]*", R"x("(\w+)")x", settings);
    row("header, media", header, "KV_MVC_MEDIA_SUFFIXES [^\"]*[^\\n]*", R"x("(\w+)")x", media);
    const char* const completion = "host/completion/kv-mvc-settings.bash";
    row("completion, settings", completion, "settings='[^']*'", "['|](\\w+)", settings);
    row("completion, media", completion, "media='[^']*'", "['|](\\w+)", imported);
    for (const char* file :
         {"host/completion/_kv-mvc-settings", "host/completion/kv-mvc-settings.fish"}) {
        row((std::string(file) + ", settings").c_str(), file, "\\bsettings[= ]'[^']*'",
            "['|](\\w+)", settings);
        row((std::string(file) + ", media").c_str(), file, "\\bmedia[= ]'[^']*'", "['|](\\w+)",
            imported);
    }
    const char* const manual = "docs/kv-mvc-settings.1";
    row("manual, settings", manual, "their names end in.*?upper or lower", "^\\.IR? \\.(\\w+)",
        settings);
    row("manual, media", manual, "Names of media files end in.*?\\n\\.PP", "^\\.IR? \\.(\\w+)",
        media);
    row("manual, import", manual, "What is read, with the names.*?tells its format",
        "[( ]\\.(\\w+)", imported);
    const char* const format = "docs/settings-file.md";
    row("format, settings", format, "The suffix decides.*?are settings", "`(\\w+)`", settings);
    row("format, media", format, "are settings; .*?are media", "`(\\w+)`", media);
}

void TestHostDocuments::suffixesAreTheSameEverywhere()
{
    QFETCH(QString, file);
    QFETCH(QString, place);
    QFETCH(QString, suffix);
    QFETCH(QStringList, expected);
    const QString text = textOf(file.toUtf8().constData());
    const QString list = QRegularExpression(place, QRegularExpression::DotMatchesEverythingOption |
                                                       QRegularExpression::MultilineOption)
                             .match(text)
                             .captured();
    QVERIFY2(!list.isEmpty(), qPrintable(place));
    QStringList found;
    const QRegularExpression one(suffix, QRegularExpression::MultilineOption);
    for (auto match = one.globalMatch(list); match.hasNext();) {
        found << match.next().captured(1);
    }
    found.sort();
    expected.sort();
    QCOMPARE(found, expected);
}

void TestHostDocuments::completionOffers_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("offers");
    const auto row = [](const char* line, const char* offers) {
        QTest::newRow(line) << QString::fromLatin1(line) << QString::fromLatin1(offers);
    };
    // The last word of the line, after its last blank, is being typed.
    row("", "--help --version check defaults diff doctor edit export import report set show");
    row("d", "defaults diff doctor");
    row("e", "edit export");
    row("--v", "--version");
    row("show ", "a.ini b.CFG folder");
    row("show b", "b.CFG");
    row("show folder/", "folder/c.cfg");
    row("show --", "--help --json");
    row("diff a.ini ", "a.ini b.CFG folder");
    row("check --", "--help --json --language --notes --output --strict");
    row("check --language ", "de en ja");
    row("report ", "a.ini b.CFG folder");
    row("report --", "--help --json --language");
    row("check a.ini b", "b.CFG");
    row("check a.ini -o ", "a.ini b.CFG folder");
    row("defaults ", "0 1 2 3 blu-ray-3d multiview-high none stereo-high");
    row("defaults s", "stereo-high");
    row("defaults 1 --output b", "b.CFG");
    row("defaults 1 --set ", "");
    row("set ", "a.ini b.CFG folder");
    row("set a.ini ", "");
    row("set -o b", "b.CFG");
    row("import ", "disc.m2ts folder movie.MP4 stream.ts");
    row("import movie.MP4 -o a", "a.ini");
    row("export ", "a.ini b.CFG folder");
    row("export --to ", "ffmpeg jm x264");
    row("export --to x264 --input s", "stream.ts");
    row("export --to x264 -o n", "notes.txt");
    row("export --view ", "");
    row("edit --no-b", "--no-banner --no-basic");
    row("edit --preset ", "0 1 2 3 blu-ray-3d multiview-high none stereo-high");
    row("edit --hosting ", "host native own");
    row("edit --lock ", "frame-rate level pixel-ratio profile size video-type views");
    row("edit --lock size,v", "size,video-type size,views");
    row("edit --banner st", "stream.ts");
    row("edit --title ", "");
    row("edit --title x a", "a.ini");
    row("unknown ", "");
}

void TestHostDocuments::completionOffers()
{
    if (QByteArray(KV_BASH).isEmpty()) {
        QSKIP("bash is not installed");
    }
    QFETCH(QString, line);
    QFETCH(QString, offers);
    const HostProgram program;
    for (const char* name :
         {"a.ini", "b.CFG", "disc.m2ts", "movie.MP4", "stream.ts", "notes.txt"}) {
        program.setContent(QString::fromLatin1(name), "");
    }
    QVERIFY(QDir(program.path(QString())).mkdir(QStringLiteral("folder")));
    program.setContent(QStringLiteral("folder/c.cfg"), "");

    const QString script = QStringLiteral(R"(
        source "$1"
        complete -p kv-mvc-settings > /dev/null || exit 1
        shift
        COMP_WORDS=("$@")
        COMP_CWORD=$(($# - 1))
        _kv_mvc_settings "$1" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
        printf '%s\n' "${COMPREPLY[@]}" | LC_ALL=C sort)");
    QProcess bash;
    bash.setWorkingDirectory(program.path(QString()));
    bash.start(QStringLiteral(KV_BASH),
               QStringList{QStringLiteral("--norc"), QStringLiteral("-c"), script,
                           QStringLiteral("bash"), QStringLiteral(KV_COMPLETION),
                           program.program()} +
                   line.split(QLatin1Char(' ')));
    QVERIFY(bash.waitForFinished());
    QCOMPARE(QString::fromUtf8(bash.readAllStandardError()), QString());
    QCOMPARE(bash.exitCode(), 0);
    QCOMPARE(QString::fromUtf8(bash.readAllStandardOutput())
                 .split(QLatin1Char('\n'), Qt::SkipEmptyParts)
                 .join(QLatin1Char(' ')),
             offers);
}

QTEST_GUILESS_MAIN(TestHostDocuments)
#include "tst_host_documents.moc"
