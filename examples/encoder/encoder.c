/**
 * @file encoder.c
 * An encoder library: the defaults of a preset, and a check with two rules, whose facts it tells to
 * callers that want them.
 */
#include <kv_config_gui_mvc/companions.h>

#include <string.h>

enum { MACROBLOCK = 16, MOST_BITRATE = 20000000 };

/** What a check reports by; the last two may be null, as an older caller has none. */
typedef struct Report {
    KvMvcPrintf error;
    KvMvcPrintf warning;
    KvMvcTellAbout about;
    KvMvcTellLimitUse use;
} Report;

KV_MVC_COMPANION_API int32_t mvcOutVideoDefaults(KvMvcSettings* settings, int32_t reserved1,
                                                 int32_t preset, int32_t reserved2)
{
    int32_t view;
    (void)reserved1;
    (void)reserved2;
    memset(settings, 0, sizeof *settings);
    settings->num_views = preset == KV_MVC_VIDEO_TYPE_NONE ? 1 : 2;
    for (view = 0; view < KV_MVC_RECORD_VIEWS; ++view) {
        KvMvcViewSettings* const v = &settings->views[view];
        v->video_type = preset;
        v->profile = KV_MVC_PROFILE_HIGH;
        v->level = KV_MVC_LEVEL_AUTO;
        v->width = 1280;
        v->height = 720;
        v->frame_rate = 50.0;
        v->pixel_aspect_x = v->pixel_aspect_y = 1;
        v->display_aspect_x = v->display_aspect_y = KV_MVC_ASPECT_UNSET;
        v->chroma_format = KV_MVC_CHROMA_420;
        v->bit_depth_luma = v->bit_depth_chroma = 8;
        v->i_interval = 50;
        v->ref_distance = 3;
        v->idr_marker = 1;
        v->num_ref_frames = 3;
        v->motion_search = 63;
        v->subpixel_mode = KV_MVC_SUBPIXEL_QUARTER;
        v->entropy_mode = KV_MVC_CABAC;
        v->deblocking = 1;
        v->num_slices = 1;
        v->bitrate_mode = KV_MVC_VARIABLE_BITRATE;
        v->bitrate = v->max_bitrate = 8000000;
        v->bitrate_buffer = 8000000;
        v->bitrate_units = KV_MVC_UNITS_BITS;
        v->vbv_initial = v->vbv_target = 6000000;
        v->quant_i = v->quant_p = v->quant_b = 26;
        v->quant_max = 51;
    }
    return 0;
}

/** What the next message is about. */
static void tell_about(const Report* report, int32_t kind, const char* rule, const char* setting,
                       int32_t view, double value, double limit)
{
    KvMvcMessageAbout about;
    memset(&about, 0, sizeof about);
    about.size = sizeof about;
    about.kind = kind;
    about.rule = rule;
    about.setting = setting;
    about.view = view;
    about.numbers = KV_MVC_ABOUT_VALUE | KV_MVC_ABOUT_LIMIT;
    about.value = value;
    about.limit = limit;
    if (report->about != NULL) {
        report->about(&about);
    }
}

/** What can be mended is mended, with a warning. */
static void correct_width(const Report* report, KvMvcSettings* settings)
{
    const int32_t width = settings->views[0].width;
    const int32_t whole = width < MACROBLOCK ? MACROBLOCK : width - width % MACROBLOCK;
    if (width != whole) {
        settings->views[0].width = settings->views[1].width = whole;
        tell_about(report, KV_MVC_MESSAGE_WARNING, "example.width", "width", KV_MVC_ALL_VIEWS,
                   width, whole);
        report->warning("The width %d is no multiple of %d; it is %d now.", (int)width,
                        (int)MACROBLOCK, (int)whole);
    }
}

/** What the user has to decide is an error. @return Whether the view is acceptable. */
static int check_bitrate(const Report* report, const KvMvcSettings* settings, int32_t view)
{
    const int32_t bitrate = settings->views[view].bitrate;
    KvMvcLimitUse use = {sizeof use, view, "Bitrate", "bit/s", "example.bitrate", NULL, 0.0, 0.0};
    use.used = bitrate;
    use.limit = MOST_BITRATE;
    if (report->use != NULL) {
        report->use(&use);
    }
    if (bitrate <= MOST_BITRATE) {
        return 1;
    }
    tell_about(report, KV_MVC_MESSAGE_ERROR, "example.bitrate", "bitrate", view, bitrate,
               MOST_BITRATE);
    report->error("View %d: the bitrate is %d bit/s; %d is the most.", (int)view, (int)bitrate,
                  (int)MOST_BITRATE);
    return 0;
}

KV_MVC_COMPANION_API int32_t mvcOutVideoChkSettings(KvMvcLookup lookup, KvMvcSettings* settings,
                                                    int32_t stage, int32_t reserved)
{
    const Report report = {
        (KvMvcPrintf)lookup(KV_MVC_ERROR_SINK), (KvMvcPrintf)lookup(KV_MVC_WARNING_SINK),
        (KvMvcTellAbout)lookup(KV_MVC_MESSAGE_ABOUT), (KvMvcTellLimitUse)lookup(KV_MVC_LIMIT_USE)};
    int32_t view;
    int32_t refused = 0;
    (void)stage;
    (void)reserved;
    correct_width(&report, settings);
    for (view = 0; view < settings->num_views && view < KV_MVC_RECORD_VIEWS; ++view) {
        refused |= !check_bitrate(&report, settings, view);
    }
    return refused;
}
