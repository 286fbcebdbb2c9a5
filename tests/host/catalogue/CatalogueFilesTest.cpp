// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/CatalogueFiles.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace LumetraHost;

namespace {

QString Make(const QTemporaryDir& root, const QString& path)
{
    const QString file = root.filePath(path);
    QDir().mkpath(QFileInfo(file).path());
    QFile(file).open(QIODevice::WriteOnly);
    return file;
}

} // namespace

TEST(CatalogueFiles, putsAUsersFileInThePlaceOfTheShippedOne)
{
    const QTemporaryDir root;
    Make(root, QStringLiteral("shipped/lumetra/catalogue/grade.json"));
    const QString film = Make(root, QStringLiteral("shipped/lumetra/catalogue/film.json"));
    const QString own = Make(root, QStringLiteral("user/lumetra/catalogue/grade.json"));
    const QString extra = Make(root, QStringLiteral("user/lumetra/catalogue/extra.json"));
    Make(root, QStringLiteral("user/lumetra/catalogue/readme.txt"));
    Make(root, QStringLiteral("user/lumetra/catalogue/catalogue.schema.json"));
    Make(root, QStringLiteral("user/other/catalogue/other.json"));

    const QStringList files = CatalogueFiles::Find({root.filePath(QStringLiteral("shipped")),
                                                    root.filePath(QStringLiteral("missing")),
                                                    root.filePath(QStringLiteral("user"))});

    EXPECT_EQ(files, (QStringList{film, own, extra}));
}

TEST(CatalogueFiles, ordersDataFoldersByImportance)
{
    const QByteArray before = qgetenv("XDG_DATA_DIRS");
    const QByteArray homeBefore = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_DIRS", "/one:/two");
    qputenv("XDG_DATA_HOME", "/home-data");

    const QStringList folders = CatalogueFiles::GetDataFolders(QStringLiteral("/prefix/share/"));
    const QStringList withoutOwn = CatalogueFiles::GetDataFolders(QString());

    before.isNull() ? qunsetenv("XDG_DATA_DIRS") : qputenv("XDG_DATA_DIRS", before);
    homeBefore.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", homeBefore);
    EXPECT_EQ(folders.first(), QStringLiteral("/prefix/share"));
    EXPECT_LT(folders.indexOf(QStringLiteral("/two")), folders.indexOf(QStringLiteral("/one")));
    EXPECT_EQ(folders.last(), QStringLiteral("/home-data"));
    EXPECT_EQ(withoutOwn, folders.mid(1));
}
