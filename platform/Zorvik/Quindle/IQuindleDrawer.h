// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Proc/Frame.h"
#include "Zorvik/Quindle/EffectsSettings.h"

#include <map>
#include <string>

namespace Zorvik::Quindle {

class IQuindleDrawerPainter;

/// The core drawer keeps the photo and the stack of effect packages on it, and renders them. The
/// host implements it; presets call it through their workspace. Package indexes count upwards;
/// 0xFFFFFFFF means none. A package is open until it is committed into the photo. All operations
/// copy their arguments.
class ZORVIKPLATFORM_EXPORT IQuindleDrawer
{
public:
    // The policies of RenderPreview() and its flag.
    static constexpr int CropNothing = 0, CropToCentre = 1;
    static constexpr int FitByScaling = 0, FitWithoutEnlarging = 1;
    static constexpr unsigned FlagDraft = 1;

    /// Returns the open package of that index; 0xFFFFFFFF asks for the open package applied last.
    /// Where there is none, the result is default-made and has no index.
    virtual EffectsSettingsPackage GetPackage(unsigned index) const = 0;
    /// Returns the index that the next new package takes; asking does not reserve it.
    virtual unsigned GetDefaultPackageIndex() const = 0;
    /// Returns the index of the topmost open package of that name, 0xFFFFFFFF when there is none.
    virtual unsigned GetPackageIndex(const std::string& packageName) const = 0;

    /// Puts `effects` on the photo, after finishing an open painting. They replace the open package
    /// of their index. If that is not open, they replace the topmost open package of the same name,
    /// which takes their index, or keeps its own where they bring none. Where no such package is
    /// open, they become a new one on top under their index, or under the next free one. `options`
    /// is reserved and empty.
    virtual void ApplyEffect(const EffectsSettings& effects,
                             const std::map<std::string, int>& options) = 0;
    /// Commits what is shown, after finishing an open painting: the open packages and `effect`, on
    /// top of them, become part of the photo and are found no more. The effect of id "empty"
    /// commits the packages alone. A null effect is an Exception.
    virtual void ApplyEffect(const ConstEffectPtr& effect,
                             const std::map<std::string, int>& options) = 0;

    /// Returns the one painter of this drawer, which lives as long as it does.
    virtual IQuindleDrawerPainter& GetPainter() = 0;

    /// Renders the photo, as last committed, with `effects` on it, at most as large as `target`.
    /// Crop 0 shows the whole picture, 1 its centre, cut to the target's shape; other values count
    /// as 1. Fit 0 scales to the target, 1 never enlarges; other values count as 0. Bit 0 of
    /// `flags` asks for a quick draft; the others are reserved. Without a photo the frame is null.
    /// A target below 1 x 1 pixels, or without a positive pixel aspect, is an Exception. Rendering
    /// changes nothing that is shown.
    virtual Proc::Frame RenderPreview(const Proc::FrameTarget& target,
                                      const EffectsSettings& effects, int cropPolicy, int fitPolicy,
                                      unsigned flags) = 0;

    virtual ~IQuindleDrawer();
};

} // namespace Zorvik::Quindle
