// SPDX-License-Identifier: GPL-2.0-or-later
// Who sees nothing, and who has no mouse, can use the window all the same.
#include "EditorFixture.h"

#include "canvas/PhotoCanvas.h"
#include "window/EditorActions.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QTest>
#include <QToolButton>

using namespace LumetraTest;

namespace {

class AccessTest : public EditorTest
{
protected:
    AccessTest()
    {
        LoadPresetsPanel();
        Open(WritePhoto("lake.png", 300, 200));
    }

    static std::string Describe(const QWidget& widget)
    {
        return std::string(widget.metaObject()->className()) + " \"" +
               widget.objectName().toStdString() + "\"";
    }

    static QString SpokenName(QWidget& widget)
    {
        QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(&widget);
        return face ? face->text(QAccessible::Name) : QString();
    }
};

} // namespace

TEST_F(AccessTest, everyWidgetThatTakesTheFocusHasAName)
{
    int looked = 0;
    for (QWidget* const widget : window->findChildren<QWidget*>()) {
        if (!(widget->focusPolicy() & Qt::TabFocus) || !widget->isVisible() ||
            qobject_cast<QAbstractSpinBox*>(widget->parentWidget())) // the box speaks for its field
            continue;
        ++looked;
        EXPECT_FALSE(SpokenName(*widget).isEmpty()) << Describe(*widget);
    }
    EXPECT_GT(looked, 15);
}

TEST_F(AccessTest, theTabKeyReachesCanvasToolsAndPanel)
{
    ClickLook(QStringLiteral("Candlelight")); // there is something to tune
    QSet<QString> reached;
    QWidget* widget = &window->GetCanvas();
    widget->setFocus();
    for (int i = 0; i < 200; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        reached.insert(QApplication::focusWidget()->objectName());
        if (QApplication::focusWidget() == widget)
            break;
    }

    for (const char* const name :
         {"photoCanvas", "compare", "searchField", "intensitySlider", "applyButton"})
        EXPECT_TRUE(reached.contains(QLatin1String(name))) << name;
}

TEST_F(AccessTest, noTwoCommandsShareAKey)
{
    QSet<QString> keys;
    for (const QAction* const action : window->findChildren<QAction*>())
        for (const QKeySequence& key : action->shortcuts()) {
            EXPECT_FALSE(keys.contains(key.toString())) << key.toString().toStdString();
            keys.insert(key.toString());
        }
    EXPECT_GT(keys.size(), 15);
}

TEST_F(AccessTest, everyCommandStandsInAMenuWithAText)
{
    QSet<const QAction*> inMenus;
    for (const QMenu* const menu : window->menuBar()->findChildren<QMenu*>())
        for (const QAction* const action : menu->actions())
            inMenus.insert(action);
    for (const QMenu* const menu : window->findChildren<QMenu*>())
        for (const QAction* const action : menu->actions())
            inMenus.insert(action);
    for (const QAction* const action : window->GetActions().GetKeyed()) {
        EXPECT_TRUE(inMenus.contains(action)) << action->objectName().toStdString();
        EXPECT_FALSE(action->text().isEmpty()) << action->objectName().toStdString();
    }
}

TEST_F(AccessTest, speaksGerman)
{
    FindAction("german")->trigger();
    QApplication::processEvents();

    EXPECT_EQ(FindAction("exportPhoto")->text(), QStringLiteral("&Exportieren …"));
    EXPECT_EQ(Find<QToolButton>("compare")->accessibleName(),
              QStringLiteral("Halten, um das Original zu sehen"));
    FindAction("english")->trigger();
    QApplication::processEvents();

    EXPECT_EQ(FindAction("exportPhoto")->text(), QStringLiteral("&Export…"));
}

TEST_F(AccessTest, changesItsTheme)
{
    FindAction("light")->trigger();
    const int light = window->palette().color(QPalette::Window).lightness();
    FindAction("dark")->trigger();
    const int dark = window->palette().color(QPalette::Window).lightness();

    EXPECT_GT(light, 200);
    EXPECT_LT(dark, 60);
}

TEST_F(AccessTest, hidesTheSidePanel)
{
    auto* const side = Find<QWidget>("sidePanel");
    ASSERT_TRUE(side->isVisible());

    FindAction("sidePanel")->trigger();
    EXPECT_FALSE(side->isVisible());
    FindAction("sidePanel")->trigger();

    EXPECT_TRUE(side->isVisible());
}

TEST_F(AccessTest, remembersTheTheme)
{
    FindAction("light")->trigger();

    Restart();

    EXPECT_TRUE(FindAction("light")->isChecked());
}
