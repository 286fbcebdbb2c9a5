// SPDX-License-Identifier: GPL-2.0-or-later
// Looks of every kind of file, on their way into a store, out of it as a file, and into another
// one.
#include "LookFixture.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "archive/ZipWriter.h"
#include "core/looks/LookFormat.h"
#include "core/looks/LookWriter.h"
#include "core/userstore/UserPresetStore.h"
#include "engine/effects/lut3d/Lut3dSettings.h"
#include "lut/LutWriter.h"
#include "plugin/core/foreign/ForeignFixture.h"
#include "storage/JsonDocument.h"

using namespace LumetraPlugin;
using namespace LumetraTest;
using LumetraHost::JsonDocument;
using LumetraHost::LookUpTable;
using LumetraHost::Lut3dSettings;
using LumetraHost::LutFormat;
using LumetraHost::LutWriter;

namespace {

/// Makes files of other programs.
class Foreign : public ForeignFixture
{
public:
    using ForeignFixture::MakeElements;
    using ForeignFixture::MakeProfile;
    using ForeignFixture::MakeTemplate;
    using ForeignFixture::MakeXmp;

private:
    void TestBody() override {}
};

/// One kind of file and how it is made.
struct Kind
{
    const char* name;
    const char* file;
    QByteArray (*make)();
};

/// Two settings of every effect that a look of another program can have.
Settings MakeSettings()
{
    return {{"Exposure2012", "+0.33"},
            {"Contrast2012", "-17"},
            {"Temperature", "-400"},
            {"Highlights2012", "-41"},
            {"Shadows2012", "23"},
            {"Dehaze", "13"},
            {"Texture", "9"},
            {"Clarity2012", "17"},
            {"ParametricShadows", "-11"},
            {"ParametricShadowSplit", "21"},
            {"ToneCurvePV2012", "0, 5; 63, 57; 191, 201; 255, 250"},
            {"ToneCurvePV2012Red", "0, 9; 128, 140; 255, 251"},
            {"HueAdjustmentBlue", "-13"},
            {"SaturationAdjustmentGreen", "-37"},
            {"Vibrance", "11"},
            {"Saturation", "-7"},
            {"SplitToningShadowHue", "211"},
            {"SplitToningShadowSaturation", "19"},
            {"ColorGradeMidtoneHue", "31"},
            {"ColorGradeMidtoneSat", "7"},
            {"RedHue", "12"},
            {"BlueSaturation", "-23"},
            {"Sharpness", "41"},
            {"PostCropVignetteAmount", "-19"},
            {"GrainAmount", "22"},
            {"GrainFrequency", "33"}};
}

QByteArray MakeHald(const char* name)
{
    LookUpTable cube = LookUpTable::MakeIdentity(LookUpTable::Kind::Cube, 9, {0, 0, 0}, {1, 1, 1});
    for (std::size_t i = 0; i < cube.values.size(); ++i)
        cube.values[i] = cube.values[i] * cube.values[i];
    return LutWriter::Encode(cube, LutFormat::Hald, QStringLiteral("Hald"),
                             QString::fromLatin1(name));
}

QByteArray MakeClf()
{
    LookUpTable cube = LookUpTable::MakeIdentity(LookUpTable::Kind::Cube, 5, {0, 0, 0}, {1, 1, 1});
    for (float& value : cube.values)
        value = 1 - value;
    return LutWriter::ToClfFile(cube, QStringLiteral("Turned"));
}

/// A look with all that a file of ours can say.
constexpr char Whole[] = R"("names": { "de": "Lagerfeuer", "pt-BR": "Fogueira" },
  "author": "Ada", "licence": "CC-BY-4.0",
  "effects": [
    { "effect": { "id": "exposure", "stops": 0.123456789 } },
    { "effect": { "id": "contrast", "amount": 21 } },
    { "effect": { "id": "liftGammaGain", "saturation": 0.5 } } ],
  "intensity": { "type": 2, "sliderSetting": { "title": "Strength", "begin": 0, "end": 50,
    "variables": [ { "effectID": "liftGammaGain", "setting": "saturation", "begin": 1, "end": 0 } ]
  } },
  "sliders": [ { "title": "Light", "begin": -200, "end": 200,
    "variables": [ { "effectID": "exposure", "setting": "stops", "begin": -2, "end": 2 } ] },
    { "title": "Bite", "begin": -100, "end": 100,
    "variables": [ { "effectID": "contrast", "setting": "amount", "begin": -100, "end": 100 } ] } ])";

const Kind Kinds[] = {
    {"Attributes", "look.xmp", [] { return Foreign::MakeXmp(MakeSettings(), "Old Film"); }},
    {"Elements", "look.xmp", [] { return Foreign::MakeElements(MakeSettings()); }},
    {"Template", "look.lrtemplate", [] { return Foreign::MakeTemplate(MakeSettings()); }},
    {"Profile", "look.pp3",
     [] {
         return Foreign::MakeProfile({{"Exposure/Compensation", "0.7"},
                                      {"Exposure/Curve", "1;0;0;0.3;0.21;1;1"},
                                      {"Vibrance/Pastels", "17"},
                                      {"Shadows & Highlights/Shadows", "23"},
                                      {"RGB Curves/rCurve", "1;0;0.1;0.5;0.4;1;0.9"}});
     }},
    {"Cube", "look.cube", [] { return CubeText(17); }},
    {"Curve", "look.cube",
     [] { return QByteArray("LUT_1D_SIZE 3\n0 0.1 0\n0.3 0.5 0.6\n1 0.9 1\n"); }},
    {"Clf", "look.clf", &MakeClf},
    {"HaldPng", "look.png", [] { return MakeHald("look.png"); }},
    {"HaldTiff", "look.tif", [] { return MakeHald("look.tif"); }},
    {"ColourDecisions", "look.cc",
     [] {
         return QByteArray("<ColorCorrection xmlns=\"urn:ASC:CDL:v1.2\" id=\"dawn\"><SOPNode>"
                           "<Slope>1.2 1 0.9</Slope><Offset>0.01 0 0</Offset><Power>1 1.1 1</Power>"
                           "</SOPNode></ColorCorrection>");
     }},
    {"Look", "look.lumetra", [] { return LookText("Campfire", Whole); }},
};

class RoundTripTest : public LookTest, public testing::WithParamInterface<std::tuple<Kind, bool>>
{
protected:
    /// A store with what is in the file, as the next start of the program finds it.
    std::unique_ptr<PresetSession> Store(const char* store, const QString& file) const
    {
        PresetSession first("test");
        first.OpenStore(Path(store));
        first.Load({}, nullptr);
        const ImportReport report = ImportInto(first, file);
        EXPECT_TRUE(report.problems.isEmpty()) << report.problems.value(0).toStdString();
        EXPECT_EQ(report.presets.size(), 1u);
        first.GetStore()->Save(first.GetModel());
        auto later = std::make_unique<PresetSession>("test");
        later->OpenStore(Path(store));
        later->Load({}, nullptr);
        return later;
    }
    static PresetModel::PresetPtr FindOnly(PresetSession& user)
    {
        const QModelIndex group = user.GetModel().GetUserGroup();
        EXPECT_EQ(user.GetModel().rowCount(group), 1);
        return user.GetModel().GetPreset(user.GetModel().index(0, 0, group));
    }
    /// The preset as text with the tables in it, without the id.
    static QByteArray TextOf(const PresetController& preset)
    {
        const JsonDocument document("preset");
        static_cast<const Zorvik::Brassel::ISerializable&>(preset).Serialize(document.GetRoot());
        const auto* const id = document.GetObject()->Find("id")->As<std::string>();
        return document.ToText().replace(QByteArray::fromStdString(*id), "");
    }
    /// All numbers of all tables.
    static std::vector<float> TablesOf(PresetController& preset)
    {
        std::vector<float> numbers;
        const auto settings = preset.MakeSettings();
        for (const auto& effect : settings.Effects())
            if (const auto* const tables = dynamic_cast<const Lut3dSettings*>(effect.get()))
                for (const auto& table : {tables->GetCurve(), tables->GetCube()})
                    if (table)
                        numbers.insert(numbers.end(), table->values.begin(), table->values.end());
        return numbers;
    }
};

} // namespace

TEST_P(RoundTripTest, bringsBackEqualEffectsAndSettings)
{
    const auto& [kind, isPacked] = GetParam();
    const auto mine = Store("mine.json", Write(kind.file, kind.make()));
    const auto original = FindOnly(*mine);
    LookWriter writer;
    writer.Add(*original);
    const QByteArray text = writer.ToFile(LookWriter::Packing::Plain, Path("sent.lumetra"));
    Write("sent.lumetra",
          isPacked ? LumetraHost::ZipWriter::Pack(LookFormat::EntryName, text) : text);

    const auto theirs = Store("theirs.json", Path("sent.lumetra"));
    const auto arrived = FindOnly(*theirs);

    EXPECT_EQ(TextOf(*arrived), TextOf(*original));
    EXPECT_EQ(arrived->GetName(), original->GetName());
    EXPECT_EQ(arrived->GetStartIntensity(), original->GetStartIntensity());
    EXPECT_EQ(arrived->GetCredits().author, original->GetCredits().author);
    EXPECT_EQ(arrived->GetCredits().names, original->GetCredits().names);
    const auto numbers = TablesOf(*original);
    EXPECT_EQ(TablesOf(*arrived), numbers);
    const QString name = QString::fromLatin1(kind.file);
    const bool isTable =
        !name.endsWith(QStringLiteral(".xmp")) && !name.endsWith(QStringLiteral(".lrtemplate")) &&
        !name.endsWith(QStringLiteral(".pp3")) && !name.endsWith(QStringLiteral(".lumetra")) &&
        !name.endsWith(QStringLiteral(".cc"));
    EXPECT_EQ(!numbers.empty(), isTable);
    EXPECT_EQ(ImportInto(*mine, Path("sent.lumetra")).known.size(), 1u)
        << "the sender has it already";
}

INSTANTIATE_TEST_SUITE_P(OfEveryKind, RoundTripTest,
                         testing::Combine(testing::ValuesIn(Kinds), testing::Bool()),
                         [](const auto& test) {
                             return std::string(std::get<0>(test.param).name) +
                                    (std::get<1>(test.param) ? "Packed" : "Plain");
                         });

using RoundTripOfSettings = LookTest;

TEST_F(RoundTripOfSettings, keepsWhatTheUserHasMovedBeforeSharing)
{
    AddPreset("Campfire", Whole);
    const QModelIndex index = session.GetModel().index(0, 0, session.GetModel().GetUserGroup());
    const auto preset = session.GetModel().GetPreset(index);
    session.OpenPhoto(LumetraHost::Image::Allocate(4, 4, LumetraHost::Image::Depth::Bits8));
    session.GetModel().setData(index, true, PresetModel::AppliedRole);
    session.GetModel().setData(index, 20, PresetModel::IntensityRole);
    const auto sent = preset->Copy();
    const QString file = WriteLooks("sent.lumetra", {sent});

    PresetSession friends("test");
    friends.OpenStore(Path("friend.json"));
    friends.Load({}, nullptr);
    ASSERT_EQ(ImportInto(friends, file).presets.size(), 1u);

    const auto arrived = friends.GetModel().GetPreset(
        friends.GetModel().index(0, 0, friends.GetModel().GetUserGroup()));
    EXPECT_EQ(arrived->GetIntensity(), 20);
    EXPECT_EQ(arrived->GetIntensity(), preset->GetIntensity());
}
