/**
 * @file media_info.h
 * The stream information library: what a media file's video is like.
 *
 * The library is optional. companions.h has its names, KV_MVC_PROBE_LIBRARIES, and those of its two
 * functions, KV_MVC_PROBE_INIT and KV_MVC_PROBE_GET_INFO.
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

/** KvMediaInfo::chroma_format, beside chroma_format_idc: neither stream nor container tell. */
enum { KV_MEDIA_CHROMA_NOT_KNOWN = -2 };

/** KvMediaInfo::scan. */
enum KvMediaScan {
    KV_MEDIA_PROGRESSIVE = 0,
    KV_MEDIA_INTERLACED = 1, /**< interlaced, coded in fields or in frames */
    KV_MEDIA_MBAFF = 2       /**< H.264: interlaced, each macroblock pair in fields or a frame */
};

/** KvMediaInfo::field_order. */
enum KvMediaFieldOrder { KV_MEDIA_TOP_FIELD_FIRST = 0, KV_MEDIA_BOTTOM_FIELD_FIRST = 1 };

/** KvMediaInfo::pulldown: how long the frames of an H.264 stream are shown (pic_struct, D.2.3). */
enum KvMediaPulldown {
    KV_MEDIA_PULLDOWN_NONE = 0,       /**< each for its two fields, or not told */
    KV_MEDIA_PULLDOWN_2_3 = 1,        /**< two and three fields in turn */
    KV_MEDIA_PULLDOWN_3_2 = 2,        /**< three and two fields in turn */
    KV_MEDIA_PULLDOWN_2_3_FRAMES = 3, /**< two times and three times in turn */
    KV_MEDIA_PULLDOWN_3_2_FRAMES = 4, /**< three times and two times in turn */
    KV_MEDIA_PULLDOWN_2_2 = 5,        /**< each two times */
    KV_MEDIA_PULLDOWN_3_3 = 6,        /**< each for three fields, or three times */
    KV_MEDIA_PULLDOWN_OTHER = 7       /**< in another way */
};

/** KvMediaCoding::quantizer_i and so on: there are no such pictures. */
enum { KV_MEDIA_QUANTIZER_NOT_KNOWN = 100 };

/**
 * How a view of an H.264 stream is coded, as its first frames show. Never grows: what comes later
 * is added to KvMediaInfo.
 */
typedef struct KvMediaCoding {
    int32_t frames;       /**< coded frames that this was seen in; 0: nothing of it is known */
    int32_t entropy_mode; /**< entropy_coding_mode_flag (7.4.2.2); -1: not the same in all */
    int32_t weighted_p;   /**< weighted_pred_flag for P pictures; -1: differs, or there are none */
    int32_t deblocking;   /**< 0: switched off in every slice (7.4.3); 1: not so; -1: not known */
    int32_t slices;       /**< slices of a picture: their most frequent number */
    int32_t i_distance;   /**< longest distance of I pictures in frames; 0: there is one at most */
    int32_t idr_distance; /**< every how many I pictures one is an IDR picture; 0: only the first;
                               -1: there is one I picture at most */
    int32_t b_frames;     /**< most B pictures in a row; -1: there are nothing but I pictures */
    int32_t adaptive_b;   /**< 1: rows of B pictures are of several lengths */
    int32_t reference_b;  /**< 1: B pictures are references */
    int32_t pyramid_b;    /**< 1: and are decoded before B pictures that are shown earlier */
    int32_t quantizer_i;  /**< of I pictures, the average of slices (SliceQPY, 7.4.3): -36 to 51, or
                               KV_MEDIA_QUANTIZER_NOT_KNOWN */
    int32_t quantizer_p;  /**< of P pictures, likewise */
    int32_t quantizer_b;  /**< of B pictures, likewise */
} KvMediaCoding;

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
    int32_t chroma_format;    /**< chroma_format_idc: 0 4:0:0, 1 4:2:0, 2 4:2:2, 3 4:4:4; -1 none of
                                   them; KV_MEDIA_CHROMA_NOT_KNOWN */
    int32_t bit_depth_luma;   /**< bits of a luma sample; 0: not known */
    int32_t bit_depth_chroma; /**< bits of a chroma sample; that of luma for 4:0:0; 0: not known */
    int32_t profile_idc;      /**< H.264: of the base view (A.2); otherwise 0 */
    int32_t constraint_flags; /**< H.264: constraint_set0_flag in bit 7 and so on downwards */
    int32_t level_idc;        /**< H.264: of the base view (A.3); otherwise 0 */
    int32_t num_ref_frames;   /**< H.264: max_num_ref_frames of the base view; -1: not known */
    int32_t num_views; /**< coded views: what subset sets (H.7.3.2.1.4) and slices say, or 1 */
    int32_t mvc_profile_idc; /**< profile_idc of that subset parameter set; 0: none */
    int32_t mvc_level_idc;   /**< level_idc of that subset parameter set; 0: none */
    /**
     * Average of all views in bit/s: what container or header say, else that of the beginning,
     * which is the first 620 pictures or 32 MiB of video, whatever ends first; 0: not known,
     * or of a lossless codec. Where the frame rate is not known, 25 frames a second are taken for
     * it. A beginning may exceed the signalled rate by the buffer's fill.
     */
    int64_t bit_rate;
    int64_t dependent_bit_rate; /**< what the views other than the base view have of it */
    int64_t hrd_bit_rate;       /**< signalled maximum of the base view in bit/s; 0: none */
    int64_t hrd_buffer_size;    /**< signalled coded picture buffer in bits; 0: none */
    char reason[256];           /**< UTF-8: why there is no answer; empty for success */
    int32_t hrd_constant;       /**< H.264: cbr_flag of that signalled rate (E.2.2): 0 or 1 */
    int32_t separate_views;     /**< 1: further views are in a stream of their own, such as a PID */
    int32_t dependent_ref_frames; /**< max_num_ref_frames of a further view; 0: none or not known */
    int32_t pulldown;        /**< KvMediaPulldown; frame_rate_num counts coded frames in any case */
    KvMediaCoding coding[2]; /**< of the base view, and of the next view in decoding order */
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
 * @return KvMediaResult; anything but KV_MEDIA_OK comes with KvMediaInfo::reason, where the record
 *         has room for it.
 */
typedef int32_t (*KvMediaGetInfo)(KvMediaInfo* info, const char* path);

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif
