// SPDX-License-Identifier: GPL-2.0-or-later
#include "edits/EditFile.h"

#include "edits/EditStateFormat.h"

#include "storage/FailWith.h"
#include "storage/JsonDocument.h"

#include <QFileInfo>

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <string>

namespace LumetraHost {
namespace {

constexpr char PhotoKey[] = "photo", SavedKey[] = "saved", SizeKey[] = "size",
               ModifiedKey[] = "modified", HashKey[] = "sha256", PathKey[] = "path",
               VersionKey[] = "version", PackageKey[] = "package", PresetKey[] = "preset",
               PartKey[] = "part";
constexpr auto& EffectsKey = Zorvik::Quindle::IEffectSettings::EFFECTS;

template <class T>
T FindValue(const JsonObject& object, const char* key)
{
    const JsonValue* const value = object.Find(key);
    const T* const content = value ? value->As<T>() : nullptr;
    return content ? *content : T();
}

QDateTime FindTime(const JsonObject& object, const char* key)
{
    return QDateTime::fromString(QString::fromStdString(FindValue<std::string>(object, key)),
                                 Qt::ISODateWithMs);
}

JsonValue ToValue(const QString& text)
{
    return JsonValue(text.toStdString());
}

JsonValue ToValue(const QDateTime& time)
{
    return ToValue(time.toUTC().toString(Qt::ISODateWithMs));
}

/// A photo's part that makes no sense costs the identity only, not the edit.
PhotoIdentity ReadIdentity(const JsonObject& photo)
{
    PhotoIdentity identity;
    identity.size =
        QByteArray::fromStdString(FindValue<JsonNumber>(photo, SizeKey).text).toLongLong();
    identity.modified = FindTime(photo, ModifiedKey);
    identity.hash = QByteArray::fromStdString(FindValue<std::string>(photo, HashKey));
    return identity;
}

std::shared_ptr<JsonObject> WriteIdentity(const PhotoIdentity& identity, const QString& path)
{
    const auto photo = std::make_shared<JsonObject>();
    photo->Set(SizeKey, JsonValue(JsonNumber{static_cast<double>(identity.size),
                                             std::to_string(identity.size)}));
    photo->Set(ModifiedKey, ToValue(identity.modified));
    photo->Set(HashKey, JsonValue(identity.hash.toStdString()));
    if (!path.isEmpty())
        photo->Set(PathKey, ToValue(path));
    return photo;
}

/// Adds the members of `earlier` that `now` lacks, but for those that were left out on purpose.
void CarryOver(const JsonObject& earlier, JsonObject& now,
               std::initializer_list<const char*> leftOut = {})
{
    for (const auto& [key, value] : earlier.GetMembers())
        if (std::find(leftOut.begin(), leftOut.end(), key) == leftOut.end())
            now.Append(key, value); // does nothing where there is one
}

bool HasSameText(const JsonObject& first, const JsonObject& second, const char* key)
{
    return FindValue<std::string>(first, key) == FindValue<std::string>(second, key);
}

/// A layer may have got another place, or may have gone, since the file was read.
void CarryOverLayers(const JsonArray& earlier, const JsonArray& now)
{
    const std::size_t count = std::min(earlier.elements.size(), now.elements.size());
    for (std::size_t i = 0; i < count; ++i) {
        const auto* const old = earlier.elements[i].As<JsonValue::Object>();
        const auto* const fresh = now.elements[i].As<JsonValue::Object>();
        if (old && fresh && HasSameText(**old, **fresh, PackageKey) &&
            HasSameText(**old, **fresh, PresetKey))
            CarryOver(**old, **fresh, {EffectsKey, PartKey});
    }
}

const char* GetLayersKey(const JsonObject& file)
{
    return EditStateFormat::GetLayersKey(
        static_cast<int>(FindValue<JsonNumber>(file, VersionKey).value));
}

void CarryOverAll(const JsonObject& earlier, JsonObject& now)
{
    CarryOver(earlier, now, {GetLayersKey(earlier)});
    const auto oldPhoto = FindValue<JsonValue::Object>(earlier, PhotoKey);
    const auto photo = FindValue<JsonValue::Object>(now, PhotoKey);
    if (oldPhoto && photo)
        CarryOver(*oldPhoto, *photo, {PathKey});
    const auto oldLayers = FindValue<JsonValue::Array>(earlier, GetLayersKey(earlier));
    const auto layers = FindValue<JsonValue::Array>(now, GetLayersKey(now));
    if (oldLayers && layers)
        CarryOverLayers(*oldLayers, *layers);
}

} // namespace

EditFile EditFile::Read(const QString& path)
{
    EditFile file;
    const auto document = JsonDocument::Read(path, file.text);
    file.state = EditStateFormat::FromDocument(document);
    file.origin = document.GetObject();
    if (const auto photo = FindValue<JsonValue::Object>(*file.origin, PhotoKey)) {
        file.photo = ReadIdentity(*photo);
        file.photoPath = QString::fromStdString(FindValue<std::string>(*photo, PathKey));
    }
    file.saved = FindTime(*file.origin, SavedKey);
    if (!file.saved.isValid())
        file.saved = QFileInfo(path).lastModified().toUTC();
    return file;
}

QByteArray EditFile::ToText() const
{
    const JsonDocument document = EditStateFormat::ToDocument(state);
    JsonObject& root = *document.GetObject();
    if (photo.IsKnown())
        root.Set(PhotoKey, JsonValue(WriteIdentity(photo, photoPath)));
    root.Set(SavedKey, ToValue(saved));
    if (origin)
        CarryOverAll(*origin, root);
    const QByteArray encoded = document.ToText();
    if (encoded.size() > JsonDocument::MaxFileSize)
        LumetraHost::FailWith("the edit: expected at most " +
                              std::to_string(JsonDocument::MaxFileSize) + " bytes, found " +
                              std::to_string(encoded.size()));
    return encoded;
}

} // namespace LumetraHost
