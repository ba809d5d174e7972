// Picture parameter sets, the beginning of slices, and picture timing messages of an H.264 stream.
#pragma once

#include "h264_headers.h"

namespace kv
{

/// Picture parameter set (7.3.2.2), as far as slices and settings need it.
struct PictureParameters {
    uint32_t id = 0;
    uint32_t sequence = 0; ///< seq_parameter_set_id
    bool cabac = false;
    bool orderInFrames = false; ///< bottom_field_pic_order_in_frame_present_flag
    uint32_t references[2] = {1, 1};
    bool weightedP = false;
    uint32_t weightedB = 0; ///< weighted_bipred_idc
    int32_t quantizer = 26; ///< that slices differ from
    bool deblockingControl = false;
    bool redundantPictures = false;
};

/// slice_type modulo 5 (Table 7-6).
enum class SliceKind { P, B, I, SwitchingP, SwitchingI };

/// Slice header (7.3.3) and the header of the unit that it is in (7.3.1).
struct SliceHeader {
    bool isReference = false; ///< nal_ref_idc is not 0
    bool isIdr = false;       ///< IdrPicFlag
    SliceKind kind = SliceKind::I;
    uint32_t pictureParameters = 0;
    uint32_t frameNumber = 0;
    bool field = false;
    bool bottomField = false;
    uint32_t idrPicture = 0;
    uint32_t orderBits = 0;           ///< pic_order_cnt_lsb
    int32_t orderDeltas[2] = {};      ///< of a frame's fields; in order type 0 the second alone
    bool resetsOrder = false;         ///< memory_management_control_operation 5
    std::optional<int32_t> quantizer; ///< SliceQPY; none where the header cannot be read to there
    std::optional<bool> deblocking;   ///< none where the header cannot be read to there
};

/// @return None for a damaged or impossible set, and for one with slice groups.
std::optional<PictureParameters> parsePictureParameters(Bytes payload);

/// The identifier of a slice's picture parameter set; both headers' forms agree up to there.
/// @param payload Behind the unit's header, emulation prevention removed.
std::optional<uint32_t> pictureParametersOfSlice(Bytes payload);

/// Parses a slice of the base view or of another one.
/// @param head The unit's first byte and, of a further view, the three bytes behind it.
/// @param payload What follows, emulation prevention removed.
/// @return None for a header that ends before the order of pictures.
std::optional<SliceHeader> parseSlice(Bytes head, Bytes payload, const SequenceParameters& sequence,
                                      const PictureParameters& picture);

/// pic_struct (D.1.3) of the picture timing message in a supplemental enhancement information unit.
/// @param payload Emulation prevention removed.
/// @return None where there is none: 0 to 8 otherwise (Table D-1).
std::optional<int> parsePictureStructure(Bytes payload, const Usability& usability);

} // namespace kv
