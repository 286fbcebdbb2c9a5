// SPDX-License-Identifier: GPL-2.0-or-later
// A photo of unknown origin: it is read whole, or refused by an exception that names it.
#include "Zorvik/Exception.h"
#include "photo/PhotoReader.h"

#include <QBuffer>
#include <QImageReader>

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

constexpr qint64 MostPixels = 4'000'000;

/// True for headers of huge pictures. A few bytes may announce half a gigapixel, which the reader
/// takes by design: filling it costs seconds and shows nothing new.
bool AnnouncesMuch(const std::uint8_t* data, std::size_t size)
{
    QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    QBuffer buffer(&bytes);
    const QSize announced = QImageReader(&buffer).size();
    return qint64(announced.width()) * announced.height() > MostPixels;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (AnnouncesMuch(data, size))
        return 0;
    try {
        const auto photo = LumetraHost::PhotoReader::Decode({data, data + size}, "fuzz.jpg");
        if (photo.image.IsNull())
            std::abort();
    } catch (const Zorvik::Exception& error) {
        if (std::strstr(error.what(), "fuzz.jpg") == nullptr)
            std::abort();
    }
    return 0;
}
