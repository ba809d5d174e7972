#include "WindowPart.h"

#include "Library.h"

const Library& windowPart(const QString& directory)
{
    static const auto* const part = new Library(directory, {"kv_mvc_settings_window"});
    return *part;
}
