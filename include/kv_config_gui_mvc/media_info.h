/**
 * @file media_info.h
 * The stream information library: what a media file's video is like.
 *
 * The library is optional. Its file name is "kv_media_probe_x" or "kv_media_probe"; its two
 * functions are found by the names KV_MVC_PROBE_INIT and KV_MVC_PROBE_GET_INFO of companions.h.
 */
#ifndef KV_CONFIG_GUI_MVC_MEDIA_INFO_H
#define KV_CONFIG_GUI_MVC_MEDIA_INFO_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Results of both functions. */
enum KvMediaResult {
    KV_MEDIA_OK = 0,
    KV_MEDIA_BAD_ARGUMENT = 1, /**< a null pointer, or a record without a usable size */
    KV_MEDIA_UNREADABLE = 2,   /**< no such file, no regular file, no media format, damaged */
    KV_MEDIA_NO_VIDEO = 3,     /**< media, but without a video stream that can be described */
    KV_MEDIA_LIMIT = 4,        /**< given up: the file took too much time or memory */
    KV_MEDIA_UNAVAILABLE = 5   /**< the library cannot work on this system */
};

/** KvMediaInfo::codec. */
enum KvMediaCodec { KV_MEDIA_CODEC_OTHER = 0, KV_MEDIA_CODEC_H264 = 1 };

/** KvMediaInfo::scan. */
enum KvMediaScan {
    KV_MEDIA_PROGRESSIVE = 0,
    KV_MEDIA_INTERLACED = 1, /**< interlaced, coded in fields or in frames */
    KV_MEDIA_MBAFF = 2       /**< H.264: interlaced, each macroblock pair in fields or a frame */
};

/** KvMediaInfo::field_order. */
enum KvMediaFieldOrder { KV_MEDIA_TOP_FIELD_FIRST = 0, KV_MEDIA_BOTTOM_FIELD_FIRST = 1 };

/** The facts of a file's main video stream. Owned by the caller. */
typedef struct KvMediaInfo {
    uint32_t size;            /**< of this structure in bytes, as its user was compiled */
    int32_t codec;            /**< KvMediaCodec */
    char codec_name[32];      /**< such as "h264"; for messages */
    char container_name[32];  /**< such as "mpegts"; for messages */
    int32_t width;            /**< shown picture width in luma samples */
    int32_t height;           /**< shown picture height in luma samples */
    int32_t frame_rate_num;   /**< frames per second, numerator; 0: not known */
    int32_t frame_rate_den;   /**< frames per second, denominator */
    int32_t scan;             /**< KvMediaScan */
    int32_t field_order;      /**< KvMediaFieldOrder; top first when progressive */
    int32_t pixel_aspect_num; /**< sample aspect ratio, horizontal part; 0: not known */
    int32_t pixel_aspect_den; /**< sample aspect ratio, vertical part */
    int32_t chroma_format;    /**< chroma_format_idc: 0 4:0:0, 1 4:2:0, 2 4:2:2, 3 4:4:4, -1 else */
    int32_t bit_depth_luma;   /**< bits of a luma sample */
    int32_t bit_depth_chroma; /**< bits of a chroma sample; that of luma for 4:0:0 */
    int32_t profile_idc;      /**< H.264: of the base view (A.2); otherwise 0 */
    int32_t constraint_flags; /**< H.264: constraint_set0_flag in bit 7 and so on downwards */
    int32_t level_idc;        /**< H.264: of the base view (A.3); otherwise 0 */
    int32_t num_ref_frames;   /**< H.264: max_num_ref_frames of the base view; -1: not known */
    int32_t num_views; /**< coded views: 1, or what a subset parameter set says (H.7.3.2.1.4) */
    int32_t mvc_profile_idc; /**< profile_idc of that subset parameter set; 0: none */
    int32_t mvc_level_idc;   /**< level_idc of that subset parameter set; 0: none */
    /**
     * Average of all views in bit/s: what container or header say, else that of the beginning,
     * which is the first 250 pictures or 16 MiB of video, whatever ends first; 0: not known. A
     * beginning may exceed the signalled rate by the buffer's fill.
     */
    int64_t bit_rate;
    int64_t dependent_bit_rate; /**< what the views other than the base view have of it */
    int64_t hrd_bit_rate;       /**< signalled maximum of the base view in bit/s; 0: none */
    int64_t hrd_buffer_size;    /**< signalled coded picture buffer in bits; 0: none */
    char reason[256];           /**< UTF-8: why there is no answer; empty for success */
    int32_t hrd_constant;       /**< H.264: cbr_flag of that signalled rate (E.2.2): 0 or 1 */
} KvMediaInfo;

/**
 * Prepares a record for mpegInGetInfo(): clears `size` bytes and stores the size in the record.
 * @param info The record; owned by the caller.
 * @param size sizeof(KvMediaInfo) as the caller was compiled. A library of another version fills
 *             what both know.
 * @return KV_MEDIA_OK, or KV_MEDIA_BAD_ARGUMENT for null and for a size that has no room for the
 *         size itself.
 */
typedef int32_t (*KvMediaInfoInit)(KvMediaInfo* info, uint32_t size);

/**
 * Describes the main video stream of a media file.
 *
 * Reads no more than the file's beginning and what its container's index asks for, in a process of
 * its own that gets 4 seconds and 192 MiB: a hostile file costs that much and nothing else.
 * Pipes, devices and folders are refused without waiting. May be called from any thread.
 * @param info Prepared by mpegInInfoInit().
 * @param path Zero-terminated UTF-8. The index file of a DVD title stands for the title's first
 *             video file beside it.
 * @return KvMediaResult; anything but KV_MEDIA_OK comes with KvMediaInfo::reason.
 */
typedef int32_t (*KvMediaGetInfo)(KvMediaInfo* info, const char* path);

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif
