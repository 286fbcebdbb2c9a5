// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/ExportRecipe.h"
#include "photo/file/WrittenFormat.h"

#include <array>
#include <optional>
#include <string>

namespace LumetraHost {

/// The words by which options and the user's files name the choices of a recipe. Formats have
/// theirs in WrittenFormats.
template <class Choice>
struct RecipeWord
{
    const char* word;
    Choice choice;
};

constexpr std::array<RecipeWord<KeptMetadata>, 4> MetadataWords{{
    {"all", KeptMetadata::All},
    {"no-gps", KeptMetadata::NoGps},
    {"copyright", KeptMetadata::Copyright},
    {"none", KeptMetadata::None},
}};

constexpr std::array<RecipeWord<ChromaSampling>, 4> SamplingWords{{
    {"automatic", ChromaSampling::Automatic},
    {"4:4:4", ChromaSampling::Full},
    {"4:2:2", ChromaSampling::Half},
    {"4:2:0", ChromaSampling::Quarter},
}};

constexpr std::array<RecipeWord<TiffCompression>, 3> CompressionWords{{
    {"none", TiffCompression::None},
    {"lzw", TiffCompression::Lzw},
    {"deflate", TiffCompression::Deflate},
}};

/// The choice that a word names; nothing for any other text.
template <class Words>
auto FindChoice(const Words& words, const std::string& text)
    -> std::optional<decltype(words[0].choice)>
{
    for (const auto& entry : words)
        if (text == entry.word)
            return entry.choice;
    return std::nullopt;
}

/// The word of a choice, which has to be in the list.
template <class Words, class Choice>
const char* FindWord(const Words& words, Choice choice)
{
    for (const auto& entry : words)
        if (entry.choice == choice)
            return entry.word;
    return "";
}

/// All words with `separator` between them.
template <class Words>
std::string JoinWords(const Words& words, const std::string& separator)
{
    std::string joined;
    for (const auto& entry : words)
        joined += (joined.empty() ? "" : separator) + entry.word;
    return joined;
}

} // namespace LumetraHost
