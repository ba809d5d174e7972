/**
 * @file config_gui.h
 * The settings dialog of the MVC encoder, as a host program calls it.
 */
#ifndef KV_CONFIG_GUI_MVC_CONFIG_GUI_H
#define KV_CONFIG_GUI_MVC_CONFIG_GUI_H

#include <stddef.h>
#include <stdint.h>

#include "settings_record.h"

/** Before the declaration of the module's function. */
#if !defined(_WIN32)
#define KV_CONFIG_GUI_MVC_API __attribute__((visibility("default")))
#elif defined(KV_CONFIG_GUI_MVC_BUILD)
#define KV_CONFIG_GUI_MVC_API /* exported by the module definition file */
#else
#define KV_CONFIG_GUI_MVC_API __declspec(dllimport)
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** Flags of showMVCEncoderPages(); bits not listed are ignored. */
enum KvMvcGuiFlags {
    KV_MVC_GUI_BASIC_TAB = 0x00000001,        /**< show the "Basic Settings" tab */
    KV_MVC_GUI_ADVANCED_TAB = 0x00000002,     /**< show the "Advanced Settings" tab */
    KV_MVC_GUI_FILE_BUTTONS = 0x00000010,     /**< show the load and save buttons */
    KV_MVC_GUI_NO_INITIAL_CHECK = 0x00000020, /**< with file buttons: no check when the dialog
                                                 opens; without them there is none */
    /**
     * Distinct log colours for errors, warnings and notes. A dialog opened
     * without it makes the three equal for the rest of the process.
     */
    KV_MVC_GUI_LOG_COLOURS = 0x00000040,
    KV_MVC_GUI_NO_BANNER = 0x00001000,       /**< hide the banner */
    KV_MVC_GUI_LOCK_VIDEO_TYPE = 0x00002000, /**< lock the preset selector */
    KV_MVC_GUI_LOCK_SIZE = 0x00004000,       /**< lock picture width and height */
    KV_MVC_GUI_LOCK_FRAME_RATE =
        0x00008000, /**< lock the frame rate, unless it is no standard one */
    KV_MVC_GUI_LOCK_PIXEL_RATIO = 0x00010000, /**< lock the sample aspect ratio */
    KV_MVC_GUI_LOCK_PROFILE = 0x00020000,     /**< lock the profile */
    KV_MVC_GUI_LOCK_LEVEL = 0x00040000,       /**< lock the level */
    KV_MVC_GUI_LOCK_VIEWS = 0x00080000,       /**< lock the number of views */
    KV_MVC_GUI_HOST_APPLICATION = 0x10000000, /**< run inside the host's Qt application object */
    KV_MVC_GUI_HOSTING_RECORD = 0x20000000    /**< `ext` points to a KvMvcHosting */
};

/** Results of showMVCEncoderPages(). */
enum KvMvcGuiResult {
    KV_MVC_GUI_ACCEPTED = 1000, /**< OK: the record holds the edited settings */
    KV_MVC_GUI_REJECTED = 1001, /**< closed any other way: the record is unchanged */
    KV_MVC_GUI_ERROR = 1        /**< see showMVCEncoderPages(): the record is unchanged */
};

/** How the dialog is hosted. Owned by the caller; read during the call only, `flags` written. */
typedef struct KvMvcHosting {
    int32_t flags; /**< overwritten with the `flags` argument */
    /**
     * The host's QApplication with KV_MVC_GUI_HOST_APPLICATION, of the major
     * version of Qt that this module is built with; otherwise a native window
     * (HWND on Windows, X11 window id on Linux) or null.
     */
    void* parent;
    /** Window title: UTF-8, or Latin-1 where it is no valid UTF-8; null: the default title. */
    const char* title;
    /** Path of an image for the banner, encoded like the title; null: the built-in one. */
    const char* banner;
} KvMvcHosting;

/**
 * Shows the settings dialog and returns when the user has closed it.
 *
 * Call it on the thread that owns the GUI application object, or that shall
 * own the one that this call makes. One call at a time in a process.
 *
 * The companion libraries are loaded anew in each call, and released before it
 * returns; those that a call with the result KV_MVC_GUI_ERROR may have left, by
 * the next call. They are looked for in the host program's directory, then by
 * the system loader's rules; on Linux these include the directory of this
 * module. The current directory is not searched: on Windows it is taken out of
 * the search by SetDllDirectoryW() while a library is loaded, for the whole
 * process, unless the host has set a directory to search instead.
 *
 * The dialog speaks the user's language where it is German or Japanese: with
 * the first gui_mvc_de.qm or gui_mvc_jp.qm of the application's library paths,
 * the last of which is the module's directory, unless the application object is
 * the host's. mvc_gui_texts is looked for beside that file, and there only.
 *
 * @param settings The record to edit; written only when the user accepts.
 * @param flags    Combination of KvMvcGuiFlags.
 * @param ext      With KV_MVC_GUI_HOSTING_RECORD a KvMvcHosting; otherwise the
 *                 value that KvMvcHosting::parent would have.
 * @return KvMvcGuiResult. KV_MVC_GUI_ERROR when `settings` is null; when a
 *         required companion library or function is missing; when
 *         KV_MVC_GUI_HOSTING_RECORD is given without a record; when
 *         KV_MVC_GUI_HOST_APPLICATION is given without a QApplication, or is
 *         missing though the process has an application object; when there is
 *         no platform plug-in of Qt, or no display that it could connect to;
 *         when a dialog is open already; or when an exception kept it from opening.
 *         No message is shown for any of these, and no exception leaves the
 *         function. With KV_CONFIG_GUI_TRACE=1 in the environment each search,
 *         each function, each call of a companion and the reason for an error
 *         go to standard error, one line each; otherwise to the logging
 *         category "kv.config_gui_mvc" of Qt, as debug messages.
 */
KV_CONFIG_GUI_MVC_API int32_t showMVCEncoderPages(KvMvcSettings* settings, int32_t flags,
                                                  void* ext);

/* The module's names, as companions.h has those of its companions. */
#define KV_MVC_GUI_LIBRARY "kv_config_gui_mvc"      /**< its base name */
#define KV_MVC_GUI_SHOW_PAGES "showMVCEncoderPages" /**< a KvShowMvcEncoderPages */

/** Type of showMVCEncoderPages(), for hosts that load the module at run time. */
typedef int32_t (*KvShowMvcEncoderPages)(KvMvcSettings* settings, int32_t flags, void* ext);

#ifdef __cplusplus
} /* extern "C" */
static_assert(offsetof(KvMvcHosting, flags) == 0, "flags");
static_assert(offsetof(KvMvcHosting, parent) == 8, "parent");
static_assert(offsetof(KvMvcHosting, title) == 16, "title");
static_assert(offsetof(KvMvcHosting, banner) == 24, "banner");
#else
_Static_assert(offsetof(KvMvcHosting, flags) == 0, "flags");
_Static_assert(offsetof(KvMvcHosting, parent) == 8, "parent");
_Static_assert(offsetof(KvMvcHosting, title) == 16, "title");
_Static_assert(offsetof(KvMvcHosting, banner) == 24, "banner");
#endif

#endif
