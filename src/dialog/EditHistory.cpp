#include "EditHistory.h"

#include <QUndoCommand>

#include <cstring>
#include <memory>

namespace
{

/// Steps beyond these are forgotten; each takes about 70 KB.
constexpr int maximumSteps = 200;
/// Steps that may go on have the same identity; which do, the history knows.
constexpr int stepIdentity = 1;

bool areSame(const EditedState& a, const EditedState& b)
{
    // Bytes without a name are the encoder's, and count as well.
    return std::memcmp(static_cast<const void*>(&a.record), static_cast<const void*>(&b.record),
                       sizeof a.record) == 0;
}

class Step : public QUndoCommand
{
public:
    Step(EditedState& reached, const EditedState& before, const EditedState& after,
         const QString& text, bool goesOn)
        : QUndoCommand(text),
          m_reached(reached),
          m_before(std::make_unique<EditedState>(before)),
          m_after(std::make_unique<EditedState>(after)),
          m_goesOn(goesOn)
    {
    }

    void undo() override { m_reached = *m_before; }
    void redo() override { m_reached = *m_after; }
    int id() const override { return stepIdentity; }
    bool mergeWith(const QUndoCommand* other) override
    {
        const auto& next = static_cast<const Step&>(*other);
        if (!next.m_goesOn) {
            return false;
        }
        *m_after = *next.m_after;
        setText(next.text());
        setObsolete(areSame(*m_before, *m_after));
        return true;
    }

private:
    EditedState& m_reached;
    const std::unique_ptr<EditedState> m_before;
    const std::unique_ptr<EditedState> m_after;
    const bool m_goesOn;
};

} // namespace

EditHistory::EditHistory()
{
    m_steps.setUndoLimit(maximumSteps);
}

void EditHistory::add(const EditedState& before, const EditedState& after, const QString& text,
                      const QString& goesOn)
{
    if (areSame(before, after)) {
        return;
    }
    const bool same = !goesOn.isEmpty() && goesOn == m_goesOn;
    m_goesOn = goesOn;
    const int count = m_steps.count();
    m_steps.push(new Step(m_reached, before, after, text, same));
    // Back where it began, the step is gone, and the one before it is another.
    if (same && m_steps.count() < count) {
        interrupt();
    }
}

std::optional<EditHistory::Turn> EditHistory::undo()
{
    interrupt();
    if (!m_steps.canUndo()) {
        return std::nullopt;
    }
    const QString text = m_steps.undoText();
    m_steps.undo();
    return Turn{m_reached, text};
}

std::optional<EditHistory::Turn> EditHistory::redo()
{
    interrupt();
    if (!m_steps.canRedo()) {
        return std::nullopt;
    }
    const QString text = m_steps.redoText();
    m_steps.redo();
    return Turn{m_reached, text};
}
