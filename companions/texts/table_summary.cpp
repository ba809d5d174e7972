// What the settings come to.

#include "tables.h"

namespace kv::texts
{

// clang-format off
static const Text texts[] = {
    {"One view, profile %s (profile_idc %d).",
     "Eine Ansicht, Profil %s (profile_idc %d).",
     "1 ビュー、プロファイル %s (profile_idc %d)。"},
    {"%d views, profile %s (profile_idc %d); the base view has profile %s.",
     "%d Ansichten, Profil %s (profile_idc %d); die Basisansicht hat das Profil %s.",
     "%d ビュー、プロファイル %s (profile_idc %d)。ベースビューのプロファイルは %s です。"},
    {"Bitrate: %d.%0*d of the %d.%0*d Mbit/s that level %s allows.",
     "Bitrate: %d,%0*d der %d,%0*d Mbit/s, die Level %s erlaubt.",
     "ビットレート: %d.%0*d Mbit/s、上限 %d.%0*d Mbit/s (レベル %s)。"},
    {"Reference frames: %d of the %d frames of this size that level %s can store.",
     "Referenzbilder: %d der %d Bilder dieser Größe, die Level %s speichern kann.",
     "参照フレーム: %d 枚、このサイズで保持できるのは %d 枚 (レベル %s)。"},
};
// clang-format on

Table summaryTable()
{
    return texts;
}

} // namespace kv::texts
