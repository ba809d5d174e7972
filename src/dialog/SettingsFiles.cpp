#include "SettingsFiles.h"

#include "Companions.h"

#include <QFileInfo>

#include <algorithm>

namespace
{

template <class Function>
Function settingsIoFunction(KvMvcSettingsIoCode code)
{
    const auto getApi = companionFunctions().settingsIoGetApi;
    return getApi ? reinterpret_cast<Function>(getApi(code)) : nullptr;
}

void traceFile(const char* function, bool isThere, const QString& path, std::int32_t result)
{
    trace::say([&] {
        return isThere
                   ? QStringLiteral("%1 of '%2': %3").arg(QLatin1String(function), path).arg(result)
                   : QStringLiteral(KV_MVC_SETTINGS_IO_GET_API " has no %1")
                         .arg(QLatin1String(function));
    });
}

constexpr const char* droppableSuffixes[] = {KV_MVC_SETTINGS_SUFFIXES, KV_MVC_MEDIA_SUFFIXES};

} // namespace

namespace settings_files
{

std::optional<KvMvcSettings> read(const QString& path)
{
    alignas(8) KvMvcSettings settings = {};
    bool done = false;
    thrownBy("the reader", [&] {
        const auto reader = settingsIoFunction<KvMvcReadSettings>(KV_MVC_SETTINGS_IO_READER);
        const auto result = reader ? reader(&settings, path.toUtf8().constData()) : 1;
        done = result == 0;
        traceFile("reader", reader != nullptr, path, result);
    });
    return done ? std::optional(settings) : std::nullopt;
}

bool write(const KvMvcSettings& settings, const QString& path)
{
    alignas(8) KvMvcSettings copy = settings;
    bool done = false;
    thrownBy("the writer", [&] {
        const auto writer = settingsIoFunction<KvMvcWriteSettings>(KV_MVC_SETTINGS_IO_WRITER);
        const auto result = writer ? writer(&copy, path.toUtf8().constData()) : 1;
        done = result == 0;
        traceFile("writer", writer != nullptr, path, result);
    });
    return done;
}

bool isDroppable(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix();
    return std::ranges::any_of(droppableSuffixes, [&](const char* droppable) {
        return suffix.compare(QLatin1String(droppable), Qt::CaseInsensitive) == 0;
    });
}

QString withSuffix(const QString& name)
{
    const bool hasSuffix = name.endsWith(QLatin1String(".cfg"), Qt::CaseInsensitive) ||
                           name.endsWith(QLatin1String(".ini"), Qt::CaseInsensitive);
    return hasSuffix ? name : name + QLatin1String(".ini");
}

QString asPassedOn(const QString& name)
{
    return QString::fromLatin1(name.toUtf8());
}

} // namespace settings_files
