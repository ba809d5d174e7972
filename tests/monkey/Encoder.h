#pragma once

#include "DialogTest.h"
#include "Random.h"

#include <kv_config_gui_mvc/companions.h>

#include <QByteArray>
#include <QLibrary>
#include <QSet>
#include <QStringList>

/// The encoder and the settings file library behind a dialog's companion functions: the reference
/// ones, or an encoder that refuses, corrects and talks as it likes, or throws. Knows what the log
/// has to show, and which bytes a record may have that are no settings.
class Encoder
{
public:
    enum class Manner { Reference, Accepting, Correcting, Refusing, Throwing };

    Encoder();
    /// Whether the reference libraries are there.
    bool isComplete() const;

    /// The defaults of a preset.
    KvMvcSettings defaults(int preset) const;
    bool save(const KvMvcSettings& settings, const QString& file) const;

    /// Serves a dialog that is opened on this record. `random` decides what it does.
    void serve(RecordingCompanions& companions, const KvMvcSettings& given, Manner manner,
               Random& random);

    /// The lines of the last check, in the order of the log.
    const QStringList& lines() const { return m_lines; }
    int checks() const { return m_checks; }
    /// Whether some record that the dialog was given has these bytes beside the settings.
    bool hasGiven(const QByteArray& reserved) const { return m_reserved.contains(reserved); }

private:
    int check(KvMvcLookup lookUp, KvMvcSettings& settings);
    int ownCheck(KvMvcSettings& settings);
    void say(KvMvcMessageKind kind, const QString& text);

    struct Message {
        KvMvcMessageKind kind;
        QByteArray text;
    };

    QLibrary m_encoder;
    QLibrary m_settingsIo;
    KvMvcDefaults m_defaults = nullptr;
    KvMvcCheck m_check = nullptr;
    KvMvcReadSettings m_read = nullptr;
    KvMvcWriteSettings m_write = nullptr;

    Manner m_manner = Manner::Reference;
    Random* m_random = nullptr;
    QVector<Message> m_messages;
    QStringList m_lines;
    int m_checks = 0;
    QSet<QByteArray> m_reserved;
};

/// The bytes of a record that are no settings.
QByteArray reservedBytes(const KvMvcSettings& settings);
