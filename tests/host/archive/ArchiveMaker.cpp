// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/archive/ArchiveMaker.h"

#include <zlib.h>

namespace LumetraTest {
namespace {

void Append(QByteArray& bytes, std::uint64_t value, int count)
{
    for (int i = 0; i < count; ++i)
        bytes.append(static_cast<char>(value >> (8 * i)));
}

QByteArray Deflate(const QByteArray& content)
{
    z_stream stream{};
    deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, -MAX_WBITS, MAX_MEM_LEVEL,
                 Z_DEFAULT_STRATEGY);
    QByteArray packed(static_cast<int>(deflateBound(&stream, content.size())), '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(content.constData()));
    stream.avail_in = static_cast<uInt>(content.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    deflate(&stream, Z_FINISH);
    packed.truncate(static_cast<int>(stream.total_out));
    deflateEnd(&stream);
    return packed;
}

/// Appends the part that the header in front of an entry and that in the directory share.
void AppendFacts(QByteArray& bytes, const ArchiveEntry& entry, const QByteArray& packed)
{
    const auto checksum = crc32(0, reinterpret_cast<const Bytef*>(entry.content.constData()),
                                static_cast<uInt>(entry.content.size()));
    const std::int64_t size = entry.claimedSize < 0 ? entry.content.size() : entry.claimedSize;
    Append(bytes, 20, 2); // version needed
    Append(bytes, entry.flags, 2);
    Append(bytes, entry.isCompressed ? 8 : 0, 2);
    Append(bytes, 0, 2);            // time
    Append(bytes, (1 << 5) | 1, 2); // date
    Append(bytes, checksum + entry.checksumError, 4);
    Append(bytes, static_cast<std::uint64_t>(packed.size()), 4);
    Append(bytes, static_cast<std::uint64_t>(size), 4);
    Append(bytes, static_cast<std::uint64_t>(entry.name.size()), 2);
    Append(bytes, 0, 2); // extra field
}

void AppendToDirectory(QByteArray& directory, const ArchiveEntry& entry, const QByteArray& packed,
                       int offset)
{
    directory.append("PK\1\2", 4);
    Append(directory, entry.unixMode ? 0x0314 : 0x0014, 2); // made by
    AppendFacts(directory, entry, packed);
    Append(directory, 0, 2); // comment
    Append(directory, 0, 2); // disk
    Append(directory, 0, 2); // internal attributes
    Append(directory, static_cast<std::uint64_t>(entry.unixMode) << 16, 4);
    Append(directory, static_cast<std::uint64_t>(offset), 4);
    directory += entry.name;
}

} // namespace

QByteArray ArchiveMaker::Make(const std::vector<ArchiveEntry>& entries)
{
    QByteArray archive;
    QByteArray directory;
    for (const ArchiveEntry& entry : entries) {
        const QByteArray packed = entry.isCompressed ? Deflate(entry.content) : entry.content;
        AppendToDirectory(directory, entry, packed, archive.size());
        archive.append("PK\3\4", 4);
        AppendFacts(archive, entry, packed);
        archive += entry.name + packed;
    }
    const int offset = archive.size();
    archive += directory;
    archive.append("PK\5\6", 4);
    Append(archive, 0, 4); // disks
    Append(archive, entries.size(), 2);
    Append(archive, entries.size(), 2);
    Append(archive, static_cast<std::uint64_t>(directory.size()), 4);
    Append(archive, static_cast<std::uint64_t>(offset), 4);
    Append(archive, 0, 2); // comment
    return archive;
}

} // namespace LumetraTest
