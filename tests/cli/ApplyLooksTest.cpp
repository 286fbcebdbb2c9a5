// SPDX-License-Identifier: GPL-2.0-or-later
// Which looks apply puts on photos: several, all of a kind, and the photos' own edits.
#include "CliTest.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "photo/PhotoReader.h"
#include "photo/metadata/EditRecord.h"
#include "storage/JsonDocument.h"

#include <QDir>
#include <QFile>

using LumetraHost::EditRecords;
using LumetraHost::HaveSamePixels;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr char BrightEdit[] = R"({ "format": "lumetra-sidecar", "version": 3, "layers": [
    { "module": "looks", "on": true, "open": false, "package": "lumetra.presets",
      "preset": "Test Bright", "blend": 1, "name": "Test Bright", "intensity": 100,
      "effects": [ { "effect": { "id": "exposure", "stops": 1 } } ] },
    { "module": "other", "on": false, "open": false, "package": "x", "preset": "Off", "blend": 1,
      "name": "Off", "intensity": 100,
      "effects": [ { "effect": { "id": "saturation", "amount": -100 } } ] } ] })";

class ApplyLooksTest : public CliTest
{
protected:
    CliResult Apply(const QStringList& arguments) const
    {
        return Run(QStringList{QStringLiteral("apply")} + arguments +
                   Words("--store presets.json"));
    }
    CliResult Apply(const char* line) const { return Apply(Words(line)); }

    /// "preset intensity" of each record.
    std::vector<std::string> Records(const char* name) const
    {
        std::vector<std::string> texts;
        for (const auto& record :
             EditRecords::Read(LumetraHost::PhotoReader::Read(Path(name)).metadata.xmp))
            texts.push_back(record.preset + " " + std::to_string(record.intensity));
        return texts;
    }

    /// "id intensity" of each look in that line of a report; 0 for a look without intensity.
    static std::vector<std::string> ReportedLooks(const CliResult& result, int line)
    {
        const auto looks =
            LumetraHost::JsonDocument::Parse(
                QByteArray::fromStdString(result.output).split('\n').value(line), "line")
                .GetRoot()
                ->GetCollection("looks");
        std::vector<std::string> texts;
        for (std::size_t i = 0; i < looks->GetCount(); ++i)
            texts.push_back(looks->GetElement(i)->Get("id", "") + " " +
                            std::to_string(looks->GetElement(i)->Get("intensity", 0)));
        return texts;
    }

    void ExpectUsageError(const char* line, const std::string& message)
    {
        WritePhoto("a.png");
        const CliResult result = Apply(line);
        EXPECT_EQ(result.code, 2) << line;
        EXPECT_THAT(result.output, IsEmpty()) << line;
        EXPECT_THAT(result.messages, HasSubstr("lumetra-presets: " + message + "\n")) << line;
    }
};

} // namespace

TEST_F(ApplyLooksTest, putsSeveralLooksUponEachOther)
{
    WritePhoto("a.png");

    const CliResult both = Apply("a.png -p test.bright -i 60 -p test.slide -o both.png");
    ASSERT_EQ(both.code, 0) << both.messages;
    ASSERT_EQ(Apply("a.png -p test.bright -i 60 -o one.png").code, 0);
    ASSERT_EQ(Apply("one.png --again -p test.slide -o two.png").code, 0);

    EXPECT_TRUE(HaveSamePixels(ReadPhoto("both.png"), ReadPhoto("two.png")));
    EXPECT_FALSE(HaveSamePixels(ReadPhoto("both.png"), ReadPhoto("one.png")));
    EXPECT_THAT(Records("both.png"), ElementsAre("Test Bright 60", "Test Slide 25"));
}

TEST_F(ApplyLooksTest, valuesBelongToTheLookBeforeThem)
{
    WritePhoto("a.png");

    ASSERT_EQ(
        Apply("a.png -p test.bright --set exposure=0 -i 50 --preset=test.slide --intensity=10 "
              "-o after.png")
            .code,
        0);
    ASSERT_EQ(Apply("a.png -p test.slide -i 10 -o slide.png").code, 0);
    ASSERT_EQ(Apply("-i 10 a.png -p test.slide -o before.png").code, 0);

    EXPECT_THAT(Records("after.png"), ElementsAre("Test Bright 50", "Test Slide 10"));
    EXPECT_TRUE(HaveSamePixels(ReadPhoto("after.png"), ReadPhoto("slide.png")));
    EXPECT_EQ(ReadFile("before.png"), ReadFile("slide.png"));
}

TEST_F(ApplyLooksTest, aLookThatIsGivenTwiceHasItsOwnValuesEachTime)
{
    WritePhoto("a.png");

    ASSERT_EQ(
        Apply("a.png -p test.bright -i 20 --set exposure=-50 -p test.bright -o twice.png").code, 0);
    ASSERT_EQ(Apply("a.png -p test.bright -i 20 --set exposure=-50 -o one.png").code, 0);
    ASSERT_EQ(Apply("one.png --again -p test.bright -o two.png").code, 0);

    EXPECT_THAT(Records("twice.png"), ElementsAre("Test Bright 20", "Test Bright 80"));
    EXPECT_TRUE(HaveSamePixels(ReadPhoto("twice.png"), ReadPhoto("two.png")));
}

TEST_F(ApplyLooksTest, namesFilesAfterAllLooks)
{
    WritePhoto("a.png");

    EXPECT_EQ(Apply("a.png -p test.bright -i 60 -p test.plain").code, 0);
    EXPECT_EQ(Apply("a.png -p test.bright -p test.plain -o {group}/{intensity}.png").code, 0);

    EXPECT_TRUE(Exists("a_Test Bright+Test Plain.png"));
    EXPECT_TRUE(Exists("Test looks/80+100.png"));
}

TEST_F(ApplyLooksTest, makesAFileForEachLookOfAGroup)
{
    WritePhoto("a.png");
    WritePhoto("b.png");

    const CliResult result =
        Apply({QStringLiteral("a.png"), QStringLiteral("b.png"), QStringLiteral("--group"),
               QStringLiteral("test LOOKS"), QStringLiteral("-o"),
               QStringLiteral("out/{name}-{preset}.png")});

    EXPECT_EQ(result.code, 1) << "the two looks of one name";
    EXPECT_EQ(
        QDir(Path("out")).entryList(QDir::Files, QDir::Name),
        QStringList({QStringLiteral("a-Test Bright.png"), QStringLiteral("a-Test Grey.png"),
                     QStringLiteral("a-Test Plain.png"), QStringLiteral("a-Test Slide.png"),
                     QStringLiteral("b-Test Bright.png"), QStringLiteral("b-Test Grey.png"),
                     QStringLiteral("b-Test Plain.png"), QStringLiteral("b-Test Slide.png")}));
    EXPECT_THAT(result.messages, HasSubstr("a.png: expected an output of its own, found \""));
    EXPECT_THAT(result.messages, HasSubstr("which is that of another look on it too"));
    EXPECT_LT(result.output.find("a-Test Slide"), result.output.find("b-Test Bright"));
}

TEST_F(ApplyLooksTest, makesAFileForEachFavouriteUponThePreset)
{
    WritePhoto("a.png");
    for (const char* name : {"test.grey", "test.bright"})
        ASSERT_EQ(
            Run(Words("favourite --store presets.json") + QStringList{QLatin1String(name)}).code,
            0);

    const CliResult result = Apply("a.png --favourites -p test.plain --json");

    EXPECT_EQ(result.code, 0) << result.messages;
    EXPECT_THAT(Records("a_Test Bright.png"), ElementsAre("Test Plain 100", "Test Bright 80"));
    EXPECT_THAT(Records("a_Test Grey.png"), ElementsAre("Test Plain 100", "Test Grey 80"));
    EXPECT_THAT(ReportedLooks(result, 0), ElementsAre("test.plain 0", "test.bright 80"));
    EXPECT_THAT(ReportedLooks(result, 1), ElementsAre("test.plain 0", "test.grey 80"));
}

TEST_F(ApplyLooksTest, aLookOfASeriesThatCannotBeUsedCostsItselfAlone)
{
    WritePhoto("a.png");
    WriteFile("broken.json", R"({ "format": "lumetra-catalogue", "version": 1, "groups": [
        { "name": "Mixed", "settings": { "appStoreId": { "id": "shop" } }, "items": [
            { "name": "Gone", "id": "gone", "resource": "missing.json" },
            { "name": "Fine", "id": "fine", "settings": { "effects": [
                { "effect": { "id": "exposure", "stops": 1 } } ] } } ] } ] })");

    const CliResult result = Apply("a.png --group Mixed --catalogue broken.json");

    EXPECT_EQ(result.code, 1);
    EXPECT_TRUE(Exists("a_Fine.png"));
    EXPECT_FALSE(Exists("a_Gone.png"));
    EXPECT_THAT(
        result.messages,
        HasSubstr(
            "lumetra-presets: \"Gone\": expected its effects in the file \"shop/missing.json\""));
}

TEST_F(ApplyLooksTest, refusesSeriesThatCannotBe)
{
    ExpectUsageError("a.png --favourites", "--favourites: expected favourites, found none; "
                                           "\"favourite\" makes a preset one");
    ExpectUsageError("a.png --group Test_looks",
                     "--group: expected the name of a group with presets, found \"Test_looks\", "
                     "did you mean \"Test looks\"?");
    ExpectUsageError("a.png --favourites --group x",
                     "expected --favourites or --group, found both");
    ExpectUsageError("a.png --favourites -o {name}.png",
                     "--output: expected {preset} in the name, as each preset makes a file of its "
                     "own");
    ExpectUsageError("a.png --favourites -i 60",
                     "--intensity: expected a --preset that it belongs to, found none");
    ExpectUsageError("a.png --edits --set exposure=5",
                     "--set: expected a --preset that it belongs to, found none");
    ExpectUsageError("a.png --edits -o {preset}.png",
                     "--output: expected no {preset}, as no preset is named, found it");
    ExpectUsageError("a.png", "expected a look: --preset, --favourites, --group or --edits");
}

TEST_F(ApplyLooksTest, drawsThePhotosOwnEdit)
{
    WritePhoto("a.png");
    WritePhoto("plain.png");
    WriteFile("a.png.lumetra.json", BrightEdit);

    const CliResult result = Apply("a.png plain.png --edits");

    EXPECT_EQ(result.code, 0) << result.messages;
    EXPECT_EQ(result.messages, "lumetra-presets: 2 written\n");
    ASSERT_EQ(Apply("a.png -p test.bright -i 100 -o look.png").code, 0);
    EXPECT_TRUE(HaveSamePixels(ReadPhoto("a_edited.png"), ReadPhoto("look.png")));
    EXPECT_THAT(Records("a_edited.png"), ElementsAre("Test Bright 100"));
    EXPECT_TRUE(HaveSamePixels(ReadPhoto("plain_edited.png"), ReadPhoto("plain.png")))
        << "a photo without an edit is written as it is";
    EXPECT_THAT(Records("plain_edited.png"), IsEmpty());
    EXPECT_EQ(ReadFile("a.png.lumetra.json"), BrightEdit);
}

TEST_F(ApplyLooksTest, putsALookUponTheEdit)
{
    WritePhoto("a.png");
    WriteFile("a.png.lumetra.json", BrightEdit);

    ASSERT_EQ(Apply("a.png --edits -p test.grey").code, 0);
    ASSERT_EQ(Apply("a.png -p test.bright -i 100 -p test.grey -o both.png").code, 0);

    EXPECT_TRUE(HaveSamePixels(ReadPhoto("a_Test Grey.png"), ReadPhoto("both.png")));
    EXPECT_THAT(Records("a_Test Grey.png"), ElementsAre("Test Bright 100", "Test Grey 80"));
}

TEST_F(ApplyLooksTest, anEditThatCannotBeReadFailsItsPhotoAlone)
{
    WritePhoto("a.png");
    WritePhoto("b.png");
    WritePhoto("c.png");
    WriteFile("a.png.lumetra.json", "{ \"format\": ");
    WriteFile("b.png.lumetra.json", R"({ "format": "lumetra-sidecar", "version": 99 })");

    const CliResult result = Apply("a.png b.png c.png --edits");

    EXPECT_EQ(result.code, 1);
    EXPECT_THAT(result.messages,
                HasSubstr("lumetra-presets: a.png: the edit of the photo cannot be "
                          "read: "));
    EXPECT_THAT(result.messages, HasSubstr("a.png.lumetra.json"));
    EXPECT_THAT(result.messages, HasSubstr("b.png.lumetra.json/version: expected"));
    EXPECT_FALSE(Exists("a_edited.png") || Exists("b_edited.png"));
    EXPECT_TRUE(Exists("c_edited.png"));
}

TEST_F(ApplyLooksTest, aDryRunFindsTheEditsThatCannotBeRead)
{
    WritePhoto("a.png");
    WritePhoto("b.png");
    WritePhoto("c.png");
    WriteFile("a.png.lumetra.json", "{ \"format\": ");
    QByteArray edit(BrightEdit);
    edit.insert(edit.indexOf("\"layers\""), R"("photo": { "size": 5, "sha256": "00" }, )");
    WriteFile("b.png.lumetra.json", edit);

    for (const std::string more : {"", " --overwrite", " --skip"}) {
        const CliResult result = Apply(("a.png b.png c.png --edits --dry-run" + more).c_str());

        EXPECT_EQ(result.code, 1);
        EXPECT_THAT(result.messages,
                    HasSubstr("lumetra-presets: a.png: the edit of the photo cannot be read: "));
        EXPECT_THAT(result.messages, HasSubstr("b.png: warning: the edit \""));
        EXPECT_THAT(result.messages, HasSubstr("2 to be written"));
        EXPECT_THAT(result.output, HasSubstr("c_edited.png"));
        EXPECT_THAT(result.output, testing::Not(HasSubstr("a_edited.png")));
    }
    EXPECT_FALSE(Exists("c_edited.png"));
}

TEST_F(ApplyLooksTest, warnsOfAnEditThatWasMadeForOtherContent)
{
    WritePhoto("a.png");
    QByteArray edit(BrightEdit);
    edit.insert(edit.indexOf("\"layers\""), R"("photo": { "size": 5, "sha256": "00" }, )");
    WriteFile("a.png.lumetra.json", edit);

    const CliResult result = Apply("a.png --edits");

    EXPECT_EQ(result.code, 0);
    EXPECT_THAT(result.messages, HasSubstr("a.png: warning: the edit \""));
    EXPECT_THAT(result.messages, HasSubstr("was made when the photo had other content"));
    EXPECT_THAT(Records("a_edited.png"), ElementsAre("Test Bright 100"));
}
