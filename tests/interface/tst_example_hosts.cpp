// The examples other than the one in plain C, each built on the installed module as its readers do,
// and used: hosts by a script that is played in them, an encoder by the program that asks it.

#include "InstalledTree.h"

#include <QFile>
#include <QProcess>
#include <QScopeGuard>
#include <QTest>

#include <xcb/xcb.h>

#include <cstdlib>

namespace
{

constexpr int patience = 30000; // ms

/// Real input, by the display's own test extension.
QString xdotool(const QStringList& arguments)
{
    return run(QStringLiteral("xdotool"), arguments).output.trimmed();
}

QString windowTitled(const char* title)
{
    return xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                    QStringLiteral("--name"), QStringLiteral("^%1$").arg(QLatin1String(title))})
        .section(QLatin1Char('\n'), -1);
}

/// Waits for a window, and that it has the focus.
bool waitForActive(const char* title)
{
    return QTest::qWaitFor(
        [title] {
            const QString window = windowTitled(title);
            return !window.isEmpty() && window == xdotool({QStringLiteral("getactivewindow")}) &&
                   window == xdotool({QStringLiteral("getwindowfocus")});
        },
        patience);
}

void press(const char* key)
{
    xdotool({QStringLiteral("key"), QLatin1String(key)});
}

/// Asks a window to close, as its close box and the taskbar do.
void close(const char* title)
{
    xcb_connection_t* const server = xcb_connect(nullptr, nullptr);
    const auto atom = [server](const char* name) {
        xcb_intern_atom_reply_t* const reply = xcb_intern_atom_reply(
            server, xcb_intern_atom(server, 0, uint16_t(qstrlen(name)), name), nullptr);
        const xcb_atom_t found = reply ? reply->atom : 0;
        std::free(reply);
        return found;
    };
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = windowTitled(title).toUInt();
    message.type = atom("WM_PROTOCOLS");
    message.data.data32[0] = atom("WM_DELETE_WINDOW");
    const xcb_void_cookie_t sent =
        xcb_send_event_checked(server, 0, message.window, XCB_EVENT_MASK_NO_EVENT,
                               reinterpret_cast<const char*>(&message));
    std::free(xcb_request_check(server, sent)); // waits until it has arrived
    xcb_disconnect(server);
}

QString nextLine(QProcess& process)
{
    const bool said = QTest::qWaitFor([&process] { return process.canReadLine(); }, patience);
    return said ? QString::fromUtf8(process.readLine()).trimmed() : QString();
}

/// The interpreter that has the package; the first of PATH may be another than the system's.
QString pythonWithPyQt()
{
    for (const char* python : {"python3", "/usr/bin/python3"}) {
        const QString program = QLatin1String(python);
        const QStringList test = {QStringLiteral("-c"), QStringLiteral("import PyQt6.sip")};
        if (run(program, test).exitCode == 0) {
            return program;
        }
    }
    return {};
}

void addEdits()
{
    QTest::addColumn<QByteArray>("edit");
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("accepted") << QByteArray("type widthSpin 1280\nclick buttonOk\n")
                              << QStringLiteral("accepted: 1280 x 1080") << 0;
    QTest::newRow("cancelled") << QByteArray("type widthSpin 1280\nclick buttonCancel\n")
                               << QStringLiteral("cancelled: 1920 x 1080") << 1;
}

} // namespace

class TestExampleHosts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void qt_data() { addEdits(); }
    void qt();
    void qtSpeaksTheUsersLanguage();
    void python_data() { addEdits(); }
    void python();
    void pyqt_data() { addEdits(); }
    void pyqt();
    void gtk();
    void gtkWindowStaysUnderTheDialog();
    void encoder();

private:
    QString path(const char* name) const { return m_tree.path(name); }
    RunResult playInPython(const QString& python, const char* file, const QByteArray& script) const;
    /// Builds the example, unless GTK is missing.
    bool hasGtkHost();

    InstalledTree m_tree;
};

void TestExampleHosts::initTestCase()
{
    QVERIFY(m_tree.install());
}

void TestExampleHosts::qt()
{
    QFETCH(QByteArray, edit);
    QFETCH(QString, line);
    QVERIFY(m_tree.build(m_tree.example("qt-host"), "qt"));
    const RunResult result =
        run(path("qt/qt-host"), {},
            m_tree.playing("host settingsButton\n" + edit + "host quitButton\n"));
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, QStringLiteral("settings: 1920 x 1080, 23.976 frames/s\n%1, 23.976 "
                                           "frames/s\n")
                                .arg(line));
    QCOMPARE(result.exitCode, 0);
}

void TestExampleHosts::qtSpeaksTheUsersLanguage()
{
    QVERIFY(m_tree.build(m_tree.example("qt-host"), "qt"));
    QMap<QString, QString> variables =
        m_tree.playing("host settingsButton\nclick Abbrechen\nhost quitButton\n");
    variables.insert(QStringLiteral("LC_ALL"), QStringLiteral("de_DE.UTF-8"));
    variables.insert(QStringLiteral("LANGUAGE"), QString());
    const RunResult result = run(path("qt/qt-host"), {}, variables);
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.output.endsWith(QLatin1String("\ncancelled: 1920 x 1080, 23.976 frames/s\n")),
             qPrintable(result.output));
}

RunResult TestExampleHosts::playInPython(const QString& python, const char* file,
                                         const QByteArray& script) const
{
    return run(python, {m_tree.example(file), m_tree.moduleFolder()}, m_tree.playing(script));
}

void TestExampleHosts::python()
{
    if (KV_IS_SANITIZED) {
        QSKIP("the interpreter is not sanitized, as the module is");
    }
    QFETCH(QByteArray, edit);
    QFETCH(QString, line);
    QFETCH(int, exitCode);
    const RunResult result =
        playInPython(QStringLiteral("python3"), "python-host/python_host.py", edit);
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, line + QStringLiteral(", 23.976 frames/s\n"));
    QCOMPARE(result.exitCode, exitCode);
}

void TestExampleHosts::pyqt()
{
    if (KV_IS_SANITIZED) {
        QSKIP("the interpreter is not sanitized, as the module is");
    }
    const QString python = pythonWithPyQt();
    if (KV_QT_VERSION_MAJOR != 6 || python.isEmpty()) {
        QSKIP("there is no PyQt6 for the module's version of Qt (python3-pyqt6)");
    }
    QFETCH(QByteArray, edit);
    QFETCH(QString, line);
    const RunResult result = playInPython(python, "pyqt-host/pyqt_host.py",
                                          "host settingsButton\n" + edit + "host quitButton\n");
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, QStringLiteral("settings: 1920 x 1080\n%1\n").arg(line));
    QCOMPARE(result.exitCode, 0);
}

bool TestExampleHosts::hasGtkHost()
{
    return !KV_IS_SANITIZED &&
           run(QStringLiteral("pkg-config"),
               {QStringLiteral("--exists"), QStringLiteral("gtk+-x11-3.0")})
                   .exitCode == 0 &&
           m_tree.build(m_tree.example("gtk-host"), "gtk");
}

void TestExampleHosts::gtk()
{
    if (!hasGtkHost()) {
        QSKIP("there is no GTK 3 (libgtk-3-dev), or the sanitizers would judge it, too");
    }
    QProcess host;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    const QMap<QString, QString> played = m_tree.playing("type widthSpin 1280\nclick buttonOk\n");
    for (auto at = played.begin(); at != played.end(); ++at) {
        variables.insert(at.key(), at.value());
    }
    host.setProcessEnvironment(variables);
    host.start(path("gtk/gtk-host"), {m_tree.moduleFolder()});
    const auto end = qScopeGuard([&host] {
        host.kill();
        host.waitForFinished();
    });
    QCOMPARE(nextLine(host), QStringLiteral("settings: 1920 x 1080, 23.976 frames/s"));
    // The second time with an application object of the call's own, again.
    for (int round = 0; round < 2; ++round) {
        QVERIFY(waitForActive("Encoder"));
        press("alt+s");
        QCOMPARE(nextLine(host), QStringLiteral("accepted: 1280 x 1080, 23.976 frames/s"));
    }
    QVERIFY(waitForActive("Encoder"));
    close("Encoder");
    QVERIFY(host.waitForFinished(patience));
    QCOMPARE(host.exitCode(), 0);
}

void TestExampleHosts::gtkWindowStaysUnderTheDialog()
{
    if (!hasGtkHost()) {
        QSKIP("there is no GTK 3 (libgtk-3-dev), or the sanitizers would judge it, too");
    }
    QProcess host;
    host.start(path("gtk/gtk-host"), {m_tree.moduleFolder()});
    const auto end = qScopeGuard([&host] {
        host.kill();
        host.waitForFinished();
    });
    QCOMPARE(nextLine(host), QStringLiteral("settings: 1920 x 1080, 23.976 frames/s"));
    QVERIFY(waitForActive("Encoder"));
    press("alt+s");
    QVERIFY(waitForActive("Encoder settings of a GTK program"));
    close("Encoder");
    QTest::qWait(500);
    QVERIFY(!windowTitled("Encoder").isEmpty());
    press("Escape");
    QCOMPARE(nextLine(host), QStringLiteral("cancelled: 1920 x 1080, 23.976 frames/s"));
    QVERIFY(waitForActive("Encoder"));
    close("Encoder");
    QVERIFY(host.waitForFinished(patience));
    QCOMPARE(host.exitCode(), 0);
}

void TestExampleHosts::encoder()
{
    QVERIFY(m_tree.build(m_tree.example("encoder"), "encoder"));
    const QString beside = path("installed/bin/kv_mvcenc_b.so");
    QVERIFY(QFile::copy(path("encoder/kv_mvcenc_b.so"), beside));
    const auto remove = qScopeGuard([&] { QFile::remove(beside); });
    const QString program = path("installed/bin/kv-mvc-settings");
    const QString film = path("film.cfg");
    const auto settings = [&](const QStringList& arguments) {
        return run(program, arguments, {{QStringLiteral("XDG_RUNTIME_DIR"), path("")}});
    };

    const RunResult doctor = settings({QStringLiteral("doctor")});
    QVERIFY2(doctor.exitCode == 0, qPrintable(doctor.output + doctor.error));
    QVERIFY2(doctor.output.contains(QLatin1String("kv_mvcenc_b: loaded ") + beside),
             qPrintable(doctor.output));

    QCOMPARE(settings({QStringLiteral("defaults"), QStringLiteral("2"), QStringLiteral("-o"), film})
                 .error,
             QString());
    const RunResult good = settings({QStringLiteral("check"), film});
    QCOMPARE(good.output + good.error, QString());
    QCOMPARE(good.exitCode, 0);

    const RunResult changed = settings({QStringLiteral("set"), film, QStringLiteral("width=1000"),
                                        QStringLiteral("view1.bitrate=30M")});
    QCOMPARE(changed.error, QString());
    const RunResult bad = settings({QStringLiteral("check"), QStringLiteral("--json"), film});
    QCOMPARE(bad.exitCode, 1);
    for (const char* expected :
         {R"("text": "The width 1000 is no multiple of 16; it is 992 now.")",
          R"("rule": "example.width")", R"("limit": 992)",
          R"("text": "View 1: the bitrate is 30000000 bit/s; 20000000 is the most.")",
          R"("rule": "example.bitrate")", R"("setting": "bitrate")", R"("view": 1)"}) {
        QVERIFY2(bad.output.contains(QLatin1String(expected)), qPrintable(bad.output));
    }
    const RunResult report = settings({QStringLiteral("report"), film});
    QVERIFY2(report.output.contains(QLatin1String("30 of 20 Mbit/s")), qPrintable(report.output));
}

QTEST_MAIN(TestExampleHosts)
#include "tst_example_hosts.moc"
