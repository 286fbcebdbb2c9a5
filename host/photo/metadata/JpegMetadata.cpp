// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/metadata/JpegMetadata.h"

#include "photo/metadata/ExtendedXmp.h"
#include "photo/metadata/MetadataTags.h"

#include <QtEndian>

#include <map>

#include <exiv2/exiv2.hpp>

namespace LumetraHost {
namespace {

const QByteArray ExifPrefix("Exif\0\0", 6);
const QByteArray XmpPrefix("http://ns.adobe.com/xap/1.0/\0", 29);
const QByteArray ExtensionPrefix("http://ns.adobe.com/xmp/extension/\0", 35);
const QByteArray PhotoshopPrefix("Photoshop 3.0\0", 14);

constexpr int GuidLength = 32;
constexpr int ExtensionHeader = GuidLength + 8; // the digits, the whole length, the offset
const int LargestExtensionPart =
    JpegSegment::LargestContent - ExtensionPrefix.size() - ExtensionHeader;
/// Bytes that no packet of a photo comes near; files only claim such lengths.
constexpr quint32 LargestExtension = 256u << 20;

QByteArray Copy(const QByteArray& view, int begin)
{
    return QByteArray(view.constData() + begin, view.size() - begin);
}

quint32 GetNumber(const QByteArray& bytes, int position)
{
    return qFromBigEndian<quint32>(bytes.constData() + position);
}

/// Puts the parts of an extension together.
class ExtensionParts
{
public:
    /// Adds the content of a segment behind its prefix.
    void Add(const QByteArray& content);
    /// The whole extension; empty unless all parts are there.
    QByteArray Get() const;
    bool IsEmpty() const { return m_parts.empty(); }

private:
    quint32 m_size = 0;
    std::map<quint32, QByteArray> m_parts; // by offset
};

void ExtensionParts::Add(const QByteArray& content)
{
    m_size = GetNumber(content, GuidLength);
    m_parts[GetNumber(content, GuidLength + 4)] = content.mid(ExtensionHeader);
}

QByteArray ExtensionParts::Get() const
{
    QByteArray whole;
    for (const auto& [offset, part] : m_parts) {
        if (offset != static_cast<quint32>(whole.size()) || m_size > LargestExtension)
            return {};
        whole += part;
    }
    return static_cast<quint32>(whole.size()) == m_size ? whole : QByteArray();
}

/// The extension that the main packet names; files may hold those of older packets too.
QByteArray ReadExtension(const std::vector<JpegSegment>& segments, const QByteArray& guid,
                         Warnings& warnings)
{
    if (guid.isEmpty())
        return {};
    ExtensionParts parts;
    for (const JpegSegment& segment : segments) {
        const bool isPart =
            segment.marker == JpegSegment::App1 && segment.content.startsWith(ExtensionPrefix) &&
            segment.content.size() >= ExtensionPrefix.size() + ExtensionHeader &&
            segment.content.mid(ExtensionPrefix.size(), GuidLength).toUpper() == guid.toUpper();
        if (isPart)
            parts.Add(Copy(segment.content, ExtensionPrefix.size()));
    }
    const QByteArray extension = parts.Get();
    if (extension.isEmpty())
        Warn(warnings, parts.IsEmpty()
                           ? "the extension that the XMP packet names is not in the file"
                           : "the extension of the XMP packet is incomplete and is left out");
    return extension;
}

/// The IPTC records of all segments, which hold resources of several kinds.
QByteArray ReadIptc(const QByteArray& resources)
{
    QByteArray iptc;
    const auto* data = reinterpret_cast<const Exiv2::byte*>(resources.constData());
    const auto* const end = data + resources.size();
    const Exiv2::byte* record = nullptr;
    std::uint32_t header = 0;
    std::uint32_t size = 0;
    while (data < end && Exiv2::Photoshop::locateIptcIrb(data, static_cast<long>(end - data),
                                                         &record, &header, &size) == 0) {
        iptc += QByteArray(reinterpret_cast<const char*>(record + header), static_cast<int>(size));
        data = record + header + size + size % 2;
    }
    return iptc;
}

bool FitsExif(const QByteArray& exif)
{
    return ExifPrefix.size() + exif.size() <= JpegSegment::LargestContent;
}

void AddExif(std::vector<JpegSegment>& segments, QByteArray exif, Warnings& warnings)
{
    if (!FitsExif(exif))
        exif = MetadataTags::ShrinkExif(exif, JpegSegment::LargestContent - ExifPrefix.size(),
                                        "a JPEG file", warnings);
    if (!exif.isEmpty())
        segments.push_back({JpegSegment::App1, ExifPrefix + exif});
}

void AddExtension(std::vector<JpegSegment>& segments, const QByteArray& extension,
                  const QByteArray& guid)
{
    QByteArray length(4, '\0');
    qToBigEndian(static_cast<quint32>(extension.size()), length.data());
    for (int offset = 0; offset < extension.size(); offset += LargestExtensionPart) {
        QByteArray position(4, '\0');
        qToBigEndian(static_cast<quint32>(offset), position.data());
        segments.push_back({JpegSegment::App1, ExtensionPrefix + guid + length + position +
                                                   extension.mid(offset, LargestExtensionPart)});
    }
}

/// Divides the packet where it does not fit as it is.
ExtendedXmp DivideXmp(const PhotoMetadata& metadata, Warnings& warnings)
{
    const ExtendedXmp xmp{metadata.xmp, metadata.xmpExtension};
    const bool isNamed = xmp.extension.isEmpty() || !ExtendedXmp::FindGuid(xmp.main).isEmpty();
    if (isNamed && xmp.main.size() <= ExtendedXmp::LargestMain)
        return xmp;
    const auto merged = xmp.Merge();
    if (!merged)
        Warn(warnings, MetadataTags::ExtensionIsLost);
    const QByteArray packet = merged.value_or(xmp.main);
    return packet.size() <= ExtendedXmp::LargestMain ? ExtendedXmp{packet, {}}
                                                     : ExtendedXmp::Divide(packet);
}

void AddXmp(std::vector<JpegSegment>& segments, const PhotoMetadata& metadata, Warnings& warnings)
{
    const ExtendedXmp xmp = DivideXmp(metadata, warnings);
    if (!xmp.main.isEmpty())
        segments.push_back({JpegSegment::App1, XmpPrefix + xmp.main});
    if (!xmp.extension.isEmpty())
        AddExtension(segments, xmp.extension, ExtendedXmp::FindGuid(xmp.main));
}

/// Divides the records among segments; readers join the resources of all segments before they look
/// into them.
void AddIptc(std::vector<JpegSegment>& segments, const QByteArray& iptc)
{
    if (iptc.isEmpty())
        return;
    const Exiv2::DataBuf resource =
        Exiv2::Photoshop::setIptcIrb(nullptr, 0, MetadataTags::DecodeIptc(iptc));
    const QByteArray bytes(reinterpret_cast<const char*>(resource.pData_),
                           static_cast<int>(resource.size_));
    const int largest = JpegSegment::LargestContent - PhotoshopPrefix.size();
    for (int position = 0; position < bytes.size(); position += largest)
        segments.push_back({JpegSegment::App13, PhotoshopPrefix + bytes.mid(position, largest)});
}

} // namespace

PhotoMetadata JpegMetadata::Read(const Bytes& jpeg, Warnings& warnings)
{
    PhotoMetadata metadata;
    QByteArray resources;
    const std::vector<JpegSegment> segments = FindJpegSegments(jpeg);
    for (const JpegSegment& segment : segments) {
        const QByteArray& content = segment.content;
        if (segment.marker == JpegSegment::App13 && content.startsWith(PhotoshopPrefix))
            resources += content.mid(PhotoshopPrefix.size());
        if (segment.marker != JpegSegment::App1)
            continue;
        if (metadata.exif.isEmpty() && content.startsWith(ExifPrefix))
            metadata.exif = Copy(content, ExifPrefix.size());
        else if (metadata.xmp.isEmpty() && content.startsWith(XmpPrefix))
            metadata.xmp = Copy(content, XmpPrefix.size());
    }
    metadata.xmpExtension = ReadExtension(segments, ExtendedXmp::FindGuid(metadata.xmp), warnings);
    metadata.iptc = ReadIptc(resources);
    return metadata;
}

std::vector<JpegSegment> JpegMetadata::Make(const PhotoMetadata& metadata, Warnings& warnings)
{
    std::vector<JpegSegment> segments;
    TryOrWarn(warnings, "the EXIF data cannot be written and are left out",
              [&] { AddExif(segments, metadata.exif, warnings); });
    TryOrWarn(warnings, "the XMP data cannot be written and are left out",
              [&] { AddXmp(segments, metadata, warnings); });
    TryOrWarn(warnings, "the IPTC data cannot be written and are left out",
              [&] { AddIptc(segments, metadata.iptc); });
    return segments;
}

} // namespace LumetraHost
