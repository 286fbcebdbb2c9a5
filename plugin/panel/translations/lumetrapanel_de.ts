<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Effects</name>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Tönung</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
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
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Tones</source>
        <translation>Tonwerte</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Vibrance</source>
        <translation>Dynamik</translation>
    </message>
    <message>
        <source>Tone curve</source>
        <translation>Gradationskurve</translation>
    </message>
    <message>
        <source>Split toning</source>
        <translation>Teiltonung</translation>
    </message>
    <message>
        <source>Colour mixer</source>
        <translation>Farbmischer</translation>
    </message>
    <message>
        <source>Primaries</source>
        <translation>Primärfarben</translation>
    </message>
    <message>
        <source>Colour grading</source>
        <translation>Farbabstimmung</translation>
    </message>
    <message>
        <source>Grey mixer</source>
        <translation>Graumischer</translation>
    </message>
    <message>
        <source>Parametric curve</source>
        <translation>Parametrische Kurve</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Struktur</translation>
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
        <source>Lift, gamma, gain</source>
        <translation>Lift, Gamma, Gain</translation>
    </message>
    <message>
        <source>Colour table</source>
        <translation>Farbtabelle</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vignette</translation>
    </message>
    <message>
        <source>Dehaze</source>
        <translation>Dunst entfernen</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>Korn</translation>
    </message>
    <message>
        <source>Sharpening</source>
        <translation>Schärfung</translation>
    </message>
    <message>
        <source>Clarity</source>
        <translation>Klarheit</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Weichzeichnung</translation>
    </message>
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
</context>
<context>
    <name>LumetraPlugin::AppliedEdit</name>
    <message>
        <source>The edit names no look; none is put on the photo.</source>
        <translation>Die Bearbeitung nennt keinen Look; auf das Foto kommt keiner.</translation>
    </message>
    <message>
        <source>The look “%1” cannot be changed: %2. The photo keeps it as it was.</source>
        <translation>Der Look „%1“ kann nicht geändert werden: %2. Das Foto behält ihn, wie er war.</translation>
    </message>
    <message>
        <source>The look “%1” is no longer there. The photo keeps it as it was.</source>
        <translation>Den Look „%1“ gibt es nicht mehr. Das Foto behält ihn, wie er war.</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::EffectTexts</name>
    <message>
        <source>Sliders: %1</source>
        <translation>Regler: %1</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::FilterBar</name>
    <message>
        <source>Search looks</source>
        <translation>Looks suchen</translation>
    </message>
    <message>
        <source>Import looks: .xmp, .lrtemplate, .pp3, .cube, .3dl, CLF, CDL, HaldCLUT and look files</source>
        <translation>Looks importieren: .xmp, .lrtemplate, .pp3, .cube, .3dl, CLF, CDL, HaldCLUT und Look-Dateien</translation>
    </message>
    <message>
        <source>Import looks</source>
        <translation>Looks importieren</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt</translation>
    </message>
    <message>
        <source>Mine</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>All looks</source>
        <translation>Alle Looks</translation>
    </message>
    <message>
        <source>Looks that you marked with a star</source>
        <translation>Looks, die Sie mit einem Stern markiert haben</translation>
    </message>
    <message>
        <source>Looks that you applied last</source>
        <translation>Looks, die Sie zuletzt angewendet haben</translation>
    </message>
    <message>
        <source>Looks that you saved or imported</source>
        <translation>Looks, die Sie gespeichert oder importiert haben</translation>
    </message>
    <message>
        <source>Empty the search (Esc)</source>
        <translation>Suche leeren (Esc)</translation>
    </message>
    <message>
        <source>Empty the search</source>
        <translation>Suche leeren</translation>
    </message>
    <message>
        <source>Size of the thumbnails, and what is unfolded</source>
        <translation>Größe der Vorschaubilder, und was aufgeklappt ist</translation>
    </message>
    <message>
        <source>Arrange the panel</source>
        <translation>Bedienfeld einrichten</translation>
    </message>
    <message>
        <source>Fold the list of looks</source>
        <translation>Liste der Looks zuklappen</translation>
    </message>
    <message>
        <source>Unfold the list of looks</source>
        <translation>Liste der Looks aufklappen</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::ForeignFile</name>
    <message>
        <source>expected a file, found a folder</source>
        <translation>erwartet: eine Datei, gefunden: ein Ordner</translation>
    </message>
    <message>
        <source>expected a plain file, found a pipe, a socket or a device</source>
        <translation>erwartet: eine gewöhnliche Datei, gefunden: eine Pipe, ein Socket oder ein Gerät</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>expected a file of at most %1 bytes, found %2</source>
        <translation>erwartet: eine Datei von höchstens %1 Byte, gefunden: %2</translation>
    </message>
    <message>
        <source>expected a look, found an empty file</source>
        <translation>erwartet: ein Look, gefunden: eine leere Datei</translation>
    </message>
    <message>
        <source>expected text in UTF-8, found binary data</source>
        <translation>erwartet: Text in UTF-8, gefunden: Binärdaten</translation>
    </message>
    <message>
        <source>a table, &quot;s = { … }&quot;</source>
        <translation>eine Tabelle, „s = { … }“</translation>
    </message>
    <message>
        <source>the end of the file</source>
        <translation>das Ende der Datei</translation>
    </message>
    <message>
        <source>expected %1, found %2</source>
        <translation>erwartet: %1, gefunden: %2</translation>
    </message>
    <message>
        <source>a comment that ends with its line</source>
        <translation>ein Kommentar, der mit seiner Zeile endet</translation>
    </message>
    <message>
        <source>expected tables in at most 32 levels</source>
        <translation>erwartet: Tabellen in höchstens 32 Ebenen</translation>
    </message>
    <message>
        <source>expected at most 100000 entries</source>
        <translation>erwartet: höchstens 100000 Einträge</translation>
    </message>
    <message>
        <source>&quot;,&quot; or &quot;}&quot;</source>
        <translation>„,“ oder „}“</translation>
    </message>
    <message>
        <source>a text, a number, true, false, nil or a table</source>
        <translation>ein Text, eine Zahl, true, false, nil oder eine Tabelle</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>expected a text that ends in its line</source>
        <translation>erwartet: ein Text, der in seiner Zeile endet</translation>
    </message>
    <message>
        <source>expected a known character behind &quot;\&quot;</source>
        <translation>erwartet: ein bekanntes Zeichen hinter „\“</translation>
    </message>
    <message>
        <source>expected a byte of at most 255 behind &quot;\&quot;</source>
        <translation>erwartet: ein Byte bis 255 hinter „\“</translation>
    </message>
    <message>
        <source>expected sections with keys and values: %1</source>
        <translation>erwartet: Abschnitte mit Schlüsseln und Werten: %1</translation>
    </message>
    <message>
        <source>expected a profile with sections, found none</source>
        <translation>erwartet: ein Profil mit Abschnitten, gefunden: keine</translation>
    </message>
    <message>
        <source>expected a table &quot;settings&quot; in a table &quot;value&quot;</source>
        <translation>erwartet: eine Tabelle „settings“ in einer Tabelle „value“</translation>
    </message>
    <message>
        <source>expected a template of type &quot;Develop&quot;, found type &quot;%1&quot;, which is no look</source>
        <translation>erwartet: eine Vorlage vom Typ „Develop“, gefunden: Typ „%1“, der kein Look ist</translation>
    </message>
    <message>
        <source>expected no document type</source>
        <translation>erwartet: kein Dokumenttyp</translation>
    </message>
    <message>
        <source>expected nesting of at most 64 levels</source>
        <translation>erwartet: höchstens 64 Ebenen Verschachtelung</translation>
    </message>
    <message>
        <source>expected the prefix &quot;crs&quot; for camera-raw settings alone</source>
        <translation>erwartet: das Präfix „crs“ nur für Camera-Raw-Einstellungen</translation>
    </message>
    <message>
        <source>expected well-formed XML: %1</source>
        <translation>erwartet: wohlgeformtes XML: %1</translation>
    </message>
    <message>
        <source>expected camera-raw settings in the XMP packet, found none</source>
        <translation>erwartet: Camera-Raw-Einstellungen im XMP-Paket, gefunden: keine</translation>
    </message>
    <message>
        <source>expected a setting that changes the picture, found none</source>
        <translation>erwartet: eine Einstellung, die das Bild ändert, gefunden: keine</translation>
    </message>
    <message>
        <source>expected a setting that this program can carry over, found only %1</source>
        <translation>erwartet: eine Einstellung, die dieses Programm übernehmen kann, gefunden: nur %1</translation>
    </message>
    <message>
        <source>expected a name that ends in .xmp, .lrtemplate or .pp3</source>
        <translation>erwartet: ein Name, der auf .xmp, .lrtemplate oder .pp3 endet</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::HandedLook</name>
    <message>
        <source>A look cannot have this name: %1</source>
        <translation>So kann kein Look heißen: %1</translation>
    </message>
    <message>
        <source>There is a look “%1” already.</source>
        <translation>Es gibt schon einen Look „%1“.</translation>
    </message>
    <message>
        <source>The look “%1” has no effects.</source>
        <translation>Der Look „%1“ hat keine Effekte.</translation>
    </message>
    <message>
        <source>The look “%1” cannot be kept with the blend amount %2.</source>
        <translation>Der Look „%1“ kann mit der Mischung %2 nicht aufbewahrt werden.</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensität</translation>
    </message>
    <message>
        <source>The look “%1” cannot have the slider “%2”: it moves nothing of the look, or what the intensity moves.</source>
        <translation>Der Look „%1“ kann den Regler „%2“ nicht haben: Er bewegt nichts am Look oder das, was die Intensität bewegt.</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::ImportFolder</name>
    <message>
        <source>%1: expected at most %2 files in folders of at most %3 levels, found more</source>
        <translation>%1: erwartet: höchstens %2 Dateien in Ordnern von höchstens %3 Ebenen, gefunden: mehr</translation>
    </message>
    <message>
        <source>%1: expected files with looks, found none</source>
        <translation>%1: erwartet: Dateien mit Looks, gefunden: keine</translation>
    </message>
    <message>
        <source>%1: expected a folder that can be read</source>
        <translation>%1: erwartet: ein lesbarer Ordner</translation>
    </message>
    <message>
        <source>%1: expected a name in the encoding of file names</source>
        <translation>%1: erwartet: ein Name in der Kodierung der Dateinamen</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::ImportGathering</name>
    <message>
        <source>%1: expected one look for the name &quot;%2&quot;, found %3</source>
        <translation>%1: erwartet: ein Look für den Namen „%2“, gefunden: %3</translation>
    </message>
    <message>
        <source>%1: a look cannot be called &quot;%2&quot;: %3</source>
        <translation>%1: So kann ein Look nicht heißen: „%2“: %3</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is left out: a look of that name is here already</source>
        <translation>%1: „%2“ wird weggelassen: Ein Look dieses Namens ist schon da</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::ImportReading</name>
    <message>
        <source>Import looks</source>
        <translation>Looks importieren</translation>
    </message>
    <message>
        <source>Files that are read</source>
        <translation>Gelesene Dateien</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::ImportSummary</name>
    <message>
        <source>Imported looks</source>
        <translation>Importierte Looks</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>No look was imported.</source>
        <translation>Kein Look wurde importiert.</translation>
    </message>
    <message>
        <source>Imported “%1”.</source>
        <translation>„%1“ importiert.</translation>
    </message>
    <message>
        <source>Imported %1 looks.</source>
        <translation>%1 Looks importiert.</translation>
    </message>
    <message>
        <source>One was not imported.</source>
        <translation>Einer wurde nicht importiert.</translation>
    </message>
    <message>
        <source>%1 were not imported.</source>
        <translation>%1 wurden nicht importiert.</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Nicht importiert</translation>
    </message>
    <message>
        <source>Imported</source>
        <translation>Importiert</translation>
    </message>
    <message>
        <source>Approximately:</source>
        <translation>Annähernd:</translation>
    </message>
    <message>
        <source>Left out:</source>
        <translation>Weggelassen:</translation>
    </message>
    <message>
        <source>One is here already.</source>
        <translation>Einer ist schon da.</translation>
    </message>
    <message>
        <source>%1 are here already.</source>
        <translation>%1 sind schon da.</translation>
    </message>
    <message>
        <source>Here already</source>
        <translation>Schon da</translation>
    </message>
    <message>
        <source>%1, as “%2”</source>
        <translation>%1, als „%2“</translation>
    </message>
    <message>
        <source>Shortened from:</source>
        <translation>Gekürzt aus:</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::LookBuilder</name>
    <message>
        <source>expected a curve of 2 to 256 points</source>
        <translation>erwartet: eine Kurve von 2 bis 256 Punkten</translation>
    </message>
    <message>
        <source>expected seven numbers</source>
        <translation>erwartet: sieben Zahlen</translation>
    </message>
    <message>
        <source>expected numbers</source>
        <translation>erwartet: Zahlen</translation>
    </message>
    <message>
        <source>expected a curve of points</source>
        <translation>erwartet: eine Kurve aus Punkten</translation>
    </message>
    <message>
        <source>expected a curve of kind 0 to 4</source>
        <translation>erwartet: eine Kurve der Art 0 bis 4</translation>
    </message>
    <message>
        <source>limited to what this program can do</source>
        <translation>begrenzt auf das, was dieses Programm kann</translation>
    </message>
    <message>
        <source>expected a number</source>
        <translation>erwartet: eine Zahl</translation>
    </message>
    <message>
        <source>expected this picture beside the file or in a folder that is named for tables</source>
        <translation>erwartet: dieses Bild neben der Datei oder in einem für Tabellen genannten Ordner</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::NameCounter</name>
    <message>
        <source>%1, at most %2</source>
        <translation>%1, höchstens %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 of at most %2 characters</source>
        <translation>%1 von höchstens %2 Zeichen</translation>
    </message>
    <message>
        <source>The rest of the text was left out.</source>
        <translation>Der Rest des Textes wurde weggelassen.</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::PanelGuard</name>
    <message>
        <source>This did not work, and nothing says why.</source>
        <translation>Das hat nicht geklappt; ein Grund ist nicht bekannt.</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::PictureLooks</name>
    <message>
        <source>%1: expected a picture that tells of its look, as this program exports them, found nothing of it in its metadata</source>
        <translation>%1: erwartet: ein Bild, das von seinem Look erzählt, wie dieses Programm sie exportiert, gefunden: nichts davon in seinen Metadaten</translation>
    </message>
    <message>
        <source>%1: expected the look itself, found only its name%2</source>
        <translation>%1: erwartet: der Look selbst, gefunden: nur sein Name%2</translation>
    </message>
    <message>
        <source>%1: layer %2 &quot;%3&quot;</source>
        <translation>%1: Ebene %2 „%3“</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::PresetCommands</name>
    <message>
        <source>Open a photo first.</source>
        <translation>Öffnen Sie zuerst ein Foto.</translation>
    </message>
    <message>
        <source>“%1” cannot be used: %2</source>
        <translation>„%1“ kann nicht verwendet werden: %2</translation>
    </message>
    <message>
        <source>“%1” needs the file “%2”, expected in the folder “%3”.</source>
        <translation>„%1“ braucht die Datei „%2“, erwartet im Ordner „%3“.</translation>
    </message>
    <message>
        <source>There is no look with the id “%1”.</source>
        <translation>Es gibt keinen Look mit der Kennung „%1“.</translation>
    </message>
    <message>
        <source>Intensity of “%1”</source>
        <translation>Intensität von „%1“</translation>
    </message>
    <message>
        <source>Reset “%1”</source>
        <translation>„%1“ zurücksetzen</translation>
    </message>
    <message>
        <source>Add another look to “%1”</source>
        <translation>Weiterer Look zu „%1“</translation>
    </message>
    <message>
        <source>Discard the look</source>
        <translation>Look verwerfen</translation>
    </message>
    <message>
        <source>Look “%1”</source>
        <translation>Look „%1“</translation>
    </message>
    <message>
        <source>Your looks cannot be saved: their file could not be read.</source>
        <translation>Ihre Looks können nicht gespeichert werden: Ihre Datei war nicht lesbar.</translation>
    </message>
    <message>
        <source>Your looks could not be saved: %1</source>
        <translation>Ihre Looks konnten nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>Delete “%1”</source>
        <translation>„%1“ löschen</translation>
    </message>
    <message>
        <source>Wrote “%1”.</source>
        <translation>„%1“ geschrieben.</translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Nichts wurde importiert.</translation>
    </message>
    <message>
        <source>This look cannot be changed.</source>
        <translation>Dieser Look kann nicht geändert werden.</translation>
    </message>
    <message>
        <source>“%1” is here already, as “%2”.</source>
        <translation>„%1“ ist schon da, als „%2“.</translation>
    </message>
    <message>
        <source>%1 looks are here already.</source>
        <translation>%1 Looks sind schon da.</translation>
    </message>
    <message>
        <source>“%1” cannot become a table, for nothing of it is colours alone: %2</source>
        <translation>„%1“ kann keine Tabelle werden, denn nichts davon sind Farben allein: %2</translation>
    </message>
    <message>
        <source>“%1” was not written: expected a name that ends in .cube, .clf, .png, .tif or .tiff.</source>
        <translation>„%1“ wurde nicht geschrieben: erwartet: ein Name, der auf .cube, .clf, .png, .tif oder .tiff endet.</translation>
    </message>
    <message>
        <source>Export as a table</source>
        <translation>Als Tabelle exportieren</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tabellen</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Weggelassen: %1</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>Share looks</source>
        <translation>Looks weitergeben</translation>
    </message>
    <message>
        <source>Pictures that are drawn</source>
        <translation>Bilder, die gezeichnet werden</translation>
    </message>
    <message>
        <source>Another look is called “%1”: choose another name.</source>
        <translation>„%1“ heißt schon ein anderer Look: Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>My looks</source>
        <translation>Meine Looks</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::PresetDialogs</name>
    <message>
        <source>New look</source>
        <translation>Neuer Look</translation>
    </message>
    <message>
        <source>Rename look</source>
        <translation>Look umbenennen</translation>
    </message>
    <message>
        <source>Name of the look</source>
        <translation>Name des Looks</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete the look “%1”?</source>
        <translation>Den Look „%1“ löschen?</translation>
    </message>
    <message>
        <source>Retry saves them again,
Discard quits without them.</source>
        <translation>Wiederholen speichert sie noch einmal,
Verwerfen beendet das Programm ohne sie.</translation>
    </message>
    <message>
        <source>Discard quits without them.</source>
        <translation>Verwerfen beendet das Programm ohne sie.</translation>
    </message>
    <message>
        <source>The last changes to your own looks and favourites are not saved.</source>
        <translation>Die letzten Änderungen an Ihren eigenen Looks und Favoriten sind nicht gespeichert.</translation>
    </message>
    <message>
        <source>Import looks</source>
        <translation>Looks importieren</translation>
    </message>
    <message>
        <source>Looks (%1)</source>
        <translation>Looks (%1)</translation>
    </message>
    <message>
        <source>All files (%1)</source>
        <translation>Alle Dateien (%1)</translation>
    </message>
    <message>
        <source>Import a folder of looks</source>
        <translation>Einen Ordner mit Looks importieren</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>Beide behalten</translation>
    </message>
    <message>
        <source>Share looks</source>
        <translation>Looks weitergeben</translation>
    </message>
    <message>
        <source>A table holds colours alone. “%1” does more: %2

Colours Only writes the table without that.</source>
        <translation>Eine Tabelle enthält nur Farben. „%1“ tut mehr: %2

„Nur Farben“ schreibt die Tabelle ohne das.</translation>
    </message>
    <message>
        <source>Colours Only</source>
        <translation>Nur Farben</translation>
    </message>
    <message>
        <source>Cube (%1)</source>
        <translation>Cube (%1)</translation>
    </message>
    <message>
        <source>Common LUT Format (%1)</source>
        <translation>Common LUT Format (%1)</translation>
    </message>
    <message>
        <source>HaldCLUT picture (%1)</source>
        <translation>HaldCLUT-Bild (%1)</translation>
    </message>
    <message>
        <source>Export “%1” as a table</source>
        <translation>„%1“ als Tabelle exportieren</translation>
    </message>
    <message>
        <source>There is a look “%1” already, in the group “%2”.

Use This Name gives it to your look, too,
Cancel goes back to the name.</source>
        <translation>Es gibt schon einen Look „%1“, in der Gruppe „%2“.

„Diesen Namen verwenden“ nennt Ihren Look auch so,
„Abbrechen“ führt zum Namen zurück.</translation>
    </message>
    <message>
        <source>Use This Name</source>
        <translation>Diesen Namen verwenden</translation>
    </message>
    <message>
        <source>There are other looks of these names: %1

Keep Both adds the new ones with a number,
Cancel leaves them out.</source>
        <translation>Es gibt schon andere Looks mit diesen Namen: %1

„Beide behalten“ nummeriert die neuen,
„Abbrechen“ lässt sie weg.</translation>
    </message>
    <message>
        <source>A look&apos;s name has at most %1 characters. These are longer: %2

Shorten cuts the names off,
Cancel leaves the looks out.</source>
        <translation>Der Name eines Looks hat höchstens %1 Zeichen. Diese sind länger: %2

„Kürzen“ schneidet die Namen ab,
„Abbrechen“ lässt die Looks weg.</translation>
    </message>
    <message>
        <source>Shorten</source>
        <translation>Kürzen</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::PresetImport</name>
    <message>
        <source>%1: expected a name that ends in .lumetra, .xmp, .lrtemplate, .pp3, .cube, .3dl, .clf, .cc, .ccc, .cdl, .png, .tif, .jpg, .webp, .zip or .json</source>
        <translation>%1: erwartet: ein Name, der auf .lumetra, .xmp, .lrtemplate, .pp3, .cube, .3dl, .clf, .cc, .ccc, .cdl, .png, .tif, .jpg, .webp, .zip oder .json endet</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::PresetNames</name>
    <message>
        <source>expected 1 to %1 characters, found %2</source>
        <translation>erwartet: 1 bis %1 Zeichen, gefunden: %2</translation>
    </message>
    <message>
        <source>expected a name without control characters, found &quot;%1&quot;</source>
        <translation>erwartet: ein Name ohne Steuerzeichen, gefunden: „%1“</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::PresetPageModel</name>
    <message>
        <source>on the photo</source>
        <translation>auf dem Foto</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>popular</source>
        <translation>beliebt</translation>
    </message>
    <message>
        <source>yet to be downloaded</source>
        <translation>noch zu laden</translation>
    </message>
    <message>
        <source>a file that it needs is missing</source>
        <translation>eine Datei, die es braucht, fehlt</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::PresetPages</name>
    <message>
        <source>My looks</source>
        <translation>Meine Looks</translation>
    </message>
    <message>
        <source>Alt+%1 opens and shuts this group</source>
        <translation>Alt+%1 öffnet und schließt diese Gruppe</translation>
    </message>
    <message>
        <source>1 look</source>
        <translation>1 Look</translation>
    </message>
    <message>
        <source>%1 looks</source>
        <translation>%1 Looks</translation>
    </message>
    <message>
        <source>%1, some yet to be downloaded</source>
        <translation>%1, einige sind noch zu laden</translation>
    </message>
    <message>
        <source>No look is called “%1”.</source>
        <translation>Kein Look heißt „%1“.</translation>
    </message>
    <message>
        <source>Looks that you mark with a star appear here.</source>
        <translation>Hier erscheinen Looks, die Sie mit einem Stern versehen.</translation>
    </message>
    <message>
        <source>Looks that you apply appear here.</source>
        <translation>Hier erscheinen Looks, die Sie anwenden.</translation>
    </message>
    <message>
        <source>There are no looks.</source>
        <translation>Es gibt keine Looks.</translation>
    </message>
    <message>
        <source>Looks that you save or import appear here. Drop files with looks, .cube and other LUT files to import them.</source>
        <translation>Hier erscheinen Looks, die Sie speichern oder importieren. Ziehen Sie Look-, .cube- und andere LUT-Dateien hierher, um sie zu importieren.</translation>
    </message>
    <message>
        <source>Used last</source>
        <translation>Zuletzt verwendet</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::PresetsFrame</name>
    <message>
        <source>Looks</source>
        <translation>Looks</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::PresetsPlugin</name>
    <message>
        <source>Looks</source>
        <translation>Looks</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::PresetsWidget</name>
    <message>
        <source>Show on the photo</source>
        <translation>Auf dem Foto zeigen</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Save as a look…</source>
        <translation>Als Look speichern …</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Umbenennen …</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Löschen …</translation>
    </message>
    <message>
        <source>Reset all values</source>
        <translation>Alle Werte zurücksetzen</translation>
    </message>
    <message>
        <source>Add another look on top</source>
        <translation>Weiteren Look darüberlegen</translation>
    </message>
    <message>
        <source>Remove the look</source>
        <translation>Look entfernen</translation>
    </message>
    <message>
        <source>Search looks</source>
        <translation>Looks suchen</translation>
    </message>
    <message>
        <source>Import looks…</source>
        <translation>Looks importieren …</translation>
    </message>
    <message>
        <source>Import a folder of looks…</source>
        <translation>Ordner mit Looks importieren …</translation>
    </message>
    <message>
        <source>Open or shut the group in that place</source>
        <translation>Gruppe an dieser Stelle öffnen oder schließen</translation>
    </message>
    <message>
        <source>Share…</source>
        <translation>Weitergeben …</translation>
    </message>
    <message>
        <source>Export as a table…</source>
        <translation>Als Tabelle exportieren…</translation>
    </message>
    <message>
        <source>Small Thumbnails</source>
        <translation>Kleine Vorschaubilder</translation>
    </message>
    <message>
        <source>Medium Thumbnails</source>
        <translation>Mittlere Vorschaubilder</translation>
    </message>
    <message>
        <source>Large Thumbnails</source>
        <translation>Große Vorschaubilder</translation>
    </message>
    <message>
        <source>List of Looks</source>
        <translation>Liste der Looks</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Regler</translation>
    </message>
    <message>
        <source>Next look</source>
        <translation>Nächster Look</translation>
    </message>
    <message>
        <source>Previous look</source>
        <translation>Voriger Look</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::ShareDialog</name>
    <message>
        <source>Share looks</source>
        <translation>Looks weitergeben</translation>
    </message>
    <message>
        <source>The file holds the looks with their tables and a small picture of each. Your photos stay with you.</source>
        <translation>Die Datei enthält die Looks mit ihren Tabellen und je einem kleinen Bild. Ihre Fotos bleiben bei Ihnen.</translation>
    </message>
    <message>
        <source>Share…</source>
        <translation>Weitergeben …</translation>
    </message>
    <message>
        <source>&amp;Author:</source>
        <translation>&amp;Autor:</translation>
    </message>
    <message>
        <source>&amp;Licence:</source>
        <translation>&amp;Lizenz:</translation>
    </message>
    <message>
        <source>Looks</source>
        <translation>Looks</translation>
    </message>
    <message>
        <source>My looks</source>
        <translation>Meine Looks</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::SliderRow</name>
    <message>
        <source>%1 as a number</source>
        <translation>%1 als Zahl</translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::TunePanel</name>
    <message>
        <source>Choose a look</source>
        <translation>Look auswählen</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensität</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Reset all values of this look</source>
        <translation>Alle Werte dieses Looks zurücksetzen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Takes the look off the photo</source>
        <translation>Nimmt den Look vom Foto</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Speichern …</translation>
    </message>
    <message>
        <source>Saves the look with these values as a look of your own</source>
        <translation>Speichert den Look mit diesen Werten als eigenen Look</translation>
    </message>
    <message>
        <source>Add another</source>
        <translation>Noch ein Look</translation>
    </message>
    <message>
        <source>Leaves this look on the photo; the look that you choose next comes on top of it</source>
        <translation>Lässt diesen Look auf dem Foto; der nächste, den Sie wählen, kommt darüber</translation>
    </message>
    <message>
        <source>Fold the sliders</source>
        <translation>Regler zuklappen</translation>
    </message>
    <message>
        <source>Unfold the sliders</source>
        <translation>Regler aufklappen</translation>
    </message>
</context>
</TS>
