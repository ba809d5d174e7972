#pragma once

#include <QFrame>
#include <QPointer>
#include <QToolButton>

class QLabel;

/// The title of a section whose own is scrolled away, over the first line of what shows of the
/// section: pages may be alike.
class StickingTitle : public QFrame
{
public:
    /// @param viewport What is scrolled.
    explicit StickingTitle(QWidget* viewport);

    /// @param bottom Where the section ends in the viewport; there the title gives way.
    void showFor(QToolButton* toggle, QLabel* title, int bottom);
    QToolButton* toggle() const { return m_toggle; }
    QString text() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    QPointer<QToolButton> m_toggle;
    QPointer<QLabel> m_title;
};
