// SPDX-License-Identifier: MIT
#pragma once

namespace Zorvik::Lumetra::LumetraPresets {

/// These are the keys of a preset's stored form and of the user's stored data.
struct PresetKeys
{
    static constexpr char ID[] = "id";
    static constexpr char Image[] = "image";
    static constexpr char Popular[] = "popular";
    static constexpr char PreviewCropPolicy[] = "previewCropPolicy";
    static constexpr char PreviewFitPolicy[] = "previewFitPolicy";

    static constexpr char UserPresets[] = "UserPresets";
    static constexpr char Favourites[] = "Favourites";
    static constexpr char Favourite[] = "Favourite"; ///< Nothing reads or writes this reserved key.
};

} // namespace Zorvik::Lumetra::LumetraPresets
