// Libraries that are loaded for one call.
#pragma once

#include <kv_config_gui_mvc/companion_library.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace kv
{

/// Closed with the object.
class CompanionLibrary
{
public:
    /// Opens the first that can be loaded, in the dialog's order, so that both meet the same one.
    explicit CompanionLibrary(std::initializer_list<const char*> names)
    {
        std::vector<const char*> ended(names);
        ended.push_back(nullptr);
        kvMvcOpenLibrary(&m_library, nullptr, ended.data(), 0);
    }
    ~CompanionLibrary() { kvMvcCloseLibrary(&m_library); }
    CompanionLibrary(const CompanionLibrary&) = delete;
    CompanionLibrary& operator=(const CompanionLibrary&) = delete;

    bool isLoaded() const { return m_library.handle != nullptr; }

    /// Why none is loaded, as a message's end, which has no full stop.
    std::string reason() const
    {
        const std::string words = m_library.reason;
        return words.substr(0, words.find_last_not_of('.') + 1);
    }

    /// @return Null when the library is not loaded or lacks the function.
    template <typename Function>
    Function find(const char* name) const
    {
        return reinterpret_cast<Function>(kvMvcFindFunction(&m_library, name));
    }

private:
    KvMvcLibrary m_library;
};

} // namespace kv
