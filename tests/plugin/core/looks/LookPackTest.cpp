// SPDX-License-Identifier: GPL-2.0-or-later
#include "LookFixture.h"

#include "host/archive/ArchiveMaker.h"

#include <QDir>

#include <gmock/gmock.h>

using namespace LumetraPlugin;
using namespace LumetraTest;
using testing::HasSubstr;

namespace {

constexpr char Grey[] = R"("effects": [ { "effect": { "id": "saturation", "amount": -100 } } ])";

ArchiveEntry File(const QByteArray& name, const QByteArray& content)
{
    ArchiveEntry entry;
    entry.name = name;
    entry.content = content;
    return entry;
}

} // namespace

class LookPackTest : public LookTest
{
protected:
    QString WritePack(const std::vector<ArchiveEntry>& entries) const
    {
        return Write("pack.zip", ArchiveMaker::Make(entries));
    }
};

TEST_F(LookPackTest, everyTableAndLookOfAnArchiveBecomesAPreset)
{
    const auto result =
        Import(WritePack({File("pack/warm.cube", CubeText(3)), File("readme.txt", "hello"),
                          File("cold/warm.CUBE", CubeText(4)), File("licence.pdf", "%PDF"),
                          File("grey.lumetra", LookText("Grey", Grey))}));
    EXPECT_TRUE(result.problems.isEmpty()) << result.problems.value(0).toStdString();
    EXPECT_EQ(GetNames(), (QStringList{QStringLiteral("Grey"), QStringLiteral("warm"),
                                       QStringLiteral("warm 2")}));
}

TEST_F(LookPackTest, anErrorNamesItsEntryAndCostsOnlyThat)
{
    ArchiveEntry link = File("link.cube", "/etc/passwd");
    link.unixMode = 0120777;
    const QString pack = WritePack(
        {File("luts/cut.cube", "LUT_3D_SIZE 2\n0 0 0\n"), link, File("../out.cube", CubeText(2)),
         File("bad.lumetra", "{ \"format\": 1 }"), File("good.cube", CubeText(2))});
    const auto result = Import(pack);

    EXPECT_EQ(GetNames(), QStringList(QStringLiteral("good")));
    ASSERT_EQ(result.problems.size(), 4);
    EXPECT_EQ(result.problems[0], pack + QStringLiteral(": luts/cut.cube:2: expected 8 rows of "
                                                        "numbers, found 1: the file is cut off"));
    EXPECT_EQ(result.problems[1],
              pack + QStringLiteral(": link.cube: expected a file, found a symbolic link"));
    EXPECT_THAT(result.problems[2].toStdString(),
                HasSubstr(": ../out.cube: expected a name inside the archive"));
    EXPECT_THAT(result.problems[3].toStdString(), HasSubstr(": bad.lumetra:1:"));
}

TEST_F(LookPackTest, onePackTwiceAddsNothing)
{
    const QString pack = WritePack({File("a.cube", CubeText(3)), File("b.cube", CubeText(4))});
    EXPECT_EQ(Import(pack).presets.size(), 2u);
    const auto again = Import(pack);
    EXPECT_TRUE(again.presets.empty());
    EXPECT_EQ(again.known.size(), 2u);
}

TEST_F(LookPackTest, picturesBesideTablesAndNotesOfAMacArePassedOver)
{
    const auto result =
        Import(WritePack({File("preview.png", "no table at all"), File("a.cube", CubeText(3)),
                          File("__MACOSX/._a.cube", "notes"), File("._a.cube", "notes")}));
    EXPECT_EQ(result.presets.size(), 1u);
    EXPECT_TRUE(result.problems.isEmpty()) << result.problems.value(0).toStdString();
    const auto alone = Import(WritePack({File("preview.png", "no table")}));
    EXPECT_TRUE(alone.presets.empty());
    ASSERT_EQ(alone.problems.size(), 1);
    EXPECT_THAT(alone.problems[0].toStdString(), HasSubstr("pack.zip: preview.png: "));
}

TEST_F(LookPackTest, anArchiveWithoutLooksIsRefused)
{
    EXPECT_THAT(Refusal(WritePack({File("readme.txt", "hello")})),
                HasSubstr("pack.zip: expected files with looks or LUT files"));
    EXPECT_THAT(Refusal(Write("pack.zip", "no archive")),
                HasSubstr("pack.zip: expected a zip archive: "));
    EXPECT_TRUE(GetNames().isEmpty());
}

TEST_F(LookPackTest, aBombIsNotUnpacked)
{
    ArchiveEntry bomb = File("bomb.cube", QByteArray(70 * 1024 * 1024, ' '));
    bomb.isCompressed = true;
    ArchiveEntry liar = bomb;
    liar.name = "liar.cube";
    liar.claimedSize = 1000;
    ArchiveEntry nested = File("nested.lumetra", ArchiveMaker::Make({bomb}));
    const auto result = Import(WritePack({bomb, liar, nested, File("ok.cube", CubeText(2))}));
    EXPECT_EQ(GetNames(), QStringList(QStringLiteral("ok")));
    ASSERT_EQ(result.problems.size(), 3);
    EXPECT_THAT(result.problems[0].toStdString(),
                HasSubstr("bomb.cube: expected at most 67108864 bytes"));
    EXPECT_THAT(result.problems[2].toStdString(),
                HasSubstr("found an archive inside of the archive"));
}

TEST_F(LookPackTest, nothingStaysInTheTemporaryFolder)
{
    const QStringList before = QDir::temp().entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    Import(WritePack({File("a.cube", CubeText(3))}));
    const QStringList after = QDir::temp().entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : after)
        EXPECT_TRUE(before.contains(name) || !name.startsWith(QStringLiteral("presets-looks")))
            << name.toStdString();
}
