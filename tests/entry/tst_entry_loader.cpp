// One companion library: loading, resolving, errors kept for diagnosis, unloading.

#include "entry/LibraryLoader.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cstdint>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace
{

#ifdef Q_OS_WIN
const QString suffix = QStringLiteral(".dll");
#else
const QString suffix = QStringLiteral(".so");
#endif

using Function = std::int32_t (*)();

std::wstring stub(const char* name)
{
    return qEnvironmentVariable("KV_ENTRY_STUBS").toStdWString() + L'/' +
           QString::fromLatin1(name).toStdWString();
}

std::wstring stubFile(const char* name)
{
    return stub(name) + suffix.toStdWString();
}

bool isMapped(const char* name)
{
#ifdef Q_OS_WIN
    return GetModuleHandleW(stubFile(name).c_str()) != nullptr;
#else
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(name + suffix.toLatin1());
#endif
}

/// Whether the system's text names what was not found; that of Windows is the same for all names.
bool isAbout([[maybe_unused]] const char* name, const std::string& text)
{
#ifdef Q_OS_WIN
    return text.find("not found") != std::string::npos;
#else
    return text.find(name) != std::string::npos;
#endif
}

} // namespace

class TestEntryLoader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsEmpty();
    void loadsByBaseName();
    void extensionOfTheCaller_data();
    void extensionOfTheCaller();
    void resolvesFunctions();
    void missingLibrary();
    void missingFunction();
    void loadForgetsTheErrorBefore();
    void resolvingWithoutALibrary();
    void unloading();
    void reset();
    void loadReplacesWhatWasLoaded();
    void destructionUnloads();
    void namesOutsideAscii();
    void longNameIsCut();
    void errorTextOfALongNameIsCut();
};

void TestEntryLoader::beginsEmpty()
{
    const LibraryLoader loader;
    QVERIFY(!loader.isLoaded());
    QVERIFY(loader.fileName().empty());
    QCOMPARE(loader.lastErrorCode(), 0U);
    QVERIFY(loader.lastErrorText().empty());
}

void TestEntryLoader::loadsByBaseName()
{
    LibraryLoader loader;
    QVERIFY(loader.load(stub("stub_entry_empty")));
    QVERIFY(loader.isLoaded());
    QVERIFY(loader.fileName() == stubFile("stub_entry_empty"));
    QCOMPARE(loader.lastErrorCode(), 0U);
    QVERIFY(isMapped("stub_entry_empty"));
}

void TestEntryLoader::extensionOfTheCaller_data()
{
    QTest::addColumn<QString>("extension");
    QTest::newRow("plugin") << QStringLiteral("plugin");
    QTest::newRow("empty") << QStringLiteral("");
}

void TestEntryLoader::extensionOfTheCaller()
{
    QFETCH(QString, extension);
    QTemporaryDir directory;
    const QString base = directory.filePath(QStringLiteral("library"));
    QVERIFY(QFile::copy(QString::fromStdWString(stubFile("stub_entry_empty")),
                        base + QLatin1Char('.') + extension));
    LibraryLoader loader;
    QVERIFY(!loader.load(base.toStdWString()));
    QVERIFY(loader.load(base.toStdWString(), extension.toStdWString().c_str()));
    QVERIFY(loader.fileName() == (base + QLatin1Char('.') + extension).toStdWString());
}

void TestEntryLoader::resolvesFunctions()
{
    LibraryLoader loader;
    QVERIFY(loader.load(stub("stub_entry_empty")));
    const auto function = loader.resolve<Function>("kvStubIsHere");
    QVERIFY(function);
    QCOMPARE(function(), 1);
}

void TestEntryLoader::missingLibrary()
{
    LibraryLoader loader;
    QVERIFY(!loader.load(L"kv_no_such_library"));
    QVERIFY(!loader.isLoaded());
    QVERIFY(loader.fileName().empty());
    QCOMPARE(loader.lastErrorCode(), 126U);
    QVERIFY(isAbout("kv_no_such_library", loader.lastErrorText()));
}

void TestEntryLoader::missingFunction()
{
    LibraryLoader loader;
    QVERIFY(loader.load(stub("stub_entry_empty")));
    QVERIFY(!loader.resolve<Function>("noSuchFunction"));
    QCOMPARE(loader.lastErrorCode(), 127U);
    QVERIFY(isAbout("noSuchFunction", loader.lastErrorText()));
    // Kept until something replaces it.
    QVERIFY(loader.isLoaded());
    QVERIFY(loader.resolve<Function>("kvStubIsHere"));
    QCOMPARE(loader.lastErrorCode(), 127U);
}

void TestEntryLoader::loadForgetsTheErrorBefore()
{
    LibraryLoader loader;
    QVERIFY(!loader.load(L"kv_no_such_library"));
    QVERIFY(loader.load(stub("stub_entry_empty")));
    QCOMPARE(loader.lastErrorCode(), 0U);
    QVERIFY(loader.lastErrorText().empty());
}

void TestEntryLoader::resolvingWithoutALibrary()
{
    LibraryLoader loader;
    QVERIFY(!loader.resolve<Function>("malloc"));
    QVERIFY(!loader.load(L"kv_no_such_library"));
    QVERIFY(!loader.resolve<Function>("malloc"));
    // Nor one of a library that is unloaded.
    QVERIFY(loader.load(stub("stub_entry_empty")));
    loader.unload();
    QVERIFY(!loader.resolve<Function>("kvStubIsHere"));
}

void TestEntryLoader::unloading()
{
    LibraryLoader loader;
    loader.unload();
    QVERIFY(loader.load(stub("stub_entry_empty")));
    loader.unload();
    QVERIFY(!loader.isLoaded());
    QVERIFY(!isMapped("stub_entry_empty"));
    // The name stays for diagnosis.
    QVERIFY(loader.fileName() == stubFile("stub_entry_empty"));
    loader.unload();
    QVERIFY(!loader.isLoaded());
}

void TestEntryLoader::reset()
{
    LibraryLoader loader;
    QVERIFY(loader.load(stub("stub_entry_empty")));
    QVERIFY(!loader.resolve<Function>("noSuchFunction"));
    loader.unload();
    loader.reset();
    QVERIFY(!loader.isLoaded());
    QVERIFY(loader.fileName().empty());
    QCOMPARE(loader.lastErrorCode(), 0U);
    QVERIFY(loader.lastErrorText().empty());
}

void TestEntryLoader::loadReplacesWhatWasLoaded()
{
    LibraryLoader loader;
    QVERIFY(loader.load(stub("stub_entry_empty")));
    QVERIFY(loader.load(stub("stub_entry_encoder")));
    QVERIFY(!isMapped("stub_entry_empty"));
    QVERIFY(loader.resolve<Function>("mvcOutVideoDefaults"));
    QVERIFY(!loader.load(L"kv_no_such_library"));
    QVERIFY(!isMapped("stub_entry_encoder"));
    QVERIFY(!loader.isLoaded());
}

void TestEntryLoader::destructionUnloads()
{
    {
        LibraryLoader loader;
        QVERIFY(loader.load(stub("stub_entry_empty")));
    }
    QVERIFY(!isMapped("stub_entry_empty"));
}

void TestEntryLoader::namesOutsideAscii()
{
    // Of two, three and four bytes, whatever the locale.
    for (const QString& name :
         {QStringLiteral("\u00F6\u00DF"), QStringLiteral("\u5E45"), QStringLiteral("\U0001F3AC")}) {
        QTemporaryDir directory;
        const QString base = directory.filePath(name);
        QVERIFY(QFile::copy(QString::fromStdWString(stubFile("stub_entry_empty")), base + suffix));
        LibraryLoader loader;
        QVERIFY2(loader.load(base.toStdWString()), loader.lastErrorText().c_str());
    }
}

void TestEntryLoader::longNameIsCut()
{
#ifdef Q_OS_WIN
    QSKIP("Windows loads nothing by such a name");
#endif
    std::wstring directory = qEnvironmentVariable("KV_ENTRY_STUBS").toStdWString();
    while (directory.size() < 2048) {
        directory += L"/.";
    }
    LibraryLoader loader;
    QVERIFY2(loader.load(directory + L"/stub_entry_empty"), loader.lastErrorText().c_str());
    QCOMPARE(loader.fileName().size(), std::size_t(2048));
    QVERIFY(loader.fileName() == directory.substr(0, 2048));
}

void TestEntryLoader::errorTextOfALongNameIsCut()
{
    LibraryLoader loader;
    QVERIFY(!loader.load(std::wstring(5000, L'x')));
    QCOMPARE(loader.lastErrorCode(), 126U);
    QVERIFY(!loader.lastErrorText().empty());
    QVERIFY(loader.lastErrorText().size() <= 2048);
}

QTEST_APPLESS_MAIN(TestEntryLoader)
#include "tst_entry_loader.moc"
