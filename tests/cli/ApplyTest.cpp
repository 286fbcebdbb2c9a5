// SPDX-License-Identifier: GPL-2.0-or-later
#include "CliTest.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cstdlib>

#include <sys/stat.h>

#include <unistd.h>

using LumetraHost::HaveSamePixels;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

class ApplyTest : public CliTest
{
protected:
    CliResult Apply(const QStringList& arguments) const
    {
        return Run(QStringList{QStringLiteral("apply")} + arguments);
    }

    /// Applies to "a.png", which is made for it, and expects a refusal that changes nothing.
    void ExpectUsageError(const QStringList& arguments, const std::string& message)
    {
        WritePhoto("a.png");
        const QStringList before = QDir(folder.path()).entryList();
        const CliResult result = Apply(QStringList{QStringLiteral("a.png")} + arguments);
        EXPECT_EQ(result.code, 2) << message;
        EXPECT_THAT(result.output, IsEmpty());
        EXPECT_THAT(result.messages, HasSubstr("lumetra-presets: " + message + "\n"));
        EXPECT_EQ(QDir(folder.path()).entryList(), before);
    }
};

} // namespace

TEST_F(ApplyTest, writesBesideThePhotoAndPrintsTheName)
{
    const auto photo = WritePhoto("a.png");

    const CliResult result = Apply(Words("a.png --preset test.bright"));

    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.output, Path("a_Test Bright.png").toStdString() + "\n");
    EXPECT_FALSE(HaveSamePixels(ReadPhoto("a_Test Bright.png"), photo));
    EXPECT_TRUE(HaveSamePixels(ReadPhoto("a.png"), photo));
}

TEST_F(ApplyTest, findsPresetsByNameInAnyCase)
{
    WritePhoto("a.png");

    EXPECT_EQ(Apply({QStringLiteral("a.png"), QStringLiteral("--preset"),
                     QStringLiteral("test GREY"), QStringLiteral("-o"), QStringLiteral("grey.png")})
                  .code,
              0);

    const auto grey = ReadPhoto("grey.png");
    EXPECT_NEAR(grey.Row(5)[40], grey.Row(5)[41], 60); // at 80 of 100, not wholly grey
    EXPECT_FALSE(HaveSamePixels(grey, ReadPhoto("a.png")));
}

TEST_F(ApplyTest, givesTheSourceBackBitForBitAtTheLowestBlendingIntensity)
{
    const auto photo = WritePhoto("a.png");

    ASSERT_EQ(Apply(Words("a.png --preset test.bright --intensity 1 -o b.png")).code, 0);

    EXPECT_TRUE(HaveSamePixels(ReadPhoto("b.png"), photo));
}

TEST_F(ApplyTest, changesMoreAtAHigherIntensity)
{
    const auto photo = WritePhoto("a.png");
    ASSERT_EQ(Apply(Words("a.png --preset test.bright --intensity 20 -o low.png")).code, 0);
    ASSERT_EQ(Apply(Words("a.png --preset test.bright --intensity 100 -o high.png")).code, 0);

    const int source = photo.Row(10)[4 * 10];
    const int low = ReadPhoto("low.png").Row(10)[4 * 10];
    const int high = ReadPhoto("high.png").Row(10)[4 * 10];
    EXPECT_LT(source, low);
    EXPECT_LT(low, high);
}

TEST_F(ApplyTest, movesASliderIntensity)
{
    const auto photo = WritePhoto("a.png");

    ASSERT_EQ(Apply(Words("a.png --preset test.slide --intensity 0 -o none.png")).code, 0);
    ASSERT_EQ(Apply(Words("a.png --preset test.slide --intensity 50 -o full.png")).code, 0);

    EXPECT_TRUE(HaveSamePixels(ReadPhoto("none.png"), photo));
    const auto full = ReadPhoto("full.png");
    EXPECT_NEAR(full.Row(7)[4 * 9], full.Row(7)[4 * 9 + 1], 1);
    EXPECT_NEAR(full.Row(7)[4 * 9], full.Row(7)[4 * 9 + 2], 1);
}

TEST_F(ApplyTest, movesAnExtraSliderByIdOrTitle)
{
    const auto photo = WritePhoto("a.png");

    ASSERT_EQ(Apply(Words("a.png -p test.bright --set exposure=0 -o id.png")).code, 0);
    ASSERT_EQ(Apply(Words("a.png -p test.bright --set brightness=-100 -o title.png")).code, 0);

    EXPECT_TRUE(HaveSamePixels(ReadPhoto("id.png"), photo));
    EXPECT_LT(ReadPhoto("title.png").Row(9)[4 * 9], photo.Row(9)[4 * 9]);
}

TEST_F(ApplyTest, treatsEveryPhotoAlikeWhateverCameBefore)
{
    WritePhoto("a.png", 40, 30);
    WritePhoto("b.png", 30, 50);
    const QStringList options =
        Words("-p test.slide -i 40 --set exposure=10 -o out/{name}.{ext}").mid(0, 4) +
        Words("-o out/{name}.{ext}");

    ASSERT_EQ(Apply(Words("a.png b.png") + options).code, 0);
    ASSERT_EQ(Apply(Words("b.png -p test.slide -i 40 -o single.png")).code, 0);

    EXPECT_TRUE(HaveSamePixels(ReadPhoto("out/b.png"), ReadPhoto("single.png")));
    EXPECT_EQ(ReadPhoto("out/a.png").GetWidth(), 40);
}

TEST_F(ApplyTest, writesTheSameWhateverTheNumberOfJobs)
{
    QStringList photos;
    for (const char* name : {"a.png", "b.png", "c.png", "d.png", "e.png"}) {
        WritePhoto(name, 30 + static_cast<int>(photos.size()), 20);
        photos.append(QLatin1String(name));
    }

    const auto one = Apply(photos + Words("-p test.grey --jobs 1 -o one/{name}.png"));
    const auto many = Apply(photos + Words("-p test.grey --jobs 4 -o many/{name}.png"));

    ASSERT_EQ(one.code, 0);
    ASSERT_EQ(many.code, 0);
    for (const QString& photo : photos)
        EXPECT_EQ(ReadFile(("one/" + photo.toStdString()).c_str()),
                  ReadFile(("many/" + photo.toStdString()).c_str()));
    EXPECT_LT(many.output.find("/a.png"), many.output.find("/e.png"));
}

TEST_F(ApplyTest, worksOnPhotosAloneThatNeedMoreMemoryThanThereIs)
{
    QStringList photos;
    for (const char* name : {"a.png", "b.png", "c.png", "d.png"}) {
        WritePhoto(name);
        photos.append(QLatin1String(name));
    }

    const auto result = Apply(photos + Words("-p test.grey --jobs 4 --memory 1 -o out/{name}.png"));

    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(std::count(result.output.begin(), result.output.end(), '\n'), 4);
}

TEST_F(ApplyTest, statesItsMemoryAndQualityInTheHelp)
{
    const auto result = Run(Words("apply --help"));

    EXPECT_THAT(result.output, HasSubstr("--memory"));
    const std::string unwrapped = QString::fromStdString(result.output).simplified().toStdString();
    EXPECT_THAT(unwrapped, HasSubstr("half of the machine's memory"));
    EXPECT_THAT(result.output, HasSubstr("Default: 92"));
}

TEST_F(ApplyTest, drawsLargePhotosQuicklyOrExactly)
{
    WriteFile("long.json", R"({ "format": "lumetra-catalogue", "version": 1,
        "groups": [ { "name": "Long", "items": [ { "name": "Long", "id": "test.long",
            "intensity": { "type": 0 }, "settings": { "effects": [
                { "effect": { "id": "whiteBalance", "temperature": 7000 } },
                { "effect": { "id": "contrast", "amount": 30 } },
                { "effect": { "id": "saturation", "amount": 30 } },
                { "effect": { "id": "contrast", "amount": -10 } } ] } } ] } ] })");
    const auto photo = WritePhoto("a.png", 1250, 900);
    const QStringList options = Words("a.png -p test.long --catalogue long.json");

    ASSERT_EQ(Apply(options + Words("-o quick.png")).code, 0);
    ASSERT_EQ(Apply(options + Words("-o exact.png --exact")).code, 0);
    ASSERT_EQ(Apply(options + Words("-o again.png --jobs 1")).code, 0);

    const auto quick = ReadPhoto("quick.png");
    const auto exact = ReadPhoto("exact.png");
    int largest = 0;
    for (int y = 0; y < photo.GetHeight(); ++y)
        for (int i = 0; i < 4 * photo.GetWidth(); ++i)
            largest = std::max(largest, std::abs(int(quick.Row(y)[i]) - int(exact.Row(y)[i])));
    EXPECT_EQ(largest, 1); // 0 would be the same way twice
    EXPECT_FALSE(HaveSamePixels(exact, photo));
    EXPECT_EQ(ReadFile("quick.png"), ReadFile("again.png"));
}

TEST_F(ApplyTest, fillsTheTemplate)
{
    WritePhoto("in/my photo.jpg");

    const CliResult result = Apply({QStringLiteral("in/my photo.jpg"), QStringLiteral("-p"),
                                    QStringLiteral("test.plain"), QStringLiteral("-o"),
                                    QStringLiteral("deep/er/{preset}-{name}.{ext}")});

    EXPECT_EQ(result.code, 0) << result.messages;
    EXPECT_TRUE(Exists("deep/er/Test Plain-my photo.jpg"));
}

TEST_F(ApplyTest, oneBadPhotoNeverStopsTheRest)
{
    WritePhoto("a.png");
    WritePhoto("whole.jpg");
    const QByteArray whole = ReadFile("whole.jpg");
    WriteFile("cut.jpg", whole.left(whole.size() / 2));
    WriteFile("text.png", "this is no picture");
    WriteFile("empty.jpg", "");
    QDir(folder.path()).mkdir(QStringLiteral("folder.png"));

    const CliResult result =
        Apply(Words("missing.png cut.jpg folder.png text.png empty.jpg a.png -p test.bright -o "
                    "out/{name}.{ext}"));

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output, Path("out/a.png").toStdString() + "\n");
    EXPECT_THAT(result.messages,
                HasSubstr("lumetra-presets: missing.png: expected a photo, found no such file\n"));
    EXPECT_THAT(result.messages, HasSubstr("cut.jpg: "));
    EXPECT_THAT(
        result.messages,
        HasSubstr("lumetra-presets: folder.png: expected photos in the folder, found none\n"));
    EXPECT_THAT(result.messages, HasSubstr("text.png: "));
    EXPECT_THAT(result.messages, HasSubstr("empty.jpg: "));
    EXPECT_EQ(std::count(result.messages.begin(), result.messages.end(), '\n'), 6)
        << "five failures and the summary: " << result.messages;
    EXPECT_EQ(QDir(Path("out")).entryList(QDir::Files), QStringList{QStringLiteral("a.png")});
}

TEST_F(ApplyTest, neverReplacesAnExistingFileUnlessTold)
{
    WritePhoto("a.png");
    WriteFile("out.png", "precious");
    const QStringList options = Words("a.png -p test.bright -o out.png");

    const CliResult refused = Apply(options);
    EXPECT_EQ(refused.code, 1);
    EXPECT_EQ(refused.messages,
              "lumetra-presets: " + Path("out.png").toStdString() +
                  ": exists; --overwrite replaces it, --skip leaves what is done\n");
    EXPECT_EQ(ReadFile("out.png"), "precious");

    const CliResult skipped = Apply(options + Words("--skip"));
    EXPECT_EQ(skipped.code, 1);
    EXPECT_THAT(skipped.messages, HasSubstr("out.png: exists, and is not what this photo, "));
    EXPECT_EQ(ReadFile("out.png"), "precious");

    EXPECT_EQ(Apply(options + Words("--overwrite")).code, 0);
    EXPECT_EQ(ReadPhoto("out.png").GetWidth(), 48);
}

TEST_F(ApplyTest, neverOverwritesAPhotoEvenThroughALink)
{
    WritePhoto("a.png");
    WritePhoto("b.png");
    const QByteArray before = ReadFile("a.png");
    ASSERT_TRUE(QFile::link(Path("a.png"), Path("link.png")));
    const std::string refusal = ": is one of the photos and is not overwritten";

    const auto itself = Apply(Words("a.png -p test.bright -o {name}.{ext} --overwrite"));
    const auto linked = Apply(Words("a.png -p test.bright -o link.png --overwrite"));
    const auto other = Apply(Words("a.png b.png -p test.bright -o {folder}/b{name}.png"));
    const auto another =
        Apply(Words("b.png a.png -p test.bright -o ./x/../{name}.png --overwrite"));

    EXPECT_THAT(itself.messages, HasSubstr(refusal));
    EXPECT_THAT(linked.messages, HasSubstr(refusal));
    EXPECT_EQ(other.code, 0);
    EXPECT_THAT(another.messages, HasSubstr(refusal));
    EXPECT_EQ(ReadFile("a.png"), before);
}

TEST_F(ApplyTest, neverOverwritesAPhotoUnderASecondName)
{
    WritePhoto("a.png");
    ASSERT_EQ(::link(qPrintable(Path("a.png")), qPrintable(Path("hard.png"))), 0);
    const QByteArray before = ReadFile("a.png");

    const auto result = Apply(Words("a.png -p test.bright -o hard.png --overwrite"));

    EXPECT_EQ(result.code, 1);
    EXPECT_THAT(result.messages, HasSubstr(": is one of the photos and is not overwritten"));
    EXPECT_EQ(ReadFile("hard.png"), before);
}

TEST_F(ApplyTest, neverOverwritesAPhotoThatHasAnEditOfItsOwn)
{
    WritePhoto("a.png");
    WritePhoto("edited.png");
    WriteFile("edited.png.lumetra.json", "{}");
    ASSERT_TRUE(QFile::link(Path("edited.png"), Path("link.png")));
    ASSERT_EQ(::link(qPrintable(Path("edited.png")), qPrintable(Path("hard.png"))), 0);
    const QByteArray before = ReadFile("edited.png");

    for (const char* const output : {"edited.png", "link.png", "hard.png"}) {
        const QStringList options =
            Words("a.png -p test.bright -o") + QStringList{QLatin1String(output)};
        for (const QStringList& more :
             {Words("--overwrite"), Words("--overwrite --dry-run"), Words("--skip"),
              Words("--skip --overwrite"), Words("--skip --overwrite --dry-run")}) {
            const CliResult refused = Apply(options + more);
            EXPECT_EQ(refused.code, 1) << output;
            EXPECT_EQ(refused.messages,
                      "lumetra-presets: " + Path(output).toStdString() +
                          ": is a photo with an edit of its own and is not overwritten\n");
        }
    }

    EXPECT_EQ(ReadFile("edited.png"), before);
    QFile::remove(Path("edited.png.lumetra.json"));
    EXPECT_EQ(Apply(Words("a.png -p test.bright -o edited.png --overwrite")).code, 0);
}

TEST_F(ApplyTest, refusesOnlyThePhotosThatShareAnOutput)
{
    WritePhoto("IMG_1.png");
    WritePhoto("IMG_1.jpg");
    WritePhoto("IMG_2.png");
    const std::string output = Path("out/IMG_1.jpg").toStdString();
    const QStringList options = Words("-p test.bright -o out/{name}.jpg");

    const CliResult result = Apply(Words("IMG_1.png IMG_2.png IMG_1.jpg") + options);

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output, Path("out/IMG_2.jpg").toStdString() + "\n");
    EXPECT_EQ(result.messages,
              "lumetra-presets: IMG_1.png: expected an output of its own, found \"" + output +
                  "\", which is that of \"IMG_1.jpg\" too\n"
                  "lumetra-presets: IMG_1.jpg: expected an output of its own, found \"" +
                  output +
                  "\", which is that of \"IMG_1.png\" too\n"
                  "lumetra-presets: 1 written, 2 failed\n");
    EXPECT_EQ(QDir(Path("out")).entryList(QDir::Files), QStringList{QStringLiteral("IMG_2.jpg")});
}

TEST_F(ApplyTest, refusesPhotosOfOneNameInSeveralFolders)
{
    for (const char* name : {"d1/a.png", "d2/a.png", "d3/a.png", "d1/b.png", "d2/c.png"})
        WritePhoto(name);
    const QStringList photos = Words("d1/a.png d1/b.png d2/a.png d2/c.png d3/a.png");

    const CliResult planned =
        Apply(photos + Words("-p test.bright -o out/{name}.png --dry-run --json"));
    const CliResult done = Apply(photos + Words("-p test.bright -o out/{name}.png"));

    EXPECT_EQ(planned.code, 1);
    const QList<QByteArray> lines = QByteArray::fromStdString(planned.output).split('\n');
    for (const int i : {0, 2, 4}) {
        EXPECT_TRUE(lines.value(i).contains("\"state\": \"failed\""));
        EXPECT_TRUE(lines.value(i).contains(" and 1 more too"));
    }
    EXPECT_TRUE(lines.value(1).contains("\"state\": \"planned\""));
    EXPECT_EQ(done.code, 1);
    EXPECT_EQ(QDir(Path("out")).entryList(QDir::Files),
              (QStringList{QStringLiteral("b.png"), QStringLiteral("c.png")}));
}

TEST_F(ApplyTest, refusesSharedOutputsHoweverTheyAreNamed)
{
    WritePhoto("a.png");
    WritePhoto("b.png");
    WriteFile("out.png", "precious");
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("real")));
    ASSERT_TRUE(QFile::link(Path("real"), Path("link")));
    for (const char* option : {"--overwrite", "--skip", ""}) {
        const CliResult result =
            Apply(Words("a.png b.png -p test.grey -o out.png") + Words(option));
        EXPECT_EQ(result.code, 1) << option;
        EXPECT_THAT(result.messages, HasSubstr("a.png: expected an output of its own")) << option;
        EXPECT_THAT(result.messages, HasSubstr("b.png: expected an output of its own")) << option;
        EXPECT_EQ(ReadFile("out.png"), "precious");
    }
    WritePhoto("real/c.png");
    WritePhoto("d/c.png");
    ASSERT_TRUE(QFile::link(Path("real"), Path("d/real")));
    const CliResult linked =
        Apply(Words("real/c.png d/c.png -p test.grey -o {folder}/real/../{name}-x.png --dry-run"));
    EXPECT_EQ(linked.code, 0) << linked.messages;
}

TEST_F(ApplyTest, doesAPhotoOnceThatIsNamedTwice)
{
    WritePhoto("a.png");
    WritePhoto("b.png");
    ASSERT_TRUE(QFile::link(Path("a.png"), Path("link.png")));

    const CliResult result = Apply(Words("a.png ./a.png b.png a.png -p test.bright"));

    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.output, Path("a_Test Bright.png").toStdString() + "\n" +
                                 Path("b_Test Bright.png").toStdString() + "\n");
    EXPECT_EQ(result.messages,
              "lumetra-presets: ./a.png: is the photo \"a.png\" again, which is done once\n"
              "lumetra-presets: a.png: is the photo \"a.png\" again, which is done once\n"
              "lumetra-presets: 2 written, 2 skipped\n");
    EXPECT_THAT(Apply(Words("a.png link.png -p test.grey -o once.png")).messages,
                HasSubstr("link.png: is the photo \"a.png\" again, which is done once"));
    EXPECT_TRUE(Exists("once.png"));
    const CliResult both = Apply(Words("a.png link.png -p test.grey -o both/{name}.png"));
    EXPECT_EQ(both.code, 0) << both.messages;
    EXPECT_TRUE(Exists("both/a.png") && Exists("both/link.png")) << "another output for each";
}

TEST_F(ApplyTest, aPhotoThatIsNotThereTakesNoOutput)
{
    WritePhoto("d1/a.png");

    const CliResult result =
        Apply(Words("d1/a.png d2/a.png -p test.bright -o out/{name}.{ext} --json"));

    EXPECT_EQ(result.code, 1);
    EXPECT_TRUE(Exists("out/a.png"));
    EXPECT_THAT(result.messages,
                StartsWith("lumetra-presets: d2/a.png: expected a photo, found no such file\n"));
}

TEST_F(ApplyTest, refusesWhatIsNoPlainFileAtOnce)
{
    WritePhoto("a.png");
    ASSERT_EQ(::mkfifo(QFile::encodeName(Path("pipe.png")).constData(), 0600), 0);
    ASSERT_EQ(::mkfifo(QFile::encodeName(Path("pipe.cube")).constData(), 0600), 0);
    ASSERT_EQ(::mkfifo(QFile::encodeName(Path("out.png")).constData(), 0600), 0);

    const CliResult photo = Apply(Words("pipe.png a.png -p test.bright"));
    EXPECT_EQ(photo.code, 1);
    EXPECT_EQ(photo.messages, "lumetra-presets: pipe.png: expected a photo, found no plain file\n"
                              "lumetra-presets: 1 written, 1 failed\n");
    EXPECT_TRUE(Exists("a_Test Bright.png"));

    const CliResult lut = Apply(Words("a.png -p pipe.cube -o lut.png"));
    EXPECT_EQ(lut.code, 1);
    EXPECT_EQ(lut.messages,
              "pipe.cube: expected a plain file, found a pipe, a socket or a device\n");

    const CliResult output = Apply(Words("a.png -p test.bright -o out.png --overwrite"));
    EXPECT_EQ(output.code, 1);
    EXPECT_THAT(output.messages, HasSubstr("out.png: expected a file to write, found no plain"));
}

TEST_F(ApplyTest, saysThatALutFileIsMissingOrNone)
{
    WriteFile("look.txt", "LUT_3D_SIZE 2\n");
    ExpectUsageError(Words("-p missing.cube"),
                     "--preset: expected the name or id of a preset or a LUT file, found "
                     "\"missing.cube\", which is neither: there is no such file");
    ExpectUsageError(Words("-p look.txt"),
                     "--preset: expected the name or id of a preset or a LUT file (.cube, .3dl, "
                     ".clf, .cc, .ccc, .cdl, .png, .tif), found the file \"look.txt\"");
    ExpectUsageError(Words("-p ."),
                     "--preset: expected the name or id of a preset or a LUT file (.cube, .3dl, "
                     ".clf, .cc, .ccc, .cdl, .png, .tif), found the folder \".\"");
}

TEST_F(ApplyTest, planOnlyInADryRun)
{
    WritePhoto("a.png");

    const CliResult result = Apply(Words("a.png missing.png -p test.bright -o out/{name}.png "
                                         "--dry-run"));

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output, Path("out/a.png").toStdString() + "\n");
    EXPECT_THAT(result.messages, HasSubstr("missing.png"));
    EXPECT_FALSE(Exists("out"));
}

TEST_F(ApplyTest, refusesWhatThePresetDoesNotHave)
{
    ExpectUsageError(Words("-p test.bright -i 0"),
                     "--intensity: expected a whole number from 1 to 100, found \"0\"");
    ExpectUsageError(Words("-p test.bright -i 101"),
                     "--intensity: expected a whole number from 1 to 100, found \"101\"");
    ExpectUsageError(Words("-p test.bright -i 1e2"),
                     "--intensity: expected a whole number from 1 to 100, found \"1e2\"");
    ExpectUsageError(Words("-p test.slide -i 51"),
                     "--intensity: expected a whole number from 0 to 50, found \"51\"");
    ExpectUsageError(Words("-p test.plain -i 5"), "--intensity: expected none, for \"Test Plain\" "
                                                  "has no intensity, found \"5\"");
    ExpectUsageError(Words("-p test.bright --set exposre=5"),
                     "--set: expected a slider of \"Test Bright\" (\"exposure\"), found "
                     "\"exposre\", did you mean \"exposure\"?");
    ExpectUsageError(Words("-p test.grey --set exposure=5"),
                     "--set: expected a slider of \"Test Grey\" (none, it has no sliders), found "
                     "\"exposure\"");
    ExpectUsageError(Words("-p test.bright --set exposure=101"),
                     "--set exposure: expected a whole number from -100 to 100, found \"101\"");
    ExpectUsageError(Words("-p test.bright --set exposure"),
                     "--set: expected slider=value, found \"exposure\"");
}

TEST_F(ApplyTest, refusesUnknownAndAmbiguousPresets)
{
    ExpectUsageError({QStringLiteral("-p"), QStringLiteral("Test Brigth")},
                     "--preset: expected the name or id of a preset, found \"Test Brigth\", did "
                     "you mean \"Test Bright\"?");
    ExpectUsageError({QStringLiteral("-p"), QStringLiteral("Test Twin")},
                     "--preset: expected one preset, found 2 named \"Test Twin\"; their ids are "
                     "\"test.twin-1\" (Test looks), \"test.twin-2\" (Test looks)");
    ExpectUsageError({}, "expected a look: --preset, --favourites, --group or --edits");
    ExpectUsageError(Words("-p test.grey -p test.brigth"),
                     "--preset: expected the name or id of a preset, found \"test.brigth\", did "
                     "you mean \"test.bright\"?");
}

TEST_F(ApplyTest, refusesOptionsThatCannotBe)
{
    ExpectUsageError(Words("-p test.grey --quality 0"),
                     "--quality: expected a whole number from 1 to 100, found \"0\"");
    ExpectUsageError(Words("-p test.grey --jobs many"),
                     "--jobs: expected a whole number from 1 to 64, found \"many\"");
    ExpectUsageError(Words("-p test.grey --memory 0"),
                     "--memory: expected a whole number from 1 to 1000000, found \"0\"");
    ExpectUsageError(
        Words("-p test.grey -o {nmae}.png"),
        "--output: expected {folder}, {name}, {ext}, {original_ext}, {preset}, {group}, "
        "{intensity}, {n} or {date}, found {nmae}");
    ExpectUsageError(Words("-p test.grey -o {name.png"),
                     "--output: expected braces in pairs, found \"{name.png\"");
    ExpectUsageError(
        Words("-p test.grey -o out.gif"),
        "--output: expected a name that ends in .{ext}, .jpg, .png, .tif or .webp, found "
        "\"out.gif\"");
    EXPECT_EQ(Apply(Words("-p test.grey")).code, 2);
}
