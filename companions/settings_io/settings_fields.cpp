#include "settings_fields.h"

#include <kv_config_gui_mvc/settings_record.h>

#include <type_traits>

namespace kv
{
namespace
{

constexpr NamedValue kSwitch[] = {{"off", 0}, {"on", 1}};
constexpr NamedValue kProfiles[] = {{"baseline", KV_MVC_PROFILE_BASELINE},
                                    {"main", KV_MVC_PROFILE_MAIN},
                                    {"high", KV_MVC_PROFILE_HIGH},
                                    {"high 10", KV_MVC_PROFILE_HIGH_10},
                                    {"high 4:2:2", KV_MVC_PROFILE_HIGH_422}};
constexpr NamedValue kLevels[] = {
    {"1.0", 10}, {"1.1", 11}, {"1.2", 12}, {"1.3", 13}, {"1.6", 16}, {"2.0", 20},
    {"2.1", 21}, {"2.2", 22}, {"3.0", 30}, {"3.1", 31}, {"3.2", 32}, {"4.0", 40},
    {"4.1", 41}, {"4.2", 42}, {"5.0", 50}, {"5.1", 51}, {"5.2", 52}, {"auto", KV_MVC_LEVEL_AUTO}};
constexpr NamedValue kInterlaceModes[] = {{"progressive", KV_MVC_PROGRESSIVE},
                                          {"interlaced", KV_MVC_INTERLACED},
                                          {"mbaff", KV_MVC_MBAFF}};
constexpr NamedValue kFieldOrders[] = {{"top field first", KV_MVC_TOP_FIELD_FIRST},
                                       {"bottom field first", KV_MVC_BOTTOM_FIELD_FIRST}};
constexpr NamedValue kBitrateModes[] = {{"constant bitrate", KV_MVC_CONSTANT_BITRATE},
                                        {"constant quantizer", KV_MVC_CONSTANT_QUANTIZER},
                                        {"variable bitrate", KV_MVC_VARIABLE_BITRATE},
                                        {"average quantizer", KV_MVC_AVERAGE_QUANTIZER}};
constexpr NamedValue kBitrateUnits[] = {{"bytes and percent", KV_MVC_UNITS_BYTES_PERCENT},
                                        {"bits", KV_MVC_UNITS_BITS},
                                        {"bits and 90 kHz", KV_MVC_UNITS_BITS_90KHZ}};
constexpr NamedValue kPartitions[] = {{"16x16", KV_MVC_PARTITION_16X16},
                                      {"8x8", KV_MVC_PARTITION_8X8}};
constexpr NamedValue kSubpixelModes[] = {{"full", KV_MVC_SUBPIXEL_FULL},
                                         {"half", KV_MVC_SUBPIXEL_HALF},
                                         {"quarter", KV_MVC_SUBPIXEL_QUARTER}};
constexpr NamedValue kEntropyModes[] = {{"cavlc", KV_MVC_CAVLC}, {"cabac", KV_MVC_CABAC}};
constexpr NamedValue kVideoTypes[] = {{"none", KV_MVC_VIDEO_TYPE_NONE},
                                      {"multiview high", KV_MVC_MULTIVIEW_HIGH},
                                      {"stereo high", KV_MVC_STEREO_HIGH},
                                      {"blu-ray 3d", KV_MVC_BLURAY_3D}};
constexpr NamedValue kPulldowns[] = {{"off", KV_MVC_PULLDOWN_OFF},
                                     {"2:3", KV_MVC_PULLDOWN_2_3},
                                     {"3:2", KV_MVC_PULLDOWN_3_2},
                                     {"2:3 progressive", KV_MVC_PULLDOWN_2_3_PROGRESSIVE},
                                     {"3:2 progressive", KV_MVC_PULLDOWN_3_2_PROGRESSIVE},
                                     {"auto", KV_MVC_PULLDOWN_AUTO},
                                     {"2:2", KV_MVC_PULLDOWN_2_2},
                                     {"3:3", KV_MVC_PULLDOWN_3_3}};
constexpr NamedValue kChromaFormats[] = {
    {"4:0:0", KV_MVC_CHROMA_400}, {"4:2:0", KV_MVC_CHROMA_420}, {"4:2:2", KV_MVC_CHROMA_422}};
constexpr NamedValue kPixelAspect[] = {{"from display", KV_MVC_ASPECT_UNSET}};
constexpr NamedValue kDisplayAspect[] = {{"custom", KV_MVC_ASPECT_UNSET}};

template <typename Member>
constexpr FieldKind kindOf()
{
    static_assert(std::is_same_v<Member, int32_t> || std::is_same_v<Member, double>);
    return std::is_same_v<Member, double> ? FieldKind::Rate : FieldKind::Integer;
}

#define KV_FIELD(structure, member, ...)                                                           \
    Field                                                                                          \
    {                                                                                              \
#member, offsetof(structure, member), kindOf < decltype(structure::member)>(),             \
        {                                                                                          \
            __VA_ARGS__                                                                            \
        }                                                                                          \
    }
#define KV_RECORD(member, ...) KV_FIELD(KvMvcSettings, member, __VA_ARGS__)
#define KV_VIEW(member, ...) KV_FIELD(KvMvcViewSettings, member, __VA_ARGS__)

constexpr Field kViews[] = {KV_RECORD(num_views), KV_RECORD(split_views, kSwitch)};

constexpr Field ofKind(FieldKind kind, Field field)
{
    field.kind = kind;
    return field;
}

constexpr Field kStream[] = {KV_VIEW(video_type, kVideoTypes), KV_VIEW(profile, kProfiles),
                             ofKind(FieldKind::Level, KV_VIEW(level, kLevels))};

constexpr Field kPicture[] = {KV_VIEW(width),
                              KV_VIEW(height),
                              KV_VIEW(frame_rate),
                              KV_VIEW(interlace_mode, kInterlaceModes),
                              KV_VIEW(field_order, kFieldOrders),
                              KV_VIEW(pulldown, kPulldowns),
                              KV_VIEW(display_aspect_x, kDisplayAspect),
                              KV_VIEW(display_aspect_y, kDisplayAspect),
                              KV_VIEW(pixel_aspect_x, kPixelAspect),
                              KV_VIEW(pixel_aspect_y, kPixelAspect),
                              KV_VIEW(chroma_format, kChromaFormats),
                              KV_VIEW(bit_depth_luma),
                              KV_VIEW(bit_depth_chroma)};

constexpr Field kRate[] = {KV_VIEW(bitrate_mode, kBitrateModes),
                           KV_VIEW(bitrate),
                           KV_VIEW(max_bitrate),
                           KV_VIEW(bitrate_units, kBitrateUnits),
                           KV_VIEW(bitrate_buffer),
                           KV_VIEW(vbv_initial),
                           KV_VIEW(vbv_target),
                           KV_VIEW(hrd_mode, kSwitch),
                           KV_VIEW(frame_size_i),
                           KV_VIEW(frame_size_p),
                           KV_VIEW(frame_size_b),
                           KV_VIEW(frame_size_bref),
                           KV_VIEW(quant_i),
                           KV_VIEW(quant_p),
                           KV_VIEW(quant_b),
                           KV_VIEW(quant_min),
                           KV_VIEW(quant_max)};

constexpr Field kGop[] = {KV_VIEW(i_interval),
                          KV_VIEW(force_i),
                          KV_VIEW(fixed_i_position, kSwitch),
                          KV_VIEW(idr_marker),
                          KV_VIEW(scene_detection, kSwitch),
                          KV_VIEW(ref_distance),
                          KV_VIEW(adaptive_b, kSwitch),
                          KV_VIEW(reference_b, kSwitch),
                          KV_VIEW(pyramid_b, kSwitch)};

constexpr Field kMotion[] = {KV_VIEW(num_ref_frames),
                             KV_VIEW(motion_search),
                             KV_VIEW(min_partition, kPartitions),
                             KV_VIEW(subpixel_mode, kSubpixelModes),
                             KV_VIEW(weighted_p, kSwitch),
                             KV_VIEW(fast_reference, kSwitch),
                             KV_VIEW(fast_subblock, kSwitch)};

constexpr Field kDistortion[] = {KV_VIEW(fast_intra, kSwitch), KV_VIEW(fast_inter, kSwitch),
                                 KV_VIEW(simple_rd, kSwitch),  KV_VIEW(hadamard, kSwitch),
                                 KV_VIEW(brightness),          KV_VIEW(contrast),
                                 KV_VIEW(complexity)};

constexpr Field kCoding[] = {KV_VIEW(entropy_mode, kEntropyModes), KV_VIEW(deblocking, kSwitch),
                             KV_VIEW(num_slices), KV_VIEW(multi_slice, kSwitch),
                             KV_VIEW(num_threads)};

#undef KV_FIELD
#undef KV_RECORD
#undef KV_VIEW

constexpr FieldGroup kRecordGroups[] = {{"Views", kViews}};
constexpr FieldGroup kViewGroups[] = {{"Preset, profile and level", kStream},
                                      {"Picture", kPicture},
                                      {"Rate control", kRate},
                                      {"GOP structure", kGop},
                                      {"Motion estimation", kMotion},
                                      {"Rate distortion", kDistortion},
                                      {"Coding", kCoding}};

constexpr Section kSections[] = {
    {"record", 0, offsetof(KvMvcSettings, views), kRecordGroups},
    {"view 0", offsetof(KvMvcSettings, views), sizeof(KvMvcViewSettings), kViewGroups},
    {"view 1", offsetof(KvMvcSettings, views) + sizeof(KvMvcViewSettings),
     sizeof(KvMvcViewSettings), kViewGroups}};

} // namespace

std::span<const Section> settingsSections()
{
    return kSections;
}

} // namespace kv
