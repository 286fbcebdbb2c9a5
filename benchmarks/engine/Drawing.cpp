// SPDX-License-Identifier: GPL-2.0-or-later
#include "Drawing.h"

#include "BenchmarkEffects.h"
#include "BenchmarkPictures.h"

#include "engine/run/Blend.h"
#include "engine/run/Renderer.h"

#include <memory>
#include <utility>

namespace LumetraBench {

using namespace LumetraHost;

std::string Task::GetName() const
{
    return effects + (depth == Image::Depth::Bits16 ? "/16bit" : "/8bit");
}

Drawing MakeDrawing(Image::Depth depth, std::function<void(Image& target)> draw)
{
    // A copy avoids fresh memory, whose pages the system would clear in the first run.
    const auto target = std::make_shared<Image>(GetPhoto(depth).Clone());
    return {[target, draw = std::move(draw)] { draw(*target); }, [target] { return *target; }};
}

Drawing MakeOurs(const Task& task, Isa isa)
{
    RenderOptions options;
    options.isa = isa;
    options.threads = task.threads;
    const Image& photo = GetPhoto(task.depth);
    if (task.effects == Blend)
        return MakeDrawing(task.depth, [&photo, options](Image& target) {
            target = Renderer().Interpolate(photo, GetBlendedPicture(photo.GetDepth()), BlendAmount,
                                            options, std::move(target));
        });
    const bool isBlended = task.effects == BlendedChain;
    const auto effects = FindEffects(isBlended ? Chain : task.effects);
    const int amount = isBlended ? BlendAmount : FullEffect;
    return MakeDrawing(task.depth, [&photo, effects, amount, options](Image& target) {
        target = Renderer().Render(photo, effects, amount, options, std::move(target));
    });
}

const Image& GetBlendedPicture(Image::Depth depth)
{
    const auto make = [](Image::Depth wanted) {
        return Renderer().Render(GetPhoto(wanted), FindEffects("exposure"), FullEffect);
    };
    static const Image picture8 = make(Image::Depth::Bits8);
    static const Image picture16 = make(Image::Depth::Bits16);
    return depth == Image::Depth::Bits16 ? picture16 : picture8;
}

} // namespace LumetraBench
