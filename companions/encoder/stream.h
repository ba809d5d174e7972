// What follows from a settings record: sizes in macroblocks, rates, buffers, aspect.
#pragma once

#include <kv_config_gui_mvc/settings_record.h>

#include <cstdint>

#include "level_limits.h"

namespace kv::encoder
{

/// Views of a record that count: 1 to KV_MVC_MAX_VIEWS, whatever the field says.
int countViews(const KvMvcSettings& record);

/// Sub-records of a record that are in use: 1 or 2.
int countSubRecords(const KvMvcSettings& record);

/// Rows that a slice can begin at: macroblock rows of a field or frame, or rows of MBAFF pairs.
int sliceRows(const KvMvcViewSettings& view);

/// Whether the view's rate control aims at a bit rate (constant or variable bitrate).
bool aimsAtRate(const KvMvcViewSettings& view);

/// Whether buffer and fullness are in effect: HRD conformance with a bit rate.
bool keepsBuffer(const KvMvcViewSettings& view);

/// Bit rate that limits hold for, in bit/s; 0 when the quantizer rules. The maximum is the rate at
/// which the buffer is filled (C.1.1): without HRD conformance it has no effect, and the dialog
/// does not show it, so the target stands for it.
std::int64_t limitRate(const KvMvcViewSettings& view);

/// Buffer size in bits.
std::int64_t bufferBits(const KvMvcViewSettings& view);

/// Largest fullness of a full buffer in the view's own unit; -1 without buffer or rate.
int fullBuffer(const KvMvcViewSettings& view);

/// A fullness in the view's own unit as seconds of the limiting rate. Needs a rate above 0.
double fullnessSeconds(const KvMvcViewSettings& view, int fullness);

/// Sample aspect ratio without common factor; both parts 0 when it is unspecified.
struct SampleAspect {
    std::int64_t x;
    std::int64_t y;
};
SampleAspect sampleAspect(const KvMvcViewSettings& view);

/// A corrected record seen as a stream. The general settings are those of the base view. The record
/// holds two sub-records: of more than two views, the third and fourth count as the second does.
struct Stream {
    explicit Stream(const KvMvcSettings& settings);

    const KvMvcSettings& record;
    const KvMvcViewSettings& base;
    int viewsSet; ///< as the record has them
    int subRecords;
    const Profile* profile;   ///< of the base view; null when its code is not assigned
    const Profile* multiview; ///< of the stream; null with one view
    int views;                ///< of those set, the views that the multiview profile takes
    bool sized;               ///< the picture has a size: the four counts below are valid
    std::int64_t widthMbs;
    std::int64_t heightMbs;
    std::int64_t frameMbs;
    std::int64_t pictureMbs; ///< macroblocks of a coded picture: half a frame for field pictures
    bool interlaced;         ///< field pictures or MBAFF
    bool mayInterlace;       ///< the profiles allow that; others refuse it at every level
    double frameRate;        ///< coded frames per second; 0: not set
    double outputRate;       ///< frames per second at the shortest distance between output times
    bool predicts;           ///< there are other pictures than I pictures
    bool bFrames;            ///< there are B pictures
    bool looseB;             ///< some of them are no reference pictures
    bool disc;               ///< made for Blu-ray 3D

    /// The profile that limits rates and slices: the multiview profile, else the base view's.
    const Profile* streamProfile() const { return multiview ? multiview : profile; }
    /// Coded views that a sub-record stands for.
    int viewsLike(int subRecord) const { return subRecord == 0 ? 1 : views - 1; }
    /// Whether the rate control of each view aims at a bit rate.
    bool knowsRates() const;
    /// Sums over all views.
    std::int64_t totalRate() const;
    std::int64_t totalBuffer() const;
    int totalReferences() const;
    /// The largest number of a view.
    int mostReferences() const;
};

/// Macroblocks per second of all views at the shortest distance between output times, and how many
/// of them a level allows (A.3.1 a, b, A.3.2 a, b; H.10.2.1 a, b).
double macroblockRate(const Stream& stream);
std::int64_t macroblockRateLimit(const Stream& stream, const Level& level);

/// Rates, or buffers, that a level limits: the base view's by itself, and those of all views.
struct Sum {
    std::int64_t base;
    std::int64_t all;
};
Sum ratesOf(const Stream& stream);
Sum buffersOf(const Stream& stream);

/// The limits, in the same unit.
struct SumLimits {
    Sum nal; ///< of all data (A.3.1 j, A.3.3 h, H.10.2.1 r)
    Sum vcl; ///< of picture data (A.3.1 i, A.3.3 g, H.10.2.1 q)
};
/// @param units Of a level: MaxBR or MaxCPB.
SumLimits limitsOf(const Stream& stream, std::int64_t units);

/// Frames that the decoded picture buffer holds at a level (A.3.1 h; H.10.2.1 f).
std::int64_t dpbFrames(const Stream& stream, const Level& level);

/// Those of them that are left for reference frames. A view component that is no reference picture
/// but predicts another view's is kept until that one is decoded (C.4.5.2): one frame at least,
/// also where the whole buffer is full of reference frames.
int referenceRoom(const Stream& stream, const Level& level);

/// Whether the reference frames of all views have room, and those of each view by itself
/// (H.10.2.1 x).
bool storesReferences(const Stream& stream, const Level& level);

} // namespace kv::encoder
