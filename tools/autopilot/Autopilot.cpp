#include "Autopilot.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QScrollArea>
#include <QTabWidget>
#include <QTest>
#include <QTextStream>
#include <QTimer>

#include <cstdlib>

namespace
{

constexpr int stepInterval = 60;        // ms
constexpr int longestWait = 10000;      // ms
constexpr int longestActivation = 2000; // ms; there may be no window manager that activates

QString withVariables(QString line)
{
    static const QRegularExpression variable(QStringLiteral("\\$([A-Z_]+)"));
    for (auto match = variable.match(line); match.hasMatch(); match = variable.match(line)) {
        line.replace(match.capturedStart(), match.capturedLength(),
                     qEnvironmentVariable(match.captured(1).toLatin1().constData()));
    }
    return line;
}

template <class Widget>
Widget* find(QWidget* dialog, const QString& name)
{
    // The same page exists once a view: the first visible one is meant.
    const auto candidates = dialog->findChildren<Widget*>();
    for (Widget* widget : candidates) {
        if (widget->isVisibleTo(dialog) &&
            (widget->objectName() == name || widget->accessibleName() == name)) {
            return widget;
        }
    }
    return nullptr;
}

void scrollTo(QWidget* widget)
{
    for (QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(parent)) {
            area->ensureWidgetVisible(widget);
        }
    }
}

bool choose(QComboBox* box, const QString& text)
{
    const int index = box->findText(text);
    if (index < 0 || !box->isEnabled()) {
        return false;
    }
    // With the keyboard, so that the box reports a choice of the user.
    box->setFocus();
    while (box->currentIndex() != index) {
        const int before = box->currentIndex();
        QTest::keyClick(box, box->currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
        if (box->currentIndex() == before) {
            return false;
        }
    }
    return true;
}

void click(QAbstractButton* button)
{
    QTest::mouseClick(button, Qt::LeftButton, {},
                      QPoint(button->height() / 2, button->height() / 2));
}

/// A visible button of a host's window; none while it is not there.
QAbstractButton* hostButton(const QString& name)
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        auto* const button = find<QAbstractButton>(window, name);
        if (button && window->isVisible()) {
            return button;
        }
    }
    return nullptr;
}

[[noreturn]] void fail(const QString& line, const QString& reason)
{
    QTextStream(stderr) << "autopilot: " << line << ": " << reason << '\n';
    std::_Exit(3);
}

void type(QAbstractSpinBox* field, const QString& text)
{
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, text);
    QTest::keyClick(field, Qt::Key_Tab);
}

} // namespace

QObject* AutopilotPlugin::create(const QString&, const QString& script)
{
    // The toolkit takes the bytes of the variable for Latin-1.
    QFile file(QFile::decodeName(script.toLatin1()));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        // Without a script nobody would close the dialog.
        fail(file.fileName(), QStringLiteral("cannot be read"));
    }
    return new Autopilot(QString::fromUtf8(file.readAll()).split(QLatin1Char('\n')));
}

Autopilot::Autopilot(const QStringList& lines)
{
    for (const QString& line : lines) {
        if (!line.trimmed().isEmpty() && !line.startsWith(QLatin1Char('#'))) {
            m_lines.append(withVariables(line.trimmed()));
        }
    }
    QTimer::singleShot(stepInterval, this, &Autopilot::playNext);
}

void Autopilot::playNext()
{
    if (m_lines.isEmpty()) {
        return;
    }
    QWidget* const dialog = QApplication::activeModalWidget();
    // Ahead of the step, which may close the dialog and with it the event loop that called.
    QTimer::singleShot(stepInterval, this, &Autopilot::playNext);
    const QString hostCommand = QStringLiteral("host ");
    const bool isForHost = m_lines.first().startsWith(hostCommand);
    auto* const button =
        isForHost && !dialog ? hostButton(m_lines.first().mid(hostCommand.size())) : nullptr;
    if (button) {
        m_waited = 0;
        m_lines.removeFirst();
        click(button);
    } else if (!isForHost && dialog && dialog->isVisible() && isReady(dialog)) {
        m_waited = 0;
        play(dialog, m_lines.takeFirst());
    } else if ((m_waited += stepInterval) > longestWait) {
        fail(m_lines.first(), isForHost ? QStringLiteral("no such button, or a dialog is open")
                                        : QStringLiteral("no dialog"));
    }
}

/// What is typed into a window that becomes active meanwhile is not taken.
bool Autopilot::isReady(QWidget* dialog)
{
    if (m_dialog != dialog && !dialog->isActiveWindow() && m_waited < longestActivation) {
        return false;
    }
    m_dialog = dialog;
    return true;
}

void Autopilot::play(QWidget* dialog, const QString& line)
{
    const QString command = line.section(QLatin1Char(' '), 0, 0);
    const QString rest = line.section(QLatin1Char(' '), 1);
    const QString name = rest.section(QLatin1Char(' '), 0, 0);
    const QString text = rest.section(QLatin1Char(' '), 1);

    if (command == QLatin1String("grab")) {
        if (!dialog->grab().save(rest)) {
            fail(line, QStringLiteral("cannot write the picture"));
        }
        return;
    }
    if (command == QLatin1String("size")) {
        return dialog->resize(name.toInt(), text.toInt());
    }
    if (command == QLatin1String("key")) {
        const QKeySequence keys(rest);
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        return QTest::keyClick(dialog, keys[0].key(), keys[0].keyboardModifiers());
#else
        return QTest::keyClick(dialog, Qt::Key(keys[0] & ~Qt::KeyboardModifierMask));
#endif
    }
    if (command == QLatin1String("tab")) {
        if (auto* tabs = dialog->findChild<QTabWidget*>(QStringLiteral("tabWidget"))) {
            return tabs->setCurrentIndex(rest.toInt());
        }
        fail(line, QStringLiteral("no tabs"));
    }

    const bool wholeName = command == QLatin1String("click") || command == QLatin1String("show");
    auto* const widget = find<QWidget>(dialog, wholeName ? rest : name);
    if (!widget) {
        fail(line, QStringLiteral("no such widget"));
    }
    scrollTo(widget);
    auto* const box = qobject_cast<QComboBox*>(widget);
    auto* const field = qobject_cast<QAbstractSpinBox*>(widget);
    auto* const button = qobject_cast<QAbstractButton*>(widget);
    if (command == QLatin1String("choose") && box) {
        if (!choose(box, text)) {
            fail(line, QStringLiteral("no such item"));
        }
    } else if (command == QLatin1String("type") && field) {
        type(field, text);
    } else if (command == QLatin1String("click") && button) {
        click(button);
    } else if (command != QLatin1String("show")) {
        fail(line, QStringLiteral("no such command for this widget"));
    }
}
