// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/userstore/UserStoreChecker.h"

#include "catalogue/CatalogueReport.h"
#include "core/PresetControllerFactory.h"
#include "core/userstore/UserPresetStore.h"
#include "storage/JsonDocument.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace LumetraHost;
using LumetraPlugin::PresetControllerFactory;
using LumetraPlugin::UserPresetStore;
using LumetraPlugin::UserStoreChecker;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

JsonDocument Document(const char* text)
{
    return JsonDocument::Parse(text, "own.json");
}

std::vector<std::string> Remarks(const char* text)
{
    CatalogueReports reports;
    UserStoreChecker::Check(Document(text), {"", "photo"}, reports);
    std::vector<std::string> remarks;
    for (const CatalogueReport& report : reports.GetAll())
        remarks.push_back(report.ToText());
    return remarks;
}

} // namespace

TEST(UserStoreChecker, knowsAStoreByItsFormatOrByTheMembersOfOneWithoutAFormat)
{
    EXPECT_TRUE(UserStoreChecker::IsStore(Document(R"({"format": "lumetra-user-presets"})")));
    EXPECT_TRUE(UserStoreChecker::IsStore(Document(R"({"UserPresets": {}})")));
    EXPECT_TRUE(UserStoreChecker::IsStore(Document(R"({"Favourites": []})")));
    EXPECT_TRUE(
        UserStoreChecker::IsStore(Document(R"({"format": "lumetra-user-presets", "items": []})")));
    EXPECT_FALSE(UserStoreChecker::IsStore(Document(R"({"items": []})")));
    EXPECT_FALSE(UserStoreChecker::IsStore(Document(R"({"format": "else", "items": []})")));
    EXPECT_FALSE(UserStoreChecker::IsStore(Document(R"({"format": 1, "UserPresets": {}})")));
    EXPECT_FALSE(UserStoreChecker::IsStore(Document(R"({"groups": []})")));
}

/// The checker must take exactly those files for stores that can be opened as one.
TEST(UserStoreChecker, takesTheFilesForStoresThatTheStoreOpens)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("own.json"));
    for (const char* text :
         {R"({"format": "lumetra-user-presets"})", R"({"format": "else", "UserPresets": {}})",
          R"({"format": 1, "Favourites": []})", R"({"UserPresets": {"items": []}})",
          R"({"Favourites": []})", R"({"items": [{"name": "A"}]})", R"({"window": "wide"})",
          R"({"format": "lumetra-user-presets", "items": [{"name": "A"}]})"}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) > 0);
        file.close();
        bool isOpened = true;
        try {
            UserPresetStore(path, std::make_shared<PresetControllerFactory>("test")).Load();
        } catch (const Zorvik::Exception&) {
            isOpened = false;
        }
        EXPECT_EQ(UserStoreChecker::IsStore(Document(text)), isOpened) << text;
    }
}

TEST(UserStoreChecker, checksPresetsThatStandInTheFileItself)
{
    EXPECT_THAT(Remarks(R"({"items": [{"name": "A", "resource": "a", "popular": 1}], "x": 1})"),
                ElementsAre("own.json:1:64: note: x: this key is not used",
                            "own.json:1:54: error: items[0]/popular: expected bool, found number"));
}

TEST(UserStoreChecker, notesThatAListBesideTheHolderIsNotUsed)
{
    EXPECT_THAT(Remarks(R"({"UserPresets": {"items": []}, "items": [1]})"),
                ElementsAre("own.json:1:41: note: items: this key is not used"));
    EXPECT_THAT(Remarks(R"({"Favourites": []})"), IsEmpty());
}
