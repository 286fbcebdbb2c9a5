<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="de_DE">
<context>
    <name>NewPresetDialog</name>
    <message>
        <source>NewPresetDialog</source>
        <translation>NewPresetDialog</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Name &quot;%1&quot; already exists, choose another one.</source>
        <translation>Der Name „%1“ ist schon vergeben. Bitte einen anderen wählen.</translation>
    </message>
</context>
<context>
    <name>Zorvik::Lumetra::LumetraPresets::IntensityWidget</name>
    <message>
        <source>Intensity: %1</source>
        <translation>Intensität: %1</translation>
    </message>
</context>
<context>
    <name>Zorvik::Lumetra::LumetraPresets::NewPresetDialog</name>
    <message>
        <source>Create new preset</source>
        <translation>Neues Preset erstellen</translation>
    </message>
    <message>
        <source>Rename preset</source>
        <translation>Preset umbenennen</translation>
    </message>
</context>
</TS>
