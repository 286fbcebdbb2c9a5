// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"

#include "engine/effects/whitebalance/WhiteBalanceEffect.h"
#include "engine/run/Renderer.h"
#include "image/Srgb.h"

#include <OpenColorIO/OpenColorIO.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

// OpenColorIO is an independent implementation of the same formulas on linear floats.
namespace LumetraHost {
namespace {

namespace Ocio = OCIO_NAMESPACE;

/// The transform runs on linear light, or on encoded values.
void ExpectSameAs(const Ocio::ConstTransformRcPtr& transform,
                  const Zorvik::Quindle::EffectPtr& effect, bool isEncoded = false)
{
    const auto processor =
        Ocio::Config::CreateRaw()->getProcessor(transform)->getDefaultCPUProcessor();
    const Image source = MakeRandomPicture(200, 50, Image::Depth::Bits8, 21);
    const Image rendered = Renderer().Render(source, MakeSettings({effect}));
    double largest = 0;
    double mean = 0;
    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 200; ++x) {
            float colour[3];
            for (int c = 0; c < 3; ++c)
                colour[c] = static_cast<float>(
                    isEncoded ? GetChannel(source, x, y, c) / 255.0
                              : SrgbToLinear(GetChannel(source, x, y, c) / 255.0));
            processor->applyRGB(colour);
            for (int c = 0; c < 3; ++c) {
                const double limited = std::clamp(static_cast<double>(colour[c]), 0.0, 1.0);
                const double exact = 255 * (isEncoded ? limited : LinearToSrgb(limited));
                const double difference = std::abs(exact - GetChannel(rendered, x, y, c));
                largest = std::max(largest, difference);
                mean += difference / 30000;
            }
        }
    EXPECT_LE(largest, 0.52);
    EXPECT_LE(mean, 0.26);
    testing::Test::RecordProperty("largest", std::to_string(largest));
    testing::Test::RecordProperty("mean", std::to_string(mean));
}

TEST(OpenColorIo, agreesOnExposure)
{
    const auto transform = Ocio::ExposureContrastTransform::Create();
    transform->setStyle(Ocio::EXPOSURE_CONTRAST_LINEAR);
    transform->setExposure(-1.35);
    ExpectSameAs(transform, MakeEffect("exposure", {{"stops", -1.35}}));
}

TEST(OpenColorIo, agreesOnContrast)
{
    const auto transform = Ocio::ExposureContrastTransform::Create();
    transform->setStyle(Ocio::EXPOSURE_CONTRAST_LINEAR);
    transform->setPivot(0.18);
    transform->setContrast(std::exp2(0.45));
    ExpectSameAs(transform, MakeEffect("contrast", {{"amount", 45}}));
}

TEST(OpenColorIo, agreesOnSaturation)
{
    const auto transform = Ocio::CDLTransform::Create();
    transform->setStyle(Ocio::CDL_NO_CLAMP);
    transform->setSat(1.4);
    ExpectSameAs(transform, MakeEffect("saturation", {{"amount", 40}}), true);
}

TEST(OpenColorIo, agreesOnMatrices)
{
    WhiteBalanceParameters parameters;
    parameters.temperature = 5200;
    parameters.tint = 8;
    const auto rows = parameters.GetMatrix().rows;
    double matrix[16] = {};
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j)
            matrix[4 * i + j] = rows[i][j];
    matrix[15] = 1;
    const auto transform = Ocio::MatrixTransform::Create();
    transform->setMatrix(matrix);
    ExpectSameAs(transform, MakeEffect("whiteBalance", {{"temperature", 5200}, {"tint", 8}}));
}

} // namespace
} // namespace LumetraHost
