// SPDX-License-Identifier: GPL-2.0-or-later
#include "CliTest.h"

#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "photo/metadata/EditRecord.h"

#include <QDir>

using LumetraHost::EditRecords;
using LumetraHost::Image;
using LumetraHost::PhotoMetadata;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class ApplyRecipeTest : public CliTest
{
protected:
    CliResult Apply(const char* line) const { return Run(Words("apply") + Words(line)); }

    PhotoMetadata ReadMetadata(const char* name) const
    {
        return LumetraHost::PhotoReader::Read(Path(name)).metadata;
    }

    /// "width x height, bits".
    std::string Describe(const char* name) const
    {
        const Image image = ReadPhoto(name);
        return std::to_string(image.GetWidth()) + " x " + std::to_string(image.GetHeight()) + ", " +
               std::to_string(8 * image.GetBytesPerChannel());
    }
};

} // namespace

TEST_F(ApplyRecipeTest, limitsTheLongestSideAndNeverEnlarges)
{
    WritePhoto("wide.png", 300, 200);
    WritePhoto("tall.jpg", 200, 300);
    WritePhoto("small.png", 99, 66);

    const CliResult result =
        Apply("wide.png tall.jpg small.png -p test.bright --size 100 -o out/{name}.{ext}");

    EXPECT_EQ(result.code, 0) << result.messages;
    EXPECT_EQ(Describe("out/wide.png"), "100 x 67, 8");
    EXPECT_EQ(Describe("out/tall.jpg"), "67 x 100, 8");
    EXPECT_EQ(Describe("out/small.png"), "99 x 66, 8");
}

TEST_F(ApplyRecipeTest, writesTheBitsThatAreAskedFor)
{
    WritePhoto("a.jpg");

    EXPECT_EQ(Apply("a.jpg -p test.bright --depth 16 -o wide.png").code, 0);
    EXPECT_EQ(Apply("wide.png --again -p test.bright -o same.tif").code, 0);
    EXPECT_EQ(Apply("wide.png --again -p test.bright --depth 8 -o narrow.tif").code, 0);

    EXPECT_EQ(Describe("wide.png"), "48 x 32, 16");
    EXPECT_EQ(Describe("same.tif"), "48 x 32, 16");
    EXPECT_EQ(Describe("narrow.tif"), "48 x 32, 8");
}

// Steps between those of 8 bits: the effects are drawn with 16.
TEST_F(ApplyRecipeTest, drawsWithTheBitsOfTheFile)
{
    WritePhoto("a.jpg");
    ASSERT_EQ(Apply("a.jpg -p test.bright --depth 16 -o wide.png").code, 0);

    const Image wide = ReadPhoto("wide.png");

    int finer = 0;
    for (int x = 0; x < wide.GetWidth(); ++x)
        finer += wide.Row16(9)[4 * x] % 257 != 0 ? 1 : 0;
    EXPECT_GT(finer, wide.GetWidth() / 2);
}

TEST_F(ApplyRecipeTest, refusesWhatNoFileCanHave)
{
    WritePhoto("a.jpg");
    WritePhoto("b.png");
    const QStringList before = QDir(folder.path()).entryList();
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"--depth 12", "--depth: expected 8 or 16, found \"12\""},
        {"--depth", "--depth"},
        {"--size 0", "--size: expected a whole number from 1 to 65500, found \"0\""},
        {"--size 65501", "--size: expected a whole number from 1 to 65500, found \"65501\""},
        {"--size 40%", "--size: expected a whole number from 1 to 65500, found \"40%\""},
        {"--metadata some", "--metadata: expected all or none, found \"some\""},
        {"--depth 16", "--depth: expected an output that holds 16 bits, .png or .tif, found \""},
        {"--depth 16 --dry-run", "--depth: expected an output that holds 16 bits"},
        {"--depth 16 -o {name}-x.jpg", "-x.jpg\"; --output names another"},
    };
    for (const auto& [options, message] : cases) {
        const CliResult result = Run(Words("apply b.png a.jpg -p test.bright") + Words(options));
        EXPECT_EQ(result.code, 2) << options;
        EXPECT_THAT(result.output, IsEmpty()) << options;
        EXPECT_THAT(result.messages, HasSubstr(message)) << options;
    }
    EXPECT_EQ(QDir(folder.path()).entryList(), before);
}

TEST_F(ApplyRecipeTest, recordsThePresetWithItsIntensity)
{
    WritePhoto("a.png");

    ASSERT_EQ(Apply("a.png -p test.bright -o own.jpg").code, 0);
    ASSERT_EQ(Apply("own.jpg --again -p test.slide -i 30 -o both.tif").code, 0);

    const auto records = EditRecords::Read(ReadMetadata("both.tif").xmp);
    ASSERT_EQ(records.size(), 2u);
    EXPECT_EQ(records[0].preset, "Test Bright");
    EXPECT_EQ(records[0].intensity, 80);
    EXPECT_EQ(records[1].preset, "Test Slide");
    EXPECT_EQ(records[1].intensity, 30);
    EXPECT_THAT(ReadMetadata("both.tif").xmp.toStdString(),
                HasSubstr("CreatorTool=\"Lumetra " LUMETRA_VERSION "\""));
}

TEST_F(ApplyRecipeTest, recordsAPresetWithoutIntensityAsAWhole)
{
    WritePhoto("a.png");

    ASSERT_EQ(Apply("a.png -p test.plain -o b.jpg").code, 0);

    const auto records = EditRecords::Read(ReadMetadata("b.jpg").xmp);
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].preset, "Test Plain");
    EXPECT_EQ(records[0].intensity, 100);
}

TEST_F(ApplyRecipeTest, leavesTheMetadataOutWhenToldTo)
{
    WritePhoto("a.png");
    ASSERT_EQ(Apply("a.png -p test.bright -o kept.jpg --metadata all").code, 0);

    const CliResult result = Apply("kept.jpg --again -p test.bright --metadata none -o bare.jpg");

    EXPECT_EQ(result.code, 0);
    EXPECT_FALSE(ReadMetadata("kept.jpg").xmp.isEmpty());
    EXPECT_TRUE(ReadMetadata("bare.jpg").xmp.isEmpty());
    EXPECT_TRUE(ReadMetadata("bare.jpg").exif.isEmpty());
    EXPECT_FALSE(ReadMetadata("bare.jpg").iccProfile.isEmpty());
}

TEST_F(ApplyRecipeTest, makesTheSameFilesWhateverTheNumberOfJobs)
{
    WritePhoto("a.jpg", 400, 300);
    WritePhoto("b.png", 300, 400);
    const QStringList options = Words("a.jpg b.png -p test.bright --size 123 --depth 16");

    ASSERT_EQ(Run(Words("apply") + options + Words("-j 1 -o one/{name}.tif")).code, 0);
    ASSERT_EQ(Run(Words("apply") + options + Words("-j 2 -o two/{name}.tif")).code, 0);

    for (const char* name : {"a.tif", "b.tif"})
        EXPECT_EQ(ReadFile((std::string("one/") + name).c_str()),
                  ReadFile((std::string("two/") + name).c_str()));
}

TEST_F(ApplyRecipeTest, saysInTheHelpWhatAFileMayBeLike)
{
    const std::string help = Run(Words("apply --help")).output;

    for (const char* option : {"--size <number>", "--depth <8|16>", "--metadata <all|none>"})
        EXPECT_THAT(help, HasSubstr(option));
}
