// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/foreign/mapping/MappingTable.h"
#include "Places.h"

#include "plugin/core/foreign/SettingExamples.h"

#include <QFile>
#include <QSet>

#include <algorithm>

using namespace LumetraPlugin;
using LumetraTest::FindExample;
using LumetraTest::ForeignFixture;
using LumetraTest::Setting;
using LumetraTest::SettingExample;
using LumetraTest::Settings;
using testing::Contains;
using testing::IsEmpty;

namespace {

constexpr char Begin[] = "<!-- table: begin -->\n";
constexpr char End[] = "<!-- table: end -->";

/// How many of 611 files from public collections set a setting to something, and so what a reader
/// of such files meets.
struct Frequency
{
    const char* setting;
    int files;
};

constexpr Frequency Frequencies[] = {
    {"Contrast2012", 417},
    {"Highlights2012", 412},
    {"Shadows2012", 404},
    {"Whites2012", 379},
    {"Blacks2012", 343},
    {"Exposure2012", 282},
    {"Saturation", 295},
    {"Vibrance", 253},
    {"Clarity2012", 200},
    {"Texture", 57},
    {"Dehaze", 108},
    {"GrainAmount", 305},
    {"GrainSize", 343},
    {"GrainFrequency", 333},
    {"PostCropVignetteAmount", 90},
    {"PostCropVignetteMidpoint", 72},
    {"PostCropVignetteFeather", 58},
    {"Sharpness", 426},
    {"Temperature", 63},
    {"Tint", 20},
    {"ColorNoiseReduction", 55},
    {"LuminanceSmoothing", 19},
    {"HueAdjustmentGreen", 243},
    {"HueAdjustmentYellow", 169},
    {"HueAdjustmentBlue", 167},
    {"HueAdjustmentRed", 151},
    {"HueAdjustmentOrange", 132},
    {"HueAdjustmentAqua", 115},
    {"HueAdjustmentPurple", 90},
    {"HueAdjustmentMagenta", 67},
    {"SaturationAdjustmentGreen", 358},
    {"SaturationAdjustmentBlue", 340},
    {"SaturationAdjustmentOrange", 297},
    {"SaturationAdjustmentYellow", 256},
    {"SaturationAdjustmentRed", 245},
    {"SaturationAdjustmentAqua", 204},
    {"SaturationAdjustmentMagenta", 182},
    {"SaturationAdjustmentPurple", 153},
    {"LuminanceAdjustmentOrange", 252},
    {"LuminanceAdjustmentBlue", 171},
    {"LuminanceAdjustmentGreen", 116},
    {"LuminanceAdjustmentYellow", 102},
    {"LuminanceAdjustmentAqua", 99},
    {"LuminanceAdjustmentRed", 80},
    {"LuminanceAdjustmentPurple", 49},
    {"ColorGradeShadowHue", 354},
    {"ColorGradeShadowSat", 354},
    {"ColorGradeHighlightHue", 351},
    {"ColorGradeHighlightSat", 351},
    {"ColorGradeMidtoneHue", 55},
    {"ColorGradeMidtoneSat", 55},
    {"ColorGradeBalance", 109},
    {"ColorGradeBlending", 451},
    {"SplitToningShadowHue", 70},
    {"SplitToningShadowSaturation", 70},
    {"SplitToningHighlightHue", 70},
    {"SplitToningHighlightSaturation", 70},
    {"SplitToningBalance", 68},
    {"ParametricShadows", 71},
    {"ParametricDarks", 72},
    {"ParametricLights", 71},
    {"ParametricHighlights", 67},
    {"ParametricShadowSplit", 81},
    {"ParametricMidtoneSplit", 81},
    {"ParametricHighlightSplit", 81},
    {"GrayMixerRed", 75},
    {"GrayMixerOrange", 75},
    {"GrayMixerYellow", 75},
    {"GrayMixerGreen", 75},
    {"GrayMixerAqua", 75},
    {"GrayMixerBlue", 75},
    {"GrayMixerPurple", 75},
    {"GrayMixerMagenta", 75},
    {"RedHue", 72},
    {"RedSaturation", 72},
    {"GreenHue", 72},
    {"GreenSaturation", 72},
    {"BlueHue", 72},
    {"BlueSaturation", 72},
    {"ShadowTint", 72},
    {"ConvertToGrayscale", 75},
    {"ToneCurvePV2012", 532},
    {"ToneCurvePV2012Red", 532},
    {"ToneCurvePV2012Green", 532},
    {"ToneCurvePV2012Blue", 532},
    {"CameraProfile", 70},
    {"Look", 75}, // those that end in Monochrome
};

bool IsCarried(const MappingRow& row)
{
    return row.carry == Carry::Exact || row.carry == Carry::Approximate;
}

bool IsOfProfiles(const MappingRow& row)
{
    return row.setting.contains(QLatin1Char('/'));
}

class MappingTableTest : public ForeignFixture
{
protected:
    static void ExpectRemark(const ImportedLook& look, const std::string& name, bool isExpected)
    {
        const auto names = GetRemarked(look, ImportRemark::Kind::Approximated);
        EXPECT_EQ(std::count(names.begin(), names.end(), name), isExpected ? 1 : 0);
    }
    /// The setting's example with what belongs to it.
    static Settings MakeSettings(const std::string& setting)
    {
        const SettingExample example = FindExample(setting);
        Settings all = example.others;
        all.emplace_back(setting, example.value);
        return all;
    }
};

} // namespace

TEST_F(MappingTableTest, carriesAlmostAllThatFilesSet)
{
    int all = 0;
    int carried = 0;
    for (const Frequency& frequency : Frequencies) {
        const MappingRow* const row = MappingTable::Find(QLatin1String(frequency.setting));
        ASSERT_TRUE(row) << frequency.setting;
        all += frequency.files;
        carried += IsCarried(*row) ? frequency.files : 0;
    }
    RecordProperty("carried", carried);
    RecordProperty("all", all);
    EXPECT_GE(carried, 0.97 * all) << carried << " of " << all;
}

TEST_F(MappingTableTest, hasEverySettingOnce)
{
    QSet<QString> names;
    for (const MappingRow& row : MappingTable::GetRows()) {
        EXPECT_FALSE(names.contains(row.setting)) << row.setting.toStdString();
        EXPECT_EQ(IsCarried(row), IsCarried(row) && row.rule) << row.setting.toStdString();
        names.insert(row.setting);
    }
}

TEST_F(MappingTableTest, carriesEverySettingInAllSpellings)
{
    for (const MappingRow& row : MappingTable::GetRows()) {
        if (!IsCarried(row) || IsOfProfiles(row))
            continue;
        const std::string name = row.setting.toStdString();
        SCOPED_TRACE(name);
        const Settings settings = MakeSettings(name);
        const ImportedLook look = Import(settings);
        const std::string effects = Describe(look);
        EXPECT_EQ(effects, Describe(ImportFile("elements.xmp", MakeElements(settings))));
        EXPECT_EQ(effects, Describe(ImportFile("look.lrtemplate", MakeTemplate(settings))));
        const Settings others = FindExample(name).others;
        EXPECT_NE(effects, others.empty() ? std::string() : Describe(Import(others)));
        ExpectRemark(look, name, row.carry == Carry::Approximate);
        EXPECT_THAT(GetRemarked(look, ImportRemark::Kind::LeftOut), IsEmpty());
    }
}

TEST_F(MappingTableTest, carriesEverySettingOfProfiles)
{
    for (const MappingRow& row : MappingTable::GetRows()) {
        // Tables need a file, and this one stands in a packet.
        const bool hasTestOfItsOwn = row.setting.startsWith(QLatin1String("Film Simulation")) ||
                                     row.setting == QLatin1String("Look/ConvertToGrayscale");
        if (!IsCarried(row) || !IsOfProfiles(row) || hasTestOfItsOwn)
            continue;
        const std::string name = row.setting.toStdString();
        SCOPED_TRACE(name);
        const ImportedLook look = ImportProfile(MakeSettings(name));
        const Settings others = FindExample(name).others;
        const bool isAlone = others.empty() || others.front().first == "White Balance/Setting";
        EXPECT_NE(Describe(look), isAlone ? std::string() : Describe(ImportProfile(others)));
        ExpectRemark(look, name, row.carry == Carry::Approximate);
    }
}

TEST_F(MappingTableTest, namesEverySettingThatIsLeftOut)
{
    for (const MappingRow& row : MappingTable::GetRows()) {
        if (row.carry != Carry::LeftOut)
            continue;
        const std::string name = row.setting.toStdString();
        SCOPED_TRACE(name);
        Settings settings = MakeSettings(name);
        const bool isOfProfiles = IsOfProfiles(row);
        settings.emplace_back(isOfProfiles ? "Exposure/Compensation" : "Exposure2012", "1");
        const ImportedLook look = isOfProfiles ? ImportProfile(settings) : Import(settings);
        EXPECT_THAT(GetRemarked(look, ImportRemark::Kind::LeftOut), Contains(name));
        EXPECT_EQ(Describe(look), "exposure stops=1\n");
    }
}

TEST_F(MappingTableTest, keepsQuietAboutWhatSaysNothing)
{
    for (const MappingRow& row : MappingTable::GetRows()) {
        if (row.carry != Carry::Silent || IsOfProfiles(row))
            continue;
        const std::string name = row.setting.toStdString();
        SCOPED_TRACE(name);
        const bool isWritten =
            name == "SupportsAmount" || name == "PresetType" || name == "ProcessVersion";
        Settings settings = isWritten ? Settings() : MakeSettings(name);
        settings.emplace_back("Exposure2012", "1");
        const ImportedLook look = Import(settings);
        EXPECT_TRUE(look.remarks.empty());
        EXPECT_EQ(Describe(look), "exposure stops=1\n");
    }
}

TEST_F(MappingTableTest, namesSettingsThatItDoesNotKnow)
{
    const ImportedLook look =
        Import({{"Exposure2012", "1"}, {"FutureGlow", "12"}, {"FutureShine", "0"}});
    EXPECT_EQ(GetRemarked(look, ImportRemark::Kind::LeftOut),
              std::vector<std::string>{"FutureGlow"});
}

TEST_F(MappingTableTest, keepsQuietAboutSettingsAtTheirNeutralValue)
{
    const ImportedLook look = Import({{"Exposure2012", "+1.00"},
                                      {"Contrast2012", "0"},
                                      {"GrainSize", "25"},
                                      {"ParametricShadowSplit", "25"},
                                      {"LuminanceSmoothing", "0"},
                                      {"LensProfileEnable", "0"},
                                      {"PerspectiveScale", "100"},
                                      {"HasCrop", "False"},
                                      {"ToneCurvePV2012", "0, 0; 255, 255"}});
    EXPECT_EQ(Describe(look), "exposure stops=1\n");
    EXPECT_TRUE(look.remarks.empty());
}

TEST_F(MappingTableTest, theManualHasTheTable)
{
    QFile file(QStringLiteral(LUMETRA_IMPORT_PAGE));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString page = QString::fromUtf8(file.readAll());
    file.close();
    const int begin = page.indexOf(QLatin1String(Begin));
    const int end = page.indexOf(QLatin1String(End));
    ASSERT_TRUE(begin >= 0 && end > begin);
    const int start = begin + static_cast<int>(sizeof Begin) - 1;
    if (qEnvironmentVariableIsSet("LUMETRA_WRITE_IMPORT_PAGE")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write((page.left(start) + MappingTable::MakePage() + page.mid(end)).toUtf8());
        return;
    }
    EXPECT_EQ(page.mid(start, end - start).toStdString(), MappingTable::MakePage().toStdString());
}
