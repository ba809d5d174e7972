/**
 * @file c_host.c
 * The smallest complete host of the settings dialog: plain C, no toolkit.
 *
 * It asks the encoder library for the defaults of a preset, lets the user edit
 * them, and prints what came of it. The module makes a GUI application object
 * of its own, since this program has none.
 *
 *     kv-c-host FOLDER [PRESET]
 *
 * FOLDER holds the module and its companion libraries. PRESET is a
 * KvMvcVideoType; without one it is KV_MVC_STEREO_HIGH.
 *
 * Exit status: 0 accepted, 1 cancelled, 2 error.
 */
#include <kv_config_gui_mvc/companion_library.h>
#include <kv_config_gui_mvc/config_gui.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { ACCEPTED = 0, CANCELLED = 1, FAILED = 2 };

/** Opens the first of the names, else prints why not. @return Whether one is open. */
static int open_library(KvMvcLibrary* library, const char* folder, const char* const* names)
{
    if (kvMvcOpenLibrary(library, folder, names, 0)) {
        return 1;
    }
    fprintf(stderr, "kv-c-host: cannot open a library of %s: %s\n", folder, library->reason);
    return 0;
}

/** A function of the library. @return Null, after a line that says why. */
static KvMvcFunction find_function(const KvMvcLibrary* library, const char* name)
{
    const KvMvcFunction function = kvMvcFindFunction(library, name);
    if (function == NULL) {
        fprintf(stderr, "kv-c-host: %s has no function %s\n", library->file, name);
    }
    return function;
}

/** Fills the record with the encoder's defaults of a preset. @return Whether that worked. */
static int fill_with_defaults(const char* folder, int32_t preset, KvMvcSettings* settings)
{
    static const char* const names[] = {KV_MVC_ENCODER_LIBRARIES, NULL};
    KvMvcLibrary encoder;
    KvMvcDefaults defaults;
    int filled = 0;
    if (!open_library(&encoder, folder, names)) {
        return 0;
    }
    defaults = (KvMvcDefaults)find_function(&encoder, KV_MVC_ENCODER_DEFAULTS);
    if (defaults != NULL) {
        filled = defaults(settings, 0, preset, 0) == 0;
        if (!filled) {
            fprintf(stderr, "kv-c-host: the encoder has no defaults for preset %d\n", (int)preset);
        }
    }
    kvMvcCloseLibrary(&encoder);
    return filled;
}

static void print_settings(const KvMvcSettings* settings)
{
    for (int32_t view = 0; view < settings->num_views && view < KV_MVC_RECORD_VIEWS; ++view) {
        const KvMvcViewSettings* v = &settings->views[view];
        printf("view %d: %d x %d, %.3f frames/s, %d bit/s\n", (int)view, (int)v->width,
               (int)v->height, v->frame_rate, (int)v->bitrate);
    }
}

int main(int argc, char** argv)
{
    static const char* const names[] = {KV_MVC_GUI_LIBRARY, NULL};
    KvMvcSettings settings;
    KvMvcHosting hosting = {0};
    KvMvcLibrary module;
    KvShowMvcEncoderPages show_pages;
    int32_t result;

    if (argc < 2 || argc > 3) {
        fprintf(stderr, "usage: kv-c-host FOLDER [PRESET]\n");
        return FAILED;
    }
    /* Every byte is the module's to show or to carry through, so none may be left undefined. */
    memset(&settings, 0, sizeof settings);
    if (!fill_with_defaults(argv[1], argc > 2 ? (int32_t)atoi(argv[2]) : KV_MVC_STEREO_HIGH,
                            &settings) ||
        !open_library(&module, argv[1], names)) {
        return FAILED;
    }
    show_pages = (KvShowMvcEncoderPages)find_function(&module, KV_MVC_GUI_SHOW_PAGES);
    if (show_pages == NULL) {
        kvMvcCloseLibrary(&module);
        return FAILED;
    }

    hosting.title = "Encoder settings of a C program";
    result = show_pages(&settings,
                        KV_MVC_GUI_BASIC_TAB | KV_MVC_GUI_ADVANCED_TAB | KV_MVC_GUI_FILE_BUTTONS |
                            KV_MVC_GUI_LOG_COLOURS | KV_MVC_GUI_HOSTING_RECORD,
                        &hosting);
    kvMvcCloseLibrary(&module);

    switch (result) {
    case KV_MVC_GUI_ACCEPTED:
        printf("accepted\n");
        print_settings(&settings);
        return ACCEPTED;
    case KV_MVC_GUI_REJECTED:
        printf("cancelled\n");
        return CANCELLED;
    default:
        fprintf(stderr, "kv-c-host: the dialog could not be shown\n");
        return FAILED;
    }
}
