// The limits of H.264 (08/2021) for levels and profiles, as tables.
#pragma once

#include <cstdint>
#include <span>

namespace kv::encoder
{

/// A row of Table A-1, with the columns of Table A-4 that a setting can break.
struct Level {
    int code;              ///< KvMvcViewSettings::level; 0: only the automatic level can give it
    std::int64_t mbRate;   ///< MaxMBPS, macroblocks per second
    std::int64_t frameMbs; ///< MaxFS, macroblocks
    std::int64_t dpbMbs;   ///< MaxDpbMbs, macroblocks
    std::int64_t bitrate;  ///< MaxBR, in units of the profile's factor, per second
    std::int64_t buffer;   ///< MaxCPB, in units of the profile's factor
    int verticalVector;    ///< MaxVmvR, luma frame samples
    int minCompression;    ///< MinCR
    int sliceRate;         ///< SliceRate; 0: no limit
    bool framesOnly;       ///< frame_mbs_only_flag is 1
    const char* name = ""; ///< as lists of levels spell it
};

/// Every level from 1 to 5.2, in the order in which the automatic level tries them.
std::span<const Level> levels();

/// @return The row of a level code, or null for reserved codes and the automatic level.
const Level* findLevel(int code);

/// Level that a Blu-ray 3D stream carries, also when a lower one would do.
inline constexpr int discLevelCode = 41;
/// Largest buffer of its base view, in bits.
inline constexpr int discBuffer = 30'000'000;
/// Most bits per second of both views together.
inline constexpr int discRate = 60'000'000;

/// Most macroblocks in a row or column: the square root of 8 MaxFS (A.3.1 f, g, A.3.2 d, e).
int maxSideMbs(const Level& level);

/// What a profile may use (A.2) and its factors (Tables A-2, A.3.1, H.10.2.1).
struct Profile {
    int code; ///< KvMvcViewSettings::profile; -1 for a multiview profile, which the preset chooses
    int idc;
    int vclFactor; ///< cpbBrVclFactor
    int nalFactor; ///< cpbBrNalFactor
    bool bFrames;
    bool interlace;
    bool cabac;
    bool weighted;
    bool monochrome;
    bool chroma422;
    int maxDepth;
    bool limitsPictureBytes; ///< MinCR applies (A.3.3 i, j)
    bool limitsSliceCount;   ///< SliceRate applies (A.3.3 a, b)
    bool limitsSliceSize;    ///< no slice beyond MaxFS / 4 (A.3.3 k, H.10.2.1 w)
    bool baseOfViews;        ///< may be the base view's profile of a multiview stream (H.10.1)
    const char* name = "";   ///< as the list of profiles spells it
};

/// @return The row of a profile code, or null when it is not assigned.
const Profile* findProfile(int code);

const Profile& multiviewHigh();
const Profile& stereoHigh();

/// Most frames per second at any level below 6: fR is 1/172, half of it for a field (A.3).
inline constexpr int maxFrameRate = 172;

/// Slice size is limited in pictures of more macroblocks than this (H.10.2.1 w).
inline constexpr int freeSliceMbs = 1620;

} // namespace kv::encoder
