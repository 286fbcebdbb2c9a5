// SPDX-License-Identifier: GPL-2.0-or-later
// The window serves users who see nothing, and users without a mouse.
#include "editor/EditorFixture.h"

#include "actions/EditorActions.h"
#include "canvas/PhotoCanvas.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QTest>
#include <QTimer>
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

    /// The widgets that the Tab key reaches now.
    static std::vector<QWidget*> FocusableIn(const QWidget& root)
    {
        std::vector<QWidget*> found;
        for (QWidget* const widget : root.findChildren<QWidget*>())
            if ((widget->focusPolicy() & Qt::TabFocus) && widget->isVisible() &&
                widget->isEnabled() && !widget->focusProxy() &&
                !qobject_cast<QAbstractSpinBox*>(
                    widget->parentWidget())) // the box has a name instead
                found.push_back(widget);
        return found;
    }

    /// Expects a name of each widget; returns how many there are.
    static int ExpectNames(const QWidget& root)
    {
        const auto widgets = FocusableIn(root);
        for (QWidget* const widget : widgets)
            EXPECT_FALSE(SpokenName(*widget).isEmpty()) << Describe(*widget);
        return static_cast<int>(widgets.size());
    }

    /// All texts of the window at the moment: titles, texts, tool tips and spoken names.
    QStringList AllTexts() const
    {
        QStringList texts;
        for (const QObject* const object : window->findChildren<QObject*>()) {
            const auto* const widget = qobject_cast<const QWidget*>(object);
            if (widget && !widget->isVisible() && !qobject_cast<const QMenu*>(widget))
                continue;
            for (const char* const property :
                 {"windowTitle", "title", "text", "toolTip", "accessibleName", "placeholderText"})
                if (const QVariant text = object->property(property); text.isValid())
                    texts.append(
                        QStringLiteral("%1 %2: %3")
                            .arg(object->objectName(), QLatin1String(property), text.toString()));
        }
        return texts;
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
    EXPECT_GT(ExpectNames(*window), 15);
    ClickLook(QStringLiteral("Fresh")); // with extra sliders
    Find<QLineEdit>("searchField")->setText(QStringLiteral("e"));
    Open(WriteFile("notes.jpg", "no photo")); // with a message
    EXPECT_GT(ExpectNames(*window), 25);
    FindAction("closePhoto")->trigger(); // with the start page
    EXPECT_GT(ExpectNames(*window), 15);
}

TEST_F(AccessTest, everyWidgetOfADialogThatTakesTheFocusHasAName)
{
    ClickLook(QStringLiteral("Candlelight"));
    for (const char* const action : {"exportPhoto", "shortcuts", "about", "savePreset"}) {
        SCOPED_TRACE(action);
        int looked = 0;
        QTimer::singleShot(0, window.get(), [&] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            looked = ExpectNames(*dialog);
            dialog->reject();
        });
        FindAction(action)->trigger();
        EXPECT_GE(looked, 1);
    }
}

TEST_F(AccessTest, theTabKeyReachesEverythingThatTakesTheFocus)
{
    ClickLook(QStringLiteral("Candlelight")); // there is something to tune
    QSet<const QWidget*> reached;
    QWidget* const start = &GetPart<LumetraEditor::PhotoCanvas>();
    start->setFocus();
    do {
        reached.insert(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (!reached.contains(QApplication::focusWidget()));

    EXPECT_EQ(QApplication::focusWidget(), start);
    for (const QWidget* const widget : FocusableIn(*window))
        EXPECT_TRUE(reached.contains(widget)) << Describe(*widget);
    EXPECT_GT(reached.size(), 15);
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
    for (const QAction* const action : GetPart<LumetraEditor::EditorActions>().GetKeyed()) {
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

TEST_F(AccessTest, saysTheSameWhetherItStartedInALanguageOrChangedToIt)
{
    const QStringList english = AllTexts();
    FindAction("german")->trigger();
    QApplication::processEvents();
    const QStringList changed = AllTexts();
    EXPECT_NE(changed, english);
    FindAction("english")->trigger();
    QApplication::processEvents();
    EXPECT_EQ(AllTexts(), english);

    const QSize size = window->size(); // the histogram is seen in high windows alone
    window->UseLanguage(QStringLiteral("de"));
    window.reset();
    window = std::make_unique<LumetraEditor::EditorWindow>(*editor);
    window->resize(size);
    window->show();
    LoadPresetsPanel();
    Open(Path("lake.png"));
    EXPECT_EQ(AllTexts().join(QLatin1Char('\n')).toStdString(),
              changed.join(QLatin1Char('\n')).toStdString());
    window->UseLanguage(QStringLiteral("en"));
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
