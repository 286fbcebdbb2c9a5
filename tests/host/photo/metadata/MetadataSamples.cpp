// SPDX-License-Identifier: GPL-2.0-or-later
#include "MetadataSamples.h"

#include "photo/metadata/MetadataTags.h"

#include <QtEndian>

#include <exiv2/exiv2.hpp>

namespace LumetraTest {

QByteArray MakeXmp(const QByteArray& attributes, const QByteArray& elements)
{
    return "<?xpacket begin=\"\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?><x:xmpmeta "
           "xmlns:x=\"adobe:ns:meta/\"><rdf:RDF "
           "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\"><rdf:Description "
           "rdf:about=\"\" xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\" "
           "xmlns:dc=\"http://purl.org/dc/elements/1.1/\" "
           "xmlns:my=\"http://example.org/my/\" " +
           attributes + ">" + elements +
           "</rdf:Description></rdf:RDF></x:xmpmeta><?xpacket end=\"w\"?>";
}

QByteArray NameExtension(const QByteArray& guid)
{
    return "xmlns:xmpNote=\"http://ns.adobe.com/xmp/note/\" xmpNote:HasExtendedXMP=\"" + guid +
           "\"";
}

QByteArray MakeOddXmp()
{
    return MakeXmp({}, "<xmp:Rating>3</xmp:Rating><xmp:Rating>4</xmp:Rating>");
}

QByteArray MakeText(int size)
{
    QByteArray text;
    std::uint32_t state = 1;
    while (text.size() < size) {
        state = state * 1664525u + 1013904223u;
        text += static_cast<char>('a' + (state >> 16) % 26);
    }
    return text;
}

std::map<std::string, std::string> DescribeXmp(const QByteArray& packet)
{
    LumetraHost::MetadataTags::Initialise();
    Exiv2::XmpData properties;
    std::map<std::string, std::string> texts;
    if (Exiv2::XmpParser::decode(properties, packet.toStdString()) == 0)
        for (const auto& property : properties)
            texts[property.key()] = property.toString();
    return texts;
}

QByteArray MakeIptc(const std::vector<std::pair<const char*, const char*>>& records)
{
    Exiv2::IptcData data;
    for (const auto& [key, text] : records)
        data[key] = std::string(text);
    return LumetraHost::MetadataTags::EncodeIptc(data);
}

namespace {

QByteArray MakeCameraExif()
{
    Exiv2::ExifData exif;
    exif["Exif.Image.Make"] = "Lumetra Works";
    exif["Exif.Image.Artist"] = "A. Photographer";
    exif["Exif.Image.Copyright"] = "(c) A. Photographer";
    exif["Exif.Photo.DateTimeOriginal"] = "2021:06:05 14:13:12";
    exif["Exif.GPSInfo.GPSVersionID"] = "2 3 0 0";
    exif["Exif.GPSInfo.GPSLatitudeRef"] = "N";
    exif["Exif.GPSInfo.GPSLatitude"] = "48/1 8/1 1234/100";
    exif["Exif.GPSInfo.GPSAltitude"] = Exiv2::URational(519, 1);
    return LumetraHost::MetadataTags::EncodeExif(exif, Exiv2::littleEndian);
}

QByteArray MakeAgencyXmp()
{
    return MakeXmp("xmlns:exif=\"http://ns.adobe.com/exif/1.0/\" "
                   "xmlns:dji=\"http://www.dji.com/drone-dji/1.0/\" "
                   "xmlns:Iptc4xmpExt=\"http://iptc.org/std/Iptc4xmpExt/2008-02-29/\" "
                   "xmlns:photoshop=\"http://ns.adobe.com/photoshop/1.0/\" "
                   "xmlns:xmpRights=\"http://ns.adobe.com/xap/1.0/rights/\" "
                   "exif:GPSLatitude=\"48,8.5N\" dji:GpsLongtitude=\"+11.5\" "
                   "photoshop:Credit=\"Agency\" photoshop:City=\"Munich\" "
                   "xmpRights:WebStatement=\"https://example.org/licence\"",
                   "<dc:creator><rdf:Seq><rdf:li>A. Photographer</rdf:li></rdf:Seq></dc:creator>"
                   "<dc:rights><rdf:Alt><rdf:li xml:lang=\"x-default\">(c) A. "
                   "Photographer</rdf:li></rdf:Alt></dc:rights>"
                   "<dc:title><rdf:Alt><rdf:li "
                   "xml:lang=\"x-default\">Square</rdf:li></rdf:Alt></dc:title>"
                   "<xmpRights:UsageTerms><rdf:Alt><rdf:li xml:lang=\"x-default\">Editorial "
                   "use</rdf:li></rdf:Alt></xmpRights:UsageTerms>"
                   "<Iptc4xmpExt:LocationCreated><rdf:Bag><rdf:li rdf:parseType=\"Resource\">"
                   "<Iptc4xmpExt:City>Munich</Iptc4xmpExt:City>"
                   "<exif:GPSLatitude>48,8.5N</exif:GPSLatitude>"
                   "</rdf:li></rdf:Bag></Iptc4xmpExt:LocationCreated>");
}

} // namespace

LumetraHost::PhotoMetadata MakeBlocks()
{
    LumetraHost::MetadataTags::Initialise();
    LumetraHost::PhotoMetadata blocks;
    blocks.exif = MakeCameraExif();
    blocks.xmp = MakeAgencyXmp();
    blocks.iptc = MakeIptc({{"Iptc.Envelope.CharacterSet", "\x1b%G"},
                            {"Iptc.Application2.Byline", "A. Photographer"},
                            {"Iptc.Application2.Copyright", "(c) A. Photographer"},
                            {"Iptc.Application2.Credit", "Agency"},
                            {"Iptc.Application2.City", "Munich"}});
    return blocks;
}

std::map<std::string, std::string> DescribeExif(const QByteArray& block)
{
    std::map<std::string, std::string> texts;
    Exiv2::ExifData tags;
    if (!block.isEmpty())
        LumetraHost::MetadataTags::DecodeExif(block, tags);
    for (const auto& tag : tags)
        texts[tag.key()] = tag.toString();
    return texts;
}

std::map<std::string, std::string> DescribeIptc(const QByteArray& block)
{
    std::map<std::string, std::string> texts;
    for (const auto& record : LumetraHost::MetadataTags::DecodeIptc(block))
        texts[record.key()] = record.toString();
    return texts;
}

Bytes AddSegment(const Bytes& jpeg, int marker, const QByteArray& content)
{
    Bytes segment{0xFF, static_cast<std::uint8_t>(marker), 0, 0};
    qToBigEndian(static_cast<quint16>(content.size() + 2), segment.data() + 2);
    segment.insert(segment.end(), content.begin(), content.end());
    Bytes result = jpeg;
    result.insert(result.begin() + 2, segment.begin(), segment.end());
    return result;
}

Bytes AddExtendedXmp(const Bytes& jpeg, const QByteArray& main, const QByteArray& extension,
                     const QByteArray& guid, int partSize)
{
    Bytes result = jpeg;
    for (int offset = 0; offset < extension.size(); offset += partSize) {
        QByteArray numbers(8, '\0');
        qToBigEndian(static_cast<quint32>(extension.size()), numbers.data());
        qToBigEndian(static_cast<quint32>(offset), numbers.data() + 4);
        result = AddSegment(result, 0xE1,
                            QByteArray("http://ns.adobe.com/xmp/extension/\0", 35) + guid +
                                numbers + extension.mid(offset, partSize));
    }
    return AddSegment(result, 0xE1, QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) + main);
}

} // namespace LumetraTest
