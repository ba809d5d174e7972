#pragma once

#include <QObject>
#include <QString>

class QWidget;

/// The tip on lines of a readable length; a formatted one, which is wrapped anyway, as it is.
QString wrappedTip(const QString& tip);

/// Shows tips on lines of a readable length: the toolkit shows a plain text on one, however long.
class TipWrap : public QObject
{
public:
    /// Owned by the window, which has all its widgets.
    explicit TipWrap(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;
};
