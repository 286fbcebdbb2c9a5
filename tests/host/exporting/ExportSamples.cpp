// SPDX-License-Identifier: GPL-2.0-or-later
#include "ExportSamples.h"

#include "host/engine/TestPictures.h"
#include "host/photo/PhotoSamples.h"

#include "exporting/JpegRows.h"
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "photo/metadata/MetadataTags.h"

#include <memory>

#include <exiv2/exiv2.hpp>

namespace LumetraTest {

using namespace LumetraHost;

Bytes MakeJpeg(int width, int height, const QByteArray& profile)
{
    Photo photo;
    photo.image = MakePattern(width, height, Image::Depth::Bits8);
    photo.metadata.iccProfile = profile;
    return PhotoWriter::Encode(photo, PhotoFormat::Jpeg, {}, "sample");
}

Bytes AddTags(const Bytes& jpeg, int orientation)
{
    MetadataTags::Initialise();
    const auto file = Exiv2::ImageFactory::open(jpeg.data(), static_cast<long>(jpeg.size()));
    file->readMetadata();
    file->exifData()["Exif.Image.Make"] = "Lumetra Works";
    file->exifData()["Exif.Image.Orientation"] = static_cast<std::uint16_t>(orientation);
    file->iptcData()["Iptc.Application2.City"] = "Berlin";
    file->xmpData()["Xmp.xmp.Rating"] = "4";
    file->writeMetadata();
    file->io().open();
    const Exiv2::byte* const data = file->io().mmap();
    return Bytes(data, data + file->io().size());
}

Packages MakeColours()
{
    return {MakeSettings({MakeEffect("exposure", {{"stops", 0.4}}),
                          MakeEffect("contrast", {{"amount", 20}}),
                          MakeEffect("vignette", {{"amount", -1}})},
                         60)};
}

Packages MakeNeighbours()
{
    return {MakeSettings({MakeEffect("exposure", {{"stops", 0.4}}),
                          MakeEffect("clarity", {{"amount", 60}, {"radius", 3}}),
                          MakeEffect("sharpen", {{"amount", 80}, {"radius", 0.2}}),
                          MakeEffect("grain", {{"amount", 30}})},
                         100)};
}

Packages MakeLayers()
{
    Packages packages = MakeColours();
    packages.push_back(MakeSettings({MakeEffect("exposure", {})}));
    packages.push_back(MakeNeighbours().front());
    packages.push_back(MakeSettings({MakeEffect("saturation", {{"amount", -40}})}, 255));
    packages.push_back(MakeSettings({MakeEffect("gaussianBlur", {{"radius", 2}})}, 200));
    return packages;
}

Packages MakeColourRun()
{
    return {MakeSettings({MakeEffect("whiteBalance", {{"temperature", 7000}}),
                          MakeEffect("contrast", {{"amount", 20}}),
                          MakeEffect("saturation", {{"amount", 25}}),
                          MakeEffect("contrast", {{"amount", -10}})},
                         40)};
}

Packages MakeMixedRun()
{
    Packages packages = MakeColourRun();
    auto& effects = packages.front().Effects();
    effects.push_back(MakeEffect("clarity", {{"amount", 30}, {"radius", 1}}));
    effects.push_back(MakeEffect("vignette", {{"amount", -1}}));
    effects.push_back(MakeEffect("grain", {{"amount", 20}}));
    return packages;
}

ExportRecipe MakeRecipe(const Packages& packages, PhotoFormat format)
{
    ExportRecipe recipe;
    recipe.look = std::make_shared<ExportLook>(packages);
    recipe.format = format;
    return recipe;
}

Converted Join(const Export::Result& result)
{
    Converted converted{result.file, result.damage};
    for (const std::string& loss : result.losses)
        Warn(converted.warnings, loss);
    return converted;
}

Converted Convert(const Bytes& content, const ExportRecipe& recipe, int threads)
{
    ThreadPool pool(3);
    ExportControl control;
    control.threads = threads;
    return Join(Export(pool).MakeFromFile(content, "in.jpg", recipe, "out", control));
}

Converted Convert(const Bytes& content, const Packages& packages, int threads, PhotoFormat format)
{
    return Convert(content, MakeRecipe(packages, format), threads);
}

Converted ConvertPhoto(const Bytes& content, const ExportRecipe& recipe)
{
    return Join(Export().MakeFromPhoto(PhotoReader::Decode(content, "in.jpg"), recipe, "out"));
}

bool CanStream(const Bytes& content)
{
    return JpegRows::Open(content, "in.jpg") != nullptr;
}

} // namespace LumetraTest
