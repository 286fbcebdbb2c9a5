<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Effects</name>
    <message>
        <source>stops</source>
        <translation>Blenden</translation>
    </message>
    <message>
        <source>points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>8-bit steps</source>
        <translation>8-Bit-Stufen</translation>
    </message>
    <message>
        <source>% of the diagonal</source>
        <translation>% der Diagonale</translation>
    </message>
    <message>
        <source>Clarity</source>
        <translation>Klarheit</translation>
    </message>
    <message>
        <source>Colour grading</source>
        <translation>Farbabstimmung</translation>
    </message>
    <message>
        <source>Colour mixer</source>
        <translation>Farbmischer</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Dehaze</source>
        <translation>Dunst entfernen</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Belichtung</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Weißabgleich</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Channel mixer</source>
        <translation>Kanalmixer</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Schwarz-Weiß</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Weichzeichnung</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>Korn</translation>
    </message>
    <message>
        <source>Grey mixer</source>
        <translation>Graumischer</translation>
    </message>
    <message>
        <source>Lift, gamma, gain</source>
        <translation>Lift, Gamma, Gain</translation>
    </message>
    <message>
        <source>Colour table</source>
        <translation>Farbtabelle</translation>
    </message>
    <message>
        <source>Parametric curve</source>
        <translation>Parametrische Kurve</translation>
    </message>
    <message>
        <source>Primaries</source>
        <translation>Primärfarben</translation>
    </message>
    <message>
        <source>Sharpening</source>
        <translation>Schärfung</translation>
    </message>
    <message>
        <source>Split toning</source>
        <translation>Teiltonung</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Struktur</translation>
    </message>
    <message>
        <source>Tone curve</source>
        <translation>Gradationskurve</translation>
    </message>
    <message>
        <source>Tones</source>
        <translation>Tonwerte</translation>
    </message>
    <message>
        <source>Vibrance</source>
        <translation>Dynamik</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vignette</translation>
    </message>
</context>
<context>
    <name>LumetraCli::Text</name>
    <message>
        <source>Applies a preset to photos and prints the names of the new files.</source>
        <translation>Wendet ein Preset auf Fotos an und gibt die Namen der neuen Dateien aus.</translation>
    </message>
    <message>
        <source>Checks catalogues, files of your own presets, looks and LUT files.</source>
        <translation>Prüft Kataloge, Dateien mit eigenen Presets, Looks und LUT-Dateien.</translation>
    </message>
    <message>
        <source>expected a command, found &quot;%1&quot;</source>
        <translation>erwartet wurde ein Befehl, gefunden &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Prints a script that completes commands in your shell.</source>
        <translation>Gibt ein Skript aus, das Befehle in Ihrer Shell vervollständigt.</translation>
    </message>
    <message>
        <source>The shell to print the script for: bash, zsh or fish. For this shell alone: source &lt;(lumetra-presets completion bash)</source>
        <translation>Die Shell, für die das Skript ist: bash, zsh oder fish. Nur für diese eine Shell: source &lt;(lumetra-presets completion bash)</translation>
    </message>
    <message>
        <source>SHELL: expected bash, zsh or fish, found &quot;%1&quot;</source>
        <translation>SHELL: erwartet wurde bash, zsh oder fish, gefunden &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Writes presets as one file for other people.</source>
        <translation>Schreibt Presets als eine Datei für andere.</translation>
    </message>
    <message>
        <source>Writes a preset as a look-up table for other programs.</source>
        <translation>Schreibt ein Preset als Farbtabelle (LUT) für andere Programme.</translation>
    </message>
    <message>
        <source>Marks presets as favourites.</source>
        <translation>Markiert Presets als Favoriten.</translation>
    </message>
    <message>
        <source>Shows this help, or that of a command.</source>
        <translation>Zeigt diese Hilfe oder die eines Befehls.</translation>
    </message>
    <message>
        <source>The command to tell about. Default: all of them, in a line each</source>
        <translation>Der Befehl, um den es geht. Vorgabe: alle, in je einer Zeile</translation>
    </message>
    <message>
        <source>Makes presets of your own out of files with looks, LUT files and looks of other programs.</source>
        <translation>Macht eigene Presets aus Look-Dateien, LUT-Dateien und Looks anderer Programme.</translation>
    </message>
    <message>
        <source>Lists the presets with their ids, intensities and sliders.</source>
        <translation>Listet die Presets mit ihren Ids, Intensitäten und Reglern auf.</translation>
    </message>
    <message>
        <source>Writes nothing but the names, a line each; the id of a preset that shares its name with another.</source>
        <translation>Schreibt nur die Namen, je Zeile einen; bei einem Preset, das seinen Namen mit einem anderen teilt, die Id.</translation>
    </message>
    <message>
        <source>expected --json or --names, found both</source>
        <translation>erwartet wurde --json oder --names, gefunden beide</translation>
    </message>
    <message>
        <source>Removes presets of your own.</source>
        <translation>Löscht eigene Presets.</translation>
    </message>
    <message>
        <source>Renames one of your own presets.</source>
        <translation>Benennt eines Ihrer eigenen Presets um.</translation>
    </message>
    <message>
        <source>Saves a preset under a new name among your own.</source>
        <translation>Speichert ein Preset unter einem neuen Namen bei Ihren eigenen.</translation>
    </message>
    <message>
        <source>Shows all presets on one photo in one picture.</source>
        <translation>Zeigt alle Presets an einem Foto in einem Bild.</translation>
    </message>
    <message>
        <source>the colour of a pixel and its place in the photo</source>
        <translation>der Farbe eines Pixels und seinem Ort im Foto</translation>
    </message>
    <message>
        <source>the colour of a pixel, and facts of the whole photo</source>
        <translation>der Farbe eines Pixels und Eigenschaften des ganzen Fotos</translation>
    </message>
    <message>
        <source>the pixels around a pixel too (spatial)</source>
        <translation>auch den Pixeln um ein Pixel herum (räumlich)</translation>
    </message>
    <message>
        <source>the colour of a pixel alone</source>
        <translation>der Farbe eines Pixels allein</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1 (%2 to %3), %4</source>
        <translation>%1 (%2 bis %3), %4</translation>
    </message>
    <message>
        <source>blending</source>
        <translation>Überblendung</translation>
    </message>
    <message>
        <source>slider</source>
        <translation>Regler</translation>
    </message>
    <message>
        <source>your own</source>
        <translation>eigenes</translation>
    </message>
    <message>
        <source>popular</source>
        <translation>beliebt</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>cube of %1 x %1 x %1 colours</source>
        <translation>Würfel aus %1 x %1 x %1 Farben</translation>
    </message>
    <message>
        <source>curve of %1 points</source>
        <translation>Kurve aus %1 Punkten</translation>
    </message>
    <message>
        <source>%1: %2 (%3 to %4, default %5)</source>
        <translation>%1: %2 (%3 bis %4, Vorgabe %5)</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot;: %3 (%4 to %5)</source>
        <translation>%1 &quot;%2&quot;: %3 (%4 bis %5)</translation>
    </message>
    <message>
        <source>moves %1 of %2 from %3 to %4</source>
        <translation>bewegt %1 von %2 von %3 bis %4</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Id</source>
        <translation>Id</translation>
    </message>
    <message>
        <source>Other names</source>
        <translation>Andere Namen</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>Marks</source>
        <translation>Merkmale</translation>
    </message>
    <message>
        <source>Not usable</source>
        <translation>Nicht verwendbar</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensität</translation>
    </message>
    <message>
        <source>Depends on</source>
        <translation>Hängt ab von</translation>
    </message>
    <message>
        <source>Effects:</source>
        <translation>Effekte:</translation>
    </message>
    <message>
        <source>Sliders:</source>
        <translation>Regler:</translation>
    </message>
    <message>
        <source>Shows everything about one preset.</source>
        <translation>Zeigt alles über ein Preset.</translation>
    </message>
    <message>
        <source>Name or id of a preset.</source>
        <translation>Name oder Id eines Presets.</translation>
    </message>
    <message>
        <source>Writes JSON, with all parameters of the effects; without it, those that are not at their default.</source>
        <translation>Schreibt JSON mit allen Werten der Effekte; sonst nur die, die nicht auf ihrer Vorgabe stehen.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Zeigt diese Hilfe.</translation>
    </message>
    <message>
        <source>Usage: lumetra-presets %1 %2</source>
        <translation>Aufruf: lumetra-presets %1 %2</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[Optionen]</translation>
    </message>
    <message>
        <source>&quot;lumetra-presets %1 --help&quot; tells more</source>
        <translation>&quot;lumetra-presets %1 --help&quot; sagt mehr</translation>
    </message>
    <message>
        <source>expected %1 argument(s), found %2</source>
        <translation>erwartet wurden mindestens %1 Argument(e), gefunden %2</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>unerwartetes Argument &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--%1: expected a whole number from %2 to %3, found &quot;%4&quot;</source>
        <translation>--%1: erwartet wurde eine ganze Zahl von %2 bis %3, gefunden &quot;%4&quot;</translation>
    </message>
    <message>
        <source>&quot;lumetra-presets --help&quot; lists the commands</source>
        <translation>&quot;lumetra-presets --help&quot; zeigt die Befehle</translation>
    </message>
    <message>
        <source>the output could not be written</source>
        <translation>die Ausgabe konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Shows this help; after a command, its own.</source>
        <translation>Zeigt diese Hilfe; nach einem Befehl dessen Hilfe.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Zeigt die Version.</translation>
    </message>
    <message>
        <source>Usage: lumetra-presets COMMAND [options]
Applies presets to photos.</source>
        <translation>Aufruf: lumetra-presets BEFEHL [Optionen]
Wendet Presets auf Fotos an.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Exit code: 0 done, 1 an input could not be used, 2 wrong usage, 130 interrupted.</source>
        <translation>Exit-Code: 0 erledigt, 1 eine Eingabe war nicht verwendbar, 2 falscher Aufruf, 130 unterbrochen.</translation>
    </message>
    <message>
        <source>, did you mean &quot;%1&quot;?</source>
        <translation>, meinten Sie &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>about %1 h</source>
        <translation>etwa %1 h</translation>
    </message>
    <message>
        <source>about %1 min</source>
        <translation>etwa %1 min</translation>
    </message>
    <message>
        <source>about %1 s</source>
        <translation>etwa %1 s</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>Writes a line of JSON for each file when it is done, and one with the summary at the end, in place of the names.</source>
        <translation>Schreibt statt der Namen je Datei eine Zeile JSON, sobald sie fertig ist, und am Ende eine mit der Zusammenfassung.</translation>
    </message>
    <message>
        <source>Writes no names, no progress and no summary; warnings and failures stay.</source>
        <translation>Schreibt keine Namen, keinen Fortschritt und keine Zusammenfassung; Warnungen und Fehler bleiben.</translation>
    </message>
    <message>
        <source>%1: warning: %2</source>
        <translation>%1: Warnung: %2</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 geschrieben</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>%1 übersprungen</translation>
    </message>
    <message>
        <source>%1 not done</source>
        <translation>%1 nicht bearbeitet</translation>
    </message>
    <message>
        <source>%1 to be written</source>
        <translation>%1 zu schreiben</translation>
    </message>
    <message>
        <source>interrupted: %1</source>
        <translation>unterbrochen: %1</translation>
    </message>
</context>
</TS>
