// SPDX-License-Identifier: GPL-2.0-or-later
// Names of presets and groups in the user's language, and what is stored whatever the language is.
#include "core/PresetImport.h"
#include "core/PresetSession.h"
#include "core/userstore/UserPresetStore.h"
#include "storage/JsonDocument.h"

#include <QFile>
#include <QLocale>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace LumetraPlugin;

namespace {

constexpr char Catalogue[] = R"({"format": "lumetra-catalogue", "version": 1, "groups": [
    {"name": "Plain", "items": [
        {"name": "Bright", "id": "bright", "effects": [{"effect": {"id": "exposure", "stops": 1}}]}]},
    {"name": "Broken", "names": {"de": "Kaputt"}, "settings": {"intensity": 1}},
    {"name": "Seasons", "names": {"de": "Jahreszeiten"}, "items": [
        {"name": "Autumn", "names": {"de": "Herbst", "fr": "Automne"}, "id": "autumn",
         "effects": [{"effect": {"id": "exposure", "stops": 0.5}}]}]}]})";

class ShownNamesTest : public testing::Test
{
protected:
    void SetUp() override
    {
        Write("looks.json", Catalogue);
        Speak(QLocale::German);
    }
    void TearDown() override { QLocale::setDefault(QLocale::c()); }

    static void Speak(QLocale::Language language) { QLocale::setDefault(QLocale(language)); }

    QString Path(const char* name) const { return folder.filePath(QLatin1String(name)); }

    void Write(const char* name, const char* text)
    {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QByteArray StoreText(const char* store = "presets.json") const
    {
        QFile file(Path(store));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// A session with the catalogue and the store, as after a start of the program.
    std::unique_ptr<PresetSession> Start(const char* store = "presets.json")
    {
        auto session = std::make_unique<PresetSession>("Looks");
        QStringList problems;
        EXPECT_EQ(session->LoadWithStore({Path("looks.json")}, Path(store), problems),
                  QStringList());
        EXPECT_EQ(problems, QStringList());
        return session;
    }

    static QString Shown(const QModelIndex& index)
    {
        return index.data(PresetModel::ShownNameRole).toString();
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(ShownNamesTest, areThoseOfTheLanguageWhereTheCatalogueHasThem)
{
    const auto session = Start();
    PresetModel& model = session->GetModel();
    const QModelIndex autumn = model.FindId(QStringLiteral("autumn"));
    EXPECT_EQ(Shown(autumn), QStringLiteral("Herbst"));
    EXPECT_EQ(Shown(autumn.parent()), QStringLiteral("Jahreszeiten"));
    EXPECT_EQ(Shown(model.FindId(QStringLiteral("bright"))), QStringLiteral("Bright"));
    EXPECT_EQ(Shown(model.index(0, 0)), QStringLiteral("Plain"));
    EXPECT_EQ(Shown(model.GetUserGroup()), QStringLiteral("User presets"));
    Speak(QLocale::French);
    EXPECT_EQ(Shown(autumn), QStringLiteral("Automne"));
    EXPECT_EQ(Shown(autumn.parent()), QStringLiteral("Seasons"));
    Speak(QLocale::English);
    EXPECT_EQ(Shown(autumn), QStringLiteral("Autumn"));
}

TEST_F(ShownNamesTest, leaveTheLibrarysRolesAsTheyAre)
{
    const auto session = Start();
    const QModelIndex autumn = session->GetModel().FindId(QStringLiteral("autumn"));
    EXPECT_EQ(autumn.data(PresetModel::PresetNameRole).toString(), QStringLiteral("Autumn"));
    EXPECT_EQ(autumn.parent().data(PresetModel::PresetNameRole).toString(),
              QStringLiteral("Seasons"));
    EXPECT_FALSE(autumn.data(Qt::DisplayRole).isValid());
    EXPECT_FALSE(QModelIndex().data(PresetModel::ShownNameRole).isValid());
}

TEST_F(ShownNamesTest, doNotChangeWhatIsStored)
{
    const auto mark = [this](QLocale::Language language, const char* store) {
        Speak(language);
        const auto session = Start(store);
        PresetModel& model = session->GetModel();
        model.setData(model.FindId(QStringLiteral("autumn")), true, PresetModel::FavouriteRole);
        session->GetStore()->Save(model);
        return StoreText(store).toStdString();
    };
    const std::string stored = mark(QLocale::English, "english.json");
    EXPECT_NE(stored.find("Seasons"), std::string::npos);
    EXPECT_EQ(mark(QLocale::German, "german.json"), stored);
    const auto session = Start("english.json");
    EXPECT_TRUE(session->GetModel()
                    .FindId(QStringLiteral("autumn"))
                    .data(PresetModel::FavouriteRole)
                    .toBool());
}

TEST_F(ShownNamesTest, ofTheUsersPresetsAreTheirOwnInEveryLanguage)
{
    const auto session = Start();
    PresetModel& model = session->GetModel();
    model.setData(model.FindId(QStringLiteral("autumn")), QStringLiteral("Autumn"),
                  PresetModel::SaveAsUserPresetRole);
    const QModelIndex copy = model.index(0, 0, model.GetUserGroup());
    EXPECT_EQ(Shown(copy), QStringLiteral("Autumn"));
    model.setData(copy, QStringLiteral("October"), PresetModel::PresetNameRole);
    EXPECT_EQ(Shown(copy), QStringLiteral("October"));
    session->GetStore()->Save(model);
    EXPECT_FALSE(StoreText().contains("Herbst"));
    const auto again = Start();
    EXPECT_EQ(Shown(again->GetModel().index(0, 0, again->GetModel().GetUserGroup())),
              QStringLiteral("October"));
}

/// A store that was written by hand, or by a later program, may have translations.
TEST_F(ShownNamesTest, ofAStoreArePassedOver)
{
    {
        const auto session = Start();
        PresetModel& model = session->GetModel();
        model.setData(model.FindId(QStringLiteral("autumn")), QStringLiteral("Mine"),
                      PresetModel::SaveAsUserPresetRole);
        session->GetStore()->Save(model);
    }
    const QByteArray text = StoreText();
    for (const char* names : {R"({"de": "Meins"})", R"("Meins")", "7"}) {
        QByteArray changed = text;
        changed.replace(R"("name": "Mine")", QByteArray(R"("name": "Mine", "names": )") + names);
        ASSERT_NE(changed, text);
        Write("presets.json", changed);
        const auto session = Start();
        EXPECT_EQ(Shown(session->GetModel().index(0, 0, session->GetModel().GetUserGroup())),
                  QStringLiteral("Mine"))
            << names;
    }
}

/// Whoever imports looks goes on with the names that were seen.
TEST_F(ShownNamesTest, becomeTheNamesOfImportedPresets)
{
    const auto session = Start();
    Write("others.json", R"({"format": "lumetra-catalogue", "version": 1, "groups": [
        {"name": "Others", "items": [{"name": "Spring", "names": {"de": "Frühling"}, "id": "spring",
         "effects": [{"effect": {"id": "exposure", "stops": 1}}]}]}]})");
    const ImportReport report =
        PresetImport::AddTo(*session, {PresetImport::Read(Path("others.json"), {})});
    ASSERT_EQ(report.presets.size(), 1U);
    const QModelIndex added = report.presets.front().index;
    EXPECT_EQ(added.data(PresetModel::PresetNameRole).toString(), QStringLiteral("Frühling"));
    Speak(QLocale::English);
    EXPECT_EQ(Shown(added), QStringLiteral("Frühling"));
}
