#pragma once

#include "Encoder.h"
#include "Invariants.h"
#include "NestedLoops.h"

#include <QElapsedTimer>
#include <QMap>
#include <QTemporaryDir>

/// A user who does anything: random keys, clicks, turns of the wheel and drops on dialogs with
/// random records, flags and encoders, one after the other. After each event the invariants are
/// looked at.
///
/// A session, which is one dialog, follows from the seed and its number alone, so that one can be
/// played again without those before it.
class Monkey
{
public:
    explicit Monkey(quint32 seed);

    /// Plays sessions from this one on until there were so many events.
    /// @return What broke, with the session and its last events; empty: nothing.
    QString play(int events, int firstSession = 0);
    /// What was done, in one line.
    QString report() const;
    /// Follows from all records that dialogs ended with.
    quint64 digest() const { return m_digest; }

private:
    QString playSession(int session, int mostEvents);
    QString endSession(const OpenDialog& dialog);
    void makeFiles();

    void act(const OpenDialog& dialog);
    void pressKey();
    void usePopup();
    void typeNumber();
    void pressShortcut();
    void useMouse(const OpenDialog& dialog);
    void turnWheel(const OpenDialog& dialog);
    void drop(OpenDialog& dialog);
    void resize(const OpenDialog& dialog);
    void send(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void note(const char* kind, const QString& event);

    const quint32 m_seed;
    Encoder m_encoder;
    Random m_random;
    QTemporaryDir m_folder;
    QStringList m_files;
    NestedLoops m_nested;
    bool m_byKey = false;
    bool m_tracing;

    QStringList m_last;
    QMap<QString, int> m_counts;
    int m_events = 0;
    int m_sessions = 0;
    int m_accepted = 0;
    qint64 m_checks = 0;
    quint64 m_digest = 0;
    QElapsedTimer m_time;
};
