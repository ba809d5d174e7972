#pragma once

#include <QFrame>
#include <QPointer>

class QGridLayout;
class QScrollArea;

/// A scrollable column of collapsible sections, all open at first. Any number of them may be open.
class ToolBox : public QFrame
{
    Q_OBJECT

public:
    explicit ToolBox(QWidget* parent = nullptr, Qt::WindowFlags flags = {});

    /// Appends a section: a toggle button and a bold title, and under them the page, which becomes
    /// a child of the box.
    /// @param expandedIcon, collapsedIcon Image files of the button's two states.
    void addSection(QWidget* page, const QString& title, const QString& expandedIcon,
                    const QString& collapsedIcon);

    /// The same with the arrows that every section of the dialog has.
    void addSection(QWidget* page, const QString& title);

private:
    QScrollArea* m_scrollArea;
    QFrame* m_content;
    QGridLayout* m_grid;
    /// Behind it in the order of the Tab key comes the next section.
    QPointer<QWidget> m_lastInChain;
};
