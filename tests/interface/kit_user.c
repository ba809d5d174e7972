/*
 * A program that uses companion_library.h and companion_check.h as its readers do, in C; it is
 * compiled as C++, too.
 *
 *     kit_user open FOLDER FLAGS NAME...   which library is opened; FOLDER "-": none is given
 *     kit_user check HOW                   the check of the encoder library beside the program
 */
#include <kv_config_gui_mvc/companion_library.h>

#include <stdlib.h>

/* Memory that runs out once. The check's own functions are not called by these names. */
static int allocations_until_failure = -1;

static void* limited(void* former, size_t size)
{
    return allocations_until_failure-- == 0 ? NULL : realloc(former, size);
}

#define malloc(size) limited(NULL, size)
#define realloc(former, size) limited(former, size)
#include <kv_config_gui_mvc/companion_check.h>
#undef malloc
#undef realloc

static int open_one(const char* folder, int32_t flags, const char* const* names)
{
    KvMvcLibrary library;
    KvMvcDefaults defaults;
    if (!kvMvcOpenLibrary(&library, folder, names, flags)) {
        printf("none\n%s\n%s\n%s\n", library.is_beside ? "beside" : "by name", library.file,
               library.reason);
        return kvMvcFindFunction(&library, KV_MVC_ENCODER_DEFAULTS) == NULL ? 0 : 4;
    }
    defaults = (KvMvcDefaults)kvMvcFindFunction(&library, KV_MVC_ENCODER_DEFAULTS);
    printf("%d\n%s\n%s\n%s\n", defaults != NULL ? (int)defaults(NULL, 0, 0, 0) : -1,
           library.is_beside ? "beside" : "by name", library.file, library.reason);
    if (kvMvcFindFunction(&library, "no_such_function") != NULL) {
        return 4;
    }
    kvMvcCloseLibrary(&library);
    /* What is closed has no functions, and can be closed again. */
    kvMvcCloseLibrary(&library);
    return kvMvcFindFunction(&library, KV_MVC_ENCODER_DEFAULTS) == NULL ? 0 : 4;
}

static const char* const kind_names[] = {"error", "warning", "note"};

static void print_message(int32_t kind, const char* text)
{
    printf("%s %lu %.40s\n", kind_names[kind], (unsigned long)strlen(text), text);
}

/** Has no room for warnings. */
static int hear_no_warnings(void* context, int32_t kind, const char* text)
{
    if (kind == KV_MVC_MESSAGE_WARNING) {
#if defined(__cplusplus)
        throw context;
#else
        return 0;
#endif
    }
    print_message(kind, text);
    ++*(int*)context;
    return 1;
}

static const char* shown(const char* text)
{
    return text != NULL ? text : "-";
}

/** What each message is about, where it is known. */
static void print_abouts(const KvMvcMessageList* said)
{
    size_t i;
    for (i = 0; i < said->count; ++i) {
        const KvMvcMessageAbout* const about = said->messages[i].about;
        if (about == NULL) {
            printf("%s about nothing\n", kind_names[said->messages[i].kind]);
        } else {
            printf("%s %d %s %s view %d numbers %u %g %g level %s\n",
                   kind_names[said->messages[i].kind], (int)about->kind, about->rule,
                   shown(about->setting), (int)about->view, (unsigned)about->numbers, about->value,
                   about->limit, shown(about->level));
        }
    }
}

static int hear_no_uses(void* context, const KvMvcLimitUse* use)
{
    (void)use;
#if defined(__cplusplus)
    throw context;
#else
    (void)context;
    return 0;
#endif
}

/** A check with the use of its limits; `how` is "limits", or "no-limits" for a deaf listener. */
static int check_limits(KvMvcCheck function, const char* how)
{
    static KvMvcSettings settings;
    KvMvcMessageList said = {NULL, 0};
    KvMvcLimitList used = {NULL, 0};
    KvMvcListener listener = {kvMvcKeepMessage, NULL, NULL, 0};
    KvMvcLimitListener limits = {kvMvcKeepLimitUse, NULL, 7};
    size_t i;
    listener.context = &said;
    limits.context = &used;
    if (strcmp(how, "no-limits") == 0) {
        limits.hear = hear_no_uses;
    }
    kvMvcRunFullCheck(function, &settings, &listener, &limits);
    printf("messages %lu, lost %lu\n", (unsigned long)said.count, (unsigned long)limits.lost);
    for (i = 0; i < used.count; ++i) {
        const KvMvcLimitUse* const use = used.uses[i];
        printf("view %d %s: %g of %g %s, rule %s, level %s\n", (int)use->view, use->name, use->used,
               use->limit, use->unit, use->rule, shown(use->level));
    }
    kvMvcFreeMessages(&said);
    kvMvcFreeLimitUses(&used);
    return used.count == 0 && used.uses == NULL && kvMvcLookUp(KV_MVC_LIMIT_USE) == NULL ? 0 : 4;
}

static KvMvcCheck inner_check;

/** A check that asks another one before it says something itself. */
static int32_t outer_check(KvMvcLookup lookup, KvMvcSettings* settings, int32_t stage,
                           int32_t reserved)
{
    KvMvcMessageList said = {NULL, 0};
    KvMvcListener listener = {kvMvcKeepMessage, NULL, NULL, 0};
    (void)stage;
    (void)reserved;
    listener.context = &said;
    kvMvcRunCheck(inner_check, settings, &listener);
    ((KvMvcPrintf)lookup("err_printf"))("%d inside", (int)said.count);
    kvMvcFreeMessages(&said);
    return 0;
}

static int check(const KvMvcLibrary* encoder, const char* how)
{
    static KvMvcSettings settings;
    KvMvcMessageList said = {NULL, 0};
    KvMvcListener listener = {kvMvcKeepMessage, NULL, NULL, 0};
    KvMvcCheck function = (KvMvcCheck)kvMvcFindFunction(encoder, KV_MVC_ENCODER_CHECK);
    size_t i;
    int heard = 0;
    int32_t result;
    listener.context = &said;
    if (strcmp(how, "translated") == 0) {
        listener.translate =
            (KvMvcLocalizeConvert)kvMvcFindFunction(encoder, KV_MVC_LOCALIZE_CONVERT);
    } else if (strcmp(how, "callback") == 0) {
        listener.hear = hear_no_warnings;
        listener.context = &heard;
    } else if (strcmp(how, "nested") == 0) {
        inner_check = function;
        function = outer_check;
    } else if (strstr(how, "limits") != NULL) {
        return check_limits(function, how);
    } else if (strncmp(how, "about-", 6) == 0) {
        allocations_until_failure = atoi(how + 6);
    } else if (how[0] >= '0' && how[0] <= '9') {
        allocations_until_failure = atoi(how);
    }
    result = kvMvcRunCheck(function, &settings, &listener);
    printf("result %d, width %d, lost %lu, heard %d\n", (int)result, (int)settings.views[0].width,
           (unsigned long)listener.lost, heard);
    if (strncmp(how, "about", 5) == 0) {
        print_abouts(&said);
    } else {
        for (i = 0; i < said.count; ++i) {
            print_message(said.messages[i].kind, said.messages[i].text);
        }
    }
    kvMvcFreeMessages(&said);
    /* Sinks outside a check have nobody to tell. */
    ((KvMvcPrintf)kvMvcLookUp("err_printf"))("nobody hears %d", 1);
    return said.count == 0 && said.messages == NULL && kvMvcLookUp(NULL) == NULL ? 0 : 4;
}

int main(int count, char** arguments)
{
    static const char* const names[] = {KV_MVC_ENCODER_LIBRARIES, NULL};
    KvMvcLibrary encoder;
    int status;
    if (count > 4 && strcmp(arguments[1], "open") == 0) {
        /* The argument vector ends with a null, as the names do. */
        return open_one(strcmp(arguments[2], "-") == 0 ? NULL : arguments[2], atoi(arguments[3]),
                        (const char* const*)&arguments[4]);
    }
    if (count != 3 || !kvMvcOpenLibrary(&encoder, NULL, names, 0)) {
        return 3;
    }
    status = check(&encoder, arguments[2]);
    kvMvcCloseLibrary(&encoder);
    return status;
}
