// What the libraries show to the dynamic linker: their functions, and nothing else.

#include <QMap>
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
    const QMap<QString, QStringList> functions = {
        {QStringLiteral("kv_config_gui_mvc"),
         {QStringLiteral("showMVCEncoderPages@@KV_CONFIG_GUI_MVC_1")}},
        {QStringLiteral("kv_mvcenc"),
         {QStringLiteral("mvcOutVideoChkSettings"), QStringLiteral("mvcOutVideoDefaults")}},
        {QStringLiteral("kv_mvc_settings_io"), {QStringLiteral("MVCConfigGetAPIExt")}},
        {QStringLiteral("kv_media_probe"),
         {QStringLiteral("mpegInGetInfo"), QStringLiteral("mpegInInfoInit")}},
        {QStringLiteral("kv_mvc_settings_window"),
         {QStringLiteral("kvLeaveDialogs"), QStringLiteral("kvMakeApplication")}},
        {QStringLiteral("mvc_gui_texts"),
         {QStringLiteral("localizeConvertStr"), QStringLiteral("localizeSetLanguage")}},
    };
    for (const QString& library : QStringLiteral(KV_LIBRARIES).split(QLatin1Char(' '))) {
        QTest::newRow(qPrintable(library)) << functions.value(library);
    }
}

void TestExports::exports()
{
    QFETCH(QStringList, functions);
    const QString library = qEnvironmentVariable("KV_BIN_DIR") +
                            QStringLiteral("/%1.so").arg(QLatin1String(QTest::currentDataTag()));
    QProcess lister;
    lister.start(QStringLiteral(KV_NM), {QStringLiteral("-D"), QStringLiteral("--defined-only"),
                                         QStringLiteral("--extern-only"), library});
    QVERIFY(lister.waitForFinished());
    QVERIFY2(lister.exitCode() == 0, lister.readAllStandardError().constData());

    QStringList names;
    const auto lines = QString::fromUtf8(lister.readAllStandardOutput()).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        if (!line.isEmpty()) {
            names += line.section(QLatin1Char(' '), 1); // kind and name
        }
    }
    QStringList expected;
    for (const QString& function : functions) {
        expected += QLatin1String("T ") + function;
    }
    names.sort();
    QCOMPARE(names, expected);
}

QTEST_APPLESS_MAIN(TestExports)
#include "tst_exports.moc"
