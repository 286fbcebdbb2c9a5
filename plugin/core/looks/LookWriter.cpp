// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/looks/LookWriter.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SettingsKeys.h"
#include "Zorvik/Quindle/IEffectSettings.h"
#include "archive/ZipWriter.h"
#include "catalogue/CatalogueKeys.h"
#include "core/looks/LookFormat.h"
#include "storage/CheckedFileWriter.h"
#include "storage/JsonDocument.h"
#include "storage/JsonWriter.h"

namespace LumetraPlugin {
namespace {

using LumetraHost::JsonArray;
using LumetraHost::JsonDocument;
using LumetraHost::JsonNumber;
using LumetraHost::JsonObject;
using LumetraHost::JsonValue;
using Keys = LumetraHost::CatalogueKeys;
using Zorvik::Brassel::Settings::EffectInfo;

JsonValue MakeText(const std::string& text)
{
    LumetraHost::JsonWriter::CheckText(text);
    return JsonValue(JsonValue::Content(text));
}

JsonValue MakePreview(const QByteArray& picture)
{
    const auto preview = std::make_shared<JsonObject>();
    preview->Set(LookFormat::KeyMediaType, MakeText("image/jpeg"));
    preview->Set(LookFormat::KeyData, MakeText(picture.toBase64().toStdString()));
    return JsonValue(JsonValue::Content(preview));
}

void Move(const JsonObject& from, const char* key, JsonObject& to)
{
    if (const JsonValue* const value = from.Find(key))
        to.Set(key, *value);
}

/// The preset's stored form without what belongs to its place in one user's list. Names come first,
/// for those who open the file in a text editor.
JsonValue::Object MakeLook(const PresetController& preset)
{
    const JsonDocument stored(preset.GetName());
    static_cast<const Zorvik::Brassel::ISerializable&>(preset).Serialize(stored.GetRoot());
    const auto look = std::make_shared<JsonObject>();
    for (const char* const key : {EffectInfo::KEY_NAME, Keys::Names, Keys::Author, Keys::Licence})
        Move(*stored.GetObject(), key, *look);
    for (const auto& [key, value] : stored.GetObject()->GetMembers())
        if (key != Keys::Id && key != Keys::Popular)
            look->Set(key, value);
    return look;
}

} // namespace

LookWriter::LookWriter() : m_looks(std::make_shared<JsonArray>())
{
    m_root.Set(LookFormat::KeyFormat, MakeText(LookFormat::Name));
    m_root.Set(LookFormat::KeyVersion,
               JsonValue(JsonNumber{LookFormat::Version, std::to_string(LookFormat::Version)}));
    m_root.Set(LookFormat::KeyLooks, JsonValue(JsonValue::Content(m_looks)));
}

void LookWriter::Add(const PresetController& preset, const QByteArray& preview)
{
    const JsonValue::Object look = MakeLook(preset);
    if (!preview.isEmpty())
        look->Set(LookFormat::KeyPreview, MakePreview(preview));
    m_looks->elements.push_back(JsonValue(JsonValue::Content(look)));
}

QByteArray LookWriter::ToFile(Packing packing, const QString& fileName) const
{
    const QByteArray text = QByteArray::fromStdString(LumetraHost::JsonWriter::Write(m_root));
    JsonDocument::CheckReadable(text, fileName);
    if (packing == Packing::Plain || text.size() <= LookFormat::LargestPlainText)
        return text;
    return LumetraHost::ZipWriter::Pack(LookFormat::EntryName, text);
}

void LookWriter::Write(const QString& path, Packing packing) const
{
    LumetraHost::CheckedFileWriter::Write(path, ToFile(packing, path));
}

} // namespace LumetraPlugin
