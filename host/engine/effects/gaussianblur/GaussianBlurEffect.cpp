// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/gaussianblur/GaussianBlurEffect.h"

#include "engine/effects/MakeKind.h"
#include "engine/stages/SpatialPass.h"

#include <algorithm>

namespace LumetraHost {
namespace {

/// The pass puts the blurred picture in the place of the picture, in linear light.
class GaussianBlurPass : public SpatialPass
{
public:
    explicit GaussianBlurPass(const GaussianShape& shape) : m_shape(shape) {}

    GaussianShape GetShape() const override { return m_shape; }
    BlurredPlanes GetPlanes() const override { return BlurredPlanes::Colours; }
    void Combine(const Tile& tile, const BlurredTile& blurred) const override
    {
        std::copy_n(blurred.planes[0], tile.count, tile.red);
        std::copy_n(blurred.planes[1], tile.count, tile.green);
        std::copy_n(blurred.planes[2], tile.count, tile.blue);
    }
    ColourSpace GetColourSpace() const override { return ColourSpace::Linear; }

private:
    GaussianShape m_shape;
};

SpatialPassPtr CreatePass(const GaussianBlurParameters& parameters, const StageContext& context)
{
    return std::make_shared<GaussianBlurPass>(MakeRelativeShape(parameters.radius, context.area));
}

} // namespace

EffectKind MakeGaussianBlurKind()
{
    return MakeSpatialKind(QT_TRANSLATE_NOOP("Effects", "Blur"), CreatePass);
}

} // namespace LumetraHost
