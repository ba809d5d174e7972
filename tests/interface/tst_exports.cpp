// What the libraries show to the dynamic linker: their functions, and nothing else.

#include <QFile>
#include <QProcess>
#include <QTest>

class TestExports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exports_data();
    void exports();
};

void TestExports::exports_data()
{
    QTest::addColumn<QStringList>("functions");
    QTest::addColumn<bool>("optional");
    QTest::newRow("kv_config_gui_mvc")
        << QStringList{QStringLiteral("showMVCEncoderPages")} << false;
    QTest::newRow("kv_mvcenc") << QStringList{QStringLiteral("mvcOutVideoChkSettings"),
                                              QStringLiteral("mvcOutVideoDefaults")}
                               << false;
    QTest::newRow("kv_mvc_settings_io")
        << QStringList{QStringLiteral("MVCConfigGetAPIExt")} << false;
    QTest::newRow("kv_media_probe")
        << QStringList{QStringLiteral("mpegInGetInfo"), QStringLiteral("mpegInInfoInit")} << true;
    QTest::newRow("mvc_gui_texts")
        << QStringList{QStringLiteral("localizeConvertStr"), QStringLiteral("localizeSetLanguage")}
        << true;
}

void TestExports::exports()
{
    QFETCH(QStringList, functions);
    QFETCH(bool, optional);
    const QString library = qEnvironmentVariable("KV_BIN_DIR") +
                            QStringLiteral("/%1.so").arg(QLatin1String(QTest::currentDataTag()));
    if (optional && !QFile::exists(library))
        QSKIP("not built on this system");
    QProcess lister;
    lister.start(QStringLiteral(KV_NM),
                 {QStringLiteral("-D"), QStringLiteral("--defined-only"), library});
    QVERIFY(lister.waitForFinished());
    QVERIFY2(lister.exitCode() == 0, lister.readAllStandardError().constData());

    QStringList names;
    const auto lines = QString::fromUtf8(lister.readAllStandardOutput()).split(QLatin1Char('\n'));
    for (const QString& line : lines)
        if (!line.isEmpty())
            names += line.section(QLatin1Char(' '), 1); // kind and name
    QStringList expected;
    for (const QString& function : functions)
        expected += QLatin1String("T ") + function;
    names.sort();
    QCOMPARE(names, expected);
}

QTEST_APPLESS_MAIN(TestExports)
#include "tst_exports.moc"
