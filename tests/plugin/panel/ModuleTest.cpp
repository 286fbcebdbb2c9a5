// SPDX-License-Identifier: GPL-2.0-or-later
#include "LumetraEditor/IEditorPlugin.h"
#include "Places.h"
#include "TestEditor.h"
#include "image/Image.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QLocale>
#include <QPluginLoader>
#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

using LumetraEditor::IEditorPlugin;

namespace {

/// The module as the editor loads it, with a data folder of its own.
class ModuleTest : public testing::Test
{
protected:
    ModuleTest() : loader(QStringLiteral(LUMETRA_PRESETS_MODULE))
    {
        qputenv("XDG_DATA_HOME", folder.path().toLocal8Bit());
    }
    ~ModuleTest() override
    {
        qunsetenv("XDG_DATA_HOME");
        QLocale::setDefault(QLocale::c());
    }

    IEditorPlugin& Root()
    {
        auto* const root = qobject_cast<IEditorPlugin*>(loader.instance());
        EXPECT_TRUE(root) << qPrintable(loader.errorString());
        return *root;
    }

    QTemporaryDir folder;
    QPluginLoader loader;
};

} // namespace

TEST_F(ModuleTest, saysForWhichVersionItWasMade)
{
    EXPECT_EQ(loader.metaData().value(QStringLiteral("IID")),
              QStringLiteral(LUMETRA_EDITOR_PLUGIN_IID));
}

TEST_F(ModuleTest, makesAPanelWithTheShippedLooks)
{
    LumetraTest::TestEditor editor;
    const auto panel = Root().CreatePanel(editor);
    editor.SetPanel(panel.get());
    editor.OpenPhoto(LumetraHost::Image::Allocate(40, 30, LumetraHost::Image::Depth::Bits8));

    panel->GetWidget()->resize(300, 600);
    panel->GetWidget()->grab();

    EXPECT_EQ(editor.messages, QStringList());
    EXPECT_FALSE(editor.GetQueue().isEmpty()); // thumbnails of looks
    EXPECT_TRUE(panel->SaveEdit()->GetEntries().empty());
}

TEST_F(ModuleTest, speaksTheLanguageOfTheEditor)
{
    EXPECT_EQ(Root().GetTitle(), QStringLiteral("Looks"));
    LumetraTest::TestEditor editor;
    const auto panel = Root().CreatePanel(editor);
    auto* const discard =
        panel->GetWidget()->findChild<QAbstractButton*>(QStringLiteral("discardButton"));
    ASSERT_TRUE(discard);
    EXPECT_EQ(discard->text(), QStringLiteral("Remove"));

    QLocale::setDefault(QLocale(QLocale::German));
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(panel->GetWidget(), &change);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(discard->text(), QStringLiteral("Entfernen"));

    QLocale::setDefault(QLocale(QLocale::English));
    QCoreApplication::sendEvent(panel->GetWidget(), &change);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(discard->text(), QStringLiteral("Remove"));
}
