// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/JobFingerprint.h"

#include "photo/PhotoEnd.h"
#include "photo/file/PhotoFile.h"
#include "photo/metadata/ExtendedXmp.h"
#include "photo/metadata/MetadataReader.h"
#include "storage/ContentHash.h"

namespace LumetraHost {
namespace {

/// Named values, each with its length, so that no two lists of them have the same text.
class ValueList
{
public:
    void Add(const char* name, const std::string& value)
    {
        m_text.append(name).append("=").append(std::to_string(value.size()));
        m_text.append(":").append(value).append("\n");
    }

    template <class Number>
    void Add(const char* name, Number value)
    {
        Add(name, std::to_string(static_cast<long long>(value)));
    }

    const std::string& GetText() const { return m_text; }

private:
    std::string m_text;
};

void AddRecords(ValueList& values, const std::vector<EditRecord>& records)
{
    for (const auto& [preset, intensity, look, lookLeftOut] : records) {
        values.Add("preset", preset);
        values.Add("intensity", intensity);
        values.Add("look", look);
        values.Add("lookLeftOut", lookLeftOut);
    }
}

void AddEncoding(ValueList& values, const EncodingOptions& encoding)
{
    const auto& [quality, sampling, isProgressive, isLossless, compression] = encoding;
    values.Add("quality", quality);
    values.Add("sampling", sampling);
    values.Add("isProgressive", isProgressive);
    values.Add("isLossless", isLossless);
    values.Add("compression", compression);
}

/// Names every member of the recipe, so that a new one cannot be forgotten.
void AddRecipe(ValueList& values, const ExportRecipe& recipe)
{
    const auto& [look, records, format, encoding, depth, longestSide, mostPixels, metadata,
                 embedsProfile, job] = recipe;
    values.Add("drawn", look ? look->GetDigest() : std::string("as it is"));
    AddRecords(values, records);
    values.Add("format", format);
    AddEncoding(values, encoding);
    values.Add("depth", depth ? static_cast<int>(*depth) : -1);
    values.Add("longestSide", longestSide);
    values.Add("mostPixels", mostPixels);
    values.Add("metadata", metadata);
    values.Add("embedsProfile", embedsProfile);
    static_cast<void>(job); // it is made of the others
}

QByteArray ReadPacket(const Bytes& file)
{
    Warnings unheard;
    const PhotoMetadata metadata = MetadataReader::Read(file, {}, unheard).metadata;
    const auto merged = ExtendedXmp{metadata.xmp, metadata.xmpExtension}.Merge();
    return merged.value_or(metadata.xmp);
}

} // namespace

std::string JobFingerprint::Of(const Bytes& photo, const ExportRecipe& recipe)
{
    return OfContent(ContentHash::Of(photo.data(), photo.size()), recipe);
}

std::string JobFingerprint::OfContent(const std::string& contentHash, const ExportRecipe& recipe)
{
    if (contentHash.empty() || (recipe.look && recipe.look->GetDigest().empty()))
        return {};
    ValueList values;
    values.Add("drawing", DrawingVersion);
    values.Add("photo", contentHash);
    AddRecipe(values, recipe);
    return ContentHash::Of(values.GetText());
}

std::string JobFingerprint::ReadFrom(const Bytes& file)
{
    try {
        if (!HasPhotoEnd(file))
            return {};
        const QByteArray packet = ReadPacket(file);
        return packet.contains(EditRecords::Namespace) ? EditRecords::ReadJob(packet)
                                                       : std::string();
    } catch (const std::exception&) {
        return {}; // no file of ours, or no longer
    }
}

std::string JobFingerprint::ReadFrom(const QString& path)
{
    try {
        return ReadFrom(PhotoFile(path).ReadAll());
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace LumetraHost
