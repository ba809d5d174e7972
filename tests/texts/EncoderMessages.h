#pragma once

#include <QByteArray>
#include <QList>

#include "limit_names.h"
#include "rules.h"

struct Message {
    QByteArray rule;
    QByteArray format;
};

/// All that the encoder can say, in the order of its rule list, and what limits are called.
inline QList<Message> encoderMessages()
{
    QList<Message> messages;
    for (const kv::encoder::RuleGroup& group : kv::encoder::ruleGroups()) {
        for (const kv::encoder::RuleInfo* rule : group.rules) {
            for (const char* const format : {rule->format, rule->viewFormat}) {
                if (format) {
                    messages += Message{rule->id, format};
                }
            }
        }
    }
    for (const char* const name : kv::encoder::limit::names) {
        messages += Message{"limit", name};
    }
    return messages;
}
