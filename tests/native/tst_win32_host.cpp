// The Win32 example and the dialog over its window, watched from another process by what the window
// system says, and worked with by real keys.

#include <QProcess>
#include <QRect>
#include <QTest>

#include <windows.h>

#include <optional>

namespace
{

// The example's numbers.
constexpr int menuSettings = 100;
constexpr int menuExit = 101;
constexpr int controlName = 102;
constexpr int controlResult = 103;

constexpr int patience = 30000; // ms

// Wine's desktop, as tools/windows/with-wine makes it.
constexpr int desktopWidth = 1280;
constexpr int desktopHeight = 1024;
constexpr int dialogWidth = 400;

QRect placeOf(HWND window)
{
    RECT edges = {};
    GetWindowRect(window, &edges);
    return {QPoint(edges.left, edges.top), QPoint(edges.right - 1, edges.bottom - 1)};
}

QSize contentSize(HWND window)
{
    RECT edges = {};
    GetClientRect(window, &edges);
    return {int(edges.right), int(edges.bottom)};
}

QString textOf(HWND window)
{
    wchar_t text[256] = L"";
    SendMessageW(window, WM_GETTEXT, 256, reinterpret_cast<LPARAM>(text));
    return QString::fromWCharArray(text);
}

/// The window with the focus, whichever process has it.
HWND windowWithFocus()
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(0, &info) ? info.hwndFocus : nullptr;
}

void sendKey(WORD key, DWORD flags)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

void press(WORD key)
{
    sendKey(key, 0);
    sendKey(key, KEYEVENTF_KEYUP);
}

/// The running example.
class Example
{
public:
    Example()
    {
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        variables.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("windows"));
        m_process.setProcessEnvironment(variables);
        m_process.setProcessChannelMode(QProcess::ForwardedChannels);
        m_process.start(qEnvironmentVariable("KV_BIN_DIR") + QStringLiteral("/win32-host.exe"),
                        QStringList());
    }
    ~Example()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    HWND window() const { return ownWindow(L"KvWin32Host", nullptr); }
    HWND dialog() const { return ownWindow(nullptr, L"Encoder settings of a Win32 program"); }
    HWND control(int number) const { return GetDlgItem(window(), number); }

    /// Puts the window there, with the focus in its field, and opens the dialog by its menu.
    bool openDialog(const QRect& place)
    {
        if (!QTest::qWaitFor([this] { return window() != nullptr; }, patience)) {
            return false;
        }
        SetWindowPos(window(), nullptr, place.x(), place.y(), place.width(), place.height(),
                     SWP_NOZORDER);
        SetForegroundWindow(window());
        if (!QTest::qWaitFor([this] { return windowWithFocus() == control(controlName); },
                             patience)) {
            return false;
        }
        // The example writes there again as soon as the call has returned.
        SendMessageW(control(controlResult), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
        PostMessageW(window(), WM_COMMAND, menuSettings, 0);
        return QTest::qWaitFor(
            [this] { return dialog() && windowWithFocus() == dialog() && hasSettled(); }, patience);
    }
    bool waitForCallToReturn()
    {
        return QTest::qWaitFor([this] { return !textOf(control(controlResult)).isEmpty(); },
                               patience);
    }
    bool end()
    {
        PostMessageW(window(), WM_COMMAND, menuExit, 0);
        return m_process.waitForFinished(patience) &&
               m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    }

private:
    /// The visible window of this process with that class or title.
    HWND ownWindow(const wchar_t* windowClass, const wchar_t* title) const
    {
        HWND found = nullptr;
        while ((found = FindWindowExW(nullptr, found, windowClass, title)) != nullptr) {
            DWORD process = 0;
            GetWindowThreadProcessId(found, &process);
            if (process == DWORD(m_process.processId()) && IsWindowVisible(found)) {
                return found;
            }
        }
        return nullptr;
    }
    /// Whether the dialog's thread takes messages, and so has shown it wholly.
    bool hasSettled() const
    {
        DWORD_PTR result = 0;
        return SendMessageTimeoutW(dialog(), WM_NULL, 0, 0, SMTO_NORMAL, patience, &result) != 0;
    }

    QProcess m_process;
};

} // namespace

class TestWin32Host : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dialogOverTheWindow_data();
    void dialogOverTheWindow();
    void closed_data();
    void closed();
    void dialogIsOpenedAgain();
    void windowCannotBeClosedUnderTheDialog();
};

void TestWin32Host::dialogOverTheWindow_data()
{
    QTest::addColumn<QRect>("window");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("centre"); // of the dialog's content, from the top; -1: at the top edge
    QTest::newRow("in the middle") << QRect(340, 262, 600, 500) << 440 << 512;
    QTest::newRow("off the left edge") << QRect(-500, 262, 600, 500) << 0 << 512;
    QTest::newRow("off the right edge")
        << QRect(1200, 262, 600, 500) << desktopWidth - dialogWidth << 512;
    QTest::newRow("off the top edge") << QRect(340, -400, 600, 500) << 440 << -1;
}

void TestWin32Host::dialogOverTheWindow()
{
    QFETCH(QRect, window);
    QFETCH(int, left);
    QFETCH(int, centre);
    Example example;
    QVERIFY(example.openDialog(window));
    const HWND dialog = example.dialog();

    QCOMPARE(placeOf(example.window()), window);
    QCOMPARE(contentSize(dialog).width(), dialogWidth);
    const int height = contentSize(dialog).height();
    QVERIFY(height > 500 && height < desktopHeight);
    // The toolkit does not count the frame's part that Windows 10 draws nothing into.
    const int unseen = GetSystemMetrics(SM_CXSIZEFRAME);
    QCOMPARE(placeOf(dialog).topLeft(),
             QPoint(left - unseen, centre < 0 ? 0 : centre - height / 2));

    QVERIFY(!IsWindowEnabled(example.window()));
    QVERIFY(IsWindowEnabled(dialog));
    QCOMPARE(GetWindow(dialog, GW_OWNER), example.window());
    QCOMPARE(GetForegroundWindow(), dialog);
}

void TestWin32Host::closed_data()
{
    QTest::addColumn<QByteArray>("way");
    QTest::addColumn<QString>("result");
    QTest::newRow("OK") << QByteArray("enter")
                        << QStringLiteral("Accepted: 1280 x 1080, 23.976 frames/s, 20000000 bit/s");
    const QString cancelled =
        QStringLiteral("Cancelled: 1920 x 1080, 23.976 frames/s, 20000000 bit/s");
    QTest::newRow("Cancel") << QByteArray("escape") << cancelled;
    QTest::newRow("close box") << QByteArray("close") << cancelled;
    QTest::newRow("Alt+F4") << QByteArray("alt+f4") << cancelled;
}

void TestWin32Host::closed()
{
    QFETCH(QByteArray, way);
    QFETCH(QString, result);
    Example example;
    QVERIFY(example.openDialog(QRect(100, 100, 600, 400)));
    // From the tabs to the picture's width.
    for (const WORD key :
         {WORD(VK_TAB), WORD(VK_TAB), WORD('1'), WORD('2'), WORD('8'), WORD('0')}) {
        press(key);
    }
    if (way == "close") {
        // A posted message would overtake the keys.
        QTest::qWait(500);
        PostMessageW(example.dialog(), WM_SYSCOMMAND, SC_CLOSE, 0);
    } else if (way == "alt+f4") {
        sendKey(VK_MENU, 0);
        press(VK_F4);
        sendKey(VK_MENU, KEYEVENTF_KEYUP);
    } else if (way == "enter") {
        // The first one commits the number.
        press(VK_RETURN);
        press(VK_RETURN);
    } else {
        // The first one takes it back.
        press(VK_ESCAPE);
        press(VK_ESCAPE);
    }
    QVERIFY(example.waitForCallToReturn());

    QCOMPARE(textOf(example.control(controlResult)), result);
    QVERIFY(IsWindowEnabled(example.window()));
    QCOMPARE(GetForegroundWindow(), example.window());
    QCOMPARE(windowWithFocus(), example.control(controlName));
    // Keys reach the window again.
    press('X');
    QTRY_VERIFY(textOf(example.control(controlName)).contains(QLatin1Char('x')));
    QVERIFY(example.end());
}

void TestWin32Host::dialogIsOpenedAgain()
{
    Example example;
    for (int i = 0; i < 3; ++i) {
        QVERIFY(example.openDialog(QRect(100, 100, 600, 400)));
        QVERIFY(!IsWindowEnabled(example.window()));
        press(VK_ESCAPE);
        QVERIFY(example.waitForCallToReturn());
        QVERIFY(IsWindowEnabled(example.window()));
        QCOMPARE(GetForegroundWindow(), example.window());
    }
    QVERIFY(example.end());
}

void TestWin32Host::windowCannotBeClosedUnderTheDialog()
{
    Example example;
    QVERIFY(example.openDialog(QRect(100, 100, 600, 400)));
    SendMessageW(example.window(), WM_CLOSE, 0, 0);
    QVERIFY(example.dialog());
    press(VK_ESCAPE);
    QVERIFY(example.waitForCallToReturn());
    QVERIFY(example.end());
}

QTEST_GUILESS_MAIN(TestWin32Host)
#include "tst_win32_host.moc"
