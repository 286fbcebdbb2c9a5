// SPDX-License-Identifier: GPL-2.0-or-later
#include "BenchmarkPictures.h"

#include "engine/whitebalance/WhiteBalanceParameters.h"

#include <OpenColorIO/OpenColorIO.h>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <cmath>

namespace LumetraBench {
namespace {

namespace Ocio = OCIO_NAMESPACE;
using LumetraHost::Image;

Ocio::TransformRcPtr MakeSrgb(Ocio::TransformDirection direction)
{
    const auto transform = Ocio::ExponentWithLinearTransform::Create();
    transform->setGamma({2.4, 2.4, 2.4, 1.0});
    transform->setOffset({0.055, 0.055, 0.055, 0.0});
    transform->setDirection(direction);
    return transform;
}

Ocio::TransformRcPtr MakeExposureAndContrast(double exposure, double contrast)
{
    const auto transform = Ocio::ExposureContrastTransform::Create();
    transform->setStyle(Ocio::EXPOSURE_CONTRAST_LINEAR);
    transform->setPivot(0.18);
    transform->setExposure(exposure);
    transform->setContrast(contrast);
    return transform;
}

Ocio::TransformRcPtr MakeWhiteBalance()
{
    LumetraHost::WhiteBalanceParameters parameters;
    parameters.temperature = 7000;
    const auto balance = parameters.GetMatrix();
    double matrix[16] = {0};
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            matrix[4 * row + column] = balance.rows[row][column];
    matrix[15] = 1;
    const auto transform = Ocio::MatrixTransform::Create();
    transform->setMatrix(matrix);
    return transform;
}

Ocio::CDLTransformRcPtr MakeDecisions()
{
    const auto transform = Ocio::CDLTransform::Create();
    transform->setStyle(Ocio::CDL_NO_CLAMP);
    return transform;
}

Ocio::TransformRcPtr MakeSaturation()
{
    const auto transform = MakeDecisions();
    transform->setSat(1.2);
    return transform;
}

Ocio::TransformRcPtr MakeLiftGammaGain()
{
    const auto transform = MakeDecisions();
    const double slope[] = {1.05, 1, 1};
    const double offset[] = {0, 0, 0.02};
    const double power[] = {1, 0.95, 1};
    transform->setSlope(slope);
    transform->setOffset(offset);
    transform->setPower(power);
    return transform;
}

/// From encoded to encoded, `steps` in linear light and `last` on encoded values.
Ocio::ConstCPUProcessorRcPtr MakeProcessor(const std::vector<Ocio::TransformRcPtr>& steps,
                                           const Ocio::TransformRcPtr& last)
{
    const auto group = Ocio::GroupTransform::Create();
    group->appendTransform(MakeSrgb(Ocio::TRANSFORM_DIR_FORWARD));
    for (const Ocio::TransformRcPtr& step : steps)
        group->appendTransform(step);
    group->appendTransform(MakeSrgb(Ocio::TRANSFORM_DIR_INVERSE));
    if (last)
        group->appendTransform(last);
    return Ocio::Config::CreateRaw()->getProcessor(group)->getOptimizedCPUProcessor(
        Ocio::BIT_DEPTH_UINT8, Ocio::BIT_DEPTH_UINT8, Ocio::OPTIMIZATION_DEFAULT);
}

void RunOcio(benchmark::State& state, const std::vector<Ocio::TransformRcPtr>& steps,
             const Ocio::TransformRcPtr& last)
{
    const auto processor = MakeProcessor(steps, last);
    Image source = GetPhoto(Image::Depth::Bits8); // only read
    Image target = Image::Allocate(Width, Height, Image::Depth::Bits8);
    const auto describe = [](Image& image) {
        return Ocio::PackedImageDesc(image.Row(0), Width, Height, Ocio::CHANNEL_ORDERING_RGBA,
                                     Ocio::BIT_DEPTH_UINT8, 1, 4,
                                     static_cast<std::ptrdiff_t>(image.GetStride()));
    };
    const Ocio::PackedImageDesc from = describe(source);
    Ocio::PackedImageDesc to = describe(target);
    for (auto iteration : state)
        processor->apply(from, to);
    state.counters["pixels/s"] = benchmark::Counter(
        double(Width) * Height * double(state.iterations()), benchmark::Counter::kIsRate);
}

void RegisterOcio(const std::string& name, std::vector<Ocio::TransformRcPtr> steps,
                  Ocio::TransformRcPtr last = {})
{
    Register("opencolorio_" + name + "/8bit/threads:1", 1,
             [=](benchmark::State& state) { RunOcio(state, steps, last); });
}

/// A full-size blur of 8-bit pixels, which is what OpenCV has; ours is in linear light.
void RunOpenCvBlur(benchmark::State& state)
{
    const Image& photo = GetPhoto(Image::Depth::Bits8);
    const cv::Mat source(Height, Width, CV_8UC4, const_cast<std::uint8_t*>(photo.Row(0)),
                         photo.GetStride());
    cv::setNumThreads(1);
    const double sigma = 0.05 / 100 * std::hypot(Width, Height);
    cv::Mat target;
    for (auto iteration : state)
        cv::GaussianBlur(source, target, {}, sigma, sigma, cv::BORDER_REFLECT);
    state.counters["pixels/s"] = benchmark::Counter(
        double(Width) * Height * double(state.iterations()), benchmark::Counter::kIsRate);
}

} // namespace

void RegisterPeers()
{
    RegisterOcio("exposure", {MakeExposureAndContrast(0.4, 1)});
    RegisterOcio("contrast", {MakeExposureAndContrast(0, std::exp2(0.2))});
    RegisterOcio("whiteBalance", {MakeWhiteBalance()});
    RegisterOcio("saturation", {MakeSaturation()});
    RegisterOcio("liftGammaGain", {}, MakeLiftGammaGain());
    RegisterOcio("chain5",
                 {MakeExposureAndContrast(0.4, 1), MakeWhiteBalance(),
                  MakeExposureAndContrast(0, std::exp2(0.2)), MakeSaturation()},
                 MakeLiftGammaGain());
    Register("opencv_gaussianBlur/8bit/threads:1", 1, RunOpenCvBlur);
}

} // namespace LumetraBench
