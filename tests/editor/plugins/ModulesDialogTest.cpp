// SPDX-License-Identifier: GPL-2.0-or-later
// The list of modules: what was found, why some are not loaded, and which are switched off.
#include "Places.h"
#include "editor/EditorFixture.h"

#include "actions/EditorActions.h"
#include "plugins/PluginLoader.h"
#include "settings/EditorSettings.h"

#include <QAction>
#include <QDialog>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>

#include <gmock/gmock.h>

#include <functional>

using namespace LumetraTest;
using LumetraEditor::EditorSettings;
using LumetraEditor::FoundModule;
using LumetraEditor::PluginLoader;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

QString TestModule(const char* name)
{
    return QStringLiteral(LUMETRA_TEST_MODULES "/") + QLatin1String(name);
}

class ModulesDialogTest : public EditorTest
{
protected:
    /// Opens the list, lets `use` look at it or change it, and closes it.
    void UseList(const std::function<void(QTreeWidget& list)>& use)
    {
        bool wasOpen = false;
        QTimer::singleShot(0, window.get(), [&] {
            auto* const dialog = window->findChild<QDialog*>(QStringLiteral("modulesDialog"));
            wasOpen = dialog != nullptr;
            if (!dialog)
                return;
            use(*dialog->findChild<QTreeWidget*>(QStringLiteral("modulesList")));
            dialog->reject();
        });
        Find<QAction>("modules")->trigger();
        EXPECT_TRUE(wasOpen);
    }

    /// The rows as "id|version|state".
    std::vector<std::string> ReadRows()
    {
        std::vector<std::string> rows;
        UseList([&rows](const QTreeWidget& list) {
            for (int i = 0; i < list.topLevelItemCount(); ++i) {
                const QTreeWidgetItem& row = *list.topLevelItem(i);
                rows.push_back(
                    (row.text(0) + QLatin1Char('|') + row.text(1) + QLatin1Char('|') + row.text(2))
                        .toStdString());
            }
        });
        return rows;
    }
};

} // namespace

TEST_F(ModulesDialogTest, namesEachModuleItsVersionAndWhatBecameOfIt)
{
    window->LoadPanels(
        {TestModule("keyed-module"), TestModule("outdated-module"), TestModule("keyed-module")});

    EXPECT_THAT(ReadRows(),
                ElementsAre("keyed-module|1.2.3|loaded",
                            HasSubstr("outdated-module||it was made for version 1.1"),
                            HasSubstr("keyed-module|1.2.3|another module of that name")));
}

TEST_F(ModulesDialogTest, tellsOfAModuleThatWasPutOutOfUse)
{
    window->LoadPanels({TestModule("failing-module")});

    EXPECT_THAT(ReadRows(), ElementsAre("failing-module||put out of use, since it failed"));
}

TEST_F(ModulesDialogTest, anUntickedModuleIsNotLoadedTheNextTimeAndATickedOneIs)
{
    const QStringList folders{TestModule("keyed-module"), QStringLiteral(LUMETRA_EXAMPLE_MODULES)};
    window->LoadPanels(folders);
    UseList([](QTreeWidget& list) { list.topLevelItem(0)->setCheckState(0, Qt::Unchecked); });
    EXPECT_EQ(EditorSettings().GetModulesOff(), QStringList(QStringLiteral("keyed-module")));

    Restart();
    window->LoadPanels(folders);
    EXPECT_EQ(Find<QTabWidget>("panels")->count(), 1);
    EXPECT_TRUE(GetMessage().isEmpty());
    EXPECT_THAT(ReadRows(),
                ElementsAre("keyed-module|1.2.3|switched off", HasSubstr("exposure-panel")));

    UseList([](QTreeWidget& list) { list.topLevelItem(0)->setCheckState(0, Qt::Checked); });
    EXPECT_TRUE(EditorSettings().GetModulesOff().isEmpty());
}

TEST_F(ModulesDialogTest, aModuleThatIsOffIsNotRun)
{
    PluginLoader loader;

    loader.LoadFolders({TestModule("keyed-module")}, {QStringLiteral("keyed-module")});

    EXPECT_TRUE(loader.GetPlugins().empty());
    EXPECT_TRUE(loader.GetReports().isEmpty());
    ASSERT_EQ(loader.GetModules().size(), 1U);
    EXPECT_FALSE(loader.GetModules()[0].isLoaded);
}

TEST_F(ModulesDialogTest, modulesThatWereNotFoundThisTimeStayOff)
{
    EditorSettings().SetModulesOff({QStringLiteral("on-another-disk")});
    window->LoadPanels({TestModule("keyed-module")});

    UseList([](QTreeWidget& list) { list.topLevelItem(0)->setCheckState(0, Qt::Unchecked); });

    EXPECT_THAT(EditorSettings().GetModulesOff(),
                ElementsAre(QStringLiteral("on-another-disk"), QStringLiteral("keyed-module")));
}
