// SPDX-License-Identifier: GPL-2.0-or-later
#include "LookFixture.h"

#include "core/PresetControllerFactory.h"
#include "core/looks/LookContent.h"
#include "core/looks/LookReader.h"
#include "core/looks/PictureLooks.h"
#include "exporting/Export.h"
#include "exporting/LookRecord.h"
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"

#include "Zorvik/Exception.h"

#include <gmock/gmock.h>

using namespace LumetraPlugin;
using namespace LumetraTest;
using LumetraHost::EditRecord;
using LumetraHost::EditRecords;
using LumetraHost::Export;
using LumetraHost::ExportLook;
using LumetraHost::ExportRecipe;
using LumetraHost::Image;
using LumetraHost::KeptMetadata;
using LumetraHost::LookRecord;
using LumetraHost::Photo;
using LumetraHost::PhotoFormat;
using testing::HasSubstr;
using Zorvik::Quindle::EffectsSettings;

namespace {

constexpr char Warm[] = R"("effects": [
    { "effect": { "id": "exposure", "stops": 0.37 } },
    { "effect": { "id": "whiteBalance", "temperature": 8111, "tint": 6 } } ],
  "intensity": { "type": 1, "blendSetting": { "value": 63, "begin": 1, "end": 255 } })";
constexpr char Grey[] = R"("effects": [ { "effect": { "id": "saturation", "amount": -80 } } ])";

Photo MakePhoto()
{
    Photo photo;
    photo.image = Image::Allocate(61, 43, Image::Depth::Bits8);
    for (int y = 0; y < photo.image.GetHeight(); ++y)
        for (int x = 0; x < photo.image.GetWidth(); ++x) {
            std::uint8_t* const pixel = photo.image.Row(y) + 4 * x;
            pixel[0] = static_cast<std::uint8_t>(4 * x);
            pixel[1] = static_cast<std::uint8_t>(5 * y);
            pixel[2] = static_cast<std::uint8_t>(2 * x + 3 * y);
            pixel[3] = 255;
        }
    return photo;
}

EditRecord MakeRecord(const std::string& name, const EffectsSettings& layer)
{
    EditRecord record{name, 50};
    LookRecord::AddLook(record, layer);
    return record;
}

} // namespace

class PictureLooksTest : public LookTest
{
protected:
    /// The photo with the layers on it, as a file.
    static QByteArray MakeFile(const Photo& photo, const std::vector<EffectsSettings>& layers,
                               const std::vector<std::string>& names,
                               PhotoFormat format = PhotoFormat::Png,
                               KeptMetadata metadata = KeptMetadata::All)
    {
        ExportRecipe recipe;
        recipe.look = std::make_shared<ExportLook>(layers, ExportLook::Precision::Exact);
        for (std::size_t i = 0; i < layers.size(); ++i)
            recipe.records.push_back(MakeRecord(names[i], layers[i]));
        recipe.format = format;
        recipe.metadata = metadata;
        const auto file = Export().MakeFromPhoto(photo, recipe, "picture").file;
        return QByteArray(reinterpret_cast<const char*>(file.data()),
                          static_cast<int>(file.size()));
    }

    /// Puts the presets on the photo one after the other, as somebody does with files.
    QByteArray PutOn(const std::vector<PresetModel::PresetPtr>& presets) const
    {
        Photo photo = MakePhoto();
        for (const auto& preset : presets) {
            Write("step.png", MakeFile(photo, {preset->MakeSettings()}, {"step"}));
            photo.image = LumetraHost::PhotoReader::Read(Path("step.png")).image;
        }
        return PixelsOf(photo.image);
    }

    static QByteArray PixelsOf(const Image& image)
    {
        QByteArray pixels;
        for (int y = 0; y < image.GetHeight(); ++y)
            pixels.append(reinterpret_cast<const char*>(image.Row(y)), 4 * image.GetWidth());
        return pixels;
    }

    QByteArray PixelsOf(const QString& path) const
    {
        return PixelsOf(LumetraHost::PhotoReader::Read(path).image);
    }

    std::vector<PresetModel::PresetPtr> Read(const QString& path)
    {
        problems.clear();
        std::vector<LumetraHost::JsonDocument> documents;
        PictureLooks::Read(path, documents, problems);
        std::vector<PresetModel::PresetPtr> presets;
        for (const auto& document : documents)
            try {
                for (const auto& preset :
                     LookReader::Read(document, session.GetFactory(), problems))
                    presets.push_back(preset);
            } catch (const Zorvik::Exception& error) {
                problems.append(QString::fromStdString(error.GetDescription()));
            }
        return presets;
    }

    QStringList problems;
};

TEST_F(PictureLooksTest, aPictureOfEveryFormatGivesItsLookBackWithEqualPixels)
{
    const EffectsSettings layer = AddPreset("Warm", Warm)->MakeSettings();
    const QByteArray wanted =
        PixelsOf(Write("wanted.png", MakeFile(MakePhoto(), {layer}, {"Warm"})));
    for (const auto& [name, format] :
         {std::pair("a.png", PhotoFormat::Png), std::pair("a.tif", PhotoFormat::Tiff),
          std::pair("a.jpg", PhotoFormat::Jpeg)}) {
        const auto presets = Read(Write(name, MakeFile(MakePhoto(), {layer}, {"Warm"}, format)));
        ASSERT_EQ(presets.size(), 1u) << name;
        EXPECT_EQ(presets.front()->GetName(), "Warm") << name;
        EXPECT_EQ(presets.front()->GetIntensity(), 63) << name;
        EXPECT_EQ(PutOn(presets), wanted) << name;
        EXPECT_TRUE(problems.isEmpty()) << name;
    }
}

TEST_F(PictureLooksTest, everyBlendAmountComesBackToTheStep)
{
    EffectsSettings layer = AddPreset("Grey", Grey)->MakeSettings();
    for (int blend = EffectsSettings::FullEffect; blend <= EffectsSettings::NoEffect; ++blend) {
        layer.SetBlendAmount(blend);
        const EditRecord record = MakeRecord("Grey", layer);
        const auto path = Write("look.lumetra", QByteArray::fromStdString(record.look));
        const auto result = Import(path);
        ASSERT_TRUE(result.problems.isEmpty()) << blend;
        ASSERT_EQ(result.presets.size(), 1u) << blend;
        EXPECT_EQ(session.GetModel()
                      .GetPreset(result.presets.front().index)
                      ->MakeSettings()
                      .GetBlendAmount(),
                  blend);
        session.GetModel().removeRows(1, 1, session.GetModel().GetUserGroup());
    }
}

TEST_F(PictureLooksTest, severalLayersAreSeveralPresetsInTheirOrder)
{
    const EffectsSettings warm = AddPreset("Warm", Warm)->MakeSettings();
    const EffectsSettings grey = AddPreset("Grey", Grey)->MakeSettings();
    const QString path =
        Write("a.png", MakeFile(MakePhoto(), {warm, grey, warm}, {"One", "Two", "Three"}));
    const auto presets = Read(path);
    ASSERT_EQ(presets.size(), 3u);
    EXPECT_EQ(presets[0]->GetName(), "One");
    EXPECT_EQ(presets[2]->GetName(), "Three");
    EXPECT_EQ(PutOn(presets), PixelsOf(path));
}

TEST_F(PictureLooksTest, layersOfAnEarlierExportComeFirst)
{
    const EffectsSettings warm = AddPreset("Warm", Warm)->MakeSettings();
    const EffectsSettings grey = AddPreset("Grey", Grey)->MakeSettings();
    const auto first = LumetraHost::PhotoReader::Read(
        Write("first.jpg", MakeFile(MakePhoto(), {warm}, {"One"}, PhotoFormat::Jpeg)));
    const auto presets =
        Read(Write("second.jpg", MakeFile(first, {grey}, {"Two"}, PhotoFormat::Jpeg)));
    ASSERT_EQ(presets.size(), 2u);
    EXPECT_EQ(presets[0]->GetName(), "One");
    EXPECT_EQ(presets[1]->GetName(), "Two");
}

TEST_F(PictureLooksTest, manyLayersGoOnFromOneExportToTheNext)
{
    const auto table = AddTable("Turned", 10)->MakeSettings(); // some 8 KB of text each
    Photo photo = MakePhoto();
    for (int round = 0; round < 4; ++round) {
        const QString path = Write(
            "a.jpg", MakeFile(photo, {table, table, table}, {"a", "b", "c"}, PhotoFormat::Jpeg));
        photo = LumetraHost::PhotoReader::Read(path);
        EXPECT_EQ(Read(path).size(), static_cast<std::size_t>(3 * (round + 1)));
        EXPECT_TRUE(problems.isEmpty());
    }
}

TEST_F(PictureLooksTest, aTableThatIsTooLargeIsLeftOutAndThePictureSaysSo)
{
    const EffectsSettings large = AddTable("Large", 33)->MakeSettings();
    const EffectsSettings small = AddTable("Small", 8)->MakeSettings();
    const QByteArray file =
        MakeFile(MakePhoto(), {large, small}, {"Large", "Small"}, PhotoFormat::Jpeg);
    EXPECT_LT(file.size(), 60'000);
    const QString path = Write("a.jpg", file);
    const auto presets = Read(path);
    ASSERT_EQ(presets.size(), 1u);
    EXPECT_EQ(presets.front()->GetName(), "Small");
    ASSERT_EQ(problems.size(), 1);
    EXPECT_THAT(problems.front().toStdString(),
                HasSubstr("a.jpg: layer 1 \"Large\": expected the look itself, found only its name "
                          "(expected at most 32768 bytes, found "));
}

TEST_F(PictureLooksTest, withoutMetadataThereIsNoLook)
{
    const EffectsSettings layer = AddPreset("Warm", Warm)->MakeSettings();
    const QByteArray file =
        MakeFile(MakePhoto(), {layer}, {"Warm"}, PhotoFormat::Jpeg, KeptMetadata::None);
    EXPECT_FALSE(file.contains("lumetra"));
    EXPECT_THAT(Refusal(Write("a.jpg", file)),
                HasSubstr("a.jpg: expected a picture that tells of its look"));
}

TEST_F(PictureLooksTest, aPictureThatMayBeATableIsOneWhenItTellsOfNoLook)
{
    const EffectsSettings layer = AddPreset("Warm", Warm)->MakeSettings();
    EXPECT_THAT(Refusal(Write("a.png", MakeFile(MakePhoto(), {layer}, {"Warm"}, PhotoFormat::Png,
                                                KeptMetadata::None))),
                HasSubstr("a.png: expected "));
    EXPECT_EQ(GetNames(), QStringList(QStringLiteral("Warm")));
}

TEST_F(PictureLooksTest, aLookThatIsThereIsOnePreset)
{
    const auto warm = AddPreset("Warm", Warm);
    const QString path =
        Write("a.jpg", MakeFile(MakePhoto(), {warm->MakeSettings()}, {"Warm"}, PhotoFormat::Jpeg));
    const auto result = Import(path);
    EXPECT_TRUE(result.presets.empty());
    EXPECT_EQ(result.known.size(), 1u);
}

TEST_F(PictureLooksTest, aRecordThatIsNoLookCostsOnlyItself)
{
    const auto writeRecords = [&](const std::vector<EditRecord>& records) {
        ExportRecipe recipe;
        recipe.records = records;
        const auto file = Export().MakeFromPhoto(MakePhoto(), recipe, "picture").file;
        return Write("a.jpg", QByteArray(reinterpret_cast<const char*>(file.data()),
                                         static_cast<int>(file.size())));
    };
    EditRecord bad{"Bad", 10};
    bad.look = "{ \"format\": \"lumetra-look\", \"version\": 9 }";
    EditRecord worse{"Worse", 10};
    worse.look = "no JSON <&> at all";
    const EditRecord good = MakeRecord("Good", AddPreset("Grey", Grey)->MakeSettings());

    const auto presets = Read(writeRecords({bad, worse, good, {"Old", 70}}));

    ASSERT_EQ(presets.size(), 1u);
    EXPECT_EQ(presets.front()->GetName(), "Good");
    ASSERT_EQ(problems.size(), 3);
    EXPECT_THAT(problems[0].toStdString(), HasSubstr("layer 2 \"Worse\":1:2: "));
    EXPECT_THAT(problems[1].toStdString(), HasSubstr("layer 4 \"Old\": expected the look itself"));
    EXPECT_THAT(problems[2].toStdString(),
                HasSubstr("layer 1 \"Bad\":1:40: error: version: expected version 1, found 9"));
}

TEST_F(PictureLooksTest, whatIsNoPictureIsRefused)
{
    EXPECT_THAT(Refusal(Write("a.jpg", "no picture")), HasSubstr("a.jpg: "));
    EXPECT_THAT(Refusal(Write("a.webp", QByteArray())), HasSubstr("a.webp: "));
    EXPECT_THAT(Refusal(Path("none.jpg")), HasSubstr("none.jpg: "));
}
