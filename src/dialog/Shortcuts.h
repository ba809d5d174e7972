#pragma once

#include <functional>

class QDialog;
class QTabWidget;
class QTextEdit;

/// The dialog's keys beside those of its controls; they work wherever the focus is:
/// - Ctrl+Tab, Ctrl+PgDown, and with Shift or PgUp back: the next tab; Ctrl+1 to 3: a certain one;
/// - Ctrl+Z, Ctrl+Shift+Z and Ctrl+Y: take an edit back, and back again;
/// - F7: how much of its limits the stream uses;
/// - F8: the message log;
/// - Ctrl+F: the list of settings; Ctrl+L: that of the last files;
/// - Shift+F10: the context menu of what has the focus;
/// - F1: what the control with the focus is for. Shift+F1 the toolkit itself has for What's This.
namespace shortcuts
{

/// Adds them; what a control's tip says becomes its What's This, where it has none.
void add(QDialog* dialog, QTabWidget* tabs, QTextEdit* log);

/// Adds the keys of the history.
void addHistory(QDialog* dialog, const std::function<void()>& undo,
                const std::function<void()>& redo);

/// Adds the keys of what opens over the dialog.
void addMenus(QDialog* dialog, const std::function<void()>& find,
              const std::function<void()>& showFiles);

/// Adds the key of the limits.
void addLimits(QDialog* dialog, const std::function<void()>& show);

} // namespace shortcuts
