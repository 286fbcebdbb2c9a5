// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Proc/Frame.h"
#include "Zorvik/Quindle/EffectsSettings.h"

#include <map>
#include <string>

namespace Zorvik::Quindle {

class IQuindleDrawerPainter;

/// The core drawer: keeps the photo and the stack of effect packages on it, and renders them.
/// Package indexes count upwards; 0xFFFFFFFF means none. A package is open until it is committed
/// into the photo. All operations copy what they are given.
class ZORVIKPLATFORM_EXPORT IQuindleDrawer
{
public:
    /// The open package of that index; 0xFFFFFFFF asks for the open package applied last.
    /// A default-made one when there is none.
    virtual EffectsSettingsPackage GetPackage(unsigned index) const = 0;
    /// The next free index.
    virtual unsigned GetDefaultPackageIndex() const = 0;
    /// The newest open package of that name, else 0xFFFFFFFF.
    virtual unsigned GetPackageIndex(const std::string& packageName) const = 0;

    /// Replaces the open package of the settings' index; if that is not open, the topmost open
    /// package of the same name, which takes this index; else opens one on top under this index
    /// (0xFFFFFFFF: the next free one). First finishes an open painting. `options` is reserved:
    /// empty.
    virtual void ApplyEffect(const EffectsSettings& effects,
                             const std::map<std::string, int>& options) = 0;
    /// Commits what is shown: the open packages and `effect` become part of the photo and are
    /// found no more. First finishes an open painting.
    virtual void ApplyEffect(const ConstEffectPtr& effect,
                             const std::map<std::string, int>& options) = 0;

    virtual IQuindleDrawerPainter& GetPainter() = 0;

    /// The photo, as last committed, with `effects` on it, for `target`. Crop 0: whole picture, 1:
    /// centre crop; fit 0: scale, 1: never enlarge; other values count as 1 and 0. Flag bit 0:
    /// draft. A null frame without a photo.
    virtual Proc::Frame RenderPreview(const Proc::FrameTarget& target,
                                      const EffectsSettings& effects, int cropPolicy, int fitPolicy,
                                      unsigned flags) = 0;

    virtual ~IQuindleDrawer();
};

} // namespace Zorvik::Quindle
