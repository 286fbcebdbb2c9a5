// SPDX-License-Identifier: GPL-2.0-or-later
// The time that a user waits while a slider is dragged, beside the time that two threads need to
// copy the frame once, and beside programs that do a similar job. All runs are in one process,
// round by round.
//
//   bench_ticks [--rounds=N] [--json=FILE] [--megapixels=N]...
#include "GradingChain.h"
#include "InterleavedRuns.h"
#include "Peers.h"
#include "SliderDrag.h"

#include "EffectPresets/EffectPresetModel.h"
#include "common/ForEachBand.h"
#include "common/OcioEffects.h"
#include "common/Pictures.h"
#include "core/PresetSession.h"
#include "drawer/render/LayerRenderer.h"
#include "drawer/view/LiveView.h"
#include "engine/run/Blend.h"
#include "engine/run/ColourTable.h"
#include "threads/ThreadPool.h"
#include "workspace/WorkspaceController.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace LumetraBench {
namespace {

using namespace LumetraHost;
using Zorvik::Lumetra::LumetraPresets::EffectPresetModel;
using Zorvik::Quindle::EffectsSettings;

constexpr char Copy2[] = "copy, 2 threads";
constexpr char Copy1[] = "copy, 1 thread";

struct Arguments
{
    int rounds = 21;
    std::string json = "bench_ticks.json";
    std::vector<int> megapixels;
};

/// One line of the table: a ratio to a reference, and its limit.
struct Target
{
    std::string name;
    std::string reference;
    double limit;   ///< of the ratio
    bool isAtLeast; ///< else at most
};

SharedSettings MakeSettings(const Zorvik::Quindle::EffectList& effects)
{
    auto settings = std::make_shared<EffectsSettings>(1);
    settings->Effects() = effects;
    return settings;
}

void CopyFrame(const Image& source, Image& target, int threads)
{
    const std::size_t part = source.GetByteCount() / static_cast<std::size_t>(threads);
    ThreadPool::GetShared().ForEach(threads, threads, [&](int i) {
        const std::size_t offset = part * static_cast<std::size_t>(i);
        std::memcpy(target.Row(0) + offset, source.Row(0) + offset, part);
    });
}

/// The preset model with one blended preset of the chain, applied to a photo that a view shows.
class Editor
{
public:
    explicit Editor(const Image& photo) : m_view(m_session.GetWorkspace().GetDrawer())
    {
        QFile file(m_folder.filePath(QStringLiteral("looks.json")));
        if (!file.open(QIODevice::WriteOnly))
            throw std::runtime_error("cannot write the catalogue");
        file.write(Catalogue);
        file.close();
        if (!m_session.Load({file.fileName()}, nullptr).isEmpty())
            throw std::runtime_error("cannot read the catalogue");
        m_session.OpenPhoto(photo);
        m_index = m_session.GetModel().index(0, 0, m_session.GetModel().index(0, 0));
        m_session.GetModel().setData(m_index, true, EffectPresetModel::AppliedRole);
        const QSize size(photo.GetWidth(), photo.GetHeight());
        m_view.SetView({QRectF(QPointF(), QSizeF(size)), size});
        m_view.WaitForFrame();
    }

    void Tick()
    {
        m_intensity = m_intensity == 60 ? 61 : 60;
        const auto serial = m_view.GetFrame().serial;
        m_session.GetModel().setData(m_index, m_intensity, EffectPresetModel::IntensityRole);
        m_view.WaitForFrame();
        if (m_view.GetFrame().serial == serial)
            throw std::runtime_error("a new intensity did not ask for a frame");
    }

private:
    static constexpr char Catalogue[] = R"({"format": "lumetra-catalogue", "version": 1, "groups": [
        {"name": "Looks", "settings": {"intensity": {"type": 1,
            "blendSetting": {"value": 100, "begin": 1, "end": 255}}},
         "items": [{"name": "Bright", "effects": [
            {"effect": {"id": "exposure", "stops": 0.4}},
            {"effect": {"id": "contrast", "amount": 20}},
            {"effect": {"id": "saturation", "amount": 15}}]}]}]})";

    QTemporaryDir m_folder;
    LumetraPlugin::PresetSession m_session{"Looks"};
    LiveView m_view;
    QModelIndex m_index;
    int m_intensity = 60;
};

/// The pictures, drawers and runs of one picture size.
class Scene
{
public:
    Scene(int width, int height)
        : m_photo(MakePhoto(width, height, Image::Depth::Bits8)), m_target(m_photo.Clone()),
          m_editor(m_photo), m_drag(m_photo),
          m_ocio(m_chain.MakeEffects(), Image::Depth::Bits8, OcioEffects::Contrast::Adjustable)
    {
        m_effect = m_renderer.Render(m_photo, m_chain.MakeEffects(), FullEffect);
        m_blendLayers.SetSource(m_photo);
        m_sliderLayers.SetSource(m_photo);
        AddCopies();
        AddBlends();
        AddSliders();
        AddChains();
    }

    void Measure(int rounds)
    {
        CheckBlend();
        m_runs.Measure(rounds);
    }

    const InterleavedRuns& GetRuns() const { return m_runs; }

    double GetOcioPsnr()
    {
        m_ocio.SetContrast(m_chain.contrast);
        DrawWithOcio();
        return GetPsnr(m_target, m_effect);
    }

    /// The strength of the chain that the probe accepts.
    double GetTableStrength() const { return m_tableStrength; }
    double GetTablePsnr()
    {
        DrawTable(m_table);
        const auto effects = m_chain.GetWeaker(m_tableStrength).MakeEffects();
        return GetPsnr(m_target, m_renderer.Render(m_photo, effects, FullEffect));
    }

    double GetQtPsnr() { return GetBlendPsnr(BlendWithQt); }
    double GetOpenCvPsnr() { return GetBlendPsnr(BlendWithOpenCv); }

private:
    static constexpr int Amount = 90;
    static double GetEffectWeight() { return 1 - GetSourceWeight(Amount); }

    void AddCopies()
    {
        m_runs.Add(Copy2, [this] { CopyFrame(m_photo, m_target, 2); });
        m_runs.Add(Copy1, [this] { CopyFrame(m_photo, m_target, 1); });
    }

    void AddBlends()
    {
        const SharedSettings settings = MakeSettings(m_chain.MakeEffects());
        m_runs.Add("blend tick", [this, settings] {
            m_amount = m_amount == Amount ? Amount + 1 : Amount;
            m_frame = m_blendLayers.Render({{settings, m_amount}}, 1);
        });
        m_runs.Add("blend tick, from setData to the frame", [this] { m_editor.Tick(); });
        m_runs.Add("blend, QPainter",
                   [this] { BlendWithQt(m_photo, m_effect, GetEffectWeight(), m_target); });
        m_runs.Add("blend, OpenCV",
                   [this] { BlendWithOpenCv(m_photo, m_effect, GetEffectWeight(), m_target); });
    }

    void AddSliders()
    {
        const char* const names[] = {"exposure", "white balance", "contrast", "saturation",
                                     "lift-gamma-gain"};
        for (std::size_t i = 0; i < 5; ++i)
            m_runs.Add(
                std::string("slider tick, ") + names[i], [this, i] { Touch(i); },
                [this, i] {
                    // The first tick of a drag makes the caches.
                    Touch(i);
                    Touch(i);
                });
        for (std::size_t i = 0; i < 5; ++i)
            AddViewedSlider(i, std::string("slider tick, ") + names[i] + ", to the first frame");
        m_runs.Add("slider tick, OpenColorIO", [this] {
            m_flip = !m_flip;
            m_ocio.SetContrast(m_chain.contrast + (m_flip ? 1 : 0));
            DrawWithOcio();
        });
    }

    /// The user waits for the first frame: the view takes what has proved quicker, and the exact
    /// frame follows.
    void AddViewedSlider(std::size_t position, const std::string& name)
    {
        const auto tick = [this, position] {
            m_drag.Apply(TouchEffects(position));
            m_drag.WaitForFirstFrame();
        };
        const auto warm = [this, tick] {
            for (int i = 0; i < 5; ++i) { // two measure the exact tick, one the table
                tick();
                m_drag.Rest();
            }
        };
        m_runs.Add(name, tick, warm, [this] { m_drag.Rest(); });
    }

    void DrawTable(const std::shared_ptr<const ColourTable>& table)
    {
        m_target = m_renderer.Render(m_photo, table, FullEffect, {}, std::move(m_target));
    }

    void DrawWithOcio()
    {
        ForEachBand(m_photo.GetHeight(), 2, [this](int firstRow, int rows) {
            m_ocio.Draw(m_photo, m_target, firstRow, rows);
        });
    }

    void Touch(std::size_t position)
    {
        m_frame = m_sliderLayers.Render({{MakeSettings(TouchEffects(position)), std::nullopt}}, 1);
    }

    Zorvik::Quindle::EffectList TouchEffects(std::size_t position)
    {
        m_flip = !m_flip;
        return m_chain.MakeTick(position, m_flip);
    }

    void AddChains()
    {
        const auto effects = m_chain.MakeEffects();
        m_runs.Add("chain, exact", [this, effects] {
            m_frame = m_renderer.Render(m_photo, effects, FullEffect, {}, std::move(m_frame));
        });
        AddTables();
        m_runs.Add("chain, OpenColorIO", [this] { DrawWithOcio(); });
        const Zorvik::Quindle::EffectList saturation = {effects[3]};
        RenderOptions one;
        one.threads = 1;
        m_runs.Add("saturation, 1 thread", [this, saturation, one] {
            m_frame = m_renderer.Render(m_photo, saturation, FullEffect, one, std::move(m_frame));
        });
    }

    // A chain that the probe refuses is drawn exactly; its tables are timed with a weaker one.
    void AddTables()
    {
        ThreadPool& pool = ThreadPool::GetShared();
        while (!m_table && m_tableStrength > 0.01) {
            m_table = ColourTable::Make(m_chain.GetWeaker(m_tableStrength).MakeEffects(),
                                        ColourTable::DragPoints, GetDefaultIsa(), pool);
            m_tableStrength *= m_table ? 1 : 0.5;
        }
        if (!m_table)
            throw std::runtime_error("no chain can become a table");
        const auto effects = m_chain.GetWeaker(m_tableStrength).MakeEffects();
        m_runs.Add("chain, table made and drawn", [this, effects, &pool] {
            DrawTable(ColourTable::Make(effects, ColourTable::DragPoints, GetDefaultIsa(), pool));
        });
        m_runs.Add("chain, table drawn", [this] { DrawTable(m_table); });
    }

    void CheckBlend()
    {
        const Image tick = m_blendLayers.Render({{MakeSettings(m_chain.MakeEffects()), Amount}}, 1);
        for (int y = 0; y < m_photo.GetHeight(); ++y)
            for (int i = 0; i < Image::Channels * m_photo.GetWidth(); ++i) {
                const int wanted =
                    (m_photo.Row(y)[i] * (Amount - 1) + m_effect.Row(y)[i] * (255 - Amount) + 127) /
                    254;
                if (static_cast<const Image&>(tick).Row(y)[i] != wanted)
                    throw std::runtime_error("a blend tick is not the integer blend");
            }
    }

    template <class Blend>
    double GetBlendPsnr(Blend blend)
    {
        blend(m_photo, m_effect, GetEffectWeight(), m_target);
        return GetPsnr(m_target, m_renderer.Interpolate(m_photo, m_effect, Amount));
    }

    const GradingChain m_chain;
    const Renderer m_renderer;
    const Image m_photo;
    Image m_effect;
    Image m_target;
    Image m_frame;
    LayerRenderer m_blendLayers{m_renderer, LayerUse::Interaction};
    LayerRenderer m_sliderLayers{m_renderer, LayerUse::Interaction};
    Editor m_editor;
    SliderDrag m_drag;
    OcioEffects m_ocio;
    std::shared_ptr<const ColourTable> m_table;
    double m_tableStrength = 1;
    int m_amount = Amount;
    bool m_flip = false;
    InterleavedRuns m_runs;
};

std::vector<Target> GetTargets(double tickLimit)
{
    return {{"blend tick", Copy2, 1.6, false},
            {"slider tick, exposure, to the first frame", Copy2, tickLimit, false},
            {"slider tick, white balance, to the first frame", Copy2, tickLimit, false},
            {"slider tick, contrast, to the first frame", Copy2, tickLimit, false},
            {"slider tick, saturation, to the first frame", Copy2, tickLimit, false},
            {"slider tick, lift-gamma-gain, to the first frame", Copy2, tickLimit, false},
            {"blend tick, from setData to the frame", Copy2, 4, false},
            {"slider tick, contrast", Copy2, 8, false},
            {"slider tick, saturation", Copy2, 8, false},
            {"slider tick, lift-gamma-gain", Copy2, 8, false},
            {"chain, table made and drawn", Copy2, 13, false},
            {"chain, exact", Copy2, 36, false},
            {"saturation, 1 thread", Copy1, 3, false},
            {"blend, QPainter", "blend tick", 2, true},
            {"blend, OpenCV", "blend tick", 2, true},
            {"slider tick, OpenColorIO", "slider tick, contrast", 40, true},
            {"chain, OpenColorIO", "chain, exact", 45, true},
            {"chain, OpenColorIO", "chain, table made and drawn", 45, true}};
}

/// Copies of the frame that a tick may take: making a table weighs more in small pictures.
double GetTickLimit(int megapixels)
{
    return megapixels < 8 ? 8 : 5.5;
}

void Print(const Scene& scene, const std::string& title, double tickLimit)
{
    constexpr auto Real = InterleavedRuns::RealTime;
    constexpr auto Processor = InterleavedRuns::ProcessorTime;
    const InterleavedRuns& runs = scene.GetRuns();
    std::printf("\n%s; medians\n%-50s %9s %9s %9s %9s\n", title.c_str(), "", "real ms", "cpu ms",
                "x copy2", "cpu");
    for (const auto& run : runs.GetRuns())
        std::printf("%-50s %9.3f %9.3f %9.2f %9.2f\n", run.name.c_str(),
                    runs.GetMedian(run.name, Real), runs.GetMedian(run.name, Processor),
                    runs.GetRatio(run.name, Copy2, Real),
                    runs.GetRatio(run.name, Copy2, Processor));
    for (const Target& target : GetTargets(tickLimit)) {
        const double ratio = runs.GetRatio(target.name, target.reference, Real);
        const bool isMet = target.isAtLeast ? ratio >= target.limit : ratio <= target.limit;
        std::printf("%-50s %6.2f (cpu %6.2f) x %s, wanted at %s %g: %s\n", target.name.c_str(),
                    ratio, runs.GetRatio(target.name, target.reference, Processor),
                    target.reference.c_str(), target.isAtLeast ? "least" : "most", target.limit,
                    isMet ? "met" : "NOT met");
    }
}

std::string WriteJson(const Scene& scene, const std::string& title)
{
    const InterleavedRuns& runs = scene.GetRuns();
    std::ostringstream json;
    json << "  {\"size\": \"" << title << "\", \"runs\": [\n";
    for (std::size_t i = 0; i < runs.GetRuns().size(); ++i) {
        const std::string& name = runs.GetRuns()[i].name;
        json << "    {\"name\": \"" << name
             << "\", \"realMs\": " << runs.GetMedian(name, InterleavedRuns::RealTime)
             << ", \"cpuMs\": " << runs.GetMedian(name, InterleavedRuns::ProcessorTime)
             << ", \"realPerCopy2\": " << runs.GetRatio(name, Copy2, InterleavedRuns::RealTime)
             << ", \"cpuPerCopy2\": " << runs.GetRatio(name, Copy2, InterleavedRuns::ProcessorTime)
             << "}" << (i + 1 < runs.GetRuns().size() ? "," : "") << "\n";
    }
    json << "  ]}";
    return json.str();
}

bool TakeValue(const std::string& argument, const std::string& name, std::string& value)
{
    const std::string prefix = "--" + name + "=";
    if (argument.compare(0, prefix.size(), prefix) != 0)
        return false;
    value = argument.substr(prefix.size());
    return true;
}

// Options of other benchmarks that the common command hands to all are left alone.
Arguments ReadArguments(int count, char** values)
{
    Arguments arguments;
    std::string value;
    for (int i = 1; i < count; ++i) {
        if (TakeValue(values[i], "rounds", value))
            arguments.rounds = std::max(1, std::atoi(value.c_str()));
        else if (TakeValue(values[i], "megapixels", value))
            arguments.megapixels.push_back(std::max(1, std::atoi(value.c_str())));
        else
            TakeValue(values[i], "json", arguments.json);
    }
    if (arguments.megapixels.empty())
        arguments.megapixels = {2, 8};
    return arguments;
}

void Run(const Arguments& arguments)
{
    std::string json;
    for (const int megapixels : arguments.megapixels) {
        // 3 : 2, rows of whole cache lines.
        const int height = static_cast<int>(std::lround(std::sqrt(megapixels * 1e6 / 1.5)));
        const int width = height * 3 / 2 / 16 * 16;
        const std::string title =
            std::to_string(width) + " x " + std::to_string(height) + " pixels";
        Scene scene(width, height);
        scene.Measure(arguments.rounds);
        Print(scene, title, GetTickLimit(megapixels));
        std::printf("PSNR against ours: OpenColorIO %.1f dB, QPainter %.1f dB, OpenCV %.1f dB, "
                    "our table %.1f dB (strength of the chain: %g)\n",
                    scene.GetOcioPsnr(), scene.GetQtPsnr(), scene.GetOpenCvPsnr(),
                    scene.GetTablePsnr(), scene.GetTableStrength());
        json += (json.empty() ? "" : ",\n") + WriteJson(scene, title);
    }
    std::ofstream(arguments.json) << "[\n" << json << "\n]\n";
}

} // namespace
} // namespace LumetraBench

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    try {
        LumetraBench::Run(LumetraBench::ReadArguments(argc, argv));
    } catch (const std::exception& error) {
        std::cerr << "bench_ticks: " << error.what() << "\n";
        return 1;
    }
    return 0;
}
