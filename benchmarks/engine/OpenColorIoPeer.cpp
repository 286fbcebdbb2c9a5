// SPDX-License-Identifier: GPL-2.0-or-later
#include "Peers.h"

#include "BenchmarkEffects.h"
#include "BenchmarkPictures.h"
#include "Measurement.h"

#include "common/ForEachBand.h"
#include "common/OcioEffects.h"

#include <memory>

namespace LumetraBench {
namespace {

namespace Ocio = OCIO_NAMESPACE;
using LumetraHost::Image;

Drawing MakeOcioDrawing(const std::shared_ptr<const OcioEffects>& effects, const Task& task)
{
    return MakeDrawing(task.depth, [effects, task](Image& target) {
        const Image& photo = GetPhoto(task.depth);
        ForEachBand(photo.GetHeight(), task.threads,
                    [&](int firstRow, int rows) { effects->Draw(photo, target, firstRow, rows); });
    });
}

Drawing DrawEffects(const Task& task)
{
    return MakeOcioDrawing(
        std::make_shared<const OcioEffects>(FindEffects(task.effects), task.depth), task);
}

/// Draws the curve as a table: no other operation goes through the same points.
Drawing DrawCurve(const Task& task)
{
    const auto table = MakeTable16(FindEffects(task.effects));
    const auto curve = Ocio::Lut1DTransform::Create(65536, false);
    for (unsigned long i = 0; i < 65536; ++i) {
        const std::uint16_t* const value = &table[4 * i];
        const auto get = [value](int channel) { return float(value[channel]) / 65535; };
        curve->setValue(i, get(0), get(1), get(2));
    }
    return MakeOcioDrawing(std::make_shared<const OcioEffects>(curve, task.depth), task);
}

} // namespace

void RegisterOpenColorIo()
{
    for (const auto depth : {Image::Depth::Bits8, Image::Depth::Bits16})
        for (const int threads : {1, 2}) {
            for (const char* const name :
                 {Chain, "exposure", "whiteBalance", "contrast", "saturation", "liftGammaGain",
                  "channelMixer", "blackAndWhite", "lut3d"})
                RegisterPeer("opencolorio", {name, depth, threads}, {}, DrawEffects);
            RegisterPeer("opencolorio", {"toneCurve", depth, threads}, "our curve as a table",
                         DrawCurve);
        }
}

} // namespace LumetraBench
