#pragma once

#include "pages/SettingsPage.h"

#include <QStringList>

/// The state as one line: "Interlace='MBAFF'; Threads=4; Split=true", each entry that is not
/// enabled marked.
QString written(const ConfigState& state);

/// Writes down every state that a page reports.
class StateSpy
{
public:
    explicit StateSpy(const SettingsPage* page) { listenTo(page); }
    StateSpy() = default;
    StateSpy(const StateSpy&) = delete;
    StateSpy& operator=(const StateSpy&) = delete;
    ~StateSpy() = default;

    void listenTo(const SettingsPage* page);

    /// What was reported since the last call, in order.
    QStringList take() { return std::exchange(m_states, {}); }

private:
    QStringList m_states;
    /// Ends the connections with the spy.
    QObject m_context;
};

/// A list of literal texts.
inline QStringList lines(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* text : texts) {
        list += QString::fromUtf8(text);
    }
    return list;
}
