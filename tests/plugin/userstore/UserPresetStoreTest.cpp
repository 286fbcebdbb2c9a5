// SPDX-License-Identifier: GPL-2.0-or-later
#include "StoreFixture.h"

#include "Settings/SliderSetting.h"
#include "Zorvik/Exception.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace LumetraTest {
namespace {

using Zorvik::Lumetra::LumetraPresets::EffectPresetModel;
using Zorvik::Lumetra::LumetraPresets::SliderSetting;

class UserPresetStoreTest : public testing::Test
{
protected:
    QString Path() const { return m_folder.filePath(QStringLiteral("lumetra/presets.json")); }

    void Write(const QByteArray& content)
    {
        QDir().mkpath(m_folder.filePath(QStringLiteral("lumetra")));
        QFile file(Path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QByteArray Content() const
    {
        QFile file(Path());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QTemporaryDir m_folder;
};

TEST_F(UserPresetStoreTest, showsASavedPresetAfterARestart)
{
    StoreProgram(Path()).SaveAs(QStringLiteral("Mine"));
    StoreProgram program(Path());
    EXPECT_EQ(program.Names(), QStringList(QStringLiteral("Mine")));
    EXPECT_EQ(program.Model().data(program.Preset(1, 0), EffectPresetModel::IntensityRole), 80);
    EXPECT_TRUE(program.Store().GetReports().empty());
}

TEST_F(UserPresetStoreTest, showsARenameAfterARestart)
{
    {
        StoreProgram program(Path());
        program.SaveAs(QStringLiteral("Mine"));
        program.Model().setData(program.Preset(1, 0), QStringLiteral("Änderung"),
                                EffectPresetModel::PresetNameRole);
        program.Save();
    }
    EXPECT_EQ(StoreProgram(Path()).Names(), QStringList(QStringLiteral("Änderung")));
}

TEST_F(UserPresetStoreTest, showsARemovalAfterARestart)
{
    {
        StoreProgram program(Path());
        program.SaveAs(QStringLiteral("One"));
        program.SaveAs(QStringLiteral("Two"));
        program.Model().removeRows(0, 1, program.Model().index(1, 0));
        program.Save();
    }
    EXPECT_EQ(StoreProgram(Path()).Names(), QStringList(QStringLiteral("Two")));
}

TEST_F(UserPresetStoreTest, showsFavouritesOfBothGroupsAfterARestart)
{
    {
        StoreProgram program(Path());
        program.SaveAs(QStringLiteral("Mine"));
        program.Model().setData(program.Preset(1, 0), true, EffectPresetModel::FavouriteRole);
        program.Model().setData(program.Preset(0, 2), true, EffectPresetModel::FavouriteRole);
        program.Save();
        program.Model().setData(program.Preset(1, 0), false, EffectPresetModel::FavouriteRole);
        program.Save();
    }
    StoreProgram program(Path());
    EXPECT_EQ(program.Model().data(program.Preset(1, 0), EffectPresetModel::FavouriteRole), false);
    EXPECT_EQ(program.Model().data(program.Preset(0, 2), EffectPresetModel::FavouriteRole), true);
}

TEST_F(UserPresetStoreTest, showsTheIntensityAtTheMomentOfSaving)
{
    {
        StoreProgram program(Path());
        program.SaveAs(QStringLiteral("Mine"));
        const auto intensity = EffectPresetModel::IntensityRole;
        // Without a workspace nothing can be drawn, so the drag is made on the controller's copy.
        EXPECT_THROW(program.Model().setData(program.Preset(1, 0), 35, intensity),
                     Zorvik::Exception);
        EXPECT_EQ(program.Model().data(program.Preset(1, 0), intensity), 35);
        program.Save();
    }
    StoreProgram program(Path());
    EXPECT_EQ(program.Model().data(program.Preset(1, 0), EffectPresetModel::IntensityRole), 35);
}

TEST_F(UserPresetStoreTest, showsTunedSliderValuesOfASavedCopyAfterARestart)
{
    {
        StoreProgram program(Path());
        const auto role = EffectPresetModel::SettingsValuesRole;
        auto sliders =
            program.Model().data(program.Preset(0, 0), role).value<SliderSetting::List>();
        ASSERT_EQ(sliders.size(), 1u);
        sliders[0].SetValue(60);
        EXPECT_THROW(
            program.Model().setData(program.Preset(0, 0), QVariant::fromValue(sliders), role),
            Zorvik::Exception);
        program.SaveAs(QStringLiteral("Tuned"));
    }
    StoreProgram program(Path());
    const auto sliders = program.Model()
                             .data(program.Preset(1, 0), EffectPresetModel::SettingsValuesRole)
                             .value<SliderSetting::List>();
    ASSERT_EQ(sliders.size(), 1u);
    EXPECT_EQ(sliders[0].Value(), 60);
}

TEST_F(UserPresetStoreTest, keepsTheEditsOfTwoProgramsAndResurrectsNothing)
{
    StoreProgram(Path()).SaveAs(QStringLiteral("Old"));
    StoreProgram one(Path());
    StoreProgram two(Path());
    one.SaveAs(QStringLiteral("One"));
    two.Model().removeRows(0, 1, two.Model().index(1, 0));
    two.SaveAs(QStringLiteral("Two"));
    one.SaveAs(QStringLiteral("More"));

    const QStringList expected{QStringLiteral("One"), QStringLiteral("Two"),
                               QStringLiteral("More")};
    EXPECT_EQ(StoreProgram(Path()).Names(), expected);
}

TEST_F(UserPresetStoreTest, writesNothingWhenNothingChanged)
{
    StoreProgram program(Path());
    program.Save();
    EXPECT_FALSE(QFile::exists(Path()));
}

TEST_F(UserPresetStoreTest, loadsTheGoodEntriesReportsTheBadAndWritesThemBack)
{
    Write(R"({
  "UserPresets": {"items": [
    {"name": "Good", "id": "a", "mood": {"deep": [1, 2.50]}},
    {"name": 7, "id": "b"},
    "text",
    {"name": "Odd", "id": "c", "intensity": {"type": 2, "sliderSetting": {"begin": 0, "end": 1,
      "variables": [{"effectID": "tone", "setting": "gain", "begin": 0, "end": 1}]}}},
    {"name": "Missing plug-in", "id": "d", "effects": [{"effect": {"id": "rain", "drops": 3}}]}]},
  "Favourites": [{"group": "Looks", "id": "looks.soft"}, 3, {"group": 4}]
})");
    StoreProgram program(Path());
    const QStringList expected{QStringLiteral("Good"), QStringLiteral("Missing plug-in")};
    EXPECT_EQ(program.Names(), expected);
    EXPECT_EQ(program.Model().data(program.Preset(0, 0), EffectPresetModel::FavouriteRole), true);

    const auto reports = program.Store().GetReports();
    ASSERT_EQ(reports.size(), 5u);
    EXPECT_NE(reports[0].find("presets.json:4:"), std::string::npos) << reports[0];
    EXPECT_NE(reports[0].find("UserPresets/items[1]/name: expected string"), std::string::npos)
        << reports[0];
    EXPECT_NE(reports[1].find("presets.json:5:5: UserPresets/items[2]: expected node"),
              std::string::npos)
        << reports[1];
    EXPECT_NE(reports[2].find("which the intensity slider drives, found none"), std::string::npos)
        << reports[2];
    EXPECT_NE(reports[3].find("presets.json:9:58: Favourites[1]"), std::string::npos) << reports[3];

    program.SaveAs(QStringLiteral("New"));
    const QByteArray written = Content();
    for (const char* kept : {"\"mood\"", "2.50", "\"name\": 7", "\"text\"", "\"Odd\"", "\"drops\"",
                             "\"group\": 4", "\"New\""})
        EXPECT_TRUE(written.contains(kept)) << kept << "\n" << written.constData();
}

TEST_F(UserPresetStoreTest, readsButDoesNotWriteTheFileOfANewerProgram)
{
    const QByteArray newer =
        R"({"format": "lumetra-user-presets", "version": 3, "items": [{"name": "A"}]})";
    Write(newer);
    StoreProgram program(Path());
    EXPECT_EQ(program.Names(), QStringList(QStringLiteral("A")));
    EXPECT_THROW(program.SaveAs(QStringLiteral("B")), Zorvik::Exception);
    EXPECT_EQ(Content(), newer);
}

TEST_F(UserPresetStoreTest, triesAgainWhatCouldNotBeSaved)
{
    StoreProgram program(Path());
    program.SaveAs(QStringLiteral("One"));
    const QString lock = Path() + QStringLiteral(".lock");
    ASSERT_TRUE(QDir().mkpath(lock)); // nothing can take a lock that is a folder
    EXPECT_THROW(program.SaveAs(QStringLiteral("Two")), Zorvik::Exception);
    ASSERT_TRUE(QDir().rmdir(lock));
    program.SaveAs(QStringLiteral("Three"));
    const QStringList expected{QStringLiteral("One"), QStringLiteral("Two"),
                               QStringLiteral("Three")};
    EXPECT_EQ(StoreProgram(Path()).Names(), expected);
}

} // namespace
} // namespace LumetraTest
