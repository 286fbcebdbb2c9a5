// SPDX-License-Identifier: GPL-2.0-or-later
#include "CliTest.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "storage/JsonDocument.h"

#include <QDir>

#include <set>
#include <sstream>

using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class ShardTest : public CliTest
{
protected:
    void SetUp() override
    {
        CliTest::SetUp();
        for (int i = 1; i <= 9; ++i) {
            const std::string name = "p" + std::to_string(i) + ".png";
            WritePhoto(name.c_str(), 20 * i, 30);
            m_photos.append(QString::fromStdString(name));
        }
    }

    CliResult Apply(const char* line) const
    {
        return Run(QStringList{QStringLiteral("apply")} + m_photos + Words(line));
    }

    static std::multiset<std::string> Lines(const std::string& text)
    {
        std::multiset<std::string> lines;
        std::istringstream stream(text);
        for (std::string line; std::getline(stream, line);)
            lines.insert(line);
        return lines;
    }

    QStringList m_photos;
};

} // namespace

TEST_F(ShardTest, makesEveryFileInOneOfTheShards)
{
    const auto all = Lines(Apply("-p test.bright -o out/{name}.png --dry-run").output);
    std::multiset<std::string> parts;
    for (const char* const shard : {"1/3", "2/3", "3/3"}) {
        const CliResult result =
            Apply((std::string("-p test.bright -o out/{name}.png --shard ") + shard).c_str());
        EXPECT_EQ(result.code, 0) << result.messages;
        const auto lines = Lines(result.output);
        EXPECT_GE(lines.size(), 2U);
        EXPECT_LE(lines.size(), 4U);
        parts.insert(lines.begin(), lines.end());
    }

    EXPECT_EQ(all.size(), 9U);
    EXPECT_EQ(parts, all);
    EXPECT_EQ(QDir(Path("out")).entryList(QDir::Files).size(), 9);
}

TEST_F(ShardTest, isShownByADryRun)
{
    const CliResult planned = Apply("-p test.bright -o out/{name}.png --shard 2/4 --dry-run");
    const CliResult done = Apply("-p test.bright -o out/{name}.png --shard 2/4");

    EXPECT_THAT(planned.output, HasSubstr("/out/p"));
    EXPECT_EQ(planned.output, done.output);
}

TEST_F(ShardTest, tellsOfEveryPhotoInOneShard)
{
    m_photos.append(QStringLiteral("missing.png"));
    m_photos.append(QStringLiteral("p1.png"));
    std::string messages;
    for (const char* const shard : {"1/2", "2/2"})
        messages +=
            Apply((std::string("-p test.bright -o out/{name}.png --shard ") + shard).c_str())
                .messages;

    EXPECT_EQ(Lines(messages).size(), 2U + 2U) << "two summaries: " << messages;
    EXPECT_THAT(messages, HasSubstr("missing.png: expected a photo, found no such file"));
    EXPECT_THAT(messages, HasSubstr("p1.png: is the photo \"p1.png\" again, which is done once"));
}

// The whole list decides, or two machines would write one file.
TEST_F(ShardTest, refusesSharedOutputsOfTheWholeList)
{
    for (const char* const shard : {"1/2", "2/2"}) {
        const CliResult result =
            Apply((std::string("-p test.bright -o out/same.png --shard ") + shard).c_str());
        EXPECT_EQ(result.code, 1);
        EXPECT_THAT(result.messages, HasSubstr("expected an output of its own"));
    }
    EXPECT_FALSE(Exists("out"));
}

// A shard alone would count its own photos.
TEST_F(ShardTest, numbersPhotosByTheirPlaceInTheWholeList)
{
    const auto all = Lines(Apply("-p test.bright -o out/{n}_{name}.png --dry-run").output);
    std::multiset<std::string> parts;
    for (const char* const shard : {"2/3", "1/3", "3/3"})
        parts.merge(Lines(
            Apply((std::string("-p test.bright -o out/{n}_{name}.png --dry-run --shard ") + shard)
                      .c_str())
                .output));

    EXPECT_EQ(parts, all);
    EXPECT_EQ(all.count(Path("out/9_p9.png").toStdString()), 1U);
}

TEST_F(ShardTest, isNamedInEveryLineOfAReportWithTheSizeOfTheList)
{
    const CliResult result = Apply("-p test.bright -o out/{name}.png --json --shard 1/3");

    EXPECT_EQ(result.code, 0) << result.messages;
    std::istringstream stream(result.output);
    int jobs = 0;
    for (std::string line; std::getline(stream, line);) {
        const auto document =
            LumetraHost::JsonDocument::Parse(QByteArray::fromStdString(line), "report");
        EXPECT_EQ(document.GetRoot()->Get("shard", ""), "1/3") << line;
        const auto summary = document.GetRoot()->GetNode("summary");
        jobs += summary ? 0 : 1;
        if (summary) {
            EXPECT_EQ(summary->Get("jobs", -1), jobs);
            EXPECT_EQ(summary->Get("list", -1), 9);
        }
    }
    EXPECT_GE(jobs, 2);
    EXPECT_LE(jobs, 4);
}

TEST_F(ShardTest, needsFiles)
{
    WritePhoto("a.png");
    const QByteArray photo = ReadFile("a.png");
    for (const char* const line : {"apply - -p test.bright -o out.png --shard 2/2",
                                   "apply a.png -p test.bright -o - --shard 1/2"}) {
        const CliResult result = RunWithInput(Words(line), photo);
        EXPECT_EQ(result.code, 2) << line;
        EXPECT_THAT(result.messages, HasSubstr("--shard: expected photos and outputs that are "
                                               "files, found a pipe"));
        EXPECT_THAT(result.output, IsEmpty());
    }
    EXPECT_FALSE(Exists("out.png"));
}

TEST_F(ShardTest, mayHaveNothingToDo)
{
    m_photos = QStringList{QStringLiteral("p1.png")};

    const CliResult result = Apply("-p test.bright -o out/{name}.png --shard 2/2");

    EXPECT_EQ(result.code, 0);
    EXPECT_THAT(result.output, IsEmpty());
}

TEST_F(ShardTest, refusesWhatIsNoShard)
{
    for (const char* const shard : {"0/2", "3/2", "2", "1/0", "a/b", "-1/2", "1/100001"}) {
        const CliResult result =
            Run(QStringList{QStringLiteral("apply")} + m_photos + Words("-p test.bright") +
                QStringList{QStringLiteral("--shard=") + QLatin1String(shard)});
        EXPECT_EQ(result.code, 2) << shard;
        EXPECT_THAT(result.messages, HasSubstr(std::string("--shard: expected i/n, such as 2/4")));
        EXPECT_THAT(result.messages, HasSubstr(std::string("found \"") + shard + "\""));
    }
}
