/**
 * @file companions.h
 * The companion libraries: their names, and their functions as the settings dialog calls them.
 *
 * Companion libraries are found by file name: base name plus KV_MVC_LIBRARY_SUFFIX, without a "lib"
 * prefix. Of two base names the first that can be loaded is used. Their functions have C linkage
 * and the platform's default calling convention, and are called on the thread that runs the dialog.
 * No exception may leave them; one that does while the dialog is open counts as a failure of the
 * function.
 *
 * - Encoder library, KV_MVC_ENCODER_LIBRARIES; required, with both functions.
 * - Settings file library, KV_MVC_SETTINGS_IO_LIBRARY; required, with its function.
 * - Stream information library, KV_MVC_PROBE_LIBRARIES.
 * - Localization library, KV_MVC_LOCALIZE_LIBRARY, beside the translation file.
 *
 * Programs and libraries that use companions themselves find the code for it in
 * companion_library.h (opening one by the dialog's rules) and companion_check.h (an encoder's check
 * and its messages).
 */
#ifndef KV_CONFIG_GUI_MVC_COMPANIONS_H
#define KV_CONFIG_GUI_MVC_COMPANIONS_H

#include <stdint.h>

#include "settings_record.h"

#if defined(_WIN32)
#define KV_MVC_COMPANION_API __declspec(dllexport)
#else
#define KV_MVC_COMPANION_API __attribute__((visibility("default")))
#endif

/** What a library's file name has behind the base name. */
#if defined(_WIN32)
#define KV_MVC_LIBRARY_SUFFIX ".dll"
#else
#define KV_MVC_LIBRARY_SUFFIX ".so"
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* --- Encoder library ----------------------------------------------------- */

/** The base names in the order in which they are tried, as an array's initializers. */
#define KV_MVC_ENCODER_LIBRARIES "kv_mvcenc_b", KV_MVC_ENCODER_LIBRARY
/** The one that messages to the user name. */
#define KV_MVC_ENCODER_LIBRARY "kv_mvcenc"

/** The functions: a KvMvcDefaults and a KvMvcCheck. */
#define KV_MVC_ENCODER_DEFAULTS "mvcOutVideoDefaults"
#define KV_MVC_ENCODER_CHECK "mvcOutVideoChkSettings"

/**
 * Overwrites the record with the defaults of a preset.
 * @param preset KvMvcVideoType; unknown numbers give the defaults of 0.
 * @param reserved1, reserved2 The dialog passes 0.
 * @return 0 for success; the dialog does not look at it.
 */
typedef int32_t (*KvMvcDefaults)(KvMvcSettings* settings, int32_t reserved1, int32_t preset,
                                 int32_t reserved2);

/**
 * A message sink: printf's arguments, one message a call, no line feed at its end. The text is
 * UTF-8, or Latin-1 where it is no valid UTF-8. A call may show a message box, and so handle
 * events of the thread, before it returns.
 */
typedef int (*KvMvcPrintf)(const char* format, ...);

/** What a lookup yields, to be cast to the function's own type. */
typedef void (*KvMvcFunction)(void);

/** The names that a check's lookup knows: the C library's functions, and four KvMvcPrintf. */
#define KV_MVC_MALLOC "malloc"
#define KV_MVC_FREE "free"
#define KV_MVC_ERROR_SINK "err_printf"
#define KV_MVC_WARNING_SINK "wrn_printf"
#define KV_MVC_NOTE_SINK "inf_printf"
#define KV_MVC_PROGRESS_SINK "prg_printf"

/**
 * The function lookup that the check receives. It knows KV_MVC_MALLOC, KV_MVC_FREE and the sinks.
 * @return The function, or null for any other name.
 */
typedef KvMvcFunction (*KvMvcLookup)(const char* name);

/** The stage of a check that a user's settings go through as a whole. */
enum { KV_MVC_CHECK_STAGE = 3 };

/**
 * Checks the record, may correct it in place, and reports errors, warnings and
 * notes through the sinks of `lookup`.
 * @param stage    The dialog passes KV_MVC_CHECK_STAGE.
 * @param reserved The dialog passes 0.
 * @return 0 when the settings are acceptable.
 */
typedef int32_t (*KvMvcCheck)(KvMvcLookup lookup, KvMvcSettings* settings, int32_t stage,
                              int32_t reserved);

/* --- Settings file library ----------------------------------------------- */

#define KV_MVC_SETTINGS_IO_LIBRARY "kv_mvc_settings_io"

/** The function: a KvMvcSettingsIoGetApi. */
#define KV_MVC_SETTINGS_IO_GET_API "MVCConfigGetAPIExt"

/** Codes of MVCConfigGetAPIExt. */
enum KvMvcSettingsIoCode {
    KV_MVC_SETTINGS_IO_READER = 8193, /**< yields a KvMvcReadSettings */
    KV_MVC_SETTINGS_IO_WRITER = 8194  /**< yields a KvMvcWriteSettings */
};

/** @return The function of a KvMvcSettingsIoCode, or null. */
typedef KvMvcFunction (*KvMvcSettingsIoGetApi)(int32_t code);

/**
 * Fills the record from a file. The dialog passes a record of zeros.
 * @param path Zero-terminated UTF-8. The name that a user chooses in the
 *             dialog's file boxes comes double-converted: its UTF-8 bytes were
 *             read as Latin-1 and encoded once more. A dropped file's name
 *             comes as it is. For names in ASCII the two are the same.
 * @return 0 for success; otherwise the record's content is not to be used.
 */
typedef int32_t (*KvMvcReadSettings)(KvMvcSettings* settings, const char* path);

/**
 * Writes the record to a file.
 * @param path As in KvMvcReadSettings.
 * @return 0 for success; the dialog does not look at it.
 */
typedef int32_t (*KvMvcWriteSettings)(KvMvcSettings* settings, const char* path);

/**
 * Suffixes of the files that the dialog lets a user drop, without a dot and in lower case, though
 * case does not count; as an array's initializers. The reader takes settings from either kind.
 */
#define KV_MVC_SETTINGS_SUFFIXES "cfg", "ini"
#define KV_MVC_MEDIA_SUFFIXES                                                                      \
    "m2p", "m2t", "m2v", "m4p", "mp2", "mp4", "mpeg", "mpg", "mpv", "mxf", "trp", "ts", "vob", "ifo"

/* --- Stream information library ------------------------------------------ */

/** The base names in the order in which they are tried, as an array's initializers. */
#define KV_MVC_PROBE_LIBRARIES "kv_media_probe_x", KV_MVC_PROBE_LIBRARY
/** The one that messages to the user name. */
#define KV_MVC_PROBE_LIBRARY "kv_media_probe"

/** The functions, as media_info.h has them; resolved and kept, never called by the dialog. */
#define KV_MVC_PROBE_INIT "mpegInInfoInit"
#define KV_MVC_PROBE_GET_INFO "mpegInGetInfo"

/* --- Localization library ------------------------------------------------ */

#define KV_MVC_LOCALIZE_LIBRARY "mvc_gui_texts"

/** The functions: a KvMvcLocalizeSetLanguage and a KvMvcLocalizeConvert. */
#define KV_MVC_LOCALIZE_SET_LANGUAGE "localizeSetLanguage"
#define KV_MVC_LOCALIZE_CONVERT "localizeConvertStr"

/** Primary language identifiers that the dialog knows. */
enum KvMvcLanguage { KV_MVC_LANGUAGE_GERMAN = 7, KV_MVC_LANGUAGE_JAPANESE = 17 };

/** Sets the language of the texts; @param language KvMvcLanguage. */
typedef int32_t (*KvMvcLocalizeSetLanguage)(int32_t language);

/**
 * Translates a message format.
 * @return UTF-8 text with exactly the conversions of `format` in the same
 *         order, owned by the library and valid until it is unloaded; null
 *         when there is none.
 */
typedef const char* (*KvMvcLocalizeConvert)(const char* format);

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif
