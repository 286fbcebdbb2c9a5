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
        {"--size 0MP", "--size: expected up to 500 megapixels, such as 12MP, found \"0MP\""},
        {"--size 501MP", "--size: expected up to 500 megapixels, such as 12MP, found \"501MP\""},
        {"--size nanMP", "--size: expected up to 500 megapixels"},
        {"--metadata some", "--metadata: expected all, no-gps, copyright, none, found \"some\""},
        {"--format gif", "--format: expected jpeg, png, tiff, webp, found \"gif\""},
        {"--subsampling 4:1:1",
         "--subsampling: expected automatic, 4:4:4, 4:2:2, 4:2:0, found \"4:1:1\""},
        {"--compression zip", "--compression: expected none, lzw, deflate, found \"zip\""},
        {"--depth 16 -o {name}-x.webp", "-x.webp\"; --output names another"},
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

TEST_F(ApplyRecipeTest, limitsTheMegapixels)
{
    WritePhoto("wide.png", 300, 200);

    EXPECT_EQ(Apply("wide.png -p test.bright --size 0.015MP -o small.png").code, 0);
    EXPECT_EQ(Apply("wide.png -p test.bright --size 12mp -o same.png").code, 0);

    EXPECT_EQ(Describe("small.png"), "150 x 100, 8");
    EXPECT_EQ(Describe("same.png"), "300 x 200, 8");
}

TEST_F(ApplyRecipeTest, writesTheFormatThatIsAskedFor)
{
    WritePhoto("a.png");
    WritePhoto("b.jpg");

    EXPECT_EQ(Apply("a.png b.jpg -p test.bright --format webp -o out/{name}.{ext}").code, 0);
    EXPECT_EQ(Apply("a.png -p test.bright --format tiff -o out/named.tiff").code, 0);

    for (const char* const name : {"out/a.webp", "out/b.webp"})
        EXPECT_TRUE(ReadFile(name).startsWith("RIFF")) << name;
    EXPECT_TRUE(ReadFile("out/named.tiff").startsWith("II*"));
}

TEST_F(ApplyRecipeTest, refusesANameOfAnotherFormatThanIsAskedFor)
{
    WritePhoto("a.png");

    const CliResult result = Apply("a.png -p test.bright --format webp -o out.jpg");

    EXPECT_EQ(result.code, 2);
    EXPECT_THAT(result.messages,
                HasSubstr("--format: expected an output that ends in .{ext} or .webp, found"));
    EXPECT_FALSE(Exists("out.jpg"));
}

TEST_F(ApplyRecipeTest, encodesAsItIsTold)
{
    WritePhoto("a.png", 300, 200);
    const auto getSize = [this](const char* options, const char* name) {
        EXPECT_EQ(Run(Words("apply a.png -p test.bright -o") + Words(name) + Words(options)).code,
                  0)
            << options;
        return ReadFile(name).size();
    };
    const auto full = getSize("--subsampling 4:4:4 --quality 80", "full.jpg");
    EXPECT_LT(getSize("--subsampling 4:2:2 --quality 80", "half.jpg"), full);
    EXPECT_LT(getSize("--subsampling 4:2:0 --quality 80", "quarter.jpg"),
              getSize("--subsampling 4:2:2 --quality 80", "again.jpg"));
    EXPECT_NE(getSize("--subsampling 4:4:4 --quality 80 --progressive", "progressive.jpg"), full);
    EXPECT_LT(getSize("--compression deflate", "deflate.tif"),
              getSize("--compression none", "none.tif"));
    getSize("--lossless", "lossless.webp");
    EXPECT_LT(getSize("--quality 30", "lossy.webp"), ReadFile("lossless.webp").size());
    getSize("", "plain.png");
    EXPECT_TRUE(LumetraHost::HaveSamePixels(ReadPhoto("lossless.webp"), ReadPhoto("plain.png")));
}

TEST_F(ApplyRecipeTest, takesTheFormOfARecipeThatOptionsMayChange)
{
    WritePhoto("a.png", 300, 200);
    WriteFile("empty/lumetra/export-recipes.json",
              R"({ "format": "lumetra-export-recipes", "version": 1, "recipes": [
                   { "name": "Small", "depth": 16, "format": "png", "longestSide": 60 } ] })");
    const auto apply = [this](const char* options) {
        return Run(Words("apply a.png -p test.bright --recipe Small") + Words(options));
    };

    EXPECT_EQ(apply("-o recipe.png").code, 0);
    EXPECT_EQ(apply("--size 0.015MP --depth 8 -o changed.png").code, 0);
    const CliResult unknown = Run(Words("apply a.png -p test.bright --recipe Large -o large.png"));

    EXPECT_EQ(Describe("recipe.png"), "60 x 40, 16");
    EXPECT_EQ(Describe("changed.png"), "150 x 100, 8");
    EXPECT_EQ(unknown.code, 2);
    EXPECT_THAT(unknown.messages, HasSubstr("expected the name of a recipe (\"Small\")"));
}

TEST_F(ApplyRecipeTest, keepsTheMetadataThatItIsToldTo)
{
    WritePhoto("a.png");
    ASSERT_EQ(Apply("a.png -p test.bright -o all.jpg").code, 0);
    ASSERT_EQ(Apply("a.png -p test.bright --metadata no-gps -o no-gps.webp").code, 0);
    ASSERT_EQ(Apply("a.png -p test.bright --metadata copyright -o copyright.jpg").code, 0);

    EXPECT_EQ(EditRecords::Read(ReadMetadata("all.jpg").xmp).size(), 1u);
    EXPECT_EQ(EditRecords::Read(ReadMetadata("no-gps.webp").xmp).size(), 1u);
    EXPECT_TRUE(ReadMetadata("copyright.jpg").xmp.isEmpty());
    EXPECT_FALSE(ReadMetadata("copyright.jpg").iccProfile.isEmpty());
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

    for (const char* option :
         {"--format <jpeg|png|tiff|webp>", "--size <number|numberMP>", "--depth <8|16>",
          "--metadata <all|no-gps|copyright|none>", "--subsampling <automatic|4:4:4|4:2:2|4:2:0>",
          "--progressive", "--lossless", "--compression <none|lzw|deflate>"})
        EXPECT_THAT(help, HasSubstr(option));
}
