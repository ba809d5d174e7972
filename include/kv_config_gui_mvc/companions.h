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

/** Before the definition of a function that a companion library exports. */
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

#define KV_MVC_ENCODER_DEFAULTS "mvcOutVideoDefaults" /**< a KvMvcDefaults */
#define KV_MVC_ENCODER_CHECK "mvcOutVideoChkSettings" /**< a KvMvcCheck */

/**
 * Overwrites the record with the defaults of a preset.
 * @param settings All of it, the view that is not coded too.
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

/* The names that a check's lookup knows. */
#define KV_MVC_MALLOC "malloc"            /**< the C library's */
#define KV_MVC_FREE "free"                /**< the C library's */
#define KV_MVC_ERROR_SINK "err_printf"    /**< a KvMvcPrintf, as the next three are */
#define KV_MVC_WARNING_SINK "wrn_printf"  /**< for what was corrected, and for risks */
#define KV_MVC_NOTE_SINK "inf_printf"     /**< for what is worth knowing */
#define KV_MVC_PROGRESS_SINK "prg_printf" /**< not shown */

/*
 * Names that a lookup may know besides, for callers that want more than texts. The dialog's lookup
 * knows both: it leads from a message to its control, marks that, and draws how much of the limits
 * is used. An encoder need not ask for them, and leaves out what it cannot tell; other lookups
 * answer with null.
 */
#define KV_MVC_MESSAGE_ABOUT "msg_about" /**< a KvMvcTellAbout */
#define KV_MVC_LIMIT_USE "lim_usage"     /**< a KvMvcTellLimitUse */

/**
 * The function lookup that the check receives. It knows KV_MVC_MALLOC, KV_MVC_FREE and the sinks,
 * and may know KV_MVC_MESSAGE_ABOUT and KV_MVC_LIMIT_USE.
 * @return The function, or null for any other name.
 */
typedef KvMvcFunction (*KvMvcLookup)(const char* name);

/** The kinds of messages; progress is none. */
enum KvMvcMessageKind {
    KV_MVC_MESSAGE_ERROR = 0,   /**< the settings are refused */
    KV_MVC_MESSAGE_WARNING = 1, /**< something was corrected, or is a risk */
    KV_MVC_MESSAGE_NOTE = 2,
    /** Nothing is corrected, but it looks like a slip or is known to fail somewhere. The sinks know
        it as a warning; only KvMvcMessageAbout tells. */
    KV_MVC_MESSAGE_RISK = 3
};

/** The view of what is about the whole stream, or about a setting that all views share. */
enum { KV_MVC_ALL_VIEWS = -1 };

/** The numbers that a KvMvcMessageAbout has, as bits. */
enum KvMvcAboutNumber { KV_MVC_ABOUT_VALUE = 1, KV_MVC_ABOUT_LIMIT = 2 };

/** What a message is about. Texts are UTF-8, valid during the call, and null where not known. */
typedef struct KvMvcMessageAbout {
    /** sizeof the struct as the encoder has it: members may be added at its end, and who reads it
        looks at none beyond. */
    uint32_t size;
    int32_t kind;        /**< KvMvcMessageKind, as the encoder means it */
    const char* rule;    /**< the encoder's name of the rule: the same in every language */
    const char* setting; /**< a member of KvMvcViewSettings or KvMvcSettings; the one to look at
                              first where several have a part in it */
    int32_t view;        /**< 0 to KV_MVC_MAX_VIEWS - 1, or KV_MVC_ALL_VIEWS */
    uint32_t numbers;    /**< which of the next two there are: KvMvcAboutNumber */
    double value;        /**< what was judged, in the unit of the limit; where there is no limit,
                              the setting's value in the record */
    double limit;        /**< what it may be at most or at least, or what it was corrected to */
    const char* level;   /**< the level whose limit it is, or that results: "4.1" */
} KvMvcMessageAbout;

/** Says what the next message is about, right before its sink is called. */
typedef void (*KvMvcTellAbout)(const KvMvcMessageAbout* about);

/** How much of a limit the settings use. Texts as in KvMvcMessageAbout. */
typedef struct KvMvcLimitUse {
    uint32_t size;     /**< as in KvMvcMessageAbout */
    int32_t view;      /**< whose use it is; KV_MVC_ALL_VIEWS: of all together */
    const char* name;  /**< English: "Macroblock rate" */
    const char* unit;  /**< "macroblocks/s"; may be empty */
    const char* rule;  /**< the rule that speaks of what is beyond, as in KvMvcMessageAbout */
    const char* level; /**< the level whose limit it is; null: whatever the level */
    double used;       /**< in the unit */
    double limit;      /**< in the unit */
} KvMvcLimitUse;

/**
 * Told once for each limit of a check, of the settings as they were corrected, where the stream has
 * a level: the one that is set, or the one that "Auto" comes to.
 */
typedef void (*KvMvcTellLimitUse)(const KvMvcLimitUse* use);

/** The stage of a check that a user's settings go through as a whole. */
enum { KV_MVC_CHECK_STAGE = 3 };

/**
 * Checks the record, may correct it in place, and reports errors, warnings and notes.
 * @param lookup   Finds the sinks; to be used during the call only.
 * @param settings The record, owned by the caller.
 * @param stage    The dialog passes KV_MVC_CHECK_STAGE.
 * @param reserved The dialog passes 0.
 * @return 0 when the settings are acceptable.
 */
typedef int32_t (*KvMvcCheck)(KvMvcLookup lookup, KvMvcSettings* settings, int32_t stage,
                              int32_t reserved);

/* --- Settings file library ----------------------------------------------- */

#define KV_MVC_SETTINGS_IO_LIBRARY "kv_mvc_settings_io" /**< its base name */
#define KV_MVC_SETTINGS_IO_GET_API "MVCConfigGetAPIExt" /**< a KvMvcSettingsIoGetApi */

/** Codes of MVCConfigGetAPIExt. */
enum KvMvcSettingsIoCode {
    KV_MVC_SETTINGS_IO_READER = 8193, /**< yields a KvMvcReadSettings */
    KV_MVC_SETTINGS_IO_WRITER = 8194, /**< yields a KvMvcWriteSettings */
    KV_MVC_SETTINGS_IO_SETTER =
        8449 /**< yields a KvMvcSetSetting; the dialog does not ask for it */
};

/** @return The function of a KvMvcSettingsIoCode, or null. */
typedef KvMvcFunction (*KvMvcSettingsIoGetApi)(int32_t code);

/**
 * Fills the record from a file.
 * @param settings The dialog passes a record of zeros.
 * @param path Zero-terminated UTF-8. The name that a user chooses in the
 *             dialog's file boxes comes double-converted: its UTF-8 bytes were
 *             read as Latin-1 and encoded once more. A dropped file's name
 *             comes as it is. For names in ASCII the two are the same.
 * @return 0 for success; otherwise the record's content is not to be used.
 */
typedef int32_t (*KvMvcReadSettings)(KvMvcSettings* settings, const char* path);

/**
 * Writes the record to a file.
 * @param settings Not to be changed.
 * @param path As in KvMvcReadSettings.
 * @return 0 for success; the dialog does not look at it.
 */
typedef int32_t (*KvMvcWriteSettings)(KvMvcSettings* settings, const char* path);

/**
 * Sets one setting, as a line of a settings file does; reasons go to standard error.
 * @param settings   The record that it is set in.
 * @param assignment Zero-terminated UTF-8: KEY=VALUE. The key of a view's setting means all views
 *                   of the record, after "view0." or "view1." that view.
 * @return 0 for success; otherwise the record is unchanged.
 */
typedef int32_t (*KvMvcSetSetting)(KvMvcSettings* settings, const char* assignment);

/*
 * Suffixes of the files that the dialog lets a user drop, without a dot and in lower case, though
 * case does not count; as an array's initializers. The reader takes settings from either kind.
 */
/** Of settings files. */
#define KV_MVC_SETTINGS_SUFFIXES "cfg", "ini"
/** Of media files. */
#define KV_MVC_MEDIA_SUFFIXES                                                                      \
    "m2p", "m2t", "m2v", "m4p", "mp2", "mp4", "mpeg", "mpg", "mpv", "mxf", "trp", "ts", "vob", "ifo"

/* --- Stream information library ------------------------------------------ */

/** The base names in the order in which they are tried, as an array's initializers. */
#define KV_MVC_PROBE_LIBRARIES "kv_media_probe_x", KV_MVC_PROBE_LIBRARY
/** The one that messages to the user name. */
#define KV_MVC_PROBE_LIBRARY "kv_media_probe"

/* The functions, as media_info.h has them; resolved and kept, never called by the dialog. */
#define KV_MVC_PROBE_INIT "mpegInInfoInit"    /**< a KvMediaInfoInit */
#define KV_MVC_PROBE_GET_INFO "mpegInGetInfo" /**< a KvMediaGetInfo */

/* --- Localization library ------------------------------------------------ */

#define KV_MVC_LOCALIZE_LIBRARY "mvc_gui_texts"            /**< its base name */
#define KV_MVC_LOCALIZE_SET_LANGUAGE "localizeSetLanguage" /**< a KvMvcLocalizeSetLanguage */
#define KV_MVC_LOCALIZE_CONVERT "localizeConvertStr"       /**< a KvMvcLocalizeConvert */

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
