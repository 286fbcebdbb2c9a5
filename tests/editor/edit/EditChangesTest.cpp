// SPDX-License-Identifier: GPL-2.0-or-later
// How an edit comes to another photo.
#include "editor/edit/SampleEdits.h"

#include "edit/EditChanges.h"
#include "edits/EditStateFormat.h"
#include "engine/effects/EffectKinds.h"

#include <gmock/gmock.h>

using namespace LumetraTest;
using LumetraEditor::EditParts;
using LumetraHost::EditState;
using testing::ElementsAre;
using testing::IsEmpty;

namespace EditChanges = LumetraEditor::EditChanges;

namespace {

constexpr char Looks[] = "looks";
constexpr char Adjust[] = "adjust";

const EditParts All;
const EditParts OnlyLooks{{QString::fromLatin1(Looks)}, true};
const EditParts AllButLooks{{QString::fromLatin1(Looks)}, false};

class EditChangesTest : public testing::Test
{
protected:
    EditChangesTest() { LumetraHost::RegisterEffects(); }
};

/// The edit as it comes back from a file, which refuses what cannot be stored.
EditState Stored(const EditState& edit)
{
    return LumetraHost::EditStateFormat::FromDocument(
        LumetraHost::EditStateFormat::ToDocument(edit));
}

} // namespace

TEST_F(EditChangesTest, replacingEverythingMakesTheEditThatWasCopied)
{
    const EditState copied = MakeEdit({Committed(Adjust, "a"), Open(Looks, "Golden")});
    const EditState edit =
        MakeEdit({Committed(Looks, "Noir"), Open("other", "o"), Open(Looks, "Fresh")});

    EXPECT_TRUE(EditChanges::Replace(edit, copied, All) == copied);
    EXPECT_TRUE(EditChanges::Replace(EditState(), copied, All) == copied);
    EXPECT_TRUE(EditChanges::Replace(edit, EditState(), All) == EditState());
}

TEST_F(EditChangesTest, aReplacedPartKeepsItsPlace)
{
    const EditState edit = MakeEdit({Committed(Looks, "Noir"), Committed(Adjust, "a"),
                                     Open(Looks, "Fresh"), Open(Adjust, "b")});
    const EditState copied = MakeEdit({Committed(Adjust, "c"), Committed(Looks, "One"),
                                       Committed(Looks, "Two"), Open(Looks, "Golden")});

    const EditState looks = EditChanges::Replace(edit, copied, OnlyLooks);
    EXPECT_THAT(NameLayers(looks),
                ElementsAre("looks One", "looks Two", "adjust a", "looks Golden*", "adjust b*"));
    EXPECT_THAT(NameParts(looks), ElementsAre(Adjust, Looks));
    EXPECT_TRUE(looks.panels.at(QString::fromLatin1(Looks)) ==
                copied.panels.at(QString::fromLatin1(Looks)));
    const EditState others = EditChanges::Replace(edit, copied, AllButLooks);

    EXPECT_THAT(NameLayers(others), ElementsAre("looks Noir", "adjust c", "looks Fresh*"));
    EXPECT_THAT(NameParts(others), ElementsAre(Looks));
}

TEST_F(EditChangesTest, layersOnTopLeaveTheOthersBelowAsTheyAre)
{
    const EditState edit = MakeEdit({Committed(Looks, "Noir"), Open(Adjust, "a")});

    const EditState open = EditChanges::AddOnTop(edit, MakeEdit({Open(Looks, "Golden")}), All);
    EXPECT_THAT(NameLayers(open), ElementsAre("looks Noir", "adjust a*", "looks Golden*"));
    EXPECT_THAT(NameParts(open), ElementsAre(Adjust, Looks));
    const EditState nothing = EditChanges::AddOnTop(edit, EditState(), All);

    EXPECT_TRUE(nothing == edit);
}

TEST_F(EditChangesTest, openLayersThatAreInTheWayAreCommitted)
{
    const EditState edit = MakeEdit({Open(Adjust, "a"), Open(Looks, "Fresh")});

    const EditState onOpen = EditChanges::AddOnTop(edit, MakeEdit({Open(Looks, "Golden")}), All);
    EXPECT_THAT(NameLayers(onOpen), ElementsAre("adjust a", "looks Fresh", "looks Golden*"));
    EXPECT_THAT(NameParts(onOpen), ElementsAre(Looks)) << "a module draws no committed layer";
    const EditState committed =
        EditChanges::AddOnTop(edit, MakeEdit({Committed("other", "o")}), All);

    EXPECT_THAT(NameLayers(committed), ElementsAre("adjust a", "looks Fresh", "other o"));
    EXPECT_THAT(NameParts(committed), IsEmpty());
}

TEST_F(EditChangesTest, everyResultCanBeStored)
{
    auto stranger = Open("other", "o");
    auto settings = *stranger.settings;
    settings.Package().SetPackageName(Looks); // a package of another module's name
    stranger.settings = std::make_shared<Zorvik::Quindle::EffectsSettings>(settings);
    const EditState edit = MakeEdit({Committed(Adjust, "a"), stranger, Open(Adjust, "b")});
    const EditState copied = MakeEdit({Committed(Looks, "Noir"), Open(Looks, "Golden")});

    for (const EditState& result : {EditChanges::Replace(edit, copied, OnlyLooks),
                                    EditChanges::AddOnTop(edit, copied, OnlyLooks),
                                    EditChanges::Follow(edit, EditState(), copied)})
        EXPECT_TRUE(Stored(result) == result);
}

TEST_F(EditChangesTest, aClickOnALookFollowsInThePlaceOfTheLookThatWasThere)
{
    const EditState before = MakeEdit({Open(Adjust, "a")});
    const EditState after = MakeEdit({Open(Adjust, "a"), Open(Looks, "Golden")});
    const EditState edit =
        MakeEdit({Committed(Looks, "Noir"), Open(Looks, "Fresh"), Open(Adjust, "b")});

    const EditState result = EditChanges::Follow(edit, before, after);

    EXPECT_THAT(NameLayers(result), ElementsAre("looks Noir", "looks Golden*", "adjust b*"));
    EXPECT_THAT(NameLayers(EditChanges::Follow(result, after, before)),
                ElementsAre("looks Noir", "adjust b*"))
        << "the look is taken off again";
}

TEST_F(EditChangesTest, aCommitCommitsTheOpenLayersOfTheOthers)
{
    const EditState before = MakeEdit({Open(Looks, "Golden")});
    EditState after = MakeEdit({Committed(Looks, "Golden")});
    after.panels[QString::fromLatin1(Looks)] = LumetraHost::PanelEdit();
    const EditState edit = MakeEdit({Open(Looks, "Golden"), Open(Adjust, "b")});

    const EditState result = EditChanges::Follow(edit, before, after);
    EXPECT_THAT(NameLayers(result), ElementsAre("looks Golden", "adjust b"));
    EXPECT_THAT(NameParts(result), IsEmpty());
    const EditState bare = EditChanges::Follow(EditState(), before, after);

    EXPECT_THAT(NameLayers(bare), IsEmpty()) << "what was put on before is not put on by Apply";
}

TEST_F(EditChangesTest, aLayerThatIsCommittedInTheStepThatMakesItComesAlong)
{
    const EditState before = MakeEdit({Open(Looks, "Golden", 1)});
    const EditState after = MakeEdit({Committed(Looks, "Golden", 2), Committed(Adjust, "c")});
    const EditState edit = MakeEdit({Open(Looks, "Golden", 1)});

    const EditState result = EditChanges::Follow(edit, before, after);

    EXPECT_TRUE(result.layers == after.layers);
}

TEST_F(EditChangesTest, aStepThatChangesCommittedLayersIsNotFollowed)
{
    const EditState before = MakeEdit({Committed(Looks, "Golden")});
    EditState after = before;
    after.layers[0].isOn = false;
    const EditState edit = MakeEdit({Committed(Looks, "Noir")});

    EXPECT_TRUE(EditChanges::Follow(edit, before, after) == edit);
    EXPECT_TRUE(EditChanges::Follow(edit, before, EditState()) == edit);
}

TEST_F(EditChangesTest, aPanelThatShowsNothingCountsAsNone)
{
    EditState edit = MakeEdit({Committed(Looks, "Golden")});
    const EditState plain = edit;
    edit.panels[QString::fromLatin1(Adjust)] = LumetraHost::PanelEdit();

    EXPECT_TRUE(EditChanges::AreSame(edit, plain));
    EXPECT_FALSE(EditChanges::AreSame(edit, EditState()));
    edit.panels[QString::fromLatin1(Adjust)] =
        LumetraHost::PanelEdit(StoredNode{{"name", "a"}}.ToProperty());
    EXPECT_FALSE(EditChanges::AreSame(edit, plain));
}
