<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AppliedEdit</name>
    <message>
        <source>The edit names no preset; nothing is applied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The look &quot;%1&quot; is no longer among the presets. The photo keeps it as it was.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EffectTexts</name>
    <message>
        <source>Sliders: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Search looks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All looks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looks that you marked with a star</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looks that you applied last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looks that you saved or imported</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::EffectTexts</name>
    <message>
        <source>Exposure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vibrance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tone curve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split toning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channel mixer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lift, gamma, gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour decision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sharpening</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clarity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blur</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LumetraPlugin::PresetsPlugin</name>
    <message>
        <source>Looks</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PresetCommands</name>
    <message>
        <source>&quot;%1&quot; needs the file &quot;%2&quot;, expected in the folder &quot;%3&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no preset with the id &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Intensity of &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard the look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your presets cannot be saved: their file could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your presets could not be saved: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PresetPages</name>
    <message>
        <source>User presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+%1 opens and shuts this group</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n look(s), some yet to be downloaded</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n look(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Looks that you save appear here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no looks here yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No look is called &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PresetsWidget</name>
    <message>
        <source>Show on the photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset all values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply to the photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard the look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search looks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looks</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SliderRow</name>
    <message>
        <source>%1 as a number</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TunePanel</name>
    <message>
        <source>No look applied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset all values of this look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes the look off the photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saves the look with these values as a preset of your own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes the look part of the photo, so that the next comes on top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Intensity of &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
