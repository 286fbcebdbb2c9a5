// SPDX-License-Identifier: GPL-2.0-or-later
#include "BenchmarkPictures.h"

#include <gegl.h>

#include <string>

namespace LumetraBench {
namespace {

using LumetraHost::Image;

/// Operations of similar names and amounts: GEGL has its own formulas.
GeglNode* AddChain(GeglNode* graph, GeglNode* source)
{
    GeglNode* const exposure =
        gegl_node_new_child(graph, "operation", "gegl:exposure", "exposure", 0.4, nullptr);
    GeglNode* const balance =
        gegl_node_new_child(graph, "operation", "gegl:color-temperature", "original-temperature",
                            6500.0, "intended-temperature", 7000.0, nullptr);
    GeglNode* const contrast = gegl_node_new_child(graph, "operation", "gegl:brightness-contrast",
                                                   "contrast", 1.15, nullptr);
    GeglNode* const saturation =
        gegl_node_new_child(graph, "operation", "gegl:saturation", "scale", 1.2, nullptr);
    GeglNode* const levels = gegl_node_new_child(graph, "operation", "gegl:levels", "in-low", 0.01,
                                                 "in-high", 0.99, nullptr);
    gegl_node_link_many(source, exposure, balance, contrast, saturation, levels, nullptr);
    return levels;
}

void RunChain(benchmark::State& state, int threads)
{
    const Image& photo = GetPhoto(Image::Depth::Bits8);
    Image target = Image::Allocate(Width, Height, Image::Depth::Bits8);
    g_object_set(gegl_config(), "threads", threads, nullptr);
    const Babl* const format = babl_format("R'G'B'A u8");
    const GeglRectangle whole = {0, 0, Width, Height};
    GeglBuffer* const buffer = gegl_buffer_linear_new_from_data(
        photo.Row(0), format, &whole, static_cast<int>(photo.GetStride()), nullptr, nullptr);
    for (auto iteration : state) {
        GeglNode* const graph = gegl_node_new();
        GeglNode* const source = gegl_node_new_child(graph, "operation", "gegl:buffer-source",
                                                     "buffer", buffer, nullptr);
        GeglNode* const last = AddChain(graph, source);
        gegl_node_blit(last, 1.0, &whole, format, target.Row(0),
                       static_cast<int>(target.GetStride()), GEGL_BLIT_DEFAULT);
        g_object_unref(graph);
    }
    g_object_unref(buffer);
    CountPixels(state);
}

} // namespace

void RegisterGegl()
{
    gegl_init(nullptr, nullptr);
    for (const int threads : {1, 2})
        RegisterProcess("gegl_chain5/8bit/threads:" + std::to_string(threads), threads,
                        [threads](benchmark::State& state) { RunChain(state, threads); });
}

} // namespace LumetraBench
