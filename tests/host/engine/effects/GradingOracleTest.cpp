// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"

#include "engine/run/Renderer.h"

#include <OpenColorIO/OpenColorIO.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

// OpenColorIO is an independent implementation of the ASC Color Decision List.
namespace LumetraHost {
namespace {

namespace Ocio = OCIO_NAMESPACE;

void ExpectSameAsList(Ocio::CDLStyle style, const std::array<double, 9>& sop, double saturation)
{
    const auto transform = Ocio::CDLTransform::Create();
    transform->setStyle(style);
    transform->setSOP(sop.data());
    transform->setSat(saturation);
    const auto processor =
        Ocio::Config::CreateRaw()->getProcessor(transform)->getOptimizedCPUProcessor(
            Ocio::OPTIMIZATION_LOSSLESS);
    const Image source = MakeRandomPicture(200, 50, Image::Depth::Bits8, 33);
    const Image rendered = Renderer().Render(
        source, MakeSettings({MakeEffect("liftGammaGain",
                                         {{"slopeRed", sop[0]},
                                          {"slopeGreen", sop[1]},
                                          {"slopeBlue", sop[2]},
                                          {"offsetRed", sop[3]},
                                          {"offsetGreen", sop[4]},
                                          {"offsetBlue", sop[5]},
                                          {"powerRed", sop[6]},
                                          {"powerGreen", sop[7]},
                                          {"powerBlue", sop[8]},
                                          {"saturation", saturation},
                                          {"clamp", style == Ocio::CDL_ASC ? 1.0 : 0.0}})}));
    double largest = 0, mean = 0;
    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 200; ++x) {
            float colour[3];
            for (int c = 0; c < 3; ++c)
                colour[c] = static_cast<float>(GetChannel(source, x, y, c)) / 255.0f;
            processor->applyRGB(colour);
            for (int c = 0; c < 3; ++c) {
                const double exact = 255 * std::clamp(static_cast<double>(colour[c]), 0.0, 1.0);
                const double difference = std::abs(exact - GetChannel(rendered, x, y, c));
                largest = std::max(largest, difference);
                mean += difference / 30000;
            }
        }
    EXPECT_LE(largest, 0.53);
    EXPECT_LE(mean, 0.26);
}

TEST(OpenColorIo, agreesOnColorDecisionLists)
{
    for (const auto style : {Ocio::CDL_ASC, Ocio::CDL_NO_CLAMP}) {
        ExpectSameAsList(style, {1.1, 0.95, 1.3, 0.02, -0.04, 0.07, 1.2, 0.85, 1}, 1.3);
        ExpectSameAsList(style, {2, 1.5, 1, -0.2, 0.1, 0, 1, 1, 1}, 0.5);
        ExpectSameAsList(style, {0.7, 0.8, 0.9, 0.1, 0.05, 0, 2, 2.5, 0.5}, 0);
    }
}

} // namespace
} // namespace LumetraHost
