// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "image/PictureArea.h"
#include "threads/CancelToken.h"
#include "threads/ThreadPool.h"

#include "image/Image.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace LumetraHost {

class ColourTable;
struct CutChain;
class PictureFacts;

/// How a picture is rendered. Threads and tile size do not change the pixels; for the instruction
/// set see Isa.
struct RenderOptions
{
    int threads = 0;           ///< below 1: all of the pool
    Isa isa = GetDefaultIsa(); ///< limited to what the processor supports
    int tilePixels = 2048;     ///< 64 to 16384
    /// Where the picture lies; empty: it is the whole one. Spatial effects take the mirror image
    /// for what lies outside of the pixels that they are given, see FindHalo().
    std::optional<PictureArea> area;
    /// Facts of the whole picture below the effects. Null: the source counts as the whole picture,
    /// wherever it lies.
    std::shared_ptr<const PictureFacts> facts = nullptr;
    const CancelToken* cancel = nullptr; ///< may stop the rendering from another thread
};

/// Draws a list of effects on a picture. Holds nothing but the pool, so that several threads may
/// use one renderer. Effects are read while rendering: nobody may change them meanwhile.
///
/// The picture keeps its size, depth, alpha and space. Effects work on the colours of sRGB, those
/// outside of it too, in order and unclamped in between; effects
/// that change nothing and effects that the engine does not know are left out. The result is
/// blended with the source, whose weight is (b - 1) / 254, and rounded once: it is within half a
/// step plus 0.02 (8 bits) or 0.1 (16 bits) of the exact formulas for moderate settings; for what
/// wide Gaussians add to it see GaussianAxis. With b = 255, or nothing to draw, the result is the
/// source itself.
class Renderer
{
public:
    /// `pool` is kept by reference.
    explicit Renderer(ThreadPool& pool = ThreadPool::GetShared());

    /// The rendered picture; null for a null source and when it was cancelled. `recycled` may be a
    /// picture that is needed no more, see AllocateLike().
    Image Render(const Image& source, const Zorvik::Quindle::EffectsSettings& effects,
                 const RenderOptions& options = {}, Image recycled = {}) const;

    /// Blends with `blendAmount`, whatever package the effects come from.
    Image Render(const Image& source, const Zorvik::Quindle::EffectList& effects, int blendAmount,
                 const RenderOptions& options = {}, Image recycled = {}) const;

    /// Draws the stages of a chain that is cut, and fills or uses its frame. Neither `source` is
    /// null nor the blend amount 255: there is nothing to draw then.
    Image Render(const Image& source, const CutChain& cut, int blendAmount,
                 const RenderOptions& options = {}, Image recycled = {}) const;

    /// Draws a table of colours on a picture of 8 bits and blends as Interpolate() does.
    Image Render(const Image& source, std::shared_ptr<const ColourTable> table, int blendAmount,
                 const RenderOptions& options = {}, Image recycled = {}) const;

    /// The blend of two finished pictures of the same size, depth and space, see Blend().
    Image Interpolate(const Image& source, const Image& effect, int blendAmount,
                      const RenderOptions& options = {}, Image recycled = {}) const;

    /// The picture in sRGB: colours outside of it become the nearest value of each channel. The
    /// source itself when it is in sRGB. Null for a null source and when it was cancelled.
    Image ToSrgb(const Image& source, const RenderOptions& options = {}, Image recycled = {}) const
    {
        return Convert(source, nullptr, options, std::move(recycled));
    }
    /// The picture in the space `target`, as ToSrgb() does it. Only for pictures that are in a
    /// space of their own: those in sRGB come back as they are.
    Image Convert(const Image& source, const std::shared_ptr<const RgbSpace>& target,
                  const RenderOptions& options = {}, Image recycled = {}) const;

    /// How many rendered pixels on each side the effects look away from a pixel, at the scale of
    /// `area`: a part that is rendered with that much around it is as it is in the whole picture,
    /// within the error of the Gaussians. 0 without spatial effects.
    static int FindHalo(const Zorvik::Quindle::EffectList& effects, const PictureArea& area);

private:
    ThreadPool* m_pool;
};

} // namespace LumetraHost
