// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/IEffectSettings.h"

#include <memory>

namespace LumetraHost {

class HazeMap;

/// The whole picture that effects are drawn on, for those that have to know all of it before they
/// change a pixel. A part of a picture, a preview and a picture that comes in bands have the same
/// facts as the picture as a whole. Immutable; any thread may ask, and whoever asks first waits.
class PictureFacts
{
public:
    PictureFacts() = default;
    PictureFacts(const PictureFacts&) = delete;
    PictureFacts& operator=(const PictureFacts&) = delete;
    virtual ~PictureFacts() = default;

    /// Never null.
    virtual std::shared_ptr<const HazeMap> GetHaze() const = 0;
    /// The facts of this picture with these effects on it. Nobody may change the effects until the
    /// result has been asked for a fact. Never null.
    virtual std::shared_ptr<const PictureFacts>
    With(const Zorvik::Quindle::EffectList& effects) const = 0;
};

} // namespace LumetraHost
