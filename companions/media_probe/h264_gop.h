// What the frames of a stream's beginning tell about how it is coded.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>

namespace kv
{

enum class FrameKind { I, P, B };
constexpr int frameKinds = 3;

/// A frame, or the two fields of one, in the order of decoding.
struct CodedFrame {
    FrameKind kind = FrameKind::I;
    bool isIdr = false;
    bool isReference = false;
    int slices = 0;               ///< of the picture, or of the first field
    std::optional<int> quantizer; ///< of the first slice
    int structure = -1;           ///< pic_struct; -1: not told
    uint32_t sequence = 0;        ///< how many IDR pictures came up to it
    int64_t order = 0;            ///< picture order count, within the sequence
};

/// What the frames of a beginning tell about how a view is coded. 0 or less where nothing is told
/// is as each member says.
struct CodingFacts {
    int frames = 0;         ///< that the rest was seen in
    int entropyMode = -1;   ///< entropy_coding_mode_flag; -1: differs, or not known
    int weightedP = -1;     ///< weighted_pred_flag of P pictures; -1: there are none
    int deblocking = -1;    ///< 0: off in every slice; -1: not known
    int slices = 0;         ///< of a picture, the most frequent number
    int iDistance = 0;      ///< longest between I pictures, in frames; 0: there is one at most
    int idrDistance = -1;   ///< every how many I pictures one is an IDR picture; 0: only the first;
                            ///< -1: there is one I picture at most
    int bFrames = -1;       ///< most B pictures in a row; -1: nothing but I pictures
    bool adaptiveB = false; ///< other numbers occur, too
    bool referenceB = false; ///< B pictures are references
    bool pyramidB = false;   ///< ... and are decoded before B pictures that are shown earlier
    std::array<std::optional<int>, frameKinds> quantizers; ///< average of each kind
};

/// The shortest row of frames whose repetition shows fields more than once (Table D-1).
struct Cadence {
    int fields = 0; ///< shown of `frames` frames; 0: none is repeated
    int frames = 1;
    int firstFields = 0; ///< of the first frame
};

/// @param frames  In the order of decoding.
/// @param isWhole The stream ended by itself; otherwise the last frames may lack others that are
///                shown before them.
/// @return All but what slices alone tell.
CodingFacts factsOfFrames(std::span<const CodedFrame> frames, bool isWhole);

/// How long frames are shown, by their pic_struct.
Cadence cadenceOf(std::span<const CodedFrame> frames, bool isWhole);

} // namespace kv
