// SPDX-License-Identifier: MIT
#include "ModelFixture.h"

#include "Settings/IntensitySettingType.h"
#include "Zorvik/Exception.h"

#include <QImage>

using namespace LumetraTest;
using testing::ElementsAre;
using testing::IsEmpty;
using Zorvik::Lumetra::LumetraPresets::IntensitySettingType;

namespace {

/// Makes the indexes that a view may still hold after rows have gone.
class IndexMaker : public PresetBench::Model
{
public:
    using EffectPresetModel::EffectPresetModel;

    /// Points at the group of `inside`, with another row.
    QModelIndex WithRow(const QModelIndex& inside, int row) const
    {
        return createIndex(row, 0, inside.internalPointer());
    }

    /// Points at nothing, so that it reads as a group.
    QModelIndex Nowhere(int row) const { return createIndex(row, 0, nullptr); }
};

/// Answers of data(), and changes by setData() that neither remove nor save presets.
class ModelRolesTest : public ModelFixture
{
protected:
    ModelRolesTest() { FillAndAttach(); }

    void ExpectHandled(const QModelIndex& index, int role, const QVariant& value)
    {
        EXPECT_FALSE(Set(index, role, value)) << "setData is always false";
    }
};

} // namespace

TEST_F(ModelRolesTest, theNumbersAreFixed)
{
    EXPECT_EQ(Model::PresetNameRole, 256);
    EXPECT_EQ(Model::PresetIdRole, 257);
    EXPECT_EQ(Model::AppliedRole, 258);
    EXPECT_EQ(Model::SaveChangesRole, 259);
    EXPECT_EQ(Model::PreviewImageRole, 260);
    EXPECT_EQ(Model::IntensityRole, 261);
    EXPECT_EQ(Model::IntensityMinRole, 262);
    EXPECT_EQ(Model::IntensityMaxRole, 263);
    EXPECT_EQ(Model::IntensitySettingTypeRole, 264);
    EXPECT_EQ(Model::TuneRole, 265);
    EXPECT_EQ(Model::SettingsValuesRole, 266);
    EXPECT_EQ(Model::DefaultSettingsValuesRole, 267);
    EXPECT_EQ(Model::SaveAsUserPresetRole, 268);
    EXPECT_EQ(Model::EditableRole, 269);
    EXPECT_EQ(Model::FavouriteRole, 270);
    EXPECT_EQ(Model::PopularRole, 271);
    EXPECT_EQ(Model::ResetRole, 272);
    EXPECT_EQ(Model::AppStoreIdRole, 273);
    EXPECT_EQ(Model::DownloadedResourceRole, 274);
    EXPECT_EQ(Model::DownloadableRole, 275);
}

TEST_F(ModelRolesTest, aPresetAnswersByItsTable)
{
    ParseGroup("Shop",
               {Preset("W\xC3\xA4rme", {Tone(1)}, Blending(80))
                    .Set("id", "shop.1")
                    .Set("popular", true)
                    .Set("controller", "download")},
               {{"editable", true}, {"appStoreId", StoredNode{{"id", "store.9"}}}});
    const QModelIndex index = At(3, 0);
    EXPECT_EQ(model.data(index, 256), QStringLiteral("W\u00e4rme"));
    EXPECT_EQ(model.data(index, 257), QStringLiteral("shop.1"));
    EXPECT_EQ(model.data(index, 258), false);
    EXPECT_EQ(model.data(index, 261), 80);
    EXPECT_EQ(model.data(index, 262), 1);
    EXPECT_EQ(model.data(index, 263), 100);
    EXPECT_EQ(model.data(index, 264), QVariant::fromValue(IntensitySettingType::Blending));
    EXPECT_STREQ(model.data(index, 264).typeName(),
                 "Zorvik::Lumetra::LumetraPresets::IntensitySettingType");
    EXPECT_EQ(model.data(index, 266).userType(), qMetaTypeId<SliderSetting::List>());
    EXPECT_EQ(model.data(index, 267).userType(), qMetaTypeId<SliderSetting::List>());
    EXPECT_EQ(model.data(index, 269), true);
    EXPECT_EQ(model.data(index, 270), false);
    EXPECT_EQ(model.data(index, 271), true);
    EXPECT_EQ(model.data(index, 273), QStringLiteral("store.9"));
    EXPECT_EQ(model.data(index, 275), true);
    for (const int role : {259, 265, 268, 272, 274, 255, 276, 0, -1, int(Qt::DisplayRole),
                           int(Qt::DecorationRole), int(Qt::EditRole), int(Qt::ToolTipRole)})
        EXPECT_FALSE(model.data(index, role).isValid()) << role;
}

TEST_F(ModelRolesTest, aPresetsImageIsItsControllersAffair)
{
    const QImage image = model.data(At(0, 0), 260).value<QImage>();
    EXPECT_EQ(image.size(), QSize(8, 6));
    EXPECT_EQ(log.Take().front(), "preset(Warm).GetPreviewImage()");
}

TEST_F(ModelRolesTest, aGroupAnswersThreeRolesWithMeaningsOfItsOwn)
{
    ParseGroup("Shop", {}, {{"editable", true}, {"appStoreId", StoredNode{{"id", "store.9"}}}});
    const QModelIndex group = Group(3);
    EXPECT_EQ(model.data(group, 256), QStringLiteral("Shop"));
    EXPECT_EQ(model.data(group, 257), true);
    EXPECT_EQ(model.data(group, 258), QStringLiteral("store.9"));
    for (int role = 259; role <= 276; ++role)
        EXPECT_FALSE(model.data(group, role).isValid()) << role;
    EXPECT_FALSE(model.data(group, Qt::DisplayRole).isValid());
}

TEST_F(ModelRolesTest, anInvalidIndexAnswersNothing)
{
    EXPECT_FALSE(model.data(QModelIndex(), 256).isValid());
    EXPECT_FALSE(Set(QModelIndex(), 256, QStringLiteral("x")));
    EXPECT_THAT(log.Take(), IsEmpty());
}

TEST_F(ModelRolesTest, otherColumnsAnswerLikeTheFirst)
{
    EXPECT_EQ(model.data(model.index(0, 3, Group(0)), 256), QStringLiteral("Warm"));
    EXPECT_EQ(model.data(model.index(0, 3, QModelIndex()), 256), QStringLiteral("Film"));
}

// A stale index has no parent any more, so it reads as a group; beyond the groups it is refused.
TEST_F(ModelRolesTest, staleIndexesOutOfRangeAnswerNothing)
{
    StoredList presets;
    for (int i = 0; i < 8; ++i)
        presets.Add(Preset("Mine", {}));
    ParseUserData({{"items", presets}});
    const QModelIndex stale = At(3, 7);
    model.removeRows(4, 4, Group(3));
    log.Clear();
    for (int role = 256; role <= 275; ++role) {
        EXPECT_FALSE(model.data(stale, role).isValid()) << role;
        EXPECT_FALSE(Set(stale, role, true)) << role;
    }
    EXPECT_EQ(model.rowCount(stale), 0);
    EXPECT_FALSE(model.removeRows(0, 1, stale));
    EXPECT_THAT(log.Take(), IsEmpty());
}

TEST_F(ModelRolesTest, theRowBehindTheLastIsOutOfRange)
{
    IndexMaker own(factory);
    const ModelSpy itsSpy(log, own);
    own.ParseGroup(
        "Film", StoredList{Preset("A", {Tone(1)}), Preset("B", {Tone(1)})}.ToCollection(), nullptr);
    own.ParseGroup("Plain", StoredList{Preset("C", {Tone(1)})}.ToCollection(), nullptr);
    log.Clear();
    const QModelIndex inside = own.index(0, 0, own.index(0, 0, QModelIndex()));
    ASSERT_EQ(own.data(own.WithRow(inside, 1), 256), QStringLiteral("B"));
    ASSERT_EQ(own.data(own.Nowhere(1), 256), QStringLiteral("Plain"));
    for (const QModelIndex& behind : {own.WithRow(inside, 2), own.Nowhere(2)}) {
        for (int role = 256; role <= 275; ++role) {
            EXPECT_FALSE(own.data(behind, role).isValid()) << role;
            EXPECT_FALSE(own.setData(behind, true, role)) << role;
        }
        EXPECT_EQ(own.rowCount(behind), 0);
    }
    EXPECT_FALSE(own.index(0, 0, own.Nowhere(2)).isValid());
    EXPECT_FALSE(own.removeRows(0, 1, own.Nowhere(2)));
    EXPECT_FALSE(own.removeRows(2, 1, own.index(0, 0, QModelIndex())));
    EXPECT_THAT(log.Take(), IsEmpty());
}

// Writes that draw throw without a workspace; changes made before stay.
TEST_F(ModelRolesTest, writesThatDrawThrowWithoutAWorkspace)
{
    Set(At(0, 1), Model::AppliedRole, true);
    Set(At(0, 1), Model::IntensityRole, 10);
    workspace.reset();
    log.Clear();
    EXPECT_THROW(Set(At(0, 1), Model::TuneRole, 0), Zorvik::Exception);
    EXPECT_THROW(Set(At(0, 1), Model::TuneRole, 0), Zorvik::Exception) << "the change stays open";
    EXPECT_THROW(Set(At(0, 1), Model::AppliedRole, false), Zorvik::Exception);
    EXPECT_FALSE(IsApplied(0, 1));
    for (const auto& [role, value] : {std::pair<int, QVariant>(Model::AppliedRole, true),
                                      {Model::SaveChangesRole, QVariant()},
                                      {Model::IntensityRole, 50},
                                      {Model::TuneRole, 1}})
        EXPECT_THROW(Set(At(0, 0), role, value), Zorvik::Exception) << role;
    EXPECT_TRUE(IsApplied(0, 0));
    EXPECT_EQ(model.data(At(0, 0), Model::IntensityRole), 50);
    EXPECT_THAT(log.GetLines("model."), IsEmpty()) << "and none is announced";
}

TEST_F(ModelRolesTest, otherWritesNeedNoWorkspace)
{
    workspace.reset();
    auto sliders = Sliders(0, 1);
    sliders.at(1).SetValue(90);
    for (const auto& [role, value] :
         {std::pair<int, QVariant>(Model::PresetNameRole, QStringLiteral("Renamed")),
          {Model::AppliedRole, false},
          {Model::IntensityRole, 50},
          {Model::TuneRole, 0},
          {Model::SettingsValuesRole, QVariant::fromValue(Sliders(0, 1))},
          {Model::SaveAsUserPresetRole, QStringLiteral("Mine")},
          {Model::FavouriteRole, true},
          {Model::ResetRole, QVariant()},
          {Model::DownloadedResourceRole, QStringLiteral("x.lut")},
          {Model::SettingsValuesRole, QVariant::fromValue(sliders)}})
        EXPECT_NO_THROW(Set(At(0, 1), role, value)) << role;
    EXPECT_THROW(Set(At(0, 1), Model::ResetRole, QVariant()), Zorvik::Exception)
        << "a slider differed, so the preset is applied";
}

TEST_F(ModelRolesTest, aGroupTakesNothing)
{
    for (int role = 256; role <= 275; ++role)
        EXPECT_FALSE(Set(Group(0), role, true)) << role;
    EXPECT_THAT(log.Take(), IsEmpty());
}

TEST_F(ModelRolesTest, rolesThatAreOnlyReadTakeNothing)
{
    for (const int role :
         {255, 257, 260, 262, 263, 264, 267, 269, 271, 273, 275, 276, int(Qt::EditRole)})
        ExpectHandled(At(0, 0), role, true);
    EXPECT_THAT(log.Take(), IsEmpty());
}

TEST_F(ModelRolesTest, renamingTellsNobody)
{
    ExpectHandled(At(0, 0), Model::PresetNameRole, QStringLiteral("K\u00fchl"));
    EXPECT_THAT(log.Take(), ElementsAre("preset(Warm).SetName(\"K\xC3\xBChl\")"));
    EXPECT_EQ(model.data(At(0, 0), 256), QStringLiteral("K\u00fchl"));
    EXPECT_EQ(model.data(At(0, 0), 257), QStringLiteral("Warm")) << "the id stays";
}

TEST_F(ModelRolesTest, committingTellsTheHostOnly)
{
    Set(At(0, 0), Model::AppliedRole, true);
    log.Clear();
    ExpectHandled(At(0, 0), Model::SaveChangesRole, QVariant());
    EXPECT_THAT(log.Take(),
                ElementsAre("preset(Warm).SaveChanges()",
                            "drawer.ApplyEffect(empty{id: \"empty\"}, {})",
                            "statistics.SendEvent(\"apply\", {effectGroup: \"Film\", effectName: "
                            "\"Warm\"})"));
    EXPECT_TRUE(IsApplied(0, 0));
}

TEST_F(ModelRolesTest, theSameIntensityCallsNothing)
{
    ExpectHandled(At(0, 0), Model::IntensityRole, 80);
    ExpectHandled(At(0, 0), Model::IntensityRole, QStringLiteral("80"));
    EXPECT_THAT(log.Take(), IsEmpty());
}

TEST_F(ModelRolesTest, aNewIntensityIsDrawnLiveAndNotAnnounced)
{
    ExpectHandled(At(0, 0), Model::IntensityRole, 50);
    EXPECT_THAT(log.Take(),
                ElementsAre("preset(Warm).SetIntensity(50, true)",
                            "painter.StartPainting(BlendSource Looks/Warm restoring alpha)",
                            "painter.SetPositions(2147483647, 2147483647)",
                            "painter.UpdatePainting([] in / #none blend 129, 0)"));
    EXPECT_EQ(model.data(At(0, 0), 261), 50);
}

TEST_F(ModelRolesTest, anUnconvertibleIntensityCountsAsZero)
{
    ExpectHandled(At(0, 0), Model::IntensityRole, QStringLiteral("much"));
    EXPECT_EQ(model.data(At(0, 0), 261), 0);
}

TEST_F(ModelRolesTest, tuneZeroAndWhatDoesNotConvertEndTheChange)
{
    for (const QVariant& value :
         {QVariant::fromValue(TuneSettingType::ChangeEnd), QVariant(0), QVariant(false),
          QVariant(QStringLiteral("0")), QVariant(), QVariant(QStringLiteral("x")),
          QVariant(QStringList{QStringLiteral("1"), QStringLiteral("2")})}) {
        ExpectHandled(At(0, 0), Model::TuneRole, value);
        EXPECT_THAT(log.Take(), ElementsAre("preset(Warm).IntensityChangeEnd()"))
            << value.toString().toStdString();
    }
}

TEST_F(ModelRolesTest, tuneOneAppliesWithoutAnAnnouncement)
{
    Set(At(0, 1), Model::AppliedRole, true);
    for (const QVariant& value :
         {QVariant::fromValue(TuneSettingType::Apply), QVariant(1), QVariant(true), QVariant(1.0),
          QVariant(QStringLiteral("1")), QVariant(1U), QVariant(1LL)}) {
        log.Clear();
        ExpectHandled(At(0, 0), Model::TuneRole, value);
        EXPECT_TRUE(IsApplied(0, 0));
        EXPECT_FALSE(IsApplied(0, 1));
        EXPECT_THAT(log.GetLines("model."), IsEmpty());
        EXPECT_EQ(log.GetLines("drawer.ApplyEffect(").size(), 1U);
    }
}

TEST_F(ModelRolesTest, otherTuneValuesDoNothing)
{
    ExpectHandled(At(0, 0), Model::TuneRole, 2);
    ExpectHandled(At(0, 0), Model::TuneRole, -1);
    EXPECT_THAT(log.Take(), IsEmpty());
}

TEST_F(ModelRolesTest, changedSlidersAreStoredWithoutApplyOnProgress)
{
    auto sliders = Sliders(0, 1);
    sliders.at(1).SetValue(90);
    ExpectHandled(At(0, 1), Model::SettingsValuesRole, QVariant::fromValue(sliders));
    EXPECT_THAT(log.Take(), ElementsAre("preset(Soft).SetSettingsValues([tone=0, grain=90])"));
    EXPECT_EQ(Sliders(0, 1).at(1).Value(), 90);
    const auto defaults = model.data(At(0, 1), 267).value<SliderSetting::List>();
    EXPECT_EQ(defaults.at(1).Value(), 50);
}

TEST_F(ModelRolesTest, changedSlidersApplyThePresetOnProgress)
{
    ParseGroup("Live", {Preset("Live", {Tone(1, 0.25)}).Set("controller", "progress")});
    Attach();
    Set(At(0, 0), Model::AppliedRole, true);
    log.Clear();
    auto sliders = Sliders(3, 0);
    sliders.at(0).SetValue(60);
    ExpectHandled(At(3, 0), Model::SettingsValuesRole, QVariant::fromValue(sliders));
    EXPECT_THAT(TakeCalls(),
                ElementsAre("preset(Live).SetSettingsValues([tone=60])",
                            "preset(Warm).SetApplied(false, false)",
                            "preset(Live).SetApplied(true, true)", "drawer.GetPackage(none)",
                            "drawer.ApplyEffect([tone{gain: 1, bias: 0.6}] in Looks/Live #0 blend "
                            "1, {})",
                            "statistics.SendEvent(\"click\", {effectGroup: \"Live\", effectName: "
                            "\"Live\"})",
                            "model.dataChanged(3/0, 3/0, [258])"));

    ExpectHandled(At(3, 0), Model::SettingsValuesRole, QVariant::fromValue(sliders));
    EXPECT_THAT(TakeCalls(), ElementsAre("preset(Live).SetSettingsValues([tone=60])"))
        << "unchanged values apply nothing";
}

TEST_F(ModelRolesTest, slidersThatDoNotConvertCountAsNone)
{
    for (const QVariant& value : {QVariant(), QVariant(5), QVariant(QStringLiteral("x"))}) {
        ExpectHandled(At(0, 1), Model::SettingsValuesRole, value);
        EXPECT_THAT(log.Take(), ElementsAre("preset(Soft).SetSettingsValues([])"));
    }
    EXPECT_EQ(Sliders(0, 1).at(1).Value(), 50);
}

TEST_F(ModelRolesTest, theFavouriteMarkIsAlwaysAnnounced)
{
    for (const bool mark : {true, true, false}) {
        log.Clear();
        ExpectHandled(At(0, 0), Model::FavouriteRole, mark);
        const std::string event = mark ? "favourite add" : "favourite remove";
        EXPECT_THAT(
            log.Take(),
            ElementsAre(std::string("preset(Warm).SetFavourite(") + (mark ? "true)" : "false)"),
                        "statistics.SendEvent(\"" + event +
                            "\", {effectGroup: \"Film\", effectName: \"Warm\"})",
                        "model.dataChanged(0/0, 0/0, [270])"));
        EXPECT_EQ(model.data(At(0, 0), 270), mark);
    }
}

TEST_F(ModelRolesTest, resettingUnchangedSlidersOnlyAnnouncesAllRoles)
{
    ExpectHandled(At(0, 1), Model::ResetRole, QVariant());
    EXPECT_THAT(TakeCalls(), ElementsAre("preset(Soft).ResetSettingsValues()",
                                         "preset(Soft).SetSettingsValues([tone=0, grain=50])",
                                         "model.dataChanged(0/1, 0/1, [])"));
    EXPECT_FALSE(IsApplied(0, 1));
}

TEST_F(ModelRolesTest, resettingChangedSlidersAppliesThePresetFirst)
{
    auto sliders = Sliders(0, 1);
    sliders.at(1).SetValue(90);
    Set(At(0, 1), Model::SettingsValuesRole, QVariant::fromValue(sliders));
    Set(At(0, 0), Model::AppliedRole, true);
    log.Clear();
    ExpectHandled(At(0, 1), Model::ResetRole, QVariant());
    EXPECT_THAT(TakeCalls(),
                ElementsAre("preset(Soft).ResetSettingsValues()",
                            "preset(Soft).SetSettingsValues([tone=0, grain=50])",
                            "preset(Warm).SetApplied(false, false)",
                            "preset(Soft).SetApplied(true, true)", "drawer.GetPackage(none)",
                            "drawer.ApplyEffect([tone{gain: 1, bias: 0}, grain{amount: 0.5}] in "
                            "Looks/Soft #0 blend 1, {})",
                            "statistics.SendEvent(\"click\", {effectGroup: \"Film\", effectName: "
                            "\"Soft\"})",
                            "model.dataChanged(0/1, 0/1, [258])",
                            "model.dataChanged(0/1, 0/1, [])"));
}

TEST_F(ModelRolesTest, handsADownloadedResourceOver)
{
    ExpectHandled(At(0, 0), Model::DownloadedResourceRole, QStringLiteral("/m\u00e4rz.lut"));
    EXPECT_THAT(log.Take(),
                ElementsAre("preset(Warm).SetDownloadedResource(\"/m\xC3\xA4rz.lut\")"));
}

TEST_F(ModelRolesTest, keepsQtsDefaultsForAllElse)
{
    EXPECT_EQ(model.flags(At(0, 0)), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    EXPECT_FALSE(model.headerData(0, Qt::Vertical, 256).isValid());
    EXPECT_FALSE(model.insertRows(0, 1, Group(0)));
    EXPECT_FALSE(model.roleNames().contains(256));
}
