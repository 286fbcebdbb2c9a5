// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/JobFingerprint.h"

#include "ExportSamples.h"

#include "host/engine/TestPictures.h"
#include "host/photo/PhotoSamples.h"

#include "engine/effects/lut3d/Lut3dSettings.h"
#include "exporting/Export.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <functional>
#include <set>
#include <utility>
#include <vector>

using namespace LumetraHost;
using namespace LumetraTest;
using testing::IsEmpty;
using testing::MatchesRegex;

namespace {

using Change = std::pair<const char*, std::function<void(ExportRecipe&)>>;

const Bytes Photo1 = {1, 2, 3};

ExportRecipe MakeSample()
{
    ExportRecipe recipe = MakeRecipe(MakeLayers());
    recipe.records = {{"Look", 80}};
    return recipe;
}

std::shared_ptr<const ExportLook> MakeLook(double stops, int blend)
{
    auto package = MakeSettings({MakeEffect("exposure", {{"stops", stops}})});
    package.SetBlendAmount(blend);
    return std::make_shared<ExportLook>(Packages{package});
}

/// A change of every member that the file depends on.
std::vector<Change> MakeChanges()
{
    return {
        {"no look", [](ExportRecipe& recipe) { recipe.look.reset(); }},
        {"effect", [](ExportRecipe& recipe) { recipe.look = MakeLook(0.5, 1); }},
        {"value", [](ExportRecipe& recipe) { recipe.look = MakeLook(0.500001, 1); }},
        {"blend", [](ExportRecipe& recipe) { recipe.look = MakeLook(0.5, 2); }},
        {"precision",
         [](ExportRecipe& recipe) {
             recipe.look = std::make_shared<ExportLook>(MakeLayers(), ExportLook::Precision::Exact);
         }},
        {"order",
         [](ExportRecipe& recipe) {
             Packages layers = MakeLayers();
             std::swap(layers.front(), layers.back());
             recipe.look = std::make_shared<ExportLook>(layers);
         }},
        {"no record", [](ExportRecipe& recipe) { recipe.records.clear(); }},
        {"name", [](ExportRecipe& recipe) { recipe.records[0].preset = "Other"; }},
        {"intensity", [](ExportRecipe& recipe) { recipe.records[0].intensity = 81; }},
        {"look text", [](ExportRecipe& recipe) { recipe.records[0].look = "{}"; }},
        {"look left out", [](ExportRecipe& recipe) { recipe.records[0].lookLeftOut = "large"; }},
        {"format", [](ExportRecipe& recipe) { recipe.format = PhotoFormat::Png; }},
        {"quality", [](ExportRecipe& recipe) { recipe.encoding.quality = 91; }},
        {"sampling", [](ExportRecipe& recipe) { recipe.encoding.sampling = ChromaSampling::Full; }},
        {"progressive", [](ExportRecipe& recipe) { recipe.encoding.isProgressive = true; }},
        {"lossless", [](ExportRecipe& recipe) { recipe.encoding.isLossless = true; }},
        {"compression",
         [](ExportRecipe& recipe) { recipe.encoding.compression = TiffCompression::Lzw; }},
        {"area", [](ExportRecipe& recipe) { recipe.mostPixels = 100; }},
        {"8 bits", [](ExportRecipe& recipe) { recipe.depth = Image::Depth::Bits8; }},
        {"16 bits", [](ExportRecipe& recipe) { recipe.depth = Image::Depth::Bits16; }},
        {"size", [](ExportRecipe& recipe) { recipe.longestSide = 100; }},
        {"metadata", [](ExportRecipe& recipe) { recipe.metadata = KeptMetadata::NoGps; }},
        {"profile", [](ExportRecipe& recipe) { recipe.embedsProfile = false; }},
    };
}

LookUpTable MakeCube(float first)
{
    LookUpTable cube = LookUpTable::MakeIdentity(LookUpTable::Kind::Cube, 2, {0, 0, 0}, {1, 1, 1});
    cube.values.front() = first;
    return cube;
}

std::string DigestOfCube(float first)
{
    const LookUpTable cube = MakeCube(first);
    return ExportLook({MakeSettings({Lut3dSettings::Create(nullptr, &cube)})}).GetDigest();
}

TEST(JobFingerprint, isTheSameForTheSameJob)
{
    const std::string fingerprint = JobFingerprint::Of(Photo1, MakeSample());

    EXPECT_THAT(fingerprint, MatchesRegex("[0-9a-f]{64}"));
    EXPECT_EQ(JobFingerprint::Of(Photo1, MakeSample()), fingerprint);
}

TEST(JobFingerprint, isAnotherForEveryChangeOfPhotoLookAndOptions)
{
    std::set<std::string> fingerprints = {JobFingerprint::Of(Photo1, MakeSample()),
                                          JobFingerprint::Of({1, 2, 4}, MakeSample()),
                                          JobFingerprint::Of({}, MakeSample())};
    const auto changes = MakeChanges();
    for (const auto& [name, change] : changes) {
        ExportRecipe recipe = MakeSample();
        change(recipe);
        EXPECT_TRUE(fingerprints.insert(JobFingerprint::Of(Photo1, recipe)).second) << name;
    }
    EXPECT_EQ(fingerprints.size(), changes.size() + 3);
}

// Texts that run into each other would make two jobs one.
TEST(JobFingerprint, keepsTextsApart)
{
    ExportRecipe first = MakeSample();
    first.records = {{"a\nintensity=2:80", 80}};
    ExportRecipe second = MakeSample();
    second.records = {{"a", 80}, {"", 80}};

    EXPECT_NE(JobFingerprint::Of(Photo1, first), JobFingerprint::Of(Photo1, second));
}

TEST(JobFingerprint, coversTheContentOfTables)
{
    EXPECT_THAT(DigestOfCube(0.5F), MatchesRegex("[0-9a-f]{64}"));
    EXPECT_EQ(DigestOfCube(0.5F), DigestOfCube(0.5F));
    EXPECT_NE(DigestOfCube(0.5F), DigestOfCube(0.75F));
}

TEST(JobFingerprint, standsInExportedFilesOfEveryFormat)
{
    const QTemporaryDir folder;
    for (const auto& [format, name] :
         {std::pair(PhotoFormat::Jpeg, "a.jpg"), std::pair(PhotoFormat::Png, "a.png"),
          std::pair(PhotoFormat::Tiff, "a.tif"), std::pair(PhotoFormat::Webp, "a.webp")}) {
        ExportRecipe recipe = MakeRecipe(MakeColours(), format);
        const Bytes photo = MakeJpeg(40, 30);
        recipe.job = JobFingerprint::Of(photo, recipe);
        const Bytes file = Export().MakeFromFile(photo, "a", recipe, name).file;
        const QString path = folder.filePath(QLatin1String(name));
        WriteFile(path, file);

        EXPECT_EQ(JobFingerprint::ReadFrom(file), recipe.job) << name;
        EXPECT_EQ(JobFingerprint::ReadFrom(path), recipe.job) << name;
    }
}

// A copy that was broken off may have its metadata, which stand in front.
TEST(JobFingerprint, isNotFoundInACutFile)
{
    for (const auto format :
         {PhotoFormat::Jpeg, PhotoFormat::Png, PhotoFormat::Tiff, PhotoFormat::Webp}) {
        ExportRecipe recipe = MakeRecipe(MakeColours(), format);
        const Bytes photo = MakeJpeg(400, 300);
        recipe.job = JobFingerprint::Of(photo, recipe);
        const Bytes file = Export().MakeFromFile(photo, "a", recipe, "b").file;
        for (std::size_t size = 0; size < file.size(); size += 1 + size / 20) {
            const Bytes cut(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size));
            EXPECT_THAT(JobFingerprint::ReadFrom(cut), IsEmpty()) << size << " of " << file.size();
        }
    }
}

TEST(JobFingerprint, isFoundInNoOtherFile)
{
    const QTemporaryDir folder;
    ExportRecipe recipe = MakeRecipe(MakeColours());
    recipe.job = "abc";
    recipe.metadata = KeptMetadata::None;
    const Bytes photo = MakeJpeg(40, 30);

    EXPECT_THAT(JobFingerprint::ReadFrom(photo), IsEmpty());
    EXPECT_THAT(JobFingerprint::ReadFrom(Export().MakeFromFile(photo, "a", recipe, "b").file),
                IsEmpty());
    EXPECT_THAT(JobFingerprint::ReadFrom(Bytes{}), IsEmpty());
    EXPECT_THAT(JobFingerprint::ReadFrom(Bytes{0xff, 0xd8, 0xff, 0xe1}), IsEmpty());
    EXPECT_THAT(JobFingerprint::ReadFrom(folder.path()), IsEmpty());
    EXPECT_THAT(JobFingerprint::ReadFrom(folder.filePath(QStringLiteral("missing"))), IsEmpty());
}

} // namespace
