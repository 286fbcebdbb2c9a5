// SPDX-License-Identifier: MIT
// Qt's own judge of models watches the presets model. It is attached once the model is filled, as
// views are: groups are added without a notification, deliberately.
#include "ModelFixture.h"
#include "support/ExpectLog.h"

#include <QAbstractItemModelTester>

#include <memory>

using namespace LumetraTest;

namespace {

/// A warning of the judge fails the test, as any warning does.
class ModelConsistencyTest : public ModelFixture
{
protected:
    ModelConsistencyTest()
    {
        FillAndAttach();
        m_judge = std::make_unique<QAbstractItemModelTester>(
            &model, QAbstractItemModelTester::FailureReportingMode::Warning);
    }

    std::unique_ptr<QAbstractItemModelTester> m_judge;
};

} // namespace

TEST_F(ModelConsistencyTest, holdsWhilePresetsAreAppliedAndTuned)
{
    Set(At(0, 0), Model::AppliedRole, true);
    Set(At(0, 1), Model::AppliedRole, true);
    Set(At(0, 1), Model::IntensityRole, 40);
    Set(At(0, 1), Model::TuneRole, QVariant::fromValue(TuneSettingType::ChangeEnd));
    Set(At(0, 0), Model::TuneRole, QVariant::fromValue(TuneSettingType::Apply));
    auto sliders = Sliders(0, 0);
    for (auto& slider : sliders)
        slider.SetValue(slider.Max());
    Set(At(0, 0), Model::SettingsValuesRole, QVariant::fromValue(sliders));
    Set(At(0, 0), Model::ResetRole, true);
    Set(At(0, 0), Model::SaveChangesRole, true);
    Set(At(0, 0), Model::AppliedRole, false);

    EXPECT_FALSE(IsApplied(0, 0));
}

TEST_F(ModelConsistencyTest, holdsWhilePresetsAreMarkedAndRenamed)
{
    Set(At(0, 0), Model::FavouriteRole, true);
    Set(At(0, 0), Model::PresetNameRole, QStringLiteral("Other"));

    EXPECT_EQ(model.data(At(0, 0), Model::PresetNameRole), QStringLiteral("Other"));
}

/// The judge compares row counts only when rows are announced, so that a saved preset, which is
/// announced as a change of its own row, passes.
TEST_F(ModelConsistencyTest, holdsWhilePresetsAreSavedAndRemoved)
{
    for (int i = 0; i < 5; ++i)
        Set(At(0, 0), Model::SaveAsUserPresetRole, QString::number(i));
    ASSERT_EQ(model.rowCount(Group(2)), 5);

    EXPECT_TRUE(model.removeRows(1, 2, Group(2)));
    EXPECT_TRUE(model.removeRow(0, Group(2)));
    EXPECT_TRUE(model.removeRows(0, 2, Group(2)));
    EXPECT_FALSE(model.removeRow(0, Group(2)));
    EXPECT_EQ(model.rowCount(Group(2)), 0);
}

/// The one thing that the judge refuses is a change without indexes. The model says with it that
/// anything may have changed, and views of presets read it so; the reset that the judge would
/// rather see would close editors and drop the views' selection.
TEST_F(ModelConsistencyTest, isRefusedOnlyTheChangeOfNowhere)
{
    {
        const ExpectLog refused("topLeft.isValid");
        model.ActivatePreset("none", Zorvik::Quindle::ConstEffectList());
        EXPECT_EQ(refused.GetCount(), 1);
    }
    {
        const ExpectLog refused("topLeft.isValid");
        model.SetWorkspaceController(workspace);
        EXPECT_EQ(refused.GetCount(), 1);
    }
    EXPECT_TRUE(model.removeRow(0, Group(0))) << "all else is as before";
}
