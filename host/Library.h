#pragma once

#include <QLibrary>
#include <QString>
#include <QStringList>

/// A shared library found at run time, by its file name without "lib" and suffix; unloaded with
/// the object.
class Library
{
public:
    /// Tries the names in order, each in the directory first and then by the system loader's rules.
    /// @throws Failure with the loader's reason.
    Library(const QString& directory, const QStringList& baseNames);
    ~Library();
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    /// @throws Failure when there is none of that name.
    template <class Function>
    [[nodiscard]] Function function(const char* name) const
    {
        return reinterpret_cast<Function>(resolve(name));
    }

private:
    [[nodiscard]] QFunctionPointer resolve(const char* name) const;

    mutable QLibrary m_library;
};
