// GOP structure.

#include "tables.h"

namespace kv::texts
{

// clang-format off
static const Text texts[] = {
    {"I-frames cannot be at least %d and at most %d apart: lower the min. distance.",
     "I-Bilder können nicht mindestens %d und höchstens %d Bilder Abstand haben: min. Abstand senken.",
     "I フレームの間隔を %d 以上かつ %d 以下にはできません。最小間隔を小さくしてください。"},
    {"%d B-frames do not fit between I-frames %d apart: use fewer, or a longer interval.",
     "%d B-Bilder passen nicht zwischen I-Bilder im Abstand %d: weniger oder einen größeren Abstand wählen.",
     "B フレーム %d 枚は間隔 %d の I フレームの間に入りません。枚数を減らすか、間隔を広げてください。"},
    {"A pyramid needs B-frames as reference frames: switch that on, or the pyramid off.",
     "Eine Pyramide braucht B-Bilder als Referenzbilder: diese ein- oder die Pyramide ausschalten.",
     "ピラミッド構造には B フレームの参照使用が必要です。それをオンにするか、ピラミッドをオフにしてください。"},
    {"P-frames need at least 1 reference frame.",
     "P-Bilder brauchen mindestens 1 Referenzbild.",
     "P フレームには参照フレームが 1 枚以上必要です。"},
    {"B-frames need at least 2 reference frames, not %d.",
     "B-Bilder brauchen mindestens 2 Referenzbilder, nicht %d.",
     "B フレームには参照フレームが 2 枚以上必要で、%d 枚では足りません。"},
    {"B-frames as reference frames need at least 3 reference frames, not %d.",
     "B-Bilder als Referenzbilder brauchen mindestens 3 Referenzbilder, nicht %d.",
     "B フレームの参照使用には参照フレームが 3 枚以上必要で、%d 枚では足りません。"},
    {"A pyramid of fewer than 2 B-frames has no effect.",
     "Eine Pyramide aus weniger als 2 B-Bildern wirkt nicht.",
     "B フレームが 2 枚未満では、ピラミッド構造は影響しません。"},
    {"An I-frame interval of %d is no multiple of %d: its last group has fewer B-frames.",
     "Ein I-Bild-Abstand von %d ist kein Vielfaches von %d: Die letzte Gruppe hat weniger B-Bilder.",
     "I フレーム間隔 %d は %d の倍数ではないため、最後のグループの B フレームが少なくなります。"},
    {"Every picture is an I-frame: B-frames and motion search rest.",
     "Jedes Bild ist ein I-Bild: B-Bilder und Bewegungssuche ruhen.",
     "すべてのピクチャが I フレームのため、B フレームと動き探索は使われません。"},
    {"The options of B-frames have no effect: there are none.",
     "Die Optionen der B-Bilder wirken nicht: Es gibt keine.",
     "B フレームがないため、その設定は影響しません。"},
};
// clang-format on

Table gopTable()
{
    return texts;
}

} // namespace kv::texts
