// What the settings come to.

#include "tables.h"

namespace kv::texts
{

// clang-format off
static const Text texts[] = {
    {"One view, profile %s (profile_idc %d).",
     "Eine Ansicht, Profil %s (profile_idc %d).",
     "1 ビュー、プロファイル %s (profile_idc %d)。"},
    {"%d views, profile %s (profile_idc %d); the base view is %s.",
     "%d Ansichten, Profil %s (profile_idc %d); die Basisansicht ist %s.",
     "%d ビュー、プロファイル %s (profile_idc %d)。ベースビューは %s です。"},
    {"Bit rate: at most %.0f of the %.0f bit/s of level %s.",
     "Bitrate: höchstens %.0f der %.0f bit/s von Level %s.",
     "ビットレート: 最大 %.0f、上限 %.0f bit/s (レベル %s)。"},
    {"Reference frames: %d of the %d that the decoded picture buffer holds at level %s.",
     "Referenzbilder: %d von %d, die der Puffer decodierter Bilder bei Level %s fasst.",
     "参照フレーム: %d 枚、復号ピクチャバッファの容量 %d 枚 (レベル %s)。"},
};
// clang-format on

Table summaryTable()
{
    return texts;
}

} // namespace kv::texts
