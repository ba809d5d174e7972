#include "Monkey.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QMimeData>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <QTest>
#include <QTextStream>
#include <QUrl>
#include <QWindow>

#include <functional>

namespace
{

constexpr int longestSession = 400;
constexpr int keptEvents = 25;
/// For so long an opened list does not take a click, in ms.
constexpr int listGuard = 40;

constexpr Qt::Key plainKeys[] = {
    Qt::Key_Tab,      Qt::Key_Tab,    Qt::Key_Tab,   Qt::Key_Backtab,  Qt::Key_Up,
    Qt::Key_Up,       Qt::Key_Down,   Qt::Key_Down,  Qt::Key_Left,     Qt::Key_Right,
    Qt::Key_PageUp,   Qt::Key_Home,   Qt::Key_End,   Qt::Key_PageDown, Qt::Key_Space,
    Qt::Key_Space,    Qt::Key_Return, Qt::Key_Enter, Qt::Key_Delete,   Qt::Key_Backspace,
    Qt::Key_Plus,     Qt::Key_Minus,  Qt::Key_F4,    Qt::Key_F5,       Qt::Key_F6,
    Qt::Key_F8,       Qt::Key_F1,     Qt::Key_Menu,  Qt::Key_V,        Qt::Key_H,
    Qt::Key_Asterisk, Qt::Key_Escape,
};

struct Shortcut {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
};

constexpr Shortcut keyShortcuts[] = {
    {Qt::Key_Z, Qt::ControlModifier},
    {Qt::Key_Z, Qt::ControlModifier},
    {Qt::Key_Z, Qt::ControlModifier},
    {Qt::Key_Y, Qt::ControlModifier},
    {Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier},
    {Qt::Key_Tab, Qt::ControlModifier},
    {Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier},
    {Qt::Key_PageUp, Qt::ControlModifier},
    {Qt::Key_PageDown, Qt::ControlModifier},
    {Qt::Key_1, Qt::ControlModifier},
    {Qt::Key_2, Qt::ControlModifier},
    {Qt::Key_3, Qt::ControlModifier},
    {Qt::Key_A, Qt::ControlModifier},
    {Qt::Key_C, Qt::ControlModifier},
    {Qt::Key_X, Qt::ControlModifier},
    {Qt::Key_V, Qt::ControlModifier},
    {Qt::Key_F1, Qt::ShiftModifier},
    {Qt::Key_Down, Qt::AltModifier},
    {Qt::Key_L, Qt::AltModifier},
    {Qt::Key_S, Qt::AltModifier},
};

constexpr Encoder::Manner manners[] = {
    Encoder::Manner::Reference, Encoder::Manner::Reference,  Encoder::Manner::Reference,
    Encoder::Manner::Accepting, Encoder::Manner::Correcting, Encoder::Manner::Correcting,
    Encoder::Manner::Refusing,  Encoder::Manner::Throwing,
};

/// The window that takes keys and clicks now.
QWidget* frontWindow()
{
    if (QWidget* const popup = QApplication::activePopupWidget()) {
        return popup->window();
    }
    return QApplication::activeWindow();
}

QWindow* frontHandle()
{
    const QWidget* const window = frontWindow();
    return window ? window->windowHandle() : nullptr;
}

bool isForTheMouse(const QWidget* widget)
{
    return qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QComboBox*>(widget) ||
           qobject_cast<const QSpinBox*>(widget) || qobject_cast<const QAbstractSlider*>(widget) ||
           qobject_cast<const QTabBar*>(widget) || widget->inherits("QLabel") ||
           widget->inherits("QTextEdit");
}

/// A place inside the widget that can be seen, from the window's corner.
QPoint placeIn(const QWidget* widget, Random& random)
{
    const QRect seen = widget->visibleRegion().boundingRect();
    const QPoint place(seen.x() + random.below(seen.width()),
                       seen.y() + random.below(seen.height()));
    return widget->mapTo(widget->window(), place);
}

qint32 anyFlags(Random& random)
{
    qint32 flags = 0;
    for (const qint32 usual : {KV_MVC_GUI_BASIC_TAB, KV_MVC_GUI_ADVANCED_TAB,
                               KV_MVC_GUI_FILE_BUTTONS, KV_MVC_GUI_LOG_COLOURS}) {
        flags |= random.oneIn(8) ? 0 : usual;
    }
    for (const qint32 unusual : {KV_MVC_GUI_NO_INITIAL_CHECK, KV_MVC_GUI_NO_BANNER}) {
        flags |= random.oneIn(3) ? unusual : 0;
    }
    if (random.oneIn(3)) {
        for (qint32 lock = KV_MVC_GUI_LOCK_VIDEO_TYPE; lock <= KV_MVC_GUI_LOCK_VIEWS; lock *= 2) {
            flags |= random.oneIn(4) ? lock : 0;
        }
    }
    return flags;
}

} // namespace

Monkey::Monkey(quint32 seed)
    : m_seed(seed), m_random({seed}), m_tracing(qEnvironmentVariableIsSet("KV_MONKEY_TRACE"))
{
    // What depends on how fast it goes would not be the same another time.
    QApplication::setDoubleClickInterval(listGuard);
    QApplication::setKeyboardInputInterval(-1);
    QApplication::setCursorFlashTime(0);
    m_time.start();
}

QString Monkey::play(int events, int firstSession)
{
    if (!m_encoder.isComplete()) {
        return QStringLiteral("the reference companions are not there");
    }
    for (int session = firstSession; m_events < events; ++session) {
        const QString broken = playSession(session, events - m_events);
        if (!broken.isEmpty()) {
            return QStringLiteral("seed %1, session %2, after %3 events of it:\n  %4\nThe last:\n  "
                                  "%5")
                .arg(m_seed)
                .arg(session)
                .arg(m_last.size())
                .arg(broken, m_last.mid(m_last.size() - keptEvents).join(QLatin1String("\n  ")));
        }
    }
    return {};
}

QString Monkey::report() const
{
    QStringList kinds;
    for (auto kind = m_counts.begin(); kind != m_counts.end(); ++kind) {
        kinds += QStringLiteral("%1 %2").arg(kind.value()).arg(kind.key());
    }
    return QStringLiteral("seed %1: %2 events (%3) in %4 dialogs, %5 accepted, %6 checks, %7 "
                          "windows answered, %8 s, digest %9")
        .arg(m_seed)
        .arg(m_events)
        .arg(kinds.join(QLatin1String(", ")))
        .arg(m_sessions)
        .arg(m_accepted)
        .arg(m_checks)
        .arg(m_nested.answered())
        .arg(m_time.elapsed() / 1000)
        .arg(m_digest, 0, 16);
}

void Monkey::makeFiles()
{
    m_files.clear();
    const struct {
        const char* name;
        int preset;
    } saved[] = {{"one.cfg", 1}, {"two.ini", 2}, {"three.CFG", 3}};
    for (const auto& row : saved) {
        m_files += m_folder.filePath(QLatin1String(row.name));
        m_encoder.save(m_encoder.defaults(row.preset), m_files.last());
    }
    const struct {
        const char* name;
        const char* content;
    } written[] = {{"broken.cfg", "[record]\nnum_views = many\n"},
                   {"empty.ini", ""},
                   {"film.mpg", "Dear reader,\n"},
                   {"text.txt", "nothing"}};
    for (const auto& row : written) {
        m_files += m_folder.filePath(QLatin1String(row.name));
        QFile file(m_files.last());
        if (file.open(QIODevice::WriteOnly)) {
            file.write(row.content);
        }
    }
    m_nested.setFiles(m_files);
}

QString Monkey::playSession(int session, int mostEvents)
{
    m_random = Random({m_seed, quint32(session)});
    m_last.clear();
    makeFiles();
    const Encoder::Manner manner = m_random.oneOf(manners);
    qint32 flags = anyFlags(m_random);
    if (manner == Encoder::Manner::Throwing) {
        flags |= KV_MVC_GUI_NO_INITIAL_CHECK;
    }
    const KvMvcSettings given =
        m_random.oneIn(4) ? exampleSettings() : m_encoder.defaults(m_random.below(4));
    note("dialogs", QStringLiteral("session %1, flags %2, manner %3")
                        .arg(session)
                        .arg(flags, 0, 16)
                        .arg(int(manner)));
    OpenDialog dialog(flags, given, [&](RecordingCompanions& companions) {
        m_encoder.serve(companions, given, manner, m_random);
    });
    ++m_sessions;
    const Invariants invariants(dialog, m_encoder, flags);
    QStringList broken = invariants.broken(false);
    for (int i = 0; i < qMin(longestSession, mostEvents) && broken.isEmpty(); ++i) {
        m_byKey = false;
        const QPointer<QWidget> focus = QApplication::focusWidget();
        const QPointer<QWidget> popup = QApplication::activePopupWidget();
        m_nested.begin(quint32(m_random.any()));
        m_random.oneIn(30) ? drop(dialog) : act(dialog);
        QCoreApplication::processEvents();
        m_nested.end();
        if (QApplication::activePopupWidget() && QApplication::activePopupWidget() != popup) {
            QTest::qWait(listGuard + 1);
        }
        ++m_events;
        dialog.companions.calls.clear();
        dialog.companions.written.clear();
        dialog.companions.receivedByReader.clear();
        if (!dialog->isVisible()) {
            break;
        }
        broken = invariants.broken(m_byKey && focus != QApplication::focusWidget());
    }
    m_checks += m_encoder.checks();
    while (QWidget* const popup = QApplication::activePopupWidget()) {
        popup->close();
    }
    // Also of a dialog that is still open when all events are played.
    m_digest = m_digest * 31 + qHash(bytesOf(dialog.caller)) + qHash(dialog.bytes());
    if (broken.isEmpty() && !dialog->isVisible()) {
        return endSession(dialog);
    }
    return broken.join(QLatin1String("\n  "));
}

QString Monkey::endSession(const OpenDialog& dialog)
{
    const QByteArray caller = bytesOf(dialog.caller);
    const bool accepted = dialog->result() == QDialog::Accepted;
    m_accepted += accepted ? 1 : 0;
    if (caller != (accepted ? dialog.bytes() : dialog.given)) {
        return accepted ? QStringLiteral("the caller's record is not what was accepted")
                        : QStringLiteral("the caller's record changed without being accepted");
    }
    return {};
}

void Monkey::note(const char* kind, const QString& event)
{
    ++m_counts[QString::fromLatin1(kind)];
    m_last += event;
    if (m_tracing) {
        QTextStream(stderr) << event << '\n';
    }
}

void Monkey::act(const OpenDialog& dialog)
{
    const int choice = m_random.below(100);
    if (QApplication::activePopupWidget() && m_random.oneIn(2)) {
        usePopup();
    } else if (choice < 40) {
        pressKey();
    } else if (choice < 50) {
        typeNumber();
    } else if (choice < 62) {
        pressShortcut();
    } else if (choice < 90) {
        useMouse(dialog);
    } else if (choice < 98) {
        turnWheel(dialog);
    } else {
        resize(dialog);
    }
}

void Monkey::send(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    const char character = QTest::keyToAscii(key);
    const QString text = character ? QString(QLatin1Char(character)) : QString();
    // As the window system's own come, which QTest's do not quite; the window may close meanwhile.
    if (QWindow* const window = frontHandle()) {
        qt_handleKeyEvent(window, QEvent::KeyPress, key, modifiers, text);
    }
    if (QWindow* const window = frontHandle()) {
        qt_handleKeyEvent(window, QEvent::KeyRelease, key, modifiers, text);
    }
}

void Monkey::pressKey()
{
    const Qt::Key key = m_random.oneOf(plainKeys);
    const QWidget* const focus = QApplication::focusWidget();
    // They mostly close the dialog.
    const bool closes = key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter;
    if (closes && !qobject_cast<const QSpinBox*>(focus) && !m_random.oneIn(8)) {
        return typeNumber();
    }
    note("keys", QStringLiteral("key %1 on %2")
                     .arg(QKeySequence(key).toString(), focus ? focus->objectName() : QString()));
    m_byKey = true;
    send(key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
}

void Monkey::usePopup()
{
    constexpr Qt::Key keys[] = {Qt::Key_Down, Qt::Key_Down,   Qt::Key_Up,     Qt::Key_Home,
                                Qt::Key_End,  Qt::Key_Return, Qt::Key_Return, Qt::Key_Escape};
    const Qt::Key key = m_random.oneOf(keys);
    note("keys", QStringLiteral("key %1 on a popup").arg(QKeySequence(key).toString()));
    send(key);
}

void Monkey::typeNumber()
{
    QString text;
    for (int i = m_random.below(6); i >= 0; --i) {
        text += m_random.oneIn(12) ? QLatin1Char('-') : QLatin1Char(char('0' + m_random.below(10)));
    }
    const QWidget* const focus = QApplication::focusWidget();
    note("numbers",
         QStringLiteral("type %1 on %2").arg(text, focus ? focus->objectName() : QString()));
    m_byKey = true;
    if (m_random.oneIn(2)) {
        send(Qt::Key_A, Qt::ControlModifier);
    }
    for (const QChar character : std::as_const(text)) {
        send(Qt::Key(character.unicode()));
    }
    if (m_random.oneIn(2)) {
        send(qobject_cast<const QSpinBox*>(focus) && m_random.oneIn(2) ? Qt::Key_Return
                                                                       : Qt::Key_Tab);
    }
}

void Monkey::pressShortcut()
{
    const Shortcut& shortcut = m_random.oneOf(keyShortcuts);
    note("shortcuts", QStringLiteral("shortcut ") +
                          QKeySequence(int(shortcut.key) | int(shortcut.modifiers)).toString());
    m_byKey = true;
    send(shortcut.key, shortcut.modifiers);
    if (shortcut.modifiers == Qt::AltModifier) {
        // A button stays down for a moment before it acts.
        constexpr int moment = 120; // ms
        QTest::qWait(moment);
    }
}

void Monkey::useMouse(const OpenDialog& dialog)
{
    const QWidget* window = frontWindow();
    if (!window) {
        window = dialog.get();
    }
    QVector<const QWidget*> targets;
    const bool alsoLabels = m_random.oneIn(8);
    for (const QWidget* widget : window->findChildren<const QWidget*>()) {
        const bool isWanted = alsoLabels || !widget->inherits("QLabel");
        if (isWanted && widget->window() == window && isForTheMouse(widget) &&
            !widget->visibleRegion().isEmpty()) {
            targets += widget;
        }
    }
    const QWidget* target = targets.isEmpty() ? window : m_random.oneOf(targets);
    // They close it.
    if (target->objectName().startsWith(QLatin1String("button")) && !m_random.oneIn(4)) {
        target = window;
    }
    if (target->visibleRegion().isEmpty() || !window->windowHandle()) {
        return;
    }
    const QPoint place = placeIn(target, m_random);
    const Qt::MouseButton button = m_random.oneIn(10) ? Qt::RightButton : Qt::LeftButton;
    note("clicks",
         QStringLiteral("%1 button at %2,%3 on %4")
             .arg(button == Qt::LeftButton ? QLatin1String("left") : QLatin1String("right"))
             .arg(place.x())
             .arg(place.y())
             .arg(target->objectName()));
    const QPoint end = m_random.oneIn(8) ? QPoint(m_random.below(window->width()),
                                                  m_random.below(window->height()))
                                         : place;
    const int clicks = m_random.oneIn(8) ? 2 : 1;
    // Each part of it may close the window; what is pressed is let go all the same, elsewhere.
    const QPointer<QWindow> handle = window->windowHandle();
    const auto at = [&handle](const QPoint& inside, auto act) {
        if (handle && handle->isVisible()) {
            act(handle.data(), inside);
        } else if (QWindow* const other = frontHandle()) {
            act(other, QPoint(1, 1));
        }
    };
    const auto move = [](QWindow* target, const QPoint& to) { QTest::mouseMove(target, to); };
    at(place, move);
    for (int click = 0; click < clicks; ++click) {
        at(place, [button](QWindow* target, const QPoint& to) {
            QTest::mousePress(target, button, {}, to);
        });
        if (end != place) {
            at((place + end) / 2, move);
            at(end, move);
        }
        at(end, [button](QWindow* target, const QPoint& to) {
            QTest::mouseRelease(target, button, {}, to);
        });
    }
}

void Monkey::turnWheel(const OpenDialog& dialog)
{
    QVector<QWidget*> targets;
    for (QWidget* widget : dialog->findChildren<QWidget*>()) {
        if (isForTheMouse(widget) && !widget->visibleRegion().isEmpty()) {
            targets += widget;
        }
    }
    if (targets.isEmpty() || QApplication::activePopupWidget()) {
        return;
    }
    QWidget* const target = m_random.oneOf(targets);
    const int notches = m_random.below(9) - 4;
    note("wheel", QStringLiteral("wheel %1 on %2").arg(notches).arg(target->objectName()));
    // An hour between two, so that none scrolls on by the one before.
    user::turnWheel(target, notches, m_random.oneIn(2) ? 0 : 3600000 * (1 + m_events % 500));
}

void Monkey::drop(OpenDialog& dialog)
{
    QMimeData data;
    const QString file = m_random.oneOf(m_files);
    note("drops", QStringLiteral("drop ") + file.section(QLatin1Char('/'), -1));
    switch (m_random.below(8)) {
    case 0:
        data.setText(file);
        break;
    case 1:
        data.setUrls({QUrl(QStringLiteral("http://127.0.0.1/x.cfg"))});
        break;
    case 2:
        data.setUrls({QUrl::fromLocalFile(m_folder.path()), QUrl::fromLocalFile(file)});
        break;
    default:
        data.setUrls({QUrl::fromLocalFile(file)});
    }
    if (!QApplication::activePopupWidget()) {
        dialog.drop(data);
    }
}

void Monkey::resize(const OpenDialog& dialog)
{
    const int height = 300 + m_random.below(900);
    note("sizes", QStringLiteral("height %1").arg(height));
    dialog->resize(dialog->width(), height);
}
