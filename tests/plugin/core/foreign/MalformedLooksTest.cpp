// SPDX-License-Identifier: GPL-2.0-or-later
// Damaged and hostile files: each costs itself alone, and its error says where it is damaged.
#include "core/foreign/files/ForeignFile.h"
#include "plugin/core/foreign/ForeignFixture.h"

#include <QFile>

#include <sys/stat.h>

using LumetraPlugin::ForeignFile;
using LumetraTest::ForeignFixture;
using LumetraTest::Settings;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

constexpr int Cuts = 41;

class MalformedLooksTest : public ForeignFixture
{
protected:
    const Settings settings = {{"Exposure2012", "+0.50"},
                               {"Contrast2012", "12"},
                               {"ToneCurvePV2012", "0, 10; 128, 140; 255, 250"},
                               {"Look", "Adobe Color"},
                               {"ConvertToGrayscale", "True"}};

    /// Expects every file that is cut off before its end to be refused with its name and a line.
    void ExpectRefusalOfCuts(const std::string& name, const QByteArray& whole)
    {
        const int end = whole.trimmed().size() - 1;
        for (int i = 1; i < Cuts; ++i)
            ExpectRefusal(name, whole.left(end * i / (Cuts - 1)));
    }
    void ExpectRefusal(const std::string& name, const QByteArray& content)
    {
        const std::string error = FindError(name, content);
        EXPECT_THAT(error, StartsWith(Path(name))) << content.toStdString();
        EXPECT_THAT(error, ContainsRegex(":[0-9]+: expected ")) << content.toStdString();
    }
    std::string Path(const std::string& name) const
    {
        return folder.filePath(QString::fromStdString(name)).toStdString();
    }
    /// Tables in each other.
    static QByteArray Nest(int levels)
    {
        return "s = " + QByteArray("{ ").repeated(levels) + QByteArray("} ").repeated(levels);
    }
};

} // namespace

TEST_F(MalformedLooksTest, packetsThatAreCutOffAreRefused)
{
    ExpectRefusalOfCuts("cut.xmp", MakeXmp(settings));
}

TEST_F(MalformedLooksTest, templatesThatAreCutOffAreRefused)
{
    ExpectRefusalOfCuts("cut.lrtemplate", MakeTemplate(settings));
}

TEST_F(MalformedLooksTest, damagedPacketsAreRefused)
{
    const std::pair<const char*, const char*> damages[] = {
        {"crs:Exposure2012=\"+0.50\"", "crs:Exposure2012=+0.50"},
        {"crs:Exposure2012=\"+0.50\"", "crs:Exposure2012=\"<\""},
        {"crs:Exposure2012=\"+0.50\"", "crs:Exposure2012=\"&nothing;\""},
        {"crs:Exposure2012=\"+0.50\"", "crs:Exposure2012=\"1\" crs:Exposure2012=\"2\""},
        {"crs:Exposure2012=\"+0.50\"", "zz:Exposure2012=\"1\""},
        {"</x:xmpmeta>", "</x:other>"},
        {"</x:xmpmeta>", "</x:xmpmeta></x:xmpmeta>"},
        {"<x:xmpmeta", "<x:xmpmeta <"},
        {"<rdf:li>", "<rdf:li"},
        {" <rdf:RDF", "<?xml version=\"1.0\"?><rdf:RDF"},
    };
    for (const auto& [from, to] : damages) {
        QByteArray content = MakeXmp(settings);
        ASSERT_TRUE(content.contains(from)) << from;
        ExpectRefusal("damaged.xmp", content.replace(from, to));
    }
}

TEST_F(MalformedLooksTest, damagedTemplatesAreRefused)
{
    const std::pair<const char*, const char*> damages[] = {
        {"s = {", "s {"},
        {"s = {", "= {"},
        {"s = {", "s = ["},
        {"s = {", "s = { {"},
        {"12,", "1.2.3,"},
        {"\"+0.50\"", "+0.50x"},
        {"\"+0.50\"", "\"+0.50"},
        {"\"+0.50\"", "\"\\q\""},
        {"\"+0.50\"", "\"\\300\""},
        {"true", "maybe"},
        {"true", "true true"},
        {"{ Name", "[ Name"},
        {"12,", "12"},
        {"12,", "= 12,"},
        {"12,", "--[[ 12, ]]"},
    };
    for (const auto& [from, to] : damages) {
        QByteArray content = MakeTemplate(settings);
        ASSERT_TRUE(content.contains(from)) << from;
        ExpectRefusal("damaged.lrtemplate", content.replace(from, to));
    }
}

TEST_F(MalformedLooksTest, damagedProfilesAreRefused)
{
    for (const char* content :
         {"[Exposure\nCompensation=1\n", "[Exposure]\nCompensation\n", "[Exposure]\n=1\n",
          "[Exposure]\nCompensation=1\nCompensation=2\n", "[Exposure]\na=1\n[Exposure]\na=2\n"})
        ExpectRefusal("damaged.pp3", content);
}

TEST_F(MalformedLooksTest, filesWithNothingInThemAreRefused)
{
    for (const char* name : {"a.xmp", "a.lrtemplate", "a.pp3"}) {
        EXPECT_THAT(FindError(name, ""), HasSubstr("expected a look, found an empty file"));
        EXPECT_THAT(FindError(name, "\xEF\xBB\xBF \r\n"), HasSubstr("found an empty file"));
        EXPECT_THAT(FindError(name, QByteArray("a\0b", 3)), HasSubstr("found binary data"));
        EXPECT_THAT(FindError(name, "<html/>"), HasSubstr("expected"));
        EXPECT_THAT(FindError(name, QByteArray(200, '\xff')), HasSubstr("expected"));
    }
}

TEST_F(MalformedLooksTest, entitiesThatGrowAreRefused)
{
    QByteArray bomb = "<?xml version=\"1.0\"?>\n<!DOCTYPE x [\n<!ENTITY a0 \"aaaaaaaaaa\">\n";
    for (int i = 1; i < 12; ++i)
        bomb += QStringLiteral("<!ENTITY a%1 \"").arg(i).toUtf8() +
                QStringLiteral("&a%1;").arg(i - 1).repeated(10).toUtf8() + "\">\n";
    bomb += "]>\n<x>&a11;</x>\n";
    EXPECT_THAT(FindError("bomb.xmp", bomb), HasSubstr("expected no document type"));
    EXPECT_THAT(FindError("outside.xmp",
                          "<!DOCTYPE x [<!ENTITY f SYSTEM \"file:///etc/passwd\">]><x>&f;</x>"),
                HasSubstr("expected no document type"));
}

TEST_F(MalformedLooksTest, deepNestingIsRefused)
{
    const int levels = 100000;
    EXPECT_THAT(FindError("deep.xmp",
                          QByteArray("<a>").repeated(levels) + QByteArray("</a>").repeated(levels)),
                HasSubstr("expected nesting of at most 64 levels"));
    EXPECT_THAT(FindError("deep.lrtemplate", Nest(levels)),
                HasSubstr("expected tables in at most 32 levels"));
}

TEST_F(MalformedLooksTest, manyEntriesAreRefused)
{
    EXPECT_THAT(FindError("wide.lrtemplate", "s = { " + QByteArray("1,").repeated(200000) + "}"),
                HasSubstr("expected at most 100000 entries"));
}

TEST_F(MalformedLooksTest, longCurvesAreLeftOut)
{
    std::string list = "0, 0";
    for (int i = 1; i < 400; ++i)
        list += "; " + std::to_string(i % 256) + ", 10";
    const auto look = Import({{"Exposure2012", "1"}, {"ToneCurvePV2012", list}});
    ASSERT_EQ(look.remarks.size(), 1u);
    EXPECT_EQ(look.remarks[0].reason.toStdString(), "expected a curve of 2 to 256 points");
}

TEST_F(MalformedLooksTest, largeFilesAreRefusedUnread)
{
    QFile file(folder.filePath(QStringLiteral("large.xmp")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(50 * 1024 * 1024));
    file.close();
    try {
        ForeignFile::Read(file.fileName());
        FAIL();
    } catch (const std::exception& error) {
        EXPECT_THAT(error.what(),
                    HasSubstr("expected a file of at most 8388608 bytes, found 52428800"));
    }
}

TEST_F(MalformedLooksTest, pipesAndFoldersAreRefused)
{
    const QString pipe = folder.filePath(QStringLiteral("pipe.xmp"));
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& path : {pipe, folder.path(), folder.filePath(QStringLiteral("none.xmp"))})
        EXPECT_THROW(ForeignFile::Read(path), std::exception) << path.toStdString();
}
