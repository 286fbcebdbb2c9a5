// SPDX-License-Identifier: GPL-2.0-or-later
// The list of layers of one edit, changed by its user.
#include "editor/edit/SampleEdits.h"

#include "edit/EditChanges.h"
#include "edit/LayerChanges.h"
#include "edits/EditStateFormat.h"
#include "engine/effects/EffectKinds.h"

#include <gmock/gmock.h>

#include <vector>

using namespace LumetraTest;
using LumetraEditor::EditParts;
using LumetraHost::EditState;
using LumetraHost::PanelEdit;
using testing::ElementsAre;
using testing::IsEmpty;

namespace EditChanges = LumetraEditor::EditChanges;
namespace LayerChanges = LumetraEditor::LayerChanges;

namespace {

constexpr char Looks[] = "looks";
constexpr char Adjust[] = "adjust";

class LayerChangesTest : public testing::Test
{
protected:
    LayerChangesTest() { LumetraHost::RegisterEffects(); }
};

EditState Stored(const EditState& edit)
{
    return LumetraHost::EditStateFormat::FromDocument(
        LumetraHost::EditStateFormat::ToDocument(edit));
}

const PanelEdit& PartOf(const EditState& edit, const char* module)
{
    return edit.panels.at(QString::fromLatin1(module));
}

/// A look and an adjustment that are open, on a closed look.
EditState Sample()
{
    return MakeEdit({Committed(Looks, "Noir"), Open(Looks, "Fresh"), Open(Adjust, "a")});
}

} // namespace

TEST_F(LayerChangesTest, aLowerLayerOpensAndThoseAboveClose)
{
    const EditState opened = LayerChanges::Open(Sample(), 0);

    EXPECT_THAT(NameLayers(opened), ElementsAre("looks Noir*", "looks Fresh", "adjust a"));
    EXPECT_EQ(opened.CountCommitted(), 0U);
    EXPECT_EQ(opened.CountAbove(), 2U);
    EXPECT_THAT(NameParts(opened), ElementsAre(Looks));
    EXPECT_TRUE(Stored(opened) == opened);
}

TEST_F(LayerChangesTest, aLayerThatClosesKeepsThePartThatOpensItAgain)
{
    const EditState sample = Sample();
    const EditState closed = LayerChanges::CloseAll(sample);
    EXPECT_THAT(NameParts(closed), IsEmpty());

    const EditState opened = LayerChanges::Open(Stored(closed), 2);
    EXPECT_TRUE(PartOf(opened, Adjust) == PartOf(sample, Adjust)) << "as in the file";
    const EditState both = LayerChanges::Open(opened, 1);

    EXPECT_THAT(NameLayers(both), ElementsAre("looks Noir", "looks Fresh*", "adjust a*"))
        << "neighbours of other modules stay open";
    EXPECT_TRUE(PartOf(both, Looks) == PartOf(sample, Looks));
}

TEST_F(LayerChangesTest, aLayerWithoutAPartOpensFromWhatItDraws)
{
    const EditState opened = LayerChanges::Open(Sample(), 0);

    const auto part = PartOf(opened, Looks).MakeProperty();
    const auto* const preset = part->Find("preset");
    ASSERT_NE(preset, nullptr);
    EXPECT_EQ(std::get<std::string>(*preset), "Noir");
    EXPECT_NE(part->Find("effects"), nullptr);
    EXPECT_NE(part->Find("blend"), nullptr);
}

TEST_F(LayerChangesTest, aLayerThatIsOffIsOnWhenItOpens)
{
    EditState sample = Sample();
    sample.layers[0].isOn = false;

    EXPECT_TRUE(LayerChanges::Open(sample, 0).layers[0].isOn);
}

TEST_F(LayerChangesTest, aLayerThatIsTakenAwayTakesItsPartAlong)
{
    const EditState withoutLook = LayerChanges::Remove(Sample(), 1);
    EXPECT_THAT(NameLayers(withoutLook), ElementsAre("looks Noir", "adjust a*"));
    EXPECT_THAT(NameParts(withoutLook), ElementsAre(Adjust));
    const EditState withoutClosed = LayerChanges::Remove(Sample(), 0);

    EXPECT_THAT(NameLayers(withoutClosed), ElementsAre("looks Fresh*", "adjust a*"));
    EXPECT_THAT(NameParts(withoutClosed), ElementsAre(Adjust, Looks));
}

TEST_F(LayerChangesTest, aMovedLayerStaysOpenAndPartedOnesClose)
{
    EXPECT_THAT(NameLayers(LayerChanges::Move(Sample(), 0, 2)),
                ElementsAre("looks Fresh*", "adjust a*", "looks Noir"));
    EXPECT_THAT(NameLayers(LayerChanges::Move(Sample(), 1, 2)),
                ElementsAre("looks Noir", "adjust a*", "looks Fresh*"));
    const EditState parted = LayerChanges::Move(Sample(), 2, 0);
    EXPECT_THAT(NameLayers(parted), ElementsAre("adjust a*", "looks Noir", "looks Fresh"));
    EXPECT_THAT(NameParts(parted), ElementsAre(Adjust));
    const EditState between = LayerChanges::Move(Sample(), 0, 1);

    EXPECT_THAT(NameLayers(between), ElementsAre("looks Fresh", "looks Noir", "adjust a*"));
    EXPECT_TRUE(Stored(between) == between);
}

TEST_F(LayerChangesTest, aPositionWithoutALayerChangesNothing)
{
    const EditState sample = Sample();
    for (const EditState& edit :
         {LayerChanges::Open(sample, 3), LayerChanges::Remove(sample, 3),
          LayerChanges::Move(sample, 3, 0), LayerChanges::Move(sample, 0, 3)})
        EXPECT_TRUE(edit == sample);
}

TEST_F(LayerChangesTest, layersAboveAnOpenOneStayThereWhenAnEditIsCopied)
{
    const EditState opened = LayerChanges::Open(Sample(), 0);

    EXPECT_THAT(NameLayers(EditChanges::Replace(EditState(), opened, EditParts())),
                ElementsAre("looks Noir", "looks Fresh", "adjust a"));
    EXPECT_THAT(
        NameLayers(EditChanges::AddOnTop(opened, MakeEdit({Open(Looks, "Golden")}), EditParts())),
        ElementsAre("looks Noir", "looks Fresh", "adjust a", "looks Golden*"));
}

TEST_F(LayerChangesTest, aStepBelowOtherLayersFollowsInTheOpenLayerOfOtherPhotos)
{
    const EditState before = LayerChanges::Open(Sample(), 0);
    EditState after = before;
    after.layers[0] = Open(Looks, "Golden");
    const EditState edit = MakeEdit({Committed(Adjust, "b"), Open(Looks, "Warm")});

    EXPECT_THAT(NameLayers(EditChanges::Follow(edit, before, after)),
                ElementsAre("adjust b", "looks Golden*"));
    EXPECT_THAT(NameLayers(EditChanges::Follow(before, before, after)),
                ElementsAre("looks Golden*", "looks Fresh", "adjust a"))
        << "a photo whose lower layer is open, too";
    const EditState closed = LayerChanges::CloseAll(before);
    EXPECT_THAT(NameLayers(EditChanges::Follow(edit, before, closed)),
                ElementsAre("adjust b", "looks Warm"))
        << "what lies above comes to no other photo";
    EXPECT_TRUE(EditChanges::Follow(edit, Sample(), before) == edit)
        << "opening a layer is for one photo";
}
