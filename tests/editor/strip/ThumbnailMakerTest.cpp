// SPDX-License-Identifier: GPL-2.0-or-later
#include "strip/ThumbnailMaker.h"
#include "editor/EditorFixture.h"

#include "engine/effects/EffectKinds.h"

#include <QFile>

#include <gmock/gmock.h>

#include <sys/stat.h>

using namespace LumetraTest;
using LumetraEditor::Thumbnail;
using testing::HasSubstr;

namespace {

/// An edit with one layer that makes the photo darker by two stops.
QByteArray DarkEdit(bool isOn)
{
    return QByteArrayLiteral(R"({"format": "lumetra-sidecar", "version": 3, "layers": [
        {"module": "m", "on": ON, "open": false, "package": "p", "preset": "dusk", "blend": 1,
         "effects": [{"effect": {"id": "exposure", "stops": -2}}],
         "name": "Dusk", "intensity": 100}], "panels": {}})")
        .replace("ON", isOn ? "true" : "false");
}

class ThumbnailMakerTest : public EditorFolder
{
protected:
    ThumbnailMakerTest() { LumetraHost::RegisterEffects(); }

    static Thumbnail Make(const QString& path, const QSize& size = {60, 40})
    {
        return LumetraEditor::ThumbnailMaker::Make({path, 7, size, nullptr}, {});
    }
    static int Middle(const Thumbnail& thumbnail)
    {
        return qGray(thumbnail.picture.pixel(thumbnail.picture.rect().center()));
    }
};

} // namespace

TEST_F(ThumbnailMakerTest, fitsThePhotoIntoItsPlace)
{
    EXPECT_EQ(Make(WritePhoto("wide.png", 300, 100)).picture.size(), QSize(60, 20));
    EXPECT_EQ(Make(WritePhoto("high.png", 100, 300)).picture.size(), QSize(13, 40));
    EXPECT_EQ(Make(WritePhoto("small.png", 10, 8)).picture.size(), QSize(10, 8));
    EXPECT_EQ(Make(WritePhoto("thread.png", 3000, 1)).picture.size(), QSize(60, 1));
}

TEST_F(ThumbnailMakerTest, showsTheEditAndNamesItsLooks)
{
    const QString path = WritePhoto("lake.png", 300, 200);
    const Thumbnail plain = Make(path);
    WriteFile("lake.png.lumetra.json", DarkEdit(true));

    const Thumbnail edited = Make(path);

    EXPECT_FALSE(plain.isEdited);
    EXPECT_TRUE(edited.isEdited);
    ASSERT_EQ(edited.looks.size(), 1U);
    EXPECT_EQ(edited.looks[0].name, QStringLiteral("Dusk"));
    EXPECT_LT(Middle(edited), Middle(plain) * 3 / 4);
    EXPECT_EQ(edited.version, 7);
}

TEST_F(ThumbnailMakerTest, passesOverLayersThatAreOff)
{
    const QString path = WritePhoto("lake.png", 300, 200);
    const Thumbnail plain = Make(path);
    WriteFile("lake.png.lumetra.json", DarkEdit(false));

    EXPECT_FALSE(Make(path).isEdited);
    EXPECT_EQ(Make(path).picture, plain.picture);
}

TEST_F(ThumbnailMakerTest, showsThePhotoWhereItsEditCannotBeRead)
{
    const QString path = WritePhoto("lake.png", 300, 200);
    const QImage plain = Make(path).picture;
    WriteFile("lake.png.lumetra.json", "{ garbage");

    EXPECT_EQ(Make(path).picture, plain);
    EXPECT_EQ(Make(path).problem, QString());
    EXPECT_EQ(ReadFile("lake.png.lumetra.json"), "{ garbage");
}

TEST_F(ThumbnailMakerTest, saysWhyThereIsNoPicture)
{
    ASSERT_EQ(::mkfifo(QFile::encodeName(Path("pipe.jpg")).constData(), 0600), 0);
    for (const QString& path :
         {WriteFile("notes.jpg", "Dear diary"), WriteFile("empty.jpg", ""), Path("gone.jpg"),
          Path("pipe.jpg"), Path("."), WriteTruncatedPhoto("half.jpg")}) {
        const Thumbnail thumbnail = Make(path);
        EXPECT_TRUE(thumbnail.picture.isNull()) << path.toStdString();
        EXPECT_THAT(thumbnail.problem.toStdString(), HasSubstr(path.toStdString()));
    }
}
