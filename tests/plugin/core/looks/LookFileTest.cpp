// SPDX-License-Identifier: GPL-2.0-or-later
#include "LookFixture.h"

#include "Zorvik/Exception.h"
#include "archive/ZipReader.h"
#include "core/looks/LookContent.h"
#include "core/looks/LookPreview.h"
#include "core/looks/LookReader.h"
#include "core/looks/LookWriter.h"
#include "core/userstore/UserPresetStore.h"
#include "host/drawer/DrawnPicture.h"
#include "workspace/WorkspaceController.h"

#include <QColor>
#include <QDir>
#include <QImage>

#include <gmock/gmock.h>

using namespace LumetraPlugin;
using namespace LumetraTest;
using LumetraHost::Image;
using LumetraHost::JsonDocument;
using LumetraHost::ZipReader;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

constexpr char Warm[] = R"("effects": [
    { "effect": { "id": "exposure", "stops": 0.37 } },
    { "effect": { "id": "whiteBalance", "temperature": 8111, "tint": 6 } } ],
  "intensity": { "type": 1, "blendSetting": { "value": 63, "begin": 1, "end": 255 } })";
constexpr char Sliding[] = R"("effects": [
    { "effect": { "id": "liftGammaGain", "saturation": 0.5 } } ],
  "intensity": { "type": 2, "sliderSetting": { "title": "Strength", "begin": 0, "end": 50,
    "variables": [ { "effectID": "liftGammaGain", "setting": "saturation", "begin": 1, "end": 0 } ]
  } })";

QStringList List(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* const text : texts)
        list.append(QString::fromUtf8(text));
    return list;
}

Image MakePhoto()
{
    Image photo = Image::Allocate(37, 23, Image::Depth::Bits8);
    for (int y = 0; y < photo.GetHeight(); ++y)
        for (int x = 0; x < photo.GetWidth(); ++x) {
            std::uint8_t* const pixel = photo.Row(y) + 4 * x;
            pixel[0] = static_cast<std::uint8_t>(7 * x);
            pixel[1] = static_cast<std::uint8_t>(11 * y);
            pixel[2] = static_cast<std::uint8_t>(5 * x + 3 * y);
            pixel[3] = 255;
        }
    return photo;
}

/// The picture that the preset makes of a photo.
QByteArray Draw(PresetSession& session, const QModelIndex& preset)
{
    session.OpenPhoto(MakePhoto());
    session.GetModel().setData(preset, true, PresetModel::AppliedRole);
    const Image drawn = LumetraHost::DrawWhole(session.GetWorkspace().GetDrawer());
    session.ClosePhoto();
    QByteArray pixels;
    for (int y = 0; y < drawn.GetHeight(); ++y)
        pixels.append(reinterpret_cast<const char*>(drawn.Row(y)), 4 * drawn.GetWidth());
    return pixels;
}

} // namespace

class LookFileTest : public LookTest
{
};

TEST_F(LookFileTest, looksGoFromOneStoreToAnotherWithEqualPixels)
{
    AddPreset("Warm", Warm);
    AddPreset("Sliding", Sliding);
    AddTable("Turned", 17);
    Save();
    const auto& model = session.GetModel();
    const QModelIndex group = model.GetUserGroup();
    std::vector<PresetModel::PresetPtr> presets;
    for (int i = 0; i < 3; ++i)
        presets.push_back(model.GetPreset(model.index(i, 0, group)));
    const QString file = WriteLooks("three.lumetra", presets);

    PresetSession friends("test");
    friends.OpenStore(Path("friend.json"));
    friends.Load({}, nullptr);
    const ImportReport result = ImportInto(friends, file);
    friends.GetStore()->Save(friends.GetModel());
    PresetSession later("test");
    later.OpenStore(Path("friend.json"));
    later.Load({}, nullptr);

    EXPECT_TRUE(result.problems.isEmpty());
    ASSERT_EQ(later.GetModel().GetUserPresetNames(), List({"Warm", "Sliding", "Turned"}));
    for (int i = 0; i < 3; ++i) {
        const QModelIndex mine = model.index(i, 0, group);
        const QModelIndex theirs = later.GetModel().index(i, 0, later.GetModel().GetUserGroup());
        EXPECT_EQ(Draw(later, theirs), Draw(session, mine)) << i;
        for (const int role : {PresetModel::IntensityRole, PresetModel::IntensityMinRole,
                               PresetModel::IntensityMaxRole})
            EXPECT_EQ(theirs.data(role), mine.data(role)) << i;
        EXPECT_NE(theirs.data(PresetModel::PresetIdRole), mine.data(PresetModel::PresetIdRole));
    }
}

TEST_F(LookFileTest, creditsAndNamesStayWithALookThroughStoreAndFile)
{
    AddPreset("Campfire", QByteArray(Warm) + R"(, "names": { "de": "Lagerfeuer" },
        "author": "Ada", "licence": "CC-BY-4.0")");
    Save();
    PresetSession later("test");
    later.OpenStore(Path("presets.json"));
    later.Load({}, nullptr);
    const auto preset =
        later.GetModel().GetPreset(later.GetModel().index(0, 0, later.GetModel().GetUserGroup()));
    const QByteArray text = ReadFile(WriteLooks("again.lumetra", {preset}));

    EXPECT_THAT(text.toStdString(), HasSubstr("\"de\": \"Lagerfeuer\""));
    EXPECT_THAT(text.toStdString(), HasSubstr("\"author\": \"Ada\""));
    EXPECT_THAT(text.toStdString(), HasSubstr("\"licence\": \"CC-BY-4.0\""));
    EXPECT_FALSE(text.contains("\"id\": \"{"));
    preset->SetName("Bonfire");
    EXPECT_TRUE(preset->GetCredits().names.empty());
    EXPECT_EQ(preset->GetCredits().author, "Ada");
}

TEST_F(LookFileTest, smallFilesAreTextAndLargeOnesAreArchivesOfTheSameText)
{
    const QString small = WriteLooks("small.lumetra", {AddPreset("Warm", Warm)});
    EXPECT_TRUE(ReadFile(small).startsWith("{\n  \"format\": \"lumetra-look\",\n"));
    const auto table = AddTable("Turned", 33);
    const QString large = WriteLooks("large.lumetra", {table});
    ASSERT_TRUE(ZipReader::IsZip(large));
    LookWriter writer;
    writer.Add(*table);
    writer.Write(Path("plain.lumetra"), LookWriter::Packing::Plain);
    ZipReader archive(large);
    ASSERT_EQ(archive.GetEntries().size(), 1u);
    EXPECT_EQ(archive.GetEntries().front().name, QStringLiteral("look.json"));
    EXPECT_EQ(archive.Read(archive.GetEntries().front()), ReadFile(Path("plain.lumetra")));
    EXPECT_LT(ReadFile(large).size(), ReadFile(Path("plain.lumetra")).size());
}

TEST_F(LookFileTest, theSameContentIsOnePresetWhateverItIsCalled)
{
    AddPreset("Mine", Warm);
    AddTable("My table", 5);
    Save();
    const ImportReport result = Import(Write("sent.lumetra", LookText("Sent", Warm)));
    EXPECT_TRUE(result.presets.empty());
    EXPECT_TRUE(result.problems.isEmpty());
    ASSERT_EQ(result.known.size(), 1u);
    EXPECT_EQ(result.known.front().name, QStringLiteral("Sent"));
    EXPECT_EQ(result.known.front().knownAs, QStringLiteral("Mine"));

    PresetSession later("test"); // its table is in the folder beside the store
    later.OpenStore(Path("presets.json"));
    later.Load({}, nullptr);
    const auto stored =
        later.GetModel().GetPreset(later.GetModel().index(1, 0, later.GetModel().GetUserGroup()));
    const QString file = WriteLooks("table.lumetra", {stored});
    EXPECT_EQ(ImportInto(later, file).known.size(), 1u);
    EXPECT_EQ(later.GetModel().GetUserPresetNames(), List({"Mine", "My table"}));
}

TEST_F(LookFileTest, oneFileWithALookTwiceMakesOnePreset)
{
    const auto preset = AddPreset("Warm", Warm);
    const QString file = WriteLooks("twice.lumetra", {preset, preset});
    session.GetModel().removeRows(0, 1, session.GetModel().GetUserGroup());
    const ImportReport result = Import(file);
    EXPECT_EQ(result.presets.size(), 1u);
    EXPECT_EQ(result.known.size(), 1u);
}

TEST_F(LookFileTest, contentIsComparedWithWhereAPresetStartsAndNotWithADraggedValue)
{
    const auto preset = AddPreset("Warm", Warm);
    const QString file = WriteLooks("warm.lumetra", {preset});
    preset->SetIntensity(20, false);
    EXPECT_EQ(Import(file).known.size(), 1u);
}

TEST_F(LookFileTest, everyPartOfAPresetMakesItAnotherOne)
{
    AddPreset("Warm", Warm);
    const std::vector<std::pair<const char*, const char*>> changes = {
        {"0.37", "0.38"},
        {"\"value\": 63", "\"value\": 62"},
        {"\"begin\": 1", "\"begin\": 2"},
        {"\"tint\": 6", "\"tint\": 7"},
    };
    for (const auto& [from, to] : changes) {
        const QByteArray text = QByteArray(Warm).replace(from, to);
        const auto result = Import(Write("other.lumetra", LookText("Warm", text)));
        EXPECT_EQ(result.presets.size(), 1u) << to;
    }
    EXPECT_EQ(GetNames(), List({"Warm", "Warm 2", "Warm 3", "Warm 4", "Warm 5"}));
}

TEST_F(LookFileTest, namesThatAreTakenAreAskedFor)
{
    AddPreset("Warm", Warm);
    const QString file = Write("other.lumetra", LookText("Warm", Sliding));
    QStringList asked;
    const auto answer = [&asked](bool isYes) {
        ImportNaming naming;
        naming.askNumbered = [&asked, isYes](const QStringList& names) {
            asked = names;
            return isYes;
        };
        return naming;
    };
    const ImportReport refused = Import(file, answer(false));
    EXPECT_EQ(asked, List({"Warm"}));
    EXPECT_TRUE(refused.presets.empty());
    EXPECT_EQ(refused.problems.size(), 1);
    EXPECT_EQ(GetNames(), List({"Warm"}));
    EXPECT_EQ(Import(file, answer(true)).presets.size(), 1u);
    EXPECT_EQ(GetNames(), List({"Warm", "Warm 2"}));
}

TEST_F(LookFileTest, importedLooksHaveTheExtraSlidersOfTheCatalogueAtOnce)
{
    const QString catalogue = Write("looks.json", R"({ "format": "lumetra-catalogue", "version": 1,
      "defaultSettings": { "exposure": { "title": "Exposure", "begin": -100, "end": 100,
        "variables": [ { "setting": "stops", "begin": -2, "end": 2 } ] } }, "groups": [] })");
    PresetSession other("test");
    other.OpenStore(Path("other.json"));
    other.Load({catalogue}, nullptr);
    const auto result = ImportInto(other, Write("warm.lumetra", LookText("Warm", Warm)));
    ASSERT_EQ(result.presets.size(), 1u);
    const auto sliders = result.presets.front()
                             .index.data(PresetModel::SettingsValuesRole)
                             .value<Zorvik::Lumetra::LumetraPresets::SliderSetting::List>();
    ASSERT_EQ(sliders.size(), 1u);
    EXPECT_EQ(sliders.front().EffectID(), "exposure");
}

TEST_F(LookFileTest, longNamesAreShortenedAndNumberedWhereTheUserWantsThat)
{
    const QByteArray name(80, 'n');
    ImportNaming naming;
    naming.askShortened = [](const QStringList&) { return true; };
    Import(Write("long.lumetra", LookText(name, Warm)), naming);
    Import(Write("long.lumetra", LookText(name, Sliding)), naming);
    EXPECT_EQ(GetNames().at(0), QString(50, QLatin1Char('n')));
    EXPECT_EQ(GetNames().at(1), QString(48, QLatin1Char('n')) + QStringLiteral(" 2"));
}

TEST_F(LookFileTest, thePreviewIsASmallPictureOfTheLook)
{
    const QString sample = LookPreview::FindSample();
    ASSERT_FALSE(sample.isEmpty());
    const auto preset = AddPreset("Grey", R"("effects": [
        { "effect": { "id": "saturation", "amount": -100 } } ])");
    const QImage picture =
        QImage::fromData(LookPreview::Draw(preset->MakeSettings(), sample), "JPEG");
    EXPECT_EQ(picture.width(), LookPreview::LongestSide);
    const QColor pixel = picture.pixelColor(40, 60);
    EXPECT_NEAR(pixel.red(), pixel.blue(), 3);
    EXPECT_TRUE(LookPreview::Draw(preset->MakeSettings(), QString()).isEmpty());
}

TEST_F(LookFileTest, nothingIsWrittenWhereATableIsMissing)
{
    AddTable("Turned", 5);
    Save();
    PresetSession later("test");
    later.OpenStore(Path("presets.json"));
    later.Load({}, nullptr);
    QDir(Path("presets.json.tables")).removeRecursively();
    const auto stored =
        later.GetModel().GetPreset(later.GetModel().index(0, 0, later.GetModel().GetUserGroup()));
    EXPECT_THROW(WriteLooks("turned.lumetra", {stored}), Zorvik::Exception);
    EXPECT_FALSE(QFile::exists(Path("turned.lumetra")));
}
