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
#define _POSIX_C_SOURCE 200809L

#include <kv_config_gui_mvc/companions.h>
#include <kv_config_gui_mvc/config_gui.h>

#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { ACCEPTED = 0, CANCELLED = 1, FAILED = 2 };

/** A library of the folder. @return Null, after a line that says why. */
static void* open_library(const char* folder, const char* name)
{
    char path[4096];
    void* library;
    const int length = snprintf(path, sizeof path, "%s/%s.so", folder, name);
    if (length < 0 || (size_t)length >= sizeof path) {
        fprintf(stderr, "kv-c-host: the path of %s is too long\n", name);
        return NULL;
    }
    library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    if (library == NULL)
        fprintf(stderr, "kv-c-host: %s\n", dlerror());
    return library;
}

/** A function of the library, copied to `function`, a pointer to a function pointer. */
static int find_function(void* library, const char* name, void* function)
{
    /* ISO C has no conversion from object to function pointers; POSIX makes their bytes alike. */
    void* address = dlsym(library, name);
    if (address == NULL) {
        fprintf(stderr, "kv-c-host: %s\n", dlerror());
        return 0;
    }
    memcpy(function, &address, sizeof address);
    return 1;
}

/** Fills the record with the encoder's defaults of a preset. @return Whether that worked. */
static int fill_with_defaults(const char* folder, int32_t preset, KvMvcSettings* settings)
{
    KvMvcDefaults defaults = NULL;
    int filled = 0;
    void* encoder = open_library(folder, "kv_mvcenc");
    if (encoder == NULL)
        return 0;
    if (find_function(encoder, KV_MVC_ENCODER_DEFAULTS, &defaults)) {
        filled = defaults(settings, 0, preset, 0) == 0;
        if (!filled)
            fprintf(stderr, "kv-c-host: the encoder has no defaults for preset %d\n", (int)preset);
    }
    dlclose(encoder);
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
    KvMvcSettings settings;
    KvMvcHosting hosting = {0};
    KvShowMvcEncoderPages show_pages = NULL;
    void* module;
    int32_t result;

    if (argc < 2 || argc > 3) {
        fprintf(stderr, "usage: kv-c-host FOLDER [PRESET]\n");
        return FAILED;
    }
    /* Every byte is the module's to show or to carry through, so none may be left undefined. */
    memset(&settings, 0, sizeof settings);
    if (!fill_with_defaults(argv[1], argc > 2 ? (int32_t)atoi(argv[2]) : KV_MVC_STEREO_HIGH,
                            &settings))
        return FAILED;

    module = open_library(argv[1], "kv_config_gui_mvc");
    if (module == NULL)
        return FAILED;
    if (!find_function(module, "showMVCEncoderPages", &show_pages)) {
        dlclose(module);
        return FAILED;
    }

    hosting.title = "Encoder settings of a C program";
    result = show_pages(&settings,
                        KV_MVC_GUI_BASIC_TAB | KV_MVC_GUI_ADVANCED_TAB | KV_MVC_GUI_FILE_BUTTONS |
                            KV_MVC_GUI_LOG_COLOURS | KV_MVC_GUI_HOSTING_RECORD,
                        &hosting);
    dlclose(module);

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
