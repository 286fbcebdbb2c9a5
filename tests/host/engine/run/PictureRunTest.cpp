// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"

#include "engine/run/PictureRun.h"
#include "engine/stages/MatrixStage.h"
#include "image/Srgb.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

StagePtr MakeScale(double factor, ColourSpace space)
{
    return std::make_shared<MatrixStage>(ColourMatrix::Diagonal(factor, factor, factor), space,
                                         GetDefaultIsa());
}

/// Draws stages alone; the frame of the cut keeps nothing.
Image DrawStages(const std::vector<StagePtr>& stages, const Image& source)
{
    const Image::Depth depth = source.GetDepth();
    PictureRunForm form;
    form.width = source.GetWidth();
    form.height = source.GetHeight();
    form.depth = depth;
    form.isa = GetDefaultIsa();
    const StageChain before(stages, form.isa, depth);
    const CutChain cut{before, StageChain({}, form.isa, depth, before.GetLastSpace()), nullptr};
    Image target = source.Clone();
    EXPECT_TRUE(PictureRun(cut, form).Draw(source, target, ThreadPool::GetShared(), nullptr));
    return target;
}

TEST(PictureRun, worksInEncodedSpaceWhereStagesAskForIt)
{
    for (const auto depth : {Image::Depth::Bits8, Image::Depth::Bits16}) {
        const Image source = MakeRandomPicture(200, 40, depth, 4);
        const double white = GetWhite(source);
        const double slack = depth == Image::Depth::Bits16 ? 0.2 : 0.02;
        for (const bool endsEncoded : {true, false}) {
            std::vector<StagePtr> stages = {MakeScale(0.5, ColourSpace::Encoded),
                                            MakeScale(1.7, ColourSpace::Linear),
                                            MakeScale(1.2, ColourSpace::Encoded)};
            if (!endsEncoded)
                stages.push_back(MakeScale(0.9, ColourSpace::Linear));
            const Image target = DrawStages(stages, source);

            double largest = 0;
            for (int x = 0; x < 200; ++x) {
                const double half = 0.5 * GetChannel(source, x, 7, 1) / white;
                double encoded = 1.2 * LinearToSrgb(1.7 * SrgbToLinear(half));
                if (!endsEncoded)
                    encoded = LinearToSrgb(0.9 * SrgbToLinear(encoded));
                const double exact = white * std::min(encoded, 1.0);
                largest = std::max(largest, std::abs(exact - GetChannel(target, x, 7, 1)));
            }
            EXPECT_LE(largest, 0.5 + slack) << endsEncoded;
        }
    }
}

} // namespace
} // namespace LumetraHost
