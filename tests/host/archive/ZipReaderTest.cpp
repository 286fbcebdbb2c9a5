// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/archive/ArchiveMaker.h"

#include "archive/ZipReader.h"

#include "Zorvik/Exception.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <sys/stat.h>

using LumetraHost::ZipEntry;
using LumetraHost::ZipReader;
using LumetraTest::ArchiveEntry;
using LumetraTest::ArchiveMaker;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

class ZipReaderTest : public testing::Test
{
protected:
    QString Write(const QByteArray& content) const
    {
        QFile file(folder.filePath(QStringLiteral("pack.zip")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(content), content.size());
        return file.fileName();
    }
    QString Write(const std::vector<ArchiveEntry>& entries) const
    {
        return Write(ArchiveMaker::Make(entries));
    }

    /// The text of the exception with which a file is refused, without its path.
    static std::string Refusal(const QString& path)
    {
        try {
            ZipReader reader(path);
        } catch (const Zorvik::Exception& error) {
            EXPECT_THAT(error.GetDescription(), StartsWith(path.toStdString() + ": "));
            return error.GetDescription().substr(path.toStdString().size() + 2);
        }
        return "read";
    }

    /// The text with which the only entry is refused, without the archive's path.
    std::string EntryRefusal(const ArchiveEntry& entry) const
    {
        const QString path = Write({entry});
        ZipReader reader(path);
        if (reader.GetEntries().size() != 1)
            return "not listed";
        try {
            reader.Read(reader.GetEntries().front());
        } catch (const Zorvik::Exception& error) {
            return error.GetDescription().substr(path.toStdString().size() + 2);
        }
        return "read";
    }

    QTemporaryDir folder;
};

ArchiveEntry File(const QByteArray& name, const QByteArray& content = "content")
{
    ArchiveEntry entry;
    entry.name = name;
    entry.content = content;
    return entry;
}

} // namespace

TEST_F(ZipReaderTest, listsFilesInTheirOrderAndUnpacksThem)
{
    ArchiveEntry packed = File("b/two.cube", QByteArray(100'000, 'x'));
    packed.isCompressed = true;
    ArchiveEntry folderEntry = File("b/", {});
    folderEntry.unixMode = 040755;

    ZipReader reader(Write({File("one.txt", "first"), folderEntry, packed}));

    ASSERT_EQ(reader.GetEntries().size(), 2u);
    EXPECT_EQ(reader.GetEntries()[0].name, QStringLiteral("one.txt"));
    EXPECT_EQ(reader.GetEntries()[1].name, QStringLiteral("b/two.cube"));
    EXPECT_EQ(reader.GetEntries()[1].GetFileName(), QStringLiteral("two.cube"));
    EXPECT_EQ(reader.Read(reader.GetEntries()[0]), QByteArray("first"));
    EXPECT_EQ(reader.Read(reader.GetEntries()[1]), QByteArray(100'000, 'x'));
}

TEST_F(ZipReaderTest, takesBackslashesForSlashes)
{
    ZipReader reader(Write({File("luts\\warm.cube")}));
    EXPECT_EQ(reader.GetEntries().front().name, QStringLiteral("luts/warm.cube"));
    EXPECT_TRUE(reader.GetEntries().front().fault.empty());
}

TEST_F(ZipReaderTest, refusesNamesThatLeadOutOfTheArchive)
{
    for (const char* name :
         {"../x.cube", "a/../../x.cube", "/etc/x.cube", "..\\x.cube", "C:\\x.cube", "a\nb.cube"})
        EXPECT_THAT(EntryRefusal(File(name)), HasSubstr("expected a name ")) << name;
    EXPECT_THAT(EntryRefusal(File(QByteArray(2000, 'n'))),
                HasSubstr("expected a name of 1 to 1000 characters, found 2000"));
    EXPECT_EQ(EntryRefusal(File("a..b.cube")), "read");
}

TEST_F(ZipReaderTest, endsANameAtANulByte)
{
    ZipReader reader(Write({File(QByteArray("a.cube\0.exe", 11))}));
    for (const ZipEntry& entry : reader.GetEntries())
        EXPECT_FALSE(entry.name.contains(QChar(0)));
}

TEST_F(ZipReaderTest, refusesLinksDevicesAndEncryptedEntries)
{
    ArchiveEntry link = File("a.cube", "/etc/passwd");
    link.unixMode = 0120777;
    EXPECT_EQ(EntryRefusal(link), "a.cube: expected a file, found a symbolic link");
    ArchiveEntry pipe = File("a.cube");
    pipe.unixMode = 0010644;
    EXPECT_EQ(EntryRefusal(pipe), "a.cube: expected a plain file, found something else");
    ArchiveEntry encrypted = File("a.cube", QByteArray(40, 'x'));
    encrypted.flags |= 1;
    EXPECT_EQ(EntryRefusal(encrypted),
              "a.cube: expected a file without a password, found an encrypted one");
}

TEST_F(ZipReaderTest, refusesEntriesOfOneName)
{
    ZipReader reader(Write({File("a.cube", "1"), File("b.cube"), File("a.cube", "2")}));
    ASSERT_EQ(reader.GetEntries().size(), 3u);
    EXPECT_EQ(reader.GetEntries()[0].fault, "expected a name of its own, found it 2 times");
    EXPECT_EQ(reader.GetEntries()[2].fault, "expected a name of its own, found it 2 times");
    EXPECT_EQ(reader.Read(reader.GetEntries()[1]), QByteArray("content"));
}

TEST_F(ZipReaderTest, unpacksNoMoreThanTheLimitWhateverIsAnnounced)
{
    ArchiveEntry bomb = File("a.cube", QByteArray(80 * 1024 * 1024, '\0'));
    bomb.isCompressed = true;
    EXPECT_THAT(EntryRefusal(bomb),
                HasSubstr("a.cube: expected at most 67108864 bytes, found 83886080"));
    bomb.claimedSize = 100;
    EXPECT_NE(EntryRefusal(bomb), "read");
}

TEST_F(ZipReaderTest, unpacksNoMoreThanItsTotal)
{
    ZipReader reader(Write({File("a", QByteArray(60, 'x')), File("b", QByteArray(60, 'x'))}), 100);
    EXPECT_EQ(reader.Read(reader.GetEntries()[0]).size(), 60);
    try {
        reader.Read(reader.GetEntries()[1]);
        FAIL() << "unpacked";
    } catch (const Zorvik::Exception& error) {
        EXPECT_THAT(error.GetDescription(), HasSubstr("b: expected at most 40 bytes, found 60"));
    }
}

TEST_F(ZipReaderTest, refusesADamagedEntry)
{
    ArchiveEntry entry = File("a.cube");
    entry.checksumError = 1;
    EXPECT_THAT(EntryRefusal(entry), StartsWith("a.cube: cannot be unpacked: "));
}

TEST_F(ZipReaderTest, refusesWhatIsNoArchive)
{
    EXPECT_THAT(Refusal(Write(QByteArray("no archive"))), StartsWith("expected a zip archive: "));
    EXPECT_THAT(Refusal(Write(QByteArray())), StartsWith("expected a zip archive: "));
    EXPECT_EQ(Refusal(folder.path()), "expected a file, found a folder");
    EXPECT_THAT(Refusal(folder.filePath(QStringLiteral("none.zip"))),
                StartsWith("cannot be read: "));
    const QString pipe = folder.filePath(QStringLiteral("pipe.zip"));
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(Refusal(pipe), "expected a plain file");
    EXPECT_FALSE(ZipReader::IsZip(pipe));
}

TEST_F(ZipReaderTest, refusesATruncatedArchiveAtEveryLength)
{
    const QByteArray whole = ArchiveMaker::Make({File("a.cube"), File("b.cube")});
    for (int size = 0; size < whole.size(); ++size)
        EXPECT_NE(Refusal(Write(whole.left(size))), "read") << size;
    EXPECT_EQ(Refusal(Write(whole)), "read");
}

TEST_F(ZipReaderTest, refusesTooManyEntries)
{
    std::vector<ArchiveEntry> entries;
    for (int i = 0; i < 5'001; ++i)
        entries.push_back(File("e" + QByteArray::number(i), "1"));
    EXPECT_EQ(Refusal(Write(entries)), "expected at most 5000 entries, found 5001");
    entries.pop_back();
    EXPECT_EQ(Refusal(Write(entries)), "read");
}

TEST_F(ZipReaderTest, knowsTheNotesOfAMac)
{
    ZipReader reader(Write({File("__MACOSX/._a.cube"), File("._b.cube"), File("c.cube")}));
    EXPECT_TRUE(reader.GetEntries()[0].IsFinderNote());
    EXPECT_TRUE(reader.GetEntries()[1].IsFinderNote());
    EXPECT_FALSE(reader.GetEntries()[2].IsFinderNote());
}
