// SPDX-License-Identifier: GPL-2.0-or-later
#include "CliTest.h"
#include "Places.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <algorithm>

using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const std::string Other = ": exists, and is not what this photo, look and options make; "
                          "--overwrite replaces it\n";

class SkipTest : public CliTest
{
protected:
    CliResult Apply(const char* line) const { return Run(Words("apply") + Words(line)); }

    std::string Output(const char* name) const { return Path(name).toStdString() + "\n"; }

    /// The names in a folder, hidden ones too.
    QStringList List(const char* name) const
    {
        return QDir(Path(name)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
};

} // namespace

TEST_F(SkipTest, leavesOutWhatIsDoneAndDoesTheRest)
{
    WritePhoto("a.jpg");
    WritePhoto("b.jpg", 50, 40);
    ASSERT_EQ(Apply("a.jpg -p test.bright -o out/{name}.jpg").code, 0);
    const QByteArray first = ReadFile("out/a.jpg");

    const CliResult result = Apply("a.jpg b.jpg -p test.bright -o out/{name}.jpg --skip");

    EXPECT_EQ(result.code, 0) << result.messages;
    EXPECT_EQ(result.output, Output("out/b.jpg"));
    EXPECT_EQ(ReadFile("out/a.jpg"), first);
    EXPECT_EQ(List("out"), (QStringList{QStringLiteral("a.jpg"), QStringLiteral("b.jpg")}));
}

TEST_F(SkipTest, refusesAFileOfAnotherPhotoLookOrOption)
{
    WritePhoto("a.jpg");
    WritePhoto("other/a.jpg", 50, 40);
    const char* const first = "a.jpg -p test.bright -o out.jpg";
    for (const char* const second :
         {"other/a.jpg -p test.bright", "a.jpg -p test.grey", "a.jpg -p test.bright -i 81",
          "a.jpg -p test.bright --set exposure=3", "a.jpg -p test.bright --quality 91",
          "a.jpg -p test.bright --size 20", "a.jpg -p test.bright --exact",
          "a.jpg -p test.bright --metadata none"}) {
        ASSERT_EQ(Apply((std::string(first) + " --overwrite").c_str()).code, 0);
        const QByteArray before = ReadFile("out.jpg");
        const std::string line = std::string(second) + " -o out.jpg --skip";

        const CliResult refused = Apply(line.c_str());

        EXPECT_EQ(refused.code, 1) << second;
        EXPECT_EQ(refused.messages, "lumetra-presets: " + Path("out.jpg").toStdString() + Other);
        EXPECT_EQ(ReadFile("out.jpg"), before);
        EXPECT_EQ(Apply((line + " --overwrite").c_str()).output, Output("out.jpg")) << second;
        EXPECT_NE(ReadFile("out.jpg"), before) << second;
        EXPECT_THAT(Apply(line.c_str()).output, IsEmpty()) << second;
    }
}

TEST_F(SkipTest, doesNotCareAboutNamesTimesAndPlaces)
{
    WritePhoto("a.jpg");
    ASSERT_EQ(Apply("a.jpg -p test.bright -o out/x.jpg").code, 0);
    QDir(folder.path()).mkpath(QStringLiteral("in"));
    ASSERT_TRUE(QFile::copy(Path("a.jpg"), Path("in/b.jpg")));
    ASSERT_TRUE(QFile::rename(Path("out/x.jpg"), Path("out/b.jpg")));

    const CliResult result = Apply("in/b.jpg -p test.bright -o out/{name}.jpg --skip -j 1");

    EXPECT_EQ(result.code, 0) << result.messages;
    EXPECT_THAT(result.output, IsEmpty());
}

TEST_F(SkipTest, knowsFilesWithoutMetadataByTheJournal)
{
    WritePhoto("a.jpg");
    const char* const line = "a.jpg -p test.bright --metadata none -o out/{name}.png --skip";
    ASSERT_EQ(Apply(line).output, Output("out/a.png"));
    EXPECT_EQ(List("out"),
              (QStringList{QStringLiteral(".lumetra-journal"), QStringLiteral("a.png")}));

    EXPECT_THAT(Apply(line).output, IsEmpty());

    QByteArray changed = ReadFile("out/a.png");
    changed[100] = static_cast<char>(changed[100] ^ 1);
    WriteFile("out/a.png", changed);
    const CliResult refused = Apply(line);
    EXPECT_EQ(refused.code, 1);
    EXPECT_THAT(refused.messages, HasSubstr(Other));
}

TEST_F(SkipTest, leavesNoJournalWithoutTheOption)
{
    WritePhoto("a.jpg");

    ASSERT_EQ(Apply("a.jpg -p test.bright --metadata none -o out/{name}.png").code, 0);

    EXPECT_EQ(List("out"), QStringList{QStringLiteral("a.png")});
}

TEST_F(SkipTest, needsPhotosWithNames)
{
    const CliResult refused = Apply("- -p test.bright -o out.jpg --skip");

    EXPECT_EQ(refused.code, 2);
    EXPECT_THAT(refused.messages, HasSubstr("--skip: expected the name of a photo"));
    WritePhoto("a.jpg");
    const CliResult piped = Apply("a.jpg -p test.bright -o - --skip");
    EXPECT_EQ(piped.code, 2);
    EXPECT_THAT(piped.messages, HasSubstr("--output -: expected no --skip"));
    EXPECT_THAT(piped.output, IsEmpty());
}

TEST_F(SkipTest, isToldOfInAReport)
{
    WritePhoto("a.jpg");
    WritePhoto("b.jpg", 50, 40);
    ASSERT_EQ(Apply("a.jpg -p test.bright -o out/{name}.jpg").code, 0);

    const CliResult result = Apply("a.jpg b.jpg -p test.bright -o out/{name}.jpg --skip --json");

    EXPECT_EQ(result.code, 0) << result.messages;
    EXPECT_THAT(result.output,
                HasSubstr("{\"photo\": \"a.jpg\",\"output\": \"" + Path("out/a.jpg").toStdString() +
                          "\",\"state\": \"skipped\""));
    EXPECT_THAT(result.output, HasSubstr("\"written\": 1,\"skipped\": 1,"));
}

TEST_F(SkipTest, takesACutFileForNoResult)
{
    WritePhoto("a.jpg", 300, 200);
    ASSERT_EQ(Apply("a.jpg -p test.bright -o out.jpg").code, 0);
    const QByteArray whole = ReadFile("out.jpg");
    for (const int size : {0, 1, whole.size() / 2, whole.size() - 1}) {
        WriteFile("out.jpg", whole.left(size));
        EXPECT_EQ(Apply("a.jpg -p test.bright -o out.jpg --skip").code, 1) << size;
        EXPECT_EQ(Apply("a.jpg -p test.bright -o out.jpg --skip --overwrite").code, 0) << size;
        EXPECT_EQ(ReadFile("out.jpg"), whole) << size;
    }
}

TEST_F(SkipTest, tellsInADryRunWhatItWouldDo)
{
    WritePhoto("a.jpg");
    WritePhoto("b.jpg", 50, 40);
    WritePhoto("c.jpg", 60, 40);
    ASSERT_EQ(Apply("a.jpg -p test.bright -o out/{name}.jpg").code, 0);
    WriteFile("out/b.jpg", "other");
    const char* const line = "a.jpg b.jpg c.jpg -p test.bright -o out/{name}.jpg --skip --dry-run";

    const CliResult result = Apply(line);

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output, Output("out/c.jpg"));
    EXPECT_EQ(result.messages, "lumetra-presets: " + Path("out/b.jpg").toStdString() + Other +
                                   "lumetra-presets: 1 skipped, 1 failed, 1 to be written\n");
    EXPECT_EQ(List("out"), (QStringList{QStringLiteral("a.jpg"), QStringLiteral("b.jpg")}));
}

// A run is killed again and again, at whatever moment it is, until one comes to its end.
TEST_F(SkipTest, endsWithTheSameFilesHoweverOftenItIsKilled)
{
    QStringList photos;
    for (int i = 0; i < 12; ++i) {
        const std::string name = "p" + std::to_string(i) + ".jpg";
        WritePhoto(name.c_str(), 300 + i, 200);
        photos.append(QString::fromStdString(name));
    }
    const QStringList options = Words("-p test.bright --metadata none --jobs 2 --skip");
    const QStringList apply = QStringList{QStringLiteral("apply")} + photos + options;
    ASSERT_EQ(Run(apply + Words("-o one/{name}.jpg")).code, 0);

    const QStringList again =
        apply + Words("-o out/{name}.jpg --only-named --catalogue looks.json");
    for (int kills = 1; kills <= 6; ++kills) {
        QProcess process;
        process.setWorkingDirectory(folder.path());
        process.start(QStringLiteral(LUMETRA_PRESETS_PROGRAM), again);
        for (int line = 0; line < kills && process.waitForReadyRead(-1); ++line)
            process.readLine();
        process.kill();
        process.waitForFinished(-1);
    }
    const CliResult last = RunPlain(again);

    EXPECT_EQ(last.code, 0) << last.messages;
    for (const QString& photo : photos)
        EXPECT_EQ(ReadFile(("out/" + photo.toStdString()).c_str()),
                  ReadFile(("one/" + photo.toStdString()).c_str()));
    EXPECT_EQ(QDir(Path("out")).entryList({QStringLiteral("*.jpg")}).size(), 12);
}
