// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/PhotoFormat.h"

#include <QFileInfo>

#include <algorithm>
#include <string>

namespace LumetraHost {
namespace {

bool BeginsWith(const Bytes& content, const std::string& magic)
{
    return content.size() >= magic.size() &&
           std::equal(magic.begin(), magic.end(), content.begin(),
                      [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; });
}

} // namespace

std::optional<PhotoFormat> DetectPhotoFormat(const Bytes& content)
{
    if (BeginsWith(content, "\xFF\xD8\xFF"))
        return PhotoFormat::Jpeg;
    if (BeginsWith(content, "\x89PNG\r\n\x1A\n"))
        return PhotoFormat::Png;
    // Classic and big TIFF, little and big endian.
    for (const char* magic : {"II*\0", "MM\0*", "II+\0", "MM\0+"}) {
        if (BeginsWith(content, std::string(magic, 4)))
            return PhotoFormat::Tiff;
    }
    return std::nullopt;
}

std::optional<PhotoFormat> GetPhotoFormatOfName(const QString& path)
{
    const QString extension = QFileInfo(path).suffix().toLower();
    if (extension == QLatin1String("jpg") || extension == QLatin1String("jpeg") ||
        extension == QLatin1String("jpe"))
        return PhotoFormat::Jpeg;
    if (extension == QLatin1String("png"))
        return PhotoFormat::Png;
    if (extension == QLatin1String("tif") || extension == QLatin1String("tiff"))
        return PhotoFormat::Tiff;
    return std::nullopt;
}

} // namespace LumetraHost
