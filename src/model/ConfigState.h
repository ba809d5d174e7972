#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

/// One setting as the dialog and its pages exchange it.
struct ConfigEntry {
    /// Item text of a list, whole number, or boolean of a switch; invalid when the setting is
    /// absent.
    QVariant value;
    /// Whether the user may change the setting; always true in a state that a page sends.
    bool enabled = true;
};

inline bool operator==(const ConfigEntry& a, const ConfigEntry& b)
{
    return a.value == b.value && a.enabled == b.enabled;
}

/// Settings by key (see KeyNames.h), in key order.
class ConfigState
{
public:
    using Entries = QMap<QString, ConfigEntry>;

    /// Inserts an entry; one that is present is replaced, both members.
    void insert(const QString& key, const QVariant& value, bool enabled = true)
    {
        m_entries.insert(key, ConfigEntry{value, enabled});
    }

    bool contains(const QString& key) const { return m_entries.contains(key); }

    /// The entry of the key; null when it is absent.
    const ConfigEntry* find(const QString& key) const
    {
        const auto found = m_entries.constFind(key);
        return found == m_entries.constEnd() ? nullptr : &*found;
    }

    /// The entry of the key; an invalid, enabled one when it is absent.
    ConfigEntry entry(const QString& key) const { return m_entries.value(key); }

    /// The value of the key, or `absent` when the state does not hold it.
    QVariant value(const QString& key, const QVariant& absent = QVariant()) const
    {
        const ConfigEntry* const found = find(key);
        return found ? found->value : absent;
    }

    const Entries& entries() const { return m_entries; }

private:
    Entries m_entries;
};

inline bool operator==(const ConfigState& a, const ConfigState& b)
{
    return a.entries() == b.entries();
}
