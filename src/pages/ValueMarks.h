#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QVector>

class QPainter;
class QWidget;

/// Marks beside the controls that stand in a widget, painted on what the widget leaves free, so
/// that nothing moves: a bar before the label of a changed setting; a frame around a control that
/// has a message, dashed for a warning.
class ValueMarks : public QObject
{
    Q_OBJECT

public:
    enum class Severity { None, Warning, Error };

    static void setChanged(QWidget* control, bool changed);
    static void setSeverity(QWidget* control, Severity severity);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Mark {
        QPointer<QWidget> control;
        /// What it is marked as changed at: its label, or itself.
        QPointer<QWidget> anchor;
        bool changed = false;
        Severity severity = Severity::None;
    };

    explicit ValueMarks(QWidget* ground);
    /// Null for a control that never had a mark.
    static Mark* find(QWidget* control);
    static Mark& make(QWidget* control);
    /// Where its bar stands in the ground.
    static QRect barOf(const Mark& mark);
    void paint();

    QWidget* const m_ground;
    QVector<Mark> m_marks;
    bool m_painting = false;
};
