// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetImport.h"

#include "core/ImportFolder.h"
#include "core/PresetSession.h"
#include "core/userstore/UserPresetStore.h"
#include "photo/PhotoWriter.h"
#include "plugin/core/foreign/ForeignFixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <fstream>

#include <sys/stat.h>

using namespace LumetraPlugin;
using LumetraTest::ForeignFixture;
using LumetraTest::Settings;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

constexpr char Inverting[] = "LUT_1D_SIZE 2\n1 1 1\n0 0 0\n";

bool GoOn(int, int, const QString&)
{
    return true;
}

class PresetImportTest : public ForeignFixture
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("looks")));
        session.OpenStore(folder.filePath(QStringLiteral("presets.json")));
        session.Load({}, nullptr);
    }

    QString WriteLook(const std::string& name, const char* exposure = "1",
                      const std::string& title = {})
    {
        QDir(folder.path()).mkpath(QFileInfo(QString::fromStdString("looks/" + name)).path());
        return Write("looks/" + name, MakeXmp({{"Exposure2012", exposure}}, title));
    }
    void WritePicture(const std::string& name, int size)
    {
        LumetraHost::Photo photo;
        photo.image = LumetraHost::Image::Allocate(size, size, LumetraHost::Image::Depth::Bits8);
        LumetraHost::PhotoWriter::Write(folder.filePath(QString::fromStdString("looks/" + name)),
                                        photo);
    }
    QString Looks() const { return folder.filePath(QStringLiteral("looks")); }
    ImportReport Import(const QStringList& paths, const ImportNaming& naming = {})
    {
        return PresetImport::AddTo(session, PresetImport::ReadAll(paths, {}, &GoOn), naming);
    }
    static std::vector<std::string> GetNames(const ImportReport& report)
    {
        std::vector<std::string> names;
        for (const ImportedPreset& preset : report.presets)
            names.push_back(
                preset.index.data(PresetModel::PresetNameRole).toString().toStdString());
        return names;
    }

    PresetSession session{"test"};
};

} // namespace

TEST_F(PresetImportTest, anImportedLookIsTheSameAfterAReload)
{
    const QString path =
        Write("looks/all.xmp", MakeXmp({{"Exposure2012", "+0.33"},
                                        {"Contrast2012", "-17"},
                                        {"ToneCurvePV2012Red", "0, 9; 128, 140; 255, 251"},
                                        {"HueAdjustmentBlue", "-13"},
                                        {"ColorGradeShadowHue", "211"},
                                        {"ColorGradeShadowSat", "7"},
                                        {"GrainAmount", "22"}}));
    const ImportedFiles files = PresetImport::ReadAll({path}, {}, &GoOn);
    PresetImport::AddTo(session, files);
    session.GetStore()->Save(session.GetModel());

    PresetSession again("test");
    again.OpenStore(folder.filePath(QStringLiteral("presets.json")));
    again.Load({}, nullptr);
    const auto group = again.GetModel().GetUserGroup();
    ASSERT_EQ(again.GetModel().rowCount(group), 1);
    const auto preset = again.GetModel().GetPreset(again.GetModel().index(0, 0, group));
    ImportedLook stored;
    for (const auto& effect : preset->MakeSettings().EffectsConst())
        stored.effects.push_back(effect);
    EXPECT_EQ(Describe(stored), Describe(files.back().looks.front()));
    EXPECT_THAT(Describe(stored), HasSubstr("toneCurve redPoints=3"));
}

TEST_F(PresetImportTest, theIntensityLeadsFromThePhotoToTheWholeLook)
{
    const auto report = Import({WriteLook("a.xmp")});
    session.OpenPhoto(LumetraHost::Image::Allocate(2, 2, LumetraHost::Image::Depth::Bits8));
    const QModelIndex index = report.presets.front().index;
    const auto preset = session.GetModel().GetPreset(index);
    EXPECT_EQ(preset->GetIntensity(), 100);
    EXPECT_EQ(preset->MakeSettings().GetBlendAmount(),
              Zorvik::Quindle::EffectsSettings::FullEffect);
    session.GetModel().setData(index, 1, PresetModel::IntensityRole);
    EXPECT_EQ(preset->MakeSettings().GetBlendAmount(), Zorvik::Quindle::EffectsSettings::NoEffect);
}

TEST_F(PresetImportTest, tellsLooksOfOneNameApartByGroupAndNumber)
{
    const auto writeTravel = [this](const char* name, const char* exposure) {
        QByteArray travel = MakeXmp({{"Exposure2012", exposure}}, "Soft");
        travel.replace("</crs:Name>",
                       "</crs:Name><crs:Group><rdf:Alt><rdf:li xml:lang=\"x-default\">"
                       "Travel</rdf:li></rdf:Alt></crs:Group>");
        Write(name, travel);
    };
    WriteLook("1.xmp", "1", "Soft");
    writeTravel("looks/2.xmp", "2");
    writeTravel("looks/3.xmp", "3");
    WriteLook("4.xmp", "4", "Soft");
    EXPECT_THAT(GetNames(Import({Looks()})),
                ElementsAre("Soft", "Soft (Travel)", "Soft (Travel) 2", "Soft 2"));
}

TEST_F(PresetImportTest, givesALookWithoutAVisibleNameOne)
{
    Write("looks/a.xmp", MakeXmp({{"Exposure2012", "1"}}, "&#x202e;"));
    EXPECT_THAT(GetNames(Import({Looks()})), ElementsAre("Look"));
}

TEST_F(PresetImportTest, aFolderStandsForAllLooksBelowIt)
{
    WriteLook("b.xmp");
    WriteLook("a/c.XMP", "2");
    Write("looks/a/d.cube", Inverting);
    Write("looks/a.txt", "no look");
    Write("looks/photo.png", "no look either");
    WriteLook("._b.xmp");
    QFile::link(Looks(), folder.filePath(QStringLiteral("looks/a/back")));
    const auto report = Import({Looks()});
    EXPECT_THAT(GetNames(report), ElementsAre("b", "c", "d"));
    EXPECT_EQ(report.problems, QStringList());
}

TEST_F(PresetImportTest, ofPicturesInAFolderOnlyTablesCount)
{
    WritePicture("table.png", 8);
    WritePicture("square.png", 30);
    const auto report = Import({Looks()});
    EXPECT_THAT(GetNames(report), ElementsAre("table"));
    EXPECT_EQ(report.problems, QStringList());
}

TEST_F(PresetImportTest, tellsOfFilesInAFolderThatCannotBeRead)
{
    WriteLook("a.xmp");
    QFile::link(QStringLiteral("nowhere.xmp"), Looks() + QStringLiteral("/b.xmp"));
    const std::string unnameable = QFile::encodeName(Looks()).toStdString() + "/c\xff.xmp";
    std::ofstream(unnameable) << "x";
    ASSERT_EQ(mkfifo((QFile::encodeName(Looks()) + "/d.xmp").constData(), 0600), 0);
    const auto report = Import({Looks()});
    EXPECT_THAT(GetNames(report), ElementsAre("a"));
    EXPECT_EQ(report.problems.size(), 3) << "one is told however file names are encoded";
    EXPECT_EQ(std::remove(unnameable.c_str()), 0) << "Qt's folder could not";
    const std::string all = report.problems.join(QLatin1Char('\n')).toStdString();
    EXPECT_THAT(all, HasSubstr("b.xmp: cannot be read"));
    EXPECT_THAT(all, HasSubstr("d.xmp: expected a plain file"));
}

TEST_F(PresetImportTest, aFolderThatIsTooDeepIsRefusedWhole)
{
    WriteLook("a.xmp");
    QString deep = QStringLiteral("looks");
    for (int i = 0; i < ImportFolder::DeepestFolder; ++i)
        deep += QStringLiteral("/d");
    ASSERT_TRUE(QDir(folder.path()).mkpath(deep));
    const auto report = Import({Looks()});
    EXPECT_TRUE(report.presets.empty());
    ASSERT_EQ(report.problems.size(), 1);
    EXPECT_THAT(report.problems[0].toStdString(), HasSubstr("in folders of at most 16 levels"));
}

TEST_F(PresetImportTest, tellsOfFilesThatAreNoLooksAndTakesTheOthers)
{
    WriteLook("a.xmp");
    WriteLook("d.xmp", "2");
    QByteArray other = MakeTemplate({{"Exposure2012", "1"}});
    Write("looks/b.lrtemplate", other.replace("Develop", "Export"));
    Write("looks/c.xmp", "<x>");
    const auto report = Import({Looks()});
    EXPECT_THAT(GetNames(report), ElementsAre("a", "d"));
    ASSERT_EQ(report.problems.size(), 2);
    EXPECT_THAT(report.problems[0].toStdString(),
                HasSubstr("b.lrtemplate: expected a template of"));
    EXPECT_THAT(report.problems[1].toStdString(), HasSubstr("c.xmp:1: expected well-formed XML"));
}

TEST_F(PresetImportTest, tellsOfFoldersWithoutLooks)
{
    const auto report = Import({Looks()});
    ASSERT_EQ(report.problems.size(), 1);
    EXPECT_EQ(report.problems[0],
              Looks() + QStringLiteral(": expected files with looks, found none"));
}

TEST_F(PresetImportTest, addsAThousandLooksInOneInsertion)
{
    for (int i = 0; i < 1000; ++i)
        WriteLook(std::to_string(1000 + i) + ".xmp", std::to_string(0.001 * (i + 1)).c_str(),
                  "Same");
    int insertions = 0;
    QObject::connect(&session.GetModel(), &QAbstractItemModel::rowsInserted,
                     [&insertions] { ++insertions; });
    const auto names = GetNames(Import({Looks()}));
    ASSERT_EQ(names.size(), 1000u);
    EXPECT_EQ(names.back(), "Same 1000");
    EXPECT_EQ(insertions, 1);
    EXPECT_EQ(session.GetModel().rowCount(session.GetModel().GetUserGroup()), 1000);
}

TEST_F(PresetImportTest, nothingIsReadOnceTheUserHasEndedIt)
{
    for (int i = 0; i < 20; ++i)
        WriteLook(std::to_string(10 + i) + ".xmp");
    std::vector<int> told;
    const auto files =
        PresetImport::ReadAll({Looks()}, {}, [&](int done, int total, const QString&) {
            told.push_back(done);
            EXPECT_EQ(total, 20);
            return done < 5;
        });
    EXPECT_TRUE(files.empty());
    EXPECT_THAT(told, ElementsAre(0, 1, 2, 3, 4, 5));
}

TEST_F(PresetImportTest, indexesThatOthersKeepStayRight)
{
    const QPersistentModelIndex first = Import({WriteLook("a.xmp")}).presets.front().index;
    for (int i = 0; i < 50; ++i)
        WriteLook("more/" + std::to_string(10 + i) + ".xmp", std::to_string(0.01 * i).c_str());
    Import({folder.filePath(QStringLiteral("looks/more"))});
    EXPECT_EQ(first.data(PresetModel::PresetNameRole).toString(), QStringLiteral("a"));
}

TEST_F(PresetImportTest, filesOfUnknownNamesAreRefusedByName)
{
    const auto report = Import({Write("looks/a.txt", "hello")});
    ASSERT_EQ(report.problems.size(), 1);
    EXPECT_THAT(report.problems[0].toStdString(), HasSubstr("a.txt: expected a name that ends in"));
}

TEST_F(PresetImportTest, aFolderThatIsImportedAgainAddsNothing)
{
    const Settings settings = {{"Exposure2012", "0.5"}, {"Vibrance", "21"}};
    WriteLook("a.xmp", "1", "Soft");
    Write("looks/b.lrtemplate", MakeTemplate(settings));
    Write("looks/c.pp3", MakeProfile({{"Exposure/Contrast", "12"}}));
    Write("looks/d.cube", Inverting);
    Write("looks/e.json", R"({ "format": "lumetra-catalogue", "version": 1, "groups": [ {
      "name": "Others", "items": [ { "name": "Dusk", "id": "others.dusk",
      "effects": [ { "effect": { "id": "exposure", "stops": -1 } } ] } ] } ] })");
    EXPECT_THAT(GetNames(Import({Looks()})), ElementsAre("Soft", "Old Paper", "c", "d", "Dusk"));
    session.GetStore()->Save(session.GetModel());
    PresetSession later("test");
    later.OpenStore(folder.filePath(QStringLiteral("presets.json")));
    later.Load({}, nullptr);

    const auto again = PresetImport::AddTo(later, PresetImport::ReadAll({Looks()}, {}, &GoOn));

    EXPECT_TRUE(again.presets.empty());
    EXPECT_TRUE(again.problems.isEmpty());
    std::vector<std::string> known;
    for (const KnownLook& look : again.known)
        known.push_back(look.name.toStdString() + " = " + look.knownAs.toStdString());
    EXPECT_THAT(known, ElementsAre("Soft = Soft", "Old Paper = Old Paper", "c = c", "d = d",
                                   "Dusk = Dusk"));
}

TEST_F(PresetImportTest, theSameSettingsInAnotherSpellingAreOnePreset)
{
    const Settings settings = {{"Exposure2012", "0.5"}, {"Vibrance", "21"}};
    Write("looks/a.xmp", MakeXmp(settings, "First"));
    Write("looks/b.xmp", MakeElements(settings));
    Write("looks/c.lrtemplate", MakeTemplate(settings));
    const auto report = Import({Looks()});
    EXPECT_THAT(GetNames(report), ElementsAre("First"));
    ASSERT_EQ(report.known.size(), 2u);
    EXPECT_EQ(report.known[0].name, QStringLiteral("b"));
    EXPECT_EQ(report.known[0].knownAs, QStringLiteral("First"));
}

TEST_F(PresetImportTest, aLookThatDiffersInOneValueIsAnotherOne)
{
    Write("looks/a.xmp", MakeXmp({{"Exposure2012", "0.5"}, {"Vibrance", "21"}}));
    Write("looks/b.xmp", MakeXmp({{"Exposure2012", "0.5"}, {"Vibrance", "22"}}));
    EXPECT_THAT(GetNames(Import({Looks()})), ElementsAre("a", "b"));
}
