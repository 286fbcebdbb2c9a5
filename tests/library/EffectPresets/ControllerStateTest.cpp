// SPDX-License-Identifier: MIT
#include "ControllerFixture.h"

#include "Zorvik/Exception.h"

using namespace LumetraTest;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

const char* const ClickEvent =
    "statistics.SendEvent(\"click\", {effectGroup: \"Film\", effectName: \"Warm\"})";
const char* const ApplyEvent =
    "statistics.SendEvent(\"apply\", {effectGroup: \"Film\", effectName: \"Warm\"})";
const char* const ResetEvent =
    "statistics.SendEvent(\"reset\", {effectGroup: \"Film\", effectName: \"Warm\"})";
const char* const FavouriteEvent =
    "statistics.SendEvent(\"favourite add\", {effectGroup: \"Film\", effectName: \"Warm\"})";

/// Applied, committed, favourite; statistics and the thumbnail.
class ControllerStateTest : public ControllerFixture
{
protected:
    StoredNode Warm() const
    {
        return Bench::Preset("Warm", {Bench::Tone(1.5)}, Bench::Blending(80));
    }

    std::vector<std::string> TakeEvents()
    {
        const auto events = log.GetLines("statistics.");
        log.Clear();
        return events;
    }
};

} // namespace

TEST_F(ControllerStateTest, appliesThenSendsTheClick)
{
    const auto preset = BuildAttached(Warm());
    preset->SetApplied(true, true);
    EXPECT_TRUE(preset->IsApplied());
    const auto calls = TakeHostCalls();
    ASSERT_FALSE(calls.empty());
    EXPECT_EQ(calls.back(), ClickEvent);
    EXPECT_THAT(calls, Contains(testing::StartsWith("drawer.ApplyEffect(")));
}

TEST_F(ControllerStateTest, silentlySetsTheFlagOnly)
{
    const auto preset = BuildAttached(Warm());
    preset->SetApplied(true, false);
    EXPECT_TRUE(preset->IsApplied());
    preset->SetApplied(false, false);
    EXPECT_FALSE(preset->IsApplied());
    EXPECT_THAT(log.Take(), IsEmpty());
}

TEST_F(ControllerStateTest, switchingOffResetsThenSendsTheReset)
{
    const auto preset = BuildAttached(Warm());
    preset->SetApplied(true, true);
    log.Clear();
    preset->SetApplied(false, true);
    EXPECT_FALSE(preset->IsApplied());
    EXPECT_THAT(TakeHostCalls(), ElementsAre("drawer.GetPackageIndex(\"Looks\")",
                                             "reset.ResetPackage(0)", ResetEvent));
}

TEST_F(ControllerStateTest, switchingOffWhatWasNotAppliedDoesNothing)
{
    const auto preset = BuildAttached(Warm());
    preset->SetApplied(false, true);
    EXPECT_THAT(log.Take(), IsEmpty());
}

TEST_F(ControllerStateTest, switchingOffAfterSavingSendsNoResetAndForgetsTheCommit)
{
    const auto preset = BuildAttached(Warm());
    preset->SetApplied(true, true);
    preset->SaveChanges();
    log.Clear();
    preset->SetApplied(false, true);
    EXPECT_THAT(log.Take(), ElementsAre("drawer.GetPackageIndex(\"Looks\")"))
        << "ResetInternal ran, and found the package closed";
    EXPECT_FALSE(preset->m_committed);
}

TEST_F(ControllerStateTest, switchingOffWhatWasNotAppliedForgetsTheCommitToo)
{
    const auto preset = BuildAttached(Warm());
    preset->SaveChanges();
    EXPECT_TRUE(preset->m_committed);
    preset->SetApplied(false, true);
    EXPECT_FALSE(preset->m_committed);
}

TEST_F(ControllerStateTest, applyingAgainForgetsTheCommit)
{
    const auto preset = BuildAttached(Warm());
    preset->SaveChanges();
    preset->SetApplied(true, true);
    EXPECT_FALSE(preset->m_committed);
}

TEST_F(ControllerStateTest, theCommitSurvivesASilentChange)
{
    const auto preset = BuildAttached(Warm());
    preset->SetApplied(true, true);
    preset->SaveChanges();
    preset->SetApplied(false, false);
    EXPECT_TRUE(preset->m_committed);
    preset->SetApplied(true, false);
    EXPECT_TRUE(preset->m_committed);
}

TEST_F(ControllerStateTest, savingCommitsThroughTheEmptyEffectAndLeavesItApplied)
{
    const auto preset = BuildAttached(Warm());
    preset->SetApplied(true, true);
    log.Clear();
    preset->SaveChanges();
    EXPECT_TRUE(preset->IsApplied());
    EXPECT_THAT(log.Take(),
                ElementsAre("drawer.ApplyEffect(empty{id: \"empty\"}, {})", ApplyEvent));
}

TEST_F(ControllerStateTest, drawerOperationsWithoutAWorkspaceThrow)
{
    const auto preset = Build(Warm());
    EXPECT_THROW(preset->SaveChanges(), Zorvik::Exception);
    EXPECT_FALSE(preset->m_committed);
    EXPECT_THROW(preset->SetApplied(true, true), Zorvik::Exception);
    EXPECT_TRUE(preset->IsApplied()) << "the flag is set before";
    EXPECT_THROW(preset->SetApplied(false, true), Zorvik::Exception);
    EXPECT_THROW(preset->SetIntensity(5, true), Zorvik::Exception);
    EXPECT_EQ(preset->GetIntensity(), 5);
}

TEST_F(ControllerStateTest, everySettingOfTheFavouriteMarkSendsItsEvent)
{
    const auto preset = BuildAttached(Warm());
    preset->SetFavourite(true);
    preset->SetFavourite(true);
    preset->SetFavourite(false);
    preset->SetFavourite(false);
    const std::string removed =
        "statistics.SendEvent(\"favourite remove\", {effectGroup: \"Film\", effectName: \"Warm\"})";
    EXPECT_THAT(log.Take(), ElementsAre(FavouriteEvent, FavouriteEvent, removed, removed));
    EXPECT_FALSE(preset->IsFavourite());
}

// The host may ask the preset while it handles an event, or throw.
TEST_F(ControllerStateTest, eventsAreSentWhenTheStateHasChanged)
{
    /// Notes its state at each event.
    class Noting : public OpenController
    {
    public:
        std::vector<std::string> notes;

    protected:
        void TrackEvent(const std::string& eventName) const override
        {
            const_cast<Noting*>(this)->notes.push_back(eventName + (m_applied ? " applied" : "") +
                                                       (m_committed ? " committed" : "") +
                                                       (m_favourite ? " favourite" : ""));
        }
    };
    const boost::intrusive_ptr<Noting> preset(new Noting);
    preset->SetWorkspaceController(workspace);
    preset->SetApplied(true, true);
    preset->SetApplied(false, true);
    preset->SetApplied(true, true);
    preset->SaveChanges();
    preset->SetApplied(true, true);
    preset->SetFavourite(true);
    preset->SetFavourite(false);
    EXPECT_THAT(preset->notes,
                ElementsAre("click applied", "reset", "click applied", "apply applied committed",
                            "click applied committed", "favourite add applied favourite",
                            "favourite remove applied"));
}

TEST_F(ControllerStateTest, unnamedEventsAreNotSent)
{
    const auto preset = BuildAttached(Warm());
    preset->NameNoEvents();
    preset->SetFavourite(true);
    preset->SetApplied(true, true);
    preset->SaveChanges();
    preset->SetApplied(true, true);
    preset->SetApplied(false, true);
    EXPECT_THAT(TakeEvents(), IsEmpty());
    preset->TrackEvent("own event");
    EXPECT_EQ(TakeEvents().size(), 1U);
}

TEST_F(ControllerStateTest, eventsWithoutAWorkspaceAreDropped)
{
    const auto preset = Build(Warm());
    preset->SetFavourite(true);
    EXPECT_TRUE(preset->IsFavourite());
    preset->SetWorkspaceController(workspace);
    workspace.reset();
    preset->TrackEvent("own event");
    EXPECT_THAT(log.Take(), IsEmpty());
}

TEST_F(ControllerStateTest, eventsCarryGroupAndNameAsTheyAre)
{
    const auto preset = BuildAttached(Warm());
    preset->SetName("Renamed");
    preset->SetGroupInfo("Other", true);
    EXPECT_THAT(preset->GetStatisticParamList(),
                ElementsAre(Pair("effectGroup", "Other"), Pair("effectName", "Renamed")));
    EXPECT_TRUE(preset->m_groupEditable);
}

TEST_F(ControllerStateTest, aNewWorkspaceStartsItUnappliedWithItsDefaults)
{
    const auto preset =
        BuildAttached(Bench::Preset("Soft", {Bench::Tone(1, 0.25)}), BiasAndAmount());
    preset->SetApplied(true, true);
    preset->SetResetIndex(7);
    preset->SetFavourite(true);
    auto sliders = preset->GetSettings();
    sliders[0].SetValue(90);
    preset->SetSettingsValues(sliders);
    log.Clear();

    preset->SetWorkspaceController({});
    EXPECT_FALSE(preset->IsApplied());
    EXPECT_THAT(Values(preset->GetSettings()), ElementsAre(25));
    EXPECT_EQ(preset->m_resetIndex, 0xFFFFFFFF);
    EXPECT_TRUE(preset->IsFavourite());
    EXPECT_EQ(preset->GetWorkspaceController(false), nullptr);
    EXPECT_THAT(TakeHostCalls(), IsEmpty());
}

TEST_F(ControllerStateTest, doesNotKeepTheWorkspaceAlive)
{
    const auto preset = BuildAttached(Warm());
    EXPECT_EQ(workspace.use_count(), 1);
}

TEST_F(ControllerStateTest, rendersItsPreviewEffectsForItsThumbnail)
{
    const auto preset =
        BuildAttached({{"name", "Warm"},
                       {"previewCropPolicy", 0},
                       {"previewFitPolicy", 1},
                       {"effects", StoredList{Bench::Tone(1)}},
                       {"settingsPreview", StoredNode{{"effects", StoredList{Bench::Tone(2)}}}}});
    const QImage image = preset->GetImagePreviewInternal(QSize(12, 10), 1);
    EXPECT_EQ(image.size(), QSize(12, 8));
    EXPECT_EQ(image.format(), QImage::Format_RGBA8888_Premultiplied);
    EXPECT_THAT(log.Take(),
                ElementsAre("drawer.RenderPreview(12x10 aspect 1, [tone{gain: 2, bias: 0}] in / "
                            "#none blend 1, 0, 1, 1)",
                            "converter.ToDisplay(12x8)"));
}

TEST_F(ControllerStateTest, hasNoThumbnailWithoutAWorkspaceOrAPhoto)
{
    const auto preset = Build(Warm());
    EXPECT_TRUE(preset->GetImagePreviewInternal(QSize(12, 10), 0).isNull());
    EXPECT_THAT(log.Take(), IsEmpty());
    preset->SetWorkspaceController(workspace);
    workspace->GetDrawer().SetPhotoSize(0, 0);
    EXPECT_TRUE(preset->GetImagePreviewInternal(QSize(12, 10), 0).isNull());
}

TEST_F(ControllerStateTest, neitherDownloadsNorAppliesOnProgressByItself)
{
    const auto preset = BuildAttached(Warm());
    using Base = Zorvik::Lumetra::LumetraPresets::EffectPresetControllerBase;
    EXPECT_FALSE(preset->Base::ApplySettingsOnProgress());
    EXPECT_FALSE(preset->Base::IsDownloadable());
    preset->SetDownloadedResource("somewhere");
    EXPECT_THAT(log.Take(), IsEmpty());
    using Abstract = Zorvik::Lumetra::LumetraPresets::EffectPresetControllerAbstract;
    EXPECT_TRUE(preset->Abstract::ApplySettingsOnProgress());
}

TEST_F(ControllerStateTest, aNameMayBeSetFromItself)
{
    const auto preset = BuildAttached(Warm());
    preset->SetName(preset->GetName());
    EXPECT_EQ(preset->GetName(), "Warm");
}

TEST_F(ControllerStateTest, diesWithItsLastReferenceWithoutTouchingTheWorkspace)
{
    OpenController* raw = BuildAttached(Warm()).detach();
    raw->SetApplied(true, true);
    bool isDead = false;
    QObject::connect(raw, &QObject::destroyed, [&isDead] { isDead = true; });
    log.Clear();
    EXPECT_EQ(raw->AddRef(), 2U);
    EXPECT_EQ(raw->Release(), 1U);
    EXPECT_FALSE(isDead);
    EXPECT_EQ(raw->Release(), 0U);
    EXPECT_TRUE(isDead) << "at once, not deferred";
    EXPECT_THAT(log.Take(), IsEmpty());
    LockDrawer(true);
    LockDrawer(false);
}

TEST_F(ControllerStateTest, aPresetThatDrawsNothingCountsItsReferencesToo)
{
    /// A preset without the drawing part of the library.
    class Bare : public Zorvik::Lumetra::LumetraPresets::EffectPresetControllerAbstract
    {
    public:
        explicit Bare(bool& isDead) : m_isDead(isDead) {}
        ~Bare() override { m_isDead = true; }
        QImage GetPreviewImage() override { return QImage(); }

    protected:
        void ApplyInternal() override {}
        void ResetInternal() override {}

    private:
        bool& m_isDead;
    };
    bool isDead = false;
    Bare* raw = new Bare(isDead);
    EXPECT_EQ(raw->GetRefCount(), 0U);
    EXPECT_EQ(raw->AddRef(), 1U);
    EXPECT_EQ(raw->AddRef(), 2U);
    EXPECT_EQ(raw->GetRefCount(), 2U);
    EXPECT_EQ(raw->Release(), 1U);
    EXPECT_FALSE(isDead);
    EXPECT_EQ(raw->Release(), 0U);
    EXPECT_TRUE(isDead);
}

TEST_F(ControllerStateTest, theLibrariesOwnEventNamesAreEmpty)
{
    /// A controller without names of its own.
    class Nameless : public Zorvik::Lumetra::LumetraPresets::EffectPresetControllerBase
    {
    public:
        Nameless() : EffectPresetControllerBase("Looks") {}
        QImage GetPreviewImage() override { return QImage(); }
    };
    const boost::intrusive_ptr<Nameless> preset(new Nameless);
    preset->SetWorkspaceController(workspace);
    preset->SetApplied(true, true);
    preset->SaveChanges();
    preset->SetFavourite(true);
    preset->SetFavourite(false);
    preset->SetApplied(false, true);
    EXPECT_THAT(TakeEvents(), IsEmpty());
}
