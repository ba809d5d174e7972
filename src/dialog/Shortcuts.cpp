#include "Shortcuts.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QShortcut>
#include <QTabWidget>
#include <QTextEdit>
#include <QWhatsThis>

#include <initializer_list>
#include <iterator>

namespace
{

template <class Act>
void bind(QDialog* dialog, std::initializer_list<const char*> keys, Act act)
{
    for (const char* key : keys) {
        auto* const shortcut = new QShortcut(QKeySequence(QLatin1String(key)), dialog);
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

/// The menu that a right click opens. Not all window systems have the key for it at Shift+F10, too.
void openMenu(QWidget* widget)
{
    if (!widget) {
        return;
    }
    const QPoint place = widget->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &event);
}

} // namespace

void shortcuts::add(QDialog* dialog, QTabWidget* tabs, QTextEdit* log)
{
    bind(dialog, {"Ctrl+Tab", "Ctrl+PgDown"}, [tabs] { turn(tabs, 1); });
    bind(dialog, {"Ctrl+Shift+Tab", "Ctrl+PgUp"}, [tabs] { turn(tabs, -1); });
    constexpr const char* chosen[] = {"Ctrl+1", "Ctrl+2", "Ctrl+3"};
    for (int tab = 0; tab < int(std::size(chosen)); ++tab) {
        bind(dialog, {chosen[tab]}, [tabs, tab] { tabs->setCurrentIndex(tab); });
    }
    bind(dialog, {"F8"}, [log] { log->setFocus(Qt::ShortcutFocusReason); });
    bind(dialog, {"F1"}, [dialog] { explain(dialog->focusWidget()); });
    bind(dialog, {"Shift+F10"}, [dialog] { openMenu(dialog->focusWidget()); });

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
    bind(dialog, {"Ctrl+Z"}, undo);
    bind(dialog, {"Ctrl+Shift+Z", "Ctrl+Y"}, redo);
}

void shortcuts::addMenus(QDialog* dialog, const std::function<void()>& find,
                         const std::function<void()>& showFiles)
{
    bind(dialog, {"Ctrl+F"}, find);
    bind(dialog, {"Ctrl+L"}, showFiles);
}

void shortcuts::addLimits(QDialog* dialog, const std::function<void()>& show)
{
    bind(dialog, {"F7"}, show);
}
