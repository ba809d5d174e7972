// Where the libraries are found that media files are read with: a host program, the settings file
// library, and stubs that write down when they are loaded, each in folders of their own.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace
{

#ifdef Q_OS_WIN
const QString suffix = QStringLiteral(".dll");
const QString systemPath = QStringLiteral("PATH");
#else
const QString suffix = QStringLiteral(".so");
const QString systemPath = QStringLiteral("LD_LIBRARY_PATH");
#endif

/// Library files that are there: "folder/base name"; with an exclamation mark, no real ones.
using Files = QStringList;

class TestMediaLibraries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void librariesAreFoundAsTheDialogFindsThem_data();
    void librariesAreFoundAsTheDialogFindsThem();
    void theCurrentFolderHasNone();

private:
    /// What is loaded when the host program reads a media file, and how that ends.
    static QStringList loadedWith(const Files& files, const QString& current, int& result);
};

/// Copies the stub that such a library is, or makes a file that cannot be loaded.
void put(const QString& folder, QString file)
{
    const bool broken = file.endsWith(QLatin1Char('!'));
    if (broken) {
        file.chop(1);
    }
    const QString path = folder + QLatin1Char('/') + file + suffix;
    const char* stub = file.contains(QLatin1String("probe")) ? "KV_STUB_PROBE" : "KV_STUB_ENCODER";
    QFile text(path);
    if (broken) {
        QVERIFY(text.open(QIODevice::WriteOnly) && text.write("no library") > 0);
    } else {
        QVERIFY(QFile::copy(qEnvironmentVariable(stub), path));
    }
}

QStringList TestMediaLibraries::loadedWith(const Files& files, const QString& current, int& result)
{
    QTemporaryDir folder;
    const auto in = [&](const QString& name) { return folder.path() + QLatin1Char('/') + name; };
    for (const char* name : {"host", "own", "system", "else"}) {
        QDir(folder.path()).mkdir(QLatin1String(name));
    }
    const QString program = qEnvironmentVariable("KV_IMPORT_HOST");
    const QString host = in(QStringLiteral("host/") + QFileInfo(program).fileName());
    const QString library = in(QStringLiteral("own/kv_mvc_settings_io") + suffix);
    QFile::copy(program, host);
    QFile::copy(qEnvironmentVariable("KV_BIN_DIR") + QStringLiteral("/kv_mvc_settings_io") + suffix,
                library);
    for (const QString& file : files) {
        put(folder.path(), file);
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("KV_STUB_LOG"), in(QStringLiteral("log")));
    const QString former = environment.value(systemPath);
    environment.insert(systemPath, in(QStringLiteral("system")) +
                                       (former.isEmpty() ? QString() : QDir::listSeparator()) +
                                       former);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(in(current));
    process.start(host, {library, in(QStringLiteral("film.mp4"))});
    result = process.waitForFinished(30000) ? process.exitCode() : -1;
    QStringList loaded;
    QFile log(in(QStringLiteral("log")));
    if (log.open(QIODevice::ReadOnly | QIODevice::Text)) {
        for (const QByteArray& line : log.readAll().split('\n')) {
            if (line.startsWith("load ")) {
                loaded += QDir::fromNativeSeparators(QString::fromUtf8(line.mid(5))).remove(suffix);
            }
        }
    }
    return loaded;
}

void TestMediaLibraries::librariesAreFoundAsTheDialogFindsThem_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("loaded");
    const auto row = [](const char* name, const char* files, const char* loaded) {
        const auto words = [](const char* text) {
            return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        };
        QTest::newRow(name) << words(files) << words(loaded);
    };
    row("the host's before the library's own",
        "host/kv_media_probe own/kv_media_probe host/kv_mvcenc own/kv_mvcenc",
        "host/kv_media_probe host/kv_mvcenc");
    row("each by itself", "own/kv_media_probe host/kv_mvcenc own/kv_mvcenc",
        "own/kv_media_probe host/kv_mvcenc");
    row("the library's own", "own/kv_media_probe own/kv_mvcenc",
        "own/kv_media_probe own/kv_mvcenc");
    row("the first names before the second",
        "own/kv_media_probe own/kv_media_probe_x own/kv_mvcenc own/kv_mvcenc_b",
        "own/kv_media_probe_x own/kv_mvcenc_b");
    row("the first name anywhere before the second",
        "host/kv_media_probe own/kv_media_probe_x host/kv_mvcenc own/kv_mvcenc_b",
        "own/kv_media_probe_x own/kv_mvcenc_b");
    row("what the host has counts, even when it cannot be loaded",
        "own/kv_media_probe host/kv_mvcenc_b! own/kv_mvcenc_b host/kv_mvcenc",
        "own/kv_media_probe host/kv_mvcenc");
#ifndef Q_OS_WIN
    row("the library's own before the system's",
        "own/kv_media_probe system/kv_media_probe "
        "own/kv_mvcenc system/kv_mvcenc",
        "own/kv_media_probe own/kv_mvcenc");
    row("the system's", "system/kv_media_probe system/kv_mvcenc_b",
        "system/kv_media_probe system/kv_mvcenc_b");
#endif
}

void TestMediaLibraries::librariesAreFoundAsTheDialogFindsThem()
{
    QFETCH(QStringList, files);
    QFETCH(QStringList, loaded);
    int result = -1;
    QCOMPARE(loadedWith(files, QStringLiteral("else"), result), loaded);
    QCOMPARE(result, 0);
}

/// A film's folder may hold anything.
void TestMediaLibraries::theCurrentFolderHasNone()
{
    int result = -1;
    QCOMPARE(loadedWith({QStringLiteral("else/kv_media_probe"), QStringLiteral("else/kv_mvcenc")},
                        QStringLiteral("else"), result),
             QStringList());
    QCOMPARE(result, 1);
}

} // namespace

QTEST_GUILESS_MAIN(TestMediaLibraries)
#include "tst_media_libraries.moc"
