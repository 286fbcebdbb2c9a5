// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetResource.h"

#include "PanelFixture.h"
#include "Zorvik/Exception.h"
#include "core/PresetCollection.h"
#include "panel/grid/PresetGrid.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSlider>
#include <QToolButton>

using LumetraPlugin::PresetModel;
using LumetraPlugin::PresetResource;
using LumetraTest::PanelFixture;

namespace {

class ResourceTest : public PanelFixture
{
protected:
    ResourceTest()
    {
        Grid(2).parentWidget()->show(); // the page
        QApplication::processEvents();
    }
    QString WriteResource(const char* text)
    {
        const QDir resources(files.resources.front());
        EXPECT_TRUE(resources.mkpath(QStringLiteral("film-pack")));
        QFile file(resources.filePath(QStringLiteral("film-pack/silver.json")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return file.fileName();
    }
    bool IsDownloadable(const char* name)
    {
        return Named(name).data(PresetModel::DownloadableRole).toBool();
    }
};

constexpr char Silver[] = R"({"effects": [{"effect": {"id": "saturation", "amount": -100}},
                                          {"effect": {"id": "exposure", "stops": 1}}]})";

} // namespace

TEST_F(ResourceTest, marksPresetsWhoseEffectsAreYetToCome)
{
    EXPECT_TRUE(IsDownloadable("Silver"));
    EXPECT_FALSE(IsDownloadable("Bright"));
    const auto& reports = panel->GetPresets().GetReports();
    ASSERT_EQ(reports.size(), 1u); // of the one whose resource leads out of the folder
    EXPECT_NE(reports.front().ToText().find("../../thief.json"), std::string::npos);
    const auto titles =
        panel->GetWidget()->findChildren<QToolButton*>(QStringLiteral("sectionTitleButton"));
    EXPECT_FALSE(titles.at(2)->icon().isNull());
    EXPECT_TRUE(titles.at(0)->icon().isNull());
}

TEST_F(ResourceTest, saysWhichFileIsMissing)
{
    Click("Silver");

    EXPECT_FALSE(IsApplied("Silver"));
    ASSERT_EQ(editor.messages.size(), 1);
    EXPECT_TRUE(editor.messages.front().contains(QStringLiteral("film-pack/silver.json")));
}

TEST_F(ResourceTest, aClickFetchesTheEffectsAndAppliesThem)
{
    WriteResource(Silver);

    Click("Silver");

    EXPECT_TRUE(IsApplied("Silver"));
    EXPECT_FALSE(IsDownloadable("Silver"));
    EXPECT_FALSE(HaveSamePixels(editor.GetResult(), photo));
    EXPECT_EQ(Find<QSlider>("intensitySlider").value(), 60);
    EXPECT_EQ(Find<QSlider>("extraSlider0").value(), 50);
    Drag("intensitySlider", {1});
    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), photo));
}

TEST_F(ResourceTest, refusesAFileThatIsNoResource)
{
    const QString path = WriteResource(R"({"effects": [{"effect": {"id": "no such"}}]})");
    Click("Silver");

    EXPECT_TRUE(IsDownloadable("Silver"));
    ASSERT_EQ(editor.messages.size(), 1);
    EXPECT_TRUE(editor.messages.front().startsWith(path + QLatin1Char(':')));

    WriteResource("{}");
    EXPECT_THROW(PresetResource::Read(path), Zorvik::Exception);
    WriteResource("garbage");
    EXPECT_THROW(PresetResource::Read(path), Zorvik::Exception);
}

TEST_F(ResourceTest, staysInsideTheResourceFolders)
{
    EXPECT_EQ(PresetResource::GetPlace(Model(), Named("Silver")),
              QStringLiteral("film-pack/silver.json"));
    EXPECT_EQ(PresetResource::GetPlace(Model(), Named("Thief")), QString());
    EXPECT_EQ(PresetResource::GetPlace(Model(), Named("Bright")), QString());
}

TEST_F(ResourceTest, fetchesAllThatAreThere)
{
    WriteResource(Silver);
    EXPECT_EQ(PresetResource::FetchAll(Model(), files.resources), QStringList());
    EXPECT_FALSE(IsDownloadable("Silver"));
    EXPECT_TRUE(IsDownloadable("Thief"));
}
