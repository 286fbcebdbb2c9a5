// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace LumetraHost {

/// One property of an XMP packet, whichever way the packet spells it: as an attribute or as an
/// element, under whatever prefix.
struct XmpProperty
{
    /// The name without prefix; members of structures as "Look/Name", entries of arrays of
    /// structures as "Masks[1]/Amount".
    QString path;
    QString text;             ///< of a simple value, or of the default language
    QStringList items;        ///< of a plain array, in order
    bool isArray = false;     ///< a plain array
    bool isStructure = false; ///< a structure or an array of them; its members follow
};

/// Reads what an XMP packet says in one namespace.
class XmpNamespace
{
public:
    static constexpr char CameraRaw[] = "http://ns.adobe.com/camera-raw-settings/1.0/";

    /// The properties of `uri`, which the metadata library must know, in the order of the packet.
    /// Check the packet for bombs before. Zorvik::Exception for a packet that cannot be decoded,
    /// such as one that has a property twice.
    static std::vector<XmpProperty> Read(const QByteArray& packet, const std::string& uri);
};

} // namespace LumetraHost
