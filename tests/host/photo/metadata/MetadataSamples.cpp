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
