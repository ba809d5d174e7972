/**
 * @file win32_host.c
 * A host of the settings dialog with a window of its own: plain Win32 in C, no toolkit.
 *
 * The window's menu has "Settings…", which opens the dialog on the settings that this program
 * keeps. The window hands itself over as the dialog's parent: it takes no input while the dialog is
 * open, and has the focus back afterwards.
 *
 *     win32-host [PRESET]
 *
 * The module and its companion libraries lie beside the program, or where Windows looks for DLLs.
 * PRESET is a KvMvcVideoType; without one it is KV_MVC_STEREO_HIGH.
 */
#include <kv_config_gui_mvc/companion_library.h>
#include <kv_config_gui_mvc/config_gui.h>

#include <stdio.h>
#include <stdlib.h>

enum { MENU_SETTINGS = 100, MENU_EXIT, CONTROL_NAME, CONTROL_RESULT };

static const wchar_t window_class[] = L"KvWin32Host";

/** What the window works on. */
typedef struct Host {
    KvMvcSettings settings;
    KvShowMvcEncoderPages show_pages;
} Host;

static void complain(HWND window, const wchar_t* what)
{
    MessageBoxW(window, what, L"Encoder", MB_OK | MB_ICONERROR);
}

/** Says that a library cannot be used, and why. @param reason UTF-8, like the library's name. */
static void complain_of(const KvMvcLibrary* library, const char* reason)
{
    char words[2 * KV_MVC_LIBRARY_TEXT + 64];
    wchar_t text[ARRAYSIZE(words)] = L"";
    snprintf(words, sizeof words, "The library %s could not be used.\n\n%s", library->file, reason);
    MultiByteToWideChar(CP_UTF8, 0, words, -1, text, ARRAYSIZE(text));
    complain(NULL, text);
}

/** Opens a library and finds its function. @return Null after a message that says why. */
static KvMvcFunction load_function(KvMvcLibrary* library, const char* const* names,
                                   const char* function_name)
{
    KvMvcFunction function = NULL;
    if (!kvMvcOpenLibrary(library, NULL, names, KV_MVC_LIBRARY_WINDOWS_PATH)) {
        complain_of(library, library->reason);
        return NULL;
    }
    function = kvMvcFindFunction(library, function_name);
    if (!function) {
        complain_of(library, "It lacks a function that it should have.");
        kvMvcCloseLibrary(library);
    }
    return function;
}

/** Fills the record with the encoder's defaults of a preset. @return Whether that worked. */
static BOOL fill_with_defaults(int32_t preset, KvMvcSettings* settings)
{
    static const char* const names[] = {KV_MVC_ENCODER_LIBRARIES, NULL};
    KvMvcLibrary encoder;
    BOOL filled;
    const KvMvcDefaults defaults =
        (KvMvcDefaults)load_function(&encoder, names, KV_MVC_ENCODER_DEFAULTS);
    if (!defaults) {
        return FALSE;
    }
    filled = defaults(settings, 0, preset, 0) == 0;
    kvMvcCloseLibrary(&encoder);
    if (!filled) {
        complain(NULL, L"The encoder has no defaults for this preset.");
    }
    return filled;
}

static void show_result(HWND window, const KvMvcSettings* settings, const wchar_t* what)
{
    wchar_t text[160];
    const KvMvcViewSettings* const view = &settings->views[0];
    _snwprintf(text, ARRAYSIZE(text) - 1, L"%ls: %d x %d, %.3f frames/s, %d bit/s", what,
               (int)view->width, (int)view->height, view->frame_rate, (int)view->bitrate);
    text[ARRAYSIZE(text) - 1] = L'\0';
    SetDlgItemTextW(window, CONTROL_RESULT, text);
}

static void edit_settings(HWND window, Host* host)
{
    KvMvcHosting hosting = {0};
    int32_t result;

    hosting.parent = window;
    hosting.title = "Encoder settings of a Win32 program";
    /* The call returns when the user has closed the dialog; until then it handles the messages of
       this thread, those of this window among them. */
    result =
        host->show_pages(&host->settings,
                         KV_MVC_GUI_BASIC_TAB | KV_MVC_GUI_ADVANCED_TAB | KV_MVC_GUI_FILE_BUTTONS |
                             KV_MVC_GUI_LOG_COLOURS | KV_MVC_GUI_HOSTING_RECORD,
                         &hosting);
    if (result == KV_MVC_GUI_ERROR) {
        complain(window, L"The settings dialog could not be shown.");
    } else {
        show_result(window, &host->settings,
                    result == KV_MVC_GUI_ACCEPTED ? L"Accepted" : L"Cancelled");
    }
}

static void create_controls(HWND window)
{
    const HINSTANCE instance = GetModuleHandleW(NULL);
    const HFONT font = (HFONT)GetStockObject(DEFAULT_GUI_FONT);
    HWND control;
    control = CreateWindowW(L"EDIT", L"Untitled encode",
                            WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL, 16, 16,
                            400, 24, window, (HMENU)(INT_PTR)CONTROL_NAME, instance, NULL);
    SendMessageW(control, WM_SETFONT, (WPARAM)font, FALSE);
    control = CreateWindowW(L"STATIC", L"", WS_CHILD | WS_VISIBLE, 16, 56, 600, 24, window,
                            (HMENU)(INT_PTR)CONTROL_RESULT, instance, NULL);
    SendMessageW(control, WM_SETFONT, (WPARAM)font, FALSE);
}

static LRESULT CALLBACK handle_message(HWND window, UINT message, WPARAM wide, LPARAM large)
{
    Host* const host = (Host*)GetWindowLongPtrW(window, GWLP_USERDATA);
    switch (message) {
    case WM_CREATE:
        SetWindowLongPtrW(window, GWLP_USERDATA,
                          (LONG_PTR)((const CREATESTRUCTW*)large)->lpCreateParams);
        create_controls(window);
        return 0;
    case WM_SETFOCUS:
        SetFocus(GetDlgItem(window, CONTROL_NAME));
        return 0;
    case WM_COMMAND:
        if (LOWORD(wide) == MENU_SETTINGS) {
            edit_settings(window, host);
        } else if (LOWORD(wide) == MENU_EXIT) {
            DestroyWindow(window);
        }
        return 0;
    case WM_CLOSE:
        /* A request from elsewhere (the taskbar, another program) must not take the parent away
           from under the dialog. */
        if (IsWindowEnabled(window)) {
            DestroyWindow(window);
        }
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcW(window, message, wide, large);
    }
}

static HWND create_window(Host* host)
{
    WNDCLASSW description = {0};
    const HMENU menu = CreateMenu();
    const HMENU encoder = CreatePopupMenu();
    AppendMenuW(encoder, MF_STRING, MENU_SETTINGS, L"&Settings\x2026");
    AppendMenuW(encoder, MF_STRING, MENU_EXIT, L"E&xit");
    AppendMenuW(menu, MF_POPUP, (UINT_PTR)encoder, L"&Encoder");

    description.lpfnWndProc = handle_message;
    description.hInstance = GetModuleHandleW(NULL);
    description.hCursor = LoadCursor(NULL, IDC_ARROW);
    description.hbrBackground = (HBRUSH)(COLOR_BTNFACE + 1);
    description.lpszClassName = window_class;
    if (!RegisterClassW(&description)) {
        return NULL;
    }
    return CreateWindowW(window_class, L"Encoder", WS_OVERLAPPEDWINDOW, 200, 80, 840, 560, NULL,
                         menu, description.hInstance, host);
}

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR command_line, int show)
{
    static const char* const names[] = {KV_MVC_GUI_LIBRARY, NULL};
    static Host host;
    KvMvcLibrary module;
    MSG message;
    HWND window;
    (void)instance;
    (void)previous;
    (void)command_line;

    /* Without the current directory, which may be anybody's, among the places to look for DLLs. */
    SetDllDirectoryW(L"");
    if (!fill_with_defaults(__argc > 1 ? (int32_t)atoi(__argv[1]) : KV_MVC_STEREO_HIGH,
                            &host.settings)) {
        return 2;
    }
    host.show_pages = (KvShowMvcEncoderPages)load_function(&module, names, KV_MVC_GUI_SHOW_PAGES);
    if (!host.show_pages) {
        return 2;
    }

    window = create_window(&host);
    if (!window) {
        complain(NULL, L"The window could not be made.");
        return 2;
    }
    show_result(window, &host.settings, L"Settings");
    ShowWindow(window, show);
    while (GetMessageW(&message, NULL, 0, 0) > 0) {
        if (!IsDialogMessageW(window, &message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    kvMvcCloseLibrary(&module);
    return 0;
}
