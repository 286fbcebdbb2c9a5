// SPDX-License-Identifier: GPL-2.0-or-later
#include "Places.h"
#include "editor/EditorFixture.h"
#include "editor/plugins/modules/HostPlaces.h"

#include "LumetraEditor/IEditorPlugin.h"
#include "plugins/PluginLoader.h"

#include <QDir>
#include <QFile>
#include <QTabWidget>

#include <gmock/gmock.h>

using namespace LumetraTest;
using LumetraEditor::PluginLoader;
using testing::HasSubstr;

namespace {

class PluginLoaderTest : public EditorFolder
{
protected:
    std::string LoadRefused(const QString& folder)
    {
        PluginLoader loader;
        loader.LoadFolders({folder});
        EXPECT_TRUE(loader.GetPlugins().empty());
        EXPECT_EQ(loader.GetReports().size(), 1);
        return loader.GetReports().join(QLatin1Char('\n')).toStdString();
    }

    static QString TestModule(const char* name)
    {
        return QStringLiteral(LUMETRA_TEST_MODULES "/") + QLatin1String(name);
    }
};

} // namespace

TEST_F(PluginLoaderTest, loadsAModuleOfThirdParties)
{
    PluginLoader loader;

    loader.LoadFolders({QStringLiteral(LUMETRA_EXAMPLE_MODULES)});

    ASSERT_EQ(loader.GetPlugins().size(), 1U);
    EXPECT_EQ(loader.GetPlugins()[0].id, QStringLiteral("exposure-panel"));
    EXPECT_EQ(loader.GetPlugins()[0].root->GetTitle(), QStringLiteral("Exposure"));
    EXPECT_TRUE(loader.GetReports().isEmpty());
}

TEST_F(PluginLoaderTest, letsModulesUseTheEditorsOwnHost)
{
    PluginLoader loader;

    loader.LoadFolders({TestModule("host-module")});

    ASSERT_EQ(loader.GetPlugins().size(), 1U);
    EXPECT_EQ(loader.GetPlugins()[0].root->GetTitle(), DescribeHostPlaces());
}

TEST_F(PluginLoaderTest, refusesAnotherInterfaceVersion)
{
    const std::string report = LoadRefused(TestModule("outdated-module"));

    EXPECT_THAT(report, HasSubstr("liboutdated-module.so"));
    EXPECT_THAT(report, HasSubstr("version 1.1"));
    EXPECT_THAT(report, HasSubstr("expected version 3.0"));
}

TEST_F(PluginLoaderTest, refusesModulesOfOtherPrograms)
{
    EXPECT_THAT(LoadRefused(TestModule("foreign-module")), HasSubstr("no module of this editor"));
}

TEST_F(PluginLoaderTest, refusesAModuleThatCallsWhatNoLibraryHas)
{
    EXPECT_THAT(LoadRefused(TestModule("unresolved-module")),
                HasSubstr("GetTitleOfAnotherRelease"));
}

TEST_F(PluginLoaderTest, refusesAFileThatOnlyHasTheName)
{
    WriteFile("libbroken.so", "this is no module");

    EXPECT_THAT(LoadRefused(Path(".")), HasSubstr("libbroken.so"));
}

TEST_F(PluginLoaderTest, looksAtNoOtherFiles)
{
    WriteFile("readme.txt", "not for the editor");
    PluginLoader loader;

    loader.LoadFolders({Path("."), Path("missing")});

    EXPECT_TRUE(loader.GetReports().isEmpty());
}

TEST_F(PluginLoaderTest, loadsAModuleOnceThatIsFoundTwice)
{
    PluginLoader loader;

    loader.LoadFolders(
        {QStringLiteral(LUMETRA_EXAMPLE_MODULES), QStringLiteral(LUMETRA_EXAMPLE_MODULES)});

    EXPECT_EQ(loader.GetPlugins().size(), 1U);
}

TEST_F(PluginLoaderTest, looksFirstWhereTheEnvironmentSays)
{
    qputenv("LUMETRA_PLUGIN_PATH", QFile::encodeName(Path(".")) + ":/nowhere/at/all");

    const QStringList folders = LumetraEditor::GetPluginFolders();

    qunsetenv("LUMETRA_PLUGIN_PATH");
    ASSERT_FALSE(folders.isEmpty());
    EXPECT_EQ(folders.first(), Path("."));
    EXPECT_FALSE(folders.contains(QStringLiteral("/nowhere/at/all")));
}

TEST_F(PluginLoaderTest, looksInTheUsersFolderBeforeItsOwn)
{
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", QFile::encodeName(Path(".")));
    ASSERT_TRUE(QDir().mkpath(Path(".local/lib/lumetra/plugins")));
    ASSERT_TRUE(QDir().mkpath(Path("first")));
    qputenv("LUMETRA_PLUGIN_PATH", QFile::encodeName(Path("first")));

    const QStringList folders = LumetraEditor::GetPluginFolders();

    qunsetenv("LUMETRA_PLUGIN_PATH");
    qputenv("HOME", home);
    ASSERT_GE(folders.size(), 2);
    EXPECT_EQ(folders[0], Path("first"));
    EXPECT_EQ(folders[1], Path(".local/lib/lumetra/plugins"));
}

TEST_F(PluginLoaderTest, takesAModuleThatFitsInPlaceOfAnEarlierOneThatDoesNot)
{
    ASSERT_TRUE(QFile::copy(TestModule("outdated-module/liboutdated-module.so"),
                            Path("libexposure-panel.so")));
    PluginLoader loader;

    loader.LoadFolders({Path("."), QStringLiteral(LUMETRA_EXAMPLE_MODULES)});

    ASSERT_EQ(loader.GetPlugins().size(), 1U);
    EXPECT_THAT(loader.GetPlugins()[0].path.toStdString(), HasSubstr(LUMETRA_EXAMPLE_MODULES));
    EXPECT_EQ(loader.GetReports().size(), 1);
}

using PanelLoadingTest = EditorTest;

TEST_F(PanelLoadingTest, placesAPanelUnderItsTitle)
{
    LoadExamplePanel();

    auto* const panels = Find<QTabWidget>("panels");
    ASSERT_EQ(panels->count(), 1);
    EXPECT_EQ(panels->tabText(0), QStringLiteral("Exposure"));
    EXPECT_TRUE(GetMessage().isEmpty());
}

TEST_F(PanelLoadingTest, goesOnWithoutAPanelThatFails)
{
    window->LoadPanels({QStringLiteral(LUMETRA_TEST_MODULES "/failing-module"),
                        QStringLiteral(LUMETRA_EXAMPLE_MODULES)});

    EXPECT_EQ(Find<QTabWidget>("panels")->count(), 1);
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("failing-module"));
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("the catalogue of tests is missing"));
}
