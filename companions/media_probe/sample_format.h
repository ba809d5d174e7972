// Chroma format and bit depths of a stream, as decoder, codec or container tell them.
#pragma once

#include <kv_config_gui_mvc/media_info.h>

extern "C" {
#include <libavcodec/avcodec.h>
}

namespace kv
{

/// Fills chroma_format and both bit depths, with "not known" where nobody tells.
void describeSamples(KvMediaInfo& info, const AVCodecParameters& codec);

} // namespace kv
