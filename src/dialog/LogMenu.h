#pragma once

class QAction;
class QTextEdit;

/// The context menu of the message log: what the toolkit has for a text, and below it the log's own
/// actions (QWidget::addAction).
namespace log_menu
{

/// Adds the menu, and the action that copies all messages, whole.
void attach(QTextEdit* log);

} // namespace log_menu
