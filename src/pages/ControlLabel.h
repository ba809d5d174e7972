#pragma once

#include <QObject>

class QGraphicsOpacityEffect;
class QLabel;
class QWidget;

/// Makes a label one with the control that it stands beside: it shows the control's tip and all
/// that goes with it, and is grey while the control is disabled. The label itself stays enabled.
class ControlLabel : public QObject
{
    Q_OBJECT

public:
    static void attach(QLabel* label, QWidget* control);
    /// Attaches the labels beside the control whose buddy it is.
    static void attachBuddies(QWidget* control);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ControlLabel(QLabel* label, QWidget* control);
    void follow();

    QLabel* m_label;
    QWidget* m_control;
    QGraphicsOpacityEffect* m_paleness;
};
