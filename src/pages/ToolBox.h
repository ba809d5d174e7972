#pragma once

#include <QFrame>
#include <QPointer>
#include <QVector>

#include <functional>

class QGridLayout;
class QLabel;
class QScrollArea;
class QToolButton;
class StickingTitle;

/// A scrollable column of collapsible sections, all open at first. Any number of them may be open.
/// A click on a section's title does what one on its button does, and the title of the section that
/// shows at the top sticks there.
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

    /// What the sections stand in. A page that is built below it is not styled a second time.
    QWidget* content() const;

    /// Makes a change of the pages, which may show and hide what is in them, and scrolls so that
    /// the control with the focus does not move under the user's eyes.
    void keepFocusInPlace(const std::function<void()>& change);

    /// Opens the section that the widget is in, and scrolls to it.
    void reveal(QWidget* widget);

    /// How much more than its size hint it would take to show all sections without scrolling, in
    /// pixels; `width` is what they have.
    int missingHeight(int width) const;

    /// Folds and unfolds a section by a click on its title.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Section {
        QToolButton* toggle;
        QLabel* title;
        QWidget* page;
    };

    void clickToggleOf(const QWidget* title);
    void placeStickingTitle();
    /// Scrolls until the widget shows, and no title that sticks covers it.
    void scrollTo(QWidget* widget);
    /// Where the widget stands in the part of the column that shows.
    int placeOf(const QWidget* widget) const;

    QScrollArea* m_scrollArea;
    QFrame* m_content;
    QGridLayout* m_grid;
    StickingTitle* m_stickingTitle;
    QVector<Section> m_sections;
    /// Behind it in the order of the Tab key comes the next section.
    QPointer<QWidget> m_lastInChain;
};
