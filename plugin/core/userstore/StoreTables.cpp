// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/userstore/StoreTables.h"

#include "Zorvik/Exception.h"
#include "Zorvik/Quindle/IEffectSettings.h"
#include "engine/effects/lut3d/LookUpTableText.h"
#include "engine/effects/lut3d/Lut3dEffect.h"
#include "engine/effects/lut3d/Lut3dSettings.h"
#include "storage/ContentFolder.h"
#include "storage/JsonSerializer.h"

#include <optional>

namespace LumetraPlugin {
namespace {

using LumetraHost::ContentFolder;
using LumetraHost::JsonObject;
using LumetraHost::JsonSerializer;
using LumetraHost::JsonValue;
using LumetraHost::LookUpTable;
using LumetraHost::LookUpTableText;
using LumetraHost::Lut3dSettings;

bool IsTableEffect(const JsonObject& object)
{
    const JsonValue* id = object.Find(Zorvik::Quindle::IEffectSettings::KEY_EFFECT_ID);
    const auto* text = id ? id->As<std::string>() : nullptr;
    return text && *text == LumetraHost::Lut3dParameters::EffectId;
}

/// The table's numbers; nothing when the node is no table with numbers in it.
std::optional<QByteArray> ReadData(const JsonValue::Object& table, LookUpTable::Kind kind)
{
    if (!table->Find(LookUpTableText::KeyData))
        return std::nullopt;
    try {
        const auto node = JsonSerializer::Create(table, std::string());
        return LookUpTableText::ReadData(node, LookUpTableText::ReadForm(node, kind));
    } catch (const Zorvik::Exception&) {
        return std::nullopt; // reported when somebody uses the table
    }
}

JsonValue::Object WithName(const JsonObject& table, const std::string& name)
{
    const auto named = std::make_shared<JsonObject>();
    for (const auto& [key, value] : table.GetMembers())
        if (key == LookUpTableText::KeyData)
            named->Set(LookUpTableText::KeyName, JsonValue(JsonValue::Content(name)));
        else if (key != LookUpTableText::KeyName)
            named->Set(key, value);
    return named;
}

} // namespace

void StoreTables::TakeOut(const JsonObject& data)
{
    for (const auto& member : data.GetMembers())
        Visit(member.second);
}

void StoreTables::Visit(const JsonValue& value)
{
    if (const auto* list = value.As<JsonValue::Array>())
        for (const JsonValue& element : (*list)->elements)
            Visit(element);
    const auto* object = value.As<JsonValue::Object>();
    if (!object)
        return;
    if (IsTableEffect(**object))
        TakeOutOf(**object);
    else
        TakeOut(**object);
}

void StoreTables::TakeOutOf(JsonObject& effect)
{
    for (const char* key : {Lut3dSettings::KeyCurve, Lut3dSettings::KeyCube}) {
        const bool isCube = key == Lut3dSettings::KeyCube;
        const JsonValue* value = effect.Find(key);
        const auto* table = value ? value->As<JsonValue::Object>() : nullptr;
        const auto data =
            table ? ReadData(*table, isCube ? LookUpTable::Kind::Cube : LookUpTable::Kind::Curve)
                  : std::nullopt;
        if (!data)
            continue;
        const std::string name = ContentFolder::NameOf(*data);
        m_contents.emplace(name, *data);
        effect.Set(key, JsonValue(JsonValue::Content(WithName(**table, name))));
    }
}

} // namespace LumetraPlugin
