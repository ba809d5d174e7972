#pragma once

#include <QFrame>
#include <QPointer>
#include <QStringList>
#include <QVector>

class QLineEdit;
class QListWidget;

/// A list of controls over the dialog, which typing narrows; Enter or a click goes to the one that
/// is chosen, and Escape closes it.
class FindBox : public QFrame
{
    Q_OBJECT

public:
    struct Entry {
        QString text;
        QString tip;
        /// What it is found by, what counts most first; the text is the first.
        QStringList words;
        QPointer<QWidget> control;
    };
    struct Texts {
        /// What the list is of.
        QString title;
        /// Shown in place of entries, when there are none.
        QString nothing;
    };

    /// Deletes itself when it is closed.
    FindBox(QWidget* parent, const Texts& texts, const QVector<Entry>& entries);

    /// Opens it over the place, a part of its parent.
    void openOver(const QWidget* place);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Shows the entries that have all that is typed, the best ones first.
    void narrow(const QString& typed);
    void goToChosen();

    const Texts m_texts;
    const QVector<Entry> m_entries;
    QLineEdit* m_field;
    QListWidget* m_list;
    /// The entry of each item of the list.
    QVector<int> m_shown;
};
