// GOP structure.

#include "text_rows.h"

namespace kv::texts
{

// clang-format off
static const Text texts[] = {
    {"The min. I-frame distance %d exceeds the I-frame interval %d: lower the distance.",
     "Der min. I-Bild-Abstand %d ist größer als der I-Bild-Abstand %d: den min. Abstand senken.",
     "I フレーム最小間隔 %d が I フレーム間隔 %d を超えています。最小間隔を小さくしてください。"},
    {"%d B-frames do not fit into an I-frame interval of %d: use fewer, or a longer interval.",
     "%d B-Bilder passen nicht in einen I-Bild-Abstand von %d: weniger B-Bilder oder einen größeren Abstand wählen.",
     "B フレーム %d 枚は I フレーム間隔 %d に収まりません。枚数を減らすか、間隔を広げてください。"},
    {"The pyramidal structure needs B-frames as reference frames: switch them on, or the structure off.",
     "Die Pyramidenstruktur braucht B-Bilder als Referenzbilder: diese ein- oder die Struktur ausschalten.",
     "ピラミッド構造には「B フレームを参照に使用」が必要です。それをオンにするか、ピラミッド構造をオフにしてください。"},
    KV_ALL_VIEWS("P-frames need at least 1 reference frame (now 0).",
                 "P-Bilder brauchen mindestens 1 Referenzbild (jetzt 0).",
                 "P フレームには参照フレームが 1 枚以上必要です (現在 0 枚)。"),
    KV_ALL_VIEWS("B-frames need at least 2 reference frames (now %d).",
                 "B-Bilder brauchen mindestens 2 Referenzbilder (jetzt %d).",
                 "B フレームには参照フレームが 2 枚以上必要です (現在 %d 枚)。"),
    KV_ALL_VIEWS("B-frames as reference frames need at least 3 reference frames (now %d).",
                 "B-Bilder als Referenzbilder brauchen mindestens 3 Referenzbilder (jetzt %d).",
                 "B フレームを参照に使用するには、参照フレームが 3 枚以上必要です (現在 %d 枚)。"),
    {"The pyramidal structure has no effect on fewer than 2 B-frames.",
     "Die Pyramidenstruktur hat bei weniger als 2 B-Bildern keine Wirkung.",
     "B フレームが 2 枚未満では、ピラミッド構造は影響しません。"},
    {"The I-frame interval %d is no multiple of %d (B-frames + 1), so its last group is shorter.",
     "Der I-Bild-Abstand %d ist kein Vielfaches von %d (B-Bilder + 1), daher ist seine letzte Gruppe kürzer.",
     "I フレーム間隔 %d は %d (B フレーム数 + 1) の倍数ではないため、最後のグループが短くなります。"},
    {"Every picture is an I-frame: B-frames and motion search are not used.",
     "Jedes Bild ist ein I-Bild: B-Bilder und Bewegungssuche werden nicht benutzt.",
     "すべてのピクチャが I フレームのため、B フレームと動き探索は使われません。"},
    {"The B-frame settings have no effect: there are no B-frames.",
     "Die Einstellungen für B-Bilder haben keine Wirkung: Es gibt keine B-Bilder.",
     "B フレームがないため、B フレームの設定は影響しません。"},
};
// clang-format on

Table gopTable()
{
    return texts;
}

} // namespace kv::texts
