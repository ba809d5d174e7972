// What Windows' file properties say about the module.

#include <QTest>

#include <windows.h>

class TestVersionResource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void texts_data();
    void texts();
    void number();

private:
    QByteArray m_resource;
};

void TestVersionResource::initTestCase()
{
    const std::wstring module =
        (qEnvironmentVariable("KV_BIN_DIR") + QStringLiteral("/kv_config_gui_mvc.dll"))
            .toStdWString();
    const DWORD size = GetFileVersionInfoSizeW(module.c_str(), nullptr);
    QVERIFY(size > 0);
    m_resource.resize(int(size));
    QVERIFY(GetFileVersionInfoW(module.c_str(), 0, size, m_resource.data()));
}

void TestVersionResource::texts_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    const QString version = QStringLiteral(KV_PROJECT_VERSION);
    QTest::newRow("description") << QStringLiteral("FileDescription")
                                 << QStringLiteral("MVC Encoder GUI Configuration Module");
    QTest::newRow("product") << QStringLiteral("ProductName")
                             << QStringLiteral("Korvane MVC Video Encoder Settings");
    QTest::newRow("file") << QStringLiteral("OriginalFilename")
                          << QStringLiteral("kv_config_gui_mvc.dll");
    QTest::newRow("file version") << QStringLiteral("FileVersion") << version;
    QTest::newRow("product version") << QStringLiteral("ProductVersion") << version;
}

void TestVersionResource::texts()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    wchar_t* found = nullptr;
    UINT length = 0;
    QVERIFY(VerQueryValueW(
        m_resource.constData(),
        (QStringLiteral("\\StringFileInfo\\040904B0\\") + name).toStdWString().c_str(),
        reinterpret_cast<void**>(&found), &length));
    QCOMPARE(QString::fromWCharArray(found), text);
}

void TestVersionResource::number()
{
    VS_FIXEDFILEINFO* information = nullptr;
    UINT length = 0;
    QVERIFY(VerQueryValueW(m_resource.constData(), L"\\", reinterpret_cast<void**>(&information),
                           &length));
    QCOMPARE(QStringLiteral("%1.%2.%3")
                 .arg(HIWORD(information->dwFileVersionMS))
                 .arg(LOWORD(information->dwFileVersionMS))
                 .arg(HIWORD(information->dwFileVersionLS)),
             QStringLiteral(KV_PROJECT_VERSION));
    QCOMPARE(information->dwFileType, DWORD(VFT_DLL));
}

QTEST_APPLESS_MAIN(TestVersionResource)
#include "tst_version_resource.moc"
