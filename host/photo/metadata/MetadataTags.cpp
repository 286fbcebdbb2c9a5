// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/metadata/MetadataTags.h"

#include <algorithm>
#include <cstdint>
#include <mutex>
#include <set>
#include <string>

#include <exiv2/exiv2.hpp>

namespace LumetraHost {
namespace {

/// Tags of the first directory that belong to the file, not to the photo.
const std::set<std::uint16_t>& StorageTags()
{
    static const std::set<std::uint16_t> tags{
        0x00FE, // NewSubfileType
        0x00FF, // SubfileType
        0x0100, // ImageWidth
        0x0101, // ImageLength
        0x0102, // BitsPerSample
        0x0103, // Compression
        0x0106, // PhotometricInterpretation
        0x010A, // FillOrder
        0x0111, // StripOffsets
        0x0115, // SamplesPerPixel
        0x0116, // RowsPerStrip
        0x0117, // StripByteCounts
        0x0118, // MinSampleValue
        0x0119, // MaxSampleValue
        0x011C, // PlanarConfiguration
        0x0124, // T4Options
        0x0125, // T6Options
        0x013D, // Predictor
        0x0140, // ColorMap
        0x0142, // TileWidth
        0x0143, // TileLength
        0x0144, // TileOffsets
        0x0145, // TileByteCounts
        0x014A, // SubIFDs
        0x014C, // InkSet
        0x0152, // ExtraSamples
        0x0153, // SampleFormat
        0x015B, // JPEGTables
        0x0201, // JPEGInterchangeFormat
        0x0202, // JPEGInterchangeFormatLength
        0x0211, // YCbCrCoefficients
        0x0212, // YCbCrSubSampling
        0x0214, // ReferenceBlackWhite
        0x02BC, // XMLPacket
        0x828D, // CFARepeatPatternDim
        0x828E, // CFAPattern
        0x83BB, // IPTC-NAA
        0x8649, // PhotoshopImageResources
        0x8773, // InterColorProfile
    };
    return tags;
}

/// True for storage tags, and for DNG's tags, which tell how to develop a raw picture.
bool IsStorageTag(std::uint16_t tag)
{
    constexpr std::uint16_t firstOfDng = 0xC612;
    constexpr std::uint16_t lastOfDng = 0xC7FF;
    return StorageTags().count(tag) != 0 || (tag >= firstOfDng && tag <= lastOfDng);
}

std::recursive_mutex& GetXmpMutex()
{
    static std::recursive_mutex mutex;
    return mutex;
}

/// The library calls it around a few operations of its own, some of which lie in those that we
/// lock.
void LockForLibrary(void* mutex, bool lock)
{
    if (lock)
        static_cast<std::recursive_mutex*>(mutex)->lock();
    else
        static_cast<std::recursive_mutex*>(mutex)->unlock();
}

QByteArray ToByteArray(const Exiv2::byte* data, std::size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size));
}

const Exiv2::byte* Data(const QByteArray& block)
{
    return reinterpret_cast<const Exiv2::byte*>(block.constData());
}

/// The usual encoder is made for a segment of a JPEG file and drops fields from larger blocks.
/// Below this size it drops nothing.
constexpr long SmallestLargeExif = 32'000; // bytes

constexpr long AdobeRgbColorSpace = 2; // outside the standard, but written by several makers

constexpr int MostNamedFields = 3; // in a warning

/// Bytes of the values of all tags.
long MeasureTags(const Exiv2::ExifData& tags)
{
    long size = 0;
    for (const auto& tag : tags)
        size += tag.size();
    return size;
}

QByteArray EncodeLargeExif(const Exiv2::ExifData& tags, Exiv2::ByteOrder order)
{
    Exiv2::MemIo io;
    Exiv2::TiffParser::encode(io, nullptr, 0, order, tags, Exiv2::IptcData(), Exiv2::XmpData());
    if (io.open() != 0)
        throw Exiv2::Error(Exiv2::kerErrorMessage, "the EXIF block cannot be read back");
    return ToByteArray(io.mmap(), static_cast<std::size_t>(io.size()));
}

Exiv2::ExifData::iterator FindLargest(Exiv2::ExifData& tags)
{
    return std::max_element(tags.begin(), tags.end(), [](const auto& first, const auto& second) {
        return first.size() < second.size();
    });
}

/// Values of the tag for the colour space: the standard knows no other numbers.
constexpr int SrgbSpace = 1;
constexpr int OtherSpace = 65535;

bool SetIfPresent(Exiv2::ExifData& tags, const char* key, std::uint32_t value)
{
    const auto tag = tags.findKey(Exiv2::ExifKey(key));
    if (tag == tags.end())
        return false;
    if (tag->toLong() == static_cast<long>(value) && tag->count() == 1)
        return true;
    // Sizes are stored as 16 or 32 bits; the tag keeps its kind while the value fits.
    if (tag->typeId() == Exiv2::unsignedShort && value <= 0xFFFF)
        *tag = static_cast<std::uint16_t>(value);
    else
        *tag = value;
    return true;
}

bool SetIfPresent(Exiv2::XmpData& properties, const char* key, int value)
{
    const auto property = properties.findKey(Exiv2::XmpKey(key));
    const std::string text = std::to_string(value);
    if (property == properties.end() || property->toString() == text)
        return false;
    property->setValue(text);
    return true;
}

bool RemoveThumbnails(Exiv2::XmpData& properties)
{
    bool removed = false;
    for (auto property = properties.begin(); property != properties.end();) {
        const bool thumbnail = property->key().rfind("Xmp.xmp.Thumbnails", 0) == 0;
        removed = removed || thumbnail;
        property = thumbnail ? properties.erase(property) : std::next(property);
    }
    return removed;
}

} // namespace

void MetadataTags::Initialise()
{
    static std::once_flag once;
    std::call_once(once, [] {
        // Exiv2's remarks about harmless oddities would go to the standard error stream.
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
        Exiv2::XmpParser::initialize(LockForLibrary, &GetXmpMutex());
        // Main packets name their extension in this namespace, which Exiv2 does not know by itself.
        Exiv2::XmpProperties::registerNs("http://ns.adobe.com/xmp/note/", "xmpNote");
    });
}

MetadataTags::XmpLock MetadataTags::LockXmp()
{
    return XmpLock(GetXmpMutex());
}

bool MetadataTags::DecodeXmp(const QByteArray& packet, Exiv2::XmpData& properties)
{
    const XmpLock lock = LockXmp();
    try {
        return Exiv2::XmpParser::decode(properties, packet.toStdString()) == 0;
    } catch (const Exiv2::AnyError&) { // for texts such as "type=x", which it takes for a type
        return false;
    }
}

bool MetadataTags::EncodeXmp(const Exiv2::XmpData& properties, std::string& text,
                             std::uint16_t flags)
{
    const XmpLock lock = LockXmp();
    return Exiv2::XmpParser::encode(text, properties, flags) == 0;
}

QByteArray MetadataTags::EncodeExif(const Exiv2::ExifData& tags, Exiv2::ByteOrder order)
{
    if (tags.empty())
        return {};
    if (order == Exiv2::invalidByteOrder)
        order = Exiv2::littleEndian;
    if (MeasureTags(tags) > SmallestLargeExif)
        return EncodeLargeExif(tags, order);
    Exiv2::Blob blob;
    Exiv2::ExifParser::encode(blob, order, tags);
    return ToByteArray(blob.data(), blob.size());
}

QByteArray MetadataTags::ShrinkExif(const QByteArray& block, int largest, const std::string& target,
                                    Warnings& warnings)
{
    Exiv2::ExifData tags;
    const Exiv2::ByteOrder order = DecodeExif(block, tags);
    std::string removed;
    int count = 0;
    QByteArray shrunk = block;
    while (shrunk.size() > largest) {
        // Bytes between the tags take space as well, so the sizes are only a beginning.
        auto excess = static_cast<long>(shrunk.size()) - largest;
        while (excess > 0 && !tags.empty()) {
            const auto tag = FindLargest(tags);
            excess -= tag->size();
            if (++count <= MostNamedFields)
                removed += (count > 1 ? ", " : "") + tag->key() + " (" +
                           std::to_string(tag->size()) + " bytes)";
            tags.erase(tag);
        }
        shrunk = EncodeExif(tags, order);
    }
    if (count > MostNamedFields)
        removed += " and " + std::to_string(count - MostNamedFields) + " more";
    Warn(warnings, "the EXIF data are larger than " + target + " can hold, which is " +
                       std::to_string(largest) + " bytes; left out: " + removed);
    return shrunk;
}

Exiv2::ByteOrder MetadataTags::DecodeExif(const QByteArray& block, Exiv2::ExifData& tags)
{
    const Exiv2::ByteOrder order =
        Exiv2::ExifParser::decode(tags, Data(block), static_cast<std::uint32_t>(block.size()));
    if (order == Exiv2::invalidByteOrder)
        throw Exiv2::Error(Exiv2::kerErrorMessage, "the EXIF block is damaged");
    return order;
}

int MetadataTags::GetOrientation(const Exiv2::ExifData& tags)
{
    const auto tag = tags.findKey(Exiv2::ExifKey("Exif.Image.Orientation"));
    if (tag == tags.end() || tag->count() < 1)
        return 0;
    const long value = tag->toLong();
    return value >= 1 && value <= 8 ? static_cast<int>(value) : 0;
}

bool MetadataTags::SaysAdobeRgb(const Exiv2::ExifData& tags)
{
    const auto index = tags.findKey(Exiv2::ExifKey("Exif.Iop.InteroperabilityIndex"));
    if (index != tags.end() && index->toString() == "R03")
        return true;
    const auto space = tags.findKey(Exiv2::ExifKey("Exif.Photo.ColorSpace"));
    return space != tags.end() && space->count() == 1 && space->toLong() == AdobeRgbColorSpace;
}

QByteArray MetadataTags::EncodeIptc(const Exiv2::IptcData& records)
{
    if (records.empty())
        return {};
    const Exiv2::DataBuf block = Exiv2::IptcParser::encode(records);
    return ToByteArray(block.pData_, static_cast<std::size_t>(block.size_));
}

Exiv2::IptcData MetadataTags::DecodeIptc(const QByteArray& block)
{
    Exiv2::IptcData records;
    if (!block.isEmpty() &&
        Exiv2::IptcParser::decode(records, Data(block), static_cast<std::uint32_t>(block.size())))
        throw Exiv2::Error(Exiv2::kerErrorMessage, "the IPTC block is damaged");
    return records;
}

void MetadataTags::RemoveStorageTags(Exiv2::ExifData& tags)
{
    for (auto tag = tags.begin(); tag != tags.end();) {
        const std::string group = tag->groupName();
        const bool storage = (group == "Image" && IsStorageTag(tag->tag())) ||
                             group.rfind("SubImage", 0) == 0 || group.rfind("SubThumb", 0) == 0 ||
                             group == "Image2" || group == "Image3";
        tag = storage ? tags.erase(tag) : std::next(tag);
    }
}

void MetadataTags::Normalise(Exiv2::ExifData& tags, int width, int height, bool isSrgb)
{
    Exiv2::ExifThumb(tags).erase();
    SetIfPresent(tags, "Exif.Image.Orientation", 1);
    SetIfPresent(tags, "Exif.Photo.PixelXDimension", static_cast<std::uint32_t>(width));
    SetIfPresent(tags, "Exif.Photo.PixelYDimension", static_cast<std::uint32_t>(height));
    SetIfPresent(tags, "Exif.Photo.ColorSpace", isSrgb ? SrgbSpace : OtherSpace);
    if (!isSrgb)
        return;
    const auto interoperability = tags.findKey(Exiv2::ExifKey("Exif.Iop.InteroperabilityIndex"));
    if (interoperability != tags.end() && interoperability->toString() == "R03")
        interoperability->setValue("R98");
}

QByteArray MetadataTags::NormaliseXmp(const QByteArray& packet, int width, int height, bool isSrgb,
                                      Warnings& warnings)
{
    if (packet.isEmpty())
        return packet;
    Exiv2::XmpData properties;
    if (!DecodeXmp(packet, properties)) {
        Warn(warnings, "the XMP packet cannot be decoded and is carried over as it is");
        return packet;
    }
    bool changed = RemoveThumbnails(properties);
    changed = SetIfPresent(properties, "Xmp.tiff.Orientation", 1) || changed;
    changed = SetIfPresent(properties, "Xmp.tiff.ImageWidth", width) || changed;
    changed = SetIfPresent(properties, "Xmp.tiff.ImageLength", height) || changed;
    changed = SetIfPresent(properties, "Xmp.exif.PixelXDimension", width) || changed;
    changed = SetIfPresent(properties, "Xmp.exif.PixelYDimension", height) || changed;
    changed =
        SetIfPresent(properties, "Xmp.exif.ColorSpace", isSrgb ? SrgbSpace : OtherSpace) || changed;
    if (!changed)
        return packet;
    std::string text;
    if (!EncodeXmp(properties, text))
        throw Exiv2::Error(Exiv2::kerErrorMessage, "the XMP packet cannot be written");
    return QByteArray::fromStdString(text);
}

} // namespace LumetraHost
