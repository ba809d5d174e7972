#pragma once

#include <cstdint>
#include <string>
#include <type_traits>

/// A library's name, which is of ASCII letters, as the loader takes it.
std::wstring wideName(const char* ascii);

/// One companion library: loads it by name, resolves functions, and remembers the system's last
/// error, which nothing shows but a debugger.
class LibraryLoader
{
public:
    LibraryLoader() = default;
    LibraryLoader(const LibraryLoader&) = delete;
    LibraryLoader& operator=(const LibraryLoader&) = delete;
    /// Unloads.
    ~LibraryLoader() { unload(); }

    /// Forgets the library, without unloading it, and the last error.
    void reset();

    /// Loads "base name.extension". A name without a directory is looked for in the host program's
    /// directory, then by the system loader's own rules, the current directory left out.
    /// @param extension Null: the platform's, "dll" or "so".
    bool load(const std::wstring& baseName, const wchar_t* extension = nullptr);

    /// The function, or null when the library does not have it. Its type is the caller's claim.
    template <class Function>
    Function resolve(const char* name)
    {
        static_assert(std::is_pointer_v<Function>);
        return reinterpret_cast<Function>(resolveAddress(name));
    }

    void unload();

    bool isLoaded() const { return m_loaded; }
    /// What was loaded: base name, dot, extension; 2,048 characters at most.
    const std::wstring& fileName() const { return m_fileName; }
    /// The whole path of what was loaded, as the system has it.
    std::wstring filePath() const;
    /// GetLastError's code; elsewhere 126 for a library and 127 for a function that was not found.
    std::uint32_t lastErrorCode() const { return m_lastErrorCode; }
    /// The system's text for it; 2,048 bytes at most.
    const std::string& lastErrorText() const { return m_lastErrorText; }

private:
    using Address = void (*)();
    Address resolveAddress(const char* name);
    /// System calls, one set a platform; each sets the last error when it fails.
    void* openSystemLibrary(const std::wstring& fileName);
    Address findSystemFunction(const char* name);
    static void closeSystemLibrary(void* handle);
    void setLastError(std::uint32_t code, std::string text);

    void* m_handle = nullptr;
    bool m_loaded = false;
    std::wstring m_fileName;
    std::uint32_t m_lastErrorCode = 0;
    std::string m_lastErrorText;
};
