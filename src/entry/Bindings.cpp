#include "Bindings.h"

#include "LibraryLoader.h"
#include "dialog/Companions.h"

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

/// Loads the first library of the names; later names are not tried once one has loaded.
bool loadFirst(std::unique_ptr<LibraryLoader>& loader, std::initializer_list<const char*> names)
{
    loader = std::make_unique<LibraryLoader>();
    for (const char* name : names) {
        if (loader->load(wideName(name))) {
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
    function = loader->resolve<KvMvcSettingsIoGetApi>(KV_MVC_SETTINGS_IO_GET_API);
    return function != nullptr;
}

bool loadEncoder()
{
    releaseEncoder();
    releaseProbe();

    auto& encoder = processSlots().encoder;
    CompanionFunctions& functions = companionFunctions();
    if (loadFirst(encoder, {KV_MVC_ENCODER_LIBRARIES})) {
        functions.defaults = encoder->resolve<KvMvcDefaults>(KV_MVC_ENCODER_DEFAULTS);
        functions.check = encoder->resolve<KvMvcCheck>(KV_MVC_ENCODER_CHECK);
    }
    if (!functions.defaults || !functions.check) {
        return false;
    }

    auto& probe = processSlots().probe;
    if (loadFirst(probe, {KV_MVC_PROBE_LIBRARIES})) {
        processSlots().probeFunctions = {probe->resolve<KvMvcFunction>(KV_MVC_PROBE_INIT),
                                         probe->resolve<KvMvcFunction>(KV_MVC_PROBE_GET_INFO)};
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
    if (!loader->load(QDir::toNativeSeparators(file).toStdWString())) {
        return;
    }
    CompanionFunctions& functions = companionFunctions();
    functions.localizeConvert = loader->resolve<KvMvcLocalizeConvert>(KV_MVC_LOCALIZE_CONVERT);
    processSlots().localizeSetLanguage =
        loader->resolve<KvMvcLocalizeSetLanguage>(KV_MVC_LOCALIZE_SET_LANGUAGE);
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
