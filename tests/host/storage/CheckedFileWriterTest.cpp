// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/CheckedFileWriter.h"

#include "Zorvik/Exception.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <cerrno>
#include <csignal>
#include <string>

#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace LumetraHost;
using testing::HasSubstr;

namespace {

QByteArray Read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be opened");
}

std::string ErrorOfWriting(const QString& path, const QByteArray& content)
{
    try {
        CheckedFileWriter::Write(path, content);
    } catch (const Zorvik::Exception& error) {
        return error.what();
    }
    return "no error";
}

QStringList Entries(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                  QDir::NoDotAndDotDot);
}

/// Keeps files from growing above `size` bytes while it lives: the nearest thing to a full disk
/// that needs no rights.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t size) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{size, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int);
};

/// A separate file system, where the machine allows one.
class SmallDisk
{
public:
    explicit SmallDisk(const QString& folder) : m_folder(QFile::encodeName(folder))
    {
        m_mounted = mount("tmpfs", m_folder.constData(), "tmpfs", 0, "size=64k") == 0;
    }
    ~SmallDisk()
    {
        if (m_mounted)
            umount(m_folder.constData());
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool IsMounted() const { return m_mounted; }
    bool MakeReadOnly() const
    {
        return mount("tmpfs", m_folder.constData(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) == 0;
    }

private:
    QByteArray m_folder;
    bool m_mounted = false;
};

struct CheckedFileWriterTest : testing::Test
{
    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("presets.json"));
};

} // namespace

TEST_F(CheckedFileWriterTest, createsFileWithTheWholeContent)
{
    const QByteArray content(300'000, 'x');

    CheckedFileWriter::Write(path, content);

    EXPECT_EQ(Read(path), content);
    EXPECT_EQ(Entries(folder.path()), QStringList{QStringLiteral("presets.json")});
}

TEST_F(CheckedFileWriterTest, replacesLongerFile)
{
    CheckedFileWriter::Write(path, QByteArray(5000, 'o'));

    CheckedFileWriter::Write(path, "new");

    EXPECT_EQ(Read(path), "new");
}

TEST_F(CheckedFileWriterTest, writesEmptyFileAndBytesOfAnyValue)
{
    CheckedFileWriter::Write(path, QByteArray());
    EXPECT_EQ(Read(path), QByteArray());

    const unsigned char bytes[] = {0, 255, '\n', '\r', 0};
    CheckedFileWriter::Write(path, bytes, sizeof bytes);
    EXPECT_EQ(Read(path), QByteArray(reinterpret_cast<const char*>(bytes), sizeof bytes));
}

TEST_F(CheckedFileWriterTest, keepsThePermissionsOfAnExistingFile)
{
    CheckedFileWriter::Write(path, "old");
    const auto permissions = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
    ASSERT_TRUE(QFile::setPermissions(path, permissions));

    CheckedFileWriter::Write(path, "new");

    struct stat status;
    ASSERT_EQ(stat(QFile::encodeName(path).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
}

TEST_F(CheckedFileWriterTest, limitOfFileSizeLeavesOldFileAlone)
{
    CheckedFileWriter::Write(path, "old");

    std::string error;
    {
        const FileSizeLimit limit(10'000);
        error = ErrorOfWriting(path, QByteArray(20'000, 'n'));
    }

    EXPECT_THAT(error, HasSubstr(path.toStdString()));
    EXPECT_THAT(error, HasSubstr("writing 20000 bytes"));
    EXPECT_THAT(error, HasSubstr("File too large"));
    EXPECT_EQ(Read(path), "old");
    EXPECT_EQ(Entries(folder.path()).size(), 1);
}

TEST_F(CheckedFileWriterTest, fullDiskLeavesOldFileAlone)
{
    const SmallDisk disk(folder.path());
    if (!disk.IsMounted())
        GTEST_SKIP() << "needs the right to mount a file system";
    CheckedFileWriter::Write(path, QByteArray(1000, 'o'));

    const std::string error = ErrorOfWriting(path, QByteArray(200'000, 'n'));

    EXPECT_THAT(error, HasSubstr(path.toStdString()));
    EXPECT_THAT(error, HasSubstr("No space left on device"));
    EXPECT_EQ(Read(path), QByteArray(1000, 'o'));
    EXPECT_EQ(Entries(folder.path()).size(), 1);
}

TEST_F(CheckedFileWriterTest, readOnlyDiskIsAnErrorWithTheSystemsReason)
{
    const SmallDisk disk(folder.path());
    if (!disk.IsMounted())
        GTEST_SKIP() << "needs the right to mount a file system";
    CheckedFileWriter::Write(path, "old");
    ASSERT_TRUE(disk.MakeReadOnly());

    EXPECT_THAT(ErrorOfWriting(path, "new"), HasSubstr("Read-only file system"));
    EXPECT_THAT(ErrorOfWriting(folder.filePath(QStringLiteral("other.json")), "new"),
                HasSubstr("Read-only file system"));
    EXPECT_EQ(Read(path), "old");
}

TEST_F(CheckedFileWriterTest, forbiddenFolderIsAnErrorWithTheSystemsReason)
{
    CheckedFileWriter::Write(path, "old");
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()).constData(), 0555), 0);
    const uid_t user = geteuid();
    if (user == 0) {
        constexpr uid_t nobody = 65534; // root may write everywhere
        ASSERT_EQ(seteuid(nobody), 0);
    }

    const std::string error = ErrorOfWriting(path, "new");

    ASSERT_EQ(seteuid(user), 0);
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
    EXPECT_THAT(error, HasSubstr(path.toStdString()));
    EXPECT_THAT(error, HasSubstr("Permission denied"));
    EXPECT_EQ(Read(path), "old");
}

TEST_F(CheckedFileWriterTest, folderInPlaceOfTheFileIsAnError)
{
    ASSERT_TRUE(QDir().mkdir(path));

    EXPECT_THAT(ErrorOfWriting(path, "new"), HasSubstr("expected a file, found a folder"));
    EXPECT_TRUE(QFileInfo(path).isDir());
}

TEST_F(CheckedFileWriterTest, missingFolderAndFileInPlaceOfTheFolderAreErrors)
{
    CheckedFileWriter::Write(path, "old");

    EXPECT_THAT(ErrorOfWriting(folder.filePath(QStringLiteral("no/such/file")), "new"),
                HasSubstr("expected an existing folder " +
                          folder.filePath(QStringLiteral("no/such")).toStdString()));
    EXPECT_THAT(ErrorOfWriting(path + QStringLiteral("/file"), "new"),
                HasSubstr("expected an existing folder " + path.toStdString()));
    EXPECT_THAT(ErrorOfWriting(QString(), "new"), HasSubstr("expected a file name"));
}

TEST_F(CheckedFileWriterTest, devicesAndPipesAreRefusedAndStayWhatTheyAre)
{
    ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0);

    EXPECT_THAT(ErrorOfWriting(path, "new"), HasSubstr("found a device or a pipe"));
    EXPECT_THAT(ErrorOfWriting(QStringLiteral("/dev/full"), "new"),
                HasSubstr("found a device or a pipe"));

    struct stat status;
    ASSERT_EQ(stat(QFile::encodeName(path).constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

TEST_F(CheckedFileWriterTest, symbolicLinkStaysAndItsTargetIsReplaced)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("real")));
    const QString target = folder.filePath(QStringLiteral("real/store.json"));
    CheckedFileWriter::Write(target, "old");
    ASSERT_EQ(symlink("real/store.json", QFile::encodeName(path).constData()), 0);

    CheckedFileWriter::Write(path, "new");

    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_EQ(Read(target), "new");
    EXPECT_EQ(Entries(folder.filePath(QStringLiteral("real"))).size(), 1);
}

TEST_F(CheckedFileWriterTest, danglingSymbolicLinkGetsItsTarget)
{
    ASSERT_EQ(symlink("later.json", QFile::encodeName(path).constData()), 0);

    CheckedFileWriter::Write(path, "new");

    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_EQ(Read(folder.filePath(QStringLiteral("later.json"))), "new");
}

TEST_F(CheckedFileWriterTest, writesNamesThatAreNotAscii)
{
    const QString named = folder.filePath(QString::fromUtf8("Größe 写真.json"));

    CheckedFileWriter::Write(named, "new");

    EXPECT_EQ(Read(named), "new");
}

TEST(CheckedFileWriter, makesAFolderWithAllThatItIsIn)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a/b/c"));

    CheckedFileWriter::MakeFolder(path);
    CheckedFileWriter::MakeFolder(path); // it is there

    EXPECT_TRUE(QFileInfo(path).isDir());
}

TEST(CheckedFileWriter, namesTheFolderThatCannotBeMade)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("file"));
    CheckedFileWriter::Write(file, "content");
    for (const QString& path : {file, file + QStringLiteral("/below")})
        try {
            CheckedFileWriter::MakeFolder(path);
            ADD_FAILURE() << "expected an exception";
        } catch (const Zorvik::Exception& error) {
            EXPECT_EQ(error.GetDescription(),
                      path.toStdString() + ": expected to make this folder");
        }
    EXPECT_EQ(Read(file), "content");
}
