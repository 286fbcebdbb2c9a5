// SPDX-License-Identifier: GPL-2.0-or-later
#include "export/LastRecipe.h"

#include "exporting/RecipeWords.h"
#include "settings/EditorSettings.h"

#include <algorithm>
#include <string>

namespace LumetraEditor {
namespace {

using LumetraHost::ExportRecipe;
using LumetraHost::Image;
using LumetraHost::KeptMetadata;

const QString FormatKey = QStringLiteral("export/format");
const QString QualityKey = QStringLiteral("export/quality");
const QString LosslessKey = QStringLiteral("export/lossless");
const QString SamplingKey = QStringLiteral("export/sampling");
const QString ProgressiveKey = QStringLiteral("export/progressive");
const QString CompressionKey = QStringLiteral("export/compression");
const QString BitsKey = QStringLiteral("export/bits");
const QString LimitedKey = QStringLiteral("export/limited");
const QString LongestKey = QStringLiteral("export/longestSide");
const QString PixelsKey = QStringLiteral("export/mostPixels");
const QString MetadataKey = QStringLiteral("export/metadata");
const QString ProfileKey = QStringLiteral("export/profile");

/// Stands for the depth of each photo.
constexpr int BitsOfPhoto = 0;

int GetBits(const ExportRecipe& recipe)
{
    if (!recipe.depth)
        return BitsOfPhoto;
    return recipe.depth == Image::Depth::Bits16 ? 16 : 8;
}

LumetraHost::PhotoFormat ReadFormat(const EditorSettings& settings)
{
    const int number = settings.Get(FormatKey, 0).toInt();
    for (const auto& entry : LumetraHost::WrittenFormats)
        if (static_cast<int>(entry.format) == number)
            return entry.format;
    return ExportRecipe().format;
}

template <class Words, class Choice>
Choice ReadWord(const EditorSettings& settings, const QString& key, const Words& words,
                Choice usual)
{
    return LumetraHost::FindChoice(words, settings.Get(key).toString().toStdString())
        .value_or(usual);
}

/// Earlier versions knew all metadata or none, as "true" or "false".
KeptMetadata ReadMetadata(const EditorSettings& settings)
{
    if (settings.Get(MetadataKey).toString() == QLatin1String("false"))
        return KeptMetadata::None;
    return ReadWord(settings, MetadataKey, LumetraHost::MetadataWords, KeptMetadata::All);
}

void ReadSize(const EditorSettings& settings, ExportRecipe& recipe)
{
    if (settings.Get(LimitedKey, false).toBool())
        recipe.longestSide =
            std::clamp(settings.Get(LongestKey, 0).toInt(), 0, ExportRecipe::LargestSide);
    recipe.mostPixels =
        std::clamp(settings.Get(PixelsKey, 0).toInt(), 0, ExportRecipe::LargestArea);
}

} // namespace

ExportRecipe LastRecipe::Read(const EditorSettings& settings)
{
    ExportRecipe recipe;
    recipe.format = ReadFormat(settings);
    auto& encoding = recipe.encoding;
    encoding.quality = std::clamp(settings.Get(QualityKey, encoding.quality).toInt(), 1, 100);
    encoding.isLossless = settings.Get(LosslessKey, false).toBool();
    encoding.sampling =
        ReadWord(settings, SamplingKey, LumetraHost::SamplingWords, encoding.sampling);
    encoding.isProgressive = settings.Get(ProgressiveKey, false).toBool();
    encoding.compression =
        ReadWord(settings, CompressionKey, LumetraHost::CompressionWords, encoding.compression);
    const int bits = settings.Get(BitsKey, 8).toInt();
    if (bits != BitsOfPhoto)
        recipe.depth = bits == 16 ? Image::Depth::Bits16 : Image::Depth::Bits8;
    ReadSize(settings, recipe);
    recipe.metadata = ReadMetadata(settings);
    recipe.embedsProfile = settings.Get(ProfileKey, true).toBool();
    return recipe;
}

void LastRecipe::Write(EditorSettings& settings, const ExportRecipe& recipe)
{
    const auto& encoding = recipe.encoding;
    const auto setWord = [&settings](const QString& key, const char* word) {
        settings.Set(key, QString::fromLatin1(word));
    };
    settings.Set(FormatKey, static_cast<int>(recipe.format));
    settings.Set(QualityKey, encoding.quality);
    settings.Set(LosslessKey, encoding.isLossless);
    setWord(SamplingKey, FindWord(LumetraHost::SamplingWords, encoding.sampling));
    settings.Set(ProgressiveKey, encoding.isProgressive);
    setWord(CompressionKey, FindWord(LumetraHost::CompressionWords, encoding.compression));
    // A format with 8 bits says nothing about the choice for the others.
    if (LumetraHost::GetWrittenFormat(recipe.format).holds16Bits)
        settings.Set(BitsKey, GetBits(recipe));
    settings.Set(LimitedKey, recipe.longestSide > 0);
    if (recipe.longestSide > 0)
        settings.Set(LongestKey, recipe.longestSide);
    settings.Set(PixelsKey, recipe.mostPixels);
    setWord(MetadataKey, FindWord(LumetraHost::MetadataWords, recipe.metadata));
    settings.Set(ProfileKey, recipe.embedsProfile);
}

} // namespace LumetraEditor
