// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/photo/PhotoSamples.h"

#include "photo/metadata/PhotoMetadata.h"

#include <QByteArray>

#include <map>
#include <string>
#include <utility>
#include <vector>

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

/// An IPTC block with these records.
QByteArray MakeIptc(const std::vector<std::pair<const char*, const char*>>& records);
/// Blocks as an agency's photo has them: camera, author, licence and places, with coordinates in
/// all blocks that can hold them. No colour profile.
LumetraHost::PhotoMetadata MakeBlocks();

/// The tags of an EXIF block by their keys.
std::map<std::string, std::string> DescribeExif(const QByteArray& block);
/// The records of an IPTC block by their keys.
std::map<std::string, std::string> DescribeIptc(const QByteArray& block);

/// `jpeg` with one more segment in front of the others.
Bytes AddSegment(const Bytes& jpeg, int marker, const QByteArray& content);
/// `jpeg` with a packet and its extension, laid out as other programs do: in parts of `partSize`,
/// the last part first.
Bytes AddExtendedXmp(const Bytes& jpeg, const QByteArray& main, const QByteArray& extension,
                     const QByteArray& guid, int partSize);

} // namespace LumetraTest
