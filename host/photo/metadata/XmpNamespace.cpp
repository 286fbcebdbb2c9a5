// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/metadata/XmpNamespace.h"

#include "photo/metadata/MetadataTags.h"

#include "storage/FailWith.h"

#include <QRegularExpression>

#include <exiv2/exiv2.hpp>

namespace LumetraHost {
namespace {

Exiv2::XmpData Decode(const QByteArray& packet)
{
    MetadataTags::Initialise();
    Exiv2::XmpData properties;
    std::string problem = "it is damaged, or has a property twice";
    try {
        if (MetadataTags::DecodeXmp(packet, properties))
            return properties;
    } catch (const std::exception& error) {
        problem = error.what();
    }
    FailWith("expected an XMP packet that can be decoded: " + problem);
}

bool IsPlainArray(const Exiv2::Value& value)
{
    const auto type = value.typeId();
    return type == Exiv2::xmpSeq || type == Exiv2::xmpBag || type == Exiv2::xmpAlt;
}

/// Members have whatever prefix their namespace had first in this process.
QString WithoutPrefixes(const std::string& path)
{
    static const QRegularExpression prefixes(QStringLiteral("[^/\\[\\]:]+:"));
    return QString::fromStdString(path).remove(prefixes);
}

bool IsStructure(const Exiv2::Value& value)
{
    const auto* const xmp = dynamic_cast<const Exiv2::XmpTextValue*>(&value);
    return xmp && (xmp->xmpStruct() != Exiv2::XmpValue::xsNone ||
                   xmp->xmpArrayType() != Exiv2::XmpValue::xaNone);
}

XmpProperty Convert(const Exiv2::Xmpdatum& property)
{
    XmpProperty result;
    result.path = WithoutPrefixes(property.tagName());
    const Exiv2::Value& value = property.value();
    result.isArray = IsPlainArray(value);
    result.isStructure = IsStructure(value);
    if (result.isStructure)
        return result;
    if (!result.isArray) {
        // A value in several languages gives its default with count 0.
        result.text = QString::fromStdString(value.typeId() == Exiv2::langAlt ? value.toString(0)
                                                                              : value.toString());
        return result;
    }
    for (long i = 0; i < value.count(); ++i)
        result.items.append(QString::fromStdString(value.toString(i)));
    return result;
}

} // namespace

std::vector<XmpProperty> XmpNamespace::Read(const QByteArray& packet, const std::string& uri)
{
    const Exiv2::XmpData properties = Decode(packet);
    const std::string prefix = Exiv2::XmpProperties::prefix(uri);
    std::vector<XmpProperty> result;
    for (const Exiv2::Xmpdatum& property : properties)
        if (property.groupName() == prefix)
            result.push_back(Convert(property));
    return result;
}

} // namespace LumetraHost
