// Blu-ray 3D.

#include "tables.h"

namespace kv::texts
{

// clang-format off
static const Text texts[] = {
    {"Blu-ray 3D has two views: set one additional view.",
     "Blu-ray 3D hat zwei Ansichten: eine weitere Ansicht einstellen.",
     "Blu-ray 3D のビューは 2 つです。追加ビューを 1 つにしてください。"},
    {"The base view of Blu-ray 3D is High, not %s: choose High.",
     "Die Basisansicht von Blu-ray 3D ist High, nicht %s: High wählen.",
     "Blu-ray 3D のベースビューは High で、%s ではありません。High を選んでください。"},
    {"Blu-ray 3D is labelled level 4.1, not %s.",
     "Blu-ray 3D wird als Level 4.1 bezeichnet, nicht %s.",
     "Blu-ray 3D のレベル表示は 4.1 で、%s ではありません。"},
    {"Blu-ray 3D is 4:2:0: choose it.",
     "Blu-ray 3D ist 4:2:0: dieses wählen.",
     "Blu-ray 3D は 4:2:0 です。4:2:0 を選んでください。"},
    {"Blu-ray has no %d x %d pictures at %g frames/s in this picture structure.",
     "Blu-ray hat keine Bilder mit %d x %d bei %g Bildern/s in dieser Bildstruktur.",
     "Blu-ray に、このピクチャ構造で %d x %d、%g フレーム/秒の映像はありません。"},
    {"Blu-ray does not have this pixel aspect ratio at this picture size.",
     "Blu-ray hat dieses Pixelseitenverhältnis bei dieser Bildgröße nicht.",
     "Blu-ray に、この画面サイズでこのピクセル縦横比はありません。"},
    {"Blu-ray has an I-frame at least every %d frames at this rate.",
     "Blu-ray hat bei dieser Bildrate mindestens alle %d Bilder ein I-Bild.",
     "Blu-ray では、このレートで少なくとも %d フレームごとに I フレームが必要です。"},
    {"Blu-ray at level 4.1 has at least 4 slices per picture, not %d.",
     "Blu-ray mit Level 4.1 hat mindestens 4 Slices je Bild, nicht %d.",
     "レベル 4.1 の Blu-ray のスライスはピクチャあたり 4 以上で、%d ではありません。"},
    {"Blu-ray has at most %d reference frames a view at this size, not %d.",
     "Blu-ray hat bei dieser Größe höchstens %d Referenzbilder je Ansicht, nicht %d.",
     "Blu-ray の参照フレームは、このサイズでビューあたり最大 %d 枚で、%d 枚ではありません。"},
    {"Blu-ray requires HRD conformance of the base view: switch it on.",
     "Blu-ray verlangt HRD-Konformität der Basisansicht: einschalten.",
     "Blu-ray ではベースビューの HRD 準拠が必要です。オンにしてください。"},
    {"Blu-ray has a buffer of at most %d bits in the base view.",
     "Blu-ray hat in der Basisansicht einen Puffer von höchstens %d bit.",
     "Blu-ray のベースビューのバッファは最大 %d ビットです。"},
    {"View %d: Blu-ray needs a bitrate mode with a rate: choose Variable Bitrate.",
     "Ansicht %d: Blu-ray braucht einen Bitratenmodus mit Rate: „Variable Bitrate“ wählen.",
     "ビュー %d: Blu-ray にはレートのあるレート制御が必要です。可変ビットレートを選んでください。"},
    {"View %d: Blu-ray 3D has at most %d bit/s in a view: lower the max bitrate.",
     "Ansicht %d: Blu-ray 3D hat höchstens %d bit/s je Ansicht: max. Bitrate senken.",
     "ビュー %d: Blu-ray 3D は 1 ビューあたり最大 %d bit/s です。最大ビットレートを下げてください。"},
    {"Blu-ray 3D has at most %d bit/s in both views: lower a rate.",
     "Blu-ray 3D hat höchstens %d bit/s in beiden Ansichten: eine Rate senken.",
     "Blu-ray 3D は両ビューの合計で最大 %d bit/s です。レートを下げてください。"},
    {"Blu-ray takes one reference B-frame between others at most.",
     "Blu-ray erlaubt höchstens ein Referenz-B-Bild zwischen anderen.",
     "Blu-ray で間に置ける参照 B フレームは 1 枚までです。"},
    {"Blu-ray 3D is known to play 1920 x 1080 at 23.976 frames/s progressive; this may fail.",
     "Blu-ray 3D spielt sicher 1920 x 1080 mit 23,976 Bildern/s progressiv; dies kann scheitern.",
     "Blu-ray 3D で確実に再生できるのは 1920 x 1080、23.976 フレーム/秒のプログレッシブです。再生できないおそれがあります。"},
    {"Blu-ray 3D players expect HRD conformance of view 1 too.",
     "Blu-ray-3D-Spieler erwarten HRD-Konformität auch von Ansicht 1.",
     "Blu-ray 3D プレーヤーはビュー 1 にも HRD 準拠を求めます。"},
    {"A buffer above %d bits in view 1 may fail in players.",
     "Ein Puffer über %d bit in Ansicht 1 kann in Spielern scheitern.",
     "ビュー 1 のバッファが %d ビットを超えると、再生できないプレーヤーがあります。"},
    {"Blu-ray 3D shows its frame rate as it is and needs no pulldown.",
     "Blu-ray 3D zeigt seine Bildrate, wie sie ist, und braucht keinen Pulldown.",
     "Blu-ray 3D はそのままのフレームレートで表示するため、プルダウンは不要です。"},
    {"More than 3 reference frames a view leave Blu-ray 3D players no spare frame.",
     "Mehr als 3 Referenzbilder je Ansicht lassen Blu-ray-3D-Spielern kein freies Bild.",
     "参照フレームがビューあたり 3 枚を超えると、Blu-ray 3D プレーヤーに空きフレームがなくなります。"},
    {"Weighted prediction is known to fail in some Blu-ray players.",
     "Gewichtete Prädiktion scheitert bekanntlich in manchen Blu-ray-Spielern.",
     "重み付き予測は、一部の Blu-ray プレーヤーで正しく再生されません。"},
};
// clang-format on

Table discTable()
{
    return texts;
}

} // namespace kv::texts
