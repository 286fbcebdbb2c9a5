// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/UserDataFile.h"
#include "Zorvik/Exception.h"
#include "storage/JsonWriter.h"
#include "userdata/StoreLock.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <thread>

namespace LumetraHost {
namespace {

class UserDataFileTest : public testing::Test
{
protected:
    QString Path() const { return m_folder.filePath(QStringLiteral("data/presets.json")); }

    static void WriteFile(const QString& name, const QByteArray& content)
    {
        QDir().mkpath(QFileInfo(name).absolutePath());
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    static QByteArray ReadFile(const QString& name)
    {
        QFile file(name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
        return file.readAll();
    }

    QStringList Files() const { return QFileInfo(Path()).dir().entryList(QDir::Files, QDir::Name); }

    static std::function<bool(JsonObject&)> SetMember(const std::string& key)
    {
        return [key](JsonObject& object) {
            object.Set(key, JsonValue(JsonValue::Content(true)));
            return true;
        };
    }

    static bool Has(const JsonDocument& document, const char* key)
    {
        return document.GetObject()->Find(key) != nullptr;
    }

    QTemporaryDir m_folder;
};

TEST_F(UserDataFileTest, readsAnEmptyDocumentWithoutAFileAndMakesNone)
{
    UserDataFile file(Path());
    EXPECT_TRUE(file.Read().GetObject()->GetMembers().empty());
    EXPECT_FALSE(QFile::exists(Path()));
    EXPECT_TRUE(file.GetReports().empty());
}

TEST_F(UserDataFileTest, makesItsFolderAndWritesFormatVersionAndABackup)
{
    UserDataFile(Path()).Update(SetMember("a"));

    const auto document = UserDataFile(Path()).Read();
    EXPECT_TRUE(Has(document, "a"));
    EXPECT_EQ(*document.GetObject()->Find("format")->As<std::string>(), UserDataFile::FORMAT);
    EXPECT_EQ(document.GetObject()->Find("version")->As<JsonNumber>()->value, 1);
    EXPECT_EQ(ReadFile(Path() + QStringLiteral(".backup-1")), ReadFile(Path()));
}

TEST_F(UserDataFileTest, writesNothingWhenTheEditChangesNothing)
{
    UserDataFile(Path()).Update([](JsonObject&) { return false; });
    EXPECT_FALSE(QFile::exists(Path()));
}

TEST_F(UserDataFileTest, leavesTheFileAsItWasWhenTheEditFails)
{
    UserDataFile(Path()).Update(SetMember("a"));
    const QByteArray before = ReadFile(Path());
    EXPECT_THROW(UserDataFile(Path()).Update([](JsonObject& object) -> bool {
        object.Set("b", JsonValue());
        throw std::runtime_error("edit");
    }),
                 std::runtime_error);
    EXPECT_EQ(ReadFile(Path()), before);
}

TEST_F(UserDataFileTest, seesWhatAnotherProgramWroteSince)
{
    UserDataFile mine(Path());
    UserDataFile theirs(Path());
    mine.Update(SetMember("mine"));
    theirs.Update(SetMember("theirs"));
    const auto document = mine.Update(SetMember("again"));
    EXPECT_TRUE(Has(document, "mine") && Has(document, "theirs") && Has(document, "again"));
}

TEST_F(UserDataFileTest, keepsTheNewestFiveBackups)
{
    UserDataFile file(Path());
    for (int i = 0; i < 8; ++i)
        file.Update(SetMember("edit" + std::to_string(i)));

    EXPECT_EQ(Files().filter(QStringLiteral("backup")).size(), BackupRotation::COUNT);
    EXPECT_TRUE(ReadFile(Path() + QStringLiteral(".backup-1")).contains("edit7"));
    const QByteArray oldest = ReadFile(Path() + QStringLiteral(".backup-5"));
    EXPECT_TRUE(oldest.contains("edit3"));
    EXPECT_FALSE(oldest.contains("edit4"));
}

TEST_F(UserDataFileTest, setsADamagedFileAsideAndTakesTheNewestGoodBackup)
{
    UserDataFile(Path()).Update(SetMember("a"));
    UserDataFile(Path()).Update(SetMember("b"));
    const QByteArray good = ReadFile(Path());
    WriteFile(Path(), "{\"UserPresets\": ");
    WriteFile(Path() + QStringLiteral(".backup-1"), QByteArray());

    UserDataFile file(Path());
    const auto document = file.Read();

    EXPECT_TRUE(Has(document, "a"));
    EXPECT_FALSE(Has(document, "b")) << "backup 1 is damaged too";
    const QStringList aside = Files().filter(QStringLiteral("unreadable"));
    ASSERT_EQ(aside.size(), 1);
    EXPECT_EQ(ReadFile(QFileInfo(Path()).dir().filePath(aside.first())), "{\"UserPresets\": ");
    ASSERT_EQ(file.GetReports().size(), 2u);
    const std::string& report = file.GetReports().back();
    EXPECT_NE(report.find("presets.json:1:"), std::string::npos) << report;
    EXPECT_NE(report.find("backup-2"), std::string::npos) << report;
    EXPECT_NE(ReadFile(Path()), good);
    EXPECT_TRUE(Has(UserDataFile(Path()).Read(), "a"));
}

TEST_F(UserDataFileTest, takesAnOlderBackupWhenTheNewestCannotBeReadAtAll)
{
    UserDataFile(Path()).Update(SetMember("a"));
    UserDataFile(Path()).Update(SetMember("b"));
    WriteFile(Path(), "no json");
    ASSERT_TRUE(QFile::remove(Path() + QStringLiteral(".backup-1")));
    ASSERT_TRUE(QDir().mkdir(Path() + QStringLiteral(".backup-1")));

    UserDataFile file(Path());
    const auto document = file.Read();

    EXPECT_TRUE(Has(document, "a"));
    EXPECT_FALSE(Has(document, "b"));
    ASSERT_EQ(file.GetReports().size(), 2u);
    const std::string& refused = file.GetReports().front();
    EXPECT_NE(refused.find("backup-1: expected a file, found a folder"), std::string::npos)
        << refused;
}

TEST_F(UserDataFileTest, startsEmptyButKeepsADamagedFileWithoutBackups)
{
    WriteFile(Path(), "no json");
    UserDataFile file(Path());
    EXPECT_FALSE(Has(file.Read(), "UserPresets"));
    EXPECT_EQ(Files().filter(QStringLiteral("unreadable")).size(), 1);
    EXPECT_EQ(file.GetReports().size(), 1u);
}

TEST_F(UserDataFileTest, takesAMissingFileFromItsBackup)
{
    UserDataFile(Path()).Update(SetMember("a"));
    ASSERT_TRUE(QFile::remove(Path()));
    UserDataFile file(Path());
    EXPECT_TRUE(Has(file.Read(), "a"));
    EXPECT_EQ(file.GetReports().size(), 1u);
    EXPECT_TRUE(QFile::exists(Path()));
}

TEST_F(UserDataFileTest, refusesAFileOfAnotherFormatWithoutLosingIt)
{
    WriteFile(Path(), R"({"format": "lumetra-catalogue"})");
    UserDataFile file(Path());
    file.Update(SetMember("a"));
    ASSERT_EQ(file.GetReports().size(), 1u);
    EXPECT_NE(file.GetReports()[0].find("lumetra-user-presets"), std::string::npos);
    EXPECT_EQ(Files().filter(QStringLiteral("unreadable")).size(), 1);
}

TEST_F(UserDataFileTest, readsButDoesNotWriteANewerMajorVersion)
{
    const QByteArray newer = R"({"format": "lumetra-user-presets", "version": 2, "a": 1})";
    WriteFile(Path(), newer);
    UserDataFile file(Path());
    EXPECT_TRUE(Has(file.Read(), "a"));
    EXPECT_TRUE(file.IsReadOnly());
    EXPECT_THROW(file.Update(SetMember("b")), Zorvik::Exception);
    EXPECT_EQ(ReadFile(Path()), newer);
}

TEST_F(UserDataFileTest, keepsTheVersionOfANewerMinorOne)
{
    WriteFile(Path(), R"({"format": "lumetra-user-presets", "version": 1.7, "future": {"x": []}})");
    const auto document = UserDataFile(Path()).Update(SetMember("a"));
    EXPECT_EQ(document.GetObject()->Find("version")->As<JsonNumber>()->text, "1.7");
    EXPECT_TRUE(Has(document, "future"));
}

TEST_F(UserDataFileTest, leavesAFolderInItsPlaceAlone)
{
    QDir().mkpath(Path());
    UserDataFile file(Path());
    EXPECT_THROW(file.Read(), Zorvik::Exception);
    EXPECT_TRUE(QFileInfo(Path()).isDir());
}

TEST_F(UserDataFileTest, removesTemporaryFilesOfKilledWritersAfterTenMinutes)
{
    UserDataFile(Path()).Update(SetMember("a"));
    const QString old = Path() + QStringLiteral(".aB3xYz");
    const QString young = Path() + QStringLiteral(".cD4xYz");
    WriteFile(old, "x");
    WriteFile(young, "x");
    QFile file(old);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(-700),
                                 QFileDevice::FileModificationTime));
    file.close();

    UserDataFile(Path()).Update(SetMember("b"));
    EXPECT_FALSE(QFile::exists(old));
    EXPECT_TRUE(QFile::exists(young));
}

TEST_F(UserDataFileTest, takesOverALockThatAKilledProgramLeftBehind)
{
    QDir().mkpath(QFileInfo(Path()).absolutePath());
    const QString lock = Path() + QStringLiteral(".lock");
    for (const QByteArray& content :
         {QByteArray(), QByteArray("999999999\nlumetra\nanother-machine\n\n\n")}) {
        WriteFile(lock, content);
        QFile file(lock);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(-5),
                                     QFileDevice::FileModificationTime));
        file.close();
        EXPECT_NO_THROW(StoreLock{Path()});
    }
}

TEST_F(UserDataFileTest, losesNoEditOfManyWritersAtOnce)
{
    constexpr int Writers = 4;
    constexpr int Edits = 25;
    std::vector<std::thread> threads;
    for (int w = 0; w < Writers; ++w)
        threads.emplace_back([this, w] {
            for (int i = 0; i < Edits; ++i)
                UserDataFile(Path()).Update(
                    SetMember("w" + std::to_string(w) + "-" + std::to_string(i)));
        });
    for (std::thread& thread : threads)
        thread.join();
    const auto members = UserDataFile(Path()).Read().GetObject()->GetMembers().size();
    EXPECT_EQ(members, Writers * Edits + 2u);
}

} // namespace
} // namespace LumetraHost
