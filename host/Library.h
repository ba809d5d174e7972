#pragma once

#include <kv_config_gui_mvc/companion_library.h>

#include <QString>

#include <vector>

/// Has the application look in the folder, too, after its own, for translations as well.
void addLibraryFolder(const QString& directory);

/// A shared library found at run time, by its file name without "lib" and suffix; unloaded with
/// the object.
///
/// The settings dialog looks for libraries by the same rules, so that both work with the same ones.
class Library
{
public:
    /// Takes the first of the names that loads. What lies in the directory counts, even when it
    /// cannot be loaded; otherwise the system looks for the name by its own rules.
    /// @throws Failure with the loader's reason.
    Library(const QString& directory, std::vector<const char*> baseNames);
    ~Library() { kvMvcCloseLibrary(&m_library); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    /// @throws Failure when there is none of that name.
    template <class Function>
    [[nodiscard]] Function function(const char* name) const
    {
        return reinterpret_cast<Function>(resolve(name));
    }

    /// To be called first in the process: keeps libraries of the current folder, which may be
    /// anybody's, from being found by name.
    static void ignoreCurrentFolder();

private:
    [[nodiscard]] KvMvcFunction resolve(const char* name) const;

    KvMvcLibrary m_library;
};
