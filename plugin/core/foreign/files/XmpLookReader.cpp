// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/foreign/files/XmpLookReader.h"

#include "core/foreign/files/ForeignFile.h"
#include "photo/metadata/XmpNamespace.h"
#include "storage/ErrorText.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace LumetraPlugin {
namespace {

using LumetraHost::XmpNamespace;
using LumetraHost::XmpProperty;

constexpr int DeepestNesting = 64;

/// The XMP library keeps the first meaning of a prefix that it sees, for the whole process.
bool IsMisleading(const QXmlStreamReader& reader)
{
    const auto declarations = reader.namespaceDeclarations();
    return std::any_of(declarations.begin(), declarations.end(), [](const auto& declaration) {
        return declaration.prefix() == QLatin1String("crs") &&
               declaration.namespaceUri() != QLatin1String(XmpNamespace::CameraRaw);
    });
}

/// Refuses what the XMP library should not see: XML that is not well-formed, document types, whose
/// entities can grow without bound, nesting that its recursion could not bear, and another meaning
/// of the prefix that is ours.
void CheckXml(const QString& path, const QByteArray& content)
{
    QXmlStreamReader reader(content);
    int depth = 0;
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::DTD)
            ForeignFile::Fail(path, reader.lineNumber(),
                              ForeignFile::tr("expected no document type"));
        if (token == QXmlStreamReader::EndElement)
            --depth;
        if (token == QXmlStreamReader::StartElement && ++depth > DeepestNesting)
            ForeignFile::Fail(path, reader.lineNumber(),
                              ForeignFile::tr("expected nesting of at most 64 levels"));
        if (token == QXmlStreamReader::StartElement && IsMisleading(reader))
            ForeignFile::Fail(
                path, reader.lineNumber(),
                ForeignFile::tr("expected the prefix \"crs\" for camera-raw settings alone"));
    }
    if (reader.hasError())
        ForeignFile::Fail(
            path, reader.lineNumber(),
            ForeignFile::tr("expected well-formed XML: %1").arg(reader.errorString()));
}

std::vector<XmpProperty> ReadProperties(const QString& path, const QByteArray& content)
{
    try {
        return XmpNamespace::Read(content, XmpNamespace::CameraRaw);
    } catch (const std::exception& error) {
        ForeignFile::Fail(path, 0,
                          QString::fromStdString(LumetraHost::ErrorText::FirstLine(error)));
    }
}

/// The part of a path before its first member or entry.
QString RootOf(const QString& path)
{
    for (int i = 0; i < path.size(); ++i)
        if (path[i] == QLatin1Char('/') || path[i] == QLatin1Char('['))
            return path.left(i);
    return path;
}

void TakeMember(const XmpProperty& property, ForeignLook& look)
{
    if (property.path == QLatin1String("Look/Name"))
        look.SetText(QStringLiteral("Look"), property.text);
    else if (property.path == QLatin1String("Look/Parameters/ConvertToGrayscale"))
        look.SetText(QStringLiteral("Look/ConvertToGrayscale"), property.text);
}

/// Structures are named, and nothing of them is read but the nested look.
void TakeStructure(const XmpProperty& property, ForeignLook& look)
{
    if (RootOf(property.path) != QLatin1String("Look"))
        look.settings[RootOf(property.path)].isTree = true;
}

void Take(const XmpProperty& property, ForeignLook& look)
{
    if (property.path == QLatin1String("Name"))
        look.name = property.text;
    else if (property.path == QLatin1String("Group"))
        look.group = property.text;
    else if (property.isStructure)
        TakeStructure(property, look);
    else if (RootOf(property.path) != property.path)
        TakeMember(property, look);
    else
        look.settings[property.path] = {property.text, property.items, property.isArray, false};
}

} // namespace

ForeignLook XmpLookReader::Read(const QString& path, const QByteArray& content)
{
    CheckXml(path, content);
    const auto properties = ReadProperties(path, content);
    if (properties.empty())
        throw NoLookError(
            path, ForeignFile::tr("expected camera-raw settings in the XMP packet, found none"));
    ForeignLook look;
    for (const XmpProperty& property : properties)
        Take(property, look);
    return look;
}

} // namespace LumetraPlugin
