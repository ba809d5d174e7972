#pragma once

class QDialog;
class QTabWidget;
class QTextEdit;

/// The dialog's keys beside those of its controls; they work wherever the focus is, and change no
/// setting:
/// - Ctrl+Tab, Ctrl+PgDown, and with Shift or PgUp back: the next tab; Ctrl+1 to 3: a certain one;
/// - F8: the message log;
/// - F1: what the control with the focus is for. Shift+F1 the toolkit itself has for What's This.
namespace shortcuts
{

/// Adds them; what a control's tip says becomes its What's This, where it has none.
void add(QDialog* dialog, QTabWidget* tabs, QTextEdit* log);

} // namespace shortcuts
