// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetSession.h"
#include "host/drawer/DrawnPicture.h"

#include "EffectPresets/EffectPresetModel.h"
#include "Settings/TuneSettingType.h"
#include "core/PresetControllerFactory.h"
#include "image/Image.h"
#include "storage/JsonDocument.h"
#include "workspace/WorkspaceController.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace LumetraPlugin;
using LumetraHost::Image;
using Zorvik::Lumetra::LumetraPresets::EffectPresetModel;
using Zorvik::Lumetra::LumetraPresets::TuneSettingType;

namespace {

constexpr char Catalogue[] = R"({"format": "lumetra-catalogue", "version": 1, "groups": [
    {"name": "Looks", "settings": {"intensity": {"type": 1, "blendSetting": {"value": 100}}},
     "items": [
        {"name": "Bright", "effects": [{"effect": {"id": "exposure", "stops": 1}}]},
        {"name": "Broken", "effects": [{"effect": {"id": "no such effect"}}]},
        {"name": "Grey", "effects": [{"effect": {"id": "saturation", "amount": -100}}]}]}]})";

Image Gradient(int width, int height)
{
    Image image = Image::Allocate(width, height, Image::Depth::Bits8);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            std::uint8_t* pixel = image.Row(y) + 4 * x;
            pixel[0] = static_cast<std::uint8_t>(200 * x / width);
            pixel[1] = static_cast<std::uint8_t>(200 * y / height);
            pixel[2] = 90;
            pixel[3] = 255;
        }
    }
    return image;
}

class PresetSessionTest : public testing::Test
{
protected:
    void SetUp() override
    {
        file.setFileName(folder.filePath(QStringLiteral("looks.json")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(Catalogue);
        file.close();
        EXPECT_EQ(session.Load({file.fileName()}, nullptr), QStringList());
    }

    QModelIndex Preset(int row)
    {
        return session.GetModel().index(row, 0, session.GetModel().index(0, 0));
    }

    void Set(const QModelIndex& index, const QVariant& value, int role)
    {
        session.GetModel().setData(index, value, role);
    }

    Image Result() { return LumetraHost::DrawWhole(session.GetWorkspace().GetDrawer()); }

    QTemporaryDir folder;
    QFile file;
    PresetSession session{"Looks"};
    const Image photo = Gradient(64, 48);
};

} // namespace

TEST_F(PresetSessionTest, loadsWhatIsGoodAndReportsTheRest)
{
    ASSERT_EQ(session.GetModel().rowCount(session.GetModel().index(0, 0)), 2);
    EXPECT_EQ(Preset(1).data(EffectPresetModel::PresetNameRole), QStringLiteral("Grey"));
    EXPECT_TRUE(session.GetModel().GetUserPresetNames().isEmpty());
    ASSERT_EQ(session.GetReports().size(), 1U);
    EXPECT_EQ(session.GetReports()[0].path, "groups[0]/items[1]/effects[0]/effect/id");
}

TEST_F(PresetSessionTest, namesFilesThatCannotBeUsed)
{
    PresetSession other("Looks");
    const QString missing = folder.filePath(QStringLiteral("missing.json"));

    EXPECT_EQ(other.Load({missing, file.fileName()}, nullptr), QStringList{missing});
    EXPECT_EQ(other.GetModel().rowCount(), 2);
}

TEST_F(PresetSessionTest, appliesAPresetThroughTheModel)
{
    session.OpenPhoto(photo);
    EXPECT_TRUE(HaveSamePixels(Result(), photo));

    Set(Preset(0), true, EffectPresetModel::AppliedRole);
    EXPECT_FALSE(HaveSamePixels(Result(), photo));

    session.GetModel().ApplyCurrentChanges(false);
    EXPECT_TRUE(HaveSamePixels(Result(), photo));
}

TEST_F(PresetSessionTest, keepsOnePackageHoweverOftenPresetsReplaceEachOther)
{
    session.OpenPhoto(photo);
    for (const int row : {0, 1, 0, 1})
        Set(Preset(row), true, EffectPresetModel::AppliedRole);

    EXPECT_EQ(session.GetWorkspace().GetDrawer().GetOpenPackages().size(), 1U);
    EXPECT_FALSE(Preset(0).data(EffectPresetModel::AppliedRole).toBool());
}

TEST_F(PresetSessionTest, givesTheSourceBackAtTheLowestBlendingIntensity)
{
    session.OpenPhoto(photo);
    Set(Preset(0), true, EffectPresetModel::AppliedRole);
    Set(Preset(0), 1, EffectPresetModel::IntensityRole);
    Set(Preset(0), QVariant::fromValue(TuneSettingType::ChangeEnd), EffectPresetModel::TuneRole);

    EXPECT_TRUE(HaveSamePixels(Result(), photo));
}

TEST_F(PresetSessionTest, startsAnotherPhotoUnappliedWithTheCataloguesValues)
{
    session.OpenPhoto(photo);
    Set(Preset(0), true, EffectPresetModel::AppliedRole);
    Set(Preset(0), 40, EffectPresetModel::IntensityRole);
    const Image next = Gradient(32, 80);

    session.OpenPhoto(next);

    EXPECT_FALSE(session.GetModel().HasUnsavedChanges());
    EXPECT_EQ(Preset(0).data(EffectPresetModel::IntensityRole).toInt(), 100);
    EXPECT_TRUE(HaveSamePixels(Result(), next));
}

TEST_F(PresetSessionTest, hasNoPictureWithoutAPhoto)
{
    session.OpenPhoto(photo);
    session.ClosePhoto();

    EXPECT_TRUE(Result().IsNull());
    EXPECT_TRUE(Preset(0).data(EffectPresetModel::PreviewImageRole).value<QImage>().isNull());
}

TEST_F(PresetSessionTest, previewsEachPresetOnThePhoto)
{
    session.GetFactory().SetPreviewOptions({QSize(32, 24), false});
    session.OpenPhoto(photo);

    const auto bright = Preset(0).data(EffectPresetModel::PreviewImageRole).value<QImage>();
    const auto grey = Preset(1).data(EffectPresetModel::PreviewImageRole).value<QImage>();

    EXPECT_EQ(bright.size(), QSize(32, 24));
    EXPECT_NE(bright, grey);
    EXPECT_TRUE(HaveSamePixels(Result(), photo));
}
