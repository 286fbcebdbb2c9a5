// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/looks/LookContent.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SettingsKeys.h"
#include "catalogue/CatalogueKeys.h"
#include "core/userstore/StoreTables.h"
#include "storage/JsonDocument.h"
#include "storage/JsonWriter.h"

#include <map>

namespace LumetraPlugin {
namespace {

using LumetraHost::JsonDocument;
using LumetraHost::JsonNumber;
using LumetraHost::JsonObject;
using LumetraHost::JsonValue;
using LumetraHost::JsonWriter;
using Keys = LumetraHost::CatalogueKeys;
using Zorvik::Brassel::Settings::EffectInfo;

bool IsOfContent(const std::string& key)
{
    return key != EffectInfo::KEY_NAME && key != Keys::Id && key != Keys::Popular &&
           key != Keys::Names && key != Keys::Author && key != Keys::Licence;
}

/// Looks that are taken from pictures have an empty list of sliders, which their makers' have not.
bool IsEmptyList(const JsonValue& value)
{
    const auto* array = value.As<JsonValue::Array>();
    return array && (*array)->elements.empty();
}

/// Appends a text that does not depend on the order of members or on how a number was written.
void Append(std::string& text, const JsonValue& value);

void Append(std::string& text, const std::map<std::string, JsonValue>& members)
{
    text += '{';
    for (const auto& [key, value] : members) {
        text += JsonWriter::Quote(key) + ':';
        Append(text, value);
    }
    text += '}';
}

void Append(std::string& text, const JsonValue& value)
{
    if (const auto* object = value.As<JsonValue::Object>()) {
        const auto& members = (*object)->GetMembers();
        Append(text, std::map<std::string, JsonValue>(members.begin(), members.end()));
    } else if (const auto* array = value.As<JsonValue::Array>()) {
        text += '[';
        for (const JsonValue& element : (*array)->elements)
            Append(text, element);
        text += ']';
    } else if (const auto* number = value.As<JsonNumber>()) {
        text += JsonWriter::NumberText(number->value) + ',';
    } else if (const auto* string = value.As<std::string>()) {
        text += JsonWriter::Quote(*string) + ',';
    } else if (const auto* flag = value.As<bool>()) {
        text += *flag ? "true," : "false,";
    }
}

} // namespace

std::string LookContent::MakeKey(const PresetController& preset,
                                 const LumetraHost::ContentFolderPtr& tables)
{
    JsonDocument stored(preset.GetName());
    stored.SetContents(tables);
    const auto copy = preset.CopyAtStart();
    static_cast<const Zorvik::Brassel::ISerializable&>(*copy).Serialize(stored.GetRoot());
    StoreTables().TakeOut(*stored.GetObject());
    std::map<std::string, JsonValue> content;
    for (const auto& member : stored.GetObject()->GetMembers())
        if (IsOfContent(member.first) && !IsEmptyList(member.second))
            content.insert(member);
    std::string text;
    Append(text, content);
    return text;
}

} // namespace LumetraPlugin
