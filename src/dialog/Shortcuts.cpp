#include "Shortcuts.h"

#include <QApplication>
#include <QDialog>
#include <QShortcut>
#include <QTabWidget>
#include <QTextEdit>
#include <QWhatsThis>

#include <initializer_list>

namespace
{

template <class Act>
void bind(QDialog* dialog, std::initializer_list<QKeySequence> keys, Act act)
{
    for (const QKeySequence& key : keys) {
        auto* const shortcut = new QShortcut(key, dialog);
        QObject::connect(shortcut, &QShortcut::activated, dialog, act);
    }
}

void turn(QTabWidget* tabs, int step)
{
    tabs->setCurrentIndex((tabs->currentIndex() + step + tabs->count()) % tabs->count());
}

/// The control's own text, or that of what it is in.
void explain(const QWidget* widget)
{
    for (const QWidget* place = widget; place; place = place->parentWidget()) {
        if (!place->whatsThis().isEmpty()) {
            const QPoint corner(widget->width() / 2, widget->height());
            QWhatsThis::showText(widget->mapToGlobal(corner), place->whatsThis());
            return;
        }
    }
}

} // namespace

void shortcuts::add(QDialog* dialog, QTabWidget* tabs, QTextEdit* log)
{
    bind(dialog, {Qt::CTRL | Qt::Key_Tab, Qt::CTRL | Qt::Key_PageDown}, [tabs] { turn(tabs, 1); });
    bind(dialog, {Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, Qt::CTRL | Qt::Key_PageUp},
         [tabs] { turn(tabs, -1); });
    for (int tab = 0; tab < 3; ++tab) {
        bind(dialog, {QKeySequence(QStringLiteral("Ctrl+%1").arg(tab + 1))},
             [tabs, tab] { tabs->setCurrentIndex(tab); });
    }
    bind(dialog, {Qt::Key_F8}, [log] { log->setFocus(Qt::ShortcutFocusReason); });
    bind(dialog, {Qt::Key_F1}, [dialog] { explain(dialog->focusWidget()); });

    const auto widgets = dialog->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        if (widget->whatsThis().isEmpty()) {
            widget->setWhatsThis(widget->toolTip());
        }
    }
}

void shortcuts::addHistory(QDialog* dialog, const std::function<void()>& undo,
                           const std::function<void()>& redo)
{
    bind(dialog, {Qt::CTRL | Qt::Key_Z}, undo);
    bind(dialog, {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y}, redo);
}
