// SPDX-License-Identifier: GPL-2.0-or-later
#include "photos/RecipeOptions.h"

#include "console/Command.h"
#include "console/Text.h"
#include "console/UsageError.h"
#include "exporting/RecipeWords.h"
#include "exporting/recipes/RecipeStore.h"
#include "photo/file/WrittenFormat.h"
#include "photo/jpeg/JpegEncoder.h"

#include "Zorvik/Exception.h"

#include <cmath>

namespace LumetraCli {
namespace {

using LumetraHost::EncodingOptions;
using LumetraHost::ExportRecipe;
using LumetraHost::Image;
using LumetraHost::JpegEncoder;
using LumetraHost::PhotoFormat;
using LumetraHost::PhotoJob;
using LumetraHost::RecipeStore;
using LumetraHost::WrittenFormats;

const QString RecipeOption = QStringLiteral("recipe");
const QString FormatOption = QStringLiteral("format");
const QString QualityOption = QStringLiteral("quality");
const QString SamplingOption = QStringLiteral("subsampling");
const QString ProgressiveOption = QStringLiteral("progressive");
const QString LosslessOption = QStringLiteral("lossless");
const QString CompressionOption = QStringLiteral("compression");
const QString SizeOption = QStringLiteral("size");
const QString DepthOption = QStringLiteral("depth");
const QString MetadataOption = QStringLiteral("metadata");

const QString MegapixelSuffix = QStringLiteral("MP");
constexpr double PixelsPerMegapixel = 1e6;

[[noreturn]] void Fail(const QString& option, const QString& expected, const QString& found)
{
    throw UsageError(Text::tr("--%1: expected %2, found \"%3\"").arg(option, expected, found));
}

/// The choice that the option's word names.
template <class Words>
auto ReadWord(const QCommandLineParser& parser, const QString& option, const Words& words)
{
    const QString text = parser.value(option);
    const auto choice = LumetraHost::FindChoice(words, text.toStdString());
    if (!choice)
        Fail(option, QString::fromStdString(LumetraHost::JoinWords(words, ", ")), text);
    return *choice;
}

template <class Words>
QString JoinForHelp(const Words& words)
{
    return QString::fromStdString(LumetraHost::JoinWords(words, "|"));
}

Image::Depth ReadDepth(const QCommandLineParser& parser)
{
    const QString depth = parser.value(DepthOption);
    if (depth != QLatin1String("8") && depth != QLatin1String("16"))
        Fail(DepthOption, Text::tr("8 or 16"), depth);
    return depth == QLatin1String("16") ? Image::Depth::Bits16 : Image::Depth::Bits8;
}

/// The pixels of "12MP", or of "1.5mp".
int ReadMegapixels(const QString& text)
{
    bool isNumber = false;
    const double pixels =
        std::round(text.chopped(MegapixelSuffix.size()).toDouble(&isNumber) * PixelsPerMegapixel);
    if (!isNumber || !(pixels >= 1) || pixels > ExportRecipe::LargestArea)
        Fail(SizeOption,
             Text::tr("up to %1 megapixels, such as 12MP")
                 .arg(ExportRecipe::LargestArea / 1'000'000),
             text);
    return static_cast<int>(pixels);
}

void ReadSize(const QCommandLineParser& parser, ExportRecipe& recipe)
{
    const QString text = parser.value(SizeOption);
    recipe.longestSide = 0;
    recipe.mostPixels = 0;
    if (text.endsWith(MegapixelSuffix, Qt::CaseInsensitive))
        recipe.mostPixels = ReadMegapixels(text);
    else
        recipe.longestSide = ReadNumber(parser, SizeOption, 1, ExportRecipe::LargestSide);
}

void ReadEncoding(const QCommandLineParser& parser, EncodingOptions& encoding)
{
    if (parser.isSet(QualityOption))
        encoding.quality = ReadNumber(parser, QualityOption, 1, 100);
    if (parser.isSet(SamplingOption))
        encoding.sampling = ReadWord(parser, SamplingOption, LumetraHost::SamplingWords);
    if (parser.isSet(CompressionOption))
        encoding.compression = ReadWord(parser, CompressionOption, LumetraHost::CompressionWords);
    encoding.isProgressive = encoding.isProgressive || parser.isSet(ProgressiveOption);
    encoding.isLossless = encoding.isLossless || parser.isSet(LosslessOption);
}

/// The user's recipe of --recipe; the usual one without it.
ExportRecipe ReadNamed(const QCommandLineParser& parser)
{
    if (!parser.isSet(RecipeOption))
        return {};
    try {
        return RecipeStore().Find(parser.value(RecipeOption)).recipe;
    } catch (const Zorvik::Exception& error) {
        throw UsageError(QStringLiteral("--recipe: ") + QString::fromUtf8(error.what()));
    }
}

QString JoinFormats(const char* separator)
{
    return QString::fromStdString(LumetraHost::JoinWords(WrittenFormats, separator));
}

/// Outputs that are no files, such as the standard output, have no format of their own.
void CheckFormat(PhotoFormat format, const std::vector<PhotoJob>& jobs)
{
    for (const PhotoJob& job : jobs) {
        const auto named = LumetraHost::GetPhotoFormatOfName(job.output);
        if (named && named != format)
            Fail(FormatOption,
                 Text::tr("an output that ends in .{ext} or .%1")
                     .arg(QLatin1String(LumetraHost::GetWrittenFormat(format).suffix)),
                 job.output);
    }
}

} // namespace

void RecipeOptions::Add(OptionTable& options)
{
    options.AddOptions({
        {RecipeOption,
         Text::tr("The form of the new files as one of the editor's export recipes has it; "
                  "the options below change it. Its folder and file name are not used"),
         QStringLiteral("name")},
        {FormatOption,
         Text::tr("The format of the new files, which {ext} then stands for. Default: what "
                  "the name of the output says"),
         JoinFormats("|")},
        {QualityOption,
         Text::tr("Quality of JPEG and WebP, 1 to 100, whatever the photo's own is; each "
                  "format has a scale of its own. Default: %1")
             .arg(EncodingOptions::DefaultQuality),
         QStringLiteral("number")},
        {SamplingOption,
         Text::tr("Resolution of a JPEG's colours: 4:4:4 is full, 4:2:2 half, 4:2:0 a "
                  "quarter. Default: automatic, which is 4:4:4 from quality %1 on, else "
                  "4:2:0")
             .arg(JpegEncoder::FullColorQuality),
         JoinForHelp(LumetraHost::SamplingWords)},
        {ProgressiveOption, Text::tr("Stores JPEG coarse first, then finer: smaller, slower "
                                     "to make.")},
        {LosslessOption, Text::tr("Stores every pixel of a WebP as it is.")},
        {CompressionOption,
         Text::tr("Compression of TIFF, none of which loses anything. Default: deflate"),
         JoinForHelp(LumetraHost::CompressionWords)},
        {SizeOption,
         Text::tr("Shrinks photos whose longest side has more pixels to this number, 1 to "
                  "%1, or, as in 12MP, photos with more megapixels. None is enlarged. "
                  "Default: every photo's own size")
             .arg(ExportRecipe::LargestSide),
         QStringLiteral("number|numberMP")},
        {DepthOption,
         Text::tr("Bits per channel, 8 or 16; 16 for PNG and TIFF alone. Effects are drawn "
                  "with 16 where the photo or the file has them. Default: the photo's, "
                  "where the format holds them"),
         QStringLiteral("8|16")},
        {MetadataOption,
         Text::tr("\"all\" keeps EXIF, IPTC and XMP and records the preset in the XMP data; "
                  "\"no-gps\" does so without coordinates; \"copyright\" keeps author, "
                  "copyright and licence alone; \"none\" leaves all out. The colour profile "
                  "stays. Default: all"),
         JoinForHelp(LumetraHost::MetadataWords)},
    });
}

std::optional<PhotoFormat> RecipeOptions::ReadFormat(const QCommandLineParser& parser)
{
    if (!parser.isSet(FormatOption) && parser.isSet(RecipeOption))
        return ReadNamed(parser).format;
    if (!parser.isSet(FormatOption))
        return std::nullopt;
    const QString text = parser.value(FormatOption);
    for (const auto& entry : WrittenFormats)
        if (text == QLatin1String(entry.word))
            return entry.format;
    Fail(FormatOption, JoinFormats(", "), text);
}

ExportRecipe RecipeOptions::Read(const QCommandLineParser& parser)
{
    ExportRecipe recipe = ReadNamed(parser);
    recipe.format = ReadFormat(parser).value_or(recipe.format);
    ReadEncoding(parser, recipe.encoding);
    if (parser.isSet(SizeOption))
        ReadSize(parser, recipe);
    if (parser.isSet(DepthOption))
        recipe.depth = ReadDepth(parser);
    if (parser.isSet(MetadataOption))
        recipe.metadata = ReadWord(parser, MetadataOption, LumetraHost::MetadataWords);
    return recipe;
}

QString RecipeOptions::ReadExtension(const QCommandLineParser& parser)
{
    const auto format = ReadFormat(parser);
    return format ? QString::fromLatin1(LumetraHost::GetWrittenFormat(*format).suffix) : QString();
}

void RecipeOptions::Check(const QCommandLineParser& parser, const ExportRecipe& recipe,
                          const std::vector<PhotoJob>& jobs)
{
    if (parser.isSet(FormatOption))
        CheckFormat(recipe.format, jobs);
    if (recipe.depth != Image::Depth::Bits16)
        return;
    for (const PhotoJob& job : jobs)
        if (const auto format = LumetraHost::GetPhotoFormatOfName(job.output);
            format && !LumetraHost::GetWrittenFormat(*format).holds16Bits)
            throw UsageError(Text::tr("--depth: expected an output that holds 16 bits, .png "
                                      "or .tif, found \"%1\"; --output names another")
                                 .arg(job.output));
}

} // namespace LumetraCli
