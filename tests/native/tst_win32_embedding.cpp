// Controls of the toolkit inside a Win32 window: the widget's native window, and the focus across
// the border by real keys.

#include "entry/QWinWidget.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <windows.h>

namespace
{

/// A window of the host with a field of its own, active and with the focus in that field, from
/// which Tab and Shift+Tab go to the next window, as in hosts that look after their own controls.
class HostWindow
{
public:
    HostWindow()
    {
        m_window = CreateWindowW(L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 100,
                                 500, 400, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
        m_field = CreateWindowW(L"EDIT", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 10, 10, 300, 24,
                                m_window, nullptr, GetModuleHandleW(nullptr), nullptr);
        s_fieldProcedure = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(
            m_field, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&HostWindow::fieldProcedure)));
        SetForegroundWindow(m_window);
        SetFocus(m_field);
    }
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;
    ~HostWindow() { DestroyWindow(m_window); }

    HWND window() const { return m_window; }
    HWND field() const { return m_field; }
    void setNextWindow(HWND next) const
    {
        SetWindowLongPtrW(m_field, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(next));
    }

private:
    static LRESULT CALLBACK fieldProcedure(HWND field, UINT message, WPARAM wide, LPARAM large)
    {
        if (message == WM_KEYDOWN && wide == VK_TAB) {
            SetFocus(reinterpret_cast<HWND>(GetWindowLongPtrW(field, GWLP_USERDATA)));
            return 0;
        }
        return CallWindowProcW(s_fieldProcedure, field, message, wide, large);
    }

    inline static WNDPROC s_fieldProcedure = nullptr;
    HWND m_window;
    HWND m_field;
};

/// Three fields of the toolkit in the host's window.
struct Embedded {
    explicit Embedded(const HostWindow& host)
        : widget(host.window()), first(new QLineEdit), second(new QLineEdit), third(new QLineEdit)
    {
        auto* const layout = new QVBoxLayout(&widget);
        for (QLineEdit* field : {first, second, third}) {
            layout->addWidget(field);
        }
        widget.setGeometry(10, 50, 300, 200);
        widget.show();
        host.setNextWindow(window());
        QCoreApplication::processEvents();
    }
    HWND window() const { return reinterpret_cast<HWND>(widget.winId()); }

    QWinWidget widget;
    // Owned by the widget.
    QLineEdit* first;
    QLineEdit* second;
    QLineEdit* third;
};

void key(WORD code, bool down)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = code;
    input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
    SendInput(1, &input, sizeof input);
    // Until this thread has dealt with it.
    (void)QTest::qWaitFor([code, down] { return (GetKeyState(code) < 0) == down; });
}

void press(WORD code)
{
    key(code, true);
    key(code, false);
}

} // namespace

class TestWin32Embedding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void nativeWindow();
    void tabEntersAtTheFirstField();
    void shiftTabEntersAtTheLastField();
    void tabLeavesBehindTheLastField();
    void shiftTabLeavesBeforeTheFirstField();
    void dialogStartsInItsFirstField_data();
    void dialogStartsInItsFirstField();
};

void TestWin32Embedding::cleanup()
{
    // Also when a test ended before it did so.
    key(VK_SHIFT, false);
}

void TestWin32Embedding::nativeWindow()
{
    const HostWindow host;
    QWinWidget widget(host.window());
    const HWND own = reinterpret_cast<HWND>(widget.winId());
    QCOMPARE(quint32(GetWindowLongA(own, GWL_STYLE)), 0x46000000U);
    QCOMPARE(GetAncestor(own, GA_PARENT), host.window());
    QVERIFY(!IsWindowVisible(own));
}

void TestWin32Embedding::tabEntersAtTheFirstField()
{
    const HostWindow host;
    const Embedded embedded(host);
    QCOMPARE(GetFocus(), host.field());
    press(VK_TAB);
    QTRY_COMPARE(QApplication::focusWidget(), embedded.first);
    press('A');
    QTRY_COMPARE(embedded.first->text(), QStringLiteral("a"));
}

void TestWin32Embedding::shiftTabEntersAtTheLastField()
{
    const HostWindow host;
    const Embedded embedded(host);
    QCOMPARE(GetFocus(), host.field());
    key(VK_SHIFT, true);
    press(VK_TAB);
    QTRY_COMPARE(QApplication::focusWidget(), embedded.third);
}

void TestWin32Embedding::tabLeavesBehindTheLastField()
{
    const HostWindow host;
    const Embedded embedded(host);
    SetFocus(embedded.window());
    QTRY_COMPARE(QApplication::focusWidget(), embedded.first);
    press(VK_TAB);
    QTRY_COMPARE(QApplication::focusWidget(), embedded.second);
    press(VK_TAB);
    QTRY_COMPARE(QApplication::focusWidget(), embedded.third);
    QCOMPARE(GetFocus(), embedded.window());
    press(VK_TAB);
    QTRY_COMPARE(GetFocus(), host.window());
}

void TestWin32Embedding::shiftTabLeavesBeforeTheFirstField()
{
    const HostWindow host;
    const Embedded embedded(host);
    key(VK_SHIFT, true);
    SetFocus(embedded.window());
    QTRY_COMPARE(QApplication::focusWidget(), embedded.third);
    press(VK_TAB);
    QTRY_COMPARE(QApplication::focusWidget(), embedded.second);
    press(VK_TAB);
    QTRY_COMPARE(QApplication::focusWidget(), embedded.first);
    press(VK_TAB);
    QTRY_COMPARE(GetFocus(), host.window());
}

void TestWin32Embedding::dialogStartsInItsFirstField_data()
{
    QTest::addColumn<bool>("activatedBefore");
    QTest::newRow("as the toolkit does it") << false;
    QTest::newRow("made the active window before it is shown") << true;
}

void TestWin32Embedding::dialogStartsInItsFirstField()
{
    QFETCH(bool, activatedBefore);
    const HostWindow host;
    QWinWidget widget(host.window());
    QDialog dialog(&widget);
    auto* const layout = new QVBoxLayout(&dialog);
    auto* const first = new QLineEdit;
    layout->addWidget(first);
    layout->addWidget(new QLineEdit);
    if (activatedBefore) {
        QApplication::setActiveWindow(&dialog);
    }
    bool focused = false;
    QTimer::singleShot(0, &dialog, [&] {
        focused = QTest::qWaitFor([&] { return QApplication::focusWidget() == first; });
        dialog.reject();
    });
    dialog.exec();
    QVERIFY(focused);
}

QTEST_MAIN(TestWin32Embedding)
#include "tst_win32_embedding.moc"
