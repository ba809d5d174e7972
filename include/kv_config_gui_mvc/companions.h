/**
 * @file companions.h
 * The functions of the companion libraries, as the settings dialog calls them.
 *
 * Companion libraries are found by file name: base name plus ".so" on Linux
 * and ".dll" on Windows, without a "lib" prefix. Their functions have C
 * linkage and the platform's default calling convention, and are called on the
 * thread that runs the dialog. No exception may leave them.
 *
 * - Encoder library, "kv_mvcenc_b", else "kv_mvcenc"; required:
 *   mvcOutVideoDefaults, mvcOutVideoChkSettings.
 * - Settings file library, "kv_mvc_settings_io"; required:
 *   MVCConfigGetAPIExt.
 * - Stream information library, "kv_media_probe_x", else "kv_media_probe":
 *   mpegInInfoInit, mpegInGetInfo.
 * - Localization library, "mvc_gui_texts" beside the translation file:
 *   localizeSetLanguage, localizeConvertStr.
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

#ifdef __cplusplus
extern "C" {
#endif

/* --- Encoder library ----------------------------------------------------- */

/** "mvcOutVideoDefaults", "mvcOutVideoChkSettings". */
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

/**
 * The function lookup that the check receives. Known names: "malloc", "free",
 * "err_printf", "wrn_printf", "inf_printf" and "prg_printf" (progress). The
 * last four are KvMvcPrintf.
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

/** "MVCConfigGetAPIExt". */
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

/* --- Stream information library ------------------------------------------ */

/** "mpegInInfoInit", "mpegInGetInfo": resolved and kept, never called by the dialog. */
#define KV_MVC_PROBE_INIT "mpegInInfoInit"
#define KV_MVC_PROBE_GET_INFO "mpegInGetInfo"

/* --- Localization library ------------------------------------------------ */

/** "localizeSetLanguage", "localizeConvertStr". */
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
