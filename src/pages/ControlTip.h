#pragma once

#include <QObject>
#include <QStringList>

#include <array>

class QWidget;

/// A tip of words that others choose, in which nothing is markup, whatever it looks like.
QString plainTip(const QString& text);

/// What a control's tip says below its own text, which stays the first line; its What's This has
/// the same. Messages are its description for assistive technology, too.
class ControlTip : public QObject
{
    Q_OBJECT

public:
    /// The tip's further parts, from top to bottom.
    enum Part { Facts, Start, Reason, Messages };

    /// The control's one, made when it is first asked for.
    static ControlTip* of(QWidget* control);

    /// Each line is a sentence, however long; who shows it breaks it.
    void setLines(Part part, const QStringList& lines);
    /// Rich text that is shown below them, in the tip alone; empty: none.
    void setPicture(const QString& html);

private:
    explicit ControlTip(QWidget* control);
    void rewrite();

    static constexpr int parts = Messages + 1;

    QWidget* const m_control;
    const QString m_own;
    std::array<QStringList, parts> m_lines;
    QString m_picture;
};
