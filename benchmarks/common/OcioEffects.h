// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <OpenColorIO/OpenColorIO.h>

namespace LumetraBench {

/// Our effects as one processor of OpenColorIO for the engine's pictures, with equal formulas.
/// Supports effects that change each colour alone without a mask: exposure, whiteBalance, contrast,
/// saturation, channelMixer, blackAndWhite, liftGammaGain without its saturation, a cube. To use
/// several threads, let each draw rows of its own.
class OcioEffects
{
public:
    /// Adjustable: SetContrast() can change the contrast effect, of which there must be one.
    enum class Contrast
    {
        Fixed,
        Adjustable
    };

    /// std::invalid_argument for an effect that is not supported.
    OcioEffects(const Zorvik::Quindle::EffectList& effects, LumetraHost::Image::Depth depth,
                Contrast contrast = Contrast::Fixed);
    /// Applies `transform` to each channel of encoded values.
    OcioEffects(const OCIO_NAMESPACE::TransformRcPtr& transform, LumetraHost::Image::Depth depth);

    /// Sets the contrast effect's amount from the next drawing on. Throws an exception of
    /// OpenColorIO when the contrast is fixed or there is none.
    void SetContrast(double amount);

    /// Draws rows; both pictures have the same size.
    void Draw(const LumetraHost::Image& source, LumetraHost::Image& target, int firstRow,
              int rows) const;
    /// Draws all rows.
    void Draw(const LumetraHost::Image& source, LumetraHost::Image& target) const;

private:
    OcioEffects(const OCIO_NAMESPACE::ConstConfigRcPtr& config,
                const OCIO_NAMESPACE::TransformRcPtr& transform, LumetraHost::Image::Depth depth);

    OCIO_NAMESPACE::BitDepth m_depth;
    OCIO_NAMESPACE::ConstCPUProcessorRcPtr m_processor;
};

} // namespace LumetraBench
