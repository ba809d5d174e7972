<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AVCVideoEncoderDlg</name>
    <message>
        <source>Korvane MVC Video Encoder Settings</source>
        <translation>Korvane MVC Video Encoder – Einstellungen</translation>
    </message>
    <message>
        <source>Basic Settings</source>
        <translation>Grundeinstellungen</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>Views</source>
        <translation>Ansichten</translation>
    </message>
    <message>
        <source>Load Config File...</source>
        <translation>Einstellungsdatei laden</translation>
    </message>
    <message>
        <source>Config Files (*.cfg *.ini);;MPEG Files (*.m2p *.m2t *.m2p*.m4p *.mp2 *.mp4 *.mpeg *.mpg *.mpv *.mxf *.trp *.ts *.vob *.ifo)</source>
        <translation>Einstellungsdateien (*.cfg *.ini);;MPEG-Dateien (*.m2p *.m2t *.m2p*.m4p *.mp2 *.mp4 *.mpeg *.mpg *.mpv *.mxf *.trp *.ts *.vob *.ifo)</translation>
    </message>
    <message>
        <source>Save Config File...</source>
        <translation>Einstellungsdatei speichern</translation>
    </message>
    <message>
        <source>Config Files (*.cfg *.ini)</source>
        <translation>Einstellungsdateien (*.cfg *.ini)</translation>
    </message>
    <message>
        <source>Korvane MVC Video Encoder</source>
        <translation>Korvane MVC Video Encoder</translation>
    </message>
    <message>
        <source>File already exists.
Do you want to overwrite it?</source>
        <translation>Die Datei ist bereits vorhanden.
Soll sie überschrieben werden?</translation>
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
        <translation>Auto</translation>
    </message>
    <message>
        <source>The encoder failed to check the settings.</source>
        <translation>Der Encoder konnte die Einstellungen nicht prüfen.</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Wiederholt: %1</translation>
    </message>
    <message>
        <source>File %1</source>
        <translation>Datei %1</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Voreinstellung %1</translation>
    </message>
    <message>
        <source>Copy all</source>
        <extracomment>In the context menu of the message log: all messages, whole.</extracomment>
        <translation>Alles kopieren</translation>
    </message>
    <message>
        <source>Further messages: %1.</source>
        <extracomment>At the end of the message log, which is too long to be shown whole.</extracomment>
        <translation>Weitere Meldungen: %1.</translation>
    </message>
    <message>
        <source>Messages cut short: %1.</source>
        <extracomment>At the end of the message log: how many are too long to be shown whole.</extracomment>
        <translation>Gekürzte Meldungen: %1.</translation>
    </message>
    <message>
        <source>&quot;Copy all&quot; has them whole.</source>
        <extracomment>&quot;Copy all&quot; is an item of the log&apos;s context menu.</extracomment>
        <translation>„Alles kopieren“ nimmt sie ganz.</translation>
    </message>
    <message>
        <source>Copy settings as text</source>
        <extracomment>In the context menu of the message log: all settings, as lines of text.</extracomment>
        <translation>Einstellungen als Text kopieren</translation>
    </message>
    <message>
        <source>Show changes</source>
        <extracomment>In the context menu of the message log: a list of the settings that differ from those that the dialog was opened with, or from the last preset or file.</extracomment>
        <translation>Änderungen zeigen</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Einstellung suchen</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Keine Einstellung enthält diese Wörter.</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Geänderte Einstellungen</translation>
    </message>
    <message>
        <source>No files yet</source>
        <extracomment>In the menu of the files that were loaded last, while there are none.</extracomment>
        <translation>Noch keine Dateien</translation>
    </message>
    <message>
        <source>Clear list</source>
        <extracomment>In the menu of the files that were loaded last.</extracomment>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>Changed since: %1</source>
        <translation>Geändert seit: %1</translation>
    </message>
    <message>
        <source>No setting has changed.</source>
        <translation>Keine Einstellung wurde geändert.</translation>
    </message>
    <message>
        <source>%1 in all views</source>
        <extracomment>A setting of the rate control that was changed in all views at once.</extracomment>
        <translation>%1 in allen Ansichten</translation>
    </message>
    <message>
        <source>There are errors: the settings are refused.</source>
        <translation>Es gibt Fehler: Die Einstellungen werden abgelehnt.</translation>
    </message>
    <message>
        <source>There are no errors any more.</source>
        <translation>Es gibt keine Fehler mehr.</translation>
    </message>
</context>
<context>
    <name>AdvancedPage</name>
    <message>
        <source>GOP Structure</source>
        <translation>GOP-Struktur</translation>
    </message>
    <message>
        <source>Motion Estimation</source>
        <translation>Bewegungsschätzung</translation>
    </message>
    <message>
        <source>Rate Distortion</source>
        <translation>Rate-Distortion</translation>
    </message>
    <message>
        <source>Miscellaneous</source>
        <translation>Verschiedenes</translation>
    </message>
</context>
<context>
    <name>BasicPage</name>
    <message>
        <source>Video Format</source>
        <translation>Videoformat</translation>
    </message>
</context>
<context>
    <name>IAVCVideoEncoderDlg</name>
    <message>
        <source>Korvane AVC Video Encoder Dialog</source>
        <extracomment>Placeholder: the dialog sets its own title.</extracomment>
        <translation>Korvane AVC Video Encoder – Dialog</translation>
    </message>
    <message>
        <source>Banner</source>
        <extracomment>For assistive technology: the picture at the top.</extracomment>
        <translation>Banner</translation>
    </message>
    <message>
        <source>Preset:</source>
        <extracomment>A named set of default settings.</extracomment>
        <translation>Voreinstellung:</translation>
    </message>
    <message>
        <source>Type of stream; choosing one loads its default settings.</source>
        <translation>Art des Datenstroms; die Wahl lädt die zugehörigen Standardwerte.</translation>
    </message>
    <message>
        <source>Click this button to load/restore the default settings for selected preset.</source>
        <translation>Lädt die Standardwerte der gewählten Voreinstellung oder stellt sie wieder her.</translation>
    </message>
    <message>
        <source>Restore preset</source>
        <translation>Voreinstellung wiederherstellen</translation>
    </message>
    <message>
        <source>Load settings</source>
        <translation>Einstellungen laden</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Einstellungen speichern</translation>
    </message>
    <message>
        <source>Info Window</source>
        <extracomment>Tool tip of the frame around the message log.</extracomment>
        <translation>Meldungsfenster</translation>
    </message>
    <message>
        <source>Messages of the encoder&apos;s last check of the settings.</source>
        <translation>Meldungen der letzten Prüfung der Einstellungen durch den Encoder.</translation>
    </message>
    <message>
        <source>Message log</source>
        <extracomment>For assistive technology.</extracomment>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Settings</source>
        <extracomment>For assistive technology: the row of tabs.</extracomment>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Basic Settings</source>
        <extracomment>Placeholder: the dialog makes tabs of its own.</extracomment>
        <translation>Grundeinstellungen</translation>
    </message>
    <message>
        <source>Advanced Video Settings</source>
        <extracomment>Placeholder: the dialog makes tabs of its own.</extracomment>
        <translation>Erweiterte Videoeinstellungen</translation>
    </message>
    <message>
        <source>Miscellaneous</source>
        <extracomment>Placeholder: the dialog makes tabs of its own.</extracomment>
        <translation>Verschiedenes</translation>
    </message>
    <message>
        <source>Close without applying the changes.</source>
        <translation>Schließt, ohne die Änderungen zu übernehmen.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Check the settings, apply them and close.</source>
        <translation>Prüft die Einstellungen, übernimmt sie und schließt.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Load settings from a file (Alt+L).</source>
        <translation>Lädt Einstellungen aus einer Datei (Alt+L).</translation>
    </message>
    <message>
        <source>Save settings to a file (Alt+S).</source>
        <translation>Speichert die Einstellungen in einer Datei (Alt+S).</translation>
    </message>
</context>
<context>
    <name>IAdvancedPage</name>
    <message>
        <source>Advanced Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>Seite „Erweitert“</translation>
    </message>
    <message>
        <source>Profile and level</source>
        <extracomment>For assistive technology: the group of both lists.</extracomment>
        <translation>Profil und Level</translation>
    </message>
    <message>
        <source>Profile:</source>
        <extracomment>Profile of H.264; its names, as High, stay as they are.</extracomment>
        <translation>Profil:</translation>
    </message>
    <message>
        <source>Profile of the base view; it decides which coding tools may be used.</source>
        <translation>Profil der Basisansicht; es bestimmt, welche Codierwerkzeuge erlaubt sind.</translation>
    </message>
    <message>
        <source>Level:</source>
        <extracomment>Level of H.264, as 4.1.</extracomment>
        <translation>Level:</translation>
    </message>
    <message>
        <source>Level, which limits picture size, rate and buffers; &quot;Auto&quot; takes the lowest that fits.</source>
        <translation>Level, das Bildgröße, Rate und Puffer begrenzt; „Auto“ wählt das niedrigste ausreichende.</translation>
    </message>
</context>
<context>
    <name>IBasicPage</name>
    <message>
        <source>Basic Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>Seite „Grundeinstellungen“</translation>
    </message>
    <message>
        <source>CUDA Devices:</source>
        <extracomment>Hidden; CUDA is a name.</extracomment>
        <translation>CUDA-Geräte:</translation>
    </message>
</context>
<context>
    <name>IGOPStructurePage</name>
    <message>
        <source>GOP Structure Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>Seite „GOP-Struktur“</translation>
    </message>
    <message>
        <source>Enable scene detection</source>
        <extracomment>Check box. Scenes change at cuts.</extracomment>
        <translation>Szenenwechsel erkennen</translation>
    </message>
    <message>
        <source>Places an I-frame at each scene change that is found.</source>
        <translation>Setzt an jeden erkannten Szenenwechsel ein I-Bild.</translation>
    </message>
    <message>
        <source>I-frame settings</source>
        <translation>I-Bilder</translation>
    </message>
    <message>
        <source>I-frame interval</source>
        <translation>I-Bild-Abstand</translation>
    </message>
    <message>
        <source>Distance between I-frames in frames; with 0 only the first frame is one.</source>
        <translation>Abstand der I-Bilder in Bildern; bei 0 ist nur das erste Bild ein I-Bild.</translation>
    </message>
    <message>
        <source>Min. I-frame distance</source>
        <extracomment>Min. is the minimum.</extracomment>
        <translation>Min. I-Bild-Abstand</translation>
    </message>
    <message>
        <source>Smallest distance in frames that scene detection keeps between I-frames.</source>
        <translation>Kleinster Abstand in Bildern, den die Szenenerkennung zwischen I-Bildern einhält.</translation>
    </message>
    <message>
        <source>Mark every</source>
        <extracomment>One row with a number from 0 to 99 and &quot;I-frame as IDR.&quot;; the parts may be worded anew.</extracomment>
        <translation>Ein IDR-Bild je</translation>
    </message>
    <message>
        <source>Mark every so many I-frames as IDR</source>
        <extracomment>For assistive technology: the number between &quot;Mark every&quot; and &quot;I-frame as IDR.&quot;.</extracomment>
        <translation>Anzahl der I-Bilder je IDR-Bild</translation>
    </message>
    <message>
        <source>Every how many I-frames one is an IDR picture; 0 marks only the first.</source>
        <translation>Jedes wievielte I-Bild ein IDR-Bild ist; bei 0 ist es nur das erste.</translation>
    </message>
    <message>
        <source>I-frame as IDR.</source>
        <extracomment>One row with &quot;Mark every&quot; and a number from 0 to 99; the parts may be worded anew.</extracomment>
        <translation>I-Bilder</translation>
    </message>
    <message>
        <source>Fixed I-frames distance</source>
        <extracomment>Check box: the distance stays the same after scene changes.</extracomment>
        <translation>Fester I-Bild-Abstand</translation>
    </message>
    <message>
        <source>Keeps I-frames at their interval after a scene change.</source>
        <translation>Behält den Abstand der I-Bilder nach einem Szenenwechsel bei.</translation>
    </message>
    <message>
        <source>B-frame settings</source>
        <translation>B-Bilder</translation>
    </message>
    <message>
        <source>Adaptive B-frame placement</source>
        <translation>B-Bilder adaptiv setzen</translation>
    </message>
    <message>
        <source>Lets the encoder use fewer B-frames where motion makes them costly.</source>
        <translation>Lässt den Encoder weniger B-Bilder setzen, wo Bewegung sie teuer macht.</translation>
    </message>
    <message>
        <source>Pyramidal structure for B-frames</source>
        <translation>Pyramidenstruktur der B-Bilder</translation>
    </message>
    <message>
        <source>Orders B-frames in a hierarchy in which inner ones refer to outer ones.</source>
        <translation>Ordnet B-Bilder in einer Hierarchie, in der innere sich auf äußere beziehen.</translation>
    </message>
    <message>
        <source>Number of B-frames</source>
        <translation>Anzahl der B-Bilder</translation>
    </message>
    <message>
        <source>Number of consecutive B-frames between I- or P-frames.</source>
        <translation>Anzahl der aufeinanderfolgenden B-Bilder zwischen I- oder P-Bildern.</translation>
    </message>
    <message>
        <source>B-frames as reference frames</source>
        <translation>B-Bilder als Referenzbilder</translation>
    </message>
    <message>
        <source>Allows B-frames to be references of other frames.</source>
        <translation>Erlaubt B-Bilder als Referenzen anderer Bilder.</translation>
    </message>
</context>
<context>
    <name>IMiscPage</name>
    <message>
        <source>Miscallaneous Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>Seite „Verschiedenes“</translation>
    </message>
    <message>
        <source>Deblocking filter</source>
        <translation>Deblocking-Filter</translation>
    </message>
    <message>
        <source>Smooths block edges inside the coding loop, so that references are smoothed, too.</source>
        <translation>Glättet Blockkanten in der Codierschleife und damit auch die Referenzbilder.</translation>
    </message>
    <message>
        <source>Entropy coding mode</source>
        <translation>Entropiecodierung</translation>
    </message>
    <message>
        <source>Entropy coder of the stream; CABAC needs fewer bits than CAVLC, and more time.</source>
        <translation>Entropiecodierer des Datenstroms; CABAC braucht weniger Bits als CAVLC, aber mehr Zeit.</translation>
    </message>
    <message>
        <source>Threads</source>
        <extracomment>Number of threads of execution.</extracomment>
        <translation>Threads</translation>
    </message>
    <message>
        <source>Number of threads that the encoder works with; &quot;Auto&quot; leaves it to the encoder.</source>
        <translation>Anzahl der Threads, mit denen der Encoder arbeitet; bei „Auto“ bestimmt er sie selbst.</translation>
    </message>
    <message>
        <source>Auto</source>
        <extracomment>Shown for the number 0: the encoder chooses.</extracomment>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Slices per picture</source>
        <extracomment>Slices of H.264: parts of a picture that are coded separately.</extracomment>
        <translation>Slices je Bild</translation>
    </message>
    <message>
        <source>Number of slices that each picture is divided into.</source>
        <translation>Anzahl der Slices, in die jedes Bild geteilt wird.</translation>
    </message>
</context>
<context>
    <name>IMotionEstimationPage</name>
    <message>
        <source>Motion Estimation Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>Seite „Bewegungsschätzung“</translation>
    </message>
    <message>
        <source>Macroblock search block size</source>
        <extracomment>The smallest block that is searched for: 16 x 16 or 8 x 8.</extracomment>
        <translation>Kleinster Suchblock</translation>
    </message>
    <message>
        <source>Smallest macroblock partition that the motion search tries.</source>
        <translation>Kleinste Makroblock-Partition, die die Bewegungssuche prüft.</translation>
    </message>
    <message>
        <source>Subpixel search depth</source>
        <extracomment>How finely motion is searched: full, half or quarter samples.</extracomment>
        <translation>Subpixel-Suche</translation>
    </message>
    <message>
        <source>Precision to which motion vectors are refined.</source>
        <translation>Genauigkeit, mit der Bewegungsvektoren bestimmt werden.</translation>
    </message>
    <message>
        <source>Reference frames</source>
        <translation>Referenzbilder</translation>
    </message>
    <message>
        <source>Number of reference frames per view.</source>
        <translation>Anzahl der Referenzbilder je Ansicht.</translation>
    </message>
    <message>
        <source>Motion vector search range</source>
        <translation>Suchbereich der Vektoren</translation>
    </message>
    <message>
        <source>Distance in luma samples up to which motion is searched.</source>
        <translation>Entfernung in Luma-Abtastwerten, bis zu der gesucht wird.</translation>
    </message>
    <message>
        <source>Weighted prediction for P-frames</source>
        <translation>Gewichtete Prädiktion für P-Bilder</translation>
    </message>
    <message>
        <source>Weights the references of P-frames, which helps with fades.</source>
        <translation>Gewichtet die Referenzen von P-Bildern, was bei Auf- und Abblenden hilft.</translation>
    </message>
    <message>
        <source>Fast multi-reference frame search</source>
        <translation>Schnelle Suche in mehreren Referenzen</translation>
    </message>
    <message>
        <source>Searches further reference frames only where the first one predicts badly.</source>
        <translation>Sucht in weiteren Referenzbildern nur, wo das erste schlecht vorhersagt.</translation>
    </message>
    <message>
        <source>Fast sub-block search</source>
        <translation>Schnelle Suche in Teilblöcken</translation>
    </message>
    <message>
        <source>Searches small partitions only where large ones predict badly.</source>
        <translation>Prüft kleine Partitionen nur, wo große schlecht vorhersagen.</translation>
    </message>
</context>
<context>
    <name>IRateDistortionPage</name>
    <message>
        <source>Rate Distortion Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>Seite „Rate-Distortion“</translation>
    </message>
    <message>
        <source>Fast intra decisions</source>
        <translation>Schnelle Intra-Entscheidung</translation>
    </message>
    <message>
        <source>Tries only the likely intra prediction modes.</source>
        <translation>Prüft nur die wahrscheinlichen Intra-Prädiktionsmodi.</translation>
    </message>
    <message>
        <source>Fast inter decisions</source>
        <translation>Schnelle Inter-Entscheidung</translation>
    </message>
    <message>
        <source>Tries only the likely inter prediction modes.</source>
        <translation>Prüft nur die wahrscheinlichen Inter-Prädiktionsmodi.</translation>
    </message>
    <message>
        <source>Simplified RD optimization</source>
        <extracomment>RD is rate distortion.</extracomment>
        <translation>Vereinfachte RD-Optimierung</translation>
    </message>
    <message>
        <source>Estimates rate and distortion instead of coding each candidate.</source>
        <translation>Schätzt Rate und Verzerrung, statt jeden Kandidaten zu codieren.</translation>
    </message>
    <message>
        <source> Hadamard transformation</source>
        <extracomment>Check box. Keep the blank at the start.</extracomment>
        <translation> Hadamard-Transformation</translation>
    </message>
    <message>
        <source>Measures distortion by the Hadamard transform of the difference.</source>
        <translation>Misst die Verzerrung an der Hadamard-Transformierten der Differenz.</translation>
    </message>
    <message>
        <source>Adaptive quantization</source>
        <translation>Adaptive Quantisierung</translation>
    </message>
    <message>
        <source>Brightness based</source>
        <extracomment>Adaptive quantization by the brightness of the picture&apos;s parts.</extracomment>
        <translation>Nach Helligkeit</translation>
    </message>
    <message>
        <source>Strength of adaptive quantization by brightness; 0 switches it off.</source>
        <translation>Stärke der adaptiven Quantisierung nach Helligkeit; 0 schaltet sie aus.</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <extracomment>Placeholder: replaced by the slider&apos;s value.</extracomment>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Contrast based</source>
        <extracomment>Adaptive quantization by the contrast of the picture&apos;s parts.</extracomment>
        <translation>Nach Kontrast</translation>
    </message>
    <message>
        <source>Strength of adaptive quantization by contrast; 0 switches it off.</source>
        <translation>Stärke der adaptiven Quantisierung nach Kontrast; 0 schaltet sie aus.</translation>
    </message>
    <message>
        <source>Complexity based</source>
        <extracomment>Adaptive quantization by the complexity of the picture&apos;s parts.</extracomment>
        <translation>Nach Komplexität</translation>
    </message>
    <message>
        <source>Strength of adaptive quantization by complexity; 0 switches it off.</source>
        <translation>Stärke der adaptiven Quantisierung nach Komplexität; 0 schaltet sie aus.</translation>
    </message>
</context>
<context>
    <name>IVideoFormatPage</name>
    <message>
        <source>Video Format Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>Seite „Videoformat“</translation>
    </message>
    <message>
        <source>Resolution</source>
        <extracomment>Picture size, as 1920 x 1080.</extracomment>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Picture width</source>
        <extracomment>For assistive technology.</extracomment>
        <translation>Bildbreite</translation>
    </message>
    <message>
        <source>Width of the coded picture in luma samples.</source>
        <translation>Breite des codierten Bildes in Luma-Abtastwerten.</translation>
    </message>
    <message>
        <source>x</source>
        <extracomment>Stands between two numbers, as in 1920 x 1080.</extracomment>
        <translation>x</translation>
    </message>
    <message>
        <source>Picture height</source>
        <extracomment>For assistive technology.</extracomment>
        <translation>Bildhöhe</translation>
    </message>
    <message>
        <source>Height of the coded picture in luma samples.</source>
        <translation>Höhe des codierten Bildes in Luma-Abtastwerten.</translation>
    </message>
    <message>
        <source>Keep aspect ratio</source>
        <extracomment>Check box: width follows height and the other way round. The list beside it holds the ratio.</extracomment>
        <translation>Seitenverhältnis wahren</translation>
    </message>
    <message>
        <source>Keeps width and height in the chosen display aspect ratio while one of them is changed.</source>
        <translation>Behält das gewählte Bildseitenverhältnis bei, wenn Breite oder Höhe geändert wird.</translation>
    </message>
    <message>
        <source>Picture aspect ratio</source>
        <extracomment>For assistive technology: the list beside &quot;Keep aspect ratio&quot;.</extracomment>
        <translation>Bildseitenverhältnis</translation>
    </message>
    <message>
        <source>Display aspect ratio; &quot;Custom&quot; leaves it to the pixel aspect ratio.</source>
        <translation>Bildseitenverhältnis; bei „Benutzerdefiniert“ folgt es aus dem Pixelseitenverhältnis.</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>Frame rate of each view in frames per second.</source>
        <translation>Bildrate jeder Ansicht in Bildern pro Sekunde.</translation>
    </message>
    <message>
        <source>Pixel aspect ratio</source>
        <translation>Pixelseitenverhältnis</translation>
    </message>
    <message>
        <source>Pixel aspect ratio, horizontal part</source>
        <extracomment>For assistive technology: the first number of the ratio.</extracomment>
        <translation>Pixelseitenverhältnis, waagerechter Anteil</translation>
    </message>
    <message>
        <source>Pixel aspect ratio, vertical part</source>
        <extracomment>For assistive technology: the second number of the ratio.</extracomment>
        <translation>Pixelseitenverhältnis, senkrechter Anteil</translation>
    </message>
    <message>
        <source>Picture structure</source>
        <extracomment>Progressive, interlaced or MBAFF.</extracomment>
        <translation>Bildstruktur</translation>
    </message>
    <message>
        <source>Field order</source>
        <extracomment>Fields are the halves of an interlaced frame.</extracomment>
        <translation>Halbbildreihenfolge</translation>
    </message>
    <message>
        <source>Which field of an interlaced frame comes first in time.</source>
        <translation>Welches Halbbild eines Zeilensprungbildes zeitlich das erste ist.</translation>
    </message>
    <message>
        <source>Pulldown</source>
        <extracomment>Repetition of fields or frames, as in 2:3 pulldown.</extracomment>
        <translation>Pulldown</translation>
    </message>
    <message>
        <source>Repetition of fields or frames at display, signalled in the stream.</source>
        <translation>Wiederholung von Halb- oder Vollbildern bei der Anzeige, im Datenstrom signalisiert.</translation>
    </message>
    <message>
        <source>Chroma format</source>
        <translation>Chroma-Format</translation>
    </message>
    <message>
        <source>Sampling of the chroma planes relative to luma.</source>
        <translation>Abtastung der Chroma-Ebenen im Verhältnis zur Luma-Ebene.</translation>
    </message>
    <message>
        <source>Bit-depth luma</source>
        <translation>Bittiefe Luma</translation>
    </message>
    <message>
        <source>Bits per luma sample.</source>
        <translation>Anzahl der Bits je Luma-Abtastwert.</translation>
    </message>
    <message>
        <source>Bit-depth chroma</source>
        <translation>Bittiefe Chroma</translation>
    </message>
    <message>
        <source>Bits per chroma sample.</source>
        <translation>Anzahl der Bits je Chroma-Abtastwert.</translation>
    </message>
    <message>
        <source>Horizontal part of the pixel aspect ratio; -1 derives it from the display aspect ratio.</source>
        <translation>Waagerechter Anteil des Pixelseitenverhältnisses; bei -1 folgt er aus dem Bildseitenverhältnis.</translation>
    </message>
    <message>
        <source>Vertical part of the pixel aspect ratio; -1 derives it from the display aspect ratio.</source>
        <translation>Senkrechter Anteil des Pixelseitenverhältnisses; bei -1 folgt er aus dem Bildseitenverhältnis.</translation>
    </message>
    <message>
        <source>Codes pictures as frames, as fields, or as frames with field macroblock pairs (MBAFF).</source>
        <translation>Codiert Vollbilder, Halbbilder oder Vollbilder mit Halbbild-Makroblockpaaren (MBAFF).</translation>
    </message>
</context>
<context>
    <name>IView0Page</name>
    <message>
        <source>View1 Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>Seite „Ansicht 1“</translation>
    </message>
    <message>
        <source>Bitrate mode</source>
        <translation>Bitratenmodus</translation>
    </message>
    <message>
        <source>How bits are spread: at a constant or variable rate, or at constant quality.</source>
        <translation>Verteilung der Bits: mit konstanter oder variabler Rate oder mit konstanter Qualität.</translation>
    </message>
    <message>
        <source>Target bitrate (bps)</source>
        <extracomment>The bitrate aimed at; bps are bits per second.</extracomment>
        <translation>Zielbitrate (Bit/s)</translation>
    </message>
    <message>
        <source>Max bitrate (bps)</source>
        <extracomment>Max is the maximum; bps are bits per second.</extracomment>
        <translation>Max. Bitrate (Bit/s)</translation>
    </message>
    <message>
        <source>Buffers</source>
        <translation>Puffer</translation>
    </message>
    <message>
        <source>Units</source>
        <extracomment>Units of measurement.</extracomment>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Bitrate buffer (bytes), VBV buffers (%)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>Puffer in Byte, VBV-Füllung in %</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits), VBV buffers (bits)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>Puffer in Bit, VBV-Füllung in Bit</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits), VBV buffers (90  kHz clock)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>Puffer in Bit, VBV-Füllung in 90-kHz-Takten</translation>
    </message>
    <message>
        <source>Bitrate buffer</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>Puffer</translation>
    </message>
    <message>
        <source>VBV buffer initial</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>VBV-Anfangsfüllung</translation>
    </message>
    <message>
        <source>VBV buffer target</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>VBV-Zielfüllung</translation>
    </message>
    <message>
        <source>Force bitrate buffer length to 1 second</source>
        <extracomment>Check box: the buffer&apos;s size follows from the target bitrate.</extracomment>
        <translation>Pufferlänge auf 1 Sekunde festlegen</translation>
    </message>
    <message>
        <source>HRD conformance</source>
        <extracomment>HRD is the hypothetical reference decoder of H.264.</extracomment>
        <translation>HRD-Konformität</translation>
    </message>
    <message>
        <source>Keeps the stream within the buffer model of the hypothetical reference decoder (HRD).</source>
        <translation>Hält das Puffermodell des hypothetischen Referenzdecoders (HRD) ein.</translation>
    </message>
    <message>
        <source>Maximum I-frame size</source>
        <translation>Max. Größe der I-Bilder</translation>
    </message>
    <message>
        <source>Largest coded I-frame in bytes; 0 sets no limit.</source>
        <translation>Größtes codiertes I-Bild in Byte; 0 setzt keine Grenze.</translation>
    </message>
    <message>
        <source>Maximum P-frame size</source>
        <translation>Max. Größe der P-Bilder</translation>
    </message>
    <message>
        <source>Largest coded P-frame in bytes; 0 sets no limit.</source>
        <translation>Größtes codiertes P-Bild in Byte; 0 setzt keine Grenze.</translation>
    </message>
    <message>
        <source>Maximum B-frame size</source>
        <translation>Max. Größe der B-Bilder</translation>
    </message>
    <message>
        <source>Largest coded B-frame in bytes; 0 sets no limit.</source>
        <translation>Größtes codiertes B-Bild in Byte; 0 setzt keine Grenze.</translation>
    </message>
    <message>
        <source>Maximum Br-frame size</source>
        <extracomment>Br-frames are B-frames that are reference frames.</extracomment>
        <translation>Max. Größe der Br-Bilder</translation>
    </message>
    <message>
        <source>Largest coded B-frame that is a reference, in bytes; 0 sets no limit.</source>
        <translation>Größtes codiertes B-Bild, das Referenz ist, in Byte; 0 setzt keine Grenze.</translation>
    </message>
    <message>
        <source>Quantizer I-frames</source>
        <extracomment>Quantization parameter of I-frames, a number.</extracomment>
        <translation>Quantisierer der I-Bilder</translation>
    </message>
    <message>
        <source>Quantizer of I-frames; larger values save bits at the cost of quality.</source>
        <translation>Quantisierer der I-Bilder; größere Werte sparen Bits auf Kosten der Qualität.</translation>
    </message>
    <message>
        <source>Quantizer P-frames</source>
        <extracomment>Quantization parameter of P-frames, a number.</extracomment>
        <translation>Quantisierer der P-Bilder</translation>
    </message>
    <message>
        <source>Quantizer of P-frames; larger values save bits at the cost of quality.</source>
        <translation>Quantisierer der P-Bilder; größere Werte sparen Bits auf Kosten der Qualität.</translation>
    </message>
    <message>
        <source>Quantizer B-frames</source>
        <extracomment>Quantization parameter of B-frames, a number.</extracomment>
        <translation>Quantisierer der B-Bilder</translation>
    </message>
    <message>
        <source>Quantizer of B-frames; larger values save bits at the cost of quality.</source>
        <translation>Quantisierer der B-Bilder; größere Werte sparen Bits auf Kosten der Qualität.</translation>
    </message>
    <message>
        <source>Maximum quantizer</source>
        <extracomment>Largest quantization parameter that the encoder may choose.</extracomment>
        <translation>Größter Quantisierer</translation>
    </message>
    <message>
        <source>Largest quantizer that the encoder may choose.</source>
        <translation>Größter Quantisierer, den der Encoder wählen darf.</translation>
    </message>
    <message>
        <source>Minimum quantizer</source>
        <extracomment>Smallest quantization parameter that the encoder may choose.</extracomment>
        <translation>Kleinster Quantisierer</translation>
    </message>
    <message>
        <source>Smallest quantizer that the encoder may choose.</source>
        <translation>Kleinster Quantisierer, den der Encoder wählen darf.</translation>
    </message>
    <message>
        <source>Bitrate aimed at, in bits per second.</source>
        <translation>Angestrebte Bitrate in Bit pro Sekunde.</translation>
    </message>
    <message>
        <source>Highest bitrate at which the buffer is filled, in bits per second.</source>
        <translation>Höchste Bitrate, mit der sich der Puffer füllt, in Bit pro Sekunde.</translation>
    </message>
    <message>
        <source>Buffer size in bytes, buffer fullness in percent. Switching does not convert the numbers.</source>
        <translation>Puffergröße in Byte, Füllung in Prozent. Ein Wechsel rechnet die Zahlen nicht um.</translation>
    </message>
    <message>
        <source>Buffer size and buffer fullness in bits. Switching does not convert the numbers.</source>
        <translation>Puffergröße und Füllung in Bit. Ein Wechsel rechnet die Zahlen nicht um.</translation>
    </message>
    <message>
        <source>Buffer size in bits, buffer fullness in 90 kHz ticks. Switching does not convert the numbers.</source>
        <translation>Puffergröße in Bit, Füllung in 90-kHz-Takten. Ein Wechsel rechnet die Zahlen nicht um.</translation>
    </message>
    <message>
        <source>Size of the coded picture buffer (VBV), in the chosen units.</source>
        <translation>Größe des Puffers für codierte Bilder (VBV), in der gewählten Einheit.</translation>
    </message>
    <message>
        <source>Fullness of the coded picture buffer (VBV) when decoding starts.</source>
        <translation>Füllung des Puffers für codierte Bilder (VBV) bei Beginn der Decodierung.</translation>
    </message>
    <message>
        <source>Target fullness of the coded picture buffer (VBV). Only shown here: a preset or file sets it.</source>
        <translation>Zielfüllung des Puffers für codierte Bilder (VBV). Nur Anzeige: aus Voreinstellung oder Datei.</translation>
    </message>
    <message>
        <source>Keeps the buffer as large as what arrives in one second at the target bitrate.</source>
        <translation>Bemisst den Puffer auf die Datenmenge, die bei der Zielbitrate in einer Sekunde ankommt.</translation>
    </message>
</context>
<context>
    <name>IView1Page</name>
    <message>
        <source>View1 Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>Seite „Ansicht 1“</translation>
    </message>
    <message>
        <source>Bitrate mode</source>
        <translation>Bitratenmodus</translation>
    </message>
    <message>
        <source>How bits are spread: at a constant or variable rate, or at constant quality.</source>
        <translation>Verteilung der Bits: mit konstanter oder variabler Rate oder mit konstanter Qualität.</translation>
    </message>
    <message>
        <source>Target bitrate (bps)</source>
        <extracomment>The bitrate aimed at; bps are bits per second.</extracomment>
        <translation>Zielbitrate (Bit/s)</translation>
    </message>
    <message>
        <source>Max bitrate (bps)</source>
        <extracomment>Max is the maximum; bps are bits per second.</extracomment>
        <translation>Max. Bitrate (Bit/s)</translation>
    </message>
    <message>
        <source>Buffers</source>
        <translation>Puffer</translation>
    </message>
    <message>
        <source>Units</source>
        <extracomment>Units of measurement.</extracomment>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Bitrate buffer (bytes), VBV buffers (%)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>Puffer in Byte, VBV-Füllung in %</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits), VBV buffers (bits)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>Puffer in Bit, VBV-Füllung in Bit</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits), VBV buffers (90  kHz clock)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>Puffer in Bit, VBV-Füllung in 90-kHz-Takten</translation>
    </message>
    <message>
        <source>Bitrate buffer</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>Puffer</translation>
    </message>
    <message>
        <source>VBV buffer initial</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>VBV-Anfangsfüllung</translation>
    </message>
    <message>
        <source>VBV buffer target</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>VBV-Zielfüllung</translation>
    </message>
    <message>
        <source>Force bitrate buffer length to 1 second</source>
        <extracomment>Check box: the buffer&apos;s size follows from the target bitrate.</extracomment>
        <translation>Pufferlänge auf 1 Sekunde festlegen</translation>
    </message>
    <message>
        <source>HRD conformance</source>
        <extracomment>HRD is the hypothetical reference decoder of H.264.</extracomment>
        <translation>HRD-Konformität</translation>
    </message>
    <message>
        <source>Keeps the stream within the buffer model of the hypothetical reference decoder (HRD).</source>
        <translation>Hält das Puffermodell des hypothetischen Referenzdecoders (HRD) ein.</translation>
    </message>
    <message>
        <source>Maximum I-frame size</source>
        <translation>Max. Größe der I-Bilder</translation>
    </message>
    <message>
        <source>Largest coded I-frame in bytes; 0 sets no limit.</source>
        <translation>Größtes codiertes I-Bild in Byte; 0 setzt keine Grenze.</translation>
    </message>
    <message>
        <source>Maximum P-frame size</source>
        <translation>Max. Größe der P-Bilder</translation>
    </message>
    <message>
        <source>Largest coded P-frame in bytes; 0 sets no limit.</source>
        <translation>Größtes codiertes P-Bild in Byte; 0 setzt keine Grenze.</translation>
    </message>
    <message>
        <source>Maximum B-frame size</source>
        <translation>Max. Größe der B-Bilder</translation>
    </message>
    <message>
        <source>Largest coded B-frame in bytes; 0 sets no limit.</source>
        <translation>Größtes codiertes B-Bild in Byte; 0 setzt keine Grenze.</translation>
    </message>
    <message>
        <source>Maximum Br-frame size</source>
        <extracomment>Br-frames are B-frames that are reference frames.</extracomment>
        <translation>Max. Größe der Br-Bilder</translation>
    </message>
    <message>
        <source>Largest coded B-frame that is a reference, in bytes; 0 sets no limit.</source>
        <translation>Größtes codiertes B-Bild, das Referenz ist, in Byte; 0 setzt keine Grenze.</translation>
    </message>
    <message>
        <source>Quantizer I-frames</source>
        <extracomment>Quantization parameter of I-frames, a number.</extracomment>
        <translation>Quantisierer der I-Bilder</translation>
    </message>
    <message>
        <source>Quantizer of I-frames; larger values save bits at the cost of quality.</source>
        <translation>Quantisierer der I-Bilder; größere Werte sparen Bits auf Kosten der Qualität.</translation>
    </message>
    <message>
        <source>Quantizer P-frames</source>
        <extracomment>Quantization parameter of P-frames, a number.</extracomment>
        <translation>Quantisierer der P-Bilder</translation>
    </message>
    <message>
        <source>Quantizer of P-frames; larger values save bits at the cost of quality.</source>
        <translation>Quantisierer der P-Bilder; größere Werte sparen Bits auf Kosten der Qualität.</translation>
    </message>
    <message>
        <source>Quantizer B-frames</source>
        <extracomment>Quantization parameter of B-frames, a number.</extracomment>
        <translation>Quantisierer der B-Bilder</translation>
    </message>
    <message>
        <source>Quantizer of B-frames; larger values save bits at the cost of quality.</source>
        <translation>Quantisierer der B-Bilder; größere Werte sparen Bits auf Kosten der Qualität.</translation>
    </message>
    <message>
        <source>Maximum quantizer</source>
        <extracomment>Largest quantization parameter that the encoder may choose.</extracomment>
        <translation>Größter Quantisierer</translation>
    </message>
    <message>
        <source>Largest quantizer that the encoder may choose.</source>
        <translation>Größter Quantisierer, den der Encoder wählen darf.</translation>
    </message>
    <message>
        <source>Minimum quantizer</source>
        <extracomment>Smallest quantization parameter that the encoder may choose.</extracomment>
        <translation>Kleinster Quantisierer</translation>
    </message>
    <message>
        <source>Smallest quantizer that the encoder may choose.</source>
        <translation>Kleinster Quantisierer, den der Encoder wählen darf.</translation>
    </message>
    <message>
        <source>Bitrate aimed at, in bits per second.</source>
        <translation>Angestrebte Bitrate in Bit pro Sekunde.</translation>
    </message>
    <message>
        <source>Highest bitrate at which the buffer is filled, in bits per second.</source>
        <translation>Höchste Bitrate, mit der sich der Puffer füllt, in Bit pro Sekunde.</translation>
    </message>
    <message>
        <source>Buffer size in bytes, buffer fullness in percent. Switching does not convert the numbers.</source>
        <translation>Puffergröße in Byte, Füllung in Prozent. Ein Wechsel rechnet die Zahlen nicht um.</translation>
    </message>
    <message>
        <source>Buffer size and buffer fullness in bits. Switching does not convert the numbers.</source>
        <translation>Puffergröße und Füllung in Bit. Ein Wechsel rechnet die Zahlen nicht um.</translation>
    </message>
    <message>
        <source>Buffer size in bits, buffer fullness in 90 kHz ticks. Switching does not convert the numbers.</source>
        <translation>Puffergröße in Bit, Füllung in 90-kHz-Takten. Ein Wechsel rechnet die Zahlen nicht um.</translation>
    </message>
    <message>
        <source>Size of the coded picture buffer (VBV), in the chosen units.</source>
        <translation>Größe des Puffers für codierte Bilder (VBV), in der gewählten Einheit.</translation>
    </message>
    <message>
        <source>Fullness of the coded picture buffer (VBV) when decoding starts.</source>
        <translation>Füllung des Puffers für codierte Bilder (VBV) bei Beginn der Decodierung.</translation>
    </message>
    <message>
        <source>Target fullness of the coded picture buffer (VBV). Only shown here: a preset or file sets it.</source>
        <translation>Zielfüllung des Puffers für codierte Bilder (VBV). Nur Anzeige: aus Voreinstellung oder Datei.</translation>
    </message>
    <message>
        <source>Keeps the buffer as large as what arrives in one second at the target bitrate.</source>
        <translation>Bemisst den Puffer auf die Datenmenge, die bei der Zielbitrate in einer Sekunde ankommt.</translation>
    </message>
</context>
<context>
    <name>IView2Page</name>
    <message>
        <source>View2 Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>Seite „Ansicht 2“</translation>
    </message>
    <message>
        <source>Bitrate mode</source>
        <translation>Bitratenmodus</translation>
    </message>
    <message>
        <source>How bits are spread: at a constant or variable rate, or at constant quality.</source>
        <translation>Verteilung der Bits: mit konstanter oder variabler Rate oder mit konstanter Qualität.</translation>
    </message>
    <message>
        <source>Target bitrate (bps)</source>
        <extracomment>The bitrate aimed at; bps are bits per second.</extracomment>
        <translation>Zielbitrate (Bit/s)</translation>
    </message>
    <message>
        <source>Max bitrate (bps)</source>
        <extracomment>Max is the maximum; bps are bits per second.</extracomment>
        <translation>Max. Bitrate (Bit/s)</translation>
    </message>
    <message>
        <source>Buffers</source>
        <translation>Puffer</translation>
    </message>
    <message>
        <source>Units</source>
        <extracomment>Units of measurement.</extracomment>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Bitrate buffer (bytes), VBV buffers (%)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>Puffer in Byte, VBV-Füllung in %</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits), VBV buffers (bits)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>Puffer in Bit, VBV-Füllung in Bit</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits), VBV buffers (90  kHz clock)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>Puffer in Bit, VBV-Füllung in 90-kHz-Takten</translation>
    </message>
    <message>
        <source>Bitrate buffer</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>Puffer</translation>
    </message>
    <message>
        <source>VBV buffer initial</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>VBV-Anfangsfüllung</translation>
    </message>
    <message>
        <source>VBV buffer target</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>VBV-Zielfüllung</translation>
    </message>
    <message>
        <source>Force bitrate buffer length to 1 second</source>
        <extracomment>Check box: the buffer&apos;s size follows from the target bitrate.</extracomment>
        <translation>Pufferlänge auf 1 Sekunde festlegen</translation>
    </message>
    <message>
        <source>HRD conformance</source>
        <extracomment>HRD is the hypothetical reference decoder of H.264.</extracomment>
        <translation>HRD-Konformität</translation>
    </message>
    <message>
        <source>Keeps the stream within the buffer model of the hypothetical reference decoder (HRD).</source>
        <translation>Hält das Puffermodell des hypothetischen Referenzdecoders (HRD) ein.</translation>
    </message>
    <message>
        <source>Maximum I-frame size</source>
        <translation>Max. Größe der I-Bilder</translation>
    </message>
    <message>
        <source>Largest coded I-frame in bytes; 0 sets no limit.</source>
        <translation>Größtes codiertes I-Bild in Byte; 0 setzt keine Grenze.</translation>
    </message>
    <message>
        <source>Maximum P-frame size</source>
        <translation>Max. Größe der P-Bilder</translation>
    </message>
    <message>
        <source>Largest coded P-frame in bytes; 0 sets no limit.</source>
        <translation>Größtes codiertes P-Bild in Byte; 0 setzt keine Grenze.</translation>
    </message>
    <message>
        <source>Maximum B-frame size</source>
        <translation>Max. Größe der B-Bilder</translation>
    </message>
    <message>
        <source>Largest coded B-frame in bytes; 0 sets no limit.</source>
        <translation>Größtes codiertes B-Bild in Byte; 0 setzt keine Grenze.</translation>
    </message>
    <message>
        <source>Maximum Br-frame size</source>
        <extracomment>Br-frames are B-frames that are reference frames.</extracomment>
        <translation>Max. Größe der Br-Bilder</translation>
    </message>
    <message>
        <source>Largest coded B-frame that is a reference, in bytes; 0 sets no limit.</source>
        <translation>Größtes codiertes B-Bild, das Referenz ist, in Byte; 0 setzt keine Grenze.</translation>
    </message>
    <message>
        <source>Quantizer I-frames</source>
        <extracomment>Quantization parameter of I-frames, a number.</extracomment>
        <translation>Quantisierer der I-Bilder</translation>
    </message>
    <message>
        <source>Quantizer of I-frames; larger values save bits at the cost of quality.</source>
        <translation>Quantisierer der I-Bilder; größere Werte sparen Bits auf Kosten der Qualität.</translation>
    </message>
    <message>
        <source>Quantizer P-frames</source>
        <extracomment>Quantization parameter of P-frames, a number.</extracomment>
        <translation>Quantisierer der P-Bilder</translation>
    </message>
    <message>
        <source>Quantizer of P-frames; larger values save bits at the cost of quality.</source>
        <translation>Quantisierer der P-Bilder; größere Werte sparen Bits auf Kosten der Qualität.</translation>
    </message>
    <message>
        <source>Quantizer B-frames</source>
        <extracomment>Quantization parameter of B-frames, a number.</extracomment>
        <translation>Quantisierer der B-Bilder</translation>
    </message>
    <message>
        <source>Quantizer of B-frames; larger values save bits at the cost of quality.</source>
        <translation>Quantisierer der B-Bilder; größere Werte sparen Bits auf Kosten der Qualität.</translation>
    </message>
    <message>
        <source>Maximum quantizer</source>
        <extracomment>Largest quantization parameter that the encoder may choose.</extracomment>
        <translation>Größter Quantisierer</translation>
    </message>
    <message>
        <source>Largest quantizer that the encoder may choose.</source>
        <translation>Größter Quantisierer, den der Encoder wählen darf.</translation>
    </message>
    <message>
        <source>Minimum quantizer</source>
        <extracomment>Smallest quantization parameter that the encoder may choose.</extracomment>
        <translation>Kleinster Quantisierer</translation>
    </message>
    <message>
        <source>Smallest quantizer that the encoder may choose.</source>
        <translation>Kleinster Quantisierer, den der Encoder wählen darf.</translation>
    </message>
    <message>
        <source>Bitrate aimed at, in bits per second.</source>
        <translation>Angestrebte Bitrate in Bit pro Sekunde.</translation>
    </message>
    <message>
        <source>Highest bitrate at which the buffer is filled, in bits per second.</source>
        <translation>Höchste Bitrate, mit der sich der Puffer füllt, in Bit pro Sekunde.</translation>
    </message>
    <message>
        <source>Buffer size in bytes, buffer fullness in percent. Switching does not convert the numbers.</source>
        <translation>Puffergröße in Byte, Füllung in Prozent. Ein Wechsel rechnet die Zahlen nicht um.</translation>
    </message>
    <message>
        <source>Buffer size and buffer fullness in bits. Switching does not convert the numbers.</source>
        <translation>Puffergröße und Füllung in Bit. Ein Wechsel rechnet die Zahlen nicht um.</translation>
    </message>
    <message>
        <source>Buffer size in bits, buffer fullness in 90 kHz ticks. Switching does not convert the numbers.</source>
        <translation>Puffergröße in Bit, Füllung in 90-kHz-Takten. Ein Wechsel rechnet die Zahlen nicht um.</translation>
    </message>
    <message>
        <source>Size of the coded picture buffer (VBV), in the chosen units.</source>
        <translation>Größe des Puffers für codierte Bilder (VBV), in der gewählten Einheit.</translation>
    </message>
    <message>
        <source>Fullness of the coded picture buffer (VBV) when decoding starts.</source>
        <translation>Füllung des Puffers für codierte Bilder (VBV) bei Beginn der Decodierung.</translation>
    </message>
    <message>
        <source>Target fullness of the coded picture buffer (VBV). Only shown here: a preset or file sets it.</source>
        <translation>Zielfüllung des Puffers für codierte Bilder (VBV). Nur Anzeige: aus Voreinstellung oder Datei.</translation>
    </message>
    <message>
        <source>Keeps the buffer as large as what arrives in one second at the target bitrate.</source>
        <translation>Bemisst den Puffer auf die Datenmenge, die bei der Zielbitrate in einer Sekunde ankommt.</translation>
    </message>
</context>
<context>
    <name>IView3Page</name>
    <message>
        <source>View3 Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>Seite „Ansicht 3“</translation>
    </message>
    <message>
        <source>Bitrate mode</source>
        <translation>Bitratenmodus</translation>
    </message>
    <message>
        <source>How bits are spread: at a constant or variable rate, or at constant quality.</source>
        <translation>Verteilung der Bits: mit konstanter oder variabler Rate oder mit konstanter Qualität.</translation>
    </message>
    <message>
        <source>Target bitrate (bps)</source>
        <extracomment>The bitrate aimed at; bps are bits per second.</extracomment>
        <translation>Zielbitrate (Bit/s)</translation>
    </message>
    <message>
        <source>Max bitrate (bps)</source>
        <extracomment>Max is the maximum; bps are bits per second.</extracomment>
        <translation>Max. Bitrate (Bit/s)</translation>
    </message>
    <message>
        <source>Buffers</source>
        <translation>Puffer</translation>
    </message>
    <message>
        <source>Units</source>
        <extracomment>Units of measurement.</extracomment>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Bitrate buffer (bytes), VBV buffers (%)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>Puffer in Byte, VBV-Füllung in %</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits), VBV buffers (bits)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>Puffer in Bit, VBV-Füllung in Bit</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits), VBV buffers (90  kHz clock)</source>
        <extracomment>Units of the buffer&apos;s size and of both VBV numbers.</extracomment>
        <translation>Puffer in Bit, VBV-Füllung in 90-kHz-Takten</translation>
    </message>
    <message>
        <source>Bitrate buffer</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>Puffer</translation>
    </message>
    <message>
        <source>VBV buffer initial</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>VBV-Anfangsfüllung</translation>
    </message>
    <message>
        <source>VBV buffer target</source>
        <extracomment>Placeholder until the unit is known.</extracomment>
        <translation>VBV-Zielfüllung</translation>
    </message>
    <message>
        <source>Force bitrate buffer length to 1 second</source>
        <extracomment>Check box: the buffer&apos;s size follows from the target bitrate.</extracomment>
        <translation>Pufferlänge auf 1 Sekunde festlegen</translation>
    </message>
    <message>
        <source>HRD conformance</source>
        <extracomment>HRD is the hypothetical reference decoder of H.264.</extracomment>
        <translation>HRD-Konformität</translation>
    </message>
    <message>
        <source>Keeps the stream within the buffer model of the hypothetical reference decoder (HRD).</source>
        <translation>Hält das Puffermodell des hypothetischen Referenzdecoders (HRD) ein.</translation>
    </message>
    <message>
        <source>Maximum I-frame size</source>
        <translation>Max. Größe der I-Bilder</translation>
    </message>
    <message>
        <source>Largest coded I-frame in bytes; 0 sets no limit.</source>
        <translation>Größtes codiertes I-Bild in Byte; 0 setzt keine Grenze.</translation>
    </message>
    <message>
        <source>Maximum P-frame size</source>
        <translation>Max. Größe der P-Bilder</translation>
    </message>
    <message>
        <source>Largest coded P-frame in bytes; 0 sets no limit.</source>
        <translation>Größtes codiertes P-Bild in Byte; 0 setzt keine Grenze.</translation>
    </message>
    <message>
        <source>Maximum B-frame size</source>
        <translation>Max. Größe der B-Bilder</translation>
    </message>
    <message>
        <source>Largest coded B-frame in bytes; 0 sets no limit.</source>
        <translation>Größtes codiertes B-Bild in Byte; 0 setzt keine Grenze.</translation>
    </message>
    <message>
        <source>Maximum Br-frame size</source>
        <extracomment>Br-frames are B-frames that are reference frames.</extracomment>
        <translation>Max. Größe der Br-Bilder</translation>
    </message>
    <message>
        <source>Largest coded B-frame that is a reference, in bytes; 0 sets no limit.</source>
        <translation>Größtes codiertes B-Bild, das Referenz ist, in Byte; 0 setzt keine Grenze.</translation>
    </message>
    <message>
        <source>Quantizer I-frames</source>
        <extracomment>Quantization parameter of I-frames, a number.</extracomment>
        <translation>Quantisierer der I-Bilder</translation>
    </message>
    <message>
        <source>Quantizer of I-frames; larger values save bits at the cost of quality.</source>
        <translation>Quantisierer der I-Bilder; größere Werte sparen Bits auf Kosten der Qualität.</translation>
    </message>
    <message>
        <source>Quantizer P-frames</source>
        <extracomment>Quantization parameter of P-frames, a number.</extracomment>
        <translation>Quantisierer der P-Bilder</translation>
    </message>
    <message>
        <source>Quantizer of P-frames; larger values save bits at the cost of quality.</source>
        <translation>Quantisierer der P-Bilder; größere Werte sparen Bits auf Kosten der Qualität.</translation>
    </message>
    <message>
        <source>Quantizer B-frames</source>
        <extracomment>Quantization parameter of B-frames, a number.</extracomment>
        <translation>Quantisierer der B-Bilder</translation>
    </message>
    <message>
        <source>Quantizer of B-frames; larger values save bits at the cost of quality.</source>
        <translation>Quantisierer der B-Bilder; größere Werte sparen Bits auf Kosten der Qualität.</translation>
    </message>
    <message>
        <source>Maximum quantizer</source>
        <extracomment>Largest quantization parameter that the encoder may choose.</extracomment>
        <translation>Größter Quantisierer</translation>
    </message>
    <message>
        <source>Largest quantizer that the encoder may choose.</source>
        <translation>Größter Quantisierer, den der Encoder wählen darf.</translation>
    </message>
    <message>
        <source>Minimum quantizer</source>
        <extracomment>Smallest quantization parameter that the encoder may choose.</extracomment>
        <translation>Kleinster Quantisierer</translation>
    </message>
    <message>
        <source>Smallest quantizer that the encoder may choose.</source>
        <translation>Kleinster Quantisierer, den der Encoder wählen darf.</translation>
    </message>
    <message>
        <source>Bitrate aimed at, in bits per second.</source>
        <translation>Angestrebte Bitrate in Bit pro Sekunde.</translation>
    </message>
    <message>
        <source>Highest bitrate at which the buffer is filled, in bits per second.</source>
        <translation>Höchste Bitrate, mit der sich der Puffer füllt, in Bit pro Sekunde.</translation>
    </message>
    <message>
        <source>Buffer size in bytes, buffer fullness in percent. Switching does not convert the numbers.</source>
        <translation>Puffergröße in Byte, Füllung in Prozent. Ein Wechsel rechnet die Zahlen nicht um.</translation>
    </message>
    <message>
        <source>Buffer size and buffer fullness in bits. Switching does not convert the numbers.</source>
        <translation>Puffergröße und Füllung in Bit. Ein Wechsel rechnet die Zahlen nicht um.</translation>
    </message>
    <message>
        <source>Buffer size in bits, buffer fullness in 90 kHz ticks. Switching does not convert the numbers.</source>
        <translation>Puffergröße in Bit, Füllung in 90-kHz-Takten. Ein Wechsel rechnet die Zahlen nicht um.</translation>
    </message>
    <message>
        <source>Size of the coded picture buffer (VBV), in the chosen units.</source>
        <translation>Größe des Puffers für codierte Bilder (VBV), in der gewählten Einheit.</translation>
    </message>
    <message>
        <source>Fullness of the coded picture buffer (VBV) when decoding starts.</source>
        <translation>Füllung des Puffers für codierte Bilder (VBV) bei Beginn der Decodierung.</translation>
    </message>
    <message>
        <source>Target fullness of the coded picture buffer (VBV). Only shown here: a preset or file sets it.</source>
        <translation>Zielfüllung des Puffers für codierte Bilder (VBV). Nur Anzeige: aus Voreinstellung oder Datei.</translation>
    </message>
    <message>
        <source>Keeps the buffer as large as what arrives in one second at the target bitrate.</source>
        <translation>Bemisst den Puffer auf die Datenmenge, die bei der Zielbitrate in einer Sekunde ankommt.</translation>
    </message>
</context>
<context>
    <name>IViewsPage</name>
    <message>
        <source>Views Page</source>
        <extracomment>Title of the page as a window, which it never is.</extracomment>
        <translation>Seite „Ansichten“</translation>
    </message>
    <message>
        <source>Number of views</source>
        <extracomment>For assistive technology: the group of the number and its check box.</extracomment>
        <translation>Anzahl der Ansichten</translation>
    </message>
    <message>
        <source>Number of additional views:</source>
        <translation>Weitere Ansichten:</translation>
    </message>
    <message>
        <source>Number of views that are coded beside the base view.</source>
        <translation>Anzahl der Ansichten, die neben der Basisansicht codiert werden.</translation>
    </message>
    <message>
        <source>Split views</source>
        <extracomment>Check box: each view goes to a stream of its own. Views are not divided.</extracomment>
        <translation>Ansichten trennen</translation>
    </message>
    <message>
        <source>Writes each view to a stream of its own instead of one stream for all.</source>
        <translation>Schreibt jede Ansicht in einen eigenen Datenstrom statt alle in einen.</translation>
    </message>
</context>
<context>
    <name>LimitBars</name>
    <message>
        <source>macroblocks</source>
        <translation>Makroblöcke</translation>
    </message>
    <message>
        <source>macroblocks/s</source>
        <translation>Makroblöcke/s</translation>
    </message>
    <message>
        <source>frames</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>bit</source>
        <translation>Bit</translation>
    </message>
    <message>
        <source>View %1</source>
        <translation>Ansicht %1</translation>
    </message>
    <message>
        <source>%1 of %2 %3</source>
        <extracomment>What is used of a limit, with the unit: &quot;4 of 6 frames&quot;.</extracomment>
        <translation>%1 von %2 %3</translation>
    </message>
    <message>
        <source>%1 too much</source>
        <translation>%1 zu viel</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 frei</translation>
    </message>
    <message>
        <source>Other limits</source>
        <translation>Weitere Grenzen</translation>
    </message>
    <message>
        <source>Limits of level %1</source>
        <translation>Grenzen von Level %1</translation>
    </message>
    <message>
        <source>The encoder tells no limits of these settings.</source>
        <translation>Der Encoder nennt zu diesen Einstellungen keine Grenzen.</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Grenzen</translation>
    </message>
</context>
<context>
    <name>MessageLinks</name>
    <message>
        <source>Go to &quot;%1&quot;: click, or press Enter.</source>
        <translation>Zu „%1“ gehen: klicken oder Eingabetaste drücken.</translation>
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
        <translation>Ganzpixel</translation>
    </message>
    <message>
        <source>Half</source>
        <translation>Halbpixel</translation>
    </message>
    <message>
        <source>Quarter</source>
        <translation>Viertelpixel</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1-Datei</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Verknüpfung</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Erhöhen</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Verringern</translation>
    </message>
</context>
<context>
    <name>QAccessibleActionInterface</name>
    <message>
        <source>Press</source>
        <translation>Drücken</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Erhöhen</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Verringern</translation>
    </message>
    <message>
        <source>ShowMenu</source>
        <translation>Menü zeigen</translation>
    </message>
    <message>
        <source>SetFocus</source>
        <translation>Fokus setzen</translation>
    </message>
    <message>
        <source>Toggle</source>
        <translation>Umschalten</translation>
    </message>
    <message>
        <source>Scroll Left</source>
        <translation>Nach links scrollen</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>Nach rechts scrollen</translation>
    </message>
    <message>
        <source>Scroll Up</source>
        <translation>Nach oben scrollen</translation>
    </message>
    <message>
        <source>Scroll Down</source>
        <translation>Nach unten scrollen</translation>
    </message>
    <message>
        <source>Previous Page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Triggers the action</source>
        <translation>Löst die Aktion aus</translation>
    </message>
    <message>
        <source>Increase the value</source>
        <translation>Erhöht den Wert</translation>
    </message>
    <message>
        <source>Decrease the value</source>
        <translation>Verringert den Wert</translation>
    </message>
    <message>
        <source>Shows the menu</source>
        <translation>Zeigt das Menü</translation>
    </message>
    <message>
        <source>Sets the focus</source>
        <translation>Setzt den Fokus</translation>
    </message>
    <message>
        <source>Toggles the state</source>
        <translation>Schaltet den Zustand um</translation>
    </message>
    <message>
        <source>Scrolls to the left</source>
        <translation>Scrollt nach links</translation>
    </message>
    <message>
        <source>Scrolls to the right</source>
        <translation>Scrollt nach rechts</translation>
    </message>
    <message>
        <source>Scrolls up</source>
        <translation>Scrollt nach oben</translation>
    </message>
    <message>
        <source>Scrolls down</source>
        <translation>Scrollt nach unten</translation>
    </message>
    <message>
        <source>Goes back a page</source>
        <translation>Geht eine Seite zurück</translation>
    </message>
    <message>
        <source>Goes to the next page</source>
        <translation>Geht zur nächsten Seite</translation>
    </message>
</context>
<context>
    <name>QComboBox</name>
    <message>
        <source>Open the combo box selection popup</source>
        <translation>Öffnet die Auswahlliste</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Falsch</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Wahr</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>What&apos;s This?</source>
        <translation>Was ist das?</translation>
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
        <translation>Suchen in:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Geht zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Geht vorwärts</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Übergeordneter Ordner</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Wechselt in den übergeordneten Ordner</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Legt einen neuen Ordner an</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Zeigt Dateien als Liste</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Zeigt Dateien mit Details</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Orte und Lesezeichen</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Dateityp:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Datei&amp;name:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Ordner:</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Ordner suchen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Wählen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Anzeigen: </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>&amp;Versteckte Dateien zeigen</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Neuer Ordner</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Zuletzt besucht</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Mein Rechner</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Der Ordner wurde nicht gefunden.
Bitte prüfen Sie den Namen.</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Die Datei wurde nicht gefunden.
Bitte prüfen Sie den Namen.</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ist bereits vorhanden.
Soll die Datei ersetzt werden?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>„%1“ ist schreibgeschützt.
Soll die Datei trotzdem gelöscht werden?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Soll „%1“ wirklich gelöscht werden?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Der Ordner konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1-Datei</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Verknüpfung</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
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
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Mein Rechner</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Rechner</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Ungültiger Dateiname</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;Der Name „%1“ ist nicht möglich.&lt;/b&gt;&lt;p&gt;Versuchen Sie einen anderen mit weniger Zeichen oder ohne Satzzeichen.</translation>
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
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>%1 byte(s)</source>
        <translation>%1 Byte</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Wieder&amp;herstellen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
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
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Show Details...</source>
        <translation>Details zeigen …</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Details verbergen …</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
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
        <translation>7,60</translation>
    </message>
    <message>
        <source>9.10</source>
        <translation>9,10</translation>
    </message>
    <message>
        <source>10.00</source>
        <translation>10,00</translation>
    </message>
    <message>
        <source>12.50</source>
        <translation>12,50</translation>
    </message>
    <message>
        <source>12.80</source>
        <translation>12,80</translation>
    </message>
    <message>
        <source>15.00</source>
        <translation>15,00</translation>
    </message>
    <message>
        <source>23.98</source>
        <translation>23,98</translation>
    </message>
    <message>
        <source>24.00</source>
        <translation>24,00</translation>
    </message>
    <message>
        <source>25.00</source>
        <translation>25,00</translation>
    </message>
    <message>
        <source>29.97</source>
        <translation>29,97</translation>
    </message>
    <message>
        <source>30.00</source>
        <translation>30,00</translation>
    </message>
    <message>
        <source>50.00</source>
        <translation>50,00</translation>
    </message>
    <message>
        <source>59.94</source>
        <translation>59,94</translation>
    </message>
    <message>
        <source>60.00</source>
        <translation>60,00</translation>
    </message>
    <message>
        <source>Top Field First</source>
        <translation>Oberes zuerst</translation>
    </message>
    <message>
        <source>Bot Field First</source>
        <translation>Unteres zuerst</translation>
    </message>
    <message>
        <source>Progressive</source>
        <translation>Progressiv</translation>
    </message>
    <message>
        <source>Interlaced</source>
        <translation>Zeilensprung</translation>
    </message>
    <message>
        <source>MBAFF</source>
        <translation>MBAFF</translation>
    </message>
    <message>
        <source>8 bits</source>
        <translation>8 Bit</translation>
    </message>
    <message>
        <source>10 bits</source>
        <translation>10 Bit</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
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
        <translation>Auto</translation>
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
        <translation>Konstante Bitrate</translation>
    </message>
    <message>
        <source>Variable Bitrate</source>
        <translation>Variable Bitrate</translation>
    </message>
    <message>
        <source>Const. Quality - Constant Quantizer</source>
        <translation>Qualität – konstanter Quantisierer</translation>
    </message>
    <message>
        <source>Const. Quality - Average Quantizer</source>
        <translation>Qualität – mittlerer Quantisierer</translation>
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
        <translation>Ganzpixel</translation>
    </message>
    <message>
        <source>Half</source>
        <translation>Halbpixel</translation>
    </message>
    <message>
        <source>Quarter</source>
        <translation>Viertelpixel</translation>
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
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Alles speichern</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Ja, &amp;alle</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>N&amp;ein, keine</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Vorgaben wiederherstellen</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Hierher scrollen</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Linker Rand</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Rechter Rand</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Seite nach links</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Seite nach oben</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Seite nach rechts</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Seite nach unten</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Nach links scrollen</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Nach oben scrollen</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Nach rechts scrollen</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Nach unten scrollen</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
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
        <translation>Leertaste</translation>
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
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Ins</source>
        <translation>Einfg</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Runter</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>Bild ab</translation>
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
        <translation>Nach links scrollen</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>Nach rechts scrollen</translation>
    </message>
</context>
<context>
    <name>QUnicodeControlCharacterMenu</name>
    <message>
        <source>Insert Unicode control character</source>
        <translation>Unicode-Steuerzeichen einfügen</translation>
    </message>
    <message>
        <source>LRM Left-to-right mark</source>
        <translation>LRM Zeichen von links nach rechts</translation>
    </message>
    <message>
        <source>RLM Right-to-left mark</source>
        <translation>RLM Zeichen von rechts nach links</translation>
    </message>
    <message>
        <source>ZWJ Zero width joiner</source>
        <translation>ZWJ Verbinder ohne Breite</translation>
    </message>
    <message>
        <source>ZWNJ Zero width non-joiner</source>
        <translation>ZWNJ Trenner ohne Breite</translation>
    </message>
    <message>
        <source>ZWSP Zero width space</source>
        <translation>ZWSP Leerzeichen ohne Breite</translation>
    </message>
    <message>
        <source>LRE Start of left-to-right embedding</source>
        <translation>LRE Beginn einer Einbettung von links nach rechts</translation>
    </message>
    <message>
        <source>RLE Start of right-to-left embedding</source>
        <translation>RLE Beginn einer Einbettung von rechts nach links</translation>
    </message>
    <message>
        <source>LRO Start of left-to-right override</source>
        <translation>LRO Beginn erzwungener Richtung von links nach rechts</translation>
    </message>
    <message>
        <source>RLO Start of right-to-left override</source>
        <translation>RLO Beginn erzwungener Richtung von rechts nach links</translation>
    </message>
    <message>
        <source>PDF Pop directional formatting</source>
        <translation>PDF Ende der Richtungsangabe</translation>
    </message>
    <message>
        <source>LRI Left-to-right isolate</source>
        <translation>LRI Getrennt von links nach rechts</translation>
    </message>
    <message>
        <source>RLI Right-to-left isolate</source>
        <translation>RLI Getrennt von rechts nach links</translation>
    </message>
    <message>
        <source>FSI First strong isolate</source>
        <translation>FSI Getrennt nach erstem starkem Zeichen</translation>
    </message>
    <message>
        <source>PDI Pop directional isolate</source>
        <translation>PDI Ende der Trennung</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Wieder&amp;herstellen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>&amp;Verweis kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>RateDistortionPage</name>
    <message>
        <source>0 (not used)</source>
        <translation>0 (aus)</translation>
    </message>
</context>
<context>
    <name>SettingHelp</name>
    <message>
        <source>Only shown here: a preset or file sets it.</source>
        <translation>Nur Anzeige: aus Voreinstellung oder Datei.</translation>
    </message>
    <message>
        <source>The settings hold two views: what is set for this one goes no further.</source>
        <translation>Die Einstellungen fassen zwei Ansichten: Werte für diese hier werden nicht weitergegeben.</translation>
    </message>
    <message>
        <source>= %1</source>
        <extracomment>The reading of a rate in bits per second that is being typed: &quot;= 22 Mbit/s&quot;.</extracomment>
        <translation>= %1</translation>
    </message>
    <message>
        <source>Range: %1 to %2%3.</source>
        <extracomment>%3 is empty or a unit with a blank before it.</extracomment>
        <translation>Bereich: %1 bis %2%3.</translation>
    </message>
    <message>
        <source>The range rests on: %1.</source>
        <translation>Grundlage des Bereichs: %1.</translation>
    </message>
    <message>
        <source>as opened</source>
        <translation>beim Öffnen</translation>
    </message>
    <message>
        <source>Changed; the starting value is %1 (%2).</source>
        <extracomment>What a setting was at the start, and what the start was: a preset, a file.</extracomment>
        <translation>Geändert; der Ausgangswert ist %1 (%2).</translation>
    </message>
    <message>
        <source>Starting value: %1 (%2).</source>
        <translation>Ausgangswert: %1 (%2).</translation>
    </message>
    <message>
        <source>Changed.</source>
        <translation>Geändert.</translation>
    </message>
    <message>
        <source>Greyed because this view is not coded; see &quot;Number of additional views&quot;.</source>
        <translation>Grau, weil diese Ansicht nicht codiert wird; siehe „Weitere Ansichten“.</translation>
    </message>
    <message>
        <source>Greyed because the program that opened the dialog has set it.</source>
        <translation>Grau, weil das aufrufende Programm den Wert festgelegt hat.</translation>
    </message>
    <message>
        <source>Greyed because the picture aspect ratio sets it, unless that is &quot;Custom&quot;.</source>
        <translation>Grau, weil das Bildseitenverhältnis den Wert bestimmt, außer bei „Benutzerdefiniert“.</translation>
    </message>
    <message>
        <source>Greyed because progressive pictures have no fields.</source>
        <translation>Grau, weil progressive Bilder keine Halbbilder haben.</translation>
    </message>
    <message>
        <source>Greyed because the buffer is kept at the length of 1 second.</source>
        <translation>Grau, weil der Puffer auf der Länge von 1 Sekunde gehalten wird.</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Fehler: %1</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>bits</source>
        <translation>Bit</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>Byte</translation>
    </message>
    <message>
        <source>range of the encoder; H.7.4.2.1.4 allows 1024</source>
        <translation>Bereich des Encoders; H.7.4.2.1.4 erlaubt 1024</translation>
    </message>
    <message>
        <source>range of the encoder; discs allow 3 in a row</source>
        <translation>Bereich des Encoders; Discs erlauben 3 nacheinander</translation>
    </message>
</context>
<context>
    <name>SettingMenu</name>
    <message>
        <source>Reset to %1</source>
        <extracomment>In the context menu of a setting; %1 is the value.</extracomment>
        <translation>Zurück auf %1</translation>
    </message>
    <message>
        <source>Starting value: %1</source>
        <translation>Ausgangswert: %1</translation>
    </message>
    <message>
        <source>Use in all views</source>
        <extracomment>In the context menu of a view&apos;s rate control.</extracomment>
        <translation>In allen Ansichten verwenden</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>on</source>
        <translation>an</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
</context>
<context>
    <name>ToolBox</name>
    <message>
        <source>Shows or hides this section.</source>
        <translation>Zeigt oder verbirgt diesen Abschnitt.</translation>
    </message>
</context>
<context>
    <name>VideoFormatPage</name>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
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
        <translation>7,60</translation>
    </message>
    <message>
        <source>9.10</source>
        <translation>9,10</translation>
    </message>
    <message>
        <source>10.00</source>
        <translation>10,00</translation>
    </message>
    <message>
        <source>12.50</source>
        <translation>12,50</translation>
    </message>
    <message>
        <source>12.80</source>
        <translation>12,80</translation>
    </message>
    <message>
        <source>15.00</source>
        <translation>15,00</translation>
    </message>
    <message>
        <source>23.98</source>
        <translation>23,98</translation>
    </message>
    <message>
        <source>24.00</source>
        <translation>24,00</translation>
    </message>
    <message>
        <source>25.00</source>
        <translation>25,00</translation>
    </message>
    <message>
        <source>29.97</source>
        <translation>29,97</translation>
    </message>
    <message>
        <source>30.00</source>
        <translation>30,00</translation>
    </message>
    <message>
        <source>50.00</source>
        <translation>50,00</translation>
    </message>
    <message>
        <source>59.94</source>
        <translation>59,94</translation>
    </message>
    <message>
        <source>60.00</source>
        <translation>60,00</translation>
    </message>
    <message>
        <source>Progressive</source>
        <translation>Progressiv</translation>
    </message>
    <message>
        <source>Interlaced</source>
        <translation>Zeilensprung</translation>
    </message>
    <message>
        <source>MBAFF</source>
        <translation>MBAFF</translation>
    </message>
    <message>
        <source>Top Field First</source>
        <translation>Oberes zuerst</translation>
    </message>
    <message>
        <source>Bot Field First</source>
        <translation>Unteres zuerst</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
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
        <translation>Auto</translation>
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
        <translation>8 Bit</translation>
    </message>
    <message>
        <source>10 bits</source>
        <translation>10 Bit</translation>
    </message>
</context>
<context>
    <name>View0Page</name>
    <message>
        <source>Constant Bitrate</source>
        <translation>Konstante Bitrate</translation>
    </message>
    <message>
        <source>Variable Bitrate</source>
        <translation>Variable Bitrate</translation>
    </message>
    <message>
        <source>Const. Quality - Constant Quantizer</source>
        <translation>Qualität – konstanter Quantisierer</translation>
    </message>
    <message>
        <source>Const. Quality - Average Quantizer</source>
        <translation>Qualität – mittlerer Quantisierer</translation>
    </message>
    <message>
        <source>Bitrate buffer (bytes)</source>
        <translation>Puffer (Byte)</translation>
    </message>
    <message>
        <source>VBV buffer initial (%)</source>
        <translation>VBV-Anfangsfüllung (%)</translation>
    </message>
    <message>
        <source>VBV buffer target (%)</source>
        <translation>VBV-Zielfüllung (%)</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits)</source>
        <translation>Puffer (Bit)</translation>
    </message>
    <message>
        <source>VBV buffer initial (bits)</source>
        <translation>VBV-Anfangsfüllung (Bit)</translation>
    </message>
    <message>
        <source>VBV buffer target (bits)</source>
        <translation>VBV-Zielfüllung (Bit)</translation>
    </message>
    <message>
        <source>VBV buffer initial (90 kHz)</source>
        <translation>VBV-Anfangsfüllung (90 kHz)</translation>
    </message>
    <message>
        <source>VBV buffer target (90 kHz)</source>
        <translation>VBV-Zielfüllung (90 kHz)</translation>
    </message>
</context>
<context>
    <name>View1Page</name>
    <message>
        <source>Constant Bitrate</source>
        <translation>Konstante Bitrate</translation>
    </message>
    <message>
        <source>Variable Bitrate</source>
        <translation>Variable Bitrate</translation>
    </message>
    <message>
        <source>Const. Quality - Constant Quantizer</source>
        <translation>Qualität – konstanter Quantisierer</translation>
    </message>
    <message>
        <source>Const. Quality - Average Quantizer</source>
        <translation>Qualität – mittlerer Quantisierer</translation>
    </message>
    <message>
        <source>Bitrate buffer (bytes)</source>
        <translation>Puffer (Byte)</translation>
    </message>
    <message>
        <source>VBV buffer initial (%)</source>
        <translation>VBV-Anfangsfüllung (%)</translation>
    </message>
    <message>
        <source>VBV buffer target (%)</source>
        <translation>VBV-Zielfüllung (%)</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits)</source>
        <translation>Puffer (Bit)</translation>
    </message>
    <message>
        <source>VBV buffer initial (bits)</source>
        <translation>VBV-Anfangsfüllung (Bit)</translation>
    </message>
    <message>
        <source>VBV buffer target (bits)</source>
        <translation>VBV-Zielfüllung (Bit)</translation>
    </message>
    <message>
        <source>VBV buffer initial (90 kHz)</source>
        <translation>VBV-Anfangsfüllung (90 kHz)</translation>
    </message>
    <message>
        <source>VBV buffer target (90 kHz)</source>
        <translation>VBV-Zielfüllung (90 kHz)</translation>
    </message>
</context>
<context>
    <name>View2Page</name>
    <message>
        <source>Constant Bitrate</source>
        <translation>Konstante Bitrate</translation>
    </message>
    <message>
        <source>Variable Bitrate</source>
        <translation>Variable Bitrate</translation>
    </message>
    <message>
        <source>Const. Quality - Constant Quantizer</source>
        <translation>Qualität – konstanter Quantisierer</translation>
    </message>
    <message>
        <source>Const. Quality - Average Quantizer</source>
        <translation>Qualität – mittlerer Quantisierer</translation>
    </message>
    <message>
        <source>Bitrate buffer (bytes)</source>
        <translation>Puffer (Byte)</translation>
    </message>
    <message>
        <source>VBV buffer initial (%)</source>
        <translation>VBV-Anfangsfüllung (%)</translation>
    </message>
    <message>
        <source>VBV buffer target (%)</source>
        <translation>VBV-Zielfüllung (%)</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits)</source>
        <translation>Puffer (Bit)</translation>
    </message>
    <message>
        <source>VBV buffer initial (bits)</source>
        <translation>VBV-Anfangsfüllung (Bit)</translation>
    </message>
    <message>
        <source>VBV buffer target (bits)</source>
        <translation>VBV-Zielfüllung (Bit)</translation>
    </message>
    <message>
        <source>VBV buffer initial (90 kHz)</source>
        <translation>VBV-Anfangsfüllung (90 kHz)</translation>
    </message>
    <message>
        <source>VBV buffer target (90 kHz)</source>
        <translation>VBV-Zielfüllung (90 kHz)</translation>
    </message>
</context>
<context>
    <name>View3Page</name>
    <message>
        <source>Constant Bitrate</source>
        <translation>Konstante Bitrate</translation>
    </message>
    <message>
        <source>Variable Bitrate</source>
        <translation>Variable Bitrate</translation>
    </message>
    <message>
        <source>Const. Quality - Constant Quantizer</source>
        <translation>Qualität – konstanter Quantisierer</translation>
    </message>
    <message>
        <source>Const. Quality - Average Quantizer</source>
        <translation>Qualität – mittlerer Quantisierer</translation>
    </message>
    <message>
        <source>Bitrate buffer (bytes)</source>
        <translation>Puffer (Byte)</translation>
    </message>
    <message>
        <source>VBV buffer initial (%)</source>
        <translation>VBV-Anfangsfüllung (%)</translation>
    </message>
    <message>
        <source>VBV buffer target (%)</source>
        <translation>VBV-Zielfüllung (%)</translation>
    </message>
    <message>
        <source>Bitrate buffer (bits)</source>
        <translation>Puffer (Bit)</translation>
    </message>
    <message>
        <source>VBV buffer initial (bits)</source>
        <translation>VBV-Anfangsfüllung (Bit)</translation>
    </message>
    <message>
        <source>VBV buffer target (bits)</source>
        <translation>VBV-Zielfüllung (Bit)</translation>
    </message>
    <message>
        <source>VBV buffer initial (90 kHz)</source>
        <translation>VBV-Anfangsfüllung (90 kHz)</translation>
    </message>
    <message>
        <source>VBV buffer target (90 kHz)</source>
        <translation>VBV-Zielfüllung (90 kHz)</translation>
    </message>
</context>
<context>
    <name>ViewsPage</name>
    <message>
        <source>Base View</source>
        <translation>Basisansicht</translation>
    </message>
    <message>
        <source>View 1</source>
        <translation>Ansicht 1</translation>
    </message>
    <message>
        <source>View 2</source>
        <translation>Ansicht 2</translation>
    </message>
    <message>
        <source>View 3</source>
        <translation>Ansicht 3</translation>
    </message>
</context>
</TS>
