// Which libraries the program works with: the same as the settings dialog.

#include "ExampleSettings.h"
#include "HostProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

class TestHostLibraries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void encoderIsTheOneThatCounts_data();
    void encoderIsTheOneThatCounts();
    void nothingIsLoadedFromTheCurrentFolder_data();
    void nothingIsLoadedFromTheCurrentFolder();
    void runPathsLeadToTheOwnFolderOnly_data();
    void runPathsLeadToTheOwnFolderOnly();
    void onlyThePartForWindowsNeedsWidgets_data();
    void onlyThePartForWindowsNeedsWidgets();
    void missingLibraryIsNamed_data();
    void missingLibraryIsNamed();
    void brokenLibraryIsToldInTheLoadersWords();
    void libraryWithoutItsFunctionIsRefused();
};

namespace
{

const QString prefix = QStringLiteral("kv-mvc-settings: ");

QStringList words(const QString& line)
{
    return line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

#ifdef Q_OS_WIN
const QString searchVariable = QStringLiteral("PATH");
const QLatin1Char separator(';');
#else
const QString searchVariable = QStringLiteral("LD_LIBRARY_PATH");
const QLatin1Char separator(':');
#endif

/// Two encoders that their defaults tell apart, and a file that is none.
const QString sourceOf(const HostProgram& program, const QString& kind)
{
    if (kind == QStringLiteral("broken")) {
        program.setContent(QStringLiteral("broken"), "no library");
        return program.path(QStringLiteral("broken"));
    }
    return HostProgram::stubPath(QStringLiteral("stub_encoder") + (kind == QStringLiteral("other")
                                                                       ? QStringLiteral("_other")
                                                                       : QString()));
}

/// @param files "NAME=KIND NAME=KIND": libraries to be put in a folder.
void fill(const HostProgram& program, const QString& folder, const QString& files)
{
    QDir().mkpath(folder);
    const QString suffix = QFileInfo(program.libraryPath(QStringLiteral("x"))).fileName().mid(1);
    for (const QString& file : words(files)) {
        const QString name = folder + QLatin1Char('/') + file.section(QLatin1Char('='), 0, 0);
        QDir().mkpath(QFileInfo(name).path());
        QVERIFY(QFile::copy(sourceOf(program, file.section(QLatin1Char('='), 1)), name + suffix));
    }
}

QString folderOf(const QString& file)
{
    return QFileInfo(file).path();
}

} // namespace

void TestHostLibraries::encoderIsTheOneThatCounts_data()
{
    QTest::addColumn<QString>("beside");
    QTest::addColumn<QString>("system");
    QTest::addColumn<QString>("result");
    const auto row = [](const char* name, const char* beside, const char* system,
                        const char* result) {
        QTest::newRow(name) << QString::fromLatin1(beside) << QString::fromLatin1(system)
                            << QString::fromLatin1(result);
    };
    row("beside the program", "kv_mvcenc=first", "", "1001");
    row("where the system looks", "", "kv_mvcenc=other", "5001");
    row("beside before the system", "kv_mvcenc=first", "kv_mvcenc=other", "1001");
    row("first name before the second", "kv_mvcenc_b=other kv_mvcenc=first", "", "5001");
    row("first name before the folder", "kv_mvcenc=first", "kv_mvcenc_b=other", "5001");
    row("second name where the first is broken", "kv_mvcenc_b=broken kv_mvcenc=first", "", "1001");
    row("broken one beside counts", "kv_mvcenc=broken", "kv_mvcenc=other", "refused");
    row("broken ones beside count, each", "kv_mvcenc_b=broken kv_mvcenc=broken",
        "kv_mvcenc_b=other kv_mvcenc=other", "refused");
    row("no other prefix", "libkv_mvcenc=first", "", "refused");
    row("no folder of a processor", "haswell/kv_mvcenc=first", "", "refused");
    row("nowhere", "", "", "refused");
}

void TestHostLibraries::encoderIsTheOneThatCounts()
{
    QFETCH(QString, beside);
    QFETCH(QString, system);
    QFETCH(QString, result);
    const HostProgram program;
    fill(program, folderOf(program.program()), beside);
    const QString systemFolder = program.path(QStringLiteral("system"));
    fill(program, systemFolder, system);
    const HostProgram::Result run =
        program.run({QStringLiteral("defaults"), QStringLiteral("1")},
                    {{searchVariable, QDir::toNativeSeparators(systemFolder) + separator +
                                          qEnvironmentVariable(searchVariable.toLatin1())}});
    if (result == QStringLiteral("refused")) {
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.output, QString());
        QVERIFY2(run.error.contains(QStringLiteral("kv_mvcenc")), qPrintable(run.error));
        return;
    }
    QCOMPARE(run.error, QString());
    QVERIFY2(run.output.contains(QStringLiteral("width = ") + result), qPrintable(run.output));
    QCOMPARE(run.exitCode, 0);
}

void TestHostLibraries::nothingIsLoadedFromTheCurrentFolder_data()
{
    QTest::addColumn<QString>("planted");
    QTest::addColumn<QString>("arguments");
    QTest::newRow("encoder") << QStringLiteral("kv_mvcenc") << QStringLiteral("defaults 1");
    QTest::newRow("encoder's first name")
        << QStringLiteral("kv_mvcenc_b") << QStringLiteral("defaults 1");
    QTest::newRow("settings files")
        << QStringLiteral("kv_mvc_settings_io") << QStringLiteral("show good.ini");
    QTest::newRow("dialog") << QStringLiteral("kv_config_gui_mvc")
                            << QStringLiteral("edit good.ini");
    QTest::newRow("part for windows")
        << QStringLiteral("kv_mvc_settings_window") << QStringLiteral("edit good.ini");
}

void TestHostLibraries::nothingIsLoadedFromTheCurrentFolder()
{
    QFETCH(QString, planted);
    QFETCH(QString, arguments);
    HostProgram program;
    program.writeSettings(QStringLiteral("good.ini"), exampleSettings());
    program.addStub(QStringLiteral("stub_module"), QStringLiteral("kv_config_gui_mvc"));
    program.removeLibrary(planted);
    // Whatever the library does: that it is not found shows that it was not loaded.
    fill(program, program.path(QString()), planted + QStringLiteral("=other"));
    const HostProgram::Result result = program.run(words(arguments));
    QVERIFY2(result.error.startsWith(prefix + QStringLiteral("cannot find the library ")),
             qPrintable(result.error));
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
}

void TestHostLibraries::runPathsLeadToTheOwnFolderOnly_data()
{
    QTest::addColumn<QString>("file");
    for (const char* name : {"kv-mvc-settings", "kv_mvc_settings_io.so", "kv_mvcenc.so",
                             "kv_mvc_settings_window.so"}) {
        QTest::newRow(name)
            << QDir(qEnvironmentVariable("KV_BIN_DIR")).filePath(QString::fromLatin1(name));
    }
}

void TestHostLibraries::runPathsLeadToTheOwnFolderOnly()
{
#ifdef Q_OS_WIN
    QSKIP("Windows has no run paths");
#endif
    QFETCH(QString, file);
    QFile library(file);
    QVERIFY(library.open(QIODevice::ReadOnly));
    const QByteArray content = library.readAll();
    const auto start = content.indexOf("$ORIGIN");
    QVERIFY(start >= 0);
    QCOMPARE(QByteArray(content.constData() + start), QByteArray("$ORIGIN"));
}

void TestHostLibraries::onlyThePartForWindowsNeedsWidgets_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("needed");
    const HostProgram program;
    QTest::newRow("program") << QFileInfo(program.program()).fileName() << false;
    QTest::newRow("part for windows")
        << QFileInfo(program.libraryPath(QStringLiteral("kv_mvc_settings_window"))).fileName()
        << true;
}

// Most of what a command takes is the loader's, of each library that the program names.
void TestHostLibraries::onlyThePartForWindowsNeedsWidgets()
{
    QFETCH(QString, file);
    QFETCH(bool, needed);
    QFile binary(QDir(qEnvironmentVariable("KV_BIN_DIR")).filePath(file));
    QVERIFY(binary.open(QIODevice::ReadOnly));
    const QByteArray content = binary.readAll();
    const QByteArray toolkit = "Qt" + QByteArray::number(QT_VERSION_MAJOR);
    QVERIFY(content.contains(toolkit + "Core"));
    QCOMPARE(content.contains(toolkit + "Widgets"), needed);
    // By the widgets alone.
    QVERIFY(needed || !content.contains(toolkit + "Gui"));
}

void TestHostLibraries::missingLibraryIsNamed_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("library");
    QTest::newRow("settings files")
        << QStringLiteral("show good.ini") << QStringLiteral("kv_mvc_settings_io");
    QTest::newRow("encoder") << QStringLiteral("check good.ini") << QStringLiteral("kv_mvcenc");
    QTest::newRow("dialog") << QStringLiteral("edit good.ini")
                            << QStringLiteral("kv_config_gui_mvc");
    QTest::newRow("part for windows")
        << QStringLiteral("edit good.ini") << QStringLiteral("kv_mvc_settings_window");
}

void TestHostLibraries::missingLibraryIsNamed()
{
    QFETCH(QString, arguments);
    QFETCH(QString, library);
    HostProgram program;
    program.writeSettings(QStringLiteral("good.ini"), exampleSettings());
    program.addStub(QStringLiteral("stub_module"), QStringLiteral("kv_config_gui_mvc"));
    program.removeLibrary(library);
    const HostProgram::Result result = program.run(words(arguments));
    QVERIFY2(result.error.startsWith(prefix + QStringLiteral("cannot find the library ") + library +
                                     QLatin1Char('.')),
             qPrintable(result.error));
    QCOMPARE(result.error.count(QLatin1Char('\n')), 1);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
}

void TestHostLibraries::brokenLibraryIsToldInTheLoadersWords()
{
    const HostProgram program;
    fill(program, folderOf(program.program()), QStringLiteral("kv_mvcenc=broken"));
    const HostProgram::Result result =
        program.run({QStringLiteral("defaults"), QStringLiteral("0")});
    QVERIFY2(QDir::fromNativeSeparators(result.error).contains(QStringLiteral("bin/kv_mvcenc.")),
             qPrintable(result.error));
    QVERIFY2(!result.error.contains(QStringLiteral("cannot find")), qPrintable(result.error));
    QCOMPARE(result.error.count(QLatin1Char('\n')), 1);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
}

void TestHostLibraries::libraryWithoutItsFunctionIsRefused()
{
    HostProgram program;
    program.removeLibrary(QStringLiteral("kv_mvc_settings_io"));
    program.addStub(QStringLiteral("stub_encoder"), QStringLiteral("kv_mvc_settings_io"));
    program.setContent(QStringLiteral("a.ini"), "");
    const HostProgram::Result result =
        program.run({QStringLiteral("show"), QStringLiteral("a.ini")});
    QVERIFY2(result.error.endsWith(QStringLiteral(" has no function MVCConfigGetAPIExt\n")),
             qPrintable(result.error));
    QCOMPARE(result.error.count(QLatin1Char('\n')), 1);
    QCOMPARE(result.exitCode, 2);
}

QTEST_GUILESS_MAIN(TestHostLibraries)
#include "tst_host_libraries.moc"
