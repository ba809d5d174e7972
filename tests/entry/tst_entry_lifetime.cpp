// What a call leaves behind in the host's process: nothing.

#include "Sandbox.h"

#include <QTest>

namespace
{

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

const QMap<QString, QString> throwing = {
    {QStringLiteral("KV_STUB_CHECK"), QStringLiteral("throw")}};

} // namespace

class TestEntryLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingStaysMappedAfterACall_data();
    void nothingStaysMappedAfterACall();
    void moduleCanBeUnloaded_data();
    void moduleCanBeUnloaded();
    void hostGoesOnWithoutTheModule();
    void hostGoesOnWithTheModule();
    void exceptionOfACompanionGivesAnError_data();
    void exceptionOfACompanionGivesAnError();
    void callAfterAnException();
    void exceptionWhileTheDialogIsOpen_data();
    void exceptionWhileTheDialogIsOpen();
    void functionsLastAsLongAsTheDialog();
};

void TestEntryLifetime::nothingStaysMappedAfterACall_data()
{
    QTest::addColumn<QString>("steps");
    QTest::newRow("own application, OK") << QStringLiteral("flags=0x13 press=ok call");
    QTest::newRow("own application, cancel") << QStringLiteral("flags=0x13 call");
    QTest::newRow("host's application, OK")
        << QStringLiteral("application ext=application flags=0x10000013 press=ok call");
    QTest::newRow("host's application, cancel")
        << QStringLiteral("application ext=application flags=0x10000013 call");
}

void TestEntryLifetime::nothingStaysMappedAfterACall()
{
    QFETCH(QString, steps);
    const Sandbox sandbox;
    sandbox.addRequired();
    sandbox.add("stub_entry_probe", "kv_media_probe");
    const auto run = sandbox.run(words(steps.toLatin1().constData()) + words("mapped"));
    QVERIFY(run.value("result").startsWith(QLatin1String("100")));
    QCOMPARE(run.value("mapped"), QStringLiteral("kv_config_gui_mvc"));
    QCOMPARE(run.errors, QString());
}

void TestEntryLifetime::moduleCanBeUnloaded_data()
{
    nothingStaysMappedAfterACall_data();
    QTest::newRow("not called") << QString();
    QTest::newRow("after a failed call") << QStringLiteral("flags=0x10000000 call");
}

void TestEntryLifetime::moduleCanBeUnloaded()
{
    QFETCH(QString, steps);
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run = sandbox.run(words(steps.toLatin1().constData()) + words("unload mapped"));
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.lines.last(), QStringLiteral("end"));
#ifdef Q_OS_WIN
    // No library can free another while it is freed itself.
    if (qstrcmp(QTest::currentDataTag(), "after a failed call") == 0) {
        QCOMPARE(run.value("mapped"), QStringLiteral("kv_mvc_settings_io kv_mvcenc"));
        return;
    }
#endif
    QCOMPARE(run.value("mapped"), QString(QLatin1String("")));
}

void TestEntryLifetime::hostGoesOnWithoutTheModule()
{
    // The last window's end goes through what the module connected on the host's object.
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run =
        sandbox.run(words("application ext=application flags=0x10000013 call resources "
                          "unload mapped resources window unwindow window run delete"));
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.values("resources"), words("yes no"));
    QCOMPARE(run.value("mapped"), QString(QLatin1String("")));
    QCOMPARE(run.value("loop"), QStringLiteral("0"));
    QCOMPARE(run.lines.last(), QStringLiteral("end"));
}

void TestEntryLifetime::hostGoesOnWithTheModule()
{
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run = sandbox.run(words("application window ext=application flags=0x10000013 call "
                                       "call run delete unload mapped"));
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.values("result"), words("1001 1001"));
    QCOMPARE(run.value("loop"), QStringLiteral("0"));
    QCOMPARE(run.value("mapped"), QString(QLatin1String("")));
}

void TestEntryLifetime::exceptionOfACompanionGivesAnError_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("instance");
    QTest::newRow("own application") << QStringLiteral("flags=0x13") << QStringLiteral("no");
    QTest::newRow("host's application")
        << QStringLiteral("application ext=application flags=0x10000013") << QStringLiteral("yes");
    QTest::newRow("host's application with a window")
        << QStringLiteral("application window ext=application flags=0x10000013")
        << QStringLiteral("yes");
}

void TestEntryLifetime::exceptionOfACompanionGivesAnError()
{
    QFETCH(QString, steps);
    QFETCH(QString, instance);
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run = sandbox.run(words(steps.toLatin1().constData()) +
                                     words("call instance mapped unload mapped"),
                                 throwing);
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.value("result"), QStringLiteral("1"));
    QCOMPARE(run.value("changed"), QStringLiteral("no"));
    QCOMPARE(run.value("instance"), instance);
    QCOMPARE(run.values("mapped"),
             QStringList({QStringLiteral("kv_config_gui_mvc"), QLatin1String("")}));
    QCOMPARE(run.log.mid(2), QStringList({QStringLiteral("check"), QStringLiteral("exception gone"),
                                          QStringLiteral("unload host/kv_mvcenc"),
                                          QStringLiteral("unload host/kv_mvc_settings_io")}));
    QVERIFY(run.values("title").isEmpty());
}

void TestEntryLifetime::callAfterAnException()
{
    // Without the first check nothing throws.
    const Sandbox sandbox;
    sandbox.addRequired();
    for (const char* mode : {"", "application ext=application"}) {
        const int host = *mode ? 0x10000000 : 0;
        const auto run = sandbox.run(
            words(mode) +
                QStringList({QStringLiteral("flags=%1").arg(host + 0x13), QStringLiteral("call"),
                             QStringLiteral("flags=%1").arg(host + 0x33), QStringLiteral("call")}),
            throwing);
        QCOMPARE(run.values("result"), words("1 1001"));
    }
}

void TestEntryLifetime::exceptionWhileTheDialogIsOpen_data()
{
    QTest::addColumn<QString>("steps");
    QTest::newRow("own application") << QStringLiteral("flags=0x33");
    QTest::newRow("host's application")
        << QStringLiteral("application ext=application flags=0x10000033");
}

void TestEntryLifetime::exceptionWhileTheDialogIsOpen()
{
    QFETCH(QString, steps);
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run =
        sandbox.run(words(steps.toLatin1().constData()) + words("press=ok call call"), throwing);
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.values("still"), words("open open"));
    QCOMPARE(run.value("answer"), QStringLiteral("The encoder failed to check the settings."
                                                 " no licence"));
    QCOMPARE(run.values("result"), words("1001 1001"));
    QCOMPARE(run.values("changed"), words("no no"));
    const auto call =
        QStringList({QStringLiteral("load host/kv_mvc_settings_io"),
                     QStringLiteral("load host/kv_mvcenc"), QStringLiteral("check"),
                     QStringLiteral("exception gone"), QStringLiteral("unload host/kv_mvcenc"),
                     QStringLiteral("unload host/kv_mvc_settings_io")});
    QCOMPARE(run.log, call + call);
}

void TestEntryLifetime::functionsLastAsLongAsTheDialog()
{
    // Unloaded before the dialog is gone, the check of OK would crash.
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run = sandbox.run(words("flags=0x13 press=ok call"));
    QCOMPARE(run.log, QStringList({QStringLiteral("load host/kv_mvc_settings_io"),
                                   QStringLiteral("load host/kv_mvcenc"), QStringLiteral("check"),
                                   QStringLiteral("check"), QStringLiteral("unload host/kv_mvcenc"),
                                   QStringLiteral("unload host/kv_mvc_settings_io")}));
}

QTEST_MAIN(TestEntryLifetime)
#include "tst_entry_lifetime.moc"
