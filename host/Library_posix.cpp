#include "Library.h"

#include <dlfcn.h>

void* Library::load(const QString& file, QString& reason)
{
    void* handle = ::dlopen(file.toUtf8().constData(), RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) {
        reason = QString::fromUtf8(::dlerror());
    }
    return handle;
}

Library::Address Library::find(void* handle, const char* name)
{
    return reinterpret_cast<Address>(::dlsym(handle, name));
}

void Library::unload(void* handle)
{
    ::dlclose(handle);
}

void Library::ignoreCurrentFolder()
{
    // The loader never looks there on its own.
}
