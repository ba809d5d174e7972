// The installed module, as other projects build on it: the C example, built as a project of its own
// and used as its readers would, and a host that links the module.

#include "InstalledTree.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTest>

class TestCHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void edits_data();
    void edits();
    void presetOfTheCommandLine();
    void errors_data();
    void errors();
    void hostThatLinksTheModule();
    void hostFoundByPkgConfigRunsWhereverTheTreeIs();
    void projectThatTakesTheSourcesHasTheSameTargets();
    void installedProgramFindsItsLibraries();
    void whatPeopleReadIsInstalled();
    void exampleForX11IsBuilt();

private:
    QString path(const char* name) const { return m_tree.path(name); }
    /// Runs the example while a script is played on its dialog.
    RunResult play(const QStringList& arguments, const QByteArray& script) const
    {
        return run(m_program, arguments, m_tree.playing(script));
    }

    InstalledTree m_tree;
    QString m_program;
    QString m_folder;
};

void TestCHost::initTestCase()
{
    QVERIFY(m_tree.install());
    m_folder = m_tree.moduleFolder();
    QVERIFY(m_tree.build(m_tree.example("c-host"), "build"));
    m_program = path("build/kv-c-host");
}

void TestCHost::edits_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("output");
    QTest::newRow("accepted") << QByteArray("type widthSpin 1280\ntype heightSpin 720\n"
                                            "choose framerateList 25.00\nclick OK\n")
                              << 0
                              << QStringLiteral("accepted\nview 0: 1280 x 720, 25.000 frames/s");
    QTest::newRow("cancelled") << QByteArray("type widthSpin 1280\nclick Cancel\n") << 1
                               << QStringLiteral("cancelled\n");
}

void TestCHost::edits()
{
    QFETCH(QByteArray, script);
    QFETCH(int, exitCode);
    QFETCH(QString, output);
    const RunResult result = play({m_folder}, script);
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, exitCode);
    QVERIFY2(result.output.startsWith(output), qPrintable(result.output));
    // Both views of the preset, or none.
    QCOMPARE(result.output.count(QLatin1String("view ")), exitCode == 0 ? 2 : 0);
}

void TestCHost::presetOfTheCommandLine()
{
    const RunResult none = play({m_folder, QStringLiteral("0")}, "click OK\n");
    QCOMPARE(none.exitCode, 0);
    QCOMPARE(none.output.count(QLatin1String("view ")), 1);
    const RunResult disc = play({m_folder, QStringLiteral("3")}, "click OK\n");
    QCOMPARE(disc.exitCode, 0);
    QVERIFY2(disc.output.contains(QLatin1String("view 1: 1920 x 1080")), qPrintable(disc.output));
}

void TestCHost::errors_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    QTest::newRow("no arguments") << QStringList() << QStringLiteral("usage: ");
    QTest::newRow("too many") << QStringList{QStringLiteral("."), QStringLiteral("1"),
                                             QStringLiteral("2")}
                              << QStringLiteral("usage: ");
    QTest::newRow("no such folder")
        << QStringList{QStringLiteral("/nowhere")}
        << QStringLiteral("kv-c-host: cannot open a library of /nowhere: "
                          "kv_mvcenc.so: ");
    QTest::newRow("path too long") << QStringList{QString(5000, QLatin1Char('x'))}
                                   << QStringLiteral("kv-c-host: cannot open a library of xxx");
}

void TestCHost::errors()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    const RunResult result = run(m_program, arguments);
    QCOMPARE(result.exitCode, 2);
    QVERIFY2(result.error.startsWith(error), qPrintable(result.error));
    QCOMPARE(result.error.count(QLatin1Char('\n')), 1);
}

void TestCHost::hostThatLinksTheModule()
{
    QVERIFY(m_tree.build(QStringLiteral(KV_LINKED_HOST_SOURCE), "linked"));
    const RunResult result = run(path("linked/kv-linked-host"), {});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, QStringLiteral("1\n"));
    QCOMPARE(result.exitCode, 0);
}

void TestCHost::hostFoundByPkgConfigRunsWhereverTheTreeIs()
{
    const QString moved = path("moved tree");
    QVERIFY(QFile::rename(path("installed"), moved));
    const auto moveBack = qScopeGuard([&] { QVERIFY(QFile::rename(moved, path("installed"))); });
    const RunResult built = run(
        QStringLiteral("sh"),
        {QStringLiteral("-c"),
         QStringLiteral(R"sh(eval "\"\$1\" $2 \"\$3\" -o \"\$4\" )sh"
                        R"sh($(pkg-config --cflags --libs 'kv_config_gui_mvc >= 1.0')")sh"),
         QStringLiteral("sh"), QStringLiteral(KV_C_COMPILER), QStringLiteral(KV_C_FLAGS),
         QStringLiteral(KV_LINKED_HOST_SOURCE "/main.c"), path("by-pkg-config")},
        {{QStringLiteral("PKG_CONFIG_PATH"), moved + QStringLiteral("/" KV_LIBDIR "/pkgconfig")}});
    QVERIFY2(built.exitCode == 0, qPrintable(built.error));
    const RunResult result = run(path("by-pkg-config"), {});
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, QStringLiteral("1\n"));
}

void TestCHost::projectThatTakesTheSourcesHasTheSameTargets()
{
    const RunResult result =
        run(QStringLiteral(KV_CMAKE),
            {QStringLiteral("-S"), QStringLiteral(KV_LINKED_HOST_SOURCE), QStringLiteral("-B"),
             path("subdirectory"), QStringLiteral("-G"), QStringLiteral(KV_GENERATOR),
             QStringLiteral("-DCMAKE_C_COMPILER=" KV_C_COMPILER),
             QStringLiteral("-DKV_LINKED_HOST_TAKES=" KV_SOURCE)});
    QVERIFY2(result.exitCode == 0, qPrintable(result.output + result.error));
}

void TestCHost::installedProgramFindsItsLibraries()
{
    const QString program = path("installed/bin/kv-mvc-settings");
    const QString file = path("film.cfg");
    QCOMPARE(
        run(program, {QStringLiteral("defaults"), QStringLiteral("2"), QStringLiteral("-o"), file})
            .error,
        QString());
    const QMap<QString, QString> german = {
        {QStringLiteral("LC_ALL"), QStringLiteral("de_DE.UTF-8")},
        {QStringLiteral("LANGUAGE"), QString()},
        {QStringLiteral("XDG_RUNTIME_DIR"), path("")}};
    const RunResult check =
        run(program, {QStringLiteral("check"), QStringLiteral("--notes"), file}, german);
    QCOMPARE(check.error, QString());
    QVERIFY2(check.output.contains(QStringLiteral("Ansichten")), qPrintable(check.output));
    const RunResult doctor = run(program, {QStringLiteral("doctor")}, german);
    QVERIFY2(doctor.exitCode == 0, qPrintable(doctor.output + doctor.error));
    QVERIFY2(doctor.output.contains(QStringLiteral("gui_mvc_de.qm: from ") +
                                    QFileInfo(m_folder).canonicalFilePath()),
             qPrintable(doctor.output));
}

void TestCHost::whatPeopleReadIsInstalled()
{
    const QString documents = path("installed/" KV_DOCDIR "/");
    for (const char* file : {"README.md", "CHANGELOG.md", "docs/architecture.md",
                             "docs/settings.schema.json", "examples/c-host/c_host.c"}) {
        QVERIFY2(QFile::exists(documents + QLatin1String(file)), file);
    }
    // Links of the one that is read first lead to what is there.
    QFile readme(documents + QStringLiteral("README.md"));
    QVERIFY(readme.open(QIODevice::ReadOnly));
    const QRegularExpression link(QStringLiteral(R"(\]\(((?:docs|examples)/[^)#]*))"));
    const QString text = QString::fromUtf8(readme.readAll());
    int links = 0;
    for (auto match = link.globalMatch(text); match.hasNext(); ++links) {
        const QString target = match.next().captured(1);
        QVERIFY2(QFile::exists(documents + target), qPrintable(target));
    }
    QVERIFY(links > 5);
}

void TestCHost::exampleForX11IsBuilt()
{
    QVERIFY(m_tree.build(m_tree.example("xcb-host"), "xcb"));
    const RunResult result = run(path("xcb/xcb-host"), {});
    QCOMPARE(result.exitCode, 2);
    QVERIFY2(result.error.startsWith(QLatin1String("usage: ")), qPrintable(result.error));
}

QTEST_MAIN(TestCHost)
#include "tst_c_host.moc"
