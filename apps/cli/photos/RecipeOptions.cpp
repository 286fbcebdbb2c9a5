// SPDX-License-Identifier: GPL-2.0-or-later
#include "photos/RecipeOptions.h"

#include "console/Command.h"
#include "console/UsageError.h"
#include "photo/file/PhotoFormat.h"
#include "photo/jpeg/JpegEncoder.h"

namespace LumetraCli {
namespace {

using LumetraHost::ExportRecipe;
using LumetraHost::Image;
using LumetraHost::JpegEncoder;
using LumetraHost::PhotoFormat;
using LumetraHost::PhotoJob;
using LumetraHost::PhotoWriter;

const QString QualityOption = QStringLiteral("quality");
const QString SizeOption = QStringLiteral("size");
const QString DepthOption = QStringLiteral("depth");
const QString MetadataOption = QStringLiteral("metadata");

Image::Depth ReadDepth(const QCommandLineParser& parser)
{
    const QString depth = parser.value(DepthOption);
    if (depth != QLatin1String("8") && depth != QLatin1String("16"))
        throw UsageError(QStringLiteral("--depth: expected 8 or 16, found \"%1\"").arg(depth));
    return depth == QLatin1String("16") ? Image::Depth::Bits16 : Image::Depth::Bits8;
}

bool ReadMetadata(const QCommandLineParser& parser)
{
    const QString metadata = parser.value(MetadataOption);
    if (metadata != QLatin1String("all") && metadata != QLatin1String("none"))
        throw UsageError(
            QStringLiteral("--metadata: expected all or none, found \"%1\"").arg(metadata));
    return metadata == QLatin1String("all");
}

} // namespace

void RecipeOptions::Add(QCommandLineParser& parser)
{
    parser.addOptions({
        {QualityOption,
         QStringLiteral("JPEG quality, 1 to 100, whatever the photo's own is. From %1 on, colours "
                        "keep their full resolution; below, a quarter of it. Default: %2")
             .arg(JpegEncoder::FullColorQuality)
             .arg(PhotoWriter::DefaultQuality),
         QStringLiteral("number")},
        {SizeOption,
         QStringLiteral("Shrinks photos whose longest side has more pixels to this number, 1 to "
                        "%1. None is enlarged. Default: every photo's own size")
             .arg(ExportRecipe::LargestSide),
         QStringLiteral("number")},
        {DepthOption,
         QStringLiteral("Bits per channel, 8 or 16; 16 for PNG and TIFF alone. Effects are drawn "
                        "with 16 where the photo or the file has them. Default: the photo's, "
                        "where the format holds them"),
         QStringLiteral("8|16")},
        {MetadataOption,
         QStringLiteral("\"all\" keeps EXIF, IPTC and XMP and records the preset in the XMP data; "
                        "\"none\" leaves them out. The colour profile stays. Default: all"),
         QStringLiteral("all|none"), QStringLiteral("all")},
    });
}

ExportRecipe RecipeOptions::Read(const QCommandLineParser& parser)
{
    ExportRecipe recipe;
    if (parser.isSet(QualityOption))
        recipe.quality = ReadNumber(parser, QualityOption, 1, 100);
    if (parser.isSet(SizeOption))
        recipe.longestSide = ReadNumber(parser, SizeOption, 1, ExportRecipe::LargestSide);
    if (parser.isSet(DepthOption))
        recipe.depth = ReadDepth(parser);
    recipe.keepsMetadata = ReadMetadata(parser);
    return recipe;
}

void RecipeOptions::Check(const ExportRecipe& recipe, const std::vector<PhotoJob>& jobs)
{
    if (recipe.depth != Image::Depth::Bits16)
        return;
    for (const PhotoJob& job : jobs)
        if (LumetraHost::GetPhotoFormatOfName(job.output) == PhotoFormat::Jpeg)
            throw UsageError(QStringLiteral("--depth: expected an output that holds 16 bits, .png "
                                            "or .tif, found \"%1\"; --output names another")
                                 .arg(job.output));
}

} // namespace LumetraCli
