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

/// A window of the host with a field of its own, active and with the focus in that field.
class HostWindow
{
public:
    HostWindow()
    {
        m_window = CreateWindowW(L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 100,
                                 500, 400, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
        m_field = CreateWindowW(L"EDIT", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 10, 10, 300, 24,
                                m_window, nullptr, GetModuleHandleW(nullptr), nullptr);
        SetForegroundWindow(m_window);
        SetFocus(m_field);
    }
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;
    ~HostWindow() { DestroyWindow(m_window); }

    HWND window() const { return m_window; }
    HWND field() const { return m_field; }

private:
    HWND m_window;
    HWND m_field;
};

/// Three fields of the toolkit in the host's window.
struct Embedded {
    explicit Embedded(const HostWindow& host)
        : widget(host.window()), first(new QLineEdit), second(new QLineEdit), third(new QLineEdit)
    {
        auto* const layout = new QVBoxLayout(&widget);
        for (QLineEdit* field : {first, second, third})
            layout->addWidget(field);
        widget.setGeometry(10, 50, 300, 200);
        widget.show();
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
    // Until this thread has it, so that the key's state is known here, too.
    QTest::qWait(50);
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
    void nativeWindow();
    void tabEntersAtTheFirstField();
    void shiftTabEntersAtTheLastField();
    void tabLeavesBehindTheLastField();
    void shiftTabLeavesBeforeTheFirstField();
    void dialogStartsInItsFirstField_data();
    void dialogStartsInItsFirstField();
};

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
    SetFocus(embedded.window());
    QTRY_COMPARE(QApplication::focusWidget(), embedded.first);
    press('A');
    QTRY_COMPARE(embedded.first->text(), QStringLiteral("a"));
}

void TestWin32Embedding::shiftTabEntersAtTheLastField()
{
    const HostWindow host;
    const Embedded embedded(host);
    key(VK_SHIFT, true);
    SetFocus(embedded.window());
    QTRY_COMPARE(QApplication::focusWidget(), embedded.third);
    key(VK_SHIFT, false);
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
    key(VK_SHIFT, false);
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
    if (activatedBefore)
        QApplication::setActiveWindow(&dialog);
    QWidget* focused = nullptr;
    QTimer::singleShot(500, &dialog, [&] {
        focused = QApplication::focusWidget();
        dialog.reject();
    });
    dialog.exec();
    QCOMPARE(focused, first);
}

QTEST_MAIN(TestWin32Embedding)
#include "tst_win32_embedding.moc"
