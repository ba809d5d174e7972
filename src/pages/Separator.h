#pragma once

#include <QObject>

class QFrame;
class QWidget;

/// Draws a horizontal line in the colour of texts, paler: a style draws it in shades of the
/// palette, which hosts leave unset, so that it was white on dark windows.
class Separator : public QObject
{
public:
    /// Takes all lines of the page.
    static void takeLinesOf(QWidget* page);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit Separator(QFrame* line);
};
