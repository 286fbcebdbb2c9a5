// SPDX-License-Identifier: GPL-2.0-or-later
// Look-up tables that a catalogue names by their files.
#include "core/PresetImport.h"
#include "core/PresetSession.h"
#include "core/userstore/UserPresetStore.h"
#include "engine/effects/lut3d/Lut3dSettings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace LumetraPlugin;
using LumetraHost::Lut3dSettings;
using testing::HasSubstr;

namespace {

/// A table of two points that turns red and green around.
constexpr char Cube[] = "LUT_3D_SIZE 2\n"
                        "0 0 0\n0 1 0\n1 0 0\n1 1 0\n0 0 1\n0 1 1\n1 0 1\n1 1 1\n";
constexpr char DecisionList[] = R"(<ColorCorrection id="a"><SOPNode><Slope>1 1 1</Slope>
<Offset>0 0 0</Offset><Power>1 1 1</Power></SOPNode></ColorCorrection>)";

class NamedTablesTest : public testing::Test
{
protected:
    void SetUp() override
    {
        QDir(folder.path()).mkpath(QStringLiteral("luts"));
        Write("luts/swap.cube", Cube);
    }

    QString Path(const char* name) const
    {
        return QFileInfo(folder.path()).canonicalFilePath() + QLatin1Char('/') +
               QLatin1String(name);
    }

    void Write(const char* name, const QByteArray& content)
    {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    /// Loads a catalogue whose preset "film" has an effect with these members; keeps the errors.
    void Load(const QByteArray& members)
    {
        Write("looks.json",
              R"({"format": "lumetra-catalogue", "version": 1, "groups": [{"name": "G", "items": [
                 {"name": "Film", "id": "film", "effects": [
                    {"effect": {"id": "lut3d", )" +
                  members + "}}]}]}]}");
        session = std::make_unique<PresetSession>("Looks");
        QStringList problems;
        session->LoadWithStore({Path("looks.json")}, Path("presets.json"), problems);
        errors.clear();
        for (const auto& report : session->GetReports())
            errors += report.ToText() + "\n";
    }

    /// The table of a preset's only effect; null without such a preset.
    LumetraHost::LookUpTablePtr TableOf(PresetSession& presets, const char* id)
    {
        const auto preset =
            presets.GetModel().GetPreset(presets.GetModel().FindId(QLatin1String(id)));
        if (!preset)
            return nullptr;
        const auto settings = preset->MakeSettings();
        const auto* const effect =
            dynamic_cast<const Lut3dSettings*>(settings.EffectsConst().front().get());
        return effect ? effect->GetCube() : nullptr;
    }

    QTemporaryDir folder;
    std::unique_ptr<PresetSession> session;
    std::string errors;
};

} // namespace

TEST_F(NamedTablesTest, areReadFromTheCataloguesFolder)
{
    Load(R"("file": "luts/swap.cube", "strength": 50)");
    EXPECT_EQ(errors, "");
    const auto table = TableOf(*session, "film");
    ASSERT_TRUE(table);
    EXPECT_EQ(table->size, 2);
    EXPECT_EQ(table->values[4], 0.0f); // the second entry is pure red before, green after
    EXPECT_EQ(table->values[5], 1.0f);
    const auto settings = session->GetModel()
                              .GetPreset(session->GetModel().FindId(QStringLiteral("film")))
                              ->MakeSettings();
    EXPECT_EQ(settings.EffectsConst().front()->GetParameter("strength"), 50);
}

/// The user's copy goes on without the catalogue.
TEST_F(NamedTablesTest, belongToTheUsersCopies)
{
    Load(R"("file": "luts/swap.cube")");
    PresetModel& model = session->GetModel();
    model.setData(model.FindId(QStringLiteral("film")), QStringLiteral("Mine"),
                  PresetModel::SaveAsUserPresetRole);
    session->GetStore()->Save(model);
    QFile::remove(Path("luts/swap.cube"));
    QFile store(Path("presets.json"));
    ASSERT_TRUE(store.open(QIODevice::ReadOnly));
    EXPECT_FALSE(store.readAll().contains("swap.cube"));
    PresetSession again("Looks");
    QStringList problems;
    again.LoadWithStore({}, Path("presets.json"), problems);
    EXPECT_EQ(problems, QStringList());
    const QModelIndex mine = again.GetModel().index(0, 0, again.GetModel().GetUserGroup());
    ASSERT_TRUE(mine.isValid());
    const auto settings = again.GetModel().GetPreset(mine)->MakeSettings();
    EXPECT_TRUE(dynamic_cast<const Lut3dSettings&>(*settings.EffectsConst().front()).GetCube());
}

TEST_F(NamedTablesTest, areThereInImportedCatalogues)
{
    Load(R"("file": "luts/swap.cube")");
    PresetSession other("Looks");
    QStringList problems;
    other.LoadWithStore({}, Path("other.json"), problems);
    const ImportReport report =
        PresetImport::AddTo(other, {PresetImport::Read(Path("looks.json"), {})});
    EXPECT_EQ(problems + report.problems, QStringList());
    EXPECT_EQ(report.presets.size(), 1U);
}

TEST_F(NamedTablesTest, costOnlyTheirPresetWhenTheyCannotBeUsed)
{
    const std::string place = Path("looks.json").toStdString() +
                              ":3:56: error: groups[0]/items[0]/effects[0]/effect/file: ";
    Load(R"("file": "../swap.cube")");
    EXPECT_EQ(errors, place + "expected a path inside the catalogue's folder, without \"..\", "
                              "found \"../swap.cube\"\n");
    EXPECT_FALSE(TableOf(*session, "film"));
    Load(R"("file": "luts/missing.cube")");
    EXPECT_EQ(errors, place + "expected a file \"" + Path("luts/missing.cube").toStdString() +
                          "\", found none\n");
    Write("luts/broken.cube", "LUT_3D_SIZE 2\n0 0 zero\n");
    Load(R"("file": "luts/broken.cube")");
    EXPECT_THAT(errors, HasSubstr(place + Path("luts/broken.cube").toStdString() + ":2: "));
    Write("luts/empty.cube", "");
    Load(R"("file": "luts/empty.cube")");
    EXPECT_THAT(errors, HasSubstr("found an empty file"));
    Load(R"("file": "luts")");
    EXPECT_THAT(errors, HasSubstr("expected a file, found a folder"));
    Write("luts/list.cc", DecisionList);
    Load(R"("file": "luts/list.cc")");
    EXPECT_THAT(errors, HasSubstr("expected a look-up table, found colour decision lists"));
    Load(R"("file": 7)");
    EXPECT_THAT(errors, HasSubstr("effect/file: expected string, found number"));
    Load(R"("file": "luts/swap.cube", "cube": {"size": 2, "data": ""})");
    EXPECT_THAT(errors, HasSubstr("expected either the name of a file or the table itself, found "
                                  "both"));
}
