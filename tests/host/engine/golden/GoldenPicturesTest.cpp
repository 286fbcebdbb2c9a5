// SPDX-License-Identifier: GPL-2.0-or-later
// Compares every effect with a stored picture, so that no change of its look goes unseen. After an
// intended one, write the pictures anew and look at them:
//   LUMETRA_WRITE_GOLDEN=1 build/dev/bin/host-engine --gtest_filter='*GoldenPictures*'
// Raise JobFingerprint::DrawingVersion too: files that were exported before are then done anew.
#include "host/engine/EffectExamples.h"
#include "host/engine/TestPictures.h"

#include "engine/effects/EffectKinds.h"
#include "engine/run/Renderer.h"
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <ostream>
#include <set>
#include <vector>

namespace LumetraHost {
namespace {

// The mathematics library of another system may round another way, by one step of 8 bits.
constexpr int Tolerance = 1;

/// One picture of this folder shows an effect at one strength on the photo of this folder. The name
/// is the file's, without its ending.
struct GoldenPicture
{
    std::string name;
    Zorvik::Quindle::EffectPtr effect;
};

/// Gives tests readable names.
void PrintTo(const GoldenPicture& picture, std::ostream* stream)
{
    *stream << picture.name;
}

std::vector<GoldenPicture> MakeGoldenPictures()
{
    std::vector<GoldenPicture> pictures;
    for (const EffectExample& example : MakeEffectExamples()) {
        const std::string& effectID = example.gentle->GetEffectID();
        pictures.push_back({effectID + "-gentle", example.gentle});
        pictures.push_back({effectID + "-strong", example.strong});
    }
    return pictures;
}

QString GetPath(const std::string& name)
{
    return QStringLiteral(LUMETRA_GOLDEN_FOLDER "/%1.png").arg(QString::fromStdString(name));
}

/// The options say that the photo is a part of the sample photo made 240 pixels wide.
RenderOptions MakeOptions()
{
    RenderOptions options;
    options.area = PictureArea::Whole(240, 160);
    options.area->originX = 150;
    options.area->originY = 10;
    return options;
}

int GetLargestDifference(const Image& first, const Image& second)
{
    int largest = 0;
    for (int y = 0; y < first.GetHeight(); ++y)
        for (int x = 0; x < first.GetWidth(); ++x)
            for (int c = 0; c < 4; ++c)
                largest = std::max(largest, std::abs(int(GetChannel(first, x, y, c)) -
                                                     int(GetChannel(second, x, y, c))));
    return largest;
}

class GoldenPictures : public testing::TestWithParam<GoldenPicture>
{
};

INSTANTIATE_TEST_SUITE_P(Effects, GoldenPictures, testing::ValuesIn(MakeGoldenPictures()),
                         [](const auto& test) {
                             std::string name = test.param.name;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

TEST_P(GoldenPictures, areDrawnAsTheyWere)
{
    const Image photo = PhotoReader::Read(GetPath("photo")).image;
    Photo drawn;
    drawn.image = Renderer().Render(photo, MakeSettings({GetParam().effect}), MakeOptions());
    if (qEnvironmentVariableIsSet("LUMETRA_WRITE_GOLDEN"))
        PhotoWriter::Write(GetPath(GetParam().name), drawn);

    const Image expected = PhotoReader::Read(GetPath(GetParam().name)).image;

    ASSERT_EQ(expected.GetWidth(), photo.GetWidth());
    ASSERT_EQ(expected.GetHeight(), photo.GetHeight());
    EXPECT_LE(GetLargestDifference(expected, drawn.image), Tolerance);
    EXPECT_GT(GetLargestDifference(photo, drawn.image), Tolerance) << "the effect shows nothing";
}

TEST(GoldenPicturesFolder, showsEveryEffectTwice)
{
    std::multiset<std::string> shown;
    for (const GoldenPicture& picture : MakeGoldenPictures())
        shown.insert(picture.effect->GetEffectID());
    for (const EffectKind& kind : EffectKinds::GetAll())
        EXPECT_EQ(shown.count(kind.descriptor.effectID), 2u) << kind.descriptor.effectID;
}

} // namespace
} // namespace LumetraHost
