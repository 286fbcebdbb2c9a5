// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/file/PhotoFormat.h"

#include "photo/file/Magic.h"
#include "photo/file/RawSignature.h"

#include "storage/FailWith.h"

#include <QFileInfo>

#include <string>

namespace LumetraHost {
namespace {

bool BeginsWith(const Bytes& content, const std::string& magic)
{
    return HasAt(content, 0, magic);
}

/// True for the kinds that the picture's library knows by the box in front.
bool IsHeif(const Bytes& content)
{
    if (!HasAt(content, 4, "ftyp"))
        return false;
    for (const char* brand :
         {"heic", "heix", "hevc", "hevx", "heim", "heis", "mif1", "msf1", "avif", "avis"})
        if (HasAt(content, 8, brand))
            return true;
    return false;
}

} // namespace

std::optional<PhotoFormat> DetectPhotoFormat(const Bytes& content)
{
    if (BeginsWith(content, "\xFF\xD8\xFF"))
        return PhotoFormat::Jpeg;
    if (BeginsWith(content, "\x89PNG\r\n\x1A\n"))
        return PhotoFormat::Png;
    if (BeginsWith(content, "RIFF") && HasAt(content, 8, "WEBP"))
        return PhotoFormat::Webp;
    if (IsHeif(content))
        return PhotoFormat::Heif;
    if (IsRawPhoto(content)) // many are built like TIFF
        return PhotoFormat::Raw;
    // Classic and big TIFF, little and big endian.
    for (const char* magic : {"II*\0", "MM\0*", "II+\0", "MM\0+"}) {
        if (BeginsWith(content, std::string(magic, 4)))
            return PhotoFormat::Tiff;
    }
    return std::nullopt;
}

PhotoFormat RequirePhotoFormat(const Bytes& content, const std::string& name)
{
    const auto format = DetectPhotoFormat(content);
    if (format)
        return *format;
    const std::string expected = "expected a JPEG, PNG, TIFF, WebP, HEIC or raw picture";
    FailWith(name + ": " +
             (content.empty() ? "the file is empty: " + expected
                              : expected + ", found " + DescribeOtherContent(content)));
}

std::string DescribeOtherContent(const Bytes& content)
{
    struct Kind
    {
        std::size_t position;
        const char* magic;
        const char* text;
    };
    constexpr Kind kinds[] = {{0, "GIF8", "a GIF picture"},
                              {0, "BM", "a BMP picture"},
                              {0, "8BPS", "a Photoshop document"},
                              {0, "%PDF", "a PDF document"},
                              {0, "gimp xcf", "a GIMP document"},
                              {0, "\xFF\x0A", "a JPEG XL picture"},
                              {4, "JXL ", "a JPEG XL picture"},
                              {4, "jP  ", "a JPEG 2000 picture"},
                              {4, "ftyp", "a film"},
                              {0, "<svg", "an SVG drawing"},
                              {0, "<?xml", "an XML file"},
                              {0, "PK\x03\x04", "a ZIP archive"}};
    for (const Kind& kind : kinds)
        if (HasAt(content, kind.position, kind.magic))
            return kind.text;
    return "other content";
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
    if (extension == QLatin1String("webp"))
        return PhotoFormat::Webp;
    return std::nullopt;
}

} // namespace LumetraHost
