// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/Image.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <OpenColorIO/OpenColorIO.h>

namespace LumetraBench {

/// Our effects as one processor of OpenColorIO for the engine's pictures, with the same formulas.
/// It has those that change each colour alone without a mask: exposure, whiteBalance, contrast,
/// saturation, channelMixer, blackAndWhite, liftGammaGain without its saturation, a cube. For
/// several threads, let each draw rows of its own.
class OcioEffects
{
public:
    /// std::invalid_argument for an effect that it does not have.
    OcioEffects(const Zorvik::Quindle::EffectList& effects, LumetraHost::Image::Depth depth);
    /// Encoded values, each channel by `transform`.
    OcioEffects(const OCIO_NAMESPACE::TransformRcPtr& transform, LumetraHost::Image::Depth depth);

    /// Rows of two pictures of the same size.
    void Draw(const LumetraHost::Image& source, LumetraHost::Image& target, int firstRow,
              int rows) const;
    /// All rows.
    void Draw(const LumetraHost::Image& source, LumetraHost::Image& target) const;

private:
    OCIO_NAMESPACE::BitDepth m_depth;
    OCIO_NAMESPACE::ConstCPUProcessorRcPtr m_processor;
};

} // namespace LumetraBench
