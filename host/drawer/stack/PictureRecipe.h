// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/KeptImage.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace LumetraHost {

class Overview;
class WholePicture;

/// Settings that nobody changes any more, so that any thread may read them. The same pointer means
/// the same picture, which is what caches compare.
using SharedSettings = std::shared_ptr<const Zorvik::Quindle::EffectsSettings>;

/// One package of a recipe.
struct Layer
{
    SharedSettings settings;
    /// Not empty while the blend is dragged: the integer blend (see Blend()) of the picture below
    /// and the package's finished full effect, whatever the settings' own amount.
    std::optional<int> paintedBlend;
};

inline bool operator==(const Layer& first, const Layer& second)
{
    return first.settings == second.settings && first.paintedBlend == second.paintedBlend;
}

inline bool operator!=(const Layer& first, const Layer& second)
{
    return !(first == second);
}

/// A picture that is yet to be rendered: a photo and what lies on it. Cheap to copy: pixels and
/// settings are shared.
struct PictureRecipe
{
    KeptImage photo; ///< without any package
    /// For pictures much smaller than the photo; null: they are made from the photo itself.
    std::shared_ptr<Overview> overview;
    std::vector<Layer> layers; ///< bottom first
    std::size_t committed = 0; ///< how many of them, from the bottom, are committed
    /// The photo as effects know it that look at all of it; null: it is made from the photo.
    std::shared_ptr<const WholePicture> whole = nullptr;
};

} // namespace LumetraHost
