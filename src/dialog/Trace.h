#pragma once

#include <QString>

/// What a call of the module does, for whoever wants to know why it did not do it: each search for
/// a library, each function, each call of a companion with its result, and the reason for an error,
/// one line each.
///
/// With KV_CONFIG_GUI_TRACE set, to anything but 0, lines go to standard error. They are debug
/// messages of the toolkit's logging category "kv.config_gui_mvc", too, which is off by default.
namespace trace
{

/// Asks the environment and the category anew.
bool isOn();

/// What would break a line, or reorder it on a terminal, is written as an escape.
void write(const QString& line);

/// @param line A function that makes the line; called only if somebody reads it.
template <class Line>
void say(Line line)
{
    if (isOn()) {
        write(line());
    }
}

} // namespace trace
