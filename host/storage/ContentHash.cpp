// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/ContentHash.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include <array>
#include <cstdint>

#include <nettle/sha2.h>

namespace LumetraHost {
namespace {

constexpr qint64 PartSize = 1024 * 1024;

class Hash
{
public:
    Hash() { nettle_sha256_init(&m_state); }

    void Add(const void* content, std::size_t size)
    {
        nettle_sha256_update(&m_state, size, static_cast<const std::uint8_t*>(content));
    }

    std::string Finish()
    {
        std::array<std::uint8_t, SHA256_DIGEST_SIZE> digest;
        nettle_sha256_digest(&m_state, digest.size(), digest.data());
        return QByteArray(reinterpret_cast<const char*>(digest.data()),
                          static_cast<int>(digest.size()))
            .toHex()
            .toStdString();
    }

private:
    sha256_ctx m_state = {};
};

} // namespace

std::string ContentHash::Of(const void* content, std::size_t size)
{
    Hash hash;
    hash.Add(content, size);
    return hash.Finish();
}

std::string ContentHash::OfFile(const QString& path)
{
    QFile file(path);
    // A pipe would wait for its other end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    Hash hash;
    while (true) {
        const QByteArray part = file.read(PartSize);
        if (part.isEmpty())
            break;
        hash.Add(part.constData(), static_cast<std::size_t>(part.size()));
    }
    return file.error() == QFileDevice::NoError ? hash.Finish() : std::string();
}

} // namespace LumetraHost
