// SPDX-License-Identifier: GPL-2.0-or-later
#include "Peers.h"

#include "BenchmarkEffects.h"
#include "BenchmarkPictures.h"
#include "Measurement.h"

#include "engine/effects/blackandwhite/BlackAndWhiteEffect.h"
#include "engine/effects/channelmixer/ChannelMixerEffect.h"
#include "engine/effects/contrast/ContrastEffect.h"
#include "engine/effects/exposure/ExposureEffect.h"
#include "engine/effects/gaussianblur/GaussianBlurEffect.h"
#include "engine/effects/liftgammagain/LiftGammaGainEffect.h"
#include "engine/effects/saturation/SaturationEffect.h"
#include "engine/effects/sharpen/SharpenEffect.h"
#include "engine/effects/whitebalance/WhiteBalanceEffect.h"
#include "image/Srgb.h"

#include <gegl.h>

#include <array>
#include <cmath>
#include <memory>
#include <stdexcept>
#include <string>

namespace LumetraBench {
namespace {

using namespace LumetraHost;

/// A graph under construction: nodes behind each other.
struct Graph
{
    GeglNode* root;
    GeglNode* last;

    /// std::runtime_error for an operation that this GEGL does not have.
    template <class... Properties>
    void Add(const char* operation, Properties... properties)
    {
        if (!gegl_has_operation(operation))
            throw std::runtime_error(std::string("expected an operation of GEGL, found ") +
                                     operation);
        GeglNode* const node =
            gegl_node_new_child(root, "operation", operation, properties..., nullptr);
        gegl_node_link(last, node);
        last = node;
    }
};

using Steps = void (*)(Graph& graph);

void AddExposure(Graph& graph)
{
    graph.Add("gegl:exposure", "exposure",
              ReadParameters<ExposureParameters>(FindEffect("exposure")).stops);
}

void AddMatrix(Graph& graph, const ColourMatrix& matrix)
{
    const auto& [red, green, blue] = matrix.rows;
    graph.Add("gegl:channel-mixer", "rr-gain", red[0], "rg-gain", red[1], "rb-gain", red[2],
              "gr-gain", green[0], "gg-gain", green[1], "gb-gain", green[2], "br-gain", blue[0],
              "bg-gain", blue[1], "bb-gain", blue[2]);
}

void AddWhiteBalance(Graph& graph)
{
    AddMatrix(graph,
              ReadParameters<WhiteBalanceParameters>(FindEffect("whiteBalance")).GetMatrix());
}

void AddMixer(Graph& graph)
{
    AddMatrix(graph,
              ReadParameters<ChannelMixerParameters>(FindEffect("channelMixer")).GetMatrix());
}

void AddContrast(Graph& graph)
{
    const double exponent =
        ReadParameters<ContrastParameters>(FindEffect("contrast")).GetExponent();
    graph.Add("gegl:gamma", "value", exponent);
    graph.Add("gegl:multiply", "value", std::pow(MiddleGrey, 1 - exponent));
}

/// Lets the following operations, which take values for linear light, work on encoded ones.
void TakeEncoded(Graph& graph)
{
    graph.Add("gegl:cast-format", "input-format", babl_format("R'G'B'A float"), "output-format",
              babl_format("RGBA float"));
}

void GiveEncoded(Graph& graph)
{
    graph.Add("gegl:cast-format", "input-format", babl_format("RGBA float"), "output-format",
              babl_format("R'G'B'A float"));
}

void AddEncodedSaturation(Graph& graph)
{
    AddMatrix(graph, ReadParameters<SaturationParameters>(FindEffect("saturation")).GetMatrix());
}

void AddSaturation(Graph& graph)
{
    TakeEncoded(graph);
    AddEncodedSaturation(graph);
    GiveEncoded(graph);
}

void AddGrey(Graph& graph)
{
    const auto parameters = ReadParameters<BlackAndWhiteParameters>(FindEffect("blackAndWhite"));
    graph.Add("gegl:mono-mixer", "red", parameters.red, "green", parameters.green, "blue",
              parameters.blue);
}

void AddBlur(Graph& graph)
{
    const double sigma =
        GetPixels(ReadParameters<GaussianBlurParameters>(FindEffect("gaussianBlur")).radius);
    graph.Add("gegl:gaussian-blur", "std-dev-x", sigma, "std-dev-y", sigma);
}

void AddSharpen(Graph& graph)
{
    const auto parameters = ReadParameters<SharpenParameters>(FindEffect("sharpen"));
    graph.Add("gegl:unsharp-mask", "std-dev", GetPixels(parameters.radius), "scale",
              parameters.amount / 100);
}

double GetMean(const std::array<double, 3>& values)
{
    return (values[0] + values[1] + values[2]) / 3;
}

/// Uses the mean of the channels' numbers: no operation takes one for each channel.
void AddEncodedLiftGammaGain(Graph& graph)
{
    const auto parameters = ReadParameters<LiftGammaGainParameters>(FindEffect("liftGammaGain"));
    graph.Add("gegl:multiply", "value", GetMean(parameters.GetSlope()));
    graph.Add("gegl:add", "value", GetMean(parameters.GetOffset()));
    graph.Add("gegl:gamma", "value", GetMean(parameters.GetPower()));
}

void AddChain(Graph& graph)
{
    AddExposure(graph);
    AddWhiteBalance(graph);
    AddContrast(graph);
    TakeEncoded(graph);
    AddEncodedSaturation(graph);
    AddEncodedLiftGammaGain(graph);
    GiveEncoded(graph);
}

void Draw(GeglBuffer* source, Steps steps, Image& target)
{
    GeglNode* const root = gegl_node_new();
    GeglNode* const input =
        gegl_node_new_child(root, "operation", "gegl:buffer-source", "buffer", source, nullptr);
    Graph graph{root, input};
    steps(graph);
    const GeglRectangle whole = {0, 0, target.GetWidth(), target.GetHeight()};
    gegl_node_blit(graph.last, 1.0, &whole, babl_format("R'G'B'A u8"), target.Row(0),
                   int(target.GetStride()), GEGL_BLIT_DEFAULT);
    g_object_unref(root);
}

/// The photo in a buffer of its own, cut into its tiles before anything is measured.
std::shared_ptr<GeglBuffer> MakeSource()
{
    const Image& photo = GetPhoto(Image::Depth::Bits8);
    const GeglRectangle whole = {0, 0, photo.GetWidth(), photo.GetHeight()};
    const Babl* const format = babl_format("R'G'B'A u8");
    GeglBuffer* const buffer = gegl_buffer_new(&whole, format);
    gegl_buffer_set(buffer, &whole, 0, format, photo.Row(0), int(photo.GetStride()));
    return {buffer, [](GeglBuffer* used) { g_object_unref(used); }};
}

Drawing DrawSteps(const Task& task, Steps steps)
{
    const std::shared_ptr<GeglBuffer> source = MakeSource();
    return MakeDrawing(task.depth, [source, steps, threads = task.threads](Image& target) {
        g_object_set(gegl_config(), "threads", threads, nullptr);
        Draw(source.get(), steps, target);
    });
}

struct GeglCase
{
    const char* effects;
    const char* remark;
    Steps steps;
};

} // namespace

void RegisterGegl()
{
    // Its matrix of colours is there only for programs under that licence.
    g_object_set(gegl_config(), "application-license", "GPL3", "use-opencl", FALSE, nullptr);
    gegl_init(nullptr, nullptr);
    const GeglCase cases[] = {
        {Chain, "lift-gamma-gain by the means of its numbers", AddChain},
        {"exposure", "", AddExposure},
        {"whiteBalance", "", AddWhiteBalance},
        {"contrast", "", AddContrast},
        {"saturation", "", AddSaturation},
        {"channelMixer", "", AddMixer},
        {"blackAndWhite", "", AddGrey},
        {"gaussianBlur", "", AddBlur},
        {"sharpen", "each channel, ours luma", AddSharpen},
    };
    for (const int threads : {1, 2})
        for (const GeglCase& line : cases)
            RegisterPeer("gegl", {line.effects, Image::Depth::Bits8, threads}, line.remark,
                         [steps = line.steps](const Task& task) { return DrawSteps(task, steps); });
}

} // namespace LumetraBench
