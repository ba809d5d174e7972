#include "LibraryLoader.h"

#include <kv_config_gui_mvc/companions.h>

#include <string_view>

namespace
{

constexpr std::size_t maximumFileName = 2048;
constexpr std::size_t maximumErrorText = 2048;
/// The system's code for a function that a library does not have.
constexpr std::uint32_t functionNotFound = 127;

} // namespace

std::wstring wideName(const char* ascii)
{
    const std::string_view name(ascii);
    return {name.begin(), name.end()};
}

void LibraryLoader::reset()
{
    m_handle = nullptr;
    m_loaded = false;
    m_fileName.clear();
    m_lastErrorCode = 0;
    m_lastErrorText.clear();
}

bool LibraryLoader::load(const std::wstring& baseName, const wchar_t* extension)
{
    unload();
    reset();
    const std::wstring suffix =
        extension ? L'.' + std::wstring(extension) : wideName(KV_MVC_LIBRARY_SUFFIX);
    const std::wstring fileName = baseName + suffix;
    m_handle = openSystemLibrary(fileName);
    m_loaded = m_handle != nullptr;
    if (m_loaded) {
        m_fileName = fileName.substr(0, maximumFileName);
    }
    return m_loaded;
}

LibraryLoader::Address LibraryLoader::resolveAddress(const char* name)
{
    if (m_loaded) {
        return findSystemFunction(name);
    }
    setLastError(functionNotFound, "No library is loaded.");
    return nullptr;
}

void LibraryLoader::unload()
{
    if (!m_loaded) {
        return;
    }
    closeSystemLibrary(m_handle);
    m_handle = nullptr;
    m_loaded = false;
}

void LibraryLoader::setLastError(std::uint32_t code, std::string text)
{
    m_lastErrorCode = code;
    m_lastErrorText = std::move(text);
    if (m_lastErrorText.size() > maximumErrorText) {
        m_lastErrorText.resize(maximumErrorText);
    }
}
