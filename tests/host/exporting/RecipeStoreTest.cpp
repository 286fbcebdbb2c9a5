// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/recipes/RecipeStore.h"

#include "host/photo/PhotoSamples.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace LumetraHost;
using namespace LumetraTest;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

class RecipeStoreTest : public testing::Test
{
protected:
    std::vector<std::string> GetNames()
    {
        RecipeStore store(path);
        std::vector<std::string> names;
        for (const NamedRecipe& named : store.Read())
            names.push_back(named.name.toStdString());
        reports = store.GetReports();
        return names;
    }

    void WriteText(const QByteArray& text) const { WriteFile(path, ToBytes(text)); }
    QByteArray ReadText() const
    {
        const Bytes bytes = ReadFile(path);
        return QByteArray(reinterpret_cast<const char*>(bytes.data()),
                          static_cast<int>(bytes.size()));
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("lumetra/recipes.json"));
    std::vector<std::string> reports;
};

NamedRecipe MakeWeb()
{
    NamedRecipe named;
    named.name = QStringLiteral("Für's Netz");
    named.recipe.format = PhotoFormat::Webp;
    named.recipe.encoding.quality = 71;
    named.recipe.encoding.isLossless = true;
    named.recipe.encoding.sampling = ChromaSampling::Half;
    named.recipe.encoding.isProgressive = true;
    named.recipe.encoding.compression = TiffCompression::Lzw;
    named.recipe.depth = Image::Depth::Bits8;
    named.recipe.longestSide = 1600;
    named.recipe.mostPixels = 2'500'000;
    named.recipe.metadata = KeptMetadata::Copyright;
    named.recipe.embedsProfile = false;
    named.folder = QStringLiteral("/srv/web");
    named.file = QStringLiteral("{name}_web");
    return named;
}

TEST_F(RecipeStoreTest, beginsWithTheShippedRecipesAndWritesNothing)
{
    EXPECT_THAT(GetNames(), ElementsAre("Full size", "2048 pixels"));
    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_FALSE(QFileInfo::exists(folder.filePath(QStringLiteral("lumetra"))));
}

TEST_F(RecipeStoreTest, readsAgainAllThatItHasStored)
{
    RecipeStore(path).Save(MakeWeb());

    const NamedRecipe read = RecipeStore(path).Find(MakeWeb().name);

    const ExportRecipe& recipe = read.recipe;
    EXPECT_EQ(recipe.format, PhotoFormat::Webp);
    EXPECT_EQ(recipe.encoding.quality, 71);
    EXPECT_TRUE(recipe.encoding.isLossless);
    EXPECT_EQ(recipe.encoding.sampling, ChromaSampling::Half);
    EXPECT_TRUE(recipe.encoding.isProgressive);
    EXPECT_EQ(recipe.encoding.compression, TiffCompression::Lzw);
    EXPECT_EQ(recipe.depth, Image::Depth::Bits8);
    EXPECT_EQ(recipe.longestSide, 1600);
    EXPECT_EQ(recipe.mostPixels, 2'500'000);
    EXPECT_EQ(recipe.metadata, KeptMetadata::Copyright);
    EXPECT_FALSE(recipe.embedsProfile);
    EXPECT_EQ(read.folder, QStringLiteral("/srv/web"));
    EXPECT_EQ(read.file, QStringLiteral("{name}_web"));
}

TEST_F(RecipeStoreTest, keepsTheShippedRecipesBesideTheFirstOfOnesOwn)
{
    RecipeStore(path).Save(MakeWeb());

    EXPECT_THAT(GetNames(), ElementsAre("Full size", "2048 pixels", "Für's Netz"));
}

TEST_F(RecipeStoreTest, canBeWithoutAnyRecipe)
{
    RecipeStore(path).Remove(QStringLiteral("Full size"));
    RecipeStore(path).Remove(QStringLiteral("2048 pixels"));

    EXPECT_THAT(GetNames(), IsEmpty());
}

TEST_F(RecipeStoreTest, replacesARecipeInItsPlace)
{
    RecipeStore(path).Save(MakeWeb(), QStringLiteral("Full size"));

    EXPECT_THAT(GetNames(), ElementsAre("Für's Netz", "2048 pixels"));
}

TEST_F(RecipeStoreTest, refusesANameThatIsTakenAndChangesNothing)
{
    RecipeStore(path).Save(MakeWeb());
    const QByteArray before = ReadText();
    NamedRecipe again = MakeWeb();
    again.recipe.encoding.quality = 3;

    EXPECT_THAT(ErrorOf([&] { RecipeStore(path).Save(again); }),
                AllOf(StartsWith(path.toStdString()), HasSubstr("which another recipe has")));
    EXPECT_THAT(ErrorOf([&] { RecipeStore(path).Save(again, QStringLiteral("Full size")); }),
                HasSubstr("which another recipe has"));
    again.name = QStringLiteral("  ");
    EXPECT_THAT(ErrorOf([&] { RecipeStore(path).Save(again); }), HasSubstr("expected a name"));
    EXPECT_EQ(ReadText(), before);
}

TEST_F(RecipeStoreTest, keepsMembersThatItDoesNotKnow)
{
    RecipeStore(path).Save(MakeWeb());
    QByteArray text = ReadText();
    text.replace("\"folder\"", "\"watermark\": \"(c)\", \"folder\"");
    WriteText(text);
    NamedRecipe changed = MakeWeb();
    changed.recipe.encoding.quality = 12;

    RecipeStore(path).Save(changed, changed.name);

    EXPECT_THAT(ReadText().toStdString(), AllOf(HasSubstr("watermark"), HasSubstr("12")));
}

TEST_F(RecipeStoreTest, namesFileAndPlaceOfWhatCannotBeUsedAndReadsTheOthers)
{
    RecipeStore(path).Save(MakeWeb());
    WriteText(R"({ "format": "lumetra-export-recipes", "version": 1, "recipes": [
  { "name": "Good" },
  { "name": "Good" },
  { "name": "Bad", "quality": 0 },
  { "name": "Wide", "format": "webp", "depth": 16 },
  { "name": "Odd", "metadata": "some", "megapixels": -1 },
  { "format": "gif" },
  7
] })");

    EXPECT_THAT(GetNames(), ElementsAre("Good"));

    const std::string at = path.toStdString() + ":";
    EXPECT_THAT(
        reports,
        ElementsAre(AllOf(StartsWith(at + "8:"), HasSubstr("recipes[6]")),
                    AllOf(StartsWith(at + "3:"), HasSubstr("found \"Good\" again")),
                    AllOf(StartsWith(at + "4:"), HasSubstr("recipes[2]/quality"),
                          HasSubstr("expected a number from 1 to 100, found 0")),
                    AllOf(StartsWith(at + "5:"), HasSubstr("expected 8 for WebP, found 16")),
                    AllOf(StartsWith(at + "6:"), HasSubstr("megapixels")),
                    AllOf(StartsWith(at + "6:"),
                          HasSubstr("expected all, no-gps, copyright, none, found \"some\"")),
                    AllOf(StartsWith(at + "7:"), HasSubstr("expected a name")),
                    AllOf(StartsWith(at + "7:"),
                          HasSubstr("expected jpeg, png, tiff, webp, found \"gif\""))));
}

TEST_F(RecipeStoreTest, keepsWhatItCannotUseWhenItStoresAnother)
{
    RecipeStore(path).Save(MakeWeb());
    WriteText(R"({ "format": "lumetra-export-recipes", "version": 1, "recipes": [
  { "name": "Bad", "quality": 0 } ] })");

    RecipeStore(path).Save(MakeWeb());

    EXPECT_THAT(ReadText().toStdString(), HasSubstr("\"Bad\""));
    EXPECT_THAT(GetNames(), ElementsAre("Für's Netz"));
}

TEST_F(RecipeStoreTest, leavesAFileOfAnotherKindAlone)
{
    RecipeStore(path).Save(MakeWeb());
    QFile::remove(path + QStringLiteral(".backup-1"));
    const QByteArray other = R"({ "format": "something-else" })";
    WriteText(other);

    EXPECT_THAT(ErrorOf([&] { RecipeStore(path).Save(MakeWeb()); }),
                StartsWith(path.toStdString()));
    EXPECT_EQ(ReadText(), other);
}

TEST_F(RecipeStoreTest, tellsWhichRecipesThereAreWhenOneIsNotFound)
{
    EXPECT_THAT(ErrorOf([&] { RecipeStore(path).Find(QStringLiteral("Web")); }),
                AllOf(StartsWith(path.toStdString()),
                      HasSubstr("(\"Full size\", \"2048 pixels\"), found \"Web\"")));
}

TEST(NamedRecipe, placesItsFilesBesideThePhotoBelowItOrElsewhere)
{
    NamedRecipe named = MakeWeb();
    EXPECT_EQ(named.GetOutputTemplate(), QStringLiteral("/srv/web/{name}_web.webp"));
    named.folder.clear();
    EXPECT_EQ(named.GetOutputTemplate(), QStringLiteral("{folder}/{name}_web.webp"));
    named.folder = QStringLiteral("export/web");
    EXPECT_EQ(named.GetOutputTemplate(), QStringLiteral("{folder}/export/web/{name}_web.webp"));
}

} // namespace
