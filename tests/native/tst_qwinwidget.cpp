// What the widget that stands for a host's window does with it, over a window system that writes
// every request down.

#include "RecordedNativeWindow.h"
#include "ToolkitWarnings.h"
#include "entry/QWinWidget.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <memory>

namespace
{

enum Kind { Modal = 1, Window = 2, DeleteOnClose = 4, Hidden = 8 };

/// Opens what the toolkit's own base class keeps for itself.
class HostWidget : public QWinWidget
{
public:
    using QWinWidget::nativeEvent;
    using QWinWidget::QWinWidget;
};

/// Counts the events of a type that any widget of the application gets.
class EventCount : public QObject
{
public:
    explicit EventCount(QEvent::Type type) : m_type(type) { qApp->installEventFilter(this); }
    int count() const { return m_count; }

protected:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == m_type && object->isWidgetType()) {
            ++m_count;
        }
        return false;
    }

private:
    QEvent::Type m_type;
    int m_count = 0;
};

QStringList& calls()
{
    return recordedNativeWindow().calls;
}

std::unique_ptr<QWidget> childOf(QWidget* parent, int kind)
{
    auto child = std::make_unique<QWidget>(parent, kind & Window ? Qt::Window : Qt::WindowFlags());
    child->setAttribute(Qt::WA_ShowModal, kind & Modal);
    child->setAttribute(Qt::WA_DeleteOnClose, kind & DeleteOnClose);
    return child;
}

} // namespace

class TestQWinWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void construction();
    void nothingWithoutAHostWindow();
    void goesWithItsParentObject();

    void childEvents_data();
    void childEvents();
    void eventsAreNotConsumed();
    void hidesWhenAWindowIsShown_data();
    void hidesWhenAWindowIsShown();
    void previousFocusIsKeptFromTheFirstChild();
    void hostGetsTheFocusThatNoneHadAtFirst();
    void secondModalChildDisablesNothing();
    void minimizedDialogKeepsTheHostDisabled();
    void hostIsEnabledWhenAChildIsTakenAway();
    void childThatDisabledNothingIsTakenAway();
    void dialogClosed_data();
    void dialogClosed();

    void nativeFocusMessage_data();
    void nativeFocusMessage();
    void nativeFocusWithoutControls();
    void otherReasonsMoveNoFocus();
    void tabKeys_data();
    void tabKeys();
    void backtabFromTheWindowItself();
    void tabKeyWithoutAHostWindow();

private:
    /// A host widget with three fields, the first of them disabled on demand, shown and active.
    struct Fields {
        explicit Fields(NativeWindowHandle window, bool firstEnabled = true);
        HostWidget host;
        QLineEdit* first;
        QLineEdit* second;
        QLineEdit* third;
        QLineEdit* named(const QByteArray& name) const;
    };
};

TestQWinWidget::Fields::Fields(NativeWindowHandle window, bool firstEnabled)
    : host(window), first(new QLineEdit), second(new QLineEdit), third(new QLineEdit)
{
    auto* const layout = new QVBoxLayout(&host);
    for (QLineEdit* field : {first, second, third}) {
        layout->addWidget(field);
    }
    first->setEnabled(firstEnabled);
    host.show();
    QApplication::setActiveWindow(&host);
    calls().clear();
}

QLineEdit* TestQWinWidget::Fields::named(const QByteArray& name) const
{
    return name == "first" ? first : name == "second" ? second : name == "third" ? third : nullptr;
}

void TestQWinWidget::init()
{
    failOnToolkitWarnings();
    recordedNativeWindow() = {};
}

void TestQWinWidget::construction()
{
    const EventCount embedding(QEvent::EmbeddingControl);
    const QWinWidget host(windowNamed('H'));
    QCOMPARE(calls(), QStringList{QStringLiteral("embed into H")});
    QCOMPARE(embedding.count(), 1);
    QCOMPARE(host.parentWindow(), windowNamed('H'));
    QVERIFY(!host.parentWidget());
    QVERIFY(host.isWindow());
    QVERIFY(host.isHidden());
}

void TestQWinWidget::nothingWithoutAHostWindow()
{
    const EventCount embedding(QEvent::EmbeddingControl);
    QWinWidget host(nullptr);
    QDialog dialog(&host);
    QTimer::singleShot(0, &dialog, &QDialog::close);
    dialog.exec();
    QCOMPARE(calls(), QStringList());
    QCOMPARE(embedding.count(), 0);
}

void TestQWinWidget::goesWithItsParentObject()
{
    auto object = std::make_unique<QObject>();
    auto window = std::make_unique<QWidget>();
    const QPointer<QWidget> ofObject = new QWinWidget(windowNamed('H'), object.get());
    const QPointer<QWidget> ofWindow = new QWinWidget(windowNamed('H'), window.get());
    QVERIFY(ofWindow->isWindow());
    QCOMPARE(ofWindow->parentWidget(), window.get());
    object.reset();
    window.reset();
    QVERIFY(ofObject.isNull());
    QVERIFY(ofWindow.isNull());
}

void TestQWinWidget::childEvents_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QList<QEvent::Type>>("events");
    QTest::addColumn<QStringList>("requests");
    QTest::addColumn<bool>("deleted");

    const auto row = [](const char* name, int kind, const QList<QEvent::Type>& events,
                        const QString& requests, bool deleted = false) {
        QTest::newRow(name) << kind << events
                            << (requests.isEmpty() ? QStringList()
                                                   : requests.split(QStringLiteral(", ")))
                            << deleted;
    };
    row("modal window shown", Modal | Window, {QEvent::Show}, QStringLiteral("disable H"));
    row("other window shown", Window, {QEvent::Show}, QString());
    row("control shown", 0, {QEvent::Show}, QString());
    row("modal window shown and hidden", Modal | Window, {QEvent::Show, QEvent::Hide},
        QStringLiteral("disable H, enable H, focus F"));
    row("other window shown and hidden", Window, {QEvent::Show, QEvent::Hide},
        QStringLiteral("focus F"));
    row("hidden, never shown", Window, {QEvent::Hide}, QStringLiteral("focus H"));
    row("modal window closed", Modal | Window, {QEvent::Show, QEvent::Close, QEvent::Hide},
        QStringLiteral("disable H, activate H, enable H, focus F"));
    row("closed, to be deleted", Window | DeleteOnClose, {QEvent::Close},
        QStringLiteral("activate H"), true);
    row("hidden, to be deleted", Window | DeleteOnClose, {QEvent::Hide}, QStringLiteral("focus H"),
        true);
    row("control closed, to be deleted", DeleteOnClose, {QEvent::Close},
        QStringLiteral("activate H"), true);
    row("control hidden, to be deleted", DeleteOnClose, {QEvent::Hide}, QStringLiteral("focus H"));
    row("modal and hidden, deactivated", Modal | Window | Hidden, {QEvent::WindowDeactivate},
        QStringLiteral("raise H"));
    row("hidden, deactivated", Window | Hidden, {QEvent::WindowDeactivate}, QString());
    row("modal, deactivated", Modal | Window, {QEvent::WindowDeactivate}, QString());
}

void TestQWinWidget::childEvents()
{
    QFETCH(int, kind);
    QFETCH(QList<QEvent::Type>, events);
    QFETCH(QStringList, requests);
    QFETCH(bool, deleted);

    const QPointer<QWinWidget> host = new QWinWidget(windowNamed('H'));
    const auto child = childOf(host, kind);
    child->setAttribute(Qt::WA_WState_Hidden, kind & Hidden);
    recordedNativeWindow() = {{}, windowNamed('F'), {}};
    for (const QEvent::Type type : events) {
        QEvent event(type);
        // The filter alone: the child is in no state to deal with it.
        static_cast<QObject*>(host)->eventFilter(child.get(), &event);
    }
    QCOMPARE(calls(), requests);
    child->setParent(nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(host.isNull(), deleted);
    delete host;
}

void TestQWinWidget::eventsAreNotConsumed()
{
    QWinWidget host(windowNamed('H'));
    const auto child = childOf(&host, Modal | Window);
    for (const QEvent::Type type :
         {QEvent::Show, QEvent::Hide, QEvent::Close, QEvent::WindowDeactivate, QEvent::Paint}) {
        QEvent event(type);
        QVERIFY2(!static_cast<QObject&>(host).eventFilter(child.get(), &event),
                 QByteArray::number(type).constData());
    }
}

void TestQWinWidget::hidesWhenAWindowIsShown_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("hidden");
    QTest::newRow("modal window") << int(Modal | Window) << true;
    QTest::newRow("other window") << int(Window) << true;
    QTest::newRow("control") << 0 << false;
}

void TestQWinWidget::hidesWhenAWindowIsShown()
{
    QFETCH(int, kind);
    QFETCH(bool, hidden);
    QWinWidget host(windowNamed('H'));
    const auto child = childOf(&host, kind);
    child->hide();
    host.show();
    QVERIFY(!host.isHidden());
    child->show();
    QCOMPARE(host.isHidden(), hidden);
}

void TestQWinWidget::previousFocusIsKeptFromTheFirstChild()
{
    QWinWidget host(windowNamed('H'));
    recordedNativeWindow().focus = windowNamed('F');
    QDialog first(&host);
    first.show();
    first.hide();
    recordedNativeWindow() = {{}, windowNamed('G'), {}};
    QDialog second(&host);
    second.show();
    second.hide();
    QCOMPARE(calls(), QStringList{QStringLiteral("focus F")});
}

void TestQWinWidget::hostGetsTheFocusThatNoneHadAtFirst()
{
    QWinWidget host(windowNamed('H'));
    QDialog first(&host);
    first.show();
    recordedNativeWindow() = {{}, windowNamed('G'), {}};
    QDialog second(&host);
    second.show();
    second.hide();
    QCOMPARE(calls(), QStringList{QStringLiteral("focus H")});
}

void TestQWinWidget::secondModalChildDisablesNothing()
{
    QWinWidget host(windowNamed('H'));
    calls().clear();
    QDialog first(&host);
    QDialog second(&host);
    first.setModal(true);
    second.setModal(true);
    first.show();
    second.show();
    QCOMPARE(calls(), QStringList{QStringLiteral("disable H")});
}

void TestQWinWidget::minimizedDialogKeepsTheHostDisabled()
{
    QWinWidget host(windowNamed('H'));
    QDialog dialog(&host);
    dialog.setModal(true);
    dialog.show();
    calls().clear();
    dialog.showMinimized();
    QCoreApplication::processEvents();
    QCOMPARE(calls(), QStringList());
}

void TestQWinWidget::hostIsEnabledWhenAChildIsTakenAway()
{
    QWinWidget host(windowNamed('H'));
    const auto child = childOf(&host, Modal | Window);
    QEvent shown(QEvent::Show);
    static_cast<QObject&>(host).eventFilter(child.get(), &shown);
    calls().clear();
    child->setParent(nullptr);
    QCOMPARE(calls(), QStringList{QStringLiteral("enable H")});
    // Its events are none of the host's any more.
    QEvent hidden(QEvent::Hide);
    QCoreApplication::sendEvent(child.get(), &hidden);
    QCOMPARE(calls(), QStringList{QStringLiteral("enable H")});
}

void TestQWinWidget::childThatDisabledNothingIsTakenAway()
{
    QWinWidget host(windowNamed('H'));
    recordedNativeWindow() = {{}, windowNamed('F'), {}};
    const auto child = childOf(&host, Window);
    QEvent shown(QEvent::Show);
    static_cast<QObject&>(host).eventFilter(child.get(), &shown);
    child->setParent(nullptr);
    QCOMPARE(calls(), QStringList());
    // Its events are still the host's.
    QEvent hidden(QEvent::Hide);
    QCoreApplication::sendEvent(child.get(), &hidden);
    QCOMPARE(calls(), QStringList{QStringLiteral("focus F")});
}

void TestQWinWidget::dialogClosed_data()
{
    QTest::addColumn<QByteArray>("way");
    QTest::addColumn<QStringList>("requests");
    const QStringList answered{QStringLiteral("enable H"), QStringLiteral("focus F")};
    QTest::newRow("accepted") << QByteArray("accept") << answered;
    QTest::newRow("rejected") << QByteArray("reject") << answered;
    QTest::newRow("closed") << QByteArray("close")
                            << QStringList{QStringLiteral("activate H")} + answered;
}

void TestQWinWidget::dialogClosed()
{
    QFETCH(QByteArray, way);
    QFETCH(QStringList, requests);
    QWinWidget host(windowNamed('H'));
    host.show();
    recordedNativeWindow() = {{}, windowNamed('F'), {}};
    QDialog dialog(&host);
    QStringList open;
    QTimer::singleShot(0, &dialog, [&] {
        open.swap(calls());
        QMetaObject::invokeMethod(&dialog, way.constData());
    });
    dialog.exec();
    QCOMPARE(open, QStringList{QStringLiteral("disable H")});
    QCOMPARE(calls().mid(0, requests.size()), requests);
    QVERIFY(host.isHidden());
}

void TestQWinWidget::nativeFocusMessage_data()
{
    QTest::addColumn<Qt::FocusReason>("reason");
    QTest::addColumn<bool>("firstEnabled");
    QTest::addColumn<QByteArray>("focused");
    QTest::newRow("tab") << Qt::TabFocusReason << true << QByteArray("first");
    QTest::newRow("backtab") << Qt::BacktabFocusReason << true << QByteArray("third");
    QTest::newRow("tab, first field disabled")
        << Qt::TabFocusReason << false << QByteArray("second");
    QTest::newRow("backtab, first field disabled")
        << Qt::BacktabFocusReason << false << QByteArray("third");
}

void TestQWinWidget::nativeFocusMessage()
{
    QFETCH(Qt::FocusReason, reason);
    QFETCH(bool, firstEnabled);
    QFETCH(QByteArray, focused);
    Fields fields(windowNamed('H'), firstEnabled);
    for (QWidget* widget : QWidgetList{&fields.host, fields.first, fields.second, fields.third}) {
        widget->setAttribute(Qt::WA_KeyboardFocusChange, false);
    }
    recordedNativeWindow().reason = reason;
    QWinWidget::MessageResult result = 0;
    QVERIFY(!fields.host.nativeEvent("windows_generic_MSG", nullptr, &result));
    QCOMPARE(QApplication::focusWidget(), fields.named(focused));
    QVERIFY(fields.host.testAttribute(Qt::WA_KeyboardFocusChange));
    QVERIFY(
        (firstEnabled ? fields.first : fields.second)->testAttribute(Qt::WA_KeyboardFocusChange));
}

void TestQWinWidget::nativeFocusWithoutControls()
{
    HostWidget host(windowNamed('H'));
    recordedNativeWindow().reason = Qt::TabFocusReason;
    QWinWidget::MessageResult result = 0;
    QVERIFY(!host.nativeEvent("windows_generic_MSG", nullptr, &result));
    QVERIFY(!host.focusWidget());
}

void TestQWinWidget::otherReasonsMoveNoFocus()
{
    Fields fields(windowNamed('H'));
    fields.second->setFocus();
    QFocusEvent byMouse(QEvent::FocusIn, Qt::MouseFocusReason);
    QCoreApplication::sendEvent(&fields.host, &byMouse);
    QCOMPARE(QApplication::focusWidget(), fields.second);
}

void TestQWinWidget::tabKeys_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<bool>("forward");
    QTest::addColumn<bool>("firstEnabled");
    QTest::addColumn<QByteArray>("to"); // empty: back to the host's window
    QTest::newRow("first, tab") << QByteArray("first") << true << true << QByteArray("second");
    QTest::newRow("second, tab") << QByteArray("second") << true << true << QByteArray("third");
    QTest::newRow("third, tab") << QByteArray("third") << true << true << QByteArray();
    QTest::newRow("third, backtab") << QByteArray("third") << false << true << QByteArray("second");
    QTest::newRow("second, backtab")
        << QByteArray("second") << false << true << QByteArray("first");
    QTest::newRow("first, backtab") << QByteArray("first") << false << true << QByteArray();
    QTest::newRow("second, backtab, first disabled")
        << QByteArray("second") << false << false << QByteArray();
}

void TestQWinWidget::tabKeys()
{
    QFETCH(QByteArray, from);
    QFETCH(bool, forward);
    QFETCH(bool, firstEnabled);
    QFETCH(QByteArray, to);
    Fields fields(windowNamed('H'), firstEnabled);
    fields.named(from)->setFocus();
    QTest::keyClick(fields.named(from), forward ? Qt::Key_Tab : Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), fields.named(to.isEmpty() ? from : to));
    QCOMPARE(calls(), to.isEmpty() ? QStringList{QStringLiteral("focus H")} : QStringList());
}

void TestQWinWidget::backtabFromTheWindowItself()
{
    Fields fields(windowNamed('H'));
    fields.host.setFocusPolicy(Qt::StrongFocus);
    fields.host.setFocus();
    QTest::keyClick(&fields.host, Qt::Key_Backtab);
    QCOMPARE(calls(), QStringList{QStringLiteral("focus H")});
    QCOMPARE(QApplication::focusWidget(), &fields.host);
}

void TestQWinWidget::tabKeyWithoutAHostWindow()
{
    Fields fields(nullptr);
    fields.third->setFocus();
    QTest::keyClick(fields.third, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), fields.first);
    QCOMPARE(calls(), QStringList());
}

QTEST_MAIN(TestQWinWidget)
#include "tst_qwinwidget.moc"
