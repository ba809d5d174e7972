/**
 * @file settings_record.h
 * The settings record that hosts, the settings dialog and the companion
 * libraries exchange.
 *
 * The record crosses library boundaries: its size and every offset are fixed
 * (64-bit builds, little-endian). It is plain data, owned by whoever allocated
 * it, and may be copied with memcpy. Reserved ranges belong to the encoder
 * library; everybody else carries them through unchanged.
 *
 * A view sub-record is 8,316 bytes, no multiple of 8, so `frame_rate` lies on
 * a 4-byte boundary in the second one. The structs are packed to 4 bytes for
 * that reason: read and write `frame_rate` by value and never take its address.
 *
 * Units and ranges are those of the reference encoder library; another encoder
 * library may narrow them, and its check has the last word.
 */
#ifndef KV_CONFIG_GUI_MVC_SETTINGS_RECORD_H
#define KV_CONFIG_GUI_MVC_SETTINGS_RECORD_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Counts of views. */
enum {
    KV_MVC_RECORD_VIEWS = 2, /**< view sub-records that a settings record holds */
    KV_MVC_MAX_VIEWS = 4     /**< views that the dialog describes; see KvMvcSettings::num_views */
};

/** KvMvcViewSettings::profile: profile of the base view (H.264 A.2); 2 is not assigned. */
enum KvMvcProfile {
    KV_MVC_PROFILE_BASELINE = 0, /**< profile_idc 66 */
    KV_MVC_PROFILE_MAIN = 1,     /**< profile_idc 77 */
    KV_MVC_PROFILE_HIGH = 3,     /**< profile_idc 100 */
    KV_MVC_PROFILE_HIGH_10 = 4,  /**< profile_idc 110 */
    KV_MVC_PROFILE_HIGH_422 = 5  /**< profile_idc 122 */
};

/** KvMvcViewSettings::level: ten times the level number (H.264 A.3), or automatic; none for 1b. */
enum KvMvcLevel { KV_MVC_LEVEL_AUTO = 100 };

/** KvMvcViewSettings::interlace_mode. */
enum KvMvcInterlaceMode {
    KV_MVC_PROGRESSIVE = 0, /**< frame_mbs_only_flag 1 */
    KV_MVC_INTERLACED = 1,  /**< field pictures */
    KV_MVC_MBAFF = 2        /**< frames of field or frame macroblock pairs */
};

/** KvMvcViewSettings::field_order. */
enum KvMvcFieldOrder { KV_MVC_TOP_FIELD_FIRST = 0, KV_MVC_BOTTOM_FIELD_FIRST = 1 };

/** KvMvcViewSettings::bitrate_mode. */
enum KvMvcBitrateMode {
    KV_MVC_CONSTANT_BITRATE = 0,
    KV_MVC_CONSTANT_QUANTIZER = 1,
    KV_MVC_VARIABLE_BITRATE = 2,
    KV_MVC_AVERAGE_QUANTIZER = 3
};

/** KvMvcViewSettings::bitrate_units: units of the buffer size and of the two buffer fullness
 * fields. */
enum KvMvcBitrateUnits {
    KV_MVC_UNITS_BYTES_PERCENT = 0, /**< buffer in bytes, fullness in percent of the buffer */
    KV_MVC_UNITS_BITS = 1,          /**< buffer and fullness in bits */
    KV_MVC_UNITS_BITS_90KHZ = 2     /**< buffer in bits, fullness in ticks of a 90 kHz clock */
};

/** KvMvcViewSettings::min_partition. */
enum KvMvcMinPartition { KV_MVC_PARTITION_16X16 = 0, KV_MVC_PARTITION_8X8 = 1 };

/** KvMvcViewSettings::subpixel_mode. */
enum KvMvcSubpixelMode {
    KV_MVC_SUBPIXEL_FULL = 0,
    KV_MVC_SUBPIXEL_HALF = 1,
    KV_MVC_SUBPIXEL_QUARTER = 2
};

/** KvMvcViewSettings::entropy_mode (entropy_coding_mode_flag, H.264 7.4.2.2). */
enum KvMvcEntropyMode { KV_MVC_CAVLC = 0, KV_MVC_CABAC = 1 };

/** KvMvcViewSettings::video_type: the preset that a record was made from. */
enum KvMvcVideoType {
    KV_MVC_VIDEO_TYPE_NONE = 0,
    KV_MVC_MULTIVIEW_HIGH = 1, /**< MVC stream profile Multiview High, profile_idc 118 */
    KV_MVC_STEREO_HIGH = 2,    /**< MVC stream profile Stereo High, profile_idc 128 */
    KV_MVC_BLURAY_3D = 3       /**< Stereo High within the limits of Blu-ray 3D */
};

/** KvMvcViewSettings::pulldown; 3 is not assigned. */
enum KvMvcPulldown {
    KV_MVC_PULLDOWN_OFF = 0,
    KV_MVC_PULLDOWN_2_3 = 1,
    KV_MVC_PULLDOWN_3_2 = 2,
    KV_MVC_PULLDOWN_2_3_PROGRESSIVE = 4,
    KV_MVC_PULLDOWN_3_2_PROGRESSIVE = 5,
    KV_MVC_PULLDOWN_AUTO = 6,
    KV_MVC_PULLDOWN_2_2 = 7,
    KV_MVC_PULLDOWN_3_3 = 8
};

/** KvMvcViewSettings::chroma_format; 4 is a fourth format without a name. */
enum KvMvcChromaFormat {
    KV_MVC_CHROMA_400 = 1,
    KV_MVC_CHROMA_420 = 2,
    KV_MVC_CHROMA_422 = 3,
    KV_MVC_CHROMA_UNNAMED = 4
};

/** Aspect ratio fields: "custom" in the display pair, "derived from the display pair" in the pixel
 * pair. */
enum { KV_MVC_ASPECT_UNSET = -1 };

#pragma pack(push, 4)

/** Settings of one view: 8,316 bytes. Switches are 0 or 1. */
typedef struct KvMvcViewSettings {
    int32_t profile;      /**< KvMvcProfile */
    int32_t level;        /**< KvMvcLevel, or ten times the level number: 10 to 52 */
    int32_t i_interval;   /**< distance between I pictures in frames, 0 to 300; 0: only the first */
    int32_t ref_distance; /**< distance of I and P pictures, 1 to 4: B pictures in a row plus one */
    uint8_t reserved_16[4];
    int32_t interlace_mode; /**< KvMvcInterlaceMode */
    int32_t width;          /**< picture width in luma samples, at least 16 */
    int32_t height;         /**< picture height in luma samples, at least 16 */
    double frame_rate;      /**< frames per second; 0: not set. By value only: may be misaligned */
    int32_t num_ref_frames; /**< reference frames per view, 0 to 16 */
    int32_t motion_search;  /**< motion vector search range in luma samples, 0 to 99 */
    uint8_t reserved_48[12];
    int32_t quant_i;        /**< quantizer of I pictures: 0 to 51, from -12 at 10 bits per sample */
    int32_t quant_p;        /**< quantizer of P pictures: 0 to 51, from -12 at 10 bits per sample */
    int32_t quant_b;        /**< quantizer of B pictures: 0 to 51, from -12 at 10 bits per sample */
    int32_t bitrate_mode;   /**< KvMvcBitrateMode */
    int32_t bitrate_buffer; /**< coded picture buffer, in the unit of bitrate_units */
    int32_t bitrate;        /**< target bit rate in bit/s, 0 or more */
    int32_t max_bitrate;    /**< rate at which the buffer is filled at most, in bit/s (C.1.1) */
    int32_t min_partition;  /**< KvMvcMinPartition: smallest partition searched */
    int32_t entropy_mode;   /**< KvMvcEntropyMode */
    int32_t hadamard;       /**< switch: Hadamard transform in the cost measure */
    int32_t pixel_aspect_x; /**< sample aspect ratio, horizontal part, or KV_MVC_ASPECT_UNSET */
    int32_t pixel_aspect_y; /**< sample aspect ratio, vertical part, or KV_MVC_ASPECT_UNSET */
    uint8_t reserved_108[16];
    int32_t vbv_initial;   /**< buffer fullness at the start, in the unit of bitrate_units */
    int32_t vbv_target;    /**< buffer fullness aimed at, in the unit of bitrate_units */
    int32_t bitrate_units; /**< KvMvcBitrateUnits */
    uint8_t reserved_136[24];
    int32_t frame_size_i;    /**< largest I picture in bytes; 0: no limit */
    int32_t frame_size_p;    /**< largest P picture in bytes; 0: no limit */
    int32_t frame_size_b;    /**< largest B picture in bytes; 0: no limit */
    int32_t frame_size_bref; /**< largest reference B picture in bytes; 0: no limit */
    int32_t hrd_mode;        /**< switch: HRD conformance (H.264 Annex C) */
    uint8_t reserved_180[76];
    int32_t deblocking; /**< switch: deblocking filter */
    uint8_t reserved_260[1544];
    int32_t video_type; /**< KvMvcVideoType */
    int32_t pulldown;   /**< KvMvcPulldown */
    uint8_t reserved_1812[432];
    int32_t bit_depth_luma;   /**< 8 or 10 */
    int32_t bit_depth_chroma; /**< 8 or 10 */
    int32_t chroma_format;    /**< KvMvcChromaFormat */
    uint8_t reserved_2256[580];
    int32_t scene_detection; /**< switch: I pictures at scene changes */
    uint8_t reserved_2840[4];
    int32_t multi_slice; /**< 1 when num_slices is 2 or more, else 0 */
    int32_t num_slices;  /**< slices per picture, 1 to the macroblock rows */
    int32_t reference_b; /**< switch: B pictures may be references */
    int32_t pyramid_b;   /**< switch: pyramid of B pictures */
    uint8_t reserved_2860[8];
    int32_t subpixel_mode; /**< KvMvcSubpixelMode */
    int32_t weighted_p;    /**< switch: weighted prediction of P pictures */
    uint8_t reserved_2876[4];
    int32_t fast_intra;       /**< switch: fast intra decisions */
    int32_t fast_inter;       /**< switch: fast inter decisions */
    int32_t display_aspect_x; /**< display aspect ratio, horizontal part, or KV_MVC_ASPECT_UNSET */
    int32_t display_aspect_y; /**< display aspect ratio, vertical part, or KV_MVC_ASPECT_UNSET */
    uint8_t reserved_2896[8];
    int32_t num_threads; /**< worker threads, 1 to 16; 0: the encoder's choice */
    uint8_t reserved_2908[8];
    int32_t quant_min; /**< smallest quantizer: 0 to 51, from -12 at 10 bits per sample */
    int32_t quant_max; /**< largest quantizer: 0 to 51, from -12 at 10 bits per sample */
    uint8_t reserved_2924[1176];
    int32_t force_i;     /**< smallest distance between I pictures in frames, 0 to 999 */
    int32_t adaptive_b;  /**< switch: adaptive placement of B pictures */
    int32_t idr_marker;  /**< every how many I pictures one is an IDR picture, 0 to 99; 0: only the
                            first */
    int32_t field_order; /**< KvMvcFieldOrder */
    int32_t fixed_i_position; /**< switch: I pictures keep their distance after a scene change */
    uint8_t reserved_4120[196];
    int32_t fast_reference; /**< switch: fast search over several reference frames */
    int32_t fast_subblock;  /**< switch: fast search of sub-blocks */
    uint8_t reserved_4324[792];
    int32_t simple_rd; /**< switch: simplified rate-distortion optimization */
    uint8_t reserved_5120[372];
    int32_t brightness; /**< adaptive quantization by brightness, -100 to 100; 0: not used */
    int32_t contrast;   /**< adaptive quantization by contrast, -100 to 100; 0: not used */
    int32_t complexity; /**< adaptive quantization by complexity, -100 to 100; 0: not used */
    uint8_t reserved_5504[2812];
} KvMvcViewSettings;

/** The settings record: 16,888 bytes. */
typedef struct KvMvcSettings {
    /**
     * Number of coded views, 1 or more. The record has room for the first two;
     * the encoder takes the third and fourth to be like the second.
     */
    int32_t num_views;
    int32_t split_views; /**< switch: the views go to separate streams */
    uint8_t reserved_8[248];
    KvMvcViewSettings views[KV_MVC_RECORD_VIEWS]; /**< base view, second view */
} KvMvcSettings;

#pragma pack(pop)

#ifdef __cplusplus
} /* extern "C" */
#define KV_MVC_STATIC_ASSERT(condition, text) static_assert(condition, text)
#else
#define KV_MVC_STATIC_ASSERT(condition, text) _Static_assert(condition, text)
#endif

#define KV_MVC_VIEW_FIELD_AT(field, offset)                                                        \
    KV_MVC_STATIC_ASSERT(offsetof(KvMvcViewSettings, field) == (offset), #field)

KV_MVC_VIEW_FIELD_AT(profile, 0);
KV_MVC_VIEW_FIELD_AT(level, 4);
KV_MVC_VIEW_FIELD_AT(i_interval, 8);
KV_MVC_VIEW_FIELD_AT(ref_distance, 12);
KV_MVC_VIEW_FIELD_AT(interlace_mode, 20);
KV_MVC_VIEW_FIELD_AT(width, 24);
KV_MVC_VIEW_FIELD_AT(height, 28);
KV_MVC_VIEW_FIELD_AT(frame_rate, 32);
KV_MVC_VIEW_FIELD_AT(num_ref_frames, 40);
KV_MVC_VIEW_FIELD_AT(motion_search, 44);
KV_MVC_VIEW_FIELD_AT(quant_i, 60);
KV_MVC_VIEW_FIELD_AT(quant_p, 64);
KV_MVC_VIEW_FIELD_AT(quant_b, 68);
KV_MVC_VIEW_FIELD_AT(bitrate_mode, 72);
KV_MVC_VIEW_FIELD_AT(bitrate_buffer, 76);
KV_MVC_VIEW_FIELD_AT(bitrate, 80);
KV_MVC_VIEW_FIELD_AT(max_bitrate, 84);
KV_MVC_VIEW_FIELD_AT(min_partition, 88);
KV_MVC_VIEW_FIELD_AT(entropy_mode, 92);
KV_MVC_VIEW_FIELD_AT(hadamard, 96);
KV_MVC_VIEW_FIELD_AT(pixel_aspect_x, 100);
KV_MVC_VIEW_FIELD_AT(pixel_aspect_y, 104);
KV_MVC_VIEW_FIELD_AT(vbv_initial, 124);
KV_MVC_VIEW_FIELD_AT(vbv_target, 128);
KV_MVC_VIEW_FIELD_AT(bitrate_units, 132);
KV_MVC_VIEW_FIELD_AT(frame_size_i, 160);
KV_MVC_VIEW_FIELD_AT(frame_size_p, 164);
KV_MVC_VIEW_FIELD_AT(frame_size_b, 168);
KV_MVC_VIEW_FIELD_AT(frame_size_bref, 172);
KV_MVC_VIEW_FIELD_AT(hrd_mode, 176);
KV_MVC_VIEW_FIELD_AT(deblocking, 256);
KV_MVC_VIEW_FIELD_AT(video_type, 1804);
KV_MVC_VIEW_FIELD_AT(pulldown, 1808);
KV_MVC_VIEW_FIELD_AT(bit_depth_luma, 2244);
KV_MVC_VIEW_FIELD_AT(bit_depth_chroma, 2248);
KV_MVC_VIEW_FIELD_AT(chroma_format, 2252);
KV_MVC_VIEW_FIELD_AT(scene_detection, 2836);
KV_MVC_VIEW_FIELD_AT(multi_slice, 2844);
KV_MVC_VIEW_FIELD_AT(num_slices, 2848);
KV_MVC_VIEW_FIELD_AT(reference_b, 2852);
KV_MVC_VIEW_FIELD_AT(pyramid_b, 2856);
KV_MVC_VIEW_FIELD_AT(subpixel_mode, 2868);
KV_MVC_VIEW_FIELD_AT(weighted_p, 2872);
KV_MVC_VIEW_FIELD_AT(fast_intra, 2880);
KV_MVC_VIEW_FIELD_AT(fast_inter, 2884);
KV_MVC_VIEW_FIELD_AT(display_aspect_x, 2888);
KV_MVC_VIEW_FIELD_AT(display_aspect_y, 2892);
KV_MVC_VIEW_FIELD_AT(num_threads, 2904);
KV_MVC_VIEW_FIELD_AT(quant_min, 2916);
KV_MVC_VIEW_FIELD_AT(quant_max, 2920);
KV_MVC_VIEW_FIELD_AT(force_i, 4100);
KV_MVC_VIEW_FIELD_AT(adaptive_b, 4104);
KV_MVC_VIEW_FIELD_AT(idr_marker, 4108);
KV_MVC_VIEW_FIELD_AT(field_order, 4112);
KV_MVC_VIEW_FIELD_AT(fixed_i_position, 4116);
KV_MVC_VIEW_FIELD_AT(fast_reference, 4316);
KV_MVC_VIEW_FIELD_AT(fast_subblock, 4320);
KV_MVC_VIEW_FIELD_AT(simple_rd, 5116);
KV_MVC_VIEW_FIELD_AT(brightness, 5492);
KV_MVC_VIEW_FIELD_AT(contrast, 5496);
KV_MVC_VIEW_FIELD_AT(complexity, 5500);
KV_MVC_STATIC_ASSERT(sizeof(KvMvcViewSettings) == 8316, "view sub-record");

KV_MVC_STATIC_ASSERT(offsetof(KvMvcSettings, num_views) == 0, "num_views");
KV_MVC_STATIC_ASSERT(offsetof(KvMvcSettings, split_views) == 4, "split_views");
KV_MVC_STATIC_ASSERT(offsetof(KvMvcSettings, views) == 256, "views");
KV_MVC_STATIC_ASSERT(sizeof(KvMvcSettings) == 16888, "settings record");

#undef KV_MVC_VIEW_FIELD_AT
#undef KV_MVC_STATIC_ASSERT

#endif
