// The encoder library as a host sees it: loaded by file name, called through its two functions.
#pragma once

#include <kv_config_gui_mvc/companions.h>

#include <QByteArray>
#include <QByteArrayList>
#include <QList>
#include <QStringList>

#include <optional>

/// What a message is about, with texts of its own.
struct About {
    int kind = -1;
    QByteArray rule;
    QByteArray setting;
    int view = 0;
    std::optional<double> value;
    std::optional<double> limit;
    QByteArray level;

    bool operator==(const About&) const = default;
};

/// How much of a limit is used.
struct LimitUse {
    int view = 0;
    QByteArray name;
    double used = 0;
    double limit = 0;
    QByteArray unit;
    QByteArray rule;
    QByteArray level;
};

/// What one check said and did.
struct Outcome {
    qint32 result = -1;
    QByteArrayList formats[4]; ///< as passed to the sinks, by kv::encoder::Severity
    QByteArrayList texts[4];   ///< formatted
    QStringList rules;         ///< names of the rules behind the formats, in order
    QList<About> abouts;       ///< of each of them
    QList<LimitUse> uses;

    bool accepted() const { return result == 0; }
    bool said(const QString& rule) const { return rules.contains(rule); }
    QByteArrayList errors() const { return texts[0]; }
    /// Of what was corrected.
    QByteArrayList warnings() const { return texts[1]; }
    QByteArrayList risks() const { return texts[2]; }
    /// What the first message of a rule is about.
    About about(const QString& rule) const
    {
        const auto at = rules.indexOf(rule);
        return at < 0 ? About{} : abouts[at];
    }
    QByteArrayList notes() const { return texts[3]; }
    /// All texts, for the message of a failing comparison.
    QByteArray all() const;
};

namespace encoder
{

/// The functions of kv_mvcenc, resolved by name; a test that cannot load it stops.
KvMvcDefaults defaultsFunction();
KvMvcCheck checkFunction();

/// A preset's record.
KvMvcSettings preset(int number);

/// Checks the record through the real library; it may be corrected.
Outcome check(KvMvcSettings& record);

/// Gives both views the same value of a field that all views share.
template <class Value>
void setBoth(KvMvcSettings& record, Value KvMvcViewSettings::*field, Value value)
{
    for (KvMvcViewSettings& view : record.views) {
        view.*field = value;
    }
}

inline void setFrameRate(KvMvcSettings& record, double rate)
{
    for (KvMvcViewSettings& view : record.views) {
        view.frame_rate = rate;
    }
}

} // namespace encoder
