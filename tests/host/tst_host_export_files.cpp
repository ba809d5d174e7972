// export: the files that it is told of, and those that it writes.

#include "HostProgram.h"

#include "../settings_io/EncoderLibrary.h"

#include <QDir>
#include <QFile>
#include <QTest>

class TestHostExportFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachViewHasItsInput_data();
    void eachViewHasItsInput();
    void namesReachTheShellAsTheyAre_data();
    void namesReachTheShellAsTheyAre();
    void namesAreNoAddressesOfFfmpeg_data();
    void namesAreNoAddressesOfFfmpeg();
    void standardStreamsAreTold_data();
    void standardStreamsAreTold();
    void configurationHasTwoFiles();
    void configurationOfOneViewHasOne();
    void configurationNamesFilesFromItsFolder();
    void settingsAreNotWrittenOver_data();
    void settingsAreNotWrittenOver();
    void outputReplacesAFile();
    void settingsComeOnStandardInput();

private:
    /// The preset's settings, in `movie.ini`.
    void write(int preset, int views) const;

    HostProgram m_program;
};

namespace
{

const QString settingsFile = QStringLiteral("movie.ini");

QStringList words(const char* text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

void TestHostExportFiles::write(int preset, int views) const
{
    KvMvcSettings settings = kvtest::EncoderLibrary().defaults(preset);
    settings.num_views = views;
    m_program.writeSettings(settingsFile, settings);
}

void TestHostExportFiles::eachViewHasItsInput_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("input");
    const auto row = [](const char* arguments, const char* input) {
        QTest::newRow(arguments) << QString::fromUtf8(arguments) << QString::fromUtf8(input);
    };
    row("--input a.y4m", "a.y4m");
    row("--input a.y4m --input b.y4m", "a.y4m");
    row("--input a.y4m --input b.y4m --view 0", "a.y4m");
    row("--input a.y4m --input b.y4m --view 1", "b.y4m");
    row("--input b.y4m --view 1", "b.y4m");
    row("--view 2", "INPUT2.yuv");
    row("--input a.y4m --input b.y4m --input c.y4m --view 2", "c.y4m");
}

void TestHostExportFiles::eachViewHasItsInput()
{
    QFETCH(QString, arguments);
    QFETCH(QString, input);
    write(KV_MVC_MULTIVIEW_HIGH, 4);
    const HostProgram::Result result =
        m_program.run(words("export movie.ini --to x264") + arguments.split(QLatin1Char(' ')));
    QCOMPARE(result.output.trimmed().section(QLatin1Char(' '), -1), input);
}

void TestHostExportFiles::namesReachTheShellAsTheyAre_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("arrives");
    const auto row = [](const char* name) {
        QTest::newRow(name) << QString::fromUtf8(name) << QString::fromUtf8(name);
    };
    row("plain-1_2,3:4@5%6+7=8.y4m");
    row("a blank.y4m");
    row("it's.y4m");
    row("'.y4m");
    row("$HOME `id` $(id) \"quoted\" \\.y4m");
    row("*?[a]{b,c}~;&|<>(#)!.y4m");
    row("two\nlines\tand\ttabs.y4m");
    row("Grüße 日本.y4m");
    QTest::newRow("-option.y4m") << QStringLiteral("-option.y4m")
                                 << QStringLiteral("./-option.y4m");
}

void TestHostExportFiles::namesReachTheShellAsTheyAre()
{
#ifdef Q_OS_WIN
    QSKIP("there is no shell");
#endif
    QFETCH(QString, name);
    QFETCH(QString, arrives);
    write(KV_MVC_VIDEO_TYPE_NONE, 1);
    const HostProgram::Result result = m_program.run(
        {QStringLiteral("export"), QStringLiteral("--to"), QStringLiteral("x264"),
         QStringLiteral("--input"), name, QStringLiteral("--stream"), name, settingsFile});
    QCOMPARE(result.exitCode, 0);
    const HostProgram::Result words = m_program.runScript(
        QStringLiteral("x264() { while [ $# -gt 3 ]; do shift; done; printf '<%s>' \"$@\"; }\n") +
        result.output);
    QCOMPARE(words.output, QStringLiteral("<-o><%1><%2>").arg(name, arrives));
    QCOMPARE(words.error, QString());
}

void TestHostExportFiles::namesAreNoAddressesOfFfmpeg_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("arrives");
    const auto row = [](const char* name, const char* arrives) {
        QTest::newRow(name) << QString::fromUtf8(name) << QString::fromUtf8(arrives);
    };
    row("a.mkv", "a.mkv");
    row("12:30.mkv", "file:12:30.mkv");
    row("C:/a.mkv", "file:C:/a.mkv");
    row("-a.mkv", "./-a.mkv");
    row("http://host/a.mkv", "http://host/a.mkv");
}

void TestHostExportFiles::namesAreNoAddressesOfFfmpeg()
{
    QFETCH(QString, name);
    QFETCH(QString, arrives);
    write(KV_MVC_VIDEO_TYPE_NONE, 1);
    const HostProgram::Result result =
        m_program.run(words("export movie.ini --to ffmpeg --input") +
                      QStringList{name, QStringLiteral("--stream"), name});
    QVERIFY2(result.output.contains(QStringLiteral(" -i %1 ").arg(arrives)),
             qPrintable(result.output));
    QVERIFY2(result.output.endsWith(QStringLiteral(" %1\n").arg(arrives)),
             qPrintable(result.output));
}

void TestHostExportFiles::standardStreamsAreTold_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("end");
    QTest::newRow("x264") << QStringLiteral("x264") << QStringLiteral("x264 --demuxer y4m ")
                          << QStringLiteral(" -o - -\n");
    QTest::newRow("ffmpeg") << QStringLiteral("ffmpeg")
                            << QStringLiteral(" -f yuv4mpegpipe -r 24000/1001 -i - ")
                            << QStringLiteral(" -f h264 -\n");
}

void TestHostExportFiles::standardStreamsAreTold()
{
    QFETCH(QString, target);
    QFETCH(QString, input);
    QFETCH(QString, end);
    write(KV_MVC_VIDEO_TYPE_NONE, 1);
    const HostProgram::Result result =
        m_program.run(words("export movie.ini --input - --stream - --to") + QStringList{target});
    QVERIFY2(result.output.contains(input), qPrintable(result.output));
    QVERIFY2(result.output.endsWith(end), qPrintable(result.output));
}

void TestHostExportFiles::configurationHasTwoFiles()
{
    HostProgram program;
    program.writeSettings(settingsFile, kvtest::EncoderLibrary().defaults(KV_MVC_STEREO_HIGH));
    const HostProgram::Result result = program.run(
        words("export movie.ini --to jm --input left.yuv --input right.yuv --stream out.264 -o "
              "film.cfg"));
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.error,
             QStringLiteral("note: VBV buffer initial, VBV buffer target: JM writes rate and size "
                            "of the buffer into the stream, but keeps none\n"
                            "note: Enable scene detection: JM looks for no scene changes\n"
                            "note: Target bitrate (bps), Max bitrate (bps), Bitrate buffer: JM "
                            "codes the second view as the base view\n"));
    for (const char* name : {"film.cfg", "film_view1.cfg"}) {
        QFile golden(QStringLiteral(KV_GOLDEN_DIR "/") + QLatin1String(name));
        QVERIFY(golden.open(QIODevice::ReadOnly | QIODevice::Text));
        QByteArray written = program.content(QString::fromUtf8(name));
        written.replace("\"NUL\"", "\"/dev/null\""); // of Windows
        QCOMPARE(QString::fromUtf8(written), QString::fromUtf8(golden.readAll()));
    }
}

void TestHostExportFiles::configurationOfOneViewHasOne()
{
    write(KV_MVC_STEREO_HIGH, 2);
    const HostProgram::Result result =
        m_program.run(words("export movie.ini --to jm --view 1 --input right.yuv"));
    QCOMPARE(result.exitCode, 0);
    for (const char* line : {"\nInputFile                            = \"right.yuv\"\n",
                             "\nOutputFile                           = \"OUTPUT.264\"\n",
                             "\nNumberOfViews                        = 1\n",
                             "\nProfileIDC                           = 100\n",
                             "\nBitrate                              = 10000000\n"}) {
        QVERIFY2(result.output.contains(QLatin1String(line)), line);
    }
    QVERIFY(!result.output.contains(QLatin1String("View1ConfigFile")));
}

void TestHostExportFiles::configurationNamesFilesFromItsFolder()
{
    write(KV_MVC_STEREO_HIGH, 2);
    QVERIFY(QDir(m_program.path(QString())).mkpath(QStringLiteral("deep/er")));
    const QString absolute = m_program.path(QStringLiteral("left.yuv"));
    const HostProgram::Result result = m_program.run(
        words("export movie.ini --to jm --stream deep/out.264 -o deep/er/film.cfg --input") +
        QStringList{absolute, QStringLiteral("--input"), QStringLiteral("deep/er/right.yuv")});
    QCOMPARE(result.exitCode, 0);
    const QByteArray film = m_program.content(QStringLiteral("deep/er/film.cfg"));
    QVERIFY2(film.contains(" = \"" + absolute.toUtf8() + "\"\n"), film.constData());
    QVERIFY2(film.contains("\nOutputFile                           = \"../out.264\"\n"),
             film.constData());
    QVERIFY2(film.contains("\nView1ConfigFile                      = \"film_view1.cfg\"\n"),
             film.constData());
    QVERIFY(m_program.content(QStringLiteral("deep/er/film_view1.cfg"))
                .contains("\nInputFile                            = \"right.yuv\"\n"));
}

void TestHostExportFiles::settingsAreNotWrittenOver_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("named");
    QTest::newRow("first file") << QStringLiteral("film.cfg") << QStringLiteral("film.cfg");
    QTest::newRow("other name") << QStringLiteral("film.cfg") << QStringLiteral("./film.cfg");
    QTest::newRow("second file") << QStringLiteral("film_view1.cfg") << QStringLiteral("film.cfg");
}

void TestHostExportFiles::settingsAreNotWrittenOver()
{
    QFETCH(QString, settings);
    QFETCH(QString, named);
    HostProgram program;
    program.writeSettings(settings, kvtest::EncoderLibrary().defaults(KV_MVC_STEREO_HIGH));
    const QByteArray content = program.content(settings);
    const HostProgram::Result result =
        program.run(words("export --to jm -o") + QStringList{named, settings});
    QVERIFY2(result.error.endsWith(QLatin1String("': the settings are in it\n")),
             qPrintable(result.error));
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(program.fileNames(), QStringList{settings});
    QCOMPARE(program.content(settings), content);
}

void TestHostExportFiles::outputReplacesAFile()
{
    write(KV_MVC_VIDEO_TYPE_NONE, 1);
    const QString expected = m_program.run(words("export --to x264 movie.ini")).output;
    for (const char* name : {"encode.sh", "encode.TXT", "encode"}) {
        m_program.setContent(QString::fromUtf8(name), "former");
        const HostProgram::Result result = m_program.run(words("export --to x264 movie.ini -o") +
                                                         QStringList{QString::fromUtf8(name)});
        QCOMPARE(result.error, QString());
        QCOMPARE(result.output, QString());
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(QString::fromUtf8(m_program.content(QString::fromUtf8(name))), expected);
    }
    QCOMPARE(m_program.run(words("export --to x264 movie.ini -o -")).output, expected);
}

void TestHostExportFiles::settingsComeOnStandardInput()
{
    write(KV_MVC_VIDEO_TYPE_NONE, 1);
    const HostProgram::Result result =
        m_program.run(words("export --to x264 -"), {}, m_program.content(settingsFile));
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, m_program.run(words("export --to x264 movie.ini")).output);
}

QTEST_GUILESS_MAIN(TestHostExportFiles)
#include "tst_host_export_files.moc"
