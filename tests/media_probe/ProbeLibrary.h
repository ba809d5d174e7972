// The stream information library as a caller has it.
#pragma once

#include <kv_config_gui_mvc/companions.h>
#include <kv_config_gui_mvc/media_info.h>

#include <QByteArray>
#include <QLibrary>
#include <QString>

namespace kvtest
{

class ProbeLibrary
{
public:
    explicit ProbeLibrary(const QString& folder = qEnvironmentVariable("KV_BIN_DIR"))
        : m_library(folder + QStringLiteral("/kv_media_probe.so"))
    {
        m_library.load();
        init = reinterpret_cast<KvMediaInfoInit>(m_library.resolve(KV_MVC_PROBE_INIT));
        getInfo = reinterpret_cast<KvMediaGetInfo>(m_library.resolve(KV_MVC_PROBE_GET_INFO));
    }
    ~ProbeLibrary() { m_library.unload(); }
    ProbeLibrary(const ProbeLibrary&) = delete;
    ProbeLibrary& operator=(const ProbeLibrary&) = delete;

    bool isLoaded() const { return init && getInfo; }

    int probe(const QString& file)
    {
        init(&info, sizeof info);
        return getInfo(&info, file.toUtf8().constData());
    }

    KvMediaInfoInit init = nullptr;
    KvMediaGetInfo getInfo = nullptr;
    KvMediaInfo info{};

private:
    QLibrary m_library;
};

} // namespace kvtest
