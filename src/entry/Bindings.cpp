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
bool loadFirst(std::unique_ptr<LibraryLoader>& loader, std::initializer_list<const wchar_t*> names)
{
    loader = std::make_unique<LibraryLoader>();
    for (const wchar_t* name : names)
        if (loader->load(name))
            return true;
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
    if (!loadFirst(loader, {L"kv_mvc_settings_io"}))
        return false;
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
    if (loadFirst(encoder, {L"kv_mvcenc_b", L"kv_mvcenc"})) {
        functions.defaults = encoder->resolve<KvMvcDefaults>(KV_MVC_ENCODER_DEFAULTS);
        functions.check = encoder->resolve<KvMvcCheck>(KV_MVC_ENCODER_CHECK);
    }
    if (!functions.defaults || !functions.check)
        return false;

    auto& probe = processSlots().probe;
    if (loadFirst(probe, {L"kv_media_probe_x", L"kv_media_probe"})) {
        processSlots().probeFunctions = {probe->resolve<KvMvcFunction>(KV_MVC_PROBE_INIT),
                                         probe->resolve<KvMvcFunction>(KV_MVC_PROBE_GET_INFO)};
    }
    return true;
}

void loadLocalization(const QString& directory, std::int32_t language)
{
    auto& loader = processSlots().localization;
    if (loader)
        return;
    loader = std::make_unique<LibraryLoader>();
    if (!loader->load(
            QDir::toNativeSeparators(directory + QLatin1String("/mvc_gui_texts")).toStdWString()))
        return;
    CompanionFunctions& functions = companionFunctions();
    functions.localizeConvert = loader->resolve<KvMvcLocalizeConvert>(KV_MVC_LOCALIZE_CONVERT);
    processSlots().localizeSetLanguage =
        loader->resolve<KvMvcLocalizeSetLanguage>(KV_MVC_LOCALIZE_SET_LANGUAGE);
    if (processSlots().localizeSetLanguage)
        processSlots().localizeSetLanguage(language);
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
