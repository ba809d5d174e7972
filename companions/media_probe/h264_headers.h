// Sequence parameter sets of an H.264 stream, and those of further views. Clauses are those of
// Rec. ITU-T H.264.
#pragma once

#include "h264_units.h"

#include <optional>

namespace kv
{

/// How slices tell the order of pictures (8.2.1).
struct PictureOrder {
    uint32_t type = 0;
    int bits = 4;               ///< of pic_order_cnt_lsb; type 0
    bool alwaysZero = false;    ///< no differences in slices; type 1, as all that follows
    int32_t nonReference = 0;   ///< offset of pictures that nothing refers to
    int32_t topToBottom = 0;    ///< offset of a frame's second field
    std::vector<int32_t> cycle; ///< offsets from reference frame to reference frame
};

/// Video usability information (E.1.1), as far as settings know it.
struct Usability {
    uint32_t aspectX = 0; ///< 0: not signalled
    uint32_t aspectY = 0;
    uint32_t unitsInTick = 0; ///< of the clock of timeScale ticks a second; 0: not signalled
    uint32_t timeScale = 0;
    uint64_t bitRate = 0; ///< of the buffer model; 0: none
    uint64_t bufferSize = 0;
    bool constantRate = false;
    int delayBits = 0;             ///< of both delays of a picture timing message
    bool pictureStructure = false; ///< picture timing messages hold pic_struct
};

/// Sequence parameter set data (7.3.2.1.1), as far as settings know it.
struct SequenceParameters {
    uint32_t id = 0;
    uint32_t profile = 0;
    uint32_t constraintFlags = 0;
    uint32_t level = 0;
    uint32_t chromaFormat = 1;
    bool separatePlanes = false;
    uint32_t bitDepthLuma = 8;
    uint32_t bitDepthChroma = 8;
    int frameNumBits = 4;
    PictureOrder order;
    uint32_t refFrames = 0;
    uint32_t width = 0;  // cropped
    uint32_t height = 0; // cropped
    bool framesOnly = true;
    bool mbaff = false;
    Usability usability;
    uint32_t views = 1; // of a subset parameter set
};

/// Whether subset parameter sets of the profile tell the number of views (Annex H).
bool isMultiviewProfile(uint32_t profile);

/// Parses the payload of a sequence parameter set or of a subset one, emulation prevention removed.
/// @return None for a damaged or impossible set.
std::optional<SequenceParameters> parseSequenceParameters(Bytes payload, bool subset);

} // namespace kv
