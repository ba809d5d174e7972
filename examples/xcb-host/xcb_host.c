/**
 * @file xcb_host.c
 * A host of the settings dialog with an X11 window of its own: plain xcb in C, no toolkit.
 *
 * A click on the window's button, or the key "s", opens the dialog on the settings that this
 * program keeps; "q" ends it. The window hands itself over as the dialog's parent: the dialog stays
 * above it, it takes no input while the dialog is open, and it has the focus back afterwards.
 *
 *     xcb-host FOLDER [PRESET]
 *
 * FOLDER holds the module and its companion libraries. PRESET is a KvMvcVideoType; without one it
 * is KV_MVC_STEREO_HIGH. What comes of each dialog is printed as well as shown.
 */
#include <kv_config_gui_mvc/companion_library.h>
#include <kv_config_gui_mvc/config_gui.h>

#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <xcb/xcb.h>

enum { WIDTH = 720, HEIGHT = 420 };
static const xcb_rectangle_t button = {24, 24, 120, 32};

/** What the window works on. */
typedef struct Host {
    KvMvcSettings settings;
    KvShowMvcEncoderPages show_pages;
    xcb_connection_t* server;
    const xcb_screen_t* screen;
    xcb_window_t window;
    xcb_atom_t delete_window;
} Host;

/* --- The module ----------------------------------------------------------- */

/** Opens the first of the names, else prints why not. @return Whether one is open. */
static int open_library(KvMvcLibrary* library, const char* folder, const char* const* names)
{
    if (kvMvcOpenLibrary(library, folder, names, 0)) {
        return 1;
    }
    fprintf(stderr, "xcb-host: cannot open a library of %s: %s\n", folder, library->reason);
    return 0;
}

/** A function of the library. @return Null, after a line that says why. */
static KvMvcFunction find_function(const KvMvcLibrary* library, const char* name)
{
    const KvMvcFunction function = kvMvcFindFunction(library, name);
    if (function == NULL) {
        fprintf(stderr, "xcb-host: %s has no function %s\n", library->file, name);
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
            fprintf(stderr, "xcb-host: the encoder has no defaults for preset %d\n", (int)preset);
        }
    }
    kvMvcCloseLibrary(&encoder);
    return filled;
}

/* --- The window ----------------------------------------------------------- */

/** Draws into a picture that the server keeps as the window's background. So the window is painted
 * while the dialog is open, too, when this program answers no events. */
static void draw(Host* host, const char* text)
{
    xcb_connection_t* const server = host->server;
    const xcb_pixmap_t picture = xcb_generate_id(server);
    const xcb_gcontext_t pen = xcb_generate_id(server);
    const xcb_font_t font = xcb_generate_id(server);
    const xcb_rectangle_t all = {0, 0, WIDTH, HEIGHT};
    const uint32_t grey[] = {0xE0E0E0};
    const char label[] = "Settings...";

    xcb_create_pixmap(server, host->screen->root_depth, picture, host->window, WIDTH, HEIGHT);
    xcb_open_font(server, font, 5, "fixed");
    xcb_create_gc(server, pen, picture, XCB_GC_FOREGROUND, grey);
    xcb_poly_fill_rectangle(server, picture, pen, 1, &all);
    {
        const uint32_t ink[] = {host->screen->black_pixel, grey[0], font};
        xcb_change_gc(server, pen, XCB_GC_FOREGROUND | XCB_GC_BACKGROUND | XCB_GC_FONT, ink);
    }
    xcb_poly_rectangle(server, picture, pen, 1, &button);
    xcb_image_text_8(server, (uint8_t)strlen(label), picture, pen, (int16_t)(button.x + 24),
                     (int16_t)(button.y + 20), label);
    xcb_image_text_8(server, (uint8_t)strlen(text), picture, pen, button.x,
                     (int16_t)(button.y + 64), text);
    xcb_change_window_attributes(server, host->window, XCB_CW_BACK_PIXMAP, &picture);
    xcb_clear_area(server, 0, host->window, 0, 0, 0, 0);
    /* The window goes on using the picture; the server frees it with the window. */
    xcb_free_pixmap(server, picture);
    xcb_free_gc(server, pen);
    xcb_close_font(server, font);
    xcb_flush(server);
}

static void tell(Host* host, const char* what)
{
    char text[160];
    const KvMvcViewSettings* const view = &host->settings.views[0];
    snprintf(text, sizeof text, "%s: %d x %d, %.3f frames/s, %d bit/s", what, (int)view->width,
             (int)view->height, view->frame_rate, (int)view->bitrate);
    puts(text);
    fflush(stdout);
    draw(host, text);
}

static xcb_atom_t atom(xcb_connection_t* server, const char* name)
{
    xcb_intern_atom_reply_t* const reply = xcb_intern_atom_reply(
        server, xcb_intern_atom(server, 0, (uint16_t)strlen(name), name), NULL);
    const xcb_atom_t found = reply ? reply->atom : XCB_ATOM_NONE;
    free(reply);
    return found;
}

static void create_window(Host* host)
{
    xcb_connection_t* const server = host->server;
    const char title[] = "Encoder";
    /* WM_HINTS: the input hint is given, and says that the window takes the keyboard focus. */
    const uint32_t hints[9] = {1, 1};
    const uint32_t events =
        XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_STRUCTURE_NOTIFY;

    host->window = xcb_generate_id(server);
    xcb_create_window(server, XCB_COPY_FROM_PARENT, host->window, host->screen->root, 0, 0, WIDTH,
                      HEIGHT, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, host->screen->root_visual,
                      XCB_CW_EVENT_MASK, &events);
    xcb_change_property(server, XCB_PROP_MODE_REPLACE, host->window, XCB_ATOM_WM_NAME,
                        XCB_ATOM_STRING, 8, sizeof title - 1, title);
    xcb_change_property(server, XCB_PROP_MODE_REPLACE, host->window, XCB_ATOM_WM_HINTS,
                        XCB_ATOM_WM_HINTS, 32, 9, hints);
    host->delete_window = atom(server, "WM_DELETE_WINDOW");
    xcb_change_property(server, XCB_PROP_MODE_REPLACE, host->window, atom(server, "WM_PROTOCOLS"),
                        XCB_ATOM_ATOM, 32, 1, &host->delete_window);
    tell(host, "settings");
    xcb_map_window(server, host->window);
    xcb_flush(server);
}

/** The character on a key, without Shift. */
static char character(xcb_connection_t* server, xcb_keycode_t key)
{
    xcb_get_keyboard_mapping_reply_t* const map =
        xcb_get_keyboard_mapping_reply(server, xcb_get_keyboard_mapping(server, key, 1), NULL);
    const xcb_keysym_t symbol =
        map && map->keysyms_per_keycode > 0 ? xcb_get_keyboard_mapping_keysyms(map)[0] : 0;
    free(map);
    /* The symbols of ASCII's characters are their codes. */
    return symbol < 0x80 ? (char)symbol : '\0';
}

static void edit_settings(Host* host)
{
    KvMvcHosting hosting = {0};
    int32_t result;

    hosting.parent = (void*)(uintptr_t)host->window;
    hosting.title = "Encoder settings of an xcb program";
    /* The module asks the server for this window by a connection of its own: it must have arrived.
     */
    xcb_flush(host->server);
    result =
        host->show_pages(&host->settings,
                         KV_MVC_GUI_BASIC_TAB | KV_MVC_GUI_ADVANCED_TAB | KV_MVC_GUI_FILE_BUTTONS |
                             KV_MVC_GUI_LOG_COLOURS | KV_MVC_GUI_HOSTING_RECORD,
                         &hosting);
    if (result == KV_MVC_GUI_ERROR) {
        fprintf(stderr, "xcb-host: the dialog could not be shown\n");
    } else {
        tell(host, result == KV_MVC_GUI_ACCEPTED ? "accepted" : "cancelled");
    }
}

static int is_on_button(int x, int y)
{
    return x >= button.x && x < button.x + button.width && y >= button.y &&
           y < button.y + button.height;
}

/** @return Whether the program goes on. */
static int handle_event(Host* host, const xcb_generic_event_t* event)
{
    /* The high bit marks what another program has sent. */
    switch (event->response_type & 0x7F) {
    case XCB_BUTTON_PRESS: {
        const xcb_button_press_event_t* const press = (const xcb_button_press_event_t*)event;
        if (is_on_button(press->event_x, press->event_y)) {
            edit_settings(host);
        }
        return 1;
    }
    case XCB_KEY_PRESS: {
        const xcb_key_press_event_t* const press = (const xcb_key_press_event_t*)event;
        const char key = character(host->server, press->detail);
        if (key == 's') {
            edit_settings(host);
        }
        return key != 'q';
    }
    case XCB_CLIENT_MESSAGE: {
        const xcb_client_message_event_t* const message = (const xcb_client_message_event_t*)event;
        return message->data.data32[0] != host->delete_window;
    }
    default:
        return 1;
    }
}

static int run(Host* host)
{
    int screen_number = 0;
    xcb_screen_iterator_t screens;
    int goes_on = 1;
    host->server = xcb_connect(NULL, &screen_number);
    if (xcb_connection_has_error(host->server)) {
        fprintf(stderr, "xcb-host: no X display\n");
        xcb_disconnect(host->server);
        return 2;
    }
    screens = xcb_setup_roots_iterator(xcb_get_setup(host->server));
    while (screen_number-- > 0) {
        xcb_screen_next(&screens);
    }
    host->screen = screens.data;
    create_window(host);
    while (goes_on) {
        xcb_generic_event_t* const event = xcb_wait_for_event(host->server);
        if (event == NULL) {
            break;
        }
        goes_on = handle_event(host, event);
        free(event);
    }
    xcb_disconnect(host->server);
    return 0;
}

int main(int argc, char** argv)
{
    static const char* const names[] = {KV_MVC_GUI_LIBRARY, NULL};
    static Host host;
    KvMvcLibrary module;
    int status = 2;

    if (argc < 2 || argc > 3) {
        fprintf(stderr, "usage: xcb-host FOLDER [PRESET]\n");
        return 2;
    }
    if (!fill_with_defaults(argv[1], argc > 2 ? (int32_t)atoi(argv[2]) : KV_MVC_STEREO_HIGH,
                            &host.settings) ||
        !open_library(&module, argv[1], names)) {
        return 2;
    }
    host.show_pages = (KvShowMvcEncoderPages)find_function(&module, KV_MVC_GUI_SHOW_PAGES);
    if (host.show_pages != NULL) {
        status = run(&host);
    }
    kvMvcCloseLibrary(&module);
    return status;
}
