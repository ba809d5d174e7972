#include "Bindings.h"

#include "LibraryLoader.h"
#include "dialog/Companions.h"
#include "dialog/Trace.h"

#include <QDir>

#include <initializer_list>
#include <memory>

namespace
{

/// Functions of the stream information library: resolved and kept; the dialog calls neither.
struct ProbeFunctions {
    KvMvcFunction init = nullptr;
    KvMvcFunction getInfo = nullptr;
};

struct Slots {
    std::unique_ptr<LibraryLoader> settingsIo;
    std::unique_ptr<LibraryLoader> encoder;
    std::unique_ptr<LibraryLoader> probe;
    std::unique_ptr<LibraryLoader> localization;
    ProbeFunctions probeFunctions;
    KvMvcLocalizeSetLanguage localizeSetLanguage = nullptr;
};

/// After a failed call the slots still hold libraries. Where the module is unloaded then, they go
/// with it, but not on Windows, which forbids to free libraries meanwhile.
Slots& processSlots()
{
#ifdef Q_OS_WIN
    static auto* const slots = new Slots;
    return *slots;
#else
    static Slots slots;
    return slots;
#endif
}

/// Loads a library by its name or path, without extension.
bool load(LibraryLoader& loader, const std::wstring& name)
{
    const bool done = loader.load(name);
    trace::say([&] {
        return done ? QStringLiteral("%1: loaded %2")
                          .arg(QString::fromStdWString(name),
                               QString::fromStdWString(loader.filePath()))
                    : QStringLiteral("%1: not loaded: %2")
                          .arg(QString::fromStdWString(name),
                               QString::fromLocal8Bit(loader.lastErrorText().c_str()).simplified());
    });
    return done;
}

template <class Function>
Function resolve(LibraryLoader& loader, const char* name)
{
    const auto function = loader.resolve<Function>(name);
    trace::say([&] {
        return QStringLiteral("%1: %2 %3")
            .arg(QString::fromStdWString(loader.fileName()),
                 function ? QStringLiteral("has") : QStringLiteral("lacks"), QLatin1String(name));
    });
    return function;
}

/// Loads the first library of the names; later names are not tried once one has loaded.
bool loadFirst(std::unique_ptr<LibraryLoader>& loader, std::initializer_list<const char*> names)
{
    loader = std::make_unique<LibraryLoader>();
    for (const char* name : names) {
        if (load(*loader, wideName(name))) {
            return true;
        }
    }
    return false;
}

void releaseSettingsIo()
{
    companionFunctions().settingsIoGetApi = nullptr;
    processSlots().settingsIo.reset();
}

void releaseEncoder()
{
    companionFunctions().defaults = nullptr;
    companionFunctions().check = nullptr;
    processSlots().encoder.reset();
}

void releaseProbe()
{
    processSlots().probeFunctions = {};
    processSlots().probe.reset();
}

} // namespace

namespace bindings
{

bool loadSettingsIo()
{
    releaseSettingsIo();
    auto& loader = processSlots().settingsIo;
    if (!loadFirst(loader, {KV_MVC_SETTINGS_IO_LIBRARY})) {
        return false;
    }
    auto& function = companionFunctions().settingsIoGetApi;
    function = resolve<KvMvcSettingsIoGetApi>(*loader, KV_MVC_SETTINGS_IO_GET_API);
    return function != nullptr;
}

bool loadEncoder()
{
    releaseEncoder();
    releaseProbe();

    auto& encoder = processSlots().encoder;
    CompanionFunctions& functions = companionFunctions();
    if (loadFirst(encoder, {KV_MVC_ENCODER_LIBRARIES})) {
        functions.defaults = resolve<KvMvcDefaults>(*encoder, KV_MVC_ENCODER_DEFAULTS);
        functions.check = resolve<KvMvcCheck>(*encoder, KV_MVC_ENCODER_CHECK);
    }
    if (!functions.defaults || !functions.check) {
        return false;
    }

    auto& probe = processSlots().probe;
    if (loadFirst(probe, {KV_MVC_PROBE_LIBRARIES})) {
        processSlots().probeFunctions = {resolve<KvMvcFunction>(*probe, KV_MVC_PROBE_INIT),
                                         resolve<KvMvcFunction>(*probe, KV_MVC_PROBE_GET_INFO)};
    }
    return true;
}

void loadLocalization(const QString& directory, std::int32_t language)
{
    auto& loader = processSlots().localization;
    if (loader) {
        return;
    }
    loader = std::make_unique<LibraryLoader>();
    const QString file = directory + QLatin1String("/" KV_MVC_LOCALIZE_LIBRARY);
    if (!load(*loader, QDir::toNativeSeparators(file).toStdWString())) {
        return;
    }
    CompanionFunctions& functions = companionFunctions();
    functions.localizeConvert = resolve<KvMvcLocalizeConvert>(*loader, KV_MVC_LOCALIZE_CONVERT);
    processSlots().localizeSetLanguage =
        resolve<KvMvcLocalizeSetLanguage>(*loader, KV_MVC_LOCALIZE_SET_LANGUAGE);
    if (processSlots().localizeSetLanguage) {
        processSlots().localizeSetLanguage(language);
    }
}

void releaseLocalization()
{
    companionFunctions().localizeConvert = nullptr;
    processSlots().localizeSetLanguage = nullptr;
    processSlots().localization.reset();
}

void releaseCompanions()
{
    releaseEncoder();
    releaseProbe();
    releaseSettingsIo();
}

} // namespace bindings
