// SPDX-License-Identifier: GPL-2.0-or-later
// Costs of photos in Display P3 beside the same pixels as sRGB: drawings of a screen's picture and
// exports of a camera's, all in one process, round by round.
//
//   bench_gamut [--rounds=N] [--json=FILE]
#include "GradingChain.h"
#include "InterleavedRuns.h"
#include "SliderDrag.h"

#include "common/Pictures.h"
#include "engine/effects/EffectKinds.h"
#include "engine/run/Blend.h"
#include "engine/run/Renderer.h"
#include "exporting/Export.h"
#include "image/RgbSpace.h"
#include "photo/PhotoWriter.h"
#include "photo/colour/ColorConversion.h"
#include "photo/colour/ProfileSpaces.h"

#include "Zorvik/Quindle/EffectSettingsImpl.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace LumetraBench {
namespace {

using namespace LumetraHost;
using Zorvik::Quindle::EffectList;
using Zorvik::Quindle::EffectsSettings;

/// A picture as sRGB, and the same pixels as Display P3.
struct Twins
{
    Image srgb;
    Image wide;
};

std::shared_ptr<const RgbSpace> GetDisplayP3()
{
    return ProfileSpaces::Find(ColorConversion::GetDisplayP3Profile(), Image::Depth::Bits8);
}

Twins MakeTwins(int width, int height)
{
    Twins twins{MakePhoto(width, height, Image::Depth::Bits8), {}};
    twins.wide = twins.srgb.Clone();
    twins.wide.SetSpace(GetDisplayP3());
    return twins;
}

EffectList MakeClarity(int amount)
{
    const auto effect = Zorvik::Quindle::EffectSettingsImpl::Create("clarity");
    effect->SetParameter("amount", amount);
    return {effect};
}

class Measurement
{
public:
    Measurement() : m_screen(MakeTwins(3456, 2304)), m_camera(MakeTwins(6000, 4000))
    {
        const EffectList chain = GradingChain().MakeEffects();
        const char* const names[] = {"exposure", "white balance", "contrast", "saturation",
                                     "lift-gamma-gain"};
        for (int threads = 1; threads <= 2; ++threads) {
            for (std::size_t i = 0; i < 5; ++i)
                AddDrawing(names[i], {chain[i]}, threads);
            AddDrawing("five colours", chain, threads);
            AddDrawing("clarity", MakeClarity(40), threads);
            AddExport("export, five colours", chain, threads);
            AddExport("export, nothing", {}, threads);
        }
        for (std::size_t i = 0; i < 5; ++i) {
            const auto tick = [i](bool flip) { return GradingChain().MakeTick(i, flip); };
            AddDrag(names[i], [tick, i](bool flip) { return EffectList{tick(flip)[i]}; });
            AddDrag(std::string(names[i]) + " of five", tick);
        }
        AddDrag("clarity", [](bool flip) { return MakeClarity(flip ? 40 : 42); });
        AddBlendDrag();
    }

    void Measure(int rounds) { m_runs.Measure(rounds); }
    void Print() const;
    void WriteJson(const std::string& path) const;

private:
    static std::string Name(const std::string& name, int threads, bool isWide)
    {
        return name + (threads == 1 ? ", 1 thread" : ", 2 threads") +
               (isWide ? ", Display P3" : ", sRGB");
    }

    /// `run` draws sRGB or, when it is told so, Display P3.
    template <class Run>
    void AddBoth(const std::string& name, int threads, Run run)
    {
        for (const bool isWide : {false, true})
            m_runs.Add(Name(name, threads, isWide), [run, isWide] { run(isWide); });
        m_names.emplace_back(name, threads);
    }

    void AddDrawing(const std::string& name, const EffectList& effects, int threads)
    {
        RenderOptions options;
        options.threads = threads;
        AddBoth("draw " + name, threads, [this, effects, options](bool isWide) {
            m_frame = m_renderer.Render(isWide ? m_screen.wide : m_screen.srgb, effects, FullEffect,
                                        options, std::move(m_frame));
        });
    }

    /// The user waits for the view's first frame while a slider is dragged, on an sRGB screen.
    /// `change` makes the tick, of which neighbours differ. A view uses all threads.
    template <class Change>
    void AddTick(const std::string& name, Change change)
    {
        const std::string title = "tick, " + name;
        for (const bool isWide : {false, true}) {
            SliderDrag& drag = isWide ? m_wideDrag : m_srgbDrag;
            const auto tick = [this, change, &drag] {
                m_flip = !m_flip;
                change(drag, m_flip);
                drag.WaitForFirstFrame();
            };
            const auto warm = [tick, &drag] {
                for (int i = 0; i < 6; ++i) { // some measure the exact tick, one the table
                    tick();
                    if (i < 5)
                        drag.Rest(); // but a pointer that moves on does not wait
                }
            };
            m_runs.Add(Name(title, 2, isWide), tick, warm, [&drag] { drag.Rest(); });
        }
        m_names.emplace_back(title, 2);
    }

    template <class MakeEffects>
    void AddDrag(const std::string& name, MakeEffects makeEffects)
    {
        AddTick(name,
                [makeEffects](SliderDrag& drag, bool flip) { drag.Apply(makeEffects(flip)); });
    }

    void AddBlendDrag()
    {
        AddTick("blend", [](SliderDrag& drag, bool flip) { drag.Blend(flip ? 90 : 91); });
    }

    void AddExport(const std::string& name, const EffectList& effects, int threads)
    {
        EffectsSettings settings(1);
        settings.Effects() = effects;
        ExportRecipe recipe;
        recipe.look = std::make_shared<ExportLook>(std::vector{settings});
        ExportControl control;
        control.threads = threads;
        AddBoth(name, threads, [this, recipe, control](bool isWide) {
            Export().MakeFromFile(isWide ? m_wideFile : m_srgbFile, "in.jpg", recipe, "out.jpg",
                                  control);
        });
    }

    static Bytes MakeFile(const Image& picture)
    {
        Photo photo;
        photo.image = picture;
        photo.metadata.iccProfile = picture.GetSpace() ? picture.GetSpace()->GetProfile()
                                                       : ColorConversion::GetSrgbProfile();
        return PhotoWriter::Encode(photo, PhotoFormat::Jpeg, {}, "in.jpg");
    }

    const Renderer m_renderer;
    const Twins m_screen;
    const Twins m_camera;
    const Bytes m_srgbFile = MakeFile(m_camera.srgb);
    const Bytes m_wideFile = MakeFile(m_camera.wide);
    SliderDrag m_srgbDrag{m_screen.srgb};
    SliderDrag m_wideDrag{m_screen.wide};
    bool m_flip = false;
    Image m_frame;
    Image m_shown;
    InterleavedRuns m_runs;
    std::vector<std::pair<std::string, int>> m_names; ///< and threads
};

void Measurement::Print() const
{
    constexpr auto Real = InterleavedRuns::RealTime;
    std::printf("%-32s %8s %10s %10s %8s %8s\n", "", "threads", "sRGB ms", "P3 ms", "x", "cpu x");
    for (const auto& [name, threads] : m_names) {
        const std::string srgb = Name(name, threads, false);
        const std::string wide = Name(name, threads, true);
        std::printf("%-32s %8d %10.2f %10.2f %8.2f %8.2f\n", name.c_str(), threads,
                    m_runs.GetMedian(srgb, Real), m_runs.GetMedian(wide, Real),
                    m_runs.GetRatio(wide, srgb, Real),
                    m_runs.GetRatio(wide, srgb, InterleavedRuns::ProcessorTime));
    }
}

void Measurement::WriteJson(const std::string& path) const
{
    std::ofstream json(path);
    json << "[\n";
    for (std::size_t i = 0; i < m_names.size(); ++i) {
        const auto& [name, threads] = m_names[i];
        const std::string srgb = Name(name, threads, false);
        const std::string wide = Name(name, threads, true);
        json << "  {\"name\": \"" << name << "\", \"threads\": " << threads
             << ", \"srgbMs\": " << m_runs.GetMedian(srgb, InterleavedRuns::RealTime)
             << ", \"p3Ms\": " << m_runs.GetMedian(wide, InterleavedRuns::RealTime)
             << ", \"ratio\": " << m_runs.GetRatio(wide, srgb, InterleavedRuns::RealTime)
             << ", \"cpuRatio\": " << m_runs.GetRatio(wide, srgb, InterleavedRuns::ProcessorTime)
             << "}" << (i + 1 < m_names.size() ? "," : "") << "\n";
    }
    json << "]\n";
}

void Run(const std::vector<std::string>& arguments)
{
    int rounds = 7;
    std::string path = "bench_gamut.json";
    for (const std::string& argument : arguments) {
        if (argument.rfind("--rounds=", 0) == 0)
            rounds = std::max(1, std::atoi(argument.c_str() + 9));
        else if (argument.rfind("--json=", 0) == 0)
            path = argument.substr(7);
    }
    RegisterEffects();
    Measurement measurement;
    measurement.Measure(rounds);
    measurement.Print();
    measurement.WriteJson(path);
}

} // namespace
} // namespace LumetraBench

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    try {
        LumetraBench::Run({argv + 1, argv + argc});
    } catch (const std::exception& error) {
        std::cerr << "bench_gamut: " << error.what() << "\n";
        return 1;
    }
    return 0;
}
