/**
 * @file companion_library.h
 * Opens companion libraries by the rules of the settings dialog: code for host programs, and for
 * companion libraries that use others. No library is needed but the system loader's.
 *
 *     const char* const names[] = {KV_MVC_ENCODER_LIBRARIES, NULL};
 *     KvMvcLibrary encoder;
 *     if (kvMvcOpenLibrary(&encoder, NULL, names, 0)) {
 *         KvMvcDefaults defaults =
 *             (KvMvcDefaults)kvMvcFindFunction(&encoder, KV_MVC_ENCODER_DEFAULTS);
 *         ...
 *         kvMvcCloseLibrary(&encoder);
 *     } else {
 *         fprintf(stderr, "%s\n", encoder.reason);
 *     }
 *
 * In C, include it before any other header on Linux, or compile with _GNU_SOURCE.
 */
#ifndef KV_CONFIG_GUI_MVC_COMPANION_LIBRARY_H
#define KV_CONFIG_GUI_MVC_COMPANION_LIBRARY_H

#if defined(_WIN32)
#if !defined(WIN32_LEAN_AND_MEAN)
#define WIN32_LEAN_AND_MEAN
#endif
#if !defined(NOMINMAX)
#define NOMINMAX
#endif
#include <windows.h>
#else
#if !defined(_GNU_SOURCE)
#define _GNU_SOURCE /* for readlink() and dladdr(); NOLINT(bugprone-reserved-identifier) */
#endif
#include <dlfcn.h>
#include <fcntl.h>
#include <link.h>
#include <sys/stat.h>
#include <unistd.h>
#if !defined(RTLD_DEFAULT)
#error "Include companion_library.h before other headers, or compile with _GNU_SOURCE."
#endif
#endif

#include <stdint.h>
#include <stdio.h>
#include <string.h>

#include "companions.h"

/* C has no nullptr. NOLINTBEGIN(modernize-use-nullptr) */

/** Room for a path or a reason in bytes, with the terminating zero; what is longer is no path. */
enum { KV_MVC_LIBRARY_TEXT = 4096 };

/** For kvMvcOpenLibrary(). */
enum KvMvcLibraryFlags {
    /**
     * Windows: a library may also lie in a folder of PATH, and so may what it needs. For programs
     * that have called SetDllDirectoryW(): for others the current directory is searched as well.
     */
    KV_MVC_LIBRARY_WINDOWS_PATH = 1
};

/** A library that has been opened, or why it has not. Owned by the caller. */
typedef struct KvMvcLibrary {
    void* handle;      /**< the system's; null: none is open */
    int32_t is_beside; /**< whether `file` lies in one of the folders, and is no name to look for */
    /** What was opened; else what `reason` is about. UTF-8. */
    char file[KV_MVC_LIBRARY_TEXT];
    /**
     * The system's words, in one line of UTF-8, on why none was opened: on the last file that lay
     * in one of the folders, else on the last name. Empty when one is open.
     */
    char reason[KV_MVC_LIBRARY_TEXT];
} KvMvcLibrary;

/* --- The system's calls -------------------------------------------------- */

/* Every `text` has room for KV_MVC_LIBRARY_TEXT bytes. A folder that is not known is empty. */

#if defined(_WIN32)

static inline void kvMvcWideText(const char* utf8, wchar_t* wide)
{
    if (MultiByteToWideChar(CP_UTF8, 0, utf8, -1, wide, KV_MVC_LIBRARY_TEXT) == 0) {
        wide[0] = L'\0';
    }
}

static inline void kvMvcUtf8Text(const wchar_t* wide, char* text)
{
    if (WideCharToMultiByte(CP_UTF8, 0, wide, -1, text, KV_MVC_LIBRARY_TEXT, NULL, NULL) == 0) {
        text[0] = '\0';
    }
}

/** @param module Null: the program. */
static inline void kvMvcModuleFolder(HMODULE module, char* text)
{
    wchar_t name[KV_MVC_LIBRARY_TEXT] = L"";
    wchar_t* slash;
    if (GetModuleFileNameW(module, name, KV_MVC_LIBRARY_TEXT) == KV_MVC_LIBRARY_TEXT) {
        name[0] = L'\0';
    }
    slash = wcsrchr(name, L'\\');
    *(slash ? slash + 1 : name) = L'\0';
    kvMvcUtf8Text(name, text);
}

/** The folder of the host program. */
static inline void kvMvcHostFolder(char* text)
{
    kvMvcModuleFolder(NULL, text);
}

/** The folder of the library that this is compiled into. */
static inline void kvMvcOwnFolder(char* text)
{
    static const char here = 0;
    HMODULE own = NULL;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       (LPCWSTR)(const void*)&here, &own);
    kvMvcModuleFolder(own, text);
}

static inline int kvMvcIsThere(const char* file)
{
    wchar_t name[KV_MVC_LIBRARY_TEXT];
    kvMvcWideText(file, name);
    return GetFileAttributesW(name) != INVALID_FILE_ATTRIBUTES;
}

/** The system's words for an error, in one line. */
static inline void kvMvcErrorText(DWORD error, char* text)
{
    wchar_t words[KV_MVC_LIBRARY_TEXT] = L"";
    wchar_t* to = words;
    const wchar_t* from;
    FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, NULL, error, 0,
                   words, KV_MVC_LIBRARY_TEXT, NULL);
    for (from = words; *from != L'\0'; ++from) {
        if (*from > L' ') {
            *to++ = *from;
        } else if (to != words && to[-1] != L' ') {
            *to++ = L' ';
        }
    }
    while (to != words && to[-1] == L' ') {
        --to;
    }
    *to = L'\0';
    if (to == words) {
        snprintf(text, KV_MVC_LIBRARY_TEXT, "error %lu", (unsigned long)error);
    } else {
        kvMvcUtf8Text(words, text);
    }
}

static inline void* kvMvcLoadFile(const KvMvcLibrary* library, int32_t flags, char* reason)
{
    /* What a library needs is looked for beside it; the flags for that take full paths only. */
    const DWORD folders = LOAD_LIBRARY_SEARCH_DEFAULT_DIRS;
    const DWORD folderSearch =
        library->is_beside ? folders | LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR : folders;
    const DWORD pathSearch = library->is_beside ? LOAD_WITH_ALTERED_SEARCH_PATH : 0;
    wchar_t name[KV_MVC_LIBRARY_TEXT];
    wchar_t path[KV_MVC_LIBRARY_TEXT] = L"";
    DWORD former = 0;
    HMODULE handle;
    kvMvcWideText(library->file, name);
    if (library->is_beside) {
        GetFullPathNameW(name, KV_MVC_LIBRARY_TEXT, path, NULL);
    }
    SetThreadErrorMode(SEM_FAILCRITICALERRORS, &former); /* no box of the system's own */
    handle = LoadLibraryExW(library->is_beside ? path : name, NULL,
                            (flags & KV_MVC_LIBRARY_WINDOWS_PATH) ? pathSearch : folderSearch);
    if (handle == NULL) {
        kvMvcErrorText(GetLastError(), reason);
    }
    SetThreadErrorMode(former, NULL);
    return (void*)handle;
}

#else

/** Leaves the folder of a path, with its last stroke. */
static inline void kvMvcCutToFolder(char* text)
{
    char* const slash = strrchr(text, '/');
    *(slash ? slash + 1 : text) = '\0';
}

/** The folder of the host program. */
static inline void kvMvcHostFolder(char* text)
{
    const ssize_t length = readlink("/proc/self/exe", text, KV_MVC_LIBRARY_TEXT - 1);
    text[length > 0 ? length : 0] = '\0';
    kvMvcCutToFolder(text);
}

/**
 * The folder of the library that this is compiled into. A relative name was true of the directory
 * that was the current one then.
 */
static inline void kvMvcOwnFolder(char* text)
{
    static const char here = 0;
    Dl_info own;
    const int known = dladdr(&here, &own) != 0 && own.dli_fname != NULL &&
                      own.dli_fname[0] == '/' && strlen(own.dli_fname) < KV_MVC_LIBRARY_TEXT;
    snprintf(text, KV_MVC_LIBRARY_TEXT, "%s", known ? own.dli_fname : "");
    kvMvcCutToFolder(text);
}

/** Whether there is a file, of whatever kind. */
static inline int kvMvcIsThere(const char* file)
{
    struct stat status;
    return stat(file, &status) == 0;
}

/**
 * Why the system loader must not be asked for a file: it would wait for the writer of a pipe, and
 * what is mapped from behind a file's end ends the process when it is touched.
 * @return Null: it may be asked, and has its own words for whatever else is wrong.
 */
static inline const char* kvMvcLibraryFault(const char* file)
{
    static const char truncated[] = "truncated";
    const char* fault = NULL;
    struct stat status;
    ElfW(Ehdr) header;
    ElfW(Phdr) segment;
    int descriptor;
    int at;
    if (stat(file, &status) != 0) {
        return NULL;
    }
    if (!S_ISREG(status.st_mode)) {
        return "not a regular file"; /* opening a device may do something */
    }
    descriptor = open(file, O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0) {
        return NULL;
    }
    if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        fault = "not a regular file";
    } else if (pread(descriptor, &header, sizeof header, 0) == (ssize_t)sizeof header &&
               memcmp(header.e_ident, ELFMAG, SELFMAG) == 0 &&
               header.e_ident[EI_CLASS] == (sizeof(void*) == 8 ? ELFCLASS64 : ELFCLASS32) &&
               header.e_phentsize == sizeof segment) {
        for (at = 0; at < header.e_phnum && fault == NULL; ++at) {
            const off_t place = (off_t)header.e_phoff + (off_t)at * (off_t)sizeof segment;
            if (pread(descriptor, &segment, sizeof segment, place) != (ssize_t)sizeof segment ||
                (segment.p_type == PT_LOAD &&
                 (segment.p_offset > (ElfW(Off))status.st_size ||
                  segment.p_filesz > (ElfW(Off))status.st_size - segment.p_offset))) {
                fault = truncated;
            }
        }
    }
    close(descriptor);
    return fault;
}

/** Loads KvMvcLibrary::file. @return The system's handle; null, with the reason, for none. */
static inline void* kvMvcLoadFile(const KvMvcLibrary* library, int32_t flags, char* reason)
{
    /* Where the loader looks by itself is its own affair. */
    const char* const fault = library->is_beside ? kvMvcLibraryFault(library->file) : NULL;
    void* handle;
    (void)flags;
    if (fault != NULL) {
        snprintf(reason, KV_MVC_LIBRARY_TEXT, "%.3900s: %s", library->file, fault);
        return NULL;
    }
    handle = dlopen(library->file, RTLD_NOW | RTLD_LOCAL);
    if (handle == NULL) {
        const char* const words = dlerror();
        snprintf(reason, KV_MVC_LIBRARY_TEXT, "%s", words ? words : "");
    }
    return handle;
}

#endif

/* --- Opening and closing ------------------------------------------------- */

/** Makes `file` that of the name in the folder. @return Whether there is such a file. */
static inline int kvMvcFileIn(const char* folder, const char* name, char* file)
{
    const size_t end = strlen(folder);
    const int bare = end > 0 && folder[end - 1] != '/' && folder[end - 1] != '\\';
    const int length = snprintf(file, KV_MVC_LIBRARY_TEXT, "%s%s%s" KV_MVC_LIBRARY_SUFFIX, folder,
                                bare ? "/" : "", name);
    return end > 0 && length < KV_MVC_LIBRARY_TEXT && kvMvcIsThere(file);
}

/**
 * Opens the first of the names that can be loaded. Each is looked for in the host program's folder,
 * else in another one, else by the system loader's own rules, the current directory left out. A
 * file that lies in one of the folders counts, even when it cannot be loaded: then the next name is
 * tried. On Linux one that is no regular file there, or shorter than it says, is not loaded.
 * @param library Overwritten; to be closed by the caller when one is open.
 * @param folder  UTF-8; looked in after the host program's. Null: that of the library which this
 *                code is compiled into.
 * @param names   Base names such as KV_MVC_ENCODER_LIBRARIES, with a null behind the last.
 * @param flags   KvMvcLibraryFlags.
 * @return Whether one is open; otherwise KvMvcLibrary::reason says why not.
 */
static inline int kvMvcOpenLibrary(KvMvcLibrary* library, const char* folder,
                                   const char* const* names, int32_t flags)
{
    KvMvcLibrary tried;
    char host[KV_MVC_LIBRARY_TEXT];
    char own[KV_MVC_LIBRARY_TEXT];
    kvMvcHostFolder(host);
    if (folder == NULL) {
        kvMvcOwnFolder(own);
        folder = own;
    }
    memset(library, 0, sizeof *library);
    for (; *names != NULL; ++names) {
        memset(&tried, 0, sizeof tried);
        tried.is_beside =
            kvMvcFileIn(host, *names, tried.file) || kvMvcFileIn(folder, *names, tried.file);
        if (!tried.is_beside) {
            snprintf(tried.file, sizeof tried.file, "%s" KV_MVC_LIBRARY_SUFFIX, *names);
        }
        tried.handle = kvMvcLoadFile(&tried, flags, tried.reason);
        /* The system's words are worth more where there is something to load. */
        if (tried.handle != NULL || tried.is_beside || !library->is_beside) {
            *library = tried;
        }
        if (tried.handle != NULL) {
            return 1;
        }
    }
    return 0;
}

/** @return The function, to be cast to its own type; null when there is none or no library open. */
static inline KvMvcFunction kvMvcFindFunction(const KvMvcLibrary* library, const char* name)
{
    KvMvcFunction function = NULL;
    if (library->handle != NULL) {
#if defined(_WIN32)
        function = (KvMvcFunction)GetProcAddress((HMODULE)library->handle, name);
#else
        /* ISO C has no conversion from data to functions; POSIX makes their pointers alike. */
        void* const address = dlsym(library->handle, name);
        memcpy(&function, &address, sizeof function);
#endif
    }
    return function;
}

/** Closes the library, if one is open. Its functions and texts must not be used any more. */
static inline void kvMvcCloseLibrary(KvMvcLibrary* library)
{
    if (library->handle != NULL) {
#if defined(_WIN32)
        FreeLibrary((HMODULE)library->handle);
#else
        dlclose(library->handle);
#endif
    }
    library->handle = NULL;
}

/* NOLINTEND(modernize-use-nullptr) */

#endif
