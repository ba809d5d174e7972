#include "ValueMarks.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QScopedValueRollback>

namespace
{

constexpr int barWidth = 3;

/// Legible on a light ground, and on a dark one.
struct Ink {
    QColor onLight;
    QColor onDark;
};
const Ink changedInk = {QColor(0, 110, 70), QColor(110, 220, 160)};
// As the message log has them.
const Ink warningInk = {QColor(0, 0, 180), QColor(150, 180, 255)};
const Ink errorInk = {QColor(180, 0, 0), QColor(255, 130, 130)};

QColor inkOn(const QWidget* ground, const Ink& ink)
{
    // Text is the other way round, also where a picture is the ground.
    constexpr int middle = 128;
    const QColor text = ground->palette().color(QPalette::WindowText);
    return text.lightness() < middle ? ink.onLight : ink.onDark;
}

QWidget* labelOf(QWidget* control)
{
    const auto labels =
        control->parentWidget()->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    for (QLabel* label : labels) {
        if (label->buddy() == control) {
            return label;
        }
    }
    return control;
}

} // namespace

ValueMarks::ValueMarks(QWidget* ground) : QObject(ground), m_ground(ground)
{
    ground->installEventFilter(this);
}

ValueMarks::Mark* ValueMarks::find(QWidget* control)
{
    auto* const marks =
        control->parentWidget()->findChild<ValueMarks*>(QString(), Qt::FindDirectChildrenOnly);
    for (int i = 0; marks && i < int(marks->m_marks.size()); ++i) {
        if (marks->m_marks[i].control == control) {
            return &marks->m_marks[i];
        }
    }
    return nullptr;
}

ValueMarks::Mark& ValueMarks::make(QWidget* control)
{
    QWidget* const ground = control->parentWidget();
    auto* marks = ground->findChild<ValueMarks*>(QString(), Qt::FindDirectChildrenOnly);
    if (!marks) {
        marks = new ValueMarks(ground);
    }
    Mark mark;
    mark.control = control;
    mark.anchor = labelOf(control);
    control->installEventFilter(marks);
    if (mark.anchor != control) {
        mark.anchor->installEventFilter(marks);
    }
    marks->m_marks.append(mark);
    return marks->m_marks.last();
}

void ValueMarks::setChanged(QWidget* control, bool changed)
{
    Mark* const mark = find(control);
    if (changed != (mark && mark->changed)) {
        Mark& made = mark ? *mark : make(control);
        made.changed = changed;
        control->parentWidget()->update(barOf(made));
    }
}

void ValueMarks::setSeverity(QWidget* control, Severity severity)
{
    Mark* const mark = find(control);
    if (severity != (mark ? mark->severity : Severity::None)) {
        (mark ? *mark : make(control)).severity = severity;
        control->parentWidget()->update(control->geometry().adjusted(-2, -2, 2, 2));
    }
}

QRect ValueMarks::barOf(const Mark& mark)
{
    // A label that is not shown names its control for assistive technology only.
    const bool hasLabel = mark.anchor && !mark.anchor->isHidden();
    const QRect place = (hasLabel ? mark.anchor : mark.control)->geometry();
    const int gap = qMin(place.left(), barWidth + 1);
    return {place.left() - gap, place.top(), barWidth, place.height()};
}

bool ValueMarks::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        if (watched != m_ground) {
            m_ground->update();
        }
        break;
    case QEvent::Paint:
        if (watched == m_ground && !m_painting) {
            // The widget first, then the marks over it.
            const QScopedValueRollback<bool> painting(m_painting, true);
            QCoreApplication::sendEvent(m_ground, event);
            paint();
            return true;
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void ValueMarks::paint()
{
    QPainter painter(m_ground);
    for (const Mark& mark : m_marks) {
        if (!mark.control || mark.control->isHidden()) {
            continue;
        }
        if (mark.severity != Severity::None) {
            const bool isError = mark.severity == Severity::Error;
            QPen pen(inkOn(m_ground, isError ? errorInk : warningInk), 2,
                     isError ? Qt::SolidLine : Qt::DashLine, Qt::SquareCap, Qt::MiterJoin);
            if (!isError) {
                pen.setDashPattern({2, 2});
                pen.setCapStyle(Qt::FlatCap);
            }
            painter.setPen(pen);
            painter.drawRect(mark.control->geometry().adjusted(-1, -1, 1, 1));
        }
        if (mark.changed) {
            painter.fillRect(barOf(mark), inkOn(m_ground, changedInk));
        }
    }
}
