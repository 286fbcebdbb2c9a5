// SPDX-License-Identifier: GPL-2.0-or-later
// Effects that look at the whole picture, in exports that never have it whole.
#include "ExportSamples.h"

#include "host/engine/ReferenceHaze.h"
#include "host/engine/TestPictures.h"
#include "host/photo/PhotoSamples.h"

#include "drawer/render/LayerRenderer.h"
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"

#include <gtest/gtest.h>

using namespace LumetraHost;
using namespace LumetraTest;

namespace {

Bytes MakeHazyJpeg(int width, int height)
{
    Photo photo;
    photo.image = MakeHazyPicture(width, height, Image::Depth::Bits8, 0.8);
    return PhotoWriter::Encode(photo, PhotoFormat::Jpeg, {}, "hazy");
}

Packages MakeDehazed()
{
    return {MakeSettings({MakeEffect("exposure", {{"stops", -0.3}})}, 60),
            MakeSettings({MakeEffect("contrast", {{"amount", 20}}),
                          MakeEffect("dehaze", {{"amount", 70}}),
                          MakeEffect("clarity", {{"amount", 20}})},
                         40),
            MakeSettings({MakeEffect("dehaze", {{"amount", -30}})})};
}

/// A table stands for all effects below the haze.
Packages MakeTabledAndDehazed()
{
    auto packages = MakeColourRun();
    packages.front().Effects().push_back(MakeEffect("dehaze", {{"amount", 70}}));
    return packages;
}

class WholePictureExports : public testing::TestWithParam<int>
{
};

INSTANTIATE_TEST_SUITE_P(Threads, WholePictureExports, testing::Values(1, 2, 4));

TEST_P(WholePictureExports, streamTheFileOfTheWholePhoto)
{
    for (const auto& [width, height] : {std::pair{1300, 801}, {300, 900}, {40, 30}, {1, 700}}) {
        const Bytes jpeg = MakeHazyJpeg(width, height);
        ASSERT_TRUE(CanStream(jpeg));
        for (const Packages& packages : {MakeDehazed(), MakeTabledAndDehazed()})
            for (const int longestSide : {0, 200}) {
                ExportRecipe recipe = MakeRecipe(packages, PhotoFormat::Png);
                recipe.longestSide = longestSide;
                EXPECT_EQ(Convert(jpeg, recipe, GetParam()).file, ConvertPhoto(jpeg, recipe).file)
                    << width << " x " << height << ", " << longestSide;
            }
    }
}

TEST(WholePictureExport, showsWhatTheCanvasShows)
{
    const Photo photo = PhotoReader::Decode(MakeHazyJpeg(1300, 801), "hazy.jpg");
    const Packages packages = MakeDehazed();
    const Renderer renderer;
    LayerRenderer canvas(renderer);
    canvas.SetSource(photo.image);
    std::vector<Layer> layers;
    for (const auto& package : packages)
        layers.push_back({std::make_shared<Zorvik::Quindle::EffectsSettings>(package), {}});

    const Bytes file =
        Export().MakeFromPhoto(photo, MakeRecipe(packages, PhotoFormat::Png), "out").file;

    EXPECT_TRUE(HaveSamePixels(PhotoReader::Decode(file, "out.png").image,
                               canvas.Render(layers, layers.size())));
}

TEST(WholePictureExport, canBeCancelledWhileThePhotoIsReadFirst)
{
    CancelToken cancel;
    cancel.Cancel();
    ExportControl control;
    control.cancel = &cancel;
    const Bytes jpeg = MakeHazyJpeg(1300, 801);
    EXPECT_TRUE(Export()
                    .MakeFromFile(jpeg, "hazy", MakeRecipe(MakeDehazed()), "out", control)
                    .file.empty());
}

} // namespace
