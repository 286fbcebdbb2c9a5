<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>LumetraAdjust::AdjustCommands</name>
    <message>
        <source>Reset the adjustments</source>
        <translation>Anpassungen zurücksetzen</translation>
    </message>
    <message>
        <source>Add another layer</source>
        <translation>Weitere Ebene</translation>
    </message>
    <message>
        <source>Adjustments: %1</source>
        <translation>Anpassungen: %1</translation>
    </message>
</context>
<context>
    <name>LumetraAdjust::AdjustFrame</name>
    <message>
        <source>Adjust</source>
        <translation>Anpassen</translation>
    </message>
</context>
<context>
    <name>LumetraAdjust::AdjustPlugin</name>
    <message>
        <source>Adjust</source>
        <translation>Anpassen</translation>
    </message>
</context>
<context>
    <name>LumetraAdjust::AdjustWidget</name>
    <message>
        <source>Update look with these values</source>
        <translation>Look mit diesen Werten aktualisieren</translation>
    </message>
    <message>
        <source>Update “%1” with these values</source>
        <translation>„%1“ mit diesen Werten aktualisieren</translation>
    </message>
    <message>
        <source>Save all layers as one look…</source>
        <translation>Alle Ebenen als einen Look speichern …</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Reset “%1”</source>
        <translation>„%1“ zurücksetzen</translation>
    </message>
    <message>
        <source>Save as look…</source>
        <translation>Als Look speichern …</translation>
    </message>
    <message>
        <source>More about looks</source>
        <translation>Mehr zu Looks</translation>
    </message>
    <message>
        <source>Reset all</source>
        <translation>Alles zurücksetzen</translation>
    </message>
    <message>
        <source>Add another</source>
        <translation>Weitere Ebene</translation>
    </message>
    <message>
        <source>Leaves these adjustments on the photo; what you adjust next comes on top of them</source>
        <translation>Lässt diese Anpassungen auf dem Foto; was Sie als Nächstes anpassen, kommt darüber</translation>
    </message>
</context>
<context>
    <name>LumetraAdjust::Adjustments</name>
    <message>
        <source>“%1” is no effect of this editor; it is left out.</source>
        <translation>„%1“ ist kein Effekt dieses Editors; er wird ausgelassen.</translation>
    </message>
    <message>
        <source>The effect “%1” is there twice; the second one is left out.</source>
        <translation>Den Effekt „%1“ gibt es zweimal; der zweite wird ausgelassen.</translation>
    </message>
</context>
<context>
    <name>LumetraAdjust::CurveControls</name>
    <message>
        <source>Reset “%1”</source>
        <translation>„%1“ zurücksetzen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Click to add a point, drag to move it, double-click to remove it.
Keys: Page Up and Page Down select a point, arrows move it,
Insert adds one, Del removes it.</source>
        <translation>Klicken fügt einen Punkt hinzu, Ziehen bewegt ihn, ein Doppelklick entfernt ihn.
Tasten: Bild auf und Bild ab wählen einen Punkt, Pfeile bewegen ihn,
Einfg fügt einen hinzu, Entf entfernt ihn.</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Selected point: brightness before, in per cent</source>
        <translation>Gewählter Punkt: Helligkeit vorher, in Prozent</translation>
    </message>
    <message>
        <source>Selected point: brightness after, in per cent</source>
        <translation>Gewählter Punkt: Helligkeit nachher, in Prozent</translation>
    </message>
    <message>
        <source>Remove point</source>
        <translation>Punkt entfernen</translation>
    </message>
    <message>
        <source>Reset curve</source>
        <translation>Kurve zurücksetzen</translation>
    </message>
</context>
<context>
    <name>LumetraAdjust::CurveEditor</name>
    <message>
        <source>Point %1 of %2: %3 % becomes %4 %</source>
        <translation>Punkt %1 von %2: aus %3 % wird %4 %</translation>
    </message>
</context>
<context>
    <name>LumetraAdjust::EffectRows</name>
    <message>
        <source>Reset “%1”</source>
        <translation>„%1“ zurücksetzen</translation>
    </message>
</context>
<context>
    <name>LumetraAdjust::HueWheel</name>
    <message>
        <source>Hue %1°, saturation %2 %</source>
        <translation>Farbton %1°, Sättigung %2 %</translation>
    </message>
</context>
<context>
    <name>LumetraAdjust::LayerStack</name>
    <message>
        <source>a layer without a name</source>
        <translation>eine Ebene ohne Namen</translation>
    </message>
    <message>
        <source>The layers cannot become one look: %1 has an intensity of %2 % and is mixed with what lies below it. Set it to 100 %, and save again.</source>
        <translation>Die Ebenen können kein einzelner Look werden: %1 hat eine Intensität von %2 % und wird mit dem gemischt, was darunter liegt. Auf 100 % stellen und noch einmal speichern.</translation>
    </message>
    <message>
        <source>There is nothing on the photo that could become a look.</source>
        <translation>Auf dem Foto liegt nichts, das ein Look werden könnte.</translation>
    </message>
    <message>
        <source>“%1” has an intensity of %2 %. Set it to 100 %, and update again.</source>
        <translation>„%1“ hat eine Intensität von %2 %. Auf 100 % stellen und noch einmal aktualisieren.</translation>
    </message>
</context>
<context>
    <name>LumetraAdjust::LookCommands</name>
    <message>
        <source>“%1” is now among your looks.</source>
        <translation>„%1“ ist jetzt unter Ihren Looks.</translation>
    </message>
    <message>
        <source>Name of the look</source>
        <translation>Name des Looks</translation>
    </message>
    <message>
        <source>Update “%1”</source>
        <translation>„%1“ aktualisieren</translation>
    </message>
    <message>
        <source>New look</source>
        <translation>Neuer Look</translation>
    </message>
</context>
<context>
    <name>LumetraAdjust::MixerRows</name>
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
</context>
<context>
    <name>LumetraAdjust::NameCounter</name>
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
    <name>LumetraAdjust::SaveLookDialog</name>
    <message>
        <source>Save as look</source>
        <translation>Als Look speichern</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Abschnitte</translation>
    </message>
    <message>
        <source>&amp;Intensity</source>
        <translation>&amp;Intensität</translation>
    </message>
    <message>
        <source>mixes the look with the photo</source>
        <translation>mischt den Look mit dem Foto</translation>
    </message>
    <message>
        <source>moves the values up from neutral</source>
        <translation>führt die Werte von neutral aufwärts</translation>
    </message>
    <message>
        <source>none: the look is used as it is</source>
        <translation>keine: der Look wird verwendet, wie er ist</translation>
    </message>
    <message>
        <source>The intensity does not move values that have a slider of their own.</source>
        <translation>Die Intensität bewegt keine Werte, die einen eigenen Regler haben.</translation>
    </message>
    <message>
        <source>Extra sliders</source>
        <translation>Zusätzliche Regler</translation>
    </message>
    <message>
        <source>A look&apos;s name has at most %1 characters.</source>
        <translation>Der Name eines Looks hat höchstens %1 Zeichen.</translation>
    </message>
</context>
<context>
    <name>LumetraAdjust::SectionPage</name>
    <message>
        <source>Reset “%1”</source>
        <translation>„%1“ zurücksetzen</translation>
    </message>
    <message>
        <source>As numbers</source>
        <translation>Als Zahlen</translation>
    </message>
</context>
<context>
    <name>LumetraAdjust::SectionPlan</name>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>Mischer</translation>
    </message>
    <message>
        <source>Grading</source>
        <translation>Farbstimmung</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
</context>
<context>
    <name>LumetraAdjust::ValueRow</name>
    <message>
        <source>%1 as a number</source>
        <translation>%1 als Zahl</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
</context>
<context>
    <name>LumetraAdjust::WheelControls</name>
    <message>
        <source>Reset “%1”</source>
        <translation>„%1“ zurücksetzen</translation>
    </message>
</context>
</TS>
