<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Effects</name>
    <message>
        <source>Amount</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Tönung</translation>
    </message>
    <message>
        <source>Blacks</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Shadows</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Mid-tones</source>
        <translation>Mitteltöne</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Lichter</translation>
    </message>
    <message>
        <source>Whites</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Darks</source>
        <translation>Dunkle Töne</translation>
    </message>
    <message>
        <source>Lights</source>
        <translation>Helle Töne</translation>
    </message>
    <message>
        <source>Whole photo</source>
        <translation>Ganzes Foto</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Luminanz</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Überblendung</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Grenze</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Aqua</source>
        <translation>Aquamarin</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Purpur</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Schwelle</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Feather</source>
        <translation>Auslauf</translation>
    </message>
    <message>
        <source>Roundness</source>
        <translation>Rundung</translation>
    </message>
    <message>
        <source>Roughness</source>
        <translation>Rauheit</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>Slope</source>
        <translation>Steigung</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Exponent</translation>
    </message>
    <message>
        <source>Clip between the steps</source>
        <translation>Zwischenwerte begrenzen</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Red from red</source>
        <translation>Rot aus Rot</translation>
    </message>
    <message>
        <source>Red from green</source>
        <translation>Rot aus Grün</translation>
    </message>
    <message>
        <source>Red from blue</source>
        <translation>Rot aus Blau</translation>
    </message>
    <message>
        <source>Green from red</source>
        <translation>Grün aus Rot</translation>
    </message>
    <message>
        <source>Green from green</source>
        <translation>Grün aus Grün</translation>
    </message>
    <message>
        <source>Green from blue</source>
        <translation>Grün aus Blau</translation>
    </message>
    <message>
        <source>Blue from red</source>
        <translation>Blau aus Rot</translation>
    </message>
    <message>
        <source>Blue from green</source>
        <translation>Blau aus Grün</translation>
    </message>
    <message>
        <source>Blue from blue</source>
        <translation>Blau aus Blau</translation>
    </message>
    <message>
        <source>Shadows end at</source>
        <translation>Schatten bis</translation>
    </message>
    <message>
        <source>Middle at</source>
        <translation>Mitte bei</translation>
    </message>
    <message>
        <source>Highlights begin at</source>
        <translation>Lichter ab</translation>
    </message>
    <message>
        <source>Tint of the shadows</source>
        <translation>Schattentönung</translation>
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
        <source>Exposure</source>
        <translation>Belichtung</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Weißabgleich</translation>
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
        <source>Dehaze</source>
        <translation>Dunst entfernen</translation>
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
    <name>LumetraEditor::AboutDialog</name>
    <message>
        <source>About Lumetra</source>
        <translation>Über Lumetra</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>A photo editor built around looks.

Free software under the GNU General Public License,
version 2 or later. It comes without any warranty.</source>
        <translation>Ein Fotoeditor rund um Looks.

Freie Software unter der GNU General Public License,
Version 2 oder neuer. Ohne jede Gewährleistung.</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::Editor</name>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>„%1“ lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>Something has gone wrong: %1</source>
        <translation>Etwas ist schiefgegangen: %1</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>Ebene einblenden</translation>
    </message>
    <message>
        <source>Hide layer</source>
        <translation>Ebene ausblenden</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::EditorActions</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Erscheinungsbild</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>&amp;Previous Photo</source>
        <translation>&amp;Voriges Foto</translation>
    </message>
    <message>
        <source>&amp;Next Photo</source>
        <translation>&amp;Nächstes Foto</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren …</translation>
    </message>
    <message>
        <source>&amp;Close Photo</source>
        <translation>Foto &amp;schließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Fit to Window</source>
        <translation>An &amp;Fenster anpassen</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Before and After</source>
        <translation>&amp;Vorher und nachher</translation>
    </message>
    <message>
        <source>&amp;Side Panel</source>
        <translation>&amp;Seitenleiste</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>V&amp;ollbild</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>&amp;About Lumetra</source>
        <translation>Ü&amp;ber Lumetra</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Photos</source>
        <translation>&amp;Fotos</translation>
    </message>
    <message>
        <source>Open &amp;Folder…</source>
        <translation>&amp;Ordner öffnen …</translation>
    </message>
    <message>
        <source>Select &amp;All Photos</source>
        <translation>&amp;Alle Fotos auswählen</translation>
    </message>
    <message>
        <source>Select &amp;Only This Photo</source>
        <translation>Nur &amp;dieses Foto auswählen</translation>
    </message>
    <message>
        <source>Order by &amp;Name</source>
        <translation>Nach &amp;Namen ordnen</translation>
    </message>
    <message>
        <source>Order by &amp;Time Taken</source>
        <translation>Nach Aufnahme&amp;zeit ordnen</translation>
    </message>
    <message>
        <source>&amp;Read Folder Again</source>
        <translation>&amp;Ordner neu lesen</translation>
    </message>
    <message>
        <source>Photo S&amp;trip</source>
        <translation>Foto&amp;streifen</translation>
    </message>
    <message>
        <source>&amp;Paste Edit</source>
        <translation>Bearbeitung &amp;einfügen</translation>
    </message>
    <message>
        <source>&amp;Paste Edit on %1 Photos</source>
        <translation>Bearbeitung in %1 Fotos &amp;einfügen</translation>
    </message>
    <message>
        <source>Paste P&amp;arts of Edit…</source>
        <translation>&amp;Teile der Bearbeitung einfügen…</translation>
    </message>
    <message>
        <source>Paste P&amp;arts of Edit on %1 Photos…</source>
        <translation>&amp;Teile der Bearbeitung in %1 Fotos einfügen…</translation>
    </message>
    <message>
        <source>Put &amp;Look on Selected Photos</source>
        <translation>&amp;Look auf die ausgewählten Fotos legen</translation>
    </message>
    <message>
        <source>Put &amp;Look on All %1 Photos</source>
        <translation>&amp;Look auf alle %1 Fotos legen</translation>
    </message>
    <message>
        <source>&amp;Copy Edit</source>
        <translation>Bearbeitung &amp;kopieren</translation>
    </message>
    <message>
        <source>Export &amp;Several…</source>
        <translation>&amp;Mehrere exportieren …</translation>
    </message>
    <message>
        <source>Re&amp;vert to Original</source>
        <translation>Auf Original &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>Re&amp;vert %1 Photos to Original</source>
        <translation>%1 Fotos auf Original &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>Back&amp;ground</source>
        <translation>&amp;Hintergrund</translation>
    </message>
    <message>
        <source>&amp;200 %</source>
        <translation>&amp;200 %</translation>
    </message>
    <message>
        <source>&amp;400 %</source>
        <translation>&amp;400 %</translation>
    </message>
    <message>
        <source>Side &amp;by Side</source>
        <translation>&amp;Nebeneinander</translation>
    </message>
    <message>
        <source>&amp;Clipping Warnings</source>
        <translation>&amp;Warnung bei fehlender Zeichnung</translation>
    </message>
    <message>
        <source>As the &amp;Theme</source>
        <translation>Wie das &amp;Erscheinungsbild</translation>
    </message>
    <message>
        <source>&amp;Middle Grey</source>
        <translation>&amp;Mittelgrau</translation>
    </message>
    <message>
        <source>&amp;Light Grey</source>
        <translation>&amp;Hellgrau</translation>
    </message>
    <message>
        <source>&amp;White</source>
        <translation>&amp;Weiß</translation>
    </message>
    <message>
        <source>&amp;Modules…</source>
        <translation>&amp;Module …</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::EditorWindow</name>
    <message>
        <source>%1: no panel takes files of this kind</source>
        <translation>%1: kein Bedienfeld nimmt Dateien dieser Art an</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>%1 wird geöffnet …</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>%1 – Lumetra</source>
        <translation>%1 – Lumetra</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Hold to see the original (Space)</source>
        <translation>Halten, um das Original zu sehen (Leertaste)</translation>
    </message>
    <message>
        <source>Hold to see the original</source>
        <translation>Halten, um das Original zu sehen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cancel the export</source>
        <translation>Export abbrechen</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::ExportCommand</name>
    <message>
        <source>The export was cancelled.</source>
        <translation>Der Export wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Exportiert nach %1</translation>
    </message>
    <message>
        <source>The edit of “%1” could not be saved, so that nothing is exported.</source>
        <translation>Die Bearbeitung von „%1“ konnte nicht gespeichert werden, deshalb wird nichts exportiert.</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::ExportDialog</name>
    <message>
        <source>Export Photo</source>
        <translation>Foto exportieren</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Durchsuchen …</translation>
    </message>
    <message>
        <source>File &amp;name</source>
        <translation>Datei&amp;name</translation>
    </message>
    <message>
        <source>%1_edited.%2</source>
        <translation>%1_bearbeitet.%2</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 Pixel</translation>
    </message>
    <message>
        <source>“%1” exists. Replace it?</source>
        <translation>„%1“ gibt es schon. Ersetzen?</translation>
    </message>
    <message>
        <source>Choose another name.</source>
        <translation>Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>The folder “%1” is not there.</source>
        <translation>Den Ordner „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>Nothing can be written into the folder “%1”.</source>
        <translation>In den Ordner „%1“ kann nichts geschrieben werden.</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Photos (*.jpg *.png *.tif *.webp);;All files (*)</source>
        <translation>Fotos (*.jpg *.png *.tif *.webp);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::ExportGuard</name>
    <message>
        <source>“%1” is a folder.</source>
        <translation>„%1“ ist ein Ordner.</translation>
    </message>
    <message>
        <source>“%1” is a link to a file that is not there.</source>
        <translation>„%1“ ist ein Verweis auf eine Datei, die es nicht gibt.</translation>
    </message>
    <message>
        <source>“%1” is not an ordinary file.</source>
        <translation>„%1“ ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>“%1” is the edit of a photo.</source>
        <translation>„%1“ ist die Bearbeitung eines Fotos.</translation>
    </message>
    <message>
        <source>“%1” is in the folder where the program keeps looks and edits.</source>
        <translation>„%1“ liegt in dem Ordner, in dem das Programm Looks und Bearbeitungen aufbewahrt.</translation>
    </message>
    <message>
        <source>“%1” is a photo with an edit of its own. An export does not replace it.</source>
        <translation>„%1“ ist ein Foto mit einer eigenen Bearbeitung. Ein Export ersetzt es nicht.</translation>
    </message>
    <message>
        <source>“%1” is the photo that is open. An export does not replace it.</source>
        <translation>„%1“ ist das geöffnete Foto. Ein Export ersetzt es nicht.</translation>
    </message>
    <message>
        <source>“%1” is one of the photos that were opened. An export does not replace it.</source>
        <translation>„%1“ ist eines der geöffneten Fotos. Ein Export ersetzt es nicht.</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::ExportJob</name>
    <message>
        <source>“%1” has appeared meanwhile and is not replaced.</source>
        <translation>„%1“ ist inzwischen entstanden und wird nicht ersetzt.</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::Exporter</name>
    <message>
        <source>%1: there is not enough memory</source>
        <translation>%1: der Speicher reicht nicht aus</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::Failure</name>
    <message>
        <source>it gives no reason</source>
        <translation>es nennt keinen Grund</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::FiledEdit</name>
    <message>
        <source>the photo cannot be read</source>
        <translation>das Foto kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>its edit cannot be read: %1</source>
        <translation>seine Bearbeitung kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>it was replaced or changed by another program since it was edited; open it to decide about its edit</source>
        <translation>es wurde ersetzt oder von einem anderen Programm geändert, seit es bearbeitet wurde; öffnen Sie es, um über seine Bearbeitung zu entscheiden</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::FolderScan</name>
    <message>
        <source>The folder “%1” cannot be read.</source>
        <translation>Der Ordner „%1“ kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::FollowSwitch</name>
    <message>
        <source>Changes go to all %1 photos</source>
        <translation>Änderungen gelten für alle %1 Fotos</translation>
    </message>
    <message>
        <source>Looks and sliders change all selected photos, in one step that can be undone.
Switched off, they change the photo that is shown.</source>
        <translation>Looks und Regler ändern alle ausgewählten Fotos, in einem Schritt, der zurückgenommen werden kann.
Ausgeschaltet ändern sie das Foto, das gezeigt wird.</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::FullScreen</name>
    <message>
        <source>Leave Full Screen</source>
        <translation>Vollbild verlassen</translation>
    </message>
    <message>
        <source>Esc and F11 do the same</source>
        <translation>Esc und F11 tun dasselbe</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::GuardedPanel</name>
    <message>
        <source>it makes no panel</source>
        <translation>es erzeugt kein Bedienfeld</translation>
    </message>
    <message>
        <source>its panel has no widget</source>
        <translation>sein Bedienfeld ist leer</translation>
    </message>
    <message>
        <source>it has deleted its own widget</source>
        <translation>es hat seine eigene Oberfläche gelöscht</translation>
    </message>
    <message>
        <source>The panel “%1” cannot be used: %2</source>
        <translation>Das Bedienfeld „%1“ kann nicht verwendet werden: %2</translation>
    </message>
    <message>
        <source>The panel “%1” has failed and is out of use until the next start: %2
Its part of the edit is kept as it was.</source>
        <translation>Das Bedienfeld „%1“ ist ausgefallen und bis zum nächsten Start außer Betrieb: %2
Sein Teil der Bearbeitung bleibt erhalten, wie er war.</translation>
    </message>
    <message>
        <source>The panel “%1” has failed.</source>
        <translation>Das Bedienfeld „%1“ ist ausgefallen.</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::HistogramWidget</name>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
    <message>
        <source>Shadows are clipped</source>
        <translation>Schatten ohne Zeichnung</translation>
    </message>
    <message>
        <source>Highlights are clipped</source>
        <translation>Lichter ohne Zeichnung</translation>
    </message>
    <message>
        <source>Shadows at the left, highlights at the right.
A lit corner says that they are clipped; click it to see where.</source>
        <translation>Links die Schatten, rechts die Lichter.
Eine leuchtende Ecke sagt, dass dort Zeichnung fehlt: ein Klick zeigt, wo.</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::LayerSteps</name>
    <message>
        <source>Layer</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>Open “%1”</source>
        <translation>„%1“ öffnen</translation>
    </message>
    <message>
        <source>“%1” cannot be opened again: its panel does not draw it as it is.</source>
        <translation>„%1“ kann nicht wieder geöffnet werden: Das Bedienfeld zeichnet es nicht so, wie es ist.</translation>
    </message>
    <message>
        <source>“%1” cannot be opened again: its panel is not there.</source>
        <translation>„%1“ kann nicht wieder geöffnet werden: Das Bedienfeld dazu fehlt.</translation>
    </message>
    <message>
        <source>Close the layer</source>
        <translation>Ebene schließen</translation>
    </message>
    <message>
        <source>Take “%1” away</source>
        <translation>„%1“ wegnehmen</translation>
    </message>
    <message>
        <source>Move “%1”</source>
        <translation>„%1“ verschieben</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::LayersModel</name>
    <message>
        <source>Double click: open again. Drag: put above or below another one.
Right click: all that can be done.</source>
        <translation>Doppelklick: wieder öffnen. Ziehen: über oder unter eine andere Ebene legen.
Rechtsklick: alles, was damit geht.</translation>
    </message>
    <message>
        <source>Intensity %1</source>
        <translation>Intensität %1</translation>
    </message>
    <message>
        <source>open</source>
        <translation>offen</translation>
    </message>
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
    <name>LumetraEditor::LayersPanel</name>
    <message>
        <source>On the photo (%1)</source>
        <translation>Auf dem Foto (%1)</translation>
    </message>
    <message>
        <source>On the photo</source>
        <translation>Auf dem Foto</translation>
    </message>
    <message>
        <source>Fold or unfold the list of what is on the photo</source>
        <translation>Liste dessen, was auf dem Foto liegt, auf- oder zuklappen</translation>
    </message>
    <message>
        <source>Nothing yet – this is the original.</source>
        <translation>Noch nichts – das ist das Original.</translation>
    </message>
    <message>
        <source>No photo is open.</source>
        <translation>Es ist kein Foto geöffnet.</translation>
    </message>
    <message>
        <source>&amp;Open Again</source>
        <translation>Wieder ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Visible</source>
        <translation>Si&amp;chtbar</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>&amp;Take Away</source>
        <translation>&amp;Wegnehmen</translation>
    </message>
    <message>
        <source>&amp;Close What Is Open</source>
        <translation>Offenes &amp;schließen</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::ManyCommands</name>
    <message>
        <source>Paste edit</source>
        <translation>Bearbeitung einfügen</translation>
    </message>
    <message>
        <source>Put look on photos</source>
        <translation>Look auf Fotos legen</translation>
    </message>
    <message>
        <source>Revert to original</source>
        <translation>Auf Original zurücksetzen</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::ManyEdits</name>
    <message>
        <source>An earlier edit is kept as %1</source>
        <translation>Eine frühere Bearbeitung bleibt als %1 erhalten</translation>
    </message>
    <message>
        <source>Edits that cannot be kept beside their photos are kept in %1.</source>
        <translation>Bearbeitungen, die nicht neben ihren Fotos aufbewahrt werden können, liegen in %1.</translation>
    </message>
    <message>
        <source>it has been edited since</source>
        <translation>es wurde seither bearbeitet</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::ManyProgress</name>
    <message>
        <source>Edit on %1 of %2 photos</source>
        <translation>%1 von %2 Fotos bearbeitet</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Stop changing photos</source>
        <translation>Das Ändern der Fotos anhalten</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::ManySteps</name>
    <message>
        <source>%1 (%2 photos)</source>
        <translation>%1 (%2 Fotos)</translation>
    </message>
    <message>
        <source>%1: it has been edited since</source>
        <translation>%1: es wurde seither bearbeitet</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::ManyTexts</name>
    <message>
        <source>1 left as it was</source>
        <translation>1 blieb, wie es war</translation>
    </message>
    <message>
        <source>%1 left as they were</source>
        <translation>%1 blieben, wie sie waren</translation>
    </message>
    <message>
        <source>%1 (%2 %)</source>
        <translation>%1 (%2 %)</translation>
    </message>
    <message>
        <source>1 layer</source>
        <translation>1 Ebene</translation>
    </message>
    <message>
        <source>%1 layers</source>
        <translation>%1 Ebenen</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>No photo changed</source>
        <translation>Kein Foto geändert</translation>
    </message>
    <message>
        <source>1 photo changed</source>
        <translation>1 Foto geändert</translation>
    </message>
    <message>
        <source>%1 photos changed</source>
        <translation>%1 Fotos geändert</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>stopped before the rest</source>
        <translation>vor den übrigen angehalten</translation>
    </message>
    <message>
        <source>The edit has not come to all selected photos yet.

Save finishes that before the program ends,
Discard leaves the other photos as they are.</source>
        <translation>Die Bearbeitung ist noch nicht auf allen ausgewählten Fotos.

„Speichern“ führt das zu Ende, bevor das Programm endet,
„Verwerfen“ lässt die übrigen Fotos, wie sie sind.</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::MessageBar</name>
    <message>
        <source>Close the message</source>
        <translation>Meldung schließen</translation>
    </message>
    <message>
        <source>Close this to see %1 more.</source>
        <translation>Nach dem Schließen folgen %1 weitere.</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::ModulesDialog</name>
    <message>
        <source>Modules</source>
        <translation>Module</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>Modul</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>put out of use, since it failed</source>
        <translation>außer Betrieb, weil es versagt hat</translation>
    </message>
    <message>
        <source>loaded</source>
        <translation>geladen</translation>
    </message>
    <message>
        <source>A module that is ticked is loaded when the editor starts the next time. Its part of an edit stays in the edit&apos;s file.</source>
        <translation>Ein Modul mit Haken wird geladen, wenn der Editor das nächste Mal startet. Sein Teil einer Bearbeitung bleibt in deren Datei.</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::MonitorColours</name>
    <message>
        <source>The monitor&apos;s profile “%1” cannot be read: %2</source>
        <translation>Das Profil des Monitors „%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The monitor&apos;s profile cannot be used: %1</source>
        <translation>Das Profil des Monitors kann nicht verwendet werden: %1</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::OpenDialogs</name>
    <message>
        <source>Open Photos</source>
        <translation>Fotos öffnen</translation>
    </message>
    <message>
        <source>Photos (%1);;All files (*)</source>
        <translation>Fotos (%1);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::PanelKeys</name>
    <message>
        <source>Keys of the panel “%1” are taken already: %2</source>
        <translation>Tasten des Bedienfelds „%1“ sind schon vergeben: %2</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::Panels</name>
    <message>
        <source>There is no panel that keeps looks.</source>
        <translation>Es gibt kein Bedienfeld, das Looks aufbewahrt.</translation>
    </message>
    <message>
        <source>There is no such look among yours.</source>
        <translation>Unter Ihren Looks gibt es diesen nicht.</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::PasteDialog</name>
    <message>
        <source>In place of the &amp;same parts</source>
        <translation>Anstelle der &amp;gleichen Teile</translation>
    </message>
    <message>
        <source>On &amp;top of all layers</source>
        <translation>&amp;Über allen Ebenen</translation>
    </message>
    <message>
        <source>Paste Edit</source>
        <translation>Bearbeitung einfügen</translation>
    </message>
    <message>
        <source>Paste on the photo:</source>
        <translation>In das Foto einfügen:</translation>
    </message>
    <message>
        <source>Paste on %1 photos:</source>
        <translation>In %1 Fotos einfügen:</translation>
    </message>
    <message>
        <source>Other layers</source>
        <translation>Andere Ebenen</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::PhotoBrowser</name>
    <message>
        <source>There are no photos in “%1”.</source>
        <translation>In „%1“ sind keine Fotos.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1, %2 selected</source>
        <translation>%1, %2 ausgewählt</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::PhotoCanvas</name>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Edited</source>
        <translation>Bearbeitet</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::PhotoLoader</name>
    <message>
        <source>%1: there is not enough memory for this photo</source>
        <translation>%1: der Speicher reicht für dieses Foto nicht aus</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::PhotoStrip</name>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::PhotoStripModel</name>
    <message>
        <source>cannot be opened</source>
        <translation>kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>edited</source>
        <translation>bearbeitet</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::PhotoText</name>
    <message>
        <source>%1   %2 × %3   %4 bits   %5</source>
        <translation>%1   %2 × %3   %4 Bit   %5</translation>
    </message>
    <message>
        <source>own profile</source>
        <translation>eigenes Profil</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::PluginLoader</name>
    <message>
        <source>it was made for version %1 of the editor&apos;s interface, expected version %2</source>
        <translation>es wurde für Version %1 der Schnittstelle gebaut, erwartet wird Version %2</translation>
    </message>
    <message>
        <source>it is no module of this editor</source>
        <translation>es ist kein Modul dieses Programms</translation>
    </message>
    <message>
        <source>it cannot be loaded: %1</source>
        <translation>es kann nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>its root object is of another kind</source>
        <translation>sein Wurzelobjekt ist von anderer Art</translation>
    </message>
    <message>
        <source>another module of that name was found before it</source>
        <translation>ein anderes Modul dieses Namens wurde vorher gefunden</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>ausgeschaltet</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::Questions</name>
    <message>
        <source>The export has not finished. Quit all the same?</source>
        <translation>Der Export ist noch nicht fertig. Trotzdem beenden?</translation>
    </message>
    <message>
        <source>“%1” was replaced or changed by another program since it was edited.

Start anew without the earlier edit?
Its file is kept under another name.</source>
        <translation>„%1“ wurde seit der Bearbeitung ersetzt oder von einem anderen Programm verändert.

Ohne die frühere Bearbeitung neu beginnen?
Ihre Datei bleibt unter einem anderen Namen erhalten.</translation>
    </message>
    <message>
        <source>The edit of “%1” could not be kept, neither beside the photo nor in your own folder.

Discard the edit and leave the photo?</source>
        <translation>Die Bearbeitung von „%1“ ließ sich nicht speichern, weder neben dem Foto noch in Ihrem eigenen Ordner.

Die Bearbeitung verwerfen und das Foto verlassen?</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::RecipeDialog</name>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Durchsuchen …</translation>
    </message>
    <message>
        <source>New Recipe</source>
        <translation>Neues Rezept</translation>
    </message>
    <message>
        <source>Edit Recipe</source>
        <translation>Rezept bearbeiten</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>The folder of each photo</source>
        <translation>Der Ordner des jeweiligen Fotos</translation>
    </message>
    <message>
        <source>A name alone is a folder beside the photos</source>
        <translation>Ein bloßer Name ist ein Ordner neben den Fotos</translation>
    </message>
    <message>
        <source>Without extension. {name} is that of the photo, {n} its number, {date:yyyy-MM-dd} its day</source>
        <translation>Ohne Endung. {name} ist der des Fotos, {n} seine Nummer, {date:yyyy-MM-dd} sein Tag</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Fo&amp;lder</source>
        <translation>&amp;Ordner</translation>
    </message>
    <message>
        <source>F&amp;ile name</source>
        <translation>Date&amp;iname</translation>
    </message>
    <message>
        <source>Folder of the Exported Files</source>
        <translation>Ordner der exportierten Dateien</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::RecipeForm</name>
    <message>
        <source>All, with the looks</source>
        <translation>Alle, mit den Looks</translation>
    </message>
    <message>
        <source>All but coordinates</source>
        <translation>Alle außer Koordinaten</translation>
    </message>
    <message>
        <source>Author and copyright only</source>
        <translation>Nur Urheber und Copyright</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>&amp;Metadata</source>
        <translation>&amp;Metadaten</translation>
    </message>
    <message>
        <source>Embed the photo&apos;s colour profile</source>
        <translation>Farbprofil des Fotos einbetten</translation>
    </message>
    <message>
        <source>Without it, the colours become those of sRGB</source>
        <translation>Ohne Profil werden die Farben nach sRGB umgerechnet</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Verlustfrei</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Full resolution (4:4:4)</source>
        <translation>Volle Auflösung (4:4:4)</translation>
    </message>
    <message>
        <source>Half (4:2:2)</source>
        <translation>Halbe (4:2:2)</translation>
    </message>
    <message>
        <source>A quarter (4:2:0)</source>
        <translation>Ein Viertel (4:2:0)</translation>
    </message>
    <message>
        <source>Automatic: full resolution from quality 90 on, a quarter below</source>
        <translation>Automatisch: volle Auflösung ab Qualität 90, darunter ein Viertel</translation>
    </message>
    <message>
        <source>Progressive</source>
        <translation>Progressiv</translation>
    </message>
    <message>
        <source>Shows coarse first while it loads; smaller, slower to make</source>
        <translation>Erscheint beim Laden erst grob; kleiner, dauert länger</translation>
    </message>
    <message>
        <source>8 bits per channel</source>
        <translation>8 Bit je Kanal</translation>
    </message>
    <message>
        <source>16 bits per channel</source>
        <translation>16 Bit je Kanal</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>&amp;Format</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>&amp;Qualität</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>F&amp;arben</translation>
    </message>
    <message>
        <source>C&amp;ompression</source>
        <translation>&amp;Kompression</translation>
    </message>
    <message>
        <source>Bit &amp;depth</source>
        <translation>Farb&amp;tiefe</translation>
    </message>
    <message>
        <source>Original size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Limit the longest side</source>
        <translation>Längste Seite begrenzen</translation>
    </message>
    <message>
        <source>Limit the megapixels</source>
        <translation>Megapixel begrenzen</translation>
    </message>
    <message>
        <source>Photos are never enlarged</source>
        <translation>Fotos werden nie vergrößert</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Longest side in pixels</source>
        <translation>Längste Seite in Pixeln</translation>
    </message>
    <message>
        <source> MP</source>
        <translation> MP</translation>
    </message>
    <message>
        <source>Megapixels at most</source>
        <translation>Höchstens so viele Megapixel</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Größe</translation>
    </message>
    <message>
        <source>As the photo</source>
        <translation>Wie das Foto</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Kompression</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::RecipeList</name>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Neu …</translation>
    </message>
    <message>
        <source>E&amp;dit…</source>
        <translation>&amp;Bearbeiten …</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Recipes</source>
        <translation>Rezepte</translation>
    </message>
    <message>
        <source>quality %1</source>
        <translation>Qualität %1</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>%1 MP</source>
        <translation>%1 MP</translation>
    </message>
    <message>
        <source>original size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove the recipe “%1”?</source>
        <translation>Das Rezept „%1“ entfernen?</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::SelectionDialog</name>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Durchsuchen …</translation>
    </message>
    <message>
        <source>Export Several</source>
        <translation>Mehrere exportieren</translation>
    </message>
    <message>
        <source>Export %1 Photos</source>
        <translation>%1 Fotos exportieren</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>As in each recipe</source>
        <translation>Wie im jeweiligen Rezept</translation>
    </message>
    <message>
        <source>Without extension. {name} is that of the photo, {n} its number, {date:yyyy-MM-dd} its day</source>
        <translation>Ohne Endung. {name} ist der des Fotos, {n} seine Nummer, {date:yyyy-MM-dd} sein Tag</translation>
    </message>
    <message>
        <source>Leave it and skip the photo</source>
        <translation>Behalten und das Foto auslassen</translation>
    </message>
    <message>
        <source>Replace it</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Recipes</source>
        <translation>Rezepte</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>&amp;Ordner</translation>
    </message>
    <message>
        <source>File n&amp;ame</source>
        <translation>Datein&amp;ame</translation>
    </message>
    <message>
        <source>If a file e&amp;xists</source>
        <translation>&amp;Vorhandene Datei</translation>
    </message>
    <message>
        <source>First file</source>
        <translation>Erste Datei</translation>
    </message>
    <message>
        <source>Folder of the Exported Files</source>
        <translation>Ordner der exportierten Dateien</translation>
    </message>
    <message>
        <source>Choose a recipe.</source>
        <translation>Wählen Sie ein Rezept.</translation>
    </message>
    <message>
        <source>Looking at files…</source>
        <translation>Dateien werden geprüft …</translation>
    </message>
    <message>
        <source>Files to write: %1</source>
        <translation>Zu schreibende Dateien: %1</translation>
    </message>
    <message>
        <source>Files that exist and stay as they are: %1</source>
        <translation>Vorhandene Dateien, die bleiben: %1</translation>
    </message>
    <message>
        <source>Files that cannot be written: %1</source>
        <translation>Dateien, die nicht geschrieben werden können: %1</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::SelectionExporter</name>
    <message>
        <source>“%1” has appeared meanwhile and is not replaced.</source>
        <translation>„%1“ ist inzwischen erschienen und wird nicht ersetzt.</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::SelectionPlan</name>
    <message>
        <source>Files cannot be named after {%1}: each photo has its own edit, which may be of several looks or of none. Use {name}, {n} or {date}.</source>
        <translation>Dateien können nicht nach {%1} benannt werden: Jedes Foto hat seine eigene Bearbeitung, die aus mehreren Looks bestehen kann oder aus keinem. Möglich sind {name}, {n} und {date}.</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::SelectionProgress</name>
    <message>
        <source>&amp;Try Again What Failed</source>
        <translation>Fehlgeschlagene &amp;wiederholen</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>Im &amp;Ordner zeigen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>What failed or was reduced</source>
        <translation>Was fehlgeschlagen ist oder reduziert wurde</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>Export läuft …</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 von %2: %3</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Geschrieben: %1</translation>
    </message>
    <message>
        <source>Skipped: %1</source>
        <translation>Ausgelassen: %1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Not done: %1</source>
        <translation>Nicht erledigt: %1</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::ShippedRecipe</name>
    <message>
        <source>Full size</source>
        <translation>Volle Größe</translation>
    </message>
    <message>
        <source>2048 pixels</source>
        <translation>2048 Pixel</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::ShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Pfeiltasten</translation>
    </message>
    <message>
        <source>Alt+Left, Alt+Right</source>
        <translation>Alt+Links, Alt+Rechts</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Close a message that has the focus</source>
        <translation>Eine Meldung schließen, die den Fokus hat</translation>
    </message>
    <message>
        <source>Photo, while it has the focus</source>
        <translation>Foto, solange es den Fokus hat</translation>
    </message>
    <message>
        <source>See the original</source>
        <translation>Original sehen</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Move the line of the split view</source>
        <translation>Trennlinie verschieben</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>A field in which text is typed keeps the keys that type and edit it.</source>
        <translation>Ein Textfeld behält die Tasten, mit denen man darin schreibt und ändert.</translation>
    </message>
    <message>
        <source>\ held</source>
        <translation>\ gedrückt halten</translation>
    </message>
    <message>
        <source>Space held</source>
        <translation>Leertaste gedrückt halten</translation>
    </message>
    <message>
        <source>Photo strip, while it has the focus</source>
        <translation>Fotostreifen, solange er den Fokus hat</translation>
    </message>
    <message>
        <source>Open another photo</source>
        <translation>Ein anderes Foto öffnen</translation>
    </message>
    <message>
        <source>Left, Right, Page Up, Page Down, Home, End</source>
        <translation>Links, Rechts, Bild auf, Bild ab, Pos1, Ende</translation>
    </message>
    <message>
        <source>Select up to there</source>
        <translation>Bis dorthin auswählen</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Umschalt mit diesen Tasten</translation>
    </message>
    <message>
        <source>Select only the current photo</source>
        <translation>Nur das aktuelle Foto auswählen</translation>
    </message>
    <message>
        <source>List of what is on the photo, while it has the focus</source>
        <translation>Liste „Auf dem Foto“, solange sie den Fokus hat</translation>
    </message>
    <message>
        <source>Open a layer again</source>
        <translation>Ebene wieder öffnen</translation>
    </message>
    <message>
        <source>Switch a layer off or on</source>
        <translation>Ebene aus- oder einschalten</translation>
    </message>
    <message>
        <source>Move a layer up, down</source>
        <translation>Ebene nach oben, unten verschieben</translation>
    </message>
    <message>
        <source>Take a layer away</source>
        <translation>Ebene wegnehmen</translation>
    </message>
    <message>
        <source>Zoom in, out, fit, 100 %, 200 %, 400 %</source>
        <translation>Vergrößern, verkleinern, einpassen, 100 %, 200 %, 400 %</translation>
    </message>
    <message>
        <source>Leave full screen</source>
        <translation>Vollbild verlassen</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::SideColumn</name>
    <message>
        <source>Side Panel</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>Panels</source>
        <translation>Bedienfelder</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::Sidecar</name>
    <message>
        <source>The edit of the photo cannot be read and is left alone: %1</source>
        <translation>Die Bearbeitung des Fotos ist nicht lesbar und bleibt, wie sie ist: %1</translation>
    </message>
    <message>
        <source>The edit of “%1” cannot be kept.</source>
        <translation>Die Bearbeitung von „%1“ lässt sich nicht speichern.</translation>
    </message>
    <message>
        <source>An earlier edit is kept as %1</source>
        <translation>Eine frühere Bearbeitung bleibt als %1 erhalten</translation>
    </message>
    <message>
        <source>The edit of “%1” cannot be kept beside the photo. It is kept in %2.</source>
        <translation>Die Bearbeitung von „%1“ lässt sich nicht neben dem Foto speichern. Sie liegt in %2.</translation>
    </message>
</context>
<context>
    <name>LumetraEditor::StartPage</name>
    <message>
        <source>Open a photo</source>
        <translation>Ein Foto öffnen</translation>
    </message>
    <message>
        <source>Drop it here, or choose a file.</source>
        <translation>Hierher ziehen oder eine Datei wählen.</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen …</translation>
    </message>
    <message>
        <source>Opened lately</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
</context>
</TS>
