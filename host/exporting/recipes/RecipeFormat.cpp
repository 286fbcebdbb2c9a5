// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/recipes/RecipeFormat.h"

#include "catalogue/CheckedNode.h"
#include "exporting/RecipeWords.h"
#include "storage/JsonDocument.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace LumetraHost {
namespace {

constexpr char FormatKey[] = "format";
constexpr char QualityKey[] = "quality";
constexpr char LosslessKey[] = "lossless";
constexpr char SamplingKey[] = "subsampling";
constexpr char ProgressiveKey[] = "progressive";
constexpr char CompressionKey[] = "compression";
constexpr char DepthKey[] = "depth";
constexpr char LongestKey[] = "longestSide";
constexpr char MegapixelsKey[] = "megapixels";
constexpr char MetadataKey[] = "metadata";
constexpr char ProfileKey[] = "profile";
constexpr char FolderKey[] = "folder";
constexpr char FileKey[] = "file";

constexpr std::string_view Keys[] = {
    RecipeFormat::NameKey, FormatKey,      QualityKey, LosslessKey, SamplingKey,
    ProgressiveKey,        CompressionKey, DepthKey,   LongestKey,  MegapixelsKey,
    MetadataKey,           ProfileKey,     FolderKey,  FileKey};

constexpr double PixelsPerMegapixel = 1e6;

struct FormatWord
{
    const char* word;
    PhotoFormat choice;
};

std::vector<FormatWord> GetFormatWords()
{
    std::vector<FormatWord> words;
    for (const WrittenFormat& written : WrittenFormats)
        words.push_back({written.word, written.format});
    return words;
}

template <class Words, class Choice>
void ReadWord(const CheckedNode& node, const char* key, const Words& words, Choice& choice)
{
    const auto text = node.Text(key);
    if (!text)
        return;
    if (const auto found = FindChoice(words, *text))
        choice = *found;
    else
        node.ErrorAt(key, "expected " + JoinWords(words, ", ") + ", found \"" + *text + "\"");
}

int ReadInt(const CheckedNode& node, const char* key, int minimum, int maximum, int usual)
{
    const int value = node.Int(key).value_or(usual);
    if (node.Has(key) && (value < minimum || value > maximum))
        node.ErrorAt(key, "expected a number from " + std::to_string(minimum) + " to " +
                              std::to_string(maximum) + ", found " + std::to_string(value));
    return value;
}

void ReadEncoding(const CheckedNode& node, EncodingOptions& encoding)
{
    encoding.quality = ReadInt(node, QualityKey, 1, 100, encoding.quality);
    encoding.isLossless = node.Bool(LosslessKey).value_or(false);
    ReadWord(node, SamplingKey, SamplingWords, encoding.sampling);
    encoding.isProgressive = node.Bool(ProgressiveKey).value_or(false);
    ReadWord(node, CompressionKey, CompressionWords, encoding.compression);
}

void ReadDepth(const CheckedNode& node, ExportRecipe& recipe)
{
    const auto bits = node.Int(DepthKey);
    if (!bits)
        return;
    const bool isWide = *bits == 16;
    if (!isWide && *bits != 8)
        node.ErrorAt(DepthKey, "expected 8 or 16, found " + std::to_string(*bits));
    const WrittenFormat& format = GetWrittenFormat(recipe.format);
    if (isWide && !format.holds16Bits)
        node.ErrorAt(DepthKey, std::string("expected 8 for ") + format.name + ", found 16");
    recipe.depth = isWide ? Image::Depth::Bits16 : Image::Depth::Bits8;
}

void ReadSize(const CheckedNode& node, ExportRecipe& recipe)
{
    if (node.Has(LongestKey))
        recipe.longestSide = ReadInt(node, LongestKey, 1, ExportRecipe::LargestSide, 1);
    const auto megapixels = node.Number(MegapixelsKey);
    if (!megapixels)
        return;
    const double pixels = std::round(*megapixels * PixelsPerMegapixel);
    if (!(pixels >= 1) || pixels > ExportRecipe::LargestArea)
        node.ErrorAt(MegapixelsKey, "expected a number above 0, at most " +
                                        std::to_string(ExportRecipe::LargestArea / 1'000'000));
    else
        recipe.mostPixels = static_cast<int>(pixels);
}

void ReadNames(const CheckedNode& node, NamedRecipe& named)
{
    const auto getText = [&node](const char* key, const QString& usual) {
        const auto text = node.Text(key);
        return text ? QString::fromStdString(*text) : usual;
    };
    named.name = getText(RecipeFormat::NameKey, {}).trimmed();
    if (named.name.isEmpty())
        node.Error("expected a name");
    named.folder = getText(FolderKey, named.folder);
    named.file = getText(FileKey, named.file);
    if (named.file.trimmed().isEmpty() || named.file.contains(QLatin1Char('/')))
        node.ErrorAt(FileKey, "expected the name of a file without its folder");
}

void WriteSize(const ExportRecipe& recipe, Zorvik::Brassel::ISerializer& node)
{
    if (recipe.longestSide > 0)
        node.Set(LongestKey, recipe.longestSide);
    if (recipe.mostPixels > 0)
        node.Set(MegapixelsKey, recipe.mostPixels / PixelsPerMegapixel);
}

void WriteRecipe(const ExportRecipe& recipe, Zorvik::Brassel::ISerializer& node)
{
    const EncodingOptions& encoding = recipe.encoding;
    node.Set(FormatKey, GetWrittenFormat(recipe.format).word);
    node.Set(QualityKey, encoding.quality);
    node.Set(LosslessKey, encoding.isLossless);
    node.Set(SamplingKey, FindWord(SamplingWords, encoding.sampling));
    node.Set(ProgressiveKey, encoding.isProgressive);
    node.Set(CompressionKey, FindWord(CompressionWords, encoding.compression));
    if (recipe.depth)
        node.Set(DepthKey, recipe.depth == Image::Depth::Bits16 ? 16 : 8);
    WriteSize(recipe, node);
    node.Set(MetadataKey, FindWord(MetadataWords, recipe.metadata));
    node.Set(ProfileKey, recipe.embedsProfile);
}

} // namespace

std::optional<NamedRecipe> RecipeFormat::Read(const CheckedNode& node)
{
    const std::size_t errors = node.GetReports().GetErrorCount();
    NamedRecipe named;
    ReadNames(node, named);
    ReadWord(node, FormatKey, GetFormatWords(), named.recipe.format);
    ReadEncoding(node, named.recipe.encoding);
    ReadDepth(node, named.recipe);
    ReadSize(node, named.recipe);
    ReadWord(node, MetadataKey, MetadataWords, named.recipe.metadata);
    named.recipe.embedsProfile = node.Bool(ProfileKey).value_or(true);
    if (node.GetReports().GetErrorCount() != errors)
        return std::nullopt;
    return named;
}

JsonValue::Object RecipeFormat::Write(const NamedRecipe& named, const JsonObject* origin)
{
    const JsonDocument document("recipe");
    const auto node = document.GetRoot();
    node->Set(NameKey, named.name.toStdString());
    WriteRecipe(named.recipe, *node);
    node->Set(FolderKey, named.folder.toStdString());
    node->Set(FileKey, named.file.toStdString());
    if (origin)
        for (const auto& [key, value] : origin->GetMembers())
            if (std::find(std::begin(Keys), std::end(Keys), key) == std::end(Keys))
                document.GetObject()->Append(key, value);
    return document.GetObject();
}

} // namespace LumetraHost
