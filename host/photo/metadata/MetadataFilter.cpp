// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/metadata/MetadataFilter.h"

#include "photo/metadata/ExtendedXmp.h"
#include "photo/metadata/MetadataTags.h"

#include <QList>

#include <algorithm>
#include <set>
#include <string>

#include <exiv2/exiv2.hpp>

namespace LumetraHost {
namespace {

bool BeginsWith(const QByteArray& text, const char* beginning)
{
    return text.startsWith(beginning);
}

/// True for the name of a property, in lower case, that tells a coordinate. One maker of drones
/// spells it "longtitude".
bool IsCoordinate(const QByteArray& name)
{
    static const std::set<QByteArray> shortNames{"lat", "lon", "long"};
    return BeginsWith(name, "gps") || name.contains("latitude") || name.contains("longitude") ||
           name.contains("longtitude") || shortNames.count(name) != 0;
}

/// "GPSLatitude" of a step "exif:GPSLatitude[1]" of a property's path.
QByteArray GetLocalName(QByteArray step)
{
    const int index = step.indexOf('[');
    if (index >= 0)
        step.truncate(index);
    return step.mid(step.lastIndexOf(':') + 1);
}

/// The path of a property behind its namespace: "LocationCreated[1]/exif:GPSLatitude".
QByteArray GetPath(const Exiv2::Xmpdatum& property)
{
    return QByteArray::fromStdString(property.tagName());
}

bool IsKept(const Exiv2::Exifdatum& tag, KeptMetadata kept)
{
    if (kept == KeptMetadata::NoGps)
        return tag.groupName() != "GPSInfo" && tag.tagName().find("GPS") == std::string::npos;
    const std::string key = tag.key();
    return key == "Exif.Image.Artist" || key == "Exif.Image.Copyright";
}

bool IsKept(const Exiv2::Xmpdatum& property, KeptMetadata kept)
{
    const QList<QByteArray> steps = GetPath(property).split('/');
    if (kept == KeptMetadata::NoGps)
        return std::none_of(steps.begin(), steps.end(), [](const QByteArray& step) {
            return IsCoordinate(GetLocalName(step).toLower());
        });
    const std::string space = property.groupName();
    const QByteArray name = GetLocalName(steps.front());
    return space == "xmpRights" || (space == "photoshop" && name == "Credit") ||
           (space == "dc" && (name == "creator" || name == "rights"));
}

bool IsKept(const Exiv2::Iptcdatum& record, KeptMetadata kept)
{
    // The character set is needed to read the others.
    static const std::set<std::string> keys{
        "Iptc.Envelope.CharacterSet", "Iptc.Application2.Byline", "Iptc.Application2.Copyright",
        "Iptc.Application2.Credit"};
    return kept == KeptMetadata::NoGps || keys.count(record.key()) != 0;
}

/// Returns false when all of `fields` are kept.
template <class Fields>
bool RemoveOthers(Fields& fields, KeptMetadata kept)
{
    bool isChanged = false;
    for (auto field = fields.begin(); field != fields.end();) {
        const bool stays = IsKept(*field, kept);
        isChanged = isChanged || !stays;
        field = stays ? std::next(field) : fields.erase(field);
    }
    return isChanged;
}

QByteArray FilterExif(const QByteArray& block, KeptMetadata kept)
{
    Exiv2::ExifData tags;
    const Exiv2::ByteOrder order = MetadataTags::DecodeExif(block, tags);
    return RemoveOthers(tags, kept) ? MetadataTags::EncodeExif(tags, order) : block;
}

QByteArray FilterIptc(const QByteArray& block, KeptMetadata kept)
{
    Exiv2::IptcData records = MetadataTags::DecodeIptc(block);
    if (!RemoveOthers(records, kept))
        return block;
    const bool hasText = std::any_of(records.begin(), records.end(), [](const auto& record) {
        return record.key() != "Iptc.Envelope.CharacterSet";
    });
    return hasText ? MetadataTags::EncodeIptc(records) : QByteArray();
}

Exiv2::XmpData DecodeXmp(const QByteArray& packet)
{
    Exiv2::XmpData properties;
    if (!MetadataTags::DecodeXmp(packet, properties))
        throw Exiv2::Error(Exiv2::kerErrorMessage, "the XMP packet cannot be decoded");
    return properties;
}

/// Filters the packet and its extension, which become one packet unless all of both is kept.
void FilterXmp(PhotoMetadata& metadata, KeptMetadata kept)
{
    const auto merged = ExtendedXmp{metadata.xmp, metadata.xmpExtension}.Merge();
    if (!merged)
        throw Exiv2::Error(Exiv2::kerErrorMessage, "the XMP packet cannot be decoded");
    Exiv2::XmpData properties = DecodeXmp(*merged);
    if (!RemoveOthers(properties, kept))
        return;
    std::string text;
    if (!properties.empty() && !MetadataTags::EncodeXmp(properties, text))
        throw Exiv2::Error(Exiv2::kerErrorMessage, "the XMP packet cannot be written");
    metadata.xmp = QByteArray::fromStdString(text);
    metadata.xmpExtension.clear();
}

} // namespace

PhotoMetadata MetadataFilter::Apply(const PhotoMetadata& metadata, KeptMetadata kept,
                                    Warnings& warnings)
{
    PhotoMetadata result = metadata;
    if (kept == KeptMetadata::All)
        return result;
    result.exif.clear();
    result.iptc.clear();
    if (kept == KeptMetadata::None) {
        result.xmp.clear();
        result.xmpExtension.clear();
        return result;
    }
    MetadataTags::Initialise();
    if (!metadata.exif.isEmpty())
        TryOrWarn(warnings, "the EXIF data cannot be looked into and are left out",
                  [&] { result.exif = FilterExif(metadata.exif, kept); });
    if (!metadata.iptc.isEmpty())
        TryOrWarn(warnings, "the IPTC data cannot be looked into and are left out",
                  [&] { result.iptc = FilterIptc(metadata.iptc, kept); });
    if (metadata.xmp.isEmpty() && metadata.xmpExtension.isEmpty())
        return result;
    if (!TryOrWarn(warnings, "the XMP data cannot be looked into and are left out",
                   [&] { FilterXmp(result, kept); })) {
        result.xmp.clear();
        result.xmpExtension.clear();
    }
    return result;
}

} // namespace LumetraHost
