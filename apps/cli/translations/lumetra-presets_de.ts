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
    <message>
        <source>, did you mean &quot;%1&quot;?</source>
        <translation>, meinten Sie &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>Catalogues, taken together with the installed ones, files of your own presets, files with looks (.lumetra) and LUT files.</source>
        <translation>Kataloge, die zusammen mit den installierten geprüft werden, Dateien mit eigenen Presets, Look-Dateien (.lumetra) und LUT-Dateien.</translation>
    </message>
    <message>
        <source>expected at least one file</source>
        <translation>erwartet wurde mindestens eine Datei</translation>
    </message>
    <message>
        <source>Names or ids of presets.</source>
        <translation>Namen oder Ids von Presets.</translation>
    </message>
    <message>
        <source>The file to write, .lumetra.</source>
        <translation>Die zu schreibende Datei, .lumetra.</translation>
    </message>
    <message>
        <source>Who has made the looks. Default: as the presets say</source>
        <translation>Wer die Looks gemacht hat. Vorgabe: was die Presets sagen</translation>
    </message>
    <message>
        <source>What others may do with them, such as CC-BY-4.0. Default: as the presets say</source>
        <translation>Was andere damit tun dürfen, etwa CC-BY-4.0. Vorgabe: was die Presets sagen</translation>
    </message>
    <message>
        <source>The name of one preset in another language, such as de=Lagerfeuer. May be given more than once.</source>
        <translation>Der Name eines einzelnen Presets in einer anderen Sprache, etwa de=Lagerfeuer. Darf mehrmals angegeben werden.</translation>
    </message>
    <message>
        <source>Draws the small picture of each look on this photo. Default: the picture that is installed with the program</source>
        <translation>Zeichnet das kleine Bild jedes Looks an diesem Foto. Vorgabe: das mit dem Programm installierte Bild</translation>
    </message>
    <message>
        <source>Leaves the small pictures out.</source>
        <translation>Lässt die kleinen Bilder weg.</translation>
    </message>
    <message>
        <source>Writes JSON text whatever its length. Default: texts of more than %1 KB are packed as .zip archives are</source>
        <translation>Schreibt JSON-Text, so lang er auch ist. Vorgabe: Texte über %1 KB werden wie .zip-Archive gepackt</translation>
    </message>
    <message>
        <source>--%1: expected at most %2 characters without control characters, found %3</source>
        <translation>--%1: erwartet wurden höchstens %2 Zeichen ohne Steuerzeichen, gefunden %3</translation>
    </message>
    <message>
        <source>--name-in: expected language=name, such as de=Lagerfeuer, found &quot;%1&quot;%2</source>
        <translation>--name-in: erwartet wurde Sprache=Name, etwa de=Lagerfeuer, gefunden &quot;%1&quot;%2</translation>
    </message>
    <message>
        <source>--name-in: expected one preset, found %1</source>
        <translation>--name-in: erwartet wurde ein einziges Preset, gefunden %1</translation>
    </message>
    <message>
        <source>expected at least one preset</source>
        <translation>erwartet wurde mindestens ein Preset</translation>
    </message>
    <message>
        <source>expected --preview or --no-preview, found both</source>
        <translation>erwartet wurde --preview oder --no-preview, gefunden beide</translation>
    </message>
    <message>
        <source>The preset, by name or id.</source>
        <translation>Das Preset, mit Name oder Id.</translation>
    </message>
    <message>
        <source>Format of the file: cube, clf (Common LUT Format) or hald (a HaldCLUT picture of 16 bits). Default: by the name of the file.</source>
        <translation>Format der Datei: cube, clf (Common LUT Format) oder hald (ein HaldCLUT-Bild mit 16 Bit). Vorgabe: nach dem Namen der Datei.</translation>
    </message>
    <message>
        <source>Points along each axis, 2 to 129; for a HaldCLUT a square, 4 to 121. Default: 33, for a HaldCLUT 64.</source>
        <translation>Punkte je Achse, 2 bis 129; für eine HaldCLUT eine Quadratzahl von 4 bis 121. Vorgabe: 33, für eine HaldCLUT 64.</translation>
    </message>
    <message>
        <source>Leaves out effects that do not fit into a table, such as vignette and clarity, and names them.</source>
        <translation>Lässt Effekte weg, die in keine Tabelle passen, etwa Vignette und Klarheit, und nennt sie.</translation>
    </message>
    <message>
        <source>The file to write: .cube, .clf, .png, .tif or .tiff.</source>
        <translation>Die zu schreibende Datei: .cube, .clf, .png, .tif oder .tiff.</translation>
    </message>
    <message>
        <source>--format: expected cube, clf or hald, found &quot;%1&quot;</source>
        <translation>--format: erwartet wurde cube, clf oder hald, gefunden &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--format: &quot;%1&quot; does not fit the file name &quot;%2&quot;</source>
        <translation>--format: &quot;%1&quot; passt nicht zum Dateinamen &quot;%2&quot;</translation>
    </message>
    <message>
        <source>--output: expected a name that ends in .cube, .clf, .png, .tif or .tiff, or --format, found &quot;%1&quot;</source>
        <translation>--output: erwartet wurde ein Name, der auf .cube, .clf, .png, .tif oder .tiff endet, oder --format, gefunden &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--size: expected a square for a HaldCLUT, 4, 9, 16, 25, 36, 49, 64, 81, 100 or 121, found %1</source>
        <translation>--size: erwartet wurde für eine HaldCLUT eine Quadratzahl, 4, 9, 16, 25, 36, 49, 64, 81, 100 oder 121, gefunden %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: left out &quot;%2&quot;, which does not fit into a table</source>
        <translation>&quot;%1&quot;: &quot;%2&quot; weggelassen, denn es passt in keine Tabelle</translation>
    </message>
    <message>
        <source>Takes the marks off.</source>
        <translation>Nimmt die Markierungen weg.</translation>
    </message>
    <message>
        <source>marked &quot;%1&quot;</source>
        <translation>&quot;%1&quot; markiert</translation>
    </message>
    <message>
        <source>unmarked &quot;%1&quot;</source>
        <translation>Markierung von &quot;%1&quot; entfernt</translation>
    </message>
    <message>
        <source>--name: expected one file, found %1</source>
        <translation>--name: erwartet wurde eine einzige Datei, gefunden %1</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>ein Ordner</translation>
    </message>
    <message>
        <source>--luts: expected a folder, found &quot;%1&quot;</source>
        <translation>--luts: erwartet wurde ein Ordner, gefunden &quot;%1&quot;</translation>
    </message>
    <message>
        <source>imported &quot;%1&quot; from &quot;%2&quot;</source>
        <translation>&quot;%1&quot; aus &quot;%2&quot; importiert</translation>
    </message>
    <message>
        <source>approximated</source>
        <translation>angenähert</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>weggelassen</translation>
    </message>
    <message>
        <source>The preset&apos;s name, for a file with one look. Default: the look&apos;s own, or else the file&apos;s.</source>
        <translation>Der Name des Presets, für eine Datei mit einem Look. Vorgabe: der des Looks, sonst der der Datei.</translation>
    </message>
    <message>
        <source>Looks here too for the HaldCLUT pictures that .pp3 files name. May be repeated.</source>
        <translation>Sucht auch hier nach den HaldCLUT-Bildern, die .pp3-Dateien nennen. Darf mehrmals angegeben werden.</translation>
    </message>
    <message>
        <source>expected at least one file or folder with looks</source>
        <translation>erwartet wurde mindestens eine Datei oder ein Ordner mit Looks</translation>
    </message>
    <message>
        <source>&quot;%1&quot; from &quot;%2&quot; is here already, as &quot;%3&quot;</source>
        <translation>&quot;%1&quot; aus &quot;%2&quot; ist schon da, als &quot;%3&quot;</translation>
    </message>
    <message>
        <source>%1 (%2 to %3)</source>
        <translation>%1 (%2 bis %3)</translation>
    </message>
    <message>
        <source>  intensity %1</source>
        <translation>  Intensität %1</translation>
    </message>
    <message>
        <source>  not usable: </source>
        <translation>  nicht verwendbar: </translation>
    </message>
    <message>
        <source>Writes JSON.</source>
        <translation>Schreibt JSON.</translation>
    </message>
    <message>
        <source>Only your own presets.</source>
        <translation>Nur eigene Presets.</translation>
    </message>
    <message>
        <source>Only favourites.</source>
        <translation>Nur Favoriten.</translation>
    </message>
    <message>
        <source>Names or ids of your presets.</source>
        <translation>Namen oder Ids Ihrer Presets.</translation>
    </message>
    <message>
        <source>removed &quot;%1&quot;</source>
        <translation>&quot;%1&quot; gelöscht</translation>
    </message>
    <message>
        <source>Name or id of one of your presets.</source>
        <translation>Name oder Id eines Ihrer Presets.</translation>
    </message>
    <message>
        <source>Its new name.</source>
        <translation>Sein neuer Name.</translation>
    </message>
    <message>
        <source>renamed &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>&quot;%1&quot; in &quot;%2&quot; umbenannt</translation>
    </message>
    <message>
        <source>Name or id of the preset to start from.</source>
        <translation>Name oder Id des Presets, von dem Sie ausgehen.</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>Der neue Name.</translation>
    </message>
    <message>
        <source>saved &quot;%1&quot; from &quot;%2&quot;</source>
        <translation>&quot;%1&quot; aus &quot;%2&quot; gespeichert</translation>
    </message>
    <message>
        <source>expected one photo, found %1</source>
        <translation>erwartet wurde ein einziges Foto, gefunden %1</translation>
    </message>
    <message>
        <source>--output: &quot;%1&quot; is the photo itself</source>
        <translation>--output: &quot;%1&quot; ist das Foto selbst</translation>
    </message>
    <message>
        <source>expected a picture, found none</source>
        <translation>erwartet wurde ein Bild, gefunden keines</translation>
    </message>
    <message>
        <source>--columns and --tile: expected a sheet of at most %1 pixels a side, found %2 x %3</source>
        <translation>--columns und --tile: erwartet wurde ein Bogen mit höchstens %1 Pixeln je Seite, gefunden %2 x %3</translation>
    </message>
    <message>
        <source>A JPEG, PNG, TIFF, WebP, HEIC or raw file.</source>
        <translation>Eine JPEG-, PNG-, TIFF-, WebP-, HEIC- oder Raw-Datei.</translation>
    </message>
    <message>
        <source>The PNG file to write.</source>
        <translation>Die zu schreibende PNG-Datei.</translation>
    </message>
    <message>
        <source>Previews side by side. Default: 5</source>
        <translation>Vorschaubilder nebeneinander. Vorgabe: 5</translation>
    </message>
    <message>
        <source>Width of a preview in pixels. Default: 240</source>
        <translation>Breite eines Vorschaubildes in Pixeln. Vorgabe: 240</translation>
    </message>
    <message>
        <source>no font found: the sheet has no names</source>
        <translation>keine Schrift gefunden: der Bogen hat keine Namen</translation>
    </message>
    <message>
        <source>Replaces an existing file.</source>
        <translation>Ersetzt eine vorhandene Datei.</translation>
    </message>
    <message>
        <source>--output: expected the name of a %1 file, found &quot;%2&quot;</source>
        <translation>--output: erwartet wurde der Name einer %1-Datei, gefunden &quot;%2&quot;</translation>
    </message>
    <message>
        <source>--output: expected a file to write, found the folder &quot;%1&quot;</source>
        <translation>--output: erwartet wurde eine zu schreibende Datei, gefunden der Ordner &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--output: expected a file to write, found a pipe, a socket or a device named &quot;%1&quot;</source>
        <translation>--output: erwartet wurde eine zu schreibende Datei, gefunden eine Pipe, ein Socket oder ein Gerät namens &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--output: &quot;%1&quot; is a photo with an edit of its own and is not overwritten</source>
        <translation>--output: &quot;%1&quot; ist ein Foto mit eigener Bearbeitung und wird nicht überschrieben</translation>
    </message>
    <message>
        <source>--output: &quot;%1&quot; exists; --overwrite replaces it</source>
        <translation>--output: &quot;%1&quot; gibt es schon; --overwrite ersetzt es</translation>
    </message>
    <message>
        <source>no picture</source>
        <translation>kein Bild</translation>
    </message>
    <message>
        <source>Also reads the presets of this catalogue file. May be given more than once.</source>
        <translation>Liest auch die Presets dieser Katalogdatei. Darf mehrmals angegeben werden.</translation>
    </message>
    <message>
        <source>Reads no other catalogues than those named.</source>
        <translation>Liest keine anderen Kataloge als die genannten.</translation>
    </message>
    <message>
        <source>Keeps your own presets and favourites in this file. Default: lumetra/presets.json in your data folder</source>
        <translation>Hält eigene Presets und Favoriten in dieser Datei. Vorgabe: lumetra/presets.json in Ihrem Datenordner</translation>
    </message>
    <message>
        <source>(here: %1)</source>
        <translation>(hier: %1)</translation>
    </message>
    <message>
        <source>expected at least one preset, found none in any catalogue; --catalogue names a file</source>
        <translation>erwartet wurde mindestens ein Preset, aber kein Katalog hat eines; --catalogue nennt eine Datei</translation>
    </message>
    <message>
        <source>Intensity within the preset&apos;s range.</source>
        <translation>Intensität im Bereich des Presets.</translation>
    </message>
    <message>
        <source>Moves an extra slider. May be given more than once.</source>
        <translation>Bewegt einen zusätzlichen Regler. Darf mehrmals angegeben werden.</translation>
    </message>
    <message>
        <source>expected one --preset, found %1</source>
        <translation>erwartet wurde ein einziges --preset, gefunden %1</translation>
    </message>
    <message>
        <source>%1: expected the name or id of a preset, found &quot;%2&quot;%3</source>
        <translation>%1: erwartet wurde Name oder Id eines Presets, gefunden &quot;%2&quot;%3</translation>
    </message>
    <message>
        <source>%1: expected one preset, found %2 named &quot;%3&quot;; their ids are %4</source>
        <translation>%1: erwartet wurde ein einziges Preset, gefunden %2 mit dem Namen &quot;%3&quot;; ihre Ids sind %4</translation>
    </message>
    <message>
        <source>%1: expected a whole number from %2 to %3, found &quot;%4&quot;</source>
        <translation>%1: erwartet wurde eine ganze Zahl von %2 bis %3, gefunden &quot;%4&quot;</translation>
    </message>
    <message>
        <source>none, it has no sliders</source>
        <translation>keine, es hat keine Regler</translation>
    </message>
    <message>
        <source>--set: expected a slider of &quot;%1&quot; (%2), found &quot;%3&quot;</source>
        <translation>--set: erwartet wurde ein Regler von &quot;%1&quot; (%2), gefunden &quot;%3&quot;</translation>
    </message>
    <message>
        <source>--intensity: expected none, for &quot;%1&quot; has no intensity, found &quot;%2&quot;</source>
        <translation>--intensity: erwartet wurde keine, denn &quot;%1&quot; hat keine Intensität, gefunden &quot;%2&quot;</translation>
    </message>
    <message>
        <source>--set: expected slider=value, found &quot;%1&quot;</source>
        <translation>--set: erwartet wurde Regler=Wert, gefunden &quot;%1&quot;</translation>
    </message>
    <message>
        <source>PRESET: expected one of your own presets, found &quot;%1&quot; of the catalogue&apos;s group &quot;%2&quot;</source>
        <translation>PRESET: erwartet wurde eines Ihrer eigenen Presets, gefunden &quot;%1&quot; aus der Gruppe &quot;%2&quot; des Katalogs</translation>
    </message>
    <message>
        <source>NAME: expected a new name, found &quot;%1&quot;, which one of your presets has</source>
        <translation>NAME: erwartet wurde ein neuer Name, gefunden &quot;%1&quot;, den schon eines Ihrer Presets hat</translation>
    </message>
    <message>
        <source>Files with looks: .lumetra; pictures that this program has exported, which tell of their looks; LUT files: .cube, .3dl, .clf, .cc, .ccc, .cdl, HaldCLUT pictures; looks of other programs: .xmp, .lrtemplate, .pp3; catalogues and presets: .json; packs of these: .zip. A folder stands for the files in it and below it; of pictures it takes those alone that are tables. A look that you have already, under whatever name, is not added again.</source>
        <translation>Look-Dateien: .lumetra; von diesem Programm exportierte Bilder, in denen ihr Look steht; LUT-Dateien: .cube, .3dl, .clf, .cc, .ccc, .cdl, HaldCLUT-Bilder; Looks anderer Programme: .xmp, .lrtemplate, .pp3; Kataloge und Presets: .json; Pakete davon: .zip. Ein Ordner steht für alle Dateien darin und darunter; von Bildern nimmt er nur solche, die Tabellen sind. Ein Look, den Sie schon haben, unter welchem Namen auch immer, kommt nicht noch einmal dazu.</translation>
    </message>
    <message>
        <source>Applies presets or edits to photos and prints the names of the new files.</source>
        <translation>Wendet Presets oder Bearbeitungen auf Fotos an und gibt die Namen der neuen Dateien aus.</translation>
    </message>
    <message>
        <source>Only says what would be written.</source>
        <translation>Sagt nur, was geschrieben würde.</translation>
    </message>
    <message>
        <source>How many photos to work on at the same time, 1 to %1, as far as --memory allows. Default: the number of processor cores</source>
        <translation>Wie viele Fotos gleichzeitig bearbeitet werden, 1 bis %1, soweit --memory es zulässt. Vorgabe: die Zahl der Prozessorkerne</translation>
    </message>
    <message>
        <source>How much memory they may take together, in MB, by an estimate from their sizes; a photo that needs more is worked on alone. Default: half of the machine&apos;s memory</source>
        <translation>Wie viel Speicher sie zusammen belegen dürfen, in MB, geschätzt aus ihrer Größe; ein Foto, das mehr braucht, wird allein bearbeitet. Vorgabe: die Hälfte des Speichers dieses Rechners</translation>
    </message>
    <message>
        <source>Draws every pixel by the effects&apos; formulas. Without it, colours of large 8-bit photos may come from a table, within 1 of 255 of them, in half the time.</source>
        <translation>Zeichnet jedes Pixel nach den Formeln der Effekte. Sonst können die Farben großer 8-Bit-Fotos aus einer Tabelle kommen, auf 1 von 255 genau, in der halben Zeit.</translation>
    </message>
    <message>
        <source>the list names no photo</source>
        <translation>die Liste nennt kein Foto</translation>
    </message>
    <message>
        <source>%1 left out</source>
        <translation>%1 ausgelassen</translation>
    </message>
    <message>
        <source>--output: expected no {%1}, as no preset is named, found it</source>
        <translation>--output: erwartet wurde kein {%1}, denn es ist kein Preset genannt</translation>
    </message>
    <message>
        <source>--output: expected {preset} in the name, as each preset makes a file of its own</source>
        <translation>--output: erwartet wurde {preset} im Namen, denn jedes Preset macht eine eigene Datei</translation>
    </message>
    <message>
        <source>expected one look for the standard input, found a series</source>
        <translation>erwartet wurde ein einziger Look für die Standardeingabe, gefunden eine Reihe</translation>
    </message>
    <message>
        <source>--edits: expected the name of a photo, found the standard input</source>
        <translation>--edits: erwartet wurde der Name eines Fotos, gefunden die Standardeingabe</translation>
    </message>
    <message>
        <source>--output: expected no {date}, which the standard input does not have</source>
        <translation>--output: erwartet wurde kein {date}, das die Standardeingabe nicht hat</translation>
    </message>
    <message>
        <source>Where to write. {folder}, {name}, {ext} and {original_ext} are the photo&apos;s, {preset}, {group} and {intensity} the preset&apos;s; {n} is the photo&apos;s number, {n:04} with four digits; {date} is when it was taken, {date:yyyy-MM-dd} in that form. Photos that would share one file are left out. - alone is the standard output, for one photo. Default: %1, with --edits alone %2</source>
        <translation>Wohin geschrieben wird. {folder}, {name}, {ext} und {original_ext} sind die des Fotos, {preset}, {group} und {intensity} die des Presets; {n} ist die Nummer des Fotos, {n:04} mit vier Ziffern; {date} ist der Aufnahmezeitpunkt, {date:yyyy-MM-dd} in dieser Form. Fotos, die sich eine Datei teilen würden, werden ausgelassen. Nur - ist die Standardausgabe, für ein einziges Foto. Vorgabe: %1, mit --edits allein %2</translation>
    </message>
    <message>
        <source>Replaces existing files, but never a photo of the batch or one with an edit of its own.</source>
        <translation>Ersetzt vorhandene Dateien, aber nie ein Foto dieses Laufs oder eines mit eigener Bearbeitung.</translation>
    </message>
    <message>
        <source>--output -: expected one photo and one look, found %1</source>
        <translation>--output -: erwartet wurden ein Foto und ein Look, gefunden %1</translation>
    </message>
    <message>
        <source>more</source>
        <translation>mehr</translation>
    </message>
    <message>
        <source>--output -: expected no --%1, which needs the standard output for itself</source>
        <translation>--output -: erwartet wurde kein --%1, das die Standardausgabe für sich braucht</translation>
    </message>
    <message>
        <source>--output -: expected a pipe or a file, found a terminal</source>
        <translation>--output -: erwartet wurde eine Pipe oder eine Datei, gefunden ein Terminal</translation>
    </message>
    <message>
        <source>--files-from: expected a list of photos, found &quot;%1&quot;, which cannot be read: %2</source>
        <translation>--files-from: erwartet wurde eine Liste von Fotos, gefunden &quot;%1&quot;, das nicht lesbar ist: %2</translation>
    </message>
    <message>
        <source>expected &quot;-&quot;, the standard input, as the only photo, found more</source>
        <translation>erwartet wurde &quot;-&quot;, die Standardeingabe, als einziges Foto, gefunden mehr</translation>
    </message>
    <message>
        <source>Photos: JPEG, PNG, TIFF, WebP, HEIC or raw files; folders, which stand for the photos in them; or - alone, for a photo from the standard input.</source>
        <translation>Fotos: JPEG-, PNG-, TIFF-, WebP-, HEIC- oder Raw-Dateien; Ordner, die für die Fotos darin stehen; oder nur -, für ein Foto von der Standardeingabe.</translation>
    </message>
    <message>
        <source>Takes the photos in the subfolders of folders too. Hidden ones and links to folders are passed over.</source>
        <translation>Nimmt auch die Fotos in Unterordnern. Versteckte und Verknüpfungen auf Ordner werden übergangen.</translation>
    </message>
    <message>
        <source>Takes the photos and folders that this file names too, one in a line; - is the standard input.</source>
        <translation>Nimmt auch die Fotos und Ordner, die diese Datei nennt, je Zeile eines; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>The names of --files-from are separated by zero bytes, as find -print0 writes them.</source>
        <translation>Die Namen von --files-from sind durch Null-Bytes getrennt, wie find -print0 sie schreibt.</translation>
    </message>
    <message>
        <source>Takes results as photos too: files that record a look in their XMP data, and outputs of other photos of the list. Without it they are left out.</source>
        <translation>Nimmt auch Ergebnisse als Fotos: Dateien, in deren XMP-Daten ein Look steht, und Ausgaben anderer Fotos der Liste. Sonst werden sie ausgelassen.</translation>
    </message>
    <message>
        <source>--null: expected --files-from, whose names it separates</source>
        <translation>--null: erwartet wurde --files-from, dessen Namen es trennt</translation>
    </message>
    <message>
        <source>expected at least one photo</source>
        <translation>erwartet wurde mindestens ein Foto</translation>
    </message>
    <message>
        <source>--%1: expected %2, found &quot;%3&quot;</source>
        <translation>--%1: erwartet wurde %2, gefunden &quot;%3&quot;</translation>
    </message>
    <message>
        <source>8 or 16</source>
        <translation>8 oder 16</translation>
    </message>
    <message>
        <source>up to %1 megapixels, such as 12MP</source>
        <translation>bis zu %1 Megapixel, etwa 12MP</translation>
    </message>
    <message>
        <source>an output that ends in .{ext} or .%1</source>
        <translation>eine Ausgabe, die auf .{ext} oder .%1 endet</translation>
    </message>
    <message>
        <source>The form of the new files as one of the editor&apos;s export recipes has it; the options below change it. Its folder and file name are not used</source>
        <translation>Die Form der neuen Dateien nach einem der Exportrezepte des Editors; die Optionen unten ändern sie. Sein Ordner und Dateiname gelten hier nicht</translation>
    </message>
    <message>
        <source>The format of the new files, which {ext} then stands for. Default: what the name of the output says</source>
        <translation>Das Format der neuen Dateien, für das dann {ext} steht. Vorgabe: was der Name der Ausgabe sagt</translation>
    </message>
    <message>
        <source>Quality of JPEG and WebP, 1 to 100, whatever the photo&apos;s own is; each format has a scale of its own. Default: %1</source>
        <translation>Qualität von JPEG und WebP, 1 bis 100, unabhängig von der des Fotos; jedes Format hat seine eigene Skala. Vorgabe: %1</translation>
    </message>
    <message>
        <source>Resolution of a JPEG&apos;s colours: 4:4:4 is full, 4:2:2 half, 4:2:0 a quarter. Default: automatic, which is 4:4:4 from quality %1 on, else 4:2:0</source>
        <translation>Auflösung der Farben eines JPEG: 4:4:4 ist voll, 4:2:2 die Hälfte, 4:2:0 ein Viertel. Vorgabe: automatic, das ist 4:4:4 ab Qualität %1, sonst 4:2:0</translation>
    </message>
    <message>
        <source>Stores JPEG coarse first, then finer: smaller, slower to make.</source>
        <translation>Speichert JPEG erst grob, dann feiner: kleiner, aber langsamer zu machen.</translation>
    </message>
    <message>
        <source>Stores every pixel of a WebP as it is.</source>
        <translation>Speichert jedes Pixel eines WebP, wie es ist.</translation>
    </message>
    <message>
        <source>Compression of TIFF, none of which loses anything. Default: deflate</source>
        <translation>Kompression von TIFF, jede verlustfrei. Vorgabe: deflate</translation>
    </message>
    <message>
        <source>Shrinks photos whose longest side has more pixels to this number, 1 to %1, or, as in 12MP, photos with more megapixels. None is enlarged. Default: every photo&apos;s own size</source>
        <translation>Verkleinert Fotos, deren längste Seite mehr Pixel hat, auf diese Zahl, 1 bis %1, oder, wie bei 12MP, Fotos mit mehr Megapixeln. Keines wird vergrößert. Vorgabe: die Größe des Fotos</translation>
    </message>
    <message>
        <source>Bits per channel, 8 or 16; 16 for PNG and TIFF alone. Effects are drawn with 16 where the photo or the file has them. Default: the photo&apos;s, where the format holds them</source>
        <translation>Bit je Kanal, 8 oder 16; 16 nur für PNG und TIFF. Effekte werden mit 16 gezeichnet, wo Foto oder Datei sie haben. Vorgabe: die des Fotos, wenn das Format sie fasst</translation>
    </message>
    <message>
        <source>&quot;all&quot; keeps EXIF, IPTC and XMP and records the preset in the XMP data; &quot;no-gps&quot; does so without coordinates; &quot;copyright&quot; keeps author, copyright and licence alone; &quot;none&quot; leaves all out. The colour profile stays. Default: all</source>
        <translation>&quot;all&quot; behält EXIF, IPTC und XMP und hält das Preset in den XMP-Daten fest; &quot;no-gps&quot; ebenso, ohne Koordinaten; &quot;copyright&quot; behält nur Autor, Copyright und Lizenz; &quot;none&quot; lässt alles weg. Das Farbprofil bleibt. Vorgabe: all</translation>
    </message>
    <message>
        <source>--depth: expected an output that holds 16 bits, .png or .tif, found &quot;%1&quot;; --output names another</source>
        <translation>--depth: erwartet wurde eine Ausgabe, die 16 Bit fasst, .png oder .tif, gefunden &quot;%1&quot;; --output nennt eine andere</translation>
    </message>
    <message>
        <source>--preset: expected a file with one look, found %1 in &quot;%2&quot;; &quot;import&quot; makes a preset of each</source>
        <translation>--preset: erwartet wurde eine Datei mit einem Look, gefunden %1 in &quot;%2&quot;; &quot;import&quot; macht aus jedem ein Preset</translation>
    </message>
    <message>
        <source>--preset: expected the name or id of a preset or a LUT file, found &quot;%1&quot;, which is neither: there is no such file</source>
        <translation>--preset: erwartet wurde Name oder Id eines Presets oder eine LUT-Datei, gefunden &quot;%1&quot;, das ist keines davon: diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>--preset: expected the name or id of a preset or a LUT file (.cube, .3dl, .clf, .cc, .ccc, .cdl, .png, .tif), found the %1 &quot;%2&quot;</source>
        <translation>--preset: erwartet wurde Name oder Id eines Presets oder eine LUT-Datei (.cube, .3dl, .clf, .cc, .ccc, .cdl, .png, .tif), gefunden %1 &quot;%2&quot;</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>der Ordner</translation>
    </message>
    <message>
        <source>file</source>
        <translation>die Datei</translation>
    </message>
    <message>
        <source>--group: expected the name of a group with presets, found &quot;%1&quot;%2</source>
        <translation>--group: erwartet wurde der Name einer Gruppe mit Presets, gefunden &quot;%1&quot;%2</translation>
    </message>
    <message>
        <source>The preset, by name or id, or a LUT file: .cube, .3dl, .clf, .cc, .ccc, .cdl or a HaldCLUT picture. Given more than once, each lies upon the one before, and --intensity and --set belong to the preset before them.</source>
        <translation>Das Preset, mit Name oder Id, oder eine LUT-Datei: .cube, .3dl, .clf, .cc, .ccc, .cdl oder ein HaldCLUT-Bild. Mehrmals angegeben liegt jedes auf dem vorigen, und --intensity und --set gehören zum Preset davor.</translation>
    </message>
    <message>
        <source>Makes a file of each photo with each favourite, upon the presets of --preset, if there are any.</source>
        <translation>Macht von jedem Foto eine Datei mit jedem Favoriten, auf den Presets von --preset, falls es welche gibt.</translation>
    </message>
    <message>
        <source>Does so with each preset of this group.</source>
        <translation>Dasselbe mit jedem Preset dieser Gruppe.</translation>
    </message>
    <message>
        <source>Begins with each photo&apos;s own edit, as the editor has saved it, below the presets, if there are any.</source>
        <translation>Beginnt mit der Bearbeitung jedes Fotos, wie der Editor sie gespeichert hat, unter den Presets, falls es welche gibt.</translation>
    </message>
    <message>
        <source>expected --favourites or --group, found both</source>
        <translation>erwartet wurde --favourites oder --group, gefunden beide</translation>
    </message>
    <message>
        <source>expected a look: --preset, --favourites, --group or --edits</source>
        <translation>erwartet wurde ein Look: --preset, --favourites, --group oder --edits</translation>
    </message>
    <message>
        <source>%1: expected a --preset that it belongs to, found none</source>
        <translation>%1: erwartet wurde ein --preset, zu dem es gehört, gefunden keines</translation>
    </message>
    <message>
        <source>--favourites: expected favourites, found none; &quot;favourite&quot; makes a preset one</source>
        <translation>--favourites: erwartet wurden Favoriten, gefunden keine; &quot;favourite&quot; macht ein Preset dazu</translation>
    </message>
    <message>
        <source>--failed-list: expected a file to write, found &quot;%1&quot;</source>
        <translation>--failed-list: erwartet wurde eine Datei zum Schreiben, gefunden &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--failed-list: &quot;%1&quot; is read, and is not overwritten</source>
        <translation>--failed-list: &quot;%1&quot; wird gelesen und nicht überschrieben</translation>
    </message>
    <message>
        <source>--failed-list: &quot;%1&quot; exists; --overwrite replaces it</source>
        <translation>--failed-list: &quot;%1&quot; gibt es schon; --overwrite ersetzt es</translation>
    </message>
    <message>
        <source>--files-from: expected photos, found the folder &quot;%1&quot;</source>
        <translation>--files-from: erwartet wurden Fotos, gefunden der Ordner &quot;%1&quot;</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>not done: %1</source>
        <translation>nicht getan: %1</translation>
    </message>
    <message>
        <source>in no report: %1</source>
        <translation>in keinem Bericht: %1</translation>
    </message>
    <message>
        <source>without an end: %1</source>
        <translation>ohne Ende: %1</translation>
    </message>
    <message>
        <source>shards to run again, of %1: %2</source>
        <translation>noch einmal auszuführende Teile, von %1: %2</translation>
    </message>
    <message>
        <source>%1 written, %2 skipped, %3 left out, %4 failed, %5 not done: %6</source>
        <translation>%1 geschrieben, %2 übersprungen, %3 ausgelassen, %4 fehlgeschlagen, %5 nicht getan: %6</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>vollständig</translation>
    </message>
    <message>
        <source>not complete</source>
        <translation>nicht vollständig</translation>
    </message>
    <message>
        <source>Joins reports of &quot;apply --json&quot; and tells what is to be done again.</source>
        <translation>Führt Berichte von &quot;apply --json&quot; zusammen und sagt, was noch einmal zu tun ist.</translation>
    </message>
    <message>
        <source>Reports: the lines that &quot;apply --json&quot; wrote, of every shard and of every attempt, in any order. A photo is done when one of them says so.</source>
        <translation>Berichte: die Zeilen, die &quot;apply --json&quot; geschrieben hat, von jedem Teil und jedem Versuch, in beliebiger Reihenfolge. Ein Foto ist fertig, wenn einer von ihnen es sagt.</translation>
    </message>
    <message>
        <source>The list of photos that &quot;apply&quot; was given; photos of which no report tells are then found too.</source>
        <translation>Die Liste von Fotos, die &quot;apply&quot; bekommen hat; damit werden auch Fotos gefunden, von denen kein Bericht etwas sagt.</translation>
    </message>
    <message>
        <source>The names of both lists are separated by zero bytes.</source>
        <translation>Die Namen beider Listen sind durch Nullbytes getrennt.</translation>
    </message>
    <message>
        <source>Writes the photos that are to be done again into this file, for &quot;apply --files-from&quot;; it is empty when there are none.</source>
        <translation>Schreibt die Fotos, die noch einmal zu tun sind, in diese Datei, für &quot;apply --files-from&quot;; sie ist leer, wenn es keine gibt.</translation>
    </message>
    <message>
        <source>expected at least one report</source>
        <translation>erwartet wurde mindestens ein Bericht</translation>
    </message>
    <message>
        <source>--skip: expected the name of a photo, found the standard input</source>
        <translation>--skip: erwartet wurde der Name eines Fotos, gefunden die Standardeingabe</translation>
    </message>
    <message>
        <source>Leaves out photos whose output is there and is what this photo, look and options make, by their content. Any other file fails, or is replaced with --overwrite. Outputs without XMP data are remembered in a folder .lumetra-journal beside them.</source>
        <translation>Lässt Fotos aus, deren Ausgabe da ist und, nach dem Inhalt, das ist, was dieses Foto mit diesem Look und diesen Optionen ergibt. Jede andere Datei schlägt fehl oder wird mit --overwrite ersetzt. Ausgaben ohne XMP-Daten merkt sich ein Ordner .lumetra-journal neben ihnen.</translation>
    </message>
    <message>
        <source>--output -: expected no --skip, as there is no file that could be done</source>
        <translation>--output -: erwartet wurde kein --skip, da es keine Datei gibt, die fertig sein könnte</translation>
    </message>
    <message>
        <source>--shard: expected i/n, such as 2/4, with i from 1 to n and n up to %1, found &quot;%2&quot;</source>
        <translation>--shard: erwartet wurde i/n, etwa 2/4, mit i von 1 bis n und n bis %1, gefunden &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Works on one of several parts of about as many bytes, such as 2/4, the second of four. All parts together are the whole list, as long as every machine has the same list and photos of the same sizes.</source>
        <translation>Bearbeitet einen von mehreren Teilen mit etwa gleich vielen Bytes, etwa 2/4, den zweiten von vieren. Alle Teile zusammen sind die ganze Liste, solange jeder Rechner dieselbe Liste und gleich große Fotos hat.</translation>
    </message>
    <message>
        <source>--shard: expected photos and outputs that are files, found a pipe</source>
        <translation>--shard: erwartet wurden Fotos und Ausgaben, die Dateien sind, gefunden eine Pipe</translation>
    </message>
    <message>
        <source>shortened from &quot;%1&quot;</source>
        <translation>gekürzt aus „%1“</translation>
    </message>
    <message>
        <source>Shortens names of more than 50 characters. Without it, such looks are not imported.</source>
        <translation>Kürzt Namen von mehr als 50 Zeichen. Ohne diese Option werden solche Looks nicht importiert.</translation>
    </message>
    <message>
        <source>--shorten-names imports looks with longer names under shortened ones, and --name gives a single one another name</source>
        <translation>--shorten-names importiert Looks mit längeren Namen unter gekürzten, und --name gibt einem einzelnen einen anderen Namen</translation>
    </message>
    <message>
        <source>Takes a name even where a look of the catalogue has it, too. The id tells the two apart then.</source>
        <translation>Nimmt einen Namen auch dann, wenn ihn ein Look des Katalogs schon hat. Die Id unterscheidet die beiden dann.</translation>
    </message>
    <message>
        <source>NAME: expected a new name, found &quot;%1&quot;, which a look of the group &quot;%2&quot; has; --keep-both takes it all the same</source>
        <translation>NAME: erwartet: ein neuer Name, gefunden: „%1“, den ein Look der Gruppe „%2“ hat; --keep-both nimmt ihn trotzdem</translation>
    </message>
</context>
</TS>
