#include "KeyTable.h"

#include "KeyNames.h"
#include "SettingRules.h"

#include <kv_config_gui_mvc/config_gui.h>

namespace
{

constexpr Fallback fallbackToCode(qint32 code)
{
    return {code, true};
}
constexpr Fallback nameNotFound{0, false};

KeyTable makeTable()
{
    using V = KvMvcViewSettings;
    using R = KvMvcSettings;
    KeyTable table;

    table.basic = {
        {.key = keys::horizontalSize, .field = &V::width, .lock = KV_MVC_GUI_LOCK_SIZE},
        {.key = keys::verticalSize, .field = &V::height, .lock = KV_MVC_GUI_LOCK_SIZE},
        {.key = keys::pixelX,
         .field = &V::pixel_aspect_x,
         .lock = KV_MVC_GUI_LOCK_PIXEL_RATIO,
         .enabledWhen = rules::hasCustomAspect},
        {.key = keys::pixelY,
         .field = &V::pixel_aspect_y,
         .lock = KV_MVC_GUI_LOCK_PIXEL_RATIO,
         .enabledWhen = rules::hasCustomAspect},
        // After the pixel values, which a named ratio unsets.
        {.key = keys::pictureAspectRatio,
         .describe = rules::describeAspectRatio,
         .apply = rules::applyAspectRatio},
        {.key = keys::frameRate,
         .lock = KV_MVC_GUI_LOCK_FRAME_RATE,
         .describe = rules::describeFrameRate,
         .apply = rules::applyFrameRate},
        {.key = keys::interlace, .field = &V::interlace_mode, .list = ListName::InterlaceModes},
        {.key = keys::fieldOrder,
         .field = &V::field_order,
         .list = ListName::FieldOrders,
         .describe = rules::describeFieldOrder},
        {.key = keys::pulldown, .field = &V::pulldown, .list = ListName::PulldownModes},
        {.key = keys::chromaFormat,
         .field = &V::chroma_format,
         .list = ListName::ChromaFormats,
         .fallback = fallbackToCode(KV_MVC_CHROMA_420)},
        {.key = keys::bitDepthLuma, .field = &V::bit_depth_luma, .list = ListName::BitDepths},
        {.key = keys::bitDepthChroma, .field = &V::bit_depth_chroma, .list = ListName::BitDepths},
    };

    table.advanced = {
        {.key = keys::profile,
         .field = &V::profile,
         .list = ListName::Profiles,
         .fallback = nameNotFound,
         .lock = KV_MVC_GUI_LOCK_PROFILE},
        {.key = keys::level,
         .field = &V::level,
         .list = ListName::Levels,
         .fallback = nameNotFound,
         .lock = KV_MVC_GUI_LOCK_LEVEL},
        {.key = keys::sceneDetection, .field = &V::scene_detection},
        {.key = keys::intervalI, .field = &V::i_interval},
        {.key = keys::forceI, .field = &V::force_i},
        {.key = keys::idrMarker, .field = &V::idr_marker},
        {.key = keys::fixedIPosition, .field = &V::fixed_i_position},
        {.key = keys::adaptiveB, .field = &V::adaptive_b},
        {.key = keys::piramydB, .field = &V::pyramid_b},
        // Shown as B pictures between references, stored as the distance of the references.
        {.key = keys::bBetween, .field = &V::ref_distance, .offset = 1},
        {.key = keys::referenceB, .field = &V::reference_b},
        {.key = keys::macroblockSearch,
         .field = &V::min_partition,
         .list = ListName::MacroblockPartitions},
        {.key = keys::subpixelSearch,
         .field = &V::subpixel_mode,
         .list = ListName::SubpixelPrecisions},
        {.key = keys::numReference, .field = &V::num_ref_frames},
        {.key = keys::motionSearch, .field = &V::motion_search},
        {.key = keys::weightedP, .field = &V::weighted_p},
        {.key = keys::fastReference, .field = &V::fast_reference},
        {.key = keys::fastSubblock, .field = &V::fast_subblock},
        {.key = keys::fastIntra, .field = &V::fast_intra},
        {.key = keys::fastInter, .field = &V::fast_inter},
        {.key = keys::simpleRd, .field = &V::simple_rd},
        {.key = keys::hadamard, .field = &V::hadamard},
        {.key = keys::brightness, .field = &V::brightness},
        {.key = keys::contrast, .field = &V::contrast},
        {.key = keys::complexity, .field = &V::complexity},
        {.key = keys::deblocking, .field = &V::deblocking},
        {.key = keys::entropy, .field = &V::entropy_mode, .list = ListName::EntropyCoders},
        {.key = keys::slices, .field = &V::num_slices, .apply = rules::applySlices},
        {.key = keys::threads, .field = &V::num_threads},
    };

    table.record = {
        // Shown as views beyond the base view.
        {.key = keys::numberOfViews,
         .field = &R::num_views,
         .offset = 1,
         .lock = KV_MVC_GUI_LOCK_VIEWS},
        {.key = keys::split, .field = &R::split_views},
    };

    table.rateControl = {
        // Before HRD, so that an explicit value wins over the one that the mode sets.
        {.key = keys::bitrateMode,
         .field = &V::bitrate_mode,
         .list = ListName::BitrateModes,
         .apply = rules::applyBitrateMode},
        {.key = keys::targetBitrate, .field = &V::bitrate},
        {.key = keys::maxBitrate, .field = &V::max_bitrate},
        {.key = keys::bitrateBuffer, .field = &V::bitrate_buffer},
        {.key = keys::units, .field = &V::bitrate_units},
        {.key = keys::vbvInitial, .field = &V::vbv_initial},
        {.key = keys::vbvTarget, .field = &V::vbv_target},
        {.key = keys::iSize, .field = &V::frame_size_i},
        {.key = keys::pSize, .field = &V::frame_size_p},
        {.key = keys::bSize, .field = &V::frame_size_b},
        {.key = keys::brSize, .field = &V::frame_size_bref},
        {.key = keys::iQuantizer, .field = &V::quant_i},
        {.key = keys::pQuantizer, .field = &V::quant_p},
        {.key = keys::bQuantizer, .field = &V::quant_b},
        {.key = keys::maxQuantizer, .field = &V::quant_max},
        {.key = keys::minQuantizer, .field = &V::quant_min},
        {.key = keys::hrd, .field = &V::hrd_mode},
    };
    for (ViewRow& row : table.rateControl) {
        for (int view = 0; view < KV_MVC_MAX_VIEWS; ++view) {
            row.keyOfView.at(std::size_t(view)) = keys::ofView(row.key, view);
        }
    }
    return table;
}

} // namespace

const KeyTable& keyTable()
{
    static const KeyTable table = makeTable();
    return table;
}
