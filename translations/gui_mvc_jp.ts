<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>AVCVideoEncoderDlg</name>
    <message>
        <source>Korvane MVC Video Encoder Settings</source>
        <translation>Korvane MVC Video Encoder の設定</translation>
    </message>
    <message>
        <source>Basic Settings</source>
        <translation>基本設定</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>Views</source>
        <translation>ビュー</translation>
    </message>
    <message>
        <source>Load Config File...</source>
        <translation>設定ファイルの読み込み</translation>
    </message>
    <message>
        <source>Config Files (*.cfg *.ini);;MPEG Files (*.m2p *.m2t *.m2p*.m4p *.mp2 *.mp4 *.mpeg *.mpg *.mpv *.mxf *.trp *.ts *.vob *.ifo)</source>
        <translation>設定ファイル (*.cfg *.ini);;MPEG ファイル (*.m2p *.m2t *.m2p*.m4p *.mp2 *.mp4 *.mpeg *.mpg *.mpv *.mxf *.trp *.ts *.vob *.ifo)</translation>
    </message>
    <message>
        <source>Save Config File...</source>
        <translation>設定ファイルの保存</translation>
    </message>
    <message>
        <source>Config Files (*.cfg *.ini)</source>
        <translation>設定ファイル (*.cfg *.ini)</translation>
    </message>
    <message>
        <source>Korvane MVC Video Encoder</source>
        <translation>Korvane MVC Video Encoder</translation>
    </message>
    <message>
        <source>File already exists.
Do you want to overwrite it?</source>
        <translation>ファイルは既に存在します。
上書きしますか？</translation>
    </message>
    <message>
        <source>Multivew High</source>
        <translation>Multiview High</translation>
    </message>
    <message>
        <source>Stereo High</source>
        <translation>Stereo High</translation>
    </message>
    <message>
        <source>Blu-ray 3D</source>
        <translation>Blu-ray 3D</translation>
    </message>
    <message>
        <source>Baseline</source>
        <translation>Baseline</translation>
    </message>
    <message>
        <source>Main</source>
        <translation>Main</translation>
    </message>
    <message>
        <source>High</source>
        <translation>High</translation>
    </message>
    <message>
        <source>High 10</source>
        <translation>High 10</translation>
    </message>
    <message>
        <source>High 422</source>
        <translation>High 422</translation>
    </message>
    <message>
        <source>1.0</source>
        <translation>1.0</translation>
    </message>
    <message>
        <source>1.1</source>
        <translation>1.1</translation>
    </message>
    <message>
        <source>1.2</source>
        <translation>1.2</translation>
    </message>
    <message>
        <source>1.3</source>
        <translation>1.3</translation>
    </message>
    <message>
        <source>1.6</source>
        <translation>1.6</translation>
    </message>
    <message>
        <source>2.0</source>
        <translation>2.0</translation>
    </message>
    <message>
        <source>2.1</source>
        <translation>2.1</translation>
    </message>
    <message>
        <source>2.2</source>
        <translation>2.2</translation>
    </message>
    <message>
        <source>3.0</source>
        <translation>3.0</translation>
    </message>
    <message>
        <source>3.1</source>
        <translation>3.1</translation>
    </message>
    <message>
        <source>3.2</source>
        <translation>3.2</translation>
    </message>
    <message>
        <source>4.0</source>
        <translation>4.0</translation>
    </message>
    <message>
        <source>4.1</source>
        <translation>4.1</translation>
    </message>
    <message>
        <source>4.2</source>
        <translation>4.2</translation>
    </message>
    <message>
        <source>5.0</source>
        <translation>5.0</translation>
    </message>
    <message>
        <source>5.1</source>
        <translation>5.1</translation>
    </message>
    <message>
        <source>5.2</source>
        <translation>5.2</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>The encoder failed to check the settings.</source>
        <translation>エンコーダーは設定をチェックできませんでした。</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>元に戻す: %1</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>やり直し: %1</translation>
    </message>
    <message>
        <source>File %1</source>
        <translation>ファイル %1</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>プリセット %1</translation>
    </message>
    <message>
        <source>Copy all</source>
        <extracomment>In the context menu of the message log: all messages, whole.</extracomment>
        <translation>すべてコピー</translation>
    </message>
    <message>
        <source>Further messages: %1.</source>
        <extracomment>At the end of the message log, which is too long to be shown whole.</extracomment>
        <translation>表示していないメッセージ: %1 件。</translation>
    </message>
    <message>
        <source>Messages cut short: %1.</source>
        <extracomment>At the end of the message log: how many are too long to be shown whole.</extracomment>
        <translation>途中までのメッセージ: %1 件。</translation>
    </message>
    <message>
        <source>&quot;Copy all&quot; has them whole.</source>
        <extracomment>&quot;Copy all&quot; is an item of the log&apos;s context menu.</extracomment>
        <translation>「すべてコピー」で全文をコピーできます。</translation>
    </message>
    <message>
        <source>Copy settings as text</source>
        <extracomment>In the context menu of the message log: all settings, as lines of text.</extracomment>
        <translation>設定をテキストとしてコピー</translation>
    </message>
    <message>
        <source>Show changes</source>
        <extracomment>In the context menu of the message log: a list of the settings that differ from those that the dialog was opened with, or from the last preset or file.</extracomment>
        <translation>変更点を表示</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>設定を検索</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>該当する設定はありません。</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>変更した設定</translation>
    </message>
    <message>
        <source>No files yet</source>
        <extracomment>In the menu of the files that were loaded last, while there are none.</extracomment>
        <translation>ファイルはまだありません</translation>
    </message>
    <message>
        <source>Clear list</source>
        <extracomment>In the menu of the files that were loaded last.</extracomment>
        <translation>一覧を消去</translation>
    </message>
    <message>
        <source>Changed since: %1</source>
        <translation>%1 からの変更点</translation>
    </message>
    <message>
        <source>No setting has changed.</source>
        <translation>変更された設定はありません。</translation>
    </message>
    <message>
        <source>%1 in all views</source>
        <extracomment>A setting of the rate control that was changed in all views at once.</extracomment>
        <translation>%1 (すべてのビュー)</translation>
    </message>
    <message>
        <source>There are errors: the settings are refused.</source>
        <translation>エラーがあるため、設定は受け付けられません。</translation>
    </message>
    <message>
        <source>There are no errors any more.</source>
        <translation>エラーはなくなりました。</translation>
    </message>
</context>
<context>
    <name>AdvancedPage</name>
    <message>
        <source>GOP Structure</source>
        <translation>GOP 構造</translation>
    </message>
    <message>
        <source>Motion Estimation</source>
        <translation>動き推定</translation>
    </message>
    <message>
        <source>Rate Distortion</source>
        <translation>レート歪み</translation>
    </message>
    <message>
        <source>Miscellaneous</source>
        <translation>その他</translation>
    </message>
</context>
<context>
    <name>BasicPage</name>
    <message>
        <source>Video Format</source>
        <translation>映像フォーマット</translation>
    </message>
</context>
<context>
    <name>IAVCVideoEncoderDlg</name>
    <message>
        <source>Korvane AVC Video Encoder Dialog</source>
        <extracomment>Placeholder: the dialog sets its own title.</extracomment>
        <translation>Korvane AVC Video Encoder ダイアログ</translation>
    </message>
    <message>
        <source>Banner</source>
        <extracomment>For assistive technology: the picture at the top.</extracomment>
        <translation>バナー</translation>
    </message>
    <message>
        <source>Preset:</source>
        <extracomment>A named set of default settings.</extracomment>
        <translation>プリセット:</translation>
    </message>
    <message>
        <source>Type of stream; choosing one loads its default settings.</source>
        <translation>ストリームの種類。選択すると、その既定値が読み込まれます。</translation>
    </message>
    <message>
        <source>Click this button to load/restore the default settings for selected preset.</source>
        <translation>選択したプリセットの既定値を読み込みます。変更した設定も既定値に戻ります。</translation>
    </message>
    <message>
        <source>Restore preset</source>
        <translation>プリセットの既定値に戻す</translation>
    </message>
    <message>
        <source>Load settings</source>
        <translation>設定を読み込む</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>設定を保存</translation>
    </message>
    <message>
        <source>Info Window</source>
        <extracomment>Tool tip of the frame around the message log.</extracomment>
        <translation>メッセージ欄</translation>
    </message>
    <message>
        <source>Messages of the encoder&apos;s last check of the settings.</source>
        <translation>エンコーダーが最後に設定をチェックしたときのメッセージ。</translation>
    </message>
    <message>
        <source>Message log</source>
        <extracomment>For assistive technology.</extracomment>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Settings</source>
        <extracomment>For assistive technology: the row of tabs.</extracomment>
        <translation>設定</translation>
    </message>
    <message>
        <source>Basic Settings</source>
        <extracomment>Placeholder: the dialog makes tabs of its own.</extracomment>
        <translation>基本設定</translation>
    </message>
    <message>
        <source>Advanced Video Settings</source>
        <extracomment>Placeholder: the dialog makes tabs of its own.</extracomment>
        <translation>映像の詳細設定</translation>
    </message>
    <message>
        <source>Miscellaneous</source>
        <extracomment>Placeholder: the dialog makes tabs of its own.</extracomment>
        <translation>その他</translation>
    </message>
    <message>
        <source>Close without applying the changes.</source>
        <translation>変更を適用せずに閉じます。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Check the settings, apply them and close.</source>
        <translation>設定をチェックし、適用して閉じます。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Load settings from a file (Alt+L).</source>
        <translation>設定をファイルから読み込みます (Alt+L)。</translation>
    </message>
    <message>
        <source>Save settings to a file (Alt+S).</source>
        <translation>設定をファイルに保存します (Alt+S)。</translation>
    </message>
</context>
<context>
    <name>IAdvancedPage</name>
    <message>
        <source>Advanced Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>詳細設定ページ</translation>
    </message>
    <message>
        <source>Profile and level</source>
        <extracomment>For assistive technology: the group of both lists.</extracomment>
        <translation>プロファイルとレベル</translation>
    </message>
    <message>
        <source>Profile:</source>
        <extracomment>Profile of H.264; its names, as High, stay as they are.</extracomment>
        <translation>プロファイル:</translation>
    </message>
    <message>
        <source>Profile of the base view; it decides which coding tools may be used.</source>
        <translation>ベースビューのプロファイル。使用できる符号化ツールが決まります。</translation>
    </message>
    <message>
        <source>Level:</source>
        <extracomment>Level of H.264, as 4.1.</extracomment>
        <translation>レベル:</translation>
    </message>
    <message>
        <source>Level, which limits picture size, rate and buffers; &quot;Auto&quot; takes the lowest that fits.</source>
        <translation>ピクチャサイズ、レート、バッファを制限するレベル。「自動」は条件を満たす最小のレベルを使います。</translation>
    </message>
</context>
<context>
    <name>IBasicPage</name>
    <message>
        <source>Basic Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>基本設定ページ</translation>
    </message>
    <message>
        <source>CUDA Devices:</source>
        <extracomment>Hidden; CUDA is a name.</extracomment>
        <translation>CUDA デバイス:</translation>
    </message>
</context>
<context>
    <name>IGOPStructurePage</name>
    <message>
        <source>GOP Structure Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>GOP 構造ページ</translation>
    </message>
    <message>
        <source>Enable scene detection</source>
        <extracomment>Check box. Scenes change at cuts.</extracomment>
        <translation>シーン検出を使用</translation>
    </message>
    <message>
        <source>Places an I-frame at each scene change that is found.</source>
        <translation>検出したシーンチェンジごとに I フレームを置きます。</translation>
    </message>
    <message>
        <source>I-frame settings</source>
        <translation>I フレームの設定</translation>
    </message>
    <message>
        <source>I-frame interval</source>
        <translation>I フレーム間隔</translation>
    </message>
    <message>
        <source>Distance between I-frames in frames; with 0 only the first frame is one.</source>
        <translation>I フレームの間隔 (フレーム数)。0 では最初のフレームだけが I フレームになります。</translation>
    </message>
    <message>
        <source>Min. I-frame distance</source>
        <extracomment>Min. is the minimum.</extracomment>
        <translation>I フレーム最小間隔</translation>
    </message>
    <message>
        <source>Smallest distance in frames that scene detection keeps between I-frames.</source>
        <translation>シーン検出で I フレームの間に空ける最小のフレーム数。</translation>
    </message>
    <message>
        <source>Mark every</source>
        <extracomment>One row with a number from 0 to 99 and &quot;I-frame as IDR.&quot;; the parts may be worded anew.</extracomment>
        <translation>I フレーム</translation>
    </message>
    <message>
        <source>Mark every so many I-frames as IDR</source>
        <extracomment>For assistive technology: the number between &quot;Mark every&quot; and &quot;I-frame as IDR.&quot;.</extracomment>
        <translation>IDR にする I フレームの間隔</translation>
    </message>
    <message>
        <source>Every how many I-frames one is an IDR picture; 0 marks only the first.</source>
        <translation>I フレーム何枚ごとに 1 枚を IDR ピクチャにするか。0 では最初の 1 枚だけを IDR にします。</translation>
    </message>
    <message>
        <source>I-frame as IDR.</source>
        <extracomment>One row with &quot;Mark every&quot; and a number from 0 to 99; the parts may be worded anew.</extracomment>
        <translation>枚ごとに IDR</translation>
    </message>
    <message>
        <source>Fixed I-frames distance</source>
        <extracomment>Check box: the distance stays the same after scene changes.</extracomment>
        <translation>I フレーム間隔を固定</translation>
    </message>
    <message>
        <source>Keeps I-frames at their interval after a scene change.</source>
        <translation>シーンチェンジの後も I フレームの間隔を保ちます。</translation>
    </message>
    <message>
        <source>B-frame settings</source>
        <translation>B フレームの設定</translation>
    </message>
    <message>
        <source>Adaptive B-frame placement</source>
        <translation>B フレームの適応配置</translation>
    </message>
    <message>
        <source>Lets the encoder use fewer B-frames where motion makes them costly.</source>
        <translation>動きのために効率が落ちる箇所で B フレームを減らします。</translation>
    </message>
    <message>
        <source>Pyramidal structure for B-frames</source>
        <translation>B フレームのピラミッド構造</translation>
    </message>
    <message>
        <source>Orders B-frames in a hierarchy in which inner ones refer to outer ones.</source>
        <translation>B フレームを、内側が外側を参照する階層構造にします。</translation>
    </message>
    <message>
        <source>Number of B-frames</source>
        <translation>B フレーム数</translation>
    </message>
    <message>
        <source>Number of consecutive B-frames between I- or P-frames.</source>
        <translation>I フレームまたは P フレームの間に連続する B フレームの数。</translation>
    </message>
    <message>
        <source>B-frames as reference frames</source>
        <translation>B フレームを参照に使用</translation>
    </message>
    <message>
        <source>Allows B-frames to be references of other frames.</source>
        <translation>B フレームをほかのフレームの参照に使えるようにします。</translation>
    </message>
</context>
<context>
    <name>IMiscPage</name>
    <message>
        <source>Miscallaneous Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>その他ページ</translation>
    </message>
    <message>
        <source>Deblocking filter</source>
        <translation>デブロッキングフィルター</translation>
    </message>
    <message>
        <source>Smooths block edges inside the coding loop, so that references are smoothed, too.</source>
        <translation>符号化ループ内でブロック境界を平滑化します。参照フレームにも適用されます。</translation>
    </message>
    <message>
        <source>Entropy coding mode</source>
        <translation>エントロピー符号化</translation>
    </message>
    <message>
        <source>Entropy coder of the stream; CABAC needs fewer bits than CAVLC, and more time.</source>
        <translation>エントロピー符号化方式。CABAC は CAVLC よりビット数が少ない反面、時間がかかります。</translation>
    </message>
    <message>
        <source>Threads</source>
        <extracomment>Number of threads of execution.</extracomment>
        <translation>スレッド数</translation>
    </message>
    <message>
        <source>Number of threads that the encoder works with; &quot;Auto&quot; leaves it to the encoder.</source>
        <translation>エンコーダーが使うスレッドの数。「自動」ではエンコーダーが決めます。</translation>
    </message>
    <message>
        <source>Auto</source>
        <extracomment>Shown for the number 0: the encoder chooses.</extracomment>
        <translation>自動</translation>
    </message>
    <message>
        <source>Slices per picture</source>
        <extracomment>Slices of H.264: parts of a picture that are coded separately.</extracomment>
        <translation>ピクチャのスライス数</translation>
    </message>
    <message>
        <source>Number of slices that each picture is divided into.</source>
        <translation>各ピクチャを分割するスライスの数。</translation>
    </message>
</context>
<context>
    <name>IMotionEstimationPage</name>
    <message>
        <source>Motion Estimation Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>動き推定ページ</translation>
    </message>
    <message>
        <source>Macroblock search block size</source>
        <extracomment>The smallest block that is searched for: 16 x 16 or 8 x 8.</extracomment>
        <translation>探索ブロックサイズ</translation>
    </message>
    <message>
        <source>Smallest macroblock partition that the motion search tries.</source>
        <translation>動き探索で試す最小のマクロブロック分割。</translation>
    </message>
    <message>
        <source>Subpixel search depth</source>
        <extracomment>How finely motion is searched: full, half or quarter samples.</extracomment>
        <translation>サブピクセル精度</translation>
    </message>
    <message>
        <source>Precision to which motion vectors are refined.</source>
        <translation>動きベクトルを求める精度。</translation>
    </message>
    <message>
        <source>Reference frames</source>
        <translation>参照フレーム数</translation>
    </message>
    <message>
        <source>Number of reference frames per view.</source>
        <translation>ビューごとの参照フレームの数。</translation>
    </message>
    <message>
        <source>Motion vector search range</source>
        <translation>動き探索範囲</translation>
    </message>
    <message>
        <source>Distance in luma samples up to which motion is searched.</source>
        <translation>動きを探索する距離 (輝度サンプル単位)。</translation>
    </message>
    <message>
        <source>Weighted prediction for P-frames</source>
        <translation>P フレームの重み付き予測</translation>
    </message>
    <message>
        <source>Weights the references of P-frames, which helps with fades.</source>
        <translation>P フレームの参照に重みを付けます。フェードの場面に効果があります。</translation>
    </message>
    <message>
        <source>Fast multi-reference frame search</source>
        <translation>複数参照フレームの高速探索</translation>
    </message>
    <message>
        <source>Searches further reference frames only where the first one predicts badly.</source>
        <translation>最初の参照フレームの予測が悪い箇所だけ、ほかの参照フレームを探索します。</translation>
    </message>
    <message>
        <source>Fast sub-block search</source>
        <translation>サブブロックの高速探索</translation>
    </message>
    <message>
        <source>Searches small partitions only where large ones predict badly.</source>
        <translation>大きな分割の予測が悪い箇所だけ、小さな分割を探索します。</translation>
    </message>
</context>
<context>
    <name>IRateDistortionPage</name>
    <message>
        <source>Rate Distortion Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>レート歪みページ</translation>
    </message>
    <message>
        <source>Fast intra decisions</source>
        <translation>イントラ判定の高速化</translation>
    </message>
    <message>
        <source>Tries only the likely intra prediction modes.</source>
        <translation>可能性の高いイントラ予測モードだけを試します。</translation>
    </message>
    <message>
        <source>Fast inter decisions</source>
        <translation>インター判定の高速化</translation>
    </message>
    <message>
        <source>Tries only the likely inter prediction modes.</source>
        <translation>可能性の高いインター予測モードだけを試します。</translation>
    </message>
    <message>
        <source>Simplified RD optimization</source>
        <extracomment>RD is rate distortion.</extracomment>
        <translation>RD 最適化の簡略化</translation>
    </message>
    <message>
        <source>Estimates rate and distortion instead of coding each candidate.</source>
        <translation>候補ごとに符号化する代わりに、レートと歪みを見積もります。</translation>
    </message>
    <message>
        <source> Hadamard transformation</source>
        <extracomment>Check box. Keep the blank at the start.</extracomment>
        <translation> アダマール変換</translation>
    </message>
    <message>
        <source>Measures distortion by the Hadamard transform of the difference.</source>
        <translation>差分のアダマール変換で歪みを測ります。</translation>
    </message>
    <message>
        <source>Adaptive quantization</source>
        <translation>適応量子化</translation>
    </message>
    <message>
        <source>Brightness based</source>
        <extracomment>Adaptive quantization by the brightness of the picture&apos;s parts.</extracomment>
        <translation>明るさに基づく</translation>
    </message>
    <message>
        <source>Strength of adaptive quantization by brightness; 0 switches it off.</source>
        <translation>明るさに基づく適応量子化の強さ。0 で無効になります。</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <extracomment>Placeholder: replaced by the slider&apos;s value.</extracomment>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Contrast based</source>
        <extracomment>Adaptive quantization by the contrast of the picture&apos;s parts.</extracomment>
        <translation>コントラストに基づく</translation>
    </message>
    <message>
        <source>Strength of adaptive quantization by contrast; 0 switches it off.</source>
        <translation>コントラストに基づく適応量子化の強さ。0 で無効になります。</translation>
    </message>
    <message>
        <source>Complexity based</source>
        <extracomment>Adaptive quantization by the complexity of the picture&apos;s parts.</extracomment>
        <translation>複雑さに基づく</translation>
    </message>
    <message>
        <source>Strength of adaptive quantization by complexity; 0 switches it off.</source>
        <translation>複雑さに基づく適応量子化の強さ。0 で無効になります。</translation>
    </message>
</context>
<context>
    <name>IVideoFormatPage</name>
    <message>
        <source>Video Format Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>映像フォーマットページ</translation>
    </message>
    <message>
        <source>Resolution</source>
        <extracomment>Picture size, as 1920 x 1080.</extracomment>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Picture width</source>
        <extracomment>For assistive technology.</extracomment>
        <translation>ピクチャの幅</translation>
    </message>
    <message>
        <source>Width of the coded picture in luma samples.</source>
        <translation>符号化するピクチャの幅 (輝度サンプル単位)。</translation>
    </message>
    <message>
        <source>x</source>
        <extracomment>Stands between two numbers, as in 1920 x 1080.</extracomment>
        <translation>x</translation>
    </message>
    <message>
        <source>Picture height</source>
        <extracomment>For assistive technology.</extracomment>
        <translation>ピクチャの高さ</translation>
    </message>
    <message>
        <source>Height of the coded picture in luma samples.</source>
        <translation>符号化するピクチャの高さ (輝度サンプル単位)。</translation>
    </message>
    <message>
        <source>Keep aspect ratio</source>
        <extracomment>Check box: width follows height and the other way round. The list beside it holds the ratio.</extracomment>
        <translation>アスペクト比を維持</translation>
    </message>
    <message>
        <source>Keeps width and height in the chosen display aspect ratio while one of them is changed.</source>
        <translation>幅と高さの一方を変えても、選んだ表示アスペクト比を保ちます。</translation>
    </message>
    <message>
        <source>Picture aspect ratio</source>
        <extracomment>For assistive technology: the list beside &quot;Keep aspect ratio&quot;.</extracomment>
        <translation>ピクチャアスペクト比</translation>
    </message>
    <message>
        <source>Display aspect ratio; &quot;Custom&quot; leaves it to the pixel aspect ratio.</source>
        <translation>表示アスペクト比。「カスタム」ではピクセルアスペクト比から決まります。</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>フレームレート</translation>
    </message>
    <message>
        <source>Frame rate of each view in frames per second.</source>
        <translation>各ビューのフレームレート (フレーム/秒)。</translation>
    </message>
    <message>
        <source>Pixel aspect ratio</source>
        <translation>ピクセルアスペクト比</translation>
    </message>
    <message>
        <source>Pixel aspect ratio, horizontal part</source>
        <extracomment>For assistive technology: the first number of the ratio.</extracomment>
        <translation>ピクセルアスペクト比 (横)</translation>
    </message>
    <message>
        <source>Pixel aspect ratio, vertical part</source>
        <extracomment>For assistive technology: the second number of the ratio.</extracomment>
        <translation>ピクセルアスペクト比 (縦)</translation>
    </message>
    <message>
        <source>Picture structure</source>
        <extracomment>Progressive, interlaced or MBAFF.</extracomment>
        <translation>ピクチャ構造</translation>
    </message>
    <message>
        <source>Field order</source>
        <extracomment>Fields are the halves of an interlaced frame.</extracomment>
        <translation>フィールドオーダー</translation>
    </message>
    <message>
        <source>Which field of an interlaced frame comes first in time.</source>
        <translation>インターレースフレームで時間的に先になるフィールド。</translation>
    </message>
    <message>
        <source>Pulldown</source>
        <extracomment>Repetition of fields or frames, as in 2:3 pulldown.</extracomment>
        <translation>プルダウン</translation>
    </message>
    <message>
        <source>Repetition of fields or frames at display, signalled in the stream.</source>
        <translation>表示時にフィールドまたはフレームを繰り返す方法。ストリームに記録されます。</translation>
    </message>
    <message>
        <source>Chroma format</source>
        <translation>色差フォーマット</translation>
    </message>
    <message>
        <source>Sampling of the chroma planes relative to luma.</source>
        <translation>輝度に対する色差のサンプリング。</translation>
    </message>
    <message>
        <source>Bit-depth luma</source>
        <translation>輝度ビット深度</translation>
    </message>
    <message>
        <source>Bits per luma sample.</source>
        <translation>輝度サンプルあたりのビット数。</translation>
    </message>
    <message>
        <source>Bit-depth chroma</source>
        <translation>色差ビット深度</translation>
    </message>
    <message>
        <source>Bits per chroma sample.</source>
        <translation>色差サンプルあたりのビット数。</translation>
    </message>
    <message>
        <source>Horizontal part of the pixel aspect ratio; -1 derives it from the display aspect ratio.</source>
        <translation>ピクセルアスペクト比の横の値。-1 では表示アスペクト比から求めます。</translation>
    </message>
    <message>
        <source>Vertical part of the pixel aspect ratio; -1 derives it from the display aspect ratio.</source>
        <translation>ピクセルアスペクト比の縦の値。-1 では表示アスペクト比から求めます。</translation>
    </message>
    <message>
        <source>Codes pictures as frames, as fields, or as frames with field macroblock pairs (MBAFF).</source>
        <translation>フレーム、フィールド、またはフィールドのマクロブロック対を含むフレーム (MBAFF) で符号化します。</translation>
    </message>
</context>
<context>
    <name>IView0Page</name>
    <message>
        <source>View1 Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>ビュー 1 ページ</translation>
    </message>
    <message>
        <source>Bitrate mode</source>
        <translation>レート制御</translation>
    </message>
    <message>
        <source>How bits are spread: at a constant or variable rate, or at constant quality.</source>
        <translation>ビットの配分方法: 固定レート、可変レート、または固定品質。</translation>
    </message>
    <message>
        <source>Target bitrate (bps)</source>
        <extracomment>The bitrate aimed at; bps are bits per second.</extracomment>
        <translation>目標ビットレート (bps)</translation>
    </message>
    <message>
        <source>Max bitrate (bps)</source>
        <extracomment>Max is the maximum; bps are bits per second.</extracomment>
        <translation>最大ビットレート (bps)</translation>
    </message>
    <message>
        <source>Buffers</source>
        <translation>バッファ</translation>
    </message>
    <message>
        <source>Units</source>
        <extracomment>Units of measurement.</extracomment>
        <translation>単位</translation>
    </message>
    <message>
        <source>Bitrate buffer (bytes), VBV buffers (%)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>ビットレートバッファ (バイト)、VBV (%)</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits), VBV buffers (bits)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>ビットレートバッファ (ビット)、VBV (ビット)</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits), VBV buffers (90  kHz clock)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>ビットレートバッファ (ビット)、VBV (90 kHz)</translation>
    </message>
    <message>
        <source>Bitrate buffer</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>ビットレートバッファ</translation>
    </message>
    <message>
        <source>VBV buffer initial</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>VBV 初期占有量</translation>
    </message>
    <message>
        <source>VBV buffer target</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>VBV 目標占有量</translation>
    </message>
    <message>
        <source>Force bitrate buffer length to 1 second</source>
        <extracomment>Check box: the buffer&apos;s size follows from the target bitrate.</extracomment>
        <translation>ビットレートバッファの長さを 1 秒に固定</translation>
    </message>
    <message>
        <source>HRD conformance</source>
        <extracomment>HRD is the hypothetical reference decoder of H.264.</extracomment>
        <translation>HRD 準拠</translation>
    </message>
    <message>
        <source>Keeps the stream within the buffer model of the hypothetical reference decoder (HRD).</source>
        <translation>ストリームを仮想参照デコーダー (HRD) のバッファモデルに収めます。</translation>
    </message>
    <message>
        <source>Maximum I-frame size</source>
        <translation>I フレーム最大サイズ</translation>
    </message>
    <message>
        <source>Largest coded I-frame in bytes; 0 sets no limit.</source>
        <translation>符号化した I フレームの最大バイト数。0 では制限しません。</translation>
    </message>
    <message>
        <source>Maximum P-frame size</source>
        <translation>P フレーム最大サイズ</translation>
    </message>
    <message>
        <source>Largest coded P-frame in bytes; 0 sets no limit.</source>
        <translation>符号化した P フレームの最大バイト数。0 では制限しません。</translation>
    </message>
    <message>
        <source>Maximum B-frame size</source>
        <translation>B フレーム最大サイズ</translation>
    </message>
    <message>
        <source>Largest coded B-frame in bytes; 0 sets no limit.</source>
        <translation>符号化した B フレームの最大バイト数。0 では制限しません。</translation>
    </message>
    <message>
        <source>Maximum Br-frame size</source>
        <extracomment>Br-frames are B-frames that are reference frames.</extracomment>
        <translation>Br フレーム最大サイズ</translation>
    </message>
    <message>
        <source>Largest coded B-frame that is a reference, in bytes; 0 sets no limit.</source>
        <translation>参照になる B フレームの最大バイト数。0 では制限しません。</translation>
    </message>
    <message>
        <source>Quantizer I-frames</source>
        <extracomment>Quantization parameter of I-frames, a number.</extracomment>
        <translation>I フレーム量子化値</translation>
    </message>
    <message>
        <source>Quantizer of I-frames; larger values save bits at the cost of quality.</source>
        <translation>I フレームの量子化値。大きいほどビット数が減り、画質が下がります。</translation>
    </message>
    <message>
        <source>Quantizer P-frames</source>
        <extracomment>Quantization parameter of P-frames, a number.</extracomment>
        <translation>P フレーム量子化値</translation>
    </message>
    <message>
        <source>Quantizer of P-frames; larger values save bits at the cost of quality.</source>
        <translation>P フレームの量子化値。大きいほどビット数が減り、画質が下がります。</translation>
    </message>
    <message>
        <source>Quantizer B-frames</source>
        <extracomment>Quantization parameter of B-frames, a number.</extracomment>
        <translation>B フレーム量子化値</translation>
    </message>
    <message>
        <source>Quantizer of B-frames; larger values save bits at the cost of quality.</source>
        <translation>B フレームの量子化値。大きいほどビット数が減り、画質が下がります。</translation>
    </message>
    <message>
        <source>Maximum quantizer</source>
        <extracomment>Largest quantization parameter that the encoder may choose.</extracomment>
        <translation>最大量子化値</translation>
    </message>
    <message>
        <source>Largest quantizer that the encoder may choose.</source>
        <translation>エンコーダーが選べる最大の量子化値。</translation>
    </message>
    <message>
        <source>Minimum quantizer</source>
        <extracomment>Smallest quantization parameter that the encoder may choose.</extracomment>
        <translation>最小量子化値</translation>
    </message>
    <message>
        <source>Smallest quantizer that the encoder may choose.</source>
        <translation>エンコーダーが選べる最小の量子化値。</translation>
    </message>
    <message>
        <source>Bitrate aimed at, in bits per second.</source>
        <translation>目標とするビットレート (ビット/秒)。</translation>
    </message>
    <message>
        <source>Highest bitrate at which the buffer is filled, in bits per second.</source>
        <translation>バッファに入る最大ビットレート (ビット/秒)。</translation>
    </message>
    <message>
        <source>Buffer size in bytes, buffer fullness in percent. Switching does not convert the numbers.</source>
        <translation>バッファサイズはバイト、占有量はパーセントで表します。切り替えても数値は換算されません。</translation>
    </message>
    <message>
        <source>Buffer size and buffer fullness in bits. Switching does not convert the numbers.</source>
        <translation>バッファサイズと占有量をビットで表します。切り替えても数値は換算されません。</translation>
    </message>
    <message>
        <source>Buffer size in bits, buffer fullness in 90 kHz ticks. Switching does not convert the numbers.</source>
        <translation>バッファサイズはビット、占有量は 90 kHz クロックで表します。切り替えても数値は換算されません。</translation>
    </message>
    <message>
        <source>Size of the coded picture buffer (VBV), in the chosen units.</source>
        <translation>符号化ピクチャバッファ (VBV) のサイズ (選択した単位)。</translation>
    </message>
    <message>
        <source>Fullness of the coded picture buffer (VBV) when decoding starts.</source>
        <translation>復号を始めるときの符号化ピクチャバッファ (VBV) の占有量。</translation>
    </message>
    <message>
        <source>Target fullness of the coded picture buffer (VBV). Only shown here: a preset or file sets it.</source>
        <translation>符号化ピクチャバッファ (VBV) の目標占有量。表示のみで、プリセットかファイルで決まります。</translation>
    </message>
    <message>
        <source>Keeps the buffer as large as what arrives in one second at the target bitrate.</source>
        <translation>バッファを、目標ビットレートで 1 秒間に届く量と同じ大きさに保ちます。</translation>
    </message>
</context>
<context>
    <name>IView1Page</name>
    <message>
        <source>View1 Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>ビュー 1 ページ</translation>
    </message>
    <message>
        <source>Bitrate mode</source>
        <translation>レート制御</translation>
    </message>
    <message>
        <source>How bits are spread: at a constant or variable rate, or at constant quality.</source>
        <translation>ビットの配分方法: 固定レート、可変レート、または固定品質。</translation>
    </message>
    <message>
        <source>Target bitrate (bps)</source>
        <extracomment>The bitrate aimed at; bps are bits per second.</extracomment>
        <translation>目標ビットレート (bps)</translation>
    </message>
    <message>
        <source>Max bitrate (bps)</source>
        <extracomment>Max is the maximum; bps are bits per second.</extracomment>
        <translation>最大ビットレート (bps)</translation>
    </message>
    <message>
        <source>Buffers</source>
        <translation>バッファ</translation>
    </message>
    <message>
        <source>Units</source>
        <extracomment>Units of measurement.</extracomment>
        <translation>単位</translation>
    </message>
    <message>
        <source>Bitrate buffer (bytes), VBV buffers (%)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>ビットレートバッファ (バイト)、VBV (%)</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits), VBV buffers (bits)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>ビットレートバッファ (ビット)、VBV (ビット)</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits), VBV buffers (90  kHz clock)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>ビットレートバッファ (ビット)、VBV (90 kHz)</translation>
    </message>
    <message>
        <source>Bitrate buffer</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>ビットレートバッファ</translation>
    </message>
    <message>
        <source>VBV buffer initial</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>VBV 初期占有量</translation>
    </message>
    <message>
        <source>VBV buffer target</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>VBV 目標占有量</translation>
    </message>
    <message>
        <source>Force bitrate buffer length to 1 second</source>
        <extracomment>Check box: the buffer&apos;s size follows from the target bitrate.</extracomment>
        <translation>ビットレートバッファの長さを 1 秒に固定</translation>
    </message>
    <message>
        <source>HRD conformance</source>
        <extracomment>HRD is the hypothetical reference decoder of H.264.</extracomment>
        <translation>HRD 準拠</translation>
    </message>
    <message>
        <source>Keeps the stream within the buffer model of the hypothetical reference decoder (HRD).</source>
        <translation>ストリームを仮想参照デコーダー (HRD) のバッファモデルに収めます。</translation>
    </message>
    <message>
        <source>Maximum I-frame size</source>
        <translation>I フレーム最大サイズ</translation>
    </message>
    <message>
        <source>Largest coded I-frame in bytes; 0 sets no limit.</source>
        <translation>符号化した I フレームの最大バイト数。0 では制限しません。</translation>
    </message>
    <message>
        <source>Maximum P-frame size</source>
        <translation>P フレーム最大サイズ</translation>
    </message>
    <message>
        <source>Largest coded P-frame in bytes; 0 sets no limit.</source>
        <translation>符号化した P フレームの最大バイト数。0 では制限しません。</translation>
    </message>
    <message>
        <source>Maximum B-frame size</source>
        <translation>B フレーム最大サイズ</translation>
    </message>
    <message>
        <source>Largest coded B-frame in bytes; 0 sets no limit.</source>
        <translation>符号化した B フレームの最大バイト数。0 では制限しません。</translation>
    </message>
    <message>
        <source>Maximum Br-frame size</source>
        <extracomment>Br-frames are B-frames that are reference frames.</extracomment>
        <translation>Br フレーム最大サイズ</translation>
    </message>
    <message>
        <source>Largest coded B-frame that is a reference, in bytes; 0 sets no limit.</source>
        <translation>参照になる B フレームの最大バイト数。0 では制限しません。</translation>
    </message>
    <message>
        <source>Quantizer I-frames</source>
        <extracomment>Quantization parameter of I-frames, a number.</extracomment>
        <translation>I フレーム量子化値</translation>
    </message>
    <message>
        <source>Quantizer of I-frames; larger values save bits at the cost of quality.</source>
        <translation>I フレームの量子化値。大きいほどビット数が減り、画質が下がります。</translation>
    </message>
    <message>
        <source>Quantizer P-frames</source>
        <extracomment>Quantization parameter of P-frames, a number.</extracomment>
        <translation>P フレーム量子化値</translation>
    </message>
    <message>
        <source>Quantizer of P-frames; larger values save bits at the cost of quality.</source>
        <translation>P フレームの量子化値。大きいほどビット数が減り、画質が下がります。</translation>
    </message>
    <message>
        <source>Quantizer B-frames</source>
        <extracomment>Quantization parameter of B-frames, a number.</extracomment>
        <translation>B フレーム量子化値</translation>
    </message>
    <message>
        <source>Quantizer of B-frames; larger values save bits at the cost of quality.</source>
        <translation>B フレームの量子化値。大きいほどビット数が減り、画質が下がります。</translation>
    </message>
    <message>
        <source>Maximum quantizer</source>
        <extracomment>Largest quantization parameter that the encoder may choose.</extracomment>
        <translation>最大量子化値</translation>
    </message>
    <message>
        <source>Largest quantizer that the encoder may choose.</source>
        <translation>エンコーダーが選べる最大の量子化値。</translation>
    </message>
    <message>
        <source>Minimum quantizer</source>
        <extracomment>Smallest quantization parameter that the encoder may choose.</extracomment>
        <translation>最小量子化値</translation>
    </message>
    <message>
        <source>Smallest quantizer that the encoder may choose.</source>
        <translation>エンコーダーが選べる最小の量子化値。</translation>
    </message>
    <message>
        <source>Bitrate aimed at, in bits per second.</source>
        <translation>目標とするビットレート (ビット/秒)。</translation>
    </message>
    <message>
        <source>Highest bitrate at which the buffer is filled, in bits per second.</source>
        <translation>バッファに入る最大ビットレート (ビット/秒)。</translation>
    </message>
    <message>
        <source>Buffer size in bytes, buffer fullness in percent. Switching does not convert the numbers.</source>
        <translation>バッファサイズはバイト、占有量はパーセントで表します。切り替えても数値は換算されません。</translation>
    </message>
    <message>
        <source>Buffer size and buffer fullness in bits. Switching does not convert the numbers.</source>
        <translation>バッファサイズと占有量をビットで表します。切り替えても数値は換算されません。</translation>
    </message>
    <message>
        <source>Buffer size in bits, buffer fullness in 90 kHz ticks. Switching does not convert the numbers.</source>
        <translation>バッファサイズはビット、占有量は 90 kHz クロックで表します。切り替えても数値は換算されません。</translation>
    </message>
    <message>
        <source>Size of the coded picture buffer (VBV), in the chosen units.</source>
        <translation>符号化ピクチャバッファ (VBV) のサイズ (選択した単位)。</translation>
    </message>
    <message>
        <source>Fullness of the coded picture buffer (VBV) when decoding starts.</source>
        <translation>復号を始めるときの符号化ピクチャバッファ (VBV) の占有量。</translation>
    </message>
    <message>
        <source>Target fullness of the coded picture buffer (VBV). Only shown here: a preset or file sets it.</source>
        <translation>符号化ピクチャバッファ (VBV) の目標占有量。表示のみで、プリセットかファイルで決まります。</translation>
    </message>
    <message>
        <source>Keeps the buffer as large as what arrives in one second at the target bitrate.</source>
        <translation>バッファを、目標ビットレートで 1 秒間に届く量と同じ大きさに保ちます。</translation>
    </message>
</context>
<context>
    <name>IView2Page</name>
    <message>
        <source>View2 Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>ビュー 2 ページ</translation>
    </message>
    <message>
        <source>Bitrate mode</source>
        <translation>レート制御</translation>
    </message>
    <message>
        <source>How bits are spread: at a constant or variable rate, or at constant quality.</source>
        <translation>ビットの配分方法: 固定レート、可変レート、または固定品質。</translation>
    </message>
    <message>
        <source>Target bitrate (bps)</source>
        <extracomment>The bitrate aimed at; bps are bits per second.</extracomment>
        <translation>目標ビットレート (bps)</translation>
    </message>
    <message>
        <source>Max bitrate (bps)</source>
        <extracomment>Max is the maximum; bps are bits per second.</extracomment>
        <translation>最大ビットレート (bps)</translation>
    </message>
    <message>
        <source>Buffers</source>
        <translation>バッファ</translation>
    </message>
    <message>
        <source>Units</source>
        <extracomment>Units of measurement.</extracomment>
        <translation>単位</translation>
    </message>
    <message>
        <source>Bitrate buffer (bytes), VBV buffers (%)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>ビットレートバッファ (バイト)、VBV (%)</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits), VBV buffers (bits)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>ビットレートバッファ (ビット)、VBV (ビット)</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits), VBV buffers (90  kHz clock)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>ビットレートバッファ (ビット)、VBV (90 kHz)</translation>
    </message>
    <message>
        <source>Bitrate buffer</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>ビットレートバッファ</translation>
    </message>
    <message>
        <source>VBV buffer initial</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>VBV 初期占有量</translation>
    </message>
    <message>
        <source>VBV buffer target</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>VBV 目標占有量</translation>
    </message>
    <message>
        <source>Force bitrate buffer length to 1 second</source>
        <extracomment>Check box: the buffer&apos;s size follows from the target bitrate.</extracomment>
        <translation>ビットレートバッファの長さを 1 秒に固定</translation>
    </message>
    <message>
        <source>HRD conformance</source>
        <extracomment>HRD is the hypothetical reference decoder of H.264.</extracomment>
        <translation>HRD 準拠</translation>
    </message>
    <message>
        <source>Keeps the stream within the buffer model of the hypothetical reference decoder (HRD).</source>
        <translation>ストリームを仮想参照デコーダー (HRD) のバッファモデルに収めます。</translation>
    </message>
    <message>
        <source>Maximum I-frame size</source>
        <translation>I フレーム最大サイズ</translation>
    </message>
    <message>
        <source>Largest coded I-frame in bytes; 0 sets no limit.</source>
        <translation>符号化した I フレームの最大バイト数。0 では制限しません。</translation>
    </message>
    <message>
        <source>Maximum P-frame size</source>
        <translation>P フレーム最大サイズ</translation>
    </message>
    <message>
        <source>Largest coded P-frame in bytes; 0 sets no limit.</source>
        <translation>符号化した P フレームの最大バイト数。0 では制限しません。</translation>
    </message>
    <message>
        <source>Maximum B-frame size</source>
        <translation>B フレーム最大サイズ</translation>
    </message>
    <message>
        <source>Largest coded B-frame in bytes; 0 sets no limit.</source>
        <translation>符号化した B フレームの最大バイト数。0 では制限しません。</translation>
    </message>
    <message>
        <source>Maximum Br-frame size</source>
        <extracomment>Br-frames are B-frames that are reference frames.</extracomment>
        <translation>Br フレーム最大サイズ</translation>
    </message>
    <message>
        <source>Largest coded B-frame that is a reference, in bytes; 0 sets no limit.</source>
        <translation>参照になる B フレームの最大バイト数。0 では制限しません。</translation>
    </message>
    <message>
        <source>Quantizer I-frames</source>
        <extracomment>Quantization parameter of I-frames, a number.</extracomment>
        <translation>I フレーム量子化値</translation>
    </message>
    <message>
        <source>Quantizer of I-frames; larger values save bits at the cost of quality.</source>
        <translation>I フレームの量子化値。大きいほどビット数が減り、画質が下がります。</translation>
    </message>
    <message>
        <source>Quantizer P-frames</source>
        <extracomment>Quantization parameter of P-frames, a number.</extracomment>
        <translation>P フレーム量子化値</translation>
    </message>
    <message>
        <source>Quantizer of P-frames; larger values save bits at the cost of quality.</source>
        <translation>P フレームの量子化値。大きいほどビット数が減り、画質が下がります。</translation>
    </message>
    <message>
        <source>Quantizer B-frames</source>
        <extracomment>Quantization parameter of B-frames, a number.</extracomment>
        <translation>B フレーム量子化値</translation>
    </message>
    <message>
        <source>Quantizer of B-frames; larger values save bits at the cost of quality.</source>
        <translation>B フレームの量子化値。大きいほどビット数が減り、画質が下がります。</translation>
    </message>
    <message>
        <source>Maximum quantizer</source>
        <extracomment>Largest quantization parameter that the encoder may choose.</extracomment>
        <translation>最大量子化値</translation>
    </message>
    <message>
        <source>Largest quantizer that the encoder may choose.</source>
        <translation>エンコーダーが選べる最大の量子化値。</translation>
    </message>
    <message>
        <source>Minimum quantizer</source>
        <extracomment>Smallest quantization parameter that the encoder may choose.</extracomment>
        <translation>最小量子化値</translation>
    </message>
    <message>
        <source>Smallest quantizer that the encoder may choose.</source>
        <translation>エンコーダーが選べる最小の量子化値。</translation>
    </message>
    <message>
        <source>Bitrate aimed at, in bits per second.</source>
        <translation>目標とするビットレート (ビット/秒)。</translation>
    </message>
    <message>
        <source>Highest bitrate at which the buffer is filled, in bits per second.</source>
        <translation>バッファに入る最大ビットレート (ビット/秒)。</translation>
    </message>
    <message>
        <source>Buffer size in bytes, buffer fullness in percent. Switching does not convert the numbers.</source>
        <translation>バッファサイズはバイト、占有量はパーセントで表します。切り替えても数値は換算されません。</translation>
    </message>
    <message>
        <source>Buffer size and buffer fullness in bits. Switching does not convert the numbers.</source>
        <translation>バッファサイズと占有量をビットで表します。切り替えても数値は換算されません。</translation>
    </message>
    <message>
        <source>Buffer size in bits, buffer fullness in 90 kHz ticks. Switching does not convert the numbers.</source>
        <translation>バッファサイズはビット、占有量は 90 kHz クロックで表します。切り替えても数値は換算されません。</translation>
    </message>
    <message>
        <source>Size of the coded picture buffer (VBV), in the chosen units.</source>
        <translation>符号化ピクチャバッファ (VBV) のサイズ (選択した単位)。</translation>
    </message>
    <message>
        <source>Fullness of the coded picture buffer (VBV) when decoding starts.</source>
        <translation>復号を始めるときの符号化ピクチャバッファ (VBV) の占有量。</translation>
    </message>
    <message>
        <source>Target fullness of the coded picture buffer (VBV). Only shown here: a preset or file sets it.</source>
        <translation>符号化ピクチャバッファ (VBV) の目標占有量。表示のみで、プリセットかファイルで決まります。</translation>
    </message>
    <message>
        <source>Keeps the buffer as large as what arrives in one second at the target bitrate.</source>
        <translation>バッファを、目標ビットレートで 1 秒間に届く量と同じ大きさに保ちます。</translation>
    </message>
</context>
<context>
    <name>IView3Page</name>
    <message>
        <source>View3 Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>ビュー 3 ページ</translation>
    </message>
    <message>
        <source>Bitrate mode</source>
        <translation>レート制御</translation>
    </message>
    <message>
        <source>How bits are spread: at a constant or variable rate, or at constant quality.</source>
        <translation>ビットの配分方法: 固定レート、可変レート、または固定品質。</translation>
    </message>
    <message>
        <source>Target bitrate (bps)</source>
        <extracomment>The bitrate aimed at; bps are bits per second.</extracomment>
        <translation>目標ビットレート (bps)</translation>
    </message>
    <message>
        <source>Max bitrate (bps)</source>
        <extracomment>Max is the maximum; bps are bits per second.</extracomment>
        <translation>最大ビットレート (bps)</translation>
    </message>
    <message>
        <source>Buffers</source>
        <translation>バッファ</translation>
    </message>
    <message>
        <source>Units</source>
        <extracomment>Units of measurement.</extracomment>
        <translation>単位</translation>
    </message>
    <message>
        <source>Bitrate buffer (bytes), VBV buffers (%)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>ビットレートバッファ (バイト)、VBV (%)</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits), VBV buffers (bits)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>ビットレートバッファ (ビット)、VBV (ビット)</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits), VBV buffers (90  kHz clock)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>ビットレートバッファ (ビット)、VBV (90 kHz)</translation>
    </message>
    <message>
        <source>Bitrate buffer</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>ビットレートバッファ</translation>
    </message>
    <message>
        <source>VBV buffer initial</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>VBV 初期占有量</translation>
    </message>
    <message>
        <source>VBV buffer target</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>VBV 目標占有量</translation>
    </message>
    <message>
        <source>Force bitrate buffer length to 1 second</source>
        <extracomment>Check box: the buffer&apos;s size follows from the target bitrate.</extracomment>
        <translation>ビットレートバッファの長さを 1 秒に固定</translation>
    </message>
    <message>
        <source>HRD conformance</source>
        <extracomment>HRD is the hypothetical reference decoder of H.264.</extracomment>
        <translation>HRD 準拠</translation>
    </message>
    <message>
        <source>Keeps the stream within the buffer model of the hypothetical reference decoder (HRD).</source>
        <translation>ストリームを仮想参照デコーダー (HRD) のバッファモデルに収めます。</translation>
    </message>
    <message>
        <source>Maximum I-frame size</source>
        <translation>I フレーム最大サイズ</translation>
    </message>
    <message>
        <source>Largest coded I-frame in bytes; 0 sets no limit.</source>
        <translation>符号化した I フレームの最大バイト数。0 では制限しません。</translation>
    </message>
    <message>
        <source>Maximum P-frame size</source>
        <translation>P フレーム最大サイズ</translation>
    </message>
    <message>
        <source>Largest coded P-frame in bytes; 0 sets no limit.</source>
        <translation>符号化した P フレームの最大バイト数。0 では制限しません。</translation>
    </message>
    <message>
        <source>Maximum B-frame size</source>
        <translation>B フレーム最大サイズ</translation>
    </message>
    <message>
        <source>Largest coded B-frame in bytes; 0 sets no limit.</source>
        <translation>符号化した B フレームの最大バイト数。0 では制限しません。</translation>
    </message>
    <message>
        <source>Maximum Br-frame size</source>
        <extracomment>Br-frames are B-frames that are reference frames.</extracomment>
        <translation>Br フレーム最大サイズ</translation>
    </message>
    <message>
        <source>Largest coded B-frame that is a reference, in bytes; 0 sets no limit.</source>
        <translation>参照になる B フレームの最大バイト数。0 では制限しません。</translation>
    </message>
    <message>
        <source>Quantizer I-frames</source>
        <extracomment>Quantization parameter of I-frames, a number.</extracomment>
        <translation>I フレーム量子化値</translation>
    </message>
    <message>
        <source>Quantizer of I-frames; larger values save bits at the cost of quality.</source>
        <translation>I フレームの量子化値。大きいほどビット数が減り、画質が下がります。</translation>
    </message>
    <message>
        <source>Quantizer P-frames</source>
        <extracomment>Quantization parameter of P-frames, a number.</extracomment>
        <translation>P フレーム量子化値</translation>
    </message>
    <message>
        <source>Quantizer of P-frames; larger values save bits at the cost of quality.</source>
        <translation>P フレームの量子化値。大きいほどビット数が減り、画質が下がります。</translation>
    </message>
    <message>
        <source>Quantizer B-frames</source>
        <extracomment>Quantization parameter of B-frames, a number.</extracomment>
        <translation>B フレーム量子化値</translation>
    </message>
    <message>
        <source>Quantizer of B-frames; larger values save bits at the cost of quality.</source>
        <translation>B フレームの量子化値。大きいほどビット数が減り、画質が下がります。</translation>
    </message>
    <message>
        <source>Maximum quantizer</source>
        <extracomment>Largest quantization parameter that the encoder may choose.</extracomment>
        <translation>最大量子化値</translation>
    </message>
    <message>
        <source>Largest quantizer that the encoder may choose.</source>
        <translation>エンコーダーが選べる最大の量子化値。</translation>
    </message>
    <message>
        <source>Minimum quantizer</source>
        <extracomment>Smallest quantization parameter that the encoder may choose.</extracomment>
        <translation>最小量子化値</translation>
    </message>
    <message>
        <source>Smallest quantizer that the encoder may choose.</source>
        <translation>エンコーダーが選べる最小の量子化値。</translation>
    </message>
    <message>
        <source>Bitrate aimed at, in bits per second.</source>
        <translation>目標とするビットレート (ビット/秒)。</translation>
    </message>
    <message>
        <source>Highest bitrate at which the buffer is filled, in bits per second.</source>
        <translation>バッファに入る最大ビットレート (ビット/秒)。</translation>
    </message>
    <message>
        <source>Buffer size in bytes, buffer fullness in percent. Switching does not convert the numbers.</source>
        <translation>バッファサイズはバイト、占有量はパーセントで表します。切り替えても数値は換算されません。</translation>
    </message>
    <message>
        <source>Buffer size and buffer fullness in bits. Switching does not convert the numbers.</source>
        <translation>バッファサイズと占有量をビットで表します。切り替えても数値は換算されません。</translation>
    </message>
    <message>
        <source>Buffer size in bits, buffer fullness in 90 kHz ticks. Switching does not convert the numbers.</source>
        <translation>バッファサイズはビット、占有量は 90 kHz クロックで表します。切り替えても数値は換算されません。</translation>
    </message>
    <message>
        <source>Size of the coded picture buffer (VBV), in the chosen units.</source>
        <translation>符号化ピクチャバッファ (VBV) のサイズ (選択した単位)。</translation>
    </message>
    <message>
        <source>Fullness of the coded picture buffer (VBV) when decoding starts.</source>
        <translation>復号を始めるときの符号化ピクチャバッファ (VBV) の占有量。</translation>
    </message>
    <message>
        <source>Target fullness of the coded picture buffer (VBV). Only shown here: a preset or file sets it.</source>
        <translation>符号化ピクチャバッファ (VBV) の目標占有量。表示のみで、プリセットかファイルで決まります。</translation>
    </message>
    <message>
        <source>Keeps the buffer as large as what arrives in one second at the target bitrate.</source>
        <translation>バッファを、目標ビットレートで 1 秒間に届く量と同じ大きさに保ちます。</translation>
    </message>
</context>
<context>
    <name>IViewsPage</name>
    <message>
        <source>Views Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>ビューページ</translation>
    </message>
    <message>
        <source>Number of views</source>
        <extracomment>For assistive technology: the group of the number and its check box.</extracomment>
        <translation>ビューの数</translation>
    </message>
    <message>
        <source>Number of additional views:</source>
        <translation>追加ビュー数:</translation>
    </message>
    <message>
        <source>Number of views that are coded beside the base view.</source>
        <translation>ベースビューに加えて符号化するビューの数。</translation>
    </message>
    <message>
        <source>Split views</source>
        <extracomment>Check box: each view goes to a stream of its own. Views are not divided.</extracomment>
        <translation>ビューを分離</translation>
    </message>
    <message>
        <source>Writes each view to a stream of its own instead of one stream for all.</source>
        <translation>すべてを 1 つのストリームにする代わりに、ビューごとに別のストリームに書き出します。</translation>
    </message>
</context>
<context>
    <name>LimitBars</name>
    <message>
        <source>macroblocks</source>
        <translation>マクロブロック</translation>
    </message>
    <message>
        <source>macroblocks/s</source>
        <translation>マクロブロック/秒</translation>
    </message>
    <message>
        <source>frames</source>
        <translation>フレーム</translation>
    </message>
    <message>
        <source>bit</source>
        <translation>ビット</translation>
    </message>
    <message>
        <source>View %1</source>
        <translation>ビュー %1</translation>
    </message>
    <message>
        <source>%1 of %2 %3</source>
        <extracomment>What is used of a limit, with the unit: &quot;4 of 6 frames&quot;.</extracomment>
        <translation>%1 / %2 %3</translation>
    </message>
    <message>
        <source>%1 too much</source>
        <translation>%1 超過</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>残り %1</translation>
    </message>
    <message>
        <source>Other limits</source>
        <translation>その他の制限</translation>
    </message>
    <message>
        <source>Limits of level %1</source>
        <translation>レベル %1 の制限</translation>
    </message>
    <message>
        <source>The encoder tells no limits of these settings.</source>
        <translation>この設定に対する制限をエンコーダーは報告していません。</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>制限</translation>
    </message>
</context>
<context>
    <name>MessageLinks</name>
    <message>
        <source>Go to &quot;%1&quot;: click, or press Enter.</source>
        <translation>「%1」へ移動: クリックまたは Enter キー。</translation>
    </message>
</context>
<context>
    <name>MiscPage</name>
    <message>
        <source>CAVLC</source>
        <translation>CAVLC</translation>
    </message>
    <message>
        <source>CABAC</source>
        <translation>CABAC</translation>
    </message>
</context>
<context>
    <name>MotionEstimationPage</name>
    <message>
        <source>16 x 16</source>
        <translation>16 x 16</translation>
    </message>
    <message>
        <source>8 x 8</source>
        <translation>8 x 8</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>整数ピクセル</translation>
    </message>
    <message>
        <source>Half</source>
        <translation>1/2 ピクセル</translation>
    </message>
    <message>
        <source>Quarter</source>
        <translation>1/4 ピクセル</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 ファイル</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>エイリアス</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>すべて選択(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>増やす(&amp;U)</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>減らす(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QAccessibleActionInterface</name>
    <message>
        <source>Press</source>
        <translation>押す</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>増やす</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>減らす</translation>
    </message>
    <message>
        <source>ShowMenu</source>
        <translation>メニューを表示</translation>
    </message>
    <message>
        <source>SetFocus</source>
        <translation>フォーカスを設定</translation>
    </message>
    <message>
        <source>Toggle</source>
        <translation>切り替え</translation>
    </message>
    <message>
        <source>Scroll Left</source>
        <translation>左へスクロール</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>右へスクロール</translation>
    </message>
    <message>
        <source>Scroll Up</source>
        <translation>上へスクロール</translation>
    </message>
    <message>
        <source>Scroll Down</source>
        <translation>下へスクロール</translation>
    </message>
    <message>
        <source>Previous Page</source>
        <translation>前のページ</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>次のページ</translation>
    </message>
    <message>
        <source>Triggers the action</source>
        <translation>操作を実行します</translation>
    </message>
    <message>
        <source>Increase the value</source>
        <translation>値を増やします</translation>
    </message>
    <message>
        <source>Decrease the value</source>
        <translation>値を減らします</translation>
    </message>
    <message>
        <source>Shows the menu</source>
        <translation>メニューを表示します</translation>
    </message>
    <message>
        <source>Sets the focus</source>
        <translation>フォーカスを設定します</translation>
    </message>
    <message>
        <source>Toggles the state</source>
        <translation>状態を切り替えます</translation>
    </message>
    <message>
        <source>Scrolls to the left</source>
        <translation>左へスクロールします</translation>
    </message>
    <message>
        <source>Scrolls to the right</source>
        <translation>右へスクロールします</translation>
    </message>
    <message>
        <source>Scrolls up</source>
        <translation>上へスクロールします</translation>
    </message>
    <message>
        <source>Scrolls down</source>
        <translation>下へスクロールします</translation>
    </message>
    <message>
        <source>Goes back a page</source>
        <translation>前のページに戻ります</translation>
    </message>
    <message>
        <source>Goes to the next page</source>
        <translation>次のページに進みます</translation>
    </message>
</context>
<context>
    <name>QComboBox</name>
    <message>
        <source>Open the combo box selection popup</source>
        <translation>選択リストを開きます</translation>
    </message>
    <message>
        <source>False</source>
        <translation>偽</translation>
    </message>
    <message>
        <source>True</source>
        <translation>真</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>What&apos;s This?</source>
        <translation>これは何？</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>場所:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>前の場所に戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>次の場所に進む</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>親フォルダー</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>親フォルダーに移動</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>新しいフォルダー</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>新しいフォルダーを作成</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>一覧</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>一覧表示に切り替え</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>詳細表示に切り替え</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>サイドバー</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>場所とブックマークの一覧</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>ファイルの種類:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>ファイル名(&amp;N):</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>フォルダー:</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>フォルダーを探す</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>名前を付けて保存</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>選択(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>表示: </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>名前の変更(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>隠しファイルを表示(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>新しいフォルダー(&amp;N)</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>新しいフォルダー</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>最近使った場所</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>マイ コンピューター</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>取り除く</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
フォルダーが見つかりません。
名前を確認してください。</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
ファイルが見つかりません。
名前を確認してください。</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 は既に存在します。
置き換えますか？</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>「%1」は書き込み禁止です。
それでも削除しますか？</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>「%1」を削除しますか？</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>フォルダーを削除できませんでした。</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 ファイル</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>エイリアス</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Alt+Left</source>
        <translation>Alt+Left</translation>
    </message>
    <message>
        <source>Alt+Right</source>
        <translation>Alt+Right</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Up</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>更新日時</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>マイ コンピューター</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>無効なファイル名</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;「%1」という名前は使えません。&lt;/b&gt;&lt;p&gt;もっと短い名前か、記号を含まない名前にしてください。</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 バイト</translation>
    </message>
    <message>
        <source>%1 byte(s)</source>
        <translation>%1 バイト</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Show Details...</source>
        <translation>詳細を表示</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>詳細を隠す</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>4:3</source>
        <translation>4:3</translation>
    </message>
    <message>
        <source>16:9</source>
        <translation>16:9</translation>
    </message>
    <message>
        <source>7.60</source>
        <translation>7.60</translation>
    </message>
    <message>
        <source>9.10</source>
        <translation>9.10</translation>
    </message>
    <message>
        <source>10.00</source>
        <translation>10.00</translation>
    </message>
    <message>
        <source>12.50</source>
        <translation>12.50</translation>
    </message>
    <message>
        <source>12.80</source>
        <translation>12.80</translation>
    </message>
    <message>
        <source>15.00</source>
        <translation>15.00</translation>
    </message>
    <message>
        <source>23.98</source>
        <translation>23.98</translation>
    </message>
    <message>
        <source>24.00</source>
        <translation>24.00</translation>
    </message>
    <message>
        <source>25.00</source>
        <translation>25.00</translation>
    </message>
    <message>
        <source>29.97</source>
        <translation>29.97</translation>
    </message>
    <message>
        <source>30.00</source>
        <translation>30.00</translation>
    </message>
    <message>
        <source>50.00</source>
        <translation>50.00</translation>
    </message>
    <message>
        <source>59.94</source>
        <translation>59.94</translation>
    </message>
    <message>
        <source>60.00</source>
        <translation>60.00</translation>
    </message>
    <message>
        <source>Top Field First</source>
        <translation>トップファースト</translation>
    </message>
    <message>
        <source>Bot Field First</source>
        <translation>ボトムファースト</translation>
    </message>
    <message>
        <source>Progressive</source>
        <translation>プログレッシブ</translation>
    </message>
    <message>
        <source>Interlaced</source>
        <translation>インターレース</translation>
    </message>
    <message>
        <source>MBAFF</source>
        <translation>MBAFF</translation>
    </message>
    <message>
        <source>8 bits</source>
        <translation>8 ビット</translation>
    </message>
    <message>
        <source>10 bits</source>
        <translation>10 ビット</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>2:3</source>
        <translation>2:3</translation>
    </message>
    <message>
        <source>3:2</source>
        <translation>3:2</translation>
    </message>
    <message>
        <source>2:3 P</source>
        <translation>2:3 P</translation>
    </message>
    <message>
        <source>3:2 P</source>
        <translation>3:2 P</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>2:2</source>
        <translation>2:2</translation>
    </message>
    <message>
        <source>3:3</source>
        <translation>3:3</translation>
    </message>
    <message>
        <source>4:0:0</source>
        <translation>4:0:0</translation>
    </message>
    <message>
        <source>4:2:0</source>
        <translation>4:2:0</translation>
    </message>
    <message>
        <source>4:2:2</source>
        <translation>4:2:2</translation>
    </message>
    <message>
        <source>Constant Bitrate</source>
        <translation>固定ビットレート</translation>
    </message>
    <message>
        <source>Variable Bitrate</source>
        <translation>可変ビットレート</translation>
    </message>
    <message>
        <source>Const. Quality - Constant Quantizer</source>
        <translation>固定品質: 固定量子化</translation>
    </message>
    <message>
        <source>Const. Quality - Average Quantizer</source>
        <translation>固定品質: 平均量子化</translation>
    </message>
    <message>
        <source>16 x 16</source>
        <translation>16 x 16</translation>
    </message>
    <message>
        <source>8 x 8</source>
        <translation>8 x 8</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>整数ピクセル</translation>
    </message>
    <message>
        <source>Half</source>
        <translation>1/2 ピクセル</translation>
    </message>
    <message>
        <source>Quarter</source>
        <translation>1/4 ピクセル</translation>
    </message>
    <message>
        <source>CAVLC</source>
        <translation>CAVLC</translation>
    </message>
    <message>
        <source>CABAC</source>
        <translation>CABAC</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>すべて保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>すべてはい(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>すべていいえ(&amp;O)</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>無視</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>既定値に戻す</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>ここまでスクロール</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>左端</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>先頭</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>右端</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>末尾</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>1 ページ左</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>1 ページ上</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>1 ページ右</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>1 ページ下</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>左へスクロール</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>上へスクロール</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>右へスクロール</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>下へスクロール</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Meta</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Space</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Return</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Ins</source>
        <translation>Ins</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Up</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Down</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>PgUp</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>PgDown</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
</context>
<context>
    <name>QTabBar</name>
    <message>
        <source>Scroll Left</source>
        <translation>左へスクロール</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>右へスクロール</translation>
    </message>
</context>
<context>
    <name>QUnicodeControlCharacterMenu</name>
    <message>
        <source>Insert Unicode control character</source>
        <translation>Unicode 制御文字を挿入</translation>
    </message>
    <message>
        <source>LRM Left-to-right mark</source>
        <translation>LRM 左から右の記号</translation>
    </message>
    <message>
        <source>RLM Right-to-left mark</source>
        <translation>RLM 右から左の記号</translation>
    </message>
    <message>
        <source>ZWJ Zero width joiner</source>
        <translation>ZWJ ゼロ幅接合子</translation>
    </message>
    <message>
        <source>ZWNJ Zero width non-joiner</source>
        <translation>ZWNJ ゼロ幅非接合子</translation>
    </message>
    <message>
        <source>ZWSP Zero width space</source>
        <translation>ZWSP ゼロ幅スペース</translation>
    </message>
    <message>
        <source>LRE Start of left-to-right embedding</source>
        <translation>LRE 左から右の埋め込み開始</translation>
    </message>
    <message>
        <source>RLE Start of right-to-left embedding</source>
        <translation>RLE 右から左の埋め込み開始</translation>
    </message>
    <message>
        <source>LRO Start of left-to-right override</source>
        <translation>LRO 左から右の上書き開始</translation>
    </message>
    <message>
        <source>RLO Start of right-to-left override</source>
        <translation>RLO 右から左の上書き開始</translation>
    </message>
    <message>
        <source>PDF Pop directional formatting</source>
        <translation>PDF 方向指定の終了</translation>
    </message>
    <message>
        <source>LRI Left-to-right isolate</source>
        <translation>LRI 左から右の分離</translation>
    </message>
    <message>
        <source>RLI Right-to-left isolate</source>
        <translation>RLI 右から左の分離</translation>
    </message>
    <message>
        <source>FSI First strong isolate</source>
        <translation>FSI 最初の強い文字による分離</translation>
    </message>
    <message>
        <source>PDI Pop directional isolate</source>
        <translation>PDI 分離の終了</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>リンクの場所をコピー(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
</context>
<context>
    <name>RateDistortionPage</name>
    <message>
        <source>0 (not used)</source>
        <translation>0 (無効)</translation>
    </message>
</context>
<context>
    <name>SettingHelp</name>
    <message>
        <source>Only shown here: a preset or file sets it.</source>
        <translation>ここでは表示のみ: プリセットまたはファイルが設定します。</translation>
    </message>
    <message>
        <source>The settings hold two views: what is set for this one goes no further.</source>
        <translation>設定が持つビューは 2 つです: このビューの値はどこにも渡されません。</translation>
    </message>
    <message>
        <source>= %1</source>
        <extracomment>The reading of a rate in bits per second that is being typed: &quot;= 22 Mbit/s&quot;.</extracomment>
        <translation>= %1</translation>
    </message>
    <message>
        <source>Range: %1 to %2%3.</source>
        <extracomment>%3 is empty or a unit with a blank before it.</extracomment>
        <translation>範囲: %1～%2%3。</translation>
    </message>
    <message>
        <source>The range rests on: %1.</source>
        <translation>範囲の根拠: %1。</translation>
    </message>
    <message>
        <source>as opened</source>
        <translation>開いたとき</translation>
    </message>
    <message>
        <source>Changed; the starting value is %1 (%2).</source>
        <extracomment>What a setting was at the start, and what the start was: a preset, a file.</extracomment>
        <translation>変更済み。開始時の値は %1 (%2)。</translation>
    </message>
    <message>
        <source>Starting value: %1 (%2).</source>
        <translation>開始時の値: %1 (%2)。</translation>
    </message>
    <message>
        <source>Changed.</source>
        <translation>変更済み。</translation>
    </message>
    <message>
        <source>Greyed because this view is not coded; see &quot;Number of additional views&quot;.</source>
        <translation>このビューは符号化されないため変更できません。「追加ビュー数」を参照してください。</translation>
    </message>
    <message>
        <source>Greyed because the program that opened the dialog has set it.</source>
        <translation>このダイアログを開いたプログラムが決めているため変更できません。</translation>
    </message>
    <message>
        <source>Greyed because the picture aspect ratio sets it, unless that is &quot;Custom&quot;.</source>
        <translation>ピクチャアスペクト比で決まるため変更できません (「カスタム」を除く)。</translation>
    </message>
    <message>
        <source>Greyed because progressive pictures have no fields.</source>
        <translation>プログレッシブのピクチャにはフィールドがないため変更できません。</translation>
    </message>
    <message>
        <source>Greyed because the buffer is kept at the length of 1 second.</source>
        <translation>バッファが 1 秒の長さに保たれているため変更できません。</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>エラー: %1</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>警告: %1</translation>
    </message>
    <message>
        <source>bits</source>
        <translation>ビット</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>バイト</translation>
    </message>
    <message>
        <source>range of the encoder; H.7.4.2.1.4 allows 1024</source>
        <translation>エンコーダーの範囲。H.7.4.2.1.4 では 1024 まで</translation>
    </message>
    <message>
        <source>range of the encoder; discs allow 3 in a row</source>
        <translation>エンコーダーの範囲。ディスクでは連続 3 枚まで</translation>
    </message>
</context>
<context>
    <name>SettingMenu</name>
    <message>
        <source>Reset to %1</source>
        <extracomment>In the context menu of a setting; %1 is the value.</extracomment>
        <translation>%1 に戻す</translation>
    </message>
    <message>
        <source>Starting value: %1</source>
        <translation>開始時の値: %1</translation>
    </message>
    <message>
        <source>Use in all views</source>
        <extracomment>In the context menu of a view&apos;s rate control.</extracomment>
        <translation>すべてのビューで使用</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
</context>
<context>
    <name>ToolBox</name>
    <message>
        <source>Shows or hides this section.</source>
        <translation>このセクションの表示と非表示を切り替えます。</translation>
    </message>
</context>
<context>
    <name>VideoFormatPage</name>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>4:3</source>
        <translation>4:3</translation>
    </message>
    <message>
        <source>16:9</source>
        <translation>16:9</translation>
    </message>
    <message>
        <source>7.60</source>
        <translation>7.60</translation>
    </message>
    <message>
        <source>9.10</source>
        <translation>9.10</translation>
    </message>
    <message>
        <source>10.00</source>
        <translation>10.00</translation>
    </message>
    <message>
        <source>12.50</source>
        <translation>12.50</translation>
    </message>
    <message>
        <source>12.80</source>
        <translation>12.80</translation>
    </message>
    <message>
        <source>15.00</source>
        <translation>15.00</translation>
    </message>
    <message>
        <source>23.98</source>
        <translation>23.98</translation>
    </message>
    <message>
        <source>24.00</source>
        <translation>24.00</translation>
    </message>
    <message>
        <source>25.00</source>
        <translation>25.00</translation>
    </message>
    <message>
        <source>29.97</source>
        <translation>29.97</translation>
    </message>
    <message>
        <source>30.00</source>
        <translation>30.00</translation>
    </message>
    <message>
        <source>50.00</source>
        <translation>50.00</translation>
    </message>
    <message>
        <source>59.94</source>
        <translation>59.94</translation>
    </message>
    <message>
        <source>60.00</source>
        <translation>60.00</translation>
    </message>
    <message>
        <source>Progressive</source>
        <translation>プログレッシブ</translation>
    </message>
    <message>
        <source>Interlaced</source>
        <translation>インターレース</translation>
    </message>
    <message>
        <source>MBAFF</source>
        <translation>MBAFF</translation>
    </message>
    <message>
        <source>Top Field First</source>
        <translation>トップファースト</translation>
    </message>
    <message>
        <source>Bot Field First</source>
        <translation>ボトムファースト</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>2:3</source>
        <translation>2:3</translation>
    </message>
    <message>
        <source>3:2</source>
        <translation>3:2</translation>
    </message>
    <message>
        <source>2:3 P</source>
        <translation>2:3 P</translation>
    </message>
    <message>
        <source>3:2 P</source>
        <translation>3:2 P</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>2:2</source>
        <translation>2:2</translation>
    </message>
    <message>
        <source>3:3</source>
        <translation>3:3</translation>
    </message>
    <message>
        <source>4:0:0</source>
        <translation>4:0:0</translation>
    </message>
    <message>
        <source>4:2:0</source>
        <translation>4:2:0</translation>
    </message>
    <message>
        <source>4:2:2</source>
        <translation>4:2:2</translation>
    </message>
    <message>
        <source>8 bits</source>
        <translation>8 ビット</translation>
    </message>
    <message>
        <source>10 bits</source>
        <translation>10 ビット</translation>
    </message>
</context>
<context>
    <name>View0Page</name>
    <message>
        <source>Constant Bitrate</source>
        <translation>固定ビットレート</translation>
    </message>
    <message>
        <source>Variable Bitrate</source>
        <translation>可変ビットレート</translation>
    </message>
    <message>
        <source>Const. Quality - Constant Quantizer</source>
        <translation>固定品質: 固定量子化</translation>
    </message>
    <message>
        <source>Const. Quality - Average Quantizer</source>
        <translation>固定品質: 平均量子化</translation>
    </message>
    <message>
        <source>Bitrate buffer (bytes)</source>
        <translation>ビットレートバッファ (バイト)</translation>
    </message>
    <message>
        <source>VBV buffer initial (%)</source>
        <translation>VBV 初期占有量 (%)</translation>
    </message>
    <message>
        <source>VBV buffer target (%)</source>
        <translation>VBV 目標占有量 (%)</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits)</source>
        <translation>ビットレートバッファ (ビット)</translation>
    </message>
    <message>
        <source>VBV buffer initial (bits)</source>
        <translation>VBV 初期占有量 (ビット)</translation>
    </message>
    <message>
        <source>VBV buffer target (bits)</source>
        <translation>VBV 目標占有量 (ビット)</translation>
    </message>
    <message>
        <source>VBV buffer initial (90 kHz)</source>
        <translation>VBV 初期占有量 (90 kHz)</translation>
    </message>
    <message>
        <source>VBV buffer target (90 kHz)</source>
        <translation>VBV 目標占有量 (90 kHz)</translation>
    </message>
</context>
<context>
    <name>View1Page</name>
    <message>
        <source>Constant Bitrate</source>
        <translation>固定ビットレート</translation>
    </message>
    <message>
        <source>Variable Bitrate</source>
        <translation>可変ビットレート</translation>
    </message>
    <message>
        <source>Const. Quality - Constant Quantizer</source>
        <translation>固定品質: 固定量子化</translation>
    </message>
    <message>
        <source>Const. Quality - Average Quantizer</source>
        <translation>固定品質: 平均量子化</translation>
    </message>
    <message>
        <source>Bitrate buffer (bytes)</source>
        <translation>ビットレートバッファ (バイト)</translation>
    </message>
    <message>
        <source>VBV buffer initial (%)</source>
        <translation>VBV 初期占有量 (%)</translation>
    </message>
    <message>
        <source>VBV buffer target (%)</source>
        <translation>VBV 目標占有量 (%)</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits)</source>
        <translation>ビットレートバッファ (ビット)</translation>
    </message>
    <message>
        <source>VBV buffer initial (bits)</source>
        <translation>VBV 初期占有量 (ビット)</translation>
    </message>
    <message>
        <source>VBV buffer target (bits)</source>
        <translation>VBV 目標占有量 (ビット)</translation>
    </message>
    <message>
        <source>VBV buffer initial (90 kHz)</source>
        <translation>VBV 初期占有量 (90 kHz)</translation>
    </message>
    <message>
        <source>VBV buffer target (90 kHz)</source>
        <translation>VBV 目標占有量 (90 kHz)</translation>
    </message>
</context>
<context>
    <name>View2Page</name>
    <message>
        <source>Constant Bitrate</source>
        <translation>固定ビットレート</translation>
    </message>
    <message>
        <source>Variable Bitrate</source>
        <translation>可変ビットレート</translation>
    </message>
    <message>
        <source>Const. Quality - Constant Quantizer</source>
        <translation>固定品質: 固定量子化</translation>
    </message>
    <message>
        <source>Const. Quality - Average Quantizer</source>
        <translation>固定品質: 平均量子化</translation>
    </message>
    <message>
        <source>Bitrate buffer (bytes)</source>
        <translation>ビットレートバッファ (バイト)</translation>
    </message>
    <message>
        <source>VBV buffer initial (%)</source>
        <translation>VBV 初期占有量 (%)</translation>
    </message>
    <message>
        <source>VBV buffer target (%)</source>
        <translation>VBV 目標占有量 (%)</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits)</source>
        <translation>ビットレートバッファ (ビット)</translation>
    </message>
    <message>
        <source>VBV buffer initial (bits)</source>
        <translation>VBV 初期占有量 (ビット)</translation>
    </message>
    <message>
        <source>VBV buffer target (bits)</source>
        <translation>VBV 目標占有量 (ビット)</translation>
    </message>
    <message>
        <source>VBV buffer initial (90 kHz)</source>
        <translation>VBV 初期占有量 (90 kHz)</translation>
    </message>
    <message>
        <source>VBV buffer target (90 kHz)</source>
        <translation>VBV 目標占有量 (90 kHz)</translation>
    </message>
</context>
<context>
    <name>View3Page</name>
    <message>
        <source>Constant Bitrate</source>
        <translation>固定ビットレート</translation>
    </message>
    <message>
        <source>Variable Bitrate</source>
        <translation>可変ビットレート</translation>
    </message>
    <message>
        <source>Const. Quality - Constant Quantizer</source>
        <translation>固定品質: 固定量子化</translation>
    </message>
    <message>
        <source>Const. Quality - Average Quantizer</source>
        <translation>固定品質: 平均量子化</translation>
    </message>
    <message>
        <source>Bitrate buffer (bytes)</source>
        <translation>ビットレートバッファ (バイト)</translation>
    </message>
    <message>
        <source>VBV buffer initial (%)</source>
        <translation>VBV 初期占有量 (%)</translation>
    </message>
    <message>
        <source>VBV buffer target (%)</source>
        <translation>VBV 目標占有量 (%)</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits)</source>
        <translation>ビットレートバッファ (ビット)</translation>
    </message>
    <message>
        <source>VBV buffer initial (bits)</source>
        <translation>VBV 初期占有量 (ビット)</translation>
    </message>
    <message>
        <source>VBV buffer target (bits)</source>
        <translation>VBV 目標占有量 (ビット)</translation>
    </message>
    <message>
        <source>VBV buffer initial (90 kHz)</source>
        <translation>VBV 初期占有量 (90 kHz)</translation>
    </message>
    <message>
        <source>VBV buffer target (90 kHz)</source>
        <translation>VBV 目標占有量 (90 kHz)</translation>
    </message>
</context>
<context>
    <name>ViewsPage</name>
    <message>
        <source>Base View</source>
        <translation>ベースビュー</translation>
    </message>
    <message>
        <source>View 1</source>
        <translation>ビュー 1</translation>
    </message>
    <message>
        <source>View 2</source>
        <translation>ビュー 2</translation>
    </message>
    <message>
        <source>View 3</source>
        <translation>ビュー 3</translation>
    </message>
</context>
</TS>
