// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/TableFolder.h"

#include "Zorvik/Exception.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using LumetraHost::TableFolder;
using testing::HasSubstr;

namespace {

/// A folder "outer" with a catalogue, tables beside it and one below it, and a table outside.
class TableFolderTest : public testing::Test
{
protected:
    void SetUp() override
    {
        QDir(root.path()).mkpath(QStringLiteral("outer/luts"));
        for (const char* name : {"outer/looks.json", "outer/film.cube", "outer/luts/film.cube",
                                 "outer/luts/..film.cube", "secret.cube"})
            Touch(name);
    }

    QString Path(const char* name) const
    {
        return QFileInfo(root.path()).canonicalFilePath() + QLatin1Char('/') +
               QString::fromUtf8(name);
    }

    void Touch(const char* name) const
    {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    /// The path that is read for `name`, or what is said of it.
    std::string Find(const std::string& name, const char* catalogue = "outer/looks.json")
    {
        std::string found;
        const TableFolder folder(Path(catalogue), [&found](const QString& path) {
            found = path.toStdString();
            return Zorvik::Quindle::EffectPtr();
        });
        try {
            folder.Read(name);
        } catch (const Zorvik::Exception& error) {
            EXPECT_EQ(found, "") << "read before it was refused";
            return error.GetDescription();
        }
        return found;
    }

    std::string In(const char* name) const { return Path(name).toStdString(); }

    QTemporaryDir root;
};

} // namespace

TEST_F(TableFolderTest, findsFilesBesideTheCatalogueAndBelow)
{
    EXPECT_EQ(Find("film.cube"), In("outer/film.cube"));
    EXPECT_EQ(Find("luts/film.cube"), In("outer/luts/film.cube"));
    EXPECT_EQ(Find("./luts//film.cube"), In("outer/luts/film.cube"));
    EXPECT_EQ(Find("luts/..film.cube"), In("outer/luts/..film.cube"));
}

TEST_F(TableFolderTest, refusesNamesThatLeaveTheFolder)
{
    EXPECT_EQ(Find("../secret.cube"), "expected a path inside the catalogue's folder, without "
                                      "\"..\", found \"../secret.cube\"");
    EXPECT_THAT(Find("luts/../film.cube"), HasSubstr("without \"..\""));
    EXPECT_THAT(Find("luts/.."), HasSubstr("without \"..\""));
    EXPECT_EQ(Find(In("secret.cube")),
              "expected a path from the catalogue's folder, found the absolute path \"" +
                  In("secret.cube") + "\"");
    EXPECT_THAT(Find(In("outer/film.cube")), HasSubstr("found the absolute path"));
    EXPECT_THAT(Find(" "), HasSubstr("found an empty text"));
    EXPECT_EQ(Find("film\x1b.cube"),
              "expected a name without control characters, found \"film\\x1b.cube\"");
    EXPECT_EQ(Find("missing.cube"),
              "expected a file \"" + In("outer") + "/missing.cube\", found none");
}

TEST_F(TableFolderTest, refusesLinksThatLeaveTheFolderAndFollowOthers)
{
    ASSERT_TRUE(QFile::link(Path("secret.cube"), Path("outer/link.cube")));
    ASSERT_TRUE(QFile::link(Path("outer/luts/film.cube"), Path("outer/inside.cube")));
    ASSERT_TRUE(QFile::link(root.path(), Path("outer/up")));
    ASSERT_TRUE(QFile::link(Path("nowhere.cube"), Path("outer/broken.cube")));
    EXPECT_EQ(Find("link.cube"), "expected a file inside the folder \"" + In("outer") +
                                     "\", found a link to \"" + In("secret.cube") + "\"");
    EXPECT_THAT(Find("up/secret.cube"), HasSubstr("found a link to"));
    EXPECT_THAT(Find("broken.cube"), HasSubstr("found none"));
    EXPECT_EQ(Find("inside.cube"), In("outer/luts/film.cube"));
}

/// A folder whose name begins with that of the catalogue's is another one.
TEST_F(TableFolderTest, refusesAFolderWithALongerName)
{
    QDir(root.path()).mkpath(QStringLiteral("outer-two"));
    Touch("outer-two/film.cube");
    ASSERT_TRUE(QFile::link(Path("outer-two/film.cube"), Path("outer/two.cube")));
    EXPECT_THAT(Find("two.cube"), HasSubstr("found a link to"));
}

TEST_F(TableFolderTest, isTheFolderOfTheFileItselfWhereTheCatalogueIsALink)
{
    QDir(root.path()).mkpath(QStringLiteral("installed"));
    ASSERT_TRUE(QFile::link(Path("outer/looks.json"), Path("installed/looks.json")));
    EXPECT_EQ(Find("film.cube", "installed/looks.json"), In("outer/film.cube"));
}
