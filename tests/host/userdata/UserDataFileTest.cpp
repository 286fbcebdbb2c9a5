// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/UserDataFile.h"
#include "Zorvik/Exception.h"
#include "storage/JsonWriter.h"
#include "userdata/StoreLock.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <thread>

#include <sys/resource.h>
#include <sys/stat.h>

namespace LumetraHost {
namespace {

/// A form that no program of ours has; the file knows nothing else about the data.
const UserDataForm& Notes()
{
    static const UserDataForm form{
        "test-notes",
        2,
        "notes",
        QStringLiteral(".sheets"),
        [](const JsonObject& root) { return root.Find("Notes") != nullptr; },
        JsonDocument::MaxFileSize,
    };
    return form;
}

/// Keeps the system from writing a byte into any file of this process.
class NoFileContent
{
public:
    NoFileContent() : m_earlierHandler(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_earlier);
        const rlimit none{0, m_earlier.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &none);
    }
    ~NoFileContent()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_earlier);
        std::signal(SIGXFSZ, m_earlierHandler);
    }
    NoFileContent(const NoFileContent&) = delete;
    NoFileContent& operator=(const NoFileContent&) = delete;

private:
    rlimit m_earlier = {};
    void (*m_earlierHandler)(int);
};

class UserDataFileTest : public testing::Test
{
protected:
    QString Path() const { return m_folder.filePath(QStringLiteral("data/notes.json")); }

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

    /// The plain files of the folder.
    QMap<QString, QByteArray> Contents() const
    {
        QMap<QString, QByteArray> contents;
        for (const QString& name : Files())
            contents.insert(name, ReadFile(QFileInfo(Path()).dir().filePath(name)));
        return contents;
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
    UserDataFile file(Path(), Notes());
    EXPECT_TRUE(file.Read().GetObject()->GetMembers().empty());
    EXPECT_FALSE(QFile::exists(Path()));
    EXPECT_TRUE(file.GetReports().empty());
}

TEST_F(UserDataFileTest, makesItsFolderAndWritesFormatVersionAndABackup)
{
    UserDataFile(Path(), Notes()).Update(SetMember("a"));

    const auto document = UserDataFile(Path(), Notes()).Read();
    EXPECT_TRUE(Has(document, "a"));
    EXPECT_EQ(*document.GetObject()->Find("format")->As<std::string>(), Notes().format);
    EXPECT_EQ(document.GetObject()->Find("version")->As<JsonNumber>()->value, 2);
    EXPECT_EQ(ReadFile(Path() + QStringLiteral(".backup-1")), ReadFile(Path()));
}

TEST_F(UserDataFileTest, writesNothingWhenTheEditChangesNothing)
{
    UserDataFile(Path(), Notes()).Update([](JsonObject&) { return false; });
    EXPECT_FALSE(QFile::exists(Path()));
}

TEST_F(UserDataFileTest, leavesTheFileAsItWasWhenTheEditFails)
{
    UserDataFile(Path(), Notes()).Update(SetMember("a"));
    const QByteArray before = ReadFile(Path());
    EXPECT_THROW(UserDataFile(Path(), Notes()).Update([](JsonObject& object) -> bool {
        object.Set("b", JsonValue());
        throw std::runtime_error("edit");
    }),
                 std::runtime_error);
    EXPECT_EQ(ReadFile(Path()), before);
}

TEST_F(UserDataFileTest, seesWhatAnotherProgramWroteSince)
{
    UserDataFile mine(Path(), Notes());
    UserDataFile theirs(Path(), Notes());
    mine.Update(SetMember("mine"));
    theirs.Update(SetMember("theirs"));
    const auto document = mine.Update(SetMember("again"));
    EXPECT_TRUE(Has(document, "mine") && Has(document, "theirs") && Has(document, "again"));
}

TEST_F(UserDataFileTest, keepsTheNewestFiveBackups)
{
    UserDataFile file(Path(), Notes());
    for (int i = 0; i < 8; ++i)
        file.Update(SetMember("edit" + std::to_string(i)));

    EXPECT_EQ(Files().filter(QStringLiteral("backup")).size(), BackupRotation::Count);
    EXPECT_TRUE(ReadFile(Path() + QStringLiteral(".backup-1")).contains("edit7"));
    const QByteArray oldest = ReadFile(Path() + QStringLiteral(".backup-5"));
    EXPECT_TRUE(oldest.contains("edit3"));
    EXPECT_FALSE(oldest.contains("edit4"));
}

TEST_F(UserDataFileTest, setsADamagedFileAsideAndTakesTheNewestGoodBackup)
{
    UserDataFile(Path(), Notes()).Update(SetMember("a"));
    UserDataFile(Path(), Notes()).Update(SetMember("b"));
    const QByteArray good = ReadFile(Path());
    WriteFile(Path(), "{\"Notes\": ");
    WriteFile(Path() + QStringLiteral(".backup-1"), QByteArray());

    UserDataFile file(Path(), Notes());
    const auto document = file.Update(SetMember("c"));

    EXPECT_TRUE(Has(document, "a"));
    EXPECT_FALSE(Has(document, "b")) << "backup 1 is damaged too";
    const QStringList aside = Files().filter(QStringLiteral("unreadable"));
    ASSERT_EQ(aside.size(), 1);
    EXPECT_EQ(ReadFile(QFileInfo(Path()).dir().filePath(aside.first())), "{\"Notes\": ");
    ASSERT_EQ(file.GetReports().size(), 3u);
    const std::string& report = file.GetReports()[1];
    EXPECT_NE(report.find("notes.json:1:"), std::string::npos) << report;
    EXPECT_NE(report.find("backup-2"), std::string::npos) << report;
    EXPECT_NE(file.GetReports()[2].find(aside.first().toStdString()), std::string::npos);
    EXPECT_NE(ReadFile(Path()), good);
    UserDataFile later(Path(), Notes());
    const auto repaired = later.Read();
    EXPECT_TRUE(Has(repaired, "a") && Has(repaired, "c"));
    EXPECT_TRUE(later.GetReports().empty());
}

TEST_F(UserDataFileTest, readsADamagedFileFromItsBackupAndTouchesNothing)
{
    UserDataFile(Path(), Notes()).Update(SetMember("a"));
    for (const QByteArray& damaged : {QByteArray("{\"Notes\": "), QByteArray()}) {
        WriteFile(Path(), damaged);
        const QMap<QString, QByteArray> before = Contents();
        UserDataFile file(Path(), Notes());
        EXPECT_TRUE(Has(file.Read(), "a"));
        EXPECT_EQ(file.GetReports().size(), 1u);
        EXPECT_EQ(Contents(), before);
    }
}

/// Files of other forms, none of which may lose a byte.
TEST_F(UserDataFileTest, refusesFilesThatAreNotItsOwnAndLeavesThemAlone)
{
    for (const QByteArray& foreign :
         {QByteArray("\xff\xd8\xff\xe0\0\x10JFIF", 10), QByteArray("no json"), QByteArray("\n"),
          QByteArray("[1, 2]"), QByteArray(R"({"format": "lumetra-catalogue", "version": 1})"),
          QByteArray(R"({"format": "lumetra-catalogue", "items": [{"name": "A"}]})"),
          QByteArray(R"({"format": 7, "Notes": {"items": []}})"),
          QByteArray(R"({"items": [{"name": "A"}]})"), QByteArray(R"({"window": "wide"})"),
          QByteArray(R"({"Notes": {"items": [)")}) {
        SCOPED_TRACE(foreign.constData());
        WriteFile(Path(), foreign);
        UserDataFile file(Path(), Notes());
        for (const bool isWriting : {false, true})
            try {
                isWriting ? file.Update(SetMember("a")) : file.Read();
                ADD_FAILURE() << "expected an exception";
            } catch (const Zorvik::Exception& error) {
                const std::string text = error.what();
                EXPECT_NE(text.find("notes.json"), std::string::npos) << text;
                EXPECT_NE(text.find("expected a file of your own notes"), std::string::npos)
                    << text;
            }
        EXPECT_EQ(ReadFile(Path()), foreign);
        EXPECT_EQ(Files(), QStringList(QStringLiteral("notes.json")));
    }
}

TEST_F(UserDataFileTest, refusesWhatIsNoPlainFile)
{
    QDir().mkpath(QFileInfo(Path()).absolutePath());
    ASSERT_EQ(::mkfifo(QFile::encodeName(Path()).constData(), 0600), 0);
    EXPECT_THROW(UserDataFile(Path(), Notes()).Read(), Zorvik::Exception);
    EXPECT_THROW(UserDataFile(Path(), Notes()).Update(SetMember("a")), Zorvik::Exception);
    EXPECT_THROW(UserDataFile(QStringLiteral("/dev/null"), Notes()).Read(), Zorvik::Exception);
    EXPECT_THROW(UserDataFile(QString(), Notes()).Read(), Zorvik::Exception);
    EXPECT_THROW(UserDataFile(QString(), Notes()).Update(SetMember("a")), Zorvik::Exception);
    struct stat status;
    ASSERT_EQ(::stat(QFile::encodeName(Path()).constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

TEST_F(UserDataFileTest, refusesALinkToNothingAndMakesNoTarget)
{
    QDir().mkpath(QFileInfo(Path()).absolutePath());
    const QString target = m_folder.filePath(QStringLiteral("disk/notes.json"));
    ASSERT_TRUE(QFile::link(target, Path()));
    EXPECT_THROW(UserDataFile(Path(), Notes()).Read(), Zorvik::Exception);
    EXPECT_THROW(UserDataFile(Path(), Notes()).Update(SetMember("a")), Zorvik::Exception);
    EXPECT_FALSE(QFileInfo(target).dir().exists());
}

TEST_F(UserDataFileTest, keepsBackupsBesideTheFileThatALinkLeadsTo)
{
    UserDataFile(Path(), Notes()).Update(SetMember("a"));
    const QString link = m_folder.filePath(QStringLiteral("link.json"));
    ASSERT_TRUE(QFile::link(Path(), link));
    UserDataFile(link, Notes()).Update(SetMember("b"));
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_TRUE(Has(UserDataFile(Path(), Notes()).Read(), "b"));
    EXPECT_EQ(Files().filter(QStringLiteral("backup")).size(), 2);
}

TEST_F(UserDataFileTest, startsEmptyInAFileOfNoBytes)
{
    WriteFile(Path(), QByteArray());
    UserDataFile file(Path(), Notes());
    EXPECT_TRUE(file.Read().GetObject()->GetMembers().empty());
    EXPECT_EQ(QFileInfo(Path()).size(), 0);
    file.Update(SetMember("a"));
    EXPECT_TRUE(Has(UserDataFile(Path(), Notes()).Read(), "a"));
    EXPECT_TRUE(file.GetReports().empty());
    EXPECT_TRUE(Files().filter(QStringLiteral("unreadable")).isEmpty());
}

TEST_F(UserDataFileTest, savesAndReportsWhenOnlyTheBackupFails)
{
    UserDataFile(Path(), Notes()).Update(SetMember("a"));
    const QString backup = Path() + QStringLiteral(".backup-%1");
    for (int i = 1; i <= BackupRotation::Count; ++i) {
        QFile::remove(backup.arg(i));
        ASSERT_TRUE(QDir().mkpath(backup.arg(i) + QStringLiteral("/full")));
    }
    UserDataFile file(Path(), Notes());
    EXPECT_TRUE(Has(file.Update(SetMember("b")), "b"));
    EXPECT_TRUE(Has(UserDataFile(Path(), Notes()).Read(), "b"));
    ASSERT_EQ(file.GetReports().size(), 1u);
    EXPECT_NE(file.GetReports()[0].find("the notes were saved, but not a backup of them"),
              std::string::npos)
        << file.GetReports()[0];
    EXPECT_NE(file.GetReports()[0].find("backup-"), std::string::npos);
}

TEST_F(UserDataFileTest, saysWhyItsLockCannotBeMade)
{
    UserDataFile(Path(), Notes()).Update(SetMember("a"));
    const QByteArray before = ReadFile(Path());
    ASSERT_TRUE(QDir().mkpath(Path() + QStringLiteral(".lock")));
    try {
        UserDataFile(Path(), Notes()).Update(SetMember("b"));
        ADD_FAILURE() << "expected an exception";
    } catch (const Zorvik::Exception& error) {
        const std::string expected =
            Path().toStdString() + ": cannot be locked for writing: making its lock file \"" +
            Path().toStdString() + ".lock\" failed: a folder has that name";
        EXPECT_EQ(error.GetDescription(), expected);
    }
    EXPECT_EQ(ReadFile(Path()), before);
}

/// /proc is a folder in which nobody can make a file.
TEST_F(UserDataFileTest, tellsTheSystemsReasonAgainstALock)
{
    try {
        StoreLock lock(QStringLiteral("/proc/notes.json"));
        ADD_FAILURE() << "expected an exception";
    } catch (const Zorvik::Exception& error) {
        EXPECT_EQ(error.GetDescription(),
                  "/proc/notes.json: cannot be locked for writing: making its lock file "
                  "\"/proc/notes.json.lock\" failed: No such file or directory");
    }
}

/// In this folder files can be made, but nothing written into them, as on a full disk.
TEST_F(UserDataFileTest, tellsWhyALockFileCannotBeWritten)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(Path()).path()));
    const NoFileContent full;
    std::string message;
    try {
        StoreLock lock(Path());
    } catch (const Zorvik::Exception& error) {
        message = error.GetDescription();
    }
    EXPECT_EQ(message, Path().toStdString() +
                           ": cannot be locked for writing: making its lock file \"" +
                           Path().toStdString() + ".lock\" failed: File too large");
    EXPECT_FALSE(QFileInfo::exists(Path() + QStringLiteral(".lock")));
}

TEST_F(UserDataFileTest, takesAnOlderBackupWhenTheNewestCannotBeReadAtAll)
{
    UserDataFile(Path(), Notes()).Update(SetMember("a"));
    UserDataFile(Path(), Notes()).Update(SetMember("b"));
    WriteFile(Path(), "no json");
    ASSERT_TRUE(QFile::remove(Path() + QStringLiteral(".backup-1")));
    ASSERT_TRUE(QDir().mkdir(Path() + QStringLiteral(".backup-1")));

    UserDataFile file(Path(), Notes());
    const auto document = file.Read();

    EXPECT_TRUE(Has(document, "a"));
    EXPECT_FALSE(Has(document, "b"));
    ASSERT_EQ(file.GetReports().size(), 2u);
    const std::string& refused = file.GetReports().front();
    EXPECT_NE(refused.find("backup-1: expected a file, found a folder"), std::string::npos)
        << refused;
}

TEST_F(UserDataFileTest, takesAMissingFileFromItsBackup)
{
    UserDataFile(Path(), Notes()).Update(SetMember("a"));
    ASSERT_TRUE(QFile::remove(Path()));
    UserDataFile file(Path(), Notes());
    EXPECT_TRUE(Has(file.Read(), "a"));
    EXPECT_EQ(file.GetReports().size(), 1u);
    EXPECT_FALSE(QFile::exists(Path())) << "reading writes nothing";
    file.Update(SetMember("b"));
    const auto document = UserDataFile(Path(), Notes()).Read();
    EXPECT_TRUE(Has(document, "a") && Has(document, "b"));
}

TEST_F(UserDataFileTest, readsButDoesNotWriteANewerMajorVersion)
{
    const QByteArray newer = R"({"format": "test-notes", "version": 3, "a": 1})";
    WriteFile(Path(), newer);
    UserDataFile file(Path(), Notes());
    EXPECT_TRUE(Has(file.Read(), "a"));
    EXPECT_THROW(file.Update(SetMember("b")), Zorvik::Exception);
    EXPECT_EQ(ReadFile(Path()), newer);
}

TEST_F(UserDataFileTest, keepsTheVersionOfANewerMinorOne)
{
    WriteFile(Path(), R"({"format": "test-notes", "version": 2.7, "future": {"x": []}})");
    const auto document = UserDataFile(Path(), Notes()).Update(SetMember("a"));
    EXPECT_EQ(document.GetObject()->Find("version")->As<JsonNumber>()->text, "2.7");
    EXPECT_TRUE(Has(document, "future"));
}

TEST_F(UserDataFileTest, leavesAFolderInItsPlaceAlone)
{
    QDir().mkpath(Path());
    UserDataFile file(Path(), Notes());
    EXPECT_THROW(file.Read(), Zorvik::Exception);
    EXPECT_TRUE(QFileInfo(Path()).isDir());
}

TEST_F(UserDataFileTest, removesTemporaryFilesOfKilledWritersAfterTenMinutes)
{
    UserDataFile(Path(), Notes()).Update(SetMember("a"));
    const QString old = Path() + QStringLiteral(".aB3xYz");
    const QString young = Path() + QStringLiteral(".cD4xYz");
    WriteFile(old, "x");
    WriteFile(young, "x");
    QFile file(old);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(-700),
                                 QFileDevice::FileModificationTime));
    file.close();

    UserDataFile(Path(), Notes()).Update(SetMember("b"));
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

TEST_F(UserDataFileTest, writesNothingThatItCouldNotReadAgain)
{
    UserDataFile(Path(), Notes()).Update(SetMember("a"));
    const QMap<QString, QByteArray> before = Contents();
    const auto setTooMuch = [](JsonObject& object) {
        object.Set("b", JsonValue(JsonValue::Content(std::string(JsonDocument::MaxFileSize, 'x'))));
        return true;
    };
    try {
        UserDataFile(Path(), Notes()).Update(setTooMuch, {{ContentFolder::NameOf("abc"), "abc"}});
        ADD_FAILURE() << "expected an exception";
    } catch (const Zorvik::Exception& error) {
        const std::string text = error.GetDescription();
        EXPECT_NE(text.find("notes.json: expected at most 64 MB"), std::string::npos) << text;
        EXPECT_NE(text.find("nothing was written"), std::string::npos) << text;
    }
    EXPECT_EQ(Contents(), before);
}

TEST_F(UserDataFileTest, takesAFileOfTheFirstVersionOverAndKeepsACopyForGood)
{
    const QByteArray old = R"({"format": "test-notes", "version": 1.7, "future": {}})";
    WriteFile(Path(), old);
    EXPECT_TRUE(Has(UserDataFile(Path(), Notes()).Read(), "future"));
    EXPECT_EQ(ReadFile(Path()), old);
    for (int i = 0; i < 7; ++i)
        UserDataFile(Path(), Notes()).Update(SetMember("a" + std::to_string(i)));
    const auto document = UserDataFile(Path(), Notes()).Read();
    EXPECT_EQ(document.GetObject()->Find("version")->As<JsonNumber>()->value, 2);
    EXPECT_TRUE(Has(document, "future"));
    EXPECT_EQ(ReadFile(Path() + QStringLiteral(".version-1")), old);
    EXPECT_EQ(Files().filter(QStringLiteral("version-1")).size(), 1);
}

TEST_F(UserDataFileTest, writesTheContentsThatItsTextNames)
{
    const std::string name = ContentFolder::NameOf("abc");
    UserDataFile file(Path(), Notes());
    file.Update(
        [&name](JsonObject& object) {
            object.Set("table", JsonValue(JsonValue::Content(name)));
            return true;
        },
        {{name, "abc"}, {ContentFolder::NameOf("unused"), "unused"}});
    EXPECT_EQ(file.GetContents()->FindAll(), std::set<std::string>{name});
}

TEST_F(UserDataFileTest, leavesTheFileAsItWasWhenContentsCannotBeWritten)
{
    UserDataFile(Path(), Notes()).Update(SetMember("a"));
    const QMap<QString, QByteArray> before = Contents();
    WriteFile(Path() + QStringLiteral(".sheets"), "no folder");
    const std::string name = ContentFolder::NameOf("abc");
    const auto setName = [&name](JsonObject& object) {
        object.Set("table", JsonValue(JsonValue::Content(name)));
        return true;
    };
    EXPECT_THROW(UserDataFile(Path(), Notes()).Update(setName, {{name, "abc"}}), Zorvik::Exception);
    ASSERT_TRUE(QFile::remove(Path() + QStringLiteral(".sheets")));
    EXPECT_EQ(Contents(), before);
}

TEST_F(UserDataFileTest, losesNoEditOfManyWritersAtOnce)
{
    constexpr int Writers = 4;
    constexpr int Edits = 25;
    std::vector<std::thread> threads;
    for (int w = 0; w < Writers; ++w)
        threads.emplace_back([this, w] {
            for (int i = 0; i < Edits; ++i)
                UserDataFile(Path(), Notes())
                    .Update(SetMember("w" + std::to_string(w) + "-" + std::to_string(i)));
        });
    for (std::thread& thread : threads)
        thread.join();
    const auto members = UserDataFile(Path(), Notes()).Read().GetObject()->GetMembers().size();
    EXPECT_EQ(members, Writers * Edits + 2u);
}

} // namespace
} // namespace LumetraHost
