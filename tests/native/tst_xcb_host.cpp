// The xcb example and the dialog over its window, under a window manager: watched from another
// process by what the window system says, and worked with by real keys and clicks.

#include <QProcess>
#include <QRect>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <vector>

namespace
{

constexpr int patience = 30000; // ms
constexpr int dialogWidth = 400;
constexpr int screenWidth = 1280;
// The window manager keeps dialogs on the screen with their frames.
constexpr int dialogFrameWidth = 402;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

/// What another program on the display is told.
class Display
{
public:
    Display() : m_server(xcb_connect(nullptr, nullptr)) {}
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;
    ~Display() { xcb_disconnect(m_server); }

    xcb_window_t focus() const
    {
        const std::unique_ptr<xcb_get_input_focus_reply_t, Free> reply(
            xcb_get_input_focus_reply(m_server, xcb_get_input_focus(m_server), nullptr));
        return reply ? reply->focus : 0;
    }

    /// The window manager's word for the active window.
    xcb_window_t active() const { return property(root(), "_NET_ACTIVE_WINDOW").value(0); }
    xcb_window_t transientFor(xcb_window_t window) const
    {
        return property(window, "WM_TRANSIENT_FOR").value(0);
    }
    bool isModal(xcb_window_t window) const
    {
        return property(window, "_NET_WM_STATE").contains(atom("_NET_WM_STATE_MODAL"));
    }

    QRect frame(xcb_window_t window) const
    {
        while (const xcb_window_t parent = parentOf(window)) {
            if (parent == root()) {
                break;
            }
            window = parent;
        }
        return place(window);
    }
    QSize size(xcb_window_t window) const { return place(window).size(); }

private:
    xcb_window_t root() const
    {
        return xcb_setup_roots_iterator(xcb_get_setup(m_server)).data->root;
    }
    xcb_window_t parentOf(xcb_window_t window) const
    {
        const std::unique_ptr<xcb_query_tree_reply_t, Free> tree(
            xcb_query_tree_reply(m_server, xcb_query_tree(m_server, window), nullptr));
        return tree ? tree->parent : 0;
    }
    QRect place(xcb_window_t window) const
    {
        const std::unique_ptr<xcb_get_geometry_reply_t, Free> reply(
            xcb_get_geometry_reply(m_server, xcb_get_geometry(m_server, window), nullptr));
        return reply ? QRect(reply->x, reply->y, reply->width, reply->height) : QRect();
    }
    xcb_atom_t atom(const char* name) const
    {
        const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(xcb_intern_atom_reply(
            m_server, xcb_intern_atom(m_server, 0, uint16_t(qstrlen(name)), name), nullptr));
        return reply ? reply->atom : 0;
    }
    QVector<quint32> property(xcb_window_t window, const char* name) const
    {
        const std::unique_ptr<xcb_get_property_reply_t, Free> reply(xcb_get_property_reply(
            m_server, xcb_get_property(m_server, 0, window, atom(name), XCB_ATOM_ANY, 0, 64),
            nullptr));
        if (!reply || reply->format != 32) {
            return {};
        }
        const auto* const values = static_cast<const quint32*>(xcb_get_property_value(reply.get()));
        return QVector<quint32>(values, values + reply->value_len);
    }

    xcb_connection_t* m_server;
};

/// Real input, by the display's own test extension.
QString xdotool(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral("xdotool"), arguments);
    process.waitForFinished(patience);
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

void press(const QStringList& keys)
{
    xdotool(QStringList{QStringLiteral("key"), QStringLiteral("--delay"), QStringLiteral("50")} +
            keys);
}

void click(xcb_window_t window, QPoint at)
{
    xdotool({QStringLiteral("mousemove"), QStringLiteral("--window"), QString::number(window),
             QString::number(at.x()), QString::number(at.y()), QStringLiteral("click"),
             QStringLiteral("1")});
}

xcb_window_t windowTitled(const char* title)
{
    const QString found =
        xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                 QStringLiteral("--name"), QStringLiteral("^%1$").arg(QLatin1String(title))});
    return found.section(QLatin1Char('\n'), -1).toUInt();
}

/// The running example.
class Example
{
public:
    Example()
    {
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        variables.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_runtime.path());
        m_process.setProcessEnvironment(variables);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(qEnvironmentVariable("KV_XCB_HOST"), {qEnvironmentVariable("KV_BIN_DIR")});
    }
    ~Example()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    bool waitForWindow()
    {
        return QTest::qWaitFor(
            [this] {
                window = windowTitled("Encoder");
                return window && display.active() == window && display.focus() == window;
            },
            patience);
    }
    bool waitForDialog()
    {
        return QTest::qWaitFor(
            [this] {
                dialog = windowTitled("Encoder settings of an xcb program");
                return dialog && display.active() == dialog && display.focus() == dialog;
            },
            patience);
    }
    /// Moves the window's frame and waits until it is there.
    bool moveWindow(QPoint to)
    {
        xdotool({QStringLiteral("windowmove"), QString::number(window), QString::number(to.x()),
                 QString::number(to.y())});
        return QTest::qWaitFor([this, to] { return display.frame(window).topLeft() == to; },
                               patience);
    }
    /// What the example says next; empty when it says nothing.
    QString nextLine()
    {
        if (!QTest::qWaitFor([this] { return m_process.canReadLine(); }, patience)) {
            return {};
        }
        return QString::fromUtf8(m_process.readLine()).trimmed();
    }
    bool saidNothing() { return !m_process.canReadLine(); }
    bool hasFocusAgain()
    {
        return QTest::qWaitFor(
            [this] { return display.active() == window && display.focus() == window; }, patience);
    }
    bool end()
    {
        press({QStringLiteral("q")});
        return m_process.waitForFinished(patience) &&
               m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    }

    const Display display;
    xcb_window_t window = 0;
    xcb_window_t dialog = 0;

private:
    QTemporaryDir m_runtime;
    QProcess m_process;
};

const QString asBefore = QStringLiteral("1920 x 1080, 23.976 frames/s, 20000000 bit/s");

} // namespace

class TestXcbHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dialogOverTheWindow_data();
    void dialogOverTheWindow();
    void closed_data();
    void closed();
    void windowTakesNoInputUnderTheDialog();
};

void TestXcbHost::dialogOverTheWindow_data()
{
    QTest::addColumn<QPoint>("window"); // its frame's corner
    QTest::addColumn<int>("edge");      // of the dialog's frame; -1: over the window's middle
    QTest::newRow("in the middle") << QPoint(300, 250) << -1;
    QTest::newRow("off the left edge") << QPoint(-600, 250) << 0;
    QTest::newRow("off the right edge") << QPoint(1200, 250) << screenWidth - dialogFrameWidth;
}

void TestXcbHost::dialogOverTheWindow()
{
    QFETCH(QPoint, window);
    QFETCH(int, edge);
    Example example;
    QVERIFY(example.waitForWindow());
    QVERIFY(example.moveWindow(window));
    press({QStringLiteral("s")});
    QVERIFY(example.waitForDialog());

    QCOMPARE(example.display.transientFor(example.dialog), example.window);
    QVERIFY(example.display.isModal(example.dialog));
    QCOMPARE(example.display.size(example.dialog).width(), dialogWidth);
    // The window's frame is 722 pixels wide with this window manager.
    const QRect frame = example.display.frame(example.window);
    QCOMPARE(frame.width(), 722);
    QCOMPARE(example.display.frame(example.dialog).x(),
             edge < 0 ? 300 + 722 / 2 - dialogWidth / 2 : edge);
}

void TestXcbHost::closed_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QString>("result");
    // The first one commits the number, or takes it back.
    QTest::newRow("OK") << QStringList{QStringLiteral("Return"), QStringLiteral("Return")}
                        << QStringLiteral("accepted: 1280 x 1080, 23.976 frames/s, 20000000 bit/s");
    QTest::newRow("Cancel") << QStringList{QStringLiteral("Escape"), QStringLiteral("Escape")}
                            << QStringLiteral("cancelled: ") + asBefore;
    QTest::newRow("close box") << QStringList{QStringLiteral("alt+F4")}
                               << QStringLiteral("cancelled: ") + asBefore;
}

void TestXcbHost::closed()
{
    QFETCH(QStringList, keys);
    QFETCH(QString, result);
    Example example;
    QVERIFY(example.waitForWindow());
    QCOMPARE(example.nextLine(), QStringLiteral("settings: ") + asBefore);
    press({QStringLiteral("s")});
    QVERIFY(example.waitForDialog());
    // From the tabs to the picture's width.
    press({QStringLiteral("Tab"), QStringLiteral("Tab"), QStringLiteral("1"), QStringLiteral("2"),
           QStringLiteral("8"), QStringLiteral("0")});
    QVERIFY(example.saidNothing());
    press(keys);
    QCOMPARE(example.nextLine(), result);
    QVERIFY(example.hasFocusAgain());

    // Keys reach the window again, and the dialog opens a second time.
    press({QStringLiteral("s")});
    QVERIFY(example.waitForDialog());
    press({QStringLiteral("Escape")});
    QVERIFY(example.nextLine().startsWith(QLatin1String("cancelled: ")));
    QVERIFY(example.hasFocusAgain());
    QVERIFY(example.end());
}

void TestXcbHost::windowTakesNoInputUnderTheDialog()
{
    Example example;
    QVERIFY(example.waitForWindow());
    QCOMPARE(example.nextLine(), QStringLiteral("settings: ") + asBefore);
    // The button is in the window's corner, where the dialog does not hide it.
    const QPoint button(60, 40);
    for (int round = 0; round < 2; ++round) {
        click(example.window, button);
        QVERIFY(example.waitForDialog());

        // The window would open another dialog for each of these as soon as the call has returned.
        click(example.window, button);
        click(example.window, button);
        press({QStringLiteral("s")});
        QVERIFY(example.waitForDialog());
        press({QStringLiteral("Escape")});
        QCOMPARE(example.nextLine(), QStringLiteral("cancelled: ") + asBefore);
        QVERIFY(example.hasFocusAgain());
    }
    // Input is dealt with in its order, so what had been kept would come before this key.
    QVERIFY(example.end());
}

QTEST_GUILESS_MAIN(TestXcbHost)
#include "tst_xcb_host.moc"
