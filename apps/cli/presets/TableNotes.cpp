// SPDX-License-Identifier: GPL-2.0-or-later
#include "presets/TableNotes.h"

#include "Zorvik/Quindle/IEffectSettings.h"
#include "engine/effects/lut3d/Lut3dEffect.h"
#include "engine/effects/lut3d/Lut3dSettings.h"

#include <string>

namespace LumetraCli {
namespace {

using LumetraHost::CatalogueReport;
using LumetraHost::CatalogueReports;
using LumetraHost::JsonObject;
using LumetraHost::JsonValue;
using LumetraHost::Lut3dSettings;

bool HasTable(const JsonObject& object)
{
    const JsonValue* const id = object.Find(Zorvik::Quindle::IEffectSettings::KEY_EFFECT_ID);
    const auto* const text = id ? id->As<std::string>() : nullptr;
    return text && *text == LumetraHost::Lut3dParameters::EffectId &&
           (object.Find(Lut3dSettings::KeyCube) || object.Find(Lut3dSettings::KeyCurve));
}

/// Files are read up to a limit of nesting.
void AddFrom(const JsonObject& object, const std::string& file, CatalogueReports& reports);

void AddFrom(const JsonValue& value, const std::string& file, CatalogueReports& reports)
{
    if (const auto* const array = value.As<JsonValue::Array>())
        for (const JsonValue& element : (*array)->elements)
            AddFrom(element, file, reports);
    const auto* const object = value.As<JsonValue::Object>();
    if (!object)
        return;
    if (HasTable(**object)) {
        CatalogueReport note;
        note.severity = CatalogueReport::Severity::Note;
        note.place = {file, value.line, value.column};
        note.message = "the table moves colours outside its domain to its border: those of photos "
                       "wider than sRGB become less colourful";
        reports.Add(note);
    }
    AddFrom(**object, file, reports);
}

void AddFrom(const JsonObject& object, const std::string& file, CatalogueReports& reports)
{
    for (const auto& member : object.GetMembers())
        AddFrom(member.second, file, reports);
}

} // namespace

void TableNotes::Add(const LumetraHost::JsonDocument& document, CatalogueReports& reports)
{
    AddFrom(*document.GetObject(), document.GetName(), reports);
}

} // namespace LumetraCli
