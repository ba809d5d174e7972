// Libraries that are loaded for one call.
#ifndef KV_COMPANION_LIBRARY_H
#define KV_COMPANION_LIBRARY_H

#include <kv_config_gui_mvc/companions.h>

#include <initializer_list>
#include <string>

namespace kv
{

/** Released with the object. */
class CompanionLibrary
{
public:
    /**
     * Loads the first that can be loaded: each base name in the host program's directory, else in
     * that of this library, else by the system loader's rules, the current directory left out. That
     * is the dialog's order, too, so that both meet the same library.
     */
    explicit CompanionLibrary(std::initializer_list<const char*> names);
    ~CompanionLibrary();
    CompanionLibrary(const CompanionLibrary&) = delete;
    CompanionLibrary& operator=(const CompanionLibrary&) = delete;

    bool isLoaded() const { return m_handle != nullptr; }
    /** The system's words on the last name that was tried. */
    const std::string& reason() const { return m_reason; }

    /** @return Null when the library is not loaded or lacks the function. */
    template <typename Function>
    Function find(const char* name) const
    {
        return reinterpret_cast<Function>(resolve(name));
    }

private:
    KvMvcFunction resolve(const char* name) const;

    void* m_handle = nullptr;
    std::string m_reason;
};

} // namespace kv

#endif
