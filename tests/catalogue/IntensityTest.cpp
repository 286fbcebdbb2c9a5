// SPDX-License-Identifier: GPL-2.0-or-later
// The shipped looks from their lowest intensity to their highest.
#include "CatalogueFixture.h"
#include "PhotoLikePicture.h"
#include "PictureChange.h"
#include "Settings/IntensitySettingType.h"
#include "Settings/TuneSettingType.h"
#include "host/drawer/DrawnPicture.h"

#include <cstring>

using namespace LumetraPlugin;
using LumetraHost::Image;
using LumetraTests::PictureChange;
using Zorvik::Lumetra::LumetraPresets::IntensitySettingType;
using Zorvik::Lumetra::LumetraPresets::TuneSettingType;

namespace {

/// Rows that differ in any byte, alpha included; all of them for pictures of different forms.
int CountOtherRows(const Image& first, const Image& second)
{
    if (first.GetWidth() != second.GetWidth() || first.GetHeight() != second.GetHeight() ||
        first.GetDepth() != second.GetDepth())
        return first.GetHeight();
    const std::size_t bytes = static_cast<std::size_t>(first.GetWidth()) * first.GetBytesPerPixel();
    int others = 0;
    for (int y = 0; y < first.GetHeight(); ++y)
        others += std::memcmp(first.Row(y), second.Row(y), bytes) != 0;
    return others;
}

class IntensityTest : public CatalogueFixture
{
protected:
    std::vector<QModelIndex> PresetsWithIntensity()
    {
        std::vector<QModelIndex> presets;
        for (const QModelIndex& preset : Presets())
            if (preset.data(Model::IntensitySettingTypeRole).value<IntensitySettingType>() !=
                IntensitySettingType::None)
                presets.push_back(preset);
        return presets;
    }

    /// The photo with the preset on it, its intensity moved to `value` as a drag does.
    Image DrawAt(const QModelIndex& preset, int value, const Image& photo)
    {
        session.OpenPhoto(photo);
        auto& model = session.GetModel();
        model.setData(preset, true, Model::AppliedRole);
        model.setData(preset, value, Model::IntensityRole);
        model.setData(preset, QVariant::fromValue(TuneSettingType::ChangeEnd), Model::TuneRole);
        return LumetraHost::DrawWhole(session.GetWorkspace().GetDrawer());
    }

    /// The photo with the preset applied at that intensity from the start.
    Image DrawFrom(const QModelIndex& preset, int value, const Image& photo)
    {
        session.OpenPhoto(photo);
        auto& model = session.GetModel();
        model.setData(preset, value, Model::IntensityRole);
        model.setData(preset, true, Model::AppliedRole);
        return LumetraHost::DrawWhole(session.GetWorkspace().GetDrawer());
    }

    void ExpectPhotoAtLowest(Image::Depth depth)
    {
        const Image photo = LumetraTests::MakePhotoLikePicture(depth);
        for (const QModelIndex& preset : PresetsWithIntensity()) {
            const int lowest = preset.data(Model::IntensityMinRole).toInt();
            EXPECT_EQ(CountOtherRows(DrawAt(preset, lowest, photo), photo), 0)
                << NameOf(preset) << ", dragged to " << lowest;
            EXPECT_EQ(CountOtherRows(DrawFrom(preset, lowest, photo), photo), 0)
                << NameOf(preset) << ", applied at " << lowest;
        }
    }
};

} // namespace

TEST_F(IntensityTest, lowestGivesBackAPhotoOf8BitsToTheBit)
{
    ExpectPhotoAtLowest(Image::Depth::Bits8);
}

TEST_F(IntensityTest, lowestGivesBackAPhotoOf16BitsToTheBit)
{
    ExpectPhotoAtLowest(Image::Depth::Bits16);
}

/// Each tenth of the way must take the picture further from the photo.
TEST_F(IntensityTest, growsWithoutTurningBack)
{
    const Image photo = LumetraTests::MakePhotoLikePicture(Image::Depth::Bits8);
    for (const QModelIndex& preset : PresetsWithIntensity()) {
        const int lowest = preset.data(Model::IntensityMinRole).toInt();
        const int highest = preset.data(Model::IntensityMaxRole).toInt();
        double before = 0;
        for (int tenth = 1; tenth <= 10; ++tenth) {
            const int value = lowest + (highest - lowest) * tenth / 10;
            const double change = PictureChange(photo, DrawAt(preset, value, photo)).mean;
            EXPECT_GT(change, before) << NameOf(preset) << " at " << value;
            before = change;
        }
    }
}

/// Edits without blending, such as those from when some of these looks had a slider of their own,
/// must come back as the whole look.
TEST_F(IntensityTest, editsWithTheWholeLookComeBackAtTheHighest)
{
    const Image photo = LumetraTests::MakePhotoLikePicture(Image::Depth::Bits8);
    auto& model = session.GetModel();
    for (const QModelIndex& preset : PresetsWithIntensity()) {
        const int highest = preset.data(Model::IntensityMaxRole).toInt();
        const Image whole = DrawAt(preset, highest, photo);
        const auto drawn = session.GetWorkspace().GetDrawer().GetOpenPackages();
        ASSERT_EQ(drawn.size(), 1u) << NameOf(preset);

        session.OpenPhoto(photo);
        model.ActivatePreset(preset.data(Model::PresetIdRole).toString().toStdString(), drawn[0]);
        EXPECT_EQ(preset.data(Model::IntensityRole).toInt(), highest) << NameOf(preset);
        model.setData(preset, QVariant::fromValue(TuneSettingType::Apply), Model::TuneRole);
        EXPECT_EQ(CountOtherRows(LumetraHost::DrawWhole(session.GetWorkspace().GetDrawer()), whole),
                  0)
            << NameOf(preset);
    }
}
