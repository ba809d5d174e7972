#include "LibraryLoader.h"

namespace
{

constexpr std::size_t maximumFileName = 2048;
constexpr std::size_t maximumErrorText = 2048;

#ifdef _WIN32
constexpr const wchar_t* platformExtension = L"dll";
#else
constexpr const wchar_t* platformExtension = L"so";
#endif

} // namespace

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
    const std::wstring fileName = baseName + L'.' + (extension ? extension : platformExtension);
    m_handle = openSystemLibrary(fileName);
    m_loaded = m_handle != nullptr;
    if (m_loaded)
        m_fileName = fileName.substr(0, maximumFileName);
    return m_loaded;
}

LibraryLoader::Address LibraryLoader::resolveAddress(const char* name)
{
    return m_loaded ? findSystemFunction(name) : nullptr;
}

void LibraryLoader::unload()
{
    if (!m_loaded)
        return;
    closeSystemLibrary(m_handle);
    m_handle = nullptr;
    m_loaded = false;
}

void LibraryLoader::setLastError(std::uint32_t code, std::string text)
{
    m_lastErrorCode = code;
    m_lastErrorText = std::move(text);
    if (m_lastErrorText.size() > maximumErrorText)
        m_lastErrorText.resize(maximumErrorText);
}
