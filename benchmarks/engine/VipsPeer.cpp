// SPDX-License-Identifier: GPL-2.0-or-later
#include "Peers.h"

#include "BenchmarkEffects.h"
#include "BenchmarkPictures.h"
#include "Measurement.h"
#include "VipsPipeline.h"

#include "engine/effects/channelmixer/ChannelMixerEffect.h"
#include "engine/effects/contrast/ContrastEffect.h"
#include "engine/effects/exposure/ExposureEffect.h"
#include "engine/effects/gaussianblur/GaussianBlurEffect.h"
#include "engine/effects/liftgammagain/LiftGammaGainEffect.h"
#include "engine/effects/saturation/SaturationEffect.h"
#include "engine/effects/sharpen/SharpenEffect.h"
#include "engine/effects/whitebalance/WhiteBalanceEffect.h"
#include "image/Srgb.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace LumetraBench {
namespace {

using namespace LumetraHost;
using Zorvik::Quindle::IEffectSettings;

using Steps = void (*)(VipsPipeline& pipeline);

void AddExposure(VipsPipeline& pipeline)
{
    pipeline.Scale(std::exp2(ReadParameters<ExposureParameters>(FindEffect("exposure")).stops));
}

void AddWhiteBalance(VipsPipeline& pipeline)
{
    pipeline.Multiply(
        ReadParameters<WhiteBalanceParameters>(FindEffect("whiteBalance")).GetMatrix());
}

void AddContrast(VipsPipeline& pipeline)
{
    const double exponent =
        ReadParameters<ContrastParameters>(FindEffect("contrast")).GetExponent();
    pipeline.Power({exponent, exponent, exponent});
    pipeline.Scale(std::pow(MiddleGrey, 1 - exponent));
}

void AddMixer(VipsPipeline& pipeline)
{
    pipeline.Multiply(
        ReadParameters<ChannelMixerParameters>(FindEffect("channelMixer")).GetMatrix());
}

void AddSaturation(VipsPipeline& pipeline)
{
    pipeline.Multiply(ReadParameters<SaturationParameters>(FindEffect("saturation")).GetMatrix());
}

/// To whole numbers.
void AddLiftGammaGain(VipsPipeline& pipeline)
{
    const auto parameters = ReadParameters<LiftGammaGainParameters>(FindEffect("liftGammaGain"));
    std::array<double, 3> slope = parameters.GetSlope();
    for (double& value : slope)
        value /= 255;
    pipeline.Scale(slope, parameters.GetOffset());
    pipeline.Power(parameters.GetPower());
    pipeline.Round(255);
}

template <Steps steps>
void InLinearLight(VipsPipeline& pipeline)
{
    pipeline.ToLinear();
    steps(pipeline);
    pipeline.ToEncoded();
}

void AddFirstThree(VipsPipeline& pipeline)
{
    AddExposure(pipeline);
    AddWhiteBalance(pipeline);
    AddContrast(pipeline);
}

void AddChain(VipsPipeline& pipeline)
{
    InLinearLight<AddFirstThree>(pipeline);
    AddSaturation(pipeline);
    AddLiftGammaGain(pipeline);
}

void AddRoundedSaturation(VipsPipeline& pipeline)
{
    AddSaturation(pipeline);
    pipeline.Round(1);
}

void AddCurve(VipsPipeline& pipeline)
{
    const auto table = MakeTable8(FindEffects("toneCurve"));
    std::vector<std::uint8_t> colours;
    for (std::size_t i = 0; i < table.size(); ++i)
        if (i % 4 != 3)
            colours.push_back(table[i]);
    pipeline.LookUp(colours);
}

void AddBlur(VipsPipeline& pipeline)
{
    pipeline.Blur(
        GetPixels(ReadParameters<GaussianBlurParameters>(FindEffect("gaussianBlur")).radius));
}

void AddSharpen(VipsPipeline& pipeline)
{
    const auto parameters = ReadParameters<SharpenParameters>(FindEffect("sharpen"));
    pipeline.Sharpen(GetPixels(parameters.radius), parameters.amount / 100);
}

std::vector<std::uint8_t> GetColours(const Image& image)
{
    std::vector<std::uint8_t> colours;
    colours.reserve(std::size_t(3) * std::size_t(image.GetWidth() * image.GetHeight()));
    for (int y = 0; y < image.GetHeight(); ++y)
        for (int x = 0; x < image.GetWidth(); ++x)
            colours.insert(colours.end(), image.Row(y) + 4 * x, image.Row(y) + 4 * x + 3);
    return colours;
}

Image MakeImage(const std::uint8_t* colours, int width, int height)
{
    Image image = Image::Allocate(width, height, Image::Depth::Bits8);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x, colours += 3)
            std::copy(colours, colours + 3, image.Row(y) + 4 * x);
    return image;
}

Drawing DrawSteps(const Task& task, Steps steps)
{
    const Image& photo = GetPhoto(task.depth);
    const int width = photo.GetWidth();
    const int height = photo.GetHeight();
    struct Pictures
    {
        std::vector<std::uint8_t> source;
        std::shared_ptr<const std::uint8_t> drawn;
    };
    const auto pictures = std::make_shared<Pictures>(Pictures{GetColours(photo), {}});
    const auto draw = [=] {
        vips_concurrency_set(task.threads);
        pictures->drawn.reset();
        VipsPipeline pipeline(pictures->source, width, height);
        steps(pipeline);
        pictures->drawn = pipeline.ToBytes();
    };
    return {draw, [=] { return MakeImage(pictures->drawn.get(), width, height); }};
}

struct VipsCase
{
    const char* effects;
    const char* remark;
    Steps steps;
};

} // namespace

void RegisterVips()
{
    if (VIPS_INIT("bench_engine"))
        throw std::runtime_error("libvips cannot be started");
    vips_cache_set_max(0); // else it remembers the picture that it drew
    const VipsCase cases[] = {
        {Chain, "8 bits before saturation", AddChain},
        {"exposure", "", InLinearLight<AddExposure>},
        {"whiteBalance", "", InLinearLight<AddWhiteBalance>},
        {"contrast", "", InLinearLight<AddContrast>},
        {"saturation", "", AddRoundedSaturation},
        {"liftGammaGain", "", AddLiftGammaGain},
        {"toneCurve", "our effect as a table", AddCurve},
        {"channelMixer", "", InLinearLight<AddMixer>},
        {"gaussianBlur", "encoded values, ours linear light", AddBlur},
        {"sharpen", "lightness of CIE Lab, ours luma", AddSharpen},
    };
    for (const int threads : {1, 2})
        for (const VipsCase& line : cases)
            RegisterPeer("libvips", {line.effects, Image::Depth::Bits8, threads}, line.remark,
                         [steps = line.steps](const Task& task) { return DrawSteps(task, steps); });
}

} // namespace LumetraBench
