// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/edit/AdjustCommands.h"

#include "FakeEditor.h"

#include "Zorvik/Lumetra/IWorkspaceController.h"
#include "Zorvik/Proc/SettingsEffectEmpty.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"
#include "Zorvik/Quindle/IQuindleDrawer.h"

#include <gmock/gmock.h>

using namespace LumetraAdjust;
using LumetraTest::FakeEditor;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

class AdjustCommandsTest : public testing::Test
{
protected:
    int Count(const char* call) { return static_cast<int>(editor.GetLog().GetLines(call).size()); }

    FakeEditor editor;
    Adjustments adjustments{editor.DescribeEffects()};
    AdjustCommands commands{adjustments, editor};
};

} // namespace

TEST_F(AdjustCommandsTest, aDragIsOneStartManyUpdatesAndOneFinish)
{
    commands.Move("exposure", {{"stops", 0.5}});
    commands.Move("exposure", {{"stops", 1}});
    commands.Move("exposure", {{"stops", 1.5}});
    EXPECT_THAT(editor.GetShown(), ElementsAre(HasSubstr("stops: 1.5")));
    EXPECT_EQ(editor.steps, QStringList());
    commands.Finish(QStringLiteral("Exposure"));

    EXPECT_EQ(Count("painter.StartPainting"), 1);
    EXPECT_EQ(Count("painter.UpdatePainting"), 3);
    EXPECT_EQ(Count("painter.FinishPainting"), 1);
    EXPECT_EQ(Count("drawer.ApplyEffect"), 1) << "the package is opened once";
    EXPECT_THAT(editor.GetShown(), ElementsAre(HasSubstr("stops: 1.5")));
    EXPECT_EQ(editor.steps, QStringList{QStringLiteral("Exposure")});
}

TEST_F(AdjustCommandsTest, anEffectOfThePackageIsPaintedWithoutApplyingAgain)
{
    commands.Set("exposure", {{"stops", 1}}, QStringLiteral("Exposure"));
    editor.GetLog().Clear();

    commands.Set("exposure", {{"stops", 2}}, QStringLiteral("Exposure"));

    EXPECT_EQ(Count("drawer.ApplyEffect"), 0);
    EXPECT_THAT(editor.GetShown(), ElementsAre(HasSubstr("stops: 2")));
}

TEST_F(AdjustCommandsTest, neutralEffectsLeaveThePackage)
{
    commands.Set("exposure", {{"stops", 1}}, QStringLiteral("a"));
    commands.Set("vignette", {{"amount", -1}}, QStringLiteral("b"));
    EXPECT_THAT(editor.GetShown(),
                ElementsAre(AllOf(HasSubstr("exposure"), HasSubstr("vignette"))));

    commands.Set("exposure", {{"stops", 0}}, QStringLiteral("c"));
    EXPECT_THAT(editor.GetShown(),
                ElementsAre(AllOf(Not(HasSubstr("exposure")), HasSubstr("vignette"))));
    commands.Set("vignette", {{"amount", 0}}, QStringLiteral("d"));

    EXPECT_THAT(editor.GetShown(), IsEmpty());
    EXPECT_EQ(editor.steps.size(), 4);
}

TEST_F(AdjustCommandsTest, anotherEffectFinishesThePaintingOfTheFirst)
{
    commands.Move("exposure", {{"stops", 1}});
    commands.Move("vignette", {{"amount", -1}});
    commands.Finish(QStringLiteral("Vignette"));

    EXPECT_EQ(Count("painter.StartPainting"), 2);
    EXPECT_EQ(Count("painter.FinishPainting"), 2);
    EXPECT_THAT(editor.GetShown(),
                ElementsAre(AllOf(HasSubstr("stops: 1"), HasSubstr("amount: -1"))));
}

TEST_F(AdjustCommandsTest, nothingIsDrawnWithoutAPhoto)
{
    editor.photoPath.clear();

    commands.Set("exposure", {{"stops", 1}}, QStringLiteral("Exposure"));

    EXPECT_EQ(Count("drawer."), 0);
    EXPECT_EQ(Count("painter."), 0);
    EXPECT_EQ(editor.steps, QStringList());
    EXPECT_EQ(adjustments.Get("exposure", "stops"), 1);
}

TEST_F(AdjustCommandsTest, aResetTakesThePackageOff)
{
    commands.Set("exposure", {{"stops", 1}}, QStringLiteral("Exposure"));

    commands.ResetAll();

    EXPECT_THAT(editor.GetShown(), IsEmpty());
    EXPECT_TRUE(adjustments.IsNeutral());
    EXPECT_EQ(editor.steps.size(), 2);
}

TEST_F(AdjustCommandsTest, aCommitClosesThePackageWithWhatIsShown)
{
    commands.Move("exposure", {{"stops", 1}});

    commands.Commit();
    commands.Set("exposure", {{"stops", -1}}, QStringLiteral("Exposure"));

    EXPECT_THAT(editor.GetShown(),
                ElementsAre(HasSubstr("stops: 1"), HasSubstr("empty"), HasSubstr("stops: -1")));
}

TEST_F(AdjustCommandsTest, theEditIsDrawnWhenItIsRestored)
{
    adjustments.Set("exposure", {{"stops", 0.7}});
    const auto saved = adjustments.Save();
    adjustments.Reset();

    commands.Restore(saved);

    EXPECT_THAT(editor.GetShown(), ElementsAre(HasSubstr("stops: 0.7")));
    EXPECT_EQ(editor.steps, QStringList());
    editor.GetLog().Clear();
    commands.Move("exposure", {{"stops", 0.8}});
    EXPECT_EQ(Count("drawer.ApplyEffect"), 0) << "the package is there";
}

TEST_F(AdjustCommandsTest, aDragThatACommitOfOthersCutsShortBeginsAnew)
{
    commands.Move("exposure", {{"stops", 1}});
    const Zorvik::Quindle::ConstEffectPtr empty =
        Zorvik::Quindle::EffectSettingsImpl::Create(Zorvik::Proc::SettingsEffectEmpty());
    editor.GetWorkspace()->GetCoreDrawer().ApplyEffect(empty, {});
    commands.Forget();

    commands.Move("exposure", {{"stops", 2}});
    commands.Finish(QStringLiteral("Exposure"));

    EXPECT_THAT(editor.GetShown(),
                ElementsAre(HasSubstr("stops: 1"), HasSubstr("empty"), HasSubstr("stops: 2")));
}
