// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/ZipWriter.h"
#include "archive/ZipReader.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using LumetraHost::ZipReader;
using LumetraHost::ZipWriter;

namespace {

QByteArray Unpack(const QByteArray& archive, const char* name)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.zip")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(archive);
    file.close();
    ZipReader reader(file.fileName());
    EXPECT_EQ(reader.GetEntries().size(), 1u);
    EXPECT_EQ(reader.GetEntries().front().name, QString::fromUtf8(name));
    return reader.Read(reader.GetEntries().front());
}

} // namespace

TEST(ZipWriterTest, packsWhatTheReaderUnpacks)
{
    for (const int size : {0, 1, 65'536, 5'000'000}) {
        const QByteArray content(size, 'q');
        EXPECT_EQ(Unpack(ZipWriter::Pack("look.json", content), "look.json"), content) << size;
    }
    EXPECT_LT(ZipWriter::Pack("a", QByteArray(5'000'000, 'q')).size(), 50'000);
}

TEST(ZipWriterTest, writesEqualBytesForEqualContents)
{
    EXPECT_EQ(ZipWriter::Pack("look.json", "text"), ZipWriter::Pack("look.json", "text"));
}
