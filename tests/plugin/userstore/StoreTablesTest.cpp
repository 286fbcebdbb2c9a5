// SPDX-License-Identifier: GPL-2.0-or-later
// Look-up tables beside the store are written once, read when they are drawn, and no preset is lost
// while they are missing.
#include "StoreFixture.h"

#include "Zorvik/Exception.h"
#include "engine/effects/lut3d/Lut3dSettings.h"
#include "storage/JsonDocument.h"
#include "userdata/ContentCollector.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace LumetraTest {
namespace {

using LumetraHost::ContentCheck;
using LumetraHost::Lut3dSettings;

constexpr int Points = 17;
constexpr int TableBytes = Points * Points * Points * 6;

class StoreTablesTest : public testing::Test
{
protected:
    StoreTablesTest() { RegisterTone(); }

    QString Path() const { return m_folder.filePath(QStringLiteral("presets.json")); }
    QString Tables() const { return Path() + QStringLiteral(".tables"); }
    QStringList TableFiles() const { return QDir(Tables()).entryList(QDir::Files); }
    QString TableFile(int index = 0) const
    {
        return Tables() + QLatin1Char('/') + TableFiles().at(index);
    }

    static QByteArray Content(const QString& name)
    {
        QFile file(name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
        return file.readAll();
    }

    static void Write(const QString& name, const QByteArray& content)
    {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    /// The store in the form of the first version: tables in the text.
    QByteArray OldForm(const StoreProgram& program) const
    {
        QByteArray text = program.WholeText();
        return text.insert(text.lastIndexOf('}'), ", \"format\": \"lumetra-user-presets\",\n"
                                                  "\"version\": 1\n");
    }

    /// Leaves an old store, and nothing else, in the folder.
    QByteArray MakeOldStore()
    {
        StoreProgram program(m_folder.filePath(QStringLiteral("elsewhere.json")));
        program.AddTable(QStringLiteral("One"), Points, 1);
        program.AddTable(QStringLiteral("Two"), Points, 2);
        const QByteArray old = OldForm(program);
        Write(Path(), old);
        return old;
    }

    static LumetraHost::LookUpTablePtr CubeOf(const StoreProgram& program, const char* name)
    {
        const auto preset = program.Find(QString::fromLatin1(name));
        const auto effects = preset->GetEffectInfo(false);
        return dynamic_cast<const Lut3dSettings&>(*effects.at(0)).GetCube();
    }

    QTemporaryDir m_folder;
};

TEST_F(StoreTablesTest, standInFilesBesideTheStoreEachContentOnce)
{
    StoreProgram program(Path());
    program.SaveTable(QStringLiteral("One"), Points, 1);
    program.SaveTable(QStringLiteral("Two"), Points, 2);
    program.SaveTable(QStringLiteral("One again"), Points, 1);

    EXPECT_LT(QFile(Path()).size(), 4096);
    EXPECT_LT(QFile(Path() + QStringLiteral(".backup-1")).size(), 4096);
    ASSERT_EQ(TableFiles().size(), 2);
    EXPECT_EQ(QFile(TableFile(0)).size(), TableBytes);
    EXPECT_EQ(QFile(TableFile(1)).size(), TableBytes);
    const StoreProgram later(Path());
    EXPECT_EQ(later.WholeText(), program.WholeText());
    EXPECT_EQ(CubeOf(later, "One")->values, CubeOf(program, "One")->values);
}

TEST_F(StoreTablesTest, areNotReadUntilTheyAreDrawn)
{
    StoreProgram(Path()).SaveTable(QStringLiteral("One"), Points, 1);
    Write(TableFile(), QByteArray(TableBytes, 'x'));
    StoreProgram program(Path());
    EXPECT_TRUE(program.Store().GetReports().empty());
    EXPECT_EQ(program.Find(QStringLiteral("One"))->FindProblem(ContentCheck::Presence), "");
    program.SaveAs(QStringLiteral("Another"));

    const std::string problem =
        program.Find(QStringLiteral("One"))->FindProblem(ContentCheck::Content);
    EXPECT_NE(problem.find(TableFile().toStdString()), std::string::npos) << problem;
    EXPECT_NE(problem.find("found a damaged one"), std::string::npos) << problem;
    EXPECT_NE(problem.find("presets.json/UserPresets/items[0]"), std::string::npos) << problem;
    EXPECT_THROW(CubeOf(program, "One"), Zorvik::Exception);
}

TEST_F(StoreTablesTest, areMarkedWhenMissingAndStayNamed)
{
    StoreProgram(Path()).SaveTable(QStringLiteral("One"), Points, 1);
    StoreProgram(Path()).SaveTable(QStringLiteral("Two"), Points, 2);
    const QByteArray before = Content(Path());
    ASSERT_TRUE(QDir(Tables()).removeRecursively());

    StoreProgram program(Path());
    EXPECT_EQ(program.Names().size(), 2);
    const std::string problem =
        program.Find(QStringLiteral("Two"))->FindProblem(ContentCheck::Presence);
    EXPECT_NE(problem.find("expected a file of 29478 bytes, found none"), std::string::npos)
        << problem;
    program.SaveAs(QStringLiteral("Three"));
    StoreProgram later(Path());
    EXPECT_EQ(later.Names().size(), 3);
    for (const std::string& name : LumetraHost::ContentCollector::FindNames(before))
        EXPECT_TRUE(Content(Path()).contains(QByteArray::fromStdString(name)));
}

TEST_F(StoreTablesTest, areWrittenAnewWhenAnImportFindsADamagedOne)
{
    StoreProgram(Path()).SaveTable(QStringLiteral("One"), Points, 1);
    const QByteArray good = Content(TableFile());
    Write(TableFile(), QByteArray(TableBytes, 'x'));
    StoreProgram(Path()).SaveTable(QStringLiteral("One again"), Points, 1);
    EXPECT_EQ(Content(TableFile()), good);
}

TEST_F(StoreTablesTest, areWholeEverywhereElse)
{
    StoreProgram(Path()).SaveTable(QStringLiteral("One"), Points, 1);
    const StoreProgram program(Path());
    const QByteArray whole = program.WholeText();
    EXPECT_TRUE(whole.contains("\"data\""));
    EXPECT_FALSE(whole.contains("\"sha256\""));
    // A table that was drawn once is in memory.
    ASSERT_TRUE(QDir(Tables()).removeRecursively());
    EXPECT_EQ(program.WholeText(), whole);
}

TEST_F(StoreTablesTest, ofAnOldStoreAreReadWithoutWriting)
{
    const QByteArray old = MakeOldStore();
    const StoreProgram program(Path());
    EXPECT_EQ(program.Names().size(), 2);
    EXPECT_TRUE(CubeOf(program, "Two"));
    EXPECT_EQ(Content(Path()), old);
    EXPECT_FALSE(QDir(Tables()).exists());
}

TEST_F(StoreTablesTest, ofAnOldStoreAreTakenOverAtTheFirstSave)
{
    const QByteArray old = MakeOldStore();
    const QByteArray whole = StoreProgram(Path()).WholeText();
    StoreProgram(Path()).SaveAs(QStringLiteral("New"));

    EXPECT_EQ(TableFiles().size(), 2);
    EXPECT_TRUE(Content(Path()).contains("\"version\": 2"));
    EXPECT_FALSE(Content(Path()).contains("\"data\""));
    EXPECT_EQ(Content(Path() + QStringLiteral(".version-1")), old);
    for (int i = 0; i < 8; ++i)
        StoreProgram(Path()).SaveAs(QStringLiteral("More %1").arg(i));
    EXPECT_EQ(Content(Path() + QStringLiteral(".version-1")), old);
    StoreProgram later(Path());
    later.Model().removeRows(2, 9, later.Model().GetUserGroup());
    EXPECT_EQ(later.WholeText(), whole);
}

TEST_F(StoreTablesTest, ofAnOldStoreThatNothingChangesStayInIt)
{
    const QByteArray old = MakeOldStore();
    StoreProgram(Path()).Save();
    EXPECT_EQ(Content(Path()), old);
    EXPECT_FALSE(QDir(Tables()).exists());
}

TEST_F(StoreTablesTest, ofAPresetThatTwoProgramsKnowAreTheSameInBothForms)
{
    MakeOldStore();
    StoreProgram one(Path());
    StoreProgram two(Path());
    one.SaveAs(QStringLiteral("New")); // takes the file over
    // The other still knows it by its old form.
    two.Model().removeRows(0, 1, two.Model().GetUserGroup());
    two.Save();
    const QStringList expected{QStringLiteral("Two"), QStringLiteral("New")};
    EXPECT_EQ(StoreProgram(Path()).Names(), expected);
}

TEST_F(StoreTablesTest, areRemovedWhenNeitherStoreNorBackupNamesThem)
{
    StoreProgram(Path()).SaveTable(QStringLiteral("One"), Points, 1);
    {
        StoreProgram program(Path());
        program.Model().removeRows(0, 1, program.Model().GetUserGroup());
        program.Save();
    }
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(TableFiles().size(), 1) << "a backup names it";
        StoreProgram(Path()).SaveAs(QStringLiteral("More %1").arg(i));
    }
    EXPECT_TRUE(TableFiles().isEmpty());
    EXPECT_FALSE(QDir(Tables()).exists());
}

TEST_F(StoreTablesTest, areKeptForAnUndoInTheProgramThatRemovedThem)
{
    StoreProgram(Path()).SaveTable(QStringLiteral("One"), Points, 1);
    StoreProgram program(Path());
    const auto removed = program.Find(QStringLiteral("One"));
    program.Model().removeRows(0, 1, program.Model().GetUserGroup());
    program.Save();
    for (int i = 0; i < 6; ++i)
        program.SaveAs(QStringLiteral("More %1").arg(i));
    program.Model().InsertPreset(0, program.Model().GetUserGroup(), removed);
    program.Save();
    EXPECT_TRUE(CubeOf(StoreProgram(Path()), "One"));
}

TEST_F(StoreTablesTest, areKeptWhileAnyFileBesideTheStoreNamesThemOrCannotTell)
{
    StoreProgram(Path()).SaveTable(QStringLiteral("One"), Points, 1);
    ASSERT_TRUE(QFile::copy(Path(), Path() + QStringLiteral(".unreadable-20261122-101010")));
    const auto removeAndSave = [this] {
        StoreProgram program(Path());
        if (program.Names().contains(QStringLiteral("One"))) {
            program.Model().removeRows(0, 1, program.Model().GetUserGroup());
            program.Save();
        }
        for (int i = 0; i < 6; ++i)
            StoreProgram(Path()).SaveAs(QStringLiteral("More"));
    };
    removeAndSave();
    EXPECT_EQ(TableFiles().size(), 1) << "the file set aside names it";
    ASSERT_TRUE(QFile::remove(Path() + QStringLiteral(".unreadable-20261122-101010")));
    // A backup that cannot be read may name anything.
    Write(Path() + QStringLiteral(".backup-3"), "{\"UserPresets\": {\"items\": [");
    StoreProgram(Path()).SaveAs(QStringLiteral("More"));
    EXPECT_EQ(TableFiles().size(), 1);
    removeAndSave();
    EXPECT_TRUE(TableFiles().isEmpty()) << "the damaged backup is gone by now";
}

TEST_F(StoreTablesTest, areLeftBehindByAStopBeforeTheStoreIsWrittenAndCollectedLater)
{
    StoreProgram(Path()).SaveTable(QStringLiteral("One"), Points, 1);
    const LumetraHost::ContentFolder orphans(Tables());
    orphans.Add("nobody names this");
    EXPECT_EQ(TableFiles().size(), 2);
    StoreProgram(Path()).SaveAs(QStringLiteral("More"));
    EXPECT_EQ(TableFiles().size(), 1);
}

/// Written into the text, the tables would exceed the size limit.
TEST_F(StoreTablesTest, ofManyPresetsAreSavedAndReadAgainAlsoFromAnOldStoreThatNobodyCouldRead)
{
    const QString elsewhere = m_folder.filePath(QStringLiteral("elsewhere.json"));
    StoreProgram many(elsewhere);
    for (int i = 0; i < 31; ++i)
        many.AddTable(QString::number(i), 65, i);
    many.Save();
    EXPECT_EQ(StoreProgram(elsewhere).Names().size(), 31);

    const QByteArray old = OldForm(many);
    ASSERT_GT(old.size(), LumetraHost::JsonDocument::MaxFileSize);
    Write(Path(), old);
    StoreProgram program(Path());
    ASSERT_EQ(program.Names().size(), 31);
    program.SaveAs(QStringLiteral("New"));
    EXPECT_LT(QFile(Path()).size(), 100'000);
    EXPECT_EQ(TableFiles().size(), 31);
    const StoreProgram later(Path());
    EXPECT_EQ(later.Names().size(), 32);
    EXPECT_EQ(CubeOf(later, "30")->values, CubeOf(many, "30")->values);
}

TEST_F(StoreTablesTest, thatAreNoneStayInTheTextAsTheyAre)
{
    const QByteArray odd = R"({"format": "lumetra-user-presets", "version": 1,
"UserPresets": {"items": [
 {"name": "Odd", "id": "odd", "effects": [{"effect": {"id": "lut3d", "cube": {"size": 2, "data": "AA=="}}}]},
 {"name": "Good", "id": "good"}]}})";
    Write(Path(), odd);
    StoreProgram(Path()).SaveAs(QStringLiteral("New"));
    EXPECT_TRUE(Content(Path()).contains("\"data\": \"AA==\""));
    const QStringList expected{QStringLiteral("Good"), QStringLiteral("New")};
    EXPECT_EQ(StoreProgram(Path()).Names(), expected);
}

} // namespace
} // namespace LumetraTest
