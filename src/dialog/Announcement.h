#pragma once

#include <QString>

class QWidget;

/// Has assistive technology say the text at once, whatever has the focus; about the widget, which
/// is the notice's place among the objects that it knows. Does nothing while none listens.
void announce(QWidget* about, const QString& text);
