// What the limits are called whose use is told (KvMvcLimitUse::name). The library of texts has
// translations.
#pragma once

namespace kv::encoder::limit
{

inline constexpr char pictureSize[] = "Picture size";
inline constexpr char pictureWidth[] = "Picture width";
inline constexpr char pictureHeight[] = "Picture height";
inline constexpr char macroblockRate[] = "Macroblock rate";
inline constexpr char decodedPictures[] = "Decoded pictures";
inline constexpr char bitrate[] = "Bitrate";
inline constexpr char bitrateOfPictures[] = "Bitrate of pictures";
inline constexpr char buffer[] = "Buffer";
inline constexpr char bufferOfPictures[] = "Buffer of pictures";
inline constexpr char bitrateOnDisc[] = "Bitrate on a disc";
inline constexpr char bufferOnDisc[] = "Buffer on a disc";

// What whoever prints them says of one that is about a view by itself.
inline constexpr char ofBaseView[] = "base view";
inline constexpr char ofOtherView[] = "view 1";

inline constexpr const char* names[] = {
    pictureSize,  pictureWidth,      pictureHeight, macroblockRate,   decodedPictures,
    bitrate,      bitrateOfPictures, buffer,        bufferOfPictures, bitrateOnDisc,
    bufferOnDisc, ofBaseView,        ofOtherView,
};

} // namespace kv::encoder::limit
