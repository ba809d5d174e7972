#pragma once

#include <QString>

/// Text from elsewhere as a part of a line: characters that would end the line, control the
/// terminal or turn the direction of writing are escaped, as "\u001b".
QString printable(const QString& text);
