// SPDX-License-Identifier: GPL-2.0-or-later
#include "LookFixture.h"

#include "host/archive/ArchiveMaker.h"

#include <QDir>

#include <gmock/gmock.h>

#include <sys/stat.h>

using namespace LumetraPlugin;
using namespace LumetraTest;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

const QByteArray Grey = R"("effects": [ { "effect": { "id": "saturation", "amount": -100 } } ])";

struct BadFile
{
    QByteArray content;
    const char* message; ///< a part of the sentence about it
};

QByteArray Top(const QByteArray& members)
{
    return "{ \"format\": \"lumetra-look\", \"version\": 1, " + members + " }";
}

QByteArray Looks(const QByteArray& value)
{
    return Top("\"looks\": " + value);
}

QByteArray Look(const QByteArray& members)
{
    return LookText("Grey", members);
}

/// Effects with this node in place of an effect.
QByteArray Effect(const QByteArray& effect)
{
    return Look("\"effects\": [ { \"effect\": " + effect + " } ]");
}

QByteArray Table(const QByteArray& table)
{
    return Effect(R"({ "id": "lut3d", "cube": )" + table + " }");
}

QByteArray Intensity(const QByteArray& intensity)
{
    return Look(Grey + ", \"intensity\": " + intensity);
}

QByteArray Zip(const QByteArray& name, const QByteArray& content)
{
    ArchiveEntry entry;
    entry.name = name;
    entry.content = content;
    return ArchiveMaker::Make({entry});
}

/// Files that cannot be used at all, or have no look that can.
std::vector<BadFile> MakeBadFiles()
{
    const QByteArray good = Look(Grey);
    std::vector<BadFile> files = {
        {"", "expected a JSON object, found nothing"},
        {" ", "expected a JSON"},
        {"[]", "expected an object at the top"},
        {"1", "expected an object at the top"},
        {"{", "expected"},
        {"{}", "expected a look, whose \"format\" is \"lumetra-look\", found none"},
        {"hello", "expected"},
        {QByteArray("\0\0\0\0", 4), "found a NUL byte"},
        {"\xff\xfe{\0}\0", "expected"},
        {"<?xml version=\"1.0\"?><look/>", "expected"},
        {"\xff\xd8\xff\xe0 a picture", "expected"},
        {"GIF89a", "expected"},
        {R"({ "format": "lumetra-catalogue", "version": 1 })", "found \"lumetra-catalogue\""},
        {R"({ "format": 1, "version": 1 })", "expected string"},
        {R"({ "format": null, "version": 1 })", "expected string"},
        {R"({ "format": "lumetra-look" })", "expected version 1, found none"},
        {R"({ "format": "lumetra-look", "version": 2 })",
         "expected version 1, found 2: made by a newer program"},
        {R"({ "format": "lumetra-look", "version": 0 })", "expected version 1, found 0"},
        {R"({ "format": "lumetra-look", "version": -1 })", "expected version 1, found -1"},
        {R"({ "format": "lumetra-look", "version": 1.5 })", "expected a whole number"},
        {R"({ "format": "lumetra-look", "version": "1" })", "expected number"},
        {R"({ "format": "lumetra-look", "version": 1e300 })", "expected a whole number"},
        {Top("\"look\": []"), "expected at least one look, found none"},
        {Looks("[]"), "expected at least one look, found none"},
        {Looks("{}"), "expected at least one look, found none"},
        {Looks("1"), "expected collection"},
        {Looks("null"), "expected"},
        {Looks("\"x\""), "expected collection"},
        {Looks("[ 1 ]"), "expected node"},
        {Looks("[ null ]"), "expected node"},
        {Looks("[ [] ]"), "expected node"},
        {Looks("[ {} ]"), "looks[0]/name: expected 1 to 50 characters, found 0"},
        {Looks("[ { \"name\": 1 } ]"), "looks[0]/name: expected"},
        {Looks("[ { \"name\": \"\" } ]"), "expected 1 to 50 characters, found 0"},
        {Looks("[ { \"name\": \"  \" } ]"), "expected 1 to 50 characters, found 0"},
        {Looks("[ { \"name\": \"a\\u001b[2J\", " + Grey + " } ]"), "without control characters"},
        {Looks("[ { \"name\": \"a\\u202eb\", " + Grey + " } ]"), "without control characters"},
        {Look(R"("effects": 1)"), "looks[0]/effects: expected collection"},
        {Look(R"("effects": "x")"), "expected collection"},
        {Look(R"("effects": [ 1 ])"), "expected node"},
        {Look(R"("effects": [ {} ])"), "expected a node \"effect\""},
        {Look(R"("effects": [ { "effect": 1 } ])"), "expected node"},
        {Effect("{}"), "expected the effect's \"id\""},
        {Effect(R"({ "id": 1 })"), "expected string"},
        {Effect(R"({ "id": "" })"), "expected a known effect"},
        {Effect(R"({ "id": "saturashun" })"), "did you mean \"saturation\"?"},
        {Effect(R"({ "id": "saturation", "amount": "x" })"), "expected number"},
        {Effect(R"({ "id": "saturation", "amount": null })"), "expected number"},
        {Effect(R"({ "id": "saturation", "amount": 1e999 })"), "expected a number that fits"},
        {Effect(R"({ "id": "saturation", "amount": NaN })"), "expected"},
        {Effect(R"({ "id": "saturation", "amounts": 1 })"), "expected a parameter of the effect"},
        {Effect(R"({ "id": "saturation", "amount": 1, "amount": 2 })"), "expected each key once"},
        {Effect(R"({ "id": "lut3d", "file": "/etc/passwd" })"), "found the name of a file"},
        {Table("1"), "expected"},
        {Table("[]"), "expected"},
        {Table("{}"), "expected"},
        {Table(R"({ "size": 2 })"), "expected"},
        {Table(R"({ "size": -2, "format": "uint16", "data": "" })"), "expected"},
        {Table(R"({ "size": 100000, "format": "uint16", "data": "" })"), "expected"},
        {Table(R"({ "size": 2147483647, "format": "float32", "data": "AAAA" })"), "expected"},
        {Table(R"({ "size": 2, "format": "uint8", "data": "AAAA" })"), "expected"},
        {Table(R"({ "size": 2, "format": "uint16", "data": "AAAA" })"), "expected"},
        {Table(R"({ "size": 2, "format": "uint16", "data": "????" })"), "expected"},
        {Table(R"({ "size": 2, "format": "uint16", "data": 1 })"), "expected"},
        {Table("{ \"size\": 2, \"format\": \"uint16\", \"sha256\": \"" + QByteArray(64, 'a') +
               "\" }"),
         "found only the name of a file"},
        {Table(R"({ "size": 2, "format": "uint16", "sha256": "../../x" })"), "expected"},
        {Look(R"("resource": "http://example.org/x")"), "found the name of a file"},
        {Look(Grey + R"(, "resource": "x")"), "found the name of a file"},
        {Look(Grey + R"(, "controller": "x")"), "expected a kind of preset controller"},
        {Look(Grey + R"(, "controller": 1)"), "expected string"},
        {Intensity("1"), "looks[0]/intensity: expected node"},
        {Intensity("[]"), "expected node"},
        {Intensity(R"({ "type": 7 })"), "looks[0]/intensity/type: expected"},
        {Intensity(R"({ "type": "1" })"), "expected number"},
        {Intensity(R"({ "type": 1, "blendSetting": 1 })"), "expected node"},
        {Intensity(R"({ "type": 1, "blendSetting": { "value": "x" } })"), "expected number"},
        {Intensity(R"({ "type": 1, "blendSetting": { "value": 1e99 } })"), "expected"},
        {Intensity(R"({ "type": 2, "sliderSetting": 1 })"), "expected node"},
        {Intensity(R"({ "type": 2, "sliderSetting": { "begin": 0, "end": 10, "variables":
            [ { "effectID": "exposure", "setting": "stops", "begin": 0, "end": 1 } ] } })"),
         "exposure"},
        {Intensity(R"({ "type": 2, "sliderSetting": { "begin": 0, "end": 4294967296, "variables":
            [ { "effectID": "saturation", "setting": "amount", "begin": 0, "end": 1 } ] } })"),
         "expected"},
        {QByteArray(good).replace("\"Grey\"", "\"\xff\xfe\""), "expected"},
        {QByteArray(good).replace("\"Grey\"", "\"\xc0\xae\""), "expected"},
        {QByteArray(good).replace("\"Grey\"", "\"\xed\xa0\x80\""), "expected"},
        {QByteArray(good).replace("\"Grey\"", "\"\\ud800\""), "expected"},
        {QByteArray(good).replace("\"Grey\"", QByteArray("\"Gr\0y\"", 6)), "found a NUL byte"},
        {good + "}", "expected"},
        {good + good, "expected"},
        {"// comment\n" + good, "expected"},
        {QByteArray(good).replace("} ]", "}, ]"), "expected"},
        {QByteArray(good).replace('"', '\''), "expected"},
        {QByteArray(5000, '['), "expected"},
        {Looks(QByteArray(5000, '[') + QByteArray(5000, ']')), "expected nesting of at most"},
        {Looks("[ " + QByteArray("1,").repeated(1000) + " 1 ]"), "expected"},
        {Zip("look.txt", good), "expected an entry \"look.json\", found none"},
        {Zip("../look.json", good), "expected an entry \"look.json\", found none"},
        {Zip("look.json", "{}"), "look.json:1:1: error: format: expected a look"},
        {Zip("look.json", good).left(60), "expected a zip archive"},
        {Zip("look.json", QByteArray()), "look.json:1:1: expected a JSON object, found nothing"},
        {"PK\3\4", "expected a zip archive"},
        {"PK\5\6", "expected a zip archive"},
        {"PK\3\4" + QByteArray(10'000, '\xff'), "expected a zip archive"},
    };
    for (int size = 10; size < good.size() - 2; size += 13)
        files.push_back({good.left(size), "expected"});
    return files;
}

} // namespace

class MalformedLookTest : public LookTest
{
protected:
    void SetUp() override
    {
        LookTest::SetUp();
        AddTable("Mine", 3);
        Save();
        m_before = ReadStore();
    }

    QByteArray ReadStore() const { return ReadFile(Path("presets.json")); }

    std::string Tell(const QString& path) { return Refusal(path); }

    QByteArray m_before;
};

TEST_F(MalformedLookTest, eachFileIsToldWithItsNameAndWhatWasExpectedAndAddsNothing)
{
    const auto files = MakeBadFiles();
    ASSERT_GE(files.size(), 100u);
    for (std::size_t i = 0; i < files.size(); ++i) {
        const QString path = Write("bad.lumetra", files[i].content);
        const std::string text = Tell(path);
        const std::string shown = files[i].content.left(200).toStdString();
        EXPECT_THAT(text, StartsWith(path.toStdString() + ":")) << i << ": " << shown;
        EXPECT_THAT(text, HasSubstr(files[i].message)) << i << ": " << shown;
        EXPECT_THAT(text, HasSubstr("expected")) << i << ": " << shown;
    }
    EXPECT_EQ(GetNames(), QStringList(QStringLiteral("Mine")));
    Save();
    EXPECT_EQ(ReadStore(), m_before);
}

TEST_F(MalformedLookTest, aBadLookCostsOnlyItself)
{
    const QByteArray text = Looks("[ { \"name\": \"Good\", " + Grey +
                                  " },\n { \"name\": \"Bad\" , "
                                  "\"effects\": 1 },\n { \"name\": \"Other\", \"effects\": [ { "
                                  "\"effect\": { \"id\": \"exposure\", \"stops\": 1 } } ] } ]");
    const QString path = Write("three.lumetra", text);
    const auto result = Import(path);
    EXPECT_EQ(result.presets.size(), 2u);
    ASSERT_EQ(result.problems.size(), 1);
    EXPECT_THAT(result.problems.front().toStdString(), StartsWith(path.toStdString() + ":2:"));
    EXPECT_THAT(result.problems.front().toStdString(), HasSubstr("looks[1]/effects: "));
}

TEST_F(MalformedLookTest, badCreditsAreToldAndLeftOut)
{
    const std::vector<std::pair<QByteArray, const char*>> cases = {
        {R"("author": 1)", "looks[0]/author: expected string"},
        {"\"author\": \"" + QByteArray(201, 'a') + "\"", "expected at most 200 characters"},
        {R"("licence": "a\u0007b")", "without control characters"},
        {R"("names": [])", "looks[0]/names: expected node"},
        {R"("names": { "german": "Grau" })", "looks[0]/names/german: expected a language"},
        {R"("names": { "de": "" })", "looks[0]/names/de: expected 1 to 50 characters"},
        {R"("names": { "de": 1 })", "looks[0]/names/de: expected string"},
        {R"("preview": 1)", "looks[0]/preview: expected node"},
        {R"("preview": { "mediaType": "text/html", "data": "AAAA" })",
         "looks[0]/preview/mediaType: expected \"image/jpeg\" or \"image/png\", found "
         "\"text/html\""},
        {R"("preview": { "mediaType": "image/png", "data": "?" })", "in base64"},
        {R"("preview": { "mediaType": "image/png" })", "in base64"},
        {"\"preview\": { \"mediaType\": \"image/png\", \"data\": \"" + QByteArray(400'000, 'A') +
             "\" }",
         "expected a picture of 1 to 262144 bytes"},
    };
    for (const auto& [members, message] : cases) {
        session.GetModel().removeRows(1, 1, session.GetModel().GetUserGroup());
        const auto result = Import(Write("odd.lumetra", Look(Grey + ", " + members)));
        EXPECT_EQ(result.presets.size(), 1u) << message;
        ASSERT_EQ(result.problems.size(), 1) << message;
        EXPECT_THAT(result.problems.front().toStdString(), HasSubstr(message));
    }
}

TEST_F(MalformedLookTest, aTextOf50MegabytesIsReadOrRefusedInOnePiece)
{
    const QByteArray blanks(50 * 1024 * 1024, ' ');
    EXPECT_EQ(Import(Write("large.lumetra", blanks + Look(Grey))).presets.size(), 1u);
    const QByteArray text = "\"" + QByteArray(50 * 1024 * 1024, 'a') + "\"";
    EXPECT_THAT(Tell(Write("large.lumetra", Look(Grey + ", \"author\": " + text))), HasSubstr(""));
    EXPECT_THAT(Tell(Write("huge.lumetra", QByteArray(70 * 1024 * 1024, ' '))),
                HasSubstr("expected at most 64 MB"));
}

TEST_F(MalformedLookTest, aBombInALookFileIsNotUnpacked)
{
    ArchiveEntry bomb;
    bomb.name = "look.json";
    bomb.content = QByteArray(70 * 1024 * 1024, ' ');
    bomb.isCompressed = true;
    EXPECT_THAT(Tell(Write("bomb.lumetra", ArchiveMaker::Make({bomb}))),
                HasSubstr("bomb.lumetra: look.json: expected at most 67108864 bytes"));
    bomb.content = Look(Grey);
    EXPECT_THAT(Tell(Write("twins.lumetra", ArchiveMaker::Make({bomb, bomb}))),
                HasSubstr("expected a name of its own, found it 2 times"));
    bomb.flags |= 1;
    EXPECT_THAT(Tell(Write("secret.lumetra", ArchiveMaker::Make({bomb}))),
                HasSubstr("expected a file without a password"));
}

TEST_F(MalformedLookTest, whatIsNoFileIsRefusedWithoutWaiting)
{
    const QString pipe = Path("pipe.lumetra");
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_THAT(Tell(pipe), HasSubstr("expected a plain file"));
    ASSERT_TRUE(QDir().mkdir(Path("folder.lumetra")));
    EXPECT_THAT(Tell(Path("folder.lumetra")), HasSubstr("expected a file, found a folder"));
    EXPECT_THAT(Tell(Path("none.lumetra")), HasSubstr("none.lumetra: cannot be read: "));
    ASSERT_TRUE(QFile::link(Path("nowhere"), Path("link.lumetra")));
    EXPECT_THAT(Tell(Path("link.lumetra")), HasSubstr("link.lumetra: cannot be read: "));
}
