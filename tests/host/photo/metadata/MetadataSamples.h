// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/photo/PhotoSamples.h"

#include <QByteArray>

#include <map>
#include <string>

namespace LumetraTest {

/// An XMP packet with these attributes or elements of one description, of namespaces "xmp", "dc"
/// and "my".
QByteArray MakeXmp(const QByteArray& attributes, const QByteArray& elements = {});
/// The attribute by which a packet names its extension.
QByteArray NameExtension(const QByteArray& guid);
/// A packet that XML readers take and the XMP toolkit does not: a property occurs twice.
QByteArray MakeOddXmp();
/// Letters of no repeating pattern.
QByteArray MakeText(int size);

/// The properties of a packet by their keys; empty for a packet that cannot be decoded.
std::map<std::string, std::string> DescribeXmp(const QByteArray& packet);

/// `jpeg` with one more segment in front of the others.
Bytes AddSegment(const Bytes& jpeg, int marker, const QByteArray& content);
/// `jpeg` with a packet and its extension, laid out as other programs do: in parts of `partSize`,
/// the last part first.
Bytes AddExtendedXmp(const Bytes& jpeg, const QByteArray& main, const QByteArray& extension,
                     const QByteArray& guid, int partSize);

} // namespace LumetraTest
