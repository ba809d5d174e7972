#pragma once

#include <QDialog>

#include <functional>
#include <vector>

class QTabWidget;
class QTextEdit;

/// The floor: the layouts of the dialog and of all its pages, of the same toolkit classes, each
/// widget built where it stays and under the sheet that it is shown with, and nothing else.
class BareDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param like A dialog whose controls show what these shall: values, and what is greyed or
    /// hidden.
    explicit BareDialog(const QDialog& like);

    QTabWidget* tabs() const { return m_tabs; }
    QTextEdit* log() const { return m_log; }
    /// Sets all controls to what they show, with signals blocked: one description of the record.
    void setAll() const;
    /// What setAll() sets the width to, in pixels.
    int width = 0;

public Q_SLOTS:
    // What the layout connects.
    void slotAccept() {}
    void slotReject() {}
    void slotLoadSettings() {}
    void slotSaveSettings() {}

private:
    QWidget* makeSections(QWidget* frame);
    /// Adds a section with the page, which the function makes below its parent.
    void addSection(QWidget* column, const QString& title,
                    const std::function<QWidget*(QWidget*)>& make);
    void follow(const QDialog& like);
    template <class Control, class Set>
    void addSetters(const QDialog& like, Set set);

    QTabWidget* m_tabs = nullptr;
    QTextEdit* m_log = nullptr;
    std::vector<std::function<void()>> m_setters;
};
