// SPDX-License-Identifier: MIT
#include "ModelFixture.h"

#include "Zorvik/Exception.h"

#include <QUuid>

#include <limits>

using namespace LumetraTest;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Saving presets under new names and removing them; group 2 is the user's.
class ModelEditingTest : public ModelFixture
{
protected:
    ModelEditingTest() { FillAndAttach(); }

    void Save(const QModelIndex& index, const QString& name)
    {
        EXPECT_FALSE(Set(index, Model::SaveAsUserPresetRole, name));
    }

    void SaveMany(int count)
    {
        for (int i = 0; i < count; ++i)
            Save(At(0, 0), QString::number(i));
        log.Clear();
    }

    QStringList Names() const { return model.GetUserPresetNames(); }
};

} // namespace

TEST_F(ModelEditingTest, savingUnderANewNameAppendsToTheUserGroup)
{
    Save(At(0, 0), QStringLiteral("M\u00e4rz"));
    EXPECT_THAT(TakeCalls(), ElementsAre("factory.CopyController(\"Warm\")",
                                         "preset(Warm).SetName(\"M\xC3\xA4rz\")",
                                         "preset(M\xC3\xA4rz).SetWorkspaceController(workspace)",
                                         "preset(M\xC3\xA4rz).SetGroupInfo(\"User presets\", true)",
                                         "model.dataChanged(2/0, 2/0, [268])"));
    EXPECT_EQ(model.rowCount(Group(2)), 1);
    const QModelIndex saved = At(2, 0);
    EXPECT_EQ(model.data(saved, 256), QStringLiteral("M\u00e4rz"));
    EXPECT_FALSE(QUuid(model.data(saved, 257).toString()).isNull());
    EXPECT_EQ(model.data(saved, 269), true);
    EXPECT_EQ(model.data(saved, 261), 80);
    EXPECT_EQ(model.data(At(0, 0), 256), QStringLiteral("Warm")) << "the source stays";
}

TEST_F(ModelEditingTest, savesIntoTheFirstEditableGroup)
{
    PresetBench bench;
    bench.ParseGroup("Fixed", {Preset("A", {})});
    bench.ParseGroup("Own", {Preset("B", {})}, {{"editable", true}});
    bench.ParseUserData();
    bench.Set(bench.At(0, 0), Model::SaveAsUserPresetRole, QStringLiteral("New"));
    EXPECT_THAT(
        ModelText(bench.model, {256}),
        ElementsAre("\"Fixed\"", "  \"A\"", "\"Own\"", "  \"B\"", "  \"New\"", "\"User presets\""));
}

TEST_F(ModelEditingTest, aSavedPresetIsNotRegisteredUntilTheNextAttachment)
{
    Save(At(0, 0), QStringLiteral("New"));
    EXPECT_THAT(log.GetLines("registry."), IsEmpty());
    EXPECT_EQ(workspace->GetRegistry().GetPresets().size(), 3U);
    Attach();
    EXPECT_EQ(workspace->GetRegistry().GetPresets().size(), 4U);
}

TEST_F(ModelEditingTest, aSavedPresetStartsUnappliedWithTheTunedSliders)
{
    auto sliders = Sliders(0, 1);
    sliders.at(1).SetValue(90);
    Set(At(0, 1), Model::SettingsValuesRole, QVariant::fromValue(sliders));
    Set(At(0, 1), Model::AppliedRole, true);
    Save(At(0, 1), QStringLiteral("New"));
    EXPECT_FALSE(IsApplied(2, 0));
    EXPECT_TRUE(IsApplied(0, 1));
    EXPECT_EQ(Sliders(2, 0).at(1).Value(), 90);
    Set(At(2, 0), Model::ResetRole, QVariant());
    EXPECT_EQ(Sliders(2, 0).at(1).Value(), 90) << "these are its defaults";
}

TEST_F(ModelEditingTest, aSavedPresetAppliesOnItsOwn)
{
    Save(At(0, 0), QStringLiteral("New"));
    Set(At(0, 0), Model::IntensityRole, 20);
    Set(At(2, 0), Model::AppliedRole, true);
    const auto applied = log.GetLines("drawer.ApplyEffect(");
    ASSERT_EQ(applied.size(), 1U);
    EXPECT_NE(applied[0].find("blend 52"), std::string::npos) << applied[0];
}

TEST_F(ModelEditingTest, savingWithoutAnEditableGroupThrowsAndLosesTheCopy)
{
    PresetBench bench;
    bench.ParseGroup("Film", {Preset("Warm", {Tone(1)})});
    try {
        bench.Set(bench.At(0, 0), Model::SaveAsUserPresetRole, QStringLiteral("New"));
        FAIL();
    } catch (const Zorvik::Exception& error) {
        EXPECT_STREQ(error.what(), "User preset group not found.");
        EXPECT_EQ(error.GetFile(), "EffectPresets/EffectPresetModel");
        EXPECT_EQ(error.GetLine(), 462);
        EXPECT_NE(error.GetFunction().find("EffectPresetModel::GetCustomGroup("), std::string::npos)
            << error.GetFunction();
    }
    EXPECT_THAT(ModelText(bench.model, {256}), ElementsAre("\"Film\"", "  \"Warm\""));
}

TEST_F(ModelEditingTest, savingAUserPresetCopiesIt)
{
    Save(At(0, 0), QStringLiteral("One"));
    Save(At(2, 0), QStringLiteral("Two"));
    EXPECT_EQ(Names(), (QStringList{QStringLiteral("One"), QStringLiteral("Two")}));
}

TEST_F(ModelEditingTest, namesMayRepeat)
{
    Save(At(0, 0), QStringLiteral("Same"));
    Save(At(0, 0), QStringLiteral("Same"));
    EXPECT_EQ(Names(), (QStringList{QStringLiteral("Same"), QStringLiteral("Same")}));
    EXPECT_NE(model.data(At(2, 0), 257), model.data(At(2, 1), 257));
}

// A growing sequence moves its slots, to which indexes point.
TEST_F(ModelEditingTest, persistentIndexesGoOnReadingTheirPresetWhileOthersAreSaved)
{
    Save(At(0, 0), QStringLiteral("Mine"));
    const QPersistentModelIndex bound = At(2, 0);
    const QPersistentModelIndex group = Group(2);
    const QPersistentModelIndex other = At(0, 1);
    for (int i = 0; i < 20; ++i) {
        Save(At(0, 0), QString::number(i));
        ASSERT_EQ(IndexText(bound), "2/0") << i;
        ASSERT_EQ(bound.data(256).toString(), QStringLiteral("Mine")) << i;
        ASSERT_EQ(group.data(256).toString(), QStringLiteral("User presets")) << i;
        ASSERT_EQ(other.data(256).toString(), QStringLiteral("Soft")) << i;
    }
    EXPECT_EQ(model.rowCount(group), 21);
}

TEST_F(ModelEditingTest, savingFromAPersistentIndexOfTheGrowingGroupIsHarmless)
{
    Save(At(0, 0), QStringLiteral("Mine"));
    const QPersistentModelIndex bound = At(2, 0);
    for (int i = 0; i < 20; ++i)
        Save(bound, QString::number(i));
    EXPECT_EQ(bound.data(256).toString(), QStringLiteral("Mine"));
    Set(bound, Model::AppliedRole, true);
    EXPECT_TRUE(IsApplied(2, 0));
}

TEST_F(ModelEditingTest, removesExactlyTheRows)
{
    SaveMany(5);
    EXPECT_TRUE(model.removeRows(1, 1, Group(2)));
    EXPECT_THAT(log.Take(),
                ElementsAre("model.rowsAboutToBeRemoved(2, 1..1)", "model.rowsRemoved(2, 1..1)"));
    EXPECT_EQ(Names().join(QLatin1Char(' ')), QStringLiteral("0 2 3 4"));

    EXPECT_TRUE(model.removeRows(1, 2, Group(2)));
    EXPECT_THAT(log.Take(),
                ElementsAre("model.rowsAboutToBeRemoved(2, 1..2)", "model.rowsRemoved(2, 1..2)"));
    EXPECT_EQ(Names().join(QLatin1Char(' ')), QStringLiteral("0 4"));

    EXPECT_TRUE(model.removeRows(0, 2, Group(2)));
    EXPECT_EQ(Names(), QStringList());
}

TEST_F(ModelEditingTest, removingReleasesTheController)
{
    /// Notes the last controller that it made.
    class WatchingFactory : public TestFactory
    {
    public:
        using TestFactory::TestFactory;

        ControllerPtr CreateController(const std::string& kind) override
        {
            last = TestFactory::CreateController(kind);
            return last;
        }

        ControllerPtr last;
    };
    const auto watching = std::make_shared<WatchingFactory>(log);
    Model own(watching);
    own.ParseGroup("Film", StoredList{Preset("A", {})}.ToCollection(), nullptr);
    EXPECT_EQ(watching->last->GetRefCount(), 2U) << "the slot holds one reference";
    own.removeRows(0, 1, own.index(0, 0, QModelIndex()));
    EXPECT_EQ(watching->last->GetRefCount(), 1U);
}

TEST_F(ModelEditingTest, persistentIndexesFollowARemoval)
{
    SaveMany(4);
    const QPersistentModelIndex before = At(2, 0);
    const QPersistentModelIndex removed = At(2, 1);
    const QPersistentModelIndex after = At(2, 3);
    model.removeRows(1, 1, Group(2));
    EXPECT_EQ(before.data(256).toString(), QStringLiteral("0"));
    EXPECT_FALSE(removed.isValid());
    EXPECT_EQ(IndexText(after), "2/2");
    EXPECT_EQ(after.data(256).toString(), QStringLiteral("3"));
}

TEST_F(ModelEditingTest, groupsAreNeverRemoved)
{
    EXPECT_FALSE(model.removeRows(0, 1, QModelIndex()));
    EXPECT_EQ(model.rowCount(QModelIndex()), 3);
    EXPECT_THAT(log.Take(), IsEmpty());
}

TEST_F(ModelEditingTest, refusesRangesThatTheGroupDoesNotHave)
{
    SaveMany(3);
    constexpr int highest = std::numeric_limits<int>::max();
    const std::pair<int, int> ranges[] = {
        {-1, 1}, {0, 0},       {0, -1},      {0, 4}, {3, 1},
        {2, 2},  {1, highest}, {highest, 1}, {4, 0}, {highest, highest}};
    for (const auto& [row, count] : ranges)
        EXPECT_FALSE(model.removeRows(row, count, Group(2))) << row << ", " << count;
    EXPECT_EQ(model.rowCount(Group(2)), 3);
    EXPECT_THAT(log.Take(), IsEmpty()) << "refused before anything was announced";
}

TEST_F(ModelEditingTest, doesNotLookAtEditability)
{
    EXPECT_TRUE(model.removeRows(0, 1, Group(0)));
    EXPECT_THAT(Text({256}), ElementsAre("\"Film\"", "  \"Soft\"", "\"Plain\"", "  \"Bare\"",
                                         "\"User presets\""));
}

TEST_F(ModelEditingTest, removingAnAppliedPresetTouchesNoPicture)
{
    Save(At(0, 0), QStringLiteral("Mine"));
    Set(At(2, 0), Model::AppliedRole, true);
    log.Clear();
    model.removeRows(0, 1, Group(2));
    EXPECT_THAT(TakeOutside(),
                ElementsAre("model.rowsAboutToBeRemoved(2, 0..0)", "model.rowsRemoved(2, 0..0)"));
    EXPECT_FALSE(model.HasUnsavedChanges());
}
