// SPDX-License-Identifier: GPL-2.0-or-later
// Runs the gallery's command, and checks that the pictures show what they are named after.
#include "Places.h"
#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <set>

namespace LumetraTest {
namespace {

const char* const Scenes[] = {"panel",
                              "toolbox-shut",
                              "toolbox-several-open",
                              "toolbox-hover",
                              "toolbox-pressed",
                              "toolbox-disabled",
                              "intensity-hover",
                              "intensity-pressed",
                              "intensity-focus",
                              "intensity-disabled",
                              "intensity-positive",
                              "intensity-zero",
                              "intensity-tooltip",
                              "dialog-create",
                              "dialog-rename",
                              "dialog-disabled",
                              "dialog-hover",
                              "dialog-pressed",
                              "dialog-focus-save",
                              "dialog-focus-cancel",
                              "alert"};
const char* const Looks[] = {"light-en", "light-de", "dark-en", "dark-de"};

int RunGallery(const QStringList& arguments, QByteArray* errors = nullptr)
{
    QProcess process;
    process.start(QStringLiteral(GALLERY_PROGRAM), arguments);
    process.waitForFinished(-1);
    if (errors)
        *errors = process.readAllStandardError();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return process.exitCode();
}

/// All pictures, saved once for all tests.
class Gallery : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        s_folder = new QTemporaryDir;
        s_exitCode = RunGallery({QStringLiteral("--save"), Pictures().path()});
    }

    static void TearDownTestSuite()
    {
        delete s_folder;
        s_folder = nullptr;
    }

    static QDir Pictures() { return QDir(s_folder->filePath(QStringLiteral("new/pictures"))); }

    static QString Name(const char* scene, const char* look, int scale)
    {
        return QStringLiteral("%1-%2@%3x.png")
            .arg(QString::fromLatin1(scene), QString::fromLatin1(look))
            .arg(scale);
    }

    static QImage Picture(const char* scene, const char* look, int scale = 1)
    {
        return QImage(Pictures().filePath(Name(scene, look, scale)))
            .convertToFormat(QImage::Format_RGB32);
    }

    static QTemporaryDir* s_folder;
    static int s_exitCode;
};

QTemporaryDir* Gallery::s_folder = nullptr;
int Gallery::s_exitCode = -1;

TEST_F(Gallery, savesEverySceneInEveryLook)
{
    QStringList expected;
    for (const char* scene : Scenes) {
        for (const char* look : Looks)
            expected << Name(scene, look, 1) << Name(scene, look, 2);
    }
    expected.sort();

    EXPECT_EQ(s_exitCode, 0);
    EXPECT_EQ(Pictures().entryList(QDir::Files, QDir::Name).join(QLatin1Char('\n')).toStdString(),
              expected.join(QLatin1Char('\n')).toStdString());
}

TEST_F(Gallery, secondScaleIsTwiceAsLargeAndNotMerelyEnlarged)
{
    for (const char* scene : Scenes) {
        SCOPED_TRACE(scene);
        const QImage once = Picture(scene, "dark-de", 1);
        const QImage twice = Picture(scene, "dark-de", 2);

        // Lines of text are measured in whole pixels, and so are a little lower at scale 2. An
        // alert wraps its text by the screen's width, which then has half as many units.
        if (qstrcmp(scene, "alert") != 0) {
            EXPECT_EQ(twice.width(), once.width() * 2);
        }
        EXPECT_NEAR(twice.height(), once.height() * 2, 12);
        EXPECT_NE(twice, once.scaled(twice.size()));
    }
}

TEST_F(Gallery, dialogKeepsItsSize)
{
    EXPECT_EQ(Picture("dialog-create", "light-en").size(), QSize(262, 130));
    EXPECT_EQ(Picture("dialog-rename", "dark-de", 2).size(), QSize(524, 260));
}

TEST_F(Gallery, statesLookDifferent)
{
    // The scenes of the same size that must all differ from each other.
    const std::vector<std::vector<const char*>> families{
        {"panel", "toolbox-hover", "toolbox-pressed", "toolbox-disabled", "intensity-hover",
         "intensity-pressed", "intensity-focus", "intensity-disabled", "intensity-positive",
         "intensity-zero", "intensity-tooltip"},
        {"dialog-create", "dialog-rename", "dialog-disabled", "dialog-hover", "dialog-pressed",
         "dialog-focus-save", "dialog-focus-cancel"}};
    for (const char* look : Looks) {
        for (const auto& family : families) {
            for (std::size_t i = 0; i < family.size(); ++i) {
                for (std::size_t j = 0; j < i; ++j)
                    EXPECT_NE(Picture(family[i], look), Picture(family[j], look))
                        << family[i] << " and " << family[j] << " in " << look;
            }
        }
    }
}

TEST_F(Gallery, looksDiffer)
{
    for (const char* scene : Scenes) {
        SCOPED_TRACE(scene);
        EXPECT_NE(Picture(scene, "light-en"), Picture(scene, "dark-en"));
        EXPECT_NE(Picture(scene, "light-en"), Picture(scene, "light-de"));
    }
}

TEST(GalleryCommand, refusesAnUnknownScale)
{
    QByteArray errors;

    EXPECT_EQ(RunGallery({QStringLiteral("--save"), QDir::tempPath(), QStringLiteral("--scale"),
                          QStringLiteral("3")},
                         &errors),
              2);
    EXPECT_TRUE(errors.contains("--scale 3: expected 1 or 2")) << errors.toStdString();
}

TEST(GalleryCommand, namesAFolderThatItCannotWrite)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("file"));
    QFile(file).open(QIODevice::WriteOnly);
    QByteArray errors;

    EXPECT_EQ(RunGallery({QStringLiteral("--save"), file + QStringLiteral("/below")}, &errors), 1);
    EXPECT_TRUE(errors.contains((file + QStringLiteral("/below: expected a folder")).toUtf8()))
        << errors.toStdString();
}

} // namespace
} // namespace LumetraTest
