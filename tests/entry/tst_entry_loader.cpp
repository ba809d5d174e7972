// One companion library: loading, resolving, errors kept for diagnosis, unloading.

#include "entry/LibraryLoader.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cstdint>

namespace
{

using Function = std::int32_t (*)();

std::wstring stub(const char* name)
{
    return qEnvironmentVariable("KV_ENTRY_STUBS").toStdWString() + L'/' +
           QString::fromLatin1(name).toStdWString();
}

bool isMapped(const char* name)
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(name);
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
    QVERIFY(loader.fileName() == stub("stub_entry_empty") + L".so");
    QCOMPARE(loader.lastErrorCode(), 0U);
    QVERIFY(isMapped("stub_entry_empty.so"));
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
    QVERIFY(QFile::copy(QString::fromStdWString(stub("stub_entry_empty")) + QLatin1String(".so"),
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
    QVERIFY(loader.lastErrorText().find("kv_no_such_library.so") != std::string::npos);
}

void TestEntryLoader::missingFunction()
{
    LibraryLoader loader;
    QVERIFY(loader.load(stub("stub_entry_empty")));
    QVERIFY(!loader.resolve<Function>("noSuchFunction"));
    QCOMPARE(loader.lastErrorCode(), 127U);
    QVERIFY(loader.lastErrorText().find("noSuchFunction") != std::string::npos);
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
    QVERIFY(!isMapped("stub_entry_empty.so"));
    // The name stays for diagnosis.
    QVERIFY(loader.fileName() == stub("stub_entry_empty") + L".so");
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
    QVERIFY(!isMapped("stub_entry_empty.so"));
    QVERIFY(loader.resolve<Function>("mvcOutVideoDefaults"));
    QVERIFY(!loader.load(L"kv_no_such_library"));
    QVERIFY(!isMapped("stub_entry_encoder.so"));
    QVERIFY(!loader.isLoaded());
}

void TestEntryLoader::destructionUnloads()
{
    {
        LibraryLoader loader;
        QVERIFY(loader.load(stub("stub_entry_empty")));
    }
    QVERIFY(!isMapped("stub_entry_empty.so"));
}

void TestEntryLoader::namesOutsideAscii()
{
    // Of two, three and four bytes, whatever the locale.
    for (const QString& name :
         {QStringLiteral("\u00F6\u00DF"), QStringLiteral("\u5E45"), QStringLiteral("\U0001F3AC")}) {
        QTemporaryDir directory;
        const QString base = directory.filePath(name);
        QVERIFY(
            QFile::copy(QString::fromStdWString(stub("stub_entry_empty")) + QLatin1String(".so"),
                        base + QLatin1String(".so")));
        LibraryLoader loader;
        QVERIFY2(loader.load(base.toStdWString()), loader.lastErrorText().c_str());
    }
}

void TestEntryLoader::longNameIsCut()
{
    LibraryLoader loader;
    QVERIFY(!loader.load(std::wstring(5000, L'x')));
    QCOMPARE(loader.lastErrorCode(), 126U);
    QVERIFY(!loader.lastErrorText().empty());
    QVERIFY(loader.lastErrorText().size() <= 2048);
    QVERIFY(loader.fileName().size() <= 2048);
}

QTEST_APPLESS_MAIN(TestEntryLoader)
#include "tst_entry_loader.moc"
