#pragma once

#include <QString>

#include <kv_config_gui_mvc/settings_record.h>

#include <cstddef>
#include <cstring>

/// A 32-bit field of a view; offsets are from the start of the view.
struct RecordField {
    const char* name;
    std::size_t offset;
};

inline constexpr RecordField viewFields[] = {
    {"profile", 0},
    {"level", 4},
    {"i_interval", 8},
    {"ref_distance", 12},
    {"interlace_mode", 20},
    {"width", 24},
    {"height", 28},
    {"num_ref_frames", 40},
    {"motion_search", 44},
    {"quant_i", 60},
    {"quant_p", 64},
    {"quant_b", 68},
    {"bitrate_mode", 72},
    {"bitrate_buffer", 76},
    {"bitrate", 80},
    {"max_bitrate", 84},
    {"min_partition", 88},
    {"entropy_mode", 92},
    {"hadamard", 96},
    {"pixel_aspect_x", 100},
    {"pixel_aspect_y", 104},
    {"vbv_initial", 124},
    {"vbv_target", 128},
    {"bitrate_units", 132},
    {"frame_size_i", 160},
    {"frame_size_p", 164},
    {"frame_size_b", 168},
    {"frame_size_bref", 172},
    {"hrd_mode", 176},
    {"deblocking", 256},
    {"video_type", 1804},
    {"pulldown", 1808},
    {"bit_depth_luma", 2244},
    {"bit_depth_chroma", 2248},
    {"chroma_format", 2252},
    {"scene_detection", 2836},
    {"multi_slice", 2844},
    {"num_slices", 2848},
    {"reference_b", 2852},
    {"pyramid_b", 2856},
    {"subpixel_mode", 2868},
    {"weighted_p", 2872},
    {"fast_intra", 2880},
    {"fast_inter", 2884},
    {"display_aspect_x", 2888},
    {"display_aspect_y", 2892},
    {"num_threads", 2904},
    {"quant_min", 2916},
    {"quant_max", 2920},
    {"force_i", 4100},
    {"adaptive_b", 4104},
    {"idr_marker", 4108},
    {"field_order", 4112},
    {"fixed_i_position", 4116},
    {"fast_reference", 4316},
    {"fast_subblock", 4320},
    {"simple_rd", 5116},
    {"brightness", 5492},
    {"contrast", 5496},
    {"complexity", 5500},
};

/// A gap between the named fields.
struct ReservedRange {
    std::size_t offset;
    std::size_t size;
};

inline constexpr ReservedRange viewReserved[] = {
    {16, 4},     {48, 12},     {108, 16},   {136, 24},   {180, 76},   {260, 1544},
    {1812, 432}, {2256, 580},  {2840, 4},   {2860, 8},   {2876, 4},   {2896, 8},
    {2908, 8},   {2924, 1176}, {4120, 196}, {4324, 792}, {5120, 372}, {5504, 2812},
};

inline std::size_t fieldOffset(const QString& name)
{
    for (const RecordField& field : viewFields) {
        if (name == QLatin1String(field.name)) {
            return field.offset;
        }
    }
    qFatal("no field %s", qPrintable(name));
    return 0;
}

inline void setField(KvMvcSettings& settings, int view, std::size_t offset, qint32 value)
{
    std::memcpy(reinterpret_cast<char*>(&settings.views[view]) + offset, &value, sizeof value);
}
