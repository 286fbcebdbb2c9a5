// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"
#include "host/lut/LutFiles.h"

#include "engine/effects/EffectKinds.h"
#include "engine/run/Renderer.h"
#include "lut/LookExport.h"
#include "lut/LutFormat.h"
#include "lut/LutReader.h"
#include "lut/LutWriter.h"

#include "Zorvik/Exception.h"

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectsSettings;

EffectsSettings MakeLook(int blendAmount)
{
    return MakeSettings(
        {MakeEffect("exposure", {{"stops", 0.2}}),
         MakeEffect("toneCurve",
                    {{"points", 3}, {"y0", 4}, {"x1", 50}, {"y1", 56}, {"x2", 100}, {"y2", 96}}),
         MakeEffect("splitToning", {{"shadowHue", 210},
                                    {"shadowSaturation", 20},
                                    {"highlightHue", 40},
                                    {"highlightSaturation", 25}})},
        blendAmount);
}

std::string ErrorOf(const EffectsSettings& look, int size)
{
    try {
        LookExport::MakeTable(look, size);
    } catch (const Zorvik::Exception& error) {
        return error.what();
    }
    return "no error";
}

TEST_F(LutFiles, drawAnExportedLookLikeTheLook)
{
    const Image source = MakeRandomPicture(200, 80, Image::Depth::Bits8, 31);
    for (const int blendAmount : {1, 100}) {
        const EffectsSettings look = MakeLook(blendAmount);
        const QByteArray text = LutWriter::ToCubeFile(LookExport::MakeTable(look, 65),
                                                      QStringLiteral("My \"look\"\nof today"));
        const auto looks = LutReader::Read(Write("look.cube", text));

        const Image expected = Renderer().Render(source, look);
        const Image result = Renderer().Render(source, MakeSettings({looks[0].effect}));

        int largest = 0;
        for (int y = 0; y < 80; ++y)
            for (int x = 0; x < 200; ++x)
                for (int c = 0; c < 3; ++c)
                    largest = std::max(largest, std::abs(int(GetChannel(expected, x, y, c)) -
                                                         int(GetChannel(result, x, y, c))));
        EXPECT_LE(largest, 1) << blendAmount;
        EXPECT_TRUE(text.startsWith("TITLE \"My 'look' of today\"\nLUT_3D_SIZE 65\n"));
    }
}

TEST(LookExport, namesTheEffectsThatDoNotFitIntoATable)
{
    auto look = MakeLook(1);
    look.Effects().push_back(MakeEffect("vignette", {{"amount", -1}}));
    look.Effects().push_back(MakeEffect("grain", {{"amount", 10}}));
    look.Effects().push_back(MakeEffect("gaussianBlur", {{"radius", 2}}));
    look.Effects().push_back(MakeEffect("vignette", {{"amount", 1}}));
    EXPECT_EQ(ErrorOf(look, 17), "expected effects of colour alone, which fit into a table, found "
                                 "\"vignette\", \"grain\", \"gaussianBlur\"");
}

TEST(LookExport, passesOverEffectsOfThePlaceThatChangeNothing)
{
    auto look = MakeLook(1);
    look.Effects().push_back(MakeEffect("vignette", {}));
    look.Effects().push_back(MakeEffect("grain", {{"amount", 0}}));
    EXPECT_EQ(ErrorOf(look, 9), "no error");
}

TEST(LookExport, leavesOutWhatDoesNotFitWhereThatIsAskedFor)
{
    auto look = MakeLook(100);
    const auto& effects = look.Effects();
    look.Effects().insert(effects.begin(), MakeEffect("vignette", {{"amount", -1}}));
    look.Effects().push_back(MakeEffect("dehaze", {{"amount", 20}}));
    look.Effects().push_back(MakeEffect("clarity", {{"amount", 20}}));
    EXPECT_EQ(LookExport::FindUnfitEffects(look),
              (std::vector<std::string>{"vignette", "dehaze", "clarity"}));

    const auto colours = LookExport::TakeColours(look);

    EXPECT_EQ(look.Effects().size(), 6u);
    EXPECT_EQ(LookExport::MakeTable(colours, 9).values,
              LookExport::MakeTable(MakeLook(100), 9).values);
    EXPECT_FALSE(LookExport::ChangesNothing(colours));
}

TEST(LookExport, tellsWhenNothingRemains)
{
    const auto place = MakeSettings(
        {MakeEffect("vignette", {{"amount", -1}}), MakeEffect("exposure", {{"stops", 0}})});
    EXPECT_FALSE(LookExport::ChangesNothing(place));
    EXPECT_TRUE(LookExport::ChangesNothing(LookExport::TakeColours(place)));
    EXPECT_TRUE(LookExport::ChangesNothing(MakeLook(255)));
}

TEST(LookExport, refusesSizesOutOfRange)
{
    EXPECT_EQ(ErrorOf(MakeLook(1), 1), "expected a size from 2 to 129, found 1");
    EXPECT_EQ(ErrorOf(MakeLook(1), 130), "expected a size from 2 to 129, found 130");
}

} // namespace
} // namespace LumetraHost
