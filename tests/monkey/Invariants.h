#pragma once

#include "Encoder.h"

#include <QPointer>
#include <QVector>

/// What is true of an open dialog after every event.
class Invariants
{
public:
    Invariants(const OpenDialog& dialog, const Encoder& encoder, qint32 flags);

    /// What does not hold now, in words; empty: all does.
    /// @param movedByKey Whether a key has just moved the focus: then it is in view, too.
    QStringList broken(bool movedByKey) const;

private:
    struct Control {
        ledger::Setting setting;
        int view;
        QPointer<QWidget> widget;
        QString name;
    };

    void checkControl(const Control& control, QStringList& broken) const;
    /// What the control has to show, as text.
    QString expected(const Control& control, const KvMvcViewSettings& view) const;
    bool isEnabled(const Control& control, const KvMvcViewSettings& view) const;
    void checkFocus(bool movedByKey, QStringList& broken) const;
    void checkLog(QStringList& broken) const;

    const OpenDialog& m_dialog;
    const Encoder& m_encoder;
    const qint32 m_flags;
    QVector<Control> m_controls;
    /// The boxes that couple a view's buffer to its rate.
    QVector<QWidget*> m_oneSecond;
};
