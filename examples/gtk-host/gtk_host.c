/**
 * @file gtk_host.c
 * A host of the settings dialog with a GTK 3 window on X11, which is the dialog's parent.
 *
 *     gtk-host FOLDER
 *
 * FOLDER holds the module and its companion libraries. What comes of each dialog is shown and
 * printed.
 */
#include <kv_config_gui_mvc/companion_library.h>

#include <kv_config_gui_mvc/config_gui.h>

#include <gtk/gtk.h>
#include <gtk/gtkx.h>

typedef struct Host {
    KvMvcSettings settings;
    KvShowMvcEncoderPages show_pages;
    GtkWidget* window;
    GtkWidget* text;
    gboolean is_editing;
} Host;

/** A function of the first library that can be opened. @return Null, after a line that says why. */
static KvMvcFunction load_function(KvMvcLibrary* library, const char* folder,
                                   const char* const* names, const char* name)
{
    KvMvcFunction function = NULL;
    if (!kvMvcOpenLibrary(library, folder, names, 0)) {
        g_printerr("gtk-host: %s\n", library->reason);
    } else if ((function = kvMvcFindFunction(library, name)) == NULL) {
        g_printerr("gtk-host: %s has no function %s\n", library->file, name);
        kvMvcCloseLibrary(library);
    }
    return function;
}

static void tell(Host* host, const char* what)
{
    const KvMvcViewSettings* const view = &host->settings.views[0];
    char* const text = g_strdup_printf("%s: %d x %d, %.3f frames/s", what, (int)view->width,
                                       (int)view->height, view->frame_rate);
    gtk_label_set_text(GTK_LABEL(host->text), text);
    puts(text);
    fflush(stdout);
    g_free(text);
}

static void edit_settings(Host* host)
{
    KvMvcHosting hosting = {0};
    int32_t result;
    /* GTK's main context is also the dialog's: all of this program goes on during the call. */
    if (host->is_editing) {
        return;
    }
    host->is_editing = TRUE;
    hosting.title = "Encoder settings of a GTK program";
    hosting.parent = (void*)(uintptr_t)GDK_WINDOW_XID(gtk_widget_get_window(host->window));
    result =
        host->show_pages(&host->settings,
                         KV_MVC_GUI_BASIC_TAB | KV_MVC_GUI_ADVANCED_TAB | KV_MVC_GUI_FILE_BUTTONS |
                             KV_MVC_GUI_LOG_COLOURS | KV_MVC_GUI_HOSTING_RECORD,
                         &hosting);
    host->is_editing = FALSE;
    tell(host, result == KV_MVC_GUI_ACCEPTED   ? "accepted"
               : result == KV_MVC_GUI_REJECTED ? "cancelled"
                                               : "the dialog could not be shown");
}

/** The close box. @return Whether the window stays: it has to live as long as the dialog over it.
 */
static gboolean stays_open(GtkWidget* window, GdkEvent* event, Host* host)
{
    (void)window;
    (void)event;
    return host->is_editing;
}

static void create_window(Host* host)
{
    GtkWidget* const box = gtk_box_new(GTK_ORIENTATION_VERTICAL, 12);
    GtkWidget* const button = gtk_button_new_with_mnemonic("_Settings");
    host->window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    host->text = gtk_label_new(NULL);
    gtk_window_set_title(GTK_WINDOW(host->window), "Encoder");
    gtk_window_set_default_size(GTK_WINDOW(host->window), 720, 420);
    gtk_box_pack_start(GTK_BOX(box), button, FALSE, FALSE, 0);
    gtk_box_pack_start(GTK_BOX(box), host->text, FALSE, FALSE, 0);
    gtk_container_add(GTK_CONTAINER(host->window), box);
    g_signal_connect_swapped(button, "clicked", G_CALLBACK(edit_settings), host);
    g_signal_connect(host->window, "delete-event", G_CALLBACK(stays_open), host);
    g_signal_connect(host->window, "destroy", G_CALLBACK(gtk_main_quit), NULL);
    tell(host, "settings");
    gtk_widget_show_all(host->window);
}

int main(int argc, char** argv)
{
    static const char* const encoders[] = {KV_MVC_ENCODER_LIBRARIES, NULL};
    static const char* const modules[] = {KV_MVC_GUI_LIBRARY, NULL};
    static Host host;
    KvMvcLibrary library;
    KvMvcDefaults defaults;

    gdk_set_allowed_backends("x11"); /* other window systems have no ids to hand over */
    gtk_init(&argc, &argv);
    if (argc != 2) {
        g_printerr("usage: gtk-host FOLDER\n");
        return 2;
    }
    defaults = (KvMvcDefaults)load_function(&library, argv[1], encoders, KV_MVC_ENCODER_DEFAULTS);
    if (defaults == NULL) {
        return 2;
    }
    defaults(&host.settings, 0, KV_MVC_STEREO_HIGH, 0);
    kvMvcCloseLibrary(&library);
    host.show_pages =
        (KvShowMvcEncoderPages)load_function(&library, argv[1], modules, KV_MVC_GUI_SHOW_PAGES);
    if (host.show_pages == NULL) {
        return 2;
    }
    create_window(&host);
    gtk_main();
    kvMvcCloseLibrary(&library);
    return 0;
}
