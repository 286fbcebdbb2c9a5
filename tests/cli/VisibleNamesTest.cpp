// SPDX-License-Identifier: GPL-2.0-or-later
// Control characters in the names of presets, catalogues and files.
#include "CliTest.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "storage/JsonDocument.h"

#include <QFile>

#include <algorithm>

using testing::HasSubstr;

namespace {

constexpr char Hostile[] = R"({"format": "lumetra-catalogue", "version": 1,
 "groups": [{"name": "Group\u001b[2J", "items": [
   {"name": "Red\u001b[31m\u009b1m\u202eA", "id": "red\u0007",
    "settings": {"effects": [{"effect": {"id": "exposure", "stops": 1}}]}}]}]})";

constexpr char VisibleName[] = "Red\\x1b[31m\\x9b1m\\u202eA";

bool IsPlain(const std::string& text)
{
    const QString decoded = QString::fromStdString(text);
    return std::all_of(decoded.begin(), decoded.end(), [](QChar character) {
        return character == QLatin1Char('\n') ||
               (character.isPrint() && character.unicode() != 0x202e);
    });
}

class VisibleNamesTest : public CliTest
{
protected:
    void SetUp() override
    {
        CliTest::SetUp();
        WriteFile("hostile.json", Hostile);
    }

    CliResult RunHostile(const QStringList& arguments) const
    {
        const CliResult result =
            Run(arguments + Words("--catalogue hostile.json --store presets.json"));
        EXPECT_TRUE(IsPlain(result.output)) << result.output;
        EXPECT_TRUE(IsPlain(result.messages)) << result.messages;
        return result;
    }

    QString HostileFile(const char* ending) const
    {
        return QStringLiteral("f\x1b[31m\n") + QLatin1String(ending);
    }
};

} // namespace

TEST_F(VisibleNamesTest, areWrittenOutInListsAndWarnings)
{
    const CliResult result = RunHostile({QStringLiteral("list")});

    EXPECT_EQ(result.code, 0);
    EXPECT_THAT(result.output, HasSubstr("Group\\x1b[2J\n"));
    EXPECT_THAT(result.output, HasSubstr(std::string("  ") + VisibleName + "  [red\\x07]"));
    EXPECT_THAT(result.messages,
                HasSubstr("hostile.json:2:22: warning: groups[0]/name: expected a text without "
                          "control characters, found \"Group\\x1b[2J\"\n"));
    EXPECT_THAT(result.messages, HasSubstr("groups[0]/items[0]/name: expected a text without "));
    EXPECT_THAT(result.messages, HasSubstr("groups[0]/items[0]/id: expected a text without "));
}

TEST_F(VisibleNamesTest, areEscapesInJson)
{
    const CliResult result = RunHostile(Words("list --json"));

    const auto group =
        LumetraHost::JsonDocument::Parse(QByteArray::fromStdString(result.output), "list")
            .GetRoot()
            ->GetCollection("groups")
            ->GetElement(0);
    EXPECT_EQ(group->Get("name", ""), "Group\x1b[2J");
    EXPECT_EQ(group->GetCollection("presets")->GetElement(0)->Get("name", ""), "Red\x1b[31m\xc2\x9b"
                                                                               "1m\xe2\x80\xae"
                                                                               "A");
}

TEST_F(VisibleNamesTest, ofFilesAreWrittenOut)
{
    WritePhoto("a.png");
    for (const char* ending : {".png", ".cube", ".json"}) {
        QFile::copy(Path("a.png"), folder.filePath(HostileFile(ending)));
        RunHostile({QStringLiteral("check"), HostileFile(ending)});
        RunHostile({QStringLiteral("import"), HostileFile(ending)});
        RunHostile({QStringLiteral("list"), QStringLiteral("--catalogue"), HostileFile(ending)});
        RunHostile({QStringLiteral("list"), QStringLiteral("--\x1b[31m")});
        RunHostile({QStringLiteral("apply"), HostileFile(ending), QStringLiteral("-p"),
                    HostileFile(ending)});
    }
    const CliResult applied = RunHostile(
        {QStringLiteral("apply"), HostileFile(".png"), QStringLiteral("-p"),
         QStringLiteral("test.bright"), QStringLiteral("-o"), QStringLiteral("out/{name}.{ext}")});
    EXPECT_EQ(applied.code, 0) << applied.messages;
    EXPECT_EQ(applied.output, Path("out/f\\x1b[31m\\n.png").toStdString() + "\n");
    RunHostile({QStringLiteral("apply"), HostileFile("none.png"), QStringLiteral("-p"),
                QStringLiteral("test.bright")});
    const CliResult unknown =
        RunPlain({QStringLiteral("\x1b[31m"), QStringLiteral("a"), QStringLiteral("b")});
    EXPECT_TRUE(IsPlain(unknown.messages)) << unknown.messages;
}

TEST_F(VisibleNamesTest, doNotReachTheNamesOfOutputs)
{
    WritePhoto("a.png");

    const CliResult result = RunHostile({QStringLiteral("apply"), QStringLiteral("a.png"),
                                         QStringLiteral("-p"), QString::fromUtf8("red\x07"),
                                         QStringLiteral("-o"), QStringLiteral("{preset}.png")});

    EXPECT_EQ(result.code, 0) << result.messages;
    EXPECT_EQ(result.output, Path("Red_[31m_1m_A.png").toStdString() + "\n");
    EXPECT_EQ(
        RunHostile({QStringLiteral("export-lut"), QStringLiteral("-p"),
                    QString::fromUtf8("red\x07"), QStringLiteral("-o"), QStringLiteral("a.cube")})
            .code,
        0);
    EXPECT_TRUE(ReadFile("a.cube").startsWith("TITLE \"Red [31m 1m A\"\n"));
}

TEST_F(VisibleNamesTest, areRefusedForNewPresets)
{
    WriteFile("swap.cube", "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n");
    ASSERT_EQ(RunHostile(Words("save test.grey Mine")).code, 0);
    const QByteArray before = ReadFile("presets.json");
    for (const char* name : {"a\x1b[31mb", "a\nb", "a\tb", "a\x7f", "\xc2\x9b\x61",
                             "a\xe2\x80\xae\x62", "a\xe2\x81\xa6\x62"}) {
        const QString text = QString::fromUtf8(name);
        for (const QStringList& arguments :
             {QStringList{QStringLiteral("save"), QStringLiteral("test.grey"), text},
              QStringList{QStringLiteral("rename"), QStringLiteral("Mine"), text},
              QStringList{QStringLiteral("import"), QStringLiteral("swap.cube"),
                          QStringLiteral("--name"), text}}) {
            const CliResult result = RunHostile(arguments);
            EXPECT_EQ(result.code, 2) << arguments[0].toStdString() << name;
            EXPECT_THAT(result.messages,
                        HasSubstr("expected a name without control characters, found \""));
        }
    }
    EXPECT_EQ(ReadFile("presets.json"), before);
}

TEST_F(VisibleNamesTest, ofLutFilesBecomeNamesWithoutThem)
{
    const QString name = QStringLiteral("Warm\x1b[31m.cube");
    WriteFile("swap.cube", "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n");
    ASSERT_TRUE(QFile::rename(Path("swap.cube"), folder.filePath(name)));

    const CliResult result = RunHostile({QStringLiteral("import"), name});

    EXPECT_EQ(result.code, 0) << result.messages;
    EXPECT_EQ(result.output, "imported \"Warm [31m\" from \"Warm\\x1b[31m.cube\"\n");
}
