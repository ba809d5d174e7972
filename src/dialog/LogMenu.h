#pragma once

#include <functional>

class QString;
class QTextEdit;

/// The context menu of the message log: what the toolkit has for a text, and below it the log's own
/// actions (QWidget::addAction).
namespace log_menu
{

/// Adds the menu, and the action that copies all messages, whole.
void attach(QTextEdit* log);
/// Adds an action of the log's own.
void add(QTextEdit* log, const QString& text, const std::function<void()>& act);

} // namespace log_menu
