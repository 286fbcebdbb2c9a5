// SPDX-License-Identifier: GPL-2.0-or-later
// Speed of the engine beside copying the same bytes in the same run. "pixels/s" counts pixels of
// the picture; "per_copy" is how many times longer a rendering takes than one copy on one thread.
// Runs on one thread count processor time, so that other programs disturb them less; runs on two
// count real time.
#include "BenchmarkPictures.h"

#include "engine/EffectKinds.h"
#include "engine/Renderer.h"
#include "engine/lut3d/Lut3dSettings.h"

#include "Zorvik/Quindle/EffectSettingsImpl.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <time.h>

namespace LumetraBench {
namespace {

using namespace LumetraHost;
using Zorvik::Quindle::EffectList;
using Zorvik::Quindle::EffectPtr;

Image MakePhoto(Image::Depth depth)
{
    Image photo = Image::AllocateUninitialised(Width, Height, depth);
    std::mt19937 random(1);
    for (int y = 0; y < Height; ++y)
        for (std::size_t i = 0; i < photo.GetStride(); i += 4) {
            const std::uint32_t value = random();
            std::memcpy(photo.Row(y) + i, &value, 4);
        }
    return photo;
}

} // namespace

const Image& GetPhoto(Image::Depth depth)
{
    static const Image photo8 = MakePhoto(Image::Depth::Bits8);
    static const Image photo16 = MakePhoto(Image::Depth::Bits16);
    return depth == Image::Depth::Bits16 ? photo16 : photo8;
}

EffectPtr MakeEffect(const char* id, std::vector<std::pair<const char*, double>> parameters)
{
    RegisterEffects();
    const EffectPtr effect = Zorvik::Quindle::EffectSettingsImpl::Create(id);
    for (const auto& [name, value] : parameters)
        effect->SetParameter(name, value);
    return effect;
}

EffectList MakeGradingChain()
{
    return {MakeEffect("exposure", {{"stops", 0.4}}),
            MakeEffect("whiteBalance", {{"temperature", 7000}}),
            MakeEffect("contrast", {{"amount", 20}}), MakeEffect("saturation", {{"amount", 20}}),
            MakeEffect("liftGammaGain",
                       {{"slopeRed", 1.05}, {"offsetBlue", 0.02}, {"powerGreen", 0.95}})};
}

void Register(const std::string& name, int threads, std::function<void(benchmark::State&)> run)
{
    auto* const registered = benchmark::RegisterBenchmark(name.c_str(), std::move(run));
    registered->Unit(benchmark::kMillisecond);
    if (threads > 1)
        registered->UseRealTime();
}

namespace {

EffectPtr MakeTable()
{
    RegisterEffects();
    const auto cube = LookUpTable::MakeIdentity(LookUpTable::Kind::Cube, 33, {0, 0, 0}, {1, 1, 1});
    return Lut3dSettings::Create(nullptr, &cube);
}

void Copy(const Image& source, Image& target)
{
    std::memcpy(target.Row(0), source.Row(0), source.GetByteCount());
    benchmark::ClobberMemory();
}

double GetProcessorSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + 1e-9 * double(time.tv_nsec);
}

double MeasureCopySeconds(Image::Depth depth)
{
    const Image& source = GetPhoto(depth);
    Image target = Image::Allocate(Width, Height, depth);
    double best = 1e9;
    for (int round = 0; round < 5; ++round) {
        const double begin = GetProcessorSeconds();
        Copy(source, target);
        best = std::min(best, GetProcessorSeconds() - begin);
    }
    return best;
}

void CountPixels(benchmark::State& state, double copySeconds)
{
    const double pixels = double(Width) * Height;
    state.counters["pixels/s"] =
        benchmark::Counter(pixels * double(state.iterations()), benchmark::Counter::kIsRate);
    state.counters["per_copy"] =
        benchmark::Counter(copySeconds * double(state.iterations()),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void RunCopy(benchmark::State& state, Image::Depth depth)
{
    const double copySeconds = MeasureCopySeconds(depth);
    Image target = Image::Allocate(Width, Height, depth);
    for (auto iteration : state)
        Copy(GetPhoto(depth), target);
    CountPixels(state, copySeconds);
}

void RunChain(benchmark::State& state, const EffectList& effects, Image::Depth depth, Isa isa,
              int threads, int blendAmount)
{
    const double copySeconds = MeasureCopySeconds(depth);
    const Renderer renderer;
    RenderOptions options;
    options.isa = isa;
    options.threads = threads;
    Image target;
    for (auto iteration : state)
        target = renderer.Render(GetPhoto(depth), effects, blendAmount, options, std::move(target));
    CountPixels(state, copySeconds);
}

void RunBlend(benchmark::State& state, Image::Depth depth, Isa isa, int threads)
{
    const double copySeconds = MeasureCopySeconds(depth);
    const Renderer renderer;
    const Image effect =
        renderer.Render(GetPhoto(depth), {MakeEffect("exposure", {{"stops", 1}})}, 1);
    RenderOptions options;
    options.isa = isa;
    options.threads = threads;
    Image target;
    for (auto iteration : state)
        target = renderer.Interpolate(GetPhoto(depth), effect, 100, options, std::move(target));
    CountPixels(state, copySeconds);
}

void RegisterSingleEffects(Image::Depth depth, Isa isa, const std::string& suffix)
{
    for (const EffectPtr& effect :
         {MakeEffect("exposure", {{"stops", 0.4}}),
          MakeEffect("whiteBalance", {{"temperature", 7000}}),
          MakeEffect("contrast", {{"amount", 20}}), MakeEffect("toneRegions", {{"shadows", 30}}),
          MakeEffect("toneCurve",
                     {{"points", 3}, {"x1", 50}, {"y1", 60}, {"x2", 100}, {"y2", 100}}),
          MakeEffect("saturation", {{"amount", 20}}), MakeEffect("vibrance", {{"amount", 20}}),
          MakeEffect("channelMixer", {{"rg", 0.1}}), MakeEffect("blackAndWhite", {{"amount", 100}}),
          MakeEffect("splitToning", {{"shadowHue", 220}, {"shadowSaturation", 30}}),
          MakeEffect("liftGammaGain",
                     {{"slopeRed", 1.05}, {"offsetBlue", 0.02}, {"powerGreen", 0.95}}),
          MakeEffect("vignette", {{"amount", -1}}), MakeEffect("grain", {{"amount", 25}}),
          MakeEffect("gaussianBlur", {{"radius", 0.05}}), MakeEffect("sharpen", {{"amount", 80}}),
          MakeEffect("clarity", {{"amount", 40}}), MakeTable()})
        Register(effect->GetEffectID() + suffix, 1,
                 [=](benchmark::State& state) { RunChain(state, {effect}, depth, isa, 1, 1); });
}

void RegisterFor(Image::Depth depth, Isa isa, int threads)
{
    const std::string suffix = std::string(depth == Image::Depth::Bits16 ? "/16bit/" : "/8bit/") +
                               GetIsaName(isa) + "/threads:" + std::to_string(threads);
    Register("chain5" + suffix, threads, [=](benchmark::State& state) {
        RunChain(state, MakeGradingChain(), depth, isa, threads, 1);
    });
    Register("chain5_blended" + suffix, threads, [=](benchmark::State& state) {
        RunChain(state, MakeGradingChain(), depth, isa, threads, 100);
    });
    Register("blend_tick" + suffix, threads,
             [=](benchmark::State& state) { RunBlend(state, depth, isa, threads); });
    if (threads == 1)
        RegisterSingleEffects(depth, isa, suffix);
}

void RegisterAll()
{
    for (const auto depth : {Image::Depth::Bits8, Image::Depth::Bits16}) {
        Register(depth == Image::Depth::Bits16 ? "copy/16bit" : "copy/8bit", 1,
                 [=](benchmark::State& state) { RunCopy(state, depth); });
        for (const Isa isa : GetSupportedIsas())
            for (const int threads : {1, 2})
                RegisterFor(depth, isa, threads);
    }
}

} // namespace
} // namespace LumetraBench

int main(int argc, char** argv)
{
    LumetraBench::RegisterAll();
    LumetraBench::RegisterPeers();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
