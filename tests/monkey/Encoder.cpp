#include "Encoder.h"

#include <kv_config_gui_mvc/companion_check.h>

#include <QFile>

#include <algorithm>
#include <stdexcept>

namespace
{

const QString failure = QStringLiteral("The encoder failed to check the settings. as it likes");

constexpr const char* sinks[] = {KV_MVC_ERROR_SINK, KV_MVC_WARNING_SINK, KV_MVC_NOTE_SINK};

QString libraryFile(const char* name)
{
    return qEnvironmentVariable("KV_BIN_DIR") + QLatin1Char('/') + QLatin1String(name) +
           QLatin1String(KV_MVC_LIBRARY_SUFFIX);
}

void append(QByteArray& bytes, const KvMvcSettings& settings, int offset, int size)
{
    bytes.append(reinterpret_cast<const char*>(&settings) + offset, size);
}

} // namespace

QByteArray reservedBytes(const KvMvcSettings& settings)
{
    constexpr int recordHead = 256;
    constexpr int viewSize = 8316;
    QByteArray bytes;
    append(bytes, settings, ledger::recordReserved.offset, ledger::recordReserved.size);
    for (int view = 0; view < 2; ++view) {
        for (const ledger::ReservedRange& range : ledger::viewReserved()) {
            append(bytes, settings, recordHead + view * viewSize + range.offset, range.size);
        }
    }
    return bytes;
}

Encoder::Encoder()
    : m_encoder(libraryFile(KV_MVC_ENCODER_LIBRARY)),
      m_settingsIo(libraryFile(KV_MVC_SETTINGS_IO_LIBRARY))
{
    m_defaults = reinterpret_cast<KvMvcDefaults>(m_encoder.resolve(KV_MVC_ENCODER_DEFAULTS));
    m_check = reinterpret_cast<KvMvcCheck>(m_encoder.resolve(KV_MVC_ENCODER_CHECK));
    const auto getApi =
        reinterpret_cast<KvMvcSettingsIoGetApi>(m_settingsIo.resolve(KV_MVC_SETTINGS_IO_GET_API));
    if (getApi) {
        m_read = reinterpret_cast<KvMvcReadSettings>(getApi(KV_MVC_SETTINGS_IO_READER));
        m_write = reinterpret_cast<KvMvcWriteSettings>(getApi(KV_MVC_SETTINGS_IO_WRITER));
    }
}

bool Encoder::isComplete() const
{
    return m_defaults && m_check && m_read && m_write;
}

KvMvcSettings Encoder::defaults(int preset) const
{
    KvMvcSettings settings = {};
    m_defaults(&settings, 0, preset, 0);
    return settings;
}

bool Encoder::save(const KvMvcSettings& settings, const QString& file) const
{
    KvMvcSettings copy = settings;
    return m_write(&copy, file.toUtf8().constData()) == 0;
}

void Encoder::serve(RecordingCompanions& companions, const KvMvcSettings& given, Manner manner,
                    Random& random)
{
    m_manner = manner;
    m_random = &random;
    m_checks = 0;
    m_lines.clear();
    m_reserved = {reservedBytes(given)};
    companions.onCheck = [this](KvMvcLookup lookUp, KvMvcSettings& settings) {
        return check(lookUp, settings);
    };
    companions.onDefaults = [this](KvMvcSettings& settings, int preset) {
        m_defaults(&settings, 0, preset, 0);
        m_reserved.insert(reservedBytes(settings));
    };
    companions.onRead = [this, &companions](KvMvcSettings& settings) {
        const QByteArray path = companions.calls.last().section(QLatin1Char(' '), 1).toUtf8();
        const int result = m_read(&settings, path.constData());
        m_reserved.insert(reservedBytes(settings));
        return result;
    };
    companions.onWrite = [this, &companions] {
        KvMvcSettings settings = {};
        std::copy_n(companions.written.last().constData(), sizeof settings,
                    reinterpret_cast<char*>(&settings));
        save(settings, companions.calls.last().section(QLatin1Char(' '), 1));
    };
}

void Encoder::say(KvMvcMessageKind kind, const QString& text)
{
    m_messages.append({kind, text.toUtf8()});
}

int Encoder::check(KvMvcLookup lookUp, KvMvcSettings& settings)
{
    ++m_checks;
    m_messages.clear();
    say(KV_MVC_MESSAGE_NOTE, QStringLiteral("check %1").arg(m_checks));
    const int result = ownCheck(settings);
    m_reserved.insert(reservedBytes(settings));

    m_lines.clear();
    for (const KvMvcMessageKind kind :
         {KV_MVC_MESSAGE_WARNING, KV_MVC_MESSAGE_ERROR, KV_MVC_MESSAGE_NOTE}) {
        for (const Message& message : std::as_const(m_messages)) {
            if (message.kind == kind) {
                m_lines += QString::fromUtf8(message.text);
            }
        }
        if (kind == KV_MVC_MESSAGE_ERROR && m_manner == Manner::Throwing) {
            m_lines += failure;
        }
    }
    for (const Message& message : std::as_const(m_messages)) {
        print(lookUp, sinks[message.kind], "%s", message.text.constData());
    }
    if (m_manner == Manner::Throwing) {
        throw std::runtime_error("as it likes");
    }
    return result;
}

int Encoder::ownCheck(KvMvcSettings& settings)
{
    switch (m_manner) {
    case Manner::Reference: {
        KvMvcMessageList said = {nullptr, 0};
        KvMvcListener listener = {kvMvcKeepMessage, &said, nullptr, 0};
        const int result = kvMvcRunCheck(m_check, &settings, &listener);
        for (size_t i = 0; i < said.count; ++i) {
            say(KvMvcMessageKind(said.messages[i].kind), QString::fromUtf8(said.messages[i].text));
        }
        kvMvcFreeMessages(&said);
        return result;
    }
    case Manner::Correcting:
        for (int i = m_random->below(4); i > 0; --i) {
            const ledger::Setting& setting = m_random->oneOf(ledger::settings());
            const int view = m_random->below(2);
            const int value = m_random->oneIn(4) ? int(m_random->any()) : m_random->below(64) - 2;
            ledger::put(settings, setting, view, value);
            say(KV_MVC_MESSAGE_WARNING,
                QStringLiteral("%1 of view %2 is %3").arg(setting.name()).arg(view).arg(value));
        }
        return m_random->below(2);
    case Manner::Refusing:
        for (int i = m_random->below(30); i >= 0; --i) {
            say(KvMvcMessageKind(m_random->below(3)),
                QStringLiteral("message %1 ").arg(m_random->below(100)).repeated(9).trimmed());
        }
        return 1;
    default:
        return 0;
    }
}
