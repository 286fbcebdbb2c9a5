// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ColourMatrix.h"
#include "engine/base/Isa.h"
#include "engine/base/Tile.h"
#include "engine/stages/PictureFacts.h"
#include "image/PictureArea.h"

#include "image/Image.h"

#include <memory>
#include <optional>

namespace LumetraHost {

/// How the numbers in a tile stand for light: proportional to it, or sRGB-encoded.
enum class ColourSpace
{
    Linear,
    Encoded
};

/// How a stage treats a channel. All kinds but Mixed look at nothing but that channel's value.
enum class ChannelWork
{
    Mixed, ///< depends on other channels or on the place
    Light, ///< a product and a sum or so
    Heavy  ///< worth a table
};

/// The conditions for which stages are made.
struct StageContext
{
    Isa isa = Isa::Baseline;
    PictureArea area;
    Image::Depth depth = Image::Depth::Bits16; ///< of the pictures: how exact chains have to be
    std::shared_ptr<const RgbSpace> space = nullptr; ///< of the pictures; null: sRGB
    /// Facts of the whole picture below the effects; while one effect is made ready, of the picture
    /// below that one. Null: nothing is known.
    std::shared_ptr<const PictureFacts> facts = nullptr;
};

/// One effect, ready to run over tiles: its numbers are worked out, its kernel is chosen. Stages
/// are immutable and shared by all threads. Only for effects that need no neighbouring pixels.
class Stage
{
public:
    Stage() = default;
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    virtual ~Stage() = default;

    /// Changes the tile in place. Values may lie outside [0, 1] before and after.
    virtual void Run(const Tile& tile) const = 0;
    /// The space in which the stage expects and leaves the tile.
    virtual ColourSpace GetColourSpace() const { return ColourSpace::Linear; }
    virtual ChannelWork GetChannelWork() const { return ChannelWork::Mixed; }
    /// The matrix when the stage is nothing but one: neighbours in the same space are multiplied
    /// into a single stage.
    virtual std::optional<ColourMatrix> GetMatrix() const { return std::nullopt; }
};

using StagePtr = std::shared_ptr<const Stage>;

} // namespace LumetraHost
