// A window of another toolkit as the dialog's parent, on a virtual X display.

#include "Sandbox.h"
#include "VirtualDisplay.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <xcb/xcb.h>

#include <memory>

namespace
{

/// A window that nothing manages, so that it lies where it was put.
class ForeignWindow
{
public:
    ForeignWindow(const QByteArray& display, const QRect& place)
        : m_connection(xcb_connect(display.constData(), nullptr))
    {
        const xcb_screen_t* const screen =
            xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        m_window = xcb_generate_id(m_connection);
        const uint32_t unmanagedAndTold[] = {1, XCB_EVENT_MASK_BUTTON_PRESS};
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, screen->root,
                          int16_t(place.x()), int16_t(place.y()), uint16_t(place.width()),
                          uint16_t(place.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                          screen->root_visual, XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK,
                          unmanagedAndTold);
        xcb_map_window(m_connection, m_window);
        // The answer tells that the window is there.
        hasFocus();
    }
    ForeignWindow(const ForeignWindow&) = delete;
    ForeignWindow& operator=(const ForeignWindow&) = delete;
    ~ForeignWindow() { xcb_disconnect(m_connection); }

    QString id() const { return QString::number(m_window); }
    bool hasName() const
    {
        auto* const reply = xcb_get_property_reply(
            m_connection,
            xcb_get_property(m_connection, 0, m_window, XCB_ATOM_WM_CLASS, XCB_ATOM_ANY, 0, 64),
            nullptr);
        const bool has = reply && reply->type != XCB_ATOM_NONE;
        free(reply);
        return has;
    }
    void takeFocus() const
    {
        xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT, m_window, XCB_CURRENT_TIME);
        xcb_flush(m_connection);
    }
    bool hasFocus() const
    {
        auto* const reply =
            xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr);
        const bool focused = reply && reply->focus == m_window;
        free(reply);
        return focused;
    }
    bool wasClicked()
    {
        while (xcb_generic_event_t* const event = xcb_poll_for_event(m_connection)) {
            m_clicked = m_clicked || (event->response_type & 0x7F) == XCB_BUTTON_PRESS;
            free(event);
        }
        return m_clicked;
    }
    /// Its id stays this program's, and so becomes no other's.
    void close() const
    {
        xcb_destroy_window(m_connection, m_window);
        xcb_flush(m_connection);
    }

private:
    xcb_connection_t* m_connection;
    xcb_window_t m_window = 0;
    bool m_clicked = false;
};

} // namespace

class TestEntryNativeParent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void dialogIsPutOverTheParent_data();
    void dialogIsPutOverTheParent();
    void windowHasAName();
    void parentMayBeInARecord();
    void windowThatIsGone();
    void parentTakesInputAgain_data();
    void parentTakesInputAgain();
    void platformWithoutForeignWindows();

private:
    void click(QPoint at) const;

    VirtualDisplay m_display;
};

void TestEntryNativeParent::initTestCase()
{
    if (!VirtualDisplay::exists()) {
        QSKIP("no Xvfb on this system");
    }
    QVERIFY(m_display.start());
}

void TestEntryNativeParent::dialogIsPutOverTheParent_data()
{
    QTest::addColumn<QRect>("parent");
    QTest::addColumn<QPoint>("centre"); // of the dialog; -1: at the edge named by the tag
    QTest::newRow("centre") << QRect(400, 200, 600, 700) << QPoint(700, 550);
    QTest::newRow("off the left edge") << QRect(-500, 200, 600, 700) << QPoint(-1, 550);
    QTest::newRow("off the right edge") << QRect(1200, 200, 600, 700) << QPoint(-1, 550);
    QTest::newRow("off the top edge") << QRect(400, -600, 600, 700) << QPoint(700, -1);
    QTest::newRow("off the bottom edge") << QRect(400, 900, 600, 700) << QPoint(700, -1);
}

void TestEntryNativeParent::dialogIsPutOverTheParent()
{
    QFETCH(QRect, parent);
    QFETCH(QPoint, centre);
    const Sandbox sandbox;
    sandbox.addRequired();
    const ForeignWindow window(m_display.name(), parent);
    const auto run =
        sandbox.run({QStringLiteral("ext=window=") + window.id(), QStringLiteral("flags=3"),
                     QStringLiteral("call"), QStringLiteral("mapped")},
                    m_display.environment());
    QCOMPARE(run.value("result"), QStringLiteral("1001"));
    QCOMPARE(run.value("parent"), QStringLiteral("QWinWidget"));
    QCOMPARE(run.value("mapped"), QStringLiteral("kv_config_gui_mvc"));

    const auto place = QRegularExpression(QStringLiteral("^(-?\\d+),(-?\\d+) (\\d+)x(\\d+)$"))
                           .match(run.value("place"));
    QVERIFY2(place.hasMatch(), qPrintable(run.value("place")));
    const QRect dialog(place.captured(1).toInt(), place.captured(2).toInt(),
                       place.captured(3).toInt(), place.captured(4).toInt());
    QCOMPARE(dialog.width(), 400);
    QVERIFY(dialog.height() >= 500 && dialog.height() < VirtualDisplay::height);

    const QByteArray edge = QTest::currentDataTag();
    const int x = edge.contains("left")    ? 0
                  : edge.contains("right") ? VirtualDisplay::width - 400
                                           : centre.x() - 400 / 2;
    const int y = edge.contains("top")      ? 0
                  : edge.contains("bottom") ? VirtualDisplay::height - dialog.height()
                                            : centre.y() - dialog.height() / 2;
    QCOMPARE(dialog.topLeft(), QPoint(x, y));
}

void TestEntryNativeParent::windowHasAName()
{
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run =
        sandbox.run({QStringLiteral("flags=3"), QStringLiteral("call")}, m_display.environment());
    QCOMPARE(run.value("result"), QStringLiteral("1001"));
    if (QT_VERSION < QT_VERSION_CHECK(6, 2, 0)) {
        QSKIP("this version of the toolkit shows no way to set it");
    }
    QCOMPARE(run.value("class"), QStringLiteral("kv_config_gui_mvc kv_config_gui_mvc"));

    // The host's own keeps what it has.
    const ForeignWindow window(m_display.name(), QRect(0, 0, 200, 200));
    const auto over = sandbox.run({QStringLiteral("ext=window=") + window.id(),
                                   QStringLiteral("flags=3"), QStringLiteral("call")},
                                  m_display.environment());
    QCOMPARE(over.value("class"), QStringLiteral("kv_config_gui_mvc kv_config_gui_mvc"));
    QVERIFY(!window.hasName());
}

void TestEntryNativeParent::parentMayBeInARecord()
{
    const Sandbox sandbox;
    sandbox.addRequired();
    const ForeignWindow window(m_display.name(), QRect(0, 0, 200, 200));
    const auto run = sandbox.run({QStringLiteral("ext=record:window=") + window.id(),
                                  QStringLiteral("flags=0x20000000"), QStringLiteral("title=Over"),
                                  QStringLiteral("call")},
                                 m_display.environment());
    QCOMPARE(run.value("result"), QStringLiteral("1001"));
    QCOMPARE(run.value("parent"), QStringLiteral("QWinWidget"));
    QCOMPARE(run.value("title"), QStringLiteral("Over"));
    QVERIFY(run.value("place").startsWith(QLatin1String("0,0 ")));
}

void TestEntryNativeParent::windowThatIsGone()
{
    const Sandbox sandbox;
    sandbox.addRequired();
    const ForeignWindow window(m_display.name(), QRect(0, 0, 200, 200));
    window.close();
    const auto run = sandbox.run({QStringLiteral("ext=window=") + window.id(),
                                  QStringLiteral("flags=0"), QStringLiteral("call")},
                                 m_display.environment());
    QCOMPARE(run.value("result"), QStringLiteral("1001"));
    // In the desktop's middle.
    QVERIFY2(run.value("place").startsWith(QLatin1String("440,")), qPrintable(run.value("place")));
}

void TestEntryNativeParent::click(QPoint at) const
{
    QProcess mouse;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert(QStringLiteral("DISPLAY"), QString::fromLatin1(m_display.name()));
    mouse.setProcessEnvironment(variables);
    mouse.start(QStringLiteral("xdotool"),
                {QStringLiteral("mousemove"), QString::number(at.x()), QString::number(at.y()),
                 QStringLiteral("click"), QStringLiteral("1")});
    QVERIFY(mouse.waitForFinished() && mouse.exitCode() == 0);
}

void TestEntryNativeParent::parentTakesInputAgain_data()
{
    QTest::addColumn<QString>("check");
    QTest::addColumn<QString>("press");
    QTest::addColumn<QString>("result");
    QTest::addColumn<bool>("focusedBefore");
    const auto row = [](const char* name, const char* check, const char* press, const char* result,
                        bool focusedBefore) {
        QTest::newRow(name) << QString::fromLatin1(check) << QString::fromLatin1(press)
                            << QString::fromLatin1(result) << focusedBefore;
    };
    row("OK", "", "ok", "1000", true);
    row("cancel", "", "cancel", "1001", true);
    row("OK, without the focus before", "", "ok", "1000", false);
    row("exception of a companion", "throw", "ok", "1", true);
}

void TestEntryNativeParent::parentTakesInputAgain()
{
    QFETCH(QString, check);
    QFETCH(QString, press);
    QFETCH(QString, result);
    QFETCH(bool, focusedBefore);
    const Sandbox sandbox;
    sandbox.addRequired();
    ForeignWindow window(m_display.name(), QRect(100, 100, 300, 300));
    if (focusedBefore) {
        window.takeFocus();
    }
    QCOMPARE(window.hasFocus(), focusedBefore);
    auto variables = m_display.environment();
    variables.insert(QStringLiteral("KV_STUB_CHECK"), check);
    const auto run = sandbox.run({QStringLiteral("ext=window=") + window.id(),
                                  QStringLiteral("flags=0x13"), QLatin1String("press=") + press,
                                  QStringLiteral("call"), QStringLiteral("mapped")},
                                 variables);
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.value("result"), result);
    QCOMPARE(run.value("mapped"), QStringLiteral("kv_config_gui_mvc"));
    QVERIFY(window.hasFocus());
    click({250, 250});
    QTRY_VERIFY(window.wasClicked());
}

void TestEntryNativeParent::platformWithoutForeignWindows()
{
    const Sandbox sandbox;
    sandbox.addRequired();
    const auto run = sandbox.run(
        {QStringLiteral("ext=window=12345"), QStringLiteral("flags=0"), QStringLiteral("call")});
    QCOMPARE(run.value("result"), QStringLiteral("1001"));
    QCOMPARE(run.value("parent"), QStringLiteral("QWinWidget"));
    // Of the offscreen platform's 800 x 800.
    QVERIFY2(run.value("place").startsWith(QLatin1String("200,")), qPrintable(run.value("place")));
}

QTEST_MAIN(TestEntryNativeParent)
#include "tst_entry_native_parent.moc"
