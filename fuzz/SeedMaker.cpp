// SPDX-License-Identifier: GPL-2.0-or-later
// Makes the seeds of the fuzz targets out of the tree's own files: fuzz_seeds CATALOGUE PHOTO
// FOLDER writes FOLDER/json, catalogue, store and photo with a few small files each.
#include "image/Resize.h"
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "storage/JsonDocument.h"

#include <QDir>
#include <QFile>

#include <exception>
#include <iostream>
#include <stdexcept>

using LumetraHost::Image;
using LumetraHost::JsonArray;
using LumetraHost::JsonDocument;
using LumetraHost::JsonObject;
using LumetraHost::JsonValue;
using LumetraHost::Photo;
using LumetraHost::PhotoFormat;

namespace {

constexpr int LargestPreset = 4000; // bytes; those with a table are larger

void Write(const QString& folder, const QString& name, const char* data, qint64 size)
{
    QFile file(folder + QLatin1Char('/') + name);
    if (!QDir().mkpath(folder) || !file.open(QIODevice::WriteOnly) ||
        file.write(data, size) != size)
        throw std::runtime_error("cannot write " + file.fileName().toStdString());
}

const JsonValue& Member(const JsonValue& value, const char* key)
{
    const JsonValue* member = (*value.As<JsonValue::Object>())->Find(key);
    if (!member)
        throw std::runtime_error(std::string("expected a member ") + key);
    return *member;
}

JsonValue ListOf(const JsonValue& element)
{
    auto list = std::make_shared<JsonArray>();
    list->elements.push_back(element);
    return JsonValue(std::move(list));
}

JsonValue ObjectOf(std::initializer_list<JsonObject::Member> members)
{
    auto object = std::make_shared<JsonObject>();
    for (const auto& [key, value] : members)
        object->Append(key, value);
    return JsonValue(std::move(object));
}

JsonValue Text(const char* text)
{
    return JsonValue(std::string(text));
}

JsonValue One()
{
    return JsonValue(LumetraHost::JsonNumber{1, "1"});
}

QByteArray TextOf(const JsonValue& object)
{
    const JsonDocument document("seed");
    for (const auto& [key, value] : (*object.As<JsonValue::Object>())->GetMembers())
        document.GetObject()->Append(key, value);
    return document.ToText();
}

/// One preset of a group as a catalogue, and the same preset as a store.
void WritePreset(const QString& folder, const QString& name, const JsonValue& sliders,
                 const JsonValue& group, const JsonValue& preset)
{
    const QByteArray catalogue =
        TextOf(ObjectOf({{"format", Text("lumetra-catalogue")},
                         {"version", One()},
                         {"defaultSettings", sliders},
                         {"groups", ListOf(ObjectOf({{"name", Member(group, "name")},
                                                     {"settings", Member(group, "settings")},
                                                     {"items", ListOf(preset)}}))}}));
    const QByteArray store = TextOf(ObjectOf(
        {{"format", Text("lumetra-user-presets")},
         {"version", One()},
         {"UserPresets", ObjectOf({{"items", ListOf(preset)}})},
         {"Favourites",
          ListOf(ObjectOf({{"group", Text("Portrait")}, {"id", Member(preset, "id")}}))}}));
    Write(folder + QStringLiteral("/catalogue"), name, catalogue.constData(), catalogue.size());
    Write(folder + QStringLiteral("/json"), name, catalogue.constData(), catalogue.size());
    Write(folder + QStringLiteral("/store"), name, store.constData(), store.size());
}

void WritePresets(const QString& catalogue, const QString& folder)
{
    const JsonValue root(JsonDocument::Read(catalogue).GetObject());
    int number = 0;
    for (const JsonValue& group : (*Member(root, "groups").As<JsonValue::Array>())->elements)
        for (const JsonValue& preset : (*Member(group, "items").As<JsonValue::Array>())->elements)
            if (TextOf(preset).size() <= LargestPreset)
                WritePreset(folder, QStringLiteral("%1.json").arg(number++),
                            Member(root, "defaultSettings"), group, preset);
}

void WritePhotos(const QString& photoName, const QString& folder)
{
    Photo photo = LumetraHost::PhotoReader::Read(photoName);
    const LumetraHost::PixelRect whole{0, 0, photo.image.GetWidth(), photo.image.GetHeight()};
    photo.image = LumetraHost::Resize(photo.image, whole, 12, 8, LumetraHost::ResizeQuality::Fine);
    for (const auto& [format, name] :
         {std::pair{PhotoFormat::Jpeg, "a.jpg"}, std::pair{PhotoFormat::Png, "a.png"},
          std::pair{PhotoFormat::Tiff, "a.tif"}}) {
        const auto bytes = LumetraHost::PhotoWriter::Encode(photo, format, {}, name);
        Write(folder + QStringLiteral("/photo"), QString::fromLatin1(name),
              reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::cerr << "usage: fuzz_seeds CATALOGUE PHOTO FOLDER\n";
        return 2;
    }
    try {
        const QString folder = QString::fromLocal8Bit(argv[3]);
        WritePresets(QString::fromLocal8Bit(argv[1]), folder);
        WritePhotos(QString::fromLocal8Bit(argv[2]), folder);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "fuzz_seeds: " << error.what() << '\n';
        return 1;
    }
}
