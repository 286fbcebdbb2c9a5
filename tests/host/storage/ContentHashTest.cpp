// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/ContentHash.h"

#include <QCryptographicHash>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

using LumetraHost::ContentHash;

namespace {

// The values are published examples of FIPS 180-4.
TEST(ContentHash, isSha256InHexadecimalDigits)
{
    EXPECT_EQ(ContentHash::Of(""),
              "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(ContentHash::Of("abc"),
              "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
}

TEST(ContentHash, readsFilesInPartsAsIfTheyWereInMemory)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("large"));
    QByteArray content(3'000'001, '\0');
    for (int i = 0; i < content.size(); ++i)
        content[i] = static_cast<char>(i * 7 + i / 251);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    file.close();

    const std::string expected =
        QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex().toStdString();
    EXPECT_EQ(ContentHash::OfFile(path), expected);
    EXPECT_EQ(ContentHash::Of(content.constData(), static_cast<std::size_t>(content.size())),
              expected);
}

TEST(ContentHash, isEmptyForWhatIsNoPlainFile)
{
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(QStringLiteral("pipe"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);

    EXPECT_EQ(ContentHash::OfFile(pipe), "");
    EXPECT_EQ(ContentHash::OfFile(folder.path()), "");
    EXPECT_EQ(ContentHash::OfFile(folder.filePath(QStringLiteral("missing"))), "");
}

} // namespace
