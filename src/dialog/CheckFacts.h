#pragma once

#include <QString>
#include <QVector>

#include <kv_config_gui_mvc/companions.h>

#include <optional>

/// What a message is about, as far as the encoder tells.
struct MessageFacts {
    /// KvMvcMessageKind, as the encoder means it.
    qint32 kind = KV_MVC_MESSAGE_NOTE;
    /// The encoder's name of the rule.
    QString rule;
    /// A member of the settings record, and its view; empty: no single one.
    QString setting;
    int view = KV_MVC_ALL_VIEWS;
};

/// A message of a check.
struct CheckMessage {
    /// KvMvcMessageKind, as its sink knows it.
    qint32 kind;
    /// In the user's language, without a line feed at its end.
    QString text;
    std::optional<MessageFacts> facts;
    /// Whether it went to the log, not to a box of its own.
    bool isLogged = true;
};

/// How much of a limit is used; see KvMvcLimitUse.
struct LimitUse {
    int view;
    QString name; ///< in the user's language
    QString unit;
    QString rule;
    QString level;
    double used;
    double limit;
};

/// A check on its way. What the encoder tells of its messages and limits belongs to the innermost
/// one, and is nobody's while there is none.
class RunningCheck
{
public:
    /// From now on it is the last one, whose facts are in the message log.
    RunningCheck();
    RunningCheck(const RunningCheck&) = delete;
    RunningCheck& operator=(const RunningCheck&) = delete;
    ~RunningCheck();

    /// What the message that has come just now is about. A message that follows without a word of
    /// its own is about nothing.
    static std::optional<MessageFacts> takeFacts();
    /// Whether a message that has come just now is one of the last check's, not of an outer one's
    /// that another check came in between.
    static bool isLast();
    /// Whether another one was begun since the running one, which it has handled events for.
    static bool isOvertaken();

private:
    friend void tellMessageAbout(const KvMvcMessageAbout* about);

    RunningCheck* const m_outer;
    const int m_number;
    std::optional<MessageFacts> m_next;
};

/// The functions that a check's lookup gives an encoder for it: a KvMvcTellAbout and a
/// KvMvcTellLimitUse.
void tellMessageAbout(const KvMvcMessageAbout* about);
void tellLimitUse(const KvMvcLimitUse* use);
